// The wall that bears the same figure as a plane of any slope, elsewhere on the Earth.
#pragma once

#include "gnomonica/stilo.h"

namespace ombrelia {

// Radians. What faults has no value, but for the latitude, which is 0 then.
struct PareteEquivalente {
    Reale f1;                             // its latitude
    Valore d1 = Valore::nessuno();        // its declination, without sign
    Valore diffLong = Valore::nessuno();  // longitude of the plane less its own
    bool girata = false;                  // a plane that looks due south and leans beyond the pole: the wall looks due north
};

// The declination that the general case gives a wall of latitude f1. Given: the plane, f1 in radians. Gives: radians, without its
// sign. Source: as EquivalenteDi. Faults: no value where the cosine reaches 1.
inline Valore DeclinazioneEquivalente(const Piano &p, Valore f1) {
    return ArcCos(((p.ci * sin(f1) - p.sphi) / (p.si * cos(f1))) * Sgn(f1));
}

// The wall parallel to a plane, at another place. Given: the plane, and its declination in degrees as typed, which tells the
// cases of due south and north. Gives: see PareteEquivalente. Source: the triangle of the pole, the zenith and the wall's own
// zenith (Rohr, Sundials, a plane as the vertical dial of another place). Faults: as said there.
inline PareteEquivalente EquivalenteDi(const Piano &p, Valore dec) {
    PareteEquivalente e;
    const Reale A = p.senStilo(), B = p.senZenit();
    e.f1 = ArcSin(B);
    e.girata = dec == 0 && A > 0;
    if (e.girata || Abs(dec) == 180) {
        e.d1 = PI;
        e.diffLong = PI;
    } else if (dec == 0) {
        e.d1 = 0;
        e.diffLong = 0;
    } else {
        const Valore sf1 = sin(e.f1), cf1 = cos(e.f1);
        const Reale W = p.si * p.sg / cf1;
        e.d1 = DeclinazioneEquivalente(p, e.f1);
        e.diffLong = ArcCos((p.ci - p.sphi * sf1) / (p.cphi * cf1)) * Sgn(W);
    }
    return e;
}

}  // namespace ombrelia
