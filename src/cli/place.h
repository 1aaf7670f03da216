// The command place, and the place that other commands are given by name.
#pragma once

#include <string>

#include "luoghi/atlante.h"

namespace ombrelia::cli {

// ombrelia place: arguments behind the command. 0 when places are listed, 1 when none has such a name, 2 for bad usage.
int Place(int argc, char **argv);

// The one place of a name; null when there is none or several, and then errore lists what it may mean, one a line.
[[nodiscard]] const luoghi::Luogo *TrovaLuogo(const std::string &nome, const std::string &paese, std::string &errore);

}  // namespace ombrelia::cli
