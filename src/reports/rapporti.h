// The ten reports: numbers of a dial as lines of text. Each routine fills its form or its printed page afresh from the
// fields and shared variables, and leaves in those what its text says.
//
// How lines are laid out as text: columns count characters from the left margin, from 0. A print zone is 14 columns; the
// zone separator goes on to the next zone start beyond the present column, so that a text which ends just at a zone start
// skips that zone. Spc(n) is n blanks. A number without a mask has a leading blank (none when negative) and a trailing
// one. What a separator adds behind the last item of a line is not written.
// Faults: a statement without a value keeps its old one, so a row prints what the row before it had. An item without a
// value ends its line; a joined expression without one leaves its line out.
#pragma once

#include "reports/foglio.h"

namespace ombrelia::reports {

// Primary data, style triangle, lengths, day lines against horizon and vertical, hours on the equinoctial (Form1).
// Reads the fields itself and leaves latR signed and a discriminant in deltaOpz.
void MostraDatiFondamentali(Sessione &s);
void StampaDatiFondamentali(Sessione &s);

// Data of the equivalent vertical dial and of the original one (Form10), from the original dial's variables.
void MostraDatiEquivalente(Sessione &s);
void StampaDatiEquivalente(Sessione &s);

// True hours against two pairs of lines, with the shadow lengths (Form2): any plane, a wall, the equator.
void MostraOreVere(Sessione &s);
void StampaOreVere(Sessione &s);
void MostraOreVereVerticale(Sessione &s);
void StampaOreVereVerticale(Sessione &s);
void MostraOreVereLatZero(Sessione &s);
void StampaOreVereLatZero(Sessione &s);

// Hours from sunset, from sunrise and twelfths of the day against solstices and chosen lines (Form9, Form4, Form3).
void MostraItaliche(Sessione &s);
void StampaItaliche(Sessione &s);
void MostraBabiloniche(Sessione &s);
void StampaBabiloniche(Sessione &s);
void MostraTemporarie(Sessione &s);
void StampaTemporarie(Sessione &s);

// Hour lines against day lines by spherical trigonometry and by analytic geometry (Form6, Form7); day lines by
// abscissa (Form8).
void MostraInterSferica(Sessione &s);
void StampaInterSferica(Sessione &s);
void MostraInterAnalitica(Sessione &s);
void StampaInterAnalitica(Sessione &s);
void MostraLineeDiurne(Sessione &s);
void StampaLineeDiurne(Sessione &s);

// The notice (Form5). It has no print routine.
void MostraAvviso(Sessione &s);

// What the "Stampa" menu of a form runs, where it has a choice.
void StampaForm2(Sessione &s);   // by the latitude and the inclination read last
void StampaForm10(Sessione &s);  // by flagVerticale

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

}  // namespace ombrelia::reports
