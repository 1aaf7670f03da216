// Fewer points for the same line.
#pragma once

#include "officina/disegno.h"

namespace ombrelia::officina {

// The fewest of the points that keep all others within the tolerance (mm): the shortest way from first to last over
// chords that allow it.
void Semplifica(std::vector<P2> &punti, double tolleranza);

}  // namespace ombrelia::officina
