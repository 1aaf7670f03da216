// The controls of the main window grouped as a maker thinks. What they look like is the business of window and page.
#pragma once

#include <string_view>
#include <vector>

namespace ombrelia::app {

struct Gruppo {
    // A row holds names of controls; what is no control's name is a caption of the group's own. "Picture2" and "Picture3"
    // stand for the figures of the plane, "Line1" for a divider.
    using Riga = std::vector<std::string_view>;
    std::string_view titolo;  // Italian, for the dictionary
    std::vector<Riga> righe;
    bool piegato = false;  // at the start: what only a master needs
};

// The dial: site, plane, gnomon, frame.
[[nodiscard]] const std::vector<Gruppo> &GruppiQuadrante();
// The drawing: hours, lines, numerals, prayer, tables, map.
[[nodiscard]] const std::vector<Gruppo> &GruppiDisegno();

}  // namespace ombrelia::app
