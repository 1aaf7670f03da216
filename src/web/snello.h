// A drawing for the screen: the same SVG with no more points on its lines than an eye can tell.
#pragma once

#include <string>
#include <string_view>

namespace ombrelia::web {

// Leaves out points of polylines that lie within tolleranza (mm) of what is left. Everything else stays to the byte.
[[nodiscard]] std::string Snello(std::string_view svg, double tolleranza);

}  // namespace ombrelia::web
