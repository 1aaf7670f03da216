// A grid of cells over the field; what lies beyond it is kept in the cells of its edge.
#include "officina/griglia.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "officina/passi.h"

namespace ombrelia::officina {

namespace {

constexpr double CELLA = 3;    // mm, at the least
constexpr double CELLE = 400;  // along the longer side, at the most

// The part of a-b within r of the segment c-d: convex, so one interval, found as the hull of its parts in the strip
// and in the two round ends.
bool nelBordo(P2 a, P2 b, P2 c, P2 d, double r, double &t0, double &t1) {
    const P2 v = b - a, w = d - c;
    t0 = 2;
    t1 = -1;
    const auto prendi = [&](double p, double q) {
        p = std::max(p, 0.0);
        q = std::min(q, 1.0);
        if (p > q) return;
        t0 = std::min(t0, p);
        t1 = std::max(t1, q);
    };
    const double vv = Scalare(v, v), lw = Lungo(w);
    for (const P2 centro : {c, d}) {
        const P2 u = a - centro;
        if (vv == 0) {
            if (Lungo(u) <= r) prendi(0, 1);
            continue;
        }
        const double m = Scalare(u, v), delta = m * m - vv * (Scalare(u, u) - r * r);
        if (delta >= 0) prendi((-m - std::sqrt(delta)) / vv, (-m + std::sqrt(delta)) / vv);
    }
    if (lw > 0) {
        const P2 e = (1 / lw) * w;
        double p = 0, q = 1;
        const auto tra = [&](double inizio, double verso, double minimo, double massimo) {
            if (std::fabs(verso) < 1e-12) {
                if (inizio < minimo || inizio > massimo) q = -1;
                return;
            }
            const double s = (minimo - inizio) / verso, t = (massimo - inizio) / verso;
            p = std::max(p, std::min(s, t));
            q = std::min(q, std::max(s, t));
        };
        tra(Scalare(a - c, e), Scalare(v, e), 0, lw);
        tra(Croce(e, a - c), Croce(e, v), -r, r);
        if (p <= q) prendi(p, q);
    }
    return t0 <= t1;
}

}  // namespace

double DistanzaDalSegmento(P2 p, P2 a, P2 b) {
    const P2 v = b - a;
    const double vv = Scalare(v, v);
    if (vv == 0) return Distanza(p, a);
    return Distanza(p, a + std::clamp(Scalare(p - a, v) / vv, 0.0, 1.0) * v);
}

Griglia::Griglia(const Riquadro &c) : x0_(c.x0), y0_(c.y0) {
    const double l = std::max(c.x1 - c.x0, 1.0), h = std::max(c.y1 - c.y0, 1.0);
    lato_ = std::max(CELLA, std::max(l, h) / CELLE);
    nx_ = static_cast<int>(l / lato_) + 1;
    ny_ = static_cast<int>(h / lato_) + 1;
    celle_.resize(static_cast<std::size_t>(nx_) * static_cast<std::size_t>(ny_));
}

int Griglia::colonna(double x) const { return static_cast<int>(std::clamp((x - x0_) / lato_, 0.0, nx_ - 1.0)); }
int Griglia::riga(double y) const { return static_cast<int>(std::clamp((y - y0_) / lato_, 0.0, ny_ - 1.0)); }

// The cells that a segment with its margin touches, a column at a time.
template <class F>
void Griglia::celle(P2 a, P2 b, double margine, F &&f) const {
    if (a.x > b.x) std::swap(a, b);
    const int c0 = colonna(a.x - margine), c1 = colonna(b.x + margine);
    const double pendio = b.x > a.x ? (b.y - a.y) / (b.x - a.x) : 0;
    for (int c = c0; c <= c1; ++c) {
        double ya = std::min(a.y, b.y), yb = std::max(a.y, b.y);
        if (b.x > a.x) {
            const double xa = c == c0 ? a.x : std::clamp(x0_ + c * lato_ - margine, a.x, b.x);
            const double xb = c == c1 ? b.x : std::clamp(x0_ + (c + 1) * lato_ + margine, a.x, b.x);
            const double y1 = a.y + pendio * (xa - a.x), y2 = a.y + pendio * (xb - a.x);
            ya = std::min(y1, y2);
            yb = std::max(y1, y2);
        }
        const int r0 = riga(ya - margine), r1 = riga(yb + margine);
        for (int r = r0; r <= r1; ++r)
            f(static_cast<std::size_t>(r) * static_cast<std::size_t>(nx_) + static_cast<std::size_t>(c));
    }
}

void Griglia::aggiungi(P2 a, P2 b) {
    const auto n = static_cast<std::uint32_t>(segmenti_.size());
    segmenti_.push_back({a, b});
    visto_.push_back(0);
    celle(a, b, 0, [&](std::size_t i) { celle_[i].push_back(n); });
}

void Griglia::coperto(P2 a, P2 b, double distanza, std::vector<std::pair<double, double>> &parti) const {
    ++giro_;
    celle(a, b, distanza, [&](std::size_t i) {
        for (const std::uint32_t n : celle_[i]) {
            if (visto_[n] == giro_) continue;
            visto_[n] = giro_;
            double t0, t1;
            if (nelBordo(a, b, segmenti_[n].a, segmenti_[n].b, distanza, t0, t1)) parti.emplace_back(t0, t1);
        }
    });
    if (parti.size() < 2) return;
    std::sort(parti.begin(), parti.end());
    std::size_t k = 0;
    for (std::size_t i = 1; i < parti.size(); ++i) {
        if (parti[i].first <= parti[k].second) parti[k].second = std::max(parti[k].second, parti[i].second);
        else parti[++k] = parti[i];
    }
    parti.resize(k + 1);
}

double Griglia::distanza(P2 p, double fino) const {
    double minima = std::numeric_limits<double>::infinity();
    celle(p, p, fino, [&](std::size_t i) {
        for (const std::uint32_t n : celle_[i]) minima = std::min(minima, DistanzaDalSegmento(p, segmenti_[n].a, segmenti_[n].b));
    });
    return minima <= fino ? minima : std::numeric_limits<double>::infinity();
}

bool Griglia::entra(P2 centro, P2 asse, double a, double b) const {
    const P2 su{-asse.y, asse.x}, mezzo{std::fabs(asse.x) * a + std::fabs(su.x) * b, std::fabs(asse.y) * a + std::fabs(su.y) * b};
    for (int c = colonna(centro.x - mezzo.x); c <= colonna(centro.x + mezzo.x); ++c)
        for (int r = riga(centro.y - mezzo.y); r <= riga(centro.y + mezzo.y); ++r)
            for (const std::uint32_t n :
                 celle_[static_cast<std::size_t>(r) * static_cast<std::size_t>(nx_) + static_cast<std::size_t>(c)]) {
                P2 p{Scalare(segmenti_[n].a - centro, asse), Scalare(segmenti_[n].a - centro, su)};
                P2 q{Scalare(segmenti_[n].b - centro, asse), Scalare(segmenti_[n].b - centro, su)};
                if (Taglia({-a, -b, a, b}, p, q)) return true;
            }
    return false;
}

}  // namespace ombrelia::officina
