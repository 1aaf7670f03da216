// Project files: what the main window's controls hold, and the sheet. The drawing is not kept; a run makes it again.
#pragma once

#include <optional>
#include <string>

#include "app/esito.h"
#include "persist/salvataggio.h"
#include "sessione/sessione.h"

namespace ombrelia::app {

// One line a text box, check box, option, menu entry and label, in the order of the table.
[[nodiscard]] std::string LeggiControlli(Sessione &s);
// Gives the controls what their tags hold: text or value, visible, enabled. No handler runs; a control whose tag is
// missing keeps what it has.
void ApplicaControlli(Sessione &s, const TestoProgetto &testo);

// The content of a project file.
[[nodiscard]] std::string ScriviProgetto(Sessione &s);
// Why a project of that text could not be opened again; nothing when it can.
[[nodiscard]] std::optional<std::string> TroppoGrande(const std::string &NomeFile, std::string_view testo);
// Writes it, unless it is too large. Nothing when done, else the file and the reason.
[[nodiscard]] std::optional<std::string> SalvaProgetto(Sessione &s, const std::string &NomeFile);

// Applies the text of a project: the four numbers of the sheet (a missing one is 0), then the controls.
void ApplicaProgetto(Sessione &s, std::string testo);
// Reads a project and applies it; the sheet's form then bears the file's title. Fallito for a file that is missing,
// empty or unreadable: the user is told and nothing changes.
Esito ApriProgetto(Sessione &s, const std::string &NomeFile);

// Closing the sheet's form, with its question when a project is open. False when the user says No.
bool ChiudiTavolo(Sessione &s);

}  // namespace ombrelia::app
