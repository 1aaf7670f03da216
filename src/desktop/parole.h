// What other rooms say in the commands' English, said in the window's language.
#pragma once

#include "desktop/ponte.h"

namespace ombrelia::desktop {

// A reason; one that is not known, a path for instance, stands as it is.
[[nodiscard]] QString Motivo(const Ponte &ponte, std::string_view errore);

}  // namespace ombrelia::desktop
