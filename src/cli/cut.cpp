// Files for machines from a dial's options: paths and solids.
#include "cli/cut.h"

#include <cmath>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "certificato/certificato.h"
#include "certificato/posa.h"
#include "cli/consegna.h"
#include "cli/disegno.h"
#include "cli/opzioni.h"
#include "formati/formati.h"
#include "officina/scrittori.h"
#include "officina/solidi.h"
#include "officina/tratti.h"

namespace ombrelia::cli {

namespace {

// One word of a few, and what it stands for.
template <class T>
Opzione scelta(std::string_view nome, std::string_view cosa, std::vector<std::pair<std::string, T>> parole, T &dove) {
    return {nome, 1, cosa, [=, &dove](const Valori &v) -> std::string {
                for (const auto &[parola, valore] : parole)
                    if (parola == v[0]) {
                        dove = valore;
                        return {};
                    }
                return v[0] + ": it takes " + std::string(cosa);
            }};
}

constexpr double MINIMO = 1e-4, MASSIMO = 1000;  // mm

Opzione lunghezza(std::string_view nome, std::string_view cosa, double &mm) {
    return {nome, 1, cosa, [&mm](const Valori &v) -> std::string { return LeggiNumero(v[0], MINIMO, MASSIMO, mm); }};
}

std::string disegna(const Commissione &d, Sessione &s) {
    std::string e = d.Applica(s);
    return e.empty() ? d.Esegui(s) : e;
}

}  // namespace

int Cut(int argc, char **argv) {
    Commissione disegno;
    officina::ComePreparare come;
    std::optional<officina::Testi> testi;
    officina::Intestazione foglio;
    std::vector<std::string> uscite;
    const auto uscita = [&](const std::string &p) -> std::string {
        uscite.push_back(p);
        if (officina::FormatoMacchinaDi(Estensione(p))) return {};
        std::string note;
        for (const auto &f : officina::FormatiMacchina()) note += " ." + std::string(f.estensione);
        return p + ": unknown ending; I write" + note;
    };
    Opzioni o{.comando = "cut", .righe = {}, .parola = uscita};
    disegno.opzioni(o);
    using officina::Ritaglio, officina::Testi, officina::Unita;
    o.righe.push_back(scelta<std::optional<Testi>>(
        "--text", "strokes, text or none", {{"strokes", Testi::Tratti}, {"text", Testi::Testo}, {"none", Testi::Niente}}, testi));
    o.righe.push_back(lunghezza("--tolerance", "a length in mm", come.tolleranza));
    o.righe.push_back(lunghezza("--dots", "a radius in mm", come.raggioPunti));
    o.righe.push_back(scelta<Unita>("--units", "mm or in", {{"mm", Unita::Millimetri}, {"in", Unita::Pollici}}, foglio.unita));
    o.righe.push_back(
        scelta<Ritaglio>("--clip", "frame or sheet", {{"frame", Ritaglio::Cornice}, {"sheet", Ritaglio::Foglio}}, come.ritaglio));
    for (const char *nome : {"-o", "--out"})
        o.righe.push_back({nome, 1, "a file", [&](const Valori &v) { return uscita(v[0]); }, true});
    if (const std::string e = o.leggi(argc, argv); !e.empty()) return Rifiuta("cut", e);
    if (uscite.empty()) return Rifiuta("cut", "no output file: name one or more, as in muro.dxf muro.plt");
    // Strokes where there are any, else texts as texts.
    come.testi = testi.value_or(officina::CiSonoTratti() ? Testi::Tratti : Testi::Testo);
    SessioneDiComando c;
    if (const std::string e = disegna(disegno, c.s); !e.empty()) return Rifiuta("cut", e);
    if (SoloCornice(c.s.tavolo.lista())) return Rifiuta("cut", std::string(SOLO_CORNICE) + "; nothing is written");
    std::string errore;
    const officina::Disegno d = officina::Prepara(c.s.tavolo, come, errore);
    if (!errore.empty()) return Rifiuta("cut", errore + ", and nothing is written");
    foglio.titolo = "Ombrelia: " + c.s.in.txtLAT + "°, " + c.s.in.txtDec + "°, " + c.s.in.txtInc + "°";
    for (const std::string &p : uscite)
        if (const std::string e = Consegna(p, officina::FormatoMacchinaDi(Estensione(p))->scrivi(d, foglio)); !e.empty())
            return Rifiuta("cut", e);
    std::fputs(officina::Racconto(d, come).c_str(), stdout);
    for (const officina::Coincidenza &k : d.resoconto.coincidono)
        std::printf("%s and %s coincide for %.0f mm: cut once\n", TestoPretesa(k.specie, k.valore).c_str(),
                    TestoPretesa(k.con, k.valoreCon).c_str(), k.lunga);
    return 0;
}

int Solid(int argc, char **argv) {
    Commissione disegno;
    officina::Misure m;
    std::string parte = "all", uscita;
    const auto file = [&](const std::string &p) -> std::string {
        if (!uscita.empty()) return "one output file, not " + uscita + " and " + p;
        uscita = p;
        return UguaglianzaSenzaCaso(Estensione(p), "stl") ? "" : p + ": unknown ending; I write .stl";
    };
    Opzioni o{.comando = "solid", .righe = {}, .parola = file};
    disegno.opzioni(o);
    o.righe.push_back(scelta<std::string>("--part", "style, socket, plate or all",
                                          {{"style", "style"}, {"socket", "socket"}, {"plate", "plate"}, {"all", "all"}}, parte));
    o.righe.push_back(lunghezza("--thickness", "a length in mm", m.spessore));
    o.righe.push_back(lunghezza("--plate", "a length in mm", m.lastra));
    o.righe.push_back(lunghezza("--depth", "a length in mm", m.profondita));
    o.righe.push_back(lunghezza("--line", "a width in mm", m.linea));
    o.righe.push_back(lunghezza("--rod", "a diameter in mm", m.perno));
    bool incavo = false, rilievo = false;
    o.righe.push_back(Bandiera("--raised", rilievo));
    o.righe.push_back(Bandiera("--sunk", incavo));
    for (const char *nome : {"-o", "--out"}) o.righe.push_back({nome, 1, "a file", [&](const Valori &v) { return file(v[0]); }});
    if (const std::string e = o.leggi(argc, argv); !e.empty()) return Rifiuta("solid", e);
    if (uscita.empty()) return Rifiuta("solid", "no output file: name one, as in muro.stl");
    if (incavo && rilievo) return Rifiuta("solid", "--raised or --sunk, not both");
    m.rilievo = !incavo;
    SessioneDiComando c;
    if (const std::string e = disegna(disegno, c.s); !e.empty()) return Rifiuta("solid", e);
    std::string errore;
    officina::ComePreparare come;
    come.tolleranza = 0.02;
    const officina::Disegno d = officina::Prepara(c.s.tavolo, come, errore);
    if (!errore.empty()) return Rifiuta("solid", errore + ", and nothing is written");
    const Posa posa = PosaDelDisegno(c.s);
    officina::Gnomone g;
    g.altezza = 1000 * posa.quadrante.gnomone;
    if (const auto p = ombra::PianoMontato(posa.quadrante).centro()) g.centro = officina::P2{1000 * p->x, 1000 * p->y};
    // A centre beyond 50 gnomons is as good as none.
    if (g.centro && officina::Lungo(*g.centro) > 50 * g.altezza)
        g.centro = (50 * g.altezza / officina::Lungo(*g.centro)) * *g.centro;
    officina::Solido tutto;
    const officina::Riquadro b = officina::ContornoLastra(d);
    const auto metti = [&](std::string_view nome, const officina::Solido &s, officina::P3 dove) {
        tutto.aggiungi(s, dove);
        std::printf("%.*s: %zu triangles, %.1f mm³\n", static_cast<int>(nome.size()), nome.data(), s.facce.size(), s.volume());
    };
    const bool stilo = parte == "all" || parte == "style";
    officina::Solido piastra;
    if (stilo) piastra = officina::PiastraStilo(g, b, m, errore);
    if (!errore.empty() && parte == "style") return Rifiuta("solid", errore);
    const bool conStilo = stilo && errore.empty();
    if (!errore.empty()) std::printf("no style: %s\n", errore.c_str());
    errore.clear();
    if (parte == "all" || parte == "plate") {
        const officina::Solido lastra = officina::Lastra(d, g, m, conStilo, errore);
        if (!errore.empty()) return Rifiuta("solid", errore);
        metti("plate", lastra, {});
    }
    // Beside the plate, each lying as it is printed.
    if (conStilo) metti("style", piastra, {b.x1 + 20, 0, 0});
    if (parte == "all" || parte == "socket") metti("socket", officina::Zoccolo(m), {b.x0 - 20 - 2 * m.perno, 0, 0});
    if (const std::string e = Consegna(uscita, officina::Stl(tutto)); !e.empty()) return Rifiuta("solid", e);
    return 0;
}

}  // namespace ombrelia::cli
