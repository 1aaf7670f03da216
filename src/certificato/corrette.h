// The true lines that stand in for an engine's own where "Geometria corretta" is on.
#pragma once

#include "sessione/correzione.h"
#include "sessione/sessione.h"

namespace ombrelia {

// Draws the true lines of a feature on the layers and in the colours that the engine would use, from the shadow by
// vectors alone. False for a feature that is left to the engine.
bool TracciaVera(Sessione &s, const Attesa &attesa);

// Where the Sun of an hour angle and a declination, radians, throws its shadow on the dial that a run would draw: metres on
// the list, y upward; none where it throws none.
std::optional<std::pair<double, double>> OmbraNellaLista(const Sessione &s, double t, double delta);

}  // namespace ombrelia
