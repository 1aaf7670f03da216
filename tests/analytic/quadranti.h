// What the tests of walls share: runs of both engines on the same fields, and how far drawn hour lines lie apart.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "comuni/prova.h"

namespace ombrelia::prova {

inline double distanza(double x, double y, const RecLinea &l) {  // from the line through l
    const double dx = l.X2 - l.X1, dy = l.Y2 - l.Y1;
    return std::fabs((x - l.X1) * dy - (y - l.Y1) * dx) / std::hypot(dx, dy);
}

// The largest distance of the points from the nearest of the lines of their colour class (noon or not).
struct Confronto {
    double peggiore = 0;
    int punti = 0, mezzogiorno = 0;
};
// With noon apart, the red line is compared with the red points alone.
inline Confronto Confronta(const std::vector<RecLinea> &punti, const std::vector<RecLinea> &rette, bool mezzogiornoASe = true) {
    Confronto c;
    for (const RecLinea &p : punti) {
        const bool noon = p.colore == QB(12);
        double vicina = std::numeric_limits<double>::infinity();
        for (const RecLinea &r : rette)
            if (!mezzogiornoASe || noon == (r.colore == QB(12))) vicina = std::min(vicina, distanza(p.X1, p.Y1, r));
        if (!(vicina <= c.peggiore)) c.peggiore = vicina;
        ++c.punti;
        c.mezzogiorno += noon;
    }
    return c;
}

// Chains of chords as lines from their first to their last point; the short ones, which give no direction, left out.
inline std::vector<RecLinea> Rette(const std::vector<RecLinea> &corde, double lunghezza) {
    std::vector<RecLinea> r;
    for (const RecLinea &c : corde) {
        if (!r.empty() && r.back().X1 == c.X2 && r.back().Y1 == c.Y2 && r.back().colore == c.colore) {
            r.back().X1 = c.X1;
            r.back().Y1 = c.Y1;
        } else {
            r.push_back(c);
        }
    }
    std::erase_if(r, [lunghezza](const RecLinea &l) { return std::hypot(l.X1 - l.X2, l.Y1 - l.Y2) < lunghezza; });
    return r;
}

inline std::vector<RecPunto> puntiDi(const Banco &b, Colore colore) {
    std::vector<RecPunto> r;
    for (const RecPunto &p : b.lista().Punti)
        if (p.colore == colore) r.push_back(p);
    return r;
}

}  // namespace ombrelia::prova
