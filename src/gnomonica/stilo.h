// The polar style over its plane: elevation, substyle, the dial's centre, the hour of the substyle. Angles in radians,
// the plane's declination g positive to the West, its inclination i from the vertical, latitude phi positive to the North.
//
// The same quantity stands here in several forms where engines wrote it in an order of operations of their own: the
// values agree to rounding, the bits do not, and a dial once drawn is drawn again to the bit. Each names who uses it.
// What divides by 0 or takes the root of a negative has no value.
#pragma once

#include "core/angoli.h"
#include "core/variabili.h"

namespace ombrelia {

// 1 for a plane that declines to the West or not at all, else -1; decGradi is the declination as typed, degrees.
inline Valore SegnoDeclinazione(Valore dec, Valore decR) { return dec == 0 ? Valore(1) : Sgn(decR); }
// Sign of a latitude, 1 on the equator.
inline Valore SegnoLatitudine(Valore lat) { return lat == 0 ? Valore(1) : Sgn(lat); }

// A plane as sines and cosines, computed once.
//
// What for: everything below that depends on the plane alone. Given phi, g, i (radians), gn (ortostilo as typed) and
// unita (metres in its unit). Frame: origin at the foot of the ortostilo, x to the right, y upward. Source: the spherical
// triangle of pole, zenith and plane's normal (Rohr, Sundials). Departure: the program's ten digits of PI.
struct Piano {
    Piano(Valore phi_, Valore g_, Valore i_, Valore gn_, Valore unita_)
        : phi(phi_),
          g(g_),
          i(i_),
          gn(gn_),
          unita(unita_),
          sphi(sin(phi)),
          cphi(cos(phi)),
          tphi(tan(phi)),
          sg(sin(g)),
          cg(cos(g)),
          si(sin(i)),
          ci(cos(i)) {}
    // The plane of the shared variables, as they stand.
    explicit Piano(const Variabili &v) : Piano(v.latR, v.decR, v.incR, v.gn, v.unita) {}

    // Sine of the style's elevation over the plane, positive where the upper end of the polar axis is behind it.
    [[nodiscard]] Valore senStilo() const { return sphi * si - cphi * ci * cg; }
    // What the tangent of the substyle's angle divides by; its sign tells the half of the plane.
    [[nodiscard]] Valore divisoreSustilare() const { return tphi * ci + cg * si; }
    // Tangent of the substyle's angle from the line of greatest slope.
    [[nodiscard]] Valore tanSustilare() const { return sg / divisoreSustilare(); }
    // What the tangent of the substyle's hour angle divides by, and that hour angle; 90 degrees on a wall at the equator.
    [[nodiscard]] Valore divisoreOra() const { return sphi * cg + cphi * tan(i); }
    [[nodiscard]] Valore oraSustilare() const { return phi == 0 && i == 0 ? Valore(PI / 2.0) : Arco2(sg, divisoreOra()); }
    // Sine of the latitude of the equivalent wall, whose zenith lies in the plane.
    [[nodiscard]] Valore senZenit() const { return sphi * ci + cphi * si * cg; }
    // Ordinate of the dial's centre over gn and senStilo, with the other sign.
    [[nodiscard]] Valore ordinataCentro() const {
        const Valore z = (PI / 2.0) - i;
        return sphi * sin(z) + cphi * cos(z) * cg;
    }

    Valore phi, g, i, gn, unita;
    Valore sphi, cphi, tphi, sg, cg, si, ci;
};

// An angle known but for half a turn, on that side of the meridian on which guida lies.
inline Valore DalLatoDi(Valore guida, Valore angolo) {
    if (Sgn(sin(angolo)) == Sgn(sin(guida))) return angolo;
    return angolo > 0 ? angolo - PI : angolo + PI;
}

// The substyle's angle, known but for half a turn, on the side of the plane on which the centre (x, y) does not lie; within half
// a turn, radians.
inline Valore SustilareDalCentro(Valore sigma, Valore x, Valore y) {
    Reale s = sigma;
    if (x <= 0 && y < 0) s = s + PI;
    else if (x > 0 && y < 0) s = s - PI;
    return Abs(s) > PI ? -Abs(2 * PI - Abs(s)) * Sgn(s) : Valore(s);
}

// --- walls (i = 0) --------------------------------------------------------------------------------------------------

// Elevation of the style over a wall; negative over one that looks away from the equator. Faults at +-1, so on a wall
// that looks due south at the equator.
inline Valore StiloMuro(Valore phi, Valore g) { return ArcSin(cos(phi) * cos(g)); }
// The same by squares of the factors: analemma of the direct engine, solstices of the analytic one, reports; and its tangent.
inline Valore TanStiloMuro(Valore phi, Valore g) {
    const Valore cl = cos(phi), cd = cos(g);
    return cl * cd / Sqr(1.0 - cl * cl * (cd * cd));
}
inline Valore StiloMuroQuadrati(Valore phi, Valore g) { return Atn(TanStiloMuro(phi, g)); }
// On the equator.
inline Valore StiloMuroEquatore(Valore g) { return PI / 2.0 - Abs(g); }

// Angle of the substyle from the vertical in the right half circle of the arc tangent; faults at phi = 0.
inline Valore SustilareMuro(Valore phi, Valore g) { return Atn(sin(g) / tan(phi)); }
// The same in 0..CERCHIO, as the vertical engine counts it.
inline Valore SustilareMuroIntera(Valore phi, Valore g) { return phi == 0 ? Valore(PI / 2) : Arco2(sin(g), tan(phi)); }
// Hour angle of a wall's substyle, 0..CERCHIO.
inline Valore OraSustilareMuro(Valore phi, Valore g) { return phi == 0 ? Valore(PI / 2) : Arco2(tan(g), sin(phi)); }

// Distance from the foot of the ortostilo to the equinoctial along the substyle, in the unit of gn.
inline Valore DistanzaEquinoziale(Valore gn, Valore altStilo) { return gn * tan(altStilo); }

}  // namespace ombrelia
