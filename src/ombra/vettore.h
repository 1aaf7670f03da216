// Vectors of the shadow's geometry. Frame: the equatorial one of the site's meridian, left-handed as hour angles are.
#pragma once

#include <cmath>

namespace ombrelia::ombra {

// m: where the equator crosses the meridian; w: the West point; p: the North celestial pole. Given, gives: components in any
// unit, the product in its square. Source: vector algebra. Faults: none.
struct Vettore {
    double m = 0, w = 0, p = 0;

    friend constexpr Vettore operator+(const Vettore &a, const Vettore &b) { return {a.m + b.m, a.w + b.w, a.p + b.p}; }
    friend constexpr Vettore operator-(const Vettore &a, const Vettore &b) { return {a.m - b.m, a.w - b.w, a.p - b.p}; }
    friend constexpr Vettore operator*(double k, const Vettore &a) { return {k * a.m, k * a.w, k * a.p}; }
    friend constexpr double operator*(const Vettore &a, const Vettore &b) { return a.m * b.m + a.w * b.w + a.p * b.p; }
};

}  // namespace ombrelia::ombra
