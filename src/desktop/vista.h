// A part of the sheet as it is seen in a window: which part, how large, and the picture of it. May be called off the
// window's thread: it knows no widget.
#pragma once

#include <QImage>
#include <QPointF>
#include <QSize>

#include "plot/tavolo.h"

namespace ombrelia::desktop {

struct Vista {
    QSize misura;           // of the window's picture, in its own dots
    double rapporto = 1;    // dots of the screen in one of those
    double fattore = 1;     // dots in a device unit of the sheet
    QPointF origine;        // of the sheet's top left corner, in dots
    bool operator==(const Vista &) const = default;

    // The sheet's rectangle, in dots.
    [[nodiscard]] QRectF foglio(const Tavolo &t) const {
        return {origine.x(), origine.y(), t.LarghezzaImmagine() * fattore, t.AltezzaImmagine() * fattore};
    }
};

// The picture of a part of the sheet, dark, with what lies round it.
[[nodiscard]] QImage DisegnaVista(Tavolo &t, const Vista &v);

}  // namespace ombrelia::desktop
