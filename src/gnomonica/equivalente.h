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

// Cosines of the declination of a wall of latitude f1 and of its difference of longitude, in the general case. Given: the plane,
// f1 in radians. Gives: cosines. Source: as EquivalenteDi. Faults: no value where the wall lies at a pole or the plane is one.
inline Valore CosDeclinazioneEquivalente(const Piano &p, Valore f1) { return (p.ci * sin(f1) - p.sphi) / (p.si * cos(f1)); }
inline Valore CosDifferenza(const Piano &p, Valore f1) { return (p.ci - p.sphi * sin(f1)) / (p.cphi * cos(f1)); }
// The sine of that difference, for its sign. Given, gives, source, faults: as above.
inline Valore SenDifferenza(const Piano &p, Valore f1) { return p.si * p.sg / cos(f1); }

// The declination that the general case gives a wall of latitude f1. Given: the plane, f1 in radians. Gives: radians, without its
// sign. Source: as EquivalenteDi. Faults: no value where the cosine reaches 1.
inline Valore DeclinazioneEquivalente(const Piano &p, Valore f1) { return ArcCos(CosDeclinazioneEquivalente(p, f1) * Sgn(f1)); }

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
        const Reale W = SenDifferenza(p, e.f1);
        e.d1 = DeclinazioneEquivalente(p, e.f1);
        e.diffLong = ArcCos(CosDifferenza(p, e.f1)) * Sgn(W);
    }
    return e;
}

// The same as the hours' report counts it. Given: the plane, its declination in degrees as typed, the sign of the wall's. Gives:
// see PareteEquivalente, the declination with that sign. Source: as above; departures: a plane that looks due south is never
// turned round, a wall of southern latitude is not counted by its mirror image, and where a cosine reaches 1 its angle is 0.
// Faults: a cosine of the longitude that overflows is 0, one of the declination that of the longitude.
inline PareteEquivalente EquivalenteDelleOre(const Piano &p, Valore dec, Valore segno) {
    PareteEquivalente e;
    e.f1 = ArcSin(p.senZenit());
    if (dec == 0 || Abs(dec) == 180) {
        e.d1 = e.diffLong = dec == 0 ? 0 : PI;
        return e;
    }
    const Reale W = SenDifferenza(p, e.f1);
    Reale coseno = CosDifferenza(p, e.f1);
    e.diffLong = Abs(coseno) < 1 ? ArcCos(coseno) * Sgn(W) : Valore(0);
    coseno = CosDeclinazioneEquivalente(p, e.f1);
    e.d1 = p.i == 0 ? p.g : Abs(coseno) < 1 ? ArcCos(coseno) * segno : Valore(0);
    return e;
}

}  // namespace ombrelia
