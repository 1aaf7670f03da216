// The DXF text, byte for byte.
#include "plot/dxf.h"

#include <gtest/gtest.h>

namespace ombrelia {
namespace {

const std::string TESTA =
    " 999 \nDXF creato da Tavolo Varno production\n 0 \nSECTION\n 2 \nHEADER\n 9 \n$EXTMAX\n 10 \n0.5\n 20 \n1\n 30 \n0\n"
    " 9 \n$EXTMIN\n 10 \n20\n 20 \n0\n 30 \n0\n 0 \nENDSEC\n 0 \nSECTION\n 2 \nENTITIES\n";
const std::string CODA = " 0 \nENDSEC\n 0 \nEOF\n";

// Entities of a drawing on a sheet of 0.5 by 1, with line ends as LF.
std::string entita(Tavolo &t) {
    t.QuadranteL(0.5);
    t.QuadranteH(1);
    std::string s = DXF_Generate(t), piano;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '\r' && i + 1 < s.size() && s[i + 1] == '\n') continue;
        EXPECT_FALSE(s[i] == '\n' && (i == 0 || s[i - 1] != '\r')) << "a line end without CR at " << i;
        piano += s[i];
    }
    EXPECT_EQ(piano.substr(0, TESTA.size()), TESTA);
    EXPECT_GE(piano.size(), TESTA.size() + CODA.size());
    EXPECT_EQ(piano.substr(piano.size() - CODA.size()), CODA);
    return piano.substr(TESTA.size(), piano.size() - TESTA.size() - CODA.size());
}

std::string linea(const std::string &x1, const std::string &y1, const std::string &x2, const std::string &y2) {
    return " 0 \nLINE\n 8 \na\n 62 \n 0 \n 10 \n" + x1 + "\n 20 \n" + y1 + "\n 30 \n0\n 11 \n" + x2 + "\n 21 \n" + y2 +
           "\n 31 \n0\n";
}

TEST(Dxf, UnaDiOgniSpecie) {
    Tavolo t;
    EXPECT_EQ(entita(t), "");
    t.ShiftX(0.125);
    t.Scala(5);  // neither counts
    t.Dati("non c'e'", 0.1, 0.1);
    t.xPset(0.0001, 0, 0xFFFFFF, "Mezzodì 12°");
    t.xLine(1, 0.1, 0.000015, -0.123456, 0xFF, "");
    t.xCircle(0.5, 0.25, 0.002, 0, 255, 1, 1, 0, "c");
    t.xCircle(0, 0, 0.002, 0x808080, -1, 1, 0.785398163397448, 3.141592654, "c");
    EXPECT_EQ(entita(t),
              " 0 \nPOINT\n 8 \nMezzod\xEC 12\xB0\n 62 \n 1 \n 10 \n0.1\n 20 \n0\n 30 \n0\n"
              " 0 \nLINE\n 8 \n\n 62 \n 1 \n 10 \n1000\n 20 \n-100\n 30 \n0\n 11 \n1.5E-02\n 21 \n123.456\n 31 \n0\n"
              " 0 \nCIRCLE\n 8 \nc\n 62 \n 0 \n 10 \n500\n 20 \n-250\n 30 \n0\n 40 \n2\n"
              " 0 \nARC\n 8 \nc\n 62 \n 8 \n 10 \n0\n 20 \n0\n 30 \n0\n 40 \n2\n 50 \n44.9999999941242\n 51 \n180\n");
}

TEST(Dxf, CordeCheSiSeguono) {
    Tavolo t;
    t.xLine(0.001, 0.002, 0.003, 0.004, 0, "a");
    t.xLine(0.003, 0.004, 0.005, 0.006, 0, "a");
    t.xLine(0.007, 0.002, 0.003, -0.004, 0, "a");  // new ends that half agree with the old
    t.xLine(0, 0, 0, 0, 0, "a");
    EXPECT_EQ(entita(t),
              linea("1", "-2", "3", "-4") + linea("3", "-4", "5", "-6") + linea("7", "-2", "3", "4") + linea("0", "0", "0", "0"));
}

