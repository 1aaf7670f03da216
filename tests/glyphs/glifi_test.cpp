// The strokes of digits, Roman numerals and signs, and their places on the wall against the projection of the direct engine.
#include <gtest/gtest.h>

#include <array>

#include "comuni/prova.h"
#include "glyphs/numeri.h"
#include "glyphs/tratti_prova.h"
#include "glyphs/zodiaco.h"
#include "sessione/proiezione.h"

namespace ombrelia {
namespace {

using namespace prova;

constexpr double MM = 0.001, CELLA = 110 * MM;  // a unit of the cell in these tests

// A session in which numerals are 150 mm high.
struct Lettere : Banco {
    Lettere() : Banco({{"txtInc", "0"}, {"txtArabi", ".15"}, {"txtNumbersize", ".15"}}) { s.v.unita = 1; }
    const std::vector<RecLinea> &cifra(int n) { return s.tavolo.Clear(), DisegnaCifra(s, 0, 0, 90, n, 2), lista().Linee; }
    const std::vector<RecLinea> &numero(int n, double gradi = 90) {
        return s.tavolo.Clear(), DisegnaNumero(s, 1, 2, gradi, n), lista().Linee;
    }
    const std::vector<RecLinea> &romano(int ora, double rotazione = PI / 2) {
        return s.tavolo.Clear(), DisegnaNumeroRomano(s, 0, 0, rotazione, ora), lista().Linee;
    }
};

TEST(Cifre, KeepToTheCellJoinAndStandUpright) {
    Lettere banco;
    for (const auto &r : Tabella("cifre.txt")) {
        const auto &linee = banco.cifra(std::stoi(r[0]));
        const Ingombro i(linee);
        EXPECT_LT(std::max(std::fabs(i.alto + 75 * MM), std::fabs(i.basso - 75 * MM)), 0.6 * MM) << r[0];
        EXPECT_TRUE(i.sinistra >= 8 * MM && i.destra <= 102 * MM) << r[0];
        EXPECT_EQ(Pezzi(linee, 0.01 * MM), 1U) << r[0];
        for (const RecLinea &l : linee) EXPECT_TRUE(l.colore == QB(7) && l.Spessore == 2) << r[0];
        EXPECT_TRUE(i.pende(Val(r[1]).v, Val(r[2]).v, MM)) << r[0] << ": mirrored or upside down";
    }
    EXPECT_TRUE(banco.cifra(10).empty() && banco.cifra(-1).empty());
}

TEST(Numeri, TakeACellForEachDigit) {
    Lettere banco;
    const auto fuori = [&v = banco.s.v](double x, double y) { return std::hypot(v.x1.numero() - x, v.y1.numero() - y); };
    for (const int n : {1, 5, 9, 10, 11, 12}) {
        const bool due = n > 9;
        const std::size_t attese = banco.cifra(n % 10).size() + (due ? banco.cifra(1).size() : 0);
        EXPECT_EQ(banco.numero(n).size(), attese) << n;
        const Ingombro i(banco.lista().Linee);
        EXPECT_TRUE(i.sinistra >= 1 - CELLA && i.destra <= (due ? 1 + CELLA : 1)) << n;
        EXPECT_NEAR(i.y(), -2, MM) << n;
        EXPECT_LT(fuori(due ? 1 : 1 - CELLA, 2), 1e-9) << n;
        banco.numero(n, 0);  // upright to the right: the baseline runs down the plane
        EXPECT_LT(fuori(1, due ? 2 : 2 + CELLA), 1e-9) << n;
    }
}

TEST(NumeriRomani, SpellTheHoursInClosedLetters) {
    Lettere banco;
    int ora = 0;
    for (const std::string attese : {"I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII"}) {
        const auto &linee = banco.romano(++ora);
        EXPECT_EQ(Pezzi(linee, 1e-9), attese.size()) << attese;
        double larghezza = 0, dx = 0, dy = 0;
        for (const char c : attese) larghezza += (c == 'I' ? 50 : 110) * MM;
        const Ingombro i(linee);
        EXPECT_NEAR(i.larghezza(), larghezza, 8 * MM) << attese;
        EXPECT_NEAR(i.altezza(), 150 * MM, 1e-9) << attese;
        EXPECT_TRUE(std::fabs(i.x()) < MM && std::fabs(i.y()) < 1e-9) << attese;
        for (const RecLinea &l : linee) dx += l.X2 - l.X1, dy += l.Y2 - l.Y1;
        EXPECT_NEAR(std::hypot(dx, dy), 0, 1e-9) << attese << ": the strokes of a closed letter lead nowhere in sum";
    }
    EXPECT_NEAR(Ingombro(banco.romano(8, 0)).altezza(), 256 * MM, 1e-9) << "the baseline runs down the sheet";
    EXPECT_TRUE(banco.romano(0).empty() && banco.romano(2000000000).empty());
}

TEST(NumeriSulleOre, StandOnTheHourLinesOfTheDayLine) {
    for (const auto &[lat, dec, delta] : {std::array{"45", "0", "-10"}, {"38", "-20", "23.445"}, {"60", "35", "0"}}) {
        Lettere banco, campione;
        banco.imposta({{"txtLAT", lat}, {"txtDec", dec}, {"txtDelta", delta}, {"txtNumbersize", ".0015"}, {"ck_Etna", "0"}});
        LeggiParametri(banco.s);
        banco.s.in.ckRomani = 1;
        PosizionaRomani(banco.s);
        const Proiezione proietta(banco.s.v);
        std::ptrdiff_t k = 0;
        const auto &linee = banco.lista().Linee;
        for (int V = -90; V <= 90; V += 15) {
            const std::ptrdiff_t n = std::ssize(campione.romano((12 + V / 15 + 11) % 12 + 1));
            ASSERT_LE(k + n, std::ssize(linee));
            const Ingombro i(std::vector(linee.begin() + k, linee.begin() + k + n));
            Reale x, y;
            proietta(PI * V / 180, Radianti(Val(delta)), x, y);
            const double gioco = 1e-5 + 1e-7 * (std::fabs(x.numero()) + std::fabs(y.numero()));
            EXPECT_TRUE(std::fabs(x.numero()) > 1e3 || std::hypot(i.x() - x.numero(), i.y() + y.numero()) < 1.5 * gioco)
                << V << lat;
            k += n;
        }
        EXPECT_EQ(k, std::ssize(linee));
    }
}

TEST(NumeriSulleOre, WaitForAWallAndARun) {
    Lettere banco;
    const auto arabi = [&s = banco.s] { return s.tavolo.Clear(), PosizionaArabi(s), s.tavolo.lista().Linee.size(); };
    const auto romani = [&s = banco.s] { return s.tavolo.Clear(), PosizionaRomani(s), s.tavolo.lista().Linee.size(); };
    LeggiParametri(banco.s);
    EXPECT_GT(arabi(), 0U);
    EXPECT_EQ(romani(), arabi()) << "the box is clear: Arabic";
    EXPECT_EQ(banco.s.v.deltaOpz.numero(), 23.445);
    EXPECT_EQ(banco.s.v.angOraLong.numero(), 15) << "degrees";
    banco.s.in.txtInc = "25.2";
    EXPECT_EQ(arabi(), 0U) << "no wall";
    banco.s.in.txtInc = "0";
    banco.s.v.unita = 0;
    EXPECT_EQ(romani() + arabi(), 0U) << "no run before";
}

struct Cielo : Banco {
    explicit Cielo(Campi campi = {}) : Banco({{"txtInc", "0"}, {"txtZodiacsize", "0.015"}, {"txtLonG", "-15"}}) {
        imposta(campi);
        s.v.unita = s.v.segnoLat2 = 1;
    }
    Ingombro segno(int quale, double x = 0, double y = 0) {
        s.tavolo.Clear();
        DisegnaSegno(s, static_cast<Segno>(quale), x, y, 90);
        return Ingombro(lista().Linee, lista().Figure);
    }
    // The places of the signs that have a straight stroke: all but the Bull.
    std::vector<RecLinea> posti() {
        imposta({{"txtZodiacsize", "0"}});
        DisegnaZodiaco(s);
        std::vector<RecLinea> r;
        for (const RecLinea &l : lista().Linee)
            if (r.empty() || r.back().X1 != l.X1 || r.back().Y1 != l.Y1) r.push_back(l);
        return r;
    }
};

TEST(Segni, HaveTheirStrokesWithinTheirSizeAndStandUpright) {
    Cielo cielo;
    int n = 0;
    for (const auto &r : Tabella("segni.txt")) {
        const Ingombro i = cielo.segno(n++, 1, 2);
        const Lista &l = cielo.lista();
        EXPECT_NEAR(static_cast<double>(l.Ordine.size()), Val(r[1]).v, 0.1 * Val(r[1]).v) << r[0];
        EXPECT_LE(std::max({i.destra - 1, 1 - i.sinistra, i.basso + 2, -2 - i.alto}), 0.0079) << r[0];
        EXPECT_GE(std::max(i.larghezza(), i.altezza()), 0.011) << r[0] << ": too small to read";
        EXPECT_TRUE(i.pende(Val(r[2]).v, Val(r[3]).v, 0.0002)) << r[0] << ": mirrored or upside down";
        std::set<Colore> colori;
        for (const RecLinea &t : l.Linee) colori.insert(t.colore);
        for (const RecFigura &f : l.Figure) {
            colori.insert(f.colore);
            EXPECT_TRUE(f.X2 > 0 && f.Y2 == 1 && f.Riempimento == -1) << r[0];
            EXPECT_TRUE(f.A >= 0 && f.A < CERCHIO && f.B >= 0 && f.B <= CERCHIO) << r[0];
            EXPECT_TRUE(f.B != 0 || f.A == 0) << r[0] << ": an arc that would be a whole circle";
        }
        EXPECT_GE(colori.size(), 2U) << r[0];
        for (const int c : {3, 11, 12, 15}) colori.erase(QB(c));
        EXPECT_TRUE(colori.empty()) << r[0];
    }
    EXPECT_EQ(n, SEGNI);
}

TEST(Glifi, ScaleWithTheirFieldsAndTheUnit) {
    Lettere banco;
    Cielo cielo;
    const int leone = static_cast<int>(Segno::Leone);
    const double alto = cielo.segno(leone).altezza();
    cielo.imposta({{"txtZodiacsize", "30"}});
    banco.imposta({{"txtArabi", "30"}, {"txtNumbersize", "60"}});
    cielo.s.v.unita = banco.s.v.unita = MM;
    EXPECT_NEAR(cielo.segno(leone).altezza(), 2 * alto, 1e-9);
    EXPECT_NEAR(Ingombro(banco.cifra(4)).altezza(), 30 * MM, 1e-9);
    EXPECT_NEAR(Ingombro(banco.romano(4)).altezza(), 60 * MM, 1e-9);
    for (const char *niente : {"0", "x", "1e999"}) {
        cielo.imposta({{"txtZodiacsize", niente}});
        banco.imposta({{"txtArabi", niente}, {"txtNumbersize", niente}});
        EXPECT_EQ(Ingombro(banco.numero(12)).larghezza() + Ingombro(banco.romano(12)).larghezza(), 0) << niente;
        for (int n = 0; n < SEGNI; ++n) {
            const Ingombro i = cielo.segno(n, 3, -4);
            EXPECT_TRUE(i.larghezza() == 0 && i.altezza() == 0 && i.x() == 3 && i.y() == 4) << niente << n;
        }
    }
}

TEST(Zodiaco, FollowsTheLongitudeOnAnyWall) {
    for (const char *lon : {"-9.2", "0", "-15", "-21"})
        for (const char *dec : {"-40", "0", "62"}) {
            Cielo cielo({{"txtLonG", lon}, {"txtDec", dec}, {"txtLAT", "41.9"}});
            const auto posti = cielo.posti();
            ASSERT_EQ(posti.size(), 11U);
            const Proiezione proietta(cielo.s.v);
            for (const auto &r : Tabella("posti_segni.txt")) {
                const RecLinea &posto = posti.at(std::stoul(r[0]));
                Reale x, y;  // a mended azimuth carries the error of the ten-digit PI, up to some 1e-8 m at these slopes
                proietta(Radianti(Val(r[1]) / 4 - (15 + Val(lon))), Radianti(Val(r[2])), x, y);
                EXPECT_LT(std::hypot(posto.X1 - x.numero(), posto.Y1 + y.numero()), 1.4e-7) << r[3] << " " << lon << " " << dec;
            }
        }
}

TEST(Zodiaco, SouthernRunTurnsTheYear) {
    Cielo cielo({{"txtDec", "0"}, {"txtLAT", "30"}});
    cielo.s.v.segnoLat = -1;
    const auto posti = cielo.posti();
    EXPECT_GT(posti[0].Y1, posti[5].Y1) << "Capricorn below the equinoctial: a summer sign";
    EXPECT_LT(posti[10].Y1, posti[5].Y1);
    EXPECT_EQ(cielo.s.v.deltaOpz.numero(), -20);
}

TEST(Zodiaco, DotsCloseTheFigure) {
    Cielo cielo({{"txtDec", "10"}, {"txtLAT", "45"}}), nord({{"txtDec", "180"}, {"txtLAT", "45"}});
    LeggiParametri(cielo.s);
    cielo.s.v.flagVerticale = 1;
    cielo.s.v.lonEq = -12;
    ChiudiZodiaco(cielo.s);
    EXPECT_EQ(cielo.s.v.lonPiu15.numero(), 3) << "the equivalent dial's longitude counts";
    EXPECT_EQ(cielo.s.v.deltaOpz.numero(), 20);
    // Radians of the five stretches over their steps, both ends counted where they are met.
    const double rad = 15 * PI / (60 * 180);
    const double attesi = (24.98 + 29.5 + 14.6466 + 9.83) * rad / 0.0001 + 3.5326 * rad / 0.0002;
    EXPECT_NEAR(static_cast<double>(cielo.lista().Punti.size()), attesi, 5);
    for (const RecPunto &p : cielo.lista().Punti) EXPECT_TRUE(p.Y >= 0 && p.colore == QB(14));
    LeggiParametri(nord.s);
    ChiudiZodiaco(nord.s);
    EXPECT_TRUE(nord.lista().Punti.empty()) << "the wall has the noon Sun behind it";
}

}  // namespace
}  // namespace ombrelia
