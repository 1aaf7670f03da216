// What the tests of glyphs measure: the box of a drawing, in metres of the sheet, and its joints.
#pragma once

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "plot/lista.h"

namespace ombrelia::prova {

struct Ingombro {
    double sinistra = 1e9, destra = -1e9, alto = 1e9, basso = -1e9;  // y grows downward
    void aggiungi(double x, double y) {
        sinistra = std::min(sinistra, x), destra = std::max(destra, x);
        alto = std::min(alto, y), basso = std::max(basso, y);
    }
    [[nodiscard]] double larghezza() const { return destra - sinistra; }
    [[nodiscard]] double altezza() const { return basso - alto; }
    [[nodiscard]] double x() const { return (sinistra + destra) / 2; }
    [[nodiscard]] double y() const { return (alto + basso) / 2; }
};

inline Ingombro IngombroDi(const std::vector<RecLinea> &linee) {
    Ingombro r;
    for (const RecLinea &l : linee) r.aggiungi(l.X1, l.Y1), r.aggiungi(l.X2, l.Y2);
    return r;
}

// Lines and circles; an arc counts with its points, not with its whole circle.
inline Ingombro IngombroDi(const Lista &lista) {
    Ingombro r = IngombroDi(lista.Linee);
    for (const RecFigura &f : lista.Figure) {
        const double giro = 2 * std::acos(-1.0);
        const double arco = f.B == 0 ? giro : std::fmod(f.B - f.A + giro, giro);
        for (int i = 0; i <= 200; ++i) {
            const double t = f.A + arco * i / 200;
            r.aggiungi(f.X1 + f.X2 * std::cos(t), f.Y1 - f.X2 * std::sin(t));
        }
    }
    return r;
}

inline double Lunghezza(const RecLinea &l) { return std::hypot(l.X2 - l.X1, l.Y2 - l.Y1); }

inline double Distanza(double x, double y, const RecLinea &l) {
    const double dx = l.X2 - l.X1, dy = l.Y2 - l.Y1;
    const double t = std::clamp(((x - l.X1) * dx + (y - l.Y1) * dy) / (dx * dx + dy * dy), 0.0, 1.0);
    return std::hypot(x - l.X1 - t * dx, y - l.Y1 - t * dy);
}

// How many separate pieces the lines make, where an end that lies on another line joins it.
inline int Pezzi(const std::vector<RecLinea> &linee, double gioco) {
    std::vector<std::size_t> capo(linee.size());
    std::iota(capo.begin(), capo.end(), std::size_t{0});
    const auto trova = [&](std::size_t i) {
        while (capo[i] != i) i = capo[i];
        return i;
    };
    int pezzi = static_cast<int>(linee.size());
    for (std::size_t i = 0; i < linee.size(); ++i)
        for (std::size_t k = 0; k < linee.size(); ++k) {
            const RecLinea &l = linee[i];
            if (std::min(Distanza(l.X1, l.Y1, linee[k]), Distanza(l.X2, l.Y2, linee[k])) > gioco) continue;
            const std::size_t a = trova(i), b = trova(k);
            if (a != b) capo[a] = b, --pezzi;
        }
    return pezzi;
}

}  // namespace ombrelia::prova
