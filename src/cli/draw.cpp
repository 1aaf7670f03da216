// Drawing a dial from options.
#include "cli/draw.h"

#include <cstdio>
#include <string>
#include <vector>

#include "app/comandi.h"
#include "cli/campi.h"
#include "cli/console.h"
#include "cli/formati.h"

namespace ombrelia::cli {

namespace {

// What the user asked for; an error is a text.
struct Richiesta {
    Campi campi;
    std::vector<std::string> uscite;
    std::string motore = "auto";
    std::vector<double> foglio;  // L H X Y, or empty: the project's, else fitted to the frame
};

int rifiuta(const std::string &motivo) {
    std::fprintf(stderr, "ombrelia draw: %s\n", motivo.c_str());
    return 2;
}

bool numero(const char *testo, double &n) {
    const std::string t = testo;
    const std::size_t cifra = t.find_first_of("0123456789");
    const Valore v = Val(t);
    n = v.v;
    return v.esiste() && cifra != std::string::npos && t.find_first_not_of("+-.0123456789eE") == std::string::npos;
}

std::string leggi(int argc, char **argv, Richiesta &r) {
    for (int i = 0; i < argc; ++i) {
        const std::string a = argv[i];
        const bool vuole = Campi::Opzione(a) || a == "--engine" || a == "--sheet" || a == "-o" || a == "--out";
        if (!vuole) {
            if (a.starts_with("-")) return "unknown option " + a + "; see ombrelia draw --help";
            r.uscite.push_back(a);
            continue;
        }
        const int argomenti = a == "--sheet" ? 4 : 1;
        if (i + argomenti >= argc) return a + " needs " + (argomenti == 4 ? "four numbers: L H X Y" : "an argument");
        const std::string valore = argv[++i];
        if (Campi::Opzione(a)) {
            if (std::string e = r.campi.Prendi(a, valore); !e.empty()) return e;
        } else if (a == "--engine") {
            if (valore != "auto" && valore != "direct" && valore != "vertical" && valore != "analytic")
                return "unknown engine " + valore + ": it is auto, direct, vertical or analytic";
            r.motore = valore;
        } else if (a == "--sheet") {
            for (int k = 0; k < 4; ++k) {
                double n = 0;
                if (!numero(argv[i + k], n)) return std::string("--sheet: no number: ") + argv[i + k];
                r.foglio.push_back(n);
            }
            i += 3;
        } else {
            r.uscite.push_back(valore);
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

std::string applica(Sessione &s, const Richiesta &r) {
    const auto rispondi = [](app::Esito e, const std::string &nome) -> std::string {
        if (e == app::Esito::Disabilitato) return nome + " is disabled: it works on walls only (txtInc must read 0)";
        return e == app::Esito::Impossibile ? nome + " can't take that" : std::string();
    };
    if (std::string e = r.campi.Applica(s); !e.empty()) return e;
    if (r.motore == "vertical") s.in.CkUNI = 1;
    if (r.motore == "direct") s.in.CkUNI = 0;
    if (r.foglio.size() == 4) {
        s.tavolo.QuadranteL(r.foglio[0]);
        s.tavolo.QuadranteH(r.foglio[1]);
        s.tavolo.ShiftX(r.foglio[2]);
        s.tavolo.ShiftY(r.foglio[3]);
    } else if (r.campi.progetto.empty() && !app::Adatta(s)) {
        return "the frame " + s.in.txtX0 + ".." + s.in.txtX1 + " by " + s.in.txtY1 + ".." + s.in.txtY0 +
               " fits no sheet: txtX0 < txtX1, txtY1 < txtY0, within 15 m";
    }
    const std::string bottone = r.motore == "analytic" ? "cmdEqui" : "cmdRun";
    if (r.motore == "vertical" && Val(s.in.txtInc) != 0) return "txtInc reads " + s.in.txtInc + ": the vertical engine draws walls only";
    if (r.motore == "analytic" && Val(s.in.txtInc) != 0)
        return "txtInc reads " + s.in.txtInc + ": the analytic engine draws walls only; use cmdTrasforma first";
    const bool australe = Val(s.in.txtLAT) < 0;
    if (std::string e = rispondi(app::Premi(s, TrovaControllo(bottone)), bottone); !e.empty()) return e;
    if (s.tavolo.lista().Ordine.empty()) return "nothing was drawn, and nothing is written";
    // A southern dial is drawn as its mirror image; a user at the window would now press the same button.
    if (australe) s.tavolo.cmdInvX();
    return {};
}

}  // namespace

int Draw(int argc, char **argv) {
    Richiesta r;
    if (const std::string e = leggi(argc, argv, r); !e.empty()) return rifiuta(e);
    Console console(stderr);
    Sessione s(console);
    app::Avvia(s);
    if (const std::string e = applica(s, r); !e.empty()) return rifiuta(e);
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
