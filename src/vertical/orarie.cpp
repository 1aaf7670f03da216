// Hour lines of the vertical engine, traced through the year so that they end at the solstices, and the places of the
// numerals on them.
#include "glyphs/numeri.h"
#include "gnomonica/catena.h"
#include "vertical/corsa.h"

namespace ombrelia::vertical {

// Horizon's ordinate, metres; the box of the zone's time and the longitude, as typed; the side that the count of hours begins on.
void LasciaOre(Corsa &c) {
    Variabili &v = c.s.v;
    v.yOriz = OrizzonteOriginale(v, Sgn(v.latR));
    LasciaFuso(v, c.letto);
    v.lon = c.letto.lon;
    v.segnoDecPiana = SegnoDeclinazione(v.decR);
}

void LineeOre(const Corsa &c, LineeAttese &linee) {
    const Variabili &v = c.v;
    const Valore verso = 15 * v.segnoDecPiana;
    struct Famiglia {
        Valore inizio, passo;
        std::string_view strato;
        bool si, ore;
        Colore colore;
    };
    // The quarters run over hours and halves too and overlie them: meant.
    const Famiglia famiglie[] = {
        {-180 + verso, 15, "Astro", true, true, ARGENTO},
        {-172.5 + verso, 15, "", v.gradiPasso < 15, false, MAGENTA},
        {-172.5 + verso, 3.75, "", c.letto.fraz == 4, false, ROSSO_SCURO},
    };
    for (const Famiglia &f : famiglie) {
        if (!f.si) continue;
        for (const double H : Conteggio(f.inizio, 180 + verso, f.passo)) {
            const Colore colore = !f.ore ? f.colore : H == 0 ? ROSSO : std::fabs(H) == 90 ? BLU : f.colore;
            // The claim in 0..24: the sweep goes past midnight.
            linee.push_back({H, H < -180 ? 36 + H / 15 : H > 180 ? H / 15 - 12 : 12 + H / 15, f.strato, colore});
        }
    }
}

void TracciaOreAstro(Corsa &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    const Variabili &v = c.v;
    const Sfera sfera = c.sfera();
    // By degrees up to one that the count meets to the last bit and that becomes the solstice.
    constexpr double OLTRE = 23.55;
    std::vector<Sfera::Giorno> anno;
    double ultima = 0;
    for (const double d : Conteggio(-OBLIQUITA_2345, OLTRE, 1)) {
        ultima = d == OLTRE ? OBLIQUITA_2345 : d;
        anno.push_back(sfera.giorno(ultima));
    }
    LasciaDeclinazione(s.v, ultima);
    const Orizzonte orizzonte(v);
    Direzione sole;
    Reale x, y;
    for (const LineaAttesa &l : linee) {
        Catena catena(s.tavolo, l.strato);
        const AngoloOrario ora = OraOrologio(v, l.parametro);
        const Pretendi pretendi(s.tavolo, Specie::Ora, l.valore);
        for (const Sfera::Giorno &g : anno) {
            sfera.puntoMuro(sole, ora, g, x, y);
            catena.punto(x, y, orizzonte.passa(y, catena.yPrima()) && c.cornice.contiene(x, y), l.colore);
        }
    }
}

// The box of the zone's time, the longitude and the day of choice, as typed; the declination that the caption tells.
void LasciaNumeri(Corsa &c) {
    Variabili &v = c.s.v;
    LasciaFuso(v, c.letto);
    v.decGradi = c.letto.dec;
    v.decGradi = PiegaDeclinazione(v.latR, v.decGradi);
    v.lon = c.letto.lon;
    v.deltaOpz = c.letto.delta;
}

void LineeNumeri(const Corsa &, LineeAttese &linee) {
    for (const double H : Conteggio(-90, 90, 15)) linee.push_back({H, 12 + H / 15, "", ARGENTO});
}

void PosizionaNumeriOrari(Corsa &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    const Variabili &v = c.v;
    const Sfera sfera = c.sfera();
    const Sfera::Giorno giorno = sfera.giorno(v.deltaOpz.numero());
    const OmbreVere ombre = s.ombreVere();
    Direzione sole;
    Reale x, y;
    for (const LineaAttesa &l : linee) {
        const AngoloOrario ora = OraOrologio(v, l.parametro);
        sfera.azimut(sole, ora, giorno);
        // Always plus here.
        if (Sfera::quadranteErrato(sole, ora)) sole.A = sole.A + PI;
        if (v.segnoLatPiana == -1 && ora.Hr == 0 && sole.A == 0) sole.A = PI;
        sfera.altezza(sole, ora, giorno);
        sfera.punto(sole, x, y);
        if (!ombre.sposta(ora.Hr, PI * v.deltaOpz / 180, x, y)) continue;
        if (!c.cornice.contiene(x, y) || y > 0) continue;
        int numero = static_cast<int>(l.valore);
        if (numero > 12) numero -= 12;
        if (s.in.ckRomani == 1) DisegnaNumeroRomano(s, c.letto.romani * v.unita, x, y, PI / 2, numero);
        else DisegnaNumero(s, c.letto.arabi * v.unita, x, y, 90, numero);
    }
}

}  // namespace ombrelia::vertical
