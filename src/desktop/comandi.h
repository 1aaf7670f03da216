// The window's commands: a row each, with icon, text and keys; what menu, tool bar and tool tips say of one comes from its row.
#pragma once

#include <QAction>
#include <QList>
#include <span>
#include <string_view>

#include "desktop/ponte.h"

class QAbstractButton;

namespace ombrelia::desktop {

struct Comando {
    std::string_view nome;     // a control's as the action script gives it, or the window's own
    std::string_view testo{};  // of the window's own; a control has its caption
    std::string_view icona{};
    const char *tasti = "";  // one or more, divided by "; "
};

[[nodiscard]] std::span<const Comando> TavolaComandi();
// Null when there is none.
[[nodiscard]] const Comando *TrovaComando(std::string_view nome);

// An entry of the window's own; a name that is not in the table is a bug.
[[nodiscard]] QAction *CreaComando(Ponte &ponte, std::string_view nome, QObject *genitore, const std::function<void()> &azione);
// A control's entry: icon and keys.
void VestiVoce(QAction *a, std::string_view nome);
// A button: icon, and a name for those who don't see it.
void VestiBottone(QAbstractButton *b, std::string_view nome);
// Buttons that have an icon show it alone, or their text with it.
void SoloIcona(const QList<QWidget *> &bottoni, bool si);
// The keys as people read them, in brackets after a blank; empty when there are none.
[[nodiscard]] QString TastiDi(std::string_view nome);

}  // namespace ombrelia::desktop
