// Drawing a dial from options to files.
#include "cli/draw.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "certificato/certificato.h"
#include "cli/consegna.h"
#include "cli/disegno.h"
#include "formati/formati.h"

namespace ombrelia::cli {

namespace {

// What the user asked for.
struct ArgomentiDraw {
    Commissione disegno;
    std::vector<std::string> uscite;
    std::string formato;  // of outputs whose names tell none

    [[nodiscard]] const FormatoDisegno *formatoDi(const std::string &uscita) const {
        const FormatoDisegno *f = FormatoDi(Estensione(uscita));
        return f || Estensione(uscita) == "omb" ? f : FormatoDi(formato);
    }
};

std::string leggi(int argc, char **argv, ArgomentiDraw &r) {
    const auto uscita = [&r](const std::string &percorso) {
        r.uscite.push_back(percorso);
        return std::string();
    };
    Opzioni o{.comando = "draw", .righe = {}, .parola = uscita};
    r.disegno.opzioni(o);
    for (const char *nome : {"-o", "--out"})
        o.righe.push_back({nome, 1, "a file", [&uscita](const Valori &v) { return uscita(v[0]); }, true});
    o.righe.push_back(Testo("--format", "an ending, as in svg", r.formato));
    if (std::string e = o.leggi(argc, argv); !e.empty()) return e;
    if (r.uscite.empty()) return "no output file: name one or more, as in muro.dxf muro.svg";
    const auto ignota = std::find_if(r.uscite.begin(), r.uscite.end(), [&r](const std::string &u) { return !r.formatoDi(u); });
    if (ignota == r.uscite.end()) return {};
    std::string note;
    for (const FormatoDisegno &f : Formati()) note += " ." + std::string(f.estensione);
    return *ignota + ": unknown ending; I write" + note + ", and a name without one takes --format";
}

// What is told goes where the drawing does not.
bool suUscita(const std::string &percorso) { return percorso == "-" || percorso == "/dev/stdout" || percorso == "/dev/fd/1"; }

std::string conta(std::size_t quanti, std::string_view cosa) {
    return std::to_string(quanti) + ' ' + std::string(quanti == 1 ? cosa.substr(0, cosa.size() - 1) : cosa);
}

std::string metrico(double mm) { return TestoNumero(Round(mm, 1).v); }

// What a file holds of the drawing, how large it is, and what of the drawing is not in it.
std::string riassunto(const Sessione &s, const FormatoDisegno &f) {
    const Lista &l = s.tavolo.lista();
    std::string t =
        conta(l.Linee.size(), "lines") + ", " + conta(l.Punti.size(), "points") + ", " + conta(l.Figure.size(), "figures");
    const std::string testi = conta(l.Testi.size(), "texts");
    if (f.conTesti) t += ", " + testi;
    if (f.immagine) {
        t += "; 1:" + std::to_string(s.tavolo.Scala()) + ", " + metrico(s.tavolo.QuadranteL() * 1000) + " x " +
             metrico(s.tavolo.QuadranteH() * 1000) + " mm when printed";
    }
    if (!f.conTesti && !l.Testi.empty()) t += "; not in the file: " + testi;
    return t;
}

}  // namespace

int Draw(int argc, char **argv) {
    ArgomentiDraw r;
    if (const std::string e = leggi(argc, argv, r); !e.empty()) return Rifiuta("draw", e);
    SessioneDiComando c(r.disegno.carta.value_or(CARTA_A4));
    if (const std::string e = r.disegno.Applica(c.s); !e.empty()) return Rifiuta("draw", e);
    if (const std::string e = r.disegno.Esegui(c.s); !e.empty()) return Rifiuta("draw", e);
    if (SoloCornice(c.s.tavolo.lista())) std::fprintf(stderr, "warning: %s\n", SOLO_CORNICE);
    std::FILE *const voce = std::any_of(r.uscite.begin(), r.uscite.end(), suUscita) ? stderr : stdout;
    if (const auto &carta = r.disegno.carta; carta) c.s.tavolo.Pagina(*carta);
    std::fprintf(stderr, "certificate: %s\n", VerdettoInglese(Certifica(DatiDelCertificato(c.s), c.s.tavolo.lista())).c_str());
    for (const std::string &uscita : r.uscite) {
        const FormatoDisegno &f = *r.formatoDi(uscita);
        std::string errore;
        const std::string contenuto = r.disegno.carta && f.aPagine ? f.aPagine(c.s.tavolo, errore) : f.scrivi(c.s.tavolo, errore);
        if (errore.empty()) errore = Consegna(uscita, contenuto);
        if (!errore.empty()) return Rifiuta("draw", errore);
        std::fprintf(voce, "%s: %s\n", uscita.c_str(), riassunto(c.s, f).c_str());
    }
    return 0;
}

}  // namespace ombrelia::cli
