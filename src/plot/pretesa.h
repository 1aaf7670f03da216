// What drawn lines say of themselves: a range of the display list and the line that it claims to be. Plain data; who
// draws fills it, who judges or names a line reads it.
#pragma once

#include <cstddef>

#include "plot/specie.h"

namespace ombrelia {

// Records da to a (one past the last) of Lista::Ordine; the first line, point and figure among them.
struct Pretesa {
    Specie specie;
    double valore;
    std::size_t da, a;
    std::size_t linea, punto, figura;
};

}  // namespace ombrelia
