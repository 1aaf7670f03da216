// The guard of a run: fields that would make a loop run for ages are refused before anything is drawn.
#pragma once

#include <initializer_list>

#include "core/conteggio.h"
#include "sessione/sessione.h"

namespace ombrelia {

// A loop that a field governs, and how many points each of its steps computes.
struct GiroDelCampo {
    std::string_view campo;
    const std::string &testo;
    Conteggio conteggio;
    double puntiPerPasso = 1;
};

// Whether one of the loops is too long, or would draw more than the sheet may hold; the user is told the first such field and its
// value.
[[nodiscard]] bool TroppoFitto(Sessione &s, std::initializer_list<GiroDelCampo> giri);

// Records that the memory at hand can hold as a window needs it: the drawing itself, what it may be taken back to, and its copies
// for judge, looks and files. At least a million.
[[nodiscard]] std::size_t RecordInMemoria();

// The loop over the hours of Italic and Babylonian lines, named after the field that makes it long.
[[nodiscard]] GiroDelCampo GiroOre(const Sessione &s, Valore da, Valore a, Valore frazione, double puntiPerPasso);

}  // namespace ombrelia
