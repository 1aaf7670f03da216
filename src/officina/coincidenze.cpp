// Lines of two names that lie one on the other. Only one of them is cut; which they are is told.
#include <algorithm>
#include <cmath>
#include <map>

#include "officina/passi.h"
#include "plot/specie.h"

namespace ombrelia::officina {

namespace {

constexpr double SULLA = 1.5 * STESSO;  // both were thinned
constexpr double MINIMA = 1;            // mm of a line that is gone: less is a crossing
constexpr int PROVE = 64, CONCORDI = 3;

double distanza(P2 p, P2 a, P2 b) {
    const P2 u = b - a;
    const double q = Scalare(u, u), t = q == 0 ? 0 : std::clamp(Scalare(p - a, u) / q, 0.0, 1.0);
    return Lungo(p - a - t * u);
}

bool retta(const Cammino &c) { return c.tipo == Cammino::Tipo::Linea && c.linea >= 0; }

}  // namespace

std::vector<Coincidenza> Coincidenti(const std::vector<Cammino> &prima, const std::vector<Cammino> &dopo) {
    struct LineaNominata {
        Specie specie;
        double valore, persa = 0;
        std::vector<const Cammino *> sue{};
    };
    std::map<int, LineaNominata> nomi;
    for (const Cammino &c : prima) {
        if (!retta(c) || !Giudicabile(c.specie)) continue;
        LineaNominata &n = nomi.try_emplace(c.linea, LineaNominata{c.specie, c.valore}).first->second;
        n.persa += c.lunghezza();
        n.sue.push_back(&c);
    }
    for (const Cammino &c : dopo)
        if (const auto n = nomi.find(c.linea); retta(c) && n != nomi.end()) n->second.persa -= c.lunghezza();
    // Whose path a point lies on; its own before another's, and none where nothing that is named lies there.
    const auto sotto = [&](P2 p, int sua) {
        int chi = -1;
        for (const Cammino &c : dopo) {
            if (!retta(c) || !nomi.contains(c.linea)) continue;
            const std::size_t n = c.punti.size();
            for (std::size_t i = 1; i < n + (c.chiuso ? 1 : 0); ++i) {
                const P2 a = c.punti[i - 1], b = c.punti[i % n];
                if (std::min(a.x, b.x) > p.x + SULLA || std::max(a.x, b.x) < p.x - SULLA || std::min(a.y, b.y) > p.y + SULLA ||
                    std::max(a.y, b.y) < p.y - SULLA || distanza(p, a, b) > SULLA)
                    continue;
                if (c.linea == sua) return sua;
                chi = c.linea;
            }
        }
        return chi;
    };
    std::vector<Coincidenza> trovate;
    for (const auto &[linea, nome] : nomi) {
        if (nome.persa < MINIMA) continue;
        double lunga = 0;
        for (const Cammino *c : nome.sue) lunga += c->lunghezza();
        const double passo = std::max(MINIMA / 2, lunga / PROVE);
        std::map<int, int> quante;
        double avanza = passo / 2;
        for (const Cammino *c : nome.sue)
            for (std::size_t i = 1; i < c->punti.size(); ++i) {
                const double l = Distanza(c->punti[i - 1], c->punti[i]);
                for (; avanza < l; avanza += passo)
                    ++quante[sotto(c->punti[i - 1] + avanza / l * (c->punti[i] - c->punti[i - 1]), linea)];
                avanza -= l;
            }
        for (const auto &[altra, n] : quante)
            if (altra >= 0 && altra != linea && n >= CONCORDI) {
                const LineaNominata &con = nomi.at(altra);
                trovate.push_back({nome.specie, nome.valore, con.specie, con.valore, std::min(n * passo, nome.persa)});
            }
    }
    return trovate;
}

}  // namespace ombrelia::officina
