// The program behind a page.
#include "web/pagina.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include "app/azioni.h"
#include "app/comandi.h"
#include "app/progetto.h"
#include "controlli/lingue.h"
#include "core/campi.h"
#include "core/file.h"
#include "core/percorsi.h"
#include "formati/formati.h"
#include "luoghi/angolo.h"
#include "officina/scrittori.h"
#include "officina/tratti.h"
#include "plot/svg.h"
#include "reports/rapporti.h"
#include "web/json.h"

namespace ombrelia::web {

namespace {

constexpr std::string_view FINESTRA = "MDIForm1";

constexpr std::string_view MACCHINA = "macchina.";  // before the ending of a form for machines

// What a change of asks for another sheet.
bool dellaCornice(const Controllo &c) {
    using In = DialInputs;
    return c.casella == &In::ChCentimetro ||
           (c.testo && (c.testo == &In::txtX0 || c.testo == &In::txtX1 || c.testo == &In::txtY0 || c.testo == &In::txtY1));
}

// Boxes that draw when they are set.
constexpr NomeControllo DISEGNANO[] = {"ckRomani", "ckArabi", "punto"};

// Pressed by the page itself: on the session, they read the original dial anew as a designer wants it.
class AlTavolo {
public:
    explicit AlTavolo(Sessione &s) : s_(s), prima_(std::exchange(s.originaleFresco, true)) {}
    AlTavolo(const AlTavolo &) = delete;
    AlTavolo &operator=(const AlTavolo &) = delete;
    ~AlTavolo() { s_.originaleFresco = prima_; }

private:
    Sessione &s_;
    bool prima_;
};

}  // namespace

Pagina::Pagina() : copione_(std::make_unique<cli::Copione>()), prova_(muto_) {
    app::Avvia(prova_);
    prova_.originaleFresco = true;
}

void Pagina::Avvia() {
    copione_ = std::make_unique<cli::Copione>();
    daScript_ = analitica_ = mappa_ = false;
}

std::string Pagina::Esegui(std::string_view rigaScript) {
    const auto motivo = copione_->Esegui(rigaScript);
    daScript_ = !sessione().tavolo.lista().Ordine.empty();
    return motivo.value_or(std::string());
}

void Pagina::tocca() { daScript_ = false; }

std::string Pagina::Scrivi(std::string_view nome, std::string_view testo) {
    const auto cercato = CercaControllo(nome);
    if (!cercato) return {};
    const IdControllo id = *cercato;
    Sessione &s = sessione();
    const AlTavolo fresco(s);
    tocca();
    // "45°04' N" is what its degrees are.
    const luoghi::CampoAngolo *angolo = luoghi::TrovaCampoAngolo(RigaDi(id).nome);
    if (angolo && testo.find_first_not_of("0123456789.,+-") != std::string_view::npos) {
        const luoghi::AngoloLetto letto = luoghi::LeggiAngolo(testo, *angolo);
        if (letto.buono()) {
            app::Imposta(s, id, letto.testo);
            return std::string(testo);
        }
    }
    std::string filtrato;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        // Bytes behind the first of a character go with it.
        const bool continua = (static_cast<unsigned char>(testo[i]) & 0xC0U) == 0x80U;
        const char c = continua ? (filtrato.empty() ? '\0' : testo[i]) : app::FiltraTasto(s, id, testo[i]);
        if (c != '\0') filtrato += c;
    }
    app::Imposta(s, id, filtrato);
    if (dellaCornice(RigaDi(id))) app::Adatta(s);
    return s.testo(id);
}

void Pagina::Premi(std::string_view nome) {
    const auto cercato = CercaControllo(nome);
    if (!cercato) return;
    const IdControllo id = *cercato;
    Sessione &s = sessione();
    const AlTavolo fresco(s);
    tocca();
    const auto e = [id](NomeControllo c) { return id == c; };
    if (e("cmdRun") || e("cmdEqui")) {
        if (s.stato(id).abilitato) analitica_ = e("cmdEqui");
    } else if (e("cmdPlot")) {
        mappa_ = !mappa_;
    } else {
        app::Premi(s, id);
        if (e("cmdStati")) prova_.mondo = s.mondo;
        if (dellaCornice(RigaDi(id))) app::Adatta(s);
    }
}

void Pagina::Adatta() { app::Adatta(sessione()); }

