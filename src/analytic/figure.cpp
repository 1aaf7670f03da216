// Straight figures of the analytic engine: hour lines, substyle, equinoctial and the style triangle laid flat.
#include "analytic/corsa.h"
#include "core/conteggio.h"
#include "gnomonica/catena.h"
#include "gnomonica/declinazioni.h"

namespace ombrelia::analytic {

namespace {

constexpr int SPESSORE = 1;

// The upper end of the last hour line, in the place of the frame's corner.
struct Estremo {
    Reale x, y;
};
void lasciaEstremo(Variabili &v, const Estremo &e) {
    v.x1 = e.x;
    v.y1 = e.y;
}
// Beside it the abscissa at which the next report reads equinoctial and substyle: behind hour lines it is this one, not the
// field's.
void lasciaOre(Variabili &v, const Estremo &e) {
    lasciaEstremo(v, e);
    v.xEq = 0.8;
}

// West and east walls at the equator, where the hour lines are parallel: each between the two solstices.
void oreParallele(Corsa &c, IdNome strato) {
    const Variabili &v = c.v;
    const Cornice &limiti = c.cornice;
    const Valore tanSolstizio = tan(Radianti(OBLIQUITA_2345));  // not the 23.445 of the horizon: meant
    const Valore m2 = 1 / (tanSolstizio * tanSolstizio), radice = Sqr(m2);
    Estremo primo{v.x1, v.y1};
    Reale &x1 = primo.x, &y1 = primo.y, x2, y2;
    for (const double h : Conteggio(-75, 75, 15 / v.fraz)) {
        const Pretendi pretendi(c.s.tavolo, Specie::Ora, 12 + h / 15);
        const Valore r = h * PI / 180;
        x1 = v.gn / (radice * cos(r));
        x2 = -v.gn / (radice * cos(r));
        y1 = -Sqr(m2 * (x1 * x1) - v.gn * v.gn);
        y2 = -Sqr(m2 * (x2 * x2) - v.gn * v.gn);
        // One limit an end: meant.
        if (x1 > limiti.xMin && x2 < limiti.xMax && y1 < limiti.yMax && y2 > limiti.yMin)
            c.s.tavolo.TracciaLinea(x1, y1, x2, y2, GIALLO, strato, SPESSORE);
    }
    lasciaEstremo(c.s.v, primo);
}

}  // namespace

// Fields once more, and gn scaled, which all lines after these take; the longitude's angle of time; where the equinoctial lies.
void LasciaOre(Corsa &c) {
    Variabili &v = c.s.v;
    LeggiParametri(c.s, c.letto);
    v.gn = v.gn * v.unita;
    c.rifaiPiano();
    LasciaDalMeridiano(v);
    v.corrLong = CorrezioneFuso(v);
    v.segnoDec = SegnoDeclinazione(v.dec, v.decR);
    v.y0 = DistanzaEquinoziale(v.gn, c.stilo());
}

void LineeOre(const Corsa &c, LineeAttese &linee) {
    for (const double h : Conteggio(-90, 90, 15 / c.v.fraz))
        linee.push_back({h, 12 + h / 15, "Ore_astro", h == 0 ? ROSSO : BIANCO});
}

void TracciaOreAstronomiche(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    const IdNome strato = c.s.tavolo.nome("Ore_astro");
    const Stilo &stilo = c.stilo();
    const Valore cr = stilo.cs, sr = -stilo.ss;
    const Valore obliqua = v.gn / stilo.ce, t0 = v.angoloOra - v.corrLong;
    Estremo primo{v.x1, v.y1};
    Reale a, b, k, m, x2;
    for (const LineaAttesa &l : linee) {
        const Pretendi pretendi(c.s.tavolo, Specie::Ora, l.valore);
        const Valore tanT = tan(t0 + l.parametro * PI / 180);
        a = stilo.se * tanT;
        b = obliqua * tanT;
        k = (b - v.y0 * a) / (cr + sr * a);  // abscissa at y = 0
        m = (a * cr - sr) / (cr + a * sr);   // -dx/dy
        primo.x = -m * 2 + k;
        x2 = m * 2 + k;
        c.s.tavolo.TracciaLinea(primo.x, 2, x2, -2, l.colore, strato, SPESSORE);
        primo.y = 2;
    }
    if (!linee.empty()) lasciaOre(c.s.v, primo);
    if (v.lat == 0 && Abs(v.dec) == 90) oreParallele(c, strato);
}

void TracciaSustilareAnalitica(Corsa &c, const LineeAttese &linee) {
    if (c.stilo().sigma == 0) return;
    const Valore t = c.stilo().ts;
    const Pretendi pretendi(c.s.tavolo, Specie::Sustilare);
    FilaDiPunti fila(c.s.tavolo, SENZA_STRATO);
    for (const double i : Conteggio(-1, 1, 0.002)) fila.punto(i, (-i / t).v, linee[0].colore);
    fila.fine();
}

void TracciaEquinozialeAnalitica(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    const Pretendi pretendi(c.s.tavolo, Specie::Equinoziale);
    if (v.lat > 0) {
        const Valore t = c.stilo().ts, q = v.y0 / c.stilo().cs;
        FilaDiPunti fila(c.s.tavolo, SENZA_STRATO);
        Reale y;
        for (const double x : Conteggio(-3, 3, 0.001)) {
            y = x * t - q;
            fila.punto(x, y.numero(), linee[0].colore);
        }
        fila.fine();
    }
    if (v.lat == 0 && c.stilo().ss != 0) {
        const Valore x = v.y0 / c.stilo().ss;
        c.s.tavolo.TracciaLinea(x, PIEDE, x, -1, linee[0].colore);  // one unit long: meant
    }
}

void TracciaTriangoloAnalitico(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    Tavolo &tavolo = c.s.tavolo;
    // T, the tip laid flat: on the line from C at altStilo from the substyle, and square to the substyle at G.
    Reale xT, yT;
    const Valore a = tan(v.altStilo - v.angSustilare), t = c.stilo().ts;
    xT = (v.yCentroNeg - v.yCentro - t * v.xCentroNeg) / (1 / a - t) + v.xCentro / (1 - a * t);
    yT = (xT - v.xCentro) / a + v.yCentro;
    const Pretendi pretendi(tavolo, Specie::Stilo);
    if (Abs(v.yCentro) < 3) tavolo.TracciaLinea(xT, yT, v.xCentro, v.yCentro, linee[0].colore);
    tavolo.TracciaLinea(xT, yT, v.xCentroNeg, v.yCentroNeg, linee[1].colore);
    tavolo.TracciaPunto(v.xCentroNeg, v.yCentroNeg, BIANCO, SENZA_STRATO);
}
void TracciaOrizzontale(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    const Pretendi pretendi(c.s.tavolo, Specie::Orizzonte);
    c.s.tavolo.TracciaLinea(-v.semiL, v.yCentroNeg, v.semiL, v.yCentroNeg, linee[0].colore);
}

}  // namespace ombrelia::analytic
