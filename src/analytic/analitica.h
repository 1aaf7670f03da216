// The analytic engine: a wall's dial as straight lines and conics. Origin at the foot of the ortostilo, x to the right, y
// upward; what is drawn is (x, -y). Its formulas hold no inclination.
#pragma once

#include "sessione/sessione.h"

namespace ombrelia::analytic {

// Draws the whole dial onto what is there. Refuses, with a message, southern latitudes and loops too long.
void EseguiGraficaAnalitica(Sessione &s);

// Reads the fields; leaves substyle angle, style elevation and hour angle of the substyle, radians. The last is known
// but for half a turn. Resets gn and y0 to the fields.
void CalcolaAngoliAnalitici(Sessione &s);
// Centre of the dial in the unit of gn, and the vertical through it; at |dec| = 90 the centre stays what it was.
void CalcolaCentroAnalitico(Sessione &s);

// One figure each. gn and unita are taken as they stand; only the hour lines read the fields, and leave gn scaled.
void TracciaOreAstronomiche(Sessione &s);
void TracciaLineaDiurnaScelta(Sessione &s);  // of deltaOpz; leaves in y0 the distance from foot to equinoctial
void TracciaLineeDiurneAnalitiche(Sessione &s);
void TracciaSustilareAnalitica(Sessione &s);
void TracciaEquinozialeAnalitica(Sessione &s);
void TracciaTriangoloAnalitico(Sessione &s);
void CalcolaSolstiziOrizzonte(Sessione &s);  // meeting points of solstices and horizon, as text
void TracciaItalicheAnalitiche(Sessione &s);
void TracciaBabilonicheAnalitiche(Sessione &s);
void TracciaLemniscataAnalitica(Sessione &s);

// Points and lines of this engine have no layer, but for the hour lines.
inline constexpr IdNome SENZA_STRATO = 0;

}  // namespace ombrelia::analytic
