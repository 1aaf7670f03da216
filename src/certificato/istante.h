// What a moment casts and what a point reads on a dial as it is mounted: the answers of read, shadow, the sheet under the
// mouse and the time bar.
#pragma once

#include <optional>
#include <vector>

#include "certificato/posa.h"
#include "ombra/sole.h"

namespace ombrelia {

// A moment and its shadow.
struct Istante {
    double ore = 0;  // civil, since 0h of the date
    double jd = 0;   // universal time
    ombra::Sole sole{};
    ombra::SoleLetto cielo;  // hour angle, declination, altitude, azimuth; luce is the dial's
    ombra::Getto ombra;      // metres as mounted
};
// All: Given: the dial, a civil date, hours since its 0h, the zone in hours East of Greenwich, minutes between moments. Gives:
// see Istante. Source: ombra::soleDi and PianoMontato; civil time by definition. Faults: a shadow that there is not is part of
// Getto.
//
// The moment of a date and time.
[[nodiscard]] Istante IstanteDi(const Posa &posa, const ombra::Data &data, double ore, double fuso);
// The moments of a day from 0h on, 24h left out.
[[nodiscard]] std::vector<Istante> GiornataDi(const Posa &posa, const ombra::Data &data, double fuso, double passo);

// What a point says.
struct LetturaPunto {
    ombra::SoleLetto sole;
    double oraVera = 0;                                     // of the site
    std::optional<double> italica, babilonica, temporaria;  // hours
    std::vector<double> momenti;                            // of the year, Julian days of universal time, one a date
    std::vector<ombra::Data> date;                          // civil dates of the zone: two, one at a solstice, none
    double mmAlMinuto = 0, mmAlGiorno = 0;                  // how fast the shadow moves there; the day's at the first date
};
// p in metres as mounted.
[[nodiscard]] LetturaPunto LeggiPunto(const Posa &posa, const ombra::Punto &p, int anno);

// The year of now and a civil date of now in a zone.
[[nodiscard]] ombra::Data Oggi(double fuso);
// Hours as a clock shows them: 10:24, and with seconds 10:24:05. Past 24 they begin again.
[[nodiscard]] std::string Orologio(double ore, bool secondi = false);

}  // namespace ombrelia
