// The text position, sheet and scale.
#include "plot/tavolo.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "comuni/prova.h"
#include "plot/lista_testo.h"
#include "plot/percorso.h"
#include "registratore.h"

namespace ombrelia {
namespace {

constexpr double NAN_ = std::numeric_limits<double>::quiet_NaN();
constexpr double INF = std::numeric_limits<double>::infinity();

TEST(Tavolo, IsBornAsAPageOfA4) {
    const Tavolo t;
    EXPECT_DOUBLE_EQ(t.LarghezzaPagina(), 11906 / 56700.0 - 0.013);
    EXPECT_DOUBLE_EQ(t.AltezzaPagina(), 16838 / 56700.0 - 0.015);
    EXPECT_EQ(t.QuadranteL(), t.LarghezzaPagina());
    EXPECT_EQ(t.QuadranteH(), t.AltezzaPagina());
    EXPECT_EQ(t.Scala(), 1);
    EXPECT_EQ(t.pannello.lblDimVal, "0.2 x 0.28");
    EXPECT_EQ(t.pannello.cmbScala, "1:1");
    EXPECT_EQ(t.cmbScala(), (std::vector<int>{1, 2, 3, 4, 5, 10, 20, 100}));
    // A printer without a usable page counts as none.
    EXPECT_EQ(Tavolo(0, -5).LarghezzaPagina(), t.LarghezzaPagina());
    EXPECT_EQ(Tavolo(NAN_, INF).AltezzaPagina(), t.AltezzaPagina());
}

TEST(Tavolo, APointOfTheLowerEdgeStays) {
    Tavolo t;
    prova::Disegna(t, "F 0.2 0.4 0.05 0.1");
    const double destra = 0.2 - 0.05, basso = 0.4 - 0.1;
    const double punti[][3] = {{-0.05, -0.1, 1},
                               {destra, 0, 0},
                               {0, basso, 0},
                               {std::nextafter(destra, 0), 0, 1},
                               {std::nextafter(-0.05, -1), 0, 0},
                               {0, std::nextafter(-0.1, -1), 0},
                               {NAN_, 0, 0},
                               {0, INF, 0}};
    double tenuti = 0;
    for (const auto &[x, y, tenuto] : punti) {
        t.xPset(x, y, 5, "a");
        tenuti += tenuto;
        EXPECT_EQ(t.lista().Punti.size(), tenuti) << x << " " << y;
        EXPECT_EQ(t.lista().Ordine.size(), tenuti);
    }
}

TEST(Tavolo, LeastScaleOfTheSheet) {
    const std::pair<double, int> casi[] = {{-3, 1},     {0.5639, 1}, {0.564, 2},   {1.128, 3},    {1.693, 4}, {2.257, 5},
                                           {2.821, 10}, {5.643, 20}, {11.286, 20}, {11.287, 100}, {15, 100},  {20, 100}};
    for (const auto &[metri, n] : casi) {
        Tavolo t;
        t.QuadranteL(metri);
        EXPECT_EQ(t.ScalaMinima(), n) << metri;
        EXPECT_EQ(t.Scala(), n) << metri;
        EXPECT_EQ(t.cmbScala().front(), n);
        EXPECT_DOUBLE_EQ(t.LarghezzaImmagine(), t.QuadranteL() * 56700 / n);
    }
}

TEST(Tavolo, SheetAndScale) {
    Tavolo t;
    prova::Registratore d;
    t.dispositivo = &d;
    t.QuadranteL(20);
    EXPECT_EQ(t.QuadranteL(), 15);
    EXPECT_EQ(t.pannello.txtQL, "15");
    EXPECT_EQ(t.Scala(), 100);
    EXPECT_EQ(t.pannello.cmbScala, "1:100");
    t.QuadranteL(0.456);
    EXPECT_EQ(t.Scala(), 100) << "a smaller sheet keeps its scale";
    EXPECT_EQ(t.pannello.txtQL, "0.46");
    EXPECT_EQ(t.pannello.lblDimVal, "0.46 x 0.28");
    EXPECT_EQ(d.atti.size(), 2U) << "repainted";
    t.QuadranteL(NAN_);
    t.QuadranteH(-INF);
    EXPECT_EQ(d.atti.size(), 2U) << "repainted";
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

TEST(Tavolo, PositionOfText) {
    Tavolo t;
    prova::Disegna(t, "F 0.2 0.28 0.1 0.2;D a;T 0.05 -0.1 b;D c");
    t.Dati("e", std::nullopt, 0.3);
    const double attesi[][2] = {{-0.1, -0.2}, {0.05, -0.1}, {-0.1, -0.1 + 195 / 56700.0}, {-0.1, 0.3}};
    ASSERT_EQ(t.lista().Testi.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(t.lista().Testi[i].X, attesi[i][0], 1e-15) << i;
        EXPECT_NEAR(t.lista().Testi[i].Y, -attesi[i][1], 1e-15) << i;
    }
    EXPECT_NEAR(t.xCurrentY(), 0.3 + 195 / 56700.0, 1e-15);
    t.Scala(10);
    EXPECT_NEAR(t.xCurrentY(), (0.5 * 56700 + 195) / 5670 - 0.2, 1e-12);
    t.Clear();
    EXPECT_DOUBLE_EQ(t.xCurrentX(), -0.1);
    EXPECT_DOUBLE_EQ(t.xCurrentY(), -0.2);
}

TEST(Tavolo, TextsOfAHundredLetters) {
    std::string gradi;
    for (int i = 0; i < 120; ++i) gradi += "°";
    const std::string a(120, 'a');
    Tavolo t;
    prova::Registratore d;
    t.dispositivo = &d;
    t.Dati(a, 0, 0);
    t.Dati(gradi);
    t.Dati("due blank  ");
    t.Dati("");
    EXPECT_EQ(t.lista().Testi[0].Testo, std::string(100, 'a'));
    EXPECT_EQ(t.lista().Testi[1].Testo, gradi.substr(0, 100 * std::string("°").size()));
    EXPECT_EQ(t.lista().Testi[2].Testo, "due blank");
    EXPECT_EQ(t.lista().Testi[3].Testo, "");
    EXPECT_EQ(d.atti[0], "T 0 0 0 " + a) << "cut only when replayed";
    d.atti.clear();
    t.Refresh();
    EXPECT_EQ(d.atti[1], "T 0 0 0 " + std::string(100, 'a'));
}

TEST(Tavolo, TheListsTextHoldsARecordALine) {
    Tavolo a;
    a.Dati("uno\ndue\ttre\x7F", 0.0, 0.0);
    a.xLine(0, 0, 0.1, 0.1, 0, "strato\r\nL\t9");
    const auto righe = prova::Divisi(ListaTesto(a.lista()), '\n');
    ASSERT_EQ(righe.size(), 3u);  // the last one is empty
    EXPECT_TRUE(righe[0].ends_with("\tstrato  L 9")) << righe[0];
    EXPECT_TRUE(righe[1].ends_with("\tuno due tre ")) << righe[1];
}

// What a walk meets: a letter and the abscissa of each primitive, between the values of the claims.
struct Passeggiata {
    const Lista &lista;
    std::string detto;

    void scrivi(char tipo, double x) { detto += tipo + TestoNumero(x) + ' '; }
    void pretesa(const Pretesa *p) { detto += p ? '<' + TestoNumero(p->valore) + "> " : "<> "; }
    void linea(const RecLinea &r) { scrivi('L', r.X1); }
    void punto(const RecPunto &r) { scrivi('P', r.X); }
    void figura(std::size_t k) { scrivi(lista.Figure[k].Tipo, lista.Figure[std::min(k + 1, lista.Figure.size() - 1)].X1); }
};

TEST(Percorso, EveryPrimitiveWithItsClaim) {
    Tavolo t;
    prova::Disegna(t, "F 1 1 0 0;L 0.1 0 0 0 1 a");
    const auto pretesa = [&](double valore, std::string_view passi) {
        const Pretendi p(t, Specie::Diurna, valore);
        prova::Disegna(t, passi);
    };
    pretesa(5, "L 0.2 0 0 0 1 a;P 0.3 0 1 a;S curva;V 0.4 0 1 curva;V 0.5 0 1 curva;E curva");
    pretesa(6, "P 0.6 0 1 a");
    prova::Disegna(t, "P 0.65 0 1 a");
    pretesa(7, "B 0 0 0.1 0.1 1 0 b;C 0.7 0 0.1 1 -1 1 0 0 c;L 0.8 0 0 0 1 a");
    const auto detto = [&](auto... dove) {
        Passeggiata v{t.lista(), {}};
        Percorri(t.lista(), dove..., v);
        return v.detto;
    };
    // Of a figure the abscissa of the one behind it: a polyline's first vertex, and what stands behind a polyline.
    const std::string prima = "<5> L0.2 P0.3 V0.4 <6> P0.6 <> P0.65 ", dopo = "<7> B0.7 C0.7 L0.8 ";
    EXPECT_EQ(detto(), "<> L0.1 " + prima + dopo);
    EXPECT_EQ(detto(t.lista().pretese[0]), prima.substr(0, prima.find("<6>")));
    EXPECT_EQ(detto(t.lista().pretese[2]), dopo);
    // In two pieces, the second from where the first ended.
    Passeggiata v{t.lista(), {}};
    const PostoLista meta = Percorri(t.lista(), {}, 3, v);
    Percorri(t.lista(), meta, 99, v);
    EXPECT_EQ(v.detto, "<> L0.1 <5> L0.2 P0.3 <5> V0.4" + prima.substr(prima.find(" <6>")) + dopo);
}

TEST(Tavolo, ClearKeepsTheSheet) {
    Tavolo t;
    const IdNome id = t.nome("Ore");
    t.ShiftX(0.1);
    t.QuadranteL(2);
    prova::Disegna(t, "M -1 -1;L 0 0 0.1 0.1 3 Ore");
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

}  // namespace
}  // namespace ombrelia
