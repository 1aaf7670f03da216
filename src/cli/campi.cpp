// Fields and boxes from options.
#include "cli/campi.h"

#include "app/comandi.h"
#include "app/progetto.h"
#include "cli/place.h"
#include "core/testo.h"
#include "luoghi/angolo.h"

namespace ombrelia::cli {

bool Campi::Opzione(std::string_view opzione) { 
    return opzione == "--set" || opzione == "--check" || opzione == "--project" || opzione == "--place" || opzione == "--country";
}

std::string Campi::Prendi(std::string_view opzione, const std::string &valore) {
    if (opzione == "--project") {
        progetto = valore;
    } else if (opzione == "--place") {
        luogo = valore;
    } else if (opzione == "--country") {
        paese = valore;
    } else if (opzione == "--check") {
        caselle.push_back(valore);
    } else {
        const std::size_t uguale = valore.find('=');
        if (uguale == std::string::npos) return "--set " + valore + ": write FIELD=TEXT, as in --set txtLAT=45.7";
        testi.emplace_back(valore.substr(0, uguale), valore.substr(uguale + 1));
    }
    return {};
}

namespace {

// A field's text out of what was written: angles become plain numbers.
std::string comeNumero(const std::string &nome, std::string &testo) {
    const luoghi::CampoAngolo *campo = luoghi::TrovaCampoAngolo(nome);
    if (!campo) return {};
    const luoghi::AngoloLetto letto = luoghi::LeggiAngolo(testo, *campo);
    if (letto.buono()) {
        testo = letto.testo;
        return {};
    }
    std::string e = "--set " + nome + "=" + testo.substr(0, 80) + ": " + std::string(luoghi::MotivoInglese(letto.intoppo));
    if (letto.intoppo == luoghi::Intoppo::FuoriCampo) e += ": it goes from " + TestoNumero(campo->da) + " to " + TestoNumero(campo->a);
    return e;
}

}  // namespace

std::string Campi::Applica(Sessione &s) const {
    if (!progetto.empty() && !app::ApriProgetto(s, progetto)) return progetto + ": no project file, or unreadable";
    const auto motivo = [](app::Esito e, const std::string &nome) -> std::string {
        if (e == app::Esito::Disabilitato) return nome + " is disabled: it works on walls only (txtInc must read 0)";
        return e == app::Esito::Impossibile ? nome + " can't take that" : std::string();
    };
    if (luogo.empty() && !paese.empty()) return "--country goes with --place";
    if (!luogo.empty()) {
        std::string errore;
        const luoghi::Luogo *l = TrovaLuogo(luogo, paese, errore);
        if (!l) return errore;
        const std::pair<const char *, double> campi[] = {{"txtLAT", l->latitudine}, {"txtLonG", l->longitudine}, {"txtMeridiano", l->meridiano}};
        for (const auto &[nome, gradi] : campi)
            if (std::string e = motivo(app::Imposta(s, TrovaControllo(nome), TestoNumero(gradi)), nome); !e.empty()) return e;
    }
    for (const auto &[nome, scritto] : testi) {
        const IdControllo id = TrovaControllo(nome);
        if (id == NESSUN_CONTROLLO) return "unknown field " + nome;
        std::string testo = scritto;
        if (std::string e = comeNumero(nome, testo); !e.empty()) return e;
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
