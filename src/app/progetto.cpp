// Project files.
#include "app/progetto.h"

#include <filesystem>

#include "controlli/nomi.h"
#include "core/campi.h"
#include "core/file.h"

namespace ombrelia::app {

namespace {

constexpr std::string_view FINESTRA = "MDIForm1", FOGLIO = "frmTavolo";

// What a class of control keeps; other classes are not in the file.
enum class Contenuto { Niente, Testo, Numero, Vero, Caption };
Contenuto contenutoDi(Classe classe) {
    switch (classe) {
        case Classe::Testo:
            return Contenuto::Testo;
        case Classe::Casella:
            return Contenuto::Numero;
        case Classe::Opzione:
        case Classe::Menu:
            return Contenuto::Vero;
        case Classe::Etichetta:
            return Contenuto::Caption;
        default:
            return Contenuto::Niente;
    }
}

std::string valoreDi(Sessione &s, IdControllo id, Contenuto contenuto) {
    switch (contenuto) {
        case Contenuto::Testo:
            return s.testo(id);
        case Contenuto::Numero:
            return std::to_string(s.valore(id));
        case Contenuto::Vero:
            return s.valore(id) != 0 ? "-1" : "0";
        case Contenuto::Caption:
            return s.stato(id).caption;
        case Contenuto::Niente:
            break;
    }
    return {};
}

// Whether a later control stands as an older file leaves it.
bool alPosto(Sessione &s, const Controllo &c) {
    if (!c.nostro) return false;
    switch (contenutoDi(c.classe)) {
        case Contenuto::Testo:
            return s.testo(IdDi(c)) == c.inizio;
        case Contenuto::Numero:
        case Contenuto::Vero:
            return s.valore(IdDi(c)) == 0;
        default:
            return true;  // captions follow the language
    }
}

// A later control that a file doesn't hold.
void rimetti(Sessione &s, const Controllo &c) {
    if (c.classe == Classe::Testo) s.testo(IdDi(c)) = c.inizio;
    else if (c.classe == Classe::Casella) s.valore(IdDi(c)) = 0;
}

// Setting an option clears the others of its form.
void scegli(Sessione &s, const Controllo &scelto, bool vero) {
    if (vero && scelto.classe == Classe::Opzione)
        for (const Controllo &c : ControlliDi(scelto.modulo))
            if (c.classe == Classe::Opzione) s.valore(IdDi(c)) = 0;
    s.valore(IdDi(scelto)) = vero ? 1 : 0;
}

void applica(Sessione &s, const Controllo &c, std::string_view valore) {
    const IdControllo id = IdDi(c);
    switch (contenutoDi(c.classe)) {
        case Contenuto::Testo:
            s.testo(id) = valore;
            break;
        case Contenuto::Caption:
            s.stato(id).caption = valore;
            break;
        case Contenuto::Numero:
            if (const auto n = Intero16(valore)) s.valore(id) = *n;
            break;
        case Contenuto::Vero:
            if (const Valore n = Val(valore); n.esiste()) scegli(s, c, n.v != 0);
            break;
        case Contenuto::Niente:
            break;
    }
}

void aggiungiTag(std::string &testo, std::string_view nome, std::string_view attributi, std::string_view valore) {
    for (const std::string_view pezzo :
         {std::string_view("<"), nome, attributi, std::string_view(">"), valore, std::string_view("</"), nome})
        testo += pezzo;
    testo += '>';
}

void leggiStato(std::string_view frammento, const std::string &quale, bool &stato) {
    if (frammento.find(quale + "=true") != std::string_view::npos) stato = true;
    else if (frammento.find(quale + "=false") != std::string_view::npos) stato = false;
}

// The four numbers of the sheet, in the order of the file. The third tag is written with a small x and read with a
// large one, as meant.
struct Misura {
    std::string_view scritta, letta;
    double (Tavolo::*leggi)() const;
    void (Tavolo::*imposta)(double);
};
constexpr Misura MISURE[] = {
    {"_QuadranteH", "QuadranteH", &Tavolo::QuadranteH, &Tavolo::QuadranteH},
    {"_QuadranteL", "QuadranteL", &Tavolo::QuadranteL, &Tavolo::QuadranteL},
    {"_Shiftx", "ShiftX", &Tavolo::ShiftX, &Tavolo::ShiftX},
    {"_Shifty", "ShiftY", &Tavolo::ShiftY, &Tavolo::ShiftY},
};

// Whether a text holds one tag of a project.
bool diQualcosa(const TestoProgetto &testo) {
    for (const Misura &m : MISURE)
        if (!testo.EstraiTagSheet(m.letta).empty()) return true;
    for (const Controllo &c : ControlliDi(FINESTRA))
        if (contenutoDi(c.classe) != Contenuto::Niente && !testo.EstraiTag(c.nome).empty()) return true;
    return false;
}

}  // namespace

std::string LeggiControlli(Sessione &s) {
    std::string testo;
    for (const Controllo &c : ControlliDi(FINESTRA)) {
        const Contenuto contenuto = contenutoDi(c.classe);
        if (contenuto == Contenuto::Niente || alPosto(s, c)) continue;
        const StatoControllo &stato = s.stato(IdDi(c));
        std::string attributi = stato.visibile ? " visible=true" : " visible=false";
        if (contenuto != Contenuto::Caption) attributi += stato.abilitato ? " enabled=true" : " enabled=false";
        aggiungiTag(testo, SenzaBlanks(c.nome), attributi, valoreDi(s, IdDi(c), contenuto));
        testo += "\r\n";
    }
    return testo;
}

void ApplicaControlli(Sessione &s, const TestoProgetto &testo) {
    for (const Controllo &c : ControlliDi(FINESTRA)) {
        if (contenutoDi(c.classe) == Contenuto::Niente) continue;
        const std::string_view frammento = testo.EstraiTag(c.nome);
        if (frammento.empty()) {
            if (c.nostro) rimetti(s, c);
            continue;
        }
        StatoControllo &stato = s.stato(IdDi(c));
        leggiStato(frammento, "visible", stato.visibile);
        leggiStato(frammento, "enabled", stato.abilitato);
        applica(s, c, ValoreTag(frammento));
    }
}

std::string ScriviProgetto(Sessione &s) {
    std::string testo = LeggiControlli(s);
    for (const Misura &m : MISURE) aggiungiTag(testo, m.scritta, {}, NumeroGenerale((s.tavolo.*m.leggi)()));
    return ProgettoDaTesto(testo);
}

std::optional<std::string> TroppoGrande(const std::string &NomeFile, std::string_view testo) {
    if (testo.size() <= FILE_MASSIMO) return {};
    return TraVirgolette(NomeFile) + ": più di " + std::to_string(FILE_MASSIMO) + " byte";
}

std::optional<std::string> SalvaProgetto(Sessione &s, const std::string &NomeFile) {
    const std::string testo = ScriviProgetto(s);
    if (auto errore = TroppoGrande(NomeFile, testo)) return errore;
    return ScriviFile(NomeFile, testo);
}

void ApplicaProgetto(Sessione &s, std::string testo) {
    const TestoProgetto tag(std::move(testo));
    for (const Misura &m : MISURE) {
        const Valore n = Val(ValoreTag(tag.EstraiTagSheet(m.letta)));
        if (n.esiste()) (s.tavolo.*m.imposta)(n.v);
    }
    ApplicaControlli(s, tag);
    if (s.tavolo.QuadranteH() == 0 || s.tavolo.QuadranteL() == 0)
        s.Messaggio(s.Traduci("Il foglio è vuoto: altezza o larghezza 0"));
}

Esito ApriProgetto(Sessione &s, const std::string &NomeFile) {
    std::optional<std::string> testo = LeggiProgetto(NomeFile);
    // Whoever designs is told that a text is no project; a script gets the empty sheet it always got.
    if (!testo || (s.originaleFresco && !diQualcosa(TestoProgetto(*testo)))) {
        const std::string motivo = s.Traduci("File non riconosciuto!");
        s.utente.Box(motivo);
        return Esito::fallito(NomeFile, motivo, true);
    }
    ApplicaProgetto(s, std::move(*testo));
    // Buttons are not in the file: the one that the inclination rules follows the plane just opened.
    s.stato("cmdEqui").abilitato = Val(s.in.txtInc) == 0;
    s.titolo(FOGLIO) = std::filesystem::path(NomeFile).filename().string();
    return Esito::conFile(NomeFile);
}

bool ChiudiTavolo(Sessione &s) {
    std::string &titolo = s.titolo(FOGLIO);
    if (!titolo.empty() && !s.utente.Box(s.Traduci("Attenzione! desideri chiudere il file ") + titolo + "?", Domanda::SiNo))
        return false;
    titolo.clear();
    return true;
}

}  // namespace ombrelia::app
