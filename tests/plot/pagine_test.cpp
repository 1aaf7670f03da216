// Tiles and printing runs.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "plot/lista_testo.h"
#include "plot/tavolo.h"
#include "registratore.h"

namespace ombrelia {
namespace {

using prova::Atti;
using prova::Registratore;

constexpr double INF = std::numeric_limits<double>::infinity();

// Pages of 0.25 by 0.5 metres, exact in binary as far as the edges allow.
Tavolo tavoloDiProva() { return Tavolo((0.25 + 0.013) * 56700, (0.5 + 0.015) * 56700); }

TEST(Pagine, NumeroDellaPiastrella) {
    // Sheet in tiles; position in tiles; number, 0 for none.
    const double casi[][4] = {{2.04, 0.5, 0.5, 1},    {2.04, 1.5, 0.5, 2}, {2.04, 0.5, 1.5, 3}, {2.06, 0.5, 1.5, 4},
                              {2.06, 2.03, 2.5, 9},   {1, 0.5, 3.5, 4},    {2, -0.01, 0.5, 0},  {2, 0.5, -0.01, 0},
                              {2, 0.5, 4999.5, 9999}, {2, 0.5, 5000.5, 0}, {2, 1e18, 0.5, 0},   {2, INF, 0.5, 0},
                              {2, 0.5, -INF, 0},      {-1, 0.5, 0.5, 1}};
    for (const auto &[larghezze, x, y, pagina] : casi) {
        Tavolo t = tavoloDiProva();
        t.QuadranteL(larghezze * t.LarghezzaPagina());
        t.QuadranteH(1.5);
        t.xTrovaA4(x * t.LarghezzaPagina(), y * t.AltezzaPagina());
        ASSERT_EQ(t.lista().Aree.size(), pagina == 0 ? 0U : 1U) << larghezze << " " << x << " " << y;
        if (pagina == 0) continue;
        EXPECT_EQ(t.lista().Aree[0].Pagina, pagina) << larghezze << " " << x << " " << y;
        EXPECT_NEAR(t.lista().Aree[0].X, std::floor(x) * t.LarghezzaPagina(), 1e-9);
        EXPECT_NEAR(t.lista().Aree[0].Y, std::floor(y) * t.AltezzaPagina(), 1e-6);
    }
}

TEST(Pagine, ContornoENumeroRegistrati) {
    Tavolo t = tavoloDiProva();
    prova::Disegna(t, "F 0.5 0.5 0.1 0.2");
    t.xTrovaA4(0.3, 0.1);
    t.xTrovaA4(0.3, 0.1);
    EXPECT_EQ(t.lista().Aree.size(), 2U) << "chosen twice, printed twice";
    ASSERT_EQ(t.lista().Linee.size(), 8U);
    const RecLinea &alto = t.lista().Linee[0];
    EXPECT_NEAR(alto.X1, 0.15, 1e-12);
    EXPECT_NEAR(alto.X2, 0.4, 1e-12);
    EXPECT_NEAR(alto.Y1, -0.2, 1e-12);
    EXPECT_EQ(alto.colore, 33023);
    EXPECT_EQ(t.lista().nomi.testo(alto.Id), "sys:page");
    EXPECT_EQ(t.lista().Testi[0].Testo, "2");
    EXPECT_NEAR(t.lista().Testi[0].X, 0.153, 1e-12);
    EXPECT_NEAR(t.lista().Testi[0].Y, -0.197, 1e-12);
}

TEST(Pagine, Griglia) {
    Tavolo t = tavoloDiProva();
    Registratore d;
    prova::Disegna(t, "F 0.6 0.7 0.1 0.2");
    t.dispositivo = &d;
    t.xPlotA4();
    // 0.25, 0.5 ... up to 0.6 + 0.75; 0.5, 1 ... up to 0.7 + 1.5.
    ASSERT_EQ(t.lista().Linee.size(), 5U + 4U);
    EXPECT_NEAR(t.lista().Linee[1].X1, 0.4, 1e-9);
    EXPECT_NEAR(t.lista().Linee[1].Y1, -0.2, 1e-9);
    EXPECT_NEAR(t.lista().Linee[1].Y2, 0.5, 1e-9);
    EXPECT_NEAR(t.lista().Linee[5].Y2, 0.3, 1e-9);
    EXPECT_NEAR(t.lista().Linee[5].X2, 0.5, 1e-9);
    EXPECT_EQ(t.lista().nomi.testo(t.lista().Linee[8].Id), "Page");
    EXPECT_EQ(d.atti.front(), "punteggiata");
    EXPECT_EQ(d.atti.back(), "continua");
}

TEST(Pagine, MouseInMillimetri) {
    Tavolo t;
    t.Scala(10);
    t.MouseDown(1000, -1);
    EXPECT_EQ(t.pannello.lblXYval, "176 : -1");
    t.ShiftX(0.2);
    t.Scala(1);
    t.MouseDown(0, 567);
    EXPECT_EQ(t.pannello.lblXYval, "-200 : 10");
    EXPECT_EQ(t.lista().Aree.size(), 1U);
    t.MouseDown(INF, 0);
    EXPECT_EQ(t.pannello.lblXYval, "-200 : 10");
}

TEST(Stampa, TuttoIlFoglio) {
    Tavolo t;
    Registratore schermo, carta;
    t.dispositivo = &schermo;
    t.Marchio = "marchio";
    t.ForeColor = 255;
    prova::Disegna(t, "T 0.1 0.1 testo;L 0 0 0.1 0 255 a;B 0 0 0.1 0.1 16777215 1 Cornice;C 0 0 0.01 255 65280 1 0 0");
    EXPECT_EQ(schermo.atti[0], "T 5670 5670 255 testo");
    schermo.atti.clear();
    t.PrintAll(carta);
    // In black, with the line's own width, and a filled box as its outline.
    const Atti nero{"T 0 850.5 0 marchio",
                    "T 0 1045.5 0 testo",
                    "T 5670 5670 0 testo",
                    "L 0 0 5670 0 0 1",
                    "B 0 0 5670 5670 0 vuoto",
                    "C 0 0 567 0 0 0 0 1",
                    "fine"};
    EXPECT_EQ(carta.atti, nero);
    EXPECT_TRUE(schermo.atti.empty());
    EXPECT_FALSE(t.OutputToPRN);
    EXPECT_EQ(t.dispositivo, &schermo);
    carta.atti.clear();
    t.PrintMultiColor = true;
    t.PrintAll(carta);
    EXPECT_EQ(carta.atti[3], "L 0 0 5670 0 255 1");
    EXPECT_EQ(carta.atti[4], "B 0 0 5670 5670 16777215 pieno");
}

TEST(Stampa, PiastrelleScelte) {
    Tavolo t = tavoloDiProva();
    Registratore carta;
    EXPECT_FALSE(t.PrintArea(carta));
    EXPECT_TRUE(carta.atti.empty());
    prova::Disegna(t, "F 1 1 0 0;K 5;L 0 0.6 1 0.6 255 a");
    t.Marchio = "M";
    t.xTrovaA4(0.1, 0.6);
    t.xTrovaA4(0.3, 0.6);
    t.ShiftX(0.125);
    const std::string prima = ListaTesto(t.lista());
    EXPECT_TRUE(t.PrintArea(carta));
    EXPECT_EQ(std::count(carta.atti.begin(), carta.atti.end(), "pagina"), 2);
    EXPECT_EQ(carta.atti.front(), "T 850.5 850.5 0 5 M");
    EXPECT_EQ(carta.atti.back(), "fine");
    // The line of the list crosses each tile from edge to edge, at full size.
    EXPECT_EQ(std::count_if(carta.atti.begin(), carta.atti.end(),
                            [](const auto &a) { return a == "L 0 5670 14175 5670 0 1" || a == "L 14175 5670 0 5670 0 1"; }),
              2);
    EXPECT_EQ(t.Scala(), 5);
    EXPECT_DOUBLE_EQ(t.ScalaCorrente(), 11340);
    EXPECT_EQ(t.QuadranteL(), 1);
    EXPECT_EQ(t.ShiftX(), 0.125);
    EXPECT_EQ(t.pannello.txtQL, "1");
    EXPECT_EQ(ListaTesto(t.lista()), prima);
    carta.atti.clear();
    EXPECT_TRUE(t.PrintArea(carta, [](std::size_t fatte, std::size_t) { return fatte == 0; }));
    EXPECT_EQ(std::count(carta.atti.begin(), carta.atti.end(), "pagina"), 1) << "stopped after the first";
}

}  // namespace
}  // namespace ombrelia
