// The fields of a dial that a command is asked for, out of its options or a project file. Every command that takes a dial takes
// these rows; cli/disegno.h adds those of a drawing and draws it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "cli/opzioni.h"
#include "sessione/sessione.h"

namespace ombrelia::cli {

struct Campi {
    std::string progetto;
    std::vector<std::pair<std::string, std::string>> testi;
    std::vector<std::pair<std::string, int>> caselle;  // and 1 to set, 0 to clear
    std::string luogo, paese;

    // Adds --project FILE, --place NAME, --country XX, --set FIELD=TEXT, --check BOX, --uncheck BOX and --corrected. The rows
    // keep what they take in this object.
    void opzioni(Opzioni &o);
    // Opens the project, sets the place, then gives fields and boxes in their order; from then on a run is of its fields. Angles
    // may be written as people do, and a number may have a comma for its point: the field gets a plain number. Empty, or what
    // could not be done: no number, one out of its field's range, and a double quote, which would cut the project there, are
    // refused.
    [[nodiscard]] std::string Applica(Sessione &s) const;
};

}  // namespace ombrelia::cli
