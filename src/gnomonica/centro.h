// The dial's centre, where the polar style meets the plane: the forms in which it is worked out, which agree to rounding and not
// to the bit. Origin at the foot of the ortostilo, x to the right, y upward.
#pragma once

#include "gnomonica/stilo.h"

namespace ombrelia {

// In the unit of gn, unless said.
struct PostoCentro {
    Valore x, y;
};

// Of the plane, by the sine of the style's elevation: data report, equivalent dial. Given: the plane, polo its senStilo. Gives:
// see PostoCentro. Source: the polar axis through the tip, cut by the plane (Rohr, Sundials). Faults: none where the style lies
// in the plane.
inline PostoCentro CentroDelPiano(const Piano &p, Valore polo) {
    return {(p.gn / polo) * p.cphi * p.sg, (-p.gn / polo) * p.senZenit()};
}

// The same with the complement of the inclination: caption of the direct engine. Given, gives, source, faults: as above.
inline PostoCentro CentroConComplemento(const Piano &p, Valore polo) {
    return {(p.gn / polo) * p.cphi * p.sg, (-p.gn / polo) * p.ordinataCentro()};
}
// And scaled: figures of the direct engine. Given: the plane. Gives: metres. Source, faults: as above.
inline PostoCentro CentroScalato(const Piano &p) {
    const Valore polo = p.senStilo();
    return {p.gn * p.sg * p.cphi / polo * p.unita, p.gn * -p.ordinataCentro() / polo * p.unita};
}
// Of a wall: lines of the vertical engine. Given: the plane. Gives: metres. Source: as above, i = 0. Faults: none where the style
// lies in the wall.
inline PostoCentro CentroMuro(const Piano &p) {
    const Valore c = -p.cphi * p.cg;
    return {p.unita * p.sg * p.cphi * p.gn / c, p.unita * p.sphi * -p.gn / c};
}
// The same on the line of the hour of noon: triangle of the vertical engine. Given: the plane. Gives: metres, for a northern
// wall; a southern one has both signs turned. Source: as above. Faults: no value for a wall that looks due east or west.
inline PostoCentro CentroDaMezzogiorno(const Piano &p, Valore segno) {
    return {segno * p.unita * p.tg * -p.gn, segno * p.unita * p.tphi * p.gn / p.cg};
}

// By substyle and style: hours' report. Given: ortostilo, substyle's angle from the vertical, style's elevation, radians. Gives,
// source: as above. Faults: as above.
inline PostoCentro CentroDaStilo(Valore gn, Valore sigma, Valore epsilon) {
    return {-gn * sin(sigma) / tan(epsilon), gn * cos(sigma) / tan(epsilon)};
}
// The same, both signs turned, by the substyle as the vertical engine counts it: its caption. Given, gives, source, faults: as
// above.
inline PostoCentro CentroDaStiloIntero(Valore gn, Valore sigma, Valore epsilon) {
    const Valore te = tan(epsilon);
    return {sin(sigma) * gn / te, cos(sigma) * -gn / te};
}

// By its distance CG from the foot, along the substyle: analytic engine, hours' report of walls that look east or west. Given:
// CG, substyle's angle, radians. Gives: in the unit of CG. Source: elementary geometry. Faults: none.
inline PostoCentro CentroDaSustilare(Valore CG, Valore sigma) { return {-CG * sin(sigma), CG * cos(sigma)}; }

}  // namespace ombrelia
