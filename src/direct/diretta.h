// The direct engine: a dial on a plane of any declination and inclination, every point by central projection of the
// Sun's direction. Origin at the foot of the ortostilo, x to the right, y upward, and so it is drawn.
#pragma once

#include "gnomonica/caratteristiche.h"

namespace ombrelia::direct {

// Draws the whole dial of the fields as read onto what is there; the original dial is refreshed by now. Refuses, with a message,
// a transformed horizontal dial and loops too long; ends in silence at a southern latitude, which cmdRun makes positive first.
void I_Graf_diretta(Sessione &s, const Lettura &letto);

// Whether I_Graf_diretta would refuse for loops too long; tells the user which field.
[[nodiscard]] bool TroppoFitta(Sessione &s, const Lettura &letto);

// What its boxes draw.
[[nodiscard]] std::vector<SignificatoCasella> Significati();

}  // namespace ombrelia::direct
