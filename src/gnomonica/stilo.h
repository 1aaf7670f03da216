// The polar style over its plane: elevation, substyle, the dial's centre, the hour of the substyle. Angles in radians,
// the plane's declination g positive to the West, its inclination i from the vertical, latitude phi positive to the North.
//
// The same quantity stands here in several forms, which differ in the order of their operations: the values agree to
// rounding, the bits do not, and a dial drawn with one is drawn anew to the bit. Each names who uses it.
// What divides by 0 or takes the root of a negative has no value.
#pragma once

#include "core/angoli.h"
#include "core/variabili.h"

namespace ombrelia {

// 1 for a plane that declines to the West or not at all, else -1. Given: dec as typed, which is tested against 0; decR, whose
// sign is taken. Gives: 1, -1, or 0 for a decR of 0 beside another dec. Source: by definition. Faults: none.
inline Valore SegnoDeclinazione(Valore dec, Valore decR) { return dec == 0 ? Valore(1) : Sgn(decR); }
// Sign of a latitude, 1 on the equator. Given: in any unit. Gives: 1 or -1. Source, faults: as above.
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

    // All: given the plane; gives sines, tangents, radians; source and departure as above; faults: a quotient by 0 has no value.
    // Sine of the style's elevation over the plane, positive where the upper end of the polar axis is behind it.
    [[nodiscard]] Valore senStilo() const { return sphi * si - cphi * ci * cg; }
    // What the tangent of the substyle's angle divides by; its sign tells the half of the plane.
    [[nodiscard]] Valore divisoreSustilare() const { return tphi * ci + cg * si; }
    // Tangent of the substyle's angle from the line of greatest slope.
    [[nodiscard]] Valore tanSustilare() const { return sg / divisoreSustilare(); }
    // What the tangent of the substyle's hour angle divides by, and that hour angle; 90 degrees on a wall at the equator.
    [[nodiscard]] Valore divisoreOra() const { return sphi * cg + cphi * tan(i); }
    [[nodiscard]] Valore oraSustilare() const { return phi == 0 && i == 0 ? Valore(PI / 2.0) : Arco2(sg, divisoreOra()); }
    // The same, known but for half a turn: reports.
    [[nodiscard]] Valore oraSustilareMezza() const { return Atn(sg / divisoreOra()); }
    // Sine of the substyle's angle, by the style's elevation: hours' report.
    [[nodiscard]] Valore senSustilare(Valore epsilon) const { return sg * cphi / cos(epsilon); }
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

// An angle known but for half a turn, on that side of the meridian on which guida lies. Given, gives: radians. Source: elementary
// geometry. Faults: none.
inline Valore DalLatoDi(Valore guida, Valore angolo) {
    if (Sgn(sin(angolo)) == Sgn(sin(guida))) return angolo;
    return angolo > 0 ? angolo - PI : angolo + PI;
}

// The substyle's angle, known but for half a turn, on the side of the plane on which the centre (x, y) does not lie. Given,
// gives: radians, within half a turn. Source: elementary geometry; departure: a centre above the foot is left alone. Faults:
// none.
inline Valore SustilareDalCentro(Valore sigma, Valore x, Valore y) {
    Reale s = sigma;
    if (x <= 0 && y < 0) s = s + PI;
    else if (x > 0 && y < 0) s = s - PI;
    return Abs(s) > PI ? -Abs(2 * PI - Abs(s)) * Sgn(s) : Valore(s);
}

// --- walls (i = 0) --------------------------------------------------------------------------------------------------

// Elevation of the style over a wall. Given: latitude, declination, radians. Gives: radians, negative over a wall that looks away
// from the equator. Source: sin e = cos phi cos g (Rohr, Sundials; Waugh, Sundials, declining dials). Faults: no value at +-1, so
// on a wall that looks due south at the equator.
inline Valore StiloMuro(Valore phi, Valore g) { return ArcSin(cos(phi) * cos(g)); }
// The same by squares of the factors: analemma of the direct engine, solstices of the analytic one, reports; and its tangent.
// Given, gives, source: as above. Faults: no value where the sine is 1.
inline Valore TanStiloMuro(Valore phi, Valore g) {
    const Valore cl = cos(phi), cd = cos(g);
    return cl * cd / Sqr(1.0 - cl * cl * (cd * cd));
}
inline Valore StiloMuroQuadrati(Valore phi, Valore g) { return Atn(TanStiloMuro(phi, g)); }
// On the equator. Given: declination, radians. Gives: radians. Source: as above, phi = 0. Faults: none.
inline Valore StiloMuroEquatore(Valore g) { return PI / 2.0 - Abs(g); }

// Angle of a wall's substyle. Given: latitude, declination, radians. Gives: radians from the vertical, in the right half circle
// of the arc tangent, with the sign of g / phi. Source: tan s = sin g / tan phi (Rohr; Waugh). Faults: no value at phi = 0.
inline Valore SustilareMuro(Valore phi, Valore g) { return Atn(sin(g) / tan(phi)); }
// The same, as the vertical engine counts it. Gives: 0..CERCHIO, a quarter on the equator. Source: as above. Faults: none else.
inline Valore SustilareMuroIntera(Valore phi, Valore g) { return phi == 0 ? Valore(PI / 2) : Arco2(sin(g), tan(phi)); }
// Hour angle of a wall's substyle. Given: as above. Gives: radians, 0..CERCHIO, a quarter on the equator. Source: tan t = tan g /
// sin phi (Rohr; Waugh, "difference of longitude"). Faults: none else.
inline Valore OraSustilareMuro(Valore phi, Valore g) { return phi == 0 ? Valore(PI / 2) : Arco2(tan(g), sin(phi)); }
// The same, known but for half a turn: hours' report. Given, source: as above. Gives: radians. Faults: no value at phi = 0.
inline Valore OraSustilareMuroMezza(Valore phi, Valore g) { return Atn(tan(g) / sin(phi)); }

// Sine of the hour angle of a plane's substyle. Given: declination, inclination and the style's elevation, radians. Gives: with
// the sign of the declination. Source: the right spherical triangle of zenith, pole and substyle. Faults: no value for a style
// square to the plane.
inline Valore SenOraSustilare(Valore g, Valore i, Valore stilo) { return sin(g) * cos(i) / cos(stilo); }

// Distance from the foot of the ortostilo to the equinoctial along the substyle. Given: ortostilo, style's elevation in radians.
// Gives: the unit of gn. Source: elementary geometry of the style's triangle. Faults: no value for an endless one.
inline Valore DistanzaEquinoziale(Valore gn, Valore altStilo) { return gn * tan(altStilo); }

}  // namespace ombrelia
