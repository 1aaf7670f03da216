// Points of equal altitude of the Sun, which two engines draw.
#pragma once

#include "gnomonica/caratteristiche.h"
#include "gnomonica/corsa.h"

namespace ombrelia {

// The altitudes: 10 degrees up to the highest Sun of the latitude as typed.
void LineeAlmucantarat(const Lettura &letto, LineeAttese &linee);

// Dots of the curves on which the Sun stands at whole tens of degrees, morning and afternoon, over a year swept by ten times
// txtDensity. Given: the run, whose plane is made anew, and the plane's declination in decR. Gives: points of the frame this side
// of the horizon, y upward; leaves latR signed, gn, incR, decR 0 on a level plane, and the last declination in deltaOpz.
// Source: sin h = sin phi sin d + cos phi cos d cos t (Smart, ch. II); departure: the horizon's bound is not scaled to metres.
// Faults: where the arc cosine has no value the last hour angle stands.
void TracciaAlmucantarat(CorsaBase &c, const LineeAttese &linee);

}  // namespace ombrelia
