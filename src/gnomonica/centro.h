// The dial's centre, where the polar style meets the plane: the forms in which it is worked out, which agree to rounding and not
// to the bit. Origin at the foot of the ortostilo, x to the right, y upward.
#pragma once

#include "gnomonica/stilo.h"

namespace ombrelia {

// In the unit of gn.
struct PostoCentro {
    Valore x, y;
};

// Of the plane, by the sine of the style's elevation: data report, equivalent dial. Given: the plane, polo its senStilo. Gives:
// see PostoCentro. Source: the polar axis through the tip, cut by the plane (Rohr, Sundials). Faults: none where the style lies
// in the plane.
inline PostoCentro CentroDelPiano(const Piano &p, Valore polo) {
    return {(p.gn / polo) * p.cphi * p.sg, (-p.gn / polo) * p.senZenit()};
}

// By substyle and style: hours' report. Given: ortostilo, substyle's angle from the vertical, style's elevation, radians. Gives,
// source: as above. Faults: as above.
inline PostoCentro CentroDaStilo(Valore gn, Valore sigma, Valore epsilon) {
    return {-gn * sin(sigma) / tan(epsilon), gn * cos(sigma) / tan(epsilon)};
}

// By its distance CG from the foot, along the substyle: hours' report of walls that look east or west. Given: CG, substyle's
// angle, radians. Gives: in the unit of CG. Source: elementary geometry. Faults: none.
inline PostoCentro CentroDaSustilare(Valore CG, Valore sigma) { return {-CG * sin(sigma), CG * cos(sigma)}; }

}  // namespace ombrelia
