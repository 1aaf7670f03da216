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
struct AngoloOrario : SenCos {
    double Hr;
    explicit AngoloOrario(Valore angolo) : SenCos(angolo), Hr(angolo.v) {}
    AngoloOrario(double angolo, const SenCos &suoi) : SenCos(suoi), Hr(angolo) {}
};

// Where the Sun stands, radians: azimuth A from the south, altitude h. A line carries one from point to point: where a
// statement faults, what the point before had stands.
struct Direzione {
    Reale A, h;
};

// What for: the Sun's place and its shadow on one wall. Given: latitude with its sign and declination of the wall, radians; hour
// angle and declination of the Sun. Gives: azimuth and altitude, and (x, y): metres from the foot of the ortostilo, x to the
// right, y upward, so negative for a Sun above the horizon. Source: the astronomical triangle of pole, zenith and Sun (Smart,
// Textbook on Spherical Astronomy, ch. II). Departure: the quadrant of the azimuth is mended from its arc tangent, by the rule
// that a line's own routine keeps. Faults: see Direzione.
class Sfera {
public:
    // What a declination contributes, and a sweep of hours does not change.
    struct Giorno {
        double cosTan, senSen, cosCos;
    };

    // A wall, its latitude with its sign.
    explicit Sfera(const Piano &p) : senLat_(p.sphi.v), cosLat_(p.cphi.v), decR_(p.g.v), gn_(p.gn.v), unita_(p.unita.v) {}

    // Degrees.
    [[nodiscard]] Giorno giorno(double delta) const {
        const double dr = PI * delta / 180;
        return giorno(std::tan(dr), std::sin(dr), std::cos(dr));
    }
    [[nodiscard]] Giorno giorno(double tanD, double senD, double cosD) const {
        return {cosLat_ * tanD, senLat_ * senD, cosLat_ * cosD};
    }

    // Denominator of the azimuth's tangent.
    [[nodiscard]] double denominatore(const AngoloOrario &o, const Giorno &g) const { return senLat_ * o.cos - g.cosTan; }
    void azimut(Direzione &s, const AngoloOrario &o, const Giorno &g) const {
        const Valore q = o.sen / denominatore(o, g);  // not finite where the denominator is 0
        if (q.esiste()) s.A = std::atan(q.v);
    }

    // The quadrant is wrong when A and the hour angle lie on different sides of the meridian.
    [[nodiscard]] static bool quadranteErrato(const Direzione &s, const AngoloOrario &o) {
        // The sign of the sine is that of the angle, but for a mended angle left over from the point before.
        const double a = s.A.numero();
        return segno(o.sen) != segno(std::fabs(a) < 3 ? a : std::sin(a));
    }
    // The solution nearer the plane's normal.
    void mendaMuro(Direzione &s) const { s.A = s.A.numero() - segno(s.A.numero() - decR_) * PI; }
    void azimutMuro(Direzione &s, const AngoloOrario &o, const Giorno &g) const {
        azimut(s, o, g);
        if (quadranteErrato(s, o)) mendaMuro(s);
    }
    // Half a turn towards the hour angle's side.
    static void mendaOra(Direzione &s, const AngoloOrario &o) {
        if (quadranteErrato(s, o)) s.A = s.A.numero() + segno(o.Hr) * PI;
    }
    void azimutOra(Direzione &s, const AngoloOrario &o, const Giorno &g) const {
        azimut(s, o, g);
        mendaOra(s, o);
    }
    [[nodiscard]] double declinazione() const { return decR_; }
    // Metres of abscissa a unit of the tangent.
    [[nodiscard]] double braccio() const { return unita_ * gn_; }
    [[nodiscard]] bool davanti(const Direzione &s) const { return std::fabs(s.A.numero() - decR_) < PI / 2; }

    // Sine of the altitude.
    [[nodiscard]] static double senAltezza(const AngoloOrario &o, const Giorno &g) { return g.senSen + g.cosCos * o.cos; }
    static void altezza(Direzione &s, const AngoloOrario &o, const Giorno &g) { s.h = ArcSin(senAltezza(o, g)); }

    // From the tangent and the cosine of the azimuth that counts from the wall's normal, and the tangent of the altitude.
    [[nodiscard]] Valore ascissa(double tanA) const { return unita_ * tanA * gn_; }
    [[nodiscard]] Valore ordinata(double cosA, double tanH) const { return Valore(unita_ * (tanH * -gn_)) / cosA; }
    void punto(const Direzione &s, Reale &x, Reale &y) const {
        const double a = s.A.numero() - decR_;
        x = ascissa(std::tan(a));
        y = ordinata(std::cos(a), std::tan(s.h.numero()));
    }
    // Whether a Sun of this azimuth and sine of the altitude is below the horizon of a plumb wall for sure, its point
    // above it. Says no near the wall's own plane, where the tenth digit of PI decides.
    [[nodiscard]] bool sottoTerra(double azimut, double senAltezza) const {
        return senAltezza < 0 && gn_ > 0 && std::fabs(azimut - decR_) < 1.57;
    }
    void puntoMuro(Direzione &s, const AngoloOrario &o, const Giorno &g, Reale &x, Reale &y) const {
        azimutMuro(s, o, g);
        altezza(s, o, g);
        punto(s, x, y);
    }
    void puntoOra(Direzione &s, const AngoloOrario &o, const Giorno &g, Reale &x, Reale &y) const {
        azimutOra(s, o, g);
        altezza(s, o, g);
        punto(s, x, y);
    }

    static constexpr int segno(double n) { return (n > 0) - (n < 0); }

private:
    double senLat_, cosLat_, decR_, gn_, unita_;
};

// Ordinate of the horizon of the original plane. Given: iz_o, radians, gn, unita; segno, 1 or -1. Gives: metres, y upward.
// Source, faults: as in stilo.h.
inline Valore OrizzonteOriginale(const Variabili &v, Valore segno) { return OrdinataOrizzonte(segno, v.unita, v.iz_o, v.gn); }

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

// The declination of a plane, folded as a southern latitude works it; a northern one keeps it. Given: the latitude's sign,
// degrees. Gives: degrees, -180..180. Source: by definition, half a turn. Faults: none.
inline Valore PiegaDeclinazione(Valore latR, Valore gradi) {
    if (!(latR < 0)) return gradi;
    const Valore girata = -(gradi + 180);
    return Abs(girata) > 180 ? girata - Sgn(girata) * 360 : girata;
}

// The hour angle of clock hour H, degrees: in zone time shifted by the difference of the meridians.
inline AngoloOrario OraOrologio(const Variabili &v, Valore H) {
    const Valore S = 180 * v.angOraLong / PI;
    return AngoloOrario(PI * (H - v.oraFuso * S) / 180);
}

}  // namespace ombrelia::vertical
