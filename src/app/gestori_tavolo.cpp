// Handlers of the plot surface: its head panel and the small panels that open from it.
#include <algorithm>
#include <ctime>

#include "app/azioni.h"
#include "core/file.h"
#include "plot/dxf.h"

namespace ombrelia::app {

namespace {

void mostraPannello(Sessione &s, NomeControllo pannello, bool visibile) { s.stato(pannello).visibile = visibile; }

double numero(const std::string &testo, double altrimenti) {
    const Valore n = Val(testo);
    return n.esiste() ? n.v : altrimenti;
}

// Name offered for a DXF: the moment, each part a plain number.
std::string nomeDxf() {
    const std::time_t adesso = std::time(nullptr);
    const std::tm *m = std::localtime(&adesso);
    std::string nome = CartellaDisegni() + "/DXF";
    if (m)
        for (const int parte : {m->tm_year + 1900, m->tm_mon + 1, m->tm_mday, m->tm_hour, m->tm_min, m->tm_sec})
            nome += std::to_string(parte);
    return nome;
}

Esito cmdDxf_Click(Sessione &s, int) {
    const auto nome = s.utente.NomeDxf("Nome del file DXF", "Export to DXF", nomeDxf());
    if (!nome || nome->empty()) return Esito::Annullato;
    s.utente.Puntatore(true);
    const auto errore = ScriviFile(*nome, DXF_Generate(s.tavolo));
    s.utente.Puntatore(false);
    return EsitoScrittura(s, *nome, errore);
}

void cmdAssi_Click(Sessione &s, int) {
    s.tavolo.Assi();
    mostraPannello(s, "Tavolo1.PicAssi", true);
}
// A measure of the sheet and the panel's field for it; one that reads as no number stays as it is.
struct MisuraFoglio {
    std::string PannelloTavolo::*campo;
    double (Tavolo::*leggi)() const;
    void (Tavolo::*metti)(double);
};
// Both are read before either is set: a sheet that grows may move what the other says.
void daPannello(Sessione &s, const MisuraFoglio &prima, const MisuraFoglio &poi, NomeControllo pannello) {
    Tavolo &t = s.tavolo;
    const auto letta = [&t](const MisuraFoglio &m) { return numero(t.pannello.*m.campo, (t.*m.leggi)()); };
    const double a = letta(prima), b = letta(poi);
    (t.*prima.metti)(a);
    (t.*poi.metti)(b);
    mostraPannello(s, pannello, false);
}
void cmdAssiAgg_Click(Sessione &s, int) {
    using P = PannelloTavolo;
    daPannello(s, {&P::txtX, &Tavolo::ShiftX, &Tavolo::ShiftX}, {&P::txtY, &Tavolo::ShiftY, &Tavolo::ShiftY}, "Tavolo1.PicAssi");
    s.tavolo.Refresh();
    s.tavolo.Assi();
}
void cmdQAggiorna_Click(Sessione &s, int) {
    using P = PannelloTavolo;
    daPannello(s, {&P::txtQH, &Tavolo::QuadranteH, &Tavolo::QuadranteH}, {&P::txtQL, &Tavolo::QuadranteL, &Tavolo::QuadranteL},
               "Tavolo1.picDimensioni");
}

void stampa(Sessione &s, bool aree) {
    if (s.suStampa) s.suStampa(s, aree);
}
void cmdStampa_Click(Sessione &s, int) {
    if (s.tavolo.lista().Aree.empty()) stampa(s, false);
    else mostraPannello(s, "Tavolo1.picPrint", true);
}
void cmdPOk_Click(Sessione &s, int) {
    if (s.valore("Tavolo1.optAll") == 1) stampa(s, false);
    else if (s.tavolo.lista().Aree.empty()) s.utente.Box(s.Traduci("Nessuna area selezionata"));
    else stampa(s, true);
    mostraPannello(s, "Tavolo1.picPrint", false);
}
// A cancelled box does nothing.
Esito cmdSave_Click(Sessione &s, int) {
    const auto nome = s.utente.File({true, "bmp", "*.bmp", "Image.bmp"});
    if (!nome || nome->empty()) return Esito::Annullato;
    const std::string immagine = s.suImmagine ? s.suImmagine(s) : std::string();
    if (immagine.empty()) return Esito::fallito(*nome, s.Traduci("Nessuna immagine da scrivere in ") + *nome, false);
    return EsitoScrittura(s, *nome, ScriviFile(*nome, immagine));
}

constexpr Gestore GESTORI[] = {
    {"Tavolo1.cmdStampa", Evento::Clic, cmdStampa_Click},
    {"Tavolo1.cmdPOk", Evento::Clic, cmdPOk_Click},
    {"Tavolo1.cmdSave", Evento::Clic, cmdSave_Click},
    {"Tavolo1.cmdAssi", Evento::Clic, cmdAssi_Click},
    {"Tavolo1.cmdAssiAgg", Evento::Clic, cmdAssiAgg_Click},
    {"Tavolo1.cmdAssiChiudi", Evento::Clic, [](Sessione &s, int) { mostraPannello(s, "Tavolo1.PicAssi", false); }},
    {"Tavolo1.CmdGriglia", Evento::Clic, [](Sessione &s, int) { s.tavolo.xPlotA4(); }},
    {"Tavolo1.cmdPulisci", Evento::Clic,
     [](Sessione &s, int) {
         s.tavolo.Clear();
         mostraPannello(s, "Tavolo1.picPrint", false);
     }},
    {"Tavolo1.cmdDim", Evento::Clic, [](Sessione &s, int) { mostraPannello(s, "Tavolo1.picDimensioni", true); }},
    {"Tavolo1.cmdQAggiorna", Evento::Clic, cmdQAggiorna_Click},
    {"Tavolo1.cmdQAnnulla", Evento::Clic, [](Sessione &s, int) { mostraPannello(s, "Tavolo1.picDimensioni", false); }},
    {"Tavolo1.cmdPCancel", Evento::Clic, [](Sessione &s, int) { mostraPannello(s, "Tavolo1.picPrint", false); }},
    {"Tavolo1.cmdDxf", Evento::Clic, cmdDxf_Click},
    {"Tavolo1.cmdInvX", Evento::Clic, [](Sessione &s, int) { s.tavolo.cmdInvX(); }},
    {"Tavolo1.cmdInvY", Evento::Clic, [](Sessione &s, int) { s.tavolo.cmdInvY(); }},
};

}  // namespace

std::span<const Gestore> GestoriTavolo() { return GESTORI; }

Esito ScegliVoce(Sessione &s, IdControllo id, const std::string &voce) {
    Tavolo &t = s.tavolo;
    if (id == NomeControllo("Tavolo1.cmbScala")) {
        for (const int n : t.cmbScala()) {
            if (voce != "1:" + std::to_string(n)) continue;
            t.Scala(n);
            t.Refresh();
            return Esito::Fatto;
        }
        return Esito::Impossibile;
    }
    // The countries of the map.
    const auto &voci = s.mondo.paesi;
    if (std::find(voci.begin(), voci.end(), voce) == voci.end()) return Esito::Impossibile;
    s.testo(id) = voce;
    return Esito::Fatto;
}

}  // namespace ombrelia::app
