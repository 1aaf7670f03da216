// What the tests of walls share: dials from one line of text, points drawn in a colour, lines made of chords, and how far drawn
// lines lie apart.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "comuni/prova.h"

namespace ombrelia::prova {

inline std::vector<RecPunto> puntiDi(const Banco &b, Colore colore) {
    std::vector<RecPunto> r = b.lista().Punti;
    std::erase_if(r, [colore](const RecPunto &p) { return p.colore != colore; });
    return r;
}

// A dial by its fields and boxes, set one after the other: "txtLAT=45 ckAssi".
struct QuadroProvato : Banco {
    explicit QuadroProvato(const std::string &come) { prepara(come); }
    void prepara(const std::string &come) {
        for (const std::string &c : Divisi(come, ' ')) {
            const std::size_t i = c.find('=');
            if (i == std::string::npos) spunta(c);
            else imposta({{std::string_view(c).substr(0, i), std::string_view(c).substr(i + 1)}});
        }
    }
    // Drawn alone by plane geometry.
    QuadroProvato &analitica() {
        premi("Tavolo1.cmdPulisci");
        premi("cmdEqui");
        return *this;
    }
    [[nodiscard]] std::vector<RecPunto> punti(int colore) const { return puntiDi(*this, QB(colore)); }
};

inline double distanza(double x, double y, const RecLinea &l) {  // from the line through l
    const double dx = l.X2 - l.X1, dy = l.Y2 - l.Y1;
    return std::fabs((x - l.X1) * dy - (y - l.Y1) * dx) / std::hypot(dx, dy);
}

// Distance from the nearest chord. A chord counts as long as itself once more at either end: one engine's line may reach
// beyond the other's by less than a chord, where the two sweeps end at other points or a frame cuts.
inline double DaCorde(double x, double y, const std::vector<RecLinea> &corde) {
    double minima = std::numeric_limits<double>::infinity();
    for (const RecLinea &c : corde) {
        const double ux = c.X2 - c.X1, uy = c.Y2 - c.Y1, l = ux * ux + uy * uy;
        const double t = l > 0 ? std::clamp(((x - c.X1) * ux + (y - c.Y1) * uy) / l, -1.0, 2.0) : 0;
        minima = std::min(minima, std::hypot(c.X1 + t * ux - x, c.Y1 + t * uy - y));
    }
    return minima;
}

// The largest distance of the points from the nearest line; with noon apart, red goes with red and the rest with the rest.
struct Confronto {
    double peggiore = 0;
    int punti = 0, mezzogiorno = 0;
};
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

}  // namespace ombrelia::prova
