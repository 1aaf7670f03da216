// The fundamental angles of a wall.
#include "gnomonica/angoli_parete.h"

#include "gnomonica/stilo.h"

namespace ombrelia {

void CalcolaAngoliAnalitici(Sessione &s) {
    Variabili &v = s.v;
    LeggiParametri(s);
    const Valore segno = v.decR == 0 ? Valore(1) : Sgn(v.decR);
    if (v.lat == 0) {
        v.angSustilare = (PI / 2) * segno;
        v.altStilo = StiloMuroEquatore(v.decR);
        v.angoloOra = (PI / 2) * v.segnoDec;  // the sign that the run before left: meant
    } else {
        v.angSustilare = SustilareMuro(v.latR, v.decR);
        v.altStilo = StiloMuro(v.latR, v.decR);
        v.angoloOra = -Atn(tan(v.angSustilare) / sin(v.altStilo));
    }
}

}  // namespace ombrelia
