// What a moment casts and a point reads on the dial of the fields, and the commands' poses: southern, level, in millimetres.
#include "certificato/istante.h"

#include <gtest/gtest.h>

#include "certificato/percorso.h"
#include "comuni/prova.h"

namespace ombrelia {
namespace {

using ombra::GRADI;
using ombra::Luce;
using ombra::RADIANTI;

// Reda and Andreas, Solar Position Algorithm, NREL 2008, table A5.1: 2003-10-17 12:30:30, zone -7: azimuth 194.34024 from
// North, altitude 39.872046 before refraction with 0.0019 of parallax taken back, hour angle 11.105902, declination -9.31434.
TEST(Istante, PublishedMoment) {
    prova::Banco b({{"txtLAT", "39.742476"},
                    {"txtLonG", "105.1786"},
                    {"txtInc", "90"},
                    {"txtDec", "33"},
                    {"TxtStilo", "100"},
                    {"txtMeridiano", "105"}},
                   {"ChCentimetro"});
    const Posa posa = PosaDeiCampi(b.s);
    EXPECT_DOUBLE_EQ(posa.fuso(), -7);
    EXPECT_NEAR(posa.minutiDelFuso(), 0.7144, 1e-9);
    const Istante i = IstanteDi(posa, {2003, 10, 17}, 12.508333333, posa.fuso());
    EXPECT_NEAR(i.cielo.azimut * GRADI, 14.34024, 0.001);
    EXPECT_NEAR(i.cielo.altezza * GRADI, 39.8739, 0.001);
    EXPECT_NEAR(i.cielo.t * GRADI, 11.105902, 0.001);
    EXPECT_NEAR(i.cielo.delta * GRADI, -9.31434, 0.0006);
    // On a level plane the shadow lies opposite to the Sun, x East, y North, gnomon 100 mm; its declination is not read.
    const double lunga = 0.1 / std::tan(39.8739 * RADIANTI);
    ASSERT_TRUE(i.ombra.luce == Luce::Si);
    EXPECT_NEAR(i.ombra.punto.x, lunga * std::sin(14.34024 * RADIANTI), 5e-6);
    EXPECT_NEAR(i.ombra.punto.y, lunga * std::cos(14.34024 * RADIANTI), 5e-6);
    // And back: the same hour, and the date is one of the two.
    const LetturaPunto l = LeggiPunto(posa, i.ombra.punto, 2003);
    EXPECT_NEAR(l.oraVera, 12 + 11.105902 / 15, 1e-4);
    ASSERT_EQ(l.date.size(), 2U);
    EXPECT_EQ(testoData(l.date[1]), "2003-10-17");
    // A minute and a day of motion against the moments beside it.
    const Istante dopo = IstanteDi(posa, {2003, 10, 17}, 12.525, posa.fuso());
    EXPECT_NEAR(l.mmAlMinuto, 1000 * std::hypot(dopo.ombra.punto.x - i.ombra.punto.x, dopo.ombra.punto.y - i.ombra.punto.y),
                0.02);
    EXPECT_NEAR(l.mmAlGiorno, 1000 * 0.1 / std::pow(std::sin(39.87 * RADIANTI), 2) * 0.372 * RADIANTI, 0.1);
}

// A southern wall's declination counts from North. Its drawing's list is the mirror image; hour lines agree with the shadow.
TEST(Istante, SouthernWallDrawnAndMirrored) {
    for (const bool prima : {true, false}) {
        prova::Banco b({{"txtLAT", "-33.8688"}, {"txtLonG", "-151"}, {"txtDec", "20"}, {"txtInc", "0"}, {"TxtFraz", "1"}},
                       {"chkOreAstronomiche"});
        b.cornice(".1", "-.5", ".5", ".1", "-.6");
        if (!prima) b.esegui();
        const Posa posa = prima ? PosaDeiCampi(b.s) : PosaDelDisegno(b.s);
        EXPECT_TRUE(posa.australe);
        EXPECT_NEAR(posa.quadrante.latitudine * GRADI, -33.8688, 1e-9);
        EXPECT_NEAR(posa.quadrante.declinazione * GRADI, 160, 1e-9);
        const ombra::PianoMontato piano(posa.quadrante);
        int corde = 0;
        for (const RecLinea &l : b.linee("hour")) {
            const double t = piano.leggi(ombra::Punto{-l.X1, l.Y1}).t * GRADI / 15;
            EXPECT_NEAR(t, std::round(t), 1e-5);
            ++corde;
        }
        EXPECT_EQ(prima, corde == 0);
    }
}

TEST(Istante, ClockAndPath) {
    const std::pair<double, const char *> ore[] = {
        {10.4, "10:24"}, {0, "0:00"}, {23.9999, "0:00"}, {25.5, "1:30"}, {-0.5, "23:30"}};
    for (const auto &[h, t] : ore) EXPECT_EQ(Orologio(h), t);
    EXPECT_EQ(Orologio(10.4014, true), "10:24:05");
    prova::Banco b({{"txtInc", "0"}, {"TxtStilo", ".1"}}, {"chkOreAstronomiche"});
    b.esegui();
    const Posa posa = PosaDelDisegno(b.s);
    const auto giorno = GiornataDi(posa, {2026, 5, 3}, 1, 10);
    ASSERT_EQ(giorno.size(), 144U);
    const std::string fermo = SvgConPercorso(b.s.tavolo, posa, giorno, false),
                      mosso = SvgConPercorso(b.s.tavolo, posa, giorno, true);
    EXPECT_TRUE(fermo.find("<animate") == std::string::npos && mosso.find("<animate") != std::string::npos);
    EXPECT_TRUE(mosso.ends_with("</svg>\n") && mosso.find("nan") == std::string::npos);
}

}  // namespace
}  // namespace ombrelia
