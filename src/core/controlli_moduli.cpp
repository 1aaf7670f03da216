// The rows of the lesser forms: the sheet's form, the utility board, the ten report forms and the about box.
#include "core/righe.h"

namespace ombrelia::righe {
namespace {

constexpr Controllo RIGHE_FOGLIO[] = {Muto("Tavolo1", Classe::Altro)};

constexpr Controllo RIGHE_STRUMENTI[] = {
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

constexpr Controllo RIGHE_ISTRUZIONI[] = {Muto("Picture1", Classe::Immagine)};

constexpr Sv STAMPA = "Stampa";
constexpr Controllo RIGHE_FORM1[] = {Menu("menuFond", STAMPA)};
constexpr Controllo RIGHE_FORM2[] = {Menu("mnuPrinta", STAMPA)};
constexpr Controllo RIGHE_FORM3[] = {Menu("mnustampat", STAMPA)};
constexpr Controllo RIGHE_FORM4[] = {Menu("mnubabprint", STAMPA)};
constexpr Controllo RIGHE_FORM6[] = {Menu("mnu_Print", STAMPA)};
constexpr Controllo RIGHE_FORM7[] = {Menu("menustampa", STAMPA)};
constexpr Controllo RIGHE_FORM8[] = {Menu("menuprinta", STAMPA)};
constexpr Controllo RIGHE_FORM9[] = {Menu("mnuStammpa", STAMPA)};
constexpr Controllo RIGHE_FORM10[] = {Menu("mnuDatiQ", STAMPA)};

constexpr Controllo RIGHE_FORM5[] = {Testo(
    "Text1",
    "Ombrelia calcola e disegna quadranti solari con la geometria dello gnomone e del Sole, dai soli numeri che riceve. Non sa "
    "se "
    "latitudine, longitudine, declinazione e inclinazione sono quelle del muro, e non promette che una linea sia giusta.\r\n"
    "Un quadrante si incide nella pietra e non si corregge: prima di tracciarlo si confronti il disegno con quello di un secondo "
    "metodo e con le tabelle, e qualche ora con un'ombra vera.\r\n"
    "Il programma è dato così com'è, senza garanzia alcuna: l'autore non risponde dei danni che derivano dal suo uso.\r\n"
    "\r\n"
    "Ombrelia computes and draws sundials by the geometry of the gnomon and the Sun, from the numbers it is given and nothing "
    "else. It cannot know whether latitude, longitude, declination and inclination are those of the wall, and it does not "
    "promise "
    "that a line is right.\r\n"
    "A sundial is cut in stone and cannot be corrected: before tracing it, check the drawing against that of a second method and "
    "against the tables, and some hours against a true shadow.\r\n"
    "The program is given as it is, with no warranty of any kind: the author is not liable for damage that comes from its "
    "use.\r\n"
    "\r\n"
    "Ombrelia calcule et dessine des cadrans solaires par la géométrie du gnomon et du Soleil, à partir des seuls nombres qu'il "
    "reçoit. Il ne sait pas si latitude, longitude, déclinaison et inclinaison sont celles du mur, et ne promet pas qu'une ligne "
    "soit juste.\r\n"
    "Un cadran se grave dans la pierre et ne se corrige pas : avant de le tracer, comparez le dessin avec celui d'une seconde "
    "méthode et avec les tables, et quelques heures avec une ombre vraie.\r\n"
    "Le programme est donné tel quel, sans aucune garantie : l'auteur ne répond pas des dommages qui résultent de son "
    "emploi.\r\n")};

constexpr Controllo RIGHE_ABOUT[] = {
    Etichetta("lblTitle", "Ombrelia"),
    Etichetta("lblVersion", "Versione"),
    Etichetta("lblDescription", "Progetto di orologi solari in scala reale"),
    Pulsante("cmdOK", "OK"),
    Pulsante("cmdSysInfo", "Informazioni di sistema..."),
};

// The sheet's form has no caption until a project is open: a caption there is a project's title. Blanks in the captions
// are meant.
constexpr Gruppo GRUPPI[] = {
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

}  // namespace

std::span<const Gruppo> GruppiModuli() { return GRUPPI; }

}  // namespace ombrelia::righe
