// The language of the forms.
#include "app/lingua.h"

#include "core/campi.h"
#include "core/file.h"

namespace ombrelia::app {

namespace {

// Which texts of a control belong to the dictionary.
struct TestiDelDizionario {
    bool caption, toolTip;
};
TestiDelDizionario testiDi(Classe classe) {
    switch (classe) {
        case Classe::Casella:
        case Classe::Opzione:
        case Classe::Etichetta:
        case Classe::Pulsante:
        case Classe::Cornice:
            return {true, true};
        case Classe::Menu:
            return {true, false};
        case Classe::Testo:
            return {false, true};
        default:
            return {false, false};
    }
}

}  // namespace

void CaricaForm(Sessione &s, std::string_view modulo) {
    for (const Modulo &m : TavolaModuli())
        if (m.nome == modulo) s.titolo(modulo) = m.caption;
    for (const Controllo &c : ControlliDi(modulo)) {
        s.stato(IdDi(c)).caption = c.caption;
        s.stato(IdDi(c)).toolTip = c.toolTip;
    }
    TraduciForm(s, modulo);
}

void TraduciForm(Sessione &s, std::string_view modulo, std::string_view Nome) {
    if (Nome.empty()) return;
    if (Nome.starts_with("_DB")) EsportaDizionario(s, modulo);
    else ApplicaDizionario(s, Nome, modulo);
}

void ApplicaDizionario(Sessione &s, std::string_view Nome, std::string_view modulo) {
    if (Nome != s.dizionario.Nome()) s.dizionario.CaricaDizionario(Nome);
    if (s.dizionario.Voci().empty()) return;
    std::string &titolo = s.titolo(modulo);
    titolo = s.Traduci(titolo);
    for (const Controllo &c : ControlliDi(modulo)) {
        const TestiDelDizionario quali = testiDi(c.classe);
        StatoControllo &stato = s.stato(IdDi(c));
        if (quali.caption) stato.caption = s.Traduci(stato.caption);
        if (quali.toolTip) stato.toolTip = s.Traduci(stato.toolTip);
    }
}

void EsportaDizionario(Sessione &s, std::string_view modulo) {
    std::string testo;
    const auto riga = [&testo](const std::string &t) { testo += SenzaBlanks(t) + "|\r\n"; };
    for (const Controllo &c : ControlliDi(modulo)) {
        if (c.nostro) continue;
        const TestiDelDizionario quali = testiDi(c.classe);
        const StatoControllo &stato = s.stato(IdDi(c));
        if (quali.caption) riga(stato.caption);
        if (quali.toolTip && !stato.toolTip.empty()) riga(stato.toolTip);
    }
    const std::string nome = "_DB" + SenzaBlanks(modulo) + ".txt";
    if (const auto errore = ScriviFile(nome, TraVirgolette(testo) + "\r\n")) s.utente.Box(*errore);
}

}  // namespace ombrelia::app
