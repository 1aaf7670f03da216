// Files for machines, from a drawing made ready: one table, as the formats of a drawing have. A text is built whole in
// memory; saving is another's work.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "officina/disegno.h"

namespace ombrelia::officina {

enum class Unita : std::uint8_t { Millimetri, Pollici };

struct Intestazione {
    Unita unita = Unita::Millimetri;  // of a DXF; the other forms have units of their own
    std::string titolo;
};

[[nodiscard]] std::string Dxf12(const Disegno &d, const Intestazione &f);
[[nodiscard]] std::string SvgMacchina(const Disegno &d, const Intestazione &f);
[[nodiscard]] std::string Hpgl(const Disegno &d, const Intestazione &f);
[[nodiscard]] std::string PdfStrati(const Disegno &d, const Intestazione &f);

struct FormatoMacchina {
    std::string_view estensione, nome, descrizione;  // nome: as shops call it
    std::string (*scrivi)(const Disegno &, const Intestazione &);
};
[[nodiscard]] std::span<const FormatoMacchina> FormatiMacchina();
// The form of an ending ("dxf") without regard to case, or null.
[[nodiscard]] const FormatoMacchina *FormatoMacchinaDi(std::string_view estensione);

// Number with so many decimals at the most, without trailing zeros, never "-0".
void AggiungiDecimali(std::string &t, double n, int decimali);
// The page of the forms that have one: field and drawing together, mm.
[[nodiscard]] Riquadro Pagina(const Disegno &d);
// Kinds that the drawing has, in their order.
[[nodiscard]] std::vector<Genere> GeneriUsati(const Disegno &d);

}  // namespace ombrelia::officina
