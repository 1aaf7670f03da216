// The Sun of the utility board: the low-precision series of epoch 1900 and the conversions between decimal and
// sexagesimal degrees. Plain operations on plain values; nothing here knows a form or a site.
#pragma once

#include <string>
#include <string_view>

#include "core/reale.h"

namespace ombrelia::sun {

// A quantity in three parts: degrees or hours, minutes, seconds.
struct Sessagesimale {
    Valore gradi = 0, primi = 0, secondi = 0;
};

// Given: decimal degrees or hours. Gives: whole ones, whole minutes, seconds as they come; a negative value makes all three
// negative. Source: elementary. Faults: no value.
[[nodiscard]] Sessagesimale GradiDecToSex(Valore valore);

// Decimal degrees with five places; Segno is put in front, but for "+". Empty when the value does not exist.
[[nodiscard]] std::string GradiSexToDec(std::string_view Segno, Valore Gradi, Valore Primi, Valore Secondi);

// The split of the report: all three whole, by Int, so that a negative value has negative hours and positive minutes.
[[nodiscard]] Sessagesimale OreMinutiSecondi(Valore ore);

// What EqTempo finds on its way. A quantity that faulted has no value, nor has any that follows from it.
struct SoleDelPannello {
    Valore giuliano = 0;    // Julian day, taken as it is for the series' ephemeris time
    Valore secoli = 0;      // Julian centuries from 1900 January 0.5
    Valore minuti = 0;      // equation of time: whole minutes, signed
    Valore resto = 0;       // and the signed rest, minutes
    Valore delta = 0;       // declination, radians, North positive
    Valore ascensione = 0;  // right ascension, hours; not reduced, may pass 24
};

// The Sun at a moment. Given: date and time, UT. Gives: the equation of time in minutes (apparent less mean), all else in sole.
// Anno is joined to the date as text, so a two-digit year is one of the first century. Mese comes back as its last two
// characters behind "00", Giorno likewise after the carry of the hours.
// Dates whose number is below 1582 10 15 are of the Julian calendar. No range is tested: a month 0 or 13 goes through the sums.
// Source: Newcomb's elements of the Sun (as in Meeus, Astronomical Formulae for Calculators, ch. 18) with the equation of time of
// Smart, Textbook on Spherical Astronomy; departure: no aberration, no nutation, universal for ephemeris time. Faults: no value.
[[nodiscard]] Valore EqTempo(const std::string &Anno, std::string &Mese, std::string &Giorno, Valore Ora, Valore Minuti,
                             Valore Secondi, SoleDelPannello &sole);

}  // namespace ombrelia::sun
