// The manual in a window of its own.
#pragma once

#include "desktop/ponte.h"

namespace ombrelia::desktop {

// The part of the manual in a language ("it", "fr", "en"): its chapter alone, all of it where that is not there.
[[nodiscard]] QString ManualeDi(const QString &manuale, const QString &lingua);

// Opens the manual over a window, in its language, at the part whose text holds a word first (empty: at its beginning). False
// when the manual is not installed.
bool ApriManuale(Ponte &ponte, QWidget *sopra, const QString &parola);

}  // namespace ombrelia::desktop
