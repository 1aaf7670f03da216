// The bearing of the Qibla.
#pragma once

#include "gnomonica/stilo.h"

namespace ombrelia {

// Tangent of the azimuth of another place, counted from the meridian. Given: the plane, for its latitude; the place's latitude
// and its longitude less the site's, radians. Gives: a tangent, West positive. Source: the four-parts formula (Smart, Textbook on
// Spherical Astronomy, ch. I). Faults: no value where the place lies due east or west.
inline Valore TangenteQibla(const Piano &p, Valore lat, Valore diffLong) {
    return sin(diffLong) / (p.sphi * cos(diffLong) - p.cphi * tan(lat));
}

}  // namespace ombrelia
