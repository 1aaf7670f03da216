// The help of every command.
#pragma once

#include <string>
#include <string_view>

namespace ombrelia::cli {

// Help of a command; the overview for an empty or unknown name.
[[nodiscard]] std::string Aiuto(std::string_view comando);

}  // namespace ombrelia::cli
