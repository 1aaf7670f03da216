// The shadow of a gnomon's tip by vectors alone: unit vectors of site, plane and Sun, a central projection and its
// inverse. A second witness beside the engines: nothing of theirs is used here and nothing here is used by them.
#pragma once

#include <cstdint>
#include <numbers>
#include <optional>

#include "ombra/vettore.h"

namespace ombrelia::ombra {

inline constexpr double RADIANTI = std::numbers::pi / 180;  // times degrees
inline constexpr double GRADI = 180 / std::numbers::pi;     // times radians
// Beyond this declination, radians, there is no Sun: the solstices' 23.44 and what dials draw for them.
inline constexpr double DECLINAZIONE_MASSIMA = 23.45 * RADIANTI;

// A dial as it is mounted. Radians and metres.
struct QuadranteMontato {
    double latitudine = 0;    // North positive
    double declinazione = 0;  // azimuth the plane looks to: from South, West positive, on both hemispheres
    double inclinazione = 0;  // 0 a wall, pi/2 a level plane that looks up
    double gnomone = 0;       // length of the ortostilo
};

// Whether a shadow falls, or why none does: the Sun is down, behind the plane or in it, or nowhere in the year.
enum class Luce : std::uint8_t { Si, Notte, Dietro, Radente, Mai };

// On the plane: metres from the foot of the ortostilo, x to the right as one faces the plane, y upward along it.
struct Punto {
    double x = 0, y = 0;
};

// The Sun of a shadow, radians: hour angle negative before noon, declination North positive, altitude, azimuth from South
// with West positive.
struct SoleLetto {
    Luce luce = Luce::Mai;
    double t = 0, delta = 0, altezza = 0, azimut = 0;
};

struct Getto {
    Luce luce = Luce::Notte;  // the point exists when it is Si
    Punto punto;
};

// Points (x, y) with a x + b y = c, a and b of unit length together; both 0 when there is no such line.
struct Retta {
    double a = 0, b = 0, c = 0;
};

// How the shadow moves: metres a radian of hour angle and a radian of declination.
struct Moto {
    Punto perT, perDelta;
};

// A dial and its shadows. Given: radians, metres. Gives: see the structs; frame of Punto on the plane, of Vettore as vettore.h
// has it. Source: elementary vector geometry, a central projection through the tip; no formula of a dial. Faults: what does not
// exist is part of the value.
class PianoMontato {
public:
    explicit PianoMontato(const QuadranteMontato &q);

    // Direction of the Sun at hour angle t and declination delta.
    [[nodiscard]] static Vettore sole(double t, double delta) {
        const double c = std::cos(delta);
        return {c * std::cos(t), c * std::sin(t), std::sin(delta)};
    }
    // Forward: the shadow of the tip, or the reason that there is none.
    [[nodiscard]] Getto getta(double t, double delta) const { return getta(sole(t, delta)); }
    [[nodiscard]] Getto getta(const Vettore &s) const;
    // The same point with no regard to night or side: where the line through Sun and tip meets the plane. None when it
    // runs along the plane.
    [[nodiscard]] std::optional<Punto> proietta(const Vettore &s) const;
    // Direction of the Sun whose shadow falls on a point; always in front of the plane.
    [[nodiscard]] Vettore versoIlSole(const Punto &p) const;
    // Back: the Sun that puts the shadow on a point. Night goes before Mai.
    [[nodiscard]] SoleLetto leggi(const Punto &p) const { return leggi(versoIlSole(p)); }
    [[nodiscard]] SoleLetto leggi(const Vettore &s) const;
    // Derivatives of the shadow at a Sun in front of the plane.
    [[nodiscard]] Moto moto(double t, double delta) const;

    // Where the polar style leaves the plane; none when it runs along it.
    [[nodiscard]] std::optional<Punto> centro() const { return proietta({0, 0, 1}); }
    // The line that the polar style's shadow lies on at an hour angle, all day lines crossed.
    [[nodiscard]] Retta ombraDelloStilo(double t) const;
    // The plane's meeting with the horizontal plane through the tip: the Sun on the horizon. None on a level plane.
    [[nodiscard]] Retta orizzonte() const { return retta(zenit_); }
    // The points whose Sun stands square to a direction of the sky.
    [[nodiscard]] Retta retta(const Vettore &normale) const;

    [[nodiscard]] const QuadranteMontato &quadrante() const { return q_; }
    [[nodiscard]] const Vettore &normale() const { return n_; }
    [[nodiscard]] const Vettore &zenit() const { return zenit_; }
    [[nodiscard]] const Vettore &sud() const { return sud_; }
    // Axes of the plane, to the right and upward as one faces it.
    [[nodiscard]] const Vettore &destra() const { return x_; }
    [[nodiscard]] const Vettore &alto() const { return y_; }

private:
    QuadranteMontato q_;
    Vettore zenit_, sud_;  // of the site
    Vettore n_, x_, y_;    // of the plane: outward, right, up
};

// --- hours, from the Sun's hour angle and declination, radians -------------------------------------------------------
// All hours. Given: latitude North positive, hour angle t (afternoon positive), declination. Gives: hours, or radians. Source:
// cos H = -tan phi tan delta (Smart, Textbook on Spherical Astronomy, ch. II); the kinds of hours as Rohr, Sundials, tells them.
// Faults: none where there is no such hour.
//
// Half of the day's arc, 0 to pi; none where the Sun neither rises nor sets. The Sun's centre, no refraction.
[[nodiscard]] std::optional<double> semiarco(double latitudine, double delta);
// True hour, 0 to 24, noon at 12.
[[nodiscard]] double oraVera(double t);
// Hours since sunset, above 0 to 24; since sunrise, 0 to below 24; twelfths of the day since sunrise, by day only.
[[nodiscard]] std::optional<double> italica(double latitudine, double t, double delta);
[[nodiscard]] std::optional<double> babilonica(double latitudine, double t, double delta);
[[nodiscard]] std::optional<double> temporaria(double latitudine, double t, double delta);

}  // namespace ombrelia::ombra
