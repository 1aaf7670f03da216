// The display list as plain text, for checks and for reading.
#pragma once

#include <string>

#include "plot/lista.h"

namespace ombrelia {

// One record a line, fields divided by a TAB, numbers with 17 significant digits: the primitives in the order they were
// added, then the texts in theirs.
[[nodiscard]] std::string ListaTesto(const Lista &lista);

}  // namespace ombrelia
