// The day's path of the shadow laid over a drawing.
#pragma once

#include <string>
#include <vector>

#include "certificato/istante.h"

namespace ombrelia {

// The SVG of the drawing as it is mounted, with the path of the tip's shadow through a day and its hours; animato: tip and
// polar style move along it, a day in ten seconds, with a clock and a word when the wall is dark.
[[nodiscard]] std::string SvgConPercorso(const Tavolo &tavolo, const Posa &posa, const std::vector<Istante> &giorno,
                                         bool animato);

}  // namespace ombrelia
