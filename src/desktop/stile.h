// How the window looks: one palette and one sheet of style, whatever the desktop's own; and the program's icon.
#pragma once

#include <QIcon>
#include <cstdint>

class QApplication;
class QString;

namespace ombrelia::desktop {

// The looks of the window: the desktop's, or the user's choice.
enum class Tema : std::uint8_t { Sistema, Chiaro, Scuro };

void VestiApplicazione(QApplication &a, Tema tema = Tema::Sistema);
// Whether the looks in force are dark.
[[nodiscard]] bool TemaScuro();
[[nodiscard]] QIcon Icona();

}  // namespace ombrelia::desktop
