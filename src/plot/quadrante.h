// The sheet as a value: its size and where the world's origin lies on it.
#pragma once

#include <optional>

#include "core/reale.h"

namespace ombrelia {

// In this file, and nowhere else, y is turned: here about the foot, between a dial's ordinate and that of xLine
// and its like, which grows downward; in dallAlto about the sheet's edge.
template <class N>
[[nodiscard]] constexpr N Capovolta(N y) {
    return -y;
}

// Metres. L wide, H high, the origin (x, y) from the top left corner; in world coordinates, y upward, the sheet reaches from
// (-x, y) at its top left to (L - x, y - H).
struct Quadrante {
    double L = 0, H = 0, x = 0, y = 0;

    // Where a place of the world lies on the sheet, from its top left corner: a dial's y grows upward, the sheet's downward. What
    // undoes dallAlto is dallAlto.
    template <class N>
    [[nodiscard]] N daSinistra(N X) const {
        return X + x;
    }
    template <class N>
    [[nodiscard]] N dallAlto(N Y) const {
        return y - Y;
    }
    // The left and the top edge belong to the sheet, the others do not; no value lies nowhere.
    [[nodiscard]] bool tiene(Valore X, Valore Y) const { return -x <= X && X < L - x && Y <= y && Y > y - H; }
    // With all its edges.
    [[nodiscard]] bool copre(double X, double Y) const { return -x <= X && X <= L - x && y - H <= Y && Y <= y; }
    // The part of a segment (world metres) that lies on the sheet. Gives how many ends were kept or found; at 0 nothing of
    // it does.
    int RitagliaSegmento(double &X1, double &Y1, double &X2, double &Y2) const;
};

// Meeting point of the line through points 1 and 2 with the line through points 3 and 4. Given, gives: any one unit. Source:
// plane geometry. Faults: none when they are parallel.
struct PuntoPiano {
    double x, y;
};
[[nodiscard]] std::optional<PuntoPiano> IntersezioneDueRette(double x1, double y1, double x2, double y2, double x3, double y3,
                                                             double x4, double y4);

}  // namespace ombrelia
