// A user who is not there: a run of which nobody is told.
#pragma once

#include <string>
#include <vector>

#include "sessione/utente.h"

namespace ombrelia {

// Says nothing and asks nothing, takes every proposal; keeps the boxes.
class Muto final : public Utente {
public:
    std::vector<std::string> avvisi;
    void Messaggio(std::string_view) override {}
    bool Box(std::string_view testo, Domanda) override {
        avvisi.emplace_back(testo);
        return true;
    }
    std::string Input(std::string_view, std::string_view, std::string_view proposta) override { return std::string(proposta); }
    std::optional<std::string> File(const RichiestaFile &) override { return {}; }
    void Beep() override {}
};

}  // namespace ombrelia
