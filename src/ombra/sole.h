// The Sun of a date: declination and equation of time, the civil calendar, and the dates that have a declination.
// Apparent place after Meeus, Astronomical Algorithms, chapters 22, 25 and 28: the Earth's longitude of VSOP87 cut short.
// Against a precise theory, 1900 to 2100: 0.55 seconds of arc, 0.12 seconds of time.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ombrelia::ombra {

// Gregorian, also before 1582. mese and giorno from 1.
struct Data {
    int anno = 2000, mese = 1, giorno = 1;
    friend bool operator==(const Data &, const Data &) = default;
};

// Julian day at 0h of a date, and the date that holds a Julian day. Given, gives: days; see Data. Source: Meeus, Astronomical
// Algorithms, ch. 7; departure: the Gregorian calendar for all years. Faults: none.
[[nodiscard]] double giornoGiuliano(const Data &d);
[[nodiscard]] Data dataDi(double jd);
// "2026-06-21" both ways; none when it is no date of the years 1 to 9999.
[[nodiscard]] std::optional<Data> leggiData(std::string_view testo);
[[nodiscard]] std::string testoData(const Data &d);

struct Sole {
    double delta;        // declination, radians, North positive
    double equazione;    // equation of time, minutes: apparent less mean time
    double longitudine;  // apparent, radians, 0 to 2 pi
};
// The Sun's centre. Given: a Julian day of universal time. Gives: see Sole. Source: as above; departure: dynamical time by a
// table of the year. Faults: none.
[[nodiscard]] Sole soleDi(double jd);

// All below. Given: Julian days of universal time, minutes of the equation of time, radians: hour angle t afternoon positive,
// declination North positive, longitude West positive. Gives: as said. Source: soleDi and the equation of time by definition;
// moments by repetition and by halving. Faults: none but what is told.
//
// Hour angle of the Sun, radians, -pi to pi.
[[nodiscard]] double angoloOrario(double jd, double equazione, double longitudine);
// The moment of a day (Julian day at its 0h of universal time) at which the Sun stands at an hour angle there.
[[nodiscard]] double momento(double jd0, double t, double longitudine);

// The moments of a year (of universal time) at which the Sun reaches a declination, in their order: two, one at a
// solstice, none beyond.
[[nodiscard]] std::vector<double> momentiDi(double delta, int anno);
// The civil dates of a year, zone in hours East of Greenwich, on which the Sun at hour angle t comes nearest to a
// declination: two, or one near a solstice; none where no Sun has it.
[[nodiscard]] std::vector<Data> dateDi(double delta, double t, int anno, double longitudine, double fuso);
// Change of the declination, radians a day, at a moment.
[[nodiscard]] double passoDelGiorno(double jd);

}  // namespace ombrelia::ombra
