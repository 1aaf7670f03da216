// The sweeps that lines share, as tables made once a process: what a table holds has the bits that each point's own
// computing would have.
#pragma once

#include <span>
#include <vector>

#include "core/conteggio.h"
#include "gnomonica/declinazioni.h"
#include "gnomonica/proiezione.h"

namespace ombrelia {

// All sweeps. Given: no more than what their names fix. Gives: the points in the order of drawing, made at the first call, the
// same for the life of the process. Source: the program's own ranges, counted by Conteggio, and the standard library's functions;
// of mean noons SoleAllaLongitudine. Faults: none.

// A declination of a sweep, degrees, and its tangent.
struct Declinazione {
    double d, tanD;
};
// -OBLIQUITA to OBLIQUITA by 0.05 degrees: the year as hour lines, seasonal hours, Asr and azimuth lines take it.
[[nodiscard]] const std::vector<Declinazione> &Anno();
// Sine and cosine of the same declinations, in their order.
[[nodiscard]] const std::vector<SenCos> &AnnoSenCos();
// The year by 0.005 degrees, as the Qibla's curve takes it.
[[nodiscard]] const std::vector<Declinazione> &AnnoFitto();

// Hour angles of a day line: -120 to 120 by 0.1 degrees, shifted by scarto (radians). No time correction: a day line is
// the same in every zone. Given: the shift. Gives: sines and cosines, kept until another shift is asked for.
class GiornoDiOre {
public:
    [[nodiscard]] const std::vector<SenCos> &con(Valore scarto);

private:
    std::vector<SenCos> ore_;
    double scarto_ = 0;
};

// The Sun at a mean noon: its mean longitude from the spring equinox in degrees, functions of its declination, and the
// equation of time as hour angle, radians.
struct Mezzodi {
    double gradi, tanD, senD, cosD, Et;
};
// -80 to 280 degrees by a tenth of a day.
[[nodiscard]] const std::vector<Mezzodi> &AnnoMedio();
// -80 to 360 degrees by a day, and by two days.
[[nodiscard]] const std::vector<Mezzodi> &AnnoMedioGiorni();
[[nodiscard]] const std::vector<Mezzodi> &AnnoMedioGiorniAlterni();

// The running declination, degrees, stays in deltaOpz for whoever reads it next: the reports, the Sun's point, a line of choice
// without a value. Left by what sweeps declinations: the last of them; a sweep that takes no step leaves none.
inline void LasciaDeclinazione(Variabili &v, Valore gradi) { v.deltaOpz = gradi; }
inline void LasciaFine(Variabili &v, const std::vector<Declinazione> &anno) { LasciaDeclinazione(v, anno.back().d); }
inline void LasciaFine(Variabili &v, const Conteggio &anno) {
    Valore ultima = v.deltaOpz;
    for (const double d : anno) ultima = d;
    LasciaDeclinazione(v, ultima);
}

}  // namespace ombrelia
