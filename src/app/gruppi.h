// The controls of the main window grouped as a maker thinks. What they look like is the business of window and page.
#pragma once

#include <string_view>
#include <vector>

#include "controlli/nomi.h"

namespace ombrelia::app {

struct Gruppo {
    // What stands in a row: a control, or a caption of the group's own, marked _it. "Picture2" and "Picture3" are the figures of
    // the plane, "Line1" a divider.
    struct VoceDiGruppo {
        IdControllo id = NESSUN_CONTROLLO;
        std::string_view caption{};
        consteval VoceDiGruppo(const char *nome) : id(IdNoto(nome)) {}          // NOLINT
        constexpr VoceDiGruppo(std::string_view scritta) : caption(scritta) {}  // NOLINT
        explicit constexpr VoceDiGruppo(IdControllo quale) : id(quale) {}
    };
    using RigaDiGruppo = std::vector<VoceDiGruppo>;
    std::string_view titolo;  // Italian, for the dictionary
    std::vector<RigaDiGruppo> righe;
    bool piegato = false;  // at the start: what only a master needs
};

// The dial: site, plane, gnomon, frame.
[[nodiscard]] const std::vector<Gruppo> &GruppiQuadrante();
// The drawing: hours, lines, numerals, prayer, tables, map.
[[nodiscard]] const std::vector<Gruppo> &GruppiDisegno();

}  // namespace ombrelia::app
