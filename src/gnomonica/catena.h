// A line as chords: the test that lets one pass and the chain that joins them.
#pragma once

#include <array>

#include "plot/tavolo.h"
#include "sessione/sessione.h"

namespace ombrelia {

// The chord test of planes at any slope, made on the newer point alone: this side of the plane's horizon and strictly
// inside the frame. yOriz is the horizon's ordinate, metres, y upward; from a level plane on (incR, radians) the other
// side is kept.
class Sbarramento {
public:
    Sbarramento(const Cornice &c, const Variabili &v)
        : xMin_(c.xMin.numero()),
          xMax_(c.xMax.numero()),
          yMin_(c.yMin.numero()),
          yMax_(c.yMax.numero()),
          yOriz_(v.yOriz.numero()),
          sotto_(v.incR < PI / 2.0) {}
    // Variables have a value, so plain comparisons do.
    [[nodiscard]] bool operator()(Reale X, Reale Y) const {
        const double x = X.numero(), y = Y.numero();
        return (sotto_ ? y <= yOriz_ : y >= yOriz_) && xMin_ < x && x < xMax_ && yMin_ < y && y < yMax_;
    }

private:
    double xMin_, xMax_, yMin_, yMax_, yOriz_;
    bool sotto_;
};

// A line as a chain of chords, each from the newer point to the one before.
class Catena {
public:
    Catena(Tavolo &tavolo, std::string_view strato) : tavolo_(tavolo), strato_(tavolo.nome(strato)) {}
    // The next point, y upward; the chord to it is drawn when passa says so.
    void punto(Reale x, Reale y, bool passa, Colore colore) {
        if (iniziata_ && passa) tavolo_.TracciaLinea(x, y, x_, y_, colore, strato_);
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

// A line as points, handed to the list a batch at a time: those that TracciaPunto would record one by one, in their order. What
// is in hand is recorded by fine(), before the claim that holds it ends.
class FilaDiPunti {
public:
    FilaDiPunti(Tavolo &tavolo, IdNome strato) : tavolo_(tavolo), strato_(strato) {
        const Quadrante &q = tavolo.quadrante();
        sinistra_ = -q.x, destra_ = q.L - q.x, alto_ = q.y, basso_ = q.y - q.H;
    }
    // Metres, y upward. One without a value lies nowhere.
    void punto(double x, double y, Colore colore) {
        if (!(x >= sinistra_ && x < destra_ && y <= alto_ && y > basso_)) return;
        punti_[quanti_++] = {x, y, colore, strato_};
        if (quanti_ == punti_.size()) fine();
    }
    void fine() {
        tavolo_.TracciaPunti({punti_.data(), quanti_});
        quanti_ = 0;
    }

private:
    Tavolo &tavolo_;
    IdNome strato_;
    double sinistra_, destra_, alto_, basso_;  // of the sheet, which the right and the low edge don't belong to
    std::size_t quanti_ = 0;
    std::array<RecPunto, 256> punti_;
};

}  // namespace ombrelia
