// Drawings written as steps, against what stands for them in the list, on a device, in a DXF file and in an SVG file.
#include <gtest/gtest.h>

#include "comuni/prova.h"
#include "plot/dxf.h"
#include "plot/lista_testo.h"
#include "plot/svg.h"
#include "registratore.h"

namespace ombrelia {
namespace {

// The part of a text behind one mark and before another.
std::string tra(const std::string &testo, const std::string &da, const std::string &a) {
    const auto i = testo.find(da);
    if (i == std::string::npos) return "assente";
    return testo.substr(i + da.size(), testo.find(a, i + da.size()) - i - da.size());
}

std::string unisci(const prova::Atti &atti) {
    std::string t;
    for (const std::string &a : atti) t += a + '\n';
    return t;
}

// The whole DXF text with line ends as LF; each must have been CR LF.
std::string dxf(const Tavolo &t) {
    std::string s = DXF_Generate(t);
    for (std::size_t i = 0; (i = s.find('\n', i)) != std::string::npos;) {
        if (i > 0 && s[i - 1] == '\r') s.erase(i - 1, 1);
        else ADD_FAILURE() << "a line end without CR at " << i++;
    }
    return s;
}

TEST(Disegni, Expected) {
    for (const auto &r : prova::Tabella("disegni.txt")) {
        Tavolo t;
        prova::Registratore d;
        prova::Disegna(t, "F 0.4 0.2 0.2 0.1");
        t.dispositivo = &d;
        prova::Disegna(t, prova::Scritto(r.at(1)));
        const std::string diretti = unisci(d.atti), lista = ListaTesto(t.lista());
        const double x = t.xCurrentX(), y = t.xCurrentY();
        std::string replica[2];
        for (std::string &volta : replica) {
            d.atti.clear();
            t.Refresh();
            volta = unisci(d.atti);
        }
        EXPECT_EQ(replica[0], replica[1]) << r[1];
        const std::string svg = r[0].starts_with("svg ") ? SVG_Generate(t) : "";
        std::string avuto = r[0] == "list"      ? lista
                            : r[0] == "painted" ? diretti
                            : r[0] == "replay"  ? replica[0]
                            : r[0] == "file"    ? dxf(t)
                            : r[0] == "dxf"     ? tra(dxf(t), "ENTITIES\n", " 0 \nENDSEC\n 0 \nEOF\n")
                                                : tra(svg, "inkscape:label=\"" + r[0].substr(4) + "\">\n", "</g>");
        for (char &c : avuto) c = c == '\n' ? '~' : c == '\t' ? ' ' : c;
        EXPECT_EQ('~' + avuto, prova::Scritto(r.at(2))) << r[0] << ": " << r[1];
        EXPECT_EQ(ListaTesto(t.lista()), lista) << r[1];
        EXPECT_EQ(t.xCurrentX(), x) << r[1];
        EXPECT_EQ(t.xCurrentY(), y) << r[1];
    }
}

TEST(Dxf, TableOfColours) {
    const int attesi[16] = {0, 5, 3, 4, 1, 6, 2, 7, 8, 5, 7, 4, 1, 6, 2, 0xFFFFFF};
    for (int n = 0; n < 16; ++n) EXPECT_EQ(DXF_QbColorConverter(QB(n)), attesi[n]) << n;
    EXPECT_EQ(DXF_QbColorConverter(0x0A0013BF), 7);
    EXPECT_EQ(DXF_QbColorConverter(33023), 33023);
}

TEST(Svg, SafeNamesAndTexts) {
    Tavolo t;
    prova::Disegna(t,
                   "F 0.4 0.2 0.2 0.1;K 10;L 0 0 1 1 0 a<b>&\"c\";L 0 0 1 0.9 0 a b;L 0 0 1 0.8 0 a_b;L 0 0 1 0.7 0;"
                   "L 1e300 0 1e300 1 0 troppo lontano;T 0.01 0.02 fermo;M -1 -1");
    t.Dati("x < y & \x01\x1F\t\xFF \xEF\xBF\xBF", 0, 0);
    const std::string s = SVG_Generate(t);
    for (const char *pezzo :
         {"width=\"400mm\" height=\"200mm\" viewBox=\"0 0 400 200\"", "x=\"210\" y=\"122.6\">fermo</text>",
          "id=\"strato1-a_b___c_\" inkscape:groupmode=\"layer\" inkscape:label=\"a&lt;b&gt;&amp;&quot;c&quot;\"",
          "id=\"strato2-a_b\"", "id=\"strato3-a_b\"", "inkscape:label=\"Disegno\"", ">x &lt; y &amp;    "})
        EXPECT_NE(s.find(pezzo), std::string::npos) << pezzo << "\n" << s;
    EXPECT_EQ(s.find("troppo"), std::string::npos);
    for (const char c : s) EXPECT_TRUE(static_cast<unsigned char>(c) >= ' ' || c == '\n');
    t.QuadranteL(-3);
    EXPECT_NE(SVG_Generate(t).find("width=\"0mm\""), std::string::npos);
}

}  // namespace
}  // namespace ombrelia
