// The one door through which a browser comes in.
#include <emscripten.h>

#include <cstdio>
#include <exception>
#include <string>

#include "web/chiamate.h"

// Gives "=" and the answer of a call, or "!" and why there is none; good until the next call.
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
