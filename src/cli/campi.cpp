// Fields and boxes from options.
#include "cli/campi.h"

#include "app/comandi.h"
#include "app/progetto.h"

namespace ombrelia::cli {

bool Campi::Opzione(std::string_view opzione) { return opzione == "--set" || opzione == "--check" || opzione == "--project"; }

std::string Campi::Prendi(std::string_view opzione, const std::string &valore) {
    if (opzione == "--project") {
        progetto = valore;
    } else if (opzione == "--check") {
        caselle.push_back(valore);
    } else {
        const std::size_t uguale = valore.find('=');
        if (uguale == std::string::npos) return "--set " + valore + ": write FIELD=TEXT, as in --set txtLAT=45.7";
        testi.emplace_back(valore.substr(0, uguale), valore.substr(uguale + 1));
    }
    return {};
}

std::string Campi::Applica(Sessione &s) const {
    if (!progetto.empty() && !app::ApriProgetto(s, progetto)) return progetto + ": no project file, or unreadable";
    const auto motivo = [](app::Esito e, const std::string &nome) -> std::string {
        if (e == app::Esito::Disabilitato) return nome + " is disabled: it works on walls only (txtInc must read 0)";
        return e == app::Esito::Impossibile ? nome + " can't take that" : std::string();
    };
    for (const auto &[nome, testo] : testi) {
        const IdControllo id = TrovaControllo(nome);
        if (id == NESSUN_CONTROLLO) return "unknown field " + nome;
        if (std::string e = motivo(app::Imposta(s, id, testo), nome); !e.empty()) return e;
    }
    for (const std::string &nome : caselle) {
        const IdControllo id = TrovaControllo(nome);
        if (id == NESSUN_CONTROLLO) return "unknown box " + nome;
        if (std::string e = motivo(app::Spunta(s, id, 1), nome); !e.empty()) return e;
    }
    return {};
}

}  // namespace ombrelia::cli
