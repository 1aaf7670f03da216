// The lemniscate of the vertical engine, a mean noon of the zone meridian through a year of days, and what ckFunzione
// adds to it: the day marks and the straight noon line.
#include <array>

#include "gnomonica/longitudine.h"
#include "vertical/corsa.h"

namespace ombrelia::vertical {

namespace {

// -1 when the plane that was transformed or reported last was horizontal.
double segnoPiano(const Variabili &v) { return v.incR2 == PI / 2 ? -1 : 1; }

// Extremes of the equation of time on a day of declination delta (degrees), minutes of time.
struct Tacche {
    double delta, Emax, Emin;
};
constexpr Tacche TACCHE[] = {
    {-DELTA_SEGNI, 14, -10.98},           {-DELTA_SEGNI_VICINI, 15.65, -13.85}, {0, 7.3666, -7.28},
    {DELTA_SEGNI_VICINI, 1.0666, -2.466}, {DELTA_SEGNI, 3.58, -6.25},
};

}  // namespace

// Horizon's ordinate, metres, for figure and marks; the longitude, of the equivalent dial where there is one, and its angle of
// time; the distance to the equinoctial, in the unit of gn, that the reports of an analytic dial begin with.
void LasciaLemniscata(Corsa &c) {
    Variabili &v = c.s.v;
    v.yOriz = OrizzonteOriginale(v, segnoPiano(v));
    if (v.flagTrasformato != 1 && v.flagVerticale == 1) v.lon = v.lonEq;
    LasciaDalMeridiano(v);
    v.corrLong = CorrezioneLongitudine(v);  // whatever oraFuso says
    v.y0 = DistanzaEquinoziale(v.gn, v.altStilo);
}

void TracciaLemniscata(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    const double segno = segnoPiano(v);
    constexpr int GIORNI = 440;
    std::array<Reale, GIORNI + 1> x, y;
    const IdNome strato = c.s.tavolo.nome(linee[0].strato);
    const Piano &p = c.piano();
    const Valore senLat = segno * p.sphi;
    const Sfera sfera = c.sfera();
    Direzione sole;
    const Pretendi pretendi(c.s.tavolo, Specie::Analemma, linee[0].valore);
    for (const Mezzodi &m : AnnoMedioGiorni()) {
        const AngoloOrario ora(m.Et - v.corrLong);
        sole.A = Atn(Valore(segno * ora.sen) / (senLat * ora.cos - p.cphi * m.tanD));
        if (Sfera::quadranteErrato(sole, ora)) sfera.mendaMuro(sole);
        sole.h = ArcSin(p.cphi * m.cosD * ora.cos + senLat * m.senD);
        // The day, a half to the even one: where two samples share it the later stands.
        const auto k = static_cast<std::size_t>(std::nearbyint(m.gradi + 80));
        sfera.punto(sole, x[k], y[k]);
        if (k == 0 || !(y[k] < v.yOriz) || Sgn(x[k]) != Sgn(x[k - 1]) || !c.cornice.contiene(x[k], y[k])) continue;
        c.s.tavolo.TracciaLinea(x[k], y[k], x[k - 1], y[k - 1], linee[0].colore, strato);
    }
}

void LineeTacche(const Corsa &, LineeAttese &linee) {
    for (const Tacche &t : TACCHE) linee.push_back({t.delta, t.delta, "", GIALLO});
}
void TracciaTacche(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    const Sfera sfera = c.sfera();
    for (std::size_t n = 0; n < linee.size(); ++n) {
        const Tacche &t = TACCHE[n];
        const Valore HrMax = t.Emax * 15 * PI / (60.0 * 180) - v.corrLong;
        const Valore HrMin = t.Emin * 15 * PI / (60.0 * 180) - v.corrLong;
        constexpr int PARTI = 4;
        const Valore parte = (HrMax - HrMin) / PARTI;
        const Pretendi pretendi(c.s.tavolo, Specie::Tacca, linee[n].valore);

        const Sfera::Giorno giorno = sfera.giorno(t.delta);
        Direzione sole;
        Reale Hr = HrMin, x, y, xPrima, yPrima;
        bool dentroPrima = false;
        for (int i = 0; i <= PARTI; ++i) {
            sfera.puntoOra(sole, AngoloOrario(Hr), giorno, x, y);
            // The horizon is the one that the lemniscate left.
            const bool dentro = y < v.yOriz && c.cornice.contiene(x, y);
            if (dentro && dentroPrima) c.s.tavolo.TracciaLinea(xPrima, yPrima, x, y, linee[n].colore);
            xPrima = x;
            yPrima = y;
            dentroPrima = dentro;
            Hr = Hr + parte;
        }
    }
    LasciaDeclinazione(c.s.v, TACCHE[std::size(TACCHE) - 1].delta);
}

// Fields once more, the zodiac before it may have read them its own way: the box of the zone's time, the longitude, and the
// horizon's ordinate, which the last horizon and the field show.
void LasciaMezzogiorno(Corsa &c) {
    Variabili &v = c.s.v;
    const Reale L0 = v.unita * c.letto.gn;
    LasciaFuso(v, c.letto);
    v.yOriz = OrdinataOrizzonte(segnoPiano(v), v.unita, v.iz_o, L0);  // unita twice: meant
    v.lon = c.letto.lon;
}

namespace {

// The line's summer end, metres, in the place of the frame's corner; the day of its other end.
void lasciaMezzogiorno(Variabili &v, Valore x1, Valore y1) {
    v.x1 = x1;
    v.y1 = y1;
    LasciaDeclinazione(v, -OBLIQUITA);
}

}  // namespace

void RettaMezzogiorno(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    const AngoloOrario ora(PI * (v.oraFuso * 180 * v.angOraLong / PI) / 180);
    const Sfera sfera = c.sfera();
    Direzione sole;
    Reale x1 = v.x1, y1 = v.y1, x2, y2;  // the frame's corner stands where the summer end faults
    sfera.puntoMuro(sole, ora, sfera.giorno(OBLIQUITA), x1, y1);
    sfera.puntoMuro(sole, ora, sfera.giorno(-OBLIQUITA), x2, y2);
    lasciaMezzogiorno(c.s.v, x1, y1);
    const Pretendi pretendi(c.s.tavolo, Specie::Mezzogiorno);
    // A wall's points lie below its horizon, so this seldom passes: meant.
    if (v.yOriz <= y2) c.s.tavolo.TracciaLinea(x1, y1, x2, y2, linee[0].colore);
}

}  // namespace ombrelia::vertical
