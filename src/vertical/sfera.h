// The projection of the vertical engine: hour angle and declination to azimuth and altitude, and these to a point of the
// wall. With it what its lines share: the horizon, the substyle's angle and the difference of meridians.
#pragma once

#include "core/angoli.h"
#include "core/variabili.h"
#include "gnomonica/spazzate.h"
#include "gnomonica/stilo.h"

namespace ombrelia::vertical {

// Room of the lines of Italic, Babylonian and temporary hours; a point beyond it is neither kept nor joined.
inline constexpr std::size_t PUNTI_LINEA = 60000;

// An hour angle, radians, 0 at noon and positive in the afternoon.
struct Orario : SenCos {
    double Hr;
    explicit Orario(Valore angolo) : SenCos(angolo), Hr(angolo.v) {}
    Orario(double angolo, const SenCos &suoi) : SenCos(suoi), Hr(angolo) {}
};

// Spherical trigonometry of one wall (any textbook's astronomical triangle). Given hour angle and declination gives the
// azimuth A from the south, the altitude h, and (x, y): metres from the foot of the ortostilo, x to the right, y upward,
// so negative for a Sun above the horizon. A and h are running values: where their statement faults the last ones stand.
class Sfera {
public:
    // What a declination contributes, and a sweep of hours does not change.
    struct Giorno {
        double cosTan, senSen, cosCos;
    };

    // The wall of the shared variables as they stand: latR with its sign, decR, gn and unita.
    explicit Sfera(const Variabili &v)
        : senLat_(std::sin(Valore(v.latR).v)),
          cosLat_(std::cos(Valore(v.latR).v)),
          decR_(v.decR.numero()),
          gn_(v.gn.numero()),
          unita_(v.unita.numero()) {}

    // Degrees.
    [[nodiscard]] Giorno giorno(double delta) const {
        const double dr = PI * delta / 180;
        return giorno(std::tan(dr), std::sin(dr), std::cos(dr));
    }
    [[nodiscard]] Giorno giorno(double tanD, double senD, double cosD) const {
        return {cosLat_ * tanD, senLat_ * senD, cosLat_ * cosD};
    }

    // Denominator of the azimuth's tangent.
    [[nodiscard]] double denominatore(const Orario &o, const Giorno &g) const { return senLat_ * o.cos - g.cosTan; }
    void azimut(const Orario &o, const Giorno &g) {
        const Valore q = o.sen / denominatore(o, g);  // not finite where the denominator is 0
        if (q.esiste()) A = std::atan(q.v);
    }

    // The quadrant is wrong when A and the hour angle lie on different sides of the meridian.
    [[nodiscard]] bool quadranteErrato(const Orario &o) const {
        // The sign of the sine is that of the angle, but for a mended angle left over from the point before.
        const double a = A.numero();
        return segno(o.sen) != segno(std::fabs(a) < 3 ? a : std::sin(a));
    }
    // The solution nearer the plane's normal.
    void mendaMuro() { A = A.numero() - segno(A.numero() - decR_) * PI; }
    void azimutMuro(const Orario &o, const Giorno &g) {
        azimut(o, g);
        if (quadranteErrato(o)) mendaMuro();
    }
    // Half a turn towards the hour angle's side.
    void mendaOra(const Orario &o) {
        if (quadranteErrato(o)) A = A.numero() + segno(o.Hr) * PI;
    }
    void azimutOra(const Orario &o, const Giorno &g) {
        azimut(o, g);
        mendaOra(o);
    }
    [[nodiscard]] double declinazione() const { return decR_; }
    // Metres of abscissa a unit of the tangent.
    [[nodiscard]] double braccio() const { return unita_ * gn_; }
    [[nodiscard]] bool davanti() const { return std::fabs(A.numero() - decR_) < PI / 2; }

    // Sine of the altitude.
    [[nodiscard]] static double senAltezza(const Orario &o, const Giorno &g) { return g.senSen + g.cosCos * o.cos; }
    void altezza(const Orario &o, const Giorno &g) { h = ArcSin(senAltezza(o, g)); }

    // From the tangent and the cosine of the azimuth that counts from the wall's normal, and the tangent of the altitude.
    [[nodiscard]] Valore ascissa(double tanA) const { return unita_ * tanA * gn_; }
    [[nodiscard]] Valore ordinata(double cosA, double tanH) const { return Valore(unita_ * (tanH * -gn_)) / cosA; }
    void punto(Reale &x, Reale &y) const {
        const double a = A.numero() - decR_;
        x = ascissa(std::tan(a));
        y = ordinata(std::cos(a), std::tan(h.numero()));
    }
    // Whether a Sun of this azimuth and sine of the altitude is below the horizon of a plumb wall for sure, its point
    // above it. Says no near the wall's own plane, where the tenth digit of PI decides.
    [[nodiscard]] bool sottoTerra(double azimut, double senAltezza) const {
        return senAltezza < 0 && gn_ > 0 && std::fabs(azimut - decR_) < 1.57;
    }
    void puntoMuro(const Orario &o, const Giorno &g, Reale &x, Reale &y) {
        azimutMuro(o, g);
        altezza(o, g);
        punto(x, y);
    }
    void puntoOra(const Orario &o, const Giorno &g, Reale &x, Reale &y) {
        azimutOra(o, g);
        altezza(o, g);
        punto(x, y);
    }

    static constexpr int segno(double n) { return (n > 0) - (n < 0); }

    Reale A, h;

private:
    double senLat_, cosLat_, decR_, gn_, unita_;
};

// Ordinate of the horizon of the original plane, scaled, times segno.
inline Valore OrdinataOrizzonte(const Variabili &v, Valore segno) { return segno * v.unita * tan(v.iz_o) * v.gn; }

// The chord test against it: both ends.
class Orizzonte {
public:
    explicit Orizzonte(const Variabili &v) : yOriz_(v.yOriz.numero()), sotto_(v.iz_o < PI / 2) {}
    [[nodiscard]] bool passa(Reale y, Reale yPrima) const { return lato(y.numero()) && lato(yPrima.numero()); }

private:
    [[nodiscard]] bool lato(double y) const { return sotto_ ? y <= yOriz_ : y >= yOriz_; }
    double yOriz_;
    bool sotto_;
};

// Folds decGradi as a southern latitude works the plane; a northern one keeps it.
inline void PiegaDeclinazione(Variabili &v) {
    if (!(v.latR < 0)) return;
    v.decGradi = -(v.decGradi + 180);
    if (Abs(v.decGradi) > 180) v.decGradi = v.decGradi - Sgn(v.decGradi) * 360;
}

// The hour angle of clock hour H, degrees: in zone time shifted by the difference of the meridians.
inline Orario OraOrologio(const Variabili &v, Valore H) {
    const Valore S = 180 * v.angOraLong / PI;
    return Orario(PI * (H - v.oraFuso * S) / 180);
}

}  // namespace ombrelia::vertical
