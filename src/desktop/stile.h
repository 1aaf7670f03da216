// How the window looks: one palette and one sheet of style, whatever the desktop's own; and the program's icon.
#pragma once

#include <QIcon>

class QApplication;

namespace ombrelia::desktop {

void VestiApplicazione(QApplication &a);
[[nodiscard]] QIcon Icona();

}  // namespace ombrelia::desktop
