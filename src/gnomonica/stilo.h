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
// The same where the declination in radians alone is asked: vertical engine, hours' report. Given, gives, source, faults: as
// above.
inline Valore SegnoDeclinazione(Valore decR) { return SegnoDeclinazione(decR, decR); }

// A plane as sines, cosines and tangents, computed once.
//
// What for: everything below that depends on the plane alone. Given phi, g, i (radians), gn (ortostilo as typed) and
// unita (metres in its unit). Frame: origin at the foot of the ortostilo, x to the right, y upward. Source: the spherical
// triangle of pole, zenith and plane's normal (Rohr, Sundials). Departure: the program's ten digits of PI.
struct Piano {
    Piano(Valore phi_, Valore g_, Valore i_, Valore gn_, Valore unita_) : Piano(phi_, g_, i_, (PI / 2.0) - i_, gn_, unita_) {}
    // The plane of the shared variables, as they stand, and whether it still is theirs.
    explicit Piano(const Variabili &v) : Piano(v.latR, v.decR, v.incR, v.gn, v.unita) {}
    [[nodiscard]] bool di(const Variabili &v) const {
        return v.latR == phi && v.decR == g && v.incR == i && v.gn == gn && v.unita == unita;
    }
    // A plane of which the complement z of the inclination was read.
    static Piano conComplemento(Valore phi, Valore g, Valore z, Valore gn, Valore unita) {
        return {phi, g, (PI / 2.0) - z, z, gn, unita};
    }

    // All: given the plane; gives sines, tangents, radians; source and departure as above; faults: a quotient by 0 has no value.
    // Sine of the style's elevation over the plane, positive where the upper end of the polar axis is behind it.
    [[nodiscard]] Valore senStilo() const { return sphi * si - cphi * ci * cg; }
    // What the tangent of the substyle's angle divides by; its sign tells the half of the plane.
    [[nodiscard]] Valore divisoreSustilare() const { return tphi * ci + cg * si; }
    // Tangent of the substyle's angle from the line of greatest slope.
    [[nodiscard]] Valore tanSustilare() const { return sg / divisoreSustilare(); }
    // What the tangent of the substyle's hour angle divides by, and that hour angle; 90 degrees on a wall at the equator.
    [[nodiscard]] Valore divisoreOra() const { return sphi * cg + cphi * ti; }
    [[nodiscard]] Valore oraSustilare() const { return phi == 0 && i == 0 ? Valore(PI / 2.0) : Arco2(sg, divisoreOra()); }
    // The same, known but for half a turn: reports.
    [[nodiscard]] Valore oraSustilareMezza() const { return Atn(sg / divisoreOra()); }
    // Sine of the substyle's angle, by the style's elevation: hours' report.
    [[nodiscard]] Valore senSustilare(Valore epsilon) const { return sg * cphi / cos(epsilon); }
    // Sine of the latitude of the equivalent wall, whose zenith lies in the plane.
    [[nodiscard]] Valore senZenit() const { return sphi * ci + cphi * si * cg; }
    // Ordinate of the dial's centre over gn and senStilo, with the other sign.
    [[nodiscard]] Valore ordinataCentro() const { return sphi * sz + cphi * cz * cg; }

    Valore phi, g, i, gn, unita;
    Valore sphi, cphi, tphi, sg, cg, tg, si, ci, ti;
    Valore sz, cz, tz;  // of the complement of i: of level planes and walls not quite ci and si

private:
    Piano(Valore phi_, Valore g_, Valore i_, Valore z, Valore gn_, Valore unita_)
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
          tg(tan(g)),
          si(sin(i)),
          ci(cos(i)),
          ti(tan(i)),
          sz(sin(z)),
          cz(cos(z)),
          tz(tan(z)) {}
};

// Style and substyle as sines, cosines and tangents, computed once. Given: the style's elevation over the plane and the
// substyle's angle from the vertical, radians. Source: by definition. Faults: none but overflow.
struct Stilo {
    Stilo(Valore epsilon_, Valore sigma_)
        : epsilon(epsilon_),
          sigma(sigma_),
          se(sin(epsilon)),
          ce(cos(epsilon)),
          te(tan(epsilon)),
          ss(sin(sigma)),
          cs(cos(sigma)),
          ts(tan(sigma)) {}
    // Those of the shared variables, as they stand, and whether they still are theirs.
    explicit Stilo(const Variabili &v) : Stilo(v.altStilo, v.angSustilare) {}
    [[nodiscard]] bool di(const Variabili &v) const { return v.altStilo == epsilon && v.angSustilare == sigma; }

