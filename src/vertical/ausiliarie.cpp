// What a dial of the vertical engine carries beyond hours and days: substyle, horizon, azimuth lines, prayer curves.
#include "core/conteggio.h"
#include "gnomonica/catena.h"
#include "gnomonica/spazzate.h"
#include "vertical/piana.h"
#include "vertical/sfera.h"

namespace ombrelia::vertical {

namespace {

// The plane as the azimuth and prayer lines read it: once more from the fields.
void rileggiPiano(Sessione &s) {
    Variabili &v = s.v;
    v.lat = Val(s.in.txtLAT);
    v.latR = PI * v.lat / 180;
    v.decGradi = Val(s.in.txtDec);
    v.decR = PI * v.decGradi / 180;
    v.inc = Val(s.in.txtInc);
    v.incR = PI * v.inc / 180;
    v.gn = Val(s.in.TxtStilo);
    PiegaDeclinazione(v);
}

}  // namespace

void TracciaSustilare(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    const Reale ps = v.latR == 0 ? Valore(PI / 2) : Arco2(tan(v.decR), sin(v.latR));
    const Orario ora(ps);
    Sfera sfera(v);
    const Pretendi pretendi(s.tavolo, Specie::OraSustilare);
    Reale x, y;
    for (const double d : Conteggio(-23.445, 23.445, 0.999 * v.passo)) {
        v.deltaOpz = d;
        const Sfera::Giorno giorno = sfera.giorno(d);
        sfera.A = Arco2(ora.sen, sfera.denominatore(ora, giorno));
        sfera.altezza(ora, giorno);
        sfera.punto(x, y);
        if (cornice.contiene(x, y)) s.tavolo.xPset(x, -y, QB(9));
    }
}

void TracciaOrizzonte(Sessione &s) {
    Variabili &v = s.v;
    (void)LeggiCornice(s);
    if (v.iz_o < PI / 2) v.yOriz = OrdinataOrizzonte(v, Sgn(v.latR));
    s.Scrivi(&DialInputs::txtOriz, TestoNumero(v.yOriz.numero()));
    const Pretendi pretendi(s.tavolo, Specie::Orizzonte);
    const double l = s.tavolo.ShiftX();
    s.tavolo.xLine(-l, -v.yOriz, l, -v.yOriz, QB(2));
}

void TracciaAzimutali(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    rileggiPiano(s);
    if (v.latR == 0) return;
    const Reale limite = tan(v.incR) * v.gn;  // unscaled, as meant
    const Proiezione proietta(v);
    const Valore senLat = sin(v.latR), tanLat = tan(v.latR);
    Reale beta, ht, Hr, x, y;
    for (const double a : Conteggio(-90, 90, 15)) {
        beta = Atn(senLat * tan(PI * a / 180));
        const Valore senBeta = sin(beta);
        const Pretendi pretendi(s.tavolo, Specie::Azimut, v.latR < 0 ? a - (a < 0 ? -180 : 180) : a);
        for (const Declinazione &d : Anno()) {
            ht = ArcSin(d.tanD * senBeta / tanLat);
            Hr = beta - ht;
            proietta.perParete(SenCos(Hr), d.tanD, x, y);
            if (!(y > limite) && cornice.contiene(x, y)) s.tavolo.xPset(x, -y, QB(6));
        }
    }
    v.deltaOpz = Anno().back().d;
}

void TracciaAsr(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    rileggiPiano(s);
    v.x0 = -v.gn * sin(v.decR) * cos(v.incR);
    v.y0 = -v.gn * cos(v.decR) * cos(v.incR);
    v.yOriz = v.gn * sin(v.incR) / cos(v.incR);  // unscaled, as meant
    const Valore segno = v.latR == 0 ? Valore(1) : Sgn(v.latR);
    const bool nord = v.latR >= 0, orientale = Abs(v.decGradi) == 90;
    const Proiezione proietta(v);
    const Valore senLat = sin(v.latR), cosLat = cos(v.latR);
    const Pretendi pretendi(s.tavolo, Specie::Asr, 1);
    constexpr Colore VERDE = Rgb(0, 193, 97);
    Reale hA, Hr, x, y;
    for (const double d : Conteggio(-23.45, 23.45, 0.05)) {
        v.deltaOpz = d;
        const double dr = PI * d / 180;
        // Altitude at which a shadow is as long as its rod and the noon shadow together.
        hA = Atn(1 / (1 + tan(segno * (v.latR - dr))));
        Hr = segno * ArcCos((sin(hA) - senLat * std::sin(dr)) / (cosLat * std::cos(dr)));
        proietta.perParete(SenCos(Hr), std::tan(dr), x, y);
        const bool dentro = cornice.contiene(x, y);
        if (nord && y <= v.yOriz && dentro) s.tavolo.xPset(x, -y, VERDE);
        if (!nord && y >= v.yOriz && dentro) s.tavolo.xPset(-x, y, VERDE);
        // On a plane that faces East or West every point comes once more, whatever the frame.
        if (orientale) s.tavolo.xPset(x * segno, -y * segno, VERDE);
    }
}

// The curve was once plotted in a second pass of another colour, of which nothing was to be seen; there is one pass.
void TracciaQibla(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    rileggiPiano(s);
    v.lonCopia = Val(s.in.txtLonG);
    const Valore qLat = PI * Val(s.in.txtQlat) / 180;
    const Valore qd = PI * (Val(s.in.txtQlon) - v.lonCopia) / 180;
    const Reale tq = sin(qd) / (sin(v.latR) * cos(qd) - cos(v.latR) * tan(qLat));
    const Reale beta = Atn(sin(v.latR) * tq);
    const Reale limite = tan(v.incR) * v.gn;  // unscaled, as meant
    const bool nord = v.latR >= 0, orientale = Abs(v.decGradi) == 90, equatore = v.latR == 0;
    const Proiezione proietta(v);
    const Valore senBeta = sin(beta), tanLat = tan(v.latR);
    const Pretendi pretendi(s.tavolo, Specie::Qibla);
    Reale seno, ht, Hr, x, y;
    for (const double d : Conteggio(-23.445, 23.445, 0.005)) {
        v.deltaOpz = d;
        const double tanD = std::tan(PI * d / 180);
        seno = equatore ? Valore(tanD) : tanD * senBeta / tanLat;
        // A Sun that never stands on this azimuth leaves the hour angle of the day before, and its point is plotted.
        if (!(Abs(seno) > 1)) {
            ht = ArcSin(seno);
            Hr = (beta - ht) * v.segnoLatPiana;
        }
        proietta.perParete(SenCos(Hr), tanD, x, y);
        if (!cornice.contiene(x, y)) continue;
        if (orientale) s.tavolo.xPset(x, -y, QB(10));
        if (nord && y <= limite) s.tavolo.xPset(x, -y, QB(12));
        if (!nord && y >= limite) s.tavolo.xPset(-x, y, QB(13));
    }
}

}  // namespace ombrelia::vertical
