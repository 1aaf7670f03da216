// What the benchmarks share: a user who says nothing.
#pragma once

#include "sessione/utente.h"

namespace ombrelia::misura {

struct Muto : Utente {
    void Messaggio(std::string_view) override {}
    bool Box(std::string_view, Domanda) override { return true; }
    std::string Input(std::string_view, std::string_view, std::string_view proposta) override { return std::string(proposta); }
    std::optional<std::string> File(const RichiestaFile &) override { return {}; }
    void Beep() override {}
};

}  // namespace ombrelia::misura
