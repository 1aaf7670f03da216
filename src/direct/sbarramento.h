// What the lines of the direct engine share: the test that lets a chord pass, the chain of chords, and the sweep of
// declinations that most lines make.
#pragma once

#include <vector>

#include "core/conteggio.h"
#include "sessione/proiezione.h"
#include "sessione/sessione.h"

namespace ombrelia::direct {

// The chord test, made on the newer point alone: this side of the plane's horizon and strictly inside the frame.
class Sbarramento {
public:
    Sbarramento(const Cornice &cornice, const Variabili &v) : cornice_(cornice), yOriz_(v.yOriz), sotto_(v.incR < PI / 2.0) {}
    [[nodiscard]] bool orizzonte(Valore y) const { return sotto_ ? y <= yOriz_ : y >= yOriz_; }
    [[nodiscard]] bool operator()(Valore x, Valore y) const { return orizzonte(y) && cornice_.contiene(x, y); }

private:
    const Cornice &cornice_;
    Reale yOriz_;
    bool sotto_;
};

// A line as a chain of chords, each from the newer point to the one before. Room is for 10000 points a line, more than
// any sweep of this engine takes.
class Catena {
public:
    Catena(Tavolo &tavolo, std::string_view strato) : tavolo_(tavolo), strato_(tavolo.nome(strato)) {}
    // The next point; the chord to it is drawn when passa says so.
    void punto(Reale x, Reale y, bool passa, Colore colore) {
        if (iniziata_ && passa) tavolo_.xLine(x, -y, x_, -y_, colore, strato_);
        x_ = x;
        y_ = y;
        iniziata_ = true;
    }
    void fine() { iniziata_ = false; }
    // The point before, 0 before the first.
    [[nodiscard]] Reale xPrima() const { return x_; }
    [[nodiscard]] Reale yPrima() const { return y_; }

private:
    Tavolo &tavolo_;
    IdNome strato_;
    Reale x_, y_;
    bool iniziata_ = false;
};

// A declination of a sweep, degrees, and its tangent.
struct Declinazione {
    double d, tanD;
};
// -23.445 to 23.445 by 0.05 degrees: the year as hour lines, seasonal hours and azimuth lines take it.
inline const std::vector<Declinazione> &Anno() {
    static const std::vector<Declinazione> anno = [] {
        std::vector<Declinazione> a;
        for (const double d : Conteggio(-23.445, 23.445, 0.05)) a.push_back({d, std::tan(PI * d / 180)});
        return a;
    }();
    return anno;
}

}  // namespace ombrelia::direct
