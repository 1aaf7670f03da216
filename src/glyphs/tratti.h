// What a glyph is made of: rows of strokes in the glyph's own frame, first coordinate along the baseline, second upward.
// The tables that use them are data alone; how a stroke reaches the sheet is told in numeri.cpp and zodiaco.cpp.
#pragma once

#include <cmath>
#include <cstdint>
#include <span>

#include "core/angoli.h"
#include "glyphs/zodiaco.h"

namespace ombrelia {

enum class Forma : std::uint8_t {
    Linea,  // a straight stroke
    Arco,   // an arc of a circle that stays an arc
    Giro    // a round part stepped in chords
};

struct Tratto {
    Forma forma;
    double a, b;          // from; centre of a round
    double c, d;          // to; radii of a round
    double inizio, fine;  // degrees, counter-clockwise from the right; fine below inizio: drawn clockwise (Giro alone)
    int corde;            // chords of a Giro; 0: as many as its drawer wants
    int colore;           // of the palette

    static constexpr Tratto linea(double a, double b, double c, double d, int colore = 7) {
        return {Forma::Linea, a, b, c, d, 0, 0, 1, colore};
    }
    // From inizio counter-clockwise to fine; 0 to 360 is the whole circle.
    static constexpr Tratto arco(double a, double b, double raggio, double inizio, double fine, int colore) {
        return {Forma::Arco, a, b, raggio, raggio, inizio, fine, 1, colore};
    }
    static constexpr Tratto giro(double a, double b, double ra, double rb, double inizio, double fine, int corde = 0,
                                 int colore = 7) {
        return {Forma::Giro, a, b, ra, rb, inizio, fine, corde, colore};
    }

    // Calls corda(a1, b1, a2, b2) for the straight strokes of a line or of a round in n chords, one behind the other.
    template <typename Corda>
    void percorri(int n, Corda corda) const {
        if (forma == Forma::Linea) return corda(a, b, c, d);
        double pa = 0, pb = 0;
        for (int i = 0; i <= n; ++i) {
            const double t = Radianti(inizio + (fine - inizio) * i / n).v;
            const double qa = a + c * std::cos(t), qb = b + d * std::sin(t);
            if (i > 0) corda(pa, pb, qa, qb);
            pa = qa, pb = qb;
        }
    }
};

// A corner of an outlined letter.
struct Vertice {
    double a, b;
};

// An outlined letter: a closed contour, and the width it takes up on the baseline.
struct Lettera {
    double larghezza;
    std::span<const Vertice> contorno;
};

// The cell of digits and letters.
inline constexpr double ALTEZZA_CELLA = 150, LARGHEZZA_CELLA = 110;

// Strokes of a digit 0..9, in a cell with its lower left corner at the origin; none for anything else.
[[nodiscard]] std::span<const Tratto> TrattiCifra(int cifra);
// One of the letters I, V, X, its lower left corner at the origin; an empty one for anything else.
[[nodiscard]] Lettera LetteraRomana(char lettera);

// Strokes of a sign, on a grid from -28 to 28 both ways about the sign's middle.
[[nodiscard]] std::span<const Tratto> TrattiSegno(Segno segno);

}  // namespace ombrelia
