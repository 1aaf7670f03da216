// Fewer points for the same line.
#pragma once

#include "officina/disegno.h"

namespace ombrelia::officina {

// Drops points in one pass; none dropped lies farther than the tolerance (mm) from the line that is left.
void Sfoltisci(std::vector<P2> &punti, double tolleranza);

// The fewest of the points that keep all others within the tolerance (mm): the shortest way from first to last over
// chords that allow it.
void Semplifica(std::vector<P2> &punti, double tolleranza);

}  // namespace ombrelia::officina
