// Labels on the lines of a drawing, from what each line claims to be; and a block of text beside the frame.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "officina/disegno.h"

namespace ombrelia::officina {

struct StileEtichette {
    double altezza = 8;       // mm, of the capitals
    bool lungo = false;       // along the line, else upright
    bool specchiata = false;  // the drawing is to be mirrored in x: so are its labels, to be read then
    // The text of a line, empty for a line without a label.
    std::function<std::string(Specie, double)> testo;
};

struct EsitoEtichette {
    std::size_t scritte = 0, senzaPosto = 0;
};

// Records a label for each claimed line on the layer "Etichette", at its outer end or beside it near there, inside the
// frame, clear of frame, lines and other labels. One that finds no place is left out and counted.
EsitoEtichette Etichetta(Tavolo &tavolo, const StileEtichette &stile);

// Records lines of text as strokes on the layer "Cartiglio": under the frame when the sheet has room there, else beside
// it, else above; where there is none, in smaller letters under it. Never over the frame.
void Cartiglio(Tavolo &tavolo, const std::vector<std::string> &righe, double altezza, bool specchiata);

}  // namespace ombrelia::officina
