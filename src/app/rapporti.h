// The reports that can be asked for, one a row: what opens them, what fills them, when they are refused.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "controlli/nomi.h"
#include "reports/rapporti.h"

namespace ombrelia::app {

struct VoceRapporto {
    std::string_view nome, contenuto;  // its English name and what it holds, for commands
    std::string_view modulo;           // its form, whose one menu prints it
    void (*scrivi)(Sessione &, reports::Uscita);
    // What opens it in the main window; without one it is opened by its name alone.
    NomeControllo controllo{};
    // Where several share a control, the first whose test holds is opened; null: always.
    bool (*quando)(const Sessione &) = nullptr;
    // Southern latitudes have none: its option is cleared and nothing opens. At the equator it is cleared too, and the report
    // opens.
    bool soloNord = false;
    NomeControllo prima{};                 // a button to press before
    int ckFunzione = -1;                   // its value when the report depends on it, else -1
    std::string_view manuale = "tabelle";  // the manual's place that speaks of it; empty: none does
};

[[nodiscard]] std::span<const VoceRapporto> ElencoRapporti();
// Whether a control of the main window opens a report.
[[nodiscard]] bool ApreRapporto(IdControllo controllo);
// Whether the fields as they are have this report, so that its control opens it.
[[nodiscard]] bool HaRapporto(const Sessione &s, const VoceRapporto &voce);
// The menu of a form that prints its report; none where it has none.
[[nodiscard]] std::optional<IdControllo> MenuStampa(std::string_view modulo);

// A press of a control that opens a report or of a menu that prints one; others do nothing.
void PremiRapporto(Sessione &s, IdControllo id);
// A row without a control.
void ApriRapporto(Sessione &s, const VoceRapporto &voce);
// What the menu of the report opened last sends to the printer; false where it has none.
bool StampaRapporto(Sessione &s);

}  // namespace ombrelia::app
