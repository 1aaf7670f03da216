// The clock of a site: the nearest town's, with its summer time.
#pragma once

#include "luoghi/atlante.h"

namespace ombrelia::desktop {

// The nearest town within some eighty kilometres whose standard time is fuso (hours East of Greenwich); null when there is none.
// Degrees in the program's signs.
[[nodiscard]] const luoghi::Luogo *LuogoVicino(double latitudine, double longitudine, double fuso);

}  // namespace ombrelia::desktop
