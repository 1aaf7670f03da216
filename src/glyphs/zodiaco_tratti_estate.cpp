// The signs of spring and summer, Aries to Virgo, as strokes on a grid from -28 to 28 both ways, second coordinate
// upward. The strokes that carry a sign are in colour 3 or 12, which show on any ground; a second edge in 11 or 15 gives
// them weight on a dark one.
#include <array>

#include "glyphs/tratti_segni.h"

namespace ombrelia {

namespace {

using T = Tratto;

// Two horns on one stem, thinning to their points.
constexpr std::array ARIETE{
    T::giro(15, 11, 10.5, 10.5, 180, -60, 10, 15),
    T::giro(-15, 11, 10.5, 10.5, 0, 240, 10, 15),
    T::arco(14.2, 12, 12.8, -60, 180, 12),
    T::arco(-14.2, 12, 12.8, 0, 240, 12),
    T::linea(1.4, 12, 0, -28, 12),
    T::linea(-1.4, 12, 0, -28, 12),
};

constexpr std::array TORO{
    T::arco(0, -11, 17, 0, 360, 3),           T::arco(0, -11, 14, 0, 360, 11),  // head
    T::arco(0, 24, 18, 180, 270, 3),          T::arco(0, 24, 18, 270, 360, 3),  // horns
    T::arco(0, 27.3, 18.3, 190.4, 349.6, 11),
};

constexpr std::array GEMELLI{
    T::arco(0, 58, 38, 234.6, 305.4, 3),      T::arco(0, 46.2, 29.2, 221.1, 318.9, 11), T::arco(0, -58, 38, 54.6, 125.4, 3),
    T::arco(0, -46.2, 29.2, 41.1, 138.9, 11), T::linea(-11, 19.2, -11, -19.2, 3),       T::linea(-7.5, 18, -7.5, -18, 11),
    T::linea(11, 19.2, 11, -19.2, 3),         T::linea(7.5, 18, 7.5, -18, 11),          T::arco(-23, 26.8, 1.2, 0, 360, 12),
    T::arco(23, 26.8, 1.2, 0, 360, 12),       T::arco(-23, -26.8, 1.2, 0, 360, 12),     T::arco(23, -26.8, 1.2, 0, 360, 12),
};

// Two claws, the second the first turned half round.
constexpr std::array CANCRO{
    T::giro(-17, 7, 8, 8, 0, 360, 20, 3),         T::giro(1.5, 7, 26.5, 18, 180, 20, 18, 3),
    T::giro(1.9, 7, 26.9, 15, 180, 24.4, 12, 11), T::giro(17, -7, 8, 8, 0, 360, 20, 3),
    T::giro(-1.5, -7, 26.5, 18, 360, 200, 18, 3), T::giro(-1.9, -7, 26.9, 15, 360, 204.4, 12, 11),
};

constexpr std::array LEONE{
    T::giro(0.5, 10, 12.5, 14.5, 215, -35, 10, 15),
    T::linea(10.74, 1.68, 4.75, -14.62, 15),
    T::arco(-15, -7, 5.5, 0, 360, 15),
    T::arco(-15, -7, 8, 0, 360, 12),
    T::giro(2, 10, 14, 17, 217, -35, 24, 12),
    T::linea(13.468, 0.249, 4.75, -14.619, 12),
    T::giro(12, -18, 8, 8, 155, 320, 11, 12),
};

// Three stems under two bows, the last stem crossed by the loop.
constexpr std::array VERGINE{
    T::arco(-25, 14, 3, 0, 130, 3),      T::linea(-19.5, 13.5, -19.5, -16, 11),
    T::linea(-22, 14, -22, -16, 3),      T::arco(-14.75, 13.5, 4.75, 0, 180, 11),
    T::arco(-15, 14, 7, 0, 180, 3),      T::linea(-5.5, 13.5, -5.5, -16, 11),
    T::linea(-8, 14, -8, -16, 3),        T::arco(-0.75, 13.5, 4.75, 0, 180, 11),
    T::arco(-1, 14, 7, 0, 180, 3),       T::linea(4, 13.5, 4, -14, 11),
    T::linea(6, 14, 6, -14, 3),          T::giro(15, -14, 9, 12, 180, 275, 6, 3),
    T::giro(13, 6, 7, 8, 180, 0, 10, 3), T::giro(-6, 6, 26, 30, 0, -80, 16, 3),
};

}  // namespace

std::span<const Tratto> tratti::PrimaveraEstate(Segno segno) {
    switch (segno) {
        case Segno::Ariete:
            return ARIETE;
        case Segno::Toro:
            return TORO;
        case Segno::Gemelli:
            return GEMELLI;
        case Segno::Cancro:
            return CANCRO;
        case Segno::Leone:
            return LEONE;
        case Segno::Vergine:
            return VERGINE;
        default:
            return {};
    }
}

std::span<const Tratto> TrattiSegno(Segno segno) {
    const auto calda = tratti::PrimaveraEstate(segno);
    return calda.empty() ? tratti::AutunnoInverno(segno) : calda;
}

}  // namespace ombrelia
