// Drawing a dial from options.
#include "cli/draw.h"

#include <cstdio>
#include <string>
#include <vector>

#include "app/comandi.h"
#include "cli/console.h"
#include "cli/disegno.h"
#include "cli/formati.h"

namespace ombrelia::cli {

namespace {

// What the user asked for; an error is a text.
struct Richiesta {
    Disegno disegno;
    std::vector<std::string> uscite;
};

int rifiuta(const std::string &motivo) {
    std::fprintf(stderr, "ombrelia draw: %s\n", motivo.c_str());
    return 2;
}

std::string leggi(int argc, char **argv, Richiesta &r) {
    for (int i = 0; i < argc; ++i) {
        const std::string a = argv[i];
        std::string errore;
        if (r.disegno.Prendi(argc, argv, i, errore)) {
            if (!errore.empty()) return errore;
        } else if (a == "-o" || a == "--out") {
            if (i + 1 >= argc) return a + " needs an argument";
            r.uscite.push_back(argv[++i]);
        } else if (a.starts_with("-")) {
            return "unknown option " + a + "; see ombrelia draw --help";
        } else {
            r.uscite.push_back(a);
        }
    }
    if (r.uscite.empty()) return "no output file: name one or more, as in muro.dxf muro.svg";
    for (const std::string &u : r.uscite)
        if (!FormatoDi(Estensione(u))) {
            std::string note;
            for (const Formato &f : Formati()) note += " ." + std::string(f.estensione);
            return u + ": unknown ending; I write" + note;
        }
    return {};
}

}  // namespace

int Draw(int argc, char **argv) {
    Richiesta r;
    if (const std::string e = leggi(argc, argv, r); !e.empty()) return rifiuta(e);
    Console console(stderr);
    Sessione s(console);
    app::Avvia(s);
    if (const std::string e = r.disegno.Applica(s); !e.empty()) return rifiuta(e);
    if (const std::string e = r.disegno.Esegui(s); !e.empty()) return rifiuta(e);
    for (const std::string &uscita : r.uscite) {
        std::string errore;
        const std::string contenuto = FormatoDi(Estensione(uscita))->scrivi(s, errore);
        if (errore.empty()) errore = Consegna(uscita, contenuto);
        if (!errore.empty()) return rifiuta(errore);
        const auto &l = s.tavolo.lista();
        std::printf("%s: %zu lines, %zu points, %zu figures, %zu texts\n", uscita.c_str(), l.Linee.size(), l.Punti.size(),
                    l.Figure.size(), l.Testi.size());
    }
    return 0;
}

}  // namespace ombrelia::cli
