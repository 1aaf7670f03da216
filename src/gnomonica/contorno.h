// What surrounds a dial's lines and every engine draws alike: axes, limit lines, frame and their numbers, the caption.
#pragma once

#include <span>

#include "sessione/sessione.h"

namespace ombrelia {

// The axes through the foot of the ortostilo, with ckAssi set; the vertical one doubled: meant.
void TracciaAssi(Sessione &s);

// The four limit lines with their numbers in the unit of the fields, and the frame; leaves its corner in x1 and y1.
void TracciaLimiti(Sessione &s, const Lettura &letto, const Cornice &cornice);

// What a run tells of its dial in lines of text, each told with its value and unit; one whose value does not exist is left out.
struct RigaDati {
    std::string_view etichetta;
    Valore valore;
    std::string_view coda;
};
void ScriviDati(Sessione &s, std::span<const RigaDati> righe);

}  // namespace ombrelia
