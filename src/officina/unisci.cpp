// Ends that meet.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <unordered_map>

#include "officina/passi.h"

namespace ombrelia::officina {

namespace {

constexpr double INCONTRO = 2 * STESSO;                   // what was left out may leave so much between two ends
constexpr double UGUALE = 1e-6;                           // one point
constexpr double RITORNO = 150 * std::numbers::pi / 180;  // a line that comes back is another stroke
constexpr double DRITTO = 8 * std::numbers::pi / 180;

// End 2 i is the beginning of path i, end 2 i + 1 its end.
struct Giunzione {
    std::size_t a, b;
    double svolta;
};

class Nodi {
public:
    explicit Nodi(const std::vector<Cammino> &c) : c_(c) {
        for (std::size_t e = 0; e < 2 * c.size(); ++e)
            if (linea(e)) celle_[chiave(cella(capo(e).x), cella(capo(e).y))].push_back(e);
    }

    std::vector<Giunzione> coppie() const {
        std::vector<Giunzione> esito;
        for (std::size_t e = 0; e < 2 * c_.size(); ++e) {
            if (!linea(e)) continue;
            std::vector<std::size_t> vicini;
            for (std::int64_t dx = -1; dx <= 1; ++dx)
                for (std::int64_t dy = -1; dy <= 1; ++dy) {
                    const auto i = celle_.find(chiave(cella(capo(e).x) + dx, cella(capo(e).y) + dy));
                    if (i == celle_.end()) continue;
                    for (const std::size_t f : i->second)
                        if (f != e && c_[f / 2].genere == c_[e / 2].genere && Distanza(capo(e), capo(f)) <= INCONTRO)
                            vicini.push_back(f);
                }
            for (const std::size_t f : vicini) {
                if (f < e) continue;
                if (f / 2 == e / 2 && c_[e / 2].punti.size() < 3) continue;
                const double s = svolta(e, f);
                const bool una = c_[e / 2].linea == c_[f / 2].linea;
                if (s < DRITTO || (una && vicini.size() == 1 && s < RITORNO)) esito.push_back({e, f, una ? s : s + 0.01});
            }
        }
        std::sort(esito.begin(), esito.end(), [](const Giunzione &x, const Giunzione &y) {
            return x.svolta != y.svolta ? x.svolta < y.svolta : x.a != y.a ? x.a < y.a : x.b < y.b;
        });
        return esito;
    }

private:
    [[nodiscard]] bool linea(std::size_t e) const { return c_[e / 2].tipo == Cammino::Tipo::Linea && !c_[e / 2].chiuso; }
    [[nodiscard]] P2 capo(std::size_t e) const { return e % 2 == 0 ? c_[e / 2].punti.front() : c_[e / 2].punti.back(); }
    // Direction in which the path leaves its end.
    [[nodiscard]] P2 uscita(std::size_t e) const {
        const auto &p = c_[e / 2].punti;
        return e % 2 == 0 ? p[0] - p[1] : p[p.size() - 1] - p[p.size() - 2];
    }
    [[nodiscard]] double svolta(std::size_t e, std::size_t f) const {
        const P2 u = uscita(e), v = -1.0 * uscita(f);
        return std::fabs(std::atan2(Croce(u, v), Scalare(u, v)));
    }
    static std::int64_t cella(double x) { return static_cast<std::int64_t>(std::floor(x / INCONTRO)); }
    static std::uint64_t chiave(std::int64_t x, std::int64_t y) {
        return (static_cast<std::uint64_t>(x) << 32) ^ (static_cast<std::uint64_t>(y) & 0xFFFFFFFFU);
    }

    const std::vector<Cammino> &c_;
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> celle_;
};

}  // namespace

void Unisci(std::vector<Cammino> &c) {
    constexpr std::size_t NESSUNO = static_cast<std::size_t>(-1);
    std::vector<std::size_t> compagno(2 * c.size(), NESSUNO);
    for (const Giunzione &k : Nodi(c).coppie()) {
        if (compagno[k.a] != NESSUNO || compagno[k.b] != NESSUNO) continue;
        compagno[k.a] = k.b;
        compagno[k.b] = k.a;
    }
    std::vector<char> fatto(c.size(), 0);
    std::vector<Cammino> esito;
    const auto segui = [&](std::size_t entrata) {
        Cammino intero{.genere = c[entrata / 2].genere, .linea = c[entrata / 2].linea};
        for (std::size_t e = entrata; e != NESSUNO && !fatto[e / 2];) {
            fatto[e / 2] = 1;
            auto &p = c[e / 2].punti;
            if (e % 2 == 1) std::reverse(p.begin(), p.end());
            auto &q = intero.punti;
            const bool stesso = !q.empty() && Distanza(q.back(), p.front()) <= UGUALE;
            q.insert(q.end(), p.begin() + (stesso ? 1 : 0), p.end());
            e = compagno[e ^ 1U];
        }
        return intero;
    };
    for (std::size_t i = 0; i < c.size(); ++i) {
        if (fatto[i]) continue;
        if (c[i].tipo != Cammino::Tipo::Linea || c[i].chiuso) {
            fatto[i] = 1;
            esito.push_back(std::move(c[i]));
            continue;
        }
        // Back to an end without a companion; a ring has none.
        std::size_t e = 2 * i;
        bool anello = false;
        for (std::size_t giri = 0; compagno[e] != NESSUNO && giri <= c.size(); ++giri) {
            e = compagno[e] ^ 1U;
            if (e == 2 * i) {
                anello = true;
                break;
            }
        }
        esito.push_back(segui(e));
        Cammino &n = esito.back();
        if (!anello || n.punti.size() < 3) continue;
        n.chiuso = true;
        if (Distanza(n.punti.front(), n.punti.back()) <= UGUALE) n.punti.pop_back();
    }
    c = std::move(esito);
}

}  // namespace ombrelia::officina
