// The rows of the plot surface: head panel, read-outs, scroll bars, and the three panels that its buttons open.
#pragma once

#include "controlli/righe.h"

namespace ombrelia::righe {

using Pt = PannelloTavolo;

inline constexpr Controllo RIGHE_TAVOLO[] = {
    Cornice("picHead"),
    Pulsante("cmdStampa", "Print"),
    Pulsante("cmdAssi", "Axes"),
    Pulsante("CmdGriglia", "Grid"),
    Pulsante("cmdPulisci", "Clear"),
    Pulsante("cmdDim", "Dimensions"),
    Pulsante("cmdSave", "Save", "Save as BMP file (image.bmp)"),
    Pulsante("cmdDxf", "DXF"),
    Pulsante("cmdInvX", "Invert X"),
    Pulsante("cmdInvY", "Invert Y"),
    Pannello("cmbScala", Classe::Elenco, &Pt::cmbScala),
    Pannello("lblDimVal", Classe::Etichetta, &Pt::lblDimVal),
    Pannello("lblScala", Classe::Etichetta, &Pt::lblScala),
    Pannello("lblXYval", Classe::Etichetta, &Pt::lblXYval),

    Muto("picPlot", Classe::Immagine),
    Muto("HScroll1", Classe::Barra),
    Muto("VScroll1", Classe::Barra),
    Pannello("p_mess", Classe::Etichetta, &Pt::p_mess),

    // Each panel is hidden until its button opens it; what lies in it shows with it.
    Nascosto(Cornice("PicAssi", " Shift Axes (metres)")),
    Etichetta("lblX", "X"),
    Pannello("txtX", Classe::Testo, &Pt::txtX, Filtro::Numeri),
    Etichetta("lblY", "Y"),
    Pannello("txtY", Classe::Testo, &Pt::txtY, Filtro::Numeri),
    Pulsante("cmdAssiAgg", "Update"),
    Pulsante("cmdAssiChiudi", "Hide"),

    Nascosto(Cornice("picDimensioni", " Dimensions (metres)")),
    Etichetta("lblQL", "L Larghezza "),
    Pannello("txtQL", Classe::Testo, &Pt::txtQL, Filtro::Numeri),
    Etichetta("lblQH", "H Altezza"),
    Pannello("txtQH", Classe::Testo, &Pt::txtQH, Filtro::Numeri),
    Pulsante("cmdQAggiorna", "Update"),
    Pulsante("cmdQAnnulla", "Hide"),

    Nascosto(Cornice("picPrint", " Print options")),
    Opzione("optAll", nullptr, "Whole Area"),
    Opzione("optSelected", nullptr, "Selected areas"),
    Pulsante("cmdPOk", "Print"),
    Pulsante("cmdPCancel", "Hide"),
};

inline constexpr RigheModulo GRUPPI_TAVOLO[] = {{{"Tavolo1", {}}, RIGHE_TAVOLO}};

}  // namespace ombrelia::righe
