// The calls of the page.
#include "web/chiamate.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "core/file.h"
#include "core/testo.h"

namespace ombrelia::web {

namespace {

using Sv = std::string_view;

// The first word, and what follows the TAB behind it.
std::pair<Sv, Sv> spezza(Sv argomento) {
    const std::size_t tab = argomento.find('\t');
    return tab == Sv::npos ? std::pair(argomento, Sv()) : std::pair(argomento.substr(0, tab), argomento.substr(tab + 1));
}

// A file for the page to take, under a name of its own.
std::string consegna(const std::string &nome, Sv contenuto) {
    if (const auto errore = ScriviFile(nome, contenuto)) throw std::runtime_error(*errore);
    return nome;
}

double numero(Sv testo) {
    const Valore n = Val(testo);
    return n.esiste() ? n.v : 0;
}

std::string nulla(void (Pagina::*che)(), Pagina &p) {
    (p.*che)();
    return {};
}

constexpr Chiamata CHIAMATE[] = {
    {"avvia", [](Pagina &p, Sv) { return nulla(&Pagina::Avvia, p); }},
    {"esegui", [](Pagina &p, Sv a) { return p.Esegui(a); }},
    {"scrivi", [](Pagina &p, Sv a) { return p.Scrivi(spezza(a).first, spezza(a).second); }},
    {"premi", [](Pagina &p, Sv a) { return p.Premi(a), std::string(); }},
    {"adatta", [](Pagina &p, Sv) { return nulla(&Pagina::Adatta, p); }},
    {"collega", [](Pagina &p, Sv a) { return p.Collega(a), std::string(); }},
    {"collegamento", [](Pagina &p, Sv) { return p.Collegamento(); }},
    {"lingua", [](Pagina &p, Sv a) { return p.Lingua(a), std::string(); }},
    {"lingue", [](Pagina &, Sv) { return Pagina::Lingue(); }},
    {"tavola", [](Pagina &p, Sv) { return p.Tavola(); }},
    {"stato", [](Pagina &p, Sv) { return p.Stato(); }},
    {"disegna", [](Pagina &p, Sv a) { return p.Disegna(numero(a)); }},
    {"mostra", [](Pagina &p, Sv a) { return p.Mostra(numero(a)); }},
    {"dimentica", [](Pagina &p, Sv) { return nulla(&Pagina::Dimentica, p); }},
    {"esporta", [](Pagina &p, Sv a) { return consegna("/tmp/ombrelia." + std::string(a), p.Esporta(a)); }},
    {"luoghi", [](Pagina &, Sv a) { return Pagina::Luoghi(a); }},
    {"leggi",
     [](Pagina &p, Sv a) {
         const auto [x, resto] = spezza(a);
         const auto [y, coda] = spezza(resto);
         const auto [anno, entro] = spezza(coda);
         return p.Leggi(numero(x), numero(y), static_cast<int>(numero(anno)), numero(entro));
     }},
    {"linea", [](Pagina &p, Sv a) { return p.Linea(static_cast<std::size_t>(std::max(numero(a), 0.0))); }},
    {"certificato", [](Pagina &p, Sv) { return p.Certificato(); }},
    {"ombra", [](Pagina &p, Sv a) { return p.Ombra(spezza(a).first, numero(spezza(a).second)); }},
    {"giornata", [](Pagina &p, Sv a) { return p.Giornata(a); }},
    {"rapporto", [](Pagina &p, Sv a) { return p.ApriRapporto(a); }},
    {"salvaRapporto", [](Pagina &p, Sv a) { return consegna("/tmp/rapporto." + std::string(a), p.RapportoCome(a)); }},
};

}  // namespace

std::span<const Chiamata> Chiamate() { return CHIAMATE; }

}  // namespace ombrelia::web
