// Cutting a path of the Sun to what can be seen of it.
#include "certificato/tracciato.h"

#include <algorithm>
#include <cmath>

#include "certificato/cielo.h"
#include "core/angoli.h"

namespace ombrelia {

using ombra::Punto;
using ombra::Vettore;

namespace {

// How far (sine) above the horizon and before the plane a Sun must stand. Lines of sunset and sunrise are a thousand
// times as far from the first.
constexpr double MARGINI[] = {1e-12, 1e-9};

}  // namespace

Scena::Scena(const Sessione &s, const Lettura &letto)
    : posa_(PosaDelDisegno(s, letto)), piano_(posa_.quadrante), verso_(posa_.verso()) {
    // An equivalent dial's field of longitude holds its difference too, and stays on the zone's where local hours were
    // asked for.
    longitudine_ = s.v.flagVerticale == 1 ? NumeroDi(letto.lon) * ombra::RADIANTI + s.v.diffLong.numero() : posa_.longitudine;
    const double u = posa_.unita;
    xMin = NumeroDi(letto.x0) * u;
    xMax = NumeroDi(letto.x1) * u;
    yMin = NumeroDi(letto.y1) * u;
    yMax = NumeroDi(letto.y0) * u;
    const double diagonale = std::hypot(xMax - xMin, yMax - yMin);
    corda = std::max(0.002, diagonale / 1000);
    freccia = std::max(2e-6, diagonale / 1e6);
    passoPunti = std::max(0.00025, diagonale / 10000);

    // A point's abscissa is -g (s x)/(s n), and s n is positive before the plane: its bounds are half-spaces of s too.
    const double g = posa_.quadrante.gnomone;
    const Vettore n = piano_.normale(), x = (-g * verso_) * piano_.destra(), y = -g * piano_.alto();
    facce_ = {piano_.zenit(), n, x - xMin * n, xMax * n - x, y - yMin * n, yMax * n - y, Vettore{0, 0, 1}, Vettore{0, 0, -1}};
}

double Scena::angolo(double ora, bool fuso) const {
    return (ora - 12) * 15 * ombra::RADIANTI - (fuso ? longitudine_ - posa_.meridiano : 0);
}

double Scena::semiarcoMassimo() const {
    const double delta = std::copysign(SOLSTIZIO, latitudine());
    return ombra::semiarco(latitudine(), delta).value_or(ombra::GRADI * ombra::RADIANTI * std::numbers::pi);
}

std::optional<Punto> Scena::punto(const Vettore &sole) const {
    const auto p = piano_.proietta(sole);
    if (!p) return {};
    return nellaLista(*p);
}

namespace {

// The sine of a Sun against a face; not below 0 where it is visible.
double seno(const Scena &scena, std::size_t faccia, const Vettore &s) {
    static const double SEN_MAX = std::sin(SOLSTIZIO);
    const double q = scena.facce()[faccia] * s;
    return faccia < 2 ? q - MARGINI[faccia] : faccia < 6 ? q : q + SEN_MAX;
}

}  // namespace

bool Scena::illuminato(const Vettore &sole) const { return seno(*this, 0, sole) >= 0 && seno(*this, 1, sole) >= 0; }

bool Scena::visibile(const Vettore &sole) const {
    for (std::size_t f = 0; f < 6; ++f)
        if (!(seno(*this, f, sole) >= 0)) return false;
    return true;
}

bool Scena::ritaglia(Punto &a, Punto &b) const {
    double t0 = 0, t1 = 1;
    const double dx = b.x - a.x, dy = b.y - a.y;
    const auto taglia = [&](double p, double q) {  // p t <= q
        if (p == 0) return q >= 0;
        const double t = q / p;
        if (p < 0) t0 = std::max(t0, t);
        else t1 = std::min(t1, t);
        return t0 <= t1;
    };
    if (!(taglia(-dx, a.x - xMin) && taglia(dx, xMax - a.x) && taglia(-dy, a.y - yMin) && taglia(dy, yMax - a.y))) return false;
    const Punto c = a;
    a = {c.x + t0 * dx, c.y + t0 * dy};
    b = {c.x + t1 * dx, c.y + t1 * dy};
    return true;
}

namespace {

// The last value of the parameter between a and b that still answers as a does.
template <typename Prova>
double confine(double a, double b, Prova prova) {
    for (int i = 0; i < 60; ++i) {
        const double m = (a + b) / 2;
        if (m == a || m == b) break;
        (prova(m) ? a : b) = m;
    }
    return a;
}

// One visible stretch of a path, followed closely enough.
class Passata {
public:
    Passata(Tavolo &t, const Scena &scena, const Percorso &percorso, const Pennello &tratto)
        : t_(t), scena_(scena), percorso_(percorso), tratto_(tratto), strato_(t.nome(tratto.strato)) {}

