// How the dial is mounted.
#include "certificato/posa.h"

#include <algorithm>

namespace ombrelia {

namespace {

double campo(const std::string &testo) {
    const Valore v = Val(testo);
    return v.esiste() ? v.v : 0;
}

// lat, dec, inc in degrees as the fields mean them.
Posa posa(const Sessione &s, double lat, double dec, double inc) {
    const DialInputs &in = s.in;
    Posa p;
    p.unita = in.ChCentimetro == 1 ? 0.001 : 1;
    p.australe = lat < 0;
    if (std::fabs(inc) == 90) dec = 0;  // a level plane looks nowhere
    p.quadrante.latitudine = std::clamp(lat, -90.0, 90.0) * ombra::RADIANTI;
    p.quadrante.declinazione = (p.australe ? 180 - dec : dec) * ombra::RADIANTI;
    p.quadrante.inclinazione = inc * ombra::RADIANTI;
    p.quadrante.gnomone = campo(in.TxtStilo) * p.unita;
    p.longitudine = campo(in.txtLonG) * ombra::RADIANTI;
    p.meridiano = campo(in.txtMeridiano) * ombra::RADIANTI;
    return p;
}

}  // namespace

Posa PosaDeiCampi(const Sessione &s) { return posa(s, campo(s.in.txtLAT), campo(s.in.txtDec), campo(s.in.txtInc)); }

Posa PosaDelDisegno(const Sessione &s) {
    const Variabili &v = s.v;
    if (v.flagVerticale == 1) {
        Posa p = posa(s, v.lat_o.numero() * ombra::GRADI, v.dec_o.numero() * ombra::GRADI, v.inc_o.numero());
        p.longitudine = v.lon_o.numero() * ombra::RADIANTI;
        return p;
    }
    const double lat = campo(s.in.txtLAT), premuta = v.latGradi.numero();
    return posa(s, lat == -premuta ? premuta : lat, campo(s.in.txtDec), campo(s.in.txtInc));
}

}  // namespace ombrelia
