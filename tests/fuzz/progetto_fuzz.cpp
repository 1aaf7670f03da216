// The reader of project files, with what it does to controls and sheet.
#include <cmath>

#include "app/progetto.h"
#include "fuzz.h"

namespace {

struct Muto : ombrelia::Utente {
    void Messaggio(std::string_view) override {}
    bool Box(std::string_view, ombrelia::Domanda) override { return true; }
    std::string Input(std::string_view, std::string_view, std::string_view proposta) override { return std::string(proposta); }
    std::optional<std::string> File(const ombrelia::RichiestaFile &) override { return {}; }
    void Beep() override {}
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *dati, std::size_t quanti) {
    using namespace ombrelia;
    static Muto utente;
    auto testo = TestoDaProgetto(fuzz::Testo(dati, quanti));
    if (!testo) return 0;
    Sessione s(utente);
    app::ApplicaProgetto(s, std::move(*testo));
    for (const double n : {s.tavolo.QuadranteH(), s.tavolo.QuadranteL(), s.tavolo.ShiftX(), s.tavolo.ShiftY()})
        fuzz::Pretendi(std::isfinite(n), "the sheet keeps finite numbers");
    fuzz::Pretendi(TestoDaProgetto(app::ScriviProgetto(s)).has_value(), "what was opened can be saved");
    return 0;
}
