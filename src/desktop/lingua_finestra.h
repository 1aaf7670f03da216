// The window's language: the user's choice kept for every folder, and the toolkit's own dialogs in the same language.
#pragma once

#include <QString>

#include "app/comandi.h"
#include "controlli/lingue.h"

namespace ombrelia::desktop {

// After the start-up: a folder without a dictionary of its own shows the language chosen last.
void LinguaRicordata(Sessione &s);
// The code of the language in use.
[[nodiscard]] QString CodiceLingua(const Sessione &s);
// After a language was chosen.
void RicordaLingua(const Lingua &lingua, const app::Esito &esito);
// The captions of a form as designed, in the program's language: a project brings those of the language it was saved in.
void Ritraduci(Sessione &s);

}  // namespace ombrelia::desktop
