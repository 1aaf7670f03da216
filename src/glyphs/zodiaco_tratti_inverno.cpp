// The signs of autumn and winter, Libra to Pisces, as strokes; grid and colours as those of spring and summer.
#include <array>

#include "glyphs/tratti_segni.h"

namespace ombrelia {

namespace {

using T = Tratto;

constexpr std::array BILANCIA{
    T::linea(-27, -18, 27, -18, 3),       T::linea(-27, -22, 27, -22, 12),        T::linea(-27, -18, -27, -22, 3),
    T::linea(27, -18, 27, -22, 3),        T::arco(0, 8, 18, -50, 230, 3),         T::arco(0, 8, 15, -58, 238, 11),
    T::linea(11.57, -5.79, 27, -5.79, 3), T::linea(-11.57, -5.79, -27, -5.79, 3), T::linea(7.95, -9.3, 27, -9.3, 12),
    T::linea(-7.95, -9.3, -27, -9.3, 12), T::linea(27, -5.79, 27, -9.3, 3),       T::linea(-27, -5.79, -27, -9.3, 3),
    T::linea(7.95, -4.72, 7.95, -9.3, 3), T::linea(-7.95, -4.72, -7.95, -9.3, 3),
};

// The stems of Virgo, with a sting.
constexpr std::array SCORPIONE{
    T::arco(-25, 14, 5, 20, 120, 15),       T::arco(-25, 14, 3, 0, 130, 12),
    T::linea(-19.5, 13.5, -19.5, -16, 15),  T::linea(-22, 14, -22, -16, 12),
    T::linea(-22, -16, -19.5, -16, 12),     T::arco(-14.75, 13.5, 4.75, 0, 180, 15),
    T::arco(-15, 14, 7, 0, 180, 12),        T::linea(-5.5, 13.5, -5.5, -16, 15),
    T::linea(-8, 14, -8, -16, 12),          T::linea(-8, -16, -5.5, -16, 12),
    T::arco(-0.75, 13.5, 4.75, 0, 180, 15), T::arco(-1, 14, 7, 0, 180, 12),
    T::linea(3.5, 13.5, 3.5, -14, 15),      T::linea(6, 14, 6, -14, 12),
    T::arco(14, -14, 10.5, 180, 360, 15),   T::arco(14, -14, 8, 180, 360, 12),
    T::linea(24.5, -14, 24.5, -4, 15),      T::linea(22, -14, 22, -4, 12),
    T::linea(22.6, 2, 22.6, -4, 15),        T::linea(17, -6, 22.6, 5, 12),
    T::linea(28, -6, 22.6, 5, 12),          T::linea(17, -6, 22, -4, 12),
    T::linea(28, -6, 22, -4, 12),
};

constexpr std::array SAGITTARIO{
    T::linea(-24.1, -25.9, 23.8, 22, 15), T::linea(-19.1, 2.7, 2.7, -19.1, 15), T::linea(22, 23.5, 2, 23.5, 15),
    T::linea(23.5, 22, 23.5, 2, 15),      T::linea(-25.9, -24.1, 26, 26, 12),   T::linea(-25.9, -24.1, -24.1, -25.9, 12),
    T::linea(26, 26, 2, 26, 12),          T::linea(26, 26, 26, 2, 12),          T::linea(2, 26, 2, 23.5, 12),
    T::linea(26, 2, 23.5, 2, 12),         T::linea(-20.9, 0.9, 0.9, -20.9, 12), T::linea(-20.9, 0.9, -19.1, 2.7, 12),
};

constexpr std::array CAPRICORNO{
    T::arco(-26.5, 14, 4, -20, 110, 3),
    T::linea(-22.7, 12.6, -15, -14, 3),
    T::linea(-20.5, 11.5, -15, -9, 11),
    T::linea(-15, -14, -10, 12, 3),
    T::giro(-2, 12, 8, 12, 180, 0, 12, 3),
    T::giro(-3, 12, 7, 9.5, 180, 0, 10, 11),
    T::linea(6, 12, 6, -14, 3),
    T::linea(4, 12, 4, -14, 11),
    T::giro(15, -9, 9, 9, 180, 540, 20, 3),
    T::giro(15.8, -9, 7, 7, 180, 540, 16, 11),
    T::giro(-5, -14, 11, 13, 0, -110, 9, 3),
    T::giro(-5, -14, 9, 11, 0, -110, 8, 11),
};

// Two fishes back to back, tied.
constexpr std::array PESCI{
    T::linea(-26, 0, 26, 0, 15),
    T::linea(-26, 1.3, 26, 1.3, 12),
    T::linea(-26, -1.3, 26, -1.3, 12),
    T::linea(-26, 1.3, -26, -1.3, 12),
    T::linea(26, 1.3, 26, -1.3, 12),
    T::giro(-28, 0, 14.5, 28.25, -77.6, 77.6, 12, 11),
    T::giro(-28, 0, 18, 28, -80, 80, 13, 3),
    T::giro(28, 0, 14.5, 28.25, 102.4, 257.6, 12, 11),
    T::giro(28, 0, 18, 28, 100, 260, 13, 3),
};

// Two waves, their long slopes heavy.
constexpr std::array ACQUARIO{
    T::linea(-27, 4, -13, 17, 3),   T::linea(-13, 17, -7, 4, 3),       T::linea(-7, 4, 7, 17, 3),
    T::linea(7, 17, 13, 4, 3),      T::linea(13, 4, 27, 17, 3),        T::linea(-25, 2, -12.3, 14, 11),
    T::linea(-6.3, 2, 7.7, 14, 11), T::linea(14, 2, 28, 14, 11),       T::linea(-27, -17, -13, -4, 3),
    T::linea(-13, -4, -7, -17, 3),  T::linea(-7, -17, 7, -4, 3),       T::linea(7, -4, 13, -17, 3),
    T::linea(13, -17, 27, -4, 3),   T::linea(-25, -19, -12.3, -7, 11), T::linea(-6.3, -19, 7.7, -7, 11),
    T::linea(14, -19, 28, -7, 11),
};

}  // namespace

std::span<const Tratto> tratti::AutunnoInverno(Segno segno) {
    switch (segno) {
        case Segno::Bilancia:
            return BILANCIA;
        case Segno::Scorpione:
            return SCORPIONE;
        case Segno::Sagittario:
            return SAGITTARIO;
        case Segno::Capricorno:
            return CAPRICORNO;
        case Segno::Acquario:
            return ACQUARIO;
        case Segno::Pesci:
            return PESCI;
        default:
            return {};
    }
}

}  // namespace ombrelia
