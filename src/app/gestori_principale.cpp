// Handlers of the main window.
#include "app/azioni.h"
#include "direct/diretta.h"

namespace ombrelia::app {

namespace {

void ore(Sessione &s, std::string_view da, std::string_view a) {
    s.Scrivi(&DialInputs::TxtInizio, std::string(da));
    s.Scrivi(&DialInputs::TxtFine, std::string(a));
}

// The boxes of the seasonal hours clear one another, and clearing fires the other's click: checking Italic hours while
// Babylonian ones are set ends with both clear. That chain is meant.
void ck_Italiche_Click(Sessione &s, int) {
    ore(s, "13", "24");
    SpuntaDaProgramma(s, &DialInputs::ck_babiloniche, 0);
    SpuntaDaProgramma(s, &DialInputs::ckTemp, 0);
}
void ck_babiloniche_Click(Sessione &s, int) {
    ore(s, "0", "12");
    SpuntaDaProgramma(s, &DialInputs::ck_Italiche, 0);
}
void ckTemp_Click(Sessione &s, int) { ore(s, "0", "12"); }
void CkUNI_Click(Sessione &s, int) { s.Scrivi(&DialInputs::txtInc, "0"); }
void txtInc_Change(Sessione &s, int) { AbilitaPerInclinazione(s); }

constexpr Gestore GESTORI[] = {
    {"MDIForm1", "cmdRun", Evento::Clic, [](Sessione &s, int) { cmdRun(s); }},
    {"MDIForm1", "ck_Italiche", Evento::Clic, ck_Italiche_Click},
    {"MDIForm1", "ck_babiloniche", Evento::Clic, ck_babiloniche_Click},
    {"MDIForm1", "ckTemp", Evento::Clic, ckTemp_Click},
    {"MDIForm1", "CkUNI", Evento::Clic, CkUNI_Click},
    {"MDIForm1", "txtInc", Evento::Cambio, txtInc_Change},
};

}  // namespace

std::span<const Gestore> GestoriPrincipale() { return GESTORI; }

void AbilitaPerInclinazione(Sessione &s) {
    const bool parete = Val(s.in.txtInc) == 0;
    for (const std::string_view nome : {"Option1", "cmdEqui", "ckZodiac", "ckRomani", "ckArabi"}) s.stato(nome).abilitato = parete;
}

void cmdRun(Sessione &s) {
    Variabili &v = s.v;
    v.latGradi = Val(s.in.txtLAT);
    v.segnoLat = v.latGradi == 0 ? Valore(1) : Sgn(v.latGradi);
    const Reale lat = Val(s.in.txtLAT);
    if (lat < 0) {
        // A southern dial is the northern one of the mirrored latitude; the user mirrors the drawing.
        s.utente.Box(s.Traduci("A grafico ottenuto usare il tasto InvertX"));
        s.Scrivi(&DialInputs::txtLAT, TestoNumero((-lat).v));
    }
    direct::I_Graf_diretta(s);
}

}  // namespace ombrelia::app
