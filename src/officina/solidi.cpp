// Style, socket, and the form of the file. The dial's plate stands in lastra.cpp.
#include "officina/solidi.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

#include "officina/passi.h"
#include "officina/profilo.h"

namespace ombrelia::officina {

namespace {

Pm micron(P2 p) { return {std::llround(1000 * p.x), std::llround(1000 * p.y)}; }

}  // namespace

double Solido::volume() const {
    double v = 0;
    for (const auto &[a, b, c] : facce)
        v += a.x * (b.y * c.z - b.z * c.y) + a.y * (b.z * c.x - b.x * c.z) + a.z * (b.x * c.y - b.y * c.x);
    return v / 6;
}

void Solido::aggiungi(const Solido &altro, P3 d) {
    for (auto f : altro.facce) {
        for (P3 &p : f) p = {p.x + d.x, p.y + d.y, p.z + d.z};
        facce.push_back(f);
    }
}

void Faccia(Solido &s, const std::vector<std::array<Pm, 3>> &t, double z, bool sopra) {
    for (const auto &[a, b, c] : t) {
        const auto p = [&](Pm q) { return P3{static_cast<double>(q.x) / 1000, static_cast<double>(q.y) / 1000, z}; };
        if (sopra) s.facce.push_back({p(a), p(b), p(c)});
        else s.facce.push_back({p(a), p(c), p(b)});
    }
}

void Parete(Solido &s, const Contorno &c, double da, double a) {
    for (std::size_t i = 0; i < c.size(); ++i) {
        const auto p = [&](std::size_t k, double z) {
            return P3{static_cast<double>(c[k % c.size()].x) / 1000, static_cast<double>(c[k % c.size()].y) / 1000, z};
        };
        s.facce.push_back({p(i, da), p(i + 1, da), p(i + 1, a)});
        s.facce.push_back({p(i, da), p(i + 1, a), p(i, a)});
    }
}

std::optional<Profilo> ProfiloStilo(const Gnomone &g, const Riquadro &lastra, std::string &errore) {
    constexpr double ORLO = 8;  // mm of the plate left beyond a tab
    if (!(g.altezza > 0)) {
        errore = "the gnomon has no length";
        return {};
    }
    Profilo p;
    const double d = g.centro ? Lungo(*g.centro) : 0;
    if (g.centro && d < 0.05 * g.altezza) {
        errore = "the style stands square to the plane: a rod in its socket serves";
        return {};
    }
    // Without a centre the style runs along the plane; which way the plate goes is free: up.
    p.verso = g.centro ? (1 / d) * *g.centro : P2{0, 1};
    double l = g.centro ? d : 4 * g.altezza;
    P2 a{}, b = l * p.verso;
    const Riquadro dentro{lastra.x0 + ORLO, lastra.y0 + ORLO, lastra.x1 - ORLO, lastra.y1 - ORLO};
    if (dentro.contiene(a) && Taglia(dentro, a, b)) l = std::min(l, Distanza(a, b));
    p.lungo = l;
    p.coda = g.centro ? g.altezza * (1 - l / d) : g.altezza;
    p.linguette = {{{0.15 * l, 0.35 * l}, {0.65 * l, 0.85 * l}}};
    return p;
}

Solido PiastraStilo(const Gnomone &g, const Riquadro &lastra, const Misure &m, std::string &errore) {
    const auto p = ProfiloStilo(g, lastra, errore);
    if (!p) return {};
    // x from the foot towards the centre, y from the plate.
    std::vector<P2> c{{0, 0}};
    for (const auto &[da, a] : p->linguette) {
        c.push_back({da, 0});
        c.push_back({da, -m.lastra});
        c.push_back({a, -m.lastra});
        c.push_back({a, 0});
    }
    c.push_back({p->lungo, 0});
    if (p->coda > 0.01) c.push_back({p->lungo, p->coda});
    c.push_back({0, g.altezza});
    Contorno k;
    for (const P2 q : c) k.push_back(micron(q));
    const auto t = Triangola(k, {});
    Solido s;
    Faccia(s, t, 0, false);
    Faccia(s, t, m.spessore, true);
    Parete(s, k, 0, m.spessore);
    return s;
}

Solido Zoccolo(const Misure &m) {
    constexpr int SPICCHI = 96;
    const double gioco = 0.1, r = m.perno / 2 + gioco, R = 2 * m.perno, alto = 3 * m.perno, fondo = m.perno / 2;
    // Outline in radius and height, from the axis below to the axis in the hole.
    const std::vector<P2> profilo{{0, 0}, {R, 0}, {R, 0.75 * m.perno}, {1.2 * m.perno, alto}, {r, alto}, {r, fondo}, {0, fondo}};
    Solido s;
    for (int i = 0; i < SPICCHI; ++i) {
        const auto giro = [&](P2 p, int k) {
            const double a = 2 * std::numbers::pi * (k % SPICCHI) / SPICCHI;
            return P3{p.x * std::cos(a), p.x * std::sin(a), p.y};
        };
        for (std::size_t k = 1; k < profilo.size(); ++k) {
            const P2 p = profilo[k - 1], q = profilo[k];
            if (p.x > 0) s.facce.push_back({giro(p, i), giro(p, i + 1), giro(q, i)});
            if (q.x > 0) s.facce.push_back({giro(p, i + 1), giro(q, i + 1), giro(q, i)});
        }
    }
    return s;
}

std::string Stl(const Solido &s) {
    std::string t = "Ombrelia, millimetres";
    t.resize(80, ' ');
    const auto intero = [&t](std::uint32_t n, int byte) {
        for (int i = 0; i < byte; ++i) t += static_cast<char>((n >> (8 * i)) & 255U);
    };
    // No minus before a zero: readers that compare bytes would not join it to another.
    const auto numero = [&](double x) {
        const auto f = static_cast<float>(x + 0.0);
        std::uint32_t bit;
        std::memcpy(&bit, &f, sizeof bit);
        intero(bit, 4);
    };
    t.reserve(84 + 50 * s.facce.size());
    intero(static_cast<std::uint32_t>(s.facce.size()), 4);
    for (const auto &[a, b, c] : s.facce) {
        const P3 u{b.x - a.x, b.y - a.y, b.z - a.z}, v{c.x - a.x, c.y - a.y, c.z - a.z};
        P3 n{u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x};
        const double l = std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z);
        if (l > 0) n = {n.x / l, n.y / l, n.z / l};
        for (const P3 &p : {n, a, b, c}) {
            numero(p.x);
            numero(p.y);
            numero(p.z);
        }
        intero(0, 2);
    }
    return t;
}

}  // namespace ombrelia::officina