    void traccia(double a, double b) {
        const auto pa = punto(a), pb = punto(b);
        if (!pa || !pb) return;
        prima_ = inizio_ = *pa;
        if (tratto_.punti) t_.TracciaPunto(pa->x, pa->y, tratto_.colore, strato_);
        segui(a, *pa, b, *pb, 0);
    }

private:
    [[nodiscard]] std::optional<Punto> punto(double u) const {
        const auto s = percorso_(u);
        return s ? scena_.punto(*s) : std::nullopt;
    }
    static double distanza(const Punto &p, const Punto &a, const Punto &b) {
        const double dx = b.x - a.x, dy = b.y - a.y, l = std::hypot(dx, dy);
        return l > 0 ? std::fabs((p.x - a.x) * dy - (p.y - a.y) * dx) / l : std::hypot(p.x - a.x, p.y - a.y);
    }
    void segui(double a, const Punto &pa, double b, const Punto &pb, int livello) {
        const double m = (a + b) / 2, lunga = tratto_.punti ? scena_.passoPunti : scena_.corda;
        if (livello < 24 && m != a && m != b) {
            const auto pm = punto(m);
            // Even a short chord is looked at once, lest a bend hide in its middle.
            if (pm && (livello < 2 || std::hypot(pb.x - pa.x, pb.y - pa.y) > lunga ||
                       std::hypot(pm->x - pa.x, pm->y - pa.y) > lunga || distanza(*pm, pa, pb) > scena_.freccia)) {
                segui(a, pa, m, *pm, livello + 1);
                segui(m, *pm, b, pb, livello + 1);
                return;
            }
        }
        // A dot that closes a ring is there already; a chord shorter than this is none.
        constexpr double NIENTE = 1e-9;
        const auto lontano = [&](const Punto &p) { return std::fabs(pb.x - p.x) > NIENTE || std::fabs(pb.y - p.y) > NIENTE; };
        if (!lontano(prima_)) return;
        if (!tratto_.punti) t_.TracciaLinea(pb.x, pb.y, prima_.x, prima_.y, tratto_.colore, strato_);
        else if (lontano(inizio_)) t_.TracciaPunto(pb.x, pb.y, tratto_.colore, strato_);
        prima_ = pb;
    }

    Tavolo &t_;
    const Scena &scena_;
    const Percorso &percorso_;
    const Pennello &tratto_;
    IdNome strato_;
    Punto prima_, inizio_;
};

}  // namespace

namespace {

// Finds where a path becomes visible or ceases to be.
class Confini {
public:
    Confini(const Scena &scena, const Percorso &percorso, std::size_t facce) : scena_(scena), percorso_(percorso), facce_(facce) {
        for (std::size_t f = 0; f < facce; ++f) lunghezza_[f] = std::sqrt(scena.facce()[f] * scena.facce()[f]);
    }

    std::vector<double> tagli(double da, double a, int passi) {
        tagli_ = {da, a};
        double u0 = da;
        auto s0 = percorso_(da);
        for (int i = 1; i <= passi; ++i) {
            const double u1 = i == passi ? a : da + (a - da) * i / passi;
            const auto s1 = percorso_(u1);
            passo(u0, s0, u1, s1, 0);
            u0 = u1;
            s0 = s1;
        }
        std::sort(tagli_.begin(), tagli_.end());
        return std::move(tagli_);
    }

private:
    using DirezioneDelSole = std::optional<Vettore>;

