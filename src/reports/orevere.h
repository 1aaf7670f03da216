// True hours: what the three routines and their tables share. For the files orevere*.cpp alone.
#pragma once

#include <string>

#include "reports/tabulato.h"
#include "reports/triangolo.h"

namespace ombrelia::reports::ore {

enum class SpecieOreVere : std::uint8_t { Inclinato, Parete, LatZero, LatZeroInclinato };

// The dial that the hours are worked out on: for a reclining plane the wall elsewhere that has its lines. Begun with what the
// shared variables hold, which a formula without a value keeps.
struct DatiOre {
    DatiOre(const Variabili &v, SpecieOreVere specie);

    SpecieOreVere specie;
    Reale latR, decR, declinSessag;           // its latitude and declination, radians; degrees as the vertical engine folds it
    Reale segnoDec;                           // sign of the declination, 1 for none
    Reale diffLong, lon, lonPiu15, corrLong;  // radians; longitude that has lines like these and its difference, degrees; radians
    Reale delta;                              // declination of choice without its sign, degrees
    Reale altStilo, angSustilare, angoloOra;  // style and substyle, radians
    TriangoloStilo lati;
    Reale xSusEq, ySusEq, xSusPiede, ySusPiede;  // the chosen lines against equinoctial and substyle
    Reale k;                                     // side of the plane, 1 or -1
    Reale tanStilo;                              // of a wall: the quotient whose arc tangent is the style's elevation
    Reale L;                                     // at latitude 0: cotangent of the declination
    Reale oraSus;                                // hour of the substyle
};

// Heads of a table in their three lines.
[[nodiscard]] Trilingue Intestazioni(SpecieOreVere specie, bool schermo, bool primoOrdine, bool prima);
// Whether the heads name the solstices in their first order.
[[nodiscard]] bool PrimoOrdine(SpecieOreVere specie, Valore altStilo);

// Both tables, against (x0, y0) and (x1, y1).
void Tabelle(const Sessione &s, const Lettura &letto, const DatiOre &d, Tabulato &f);
// The dial as the blocks under the tables tell it: a wall that looks away from the equator has its substyle turned, one that
// looks due east or west its centre by the substyle, and one on the equator its equinoctial upright.
[[nodiscard]] DatiOre DatiDeiBlocchi(const Variabili &v, DatiOre d);
// Results for equinoctial and substyle, fundamental points, legend.
void Blocchi(const Sessione &s, const DatiOre &d, Tabulato &f);

}  // namespace ombrelia::reports::ore
