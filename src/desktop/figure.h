// Drawings of the window's own: the wall from above and from its side, as the fields have it, and how its angle is
// measured.
#pragma once

#include <QWidget>

#include "sessione/sessione.h"

namespace ombrelia::desktop {

// The plane seen from above: which way it looks. North is up.
QWidget *FiguraPianta(const Sessione &s, QWidget *genitore);
// The plane seen from its side: how it leans, with the gnomon.
QWidget *FiguraFianco(const Sessione &s, QWidget *genitore);
// How to measure the angle of a wall against the Sun, drawn and told.
QWidget *FiguraIstruzioni(const Sessione &s, QWidget *genitore);

}  // namespace ombrelia::desktop
