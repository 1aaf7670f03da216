// One run of the vertical engine: what was read, and the routines of its features.
#pragma once

#include <vector>

#include "gnomonica/caratteristiche.h"
#include "gnomonica/corsa.h"
#include "vertical/sfera.h"

namespace ombrelia::vertical {

// A declination of the year on which the Sun rises, with its half day arc, radians.
struct Giornata : Sfera::Giorno {
    double H0;
};

struct Corsa : CorsaBase {
    using CorsaBase::CorsaBase;

    // Of the plane as it stands.
    [[nodiscard]] Sfera sfera() const { return Sfera(piano()); }
    // The year of the seasonal hours, when a line first asks; the wall is the same for the three of them.
    std::vector<Giornata> anno;
    double ultima = 0;  // its last declination, degrees
};

// What each feature leaves in the shared variables whoever draws it (Lascia...), its lines (Linee..., Numeri...: counter, claim,
// layer, colour, in the order of drawing), and their drawing; see the table in piana.cpp.
//
// All that draw. Given: the run; latitude with its sign and declination of the wall in radians, West positive, lengths as typed.
// Gives: each line bracketed by its claim; chords, points or numerals below the horizon and inside the frame, metres, origin at
// the foot, x to the right, y upward, so that a Sun above the horizon has y < 0. Faults: a statement without a value keeps the
// last one, from point to point and, where said, from line to line.

// True hours, their halves and quarters. Given: hour angles by fifteen degrees about noon, in zone time with its box. Source:
// Sfera; departure: the year by whole degrees of declination, its last step cut to the solstice.
void LasciaOre(Corsa &c);
void LineeOre(const Corsa &c, LineeAttese &linee);
void TracciaOreAstro(Corsa &c, const LineeAttese &linee);
// A numeral for each hour from 6 to 18 on the day line of txtDelta: Roman with ckRomani set, else Arabic. Source: Sfera;
// departure: the azimuth is mended by half a turn always the same way.
void LasciaNumeri(Corsa &c);
void LineeNumeri(const Corsa &c, LineeAttese &linee);
void PosizionaNumeriOrari(Corsa &c, const LineeAttese &linee);

// Day lines. Given: declinations in degrees. Source: Sfera, and the hour angles between which the Sun stands before the wall by
// the style's triangle (Rohr, Sundials); departure: declinations not symmetrical, whole degrees of hour angle.
void LineeDiurne(const Corsa &c, LineeAttese &linee);
void LineaOpzionale(const Corsa &c, LineeAttese &linee);
void TracciaDiurne(Corsa &c, const LineeAttese &linee);
// The equinoctial of a wall that declines. Source: Sfera at declination 0; departure: the nadir counts as the zenith.
void LasciaEquinoziale(Corsa &c);
void TracciaEquinoziale(Corsa &c, const LineeAttese &linee);
// The equinoctial of a plane of declination 0, as points. Source: Sfera; departure: the ordinate has the other sign, so that a
// northern wall shows none.
void PuntiEquinozialeDecZero(Corsa &c, const LineeAttese &linee);

// Hours from sunset (from half an hour later with ckFunzione), from sunrise, and twelfths of the day, with the numbers along
// their summer solstice. Given: hours by the fraction in force. Source: cos H = -tan phi tan delta for the half day arc (Smart,
// ch. II; Rohr, Sundials, Italian, Babylonian and temporary hours), Sfera; departure: the quadrant is told by the angles
// themselves, not their sines. Faults: a point behind the wall leaves what a line before left in its place, and the next chord
// joins that.
void PreparaItaliche(Corsa &c);
void LasciaStagionali(Corsa &c);
void LineeItaliche(const Corsa &c, LineeAttese &linee);
void LineeBabiloniche(const Corsa &c, LineeAttese &linee);
void LineeTemporarie(const Corsa &c, LineeAttese &linee);
void TracciaItaliche(Corsa &c, const LineeAttese &linee);
void TracciaBabiloniche(Corsa &c, const LineeAttese &linee);
void TracciaTemporarie(Corsa &c, const LineeAttese &linee);
void LasciaEtichette(Corsa &c);
void NumeriItaliche(const Corsa &c, LineeAttese &linee);
void NumeriBabiloniche(const Corsa &c, LineeAttese &linee);
void NumeriTemporarie(const Corsa &c, LineeAttese &linee);
void EtichetteItaliche(Corsa &c, const LineeAttese &linee);
void EtichetteBabiloniche(Corsa &c, const LineeAttese &linee);
void EtichetteTemporarie(Corsa &c, const LineeAttese &linee);

// The figure of mean noon. Given: the mean Sun of every day (AnnoMedioGiorni), the longitude's angle of time. Source: Sfera's
// triangle written out for the plane's sign; departure: days are whole numbers, of two samples on one the later stands.
void LasciaLemniscata(Corsa &c);
void TracciaLemniscata(Corsa &c, const LineeAttese &linee);
// With ckFunzione: the marks of the days of the signs across it. Given: extremes of the equation of time on those days, minutes.
// Source: a table of the program's own; departure: four chords a mark.
void LineeTacche(const Corsa &c, LineeAttese &linee);
void TracciaTacche(Corsa &c, const LineeAttese &linee);
// With ckFunzione: the straight noon line from solstice to solstice. Source: Sfera; departure: drawn only where its lower end
// lies beyond the horizon, which is seldom.
void LasciaMezzogiorno(Corsa &c);
void RettaMezzogiorno(Corsa &c, const LineeAttese &linee);

// Hour line of the substyle, as points. Source: OraSustilareMuro, Sfera; departure: the azimuth in 0..CERCHIO by Arco2.
void TracciaSustilare(Corsa &c, const LineeAttese &linee);
// The horizon, across the sheet. Source: elementary geometry (y = gn tan i of the original plane).
void LasciaOrizzonte(Corsa &c);
void TracciaOrizzonte(Corsa &c, const LineeAttese &linee);
// The plane as the azimuth and prayer lines take it, read again: once more from the fields.
void RileggiPiano(Corsa &c);
// Equal azimuths, as points. Given: degrees from South, West positive. Source: Napier's rule in the triangle of pole, zenith and
// Sun for the hour angle at which a Sun of each declination stands there (Smart, ch. I), Proiezione; departure: the horizon's
// bound is not scaled to metres. Faults: an azimuth that the Sun never has keeps the hour angle before it.
void LineeAzimutali(const Corsa &c, LineeAttese &linee);
void TracciaAzimutali(Corsa &c, const LineeAttese &linee);
// The afternoon prayer, as points. Source: cot h = 1 + tan(phi - delta), the shadow as long as rod and noon shadow (Savoie, La
// gnomonique, Islamic prayers), Proiezione; departure: no absolute value about the difference; on walls that face East or West
// every point comes once more.
void TracciaAsr(Corsa &c, const LineeAttese &linee);
// The moments at which the Sun stands in the bearing of the Qibla, as points. Given: the place of the Qibla, degrees. Source: the
// four-parts formula of the bearing (Smart, ch. I), then as azimuths. Faults: a Sun that never stands there keeps the hour angle
// of the day before, and its point is plotted.
void TracciaQibla(Corsa &c, const LineeAttese &linee);
// The triangle of the polar style lengthened by txtSUBSTYLE, and its measures as text. Source: elementary geometry of the style's
// triangle; departure: the elevation's sign is turned on a wall that looks to the equator.
void LineeTriangolo(const Corsa &c, LineeAttese &linee);
void TracciaTriangoloStilo(Corsa &c, const LineeAttese &linee);
void TestiTriangolo(Corsa &c, const LineeAttese &linee);

}  // namespace ombrelia::vertical
