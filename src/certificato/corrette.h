// The true lines that stand in for an engine's own where "Geometria corretta" is on.
#pragma once

#include "sessione/correzione.h"
#include "sessione/sessione.h"

namespace ombrelia {

// Draws the true lines of a feature on the layers and in the colours that the engine would use, from the shadow by
// vectors alone. False for a feature that is left to the engine.
bool TracciaVera(Sessione &s, const Attesa &attesa);

// Where Suns throw their shadows on the dial that a run would draw of the fields as they stand. Given, of each: hour angle and
// declination, radians, afternoon and North positive. Gives: metres on the list, x turned round for a southern dial, y upward.
// Source: PianoMontato::proietta. Faults: none where it throws none.
OmbreVere::Dove OmbreNellaLista(const Sessione &s);

}  // namespace ombrelia
