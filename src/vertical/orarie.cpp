// Hour lines of the vertical engine, traced through the year so that they end at the solstices, and the places of the
// numerals on them.
#include "gnomonica/catena.h"
#include "gnomonica/spazzate.h"
#include "glyphs/numeri.h"
#include "vertical/piana.h"
#include "vertical/sfera.h"

namespace ombrelia::vertical {

void TracciaOreAstro(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    v.yOriz = OrdinataOrizzonte(v, Sgn(v.latR));
    v.oraFuso = s.in.ck_Etna == 1 ? 1 : 0;
    v.lon = Val(s.in.txtLonG);
    v.segnoDecPiana = v.decR == 0 ? Valore(1) : Sgn(v.decR);

    Sfera sfera(v);
    // By degrees up to 23.55, which the count meets to the last bit and which becomes the solstice.
    std::vector<Sfera::Giorno> anno;
    for (double d : Conteggio(-23.45, 23.55, 1)) {
        if (d == 23.55) d = 23.45;
        v.deltaOpz = d;
        anno.push_back(sfera.giorno(d));
    }
    const Orizzonte orizzonte(v);
    const Valore verso = 15 * v.segnoDecPiana;
    struct Famiglia {
        Valore inizio, passo;
        std::string_view strato;
        bool si, ore;
        Colore colore;
    };
    // The quarters run over hours and halves too and overlie them: meant.
    const Famiglia famiglie[] = {
        {-180 + verso, 15, "Astro", true, true, QB(7)},
        {-172.5 + verso, 15, "", v.gradiPasso < 15, false, QB(13)},
        {-172.5 + verso, 3.75, "", Val(s.in.TxtFraz) == 4, false, QB(4)},
    };
    Reale x, y;
    for (const Famiglia &f : famiglie) {
        if (!f.si) continue;
        Catena catena(s.tavolo, f.strato);
        for (const double H : Conteggio(f.inizio, 180 + verso, f.passo)) {
            const Colore colore = !f.ore ? f.colore : H == 0 ? QB(12) : std::fabs(H) == 90 ? QB(9) : f.colore;
            const Orario ora = OraOrologio(v, H);
            // 0..24: the sweep goes past midnight.
            const Pretendi pretendi(s.tavolo, Specie::Ora, H < -180 ? 36 + H / 15 : H > 180 ? H / 15 - 12 : 12 + H / 15);
            for (const Sfera::Giorno &g : anno) {
                sfera.puntoMuro(ora, g, x, y);
                catena.punto(x, y, orizzonte.passa(y, catena.yPrima()) && cornice.contiene(x, y), colore);
            }
            catena.fine();
        }
    }
}

void PosizionaNumeriOrari(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    v.oraFuso = s.in.ck_Etna == 1 ? 1 : 0;
    v.decGradi = Val(s.in.txtDec);
    PiegaDeclinazione(v);
    v.lon = Val(s.in.txtLonG);
    v.deltaOpz = Val(s.in.txtDelta);
    Sfera sfera(v);
    const Sfera::Giorno giorno = sfera.giorno(v.deltaOpz.numero());
    Reale x, y;
    for (const double H : Conteggio(-90, 90, 15)) {
        const Orario ora = OraOrologio(v, H);
        sfera.azimut(ora, giorno);
        // Always plus here.
        if (sfera.quadranteErrato(ora)) sfera.A = sfera.A + PI;
        if (v.segnoLatPiana == -1 && ora.Hr == 0 && sfera.A == 0) sfera.A = PI;
        sfera.altezza(ora, giorno);
        sfera.punto(x, y);
        if (!cornice.contiene(x, y) || y > 0) continue;
        int numero = static_cast<int>(12 + H / 15);
        if (numero > 12) numero -= 12;
        if (s.in.ckRomani == 1) DisegnaNumeroRomano(s, x, y, PI / 2, numero);
        else DisegnaNumero(s, x, y, 90, numero);
    }
}

}  // namespace ombrelia::vertical
