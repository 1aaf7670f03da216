// What the tests of glyphs measure: the box of a drawing and its balance, in metres of the sheet; its joints.
#pragma once

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>
#include <vector>

#include "plot/lista.h"

namespace ombrelia::prova {

// The box of the strokes, y growing downward, and their weight.
struct Ingombro {
    double sinistra = 1e9, destra = -1e9, alto = 1e9, basso = -1e9;
    double inchiostro = 0, mx = 0, my = 0;  // length of the strokes and its moments

    explicit Ingombro(const std::vector<RecLinea> &linee, const std::vector<RecFigura> &cerchi = {}) {
        for (const RecLinea &l : linee) tratto(l.X1, l.Y1, l.X2, l.Y2);
        for (const RecFigura &f : cerchi) {
            const double giro = 2 * std::acos(-1.0), arco = f.B == 0 ? giro : std::fmod(f.B - f.A + giro, giro);
            const auto x = [&](int i) { return f.X1 + f.X2 * std::cos(f.A + arco * i / 200); };
            const auto y = [&](int i) { return f.Y1 - f.X2 * std::sin(f.A + arco * i / 200); };
            for (int i = 0; i < 200; ++i) tratto(x(i), y(i), x(i + 1), y(i + 1));
        }
    }
    void tratto(double x1, double y1, double x2, double y2) {
        sinistra = std::min({sinistra, x1, x2}), destra = std::max({destra, x1, x2});
        alto = std::min({alto, y1, y2}), basso = std::max({basso, y1, y2});
        const double l = std::hypot(x2 - x1, y2 - y1);
        inchiostro += l, mx += l * (x1 + x2) / 2, my += l * (y1 + y2) / 2;
    }
    [[nodiscard]] double larghezza() const { return destra - sinistra; }
    [[nodiscard]] double altezza() const { return basso - alto; }
    [[nodiscard]] double x() const { return (sinistra + destra) / 2; }
    [[nodiscard]] double y() const { return (alto + basso) / 2; }
    // Whether the weight lies on a side of the box's middle: 1 right or up, -1 left or down, 0 wherever it likes.
    [[nodiscard]] bool pende(double destra_, double su, double gioco) const {
        return (destra_ == 0 || destra_ * (mx / inchiostro - x()) > gioco) && (su == 0 || su * (y() - my / inchiostro) > gioco);
    }
};

// From a point to the nearest of a line's own.
inline double Distanza(double x, double y, const RecLinea &l) {
    const double dx = l.X2 - l.X1, dy = l.Y2 - l.Y1, q = dx * dx + dy * dy;
    const double t = q == 0 ? 0 : std::clamp(((x - l.X1) * dx + (y - l.Y1) * dy) / q, 0.0, 1.0);
    return std::hypot(x - l.X1 - t * dx, y - l.Y1 - t * dy);
}

// How many separate pieces the lines make, where an end that lies on another line joins it.
inline std::size_t Pezzi(const std::vector<RecLinea> &linee, double gioco) {
    std::vector<std::size_t> pezzo(linee.size());
    std::iota(pezzo.begin(), pezzo.end(), std::size_t{0});
    for (std::size_t i = 0; i < linee.size(); ++i)
        for (std::size_t k = 0; k < linee.size(); ++k) {
            const RecLinea &l = linee[i], &m = linee[k];
            if (std::min(Distanza(l.X1, l.Y1, m), Distanza(l.X2, l.Y2, m)) <= gioco)
                std::replace(pezzo.begin(), pezzo.end(), std::size_t{pezzo[k]}, std::size_t{pezzo[i]});
        }
    return std::set(pezzo.begin(), pezzo.end()).size();
}

}  // namespace ombrelia::prova
