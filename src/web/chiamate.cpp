// The calls of the page, and the one door through which a browser comes in.
#include "web/chiamate.h"

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <utility>

#include "core/file.h"

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
    {"tavola", [](Pagina &p, Sv) { return p.Tavola(); }},
    {"stato", [](Pagina &p, Sv) { return p.Stato(); }},
    {"disegna", [](Pagina &p, Sv) { return p.Disegna(); }},
    {"dimentica", [](Pagina &p, Sv) { return nulla(&Pagina::Dimentica, p); }},
    {"esporta", [](Pagina &p, Sv a) { return consegna("/tmp/ombrelia." + std::string(a), p.Esporta(a)); }},
    {"rapporto", [](Pagina &p, Sv a) { return p.ApriRapporto(a); }},
    {"salvaRapporto", [](Pagina &p, Sv a) { return consegna("/tmp/rapporto." + std::string(a), p.RapportoCome(a)); }},
};

}  // namespace

std::span<const Chiamata> Chiamate() { return CHIAMATE; }

}  // namespace ombrelia::web

#ifdef __EMSCRIPTEN__
#include <emscripten.h>

// Gives "=" and the answer, or "!" and why there is none; good until the next call.
extern "C" EMSCRIPTEN_KEEPALIVE const char *ombrelia_chiama(const char *nome, const char *argomento) {
    using namespace ombrelia::web;
    static Pagina pagina;
    static std::string risposta;
    try {
        risposta = "!no such call";
        for (const Chiamata &c : Chiamate())
            if (c.nome == nome) risposta = "=" + c.esegui(pagina, argomento);
    } catch (const std::exception &e) {
        risposta = std::string("!") + e.what();
    }
    std::fflush(stdout);
    return risposta.c_str();
}
#endif
