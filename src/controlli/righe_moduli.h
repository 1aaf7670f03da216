// The rows of the lesser forms: the sheet's form, the utility board, the ten report forms and the about box.
#pragma once

#include "controlli/avviso.h"
#include "controlli/righe.h"

namespace ombrelia::righe {

inline constexpr Controllo RIGHE_FOGLIO[] = {Muto("Tavolo1", Classe::Altro)};

inline constexpr Controllo RIGHE_STRUMENTI[] = {
    Cornice("Frame1", "Tavola di conversione"),
    Opzione("optModoDec", nullptr, "Decimale"),
    Opzione("OptModoSess", nullptr, "Sessagesimale"),
    Etichetta("lblLAT", "Latitudine N +, S -"),
    Testo("txtLAT", {}, Filtro::SoloCifreSegno),
    Etichetta("lblLON", "Longitudine O +, E -"),
    Testo("txtLON", {}, Filtro::SoloCifreSegno),
    Etichetta("lblGradi", "Gradi"),
    Etichetta("lblPrimi", "Primi"),
    Etichetta("lblSecondi", "Secondi"),
    Pulsante("cmdSign", "+", {}, 0),
    Testo("txtLatG", {}, Filtro::SoloCifre),
    Testo("txtLatP", {}, Filtro::SoloCifre),
    Testo("txtLATS", {}, Filtro::SoloCifre),
    Pulsante("cmdSign", "+", {}, 1),
    Testo("txtLonG", {}, Filtro::SoloCifre),
    Testo("txtLonP", {}, Filtro::SoloCifre),
    Testo("txtLonS", {}, Filtro::SoloCifre),
    Pulsante("cmdTrans", "Trasferisci al menu principale....."),

    Cornice("Frame2", "Tavola di declinazione"),
    Etichetta("lblData", "Data (gg,mm,aaaa)"),
    Testo("txtDay", {}, Filtro::SoloCifre),
    Testo("txtMonth", {}, Filtro::SoloCifre),
    Testo("txtYear", {}, Filtro::SoloCifre),
    Etichetta("lblUT", "UT (oo,mm,ss)"),
    Testo("txtHH", {}, Filtro::SoloCifre),
    Testo("txtMM", {}, Filtro::SoloCifre),
    Testo("txtSS", {}, Filtro::SoloCifre),
    Etichetta("lblAngle", "Angolo az : vedere istruzioni.."),
    Testo("txtAngle", "0", Filtro::SoloCifreSegno, "az = 0 supplies the azimuth of the sun"),
    Etichetta("lblFuso", "Fuso orario"),
    Testo("TxtFuso", "-1", Filtro::SoloCifreSegno),  // Italy; West is positive
    Casella("ckDst", nullptr, "Ora legale estiva"),
    Pulsante("cmdCalcola", "Esegui"),
    Pulsante("cmdInfo", "Istruzioni....."),
    Pulsante("cmdExit", "Esci"),
    Testo("txtResult"),
};

inline constexpr Controllo RIGHE_ISTRUZIONI[] = {Muto("Picture1", Classe::Immagine)};

inline constexpr Sv STAMPA = "Stampa";
inline constexpr Controllo RIGHE_FORM1[] = {Menu("menuFond", STAMPA)};
inline constexpr Controllo RIGHE_FORM2[] = {Menu("mnuPrinta", STAMPA)};
inline constexpr Controllo RIGHE_FORM3[] = {Menu("mnustampat", STAMPA)};
inline constexpr Controllo RIGHE_FORM4[] = {Menu("mnubabprint", STAMPA)};
inline constexpr Controllo RIGHE_FORM6[] = {Menu("mnu_Print", STAMPA)};
inline constexpr Controllo RIGHE_FORM7[] = {Menu("menustampa", STAMPA)};
inline constexpr Controllo RIGHE_FORM8[] = {Menu("menuprinta", STAMPA)};
inline constexpr Controllo RIGHE_FORM9[] = {Menu("mnuStammpa", STAMPA)};
inline constexpr Controllo RIGHE_FORM10[] = {Menu("mnuDatiQ", STAMPA)};

inline constexpr Controllo RIGHE_FORM5[] = {Testo("Text1", AVVISO)};

inline constexpr Controllo RIGHE_ABOUT[] = {
    Etichetta("lblTitle", "Ombrelia"),
    Etichetta("lblVersion", "Versione"),
    Etichetta("lblDescription", "Progetto di orologi solari in scala reale"),
    Pulsante("cmdOK", "OK"),
    Pulsante("cmdSysInfo", "Informazioni di sistema..."),
};

// The sheet's form has no caption until a project is open: a caption there is a project's title. Blanks in the captions
// are meant.
inline constexpr RigheModulo GRUPPI_MODULI[] = {
    {{"frmTavolo", {}}, RIGHE_FOGLIO},
    {{"frmDeclin", "Utility board - Outils - Strumenti - Herramientas"}, RIGHE_STRUMENTI},
    {{"frmInfoDec", "Istruzioni"}, RIGHE_ISTRUZIONI},
    {{"Form1", "1)  Dati fondamentali del quadrante"}, RIGHE_FORM1},
    {{"Form2", "2)  Ore vere: coordinate degli intercetti delle rette orarie con rette a scelta"}, RIGHE_FORM2},
    {{"Form3", "3)  Coordinate degli  intercetti delle rette temporarie con rette a scelta"}, RIGHE_FORM3},
    {{"Form4", "4)  Ore babiloniche: coordinate degli intercetti delle linee diurne con le rette orarie"}, RIGHE_FORM4},
    {{"Form5", "5) Avviso - Notice - Avis"}, RIGHE_FORM5},
    {{"Form6", "6)  Coordinate cartesiane degli intercetti delle ore astronomiche con le linee dei solstizi"}, RIGHE_FORM6},
    {{"Form7", " 7)  Coordinate cartesiane degli intercetti delle linee orarie con le linee diurne"}, RIGHE_FORM7},
    {{"Form8", "8)  Coordinate cartesiane delle linee diurne a varie declinazioni"}, RIGHE_FORM8},
    {{"Form9", "9)  Ore italiche: coordinate degli intercetti delle linee diurne con le rette orarie"}, RIGHE_FORM9},
    {{"Form10", "10)  Dati del quadrante equivalente verticale con stesso angolo sustilare"}, RIGHE_FORM10},
    {{"frmAbout", "Informazioni su Ombrelia"}, RIGHE_ABOUT},
};

}  // namespace ombrelia::righe
