// The fundamental angles of a wall.
#include "gnomonica/angoli_parete.h"

#include "gnomonica/stilo.h"

namespace ombrelia {

namespace {

// What conics, hour lines and reports are worked out from.
void lasciaAngoli(Variabili &v) {
    const Piano p(v);
    if (v.lat == 0) {
        v.angSustilare = (PI / 2) * SegnoDeclinazione(v.decR);
        v.altStilo = StiloMuroEquatore(v.decR);
        v.angoloOra = (PI / 2) * v.segnoDec;  // the sign that the run before left: meant
    } else {
        v.angSustilare = SustilareMuro(p);
        v.altStilo = StiloMuro(p);
        v.angoloOra = -OraDaSustilare(v.angSustilare, v.altStilo);
    }
}

}  // namespace

void LasciaStiloParete(Variabili &v, const Piano &p) {
    v.segnoDec = SegnoDeclinazione(v.dec, v.decR);
    if (v.lat == 0) {
        v.angSustilare = (PI / 2) * v.segnoDec;
        v.altStilo = StiloMuroEquatore(v.decR);
    } else {
        v.angSustilare = SustilareMuro(p);
        v.altStilo = StiloMuroQuadrati(p);
    }
}

void CalcolaAngoliAnalitici(Sessione &s, const Lettura &letto) {
    LeggiParametri(s, letto);
    lasciaAngoli(s.v);
}

}  // namespace ombrelia
