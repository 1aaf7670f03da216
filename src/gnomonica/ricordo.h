// What the run before worked out. A dial that is drawn again while its maker types keeps most of its angles: those of a
// latitude when the gnomon changes, those of a wall when the frame does.
#pragma once

#include <cstddef>
#include <cstring>
#include <vector>

#include "gnomonica/proiezione.h"

namespace ombrelia {

// A function of one number, remembered by its place in a sweep: asked there for the bits it was asked for last time, it gives
// what it gave; for others it works anew, so what comes out is the same with memory and without. Given: a place from 0 and a
// number. Gives, source, faults: those of the function. Not for two threads.
template <typename Esito, typename Funzione>
class Ricordo {
public:
    [[nodiscard]] Esito operator()(std::size_t posto, double x) {
        if (posto >= POSTI) return Funzione{}(x);
        if (posto >= voci_.size()) voci_.resize(posto + 1);
        PostoRicordo &v = voci_[posto];
        if (!v.piena || std::memcmp(&v.x, &x, sizeof x) != 0) v = {x, Funzione{}(x), true};
        return v.esito;
    }

private:
    // A sweep of the densest dial that is still quick to draw; what lies beyond is worked out each time.
    static constexpr std::size_t POSTI = std::size_t{1} << 18;
    struct PostoRicordo {
        double x;
        Esito esito;
        bool piena = false;
    };
    std::vector<PostoRicordo> voci_;
};

// Given: radians. Gives: sine and cosine. Source: the standard library. Faults: as SenCos.
struct DammiSenCos {
    SenCos operator()(double t) const { return SenCos(t); }
};
using SenCosRicordati = Ricordo<SenCos, DammiSenCos>;

}  // namespace ombrelia
