// Ears cut off a polygon, its holes first joined to it by bridges.
#include "officina/triangoli.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ombrelia::officina {

namespace {

std::int64_t croce(Pm a, Pm b, Pm c) { return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x); }

bool nelTriangolo(Pm a, Pm b, Pm c, Pm p) { return croce(a, b, p) >= 0 && croce(b, c, p) >= 0 && croce(c, a, p) >= 0; }

// A ring of vertices; the present polygon is what the links still hold.
class Anello {
public:
    Anello(const Contorno &fuori, std::vector<Contorno> fori) {
        aggiungi(fuori);
        std::sort(fori.begin(), fori.end(), [](const Contorno &a, const Contorno &b) { return a[destro(a)].x > b[destro(b)].x; });
        for (const Contorno &f : fori) ponte(f);
    }

    std::vector<std::array<Pm, 3>> taglia() {
        std::vector<std::array<Pm, 3>> esito;
        const std::size_t n = p_.size();
        if (n < 3) return esito;
        esito.reserve(n);
        preparaGriglia();
        std::size_t resto = n, i = 0, fermi = 0;
        bool piatte = false;  // ears without area are cut only where nothing else can be
        while (resto > 2) {
            const std::size_t a = prima_[i], b = i, c = dopo_[i];
            const std::int64_t area = croce(p_[a], p_[b], p_[c]);
            if ((area > 0 && orecchio(a, b, c)) || (piatte && area == 0)) {
                esito.push_back({p_[a], p_[b], p_[c]});
                dopo_[a] = c;
                prima_[c] = a;
                via_[b] = 1;
                --resto;
                fermi = 0;
                piatte = false;
                i = dopo_[c];  // not the neighbour: long fans make slivers
                continue;
            }
            i = dopo_[i];
            if (++fermi <= resto) continue;
            if (piatte) break;
            piatte = true;
            fermi = 0;
        }
        return esito;
    }

private:
    static std::size_t destro(const Contorno &c) {
        return static_cast<std::size_t>(
            std::max_element(c.begin(), c.end(), [](Pm a, Pm b) { return a.x != b.x ? a.x < b.x : a.y < b.y; }) - c.begin());
    }

    void aggiungi(const Contorno &c) {
        const std::size_t n = c.size();
        for (std::size_t i = 0; i < n; ++i) {
            p_.push_back(c[i]);
            dopo_.push_back((i + 1) % n);
            prima_.push_back((i + n - 1) % n);
        }
    }

    // Joins a hole by its rightmost vertex to a vertex of the ring that it sees.
    void ponte(const Contorno &f) {
        const std::size_t m = destro(f);
        const Pm M = f[m];
        // The nearest edge to the right at the height of M.
        double vicino = std::numeric_limits<double>::infinity();
        std::size_t scelto = p_.size();
        std::size_t i = 0;
        do {
            const Pm a = p_[i], b = p_[dopo_[i]];
            if (a.y <= M.y && b.y >= M.y && a.y != b.y) {
                const double x = static_cast<double>(a.x) +
                                 static_cast<double>(M.y - a.y) * static_cast<double>(b.x - a.x) / static_cast<double>(b.y - a.y);
                if (x >= static_cast<double>(M.x) && x < vicino) {
                    vicino = x;
                    scelto = a.x > b.x ? i : dopo_[i];
                }
            }
            i = dopo_[i];
        } while (i != 0);
        if (scelto == p_.size()) return;  // not inside: the contract is broken, and the hole is not made
        // Of the vertices between M and the edge's end the one at the smallest angle is seen.
        const Pm P = p_[scelto];
        const double h = vicino;
        double migliore = std::numeric_limits<double>::infinity(), lontano = migliore;
        std::size_t visto = scelto;
        i = 0;
        do {
            const Pm q = p_[i];
            const auto lato = [](double ax, double ay, double bx, double by, double x, double y) {
                return (bx - ax) * (y - ay) - (by - ay) * (x - ax);
            };
            const double mx = static_cast<double>(M.x), my = static_cast<double>(M.y), px = static_cast<double>(P.x),
                         py = static_cast<double>(P.y);
            const double qx = static_cast<double>(q.x), qy = static_cast<double>(q.y);
            const bool su = py > my;
            const double s1 = lato(mx, my, h, my, qx, qy), s2 = lato(h, my, px, py, qx, qy), s3 = lato(px, py, mx, my, qx, qy);
            const bool dentro = su ? (s1 >= 0 && s2 >= 0 && s3 >= 0) : (s1 <= 0 && s2 <= 0 && s3 <= 0);
            if (qx >= mx && (dentro || i == scelto)) {
                const double dx = qx - mx, pendio = dx > 0 ? std::fabs(qy - my) / dx : std::numeric_limits<double>::max();
                if ((pendio < migliore || (pendio == migliore && dx < lontano)) && vede(i, M)) {
                    migliore = pendio;
                    lontano = dx;
                    visto = i;
                }
            }
            i = dopo_[i];
        } while (i != 0);
        // ring: ... visto, M, the hole around, M again, visto again, ...
        const std::size_t base = p_.size(), n = f.size(), oltre = dopo_[visto];
        for (std::size_t k = 0; k <= n; ++k) {
            p_.push_back(f[(m + k) % n]);
            prima_.push_back(k == 0 ? visto : base + k - 1);
            dopo_.push_back(base + k + 1);
        }
        p_.push_back(p_[visto]);
        prima_.push_back(base + n);
        dopo_.push_back(oltre);
        dopo_[visto] = base;
        prima_[oltre] = base + n + 1;
    }

