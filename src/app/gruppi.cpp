// The groups of the main window's controls: one table for the window and the page.
#include "app/gruppi.h"

#include "core/testo.h"

namespace ombrelia::app {

namespace {

// What only a master needs is folded at the start.
const std::vector<Gruppo> QUADRANTE{
    {"Luogo"_it, {{"lblLatitudine", "txtLAT"}, {"lblLongitudine", "txtLonG"}, {"ck_Etna"}, {"lblMeridiano", "txtMeridiano"}}},
    {"Parete"_it, {{"Picture2", "Picture3"}, {"lblDeclinazione", "txtDec"}, {"lblInclinazione", "txtInc"}, {"CkUNI"}}},
    {"Gnomone"_it, {{"p_Stilo", "TxtStilo"}, {"ChCentimetro"}, {"ck_Sustilare", "ck_Triangolo"}}},
    {"Cornice"_it, {{"lblX0", "txtX0"}, {"lblY0", "txtY0"}, {"lblX1", "txtX1"}, {"lblY1", "txtY1"}}},
    {"Rette ausiliarie"_it,
     {{"LabSUS", "txtSUBSTYLE"},
      {"Line1"},
      {"lblEqx", "txtEqx"},
      {"lblEqy", "txtEqy"},
      {"lblSusx", "txtSusx"},
      {"lblSusy", "txtSusy"},
      {"lblOriz", "txtOriz"}},
     true},
};

const std::vector<Gruppo> DISEGNO{
    {"Ore"_it,
     {{"chkOreAstronomiche", "ck_Lemniscate"},
      {"ck_Italiche", "ck_babiloniche"},
      {"ckTemp"},
      {"LblHour", "TxtFraz"},
      {"Orainizilale", "TxtInizio", "Orafinale", "TxtFine"}}},
    {"Linee"_it,
     {{"Ck_DayLightCurves", "ck_Equinoziale"},
      {"ckAlt", "ckAz"},
      {"ck_Orizzonte", "ckAssi"},
      {"ckCorretta"},
      {"lblDelta", "txtDelta"}}},
    {"Numeri e segni"_it, {{"ckRomani", "txtNumbersize"}, {"ckArabi", "txtArabi"}, {"ckZodiac", "txtZodiacsize"}}},
    {"Etichette"_it,
     {{"ckEtichette", "txtAltezzaEtichette"},
      {"ckEtichetteRomane", "ckEtichetteLungo"},
      {"ckEtichetteSegni", "ckCartiglio"},
      {"lblLuogo", "txtLuogo"},
      {"lblMotto", "txtMotto"},
      {"lblAnnoCartiglio", "txtAnnoCartiglio"}}},
    {"Tabelle"_it, {{"optHorae", "OptInter"}, {"OptIta", "OptBab"}, {"OptTEMP", "Option1"}}},
    {"Limiti e definizione"_it,
     {{"lblMinus", "txtMinus"},
      {"lblMax", "txtMax"},
      {"lbl_Definizione", "txtDensity"},
      {"lblAO", "txtAO"},
      {"lblAnno", "txtAnno"},
      {"ckFunzione"}},
     true},
    {"Preghiera"_it, {{"ckAsr", "CkQibla"}, {"lblQlat", "txtQlat"}, {"lblQlon", "txtQlon"}}, true},
    {"Mappa e punto"_it,
     {{"LabelCombo", "cmbStati"},
      {"cmdStati", "cmdPlot", "ck_inv"},
      {"lblFiltro", "Filtertxt"},
      {"Città da"_it, "txtEAST", "fino a"_it, "txtWest"},
      {"punto", "Option_P"},
      {"Label2", "textDelta", "txtH"}},
     true},
};

}  // namespace

const std::vector<Gruppo> &GruppiQuadrante() { return QUADRANTE; }
const std::vector<Gruppo> &GruppiDisegno() { return DISEGNO; }

}  // namespace ombrelia::app
