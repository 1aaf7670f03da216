// The small vocabulary of angles that every engine shares: the program's PI and the inverse functions made from the
// arc tangent. Radians throughout.
#pragma once

#include "core/reale.h"

namespace ombrelia {

// Ten digits are meant, here and in the full circle: every line ever cut with the program was computed with them.
inline constexpr double PI = 3.141592654;
inline constexpr double CERCHIO = 6.283185308;

// Degrees to radians. Given: degrees, any sign. Gives: radians. Source: elementary geometry; departure: the ten digits of PI, and
// this order of operations. Faults: none but overflow.
constexpr Valore Radianti(Valore gradi) { return PI * gradi / 180; }
// Radians to degrees. Given: radians. Gives: degrees. Source and departure: as above. Faults: none but overflow.
constexpr Valore Gradi(Valore radianti) { return radianti * 180 / PI; }

// Arc sine by the arc tangent. Given: x. Gives: radians, -PI/2..PI/2. Source: elementary geometry. Faults: no value at |x| >= 1,
// where the quotient divides by zero or the root is of a negative; so none for 1 itself: meant.
inline Valore ArcSin(Valore x) { return Atn(x / Sqr(-x * x + 1)); }
// Arc cosine. Given: x. Gives: radians, 0..PI. Source: elementary geometry, the complement of ArcSin. Faults: where that does.
inline Valore ArcCos(Valore x) { return (PI / 2.0) - ArcSin(x); }

// Sign of a latitude, 1 on the equator. Given: in any unit. Gives: 1 or -1. Source: by definition. Faults: none.
constexpr Valore SegnoLatitudine(Valore lat) { return lat == 0 ? Valore(1) : Sgn(lat); }

// Direction of a point. Given: ordinate, abscissa. Gives: radians from the abscissas, 0..CERCHIO. Source: elementary geometry.
// Faults: no value at x = 0; there is no branch for a vertical direction, callers that can meet one test first.
inline Valore Arco2(Valore y, Valore x) {
    const Valore q = y / x;
    if (!q.esiste()) return q;
    if (y == 0) return x > 0 ? Valore(0) : Valore(PI);
    if (q > 0) return y > 0 ? Atn(q) : Atn(q) + PI;
    return y > 0 ? Atn(q) + PI : Atn(q) + CERCHIO;
}

// All that round. Given: x in any unit. Gives: the same unit. Source: elementary. Faults: no value where x, scaled, has none.

// To n places, a tie to the even digit.
inline Valore Round(Valore x, int posti) {
    const double scala = std::pow(10.0, posti);
    return {std::nearbyint(x.v * scala) / scala};
}

// Cut, not rounded, to five decimals; negatives move away from 0.
inline Valore Tronca5(Valore x) { return Int(x * 100000) / 100000; }

}  // namespace ombrelia