TEST(Dxf, RiquadroSpecchiato) {
    // Corners (1, 2) and (3, 4) in file millimetres, unmirrored.
    struct Riga {
        double F, G;
        std::string lati;
    };
    for (const Riga &r :
         {Riga{1, 1,
               linea("1", "2", "3", "2") + linea("3", "2", "3", "4") + linea("3", "4", "1", "4") + linea("1", "4", "1", "2")},
          Riga{-1, 1,
               linea("1", "2", "3", "2") + linea("3", "2", "3", "4") + linea("-3", "4", "-1", "4") + linea("-1", "4", "-1", "2")},
          Riga{1, -1,
               linea("1", "-2", "3", "-2") + linea("3", "2", "3", "4") + linea("3", "4", "1", "4") + linea("1", "-4", "1", "-2")},
          Riga{-1, -1,
               linea("1", "-2", "3", "-2") + linea("3", "2", "3", "4") + linea("-3", "4", "-1", "4") +
                   linea("-1", "-4", "-1", "-2")}}) {
        Tavolo t;
        t.xBox(0.001, -0.002, 0.003, -0.004, 0, true, "a");
        t.FattoreX = r.F;
        t.FattoreY = r.G;
        EXPECT_EQ(entita(t), r.lati) << r.F << " " << r.G;
    }
}

TEST(Dxf, SpecchiSuOgniEntita) {
    Tavolo t;
    t.xPset(0.1, 0.2, 0, "AssiXY");
    t.xLine(0.1, 0.2, 0.3, 0.4, 0, "a");
    t.xCircle(0.1, 0.2, 0.3, 0, -1, 1, 0.5, 3.141592654, "a");
    t.FattoreX = t.FattoreY = -1;
    EXPECT_EQ(entita(t),
              " 0 \nPOINT\n 8 \nAssiXY\n 62 \n 0 \n 10 \n-100\n 20 \n200\n 30 \n0\n" + linea("-100", "200", "-300", "400") +
                  " 0 \nARC\n 8 \na\n 62 \n 0 \n 10 \n-100\n 20 \n200\n 30 \n0\n 40 \n300\n 50 \n28.6478897528005\n 51 \n180\n");
}

TEST(Dxf, Polilinee) {
    const auto poli = [](const std::string &nome, const std::string &x) {
        const std::string v = " 0 \nVERTEX\n 8 \n" + nome + "\n 10 \n";
        return " 0 \nPOLYLINE\n 8 \n" + nome + "\n 62 \n 4 \n 70 \n 0 \n 10 \n0\n 20 \n0\n 30 \n0\n" + v + x + "\n 20 \n-1\n" +
               v + x + "\n 20 \n-2\n 0 \nSEQEND\n 8 \n" + nome + "\n";
    };
    const auto traccia = [](Tavolo &t, const char *nome, double x, bool fine = true) {
        t.xPlineStart(nome);
        t.xPLineVertex(x, 0.001, 7, nome);
        t.xPLineVertex(x, 0.002, 7, nome);
        if (fine) t.xPlineEnd(nome);
    };
    Tavolo due;
    traccia(due, "p", 0.005);
    traccia(due, "q", 0.006);
    due.xPlineEnd("mai iniziata");
    EXPECT_EQ(entita(due), poli("p", "5") + poli("q", "6"));

    Tavolo stesso;
    traccia(stesso, "p", 0.005);
    traccia(stesso, "p", 0.006);
    stesso.xCircle(0, 0, 1, 0, -1, 1, 0, 0, "c");
    EXPECT_EQ(entita(stesso),
              poli("p", "6") + poli("p", "6") + " 0 \nCIRCLE\n 8 \nc\n 62 \n 0 \n 10 \n0\n 20 \n0\n 30 \n0\n 40 \n1000\n");

    Tavolo aperta;
    traccia(aperta, "p", 0.005, false);
    EXPECT_EQ(entita(aperta), poli("p", "5"));
}

TEST(Dxf, TavolaDeiColori) {
    const int attesi[16] = {0, 5, 3, 4, 1, 6, 2, 7, 8, 5, 7, 4, 1, 6, 2, 0xFFFFFF};
    for (int n = 0; n < 16; ++n) EXPECT_EQ(DXF_QbColorConverter(QB(n)), attesi[n]) << n;
    EXPECT_EQ(DXF_QbColorConverter(0x0A0013BF), 7);
    EXPECT_EQ(DXF_QbColorConverter(33023), 33023);
    EXPECT_EQ(DXF_QbColorConverter(200), 200);
    Tavolo t;
    t.xPset(0, 0, -5, "riga\r\nrotta");
    EXPECT_EQ(entita(t), " 0 \nPOINT\n 8 \nriga  rotta\n 62 \n-5 \n 10 \n0\n 20 \n0\n 30 \n0\n");
}

}  // namespace
}  // namespace ombrelia
