// The drawing that a command is asked for: the options of draw without its files, shared by every command that takes
// them.
#pragma once

#include <string>
#include <vector>

#include "cli/campi.h"

namespace ombrelia::cli {

// A whole text as a number.
[[nodiscard]] bool Numero(const std::string &testo, double &n);

struct Disegno {
    Campi campi;
    std::string motore = "auto";
    std::vector<double> foglio;  // L H X Y, or empty: the project's, else fitted to the frame

    // Takes the option at argv[i] with its arguments; i then stands on the last of them. False when it is none of these;
    // errore tells what is wrong with it.
    bool Prendi(int argc, char **argv, int &i, std::string &errore);
    // Fields, boxes, engine and sheet. Empty, or what could not be done.
    [[nodiscard]] std::string Applica(Sessione &s) const;
    // Draws what was applied, a southern dial as it is mounted.
    [[nodiscard]] std::string Esegui(Sessione &s) const;
};

}  // namespace ombrelia::cli
