// Hour numerals as strokes on the sheet, and the two commands that set a row of them along a day line.
#pragma once

#include <optional>

#include "sessione/sessione.h"

namespace ombrelia {

// Places are metres on the plane, x to the right, y upward. A rotation is the direction of the numeral's upright,
// counter-clockwise from x: a quarter turn sets it upright. altezza is that of the figures, metres: what their field says, scaled
// by unita. What will be seen in a mirror is turned about the numeral's own middle, so that it reads.

// An Arabic number, its middle line through (X, Y); Angolo in degrees. The first digit takes the cell
// before the place and the second the cell behind it, so 10, 11 and 12 stand centred. Leaves the lower left of the last
// cell's middle line in the shared x1, y1.
void DisegnaNumero(Sessione &s, Reale altezza, Valore X, Valore Y, Valore Angolo, int Numero);
// One digit, its cell's left side at (X, Y), with pen weight Peso; the other way round about an abscissa, where one is given.
void DisegnaCifra(Sessione &s, Reale altezza, Valore X, Valore Y, Valore Angolo, int Cifra, int Peso,
                  std::optional<Valore> specchio = {});
// A Roman numeral of 1 to 39, centred on (x, y); rotazione in radians.
void DisegnaNumeroRomano(Sessione &s, Reale altezza, Valore x, Valore y, Valore rotazione, int ora);

// The clicks of ckRomani and ckArabi: on a wall (txtInc reads 0), a numeral for each hour angle from -90 to 90 on the
// day line of txtDelta, by the shared variables as the last run left them; before the first run they do nothing.
// They leave decGradi, angOraLong (in degrees here), oraFuso and deltaOpz behind. With ckRomani cleared its click
// writes Arabic numerals.
void PosizionaRomani(Sessione &s);
void PosizionaArabi(Sessione &s);

}  // namespace ombrelia
