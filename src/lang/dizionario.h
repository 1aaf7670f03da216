// The language dictionary: Italian texts to their translation. Nothing here knows a form or a window.
#pragma once

#include <string>
#include <string_view>

namespace ombrelia {

class Dizionario {
public:
    // The translation of a text, or the text itself when there is none. Without a dictionary every text is its own.
    [[nodiscard]] std::string Traduci(std::string_view testo) const { return std::string(testo); }
};

}  // namespace ombrelia