    Valore epsilon, sigma;
    Valore se, ce, te, ss, cs, ts;
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

// All of a wall. Given: the wall as a plane, whose inclination is not looked at, or its latitude and declination, radians.
inline Piano Muro(Valore phi, Valore g) { return {phi, g, 0, 1, 1}; }

// Elevation of the style over a wall. Gives: radians, negative over a wall that looks away from the equator. Source: sin e = cos
// phi cos g (Rohr, Sundials; Waugh, Sundials, declining dials). Faults: no value at +-1, so on a wall that looks due south at the
// equator.
inline Valore SenStiloMuro(const Piano &p) { return p.cphi * p.cg; }
inline Valore StiloMuro(const Piano &p) { return ArcSin(SenStiloMuro(p)); }
// The same by squares of the factors: analemma of the direct engine, solstices of the analytic one, reports; and its tangent.
// Gives, source: as above. Faults: no value where the sine is 1.
inline Valore TanStiloMuro(const Piano &p) { return p.cphi * p.cg / Sqr(1.0 - p.cphi * p.cphi * (p.cg * p.cg)); }
inline Valore TanStiloMuro(Valore phi, Valore g) { return TanStiloMuro(Muro(phi, g)); }
inline Valore StiloMuroQuadrati(const Piano &p) { return Atn(TanStiloMuro(p)); }
inline Valore StiloMuroQuadrati(Valore phi, Valore g) { return StiloMuroQuadrati(Muro(phi, g)); }
// On the equator. Given: declination, radians. Gives: radians. Source: as above, phi = 0. Faults: none.
inline Valore StiloMuroEquatore(Valore g) { return PI / 2.0 - Abs(g); }

// Angle of a wall's substyle. Gives: radians from the vertical, in the right half circle of the arc tangent, with the sign of
// g / phi. Source: tan s = sin g / tan phi (Rohr; Waugh). Faults: no value at phi = 0.
inline Valore SustilareMuro(const Piano &p) { return Atn(p.sg / p.tphi); }
inline Valore SustilareMuro(Valore phi, Valore g) { return SustilareMuro(Muro(phi, g)); }
// The same, as the vertical engine counts it. Gives: 0..CERCHIO, a quarter on the equator. Source: as above. Faults: none else.
inline Valore SustilareMuroIntera(const Piano &p) { return p.phi == 0 ? Valore(PI / 2) : Arco2(p.sg, p.tphi); }
// Hour angle of a wall's substyle. Given: as above. Gives: radians, 0..CERCHIO, a quarter on the equator. Source: tan t = tan g /
// sin phi (Rohr; Waugh, "difference of longitude"). Faults: none else.
inline Valore OraSustilareMuro(const Piano &p) { return p.phi == 0 ? Valore(PI / 2) : Arco2(p.tg, p.sphi); }
// The same, known but for half a turn: hours' report. Given, source: as above. Gives: radians. Faults: no value at phi = 0.
inline Valore OraSustilareMuroMezza(Valore phi, Valore g) { return Atn(tan(g) / sin(phi)); }

// By the angles of substyle and style, known but for half a turn: vertical and analytic engine. Given: sigma, epsilon, radians.
// Gives: radians. Source: Napier's rule in the triangle above. Faults: no value for a style in the wall.
inline Valore OraDaSustilare(Valore sigma, Valore epsilon) { return Atn(tan(sigma) / sin(epsilon)); }

// Sine of the hour angle of a plane's substyle. Given: declination, inclination and the style's elevation, radians. Gives: with
// the sign of the declination. Source: the right spherical triangle of zenith, pole and substyle. Faults: no value for a style
// square to the plane.
inline Valore SenOraSustilare(Valore g, Valore i, Valore stilo) { return sin(g) * cos(i) / cos(stilo); }

// Ordinate of the horizon of a plane. Given: ortostilo, inclination in radians. Gives: the unit of gn, y upward. Source:
// elementary geometry. Faults: overflow alone.
inline Valore OrdinataOrizzonte(Valore gn, Valore i) { return gn * tan(i); }
// The same scaled and with a sign, 1 or -1: vertical engine. Given: besides unita. Gives: metres. Source, faults: as above.
inline Valore OrdinataOrizzonte(Valore segno, Valore unita, Valore i, Valore gn) { return segno * unita * tan(i) * gn; }

// Distance from the foot of the ortostilo to the equinoctial along the substyle. Given: ortostilo, style's elevation in radians.
// Gives: the unit of gn. Source: elementary geometry of the style's triangle. Faults: no value for an endless one.
inline Valore DistanzaEquinoziale(Valore gn, Valore altStilo) { return gn * tan(altStilo); }
inline Valore DistanzaEquinoziale(Valore gn, const Stilo &stilo) { return gn * stilo.te; }

}  // namespace ombrelia
