// The sixteen-colour palette, as RGB longs with blue in the high byte.
#pragma once

#include <array>
#include <cstdint>

namespace ombrelia {

using Colore = std::int32_t;

// Colour n of the palette, n in 0..15.
constexpr Colore QB(int n) {
    constexpr std::array<Colore, 16> tavolozza{0,        0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
                                               0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
    return tavolozza[static_cast<std::size_t>(n) & 15];
}

inline constexpr Colore NERO = QB(0), BLU_SCURO = QB(1), VERDE_SCURO = QB(2), ACQUA = QB(3), ROSSO_SCURO = QB(4), VIOLA = QB(5),
                        OLIVA = QB(6), ARGENTO = QB(7), GRIGIO = QB(8), BLU = QB(9), VERDE = QB(10), CIANO = QB(11),
                        ROSSO = QB(12), MAGENTA = QB(13), GIALLO = QB(14), BIANCO = QB(15);

constexpr Colore Rgb(int rosso, int verde, int blu) { return rosso | (verde << 8) | (blu << 16); }

inline constexpr Colore CORALLO = Rgb(255, 128, 128), SMERALDO = Rgb(0, 193, 97);

}  // namespace ombrelia
