// The Sun's series in its mean longitude.
#include "gnomonica/proiezione.h"

namespace ombrelia {

SoleMedio SoleAllaLongitudine(double M) {
    constexpr double c1 = 0.006954, c2 = 0.032732, c3 = -0.00032, c4 = 0.000143, c5 = -3e-6, c6 = -4e-6;
    constexpr double e1 = 0.04306, e2 = -0.00093, e3 = 3e-5;
    // 23 degrees 26 minutes 47 seconds.
    static const double senObliquita = std::sin(PI * (26.0 / 60.0 + 23.0 + 47.0 / 3600.0) / 180);

    const double senM = std::sin(M), cosM = std::cos(M);
    const double sen2M = std::sin(2 * M), cos2M = std::cos(2 * M);
    const double C = c1 * senM + c2 * cosM + c3 * sen2M + c4 * cos2M + c5 * std::sin(3 * M) + c6 * std::cos(3 * M);
    const double S2 = std::sin(2 * M + 2 * c1 * senM + 2 * c2 * cosM + 2 * c3 * sen2M + 2 * c4 * cos2M);
    const double S4 = std::sin(4 * M + 4 * c1 * senM + 4 * c2 * cosM);
    const double R = e1 * S2 + e2 * S4 + e3 * std::sin(6 * M);
    const double q = std::sin(M + C) * senObliquita;  // never 1: the obliquity keeps it below 0.4
    return {std::atan(q / std::sqrt(-q * q + 1)), R - C};
}

}  // namespace ombrelia
