// Ranges that count as the program always counted: by repeated addition of the step, both bounds included. That fixes
// how many points a line has, so no routine writes a loop over a real counter of its own.
#pragma once

#include <cmath>
#include <iterator>

#include "core/reale.h"

namespace ombrelia {

// Steps that one loop may take before the run is refused.
inline constexpr double PASSI_MASSIMI = 5e6;
// Points that a whole nest of loops may compute: what a patient user and the memory still bear.
inline constexpr double PUNTI_MASSIMI = 1e8;

class Conteggio {
public:
    // Runs from da to a by passo. Runs not at all when a bound or the step has no value, the step is 0 or points away
    // from the end, or is too small to change the counter.
    constexpr Conteggio(Valore da, Valore a, Valore passo) : inizio_(da.v), fine_(a.v), passo_(passo.v) {
        const bool sano = da.esiste() && a.esiste() && passo.esiste();
        if (!sano || passo_ == 0 || inizio_ + passo_ == inizio_) fermo_ = true;
    }

    // How many steps the loop would take. Given: its bounds and step. Gives: a whole number, not below 0, good to one step.
    // Source: elementary; departure: not by the addition that the loop itself does. Faults: 0 for a loop that doesn't run.
    [[nodiscard]] double passi() const {
        if (fermo_) return 0;
        const double n = std::floor((fine_ - inizio_) / passo_) + 1;
        return n > 0 ? n : 0;
    }
    [[nodiscard]] bool eccessivo() const { return passi() > PASSI_MASSIMI + 1; }

    class Passo {
    public:
        using value_type = double;
        using difference_type = std::ptrdiff_t;
        constexpr Passo(double v, double fine, double passo, bool finito) : v_(v), fine_(fine), passo_(passo), finito_(finito) {}
        constexpr double operator*() const { return v_; }
        constexpr Passo &operator++() {
            const double dopo = v_ + passo_;
            finito_ = dopo == v_;  // a counter that has grown past its step stands still: end
            v_ = dopo;
            return *this;
        }
        constexpr void operator++(int) { ++*this; }
        constexpr bool operator==(std::default_sentinel_t) const { return finito_ || !(passo_ > 0 ? v_ <= fine_ : v_ >= fine_); }

    private:
        double v_, fine_, passo_;
        bool finito_;
    };

    // An excessive loop never starts, whatever its caller forgot to test.
    [[nodiscard]] Passo begin() const { return {inizio_, fine_, passo_, fermo_ || eccessivo()}; }
    [[nodiscard]] std::default_sentinel_t end() const { return {}; }

private:
    double inizio_, fine_, passo_;
    bool fermo_ = false;
};

}  // namespace ombrelia
