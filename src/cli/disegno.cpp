// Drawing a dial from options.
#include "cli/disegno.h"

#include <algorithm>
#include <cstdio>

#include "app/comandi.h"
#include "app/plausibile.h"

namespace ombrelia::cli {

namespace {

std::string leggiMotore(const std::string &nome, std::string &motore) {
    for (const char *m : {"auto", "direct", "vertical", "analytic"})
        if (nome == m) return motore = nome, std::string();
    return nome + ": it is auto, direct, vertical or analytic";
}

std::string leggiFoglio(const Valori &v, std::array<double, 4> &foglio) {
    constexpr const char *NOMI[] = {"L", "H", "X", "Y"};
    constexpr double LATO = Tavolo::LATO_MASSIMO;
    for (std::size_t i = 0; i < 4; ++i)
        if (const std::string e = LeggiNumero(v[i], i < 2 ? 0 : -LATO, LATO, foglio[i]); !e.empty())
            return std::string(NOMI[i]) + ": " + e;
    return foglio[0] > 0 && foglio[1] > 0 ? std::string() : "is a sheet without an area: L and H are metres above 0";
}

}  // namespace

std::string LeggiCarta(std::string_view testo, Carta &carta) {
    for (const CartaNota &c : CARTE_NOTE)
        if (UguaglianzaSenzaCaso(testo, c.nome)) return carta = c.carta, std::string();
    const std::size_t per = std::min(testo.find_first_of("xX"), testo.size());
    double l = 0, h = 0;
    // From a card to the largest sheet.
    constexpr double MINIMO = 50, MASSIMO = Tavolo::LATO_MASSIMO * 1000;
    if (per < testo.size() && LeggiNumero(testo.substr(0, per), MINIMO, MASSIMO, l).empty() &&
        LeggiNumero(testo.substr(per + 1), MINIMO, MASSIMO, h).empty())
        return carta = {l / 1000, h / 1000}, std::string();
    return std::string(testo) + ": it is a4, a3, letter, or WxH in millimetres from 50 up, as in 210x297";
}

void Commissione::opzioni(Opzioni &o) {
    campi.opzioni(o);
    o.righe.push_back({"--engine", 1, "an engine", [this](const Valori &v) { return leggiMotore(v[0], motore); }});
    o.righe.push_back(Bandiera("--map", mappa));
    o.righe.push_back(
        {"--sheet", 4, "four numbers: L H X Y", [this](const Valori &v) { return leggiFoglio(v, foglio.emplace()); }});
    o.righe.push_back(
        {"--paper", 1, "a4, a3, letter or WxH", [this](const Valori &v) { return LeggiCarta(v[0], carta.emplace(CARTA_A4)); }});
}

SessioneDiComando::SessioneDiComando(const Carta &carta) : s(console, carta.largaTwip(), carta.altaTwip()) { app::Avvia(s); }

bool Commissione::Prendi(int argc, char **argv, int &i, std::string &errore) {
    Opzioni o;
    opzioni(o);
    return o.prendi(argc, argv, i, date_, errore);
}

std::string Commissione::Applica(Sessione &s) const {
    s.tavolo.specchiaArchi = s.australeMontato = true;
    if (std::string e = campi.Applica(s); !e.empty()) return e;
    if (motore == "vertical") s.in.CkUNI = 1;
    if (motore == "direct") s.in.CkUNI = 0;
    if (foglio) {
        s.tavolo.QuadranteL((*foglio)[0]);
        s.tavolo.QuadranteH((*foglio)[1]);
        s.tavolo.ShiftX((*foglio)[2]);
        s.tavolo.ShiftY((*foglio)[3]);
    } else if (campi.progetto.empty() && !app::Adatta(s)) {
        return "the frame " + s.in.txtX0 + ".." + s.in.txtX1 + " by " + s.in.txtY1 + ".." + s.in.txtY0 +
               " fits no sheet: txtX0 < txtX1, txtY1 < txtY0, within 15 m";
    } else if (campi.progetto.empty() && motore != "analytic" && Val(s.in.txtLAT) < 0) {
        // A southern dial is mounted the other way round, its frame too.
        s.tavolo.ShiftX(s.tavolo.QuadranteL() - s.tavolo.ShiftX());
    }
    return {};
}

bool SoloCornice(const Lista &l) {
    constexpr std::size_t RETTE = 6;  // the limit lines and the axes
    return l.Linee.size() <= RETTE && l.Punti.empty() &&
           std::all_of(l.pretese.begin(), l.pretese.end(), [](const Pretesa &p) { return p.specie == Specie::Nessuna; });
}

std::string Commissione::Esegui(Sessione &s) const {
    const bool parete = Val(s.in.txtInc) == 0;
    if (motore == "vertical" && !parete) return "txtInc reads " + s.in.txtInc + ": the vertical engine draws walls only";
    if (motore == "analytic" && !parete)
        return "txtInc reads " + s.in.txtInc + ": the analytic engine draws walls only; use cmdTrasforma first";
    const NomeControllo bottone = motore == "analytic" ? NomeControllo("cmdEqui") : NomeControllo("cmdRun");
    for (const app::Dubbio &d : app::Dubbi(s.in))
        std::fprintf(stderr, "warning: %s reads %s: %s\n", std::string(RigaDi(d.campo).nome).c_str(), s.testo(d.campo).c_str(),
                     s.Traduci(d.motivo).c_str());
    const app::Esito e = app::Premi(s, bottone);
    if (e == app::Esito::Disabilitato)
        return std::string(RigaDi(bottone).nome) + " is disabled: it works on walls only (txtInc must read 0)";
    if (!e) return e.motivo.empty() ? "the run was refused" : e.motivo;
    if (s.tavolo.lista().Ordine.empty()) return "nothing was drawn, and nothing is written";
    if (const app::Esito m = mappa ? app::Premi(s, NomeControllo("cmdPlot")) : app::Esito(app::Esito::Fatto); !m) return m.motivo;
    return {};
}

}  // namespace ombrelia::cli