    // Whether a point lies in the angle that the ring opens at a vertex: bridges make several vertices of one place.
    [[nodiscard]] bool vede(std::size_t i, Pm m) const {
        const Pm a = p_[prima_[i]], b = p_[i], c = p_[dopo_[i]];
        return croce(a, b, c) >= 0 ? croce(b, m, a) > 0 && croce(b, c, m) > 0 : !(croce(b, m, c) >= 0 && croce(b, a, m) >= 0);
    }

    void preparaGriglia() {
        via_.assign(p_.size(), 0);
        x0_ = y0_ = std::numeric_limits<std::int64_t>::max();
        std::int64_t x1 = std::numeric_limits<std::int64_t>::min(), y1 = x1;
        for (const Pm q : p_) {
            x0_ = std::min(x0_, q.x), y0_ = std::min(y0_, q.y);
            x1 = std::max(x1, q.x), y1 = std::max(y1, q.y);
        }
        lato_ = std::max<std::int64_t>(
            1, std::max(x1 - x0_, y1 - y0_) /
                   std::max<std::int64_t>(1, static_cast<std::int64_t>(std::sqrt(static_cast<double>(p_.size())))));
        nx_ = (x1 - x0_) / lato_ + 1;
        celle_.assign(static_cast<std::size_t>(nx_ * ((y1 - y0_) / lato_ + 1)), {});
        // Only a vertex where the polygon is not convex can lie in an ear; none becomes so later.
        for (std::size_t i = 0; i < p_.size(); ++i)
            if (croce(p_[prima_[i]], p_[i], p_[dopo_[i]]) <= 0) celle_[cella(p_[i].x, p_[i].y)].push_back(i);
    }
    [[nodiscard]] std::size_t cella(std::int64_t x, std::int64_t y) const {
        return static_cast<std::size_t>((y - y0_) / lato_ * nx_ + (x - x0_) / lato_);
    }

    [[nodiscard]] bool orecchio(std::size_t a, std::size_t b, std::size_t c) const {
        const Pm A = p_[a], B = p_[b], C = p_[c];
        const auto [xa, xb] = std::minmax({A.x, B.x, C.x});
        const auto [ya, yb] = std::minmax({A.y, B.y, C.y});
        for (std::int64_t y = (ya - y0_) / lato_; y <= (yb - y0_) / lato_; ++y)
            for (std::int64_t x = (xa - x0_) / lato_; x <= (xb - x0_) / lato_; ++x)
                for (const std::size_t i : celle_[static_cast<std::size_t>(y * nx_ + x)]) {
                    if (via_[i] || i == a || i == b || i == c) continue;
                    const Pm q = p_[i];
                    if (q == A || q == B || q == C) {
                        // The same place by another way: it is in the way only when its edges go into the triangle.
                        if (entra(i, A, B, C)) return false;
                        continue;
                    }
                    if (nelTriangolo(A, B, C, q)) return false;
                }
        return true;
    }
    [[nodiscard]] bool entra(std::size_t i, Pm A, Pm B, Pm C) const {
        for (const std::size_t k : {prima_[i], dopo_[i]}) {
            const Pm q = p_[k];
            if (q == A || q == B || q == C) continue;
            // Direction of the edge strictly inside the corner of the triangle that lies here.
            const Pm v = p_[i], u = v == A ? B : v == B ? C : A, w = v == A ? C : v == B ? A : B;
            if (croce(v, u, q) > 0 && croce(v, q, w) > 0) return true;
        }
        return false;
    }

    std::vector<Pm> p_;
    std::vector<std::size_t> prima_, dopo_;
    std::vector<char> via_;
    std::vector<std::vector<std::size_t>> celle_;
    std::int64_t x0_ = 0, y0_ = 0, lato_ = 1, nx_ = 1;
};

}  // namespace

std::int64_t AreaDoppia(const Contorno &c) {
    std::int64_t s = 0;
    for (std::size_t i = 0; i < c.size(); ++i) {
        const Pm a = c[i], b = c[(i + 1) % c.size()];
        s += a.x * b.y - a.y * b.x;
    }
    return s;
}

std::vector<std::array<Pm, 3>> Triangola(const Contorno &fuori, std::vector<Contorno> fori) {
    return Anello(fuori, std::move(fori)).taglia();
}

}  // namespace ombrelia::officina
