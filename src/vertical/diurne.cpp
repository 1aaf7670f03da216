// Day lines and equinoctial of the vertical engine: sweeps of the hour angle by whole degrees at a fixed declination.
#include <span>

#include "gnomonica/catena.h"
#include "vertical/corsa.h"

namespace ombrelia::vertical {

namespace {

// -360 to 360 degrees. No time correction: a day line is the same in every zone.
std::span<const Orario> giri() {
    static const std::vector<Orario> ore = [] {
        std::vector<Orario> t;
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

// The two hour angles, degrees, between which the Sun stands before the plane on the day of declination dr (radians),
// from the elevation of the style and the meridian on it; leaves both in altStilo and angoloOra.
struct Limiti {
    Reale primo, secondo;
};
Limiti limitiDelGiorno(Variabili &v, Valore dr) {
    const Reale sustilare = SustilareMuroIntera(v.latR, v.decR);
    v.altStilo = StiloMuro(v.latR, v.decR);
    Reale pPiede, semiArco;
    pPiede = Atn(tan(sustilare) / sin(v.altStilo));
    if (Sgn(sin(sustilare)) != Sgn(sin(pPiede))) pPiede = pPiede > 0 ? pPiede - PI : pPiede + PI;
    v.angoloOra = pPiede;
    // The program's quarter turn has a negative tangent: at the equinox the arc would be turned round and the line lost.
    if (dr == 0) semiArco = Sgn(sin(v.altStilo)) * PI / 2;
    else semiArco = Atn(tan(ArcCos(Abs(sin(dr) / cos(v.altStilo)))) / sin(v.altStilo));

    Limiti l;
    if (Abs(v.declinSessag) < 90) {
        if (v.deltaOpz >= 0) {
            l.primo = 180 * (pPiede - semiArco) / PI;
            l.secondo = 180 * (pPiede + semiArco) / PI;
        } else {
            l.primo = 180 * (semiArco + pPiede - PI) / PI;
            l.secondo = 180 * (PI + pPiede - semiArco) / PI;
        }
    } else if (v.deltaOpz > 0) {
        l.primo = 180 * (pPiede - semiArco - PI) / PI;
        l.secondo = 180 * (semiArco + pPiede + PI) / PI;
    } else {
        l.primo = 180 * (semiArco + pPiede) / PI;
        l.secondo = 180 * (pPiede - semiArco) / PI;
    }
    return l;
}

// Chords only between points of one side of the plumb line through the foot.
bool stessoLato(Reale x, Reale xPrima) { return Sgn(x) == Sgn(xPrima); }

void traccia(Corsa &c, const Diurna &d, const LineaAttesa &l) {
    Sessione &s = c.s;
    Variabili &v = s.v;
    v.yOriz = OrdinataOrizzonte(v, d.conSegno ? Sgn(v.latR) : 1);
    v.deltaOpz = l.parametro;
    const Limiti limiti = limitiDelGiorno(v, PI * v.deltaOpz / 180);
    const double da = Int(limiti.primo).v, a = Int(limiti.secondo).v;

    Sfera sfera(v);
    const Sfera::Giorno giorno = sfera.giorno(v.deltaOpz.numero());
    const Orizzonte orizzonte(v);
    const Pretendi pretendi(s.tavolo, Specie::Diurna, l.valore);
    Catena catena(s.tavolo, l.strato);
    Reale x, y;
    double H = -static_cast<double>(d.mezzo);
    for (const Orario &ora : giri().subspan(360 - d.mezzo, 2 * d.mezzo + 1)) {
        sfera.puntoOra(ora, giorno, x, y);
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

void PreparaEquinoziale(Corsa &c) { c.s.v.yOriz = OrdinataOrizzonte(c.s.v, Sgn(c.s.v.latR)); }

void TracciaEquinoziale(Corsa &c, const LineeAttese &linee) {
    Variabili &v = c.s.v;
    v.deltaOpz = 0;
    Sfera sfera(v);
    const Sfera::Giorno giorno = sfera.giorno(0);
    const Orizzonte orizzonte(v);
    const Pretendi pretendi(c.s.tavolo, Specie::Equinoziale);
    Catena catena(c.s.tavolo, linee[0].strato);
    Reale x, y;
    for (const Orario &ora : giri()) {
        if (sfera.denominatore(ora, giorno) == 0) sfera.A = Sfera::segno(ora.Hr) * PI / 2;
        else sfera.azimut(ora, giorno);
        sfera.mendaOra(ora);
        // The nadir counts as the zenith: meant.
        const double seno = Sfera::senAltezza(ora, giorno);
        if (std::fabs(seno) == 1) sfera.h = PI / 2;
        else sfera.altezza(ora, giorno);
        sfera.punto(x, y);
        const bool passa = orizzonte.passa(y, catena.yPrima()) && stessoLato(x, catena.xPrima());
        catena.punto(x, y, passa && c.cornice.contiene(x, y), linee[0].colore);
    }
}

void PuntiEquinozialeDecZero(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.s.v;
    Sfera sfera(v);
    const Sfera::Giorno giorno = sfera.giorno(0);
    const Valore cosLat = cos(v.latR);
    const bool equatore = v.latR == 0;
    const Pretendi pretendi(c.s.tavolo, Specie::Equinoziale);
    Reale x, y;
    for (const double a : Conteggio(-90, 90, 10 * v.passo)) {
        const Orario ora(PI * a / 180);
        if (equatore) {
            sfera.A = PI / 2;
            sfera.h = PI / 2 - std::fabs(ora.Hr);
        } else {
            sfera.azimutMuro(ora, giorno);
            sfera.h = ArcSin(ora.cos * cosLat);
        }
        // The ordinate has the other sign than on every other line, so a northern wall shows no point: meant.
        const Valore A = sfera.A - v.decR;
        x = v.unita * tan(A) * v.gn;
        y = v.unita * tan(sfera.h) * v.gn / cos(A);
        if (y < v.yOriz && c.cornice.contiene(x, y)) c.s.tavolo.TracciaPunto(x, y, linee[0].colore);
    }
}

}  // namespace ombrelia::vertical
