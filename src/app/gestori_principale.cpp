// Handlers of the main window.
#include "analytic/analitica.h"
#include "analytic/equivalente.h"
#include "app/azioni.h"
#include "app/etichette.h"
#include "app/lingua.h"
#include "direct/diretta.h"
#include "glyphs/numeri.h"
#include "gnomonica/originale.h"
#include "vertical/piana.h"

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

// The latitude as typed, for captions, and its sign, 1 at the equator; and the dial that the run is of.
void leggiLatitudine(Sessione &s, const Lettura &letto) {
    Variabili &v = s.v;
    v.latGradi = letto.lat;
    v.segnoLat = SegnoLatitudine(v.latGradi);
    RinfrescaOriginale(s, letto);
}

// Shows a drawing as it is mounted: a southern one mirrored, which is said, a northern one behind it as it was before.
void monta(Sessione &s, bool eraAustrale) {
    if (!s.australeMontato || s.tavolo.lista().Ordine.empty()) return;
    const bool australe = s.v.segnoLat == -1;
    if (australe ? s.tavolo.FattoreX > 0 : eraAustrale && s.tavolo.FattoreX < 0) s.tavolo.cmdInvX();
    if (australe) s.Messaggio(s.Traduci("Quadrante australe: il disegno è già specchiato come va montato"));
}

void cmdEqui_Click(Sessione &s, int) {
    Tavolo &t = s.tavolo;
    const bool eraAustrale = s.v.segnoLat == -1;
    const Lettura letto(s.in);
    leggiLatitudine(s, letto);
    if (t.ShiftX() == 0 && t.ShiftY() == 0) {
        t.ShiftX(t.QuadranteL() / 2.0);
        t.ShiftY(t.QuadranteH() / 3.33333);
    }
    if (letto.inc == 0) {
        analytic::EseguiGraficaAnalitica(s, letto);
        if (s.v.segnoLat != -1) monta(s, eraAustrale);  // the South is refused
        TracciaEtichette(s);
    }
}

void cmdTrasforma_Click(Sessione &s, int) {
    analytic::TrasformaInVerticaleEquivalente(s);
    s.v.lon = s.v.lonEq;
    s.v.flagVerticale = 1;
    // What does not apply to an equivalent dial.
    for (const NomeControllo nome : {NomeControllo("CkQibla"), NomeControllo("ckAlt"), NomeControllo("ckAsr")})
        s.stato(nome).abilitato = false;
    for (int DialInputs::*casella : {&DialInputs::CkQibla, &DialInputs::ckAlt, &DialInputs::ckAsr})
        SpuntaDaProgramma(s, casella, 0);
}

constexpr Gestore GESTORI[] = {
    {"cmdRun", Evento::Clic, [](Sessione &s, int) { cmdRun(s); }},
    {"cmdEqui", Evento::Clic, cmdEqui_Click},
    {"cmdTrasforma", Evento::Clic, cmdTrasforma_Click},
    {"ck_Italiche", Evento::Clic, ck_Italiche_Click},
    {"ck_babiloniche", Evento::Clic, ck_babiloniche_Click},
    {"ckTemp", Evento::Clic, ckTemp_Click},
    {"CkUNI", Evento::Clic, CkUNI_Click},
    {"ckRomani", Evento::Clic, [](Sessione &s, int) { PosizionaRomani(s); }},
    {"ckArabi", Evento::Clic, [](Sessione &s, int) { PosizionaArabi(s); }},
    {"txtInc", Evento::Cambio, txtInc_Change},
    {"M_about", Evento::Clic, [](Sessione &s, int) { CaricaForm(s, "frmAbout"); }},
};

}  // namespace

std::span<const Gestore> GestoriPrincipale() { return GESTORI; }

void AbilitaPerInclinazione(Sessione &s) {
    const bool parete = Val(s.in.txtInc) == 0;
    static constexpr NomeControllo DI_PARETE[] = {"Option1", "cmdEqui", "ckZodiac", "ckRomani", "ckArabi"};
    for (const NomeControllo nome : DI_PARETE) s.stato(nome).abilitato = parete;
}

void cmdRun(Sessione &s) {
    const bool eraAustrale = s.v.segnoLat == -1;
    const Lettura letto(s.in);
    leggiLatitudine(s, letto);
    if (letto.lat < 0) {
        // A run that is refused leaves the South as it is typed.
        if (direct::TroppoFitta(s, letto)) return;
        // A southern dial is the northern one of the mirrored latitude. The drawing is mirrored by the user, or at once; then the
        // field keeps the latitude that the dial has.
        const std::string scritta = s.in.txtLAT;
        if (!s.australeMontato) s.utente.Box(s.Traduci("A grafico ottenuto usare il tasto InvertX"));
        s.Scrivi(&DialInputs::txtLAT, TestoNumero((-letto.lat).v));
        // Read again: the field may say fewer digits than the number had.
        const Lettura specchiata(s.in);
        RinfrescaOriginale(s, specchiata);
        direct::I_Graf_diretta(s, specchiata);
        // The next press of a corrected dial is the same dial too.
        if (s.australeMontato || s.in.ckCorretta == 1) s.Scrivi(&DialInputs::txtLAT, scritta);
    } else if (letto.inc == 0 && s.in.CkUNI == 1) {
        vertical::Piana_Esegui(s, letto);
    } else {
        direct::I_Graf_diretta(s, letto);
    }
    monta(s, eraAustrale);
    TracciaEtichette(s);
}

}  // namespace ombrelia::app
