// The analemma of the direct engine: the figure of mean noon at the meridian 15 degrees East, through a year of
// tenths of days.
#include "direct/diretta.h"
#include "direct/sbarramento.h"

namespace ombrelia::direct {

namespace {

// What both hemispheres prepare: substyle angle and style height kept in the shared variables, y0 overwritten with the
// distance from the foot to the equinoctial, and the longitude. oraFuso plays no part.
void prepara(Sessione &s) {
    Variabili &v = s.v;
    if (v.flagVerticale == 1 && v.flagTrasformato != 1) v.lon = v.lonEq;
    v.segnoDec = v.dec == 0 ? Valore(1) : Sgn(v.decR);
    if (v.lat == 0) {
        v.angSustilare = (PI / 2.0) * v.segnoDec;
        v.altStilo = PI / 2.0 - Abs(v.decR);
    } else {
        const Valore cl = cos(v.latR), cd = cos(v.decR);
        v.angSustilare = Atn(sin(v.decR) / tan(v.latR));
        v.altStilo = Atn(cl * cd / Sqr(1.0 - cl * cl * (cd * cd)));
    }
    v.y0 = v.gn * tan(v.altStilo);
    v.lonPiu15 = 15 + v.lon;
}

// angolo gives the hour angle of an equation of time, verso the sign of the declination.
template <typename Angolo, typename Passa>
void traccia(Sessione &s, std::string_view strato, Colore colore, double verso, Angolo angolo, Passa passa) {
    const Proiezione proietta(s.v);
    const Pretendi pretendi(s.tavolo, Specie::Analemma, 12);
    Catena catena(s.tavolo, strato);
    Reale x, y;
    for (const double m : Conteggio(-80, 280, (360.0 / 365.2422) * 0.1)) {
        const SoleMedio sole = SoleAllaLongitudine(PI * m / 180);
        proietta(SenCos(angolo(sole.Et)), std::tan(verso * sole.D), x, y);
        catena.punto(x, y, passa(x, y), colore);
    }
}

}  // namespace

void TracciaLemniscata(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    prepara(s);
    v.corrLong = PI * v.lonPiu15 / 180;
    // Not the chord test of the other lines: beyond the horizontal the frame alone decides.
    const bool conOrizzonte = v.incR < PI / 2.0;
    traccia(
        s, "Analemma", QB(10), 1, [&](double Et) { return -v.corrLong * v.segnoLat2 + 1 * Et; },
        [&](Valore x, Valore y) { return (!conOrizzonte || y <= v.yOriz) && cornice.contiene(x, y); });
}

void TracciaLemniscataSud(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    prepara(s);
    v.corrLong = -PI * v.lonPiu15 / 180;
    // No horizon test at all in the South.
    traccia(
        s, "Analemma Sud", v.incR < PI / 2.0 ? QB(10) : QB(2), -1, [&](double Et) { return v.corrLong + Et; },
        [&](Valore x, Valore y) { return cornice.contiene(x, y); });
}

}  // namespace ombrelia::direct
