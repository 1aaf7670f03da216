// A part of the sheet as it is seen in a window: which part, how large, in what looks, and the picture of it. May be called off
// the window's thread: it knows no widget.
#pragma once

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSize>

#include "desktop/strati.h"
#include "plot/tavolo.h"

namespace ombrelia::desktop {

struct Vista {
    QSize misura;         // of the window's picture, in its own dots
    double rapporto = 1;  // dots of the screen in one of those
    double fattore = 1;   // dots in a device unit of the sheet
    QPointF origine;      // of the sheet's top left corner, in dots
    StileFoglio stile;
    bool operator==(const Vista &) const = default;

    // The sheet's rectangle, in dots.
    [[nodiscard]] QRectF foglio(const Tavolo &t) const {
        return {origine.x(), origine.y(), t.LarghezzaImmagine() * fattore, t.AltezzaImmagine() * fattore};
    }
};

// A sheet of its own that holds the drawing in the looks of a style: the screen's, or the paper's, where only what the user
// changed differs from the records.
void VestiFoglio(const Tavolo &t, const StileFoglio &stile, bool perCarta, Tavolo &vestito);

// The picture of a part of the sheet, with what lies round it.
[[nodiscard]] QImage DisegnaVista(const Tavolo &t, const Vista &v);

}  // namespace ombrelia::desktop
