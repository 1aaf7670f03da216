// Clipping at the sheet.
#include "plot/quadrante.h"

#include <array>
#include <cmath>

namespace ombrelia {

std::optional<PuntoPiano> IntersezioneDueRette(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                                               double y4) {
    const double dx1 = x2 - x1, dy1 = y2 - y1, dx2 = x4 - x3, dy2 = y4 - y3;
    const double denX = dy1 * dx2 - dy2 * dx1;
    const double denY = dx1 * dy2 - dx2 * dy1;
    if (denX == 0 || denY == 0) return {};
    const double c1 = x1 * dy1 - y1 * dx1, c2 = x3 * dy2 - y3 * dx2;
    const PuntoPiano p{(c1 * dx2 - c2 * dx1) / denX, (c2 * dy1 - c1 * dy2) / denY};
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return {};
    return p;
}

int Quadrante::RitagliaSegmento(double &X1, double &Y1, double &X2, double &Y2) const {
    const bool primo = copre(X1, Y1), secondo = copre(X2, Y2);
    if (primo && secondo) return 2;
    if (X1 == X2 && Y1 == Y2) return 0;
    const double sx = -x, dx = L - x, su = y, giu = y - H;

    // Place of a point along the segment: 0 at its first end, 1 at its second. Of the longer component: squares of
    // lengths underflow.
    const double lx = X2 - X1, ly = Y2 - Y1;
    const auto posto = [&](const PuntoPiano &p) { return std::fabs(lx) > std::fabs(ly) ? (p.x - X1) / lx : (p.y - Y1) / ly; };
    struct Bordo {
        double x1, y1, x2, y2;
    };
    std::array<PuntoPiano, 4> colpi{};
    std::size_t n = 0;
    for (const Bordo &l : {Bordo{sx, su, dx, su}, Bordo{dx, su, dx, giu}, Bordo{sx, giu, dx, giu}, Bordo{sx, su, sx, giu}}) {
        auto p = IntersezioneDueRette(X1, Y1, X2, Y2, l.x1, l.y1, l.x2, l.y2);
        if (!p) continue;
        const bool orizzontale = l.y1 == l.y2;
        (orizzontale ? p->y : p->x) = orizzontale ? l.y1 : l.x1;
        if (orizzontale ? !(sx <= p->x && p->x <= dx) : !(giu <= p->y && p->y <= su)) continue;
        colpi[n++] = *p;
    }
    if (primo || secondo) {
        // The end on the sheet stays; the hit farthest on the other end's side of it replaces the other.
        std::size_t scelto = n;
        double migliore = 0;
        for (std::size_t i = 0; i < n; ++i) {
            const double avanti = primo ? posto(colpi[i]) : 1 - posto(colpi[i]);
            if (avanti >= 0 && (scelto == n || avanti > migliore)) {
                migliore = avanti;
                scelto = i;
            }
        }
        if (scelto == n) return 0;
        (primo ? X2 : X1) = colpi[scelto].x;
        (primo ? Y2 : Y1) = colpi[scelto].y;
        return 2;
    }
    // Hits beyond the ends are hits of the line only; a corner is hit on two sides and counts once.
    std::array<PuntoPiano, 2> fini{};
    int esito = 0;
    for (std::size_t i = 0; i < n && esito < 2; ++i) {
        const double t = posto(colpi[i]);
        if (!(t >= 0 && t <= 1)) continue;
        if (esito == 1 && colpi[i].x == fini[0].x && colpi[i].y == fini[0].y) continue;
        fini[static_cast<std::size_t>(esito++)] = colpi[i];
    }
    if (esito == 0) return 0;
    if (esito == 1) fini[1] = fini[0];
    X1 = fini[0].x;
    Y1 = fini[0].y;
    X2 = fini[1].x;
    Y2 = fini[1].y;
    return esito;
}

}  // namespace ombrelia
