// The lettering: strokes that keep to their cell and join, the place of one and of two digits, and the row of numerals
// along a day line against the projection of the direct engine.
#include "glyphs/numeri.h"

#include <gtest/gtest.h>

#include <array>

#include "comuni/prova.h"
#include "glyphs/tratti_prova.h"
#include "sessione/proiezione.h"

namespace ombrelia {
namespace {

using namespace prova;

constexpr double MM = 0.001;  // a unit of the cell in these tests

// A session in which numerals are 150 mm high.
struct Lettere : Banco {
    Lettere() : Banco({{"txtInc", "0"}, {"txtArabi", ".15"}, {"txtNumbersize", ".15"}}) { s.v.unita = 1; }
    std::vector<RecLinea> cifra(int n, double gradi = 90) {
        s.tavolo.Clear();
        DisegnaCifra(s, 0, 0, gradi, n, 2);
        return lista().Linee;
    }
    std::vector<RecLinea> romano(int ora, double rotazione = PI / 2) {
        s.tavolo.Clear();
        DisegnaNumeroRomano(s, 0, 0, rotazione, ora);
        return lista().Linee;
    }
    std::vector<RecLinea> numero(int n, double gradi = 90) {
        s.tavolo.Clear();
        DisegnaNumero(s, 1, 2, gradi, n);
        return lista().Linee;
    }
};

TEST(Cifre, StrokesKeepToTheCellAndJoin) {
    Lettere banco;
    for (int n = 0; n <= 9; ++n) {
        const auto linee = banco.cifra(n);
        const Ingombro i = IngombroDi(linee);
        EXPECT_NEAR(i.alto, -75 * MM, 0.6 * MM) << n;
        EXPECT_NEAR(i.basso, 75 * MM, 0.6 * MM) << n;
        EXPECT_GE(i.sinistra, 8 * MM) << n;
        EXPECT_LE(i.destra, 102 * MM) << n;
        EXPECT_EQ(Pezzi(linee, 0.01 * MM), 1) << n;
        for (const RecLinea &l : linee) {
            EXPECT_GT(Lunghezza(l), 0.5 * MM) << n;
            EXPECT_EQ(l.colore, QB(7));
            EXPECT_EQ(l.Spessore, 2);
        }
    }
    EXPECT_TRUE(banco.cifra(10).empty());
    EXPECT_TRUE(banco.cifra(-1).empty());
}

TEST(Cifre, RoundPartsTurnSmoothly) {
    Lettere banco;
    for (const int n : {0, 8}) {
        const auto linee = banco.cifra(n);
        for (std::size_t k = 1; k < linee.size(); ++k) {
            const RecLinea &a = linee[k - 1], &b = linee[k];
            if (std::hypot(b.X1 - a.X2, b.Y1 - a.Y2) > 1e-9) continue;
            const double ax = a.X2 - a.X1, ay = a.Y2 - a.Y1, bx = b.X2 - b.X1, by = b.Y2 - b.Y1;
            const double svolta = std::fabs(std::atan2(ax * by - ay * bx, ax * bx + ay * by)) * 180 / PI;
            EXPECT_LT(svolta, 20) << n << " " << k;
        }
    }
}

// A digit that came out mirrored or upside down would still keep to its cell.
TEST(Cifre, StandUpright) {
    Lettere banco;
    const auto sei = banco.cifra(6), nove = banco.cifra(9), cinque = banco.cifra(5), sette = banco.cifra(7), due = banco.cifra(2);
    ASSERT_EQ(sei.size(), nove.size());
    for (std::size_t k = 0; k < sei.size(); ++k) {
        double vicino = 1;
        for (const RecLinea &l : nove) vicino = std::min(vicino, std::hypot(110 * MM - sei[k].X1 - l.X1, sei[k].Y1 + l.Y1));
        EXPECT_LT(vicino, 5 * MM) << "a 9 is a 6 turned half round, stroke " << k;
    }
    const auto baricentro = [](const std::vector<RecLinea> &linee) {
        double somma = 0;
        for (const RecLinea &l : linee) somma += (l.Y1 + l.Y2) / 2;
        return somma / static_cast<double>(linee.size());
    };
    EXPECT_GT(baricentro(sei), 10 * MM) << "the bowl is below, and y grows downward";
    EXPECT_LT(baricentro(nove), -10 * MM);
    const auto orizzontale = [](const std::vector<RecLinea> &linee) {
        const auto lunga = std::max_element(linee.begin(), linee.end(), [](const RecLinea &a, const RecLinea &b) {
            const auto l = [](const RecLinea &r) { return std::fabs(r.Y2 - r.Y1) < 1e-6 ? Lunghezza(r) : 0; };
            return l(a) < l(b);
        });
        return (lunga->Y1 + lunga->Y2) / 2;
    };
    EXPECT_NEAR(orizzontale(sette), -75 * MM, 1e-9);
    EXPECT_NEAR(orizzontale(cinque), -75 * MM, 1e-9);
    EXPECT_NEAR(orizzontale(due), 75 * MM, 1e-9);
    EXPECT_LT(sette.back().X2, sette.front().X2) << "the leg of a 7 leans to the left";
}

TEST(Numeri, TakeACellForEachDigit) {
    Lettere banco;
    const double cella = 110 * MM;
    for (const int n : {1, 5, 9, 10, 11, 12}) {
        const bool due = n > 9;
        const std::size_t attese = banco.cifra(n / 10 % 10).size() * due + banco.cifra(n % 10).size();
        const auto linee = banco.numero(n);
        EXPECT_EQ(linee.size(), attese) << n;
        const Ingombro i = IngombroDi(linee);
        EXPECT_GE(i.sinistra, 1 - cella) << n;
        EXPECT_LE(i.destra, due ? 1 + cella : 1) << n;
        EXPECT_NEAR(i.y(), -2, 1 * MM) << n;
        EXPECT_NEAR(banco.s.v.x1.numero(), due ? 1 : 1 - cella, 1e-9) << n;
        EXPECT_NEAR(banco.s.v.y1.numero(), 2, 1e-9) << n;
    }
    banco.numero(12, 0);  // upright to the right: the baseline runs down the plane
    EXPECT_NEAR(banco.s.v.x1.numero(), 1, 1e-9);
    EXPECT_NEAR(banco.s.v.y1.numero(), 2, 1e-9);
    banco.numero(7, 0);
    EXPECT_NEAR(banco.s.v.x1.numero(), 1, 1e-9);
    EXPECT_NEAR(banco.s.v.y1.numero(), 2 + cella, 1e-9);
}

TEST(NumeriRomani, SpellTheHoursInClosedLetters) {
    Lettere banco;
    const std::array lettere{"I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII"};
    for (int ora = 1; ora <= 12; ++ora) {
        const std::string attese = lettere[static_cast<std::size_t>(ora - 1)];
        const auto linee = banco.romano(ora);
        EXPECT_EQ(Pezzi(linee, 1e-9), static_cast<int>(attese.size())) << attese;
        double larghezza = 0;
        for (const char c : attese) larghezza += (c == 'I' ? 50 : 110) * MM;
        const Ingombro i = IngombroDi(linee);
        EXPECT_NEAR(i.larghezza(), larghezza, 8 * MM) << attese;
        EXPECT_NEAR(i.altezza(), 150 * MM, 1e-9) << attese;
        EXPECT_NEAR(i.x(), 0, 1 * MM) << attese;
        EXPECT_NEAR(i.y(), 0, 1e-9) << attese;
        // Closed: the strokes lead nowhere in sum.
        double dx = 0, dy = 0;
        for (const RecLinea &l : linee) {
            dx += l.X2 - l.X1, dy += l.Y2 - l.Y1;
            EXPECT_GT(Lunghezza(l), 1 * MM);
            EXPECT_EQ(l.colore, QB(7));
        }
        EXPECT_NEAR(std::hypot(dx, dy), 0, 1e-9) << attese;
    }
    // With its upright along x the baseline runs down the sheet.
    EXPECT_NEAR(IngombroDi(banco.romano(8, 0)).altezza(), 256 * MM, 1e-9);
    EXPECT_TRUE(banco.romano(0).empty());
    EXPECT_TRUE(banco.romano(2000000000).empty());
}

TEST(Numeri, FollowTheirOwnFieldAndTheUnit) {
    Lettere banco;
    banco.imposta({{"txtArabi", "30"}, {"txtNumbersize", "60"}});
    banco.s.v.unita = 0.001;
    EXPECT_NEAR(IngombroDi(banco.cifra(4)).altezza(), 30 * MM, 1e-9);
    EXPECT_NEAR(IngombroDi(banco.romano(4)).altezza(), 60 * MM, 1e-9);
    banco.imposta({{"txtArabi", "0"}, {"txtNumbersize", "x"}});
    EXPECT_EQ(IngombroDi(banco.numero(12)).larghezza(), 0);
    EXPECT_EQ(IngombroDi(banco.romano(12)).larghezza(), 0);
}

TEST(NumeriSulleOre, StandOnTheHourLinesOfTheDayLine) {
    for (const auto &[lat, dec, delta] : {std::array{"45", "0", "-10"}, {"38", "-20", "23.445"}, {"60", "35", "0"}}) {
        Lettere banco;
        banco.imposta({{"txtLAT", lat}, {"txtDec", dec}, {"txtDelta", delta}, {"txtNumbersize", ".0015"}, {"ck_Etna", "0"}});
        LeggiParametri(banco.s);
        banco.s.in.ckRomani = 1;
        PosizionaRomani(banco.s);
        const Proiezione proietta(banco.s.v);
        std::size_t k = 0;
        const auto &linee = banco.lista().Linee;
        for (int V = -90; V <= 90; V += 15) {
            Lettere campione;
            const std::size_t n = campione.romano((12 + V / 15 + 11) % 12 + 1).size();
            ASSERT_LE(k + n, linee.size());
            const auto da = linee.begin() + static_cast<std::ptrdiff_t>(k);
            const Ingombro i = IngombroDi(std::vector(da, da + static_cast<std::ptrdiff_t>(n)));
            Reale x, y;
            proietta(PI * V / 180, Radianti(Val(delta)), x, y);
            const double gioco = 1e-5 + 1e-7 * (std::fabs(x.numero()) + std::fabs(y.numero()));
            if (std::fabs(x.numero()) < 1e3) {
                EXPECT_NEAR(i.x(), x.numero(), gioco) << V << " " << lat;
                EXPECT_NEAR(i.y(), -y.numero(), gioco) << V << " " << lat;
            }
            k += n;
        }
        EXPECT_EQ(k, linee.size());
    }
}

TEST(NumeriSulleOre, WaitForAWallAndARun) {
    Lettere banco;
    banco.s.v.unita = 0;
    PosizionaRomani(banco.s);
    PosizionaArabi(banco.s);
    EXPECT_TRUE(banco.lista().Linee.empty()) << "no run before";
    banco.s.v.unita = 1;
    banco.s.in.txtInc = "25.2";
    PosizionaArabi(banco.s);
    EXPECT_TRUE(banco.lista().Linee.empty()) << "no wall";

    banco.s.in.txtInc = "0";
    LeggiParametri(banco.s);
    PosizionaRomani(banco.s);  // the box is clear: Arabic
    const std::size_t arabi = banco.lista().Linee.size();
    ASSERT_GT(arabi, 0U);
    EXPECT_EQ(banco.lista().Linee.front().Spessore, 2);
    banco.s.tavolo.Clear();
    PosizionaArabi(banco.s);
    EXPECT_EQ(banco.lista().Linee.size(), arabi);
    EXPECT_EQ(banco.s.v.deltaOpz.numero(), 23.445);
    EXPECT_EQ(banco.s.v.angOraLong.numero(), 15) << "degrees";
}

}  // namespace
}  // namespace ombrelia
