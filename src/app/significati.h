// What the engines draw for each box of the main window, for commands' help.
#pragma once

#include <string_view>
#include <vector>

namespace ombrelia::app {

struct CasellaSpiegata {
    std::string_view nome;
    std::vector<std::string_view> significati;  // English; one that several engines share stands once
};
// In the order of the engines' tables.
[[nodiscard]] std::vector<CasellaSpiegata> CaselleSpiegate();

}  // namespace ombrelia::app
