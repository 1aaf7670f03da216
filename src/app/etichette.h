// Labels and title block of a run, from the fields.
#pragma once

#include "sessione/sessione.h"

namespace ombrelia::app {

// After a run: the labels where ckEtichette is set, the block where ckCartiglio is. With both clear nothing happens.
void TracciaEtichette(Sessione &s);

// Height that the title block takes under the frame. Given: the fields. Gives: metres, 0 without one. Source: the program's own
// layout. Faults: none.
[[nodiscard]] double AltezzaCartiglio(const Sessione &s);

}  // namespace ombrelia::app
