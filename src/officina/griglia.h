// Segments found by their place.
#pragma once

#include "officina/disegno.h"

namespace ombrelia::officina {

// Given: a field and segments, millimetres. Gives: see each. Source: plane geometry on a grid of cells. Faults: a segment without
// length is a point.
class Griglia {
public:
    explicit Griglia(const Riquadro &campo);

    void aggiungi(P2 a, P2 b);
    // Intervals of the segment a-b, in parts of it from 0 to 1, that lie within the distance (mm) of a segment that is
    // kept here; they join those that stand in parti, merged and in order.
    void coperto(P2 a, P2 b, double distanza, std::vector<std::pair<double, double>> &parti) const;
    // Distance (mm) of a point from the nearest segment, looked for as far as fino; beyond it, infinity.
    [[nodiscard]] double distanza(P2 p, double fino) const;
    // Whether a segment enters the rectangle about centro, asse (a unit vector) its direction, a and b half its length
    // and half its height.
    [[nodiscard]] bool entra(P2 centro, P2 asse, double a, double b) const;

private:
    struct Segmento {
        P2 a, b;
    };
    template <class F>
    void celle(P2 a, P2 b, double margine, F &&f) const;
    [[nodiscard]] int colonna(double x) const;
    [[nodiscard]] int riga(double y) const;

    double x0_, y0_, lato_;
    int nx_, ny_;
    std::vector<std::vector<std::uint32_t>> celle_;
    std::vector<Segmento> segmenti_;
    mutable std::vector<std::uint32_t> visto_;
    mutable std::uint32_t giro_ = 0;
};

// Distance of a point from a segment. Given, gives: millimetres. Source: plane geometry. Faults: a segment without length is a
// point.
[[nodiscard]] double DistanzaDalSegmento(P2 p, P2 a, P2 b);

}  // namespace ombrelia::officina
