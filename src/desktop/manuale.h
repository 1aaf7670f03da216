// The manual in a window of its own.
#pragma once

#include "desktop/ponte.h"

namespace ombrelia::desktop {

// Opens the manual over a window, at the part whose text holds a word first (empty: at its beginning). False when the manual is
// not installed.
bool ApriManuale(Ponte &ponte, QWidget *sopra, const QString &parola);

}  // namespace ombrelia::desktop
