// The equivalent vertical dial: the same figure as the plane's, and what the transformation writes.
#include <gtest/gtest.h>

#include <cstdio>

#include "analytic/quadranti.h"
#include "vertical/piana.h"

namespace ombrelia {
namespace {

using prova::Banco;

struct Piano {
    const char *che, *lat, *dec, *inc;
    bool zona = false;
};
constexpr Piano PIANI[] = {
    {"reclining, facing south", "45", "0", "30"},
    {"reclining past the pole", "45", "0", "60"},
    {"reclining east of south", "45.74805", "-20", "25.2", true},
    {"reclining west of south", "50", "60", "40"},
    {"reclining far", "30", "45", "75", true},
    {"overhanging west", "45", "30", "-20"},
    {"overhanging east", "52", "-75", "-35", true},
    {"overhanging south", "45", "0", "-25"},
    {"facing away", "35", "120", "15"},
    {"due north", "45", "180", "20"},
    {"due north, east", "40", "-180", "10", true},
    {"horizontal", "45", "0", "90"},
    {"horizontal, high", "60", "0", "90", true},
    {"equator, south", "0", "0", "35"},
    {"equator, west", "0", "25", "40"},
    {"equator, east", "0", "-70", "50", true},
    {"a hair of declination", "45", "0.5", "30"},
};

void prepara(Banco &b, const Piano &p) {
    b.imposta({{"txtLAT", p.lat}, {"txtDec", p.dec}, {"txtInc", p.inc}, {"txtLonG", "-12.5"}, {"TxtStilo", "0.1"}, {"TxtFraz", "1"}});
    b.imposta({{"txtX0", "-0.5"}, {"txtX1", "0.5"}, {"txtY0", "0.5"}, {"txtY1", "-0.5"}});
    b.spunta("chkOreAstronomiche");
    if (p.zona) b.spunta("ck_Etna");
}

TEST(Equivalente, LeStesseRetteOrarie) {
    double peggiore = 0;
    int mezzogiorno = 0;
    for (const Piano &p : PIANI) {
        Banco b;
        prepara(b, p);
        b.esegui();
        const auto originale = b.linee("hour");
        ASSERT_GT(originale.size(), 200U) << p.che;
        b.premi("cmdTrasforma");
        EXPECT_EQ(b.s.in.txtInc, "0");

        b.premi("Tavolo1.cmdPulisci");
        b.premi("cmdEqui");
        const auto rette = b.linee("Ore_astro");
        ASSERT_EQ(rette.size(), 13U) << p.che;
        const auto c = prova::Confronta(originale, rette);
        EXPECT_LT(c.peggiore, 1e-6) << p.che << " drawn by the analytic engine";
        mezzogiorno += c.mezzogiorno;
        peggiore = std::max(peggiore, c.peggiore);

        // By the vertical engine, against the lines as the plane had them.
        b.premi("Tavolo1.cmdPulisci");
        vertical::Piana_Esegui(b.s);
        const auto verticale = b.linee("Astro");
        ASSERT_GT(verticale.size(), 20U) << p.che;
        const auto v = prova::Confronta(prova::Rette(originale, 0.03), prova::Rette(verticale, 0.03), false);
        EXPECT_LT(v.peggiore, 1e-6) << p.che << " drawn by the vertical engine";
        EXPECT_GT(v.punti, 4) << p.che;
        peggiore = std::max(peggiore, v.peggiore);
    }
    EXPECT_GT(mezzogiorno, 2000) << "noon stays noon";
    std::printf("%zu planes, worst off by %.3g m\n", std::size(PIANI), peggiore);
}

TEST(Equivalente, QuelCheScrive) {
    struct Caso {
        const char *lat, *dec, *inc;
        bool zona;
        const char *latEq, *decEq, *orizzonte, *lon;
        double diffLong;
        int beep;
    };
    const double pi = PI;
    const Caso casi[] = {
        // South at the sum of latitude and inclination; East of Greenwich by 15 less nothing.
        {"45", "0", "20", false, "65", "0", "0.07279", "-15", 0, 1},
        {"45", "0", "-20", true, "25", "0", "-0.0728", "-12.5", 0, 1},
        // Past the pole: the wall faces north, half a turn away. The substyle is not worked out.
        {"45", "0", "60", true, "75", "180", "0.34641", "-192.5", pi, 1},
        {"45", "180", "20", false, "25", "180", "0.07279", "-195", pi, 2},
        {"45", "-180", "20", true, "25", "-180", "0.07279", "-192.5", pi, 2},
        {"45", "33", "90", false, "45", "180", "infinito", "-12.5", 0, 1},
        {"60", "-33", "90", true, "30", "180", "infinito", "-12.5", 0, 1},
        // The sign of a southern latitude comes back.
        {"-45", "0", "20", true, "-65", "0", "0.07279", "-12.5", 0, 1},
        {"0", "0", "30", false, "30", "0", "0.11547", "-15", 0, 1},
    };
    for (const Caso &c : casi) {
        Banco b({{"txtLAT", c.lat}, {"txtDec", c.dec}, {"txtInc", c.inc}, {"txtLonG", "-12.5"}, {"TxtStilo", "0.2"}, {"txtOriz", "7"}});
        if (c.zona) b.spunta("ck_Etna");
        EXPECT_EQ(b.premi("cmdEqui"), app::Esito::Disabilitato);
        b.premi("cmdTrasforma");
        const std::string dove = std::string(c.lat) + " " + c.dec + " " + c.inc;
        const DialInputs &in = b.s.in;
        const bool orizzontale = std::string_view(c.inc) == "90";
        EXPECT_EQ(in.txtLAT, c.latEq) << dove;
        EXPECT_NEAR(Val(in.txtDec).v, Val(c.decEq).v, 1e-5) << dove;
        EXPECT_EQ(in.txtInc, "0") << dove;
        EXPECT_EQ(in.txtOriz, c.orizzonte) << dove;
        EXPECT_NEAR(Val(in.txtLonG).v, Val(c.lon).v, 1e-9) << dove;
        EXPECT_EQ(b.s.v.diffLong, c.diffLong) << dove;
        EXPECT_EQ(in.ck_Etna, !orizzontale || c.zona) << dove;
        EXPECT_EQ(b.s.v.flagTrasformato, orizzontale) << dove;
        EXPECT_EQ(b.s.v.flagVerticale, 1) << dove;
        EXPECT_NEAR(b.s.v.lonEq.numero(), -12.5 - c.diffLong * 180 / pi, 1e-9) << dove;
        EXPECT_EQ(b.s.v.lon, b.s.v.lonEq) << dove;
        EXPECT_EQ(b.utente.beep, c.beep) << dove;
        EXPECT_TRUE(b.s.stato("cmdEqui").abilitato) << "the field's own handler heard of the wall";
        EXPECT_EQ(b.s.v.inc_o, Val(c.inc)) << "the plane stays the original dial";
    }
}

TEST(Equivalente, UnaPareteResta) {
    Banco b({{"txtLAT", "45"}, {"txtDec", "12"}, {"txtInc", "0"}, {"txtLonG", "-7"}}, {"CkQibla", "ckAlt", "ckAsr"});
    b.premi("cmdTrasforma");
    EXPECT_EQ(b.s.in.txtDec, "12");
    EXPECT_EQ(b.s.in.txtLonG, "-7");
    EXPECT_EQ(b.s.in.ck_Etna, 0);
    EXPECT_EQ(b.s.v.lon, -7);
    EXPECT_EQ(b.s.v.flagVerticale, 1);
    EXPECT_EQ(b.s.v.flagTrasformato, 0);
    EXPECT_EQ(b.utente.beep, 0);
    for (const std::string_view nome : {"CkQibla", "ckAlt", "ckAsr"}) {
        EXPECT_EQ(b.s.valore(TrovaControllo(nome)), 0) << nome;
        EXPECT_EQ(b.spunta(nome), app::Esito::Disabilitato) << nome;
    }
}

// After the transformation the analemma follows the equivalent longitude, and a second press does nothing more.
TEST(Equivalente, DopoLaTrasformazione) {
    Banco b({{"txtLAT", "45"}, {"txtDec", "-20"}, {"txtInc", "25.2"}, {"txtLonG", "-12.5"}}, {"ck_Lemniscate"});
    b.premi("cmdTrasforma");
    const std::string lon = b.s.in.txtLonG;
    EXPECT_NEAR(Val(lon).v, -15 - b.s.v.diffLong.numero() * 180 / PI, 1e-9);
    b.premi("cmdEqui");
    EXPECT_EQ(b.s.v.lon, b.s.v.lonEq);
    EXPECT_EQ(b.s.v.corrLong, (15 + b.s.v.lonEq) * PI / 180);
    // The same sheet of points as the original plane's own analemma, drawn by projection.
    Banco piano({{"txtLAT", "45"}, {"txtDec", "-20"}, {"txtInc", "25.2"}, {"txtLonG", "-12.5"}}, {"ck_Lemniscate"});
    piano.imposta({{"txtX0", "-1"}, {"txtX1", "1"}, {"txtY0", "1"}, {"txtY1", "-1"}});
    piano.esegui();
    const auto corde = piano.linee("Analemma");
    ASSERT_GT(corde.size(), 1000U);
    int visti = 0;
    for (const RecPunto &q : prova::puntiDi(b, QB(12))) {
        if (!(std::fabs(q.X) < 0.9 && std::fabs(q.Y) < 0.9)) continue;
        double d = 1e9;
        for (const RecLinea &c : corde) d = std::min(d, prova::distanza(q.X, q.Y, c) + std::max(0.0, std::hypot(q.X - c.X1, q.Y - c.Y1) - 0.01));
        EXPECT_LT(d, 2e-5) << q.X << " " << q.Y;
        ++visti;
    }
    EXPECT_GT(visti, 150);
    b.premi("cmdTrasforma");
    EXPECT_EQ(b.s.in.txtLonG, lon);
    EXPECT_EQ(b.s.v.lon, Val(lon)) << "a wall's equivalent longitude is its own";
}

}  // namespace
}  // namespace ombrelia
