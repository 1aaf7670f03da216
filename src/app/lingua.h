// The language of the forms: captions and tool tips of the table of controls through the dictionary.
#pragma once

#include <string_view>

#include "app/esito.h"
#include "controlli/lingue.h"
#include "sessione/sessione.h"

namespace ombrelia::app {

// The shared name of the language. There is no setting: which language it is depends on what its file holds.
inline constexpr std::string_view LINGUA = "C2008";

// A form's load: its captions and tool tips as designed, then translated. Every form calls it when it opens.
void CaricaForm(Sessione &s, std::string_view modulo);

// A language for the next start: its dictionary is copied beside the program's files, or taken away for the program's own. The
// user is told in that language; a dictionary that is not there changes nothing.
Esito ScegliLingua(Sessione &s, const Lingua &lingua);

// Nothing for an empty name; a name that begins with "_DB" exports the form's texts, any other translates them.
void TraduciForm(Sessione &s, std::string_view modulo, std::string_view Nome = LINGUA);
// Loads the dictionary of that name unless it is loaded, and translates what the form shows.
void ApplicaDizionario(Sessione &s, std::string_view Nome, std::string_view modulo);
// Writes "_DB" + form + ".txt": the form's texts, trimmed, one a line, waiting for their translations.
void EsportaDizionario(Sessione &s, std::string_view modulo);

}  // namespace ombrelia::app
