// A dial drawn as a command line asks for it: the fields, the engine, the sheet, and the run itself. draw and every other command
// that works on a drawn dial reads its options here:
//
//     Commissione d;
//     ... for each word: if (d.Prendi(argc, argv, i, errore)) ... else a word of its own
//     (or d.opzioni(o) adds the rows to a command's table of options, cli/opzioni.h)
//     SessioneDiComando c;
//     if (const std::string e = d.Applica(c.s); !e.empty()) return Rifiuta("read", e);
//     if (const std::string e = d.Esegui(c.s); !e.empty()) return Rifiuta("read", e);
//     ... c.s.tavolo.lista() ...
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/campi.h"
#include "cli/console.h"

namespace ombrelia::cli {

// "a4", "a3", "letter" in any case, or WxH in millimetres. Empty, or what is wrong.
[[nodiscard]] std::string LeggiCarta(std::string_view testo, Carta &carta);

struct Commissione {
    Campi campi;
    std::string motore = "auto";                  // or direct, vertical, analytic
    bool mappa = false;                           // the map of the world on it
    std::optional<std::array<double, 4>> foglio;  // L H X Y, metres; without it the project's, else fitted to the frame
    std::optional<Carta> carta;                   // of the pages; without it A4, and a PDF is one page

    // Adds the rows of the fields, --engine ENGINE, --map, --sheet L H X Y and --paper PAPER, which keep what they take in this
    // object.
    void opzioni(Opzioni &o);
    // Takes the option at argv[i] with its words; i then stands on the last of them. False when it is none of these; errore tells
    // what is wrong with it.
    bool Prendi(int argc, char **argv, int &i, std::string &errore);
    // Fields, boxes, engine and sheet. Empty, or what could not be done.
    [[nodiscard]] std::string Applica(Sessione &s) const;
    // Draws what was applied, a southern dial as it is mounted. Empty, or why there is no drawing.
    [[nodiscard]] std::string Esegui(Sessione &s) const;

private:
    std::vector<std::string_view> date_;  // options that Prendi took
};

// A drawing without a line of the dial's own: its frame, limit lines and axes at the most.
[[nodiscard]] bool SoloCornice(const Lista &l);
inline constexpr char SOLO_CORNICE[] = "only the frame is drawn: choose lines, as by --check chkOreAstronomiche";

// A started program without a window: what it says goes to standard error.
struct SessioneDiComando {
    explicit SessioneDiComando(const Carta &carta = CARTA_A4);
    Console console{stderr};
    Sessione s;
};

}  // namespace ombrelia::cli