    void passo(double u0, const DirezioneDelSole &s0, double u1, const DirezioneDelSole &s1, int livello) {
        if (!s0 && !s1) return;
        if (s0.has_value() != s1.has_value()) {
            const auto esiste = [&](double u) { return percorso_(u).has_value(); };
            const double c = s0 ? confine(u0, u1, esiste) : confine(u1, u0, esiste);
            tagli_.push_back(c);
            if (c != u0 && c != u1) s0 ? passo(u0, s0, c, percorso_(c), livello) : passo(c, percorso_(c), u1, s1, livello);
            return;
        }
        // Within a step a sine changes by no more than the step's length on the sphere times the face's own.
        const Vettore ds = *s1 - *s0;
        const double arco = 0.6 * std::sqrt(ds * ds);
        std::array<double, Scena::FACCE> q0{}, q1{};
        bool dubbio = false;
        for (std::size_t f = 0; f < facce_; ++f) {
            q0[f] = seno(scena_, f, *s0);
            q1[f] = seno(scena_, f, *s1);
            const double corsa = arco * lunghezza_[f];
            if (q0[f] < -corsa && q1[f] < -corsa) return;
            dubbio = dubbio || std::min(std::fabs(q0[f]), std::fabs(q1[f])) <= corsa;
        }
        const double m = (u0 + u1) / 2;
        if (dubbio && livello < 11 && m != u0 && m != u1) {
            const DirezioneDelSole sm = percorso_(m);
            passo(u0, s0, m, sm, livello + 1);
            passo(m, sm, u1, s1, livello + 1);
            return;
        }
        for (std::size_t f = 0; f < facce_; ++f) {
            if ((q0[f] >= 0) == (q1[f] >= 0)) continue;
            const auto oltre = [&](double u) {
                const DirezioneDelSole s = percorso_(u);
                return s && seno(scena_, f, *s) >= 0;
            };
            tagli_.push_back(q0[f] >= 0 ? confine(u0, u1, oltre) : confine(u1, u0, oltre));
        }
    }

    const Scena &scena_;
    const Percorso &percorso_;
    std::size_t facce_;
    std::array<double, Scena::FACCE> lunghezza_{};
    std::vector<double> tagli_;
};

}  // namespace

void Traccia(Tavolo &t, const Scena &scena, const Percorso &percorso, double da, double a, int passi, const Pennello &tratto,
             bool annua) {
    const std::size_t facce = annua ? Scena::FACCE : 6;
    const std::vector<double> tagli = Confini(scena, percorso, facce).tagli(da, a, passi);

    const auto visibile = [&](double u) {
        const auto s = percorso(u);
        if (!s) return false;
        for (std::size_t f = 0; f < facce; ++f)
            if (!(seno(scena, f, *s) >= 0)) return false;
        return true;
    };
    Passata passata(t, scena, percorso, tratto);
    // Neighbouring visible stretches are one.
    for (std::size_t i = 0; i + 1 < tagli.size();) {
        std::size_t j = i;
        while (j + 1 < tagli.size() && (tagli[j] == tagli[j + 1] || visibile((tagli[j] + tagli[j + 1]) / 2))) ++j;
        if (tagli[i] < tagli[j]) passata.traccia(tagli[i], tagli[j]);
        i = j + 1;
    }
}

void TracciaSegmento(Tavolo &t, const Scena &scena, Punto a, Punto b, const Pennello &tratto, bool intero) {
    if (!intero && !scena.ritaglia(a, b)) return;
    const double l = std::hypot(b.x - a.x, b.y - a.y);
    const IdNome strato = t.nome(tratto.strato);
    if (!tratto.punti) {
        if (l > 0) t.TracciaLinea(a.x, a.y, b.x, b.y, tratto.colore, strato);
        return;
    }
    const int n = static_cast<int>(std::ceil(l / scena.passoPunti));
    for (int i = 0; i <= n; ++i) {
        const double k = n > 0 ? static_cast<double>(i) / n : 0;
        t.TracciaPunto(a.x + k * (b.x - a.x), a.y + k * (b.y - a.y), tratto.colore, strato);
    }
}

}  // namespace ombrelia
