// Geometry of the shadow.
#include "ombra/ombra.h"

#include <algorithm>

namespace ombrelia::ombra {

namespace {

constexpr Vettore OVEST{0, 1, 0};
// A Sun nearer to the plane than this (sine) grazes it: its shadow would fall a billion gnomons away.
constexpr double RADENZA = 1e-9;

double giro(double ore) {
    const double r = std::fmod(ore, 24);
    return r < 0 ? r + 24 : r;
}

}  // namespace

PianoMontato::PianoMontato(const QuadranteMontato &q) : q_(q) {
    const double sl = std::sin(q.latitudine), cl = std::cos(q.latitudine);
    const double sd = std::sin(q.declinazione), cd = std::cos(q.declinazione);
    const double si = std::sin(q.inclinazione), ci = std::cos(q.inclinazione);
    zenit_ = {cl, 0, sl};
    sud_ = {sl, 0, -cl};
    const Vettore fronte = cd * sud_ + sd * OVEST;  // level, where the plane looks to
    n_ = ci * fronte + si * zenit_;
    x_ = sd * sud_ - cd * OVEST;
    y_ = ci * zenit_ - si * fronte;
}

std::optional<Punto> PianoMontato::proietta(const Vettore &s) const {
    const double sn = s * n_;
    if (!(std::fabs(sn) > RADENZA)) return {};
    const double k = -q_.gnomone / sn;
    return Punto{k * (s * x_), k * (s * y_)};
}

Getto PianoMontato::getta(const Vettore &s) const {
    if (!(s * zenit_ > 0)) return {Luce::Notte, {}};
    const double sn = s * n_;
    if (std::fabs(sn) <= RADENZA) return {Luce::Radente, {}};
    if (sn < 0) return {Luce::Dietro, {}};
    return {Luce::Si, *proietta(s)};
}

Vettore PianoMontato::versoIlSole(const Punto &p) const {
    const Vettore v = std::copysign(1, q_.gnomone) * (q_.gnomone * n_ - p.x * x_ - p.y * y_);
    const double d = std::sqrt(v * v);
    return d > 0 ? (1 / d) * v : n_;
}

SoleLetto PianoMontato::leggi(const Vettore &s) const {
    const double u = s * zenit_, sud = s * sud_;
    SoleLetto l;
    l.t = std::atan2(s.w, s.m);
    l.delta = std::atan2(s.p, std::hypot(s.m, s.w));
    l.altezza = std::atan2(u, std::hypot(sud, s.w));
    l.azimut = std::atan2(s.w, sud);
    const double sn = s * n_;
    if (!(u > 0)) l.luce = Luce::Notte;
    else if (std::fabs(sn) <= RADENZA) l.luce = Luce::Radente;
    else if (sn < 0) l.luce = Luce::Dietro;
    else l.luce = std::fabs(l.delta) > DECLINAZIONE_MASSIMA ? Luce::Mai : Luce::Si;
    return l;
}

Moto PianoMontato::moto(double t, double delta) const {
    const double st = std::sin(t), ct = std::cos(t), sd = std::sin(delta), cd = std::cos(delta);
    const Vettore s = sole(t, delta);
    const double sn = s * n_, g = q_.gnomone;
    // d of -g (s x)/(s n) along a change ds of s.
    const auto lungo = [&](const Vettore &ds) {
        const double dn = ds * n_;
        return Punto{-g * ((ds * x_) * sn - (s * x_) * dn) / (sn * sn), -g * ((ds * y_) * sn - (s * y_) * dn) / (sn * sn)};
    };
    return {lungo({-cd * st, cd * ct, 0}), lungo({-sd * ct, -sd * st, cd})};
}

Retta PianoMontato::retta(const Vettore &normale) const {
    // The Sun of (x, y) is along g n - x x_ - y y_.
    const double a = normale * x_, b = normale * y_, c = q_.gnomone * (normale * n_);
    const double l = std::hypot(a, b);
    return l > RADENZA ? Retta{a / l, b / l, c / l} : Retta{};
}

Retta PianoMontato::ombraDelloStilo(double t) const { return retta({-std::sin(t), std::cos(t), 0}); }

std::optional<double> semiarco(double latitudine, double delta) {
    const double c = -std::tan(latitudine) * std::tan(delta);
    if (!(std::fabs(c) <= 1)) return {};
    return std::acos(c);
}

double oraVera(double t) { return giro(12 + t * GRADI / 15); }

std::optional<double> italica(double latitudine, double t, double delta) {
    const auto h0 = semiarco(latitudine, delta);
    if (!h0) return {};
    const double i = giro((t - *h0) * GRADI / 15);
    return i == 0 ? 24 : i;
}

std::optional<double> babilonica(double latitudine, double t, double delta) {
    const auto h0 = semiarco(latitudine, delta);
    if (!h0) return {};
    return giro((t + *h0) * GRADI / 15);
}

std::optional<double> temporaria(double latitudine, double t, double delta) {
    const auto h0 = semiarco(latitudine, delta);
    if (!h0 || !(*h0 > 0) || std::fabs(t) > *h0) return {};
    return 6 + 6 * t / *h0;
}

}  // namespace ombrelia::ombra
