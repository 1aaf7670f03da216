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
    std::string_view nome;     // a control's, or the window's own
    std::string_view testo{};  // of the window's own; a control has its caption
    std::string_view icona{};
    const char *tasti = "";     // one or more, divided by "; "
    NomeControllo controllo{};  // none of the window's own

    // A row without a text is a control's: a slip in its name does not compile.
    consteval Comando(const char *nome, std::string_view testo = {}, std::string_view icona = {}, const char *tasti = "");
};

[[nodiscard]] std::span<const Comando> TavolaComandi();
// Null when there is none.
[[nodiscard]] const Comando *TrovaComando(std::string_view nome);
[[nodiscard]] const Comando *TrovaComando(IdControllo id);

// An entry of the window's own; a name that is not in the table is a bug.
[[nodiscard]] QAction *CreaComando(Ponte &ponte, std::string_view nome, QObject *genitore, const std::function<void()> &azione);
// An entry's icon and keys, as its row has them; without one nothing.
void VestiVoce(QAction *a, const Comando *c);
// A button's icon.
void VestiBottone(QAbstractButton *b, const Comando *c);
// Buttons that have an icon show it alone, or their text with it.
void SoloIcona(const QList<QWidget *> &bottoni, bool si);
// The keys as people read them, in brackets after a blank; empty when there are none.
[[nodiscard]] QString TastiDi(const Comando *c);

}  // namespace ombrelia::desktop
