// Islamic prayer on the dial: the Asr curve, the bearing of the Qibla and its curve.
#include "direct/corsa.h"
#include "gnomonica/qibla.h"

namespace ombrelia::direct {

void TracciaAsr(Corsa &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    const Variabili &v = c.v;
    const Sbarramento passa(c.cornice, v);
    const Proiezione proietta(c.piano());
    const Piano &p = c.piano();
    const Colore colore = linee[0].colore;
    const Pretendi pretendi(s.tavolo, Specie::Asr, linee[0].valore);
    Reale h, cosT, t, x, y;
    for (std::size_t i = 0; i < Anno().size(); ++i) {
        const SenCos &D = AnnoSenCos()[i];
        // Altitude at which a rod's shadow is its length plus its noon shadow. No Abs around the difference: meant.
        h = Atn(1.0 / (1 * tan(v.latR - PI * Anno()[i].d / 180) + 1.0));
        cosT = (sin(h) - p.sphi * D.sen) / (p.cphi * D.cos);
        t = (PI / 2.0) - Atn(cosT / Sqr(-cosT * cosT + 1));
        proietta(SenCos(t), Anno()[i].tanD, x, y);
        if (passa(x, y)) s.tavolo.TracciaPunto(x, y, colore);
        // A horizontal plane takes every point of the frame, a second time where the horizon let it pass.
        if (c.orizzontale && c.cornice.contiene(x, y)) s.tavolo.TracciaPunto(x, y, colore);
    }
    LasciaFine(s.v, Anno());
}

Qibla CalcolaQibla(const Corsa &c) {
    const Variabili &v = c.v;
    const Reale F = PI * c.letto.qLat / 180;
    const Reale L = PI * (c.letto.qLon - v.lonCopia) / 180;
    const Reale T = TangenteQibla(c.piano(), F, L);
    Qibla qibla;
    qibla.q = Atn(T) * 180.0 / PI;
    qibla.B = Atn(c.piano().sphi * T);
    return qibla;
}

void TracciaQibla(Corsa &c, Valore B) {
    Sessione &s = c.s;
    const Piano &p = c.piano();
    const Proiezione proietta(p);
    const bool piana = c.letto.inc == 90;
    const bool nord = p.phi >= 0;
    const Reale limite = p.gn * p.ti;  // unscaled by unita, as meant
    const Valore senB = sin(B);
    const Pretendi pretendi(s.tavolo, Specie::Qibla);
    Catena catena(s.tavolo, "Quibla");
    Reale t, x, y;
    LasciaFine(s.v, AnnoFitto());
    for (const auto &[d, tanD] : AnnoFitto()) {
        const Valore r = tanD * senB / p.tphi;
        if (!(Abs(r) < 1)) continue;
        t = B - ArcSin(r);
        proietta(SenCos(t), tanD, x, y);
        const bool dentro = c.cornice.contiene(x, y);
        if (dentro && (piana || (nord ? y <= limite : y >= limite))) s.tavolo.TracciaPunto(x, y, VERDE);
        if (c.orizzontale) catena.punto(x, y, dentro, VERDE);
    }
}

void TestiQibla(Corsa &c, Valore q) {
    Sessione &s = c.s;
    s.tavolo.ForeColor = VERDE;
    s.tavolo.Scritta("", -s.tavolo.ShiftX(), -0.75);
    const auto riga = [&s](std::string_view etichetta, Valore gradi, std::string_view coda) {
        s.Dati(Frase(s.Traduci(etichetta)) << Tronca5(gradi) << coda);
    };
    riga("latitude  = "_it, c.letto.qLat, " °");
    riga("longitude  = "_it, c.letto.qLon, " °");
    if (c.v.latR > 0) {
        riga("Qibla from South = "_it, q, "° azimuth");
        riga("Qibla from North = "_it, q < 0 ? 180 + q : -180 + q, "° azimuth");
    } else {
        riga("Qibla from North = "_it, -q, "° azimuth");
        riga("Qibla from South = "_it, q < 0 ? -180 - q : 180 - q, "° azimuth");
    }
    s.tavolo.ForeColor = BIANCO;
}

}  // namespace ombrelia::direct
