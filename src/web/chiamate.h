// The calls that a page has: one row each, a text in, a text out.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "web/pagina.h"

namespace ombrelia::web {

struct Chiamata {
    std::string_view nome;
    std::string (*esegui)(Pagina &pagina, std::string_view argomento);
};
[[nodiscard]] std::span<const Chiamata> Chiamate();

}  // namespace ombrelia::web
