// Several readings of one wall: reading them from text, and what they say together. The single reading of the board
// stays as it is; the sums are its own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sun/declinazione.h"

namespace ombrelia::sun {

// "2026-06-21": a day that exists, years from 1; Julian before 1582 October 15. Gives an empty text, or what is wrong.
[[nodiscard]] std::string LeggiData(std::string_view testo, DatiDeclinazione &dati);
// "9:40" or "9:40:30", UT, below 24 hours.
[[nodiscard]] std::string LeggiOra(std::string_view testo, DatiDeclinazione &dati);
// A number and nothing else, between da and a.
[[nodiscard]] std::string LeggiNumero(std::string_view testo, double da, double a, Valore &numero);

// An angle within half a turn. Given: degrees. Gives: degrees, above -180 to 180. Source: elementary. Faults: no number for what
// is not finite.
[[nodiscard]] double Girato(double gradi);

struct LetturaParete {
    std::size_t riga = 0;  // in the file
    std::string testo;     // as written, without its comment
    DatiDeclinazione dati;
};

// Lines of date, time and angle, divided by blanks, commas or semicolons; "#" begins a comment. Site and zone come from
// comune. Stops at the first line that is wrong: errore is then "line: reason".
[[nodiscard]] std::vector<LetturaParete> LeggiLetture(std::string_view testo, const DatiDeclinazione &comune,
                                                      std::string &errore);

struct Riassunto {
    double media = 0;              // degrees, -180..180
    double scarto = 0;             // standard deviation of one reading (n - 1)
    std::vector<double> distanze;  // of each from the mean of the others, degrees, -180..180
    std::size_t lontana = 0;       // the farthest reading; of equal ones the first
    bool stona = false;            // it lies farther out than chance explains
};

// What readings say together. Given: degrees. Gives: see Riassunto. Source: Grubbs' test on the extreme of a normal sample,
// Student's distribution by Abramowitz and Stegun, 26.7.3; departure: a bound by the number of readings (Bonferroni). Faults:
// none. Angles are taken on the circle, about the first one. A reading stands out when honest readings of this spread would have
// one so far out less than once in twenty (Grubbs' test); that takes three readings at least.
[[nodiscard]] Riassunto Riassumi(const std::vector<double> &gradi);

}  // namespace ombrelia::sun
