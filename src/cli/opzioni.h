// Options of a command line as rows: a command lists what it takes, rooms that several commands share add rows of their own.
// Texts are advice: a command that can't go on gives "" or what is wrong, and its caller refuses with exit status 2.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ombrelia::cli {

using Valori = std::vector<std::string>;

struct Opzione {
    std::string_view nome;  // "--sheet"
    std::size_t valori;     // how many words follow it
    std::string_view cosa;  // which: "four numbers: L H X Y"
    std::function<std::string(const Valori &)> prendi;
    bool ancora = false;  // may stand more than once
};

// A command's rows. Words that are no options go to parola.
struct Opzioni {
    std::string comando;  // "draw", for the advice
    std::vector<Opzione> righe;
    std::function<std::string(const std::string &)> parola;

    // Takes the option at argv[i] with its words, of which i then stands on the last; date are those taken before. False when no
    // row has that name; errore tells what is wrong with it.
    bool prendi(int argc, char **argv, int &i, std::vector<std::string_view> &date, std::string &errore) const;
    // Reads the words behind the command's name. Empty, or what is wrong.
    [[nodiscard]] std::string leggi(int argc, char **argv) const;
};

// A row that keeps its one word, or tells that the option was given.
[[nodiscard]] Opzione Testo(std::string_view nome, std::string_view cosa, std::string &dove);
[[nodiscard]] Opzione Bandiera(std::string_view nome, bool &dove);

// A number as people type it: sign, digits, point or comma, exponent, and nothing else. Empty, or why it is none, or is outside
// da..a (both belong to it).
[[nodiscard]] std::string LeggiNumero(std::string_view testo, double da, double a, double &numero);

// Any number; false when it is none.
[[nodiscard]] bool Numero(std::string_view testo, double &numero);

// Tells on standard error why a command can't go on; gives its exit status, 2.
int Rifiuta(std::string_view comando, const std::string &motivo);

}  // namespace ombrelia::cli
