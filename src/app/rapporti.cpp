// The reports that can be asked for.
#include "app/rapporti.h"

#include <algorithm>

namespace ombrelia::app {

namespace {

constexpr VoceRapporto ELENCO[] = {
    {"data", "fundamental data", "cmdData", "Form1"},
    {"equivalent", "the equivalent vertical dial and the original one", "cmdData", "Form10", NomeControllo("cmdTrasforma")},
    {"hours", "true hours against two pairs of lines, shadow lengths", "optHorae", "Form2"},
    {"italic", "hours from sunset", "OptIta", "Form9"},
    {"babylonian", "hours from sunrise", "OptBab", "Form4"},
    {"temporary", "twelfths of the day", "OptTEMP", "Form3"},
    {"spherical", "hour lines against day lines, by spherical trigonometry", "OptInter", "Form6", {}, 0},
    {"analytic", "the same by analytic geometry, walls only", "OptInter", "Form7", {}, 1},
    {"daylines", "day lines by abscissa, walls only", "Option1", "Form8"},
    {"notice", "what the program does and does not promise", "mnuAvviso", "Form5"},
};

}  // namespace

std::span<const VoceRapporto> ElencoRapporti() { return ELENCO; }

bool ApreRapporto(IdControllo controllo) {
    return std::any_of(std::begin(ELENCO), std::end(ELENCO), [&](const VoceRapporto &r) { return r.controllo == controllo; });
}

}  // namespace ombrelia::app
