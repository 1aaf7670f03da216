// Italic and Babylonian hour lines: tangents to the conic of the declination at which the Sun neither rises nor sets, and
// that conic.
#include "analytic/analitica.h"
#include "analytic/conica.h"
#include "core/conteggio.h"

namespace ombrelia::analytic {

namespace {

// verso is the sign before the root of the tangent's slope: -1 from sunset, 1 from sunrise. ora is the hour, so counted,
// of noon at the equinox.
void traccia(Sessione &s, Specie specie, double verso, double ora) {
    Variabili &v = s.v;
    Tavolo &tavolo = s.tavolo;
    if (v.lat_o == 0) return;
    v.latR = v.lat_o;  // stays so: meant
    v.y0 = v.gn * tan(v.altStilo);
    const Valore seno = sin(v.latR);
    Reale phi;  // stays 0 at the pole, whose arc sine faults
    phi = Atn(seno / Sqr(1 - seno * seno));
    const Valore T = tan(phi);
    Conica k;
    k.calcola(T * T, v.altStilo, v.gn);
    const Valore R = k.R, Q = k.Q, P = k.P;
    const RiferimentoSustilare dial(v.angSustilare, v.y0);
    const auto punto = [&](Valore u, Valore w, Colore colore) { tavolo.xPset(dial.x(u, w), -dial.y(u, w), colore, SENZA_STRATO); };

    const Valore q4 = Q * Q / 4 - P, mezzo = -Q / 2;
    for (const double u : Conteggio(-0.5, 0.5, v.passo / 100)) {
        const Valore quadrato = q4 - R * (u * u);
        if (!(quadrato >= 0)) continue;
        const Valore radice = Sqr(quadrato);
        const auto delGiorno = [&](Valore w, Colore colore) {
            const Pretendi pretendi(tavolo, Specie::Diurna, w > 0 ? phi.numero() * 180 / PI - 90 : 90 - phi.numero() * 180 / PI);
            punto(u, w, colore);
        };
        delGiorno(mezzo + radice, QB(5));
        delGiorno(mezzo - radice, QB(10));
    }

    const Valore obliqua = v.gn / cos(v.altStilo), t0 = v.angoloOra + v.diffLong;
    Reale h, g;
    for (const double a : Conteggio(-90, 90, 15)) {
        h = obliqua * tan(t0 + a * PI / 180);
        const Valore hh = h * h, RR = R * R, QQ = Q * Q;
        g = (-2 * R * Q * h + verso * (2 * Sqr(RR * QQ * hh + R * P * QQ - 4 * R * (P * P) - 4 * RR * P * hh))) / (QQ - 4 * P - 4 * R * hh);
        const Valore pendenza = g, piede = h;
        const Pretendi pretendi(tavolo, specie, ora + a / 15);
        for (const double u : Conteggio(-1, 1, v.passo / 10)) punto(u, pendenza * (u - piede), QB(15));
    }
}

}  // namespace

void TracciaItalicheAnalitiche(Sessione &s) { traccia(s, Specie::Italica, -1, 18); }
void TracciaBabilonicheAnalitiche(Sessione &s) { traccia(s, Specie::Babilonica, 1, 6); }

}  // namespace ombrelia::analytic
