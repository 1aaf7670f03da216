// What the fields of the main window say, as numbers: read once where a run starts. A text whose number overflows has no
// value, and what it is assigned to keeps its own.
#pragma once

#include "core/inputs.h"
#include "core/reale.h"

namespace ombrelia {

// Metres in a unit of length of the fields. Given: ChCentimetro. Gives: 1 or 0.001. Source: by definition. Faults: none.
inline double UnitaDi(const DialInputs &in) { return in.ChCentimetro == 1 ? 0.001 : 1.0; }

// Degrees and lengths as typed; longitudes West positive.
struct Lettura {
    explicit Lettura(const DialInputs &in);

    Valore lat, dec, inc, lon, gn;
    Valore meridiano;                           // of the zone
    Valore x0, y0, x1, y1;                      // frame: left, top, right, bottom
    Valore xEq, yEq, xSus, ySus, oriz;          // auxiliary lines, horizon
    Valore fraz, delta, passo, limMin, limMax;  // tracing
    Valore inizio, fine;                        // of Italic and Babylonian hours
    Valore qLat, qLon;                          // of the Qibla
    Valore allungo;                             // of the style, along the substyle
    Valore arabi, romani, segni;                // heights of numerals and of the zodiac's signs
    Valore unita;                               // metres in a unit of length: 1 or 0.001
    bool fuso;                                  // in the zone's time
};

}  // namespace ombrelia
