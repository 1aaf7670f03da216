// Fewer points for the same line, as an eye sees it.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace ombrelia {

// From one point, goes on while a straight line passes all points by: a wedge of directions that grows narrower.
template <class P>
class Cuneo {
public:
    Cuneo(const P &da, double tolleranza) : da_(da), tolleranza_(tolleranza) {}
    // Whether the chord to p passes the points before it by; then p is one of them.
    bool prende(const P &p) {
        const V v{static_cast<double>(p.x - da_.x), static_cast<double>(p.y - da_.y)};
        const double r = std::sqrt(v.x * v.x + v.y * v.y);
        if (r < lontano_ - tolleranza_) return false;  // it turns back
        if (aperto_ && (croce(basso_, v) < 0 || croce(v, alto_) < 0)) return false;
        lontano_ = std::max(lontano_, r);
        if (r <= tolleranza_) return true;
        const double s = tolleranza_ / r, c = std::sqrt(1 - s * s);
        const V basso{v.x * c + v.y * s, v.y * c - v.x * s}, alto{v.x * c - v.y * s, v.y * c + v.x * s};
        if (!aperto_ || croce(basso_, basso) > 0) basso_ = basso;
        if (!aperto_ || croce(alto, alto_) > 0) alto_ = alto;
        aperto_ = true;
        return true;
    }

private:
    struct V {
        double x = 0, y = 0;
    };
    static double croce(const V &a, const V &b) { return a.x * b.y - a.y * b.x; }
    P da_;
    double tolleranza_, lontano_ = 0;
    V basso_, alto_;
    bool aperto_ = false;
};

// Leaves out points of a path that it passes within the tolerance, in the unit of the points; its ends stay.
template <class P>
void Snellisci(std::vector<P> &punti, double tolleranza) {
    std::size_t tenuti = 1;
    for (std::size_t i = 0; i + 1 < punti.size();) {
        Cuneo cuneo(punti[i], tolleranza);
        std::size_t k = i + 1;
        while (k < punti.size() && cuneo.prende(punti[k])) ++k;
        i = std::max(k - 1, i + 1);
        punti[tenuti++] = punti[i];
    }
    if (!punti.empty()) punti.resize(tenuti);
}

// What a screen shows of points with whole coordinates. A pixel of nothing is paper: all of them.
struct Occhio {
    double pixel = 0;  // in steps of the coordinates

    // A path as it looks.
    template <class P>
    void snellisci(std::vector<P> &percorso) const {
        if (pixel <= 0) return;
        Snellisci(percorso, pixel / 10);
        for (P &p : percorso) p = {tondo(p.x), tondo(p.y)};
    }
    // Points so near that they look like a line.
    template <class P>
    [[nodiscard]] bool attaccati(const P &p, const P &q) const {
        return pixel > 0 && std::hypot(static_cast<double>(p.x - q.x), static_cast<double>(p.y - q.y)) < ATTACCO * pixel;
    }

private:
    static constexpr double ATTACCO = 1.25;
    // To the digits that show.
    template <class N>
    [[nodiscard]] N tondo(N n) const {
        N grana = 1;
        while (static_cast<double>(grana) * 100 <= pixel) grana *= 10;
        return (n >= 0 ? n + grana / 2 : n - grana / 2) / grana * grana;
    }
};

}  // namespace ombrelia
