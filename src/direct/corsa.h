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
    explicit Corsa(Sessione &sessione) : s(sessione), letto(sessione.in), cornice(CorniceDi(letto)) {}

    Sessione &s;
    Lettura letto;
    Cornice cornice;
    bool orizzontale = false;    // the original dial lies level
    std::optional<Piano> piano;  // of the shared variables, made anew by whatever changes them
    GiornoDiOre giorno;
    std::optional<SemiArchi> archi;  // when a line first asks

    void rifaiPiano() { piano.emplace(s.v); }
    [[nodiscard]] const SemiArchi &semiArchi() { return archi ? *archi : archi.emplace(s.v.lat_o); }
};

// Lines of the features, and their drawing; see the table in diretta.cpp.
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
void PreparaLemniscata(Corsa &c);
void LineeLemniscata(const Corsa &c, LineeAttese &linee);
void TracciaLemniscata(Corsa &c, const LineeAttese &linee);
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
