// The declinations of the Sun that have a name. Degrees, North positive.
#pragma once

namespace ombrelia {

inline constexpr double OBLIQUITA = 23.445;
// Entry of the Sun into the other signs, as the lines between solstices and equinoxes take it.
inline constexpr double DELTA_SEGNI = 20, DELTA_SEGNI_VICINI = 11.5;
// Some sweeps and lines were written with other ends: what was ever drawn ends there, so each keeps its own.
inline constexpr double OBLIQUITA_2345 = 23.45, OBLIQUITA_2344 = 23.44;

}  // namespace ombrelia
