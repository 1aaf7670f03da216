// The reports that can be asked for, one a row.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "controlli/nomi.h"

namespace ombrelia::app {

struct VoceRapporto {
    std::string_view nome, contenuto;      // its English name and what it holds, for commands
    NomeControllo controllo;               // what opens it
    std::string_view modulo;               // the form that then opens, unless the fields refuse it
    std::optional<NomeControllo> prima{};  // a button to press before
    int ckFunzione = -1;                   // its value when the report depends on it, else -1
};

[[nodiscard]] std::span<const VoceRapporto> ElencoRapporti();

// Whether a control of the main window opens a report.
[[nodiscard]] bool ApreRapporto(IdControllo controllo);

}  // namespace ombrelia::app
