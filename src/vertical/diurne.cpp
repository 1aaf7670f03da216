// Day lines and equinoctial of the vertical engine: sweeps of the hour angle by whole degrees at a fixed declination.
#include <span>

#include "gnomonica/catena.h"
#include "gnomonica/spazzate.h"
#include "vertical/piana.h"
#include "vertical/sfera.h"

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
constexpr Diurna DICEMBRE{-23.445, -23.445, QB(12), "Solstizio dicembre", false, true, 360};
constexpr Diurna D_20XI{-20.005, -20, QB(13), "20 XI or 20 I", true, false, 360};
constexpr Diurna D_20II{-11.5, -11.5, QB(11), "20 II or 20 X", true, true, 180};
constexpr Diurna D_20IV{11.5, 11.5, QB(11), "20 IV or 20 VIII", true, true, 180};
constexpr Diurna D_20V{20, 20, QB(13), "20 V or 20 VII", true, true, 360};
constexpr Diurna GIUGNO{23.45, 23.445, QB(12), "Solstizio giugno", false, false, 360};
constexpr Diurna OPZIONALE{0, 0, QB(14), "Diurna opzionale", false, true, 360};

// The two hour angles, degrees, between which the Sun stands before the plane on the day of declination dr (radians),
// from the elevation of the style and the meridian on it; leaves both in altStilo and angoloOra.
struct Limiti {
    Reale primo, secondo;
};
Limiti limitiDelGiorno(Variabili &v, Valore dr) {
    const Reale sustilare = Sustilare(v);
    v.altStilo = ArcSin(cos(v.decR) * cos(v.latR));
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

void traccia(Sessione &s, const Diurna &d, Valore delta, Valore dichiarata) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    v.yOriz = OrdinataOrizzonte(v, d.conSegno ? Sgn(v.latR) : 1);
    v.deltaOpz = delta;
    const Limiti limiti = limitiDelGiorno(v, PI * v.deltaOpz / 180);
    const double da = Int(limiti.primo).v, a = Int(limiti.secondo).v;

    Sfera sfera(v);
    const Sfera::Giorno giorno = sfera.giorno(v.deltaOpz.numero());
    const Orizzonte orizzonte(v);
    const Pretendi pretendi(s.tavolo, Specie::Diurna, dichiarata.v);
    Catena catena(s.tavolo, d.strato);
    Reale x, y;
    double H = -static_cast<double>(d.mezzo);
    for (const Orario &ora : giri().subspan(360 - d.mezzo, 2 * d.mezzo + 1)) {
        sfera.puntoOra(ora, giorno, x, y);
        const bool passa = orizzonte.passa(y, catena.yPrima()) && da < H && H < a && stessoLato(x, catena.xPrima());
        catena.punto(x, y, passa && cornice.contiene(x, y), d.colore);
        H += 1;
    }
}

void traccia(Sessione &s, const Diurna &d) {
    if (!d.intermedia || s.in.ckFunzione != 1) traccia(s, d, d.delta, d.dichiarata);
}

}  // namespace

void TracciaDiurnaSolstizioDicembre(Sessione &s) {
    traccia(s, DICEMBRE);
    TracciaDiurna20XI(s);
}
void TracciaDiurna20XI(Sessione &s) {
    traccia(s, D_20XI);
    TracciaDiurna20II(s);
}
void TracciaDiurna20II(Sessione &s) {
    traccia(s, D_20II);
    TracciaDiurna20IV(s);
}
void TracciaDiurna20IV(Sessione &s) {
    traccia(s, D_20IV);
    TracciaDiurna20V(s);
}
void TracciaDiurna20V(Sessione &s) {
    traccia(s, D_20V);
    TracciaDiurnaSolstizioGiugno(s);
}
void TracciaDiurnaSolstizioGiugno(Sessione &s) { traccia(s, GIUGNO); }

void TracciaDiurnaOpzionale(Sessione &s) {
    const Valore richiesta = Val(s.in.txtDelta);
    if (s.in.ckRomani != 1 && s.in.ckArabi != 1) traccia(s, OPZIONALE, richiesta, richiesta);
}

void TracciaEquinoziale(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    v.yOriz = OrdinataOrizzonte(v, Sgn(v.latR));
    v.deltaOpz = 0;
    Sfera sfera(v);
    const Sfera::Giorno giorno = sfera.giorno(0);
    const Orizzonte orizzonte(v);
    const Pretendi pretendi(s.tavolo, Specie::Equinoziale);
    Catena catena(s.tavolo, "21 III or 23 IX Eq");
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
        catena.punto(x, y, passa && cornice.contiene(x, y), QB(9));
    }
}

void PuntiEquinozialeDecZero(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    v.yOriz = OrdinataOrizzonte(v, Sgn(v.latR));
    Sfera sfera(v);
    const Sfera::Giorno giorno = sfera.giorno(0);
    const Valore cosLat = cos(v.latR);
    const bool equatore = v.latR == 0;
    const Pretendi pretendi(s.tavolo, Specie::Equinoziale);
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
        if (y < v.yOriz && cornice.contiene(x, y)) s.tavolo.xPset(x, -y, QB(9));
    }
}

}  // namespace ombrelia::vertical
