// The forms in which a drawing leaves the program: one table for commands, scripts, their help and errors, window and page.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "plot/tavolo.h"

namespace ombrelia {

struct FormatoDisegno {
    std::string_view estensione;
    std::string_view azione;       // of the action script
    std::string_view descrizione;  // English, for commands
    // The whole file; errore tells why there is none.
    std::string (*scrivi)(Tavolo &t, std::string &errore);
    bool conTesti = true;   // else the form has no place for the drawing's texts
    bool immagine = false;  // a picture, at the sheet's scale
    bool disegno = true;    // a drawing, offered where one is saved; else the records of one
    // The same in pages of the sheet's paper, those that hold lines; null where there are none.
    std::string (*aPagine)(Tavolo &t, std::string &errore) = nullptr;
    bool qui = true;  // this build writes it; else scrivi says why not
};

[[nodiscard]] std::span<const FormatoDisegno> Formati();
// The form of an ending ("dxf") without regard to case, or null.
[[nodiscard]] const FormatoDisegno *FormatoDi(std::string_view estensione);
// Ending of a path, without the point.
[[nodiscard]] std::string_view Estensione(std::string_view percorso);

}  // namespace ombrelia
