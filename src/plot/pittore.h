// Painting of the list on a device: mirrors, transform, clipping, colours. A value made for one stroke or one replay.
#pragma once

#include <cstdint>
#include <string_view>

#include "plot/dispositivo.h"
#include "plot/lista.h"
#include "plot/quadrante.h"

namespace ombrelia {

// How world coordinates come to the eye. FattoreX and FattoreY are 1 or -1; with archi a circle's arc mirrors too, else
// only its centre does.
struct Specchio {
    double FattoreX = 1, FattoreY = 1;
    bool archi = false;

    // Start and end of an arc, radians, as they stand behind the mirrors. An end of 0 stays the mark of a whole circle,
    // and no other end becomes it.
    void arco(double &A, double &B) const;
};

struct Pittore {
    Dispositivo &dispositivo;
    Quadrante quadrante;
    Specchio specchio;
    double scala;                  // device units a metre
    bool nero;                     // paper without colours
    std::int32_t penna;            // of polylines
    IdNome assi, pagina, griglia;  // names of what does not mirror; and of what is dotted

    // One primitive, world metres.
    void linea(double X1, double Y1, double X2, double Y2, Colore colore, std::int32_t Spessore, bool specchiata) const;
    void punto(double X, double Y, Colore colore) const;
    void riquadro(double X1, double Y1, double X2, double Y2, Colore colore, bool pieno, bool specchiato) const;
    void cerchio(const RecFigura &r) const;
    // A box, a circle, or the polyline that a START stands for.
    void figura(const Lista &l, const RecFigura &r) const;
    void polilinea(const Lista &l, IdNome Id) const;
    // Device units.
    void testo(double xd, double yd, std::string_view testo, Colore colore) const;
    // The texts in their own colours, then the primitives in their order. Points are tested against the sheet as it is now.
    void rigioca(const Lista &l) const;

    [[nodiscard]] bool specchia(IdNome Id) const { return Id != assi && Id != pagina; }

private:
    [[nodiscard]] double fx(bool specchiato) const { return specchiato ? specchio.FattoreX : 1.0; }
    [[nodiscard]] double fy(bool specchiato) const { return specchiato ? specchio.FattoreY : 1.0; }
    [[nodiscard]] Colore tinta(Colore colore) const { return nero ? 0 : colore; }
};

}  // namespace ombrelia
