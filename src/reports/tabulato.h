// A report while it is written: the sink for the screen's form or for the printer, the forms of numbers, the lines that
// several reports share.
#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>

#include "core/conteggio.h"
#include "reports/rapporti.h"
#include "sessione/limiti.h"
#include "sessione/sessione.h"

namespace ombrelia::reports {

// --- items ------------------------------------------------------------------------------------------------------------

// A number among separate items: a leading blank unless it is negative, and a trailing blank.
[[nodiscard]] Elemento Numero(Valore x);
// A number joined to texts: no blanks.
[[nodiscard]] Elemento Unito(Valore x);
// A number under a mask; the item stands for the unrounded x.
[[nodiscard]] Elemento Fmt(Valore x, std::string_view maschera);
// Cut toward minus infinity to four decimals, and rounded to five places with ties to even: as separate items that
// stand for the unrounded x.
[[nodiscard]] Elemento Taglio4(Valore x);
[[nodiscard]] Elemento Arrotonda5(Valore x);
// A label inside a table row.
[[nodiscard]] Elemento Ornamento(std::string_view testo);
// Separators, written behind the item that they follow.
[[nodiscard]] Elemento Zona();
[[nodiscard]] Elemento Spc(int n);

// --- the sheet of a report -------------------------------------------------------------------------------------------

// A title or a head in the three languages in which it is always printed: Italian, French, English. An empty one is left
// out.
using Trilingue = std::array<std::string, 3>;

// One opening of a report. On the screen it empties the form first; to the printer it begins a new document.
class Tabulato {
public:
    Tabulato(Sessione &s, std::string_view modulo, Uscita uscita);
    Tabulato(const Tabulato &) = delete;
    Tabulato &operator=(const Tabulato &) = delete;

    [[nodiscard]] bool schermo() const { return uscita_ == Uscita::Schermo; }
    // Of the lines that follow.
    void colore(Colore c) { colore_ = c; }

    // A line of separate items: a fault ends it, those before the fault are printed.
    void riga(std::initializer_list<Elemento> voci);
    // A line whose items are joined to one expression: a fault leaves it out.
    void rigaUnita(std::initializer_list<Elemento> voci);
    void vuota() { aggiungi({}, GenereRiga::Testo); }
    // A label alone, through the dictionary.
    void etichetta(std::string_view testo) { riga({tr(testo)}); }
    [[nodiscard]] Elemento tr(std::string_view testo) const { return s_.Traduci(testo); }

    // Begins a table: its title and the names of its columns for exports, in the program's language.
    void tabella(const std::string &titolo, std::vector<std::string> colonne);
    // The lines of its title and of its heads.
    void titoli(const Trilingue &righe);
    void intestazioni(const Trilingue &righe);
    // A row of the table begun last.
    void dati(std::vector<Elemento> voci) { aggiungi(std::move(voci), GenereRiga::Dati); }

    // The legend of the dial's points and of the method of the lengths of shadow, four lines.
    void legenda();
    // Address, date and time, and a last line when there is one; hands the report over.
    void chiudi(std::string_view ultima = {});
    // Hands the report over as it is.
    void consegna();

private:
    void aggiungi(std::vector<Elemento> voci, GenereRiga genere);

    Sessione &s_;
    Uscita uscita_;
    Rapporto &r_;
    Colore colore_ = NERO;
};

// Address of the closing lines.
inline constexpr std::string_view INDIRIZZO = "Lia Berna frazione Colle 7 00100 Borgo ";

// Language of the program, as its dictionary's word for "ora" tells it: 0 Italian, 1 French, 2 English.
[[nodiscard]] std::size_t Lingua(const Sessione &s);
// Names of columns from head lines in three languages: words are parted by two blanks or more. A language whose line
// names fewer columns gets the names of the language before it.
[[nodiscard]] std::vector<std::string> Colonne(const Sessione &s, const Trilingue &intestazioni);

// Rows that a report may have, all its tables together.
inline constexpr double RIGHE_MASSIME = 100000;
// Whether a report over so many hours, rows a step in all, is refused; the user is told the field.
[[nodiscard]] bool TroppeRighe(Sessione &s, Valore da, Valore a, Valore frazione, double righePerPasso);

}  // namespace ombrelia::reports
