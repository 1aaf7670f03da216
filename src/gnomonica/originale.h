// The original dial, which horizon and seasonal hours follow.
#pragma once

#include "sessione/sessione.h"

namespace ombrelia {

// Where a run starts: with originaleFresco on, and nothing transformed, a latitude, declination or inclination in the
// fields that differs from the original's makes the fields the original dial. Off, or before the first read, nothing.
void RinfrescaOriginale(Sessione &s, const Lettura &letto);

}  // namespace ombrelia