void Pagina::Collega(std::string_view righe) {
    Avvia();
    Sessione &s = sessione();
    while (!righe.empty()) {
        const std::size_t fine = std::min(righe.find('\n'), righe.size());
        const std::string_view una = righe.substr(0, fine);
        righe.remove_prefix(std::min(fine + 1, righe.size()));
        const std::size_t tab = una.find('\t');
        const auto cercato = tab == std::string_view::npos ? std::nullopt : CercaControllo(una.substr(0, tab));
        if (!cercato || RigaDi(*cercato).modulo != FINESTRA) continue;
        const IdControllo id = *cercato;
        const Controllo &c = RigaDi(id);
        const std::string_view valore = una.substr(tab + 1);
        if (c.classe == Classe::Testo) s.testo(id) = valore;
        else if (c.classe == Classe::Casella) s.valore(id) = valore == "1" ? 1 : 0;
    }
    app::AbilitaPerInclinazione(s);
    app::Adatta(s);
}

std::string Pagina::Collegamento() {
    Sessione &s = sessione();
    Json j;
    j.apri('[');
    for (const Controllo &c : ControlliDi(FINESTRA)) {
        const IdControllo id = IdDi(c);
        std::string valore;
        if (c.classe == Classe::Testo && s.testo(id) != c.inizio) valore = s.testo(id);
        else if (c.classe == Classe::Casella && s.valore(id) == 1) valore = "1";
        else if (c.classe != Classe::Testo || s.testo(id) == c.inizio) continue;
        j.apri('[').testo(c.nome).testo(valore).chiudi(']');
    }
    return std::move(j.chiudi(']')).fine();
}

void Pagina::Lingua(std::string_view codice) {
    Dizionario &d = prova_.dizionario;
    d.Interpreta({});
    for (const std::string &nome : FileDi(LinguaDi(codice)))
        if (const auto file = nome.empty() ? std::nullopt : TrovaDato(nome))
            d.Aggiungi(LeggiFile(file->string(), FILE_MASSIMO).value_or(std::string()));
}

std::string Pagina::Lingue() {
    Json j;
    j.apri('[');
    for (const auto &l : ombrelia::Lingue()) j.apri('[').testo(l.codice).testo(l.nome).chiudi(']');
    return std::move(j.chiudi(']')).fine();
}

std::string Pagina::Stato() {
    Sessione &s = sessione();
    Json j;
    j.apri('{');
    for (const Controllo &c : ControlliDi(FINESTRA)) {
        const IdControllo id = IdDi(c);
        if (c.classe == Classe::Menu || c.classe == Classe::Immagine || c.classe == Classe::Etichetta) continue;
        j.nome(c.nome).apri('[');
        const auto e = [id](NomeControllo nome) { return id == nome; };
        if (e("cmdRun") || e("cmdEqui")) j.vero(e("cmdEqui") == analitica_);
        else if (e("cmdPlot")) j.vero(mappa_);
        else if (c.classe == Classe::Casella || c.classe == Classe::Opzione) j.vero(s.valore(id) == 1);
        else j.testo(s.testo(id));
        j.vero(s.stato(id).abilitato);
        if (c.classe == Classe::Elenco) {
            j.apri('[');
            for (const std::string &paese : s.mondo.paesi) j.testo(paese);
            j.chiudi(']');
        }
        j.chiudi(']');
    }
    return std::move(j.chiudi('}')).fine();
}

void Pagina::ridisegna() {
    Sessione &da = sessione();
    muto_.avvisi.clear();
    prova_.in = da.in;
    prova_.v = da.v;
    prova_.stati = da.stati;
    Tavolo &t = prova_.tavolo;
    t.Clear();
    t.ForeColor = 0;
    t.QuadranteL(da.tavolo.QuadranteL());
    t.QuadranteH(da.tavolo.QuadranteH());
    t.ShiftX(da.tavolo.ShiftX());
    t.ShiftY(da.tavolo.ShiftY());
    const bool australe = Val(prova_.in.txtLAT) < 0;
    const bool analitica = analitica_ && da.stato("cmdEqui").abilitato;
    app::Premi(prova_, analitica ? NomeControllo("cmdEqui") : NomeControllo("cmdRun"));
    // The page turns a southern dial over itself, as the first box would tell a user to.
    if (australe && !analitica && !muto_.avvisi.empty()) muto_.avvisi.erase(muto_.avvisi.begin());
    if (mappa_) app::Premi(prova_, NomeControllo("cmdPlot"));
    for (const NomeControllo id : DISEGNANO)
        if (std::exchange(prova_.valore(id), 0) == 1 || da.valore(id) == 1) app::Spunta(prova_, id, 1);
    if (australe && !analitica) t.cmdInvX();
    prova_.in.txtLAT = da.in.txtLAT;
}

