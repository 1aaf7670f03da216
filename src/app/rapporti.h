// The reports that can be asked for, one a row.
#pragma once

#include <span>
#include <string_view>

namespace ombrelia::app {

struct VoceRapporto {
    std::string_view nome, contenuto;  // its English name and what it holds, for commands
    std::string_view controllo;        // what opens it
    std::string_view modulo;           // the form that then opens, unless the fields refuse it
    std::string_view prima{};          // a button to press before; empty when none
    int ckFunzione = -1;               // its value when the report depends on it, else -1
};

[[nodiscard]] std::span<const VoceRapporto> ElencoRapporti();

// Whether a control of the main window opens a report.
[[nodiscard]] bool ApreRapporto(std::string_view controllo);

}  // namespace ombrelia::app
