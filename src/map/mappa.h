// The world on a dial: each place is drawn where the shadow of the tip falls while the Sun stands in its zenith.
#pragma once

#include <string_view>

#include "sessione/mondo.h"
#include "sessione/sessione.h"

namespace ombrelia {

// Reads lines name;latitude;longitude (degrees, north and East positive) for a site (its longitude in degrees, West
// positive). A run is a name with its digits, a country the name without. Lines without two numbers are passed over.
[[nodiscard]] Mondo LeggiMondo(std::string_view testo, Valore sito);

// Loads "mondo.csv" in place of what was loaded and chooses the whole world. A missing file leaves an empty world.
void CaricaMondo(Sessione &s);
// Draws the outlines of the world or of the chosen country; loads them first when there are none.
void DisegnaMondo(Sessione &s);
// Draws and names the places of the city table from row txtEAST to row txtWest.
void DisegnaCitta(Sessione &s);
// Marks an optional position of the Sun or Moon: declination txtDelta, hour angle txtAO, degrees.
void PuntoOpzionale(Sessione &s);
// A five-pointed star about (X, Y), a point of the sheet; raggio is that of its tips, metres.
void DisegnaStella(Sessione &s, Valore X, Valore Y, Valore raggio, Colore colore);

}  // namespace ombrelia
