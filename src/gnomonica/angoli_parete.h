// The fundamental angles of a wall, for analytic geometry.
#pragma once

#include "gnomonica/stilo.h"
#include "sessione/sessione.h"

namespace ombrelia {

// The angles that a wall's conics are drawn by. Given: the fields as read, which become the shared variables (gn and y0
// as typed). Gives: leaves substyle angle, style elevation and hour angle of the substyle, radians; the last is known but for
// half a turn. Source: Rohr, Sundials (declining walls); departure: at the equator the hour angle has the sign that the run
// before left. Faults: an angle without a value keeps that of the run before.
void CalcolaAngoliAnalitici(Sessione &s, const Lettura &letto);

// The same substyle and elevation, this by the squares of its factors, and the sign of the declination: as the analemma of the
// direct engine and the solstices of the analytic one leave them, radians. Given: the plane, and lat, dec of
// the variables, degrees. Source and
// faults: as above.
void LasciaStiloParete(Variabili &v, const Piano &p);

}  // namespace ombrelia
