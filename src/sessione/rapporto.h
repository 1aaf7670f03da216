// A report as data: lines of items with print-zone separators, and the tables among them with their unrounded numbers.
// src/reports fills it and gives it out as text, CSV or HTML.
#pragma once

#include <cstdint>
#include <ctime>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/colori.h"
#include "core/reale.h"

namespace ombrelia {

// What stands behind an item of a line, before the next one.
enum class Separatore : std::uint8_t { Nessuno, Zona, Blank };

// One item: a text, or a number as it is printed.
struct Elemento {
    std::string testo;
    std::optional<double> numero{};  // unrounded, for those who compute on
    Separatore dopo = Separatore::Nessuno;
    int blank = 0;           // how many, behind Separatore::Blank
    bool ornamento = false;  // a label inside a table row, no cell of its own
    bool esiste = true;      // false: the number faulted

    Elemento(std::string t) : testo(std::move(t)) {}  // NOLINT: a text is an item
    Elemento(std::string_view t) : testo(t) {}        // NOLINT
    Elemento(const char *t) : testo(t) {}             // NOLINT
    // The same item standing for this number.
    [[nodiscard]] Elemento vero(Valore x) && {
        if (x.esiste()) numero = x.v;
        return std::move(*this);
    }
};

enum class GenereRiga : std::uint8_t {
    Testo,
    Titolo,        // of a table, a line a language
    Intestazione,  // the heads of its columns, a line a language
    Dati           // a row: each item one cell
};

struct RigaRapporto {
    std::vector<Elemento> voci;
    Colore colore = 0;
    GenereRiga genere = GenereRiga::Testo;
    int tabella = -1;  // number of its table, for all but Genere::Testo
};

// A table in the program's language, for exports.
struct TabellaRapporto {
    std::string titolo;
    std::vector<std::string> colonne;
};

struct Rapporto {
    std::string modulo;   // the form: "Form2"
    std::string caption;  // translated
    std::vector<RigaRapporto> righe;
    std::vector<TabellaRapporto> tabelle;
};

// Local wall-clock time.
[[nodiscard]] std::tm AdessoLocale();

// The reports of a session.
struct Rapporti {
    Rapporto aperto;    // the one opened last; without a form none was opened yet
    Rapporto stampato;  // what a "Stampa" menu sent to the printer last
    // Told when a report was filled and when one was sent to the printer; a window shows or prints it.
    std::function<void(const Rapporto &)> suApertura, suStampa;
    std::function<std::tm()> orologio = AdessoLocale;
};

}  // namespace ombrelia
