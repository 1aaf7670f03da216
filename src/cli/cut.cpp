// Files for machines from a dial's options.
#include "cli/cut.h"

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "app/comandi.h"
#include "cli/console.h"
#include "cli/disegno.h"
#include "cli/formati.h"
#include "officina/scrittori.h"
#include "officina/tratti.h"

namespace ombrelia::cli {

namespace {

struct Richiesta {
    Disegno disegno;
    officina::Opzioni opzioni;
    std::optional<officina::Testi> testi;
    officina::Foglio foglio;
    std::vector<std::string> uscite;
};

int rifiuta(const std::string &motivo) {
    std::fprintf(stderr, "ombrelia cut: %s\n", motivo.c_str());
    return 2;
}

// An option with a word out of a few, or a length above 0 in mm.
struct Opzione {
    std::string_view nome, vuole;
    bool (*prendi)(Richiesta &, const std::string &);
};

bool lunghezza(const std::string &testo, double &mm) { return Numero(testo, mm) && mm > 0; }

constexpr Opzione OPZIONI[] = {
    {"--text", "strokes, text or none",
     [](Richiesta &r, const std::string &v) {
         if (v != "strokes" && v != "text" && v != "none") return false;
         r.testi = v == "strokes" ? officina::Testi::Tratti : v == "text" ? officina::Testi::Testo : officina::Testi::Niente;
         return true;
     }},
    {"--tolerance", "a length in mm above 0",
     [](Richiesta &r, const std::string &v) { return lunghezza(v, r.opzioni.tolleranza); }},
    {"--dots", "the radius of a circle in mm above 0",
     [](Richiesta &r, const std::string &v) { return lunghezza(v, r.opzioni.raggioPunti); }},
    {"--units", "mm or in",
     [](Richiesta &r, const std::string &v) {
         r.foglio.unita = v == "in" ? officina::Unita::Pollici : officina::Unita::Millimetri;
         return v == "in" || v == "mm";
     }},
    {"--clip", "frame or sheet",
     [](Richiesta &r, const std::string &v) {
         r.opzioni.ritaglio = v == "sheet" ? officina::Ritaglio::Foglio : officina::Ritaglio::Cornice;
         return v == "frame" || v == "sheet";
     }},
    {"-o", "a file",
     [](Richiesta &r, const std::string &v) {
         r.uscite.push_back(v);
         return true;
     }},
};

std::string leggi(int argc, char **argv, Richiesta &r) {
    for (int i = 0; i < argc; ++i) {
        const std::string a = argv[i];
        std::string errore;
        if (r.disegno.Prendi(argc, argv, i, errore)) {
            if (!errore.empty()) return errore;
            continue;
        }
        const Opzione *trovata = nullptr;
        for (const Opzione &o : OPZIONI)
            if (o.nome == a) trovata = &o;
        if (trovata) {
            if (i + 1 >= argc) return a + " needs " + std::string(trovata->vuole);
            const std::string v = argv[++i];
            if (!trovata->prendi(r, v)) return a + " " + v + ": it takes " + std::string(trovata->vuole);
        } else if (a.starts_with("-") && a != "-") {
            return "unknown option " + a + "; see ombrelia cut --help";
        } else {
            r.uscite.push_back(a);
        }
    }
    if (r.uscite.empty()) return "no output file: name one or more, as in muro.dxf muro.plt";
    for (const std::string &u : r.uscite)
        if (!officina::FormatoMacchinaDi(Estensione(u))) {
            std::string note;
            for (const auto &f : officina::FormatiMacchina()) note += " ." + std::string(f.estensione);
            return u + ": unknown ending; I write" + note;
        }
    return {};
}

}  // namespace

int Cut(int argc, char **argv) {
    Richiesta r;
    if (const std::string e = leggi(argc, argv, r); !e.empty()) return rifiuta(e);
    Console console(stderr);
    Sessione s(console);
    app::Avvia(s);
    if (const std::string e = r.disegno.Applica(s); !e.empty()) return rifiuta(e);
    if (const std::string e = r.disegno.Esegui(s); !e.empty()) return rifiuta(e);
    // Strokes where there are any, else texts as texts.
    r.opzioni.testi = r.testi.value_or(officina::CiSonoTratti() ? officina::Testi::Tratti : officina::Testi::Testo);
    std::string errore;
    const officina::Disegno d = officina::Prepara(s.tavolo, r.opzioni, errore);
    if (!errore.empty()) return rifiuta(errore + ", and nothing is written");
    r.foglio.titolo = "Ombrelia: " + s.in.txtLAT + "°, " + s.in.txtDec + "°, " + s.in.txtInc + "°";
    for (const std::string &uscita : r.uscite) {
        const std::string contenuto = officina::FormatoMacchinaDi(Estensione(uscita))->scrivi(d, r.foglio);
        if (const std::string e = Consegna(uscita, contenuto); !e.empty()) return rifiuta(e);
    }
    std::fputs(officina::Racconto(d, r.opzioni).c_str(), stdout);
    return 0;
}

}  // namespace ombrelia::cli
