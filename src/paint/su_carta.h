// What the writers of documents share: how a sheet lies on paper.
#pragma once

#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

#include "paint/dispositivo_qt.h"
#include "plot/tavolo.h"

namespace ombrelia::paint {

inline constexpr double POLLICE = 0.0254;

// On paper: u painter units a metre; what is measured on paper stands in metres.
[[nodiscard]] PosaDipinta PosaSuCarta(double u, double scala, double x0, double y0);

// While it lives the target is the printer.
struct SullaCarta {
    explicit SullaCarta(Tavolo &t) : tavolo(t) { tavolo.OutputToPRN = true; }
    ~SullaCarta() { tavolo.OutputToPRN = false; }
    SullaCarta(const SullaCarta &) = delete;
    SullaCarta &operator=(const SullaCarta &) = delete;
    Tavolo &tavolo;
};

// Painter units a metre. Given: the device's dots an inch. Gives: a number above 0. Source: the inch is 0.0254 m. Faults: none.
[[nodiscard]] inline double UnitaAlMetro(const QPagedPaintDevice &d) { return d.logicalDpiX() / POLLICE; }
// The painter's origin is the corner of the paper itself.
void InteraPagina(QPagedPaintDevice &d);
// A document of pages of this size, upright or not as the size is.
void ApriPdf(QPdfWriter &w, const QPageSize &misura);
// A whole number of points that holds the length. Given, gives: points, a 72nd of an inch; 3 at least, and a millionth over is
// let go. Source: the program's own. Faults: none.
[[nodiscard]] inline double PuntiInteri(double punti) { return std::max(3.0, std::ceil(punti - 1e-6)); }

}  // namespace ombrelia::paint
