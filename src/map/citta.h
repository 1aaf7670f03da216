// The table of cities: the places that a dial can name.
#pragma once

#include <span>
#include <string_view>

namespace ombrelia {

// Degrees: Y is minus the latitude, X the longitude West positive, as in the outlines but counted from Greenwich.
struct Citta {
    std::string_view nome;
    double Y, X;
};

// From east to west, roughly. Row 1 is the first.
[[nodiscard]] std::span<const Citta> TavolaCitta();

}  // namespace ombrelia
