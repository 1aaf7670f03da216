// The nearest town.
#include "desktop/fuso_vicino.h"

#include <cmath>
#include <numbers>

namespace ombrelia::desktop {

const luoghi::Luogo *LuogoVicino(double latitudine, double longitudine, double fuso) {
    constexpr double ENTRO = 0.75;  // degrees
    const luoghi::Luogo *vicino = nullptr;
    double quanto = ENTRO;
    for (const luoghi::Luogo &l : luoghi::Atlante::Comune().luoghi()) {
        if (std::fabs(l.latitudine - latitudine) >= quanto || l.base != std::lround(fuso * 60)) continue;
        const double d =
            std::hypot(l.latitudine - latitudine, (l.longitudine - longitudine) * std::cos(latitudine * std::numbers::pi / 180));
        if (d < quanto) quanto = d, vicino = &l;
    }
    return vicino;
}

}  // namespace ombrelia::desktop
