// The page's own words, beyond those of the table of controls: Italian, for the dictionary.
#pragma once

#include <span>
#include <string_view>

namespace ombrelia::web {

struct TestoPagina {
    std::string_view chiave, testo;
};
[[nodiscard]] std::span<const TestoPagina> TestiPagina();

}  // namespace ombrelia::web
