// One run of the analytic engine and the routines of its features.
#pragma once

#include "analytic/analitica.h"
#include "gnomonica/caratteristiche.h"
#include "gnomonica/corsa.h"
#include "gnomonica/longitudine.h"

namespace ombrelia::analytic {

struct Corsa : CorsaBase {
    Corsa(Sessione &sessione, const Lettura &lettura) : CorsaBase(sessione, lettura), stilo_(v) {}

    // Style and substyle of the shared variables, of which conics and straight lines are made: with the plane, made anew by
    // whoever changes them there.
    [[nodiscard]] const Stilo &stilo() const { return stilo_; }
    void rifaiPiano() {
        CorsaBase::rifaiPiano();
        stilo_ = Stilo(v);
    }
    void verifica() const {
        CorsaBase::verifica();
        Certo(stilo_.di(v), "the style of a run is not that of its variables");
    }

private:
    Stilo stilo_;
};

// What each feature leaves in the shared variables whoever draws it (Lascia...), its lines (Linee...: counter, claim, layer,
// colour, in the order of drawing), and their drawing; see the table in analitica.cpp. gn and unita are taken as they stand; only
// the hour lines read the fields, and leave gn scaled.
//
// All that draw. Given: the run and the angles that CalcolaAngoliAnalitici left, radians. Gives: each line bracketed by its
// claim; straight lines whole, points of conics by abscissa, in the unit of gn; origin at the foot, x to the right, y upward.
// Faults: a root of a negative gives no point; elsewhere the last value stands. Departure: no inclination.

// True hours, as lines from y = 2 to y = -2. Source: where an hour plane cuts the equinoctial, through the centre (Savoie, La
// gnomonique; elementary geometry); departure: at the equator, east and west walls have theirs from solstice to solstice besides.
void LasciaOre(Corsa &c);
void LineeOre(const Corsa &c, LineeAttese &linee);
void TracciaOreAstronomiche(Corsa &c, const LineeAttese &linee);
// Centre of the dial, and the vertical through it. Gives: the unit of gn. Source: elementary geometry of the style's triangle.
// Faults: where |dec| is 90 the centre stays what it was.
void LasciaCentro(Corsa &c);
void LineeCentro(const Corsa &c, LineeAttese &linee);
void TracciaCentro(Corsa &c, const LineeAttese &linee);
// Day lines, as points. Given: declinations in degrees. Source: Conica, OrdinateConica; departure: a day line and that of the
// opposite declination are one conic, told apart by the side of the equinoctial; the solstice is 23.45 degrees. Faults: on the
// equinox the cotangent's square stays 0.
void LasciaDiurne(Corsa &c);
void LineaScelta(const Corsa &c, LineeAttese &linee);  // of deltaOpz
void TracciaLineaDiurnaScelta(Corsa &c, const LineeAttese &linee);
void LineeDiurne(const Corsa &c, LineeAttese &linee);
void TracciaLineeDiurneAnalitiche(Corsa &c, const LineeAttese &linee);
// Substyle and equinoctial, as points. Source: elementary geometry (two lines square to each other).
void TracciaSustilareAnalitica(Corsa &c, const LineeAttese &linee);
void TracciaEquinozialeAnalitica(Corsa &c, const LineeAttese &linee);
// The style's triangle laid flat, and the horizontal through the foot. Source: elementary geometry.
void TracciaTriangoloAnalitico(Corsa &c, const LineeAttese &linee);
void TracciaOrizzontale(Corsa &c, const LineeAttese &linee);
// Meeting points of solstices and horizon, as text. Source: AscisseConica; departure: the horizon's ordinate as typed, unscaled.
// Faults: no meeting reads 0.
void CalcolaSolstiziOrizzonte(Corsa &c, const LineeAttese &linee);
// Hours from sunset and sunrise, as points. Source: they are tangents to the conic of the declination at which the Sun neither
// rises nor sets (Savoie, La gnomonique, Italian and Babylonian hours), which is drawn too. Faults: at the pole the latitude
// stays 0.
void LasciaTangenti(Corsa &c);
void LineeItaliche(const Corsa &c, LineeAttese &linee);
void LineeBabiloniche(const Corsa &c, LineeAttese &linee);
void TracciaItalicheAnalitiche(Corsa &c, const LineeAttese &linee);
void TracciaBabilonicheAnalitiche(Corsa &c, const LineeAttese &linee);
// Mean noon of the zone, as points every other day. Source: each day's conic met with the hour line of its mean noon
// (SoleAllaLongitudine); departure: due south the latitude is left out of the formula.
void LasciaLemniscata(Corsa &c);
void TracciaLemniscataAnalitica(Corsa &c, const LineeAttese &linee);

}  // namespace ombrelia::analytic
