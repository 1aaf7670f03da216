// The dial that a command is asked for: fields and boxes from its options, or a project file.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "sessione/sessione.h"

namespace ombrelia::cli {

struct Campi {
    std::string progetto;
    std::vector<std::pair<std::string, std::string>> testi;
    std::vector<std::string> caselle;
    std::string luogo, paese;

    // Whether an option is one of these: --project FILE, --place NAME, --country XX, --set FIELD=TEXT, --check BOX. All take one
    // argument.
    [[nodiscard]] static bool Opzione(std::string_view opzione);
    // Takes one of them. Gives an empty text or what is wrong with it.
    [[nodiscard]] std::string Prendi(std::string_view opzione, const std::string &valore);
    // Opens the project, sets the place, then gives fields and boxes in their order. Angles may be written as people do: the field gets
    // a plain number. Empty, or what could not be done.
    [[nodiscard]] std::string Applica(Sessione &s) const;
};

}  // namespace ombrelia::cli
