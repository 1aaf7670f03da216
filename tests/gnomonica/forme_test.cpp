// The forms in which one quantity of a dial stands, held against each other and against what geometry says of them.
#include <gtest/gtest.h>

#include "gnomonica/centro.h"
#include "gnomonica/conica.h"
#include "gnomonica/equivalente.h"
#include "gnomonica/proiezione.h"

namespace ombrelia {
namespace {

// Calls f(plane, what it is) for planes of both hemispheres, all sides and slopes that none of the formulas leaves out.
template <class F>
void perPiani(F f) {
    for (const double lat : {-52.0, 12.5, 44.6, 67.0})
        for (const double dec : {-151.0, -80.0, -33.3, 7.0, 61.5, 118.0})
            for (const double inc : {-25.0, 0.0, 11.0, 62.0}) {
                SCOPED_TRACE(testing::Message() << "latitude " << lat << ", declination " << dec << ", inclination " << inc);
                f(Piano(Radianti(lat), Radianti(dec), Radianti(inc), 0.3, 1), dec);
            }
}

void vicini(const PostoCentro &a, const PostoCentro &b, double quanto) {
    EXPECT_NEAR(a.x.v, b.x.v, quanto);
    EXPECT_NEAR(a.y.v, b.y.v, quanto);
}

// A Sun at the pole throws its shadow along the polar axis, so onto the centre, at whatever hour. One 1e-9 short of the pole is
// that off at the tip, and r²/gn times as much on the plane, r being the length of the ray.
TEST(Forms, TheCentreIsThePolesShadow) {
    perPiani([](const Piano &p, double dec) {
        const PostoCentro c = CentroDelPiano(p, p.senStilo());
        Reale x, y;
        Proiezione::delPiano(p.phi, p.g, p.i, p.gn, 1)(SenCos(Valore(0.4)), 1e9, x, y);
        vicini(c, {x, y}, 2e-9 * ((c.x * c.x + c.y * c.y + p.gn * p.gn) / p.gn).v);
        if (!(p.i == 0)) return;
        const Valore stilo = StiloMuroQuadrati(p.phi, p.g), sustilare = SustilareMuro(p.phi, p.g);
        // The arc tangents lie in the right half circle: a wall that looks away from the equator, or one in the South, has its
        // centre on the other side.
        const double lato = (std::abs(dec) > 90 ? -1 : 1) * (p.phi < 0 ? -1 : 1) * (stilo < 0 ? -1 : 1);
        const PostoCentro m = CentroDaStilo(p.gn, sustilare, stilo);
        vicini({lato * m.x, lato * m.y}, c, 1e-9);
        vicini(CentroDaSustilare(p.gn / tan(stilo), sustilare), m, 1e-12);
    });
}

// The equivalent wall is the same plane elsewhere: the polar axis stands as high over it, and the Sun that crosses the substyle
// is the same one, half turns aside. The transformation counts a wall of southern latitude by its mirror image.
TEST(Forms, TheEquivalentWallIsTheSamePlane) {
    perPiani([](const Piano &p, double dec) {
        if (p.phi < 0) return;  // the engines have the latitude without its sign
        const PareteEquivalente ore = EquivalenteDelleOre(p, dec, Sgn(p.g));
        EXPECT_NEAR((-cos(ore.f1) * cos(ore.d1)).v, p.senStilo().v, 1e-9);
        EXPECT_NEAR(sin((OraSustilareMuroMezza(ore.f1, ore.d1) - ore.diffLong) - p.oraSustilareMezza()).v, 0, 1e-7);
        if (p.i == 0) return;  // a wall is not transformed
        const PareteEquivalente e = EquivalenteDi(p, dec);
        EXPECT_EQ(e.f1.numero(), ore.f1.numero());
        EXPECT_EQ(e.diffLong.v, ore.diffLong.v);
        EXPECT_NEAR((e.f1 < 0 ? PI - e.d1 : e.d1).v, Abs(ore.d1).v, 1e-8);
    });
}

TEST(Forms, Quadratic) {
    const Quadratica due{1, -5, 6};
    EXPECT_EQ(due.discriminante().v, 1);
    EXPECT_EQ(due.radici().meno.v, 2);
    EXPECT_EQ(due.radici().piu.v, 3);
    EXPECT_FALSE((Quadratica{1, 0, 1}.radici().reali));
    const Radici retta = RisolviQuadratica(0, 2, -4);  // a straight line: its root is not told
    EXPECT_TRUE(retta.reali);
    EXPECT_FALSE(retta.meno.esiste());
    EXPECT_FALSE(retta.piu.esiste());
}

// The reports' ordinates at x = 0 are those of the conic there.
TEST(Forms, OrdinatesOnTheFoot) {
    perPiani([](const Piano &p, double) {
        if (!(p.i == 0)) return;
        const Valore stilo = StiloMuroQuadrati(p.phi, p.g), sustilare = SustilareMuro(p.phi, p.g);
        const Valore y0 = DistanzaEquinoziale(p.gn, stilo);
        Conica k;
        k.calcola(QuadratoCotangente(20), stilo, p.gn);
        const Radici qui = OrdinateSulPiede(k, sustilare, y0).radici(), la = OrdinateConica(k, sustilare, y0)(0);
        ASSERT_EQ(qui.reali, la.reali);
        if (!qui.reali) return;
        EXPECT_NEAR(qui.meno.v, la.meno.v, 1e-9);
        EXPECT_NEAR(qui.piu.v, la.piu.v, 1e-9);
    });
}

}  // namespace
}  // namespace ombrelia
