// The equivalent vertical dial: the same figure as the plane's, and what the transformation writes.
#include <gtest/gtest.h>

#include <cstdio>

#include "analytic/quadranti.h"
#include "vertical/piana.h"

namespace ombrelia {
namespace {

using prova::QuadroProvato;

TEST(Equivalente, TheSameHourLines) {
    const auto piani = prova::Tabella("analitica_piani.txt");
    double peggiore = 0;
    int mezzogiorno = 0;
    for (const auto &r : piani) {
        QuadroProvato b(
            "txtLonG=-12.5 TxtStilo=0.1 TxtFraz=1 txtX0=-0.5 txtX1=0.5 txtY0=0.5 txtY1=-0.5 chkOreAstronomiche txtLAT=" +
            r.at(1) + " txtDec=" + r.at(2) + " txtInc=" + r.at(3) + (r.at(4).empty() ? "" : " ") + r[4]);
        b.esegui();
        const auto originale = b.linee("hour");
        ASSERT_GT(originale.size(), 200U) << r[0];
        b.premi("cmdTrasforma");
        const auto rette = b.analitica().linee("Ore_astro");
        ASSERT_EQ(rette.size(), 13U) << r[0];
        const auto c = prova::Confronta(originale, rette);
        EXPECT_LT(c.peggiore, 1e-6) << r[0] << " drawn by the analytic engine";
        mezzogiorno += c.mezzogiorno;

        // By the vertical engine, against the lines as the plane had them.
        b.premi("Tavolo1.cmdPulisci");
        vertical::Piana_Esegui(b.s, Lettura(b.s.in));
        const auto v = prova::Confronta(prova::Rette(originale, 0.03), prova::Rette(b.linee("Astro"), 0.03), false);
        EXPECT_LT(v.peggiore, 1e-6) << r[0] << " drawn by the vertical engine";
        EXPECT_GT(v.punti, 4) << r[0];
        peggiore = std::max({peggiore, c.peggiore, v.peggiore});
    }
    EXPECT_GT(mezzogiorno, 2000) << "noon stays noon";
    std::printf("%zu planes, worst off by %.3g m\n", piani.size(), peggiore);
}

TEST(Equivalente, WhatItWrites) {
    for (const auto &r : prova::Tabella("analitica_equivalenti.txt")) {
        const std::string dove = r.at(0) + " " + r.at(1) + " " + r.at(2);
        QuadroProvato b("txtLonG=-12.5 TxtStilo=0.2 txtOriz=7 txtLAT=" + r[0] + " txtDec=" + r[1] + " txtInc=" + r[2]);
        if (r.at(3) == "1") b.spunta("ck_Etna");
        EXPECT_EQ(b.premi("cmdEqui"), app::Esito::Disabilitato);
        b.premi("cmdTrasforma");
        const DialInputs &in = b.s.in;
        const Variabili &v = b.s.v;
        EXPECT_EQ(in.txtLAT + " " + in.txtInc + " " + in.txtOriz, r.at(5) + " 0 " + r.at(7)) << dove;
        EXPECT_NEAR(Val(in.txtDec).v, Val(r.at(6)).v, 1e-5) << dove;
        EXPECT_NEAR(Val(in.txtLonG).v, Val(r.at(8)).v, 1e-9) << dove;
        EXPECT_EQ(v.diffLong, PI * Val(r.at(9))) << dove;
        EXPECT_EQ(in.ck_Etna, r[2] != "90" || r[3] == "1") << dove;
        for (const char *nome : {"CkQibla", "ckAlt", "ckAsr"}) EXPECT_FALSE(b.s.stato(TrovaControllo(nome)).abilitato) << nome;
        EXPECT_EQ(v.flagTrasformato, r[2] == "90") << dove;
        EXPECT_EQ(v.flagVerticale, 1) << dove;
        EXPECT_EQ(v.lon, v.lonEq) << dove;
        EXPECT_NEAR(v.lonEq.numero(), -12.5 - v.diffLong.numero() * 180 / PI, 1e-9) << dove;
        EXPECT_EQ(b.utente.beep, Val(r.at(10)).v) << dove;
        EXPECT_TRUE(b.s.stato("cmdEqui").abilitato) << "the field's own handler heard of the wall";
        EXPECT_EQ(v.inc_o, Val(r[2])) << "the plane stays the original dial";
    }
}

TEST(Equivalente, AWallStays) {
    QuadroProvato b("txtLAT=45 txtDec=12 txtInc=0 txtLonG=-7 CkQibla ckAlt ckAsr");
    b.premi("cmdTrasforma");
    EXPECT_EQ(b.s.in.txtDec + " " + b.s.in.txtLonG, "12 -7");
    EXPECT_EQ(b.s.v.lon, -7);
    EXPECT_EQ(b.s.v.flagVerticale, 1);
    EXPECT_EQ(b.s.in.ck_Etna + b.s.v.flagTrasformato + b.utente.beep, 0);
    for (const std::string_view nome : {"CkQibla", "ckAlt", "ckAsr"}) {
        EXPECT_EQ(b.s.valore(TrovaControllo(nome)), 0) << nome;
        EXPECT_EQ(b.spunta(nome), app::Esito::Disabilitato) << nome;
    }
}

// After the transformation the analemma follows the equivalent longitude, and a second press does nothing more.
TEST(Equivalente, BehindTheTransformation) {
    QuadroProvato b("txtLAT=45 txtDec=-20 txtInc=25.2 txtLonG=-12.5 txtX0=-1 txtX1=1 txtY0=1 txtY1=-1 ck_Lemniscate");
    b.esegui();
    const auto corde = b.linee("Analemma");  // the plane's own, by projection
    ASSERT_GT(corde.size(), 1000U);
    b.premi("cmdTrasforma");
    const std::string lon = b.s.in.txtLonG;
    EXPECT_NEAR(Val(lon).v, -15 - b.s.v.diffLong.numero() * 180 / PI, 1e-9);
    b.analitica();
    EXPECT_EQ(b.s.v.lon, b.s.v.lonEq);
    EXPECT_EQ(b.s.v.corrLong, (15 + b.s.v.lonEq) * PI / 180);
    int visti = 0;
    for (const RecPunto &q : b.punti(12)) {
        if (!(std::fabs(q.X) < 0.9 && std::fabs(q.Y) < 0.9)) continue;
        EXPECT_LT(prova::DaCorde(q.X, q.Y, corde), 2e-5) << q.X << " " << q.Y;
        ++visti;
    }
    EXPECT_GT(visti, 150);
    b.premi("cmdTrasforma");
    EXPECT_EQ(b.s.in.txtLonG, lon);
    EXPECT_EQ(b.s.v.lon, Val(lon)) << "a wall's equivalent longitude is its own";
}

}  // namespace
}  // namespace ombrelia
