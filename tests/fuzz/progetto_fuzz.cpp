// The reader of project files, with what it does to controls and sheet.
#include <cmath>

#include "app/progetto.h"
#include "fuzz.h"
#include "sessione/muto.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *dati, std::size_t quanti) {
    using namespace ombrelia;
    Muto utente;
    auto testo = TestoDaProgetto(fuzz::Testo(dati, quanti));
    if (!testo) return 0;
    Sessione s(utente);
    app::ApplicaProgetto(s, std::move(*testo));
    for (const double n : {s.tavolo.QuadranteH(), s.tavolo.QuadranteL(), s.tavolo.ShiftX(), s.tavolo.ShiftY()})
        fuzz::Pretendi(std::isfinite(n), "the sheet keeps finite numbers");
    fuzz::Pretendi(TestoDaProgetto(app::ScriviProgetto(s)).has_value(), "what was opened can be saved");
    return 0;
}
