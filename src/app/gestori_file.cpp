// Handlers of what is kept: project files, defaults, the language.
#include <filesystem>
#include <system_error>

#include "app/comandi.h"
#include "app/lingua.h"
#include "app/parametri_default.h"
#include "app/progetto.h"
#include "core/campi.h"
#include "core/file.h"
#include "core/percorsi.h"

namespace ombrelia::app {

namespace {

constexpr std::string_view ESTENSIONE = "omb", FILTRO = "*.omb";

void diErrore(Sessione &s, const std::optional<std::string> &errore) {
    if (errore) s.utente.Box(*errore);
}

void mnuApri_Click(Sessione &s, int) {
    const std::string &aperto = s.titolo("frmTavolo");
    if (!aperto.empty() && !s.utente.Box(s.Traduci("Attenzione! Vuoi chiudere il file ") + aperto + "?", Domanda::SiNo)) return;
    if (const auto nome = s.utente.File({false, ESTENSIONE, FILTRO, {}})) ApriProgetto(s, *nome);
}

void mnuSalva_Click(Sessione &s, int) {
    const auto nome = s.utente.File({true, ESTENSIONE, FILTRO, std::string(FILTRO)});
    if (nome && !nome->empty()) diErrore(s, SalvaProgetto(s, *nome));
}

// Each language item tells its message in its own language and is good for one press. The new language shows at the
// next start; a dictionary that is not there changes nothing.
void dopoLingua(Sessione &s, std::string_view voce, std::string_view messaggio) {
    s.stato(voce).abilitato = false;
    s.utente.Box(messaggio);
}

void mnuItalian_Click(Sessione &s, int) {
    std::error_code ec;
    std::filesystem::remove(Dizionario::NomeFile(LINGUA), ec);
    dopoLingua(s, "mnuItalian", "Riavviare Ombrelia!!");
}

void cambiaLingua(Sessione &s, std::string_view lingua, std::string_view voce, std::string_view messaggio) {
    if (const auto sorgente = TrovaDato(Dizionario::NomeFile(lingua)))
        if (const auto contenuto = LeggiFile(sorgente->string(), FILE_MASSIMO))
            diErrore(s, ScriviFile(Dizionario::NomeFile(LINGUA), *contenuto));
    dopoLingua(s, voce, messaggio);
}

constexpr Gestore GESTORI[] = {
    {"MDIForm1", "mnuApri", Evento::Clic, mnuApri_Click},
    {"MDIForm1", "mnuSalva", Evento::Clic, mnuSalva_Click},
    {"MDIForm1", "cmdSave", Evento::Clic, [](Sessione &s, int) { diErrore(s, ScriviDefault(s)); }},
    {"MDIForm1", "mnuItalian", Evento::Clic, mnuItalian_Click},
    {"MDIForm1", "mnuFrancais", Evento::Clic,
     [](Sessione &s, int) { cambiaLingua(s, "FranceseC2008", "mnuFrancais", "Il faut sortir avant d'exécuter Ombrelia!!"); }},
    {"MDIForm1", "mnuInglese", Evento::Clic,
     [](Sessione &s, int) { cambiaLingua(s, "IngleseC2008", "mnuInglese", "You must restart Ombrelia!!"); }},
};

}  // namespace

std::span<const Gestore> GestoriFile() { return GESTORI; }

}  // namespace ombrelia::app
