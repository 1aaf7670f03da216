// One run of the analytic engine and the routines of its features.
#pragma once

#include "analytic/analitica.h"
#include "gnomonica/caratteristiche.h"
#include "gnomonica/longitudine.h"
#include "gnomonica/stilo.h"

namespace ombrelia::analytic {

struct Corsa {
    explicit Corsa(Sessione &sessione) : s(sessione), v(sessione.v), letto(sessione.in), cornice(CorniceDi(letto)) {}

    Sessione &s;         // what lines are drawn on
    const Variabili &v;  // as they stand; what a routine leaves there it leaves in a function Lascia...
    const Lettura letto;
    const Cornice cornice;
};

// What each feature leaves in the shared variables whoever draws it (Lascia...), its lines, and their drawing; see
// the table in analitica.cpp. gn and unita are taken as they stand; only the hour lines read the fields, and leave gn
// scaled.
//
// What for: the lines of a row on a northern wall, each bracketed by its claim. Given: the run and the angles that
// CalcolaAngoliAnalitici left. Gives: straight lines whole, points of conics by abscissa, in the unit of gn; origin at the foot,
// x to the right, y upward. Source: the day line as a conic about the substyle (Conica, RiferimentoSustilare), hours from sunset
// and sunrise as tangents of the conic of the declination at which the Sun neither rises nor sets. Faults: a root of a negative
// gives no point; elsewhere the last value stands. Departures: no inclination; a day line and that of the opposite declination
// are one conic, told apart by the side of the equinoctial.
void LasciaOre(Corsa &c);
void LineeOre(const Corsa &c, LineeAttese &linee);
void TracciaOreAstronomiche(Corsa &c, const LineeAttese &linee);
// Centre of the dial in the unit of gn, and the vertical through it; at |dec| = 90 the centre stays what it was.
struct Centro {
    Valore x, y;
    Valore sottostilo;  // its distance from the foot
};
[[nodiscard]] Centro CalcolaCentroAnalitico(const Variabili &v);
void LasciaCentro(Corsa &c);
void LineeCentro(const Corsa &c, LineeAttese &linee);
void TracciaCentro(Corsa &c, const LineeAttese &linee);
// Leaves in y0 the distance from foot to equinoctial.
void LasciaDiurne(Corsa &c);
void LineaScelta(const Corsa &c, LineeAttese &linee);  // of deltaOpz
void TracciaLineaDiurnaScelta(Corsa &c, const LineeAttese &linee);
void LineeDiurne(const Corsa &c, LineeAttese &linee);
void TracciaLineeDiurneAnalitiche(Corsa &c, const LineeAttese &linee);
void TracciaSustilareAnalitica(Corsa &c, const LineeAttese &linee);
void TracciaEquinozialeAnalitica(Corsa &c, const LineeAttese &linee);
void TracciaTriangoloAnalitico(Corsa &c, const LineeAttese &linee);
void TracciaOrizzontale(Corsa &c, const LineeAttese &linee);
void CalcolaSolstiziOrizzonte(Corsa &c, const LineeAttese &linee);  // meeting points of solstices and horizon, as text
void LasciaTangenti(Corsa &c);
void LineeItaliche(const Corsa &c, LineeAttese &linee);
void LineeBabiloniche(const Corsa &c, LineeAttese &linee);
void TracciaItalicheAnalitiche(Corsa &c, const LineeAttese &linee);
void TracciaBabilonicheAnalitiche(Corsa &c, const LineeAttese &linee);
void LasciaLemniscata(Corsa &c);
void TracciaLemniscataAnalitica(Corsa &c, const LineeAttese &linee);

}  // namespace ombrelia::analytic
