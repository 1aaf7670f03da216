// The window's language: the user's choice kept for every folder, and the toolkit's own dialogs in the same language.
#pragma once

#include <QString>
#include <string_view>

#include "app/comandi.h"

namespace ombrelia::desktop {

// After the start-up: a folder without a dictionary of its own shows the language chosen last.
void LinguaRicordata(Sessione &s);
// The language in use: "it", "fr" or "en".
[[nodiscard]] QString CodiceLingua(const Sessione &s);
// After a press of a language entry.
void RicordaLingua(std::string_view voce, const app::Esito &esito);
// The captions of a form as designed, in the program's language: a project brings those of the language it was saved in.
void Ritraduci(Sessione &s);

}  // namespace ombrelia::desktop
