// The place by its name: a search box that fills latitude, longitude and the zone's meridian.
#pragma once

#include <QWidget>

#include "desktop/ponte.h"

namespace ombrelia::desktop {

QWidget *CercaLuogo(Ponte &ponte, QWidget *genitore);

}  // namespace ombrelia::desktop
