// What other rooms say in the commands' English, said in the window's language.
#pragma once

#include "desktop/ponte.h"

namespace ombrelia::desktop {

// A reason; one that is not known, a path for instance, stands as it is.
[[nodiscard]] QString Motivo(const Ponte &ponte, std::string_view errore);

// A message of the status line; one that is not known stands as it is.
[[nodiscard]] QString Detto(const Ponte &ponte, std::string_view messaggio);

// A text that begins a line, whatever it begins where else it is used.
[[nodiscard]] QString Iniziale(QString testo);

}  // namespace ombrelia::desktop
