// Points into curves. An engine draws points in the order of a sweep, often two branches in turn: each branch is a track
// that the next point prolongs when it lies where the track leads.
#include <algorithm>
#include <cmath>

#include "officina/passi.h"

namespace ombrelia::officina {

namespace {

constexpr std::size_t PAZIENZA = 8;   // points of other branches before a track is given up
constexpr double PASSO_MASSIMO = 3;   // times the track's last step; farther is a gap
constexpr double SVOLTA = 0.4;        // least cosine of the turn at a point
constexpr std::size_t LIMITE = 3000;  // more tracks than this are no curves
constexpr double FERMO = 1e-7;        // mm: the same point again

struct Pista {
    std::vector<P2> punti;
    std::size_t ultimo;  // order of its last point
};

// The usual distance of a point from the nearest of the few that follow it.
double passoSolito(const std::vector<Puntino> &p) {
    std::vector<double> d;
    for (std::size_t i = 0; i + 1 < p.size(); ++i) {
        double minima = 1e300;
        for (std::size_t k = i + 1; k < std::min(p.size(), i + 5); ++k) {
            const double q = Distanza(p[i].p, p[k].p);
            if (q > FERMO) minima = std::min(minima, q);
        }
        if (minima < 1e300) d.push_back(minima);
    }
    if (d.empty()) return 0;
    std::nth_element(d.begin(), d.begin() + static_cast<std::ptrdiff_t>(d.size() / 2), d.end());
    return d[d.size() / 2];
}

// How badly a point prolongs a track, in its own steps; negative when it does not at all.
double costo(const Pista &t, P2 p, double solito) {
    const P2 ultimo = t.punti.back();
    const double d = Distanza(ultimo, p);
    if (t.punti.size() < 2) return d <= PASSO_MASSIMO * solito ? 1 + d / (solito + FERMO) : -1;
    const P2 v = ultimo - t.punti[t.punti.size() - 2];
    const double passo = Lungo(v);
    if (d > PASSO_MASSIMO * std::max(passo, solito / 20)) return -1;
    if (Scalare(v, p - ultimo) < SVOLTA * passo * d) return -1;
    return Distanza(p, ultimo + v) / passo;
}

// Where a sweep begins its points may lie far apart and draw together: those that stayed alone prolong a track backward.
void prolunga(std::vector<Pista> &piste, double solito) {
    std::vector<std::size_t> soli;
    for (std::size_t i = 0; i < piste.size(); ++i)
        if (piste[i].punti.size() == 1) soli.push_back(i);
    if (soli.size() > LIMITE) return;
    for (Pista &t : piste) {
        for (int capo = 0; capo < 2 && t.punti.size() > 2; ++capo) {
            std::reverse(t.punti.begin(), t.punti.end());
            for (bool ancora = true; ancora;) {
                ancora = false;
                double minimo = 1e300;
                std::size_t scelto = 0;
                for (std::size_t k = 0; k < soli.size(); ++k) {
                    const double c = costo(t, piste[soli[k]].punti[0], solito);
                    if (c >= 0 && c < minimo) minimo = c, scelto = k;
                }
                if (minimo == 1e300) break;
                t.punti.push_back(piste[soli[scelto]].punti[0]);
                piste[soli[scelto]].punti.clear();
                soli[scelto] = soli.back();
                soli.pop_back();
                ancora = true;
            }
        }
    }
}

// Tracks whose ends meet are one curve: a branch swept from its middle, or in two loops.
void congiungi(std::vector<Pista> &piste, double solito) {
    const auto passo = [](const Pista &t, bool coda) {
        const std::size_t n = t.punti.size();
        return coda ? t.punti[n - 1] - t.punti[n - 2] : t.punti[0] - t.punti[1];
    };
    for (std::size_t i = 0; i < piste.size(); ++i) {
        if (piste[i].punti.size() < 2) continue;
        for (bool ancora = true; ancora;) {
            ancora = false;
            for (std::size_t k = i + 1; k < piste.size() && !ancora; ++k) {
                if (piste[k].punti.size() < 2) continue;
                for (int caso = 0; caso < 4 && !ancora; ++caso) {
                    const bool codaI = (caso & 1) != 0, codaK = (caso & 2) != 0;
                    auto &a = piste[i].punti;
                    auto &b = piste[k].punti;
                    const P2 va = passo(piste[i], codaI), vb = passo(piste[k], codaK);
                    const P2 salto = (codaK ? b.back() : b.front()) - (codaI ? a.back() : a.front());
                    const double d = Lungo(salto),
                                 l = std::min(std::max({Lungo(va), Lungo(vb), solito / 20}), 3 * (solito + FERMO));
                    if (d > PASSO_MASSIMO * l) continue;
                    if (Scalare(va, vb) > -SVOLTA * Lungo(va) * Lungo(vb)) continue;  // they must face each other
                    if (d > FERMO && Scalare(va, salto) < SVOLTA * Lungo(va) * d) continue;
                    if (!codaI) std::reverse(a.begin(), a.end());
                    if (codaK) std::reverse(b.begin(), b.end());
                    a.insert(a.end(), b.begin() + (d <= FERMO ? 1 : 0), b.end());
                    b.clear();
                    ancora = true;
                }
            }
        }
    }
}

}  // namespace

void CatenePunti(const std::vector<Puntino> &puntini, std::vector<std::vector<P2>> &catene, std::vector<P2> &soli) {
    const double solito = passoSolito(puntini);
    std::vector<Pista> piste;
    std::vector<std::size_t> aperte;
    for (const Puntino &q : puntini) {
        std::erase_if(aperte, [&](std::size_t i) { return q.ordine > piste[i].ultimo + PAZIENZA; });
        std::size_t scelta = piste.size();
        double minimo = 1e300;
        bool ripetuto = false;
        for (const std::size_t i : aperte) {
            if (Distanza(piste[i].punti.back(), q.p) <= FERMO) {
                piste[i].ultimo = q.ordine;
                ripetuto = true;
                break;
            }
            const double c = costo(piste[i], q.p, solito);
            if (c >= 0 && c < minimo) {
                minimo = c;
                scelta = i;
            }
        }
        if (ripetuto) continue;
        if (scelta == piste.size()) {
            aperte.push_back(piste.size());
            piste.push_back({{q.p}, q.ordine});
        } else {
            piste[scelta].punti.push_back(q.p);
            piste[scelta].ultimo = q.ordine;
        }
    }
    prolunga(piste, solito);
    if (piste.size() < LIMITE) congiungi(piste, solito);
    for (Pista &t : piste) {
        if (t.punti.size() == 1) soli.push_back(t.punti[0]);
        else if (!t.punti.empty()) catene.push_back(std::move(t.punti));
    }
}

}  // namespace ombrelia::officina
