// The reports: numbers of a dial as lines of text. Each routine fills its form or its printed page afresh from the fields and
// shared variables, and leaves in those what its text says. Which control opens which stands in app/rapporti.cpp.
//
// How lines are laid out as text: columns count characters from the left margin, from 0. A print zone is 14 columns; the
// zone separator goes on to the next zone start beyond the present column, so that a text which ends just at a zone start
// skips that zone. Spc(n) is n blanks. A number without a mask has a leading blank (none when negative) and a trailing
// one. What a separator adds behind the last item of a line is not written.
// Faults: a statement without a value keeps its old one, so a row prints what the row before it had. An item without a
// value ends its line; a joined expression without one leaves its line out.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sessione/sessione.h"

namespace ombrelia::reports {

// The form on the screen, or what its "Stampa" menu sends to the printer: a routine's body is the same and differs where its text
// asks.
enum class Uscita : std::uint8_t { Schermo, Stampa };

// Primary data, style triangle, lengths, day lines against horizon and vertical, hours on the equinoctial (Form1).
// Reads the fields itself and leaves latR signed and a discriminant in deltaOpz.
void DatiFondamentali(Sessione &s, Uscita uscita);

// Data of the equivalent vertical dial and of the original one (Form10), from the original dial's variables. Printed while the
// dial is not transformed, it is the data of the dial.
void DatiEquivalente(Sessione &s, Uscita uscita);

// True hours against two pairs of lines, with the shadow lengths (Form2): of any plane, a wall, the equator, as the fields say;
// printed, as latitude and inclination were read last.
void OreVere(Sessione &s, Uscita uscita);

// Hours from sunset, from sunrise and twelfths of the day against solstices and chosen lines (Form9, Form4, Form3).
void OreItaliche(Sessione &s, Uscita uscita);
void OreBabiloniche(Sessione &s, Uscita uscita);
void OreTemporarie(Sessione &s, Uscita uscita);

// Hour lines against day lines by spherical trigonometry and by analytic geometry (Form6, Form7); day lines by
// abscissa (Form8).
void IntersezioniSferiche(Sessione &s, Uscita uscita);
void IntersezioniAnalitiche(Sessione &s, Uscita uscita);
void TabellaDiurne(Sessione &s, Uscita uscita);

// The notice (Form5), which no menu prints.
void Avviso(Sessione &s, Uscita uscita);

// The report as text, in print zones, a line end behind each line.
[[nodiscard]] std::string RapportoTesto(const Rapporto &r);
// What exports hold: labelled values, or a table with its title and the names of its columns; numbers have all their digits.
struct Blocco {
    int tabella = -1;  // which of the report's; -1 for labelled values
    std::string titolo;
    std::vector<std::string> colonne;
    std::vector<std::vector<std::string>> righe;
};
[[nodiscard]] std::vector<Blocco> RapportoBlocchi(const Rapporto &r);
// Labelled values first as they come, a value a cell; each table a block of its own with its title and the names of its
// columns; a blank line between blocks. Numbers have all their digits. Cells are parted by commas and lines by CR LF.
[[nodiscard]] std::string RapportoCsv(const Rapporto &r);
// The same with ";" between cells and decimal commas, as Italian spreadsheets read it.
[[nodiscard]] std::string RapportoCsvItaliano(const Rapporto &r);
// One self-contained page in the report's own colours.
[[nodiscard]] std::string RapportoHtml(const Rapporto &r);

// The forms in which a report leaves the program.
struct FormaRapporto {
    std::string_view estensione, opzione, descrizione;  // of a file; of the command, with what its help says
    std::string (*scrivi)(const Rapporto &);
    bool tavole = true;  // keeps tables as tables
};
[[nodiscard]] std::span<const FormaRapporto> FormeRapporto();
// The first of an ending ("csv") without regard to case; the text for one that is unknown.
[[nodiscard]] const FormaRapporto &FormaRapportoDi(std::string_view estensione);

}  // namespace ombrelia::reports
