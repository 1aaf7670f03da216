// The fundamental angles of a wall, for analytic geometry.
#pragma once

#include "sessione/sessione.h"

namespace ombrelia {

// Reads the fields; leaves substyle angle, style elevation and hour angle of the substyle, radians. The last is known
// but for half a turn. Resets gn and y0 to the fields.
void CalcolaAngoliAnalitici(Sessione &s);

}  // namespace ombrelia
