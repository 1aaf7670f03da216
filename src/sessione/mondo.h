// The world as it was loaded: outlines of the countries, ready for any dial of one site. Plain data; src/map fills and draws it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ombrelia {

struct Mondo {
    // Degrees: X is the longitude West positive, counted from the site's; Y is minus the latitude.
    struct PuntoTerra {
        double X, Y;
    };
    // Consecutive points of one name, up to the next run's first; the number of its country in paesi.
    struct Confine {
        std::size_t primo, paese;
    };

    std::vector<PuntoTerra> punti;
    std::vector<Confine> tratti;
    // The entries of cmbStati: the whole world, then the countries in order of appearance. Empty before the first load.
    std::vector<std::string> paesi;
};

// First entry of the list, its blank included.
inline constexpr const char *MONDO_INTERO = " World";

}  // namespace ombrelia
