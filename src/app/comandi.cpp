// Dispatch of a user's actions to the handlers, and the start-up.
#include "app/comandi.h"

#include <cstdlib>
#include <unordered_map>

#include "app/azioni.h"
#include "app/etichette.h"
#include "app/lingua.h"
#include "app/parametri_default.h"
#include "app/rapporti.h"
#include "certificato/corrette.h"

namespace ombrelia::app {

namespace {

// Handlers by control and event, gathered once from all forms.
class Registro {
public:
    Registro() {
        for (const auto gestori : {GestoriPrincipale(), GestoriTavolo(), GestoriFile(), GestoriSole(), GestoriMappa()})
            for (const Gestore &g : gestori) azioni_.insert_or_assign(chiave(g.controllo, g.evento), g.azione);
    }
    Esito avvisa(Sessione &s, IdControllo id, Evento evento) const {
        const auto i = azioni_.find(chiave(id, evento));
        if (i != azioni_.end()) return i->second(s, RigaDi(id).indice);
        if (evento == Evento::Clic) PremiRapporto(s, id);
        return Esito::Fatto;
    }

private:
    static int chiave(IdControllo id, Evento e) { return id * 4 + static_cast<int>(e); }
    std::unordered_map<int, Azione> azioni_;
};

Esito avvisa(Sessione &s, IdControllo id, Evento evento) {
    static const Registro registro;
    return registro.avvisa(s, id, evento);
}

Esito cambiaTesto(Sessione &s, IdControllo id, const std::string &testo) {
    std::string &dove = s.testo(id);
    if (dove == testo) return Esito::Fatto;
    dove = testo;
    return avvisa(s, id, Evento::Cambio);
}

IdControllo rigaDi(std::string DialInputs::*campo) {
    const auto tavola = TavolaControlli();
    for (std::size_t i = 0; i < tavola.size(); ++i)
        if (tavola[i].testo == campo) return static_cast<IdControllo>(i);
    return NESSUN_CONTROLLO;
}

// Only one option of a form is set at a time.
void scegliOpzione(Sessione &s, IdControllo id) {
    for (const Controllo &c : ControlliDi(RigaDi(id).modulo))
        if (c.classe == Classe::Opzione) s.valore(IdDi(c)) = 0;
    s.valore(id) = 1;
}

}  // namespace

void Avvia(Sessione &s) {
    s.suCorretta = TracciaVera;
    s.suOmbra = OmbreNellaLista;
    s.suCambio = [](Sessione &qui, std::string DialInputs::*campo) {
        const IdControllo id = rigaDi(campo);
        if (id != NESSUN_CONTROLLO) avvisa(qui, id, Evento::Cambio);
    };
    Variabili &v = s.v;
    Tavolo &t = s.tavolo;
    v.origineX = 0;
    v.origineY = 0;
    // The window's load takes base sizes of its own, which the sheet's replace at once.
    v.altezzaBase = t.QuadranteH() * 10.0;
    v.larghezzaBase = t.QuadranteL() * 10.0;
    LeggiDefault(s);
    CaricaForm(s, "MDIForm1");
    LeggiDefault(s);
    CaricaForm(s, "frmTavolo");
    CaricaForm(s, "Tavolo1");
    v.altezzaBase = t.QuadranteH();
    v.larghezzaBase = t.QuadranteL();
    if (Val(s.in.txtLAT) >= 0) v.altezzaBase = t.QuadranteH() * 1.5;
    t.QuadranteH(v.altezzaBase.numero());
    t.QuadranteL(v.larghezzaBase.numero());
    t.ShiftX(t.QuadranteL() / 2.0);
    t.ShiftY(t.QuadranteH() / 3.333333);
    AbilitaPerInclinazione(s);
}

Esito Imposta(Sessione &s, IdControllo id, const std::string &testo) {
    const Classe classe = RigaDi(id).classe;
    if (classe == Classe::Elenco) return s.stato(id).abilitato ? ScegliVoce(s, id, testo) : Esito::Disabilitato;
    const Esito esito = Entra(s, id);
    if (!esito) return esito;
    Cambia(s, id, testo);
    return LasciaCampo(s, id);
}

namespace {

Esito conCasella(Sessione &s, IdControllo id, Esito (*azione)(Sessione &, IdControllo, const std::string &),
                 const std::string &testo) {
    if (RigaDi(id).classe != Classe::Testo) return Esito::Impossibile;
    if (!s.stato(id).abilitato) return Esito::Disabilitato;
    return azione(s, id, testo);
}

}  // namespace

Esito Entra(Sessione &s, IdControllo id) {
    return conCasella(s, id, [](Sessione &q, IdControllo i, const std::string &) { return avvisa(q, i, Evento::Entrata); }, {});
}
Esito Cambia(Sessione &s, IdControllo id, const std::string &testo) { return conCasella(s, id, cambiaTesto, testo); }
Esito LasciaCampo(Sessione &s, IdControllo id) {
    return conCasella(s, id, [](Sessione &q, IdControllo i, const std::string &) { return avvisa(q, i, Evento::Uscita); }, {});
}

Esito Digita(Sessione &s, IdControllo id, std::string_view tasti) {
    if (RigaDi(id).classe != Classe::Testo) return Esito::Impossibile;
    if (!s.stato(id).abilitato) return Esito::Disabilitato;
    const auto continua = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
    while (!tasti.empty()) {
        // A key is one character, however many bytes it has; those of several pass no filter.
        std::size_t byte = 1;
        while (byte < tasti.size() && continua(tasti[byte])) ++byte;
        const std::string_view tasto = tasti.substr(0, byte);
        tasti.remove_prefix(byte);
        const char tenuto = FiltraTasto(s, id, tasto[0]);
        if (tenuto == 0) continue;
        std::string testo = s.testo(id);
        if (tenuto == '\b') {
            while (!testo.empty() && continua(testo.back())) testo.pop_back();
            if (!testo.empty()) testo.pop_back();
        } else {
            (testo += tenuto) += tasto.substr(1);
        }
        cambiaTesto(s, id, testo);
    }
    return Esito::Fatto;
}

Esito Spunta(Sessione &s, IdControllo id, int valore) {
    if (RigaDi(id).classe != Classe::Casella) return Esito::Impossibile;
    if (!s.stato(id).abilitato) return Esito::Disabilitato;
    if (s.valore(id) == valore) return Esito::Fatto;
    s.valore(id) = valore;
    return avvisa(s, id, Evento::Clic);
}

Esito Premi(Sessione &s, IdControllo id) {
    switch (RigaDi(id).classe) {
        case Classe::Casella:
            return Spunta(s, id, s.valore(id) == 1 ? 0 : 1);
        case Classe::Pulsante:
        case Classe::Menu:
            break;
        case Classe::Opzione:
            if (s.stato(id).abilitato) scegliOpzione(s, id);
            break;
        default:
            return Esito::Impossibile;
    }
    if (!s.stato(id).abilitato) return Esito::Disabilitato;
    return avvisa(s, id, Evento::Clic);
}

void SpuntaDaProgramma(Sessione &s, int DialInputs::*casella, int valore) {
    const auto tavola = TavolaControlli();
    for (std::size_t i = 0; i < tavola.size(); ++i) {
        if (tavola[i].casella != casella || s.in.*casella == valore) continue;
        s.in.*casella = valore;
        avvisa(s, static_cast<IdControllo>(i), Evento::Clic);
        return;
    }
}

char FiltraTasto(Sessione &s, IdControllo id, char tasto) {
    const auto codice = static_cast<std::uint16_t>(static_cast<unsigned char>(tasto));
    bool beep = false;
    std::uint16_t esito = codice;
    switch (RigaDi(id).filtro) {
        case Filtro::Nessuno:
            break;
        case Filtro::Tasti:
        case Filtro::Numeri:
            esito = FiltroTasti(codice, beep);
            break;
        case Filtro::SoloCifre:
            esito = SoloNumeri(codice, false);
            break;
        case Filtro::SoloCifreSegno:
            esito = SoloNumeri(codice, true);
            break;
    }
    if (beep) s.utente.Beep();
    return static_cast<char>(esito);
}

bool Adatta(Sessione &s) {
    constexpr double MARGINE = 0.02;
    const Cornice c = CorniceDi(Lettura(s.in));
    const double l = c.xMax.numero() - c.xMin.numero() + 2 * MARGINE;
    const double h = c.yMax.numero() - c.yMin.numero() + 2 * MARGINE + AltezzaCartiglio(s);
    Tavolo &t = s.tavolo;
    if (!(l > 2 * MARGINE && h > 2 * MARGINE && l <= Tavolo::LATO_MASSIMO && h <= Tavolo::LATO_MASSIMO)) return false;
    t.QuadranteH(h);
    t.QuadranteL(l);
    // A southern dial that is mirrored at once has its frame the other way round.
    const bool specchio = s.australeMontato && Val(s.in.txtLAT) < 0;
    t.ShiftX(MARGINE + (specchio ? c.xMax.numero() : -c.xMin.numero()));
    t.ShiftY(MARGINE + c.yMax.numero());
    return true;
}

std::string Didascalia(Sessione &s, IdControllo id) { return RigaDi(id).pannello ? s.testo(id) : s.stato(id).caption; }

std::string CartellaDisegni() {
#ifdef _WIN32
    return "c:\\OMDXF";
#else
    const char *casa = std::getenv("HOME");
    return casa && *casa ? std::string(casa) + "/OMDXF" : "OMDXF";
#endif
}

}  // namespace ombrelia::app
