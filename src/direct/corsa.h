// One run of the direct engine: what was read, what follows from it, and the routines of its features.
#pragma once

#include <optional>
#include <vector>

#include "gnomonica/caratteristiche.h"
#include "gnomonica/catena.h"
#include "gnomonica/spazzate.h"
#include "gnomonica/stilo.h"

namespace ombrelia::direct {

// Half day arc over the year, radians, at the original dial's latitude. In polar day and night the statement faults and
// the arc of the declination before stays; from the second line on the first declinations inherit the end of the line
// before.
class SemiArchi {
public:
    explicit SemiArchi(Valore latitudine);
    [[nodiscard]] const std::vector<double> &diLinea(bool prima) const { return prima || poi_.empty() ? prima_ : poi_; }

private:
    std::vector<double> prima_, poi_;  // poi_ only where it differs
};

struct Corsa {
    explicit Corsa(Sessione &sessione) : s(sessione), v(sessione.v), letto(sessione.in), cornice(CorniceDi(letto)) {}

    Sessione &s;         // what lines are drawn on
    const Variabili &v;  // as they stand; what a routine leaves there it leaves in a function Lascia...
    Lettura letto;
    Cornice cornice;
    bool orizzontale = false;    // the original dial lies level
    std::optional<Piano> piano;  // of the shared variables, made anew by whatever changes them
    GiornoDiOre giorno;
    std::optional<SemiArchi> archi;  // when a line first asks

    void rifaiPiano() { piano.emplace(v); }
    [[nodiscard]] const SemiArchi &semiArchi() { return archi ? *archi : archi.emplace(v.lat_o); }
};

// Lines of the features, and their drawing; see the table in diretta.cpp.
//
// What for: the lines of a row, each bracketed by its claim. Given: the run; angles in radians, lengths as typed. Gives: chords
// or points that pass the horizon and the frame, metres, origin at the foot, x to the right, y upward. Source: Proiezione, swept
// by declination (hours) or by hour angle (days). Faults: a point that does not exist stays the one before; a chord to it may
// pass. Departures: hours end at the solstices of 23.445 degrees; day lines lie a thousandth of a degree beyond their claim, that
// of choice a ten-thousandth part more; the horizon's bound of azimuth lines and Qibla is not scaled to metres. What sweeps the
// year leaves in deltaOpz where it ends.
void LineeOrarie(const Corsa &c, LineeAttese &linee);
void TracciaRetteOrarie(Corsa &c, const LineeAttese &linee);
void LineeItaliche(const Corsa &c, LineeAttese &linee);
void LineeBabiloniche(const Corsa &c, LineeAttese &linee);
void LineeTemporarie(const Corsa &c, LineeAttese &linee);
void TracciaOreItaliche(Corsa &c, const LineeAttese &linee);     // hours from sunset
void TracciaOreBabiloniche(Corsa &c, const LineeAttese &linee);  // hours from sunrise
void TracciaOreTemporarie(Corsa &c, const LineeAttese &linee);   // twelfths of the day
void LineeDiurne(const Corsa &c, LineeAttese &linee);
void TracciaLineeDiurne(Corsa &c, const LineeAttese &linee);
void TracciaEquinoziale(Corsa &c, const LineeAttese &linee);
void TracciaSustilare(Corsa &c, const LineeAttese &linee);
void TracciaStiloPolare(Corsa &c, const LineeAttese &linee);
void TracciaVerticaleCentro(Corsa &c, const LineeAttese &linee);
void LasciaLemniscata(Corsa &c);
void LineeLemniscata(const Corsa &c, LineeAttese &linee);
// Mean noon of the zone through a year of tenths of days, from SoleAllaLongitudine; its own test: beyond the horizontal and in
// the South the frame alone decides.
void TracciaLemniscata(Corsa &c, const LineeAttese &linee);
// The afternoon prayer: altitude h with cot h = 1 + tan(phi - delta), no Abs around the difference.
void TracciaAsr(Corsa &c, const LineeAttese &linee);
void LineeAzimutali(const Corsa &c, LineeAttese &linee);
void TracciaRetteAzimutali(Corsa &c, const LineeAttese &linee);

// Azimuth of the Qibla from the meridian, degrees, and the hour angle B at which the equinoctial Sun stands on it.
struct Qibla {
    Reale q, B;
};
[[nodiscard]] Qibla CalcolaQibla(const Corsa &c);
void TracciaQibla(Corsa &c, Valore B);
void TestiQibla(Corsa &c, Valore q);

}  // namespace ombrelia::direct
