// Trigonometry in pairs of doubles: the angle less its nearest quarter turns, less the nearest 64th of a radian, whose sine and
// cosine stand in a table; what is left, below 1/128, is a short series (Dekker's and Knuth's exact sums and products).
#include "core/funzioni.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace ombrelia::portatile {

namespace {

// a + b, b below half a last place of a.
struct Coppia {
    double a = 0, b = 0;
};

Coppia somma(double x, double y) {
    const double s = x + y, t = s - x;
    return {s, (x - (s - t)) + (y - t)};
}
// x not smaller than y.
Coppia sommaOrdinata(double x, double y) {
    const double s = x + y;
    return {s, y - (s - x)};
}
Coppia prodotto(double x, double y) {
    constexpr double TAGLIO = 134217729;  // 2^27 + 1
    const double cx = TAGLIO * x, cy = TAGLIO * y;
    const double hx = cx - (cx - x), hy = cy - (cy - y);
    const double lx = x - hx, ly = y - hy, p = x * y;
    return {p, ((hx * hy - p) + hx * ly + lx * hy) + lx * ly};
}
Coppia piu(const Coppia &x, const Coppia &y) {
    const Coppia s = somma(x.a, y.a);
    return sommaOrdinata(s.a, s.b + x.b + y.b);
}
Coppia per(const Coppia &x, const Coppia &y) {
    const Coppia p = prodotto(x.a, y.a);
    return sommaOrdinata(p.a, p.b + x.a * y.b + x.b * y.a);
}
Coppia diviso(const Coppia &x, const Coppia &y) {
    const double q = x.a / y.a;
    const Coppia p = prodotto(q, y.a);
    return sommaOrdinata(q, (((x.a - p.a) - p.b) + x.b - q * y.b) / y.a);
}

struct SenoCoseno {
    Coppia sen, cos;
};

constexpr double PASSI = 64;

// Sine and cosine of every 64th of a radian up to pi / 4, by their series.
class Tavola {
public:
    Tavola() {
        for (std::size_t k = 0; k < righe_.size(); ++k) {
            const Coppia x{static_cast<double>(k) / PASSI, 0};
            Coppia termine{1, 0};
            righe_[k].cos = termine;
            for (int n = 1; n < 28; ++n) {
                termine = diviso(per(termine, x), {static_cast<double>(n), 0});
                const Coppia segnato = n % 4 < 2 ? termine : Coppia{-termine.a, -termine.b};
                Coppia &dove = n % 2 == 0 ? righe_[k].cos : righe_[k].sen;
                dove = piu(dove, segnato);
            }
        }
    }
    [[nodiscard]] const SenoCoseno &riga(double k) const { return righe_[static_cast<std::size_t>(k)]; }

private:
    std::array<SenoCoseno, 52> righe_;
};
const Tavola TAVOLA;  // alone at birth: needs nothing of other files

// Up to here a number of quarter turns times the first part of pi / 2 is exact.
constexpr double ANGOLO_MASSIMO = 1e6;

// The angle less n quarter turns, pi / 2 in four parts of which the first three have 33 bits.
Coppia riduci(double x, double n) {
    const Coppia u = somma(x - n * 0x1.921fb544p+0, -n * 0x1.0b4611a6p-34);
    const Coppia v = somma(u.a, -n * 0x1.3198a2ep-69);
    return sommaOrdinata(v.a, v.b + u.b - n * 0x1.b839a252049c1p-104);
}

// An angle of at most pi / 4 and a little, away from its row of the table.
class Angolo {
public:
    explicit Angolo(const Coppia &x) : meno_(x.a < 0) {
        const double xa = meno_ ? -x.a : x.a, xb = meno_ ? -x.b : x.b;
        const double k = std::floor(xa * PASSI + 0.5);
        h_ = somma(xa - k / PASSI, xb);
        const double q = h_.a * h_.a;
        seno_ = h_.a * q * (-1.0 / 6 + q * (1.0 / 120 - q / 5040));
        cos1_ = q * (-0.5 + q * (1.0 / 24 - q * (1.0 / 720 - q / 40320))) - h_.a * h_.b;
        riga_ = &TAVOLA.riga(k);
    }
    [[nodiscard]] Coppia sen() const {
        const Coppia s = combina(riga_->sen, riga_->cos);
        return meno_ ? Coppia{-s.a, -s.b} : s;
    }
    [[nodiscard]] Coppia cos() const { return combina(riga_->cos, {-riga_->sen.a, -riga_->sen.b}); }

private:
    // s cos h + c sin h. Of the product with h every bit counts; cos h - 1 is below 2^-15, and a double of it far below the last.
    [[nodiscard]] Coppia combina(const Coppia &s, const Coppia &c) const {
        const Coppia p = prodotto(c.a, h_.a), u = somma(s.a, p.a);
        return sommaOrdinata(u.a, u.b + (s.b + p.b + c.a * (h_.b + seno_) + c.b * h_.a + s.a * cos1_));
    }
    bool meno_;
    const SenoCoseno *riga_;
    Coppia h_;
    double cos1_, seno_;  // cos h - 1, sin h - h
};

// An angle in its quarter of the turn.
class Giro {
public:
    explicit Giro(double x) : Giro(x, std::floor(x * 0x1.45f306dc9c883p-1 + 0.5)) {}
    // Sine of the angle and so many quarter turns.
    [[nodiscard]] Coppia seno(int quarti) const {
        const int q = (quarto_ + quarti) & 3;
        const Coppia s = q % 2 == 0 ? resto_.sen() : resto_.cos();
        return q < 2 ? s : Coppia{-s.a, -s.b};
    }

private:
    Giro(double x, double n) : quarto_(static_cast<int>(n)), resto_(n == 0 ? Coppia{x, 0} : riduci(x, n)) {}
    int quarto_;
    Angolo resto_;
};

bool vicino(double x) { return x > -ANGOLO_MASSIMO && x < ANGOLO_MASSIMO; }
// Series and products of numbers so small have nothing to add.
bool minimo(double x) { return std::fabs(x) < 0x1p-30; }

}  // namespace

double sin(double x) {
    if (minimo(x)) return x;
    return vicino(x) ? Giro(x).seno(0).a : static_cast<double>(std::sin(static_cast<long double>(x)));
}

double cos(double x) { return vicino(x) ? Giro(x).seno(1).a : static_cast<double>(std::cos(static_cast<long double>(x))); }

double tan(double x) {
    if (minimo(x)) return x;
    if (!vicino(x)) return static_cast<double>(std::tan(static_cast<long double>(x)));
    const Giro g(x);
    return diviso(g.seno(0), g.seno(1)).a;
}

// A first value, mended by the angle between it and the right one.
double atan(double x) {
    if (minimo(x) || x != x) return x;
    constexpr double RETTO = 0x1.921fb54442d18p+0, INFINITO = 1e17;  // from where on it is a right angle to the last digit
    if (!(std::fabs(x) < INFINITO)) return x < 0 ? -RETTO : RETTO;
    const double y = std::asin(x / std::sqrt(1 + x * x));
    const Giro g(y);
    const Coppia s = g.seno(0), c = g.seno(1), d = piu(per({x, 0}, c), {-s.a, -s.b});
    return y + d.a / (c.a + x * s.a);
}

}  // namespace ombrelia::portatile
