// One run of the vertical engine: what was read, and the routines of its features.
#pragma once

#include <vector>

#include "gnomonica/caratteristiche.h"
#include "vertical/sfera.h"

namespace ombrelia::vertical {

// A declination of the year on which the Sun rises, with its half day arc, radians.
struct Giornata : Sfera::Giorno {
    double H0;
};

struct Corsa {
    explicit Corsa(Sessione &sessione) : s(sessione), v(sessione.v), letto(sessione.in), cornice(CorniceDi(letto)) {}

    Sessione &s;         // what lines are drawn on
    const Variabili &v;  // the plane as it stands; what a routine leaves there it leaves in a function Lascia...
    const Lettura letto;
    const Cornice cornice;
    // The year of the seasonal hours, when a line first asks; the wall is the same for the three of them.
    std::vector<Giornata> anno;
    double ultima = 0;  // its last declination, degrees
};

// What each feature leaves in the shared variables whoever draws it (Lascia...), its lines, and their drawing; see the
// table in piana.cpp.
//
// What for: the lines of a row on a wall, each bracketed by its claim. Given: the run; latitude with its sign, declination,
// radians; lengths as typed. Gives: chords or points below the horizon and inside the frame, metres, origin at the foot, x to the
// right, y upward: a Sun above the horizon has y < 0. Source: altitude and azimuth of the Sun by the spherical triangle of pole,
// zenith and Sun (Sfera), laid on the wall; azimuth and prayer lines by Proiezione. Faults: a statement without a value keeps the
// last one, from line to line too. Departures stand beside the rows and routines that make them.
void LasciaOre(Corsa &c);
void LineeOre(const Corsa &c, LineeAttese &linee);
void TracciaOreAstro(Corsa &c, const LineeAttese &linee);
// A numeral for each hour from 6 to 18 on the day line of txtDelta: Roman with ckRomani set, else Arabic.
void LasciaNumeri(Corsa &c);
void LineeNumeri(const Corsa &c, LineeAttese &linee);
void PosizionaNumeriOrari(Corsa &c, const LineeAttese &linee);

void LineeDiurne(const Corsa &c, LineeAttese &linee);
void LineaOpzionale(const Corsa &c, LineeAttese &linee);
void TracciaDiurne(Corsa &c, const LineeAttese &linee);
void LasciaEquinoziale(Corsa &c);
void TracciaEquinoziale(Corsa &c, const LineeAttese &linee);
// The equinoctial of a plane of declination 0, as points.
void PuntiEquinozialeDecZero(Corsa &c, const LineeAttese &linee);

// Hours from sunset (from half an hour later with ckFunzione), from sunrise, and twelfths of the day.
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

// The figure of mean noon, and what ckFunzione adds: the day marks and the straight noon line.
void LasciaLemniscata(Corsa &c);
void TracciaLemniscata(Corsa &c, const LineeAttese &linee);
void LineeTacche(const Corsa &c, LineeAttese &linee);
void TracciaTacche(Corsa &c, const LineeAttese &linee);
void LasciaMezzogiorno(Corsa &c);
void RettaMezzogiorno(Corsa &c, const LineeAttese &linee);

void TracciaSustilare(Corsa &c, const LineeAttese &linee);
void LasciaOrizzonte(Corsa &c);
void TracciaOrizzonte(Corsa &c, const LineeAttese &linee);
void LineeAzimutali(const Corsa &c, LineeAttese &linee);
void TracciaAzimutali(Corsa &c, const LineeAttese &linee);
void TracciaAsr(Corsa &c, const LineeAttese &linee);
void TracciaQibla(Corsa &c, const LineeAttese &linee);
// The plane as the azimuth and prayer lines take it, read again: once more from the fields.
void RileggiPiano(Corsa &c);
// The triangle of the polar style lengthened by txtSUBSTYLE, and its measures as text.
void LineeTriangolo(const Corsa &c, LineeAttese &linee);
void TracciaTriangoloStilo(Corsa &c, const LineeAttese &linee);
void TestiTriangolo(Corsa &c, const LineeAttese &linee);

}  // namespace ombrelia::vertical
