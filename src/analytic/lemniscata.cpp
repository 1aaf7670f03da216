// The analemma of the analytic engine: each day's conic met with the hour line of its mean noon.
#include "analytic/corsa.h"
#include "gnomonica/conica.h"
#include "gnomonica/spazzate.h"

namespace ombrelia::analytic {

// The longitude, of the equivalent dial where there is one, and its angle of time, whatever oraFuso says; where the equinoctial
// lies.
void LasciaLemniscata(Corsa &c) {
    Variabili &v = c.s.v;
    if (v.flagVerticale == 1) v.lon = v.lonEq;
    v.y0 = DistanzaEquinoziale(v.gn, c.stilo());
    LasciaDalMeridiano(v);
    v.corrLong = CorrezioneLongitudine(v);
}

void TracciaLemniscataAnalitica(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    Tavolo &tavolo = c.s.tavolo;
    const Pretendi pretendi(tavolo, Specie::Analemma, linee[0].valore);

    if (v.latR != 0 && v.dec == 0) {
        // Due south the latitude is left out of the formula: meant.
        Reale x, y;
        for (const Mezzodi &m : AnnoMedioGiorniAlterni()) {
            const Valore tanQ = tan(-v.corrLong + m.Et);
            y = -v.gn / (m.tanD * Sqr(tanQ * tanQ + 1));
            x = -tanQ * y;
            tavolo.TracciaPunto(-x, y, OLIVA, SENZA_STRATO);
        }
        return;
    }

    const auto &[epsilon, sigma, se, ce, te, ss, cs, ts] = c.stilo();
    // angoloOra misses half a turn where the plane looks away from the equator's Sun, and at the equator. The sign of
    // altStilo would not do: at the pole it is that of a rounding.
    const double verso = v.lat == 0 || c.piano().cg < 0 ? -1 : 1;
    const Valore t0 = v.angoloOra - v.corrLong, obliqua = v.gn / ce;
    Conica k;
    Reale m, r, h, p2, p1, p0, x, y, z;
    r = v.gn / (se * ce);  // from P to the centre
    for (const Mezzodi &mezzodi : AnnoMedioGiorniAlterni()) {
        const Valore tanD = mezzodi.tanD, hh = t0 + mezzodi.Et;
        m = 1 / (tanD * tanD);
        h = obliqua * tan(hh);
        k.calcola(m, c.stilo(), v.gn);
        const Valore Rhh = k.R * (h * h);
        p2 = r * r + Rhh;
        p1 = (k.Q * r - 2 * Rhh) * r;
        p0 = r * r * (Rhh + k.P);
        const Radici v12 = RisolviQuadratica(p2, p1, p0);
        if (!v12.reali) continue;
        // One root is the Sun's own shadow, the other that of the opposite declination; the shadow's v tells which.
        const Valore ombra = -v.gn * tanD / (ce * (ce * (verso * cos(hh)) - tanD * se));
        const bool primo = Abs(v12.meno - ombra) < Abs(v12.piu - ombra);
        z = primo ? v12.meno : v12.piu;
        const Valore u = h * (1 - z / r);
        x = u * cs - z * ss + v.y0 * ss;
        y = u * ss + z * cs - v.y0 * cs;
        tavolo.TracciaPunto(x, y, linee[0].colore, SENZA_STRATO);
    }
}

}  // namespace ombrelia::analytic
