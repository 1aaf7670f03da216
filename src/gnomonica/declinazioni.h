// The declinations of the Sun that have a name. Degrees, North positive.
#pragma once

#include "gnomonica/stilo.h"

namespace ombrelia {

inline constexpr double OBLIQUITA = 23.445;
// Entry of the Sun into the other signs, as the lines between solstices and equinoxes take it.
inline constexpr double DELTA_SEGNI = 20, DELTA_SEGNI_VICINI = 11.5;
// Ends of some sweeps and lines. Each keeps its own: with another a dial drawn anew would have points more or less.
inline constexpr double OBLIQUITA_2345 = 23.45, OBLIQUITA_2344 = 23.44;

// Noon altitude of a solstice, as captions give it. Given: the plane, of a northern latitude; summer 1 or winter -1. Gives:
// degrees. Source: sine formula of the altitude (Smart, Textbook on Spherical Astronomy, ch. II) at hour angle 0; departure: two
// near-equal declinations in one formula, meant. Faults: no value when the Sun stands overhead.
inline Valore AltezzaSolstizio(const Piano &p, int verso) {
    const double primo = verso * OBLIQUITA, secondo = verso * OBLIQUITA_2345;
    return ArcSin(p.sphi * sin(PI * primo / 180.0) + p.cphi * cos(PI * secondo / 180.0)) * 180 / PI;
}

}  // namespace ombrelia
