// The conic of a day line on a wall: the section of the cone of the Sun's rays through the gnomon's tip by the dial's
// plane. Its constants, its points and the two frames they live in; nothing here draws.
#pragma once

#include "gnomonica/stilo.h"

namespace ombrelia {

// 1 / tan² of a declination. Given: degrees. Gives: a number. Source: elementary geometry. Faults: no value at 0.
inline Valore QuadratoCotangente(Valore gradi) {
    const Valore t = tan(Radianti(gradi));
    return 1 / (t * t);
}

// The two roots of a z² + b z + c = 0, by the sign of the square root.
struct Radici {
    bool reali;
    Valore meno, piu;
};

// a z² + b z + c = 0. All. Given: a, b, c. Gives: numbers. Source: elementary algebra. Faults: reali is false, and the roots are
// nothing, when the discriminant is negative or none; at a = 0 they have no value.
struct Quadratica {
    Valore a, b, c;
    [[nodiscard]] Valore discriminante() const { return b * b - 4 * a * c; }
    // By a discriminant of the caller's own.
    [[nodiscard]] Radici radici(Valore disc) const {
        if (!(disc >= 0)) return {false, Valore::nessuno(), Valore::nessuno()};
        const Valore radice = Sqr(disc);
        return {true, (-b - radice) / (2 * a), (-b + radice) / (2 * a)};
    }
    [[nodiscard]] Radici radici() const { return radici(discriminante()); }
};
// Given, gives, source, faults: as above.
inline Radici RisolviQuadratica(Valore a, Valore b, Valore c) { return Quadratica{a, b, c}.radici(); }

// Frame (u, v): origin P where substyle and equinoctial meet, u along the equinoctial, v along the substyle towards the
// centre. Frame (x, y) of the dial: origin at the foot of the ortostilo, x to the right, y upward. Given: style and
// substyle; y0, the distance from foot to P. Gives: x, y in the unit of y0. Source: plane geometry, a
// turn and a shift. Faults: none.
class RiferimentoSustilare {
public:
    RiferimentoSustilare(Valore sigma, Valore y0) : RiferimentoSustilare(Stilo(0, sigma), y0) {}
    RiferimentoSustilare(const Stilo &stilo, Valore y0) : cs_(stilo.cs), ss_(stilo.ss), y0_(y0) {}
    [[nodiscard]] Valore x(Valore u, Valore v) const { return u * cs_ - (v - y0_) * ss_; }
    [[nodiscard]] Valore y(Valore u, Valore v) const { return u * ss_ + (v - y0_) * cs_; }

private:
    Valore cs_, ss_, y0_;
};

// A day line: v² + Q v + R u² + P = 0 in the frame (u, v); A negative is a hyperbola, positive an ellipse. Given, gives: see
// calcola. Source: analytic geometry of the cone of the Sun's rays cut by the plane (Savoie, La gnomonique, day lines);
// departure: both the declination and its opposite satisfy it. Faults: a constant that faults keeps its value, 0 at birth.
struct Conica {
    Reale A, R, Q, P;

    // m is 1 / tan² of the declination, epsilon the elevation of the style over the plane, radians; gn in any unit.
    void calcola(Valore m, Valore epsilon, Valore gn) { calcola(m, Stilo(epsilon, 0), gn); }
    void calcola(Valore m, const Stilo &s, Valore gn) {
        const Valore obliqua = gn / s.ce;
        A = s.se * s.se - m * (s.ce * s.ce);
        R = 1 / A;
        Q = -2 * gn * s.te / A;
        P = obliqua * obliqua / A;
    }
};

// Ordinates of a conic at an abscissa, in the dial's frame; made once a sweep. Given: x in the unit of y0. Gives: both ordinates,
// y upward. Source: Conica turned by sigma. Faults: as RisolviQuadratica.
class OrdinateConica {
public:
    OrdinateConica(const Conica &k, Valore sigma, Valore y0) : OrdinateConica(k, Stilo(0, sigma), y0) {}
    OrdinateConica(const Conica &k, const Stilo &stilo, Valore y0) : R_(k.R), Q_(k.Q), P_(k.P), cr_(stilo.cs), sr_(-stilo.ss) {
        a_ = cr_ * cr_ + R_ * (sr_ * sr_);
        b0_ = 2 * y0 * cr_;
        b2_ = 2 * R_ * sr_;
        b3_ = Q_ * cr_;
        c0_ = y0 * y0;
        c1_ = sr_ * sr_;
        c2_ = 2 * y0;
        c3_ = Q_ * y0;
    }
    [[nodiscard]] Radici operator()(Valore x) const {
        const Valore xc = x * cr_;
        const Valore b = b0_ + 2 * x * cr_ * sr_ - b2_ * xc + b3_;
        const Valore c = c0_ + x * x * c1_ + c2_ * x * sr_ + R_ * (xc * xc) + c3_ + Q_ * x * sr_ + P_;
        return RisolviQuadratica(a_, b, c);
    }

private:
    Valore R_, Q_, P_, cr_, sr_;
    Valore a_ = 0, b0_ = 0, b2_ = 0, b3_ = 0, c0_ = 0, c1_ = 0, c2_ = 0, c3_ = 0;
};

// Abscissas of a conic at the ordinate L, in the dial's frame. Given: L in the unit of y0, y upward. Gives: both abscissas.
// Source and faults: as above.
inline Radici AscisseConica(const Conica &k, Valore sigma, Valore y0, Valore L) {
    const Valore ss = sin(sigma), cs = cos(sigma), R = k.R, Q = k.Q, P = k.P;
    const Valore a = ss * ss + R * (cs * cs);
    const Valore b = -2 * y0 * ss - 2 * L * ss * cs + 2 * R * L * cs * ss - Q * ss;
    const Valore c = y0 * y0 + L * L * (cs * cs) + 2 * y0 * L * cs + R * (L * L) * (ss * ss) + Q * y0 + Q * L * cs + P;
    return RisolviQuadratica(a, b, c);
}

// What gives a conic's ordinates on the vertical through the foot, x = 0, with the terms of x unwritten: the reports'. Given: as
// above. Gives: the equation of both ordinates, y upward, in the unit of y0. Source, faults: as above.
inline Quadratica OrdinateSulPiede(const Conica &k, Valore sigma, Valore y0) {
    const Valore ss = sin(sigma), cs = cos(sigma);
    return {cs * cs + k.R * (ss * ss), cs * (2 * y0 + k.Q), y0 * y0 + k.Q * y0 + k.P};
}

}  // namespace ombrelia
