// Italic and Babylonian hour lines: tangents to the conic of the declination at which the Sun neither rises nor sets, and
// that conic.
#include "analytic/corsa.h"
#include "core/conteggio.h"
#include "gnomonica/catena.h"
#include "gnomonica/conica.h"

namespace ombrelia::analytic {

namespace {

// ora is the hour, so counted, of noon at the equinox.
void conta(const Corsa &c, double ora, LineeAttese &linee) {
    if (c.v.lat_o == 0 && c.s.in.ckCorretta != 1) return;  // no tangents at the equator
    for (const double a : Conteggio(-90, 90, 15)) linee.push_back({a, ora + a / 15, "", BIANCO});
}

// verso is the sign before the root of the tangent's slope: -1 from sunset, 1 from sunrise.
void traccia(Corsa &c, const LineeAttese &linee, Specie specie, double verso) {
    const Variabili &v = c.v;
    Tavolo &tavolo = c.s.tavolo;
    if (linee.empty()) return;
    const Valore seno = c.piano().sphi;
    Reale phi;  // stays 0 at the pole, whose arc sine faults
    phi = Atn(seno / Sqr(1 - seno * seno));
    const Valore T = tan(phi);
    Conica k;
    k.calcola(T * T, c.stilo(), v.gn);
    const Valore R = k.R, Q = k.Q, P = k.P;
    const RiferimentoSustilare dial(c.stilo(), v.y0);
    FilaDiPunti fila(tavolo, SENZA_STRATO);
    const auto punto = [&](Valore u, Valore w, Colore colore) { fila.punto(dial.x(u, w).v, dial.y(u, w).v, colore); };

    const Valore q4 = Q * Q / 4 - P, mezzo = -Q / 2;
    for (const double u : Conteggio(-0.5, 0.5, v.passo / 100)) {
        const Valore quadrato = q4 - R * (u * u);
        if (!(quadrato >= 0)) continue;
        const Valore radice = Sqr(quadrato);
        // A help to the eye, on which no Sun need ever stand: it claims nothing.
        punto(u, mezzo + radice, VIOLA);
        punto(u, mezzo - radice, VERDE);
    }
    fila.fine();

    const Valore obliqua = v.gn / c.stilo().ce, t0 = v.angoloOra + v.diffLong;
    std::vector<double> ascisse;  // abscissas, which all lines are swept by
    for (const double u : Conteggio(-1, 1, v.passo / 10)) ascisse.push_back(u);
    Reale h, g;
    for (const LineaAttesa &l : linee) {
        h = obliqua * tan(t0 + l.parametro * PI / 180);
        const Valore hh = h * h, RR = R * R, QQ = Q * Q;
        g = (-2 * R * Q * h + verso * (2 * Sqr(RR * QQ * hh + R * P * QQ - 4 * R * (P * P) - 4 * RR * P * hh))) /
            (QQ - 4 * P - 4 * R * hh);
        const Valore pendenza = g, piede = h;
        const Pretendi pretendi(tavolo, specie, l.valore);
        for (const double u : ascisse) punto(u, pendenza * (u - piede), l.colore);
        fila.fine();
    }
}

}  // namespace

// The original dial's latitude, radians, in the place of the plane's: the analemma after these lines takes it, meant. Where the
// equinoctial lies.
void LasciaTangenti(Corsa &c) {
    Variabili &v = c.s.v;
    if (v.lat_o == 0) return;
    v.latR = v.lat_o;
    c.rifaiPiano();
    v.y0 = DistanzaEquinoziale(v.gn, c.stilo());
}
void LineeItaliche(const Corsa &c, LineeAttese &linee) { conta(c, 18, linee); }
void LineeBabiloniche(const Corsa &c, LineeAttese &linee) { conta(c, 6, linee); }
void TracciaItalicheAnalitiche(Corsa &c, const LineeAttese &linee) { traccia(c, linee, Specie::Italica, -1); }
void TracciaBabilonicheAnalitiche(Corsa &c, const LineeAttese &linee) { traccia(c, linee, Specie::Babilonica, 1); }

}  // namespace ombrelia::analytic
