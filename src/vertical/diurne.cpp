// Day lines and equinoctial of the vertical engine: sweeps of the hour angle by whole degrees at a fixed declination.
#include <span>

#include "gnomonica/catena.h"
#include "vertical/corsa.h"

namespace ombrelia::vertical {

namespace {

// -360 to 360 degrees. No time correction: a day line is the same in every zone.
std::span<const AngoloOrario> giri() {
    static const std::vector<AngoloOrario> ore = [] {
        std::vector<AngoloOrario> t;
        t.reserve(721);
        for (const double H : Conteggio(-360, 360, 1)) t.emplace_back(PI * H / 180);
        return t;
    }();
    return ore;
}

struct Diurna {
    double delta, dichiarata;
    Colore colore;
    std::string_view strato;
    bool intermedia;    // not with ckFunzione
    bool conSegno;      // yOriz takes the sign of the latitude
    std::size_t mezzo;  // hour angles from -mezzo to mezzo, degrees
};
// The declinations are not symmetrical, the horizon's sign and the sweeps are not alike: meant.
// In the order of drawing.
constexpr Diurna DIURNE[] = {
    {-OBLIQUITA, -OBLIQUITA, ROSSO, "Solstizio dicembre", false, true, 360},
    {-20.005, -20, MAGENTA, "20 XI or 20 I", true, false, 360},
    {-11.5, -11.5, CIANO, "20 II or 20 X", true, true, 180},
    {11.5, 11.5, CIANO, "20 IV or 20 VIII", true, true, 180},
    {20, 20, MAGENTA, "20 V or 20 VII", true, true, 360},
    {OBLIQUITA_2345, OBLIQUITA, ROSSO, "Solstizio giugno", false, false, 360},
};
constexpr Diurna OPZIONALE{0, 0, GIALLO, "Diurna opzionale", false, true, 360};

// The two hour angles, degrees, between which the Sun stands before the plane on the day of declination delta (degrees),
// from the elevation of the style and the hour angle of the substyle.
struct Limiti {
    Reale primo, secondo;
    Reale altStilo, pPiede;
};
Limiti limitiDelGiorno(const Corsa &c, Valore delta) {
    const Variabili &v = c.v;
    const Valore dr = PI * delta / 180;
    Limiti l;
    const Reale sustilare = SustilareMuroIntera(c.piano());
    l.altStilo = v.altStilo;  // stands where the wall's own faults
    l.altStilo = StiloMuro(c.piano());
    Reale semiArco;
    Reale &pPiede = l.pPiede;
    pPiede = OraDaSustilare(sustilare, l.altStilo);
    pPiede = DalLatoDi(sustilare, pPiede);
    // The program's quarter turn has a negative tangent: at the equinox the arc would be turned round and the line lost.
    if (dr == 0) semiArco = Sgn(sin(l.altStilo)) * PI / 2;
    else semiArco = Atn(tan(ArcCos(Abs(sin(dr) / cos(l.altStilo)))) / sin(l.altStilo));

    if (Abs(v.declinSessag) < 90) {
        if (delta >= 0) {
            l.primo = 180 * (pPiede - semiArco) / PI;
            l.secondo = 180 * (pPiede + semiArco) / PI;
        } else {
            l.primo = 180 * (semiArco + pPiede - PI) / PI;
            l.secondo = 180 * (PI + pPiede - semiArco) / PI;
        }
    } else if (delta > 0) {
        l.primo = 180 * (pPiede - semiArco - PI) / PI;
        l.secondo = 180 * (semiArco + pPiede + PI) / PI;
    } else {
        l.primo = 180 * (semiArco + pPiede) / PI;
        l.secondo = 180 * (pPiede - semiArco) / PI;
    }
    return l;
}

// The day, degrees; the horizon's ordinate, metres, that day lines, marks and the last horizon are held against; the style's
// elevation, which the caption takes, and the hour angle of the substyle, radians.
void lascia(Variabili &v, const Diurna &d, Valore delta, const Limiti &l) {
    v.deltaOpz = delta;
    v.yOriz = OrizzonteOriginale(v, d.conSegno ? Sgn(v.latR) : 1);
    v.altStilo = l.altStilo;
    v.angoloOra = l.pPiede;
}

// Chords only between points of one side of the plumb line through the foot.
bool stessoLato(Reale x, Reale xPrima) { return Sgn(x) == Sgn(xPrima); }

void traccia(Corsa &c, const Diurna &d, const LineaAttesa &l) {
    Sessione &s = c.s;
    const Variabili &v = c.v;
    Reale delta = v.deltaOpz;  // a declination of choice without a value leaves that of the line before
    delta = l.parametro;
    const Limiti limiti = limitiDelGiorno(c, delta);
    lascia(s.v, d, delta, limiti);
    const double da = Int(limiti.primo).v, a = Int(limiti.secondo).v;

    const Sfera sfera = c.sfera();
    const Sfera::Giorno giorno = sfera.giorno(delta.numero());
    const Orizzonte orizzonte(v);
    const Pretendi pretendi(s.tavolo, Specie::Diurna, l.valore);
    Catena catena(s.tavolo, l.strato);
    Direzione sole;
    Reale x, y;
    double H = -static_cast<double>(d.mezzo);
    for (const AngoloOrario &ora : giri().subspan(360 - d.mezzo, 2 * d.mezzo + 1)) {
        sfera.puntoOra(sole, ora, giorno, x, y);
        const bool passa = orizzonte.passa(y, catena.yPrima()) && da < H && H < a && stessoLato(x, catena.xPrima());
        catena.punto(x, y, passa && c.cornice.contiene(x, y), l.colore);
        H += 1;
    }
}

}  // namespace

void LineeDiurne(const Corsa &c, LineeAttese &linee) {
    for (const Diurna &d : DIURNE)
        if (!d.intermedia || c.s.in.ckFunzione != 1) linee.push_back({d.delta, d.dichiarata, d.strato, d.colore});
}
void LineaOpzionale(const Corsa &c, LineeAttese &linee) {
    linee.push_back({c.letto.delta.v, c.letto.delta.v, OPZIONALE.strato, OPZIONALE.colore});
}
void TracciaDiurne(Corsa &c, const LineeAttese &linee) {
    for (const LineaAttesa &l : linee) {
        const Diurna *d = &OPZIONALE;
        for (const Diurna &fissa : DIURNE)
            if (fissa.strato == l.strato) d = &fissa;
        traccia(c, *d, l);
    }
}

// The horizon's ordinate, metres, that the points of either kind are held against.
void LasciaEquinoziale(Corsa &c) {
    Variabili &v = c.s.v;
    v.yOriz = OrizzonteOriginale(v, Sgn(v.latR));
}

void TracciaEquinoziale(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    LasciaDeclinazione(c.s.v, 0);
    const Sfera sfera = c.sfera();
    const Sfera::Giorno giorno = sfera.giorno(0);
    const Orizzonte orizzonte(v);
    const Pretendi pretendi(c.s.tavolo, Specie::Equinoziale);
    Catena catena(c.s.tavolo, linee[0].strato);
    Direzione sole;
    Reale x, y;
    for (const AngoloOrario &ora : giri()) {
        if (sfera.denominatore(ora, giorno) == 0) sole.A = Sfera::segno(ora.Hr) * PI / 2;
        else sfera.azimut(sole, ora, giorno);
        sfera.mendaOra(sole, ora);
        // The nadir counts as the zenith: meant.
        const double seno = Sfera::senAltezza(ora, giorno);
        if (std::fabs(seno) == 1) sole.h = PI / 2;
        else sfera.altezza(sole, ora, giorno);
        sfera.punto(sole, x, y);
        const bool passa = orizzonte.passa(y, catena.yPrima()) && stessoLato(x, catena.xPrima());
        catena.punto(x, y, passa && c.cornice.contiene(x, y), linee[0].colore);
    }
}

void PuntiEquinozialeDecZero(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    const Piano &p = c.piano();
    const Sfera sfera = c.sfera();
    const Sfera::Giorno giorno = sfera.giorno(0);
    const bool equatore = v.latR == 0;
    const Pretendi pretendi(c.s.tavolo, Specie::Equinoziale);
    Direzione sole;
    Reale x, y;
    for (const double a : Conteggio(-90, 90, 10 * v.passo)) {
        const AngoloOrario ora(PI * a / 180);
        if (equatore) {
            sole.A = PI / 2;
            sole.h = PI / 2 - std::fabs(ora.Hr);
        } else {
            sfera.azimutMuro(sole, ora, giorno);
            sole.h = ArcSin(ora.cos * p.cphi);
        }
        // The ordinate has the other sign than on every other line, so a northern wall shows no point: meant.
        const Valore A = sole.A - v.decR;
        x = v.unita * tan(A) * v.gn;
        y = v.unita * tan(sole.h) * v.gn / cos(A);
        if (y < v.yOriz && c.cornice.contiene(x, y)) c.s.tavolo.TracciaPunto(x, y, linee[0].colore);
    }
}

}  // namespace ombrelia::vertical
