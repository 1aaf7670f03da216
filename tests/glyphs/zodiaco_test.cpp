// The signs' strokes, their places on the wall against the projection of the direct engine, and the dotted stretches.
#include "glyphs/zodiaco.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "comuni/prova.h"
#include "glyphs/tratti_prova.h"
#include "sessione/proiezione.h"

namespace ombrelia {
namespace {

using namespace prova;

struct Cielo : Banco {
    explicit Cielo(Campi campi = {}) : Banco({{"txtInc", "0"}, {"txtZodiacsize", "0.015"}}) {
        imposta(campi);
        s.v.unita = s.v.segnoLat2 = 1;
    }
    const Lista &segno(Segno quale, double x = 0, double y = 0) {
        s.tavolo.Clear();
        DisegnaSegno(s, quale, x, y, 90);
        return lista();
    }
};

TEST(Segni, HaveTheirStrokesWithinTheirSize) {
    // By the order of the signs' names.
    constexpr int PRIMITIVE[SEGNI] = {81, 12, 16, 23, 55, 14, 24, 5, 43, 12, 49, 100};
    Cielo cielo;
    for (int n = 0; n < SEGNI; ++n) {
        const Lista &l = cielo.segno(static_cast<Segno>(n), 1, 2);
        EXPECT_NEAR(static_cast<double>(l.Ordine.size()), PRIMITIVE[n], 0.1 * PRIMITIVE[n]) << n;
        const Ingombro i = IngombroDi(l);
        EXPECT_LE(std::max({i.destra - 1, 1 - i.sinistra, i.basso + 2, -2 - i.alto}), 0.0079) << n;
        EXPECT_GE(std::max(i.larghezza(), i.altezza()), 0.011) << n << ": too small to read";
        std::set<Colore> colori;
        for (const RecLinea &r : l.Linee) {
            colori.insert(r.colore);
            EXPECT_GT(Lunghezza(r), 0.0001) << n;
        }
        for (const RecFigura &f : l.Figure) {
            colori.insert(f.colore);
            EXPECT_GT(f.X2, 0) << n;
            EXPECT_EQ(f.Y2, 1);
            EXPECT_EQ(f.Riempimento, -1);
            EXPECT_TRUE(f.A >= 0 && f.A < CERCHIO && f.B >= 0 && f.B <= CERCHIO) << n;
            EXPECT_TRUE(f.B != 0 || f.A == 0) << n << ": an arc that would be a whole circle";
        }
        EXPECT_GE(colori.size(), 2U) << n;
        for (const int c : {3, 11, 12, 15}) colori.erase(QB(c));
        EXPECT_TRUE(colori.empty()) << n;
    }
}

TEST(Segni, StandUpright) {
    Cielo cielo;
    // The Bull: horns above the head, open upward.
    const auto toro = cielo.segno(Segno::Toro).Figure;
    for (const RecFigura &f : toro)
        if (f.B == 0) EXPECT_GT(f.Y1, 0) << "head";
        else EXPECT_TRUE(f.Y1 < 0 && f.A >= PI - 1e-6) << "horns";
    // The Ram's horns hang over a stem that reaches the ground; the Archer aims up and to the right.
    const Lista &ariete = cielo.segno(Segno::Ariete);
    for (const RecFigura &f : ariete.Figure) EXPECT_LT(f.Y1, 0);
    EXPECT_NEAR(ariete.Linee.back().Y2, 0.0075, 1e-6);
    const auto &freccia = cielo.segno(Segno::Sagittario).Linee;
    EXPECT_TRUE(std::any_of(freccia.begin(), freccia.end(),
                            [](const RecLinea &l) { return Lunghezza(l) > 0.018 && (l.X2 - l.X1) * (l.Y2 - l.Y1) < 0; }));
    // The bar of the Scales lies below.
    const auto &bilancia = cielo.segno(Segno::Bilancia).Linee;
    const auto barra = std::max_element(bilancia.begin(), bilancia.end(),
                                        [](const RecLinea &a, const RecLinea &b) { return Lunghezza(a) < Lunghezza(b); });
    EXPECT_GT(barra->Y1, 0.003);
}

TEST(Segni, ScaleWithTheFieldAndTheUnit) {
    Cielo cielo;
    const double alto = IngombroDi(cielo.segno(Segno::Leone)).altezza();
    cielo.imposta({{"txtZodiacsize", "30"}});
    cielo.s.v.unita = 0.001;
    EXPECT_NEAR(IngombroDi(cielo.segno(Segno::Leone)).altezza(), 2 * alto, 1e-9);
    for (const char *niente : {"0", "", "1e999"}) {
        cielo.imposta({{"txtZodiacsize", niente}});
        for (int n = 0; n < SEGNI; ++n) {
            const Ingombro i = IngombroDi(cielo.segno(static_cast<Segno>(n), 3, -4));
            EXPECT_TRUE(i.larghezza() == 0 && i.altezza() == 0 && i.x() == 3 && i.y() == 4) << niente << n;
        }
    }
}

struct Punto {
    double x, y;
};

// The places of the signs that have a straight stroke: all but the Bull.
std::vector<Punto> Posti(Cielo &cielo) {
    cielo.imposta({{"txtZodiacsize", "0"}});
    DisegnaZodiaco(cielo.s);
    std::vector<Punto> posti;
    for (const RecLinea &l : cielo.lista().Linee)
        if (posti.empty() || posti.back().x != l.X1 || posti.back().y != l.Y1) posti.push_back({l.X1, l.Y1});
    return posti;
}

TEST(Zodiaco, EquinoctialSignsStandOnEitherSideOfNoon) {
    Cielo cielo({{"txtLonG", "-15"}, {"txtLAT", "45"}, {"txtDec", "0"}, {"ck_Etna", "1"}});
    const auto posti = Posti(cielo);
    ASSERT_EQ(posti.size(), 11U);
    const Punto bilancia = posti[5], ariete = posti[6];
    EXPECT_EQ(cielo.s.v.corrLong.numero(), 0);
    EXPECT_GT(bilancia.x, 0);
    EXPECT_LT(ariete.x, 0);
    EXPECT_NEAR(bilancia.y, ariete.y, 1e-9) << "a meridian wall's equinoctial is level";
    EXPECT_NEAR(bilancia.y, 0.195, 1e-6) << "at 45 degrees as far below the foot as the ortostilo is long";
    EXPECT_NEAR(bilancia.x / ariete.x, -14.7 / 14.5, 1e-3);
}

TEST(Zodiaco, FollowsTheLongitudeOnAnyWall) {
    for (const char *lon : {"-9.2", "0", "-21"})
        for (const char *dec : {"-40", "0", "62"}) {
            Cielo cielo({{"txtLonG", lon}, {"txtDec", dec}, {"txtLAT", "41.9"}});
            const auto posti = Posti(cielo);
            const Proiezione proietta(cielo.s.v);
            const double c = PI * (15 + Val(lon).v) / 180;
            const auto attendi = [&](std::size_t k, double minuti, double delta) {
                Reale x, y;  // a mended azimuth carries the error of the ten-digit PI, up to some 1e-8 m at these slopes
                proietta(minuti / 4 * PI / 180 - c, Radianti(delta), x, y);
                EXPECT_NEAR(posti.at(k).x, x.numero(), 1e-7) << lon << " " << dec;
                EXPECT_NEAR(posti.at(k).y, -y.numero(), 1e-7) << lon << " " << dec;
            };
            attendi(0, 0, -28);      // Capricorn, outside the solstice
            attendi(1, 28, -20);     // Sagittarius
            attendi(2, -22, -20);    // Aquarius
            attendi(5, 14.7, 0);     // Libra
            attendi(9, -13.25, 20);  // Leo
            attendi(10, 0, 25);      // Cancer, outside the solstice
        }
}

TEST(Zodiaco, SouthernRunTurnsTheYear) {
    Cielo cielo({{"txtLonG", "-15"}, {"txtDec", "0"}, {"txtLAT", "30"}});
    cielo.s.v.segnoLat = -1;
    const auto posti = Posti(cielo);
    EXPECT_GT(posti[0].y, posti[5].y) << "Capricorn below the equinoctial: a summer sign";
    EXPECT_LT(posti[10].y, posti[5].y);
    EXPECT_EQ(cielo.s.v.deltaOpz.numero(), -20);
}

TEST(Zodiaco, DotsCloseTheFigure) {
    Cielo cielo({{"txtLonG", "-15"}, {"txtDec", "10"}, {"txtLAT", "45"}});
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

    // A wall that looks away from the noon Sun has it behind: no dot.
    Cielo nord({{"txtLonG", "-15"}, {"txtDec", "180"}, {"txtLAT", "45"}});
    LeggiParametri(nord.s);
    ChiudiZodiaco(nord.s);
    EXPECT_TRUE(nord.lista().Punti.empty());
}

}  // namespace
}  // namespace ombrelia
