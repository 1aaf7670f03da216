// The rows of the main window, in the order in which the fields are read and the project file lists them.
#pragma once

#include "controlli/righe.h"

namespace ombrelia::righe {

using In = DialInputs;

inline constexpr Sv TIP_ORE = "adeguare il valore al tipo di ora: italica o babilonica";
inline constexpr Sv TIP_CARATTERE = "altezza del carattere";

// Blanks inside and around the captions are part of the layout, and keys of the dictionary.
inline constexpr Controllo RIGHE_PRINCIPALE[] = {
    // Menus.
    Menu("mnuApri", "Apri..."),
    Menu("mnuSalva", "Salva..."),
    Menu("mnuEsci", "Esci"),
    Menu("mnuItalian", "Italiano"),
    Menu("mnuFrancais", "Français"),
    Menu("mnuInglese", "English"),
    Menu("mnuAusiliaria", "Strumenti"),
    Menu("mnuAvviso", "Avviso"),
    Menu("M_about", "Informazioni su Ombrelia..."),

    // Site, plane and gnomon.
    Etichetta("lblLatitudine", "Latitudine"),
    Testo("txtLAT", &In::txtLAT, "45.74805", {}, Filtro::Tasti),
    Etichetta("lblLongitudine", "Longitudine O +, E -"),
    Testo("txtLonG", &In::txtLonG, "0", "la longitudine posiziona la lemniscata del tempo medio sulle ore 12 TME", Filtro::Tasti),
    Etichetta("lblDeclinazione", "Declinazione O +, E -"),
    Testo("txtDec", &In::txtDec, "-20", {}, Filtro::Tasti),
    Etichetta("lblInclinazione", "Inclinazione zenitale"),
    Testo("txtInc", &In::txtInc, "25.2", "degrees from vertical line "),  // no key filter, as meant
    Etichetta("p_Stilo", "Ortostilo"),
    Testo("TxtStilo", &In::TxtStilo, ".195", {}, Filtro::Tasti),
    Etichetta("LabSUS", "Sottostilo"),
    Testo("txtSUBSTYLE", &In::txtSUBSTYLE, "0", "misurato dal piede (prolungamento)"),
    Casella("ChCentimetro", &In::ChCentimetro, "Millimetri", "dopo avere cliccato si debbono usare solo  misure in millimetri"),
    Casella("CkUNI", &In::CkUNI, "Meridiane Universali", "Usare la txtbox sottostilo per allungare lo stilo polare "),

    // Hours and tracing.
    Etichetta("LblHour", "Frazione di ora"),
    Testo("TxtFraz", &In::TxtFraz, "2", "1 per le ore, 2 per le mezze, 4 per i quarti", Filtro::Tasti),
    Etichetta("Orainizilale", "Ora iniziale"),
    Testo("TxtInizio", &In::TxtInizio, "6.5", TIP_ORE),
    Etichetta("Orafinale", "finale"),
    Testo("TxtFine", &In::TxtFine, "17.5", TIP_ORE),
    Casella("ck_Etna", &In::ck_Etna, "Ora vera del fuso orario", "Ora vera del meridiano dell'Europa Centrale"),
    Etichetta("lbl_Definizione", "Definizione"),
    Testo("txtDensity", &In::txtDensity, ".005", "più è piccolo meglio definisce - the lower the better", Filtro::Tasti),
    Etichetta("lblMinus", "Limite min linea diurna"),
    Testo("txtMinus", &In::txtMinus, "-1", "ascissa minima", Filtro::Tasti),
    Etichetta("lblMax", "Limite max linea diurna"),
    Testo("txtMax", &In::txtMax, "1", "ascissa massima", Filtro::Tasti),
    Etichetta("lblDelta", "declinazione della linea diurna opzionale"),
    Testo("txtDelta", &In::txtDelta, "23.445", {}, Filtro::Tasti),
    Etichetta("lblAO", "Angolo orario"),
    Testo("txtAO", &In::txtAO, "-15", {}, Filtro::Tasti),

    // Frame and auxiliary lines.
    Etichetta("lblX0", "I retta :              x0 ="),
    Testo("txtX0", &In::txtX0, "-0.5", {}, Filtro::Tasti),
    Etichetta("lblY0", "II retta :             y0 ="),
    Testo("txtY0", &In::txtY0, "0.4", {}, Filtro::Tasti),
    Etichetta("lblX1", "III retta :            x1 = "),
    Testo("txtX1", &In::txtX1, "0.6", {}, Filtro::Tasti),
    Etichetta("lblY1", "IV retta :           y1 ="),
    Testo("txtY1", &In::txtY1, "-0.8", {}, Filtro::Tasti),
    Etichetta("lblEqx", "Ascissa equinoziale"),
    Testo("txtEqx", &In::txtEqx, "0.6", {}, Filtro::Tasti),
    Etichetta("lblEqy", "Ordinata equinoziale"),
    Testo("txtEqy", &In::txtEqy, "0", {}, Filtro::Tasti),
    Etichetta("lblSusx", "Ascissa retta sustilare"),
    Testo("txtSusx", &In::txtSusx, "-0.5", {}, Filtro::Tasti),
    Etichetta("lblSusy", "Ordinata retta sustilare"),
    Testo("txtSusy", &In::txtSusy, "-0.8", {}, Filtro::Tasti),
    Etichetta("lblOriz", "Ordinata orizzonte"),
    Testo("txtOriz", &In::txtOriz, "0", {}, Filtro::Tasti),

    // What is drawn.
    Casella("chkOreAstronomiche", &In::chkOreAstronomiche, "            Rette orarie"),
    Casella("Ck_DayLightCurves", &In::Ck_DayLightCurves, "       Linee diurne",
            "Linee diurne 23.44° rosso chiaro, 20° magenta chiaro, 11.5° ciano chiaro"),
    Casella("ck_Equinoziale", &In::ck_Equinoziale, "Equinoziale"),
    Casella("ck_Italiche", &In::ck_Italiche, "            Ore italiche"),
    Casella("ck_babiloniche", &In::ck_babiloniche, "     Ore babiloniche"),
    Casella("ckTemp", &In::ckTemp, "Ore temporarie"),
    Casella("ck_Sustilare", &In::ck_Sustilare, "Sustilare"),
    Casella("ck_Triangolo", &In::ck_Triangolo, "Triangolo dello stilo"),
    Casella("ckZodiac", &In::ckZodiac, "Zodiaco"),
    Casella("ckAlt", &In::ckAlt, "Almucantarat"),
    Casella("ck_Lemniscate", &In::ck_Lemniscate, "Lemniscata", "la posizione della lemniscata dipende dalla longitudine"),
    Casella("ckAssi", &In::ckAssi, "Assi"),
    Casella("ck_Orizzonte", &In::ck_Orizzonte, "Orizzonte"),
    Casella("ckAz", &In::ckAz, "Azimut", "rette azimutali"),
    Casella("ckFunzione", &In::ckFunzione, "F"),
    Casella("ckRomani", &In::ckRomani, "Numeri romani"),
    Testo("txtNumbersize", &In::txtNumbersize, ".03", TIP_CARATTERE),
    Casella("ckArabi", &In::ckArabi, "Numeri arabi"),
    Testo("txtArabi", &In::txtArabi, ".03", TIP_CARATTERE),
    Testo("txtZodiacsize", &In::txtZodiacsize, "0.02", "altezza del simbolo"),

    // Prayer.
    Casella("ckAsr", &In::ckAsr, "Asr", "Asr, ora della preghiera islamica omonima"),
    Casella("CkQibla", &In::CkQibla, "Qibla",
            "Qibla : i valori inseriti sono quelli della Mecca, centro spirituale dell'Islam: verde brillante"),
    Etichetta("lblQlat", "Latitudine Qibla"),
    Testo("txtQlat", &In::txtQlat, "21.42527", {}, Filtro::Tasti),
    Etichetta("lblQlon", "Longitudine Qibla"),
    Testo("txtQlon", &In::txtQlon, "-39.81638", {}, Filtro::Tasti),

    // Tables.
    Opzione("optHorae", &In::optHorae, "Ore vere"),
    Opzione("OptIta", &In::OptIta, "Ore italiche"),
    Opzione("OptBab", &In::OptBab, "Ore babiloniche"),
    Opzione("OptTEMP", &In::OptTEMP, "Ore temporarie"),
    Opzione("OptInter", &In::OptInter, "Intersezioni"),
    Opzione("Option1", &In::Option1, "Linee diurne"),

    // Map, cities, Sun or Moon point.
    Etichetta("LabelCombo", "Stati"),
    Elenco("cmbStati", &In::cmbStati),
    Pulsante("cmdStati", "Load.."),
    Pulsante("cmdPlot", "Plot"),
    Casella("ck_inv", &In::ck_inv, "Inverti", "inversion of the map"),
    Nascosto(Etichetta("lblFiltro", "Filtro")),
    Nascosto(Testo("Filtertxt", &In::Filtertxt, ".2", "filter, filtro, filtre")),
    Testo("txtWest", &In::txtWest, "150", "limite ovest - max 163"),
    Testo("txtEAST", &In::txtEAST, "50", "limite est- min 0"),
    Opzione("Option_P", nullptr, "Sole o Luna",
            "Posizione sole o luna, Sun's or Moon's position, Position du Soleil ou de la Lune"),
    Casella("punto", &In::punto, "Punto"),
    Etichetta("Label2", "delta, H"),
    Testo("textDelta", &In::textDelta, "0"),
    Testo("txtH", &In::txtH, "0"),

    // Commands.
    Pulsante("cmdRun", "Esegui"),
    Pulsante("cmdEqui", "Grafica analitica", "Grafica analitica"),
    Pulsante("cmdTrasforma", "Trasforma in quadrante verticale equivalente", "Trasforma in quadrante verticale equivalente"),
    Pulsante("cmdData", "Dati", "Technical data of sundial"),
    Pulsante("cmdSave", "Salva parametri", "Save default parameters for new sundials"),

    // Later controls; files hold them only where they differ from what stands here.
    Nostro(Etichetta("lblMeridiano", "Meridiano del fuso O +, E -")),
    Nostro(Testo("txtMeridiano", &In::txtMeridiano, "-15", "longitudine del meridiano dell'ora civile: -15 per l'Europa centrale",
                 Filtro::Tasti)),
    Nostro(Casella("ckCorretta", &In::ckCorretta, "Geometria corretta",
                   "traccia le linee vere, punto per punto, dal modello dell'ombra")),
    Nostro(Etichetta("lblAnno", "Anno")),
    Nostro(
        Testo("txtAnno", &In::txtAnno, "", "anno del Sole che la lemniscata vera segue; vuoto: l'anno in corso", Filtro::Tasti)),
    Nostro(Casella("ckEtichette", &In::ckEtichette, "Etichette", "scrive su ogni linea il suo numero, la data o i gradi")),
    Nostro(Etichetta("lblAltezzaEtichette", "Altezza delle etichette, mm")),
    Nostro(Testo("txtAltezzaEtichette", &In::txtAltezzaEtichette, "8", {}, Filtro::Tasti)),
    Nostro(Casella("ckEtichetteRomane", &In::ckEtichetteRomane, "Ore romane")),
    Nostro(Casella("ckEtichetteLungo", &In::ckEtichetteLungo, "Lungo la linea",
                   "le etichette seguono la linea invece di stare diritte")),
    Nostro(Casella("ckEtichetteSegni", &In::ckEtichetteSegni, "Segni per date",
                   "sulle linee diurne i segni dello zodiaco al posto delle date")),
    Nostro(Casella("ckCartiglio", &In::ckCartiglio, "Cartiglio",
                   "scrive sotto la cornice, o accanto, luogo, piano, gnomone, motto e anno")),
    Nostro(Etichetta("lblLuogo", "Nome del luogo")),
    Nostro(Testo("txtLuogo", &In::txtLuogo, "")),
    Nostro(Etichetta("lblMotto", "Motto")),
    Nostro(Testo("txtMotto", &In::txtMotto, "")),
    Nostro(Etichetta("lblAnnoCartiglio", "Anno del cartiglio")),
    Nostro(Testo("txtAnnoCartiglio", &In::txtAnnoCartiglio, "")),
    Nostro(Nascosto(Etichetta("lblLetture", "Letture della parete"))),
    Nostro(Nascosto(Testo("txtLetture", &In::txtLetture, ""))),

    // The window's own furniture.
    Cornice("Panel3D1"),
    Muto("PicScroll", Classe::Immagine),
    Muto("VScroll1", Classe::Barra),
    Muto("Picture2", Classe::Immagine),
    Muto("Picture3", Classe::Immagine),
    Muto("Line1", Classe::Altro),
    Muto("CDialog1", Classe::Altro),
};

inline constexpr RigheModulo GRUPPI_PRINCIPALE[] = {{{"MDIForm1", "Ombrelia"}, RIGHE_PRINCIPALE}};

}  // namespace ombrelia::righe
