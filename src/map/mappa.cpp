// Loading the world and drawing its outlines.
#include "map/mappa.h"

#include <algorithm>
#include <iterator>

#include "controlli/nomi.h"
#include "core/file.h"
#include "core/percorsi.h"
#include "map/zenit.h"

namespace ombrelia {

namespace {

constexpr std::size_t MONDO_MASSIMO = 32u << 20;  // bytes
constexpr std::size_t CORDE_MASSIME = 100001;     // points of a run that have a place in the arrays

bool cifra(char c) { return c >= '0' && c <= '9'; }

// The number of a field; no value where Val would make do with 0 for want of one.
Valore numero(std::string_view testo) {
    std::size_t i = testo.find_first_not_of(" \t");
    if (i < testo.size() && (testo[i] == '+' || testo[i] == '-')) ++i;
    if (i < testo.size() && testo[i] == '.') ++i;
    return i < testo.size() && cifra(testo[i]) ? Val(testo) : Valore::nessuno();
}

// Cuts off the text up to the first separator, which is dropped; all of it when there is none.
std::string_view taglia(std::string_view &resto, char separatore, char altro) {
    std::size_t fine = 0;
    while (fine < resto.size() && resto[fine] != separatore && resto[fine] != altro) ++fine;
    const std::string_view pezzo = resto.substr(0, fine);
    resto.remove_prefix(std::min(fine + 1, resto.size()));
    return pezzo;
}
std::string_view campo(std::string_view &riga) { return taglia(riga, ';', ';'); }

// The text of a data file; empty when it is missing, unreadable or beyond the bound.
std::string testoDi(std::string_view nome) {
    const auto percorso = TrovaDato(nome);
    auto testo = percorso ? LeggiFile(percorso->string(), MONDO_MASSIMO) : std::nullopt;
    return testo ? DaFile(std::move(*testo)) : std::string();
}

// The outlines on one dial.
class Contorni {
public:
    Contorni(Sessione &s, const Cornice &cornice, Valore filtro, const PianoDeiLuoghi &piano)
        : s_(s), cornice_(cornice), filtro_(filtro), zenit_(piano), strato_(s.tavolo.nome("")) {}

    // Only a point in front of the plane is stored and joined to the one before; what lies behind leaves its place as
    // an earlier run left it, so a coast that comes out of the night may start from a stale point. The filter drops that.
    void traccia(const Mondo &mondo, std::size_t tratto, Colore colore) {
        const std::size_t fine = tratto + 1 < mondo.tratti.size() ? mondo.tratti[tratto + 1].primo : mondo.punti.size();
        std::size_t n = 0;
        for (std::size_t i = mondo.tratti[tratto].primo; i < fine; ++i) {
            ++n;
            if (!zenit_(mondo.punti[i].X, mondo.punti[i].Y, x_, y_) || n > CORDE_MASSIME) continue;
            xs_[n] = x_;
            ys_[n] = y_;
            if (n > 1 && cornice_.contiene(x_, y_) && lunghezza(n) < filtro_) {
                s_.tavolo.TracciaLinea(xs_[n], ys_[n], xs_[n - 1], ys_[n - 1], colore, strato_);
            }
        }
    }

private:
    [[nodiscard]] Valore lunghezza(std::size_t n) const {
        const Valore dx = xs_[n] - xs_[n - 1];
        const Valore dy = ys_[n] - ys_[n - 1];
        return Sqr(dx * dx + dy * dy);
    }

    Sessione &s_;
    Cornice cornice_;
    Reale filtro_;
    Zenit zenit_;
    IdNome strato_;
    std::vector<Reale> xs_ = std::vector<Reale>(CORDE_MASSIME + 1), ys_ = xs_;
    Reale x_, y_;
};

}  // namespace

Mondo LeggiMondo(std::string_view testo, Valore sito) {
    Mondo m;
    m.paesi.emplace_back(MONDO_INTERO);
    const Reale longitudine = sito;
    std::string_view nomePrima;
    std::string paese;
    while (!testo.empty()) {
        std::string_view riga = taglia(testo, '\n', '\r');
        const std::string_view nome = campo(riga);
        const Valore lat = numero(campo(riga));
        const Valore X = -numero(riga) - longitudine;
        if (!lat.esiste() || !X.esiste()) continue;

        if (m.tratti.empty() || nome != nomePrima) {
            nomePrima = nome;
            paese.clear();
            std::copy_if(nome.begin(), nome.end(), std::back_inserter(paese), [](char c) { return !cifra(c); });
            if (m.tratti.empty() || paese != m.paesi.back()) m.paesi.push_back(paese);
            m.tratti.push_back({m.punti.size(), m.paesi.size() - 1});
        }
        m.punti.push_back({X.v, (-lat).v});
    }
    return m;
}

void CaricaMondo(Sessione &s) {
    s.Messaggio(s.Traduci("Map"));
    s.mondo = LeggiMondo(testoDi("mondo.csv"), Val(s.in.txtLonG));
    s.in.cmbStati = MONDO_INTERO;
    s.stato("lblFiltro").visibile = true;
    s.stato("Filtertxt").visibile = true;
}

void DisegnaMondo(Sessione &s) {
    s.utente.Puntatore(true);
    const Lettura letto(s.in);
    LeggiUnita(s);
    Contorni contorni(s, CorniceDi(letto), Val(s.in.Filtertxt), LasciaPianoDeiLuoghi(s, letto));
    s.Messaggio(s.Traduci("Map"));
    if (s.mondo.punti.empty()) CaricaMondo(s);

    const Mondo &m = s.mondo;
    if (s.in.cmbStati == MONDO_INTERO) {
        for (std::size_t t = 0; t < m.tratti.size(); ++t) contorni.traccia(m, t, CIANO);
    }
    for (std::size_t t = 0; t < m.tratti.size(); ++t) {
        if (m.paesi[m.tratti[t].paese] == s.in.cmbStati) contorni.traccia(m, t, ROSSO);
    }
    LasciaRichiesta(s);
    s.utente.Puntatore(false);
}

}  // namespace ombrelia
