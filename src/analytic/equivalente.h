// A reclining, overhanging or horizontal plane made the vertical dial that has the same substyle angle: the same figure
// on a wall of another latitude, declination and longitude.
#pragma once

#include "sessione/sessione.h"

namespace ombrelia::analytic {

// Reads the plane from the fields and gives the equivalent wall back into them (txtLAT, txtDec, txtInc, txtOriz, txtLonG,
// ck_Etna); leaves lonEq, diffLong (radians), incR2, style elevation and hour angle of the original's substyle. Degrees
// in fields, cut to five decimals but for the longitude. A wall is left alone. What faults keeps its value.
void TrasformaInVerticaleEquivalente(Sessione &s);

}  // namespace ombrelia::analytic
