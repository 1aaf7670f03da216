// The table of towns and the search by name.
#include "luoghi/atlante.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

#include "core/file.h"
#include "core/percorsi.h"
#include "core/testo.h"
#include "luoghi/nomi.h"

namespace ombrelia::luoghi {

namespace {

constexpr std::size_t TABELLA_MASSIMA = 16U << 20;  // bytes
constexpr double MOLTO_PIU_NOTO = 10;               // times the people of the next namesake
constexpr double STESSO_POSTO = 0.25;               // degrees

template <class N>
bool intero(std::string_view t, N &n) {
    const auto [fine, errore] = std::from_chars(t.data(), t.data() + t.size(), n);
    return errore == std::errc() && fine == t.data() + t.size();
}

bool gradi(std::string_view t, double entro, double &n) {
    if (t.empty() || t.find_first_not_of("-.0123456789") != std::string_view::npos) return false;
    n = Val(t).v;
    return n >= -entro && n <= entro;
}

std::vector<std::string_view> dividi(std::string_view t, char segno) {
    std::vector<std::string_view> parti;
    for (std::size_t da = 0; da <= t.size();) {
        const std::size_t a = std::min(t.find(segno, da), t.size());
        parti.push_back(t.substr(da, a - da));
        da = a + 1;
    }
    return parti;
}

struct NomeFuso {
    std::string_view nome;
    int minuti = 0;
};

std::string maiuscole(std::string_view t) {
    std::string m(t);
    for (char &c : m)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    return m;
}

}  // namespace

std::string_view NomeChiesto(const Luogo &luogo, std::string_view chiesto) {
    const std::string piano = Appiana(chiesto.substr(0, chiesto.rfind(',')));
    if (Appiana(luogo.nome) == piano) return luogo.nome;
    for (const std::string_view altro : dividi(luogo.altri, '|'))
        if (!altro.empty() && Appiana(altro) == piano) return altro;
    return luogo.nome;
}

double Distanza(const Luogo &a, double latitudine, double longitudine) {
    double dl = std::fmod(std::abs(a.longitudine - longitudine), 360);
    dl = std::min(dl, 360 - dl);
    return std::hypot(a.latitudine - latitudine, dl * std::cos(latitudine * std::numbers::pi / 180));
}

Atlante::Atlante(std::string tabella) : tabella_(std::move(tabella)) {
    std::vector<NomeFuso> fusi;
    for (std::string_view riga : dividi(tabella_, '\n')) {
        if (riga.ends_with('\r')) riga.remove_suffix(1);
        const auto p = dividi(riga, ';');
        if (riga.starts_with('=')) {
            NomeFuso f;
            if (p.size() != 3 || !intero(p[2], f.minuti) || std::abs(f.minuti) > 24 * 60) f = {};
            else f.nome = p[1];
            fusi.push_back(f);
            continue;
        }
        Luogo l;
        std::size_t fuso = 0;
        if (p.size() != 8 || p[0].empty() || !gradi(p[4], 90, l.latitudine) || !gradi(p[5], 180, l.longitudine) ||
            !intero(p[6], l.popolazione) || !intero(p[7], fuso) || fuso >= fusi.size())
            continue;
        l.nome = p[0], l.altri = p[1], l.paese = p[2], l.regione = p[3];
        l.longitudine = l.longitudine == 0 ? 0 : -l.longitudine;  // West positive, and no -0
        l.fuso = fusi[fuso].nome, l.base = fusi[fuso].minuti;
        l.meridiano = l.base == 0 ? 0 : -l.base / 4.0;
        if (l.meridiano - l.longitudine > 180) l.meridiano -= 360;
        if (l.meridiano - l.longitudine < -180) l.meridiano += 360;
        luoghi_.push_back(l);
    }
    std::stable_sort(luoghi_.begin(), luoghi_.end(),
                     [](const Luogo &a, const Luogo &b) { return a.popolazione > b.popolazione; });
    const auto aggiungi = [&](std::string_view nome, std::size_t luogo) {
        const std::string piano = Appiana(nome);
        if (piano.empty()) return;
        indice_.push_back({static_cast<std::uint32_t>(chiavi_.size()), static_cast<std::uint32_t>(piano.size()),
                           static_cast<std::uint32_t>(luogo)});
        chiavi_ += piano;
    };
    for (std::size_t i = 0; i < luoghi_.size(); ++i) {
        aggiungi(luoghi_[i].nome, i);
        if (!luoghi_[i].altri.empty())
            for (const std::string_view altro : dividi(luoghi_[i].altri, '|')) aggiungi(altro, i);
    }
    std::sort(indice_.begin(), indice_.end(), [&](const ChiaveNome &a, const ChiaveNome &b) {
        const int ordine = testo(a).compare(testo(b));
        return ordine < 0 || (ordine == 0 && a.luogo < b.luogo);
    });
}

const Atlante &Atlante::Comune() {
    static const Atlante atlante([] {
        const auto dove = TrovaDato("luoghi.csv");
        auto tabella = dove ? LeggiFile(dove->string(), TABELLA_MASSIMA) : std::nullopt;
        return tabella ? std::move(*tabella) : std::string();
    }());
    return atlante;
}

Atlante::DomandaLuogo Atlante::domanda(std::string_view nome, std::string_view paese) {
    DomandaLuogo d;
    d.paese = maiuscole(paese);
    const std::size_t virgola = nome.rfind(',');
    if (virgola != std::string_view::npos) {
        std::string coda = Appiana(nome.substr(virgola + 1));
        if (coda.size() == 2) {
            d.regione = maiuscole(coda);
            nome = nome.substr(0, virgola);
        }
    }
    d.nome = Appiana(nome.substr(0, 200));  // no town has a longer name
    return d;
}

bool Atlante::va(std::uint32_t luogo, const DomandaLuogo &d) const {
    const Luogo &l = luoghi_[luogo];
    return (d.paese.empty() || l.paese == d.paese) && (d.regione.empty() || l.regione == d.regione || l.paese == d.regione);
}

// Indices of places, the best known first, each once.
std::vector<std::uint32_t> Atlante::simili(const DomandaLuogo &d, Somiglianza come) const {
    std::vector<std::uint32_t> trovati;
    if (d.nome.empty()) return trovati;
    const auto prendi = [&](const ChiaveNome &c) {
        if (va(c.luogo, d)) trovati.push_back(c.luogo);
    };
    if (come == Somiglianza::Uguale || come == Somiglianza::Inizio) {
        const auto da = std::lower_bound(indice_.begin(), indice_.end(), d.nome,
                                         [&](const ChiaveNome &c, const std::string &n) { return testo(c) < n; });
        for (auto i = da; i != indice_.end() && testo(*i).starts_with(d.nome); ++i)
            if (come == Somiglianza::Inizio || i->lunga == d.nome.size()) prendi(*i);
            else break;  // the name itself sorts before what it begins
    } else if (come == Somiglianza::Parola) {
        const std::string parola = " " + d.nome;
        for (const ChiaveNome &c : indice_)
            if (testo(c).find(parola) != std::string_view::npos) prendi(c);
    } else if (d.nome.size() > 3) {
        for (const ChiaveNome &c : indice_)
            if (AUnPasso(testo(c), d.nome)) prendi(c);
    }
    std::sort(trovati.begin(), trovati.end());
    trovati.erase(std::unique(trovati.begin(), trovati.end()), trovati.end());
    return trovati;
}

std::vector<const Luogo *> Atlante::mostra(std::vector<std::uint32_t> indici, std::size_t quanti) const {
    std::vector<const Luogo *> luoghi;
    for (std::size_t i = 0; i < indici.size() && i < quanti; ++i) luoghi.push_back(&luoghi_[indici[i]]);
    return luoghi;
}

Trovati Atlante::Cerca(std::string_view nome, std::string_view paese, std::size_t quanti) const {
    DomandaLuogo d = domanda(nome, paese);
    for (const auto come : {Somiglianza::Uguale, Somiglianza::Inizio, Somiglianza::Parola, Somiglianza::Vicino}) {
        auto trovati = simili(d, come);
        if (trovati.empty() && come == Somiglianza::Uguale) {
            DomandaLuogo tedesca = d;
            tedesca.nome = SenzaDieresi(d.nome);
            if (tedesca.nome != d.nome) trovati = simili(tedesca, come);
        }
        if (!trovati.empty()) return {come, mostra(std::move(trovati), quanti)};
    }
    return {};
}

std::vector<const Luogo *> Atlante::Suggerisci(std::string_view inizio, std::size_t quanti, std::string_view paese) const {
    const DomandaLuogo d = domanda(inizio, paese);
    std::vector<std::uint32_t> tutti;
    for (const auto come : {Somiglianza::Uguale, Somiglianza::Inizio, Somiglianza::Parola}) {
        for (const std::uint32_t i : simili(d, come)) {
            if (tutti.size() >= quanti) break;
            if (std::find(tutti.begin(), tutti.end(), i) == tutti.end()) tutti.push_back(i);
        }
        if (tutti.size() >= quanti) break;
    }
    return tutti.empty() ? Cerca(inizio, paese, quanti).luoghi : mostra(std::move(tutti), quanti);
}

Scelta Atlante::Scegli(std::string_view nome, std::string_view paese) const {
    Trovati t = Cerca(nome, paese);
    Scelta s;
    s.omonimi = !t.luoghi.empty() && t.come == Somiglianza::Uguale;
    s.tra = std::move(t.luoghi);
    if (!s.omonimi) return s;
    const Luogo &primo = *s.tra.front();
    const auto altro = std::find_if(s.tra.begin() + 1, s.tra.end(), [&](const Luogo *l) {
        return Distanza(*l, primo.latitudine, primo.longitudine) > STESSO_POSTO;
    });
    if (altro == s.tra.end() || primo.popolazione >= MOLTO_PIU_NOTO * (*altro)->popolazione) {
        s.luogo = &primo;
        s.tra.clear();
    }
    return s;
}

}  // namespace ombrelia::luoghi
