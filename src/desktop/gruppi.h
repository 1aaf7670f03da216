// The fields of the main window, grouped as a maker thinks.
#pragma once

#include <QWidget>

#include "desktop/ponte.h"

namespace ombrelia::desktop {

// The dial: site, plane, gnomon, frame. Panel3D1 with its scroll bar.
QWidget *ColonnaQuadrante(Ponte &ponte, QWidget *genitore);
// The drawing: hours, lines, numerals, prayer, map, tables.
QWidget *ColonnaDisegno(Ponte &ponte, QWidget *genitore);

}  // namespace ombrelia::desktop
