// The vertical engine: a dial on a wall by spherical trigonometry, every point through the Sun's azimuth and altitude.
// Origin at the foot of the ortostilo, x to the right, y upward, and so it is drawn. The latitude keeps its sign.
#pragma once

#include "gnomonica/caratteristiche.h"

namespace ombrelia::vertical {

// Draws the whole dial of the fields as read onto what is there; the original dial is refreshed by now. Refuses, with a message,
// loops too long.
void Piana_Esegui(Sessione &s, const Lettura &letto);

// Whether Piana_Esegui would refuse for loops too long; tells the user which field.
[[nodiscard]] bool TroppoFitta(Sessione &s, const Lettura &letto);

// What its boxes draw.
[[nodiscard]] std::vector<SignificatoCasella> Significati();

}  // namespace ombrelia::vertical
