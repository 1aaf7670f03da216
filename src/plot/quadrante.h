// The sheet as a value: its size and where the world's origin lies on it.
#pragma once

#include <optional>

#include "core/reale.h"

namespace ombrelia {

// Metres. L wide, H high, the origin (x, y) from the top left corner; in world coordinates, y downward, the sheet reaches
// from (-x, -y) to (L - x, H - y).
struct Quadrante {
    double L = 0, H = 0, x = 0, y = 0;

    // The low edges belong to the sheet, the high ones do not; no value lies nowhere.
    [[nodiscard]] bool tiene(Valore X, Valore Y) const { return -x <= X && X < L - x && -y <= Y && Y < H - y; }
    // With all its edges.
    [[nodiscard]] bool copre(double X, double Y) const { return -x <= X && X <= L - x && -y <= Y && Y <= H - y; }
    // The part of a segment (world metres) that lies on the sheet. Gives how many ends were kept or found; at 0 nothing of
    // it does.
    int RitagliaSegmento(double &X1, double &Y1, double &X2, double &Y2) const;
};

// Meeting point of the line through points 1 and 2 with the line through points 3 and 4; none when they are parallel.
struct PuntoPiano {
    double x, y;
};
[[nodiscard]] std::optional<PuntoPiano> IntersezioneDueRette(double x1, double y1, double x2, double y2, double x3, double y3,
                                                             double x4, double y4);

}  // namespace ombrelia
