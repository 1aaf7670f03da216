// Almucantars.
#include "gnomonica/almucantarat.h"

#include "core/conteggio.h"
#include "gnomonica/declinazioni.h"
#include "gnomonica/proiezione.h"
#include "gnomonica/spazzate.h"

namespace ombrelia {

void LineeAlmucantarat(const Lettura &letto, LineeAttese &linee) {
    const Reale hMax = (90 - letto.lat) + OBLIQUITA;
    for (const double h : Conteggio(10, hMax, 10)) linee.push_back({h, h, "", ROSSO_SCURO});
}

namespace {

// The plane read again, latitude with its sign, without declination where it lies level; where the sweep ends.
void rileggiPiano(CorsaBase &c, const Conteggio &anno) {
    Variabili &v = c.s.v;
    const Lettura &letto = c.letto;
    v.latR = PI * letto.lat / 180.0;
    v.gn = letto.gn;
    v.incR = PI * letto.inc / 180;
    if (Abs(letto.inc) == 90) v.decR = 0;
    LasciaFine(v, anno);
    c.rifaiPiano();
}

}  // namespace

void TracciaAlmucantarat(CorsaBase &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    const Conteggio declinazioni(-OBLIQUITA_2345, OBLIQUITA_2345, c.letto.passo * 10);
    rileggiPiano(c, declinazioni);
    const Piano &p = c.piano();
    const bool orizzontale = Abs(c.letto.inc) == 90;
    const Reale limite = p.gn * p.ti;
    const bool nord = p.phi >= 0;

    struct TerminiDelGiorno {
        double tanD, senTermine, cosTermine;
    };
    std::vector<TerminiDelGiorno> anno;
    for (const double d : declinazioni) {
        const double D = PI * d / 180;
        anno.push_back({std::tan(D), p.sphi.v * std::sin(D), p.cphi.v * std::cos(D)});
    }
    const Proiezione proietta(p);
    Reale coseno, t, x, y;
    for (const bool mattina : {true, false}) {
        for (const LineaAttesa &l : linee) {
            const Pretendi pretendi(s.tavolo, Specie::Almucantarat, l.valore);
            const double senH = std::sin(PI * l.parametro / 180);
            for (const TerminiDelGiorno &a : anno) {
                coseno = (Valore(senH) - a.senTermine) / a.cosTermine;
                if (Abs(coseno) > 1) continue;
                t = mattina ? -ArcCos(coseno) : ArcCos(coseno);
                proietta(SenCos(t), a.tanD, x, y);
                if (!c.cornice.contiene(x, y)) continue;
                if (nord && y <= limite) s.tavolo.TracciaPunto(x, y, l.colore);
                if (!nord && y >= limite) s.tavolo.TracciaPunto(-x, -y, l.colore);
                // On a horizontal plane every point of the frame is plotted once more.
                if (orizzontale) s.tavolo.TracciaPunto(x, y, l.colore);
            }
        }
    }
}

}  // namespace ombrelia
