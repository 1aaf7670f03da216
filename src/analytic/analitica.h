// The analytic engine: a wall's dial as straight lines and conics. Origin at the foot of the ortostilo, x to the right, y
// upward, and so it is drawn. Its formulas hold no inclination.
#pragma once

#include "gnomonica/caratteristiche.h"

namespace ombrelia::analytic {

// Draws the whole dial of the fields as read onto what is there; the original dial is refreshed by now. Refuses, with a message,
// southern latitudes and loops too long.
void EseguiGraficaAnalitica(Sessione &s, const Lettura &letto);

// Points and lines of this engine have no layer, but for the hour lines.
inline constexpr IdNome SENZA_STRATO = 0;

// What its boxes draw.
[[nodiscard]] std::vector<SignificatoCasella> Significati();

}  // namespace ombrelia::analytic
