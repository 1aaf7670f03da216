// The SVG text: true size, layers, joins, escapes.
#include "plot/svg.h"

#include <gtest/gtest.h>

namespace ombrelia {
namespace {

// The whole body of a layer.
std::string strato(const std::string &svg, const std::string &etichetta) {
    const auto a = svg.find("inkscape:label=\"" + etichetta + "\">\n");
    if (a == std::string::npos) return "assente";
    const auto da = svg.find('\n', a) + 1;
    return svg.substr(da, svg.find("</g>", da) - da);
}

struct Svg : testing::Test {
    Svg() {
        t.QuadranteL(0.4);
        t.QuadranteH(0.2);
        t.ShiftX(0.2);
        t.ShiftY(0.1);
    }
    std::string scrivi() { return SVG_Generate(t); }
    Tavolo t;
};

TEST_F(Svg, GrandezzaVera) {
    t.Scala(10);  // does not count
    const std::string s = scrivi();
    EXPECT_NE(s.find("width=\"400mm\" height=\"200mm\" viewBox=\"0 0 400 200\""), std::string::npos) << s;
    t.xLine(0, 0, 0.1, -0.0123456, 0x0000FF, "Ora 12°");
    EXPECT_EQ(strato(scrivi(), "Ora 12°"), "<path stroke=\"#ff0000\" d=\"M200 100L300 87.6544\"/>\n");
}

TEST_F(Svg, CordeUnite) {
    // Ends in millimetres from the origin along x, at y 0; colours; paths awaited.
    struct Corda {
        int a, b;
        Colore c;
    };
    const auto d = [](const std::string &punti, const std::string &colore = "000000") {
        return "<path stroke=\"#" + colore + "\" d=\"" + punti + "\"/>\n";
    };
    struct Riga {
        const char *nome;
        std::vector<Corda> corde;
        std::string attesi;
    };
    for (const Riga &r :
         {Riga{"forward", {{0, 1, 0}, {1, 2, 0}, {2, 3, 0}}, d("M200 100L201 100 202 100 203 100")},
          Riga{"newer end first", {{1, 0, 0}, {2, 1, 0}, {3, 2, 0}}, d("M200 100L201 100 202 100 203 100")},
          Riga{"both ways", {{0, 1, 0}, {2, 1, 0}, {2, 3, 0}}, d("M200 100L201 100 202 100 203 100")},
          Riga{"gap", {{0, 1, 0}, {2, 3, 0}}, d("M200 100L201 100") + d("M202 100L203 100")},
          Riga{"another colour", {{0, 1, 0}, {1, 2, 0xFF0000}}, d("M200 100L201 100") + d("M201 100L202 100", "0000ff")},
          Riga{"white is black", {{0, 1, 0xFFFFFF}}, d("M200 100L201 100")}}) {
        t.Clear();
        for (const Corda &c : r.corde) t.xLine(c.a / 1000.0, 0, c.b / 1000.0, 0, c.c, "a");
        EXPECT_EQ(strato(scrivi(), "a"), r.attesi) << r.nome;
    }
    t.Clear();
    t.xLine(0, 0, 0.001, 0, 0, "a");
    t.xLine(0, 0, 0.005, 0, 0, "b");  // another layer between does not part them
    t.xLine(0.001, 0, 0.001, 0.001, 0, "a");
    t.xLine(0.001, 0.001, 0, 0, 0, "a");
    EXPECT_EQ(strato(scrivi(), "a"), d("M200 100L201 100 201 101Z"));
}

TEST_F(Svg, PuntiRiquadriCerchi) {
    t.xPset(0, 0, 0xFF, "p");
    t.xPset(0.001, 0, 0, "p");
    t.xPset(0.002, 0, 0xFF, "p");
    EXPECT_EQ(strato(scrivi(), "p"),
              "<path stroke-width=\"0.35\" stroke=\"#ff0000\" d=\"M200 100h0M202 100h0\"/>\n"
              "<path stroke-width=\"0.35\" stroke=\"#000000\" d=\"M201 100h0\"/>\n");
    t.xBox(0.1, 0.05, -0.1, -0.05, 0xFFFFFF, true, "b");
    EXPECT_EQ(strato(scrivi(), "b"), "<path stroke=\"#000000\" d=\"M300 150L100 150 100 50 300 50Z\"/>\n");
    const double quarto = 1.570796326794897;
    t.xCircle(0, 0, 0.01, 0xFF, 0xFF00, 1, -6.28, 0, "c");
    t.xCircle(0, 0, 0.01, 0, -1, 0.5, 0, 0, "c");
    t.xCircle(0, 0, 0.01, 0, -1, 1, 0, quarto, "c");
    t.xCircle(0, 0, 0.01, 0, -1, 1, quarto, 4 * quarto, "c");
    t.xCircle(0, 0, -1, 0, -1, 1, 0, 0, "c");
    t.xCircle(0, 0, 0.01, 0, -1, 0, 0, 0, "c");
    EXPECT_EQ(strato(scrivi(), "c"),
              "<circle r=\"10\" cx=\"200\" cy=\"100\" fill=\"#00ff00\" stroke=\"#ff0000\"/>\n"
              "<ellipse rx=\"10\" ry=\"5\" cx=\"200\" cy=\"100\" stroke=\"#000000\"/>\n"
              "<path d=\"M210 100A10 10 0 0 0 200 90\" stroke=\"#000000\"/>\n"
              "<path d=\"M200 90A10 10 0 1 0 210 100\" stroke=\"#000000\"/>\n");
    t.xPlineStart("v");
    t.xPLineVertex(0, 0, 0, "v");
    t.xBox(0, 0, 0.01, 0.01, 0, false, "b");
    t.xPLineVertex(0.01, 0, 0, "v");
    t.xPLineVertex(0.01, 0.01, 0, "v");
    t.xPlineEnd("v");
    EXPECT_EQ(strato(scrivi(), "v"), "<path stroke=\"#000000\" d=\"M200 100L210 100 210 110\"/>\n");
}

TEST_F(Svg, Specchi) {
    t.xLine(0.01, 0.02, 0.03, 0.04, 0, "a");
    t.xLine(0.01, 0.02, 0.03, 0.04, 0, "AssiXY");
    t.Dati("fermo", 0.01, 0.02);
    t.FattoreX = t.FattoreY = -1;
    const std::string s = scrivi();
    EXPECT_EQ(strato(s, "a"), "<path stroke=\"#000000\" d=\"M190 80L170 60\"/>\n");
    EXPECT_EQ(strato(s, "AssiXY"), "<path stroke=\"#000000\" d=\"M210 120L230 140\"/>\n");
    EXPECT_NE(s.find("x=\"210\" y=\"122.6\">fermo</text>"), std::string::npos);
}

TEST_F(Svg, NomiETestiSicuri) {
    t.xLine(0, 0, 1, 1, 0, "a<b>&\"c\"");
    t.xLine(0, 0, 1, 1, 0, "a b");
    t.xLine(0, 0, 1, 1, 0, "a_b");
    t.xLine(0, 0, 1, 1, 0);
    t.xLine(0, 0, 1e300, 1, 0, "troppo lontano");
    t.Dati("x < y & \x01\x1F\t\xFF \xEF\xBF\xBF", 0, 0);
    const std::string s = scrivi();
    for (const char *pezzo :
         {"id=\"strato1-a_b___c_\" inkscape:groupmode=\"layer\" inkscape:label=\"a&lt;b&gt;&amp;&quot;c&quot;\"",
          "id=\"strato2-a_b\"", "id=\"strato3-a_b\"", "inkscape:label=\"Disegno\"", ">x &lt; y &amp;    "})
        EXPECT_NE(s.find(pezzo), std::string::npos) << pezzo << "\n" << s;
    EXPECT_EQ(s.find("troppo"), std::string::npos);
    for (const char c : s) EXPECT_TRUE(static_cast<unsigned char>(c) >= ' ' || c == '\n');
    t.QuadranteL(-3);
    EXPECT_NE(scrivi().find("width=\"0mm\""), std::string::npos);
}

}  // namespace
}  // namespace ombrelia
