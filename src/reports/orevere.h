// True hours: what the three routines and their tables share. For the files orevere*.cpp alone.
#pragma once

#include <string>

#include "reports/tabulato.h"

namespace ombrelia::reports::ore {

enum class SpecieOreVere : std::uint8_t { Inclinato, Parete, LatZero, LatZeroInclinato };

// What a report computes once, and what its rows carry from one to the next.
struct Calcolo {
    SpecieOreVere specie = SpecieOreVere::Inclinato;
    Reale k;       // side of the plane, 1 or -1
    Reale sine;    // of a wall: the quotient whose arc tangent is the style's elevation
    Reale L;       // at latitude 0: cotangent of the declination
    Reale yM;      // ordinate of M, where meridian and equinoctial meet
    Reale oraSus;  // hour of the substyle
    // The running row.
    Reale w, A, se, si, ce, D, x, ordinata;
    std::string testoOrdinata;
};

// Heads of a table in their three lines.
[[nodiscard]] Trilingue Intestazioni(SpecieOreVere specie, bool schermo, bool primoOrdine, bool prima);
// Whether the heads name the solstices in their first order.
[[nodiscard]] bool PrimoOrdine(SpecieOreVere specie, const Variabili &v);

// Both tables, against (x0, y0) and (x1, y1).
void Tabelle(const Sessione &s, const Conto &v, Tabulato &f, Calcolo &c);
// Results for equinoctial and substyle, fundamental points, legend; clears the option that asked for the report.
void Blocchi(Sessione &s, Conto &v, Tabulato &f, Calcolo &c);

}  // namespace ombrelia::reports::ore
