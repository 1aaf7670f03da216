// Polygons with holes into triangles. Coordinates are whole thousandths of a millimetre: every product is exact.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace ombrelia::officina {

struct Pm {
    std::int64_t x = 0, y = 0;
    bool operator==(const Pm &) const = default;
};
using Contorno = std::vector<Pm>;

// Twice the area, positive counter-clockwise.
[[nodiscard]] std::int64_t AreaDoppia(const Contorno &c);

// Triangles, counter-clockwise, that fill a counter-clockwise contour less clockwise holes that lie inside it and touch
// neither it nor each other. No point is added: every edge of a contour is an edge of one triangle.
[[nodiscard]] std::vector<std::array<Pm, 3>> Triangola(const Contorno &fuori, std::vector<Contorno> fori);

}  // namespace ombrelia::officina
