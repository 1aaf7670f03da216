// The declination board: the Sun over a site at a moment, and the gnomonic declination of a wall out of one measured
// angle. Values in, a report out; who shows it and who takes what it writes back stands above.
#pragma once

#include <optional>
#include <string>

#include "lang/dizionario.h"
#include "sun/sole.h"

namespace ombrelia::sun {

struct DatiDeclinazione {
    Valore lat = 0, lon = 0;  // degrees; North and West positive
    Valore giorno = 0, mese = 0, anno = 0;
    Valore ore = 0, minuti = 0, secondi = 0;  // UT
    Valore angolo = 0;                        // measured on the wall, degrees; 0 asks for the Sun's azimuth
    Valore fuso = 0;                          // zone, hours, West positive: Italy is -1
    bool dst = false;                         // clock times of noon, sunrise and sunset one hour later
};

// What the calculation leaves. A fault ends it (it is no routine that goes on with old values): what was written before
// stays written, errore tells why, and there is no report.
struct EsitoDeclinazione {
    std::string rapporto;  // CR LF between the lines
    std::string errore;    // Italian; empty when the report is there
    // To be written back, so far as the calculation came.
    std::optional<Valore> deltaOpz;              // declination, radians
    std::optional<std::string> txtDelta, txtAO;  // declination to three places, hour angle; degrees
    bool corrLong = false;                       // the shared corrLong becomes 1; otherwise it is left alone

    SoleDelPannello sole;
    Valore equazione = 0;            // minutes
    Valore oraAngolo = 0;            // degrees from noon
    Valore azimut = 0, altezza = 0;  // the Sun, degrees; azimuth from South, West positive
    Valore declinazione = 0;         // the wall, degrees, West positive; not reduced
    Valore mezzodi = 0, arco = 0;    // noon on the clock without dst, not reduced; day arc; hours
};

// The Sun over a site, and a wall's declination. Given, gives: see the structs. Source: EqTempo; azimuth and altitude by the
// astronomical triangle (Smart, ch. II); sunrise with the Sun's limb and refraction, 50' below (Meeus, Astronomical Algorithms,
// ch. 15); departure: azimuth's branch South of the equator turned its own way. Faults: the first ends it, see EsitoDeclinazione.
// The labels of the report go through the dictionary.
[[nodiscard]] EsitoDeclinazione Declinazione(const DatiDeclinazione &dati, const Dizionario &dizionario);

}  // namespace ombrelia::sun
