// The analemma of the direct engine: the figure of mean noon at the zone's meridian, through a year of tenths of days.
#include "direct/corsa.h"
#include "gnomonica/angoli_parete.h"
#include "gnomonica/longitudine.h"

namespace ombrelia::direct {

// What both hemispheres leave behind, whoever draws: substyle angle and style height of the wall, y0 overwritten with the
// distance from the foot to the equinoctial, and the longitude. oraFuso plays no part.
void LasciaLemniscata(Corsa &c) {
    Variabili &v = c.s.v;
    if (v.flagVerticale == 1 && v.flagTrasformato != 1) v.lon = v.lonEq;
    LasciaStiloParete(v, c.piano());
    v.y0 = DistanzaEquinoziale(v.gn, v.altStilo);
    LasciaDalMeridiano(v);
    v.corrLong = v.segnoLat == -1 ? -CorrezioneLongitudine(v) : CorrezioneLongitudine(v);
}

void LineeLemniscata(const Corsa &c, LineeAttese &linee) {
    const Variabili &v = c.v;
    const bool pendente = v.incR < PI / 2.0;
    if (v.segnoLat == -1) linee.push_back({0, 12, "Analemma Sud", pendente ? VERDE : VERDE_SCURO});
    else linee.push_back({0, 12, "Analemma", VERDE});
}

void TracciaLemniscata(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    const bool sud = v.segnoLat == -1;
    // Not the chord test of the other lines: beyond the horizontal the frame alone decides, in the South always.
    const bool conOrizzonte = !sud && v.incR < PI / 2.0;
    const Valore scarto = sud ? Valore(v.corrLong) : -v.corrLong * v.segnoLat2;
    const Proiezione proietta(c.piano());
    for (const LineaAttesa &l : linee) {
        const Pretendi pretendi(c.s.tavolo, Specie::Analemma, l.valore);
        Catena catena(c.s.tavolo, l.strato);
        Reale x, y;
        for (const Mezzodi &m : AnnoMedio()) {
            proietta(SenCos(scarto + m.Et), sud ? -m.tanD : m.tanD, x, y);
            catena.punto(x, y, (!conOrizzonte || y <= v.yOriz) && c.cornice.contiene(x, y), l.colore);
        }
    }
}

}  // namespace ombrelia::direct
