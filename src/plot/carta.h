// Paper: the size of a page as it lies, metres.
#pragma once

#include <string_view>

namespace ombrelia {

// Given: metres. Gives: device units, 1440 an inch, whole as a printer gives them. Source: the inch is 0.0254 m. Faults: none.
struct Carta {
    double larga, alta;
    bool operator==(const Carta &) const = default;
    [[nodiscard]] double largaTwip() const;
    [[nodiscard]] double altaTwip() const;
};

inline constexpr Carta CARTA_A4{0.210, 0.297};

// Papers by name, upright.
struct CartaNota {
    std::string_view nome;
    Carta carta;
};
inline constexpr CartaNota CARTE_NOTE[] = {{"A4", CARTA_A4}, {"A3", {0.297, 0.420}}, {"Letter", {0.2159, 0.2794}}};

}  // namespace ombrelia
