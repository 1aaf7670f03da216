// Where a Sun position falls on a vertical wall, by azimuth and altitude, for glyphs that are placed by it. Each caller
// mends the quadrant of the azimuth by a rule of its own, between the two steps.
#pragma once

#include "core/angoli.h"
#include "core/variabili.h"

namespace ombrelia {

// One running point; what faults keeps the value of the point before.
struct PuntoParete {
    Reale A, h;  // azimuth from the south, altitude; radians
    Reale x, y;  // metres from the foot of the ortostilo, x to the right, y upward: negative for a Sun above the horizon

    // Hour angle H and declination D, radians. Gives A between -PI/2 and PI/2.
    void azimut(const Variabili &v, Valore H, Valore D) { A = Atn(sin(H) / (sin(v.latR) * cos(H) - cos(v.latR) * tan(D))); }
    [[nodiscard]] bool quadranteErrato(Valore H) const { return Sgn(sin(H)) != Sgn(sin(A)); }
    void proietta(const Variabili &v, Valore H, Valore D) {
        h = ArcSin(sin(v.latR) * sin(D) + cos(v.latR) * cos(D) * cos(H));
        x = v.gn * tan(A - v.decR) * v.unita;
        y = (-v.gn * tan(h) / cos(A - v.decR)) * v.unita;
    }
};

}  // namespace ombrelia
