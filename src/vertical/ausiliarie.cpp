// What a dial of the vertical engine carries beyond hours and days: substyle, horizon, azimuth lines, prayer curves.
#include "gnomonica/qibla.h"
#include "gnomonica/spazzate.h"
#include "vertical/corsa.h"

namespace ombrelia::vertical {

void RileggiPiano(Corsa &c) {
    Variabili &v = c.s.v;
    v.lat = c.letto.lat;
    v.latR = PI * v.lat / 180;
    v.decGradi = c.letto.dec;
    v.decR = PI * v.decGradi / 180;
    v.inc = c.letto.inc;
    v.incR = PI * v.inc / 180;
    v.gn = c.letto.gn;
    v.decGradi = PiegaDeclinazione(v.latR, v.decGradi);
    c.rifaiPiano();
}

void TracciaSustilare(Corsa &c, const LineeAttese &linee) {
    const Conteggio anno(-OBLIQUITA, OBLIQUITA, 0.999 * c.v.passo);
    const Reale ps = OraSustilareMuro(c.piano());
    const AngoloOrario ora(ps);
    const Sfera sfera = c.sfera();
    const Pretendi pretendi(c.s.tavolo, Specie::OraSustilare);
    Direzione sole;
    Reale x, y;
    for (const double d : anno) {
        const Sfera::Giorno giorno = sfera.giorno(d);
        sole.A = Arco2(ora.sen, sfera.denominatore(ora, giorno));
        sfera.altezza(sole, ora, giorno);
        sfera.punto(sole, x, y);
        if (c.cornice.contiene(x, y)) c.s.tavolo.TracciaPunto(x, y, linee[0].colore);
    }
    LasciaFine(c.s.v, anno);
}

// The ordinate, metres; a plane that leans away or lies level keeps that of the line before. Its field shows it.
void LasciaOrizzonte(Corsa &c) {
    Variabili &v = c.s.v;
    if (v.iz_o < PI / 2) v.yOriz = OrizzonteOriginale(v, Sgn(v.latR));
    c.s.Scrivi(&DialInputs::txtOriz, TestoNumero(v.yOriz.numero()));
}
void TracciaOrizzonte(Corsa &c, const LineeAttese &linee) {
    const Valore y = c.v.yOriz;
    const double l = c.s.tavolo.ShiftX();
    const Pretendi pretendi(c.s.tavolo, Specie::Orizzonte);
    c.s.tavolo.TracciaLinea(-l, y, l, y, linee[0].colore);
}

void LineeAzimutali(const Corsa &c, LineeAttese &linee) {
    const bool sud = c.v.latR < 0;  // whose swept half of the plane looks north
    for (const double a : Conteggio(-90, 90, 15)) linee.push_back({a, !sud ? a : a < 0 ? a + 180 : a - 180, "", OLIVA});
}
void TracciaAzimutali(Corsa &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    const Piano &p = c.piano();
    if (p.phi == 0) return;
    const Reale limite = p.ti * p.gn;  // unscaled, as meant
    const Proiezione proietta(p);
    Reale beta, ht, Hr, x, y;
    for (const LineaAttesa &l : linee) {
        beta = Atn(p.sphi * tan(PI * l.parametro / 180));
        const Valore senBeta = sin(beta);
        const Pretendi pretendi(s.tavolo, Specie::Azimut, l.valore);
        for (const Declinazione &d : Anno()) {
            ht = ArcSin(d.tanD * senBeta / p.tphi);
            Hr = beta - ht;
            proietta.perParete(SenCos(Hr), d.tanD, x, y);
            if (!(y > limite) && c.cornice.contiene(x, y)) s.tavolo.TracciaPunto(x, y, l.colore);
        }
    }
    LasciaFine(s.v, Anno());
}

namespace {

// What the curve is measured against and the reports after a run find: the gnomon's tip seen from above in x0 and y0, the horizon
// of the plane as just read, both in the unit of the fields.
void lasciaAsr(Variabili &v, const Piano &p) {
    v.x0 = -p.gn * p.sg * p.ci;
    v.y0 = -p.gn * p.cg * p.ci;
    v.yOriz = p.gn * p.si / p.ci;  // unscaled, as meant
}

}  // namespace

void TracciaAsr(Corsa &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    const Piano &p = c.piano();
    lasciaAsr(s.v, p);
    const Variabili &v = c.v;
    const Conteggio anno(-OBLIQUITA_2345, OBLIQUITA_2345, 0.05);
    const Valore segno = SegnoLatitudine(v.latR);
    const bool nord = v.latR >= 0, orientale = Abs(v.decGradi) == 90;
    const Proiezione proietta(p);
    const Colore colore = linee[0].colore;
    const Pretendi pretendi(s.tavolo, Specie::Asr, linee[0].valore);
    Reale hA, Hr, x, y;
    for (const double d : anno) {
        const double dr = PI * d / 180;
        // Altitude at which a shadow is as long as its rod and the noon shadow together.
        hA = Atn(1 / (1 + tan(segno * (v.latR - dr))));
        Hr = segno * ArcCos((sin(hA) - p.sphi * std::sin(dr)) / (p.cphi * std::cos(dr)));
        proietta.perParete(SenCos(Hr), std::tan(dr), x, y);
        const bool dentro = c.cornice.contiene(x, y);
        if (nord && y <= v.yOriz && dentro) s.tavolo.TracciaPunto(x, y, colore);
        if (!nord && y >= v.yOriz && dentro) s.tavolo.TracciaPunto(-x, -y, colore);
        // On a plane that faces East or West every point comes once more, whatever the frame.
        if (orientale) s.tavolo.TracciaPunto(x * segno, y * segno, colore);
    }
    LasciaFine(s.v, anno);
}

namespace {

// The longitude as typed, from which the bearing counts, and where the sweep ends.
void lasciaQibla(Variabili &v, Valore lon) {
    v.lonCopia = lon;
    LasciaFine(v, AnnoFitto());
}

}  // namespace

void TracciaQibla(Corsa &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    lasciaQibla(s.v, c.letto.lon);
    const Variabili &v = c.v;
    const Piano &p = c.piano();
    const Valore qLat = PI * c.letto.qLat / 180;
    const Valore qd = PI * (c.letto.qLon - v.lonCopia) / 180;
    const Reale tq = TangenteQibla(p, qLat, qd);
    const Reale beta = Atn(p.sphi * tq);
    const Reale limite = p.ti * p.gn;  // unscaled, as meant
    const bool nord = v.latR >= 0, orientale = Abs(v.decGradi) == 90, equatore = v.latR == 0;
    const Proiezione proietta(p);
    const Valore senBeta = sin(beta);
    const Pretendi pretendi(s.tavolo, Specie::Qibla);
    Reale seno, ht, Hr, x, y;
    for (const auto &[d, tanD] : AnnoFitto()) {
        seno = equatore ? Valore(tanD) : tanD * senBeta / p.tphi;
        // A Sun that never stands on this azimuth leaves the hour angle of the day before, and its point is plotted.
        if (!(Abs(seno) > 1)) {
            ht = ArcSin(seno);
            Hr = (beta - ht) * v.segnoLatPiana;
        }
        proietta.perParete(SenCos(Hr), tanD, x, y);
        if (!c.cornice.contiene(x, y)) continue;
        if (orientale) s.tavolo.TracciaPunto(x, y, VERDE);
        if (nord && y <= limite) s.tavolo.TracciaPunto(x, y, linee[0].colore);
        if (!nord && y >= limite) s.tavolo.TracciaPunto(-x, -y, MAGENTA);
    }
}

}  // namespace ombrelia::vertical
