// Recording, the text position, sheet and scale.
#include "plot/tavolo.h"

#include <gtest/gtest.h>

#include <limits>

#include "plot/lista_testo.h"
#include "registratore.h"

namespace ombrelia {
namespace {

constexpr double NAN_ = std::numeric_limits<double>::quiet_NaN();
constexpr double INF = std::numeric_limits<double>::infinity();

TEST(Tavolo, NasceComeUnaPaginaA4) {
    const Tavolo t;
    EXPECT_DOUBLE_EQ(t.LarghezzaPagina(), 11906 / 56700.0 - 0.013);
    EXPECT_DOUBLE_EQ(t.AltezzaPagina(), 16838 / 56700.0 - 0.015);
    EXPECT_EQ(t.QuadranteL(), t.LarghezzaPagina());
    EXPECT_EQ(t.QuadranteH(), t.AltezzaPagina());
    EXPECT_EQ(t.Scala(), 1);
    EXPECT_EQ(t.ScalaCorrente(), 56700.0);
    EXPECT_EQ(t.pannello.lblDimVal, "0.2 x 0.28");
    EXPECT_EQ(t.pannello.lblScala, "1:1");
    EXPECT_EQ(t.pannello.cmbScala, "1:1");
    EXPECT_EQ(t.pannello.txtX, "0");
    EXPECT_EQ(t.pannello.txtQL, "0.2");
    EXPECT_EQ(t.cmbScala(), (std::vector<int>{1, 2, 3, 4, 5, 10, 20, 100}));
    // A printer without a usable page counts as none.
    EXPECT_EQ(Tavolo(0, -5).LarghezzaPagina(), t.LarghezzaPagina());
    EXPECT_EQ(Tavolo(NAN_, INF).AltezzaPagina(), t.AltezzaPagina());
}

TEST(Tavolo, UnPuntoDelBordoBassoResta) {
    Tavolo t;
    t.QuadranteL(0.2);
    t.QuadranteH(0.4);
    t.ShiftX(0.05);
    t.ShiftY(0.1);
    struct Riga {
        double x, y;
        bool tenuto;
    };
    const double destra = 0.2 - 0.05, basso = 0.4 - 0.1;
    std::size_t tenuti = 0;
    for (const Riga &r : {Riga{-0.05, -0.1, true},
                          {destra, 0, false},
                          {0, basso, false},
                          {std::nextafter(destra, 0), 0, true},
                          {std::nextafter(-0.05, -1), 0, false},
                          {0, std::nextafter(-0.1, -1), false},
                          {NAN_, 0, false},
                          {0, INF, false}}) {
        t.xPset(r.x, r.y, 5, "a");
        tenuti += r.tenuto ? 1 : 0;
        EXPECT_EQ(t.lista().Punti.size(), tenuti) << r.x << " " << r.y;
        EXPECT_EQ(t.lista().Ordine.size(), tenuti);
    }
}

TEST(Tavolo, SenzaValoreNonFaNulla) {
    Tavolo t;
    prova::Registratore d;
    t.dispositivo = &d;
    const Valore no = Valore::nessuno();
    t.xLine(0, 0, 1, no, 0, "a");
    t.xLine(0, no, 1, 0, 0, t.nome("a"));
    t.xBox(no, 0, 1, 1, 0, true);
    t.xCircle(0, 0, no, 0);
    t.xCircle(0, 0, 1, 0, -1, 1, no);
    t.xPLineVertex(0, no, 0, "p");
    t.Dati("x", no, 0);
    EXPECT_EQ(ListaTesto(t.lista()), "");
    EXPECT_TRUE(t.lista().Figure.empty());
    EXPECT_TRUE(d.atti.empty());
}

TEST(Tavolo, ScalaMinimaDelFoglio) {
    struct Riga {
        double m;
        int n;
    };
    for (const Riga &r : {Riga{-3, 1},
                          {0.5639, 1},
                          {0.564, 2},
                          {1.128, 3},
                          {1.693, 4},
                          {2.257, 5},
                          {2.821, 10},
                          {5.643, 20},
                          {11.286, 20},
                          {11.287, 100},
                          {15, 100},
                          {20, 100}}) {
        Tavolo t;
        t.QuadranteL(r.m);
        EXPECT_EQ(t.ScalaMinima(), std::max(r.n, 1)) << r.m;
        EXPECT_EQ(t.Scala(), r.n) << r.m;
        EXPECT_EQ(t.cmbScala().front(), r.n);
        EXPECT_DOUBLE_EQ(t.ScalaCorrente(), 56700.0 / r.n);
    }
}

TEST(Tavolo, FoglioEScala) {
    Tavolo t;
    int volte = 0;
    t.suDimensioni = [&] { ++volte; };
    t.QuadranteL(20);
    EXPECT_EQ(t.QuadranteL(), 15);
    EXPECT_EQ(t.pannello.txtQL, "15");
    EXPECT_EQ(t.Scala(), 100);
    EXPECT_EQ(t.pannello.cmbScala, "1:100");
    t.QuadranteL(0.456);
    EXPECT_EQ(t.Scala(), 100) << "a smaller sheet keeps its scale";
    EXPECT_EQ(t.pannello.txtQL, "0.46");
    EXPECT_EQ(t.pannello.lblDimVal, "0.46 x 0.28");
    EXPECT_EQ(volte, 2);
    t.QuadranteL(NAN_);
    t.QuadranteH(-INF);
    EXPECT_EQ(volte, 2);
    EXPECT_EQ(t.QuadranteL(), 0.456);
    t.QuadranteH(3);
    for (const int n : {5, 0, -1, 40000}) {
        t.Scala(n);
        EXPECT_EQ(t.Scala(), 100) << n;
    }
    t.Scala(20);
    EXPECT_EQ(t.pannello.lblScala, "1:20");
    t.OutputToPRN = true;  // a printer has no smallest scale
    t.Scala(2);
    EXPECT_EQ(t.Scala(), 2);
    t.ShiftX(0.1234567);
    t.ShiftY(-0.000001);
    EXPECT_EQ(t.pannello.txtX, "0.12346");
    EXPECT_EQ(t.pannello.txtY, "0");
    EXPECT_EQ(t.ShiftX(), 0.1234567);
}

TEST(Tavolo, PosizioneDelTesto) {
    Tavolo t;
    t.ShiftX(0.1);
    t.ShiftY(0.2);
    t.Dati("a");
    t.Dati("b", 0.05, -0.1);
    t.Dati("c");
    t.Dati("d", 0.5, 0.5, false);  // painted only
    t.Dati("e", std::nullopt, 0.3);
    ASSERT_EQ(t.lista().Testi.size(), 4U);
    const auto &T = t.lista().Testi;
    EXPECT_DOUBLE_EQ(T[0].X, -0.1);
    EXPECT_DOUBLE_EQ(T[0].Y, -0.2);
    EXPECT_EQ(T[1].X, 0.05);
    EXPECT_DOUBLE_EQ(T[2].X, -0.1);
    EXPECT_NEAR(T[2].Y, -0.1 + 195 / 56700.0, 1e-15);
    EXPECT_DOUBLE_EQ(T[3].X, -0.1);
    EXPECT_EQ(T[3].Y, 0.3);
    EXPECT_NEAR(t.xCurrentY(), 0.3 + 195 / 56700.0, 1e-15);
    t.Scala(10);
    EXPECT_NEAR(t.xCurrentY(), (0.5 * 56700 + 195) / 5670 - 0.2, 1e-12);
    t.Clear();
    EXPECT_DOUBLE_EQ(t.xCurrentX(), -0.1);
    EXPECT_DOUBLE_EQ(t.xCurrentY(), -0.2);
}

TEST(Tavolo, TestiDiCentoLettere) {
    std::string gradi, atteso;
    for (int i = 0; i < 120; ++i) gradi += "°";
    for (int i = 0; i < 100; ++i) atteso += "°";
    const std::string a(120, 'a');
    Tavolo t;
    prova::Registratore d;
    t.dispositivo = &d;
    t.Dati(a, 0, 0);
    t.Dati(gradi);
    t.Dati("due blank  ");
    t.Dati("");
    EXPECT_EQ(t.lista().Testi[0].Testo, std::string(100, 'a'));
    EXPECT_EQ(t.lista().Testi[1].Testo, atteso);
    EXPECT_EQ(t.lista().Testi[2].Testo, "due blank");
    EXPECT_EQ(t.lista().Testi[3].Testo, "");
    EXPECT_EQ(d.atti[0], "T 0 0 0 " + a) << "cut only when replayed";
    d.atti.clear();
    t.Refresh();
    EXPECT_EQ(d.atti[1], "T 0 0 0 " + std::string(100, 'a'));
}

TEST(Tavolo, ClearTieneIlFoglio) {
    Tavolo t;
    const IdNome id = t.nome("Ore");
    t.ShiftX(0.1);
    t.QuadranteL(2);
    t.FattoreX = t.FattoreY = -1;
    t.xLine(0, 0, 0.1, 0.1, 3, id);
    t.xPlotA4();
    t.xTrovaA4(0.01, 0.01);
    t.Clear();
    EXPECT_EQ(ListaTesto(t.lista()), "");
    EXPECT_TRUE(t.lista().Aree.empty());
    EXPECT_EQ(t.FattoreX, 1);
    EXPECT_EQ(t.FattoreY, 1);
    EXPECT_EQ(t.QuadranteL(), 2);
    EXPECT_EQ(t.Scala(), 4);
    EXPECT_EQ(t.ShiftX(), 0.1);
    t.xLine(0, 0, 1, 1, 3, id);
    EXPECT_EQ(ListaTesto(t.lista()), "L\t0\t0\t1\t1\t3\t1\tOre\n") << "names outlive the list";
}

TEST(Tavolo, AssiETestiRegistrati) {
    Tavolo t;
    t.QuadranteL(0.5);
    t.QuadranteH(0.5);
    t.ShiftX(0.25);
    t.ShiftY(0.125);
    t.Assi();
    EXPECT_EQ(ListaTesto(t.lista()),
              "L\t-0.25\t0\t0.25\t0\t255\t1\tAssiXY\n"
              "L\t0\t-0.125\t0\t0.375\t255\t1\tAssiXY\n"
              "T\t0.040000000000000001\t-0.040000000000000001\t\tO\n"
              "T\t0.040000000000000001\t-0.084999999999999992\t\ty\n"
              "T\t0.20999999999999999\t-0.059999999999999998\t\tx\n");
}

TEST(ListaTesto, OgniSpecie) {
    Tavolo t;
    t.xPset(0.1, 0.2, 255, "p");
    t.xPlineStart("poli");
    t.xLine(0, 0, -1.5, 1e-7, 16777215);
    t.xPLineVertex(0.5, 0.25, 7, "poli");
    t.xBox(0, 0, 1, -1, 15, true, "Cornice");
    t.xPLineVertex(0.75, 0.25, 7, "poli");
    t.xPlineEnd("poli");
    t.xCircle(1, 2, 0.5, 8, -1, 1, -6.25, 0, "c");
    t.Dati("Lat = 45°", 0.5, 1);
    EXPECT_EQ(ListaTesto(t.lista()),
              "P\t0.10000000000000001\t0.20000000000000001\t255\tp\n"
              "V\tSTART\t0\t0\t4\tpoli\n"
              "V\tVERTEX\t0.5\t0.25\t7\tpoli\n"
              "L\t0\t0\t-1.5\t9.9999999999999995e-08\t16777215\t1\t\n"
              "B\t0\t0\t1\t-1\t15\t1\tCornice\n"
              "V\tVERTEX\t0.75\t0.25\t7\tpoli\n"
              "V\tEND\t0\t0\t4\tpoli\n"
              "C\t1\t2\t0.5\t1\t8\t-1\t-6.25\t0\tc\n"
              "T\t0.5\t1\t\tLat = 45°\n");
}

}  // namespace
}  // namespace ombrelia
