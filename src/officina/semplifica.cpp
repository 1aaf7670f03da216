// Chords seen from one end: a wedge of directions that pass every point so far within the tolerance.
#include "officina/semplifica.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace ombrelia::officina {

namespace {

class Spicchio {
public:
    Spicchio(P2 da, double tolleranza) : da_(da), t_(tolleranza) {}

    enum class Veduta : std::uint8_t { Si, No, Basta };
    // Whether the chord to p passes all points seen so far; p is seen afterwards. Basta: no chord farther on can.
    Veduta vede(P2 p) {
        const P2 v = p - da_;
        const double r = Lungo(v);
        // A point nearer than one before it: the line turns back, and a chord to it would leave that one behind.
        const bool indietro = r < lontano_;
        const double a = std::atan2(v.y, v.x);
        bool passa = !indietro;
        if (largo_ < 2 * std::numbers::pi) {
            const double d = normale(a - da0_);
            passa = passa && r > 0 && d <= largo_;
        }
        lontano_ = std::max(lontano_, r);
        if (r <= t_) return passa ? Veduta::Si : Veduta::No;  // near the start: every direction passes it
        const double mezzo = std::asin(t_ / r);
        restringi(a - mezzo, 2 * mezzo);
        if (vuoto_ || (indietro && lontano_ - r > t_)) return passa ? (fermo_ = true, Veduta::Si) : Veduta::Basta;
        return passa ? Veduta::Si : Veduta::No;
    }
    [[nodiscard]] bool fermo() const { return fermo_; }

private:
    static double normale(double a) {
        constexpr double GIRO = 2 * std::numbers::pi;
        a = std::fmod(a, GIRO);
        return a < 0 ? a + GIRO : a;
    }
    // The directions that stay: those from da0_, largo_ wide, that also lie in the new range.
    void restringi(double da, double largo) {
        if (largo_ >= 2 * std::numbers::pi) {
            da0_ = da;
            largo_ = largo;
            return;
        }
        const double inizio = normale(da - da0_);
        constexpr double GIRO = 2 * std::numbers::pi;
        if (inizio <= largo_) {  // begins inside
            da0_ += inizio;
            largo_ = std::min(largo_ - inizio, largo);
        } else if (inizio + largo >= GIRO) {  // ends inside
            largo_ = std::min(largo_, inizio + largo - GIRO);
        } else {
            vuoto_ = true;
        }
    }

    P2 da_;
    double t_, lontano_ = 0, da0_ = 0, largo_ = 2 * std::numbers::pi;
    bool vuoto_ = false, fermo_ = false;
};

}  // namespace

void Sfoltisci(std::vector<P2> &p, double tolleranza) {
    if (p.size() < 3) return;
    std::vector<P2> esito{p[0]};
    std::size_t i = 0;
    while (i + 1 < p.size()) {
        Spicchio s(p[i], tolleranza);
        std::size_t meglio = i + 1;
        for (std::size_t j = i + 1; j < p.size(); ++j) {
            const auto e = s.vede(p[j]);
            if (e == Spicchio::Veduta::Si) meglio = j;
            if (e != Spicchio::Veduta::Si || s.fermo()) break;
        }
        esito.push_back(p[meglio]);
        i = meglio;
    }
    p = std::move(esito);
}

void Semplifica(std::vector<P2> &p, double tolleranza) {
    const std::size_t n = p.size();
    if (n < 3) return;
    constexpr std::uint32_t MAI = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint32_t> passi(n, MAI), da(n, 0);
    passi[0] = 0;
    for (std::size_t i = 0; i + 1 < n; ++i) {
        Spicchio s(p[i], tolleranza);
        for (std::size_t j = i + 1; j < n; ++j) {
            const auto e = s.vede(p[j]);
            // The next point always can be reached, even one that lies on this one.
            if ((e == Spicchio::Veduta::Si || j == i + 1) && passi[i] + 1 < passi[j]) {
                passi[j] = passi[i] + 1;
                da[j] = static_cast<std::uint32_t>(i);
            }
            if (e == Spicchio::Veduta::Basta || s.fermo()) break;
        }
    }
    std::vector<P2> esito;
    for (std::size_t k = n - 1; k != 0; k = da[k]) esito.push_back(p[k]);
    esito.push_back(p[0]);
    std::reverse(esito.begin(), esito.end());
    p = std::move(esito);
}

}  // namespace ombrelia::officina
