// Letters as strokes: an alphabet of Hershey's, from the system's library, or from its file where there is no library.
#pragma once

#include <array>
#include <vector>

#include "officina/disegno.h"

namespace ombrelia::officina {

using Tratti = std::vector<std::vector<P2>>;

// Units of the alphabet, y upward from the base line, x from the left end of what it takes of a line.
struct LetteraIncisa {
    Tratti tratti;
    double largo = 0;
};

class Alfabeto {
public:
    // By its bare name ("rowmans").
    explicit Alfabeto(const char *nome);
    [[nodiscard]] bool esiste() const { return esiste_; }
    [[nodiscard]] const LetteraIncisa &lettera(unsigned char c) const { return lettere_[c]; }

private:
    std::array<LetteraIncisa, 256> lettere_;
    bool esiste_ = false;
};

}  // namespace ombrelia::officina
