// Style, substyle and centre in all their forms: held against the projection, which knows none of them.
#include "gnomonica/stilo.h"

#include <gtest/gtest.h>

#include <random>

#include "gnomonica/centro.h"
#include "gnomonica/proiezione.h"

namespace ombrelia {
namespace {

struct PianiACaso {
    std::mt19937_64 g{20261123};
    double tra(double a, double b) { return std::uniform_real_distribution<double>(a, b)(g); }
    // Neither level nor with a style in it; walls of the North that look to the equator.
    Piano piano() { return {tra(0.2, 1.2), tra(-1.3, 1.3), tra(-0.9, 0.1), 0.2, 0.001}; }
    Piano muro() { return {tra(0.2, 1.2), tra(-1.3, 1.3), 0, 0.2, 0.001}; }
};

Piano murale(double phi, double g) { return {phi, g, 0, 1, 1}; }

// The shadow of a Sun in the pole: the dial's centre, in the unit of gn.
PostoCentro ombraDelPolo(const Piano &p) {
    Reale x, y;
    Proiezione(Piano(p.phi, p.g, p.i, p.gn, 1))(SenCos(0), 1e14, x, y);
    return {x, y};
}

void uguali(const PostoCentro &c, const PostoCentro &atteso, double scala, const char *forma) {
    // A sixteenth digit of the quotient, and the ten digits of PI where a complement is taken of the inclination.
    const double entro = 3e-9 * (std::hypot(atteso.x.v, atteso.y.v) + 1);
    EXPECT_NEAR(c.x.v, atteso.x.v * scala, entro * scala) << forma;
    EXPECT_NEAR(c.y.v, atteso.y.v * scala, entro * scala) << forma;
}

TEST(Stilo, EveryFormOfTheCentreIsTheShadowOfThePole) {
    PianiACaso caso;
    int piani = 0;
    for (int k = 0; k < 400; ++k) {
        const Piano p = caso.piano();
        if (std::fabs(p.senStilo().v) < 0.05) continue;
        ++piani;
        const PostoCentro polo = ombraDelPolo(p);
        uguali(CentroConComplemento(p, p.senStilo()), polo, 1, "by the complement");
        uguali(CentroScalato(p), polo, 0.001, "scaled");

        const Piano m = caso.muro();
        const PostoCentro delMuro = ombraDelPolo(m);
        const Valore sigma = SustilareMuro(m), epsilon = StiloMuro(m);
        uguali(CentroMuro(m), delMuro, 0.001, "of a wall");
        uguali(CentroDaMezzogiorno(m, 1), delMuro, 0.001, "by the noon line");
        uguali(CentroDaStilo(m.gn, sigma, epsilon), delMuro, 1, "by the style");
        uguali(CentroDaSustilare(m.gn / tan(epsilon), sigma), delMuro, 1, "by the substyle");
        uguali(CentroDaStiloIntero(m.gn, SustilareMuroIntera(m), -epsilon), delMuro, 1, "of the wall's caption");
    }
    EXPECT_GT(piani, 300);
}

TEST(Stilo, TheHourOfTheSubstyleFallsOnTheLineThroughFootAndCentre) {
    PianiACaso caso;
    for (int k = 0; k < 400; ++k) {
        const Piano p = k % 2 ? caso.muro() : caso.piano();
        if (std::fabs(p.senStilo().v) < 0.05) continue;
        const PostoCentro polo = ombraDelPolo(p);
        const double lontano = std::hypot(polo.x.v, polo.y.v);
        Reale x, y;
        Proiezione(Piano(p.phi, p.g, p.i, p.gn, 1))(SenCos(p.oraSustilare()), 0.3, x, y);
        const double fuori = (x.numero() * polo.y.v - y.numero() * polo.x.v) / lontano;
        EXPECT_NEAR(fuori, 0, 3e-9 * (lontano + std::hypot(x.numero(), y.numero()) + 1));
        // The other forms, which are known but for half a turn, give the same line.
        const double t = std::tan(p.oraSustilare().v);
        EXPECT_NEAR(std::tan(p.oraSustilareMezza().v), t, 1e-7 * (1 + t * t));
        if (k % 2 == 0) continue;
        EXPECT_NEAR(std::tan(OraSustilareMuro(p).v), t, 1e-7 * (1 + t * t));
        EXPECT_NEAR(std::tan(OraSustilareMuroMezza(p.phi, p.g).v), t, 1e-7 * (1 + t * t));
        EXPECT_NEAR(std::tan(OraDaSustilare(SustilareMuro(p), StiloMuro(p)).v), t, 1e-7 * (1 + t * t));
        EXPECT_NEAR(SenOraSustilare(p.g, 0, StiloMuro(p)).v, std::sin(std::atan(t)), 1e-9);
        EXPECT_NEAR(StiloMuroQuadrati(p).v, StiloMuro(p).v, 1e-9);
    }
}

TEST(Stilo, WhatDoesNotExistHasNoValue) {
    EXPECT_FALSE(StiloMuro(murale(0, 0)).esiste());  // square to the axis
    EXPECT_FALSE(SustilareMuro(0, 0.3).esiste());    // on the equator
    EXPECT_TRUE(SustilareMuroIntera(murale(0, 0.3)).esiste());
    EXPECT_FALSE(CentroDaMezzogiorno(murale(0.7, 0), Valore::nessuno()).x.esiste());
}

}  // namespace
}  // namespace ombrelia
