// What the fields say that no dial can be.
#include "app/plausibile.h"

#include <cmath>

#include "controlli/nomi.h"
#include "core/testo.h"

namespace ombrelia::app {

namespace {

constexpr double DIAGONALI = 3;  // a gnomon longer than this many of the frame's is a unit gone wrong

constexpr std::string DialInputs::*LUNGHEZZE[] = {
    &DialInputs::TxtStilo, &DialInputs::txtSUBSTYLE, &DialInputs::txtX0,         &DialInputs::txtY0,         &DialInputs::txtX1,
    &DialInputs::txtY1,    &DialInputs::txtEqx,      &DialInputs::txtEqy,        &DialInputs::txtSusx,       &DialInputs::txtSusy,
    &DialInputs::txtOriz,  &DialInputs::txtArabi,    &DialInputs::txtNumbersize, &DialInputs::txtZodiacsize,
};

}  // namespace

std::vector<Dubbio> Dubbi(const DialInputs &in) {
    const double lat = Val(in.txtLAT).v, gn = Val(in.TxtStilo).v;
    const double larga = Val(in.txtX1).v - Val(in.txtX0).v, alta = Val(in.txtY0).v - Val(in.txtY1).v;
    std::vector<Dubbio> dubbi;
    // Written so that a number that overflows is told too.
    if (!(std::fabs(lat) <= 90)) dubbi.push_back({"txtLAT", "La latitudine va da -90 a 90"_it});
    if (gn == 0) dubbi.push_back({"TxtStilo", "Un ortostilo di 0 non fa ombra"_it});
    else if (!(gn > 0)) dubbi.push_back({"TxtStilo", "L'ortostilo è negativo"_it});
    else if (larga > 0 && alta > 0 && !(gn <= DIAGONALI * std::hypot(larga, alta)))
        dubbi.push_back({"TxtStilo", "L'ortostilo supera tre diagonali della cornice: metri o millimetri?"_it});
    if (!(larga > 0)) dubbi.push_back({"txtX1", "Cornice rovesciata: x1 deve superare x0"_it});
    if (!(alta > 0)) dubbi.push_back({"txtY1", "Cornice rovesciata: y1 deve stare sotto y0"_it});
    return dubbi;
}

void ConvertiLunghezze(DialInputs &in, double fattore) {
    for (std::string DialInputs::*campo : LUNGHEZZE) {
        const Valore v = Val(in.*campo);
        if (!v.esiste() || (in.*campo).find_first_of("0123456789") == std::string::npos || v.v == 0) continue;
        const double n = v.v * fattore, passo = std::pow(10, std::floor(std::log10(std::fabs(n))) - 13);
        if (std::isfinite(n) && n != 0 && passo > 0)
            in.*campo = TestoNumero(passo < 1 ? std::round(n / passo) / std::round(1 / passo) : n);
    }
}

}  // namespace ombrelia::app
