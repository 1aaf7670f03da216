// The defaults file: which controls it keeps, and under which keys.
#pragma once

#include <optional>
#include <string>

#include "sessione/sessione.h"

namespace ombrelia::app {

// Fills the main window's controls from "Ombrelia.dat" in the current directory, as a user would: handlers run. A key
// that is missing or empty leaves its control alone.
void LeggiDefault(Sessione &s);
// Writes them back; keys that the program does not know stay. Nothing when done, else the file and the reason.
[[nodiscard]] std::optional<std::string> ScriviDefault(Sessione &s);

}  // namespace ombrelia::app
