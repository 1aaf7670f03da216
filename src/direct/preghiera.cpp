// Islamic prayer on the dial: the Asr curve, the bearing of the Qibla and its curve.
#include "direct/diretta.h"
#include "direct/sbarramento.h"

namespace ombrelia::direct {

void TracciaAsr(Sessione &s, const Cornice &cornice, bool orizzontale) {
    Variabili &v = s.v;
    const Sbarramento passa(cornice, v);
    const Proiezione proietta(v);
    const Valore senLat = sin(v.latR), cosLat = cos(v.latR);
    const Pretendi pretendi(s.tavolo, Specie::Asr, 1);
    Reale h, c, t, x, y;
    for (const Declinazione &d : Anno()) {
        const double D = PI * d.d / 180;
        // Altitude at which a rod's shadow is its length plus its noon shadow. No Abs around the difference: meant.
        h = Atn(1.0 / (1 * tan(v.latR - D) + 1.0));
        c = (sin(h) - senLat * std::sin(D)) / (cosLat * std::cos(D));
        t = (PI / 2.0) - Atn(c / Sqr(-c * c + 1));
        proietta(SenCos(t), d.tanD, x, y);
        if (passa(x, y)) s.tavolo.xPset(x, -y, QB(7));
        // A horizontal plane takes every point of the frame, a second time where the horizon let it pass.
        if (orizzontale && cornice.contiene(x, y)) s.tavolo.xPset(x, -y, QB(7));
    }
    v.deltaOpz = Anno().back().d;
}

namespace {

void curva(Sessione &s, const Cornice &cornice, bool orizzontale, Valore B) {
    Variabili &v = s.v;
    const Proiezione proietta(v);
    const bool piana = Val(s.in.txtInc) == 90;
    const bool nord = v.latR >= 0;
    const Reale limite = v.gn * tan(v.incR);  // unscaled by unita, as meant
    const Valore senB = sin(B), tanLat = tan(v.latR);
    const Pretendi pretendi(s.tavolo, Specie::Qibla);
    Catena catena(s.tavolo, "Quibla");
    Reale t, x, y;
    for (const double d : Conteggio(-23.445, 23.445, 0.005)) {
        v.deltaOpz = d;
        const double tanD = std::tan(PI * d / 180);
        const Valore r = tanD * senB / tanLat;
        if (!(Abs(r) < 1)) continue;
        t = B - ArcSin(r);
        proietta(SenCos(t), tanD, x, y);
        const bool dentro = cornice.contiene(x, y);
        if (dentro && (piana || (nord ? y <= limite : y >= limite))) s.tavolo.xPset(x, -y, QB(10));
        if (orizzontale) catena.punto(x, y, dentro, QB(10));
    }
}

void testi(Sessione &s, Valore q) {
    s.tavolo.ForeColor = 65280;  // bright green
    s.tavolo.Dati("", -s.tavolo.ShiftX(), 0.75);
    const auto riga = [&s](std::string_view etichetta, Valore gradi, std::string_view coda) {
        s.Dati(Frase(s.Traduci(etichetta)) << Tronca5(gradi) << coda);
    };
    riga("latitude  = "_it, Val(s.in.txtQlat), " °");
    riga("longitude  = "_it, Val(s.in.txtQlon), " °");
    if (s.v.latR > 0) {
        riga("Qibla from South = "_it, q, "° azimuth");
        riga("Qibla from North = "_it, q < 0 ? 180 + q : -180 + q, "° azimuth");
    } else {
        riga("Qibla from North = "_it, -q, "° azimuth");
        riga("Qibla from South = "_it, q < 0 ? -180 - q : 180 - q, "° azimuth");
    }
    s.tavolo.ForeColor = QB(15);
}

}  // namespace

Qibla TracciaQibla(Sessione &s, const Cornice &cornice, bool orizzontale) {
    Variabili &v = s.v;
    const Reale F = PI * Val(s.in.txtQlat) / 180;
    const Reale L = PI * (Val(s.in.txtQlon) - v.lonCopia) / 180;
    const Reale T = sin(L) / (sin(v.latR) * cos(L) - cos(v.latR) * tan(F));
    Qibla qibla;
    qibla.q = Atn(T) * 180.0 / PI;
    qibla.B = Atn(sin(v.latR) * T);
    if (s.in.CkQibla == 1) {
        if (v.latR != 0) curva(s, cornice, orizzontale, qibla.B);
        testi(s, qibla.q);
    }
    return qibla;
}

}  // namespace ombrelia::direct
