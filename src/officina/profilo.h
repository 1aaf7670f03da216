// What the solids share: faces and walls of plates, and the outline of the polar style.
#pragma once

#include "officina/solidi.h"

namespace ombrelia::officina {

// A level face of triangles, seen from above or from below.
void Faccia(Solido &s, const std::vector<std::array<Pm, 3>> &triangoli, double z, bool sopra);
// A wall along a contour that has the solid on its left, from one height to another; turned round when a lies below da.
void Parete(Solido &s, const Contorno &c, double da, double a);

struct Profilo {
    P2 verso;                                            // on the plate, from the foot towards the centre
    double lungo = 0;                                    // mm along it
    double coda = 0;                                     // mm over the plate at that end
    std::array<std::pair<double, double>, 2> linguette;  // tabs, from and to along it
};
[[nodiscard]] std::optional<Profilo> ProfiloStilo(const Gnomone &g, const Riquadro &lastra, std::string &errore);

}  // namespace ombrelia::officina