std::string Pagina::Disegna(double pixel) {
    if (!daScript_) ridisegna();
    return Mostra(pixel);
}

std::string Pagina::Mostra(double pixel) {
    const Tavolo &t = disegno().tavolo;
    const std::string svg = SVG_Generate(t, pixel);
    // Layers stand as groups, each on lines of its own.
    constexpr std::string_view STRATO = "<g id=\"strato", FINE = "</g>\n</svg>\n";
    const std::size_t primo = std::min(svg.find(STRATO), svg.size() - FINE.size());
    std::vector<std::string> strati;
    for (std::size_t da = primo; da + FINE.size() < svg.size();) {
        const std::size_t a = std::min(svg.find(STRATO, da + 1), svg.size() - FINE.size());
        strati.push_back(svg.substr(da, a - da));
        da = a;
    }
    Json j;
    j.apri('{').nome("foglio").apri('[');
    for (const double n : {t.QuadranteL(), t.QuadranteH(), t.ShiftX(), t.ShiftY(), t.FattoreX, t.FattoreY}) j.numero(n);
    j.chiudi(']').nome("avvisi").apri('[');
    for (const std::string &a : muto_.avvisi) j.testo(a);
    j.chiudi(']').nome("strati").apri('[');
    std::string cambiati = svg.substr(0, primo);
    for (std::size_t i = 0; i < strati.size(); ++i) {
        const std::size_t a = strati[i].find('"') + 1;
        j.testo(std::string_view(strati[i]).substr(a, strati[i].find('"', a) - a));
        if (i >= mostrati_.size() || mostrati_[i] != strati[i]) cambiati += strati[i];
    }
    cambiati += FINE;
    mostrati_ = std::move(strati);
    return std::move(j.chiudi(']').nome("svg").testo(cambiati).chiudi('}')).fine();
}

std::string Pagina::Esporta(std::string_view forma) {
    if (forma == "omb") return app::ScriviProgetto(sessione());
    if (forma.starts_with(MACCHINA)) {
        const officina::FormatoMacchina *m = officina::FormatoMacchinaDi(forma.substr(MACCHINA.size()));
        std::string errore;
        const officina::Disegno d = officina::Prepara(
            disegno().tavolo, {.testi = officina::CiSonoTratti() ? officina::Testi::Tratti : officina::Testi::Testo}, errore);
        if (!m || !errore.empty()) throw std::runtime_error(errore);
        return m->scrivi(d, {.titolo = "Ombrelia"});
    }
    const FormatoDisegno *f = FormatoDi(forma);
    if (!f) throw std::invalid_argument("unknown form " + std::string(forma));
    std::string errore, contenuto = f->scrivi(disegno().tavolo, errore);
    if (!errore.empty()) throw std::runtime_error(errore);
    return contenuto;
}

std::string Pagina::ApriRapporto(std::string_view nome) {
    const auto id = CercaControllo(nome);
    if (!id) return "null";
    ridisegna();
    muto_.avvisi.clear();
    Rapporti &tutti = prova_.rapporti;
    tutti.aperto = {};
    app::Premi(prova_, *id);
    const Rapporto &r = tutti.aperto;
    if (r.modulo.empty()) return "null";
    Json j;
    j.apri('{').nome("titolo").testo(SenzaBlanks(r.caption)).nome("tabelle").apri('[');
    for (const TabellaRapporto &t : r.tabelle) {
        j.apri('{').nome("titolo").testo(SenzaBlanks(t.titolo)).nome("colonne").apri('[');
        for (const std::string &c : t.colonne) j.testo(c);
        j.chiudi(']').chiudi('}');
    }
    // A line: the table that it belongs to (-1 for none), whether it is a row of it, its items.
    j.chiudi(']').nome("righe").apri('[');
    for (const RigaRapporto &x : r.righe) {
        j.apri('[').numero(x.tabella).vero(x.genere == GenereRiga::Dati).apri('[');
        for (const Elemento &e : x.voci)
            if (!(x.genere == GenereRiga::Dati && e.ornamento)) j.testo(SenzaBlanks(e.testo));
        j.chiudi(']').chiudi(']');
    }
    return std::move(j.chiudi(']').chiudi('}')).fine();
}

std::string Pagina::RapportoCome(std::string_view forma) const {
    return reports::FormaRapportoDi(forma).scrivi(prova_.rapporti.aperto);
}

}  // namespace ombrelia::web
