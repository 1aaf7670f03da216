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

constexpr double INFINITO = std::numeric_limits<double>::infinity();

// Pages of 0.25 by 0.5 metres, exact in binary as far as the edges allow.
Tavolo tavoloDiProva() { return Tavolo((0.25 + 0.013) * 56700, (0.5 + 0.015) * 56700); }

TEST(Pagine, NumberOfTheTile) {
    // Sheet in tiles; position in tiles; number, 0 for none.
    const double casi[][4] = {{2.04, 0.5, 0.5, 1},    {2.04, 1.5, 0.5, 2}, {2.04, 0.5, 1.5, 3}, {2.06, 0.5, 1.5, 4},
                              {2.06, 2.03, 2.5, 9},   {1, 0.5, 3.5, 4},    {2, -0.01, 0.5, 0},  {2, 0.5, -0.01, 0},
                              {2, 0.5, 4999.5, 9999}, {2, 0.5, 5000.5, 0}, {2, 1e18, 0.5, 0},   {2, INFINITO, 0.5, 0},
                              {2, 0.5, -INFINITO, 0}, {-1, 0.5, 0.5, 1}};
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

TEST(Pagine, OutlineAndNumberAreRecorded) {
    Tavolo t = tavoloDiProva();
    prova::Disegna(t, "F 0.5 0.5 0.1 0.2");
    t.xTrovaA4(0.3, 0.1);
    t.xTrovaA4(0.3, 0.1);
    EXPECT_EQ(t.lista().Aree.size(), 2U) << "chosen twice, printed twice";
    ASSERT_EQ(t.lista().Linee.size(), 8U);
    const RecLinea &alto = t.lista().Linee[0];
    EXPECT_NEAR(alto.X1, 0.15, 1e-12);
    EXPECT_NEAR(alto.X2, 0.4, 1e-12);
    EXPECT_NEAR(alto.Y1, 0.2, 1e-12);
    EXPECT_EQ(alto.colore, 33023);
    EXPECT_EQ(t.lista().nomi.testo(alto.Id), "sys:page");
    EXPECT_EQ(t.lista().Testi[0].Testo, "2");
    EXPECT_NEAR(t.lista().Testi[0].X, 0.153, 1e-12);
    EXPECT_NEAR(t.lista().Testi[0].Y, 0.197, 1e-12);
}

TEST(Pagine, Grid) {
    Tavolo t = tavoloDiProva();
    Registratore d;
    prova::Disegna(t, "F 0.6 0.7 0.1 0.2");
    t.dispositivo = &d;
    t.xPlotA4();
    // 0.25, 0.5 ... up to 0.6 + 0.75; 0.5, 1 ... up to 0.7 + 1.5.
    ASSERT_EQ(t.lista().Linee.size(), 5U + 4U);
    EXPECT_NEAR(t.lista().Linee[1].X1, 0.4, 1e-9);
    EXPECT_NEAR(t.lista().Linee[1].Y1, 0.2, 1e-9);
    EXPECT_NEAR(t.lista().Linee[1].Y2, -0.5, 1e-9);
    EXPECT_NEAR(t.lista().Linee[5].Y2, -0.3, 1e-9);
    EXPECT_NEAR(t.lista().Linee[5].X2, 0.5, 1e-9);
    EXPECT_EQ(t.lista().nomi.testo(t.lista().Linee[8].Id), "Page");
    EXPECT_EQ(d.atti.front(), "punteggiata");
    EXPECT_EQ(d.atti.back(), "continua");
}

TEST(Pagine, MouseInMillimetres) {
    Tavolo t;
    t.Scala(10);
    t.MouseDown(1000, -1);
    EXPECT_EQ(t.pannello.lblXYval, "176 : -1");
    t.ShiftX(0.2);
    t.Scala(1);
    t.MouseDown(0, 567);
    EXPECT_EQ(t.pannello.lblXYval, "-200 : 10");
    EXPECT_EQ(t.lista().Aree.size(), 1U);
    t.MouseDown(INFINITO, 0);
    EXPECT_EQ(t.pannello.lblXYval, "-200 : 10");
}

TEST(Stampa, TheWholeSheet) {
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
    const Atti nero{"T 0 850.5 0 marchio", "T 0 1045.5 0 testo",      "T 5670 5670 0 testo",
                    "L 0 0 5670 0 0 1",    "B 0 0 5670 5670 0 vuoto", "C 0 0 567 0 0 0 0 1"};
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

// What a hand does with tiles: outside nothing, a second click takes back, the drawing around is as it was.
TEST(Pagine, ChosenByTurns) {
    Tavolo t = tavoloDiProva();
    Registratore d;
    t.piastrelleAScelta = true;
    prova::Disegna(t, "F 0.6 0.7 0.1 0.2;T 0.1 0.1 prima;L 0 0 0.1 0.1 1 a");
    for (const auto &[x, y] : {std::pair{0.61, 0.1}, std::pair{0.1, 0.71}, std::pair{-0.1, 0.1}}) t.xTrovaA4(x, y);
    EXPECT_TRUE(t.lista().Aree.empty()) << "beside the sheet";
    t.xTrovaA4(0.1, 0.1);
    {
        const Pretendi linea(t, Specie::Ora, 9);
        prova::Disegna(t, "P 0 0 5 p;L 0 0 0.2 0.1 2 b;T 0.2 0.2 dopo");
    }
    t.xTrovaA4(0.3, 0.6);
    const std::string senza = ListaTesto(t.lista());
    t.xTrovaA4(0.55, 0.1);
    EXPECT_NE(ListaTesto(t.lista()), senza);
    t.xTrovaA4(0.55, 0.4);
    EXPECT_EQ(ListaTesto(t.lista()), senza);
    t.dispositivo = &d;
    t.xTrovaA4(0.1, 0.1);
    EXPECT_EQ(std::count_if(d.atti.begin(), d.atti.end(), [](const auto &a) { return a.ends_with(" 33023 1"); }), 3)
        << "repainted; the lower edge lies off the sheet";
    ASSERT_EQ(t.lista().Aree.size(), 1U);
    EXPECT_EQ(t.lista().Linee[t.lista().Aree[0].linea].X1, 0.25 - 0.1);
    EXPECT_EQ(t.lista().Testi[t.lista().Aree[0].testo].Testo, "5");
    // The claim still holds its own records.
    const Pretesa &p = t.lista().pretese.at(0);
    EXPECT_EQ(t.lista().Ordine.substr(p.da, p.a - p.da), "PL");
    EXPECT_EQ(t.lista().nomi.testo(t.lista().Linee[p.linea].Id), "b");
    t.LasciaPagine();
    EXPECT_EQ(t.lista().Ordine, "LPL");
    EXPECT_EQ(t.lista().Testi.size(), 2U);
}

TEST(Pagine, FullOfTheDrawing) {
    // Tiles of 0.25 by 0.5 on a sheet of 0.6 by 1.1: three columns, three rows. Steps; numbers of the tiles.
    const std::pair<const char *, std::vector<int>> casi[] = {
        {"L 0.05 0.05 0.2 0.2 0 a", {1}},
        {"L 0.05 0.05 0.59 1.05 0 a", {1, 2, 5, 6, 9}},        // a slant touches no tile beside it
        {"L 0.3 0.1 9 0.1 0 a", {2, 3}},                       // clipped at the sheet
        {"L 0.05 0.05 0.2 0.2 0 Page;A;T 0.3 0.1 testo", {}},  // grid, axes and texts are no drawing
        {"M -1 1;F 0.6 1.1 0.3 0;L 0.05 0.05 0.2 0.2 0 a", {1}},
        {"P 0.55 0.55 0", {6}},
        {"B 0.05 0.05 0.3 0.6 0 1", {1, 2, 4, 5}},
        {"C 0.25 0.5 0.1 0 -1 1 3.2 4.6", {4}},  // a quarter, down and left of its centre
        {"S p;V 0.3 0.1 0 p;V 0.3 0.7 0 p;E p", {2, 5}}};
    for (const auto &[passi, numeri] : casi) {
        Tavolo t = tavoloDiProva();
        prova::Disegna(t, std::string("F 0.6 1.1 0 0;") + passi);
        EXPECT_EQ(t.ScegliPiene(), numeri.size()) << passi;
        EXPECT_EQ(t.ScegliPiene(), numeri.size()) << "none twice: " << passi;
        std::vector<int> avuti;
        for (const RecArea &a : t.lista().Aree) avuti.push_back(a.Pagina);
        EXPECT_EQ(avuti, numeri) << passi;
    }
}

TEST(Pagine, Papers) {
    Tavolo t;
    const double l = t.LarghezzaPagina();
    t.xTrovaA4(0.1, 0.1);
    EXPECT_FALSE(t.Pagina(CARTA_A4));
    EXPECT_EQ(t.LarghezzaPagina(), l) << "the page at the start is an A4, to the bit";
    EXPECT_EQ(t.lista().Aree.size(), 1U);
    EXPECT_TRUE(t.Pagina({0.2159, 0.2794})) << "tiles were chosen for another paper";
    EXPECT_TRUE(t.lista().Aree.empty());
    // 8.5 by 11 inches of 1440 units, less what a page loses.
    EXPECT_DOUBLE_EQ(t.LarghezzaPagina(), 8.5 * 1440 / 56700 - 0.013);
    EXPECT_DOUBLE_EQ(t.AltezzaPagina(), 11 * 1440 / 56700.0 - 0.015);
    // Of the same width, and of the same height, and another paper all the same.
    EXPECT_FALSE(t.Pagina({0.2159, 0.3556}));
    EXPECT_DOUBLE_EQ(t.AltezzaPagina(), 14 * 1440 / 56700.0 - 0.015);
    EXPECT_FALSE(t.Pagina({0.2794, 0.3556}));
    EXPECT_DOUBLE_EQ(t.LarghezzaPagina(), 11 * 1440 / 56700.0 - 0.013);
}

}  // namespace
}  // namespace ombrelia
