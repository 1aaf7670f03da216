// The arithmetic of the whole program: a statement that faults leaves its target as it was.
// Here live the variable (Reale), the value of an expression (Valore) and the functions that work on them.
#pragma once

#include <cfloat>
#include <cmath>
#include <concepts>
#include <limits>
#include <type_traits>

namespace ombrelia {

// All arithmetic here. Given: numbers, angles in radians. Gives: numbers, angles in radians. Source: IEEE 754 double precision
// and the standard library; departure: as told at each. Faults: division by zero, overflow, root of a negative and whatever is
// made of a fault have no value.

// What an expression gives: a finite number, or no value because a step of it faulted (division by zero,
// overflow, root of a negative, angle of an infinite quotient). "No value" is any double that is not finite,
// so that plain arithmetic spreads it at no cost; only the operations that could turn it finite again are guarded.
struct Valore {
    double v;

    constexpr Valore(double numero) : v(numero) {}  // NOLINT: numbers are values
    template <std::integral I>
    constexpr Valore(I numero) : v(static_cast<double>(numero)) {}  // NOLINT

    static constexpr Valore nessuno() { return {std::numeric_limits<double>::quiet_NaN()}; }
    [[nodiscard]] constexpr bool esiste() const { return v >= -DBL_MAX && v <= DBL_MAX; }
};

// A variable: always finite, 0 at birth. Assigning an expression without a value leaves it alone, so a formula is
// written as the formula and keeps the old value where it faults. Trivially copyable: arrays keep stale elements too.
class Reale {
public:
    constexpr Reale() = default;
    constexpr Reale(Valore e) : n(e.esiste() ? e.v : 0.0) {}  // NOLINT
    constexpr Reale(double e) : Reale(Valore(e)) {}           // NOLINT
    template <std::integral I>
    constexpr Reale(I e) : n(static_cast<double>(e)) {}  // NOLINT

    constexpr Reale &operator=(Valore e) {
        if (e.esiste()) n = e.v;
        return *this;
    }
    constexpr Reale &operator=(double e) { return *this = Valore(e); }
    template <std::integral I>
    constexpr Reale &operator=(I e) {
        n = static_cast<double>(e);
        return *this;
    }
    constexpr Reale &operator+=(Valore e) { return *this = Valore(n + e.v); }

    constexpr operator Valore() const { return {n}; }  // NOLINT
    [[nodiscard]] constexpr double numero() const { return n; }

private:
    double n = 0.0;
};

static_assert(std::is_trivially_copyable_v<Reale> && sizeof(Reale) == sizeof(double));

constexpr Valore operator+(Valore a, Valore b) { return {a.v + b.v}; }
constexpr Valore operator-(Valore a, Valore b) { return {a.v - b.v}; }
constexpr Valore operator*(Valore a, Valore b) { return {a.v * b.v}; }
constexpr Valore operator-(Valore a) { return {-a.v}; }
// x / 0 is infinite, hence no value; a faulted divisor must not come back as 0.
constexpr Valore operator/(Valore a, Valore b) { return b.esiste() ? Valore(b.v == 0 ? Valore::nessuno() : a.v / b.v) : b; }

// A comparison with no value is false, whichever it is.
constexpr bool operator<(Valore a, Valore b) { return a.v < b.v && a.esiste() && b.esiste(); }
constexpr bool operator>(Valore a, Valore b) { return b < a; }
constexpr bool operator<=(Valore a, Valore b) { return a.v <= b.v && a.esiste() && b.esiste(); }
constexpr bool operator>=(Valore a, Valore b) { return b <= a; }
constexpr bool operator==(Valore a, Valore b) { return a.v == b.v && a.esiste(); }
constexpr bool operator!=(Valore a, Valore b) { return a.v != b.v && a.esiste() && b.esiste(); }

inline Valore sin(Valore a) { return {std::sin(a.v)}; }
inline Valore cos(Valore a) { return {std::cos(a.v)}; }
inline Valore tan(Valore a) { return {std::tan(a.v)}; }
inline Valore Atn(Valore a) { return a.esiste() ? Valore(std::atan(a.v)) : a; }
inline Valore Sqr(Valore a) { return {std::sqrt(a.v)}; }
inline Valore Abs(Valore a) { return {std::fabs(a.v)}; }
// Largest integer not above a: negatives move away from 0.
inline Valore Int(Valore a) { return {std::floor(a.v)}; }
// -1, 0 or 1.
constexpr Valore Sgn(Valore a) { return a.esiste() ? Valore((a.v > 0) - (a.v < 0)) : a; }

}  // namespace ombrelia
