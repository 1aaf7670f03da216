// A drawing for the screen.
#include "web/snello.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace ombrelia::web {

namespace {

// A point, and its digits as they stand.
struct Punto {
    double x = 0, y = 0;
    std::string_view testo;
};

// The plain decimals that the writer of drawings uses; false for anything else.
bool numero(std::string_view d, std::size_t &i, double &n) {
    const bool meno = i < d.size() && d[i] == '-';
    const std::size_t da = i += meno ? 1 : 0;
    double intero = 0, peso = 1;
    bool punto = false;
    for (; i < d.size() && ((d[i] >= '0' && d[i] <= '9') || (d[i] == '.' && !punto)); ++i) {
        if (d[i] == '.') {
            punto = true;
            continue;
        }
        intero = intero * 10 + (d[i] - '0');
        if (punto) peso *= 10;
    }
    n = (meno ? -intero : intero) / peso;
    return i > da;
}

// The points of "Mx yLx y x y…", with or without "Z"; false for any other path.
bool leggi(std::string_view d, std::vector<Punto> &punti) {
    punti.clear();
    for (std::size_t i = 0; i < d.size();) {
        const char atteso = punti.empty() ? 'M' : punti.size() == 1 ? 'L' : ' ';
        if (d[i++] != atteso) return false;
        Punto p;
        const std::size_t da = i;
        if (!numero(d, i, p.x) || i >= d.size() || d[i++] != ' ' || !numero(d, i, p.y)) return false;
        p.testo = d.substr(da, i - da);
        punti.push_back(p);
    }
    return punti.size() > 2;
}

// From each point kept, goes on while one straight line passes all points by: a wedge of directions that grows narrower.
class Cuneo {
public:
    Cuneo(const Punto &da, double tolleranza) : da_(da), tolleranza_(tolleranza) {}
    // Whether the chord to p passes the points before it by; then p is one of them.
    bool prende(const Punto &p) {
        const V v{p.x - da_.x, p.y - da_.y};
        const double r = std::sqrt(v.x * v.x + v.y * v.y);
        if (r < lontano_ - tolleranza_) return false;  // it turns back
        if (aperto_ && (croce(basso_, v) < 0 || croce(v, alto_) < 0)) return false;
        lontano_ = std::max(lontano_, r);
        if (r <= tolleranza_) return true;
        const double s = tolleranza_ / r, c = std::sqrt(1 - s * s);
        const V basso{v.x * c + v.y * s, v.y * c - v.x * s}, alto{v.x * c - v.y * s, v.y * c + v.x * s};
        if (!aperto_ || croce(basso_, basso) > 0) basso_ = basso;
        if (!aperto_ || croce(alto, alto_) > 0) alto_ = alto;
        aperto_ = true;
        return true;
    }

private:
    struct V {
        double x = 0, y = 0;
    };
    static double croce(const V &a, const V &b) { return a.x * b.y - a.y * b.x; }
    const Punto &da_;
    double tolleranza_, lontano_ = 0;
    V basso_, alto_;
    bool aperto_ = false;
};

void aggiungi(std::string &t, const std::vector<Punto> &punti, double tolleranza) {
    std::size_t scritti = 0;
    const auto scrivi = [&](const Punto &p) {
        t += scritti == 0 ? 'M' : scritti == 1 ? 'L' : ' ';
        t += p.testo;
        ++scritti;
    };
    scrivi(punti.front());
    for (std::size_t i = 0; i + 1 < punti.size();) {
        Cuneo cuneo(punti[i], tolleranza);
        std::size_t k = i + 1;
        while (k < punti.size() && cuneo.prende(punti[k])) ++k;
        i = std::max(k - 1, i + 1);
        scrivi(punti[i]);
    }
}

}  // namespace

std::string Snello(std::string_view svg, double tolleranza) {
    constexpr std::string_view INIZIO = " d=\"";
    std::string t;
    std::vector<Punto> punti;
    while (!svg.empty()) {
        const std::size_t da = svg.find(INIZIO);
        const std::size_t a = da == std::string_view::npos ? da : svg.find('"', da + INIZIO.size());
        if (a == std::string_view::npos) break;
        t += svg.substr(0, da + INIZIO.size());
        std::string_view d = svg.substr(da + INIZIO.size(), a - da - INIZIO.size());
        svg.remove_prefix(a);
        const bool chiuso = d.ends_with('Z');
        if (leggi(d.substr(0, d.size() - (chiuso ? 1 : 0)), punti)) {
            aggiungi(t, punti, tolleranza);
            d = chiuso ? "Z" : "";
        }
        t += d;
    }
    return t += svg;
}

}  // namespace ombrelia::web
