// What surrounds a dial's lines and every engine draws alike: axes, limit lines, frame and their numbers.
#pragma once

#include "sessione/sessione.h"

namespace ombrelia {

// The axes through the foot of the ortostilo, with ckAssi set; the vertical one doubled: meant.
void TracciaAssi(Sessione &s);

// The four limit lines with their numbers in the unit of the fields, and the frame; leaves its corner in x1 and y1.
void TracciaLimiti(Sessione &s, const Lettura &letto, const Cornice &cornice);

}  // namespace ombrelia
