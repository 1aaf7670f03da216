// The direct engine: a dial on a plane of any declination and inclination, every point by central projection of the
// Sun's direction. Origin at the foot of the ortostilo, x to the right, y upward; what is drawn is (x, -y).
#pragma once

#include "sessione/sessione.h"

namespace ombrelia::direct {

// Draws the whole dial onto what is there. Refuses, with a message, a transformed horizontal dial and loops too long;
// ends in silence at a southern latitude, which cmdRun makes positive first.
void I_Graf_diretta(Sessione &s);

// One line or figure each; they read the fields they need again and add to the sheet.
void TracciaRetteOrarie(Sessione &s);
void TracciaLineeDiurne(Sessione &s);
void TracciaEquinoziale(Sessione &s);
void TracciaOreItaliche(Sessione &s);    // hours from sunset
void TracciaOreBabiloniche(Sessione &s); // hours from sunrise
void TracciaOreTemporarie(Sessione &s);  // twelfths of the day
void TracciaLemniscata(Sessione &s);
void TracciaLemniscataSud(Sessione &s);
void TracciaStiloPolare(Sessione &s);
void TracciaSustilare(Sessione &s);
// Only with ckAz set and the latitude not 0; clears the box.
void TracciaRetteAzimutali(Sessione &s);
// Points of equal Sun altitude; also called by the vertical engine.
void TracciaAlmucantarat(Sessione &s);
void TracciaAsr(Sessione &s, const Cornice &cornice, bool orizzontale);

// Azimuth of the Qibla from the meridian, degrees, and the hour angle B at which the equinoctial Sun stands on it.
struct Qibla {
    Reale q, B;
};
// Bearing in every run; curve and texts with CkQibla set, the curve only off the equator.
Qibla TracciaQibla(Sessione &s, const Cornice &cornice, bool orizzontale);

}  // namespace ombrelia::direct
