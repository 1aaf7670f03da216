// The record of inputs: what the fields and boxes of the main window hold, under the controls' names. A run
// reads them once, as numbers (Lettura); where it reads one again, a routine Rileggi... or Leggi... does.
#pragma once

#include <string>

namespace ombrelia {

// Texts are kept as typed, what they are worth Val says; a box counts as set only at 1. The start values and
// meanings stand in the table of controls, which fills a new record.
struct DialInputs {
    // Site, plane and gnomon.
    std::string txtLAT, txtDec, txtLonG, TxtStilo, txtInc;
    // Frame and auxiliary lines.
    std::string txtX0, txtY0, txtX1, txtY1, txtEqx, txtEqy, txtSusx, txtSusy, txtOriz;
    // Tracing.
    std::string TxtFraz, txtDelta, txtDensity, txtMinus, txtMax, TxtInizio, TxtFine;
    // Prayer, figures, glyph sizes, Sun or Moon point, map.
    std::string txtQlat, txtQlon, txtAO, txtNumbersize, txtArabi, txtZodiacsize, txtSUBSTYLE, textDelta, txtH;
    std::string txtWest, txtEAST, Filtertxt;
    // The zone's meridian, degrees West positive.
    std::string txtMeridiano;
    // The year whose Sun the true analemma follows; empty: the present one.
    std::string txtAnno;
    // Labels: height of the capitals, mm. Title block.
    std::string txtAltezzaEtichette, txtLuogo, txtMotto, txtAnnoCartiglio;
    // The readings of the wall, as their table writes them; empty without one.
    std::string txtLetture;

    int ck_Etna = 0, ChCentimetro = 0, CkUNI = 0, ckFunzione = 0;
    int chkOreAstronomiche = 0, Ck_DayLightCurves = 0, ck_Equinoziale = 0, ck_Italiche = 0, ck_babiloniche = 0, ckTemp = 0;
    int ck_Sustilare = 0, ck_Triangolo = 0, ckZodiac = 0, ckAlt = 0, ck_Lemniscate = 0, ckAsr = 0, CkQibla = 0;
    int ckAssi = 0, ck_Orizzonte = 0, ckAz = 0, ckRomani = 0, ckArabi = 0, ck_inv = 0, punto = 0;
    // True lines in place of those that are not; labels on every line.
    int ckCorretta = 0, ckEtichette = 0;
    int ckEtichetteRomane = 0, ckEtichetteLungo = 0, ckEtichetteSegni = 0, ckCartiglio = 0;
    // Option buttons of the reports: 1 when set.
    int optHorae = 0, OptIta = 0, OptBab = 0, OptTEMP = 0, OptInter = 0, Option1 = 0;
    // The country chosen in the list of the map.
    std::string cmbStati;
};

// Texts of the plot surface's own panels.
struct PannelloTavolo {
    std::string txtX, txtY, txtQL, txtQH;
    std::string p_mess, lblDimVal, lblScala, lblXYval;
    std::string cmbScala;
};

}  // namespace ombrelia
