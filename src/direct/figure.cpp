// The fixed figures of the dial: triangle of the style, hour line of the substyle, azimuth lines.
#include "direct/corsa.h"
#include "gnomonica/centro.h"

namespace ombrelia::direct {

namespace {

// The signs with which the style was drawn: the zodiac and the reports take them.
void lasciaSegni(Variabili &v) {
    v.segnoLat2 = 1;
    v.segnoDec = SegnoDeclinazione(v.dec, v.decR);
}

}  // namespace

void TracciaStiloPolare(Corsa &c, const LineeAttese &linee) {
    lasciaSegni(c.s.v);
    const Variabili &v = c.v;
    Tavolo &t = c.s.tavolo;
    const Piano &p = c.piano();
    // No quadrant correction: the substyle is read in the right half-circle of the arc tangent.
    Reale S;
    if (v.latR == 0 && v.incR == 0) S = (PI / 2.0) * v.segnoDec;
    else S = Atn(p.tanSustilare());
    // The tip of the gnomon folded into the plane.
    const PostoCentro centro = CentroScalato(p);
    const Reale xc = centro.x, yc = centro.y;
    const Reale px = v.gn * cos(-S) * v.unita;
    const Reale py = v.gn * sin(-S) * v.unita;

    const Pretendi pretendi(t, Specie::Stilo);
    t.TracciaPunto(xc, yc, ROSSO);
    t.TracciaPunto(px, py, ROSSO);
    t.TracciaLinea(px, py, xc, yc, linee[0].colore, linee[0].strato);
    t.TracciaLinea(px, py, 0, PIEDE, linee[1].colore, linee[1].strato);
    t.TracciaLinea(xc, yc, 0, PIEDE, linee[2].colore, linee[2].strato);
}

void TracciaVerticaleCentro(Corsa &c, const LineeAttese &linee) {
    Tavolo &t = c.s.tavolo;
    const Reale xc = CentroScalato(c.piano()).x;
    const Pretendi pretendi(t, Specie::Mezzogiorno);
    t.TracciaLinea(xc, t.ShiftY(), xc, -2 * t.ShiftY(), linee[0].colore);
}

void TracciaSustilare(Corsa &c, const LineeAttese &linee) {
    const Conteggio anno(-50, 50, 0.05);  // past the solstices, so as to reach the centre
    const Reale t = c.piano().oraSustilare();
    const SenCos angolo(t);
    const Proiezione proietta(c.piano());
    const Pretendi pretendi(c.s.tavolo, Specie::OraSustilare);
    Catena catena(c.s.tavolo, linee[0].strato);
    Reale x, y;
    for (const double d : anno) {
        proietta(angolo, std::tan(PI * d / 180), x, y);
        catena.punto(x, y, c.cornice.contiene(x, y), linee[0].colore);
    }
    LasciaFine(c.s.v, anno);
}

void LineeAzimutali(const Corsa &c, LineeAttese &linee) {
    // The azimuth that the mirror of north and south makes of one.
    const bool australe = c.v.segnoLat == -1;
    for (const double A : Conteggio(-90, 90, 15)) linee.push_back({A, !australe ? A : A < 0 ? -180 - A : 180 - A, "", OLIVA});
}

namespace {

// The plane read again; a horizontal one is worked as the wall that it equals, and stays that wall. Whether it is.
bool rileggiPianoAzimut(Corsa &c) {
    Variabili &v = c.s.v;
    v.latR = PI * c.letto.lat / 180.0;
    Reale G = c.dec();
    if (v.latR < 0) G = -(180 + G);
    v.decR = PI * G / 180;
    v.gn = c.letto.gn;
    const bool orizzontale = v.incR == PI / 2.0;
    if (orizzontale) {
        v.decR = PI;
        v.latR = (PI / 2.0) - v.latR;
        v.incR = 0;
    }
    c.rifaiPiano();
    return orizzontale;
}

}  // namespace

void TracciaRetteAzimutali(Corsa &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    const bool orizzontale = rileggiPianoAzimut(c);
    const Piano &p = c.piano();
    const Reale limite = orizzontale ? Valore(10) : p.gn * p.ti;  // unscaled, as meant
    const Proiezione proietta(p);
    Reale t, x, y;
    for (const LineaAttesa &l : linee) {
        const Pretendi pretendi(s.tavolo, Specie::Azimut, l.valore);
        const Reale B = Atn(p.sphi * tan(PI * l.parametro / 180));
        const Valore senB = sin(B);
        for (const Declinazione &d : Anno()) {
            const Reale r = d.tanD * senB / p.tphi;
            t = B - ArcSin(r);
            proietta(SenCos(t), d.tanD, x, y);
            if (y <= limite && c.cornice.contiene(x, y)) s.tavolo.TracciaPunto(x, y, l.colore);
        }
    }
    LasciaFine(s.v, Anno());
}

}  // namespace ombrelia::direct
