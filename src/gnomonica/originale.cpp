// The original dial read anew.
#include "gnomonica/originale.h"

#include "core/angoli.h"

namespace ombrelia {

namespace {

// The original dial as the fields say it, no longer a transformed one's.
void lasciaOriginale(Variabili &v, const Lettura &letto, Valore latR, Valore decR, Valore incR) {
    v.lat_o = latR;
    v.dec_o = decR;
    v.iz_o = incR;
    v.lon_o = letto.lon;
    v.inc_o = letto.inc;
    v.diffLong = 0;
}

}  // namespace

void RinfrescaOriginale(Sessione &s, const Lettura &letto) {
    const Variabili &v = s.v;
    // Before the first read there is none; after a transformation the fields hold the equivalent dial.
    if (!s.originaleFresco || v.letture == 0 || v.flagVerticale != 0 || v.flagTrasformato != 0) return;
    const Valore latR = Abs(PI * letto.lat / 180), decR = PI * letto.dec / 180, incR = PI * letto.inc / 180;
    if (latR != v.lat_o || decR != v.dec_o || incR != v.iz_o) lasciaOriginale(s.v, letto, latR, decR, incR);
}

}  // namespace ombrelia
