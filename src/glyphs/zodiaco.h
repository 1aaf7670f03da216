// The zodiac on a wall: twelve signs, each beside the place where the Sun enters it on the figure of mean noon.
#pragma once

#include "sessione/sessione.h"

namespace ombrelia {

enum class Segno { Capricorno, Sagittario, Acquario, Scorpione, Pesci, Bilancia, Ariete, Toro, Vergine, Gemelli, Leone, Cancro };
inline constexpr int QUANTI_SEGNI = 12;

// One sign centred on (x0, y0), metres on the plane, y upward; altezza high, metres, and about as wide.
// gradi is the direction of its upright; 90, the only value in use, sets it upright. A size of 0 draws points. What will be
// seen in a mirror is turned about its own middle.
void DisegnaSegno(Sessione &s, Reale altezza, Segno segno, Valore x0, Valore y0, Valore gradi);

// Reads the fields again, sets the twelve signs on a vertical plane, whatever plane the caller draws, and ends with
// ChiudiZodiaco. Needs unita, segnoLat and segnoLat2 from a run; leaves lon, lonPiu15, corrLong and deltaOpz behind.
// Where a formula faults a sign keeps the azimuth, altitude or coordinate of the one before.
void DisegnaZodiaco(Sessione &s);

// Dots the stretches of day line between the two branches of the figure. Leaves the last stretch's declination,
// degrees, in deltaOpz.
void ChiudiZodiaco(Sessione &s);

}  // namespace ombrelia
