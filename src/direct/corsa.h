// One run of the direct engine: what was read, what follows from it, and the routines of its features.
#pragma once

#include <optional>
#include <vector>

#include "gnomonica/caratteristiche.h"
#include "gnomonica/catena.h"
#include "gnomonica/corsa.h"
#include "gnomonica/spazzate.h"

namespace ombrelia::direct {

// Half day arc over the year. Given: the original dial's latitude, radians. Gives: radians, one a declination of Anno(). Source:
// cos H = -tan phi tan delta (Smart, ch. II). Faults: in polar day and night the arc of the declination before stays; from the
// second line on the first declinations inherit the end of the line before.
class SemiArchi {
public:
    explicit SemiArchi(Valore latitudine);
    [[nodiscard]] const std::vector<double> &diLinea(bool prima) const { return prima || poi_.empty() ? prima_ : poi_; }

private:
    std::vector<double> prima_, poi_;  // poi_ only where it differs
};

struct Corsa : CorsaBase {
    using CorsaBase::CorsaBase;

    bool orizzontale = false;  // the original dial lies level
    GiornoDiOre giorno;
    std::optional<SemiArchi> archi;  // when a line first asks

    // The declination as typed; a level plane has none. Gives: degrees, 0 for a level plane. Given: the run. Source: by
    // definition. Faults: no value where the field has none.
    [[nodiscard]] Valore dec() const { return orizzontale ? Valore(0) : letto.dec; }
    [[nodiscard]] const SemiArchi &semiArchi() { return archi ? *archi : archi.emplace(v.lat_o); }
};

// Lines of the features (Linee...: counter, claim, layer, colour, in the order of drawing), and their drawing; see the table in
// diretta.cpp.
//
// All that draw. Given: the run; latitude, declination West positive and inclination in radians, lengths as typed. Gives: each
// line bracketed by its claim; chords or points that pass the horizon and the frame, metres, origin at the foot, x to the right,
// y upward. Source, where no other is named: Proiezione, swept by declination (hours) or by hour angle (days). Faults: a point
// that does not exist stays the one before; a chord to it may pass. What sweeps the year leaves in deltaOpz where it ends.

// True hours, halves and quarters; departure: the quarters run over hours and halves too; the solstices are 23.445 degrees.
void LineeOrarie(const Corsa &c, LineeAttese &linee);
void TracciaRetteOrarie(Corsa &c, const LineeAttese &linee);
// Hours from sunset, from sunrise, twelfths of the day. Given: the hours asked for and the fraction. Source: cos H = -tan phi tan
// delta for the half day arc (Smart, Textbook on Spherical Astronomy, ch. II; Rohr, Sundials), then Proiezione; departure: the
// original dial's latitude, and the difference of longitudes of an equivalent one. Faults: see SemiArchi.
void LineeItaliche(const Corsa &c, LineeAttese &linee);
void LineeBabiloniche(const Corsa &c, LineeAttese &linee);
void LineeTemporarie(const Corsa &c, LineeAttese &linee);
void TracciaOreItaliche(Corsa &c, const LineeAttese &linee);
void TracciaOreBabiloniche(Corsa &c, const LineeAttese &linee);
void TracciaOreTemporarie(Corsa &c, const LineeAttese &linee);
// Day lines; departure: a thousandth of a degree beyond their claim, that of choice a ten-thousandth part more; the branch of the
// conic is told by the side of the equinoctial.
void LineeDiurne(const Corsa &c, LineeAttese &linee);
void TracciaLineeDiurne(Corsa &c, const LineeAttese &linee);
// The equinoctial; departure: without the terms of the declination.
void TracciaEquinoziale(Corsa &c, const LineeAttese &linee);
// Hour line of the substyle. Source: Piano::oraSustilare, Proiezione; departure: from -50 to 50 degrees of declination, so as to
// reach the centre.
void TracciaSustilare(Corsa &c, const LineeAttese &linee);
// The style's triangle folded into the plane: centre, folded tip, foot. Source: elementary geometry; departure: no correction of
// the substyle's quadrant.
void TracciaStiloPolare(Corsa &c, const LineeAttese &linee);
// Line of greatest slope through the centre, across the sheet. Source: elementary geometry.
void TracciaVerticaleCentro(Corsa &c, const LineeAttese &linee);
// Mean noon of the zone through a year of tenths of days. Source: SoleAllaLongitudine, Proiezione; departure: beyond the
// horizontal and in the South the frame alone decides.
void LasciaLemniscata(Corsa &c);
void LineeLemniscata(const Corsa &c, LineeAttese &linee);
void TracciaLemniscata(Corsa &c, const LineeAttese &linee);
// The afternoon prayer, as points. Source: cot h = 1 + tan(phi - delta), the shadow as long as rod and noon shadow (Savoie, La
// gnomonique, Islamic prayers); departure: no absolute value about the difference; on a level plane points come twice.
void TracciaAsr(Corsa &c, const LineeAttese &linee);
// Equal azimuths, as points. Given: degrees from South, West positive. Source: Napier's rule in the triangle of pole, zenith and
// Sun (Smart, ch. I), Proiezione; departure: the horizon's bound is not scaled to metres; a level plane is worked as the wall it
// equals.
void LineeAzimutali(const Corsa &c, LineeAttese &linee);
void TracciaRetteAzimutali(Corsa &c, const LineeAttese &linee);

// Bearing of the Qibla. Given: its place and the site's, degrees. Gives: azimuth from the meridian, degrees, and the hour angle B
// at which the equinoctial Sun stands on it, radians. Source: the four-parts formula (Smart, ch. I). Faults: 0 stands.
struct Qibla {
    Reale q, B;
};
[[nodiscard]] Qibla CalcolaQibla(const Corsa &c);
// The moments at which the Sun stands there, as points, and as chords on a level plane; and the bearing as text. Source: as
// azimuths; departure: the horizon's bound is not scaled to metres. Faults: a Sun that never stands there gives no point.
void TracciaQibla(Corsa &c, Valore B);
void TestiQibla(Corsa &c, Valore q);

}  // namespace ombrelia::direct
