// What handlers share below the dispatch.
#pragma once

#include <optional>
#include <string>

#include "app/comandi.h"

namespace ombrelia::app {

// The rule of txtInc: five controls work on walls only. Those made for inclined planes stay enabled.
void AbilitaPerInclinazione(Sessione &s);

// Selects an entry of a list.
Esito ScegliVoce(Sessione &s, IdControllo id, const std::string &voce);

// The outcome of writing a file; an error is told in a box.
Esito EsitoScrittura(Sessione &s, const std::string &nome, const std::optional<std::string> &errore);

// One key through a control's filter: the key to keep, or 0; beeps where the filter does.
char FiltraTasto(Sessione &s, IdControllo id, char tasto);

}  // namespace ombrelia::app
