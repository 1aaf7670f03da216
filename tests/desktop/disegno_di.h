// What a session that was never anything else draws.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "comuni/prova.h"

namespace ombrelia::prova {

// The list of these fields and boxes after one run.
inline std::string disegnoDi(const std::vector<std::pair<std::string_view, std::string_view>> &campi,
                             const std::vector<std::string_view> &caselle) {
    UtenteDiProva utente;
    Sessione s(utente);
    app::Avvia(s);
    for (const std::string_view c : caselle) app::Premi(s, TrovaControllo(c));
    for (const auto &[nome, testo] : campi) app::Imposta(s, TrovaControllo(nome), std::string(testo));
    app::Premi(s, TrovaControllo("cmdRun"));
    return ListaTesto(s.tavolo.lista());
}

}  // namespace ombrelia::prova
