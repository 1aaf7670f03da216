// Where a command's output goes.
#pragma once

#include <string>
#include <string_view>

namespace ombrelia::cli {

// Writes contenuto to a path, or to standard output for "-". Gives an empty text or what went wrong.
[[nodiscard]] std::string Consegna(const std::string &percorso, std::string_view contenuto);

}  // namespace ombrelia::cli
