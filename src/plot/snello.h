// Fewer points for the same line, as an eye sees it.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace ombrelia {

// Chords seen from one end of a path: a wedge of directions, narrower with every point, whose chords pass all points seen so far
// within the tolerance. Of cross products alone: half the opening is below a right angle.
template <class P>
class Cuneo {
public:
    Cuneo(const P &da, double tolleranza) : da_(da), tolleranza_(tolleranza) {}

    // What a chord to the next point does: passes the points before it by; passes them, but one lies farther out by less than the
    // tolerance; misses one; misses one as every chord to a point that follows will.
    enum class Veduta : std::uint8_t { Si, Indietro, No, Basta };
    // The point is one of those seen from now on.
    Veduta vede(const P &p) {
        const V v{static_cast<double>(p.x - da_.x), static_cast<double>(p.y - da_.y)};
        const double r = std::sqrt(v.x * v.x + v.y * v.y);
        const bool indietro = r < lontano_, oltre = r < lontano_ - tolleranza_;
        const bool passa = !aperto_ || !(croce(basso_, v) < 0 || croce(v, alto_) < 0);
        lontano_ = std::max(lontano_, r);
        // A point near the start is passed in every direction.
        if (r > tolleranza_ && (!stringi(v, tolleranza_ / r, passa) || oltre)) return Veduta::Basta;
        if (oltre || !passa) return Veduta::No;
        return indietro ? Veduta::Indietro : Veduta::Si;
    }

private:
    struct V {
        double x = 0, y = 0;
    };
    static double croce(const V &a, const V &b) { return a.x * b.y - a.y * b.x; }

    // Leaves the directions that pass v too, s the sine of half their opening; false when there are none.
    bool stringi(const V &v, double s, bool dentro) {
        const double c = std::sqrt(1 - s * s);
        const V basso{v.x * c + v.y * s, v.y * c - v.x * s}, alto{v.x * c - v.y * s, v.y * c + v.x * s};
        const bool sotto = !aperto_ || croce(basso_, basso) > 0, sopra = !aperto_ || croce(alto, alto_) > 0;
        if (sotto) basso_ = basso;
        if (sopra) alto_ = alto;
        aperto_ = true;
        // Both edges new, around a direction that was out of the wedge: it lies opposite.
        return dentro || (!(sotto && sopra) && croce(basso_, alto_) >= 0 && basso_.x * v.x + basso_.y * v.y >= 0);
    }

    P da_;
    double tolleranza_, lontano_ = 0;
    V basso_, alto_;
    bool aperto_ = false;
};

// Leaves out points of a path that it passes within the tolerance, in the unit of the points, in one pass; its ends stay. A chord
// may end short of a point that it leaves out, by less than the tolerance, where it is told so: an eye doesn't see that.
enum class Capi : std::uint8_t { Corti, Interi };
template <class P>
void Snellisci(std::vector<P> &punti, double tolleranza, Capi capi) {
    using Veduta = typename Cuneo<P>::Veduta;
    std::size_t tenuti = 1;
    for (std::size_t i = 0; i + 1 < punti.size();) {
        Cuneo cuneo(punti[i], tolleranza);
        std::size_t k = i + 1;
        for (; k < punti.size(); ++k)
            if (const Veduta v = cuneo.vede(punti[k]); v != Veduta::Si && !(v == Veduta::Indietro && capi == Capi::Corti)) break;
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
        Snellisci(percorso, pixel / 10, Capi::Corti);
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
