// The one projection of a Sun position onto a plane of any declination and inclination, and the Sun of the mean-time
// curves. Engines sweep them; nothing here draws.
#pragma once

#include "gnomonica/stilo.h"

namespace ombrelia {

// Sine and cosine of an hour angle, taken once where many points share it.
struct SenCos {
    double sen = 0, cos = 1;
    SenCos() = default;
    explicit SenCos(Valore t) : sen(std::sin(t.v)), cos(std::cos(t.v)) {}
};

// Central projection of the Sun's direction through the tip of the ortostilo onto the plane. Given: hour angle t, radians,
// negative before noon, and the tangent of the declination D; the plane's declination West positive. Gives: (x, y), metres from
// the foot of the ortostilo, x to the right, y upward, scaled by unita. Source: Rohr, Sundials; the gnomonic projection (Snyder,
// Map Projections: A Working Manual, ch. 22) turned onto the plane; departure: the denominator's sign, the side of the plane, is
// not tested. Faults: where the denominator is 0 or the result overflows, x and y keep their old values.
class Proiezione {
public:
    // The plane: latitude phi and declination g, inclination i from the vertical, radians; lengths as typed and their unit.
    static Proiezione delPiano(Valore phi, Valore g, Valore i, Valore gn, Valore unita) {
        return Proiezione(Piano(phi, g, i, gn, unita));
    }
    explicit Proiezione(const Piano &p)
        : sphi_(p.sphi.v), cphi_(p.cphi.v), sg_(p.sg.v), cg_(p.cg.v), gn_(p.gn.v), unita_(p.unita.v) {
        const double sz = p.sz.v, cz = p.cz.v;
        c1_ = sphi_ * cz - cphi_ * sz * cg_;
        sgsz_ = sg_ * sz;
        b_ = cphi_ * cz + sphi_ * sz * cg_;
        czsg_ = cz * sg_;
        d_ = cphi_ * sz - sphi_ * cz * cg_;
        e_ = sphi_ * sz + cphi_ * cz * cg_;
    }

    void operator()(const SenCos &t, double tanD, Reale &x, Reale &y) const {
        const double den = sgsz_ * t.sen + b_ * t.cos + c1_ * tanD;
        const double nx = cg_ * t.sen - (sphi_ * t.cos - cphi_ * tanD) * sg_;
        const double ny = czsg_ * t.sen - d_ * t.cos - e_ * tanD;
        // den is finite, so a fault shows in the quotient itself: infinite or no number, hence no value.
        x = gn_ * nx / den * unita_;
        y = gn_ * ny / den * unita_;
    }
    void operator()(Valore t, Valore D, Reale &x, Reale &y) const { (*this)(SenCos(t), std::tan(D.v), x, y); }

    // The same point as the wall's prayer and azimuth lines write it: terms and factors in an order of their own.
    void perParete(const SenCos &t, double tanD, Reale &x, Reale &y) const {
        const double den = tanD * c1_ + sgsz_ * t.sen + b_ * t.cos;
        const double nx = cg_ * t.sen - (sphi_ * t.cos - cphi_ * tanD) * sg_;
        const double ny = czsg_ * t.sen - d_ * t.cos - e_ * tanD;
        x = unita_ * nx * gn_ / den;
        y = unita_ * ny * gn_ / den;
    }

    // On the equinoctial, where the terms of the declination are not written.
    void equinozio(const SenCos &t, Reale &x, Reale &y) const {
        const double den = sgsz_ * t.sen + b_ * t.cos;
        const double nx = cg_ * t.sen - sphi_ * t.cos * sg_;
        const double ny = czsg_ * t.sen - d_ * t.cos;
        x = gn_ * nx / den * unita_;
        y = gn_ * ny / den * unita_;
    }

private:
    double sphi_, cphi_, sg_, cg_, gn_, unita_;
    double c1_, sgsz_, b_, czsg_, d_, e_;
};

// The Sun at a mean longitude: what mean noon needs.
struct SoleMedio {
    double D;   // declination, radians
    double Et;  // equation of time, radians of hour angle: reduction to the equator less equation of the centre
};

// The Sun by a short series: equation of the centre and reduction to the equator. Given: mean longitude M, radians from the
// spring equinox. Gives: see SoleMedio. Source: the expansions of Smart, Textbook on Spherical Astronomy (the equation of time),
// with an almanac's coefficients; departure: cut short, good to a few seconds of time, no year of its own. Faults: none.
SoleMedio SoleAllaLongitudine(double M);

}  // namespace ombrelia
