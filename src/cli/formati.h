// The forms in which a drawing leaves the program: one table for the commands, their help and their errors.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "sessione/sessione.h"

namespace ombrelia::cli {

struct Formato {
    std::string_view estensione;  // also the action's name, but for the list
    std::string_view descrizione;
    // The whole file; errore tells why there is none.
    std::string (*scrivi)(Sessione &s, std::string &errore);
    bool conTesti = true;   // else the form has no place for the drawing's texts
    bool immagine = false;  // a picture, at the sheet's scale
    // The same in pages of the sheet's paper, those that hold lines; null where there are none.
    std::string (*aPagine)(Sessione &s, std::string &errore) = nullptr;
};

[[nodiscard]] std::span<const Formato> Formati();
// The form of an ending ("dxf") without regard to case, or null.
[[nodiscard]] const Formato *FormatoDi(std::string_view estensione);
// Ending of a path, without the point.
[[nodiscard]] std::string_view Estensione(std::string_view percorso);

// Writes contenuto to a path, or to standard output for "-". Gives an empty text or what went wrong.
[[nodiscard]] std::string Consegna(const std::string &percorso, std::string_view contenuto);

}  // namespace ombrelia::cli
