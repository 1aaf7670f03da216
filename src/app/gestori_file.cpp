// Handlers of what is kept: project files, defaults, the language.
#include <filesystem>
#include <system_error>

#include "app/azioni.h"
#include "app/lingua.h"
#include "app/parametri_default.h"
#include "app/progetto.h"
#include "core/campi.h"
#include "core/file.h"
#include "core/percorsi.h"
#include "persist/parametri.h"

namespace ombrelia::app {

namespace {

constexpr std::string_view ESTENSIONE = "omb", FILTRO = "*.omb";

Esito mnuApri_Click(Sessione &s, int) {
    const std::string &aperto = s.titolo("frmTavolo");
    if (!aperto.empty() && !s.utente.Box(s.Traduci("Attenzione! Vuoi chiudere il file ") + aperto + "?", Domanda::SiNo))
        return Esito::Annullato;
    const auto nome = s.utente.File({false, ESTENSIONE, FILTRO, {}});
    return nome ? ApriProgetto(s, *nome) : Esito(Esito::Annullato);
}

Esito mnuSalva_Click(Sessione &s, int) {
    const auto nome = s.utente.File({true, ESTENSIONE, FILTRO, std::string(FILTRO)});
    if (!nome || nome->empty()) return Esito::Annullato;
    return EsitoScrittura(s, *nome, SalvaProgetto(s, *nome));
}

constexpr Gestore GESTORI[] = {
    {"mnuApri", Evento::Clic, mnuApri_Click},
    {"mnuSalva", Evento::Clic, mnuSalva_Click},
    {"cmdSave", Evento::Clic,
     [](Sessione &s, int) { return EsitoScrittura(s, std::string(Parametri::NOME_FILE), ScriviDefault(s)); }},
    {"mnuItalian", Evento::Clic, [](Sessione &s, int) { return ScegliLingua(s, LinguaDi("it")); }},
    {"mnuFrancais", Evento::Clic, [](Sessione &s, int) { return ScegliLingua(s, LinguaDi("fr")); }},
    {"mnuInglese", Evento::Clic, [](Sessione &s, int) { return ScegliLingua(s, LinguaDi("en")); }},
};

}  // namespace

Esito ScegliLingua(Sessione &s, const Lingua &lingua) {
    const std::string nome = Dizionario::NomeFile(LINGUA), dizionario = DizionarioDi(lingua);
    // An entry is good for one press.
    const auto detto = [&] {
        if (lingua.voce != NESSUN_CONTROLLO) s.stato(lingua.voce).abilitato = false;
        s.utente.Box(lingua.avviso);
    };
    if (dizionario.empty()) {
        std::error_code ec;
        std::filesystem::remove(nome, ec);
        if (ec) return EsitoScrittura(s, nome, TraVirgolette(nome) + ": " + ec.message());
        detto();
        return Esito::conFile(nome);
    }
    const std::string cercato = Dizionario::NomeFile(dizionario);
    const auto sorgente = TrovaDato(cercato);
    if (sorgente) {
        std::string errore;
        const auto contenuto = LeggiFile(sorgente->string(), FILE_MASSIMO, &errore);
        if (!contenuto) return EsitoScrittura(s, sorgente->string(), errore);
        if (Esito e = EsitoScrittura(s, nome, ScriviFile(nome, *contenuto)); !e) return e;
    }
    detto();
    if (sorgente) return Esito::conFile(nome);
    return Esito::fallito(cercato, s.Traduci("Non trovo il file ") + cercato + ": " + LuoghiDati(), false);
}

Esito EsitoScrittura(Sessione &s, const std::string &nome, const std::optional<std::string> &errore) {
    if (!errore) return Esito::conFile(nome);
    s.utente.Box(*errore);
    return Esito::fallito(nome, *errore, true);
}

std::span<const Gestore> GestoriFile() { return GESTORI; }

}  // namespace ombrelia::app
