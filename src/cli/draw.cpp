// Drawing a dial from options to files.
#include "cli/draw.h"

#include <cstdio>
#include <string>
#include <vector>

#include "cli/disegno.h"
#include "cli/formati.h"

namespace ombrelia::cli {

namespace {

// What the user asked for.
struct Richiesta {
    Disegno disegno;
    std::vector<std::string> uscite;

    std::string uscita(const std::string &percorso) {
        uscite.push_back(percorso);
        if (FormatoDi(Estensione(percorso))) return {};
        std::string note;
        for (const Formato &f : Formati()) note += " ." + std::string(f.estensione);
        return percorso + ": unknown ending; I write" + note;
    }
};

std::string leggi(int argc, char **argv, Richiesta &r) {
    Opzioni o{.comando = "draw", .righe = {}, .parola = [&r](const std::string &p) { return r.uscita(p); }};
    r.disegno.opzioni(o);
    for (const char *nome : {"-o", "--out"})
        o.righe.push_back({nome, 1, "a file", [&r](const Valori &v) { return r.uscita(v[0]); }, true});
    if (std::string e = o.leggi(argc, argv); !e.empty()) return e;
    return r.uscite.empty() ? "no output file: name one or more, as in muro.dxf muro.svg" : "";
}

std::string conta(std::size_t quanti, std::string_view cosa) {
    return std::to_string(quanti) + ' ' + std::string(quanti == 1 ? cosa.substr(0, cosa.size() - 1) : cosa);
}

std::string metrico(double mm) { return TestoNumero(Round(mm, 1).v); }

// What a file holds of the drawing, how large it is, and what of the drawing is not in it.
std::string riassunto(const Sessione &s, const Formato &f) {
    const Lista &l = s.tavolo.lista();
    std::string t =
        conta(l.Linee.size(), "lines") + ", " + conta(l.Punti.size(), "points") + ", " + conta(l.Figure.size(), "figures");
    const std::string testi = conta(l.Testi.size(), "texts");
    if (f.conTesti) t += ", " + testi;
    if (f.immagine) {
        const double mm = 1000.0 / s.tavolo.Scala();
        t += "; 1:" + std::to_string(s.tavolo.Scala()) + ", " + metrico(s.tavolo.QuadranteL() * mm) + " x " +
             metrico(s.tavolo.QuadranteH() * mm) + " mm";
    }
    if (!f.conTesti && !l.Testi.empty()) t += "; not in the file: " + testi;
    return t;
}

}  // namespace

int Draw(int argc, char **argv) {
    Richiesta r;
    if (const std::string e = leggi(argc, argv, r); !e.empty()) return Rifiuta("draw", e);
    SessioneDiComando c(r.disegno.carta.value_or(Carta()));
    if (const std::string e = r.disegno.Applica(c.s); !e.empty()) return Rifiuta("draw", e);
    if (const std::string e = r.disegno.Esegui(c.s); !e.empty()) return Rifiuta("draw", e);
    for (const std::string &uscita : r.uscite) {
        const Formato &f = *FormatoDi(Estensione(uscita));
        std::string errore;
        const std::string contenuto = f.scrivi(c.s, errore);
        if (errore.empty()) errore = Consegna(uscita, contenuto);
        if (!errore.empty()) return Rifiuta("draw", errore);
        std::printf("%s: %s\n", uscita.c_str(), riassunto(c.s, f).c_str());
    }
    return 0;
}

}  // namespace ombrelia::cli
