// The palette on a dark sheet and on paper: which ink stands for a recorded colour. Records keep their own.
#pragma once

#include <QColor>

#include "core/colori.h"

namespace ombrelia::paint {

// A dark screen, paper, a paper-white screen.
enum class Supporto : std::uint8_t { Schermo, Carta, SchermoChiaro };

// The sheet itself.
[[nodiscard]] QColor Sfondo(Supporto supporto);
// A recorded colour so that it can be seen: on the dark sheet dark colours are lifted and black is a light grey, on paper
// light colours are darkened and white is black.
[[nodiscard]] QColor Inchiostro(Colore colore, Supporto supporto);

}  // namespace ombrelia::paint
