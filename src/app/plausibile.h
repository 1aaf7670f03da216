// What the fields say that no dial can be: told beside the field, refused by nobody.
#pragma once

#include <string_view>
#include <vector>

#include "controlli/controlli.h"

namespace ombrelia::app {

// A field and what is odd about it: Italian, as it goes through the dictionary.
struct Dubbio {
    NomeControllo campo;
    std::string_view motivo;
};

// Latitude beyond the poles; a gnomon of no length, a negative one, or one longer than three diagonals of the frame; a frame
// turned inside out. At most one a field, in the order of the fields. Lengths are compared with each other, so the unit doesn't
// matter.
[[nodiscard]] std::vector<Dubbio> Dubbi(const DialInputs &in);

// The fields of length, for whoever changes their unit: gnomon, substyle, frame, auxiliary lines, glyphs. Multiplies the number
// of each; a text that is no number stays. Texts are the shortest of 15 digits, so that there and back gives the same lengths.
void ConvertiLunghezze(DialInputs &in, double fattore);

}  // namespace ombrelia::app
