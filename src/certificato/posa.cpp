// How the dial is mounted.
#include "certificato/posa.h"

#include <algorithm>

namespace ombrelia {

namespace {

// lat, dec, inc in degrees as the fields mean them.
Posa posa(const Lettura &letto, double lat, double dec, double inc) {
    Posa p;
    p.unita = letto.unita.v;
    p.australe = lat < 0;
    if (std::fabs(inc) == 90) dec = 0;  // a level plane looks nowhere
    p.quadrante.latitudine = std::clamp(lat, -90.0, 90.0) * ombra::RADIANTI;
    p.quadrante.declinazione = (p.australe ? 180 - dec : dec) * ombra::RADIANTI;
    p.quadrante.inclinazione = inc * ombra::RADIANTI;
    p.quadrante.gnomone = NumeroDi(letto.gn) * p.unita;
    p.longitudine = NumeroDi(letto.lon) * ombra::RADIANTI;
    p.meridiano = NumeroDi(letto.meridiano) * ombra::RADIANTI;
    return p;
}

}  // namespace

Posa PosaDeiCampi(const Sessione &s) {
    const Lettura letto(s.in);
    return posa(letto, NumeroDi(letto.lat), NumeroDi(letto.dec), NumeroDi(letto.inc));
}

Posa PosaDelDisegno(const Sessione &s, const Lettura &letto) {
    const Variabili &v = s.v;
    if (v.flagVerticale == 1) {
        Posa p = posa(letto, v.lat_o.numero() * ombra::GRADI, v.dec_o.numero() * ombra::GRADI, v.inc_o.numero());
        p.longitudine = v.lon_o.numero() * ombra::RADIANTI;
        return p;
    }
    const double lat = NumeroDi(letto.lat), premuta = v.latGradi.numero();
    return posa(letto, lat == -premuta ? premuta : lat, NumeroDi(letto.dec), NumeroDi(letto.inc));
}

}  // namespace ombrelia
