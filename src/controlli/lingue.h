// The languages: what window, manual, page, defaults and tests know of each. A new one is a row here, its dictionaries and its
// manual.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "controlli/controlli.h"

namespace ombrelia {

struct Lingua {
    std::string_view codice;  // "it": of its manual, of a page, of the toolkit's catalogue and calendar
    std::string_view nome;    // as it calls itself
    std::string_view file;    // in the names of its dictionaries; the program's own has none
    std::string_view apri;    // how its dictionary says "Apri...": by this a dictionary is known
    std::string_view avviso;  // what the user is told who chooses it
    NomeControllo voce{};     // its control in the table, where it has one
};

// The program's own first.
[[nodiscard]] std::span<const Lingua> Lingue();
// Of a code; the program's own for one that no language has.
[[nodiscard]] const Lingua &LinguaDi(std::string_view codice);
// Name of the dictionary that a user's folder takes as its own, without "DB" and ending; empty for the program's own language.
[[nodiscard]] std::string DizionarioDi(const Lingua &lingua);
// Its files in data: that dictionary, and those of the words that window and page have beyond it. Empty names for the program's
// own.
[[nodiscard]] std::array<std::string, 3> FileDi(const Lingua &lingua);

}  // namespace ombrelia
