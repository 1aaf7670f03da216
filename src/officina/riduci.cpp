// From chains to paths. A stretch counts as drawn again when it stays within a hundredth of a millimetre of a line that is
// kept for longer than a crossing does.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "officina/griglia.h"
#include "officina/passi.h"
#include "officina/semplifica.h"
#include "plot/snello.h"

namespace ombrelia::officina {

namespace {

constexpr double PRIMA = 0.02;            // of the tolerance, spent before lines are compared
constexpr double SPESA = 0.8;             // and after; the rest lets a line that is drawn again with other points be found
constexpr double VICINO = 1 - 2 * PRIMA;  // so much of the distance is left when lines are compared
constexpr double TRATTO = 0.3;            // mm: shorter stretches are crossings
constexpr double SVOLTA = 0.8 * std::numbers::pi;  // a piece that turns less does not come back upon itself

double angolo(P2 u, P2 v) { return std::fabs(std::atan2(Croce(u, v), Scalare(u, v))); }

// A line in pieces that turn little.
void spezza(const Cammino &c, std::vector<Cammino> &pezzi) {
    Cammino p{.genere = c.genere, .linea = c.linea};
    double svolta = 0;
    const std::size_t n = c.punti.size(), quanti = n + (c.chiuso ? 1 : 0);
    for (std::size_t i = 0; i < quanti; ++i) {
        p.punti.push_back(c.punti[i % n]);
        if (i == 0 || i + 1 == quanti) continue;
        const double a = angolo(c.punti[i] - c.punti[i - 1], c.punti[(i + 1) % n] - c.punti[i]);
        if ((svolta += a) < SVOLTA) continue;
        pezzi.push_back(p);
        p.punti = {c.punti[i]};
        svolta = 0;
    }
    if (p.punti.size() > 1) pezzi.push_back(std::move(p));
}

// What of a piece is not covered, as paths; gives the length left out.
double scoperto(const Cammino &c, const Griglia &tutti, const Griglia *suoi, double vicino, std::vector<Cammino> &esito) {
    std::vector<double> s(c.punti.size(), 0);
    std::vector<std::pair<double, double>> coperti, parti;
    for (std::size_t i = 1; i < c.punti.size(); ++i) {
        const double l = Distanza(c.punti[i - 1], c.punti[i]);
        s[i] = s[i - 1] + l;
        parti.clear();
        tutti.coperto(c.punti[i - 1], c.punti[i], vicino, parti);
        if (suoi) suoi->coperto(c.punti[i - 1], c.punti[i], (1 - PRIMA) * STESSO, parti);
        for (const auto &[p, q] : parti) {
            const double da = s[i - 1] + p * l, a = s[i - 1] + q * l;
            if (!coperti.empty() && da <= coperti.back().second + 1e-6)
                coperti.back().second = std::max(coperti.back().second, a);
            else coperti.emplace_back(da, a);
        }
    }
    const double lunga = s.back();
    // A rest too short to be seen between what is left out goes with it.
    std::erase_if(coperti, [&](const auto &k) { return k.second - k.first < std::min(TRATTO, lunga - 1e-6); });
    for (std::size_t i = 1; i < coperti.size(); ++i)
        if (coperti[i].first - coperti[i - 1].second < 2 * STESSO) coperti[i].first = coperti[i - 1].first;
    double via = 0, da = 0;
    const auto tratto = [&](double p, double q) {
        if (q - p <= 2 * STESSO && lunga > 2 * STESSO) return;
        Cammino k{.genere = c.genere, .linea = c.linea};
        const auto punto = [&](double t) {
            const auto i = std::max<std::ptrdiff_t>(1, std::lower_bound(s.begin(), s.end(), t) - s.begin());
            const auto j = static_cast<std::size_t>(std::min<std::ptrdiff_t>(i, static_cast<std::ptrdiff_t>(s.size()) - 1));
            const double l = s[j] - s[j - 1];
            return l == 0 ? c.punti[j] : c.punti[j - 1] + (t - s[j - 1]) / l * (c.punti[j] - c.punti[j - 1]);
        };
        k.punti.push_back(p == 0 ? c.punti.front() : punto(p));
        for (std::size_t i = 1; i + 1 < s.size(); ++i)
            if (s[i] > p && s[i] < q) k.punti.push_back(c.punti[i]);
        k.punti.push_back(q == lunga ? c.punti.back() : punto(q));
        esito.push_back(std::move(k));
    };
    for (std::size_t i = 0; i < coperti.size(); ++i) {
        if (i + 1 < coperti.size() && coperti[i + 1].first == coperti[i].first) continue;  // swallowed by the next
        tratto(da, coperti[i].first);
        via += coperti[i].second - coperti[i].first;
        da = coperti[i].second;
    }
    tratto(da, lunga);
    return via;
}

bool uguali(const Cammino &a, const Cammino &b) {
    if (a.tipo == Cammino::Tipo::Linea || b.tipo == Cammino::Tipo::Linea) return false;
    const auto vicini = [](double x, double y) { return std::fabs(x - y) <= STESSO; };
    if (a.tipo != b.tipo || Distanza(a.punti[0], b.punti[0]) > STESSO || !vicini(a.raggio, b.raggio) || a.testo != b.testo)
        return false;
    return a.tipo != Cammino::Tipo::Arco ||
           (vicini(a.inizio * a.raggio, b.inizio * b.raggio) && vicini(a.fine * a.raggio, b.fine * b.raggio));
}

void pochiPunti(Cammino &c, double tolleranza) {
    if (c.chiuso) c.punti.push_back(c.punti.front());
    Semplifica(c.punti, tolleranza);
    if (c.chiuso && c.punti.size() > 3) c.punti.pop_back();
    else c.chiuso = false;
}

// What is left of a line, as paths with few points; they are kept in the grid.
double riduci(const Cammino &linea, Griglia &griglia, double tolleranza, std::vector<Cammino> &esito) {
    std::vector<Cammino> pezzi, resto;
    spezza(linea, pezzi);
    std::optional<Griglia> suoi;
    if (pezzi.size() > 1) {
        Riquadro b{linea.punti[0].x, linea.punti[0].y, linea.punti[0].x, linea.punti[0].y};
        for (const P2 p : linea.punti) b.allarga(p);
        suoi.emplace(b);
    }
    double via = 0;
    for (const Cammino &p : pezzi) {
        const std::size_t prima = resto.size();
        via += scoperto(p, griglia, suoi ? &*suoi : nullptr, VICINO * std::max(STESSO, tolleranza), resto);
        if (!suoi) continue;
        for (std::size_t k = prima; k < resto.size(); ++k)
            for (std::size_t i = 1; i < resto[k].punti.size(); ++i) suoi->aggiungi(resto[k].punti[i - 1], resto[k].punti[i]);
    }
    Unisci(resto);
    for (const Cammino &intero : resto) {
        // Its own paths before this one now lie as they will be cut.
        std::vector<Cammino> parti;
        if (suoi && !intero.chiuso) via += scoperto(intero, griglia, nullptr, VICINO * std::max(STESSO, tolleranza), parti);
        else parti.push_back(intero);
        for (Cammino &c : parti) {
            const Cammino fitta = c;
            pochiPunti(c, SPESA * tolleranza);
            // With few points a line may come nearer to another than it is: it keeps its own then.
            std::vector<Cammino> liberi;
            if (scoperto(c, griglia, nullptr, STESSO, liberi) > 0) c = fitta;
            for (std::size_t i = 1; i < c.punti.size(); ++i) griglia.aggiungi(c.punti[i - 1], c.punti[i]);
            if (c.chiuso) griglia.aggiungi(c.punti.back(), c.punti.front());
            esito.push_back(std::move(c));
        }
    }
    return via;
}

// A circle or arc as chords.
Cammino inCorde(const Cammino &c, double tolleranza) {
    Cammino k{.genere = c.genere, .linea = c.linea};
    const double giro = c.lunghezza() / c.raggio, da = c.tipo == Cammino::Tipo::Arco ? c.inizio : 0;
    const int n = std::max(8, static_cast<int>(std::ceil(giro * std::sqrt(c.raggio / (8 * tolleranza)))));
    for (int i = 0; i <= n; ++i)
        k.punti.push_back(c.punti[0] + c.raggio * P2{std::cos(da + giro * i / n), std::sin(da + giro * i / n)});
    return k;
}

// Circles and arcs that nothing covers stay what they are; the others become lines, to lose what is covered.
void cerchi(std::vector<Cammino> &di, Genere genere, Griglia &griglia, double tolleranza, std::vector<Cammino> &linee,
            std::vector<Cammino> &esito, Resoconto &r) {
    for (Cammino &c : di) {
        if (c.genere != genere || (c.tipo != Cammino::Tipo::Cerchio && c.tipo != Cammino::Tipo::Arco)) continue;
        if (std::any_of(esito.begin(), esito.end(), [&](const Cammino &e) { return uguali(e, c); })) {
            r.doppia += c.lunghezza();
            continue;
        }
        const Cammino corde = inCorde(c, PRIMA * tolleranza);
        std::vector<Cammino> resto;
        if (scoperto(corde, griglia, nullptr, std::max(STESSO, tolleranza), resto) > 0) {
            linee.push_back(corde);
            continue;
        }
        for (std::size_t i = 1; i < corde.punti.size(); ++i) griglia.aggiungi(corde.punti[i - 1], corde.punti[i]);
        esito.push_back(std::move(c));
    }
}

}  // namespace

void Riduci(std::vector<Cammino> &cammini, const Riquadro &campo, double tolleranza, Resoconto &r) {
    Griglia griglia(campo);
    std::vector<Cammino> esito;
    for (const RigaGenere &riga : Generi()) {
        std::vector<Cammino> linee, fatte;
        for (Cammino &c : cammini) {
            if (c.genere != riga.genere || c.tipo != Cammino::Tipo::Linea) continue;
            Snellisci(c.punti, PRIMA * std::min(tolleranza, STESSO), Capi::Interi);
            linee.push_back(std::move(c));
        }
        cerchi(cammini, riga.genere, griglia, tolleranza, linee, esito, r);
        Unisci(linee);
        std::vector<std::pair<double, std::size_t>> lunghe;
        for (std::size_t i = 0; i < linee.size(); ++i) lunghe.emplace_back(-linee[i].lunghezza(), i);
        std::sort(lunghe.begin(), lunghe.end());
        for (const auto &[lunga, i] : lunghe) r.doppia += riduci(linee[i], griglia, tolleranza, fatte);
        // What was left out may let ends meet that did not.
        Unisci(fatte);
        for (Cammino &c : fatte) {
            pochiPunti(c, PRIMA * tolleranza);
            esito.push_back(std::move(c));
        }
    }
    for (Cammino &c : cammini) {
        const bool punto = c.tipo == Cammino::Tipo::Punto;
        if (!punto && c.tipo != Cammino::Tipo::Testo) continue;
        const bool doppio = (punto && griglia.distanza(c.punti[0], VICINO * STESSO) <= VICINO * STESSO) ||
                            std::any_of(esito.begin(), esito.end(), [&](const Cammino &e) { return uguali(e, c); });
        if (!doppio) esito.push_back(std::move(c));
        else if (punto) ++r.puntiDoppi;
    }
    cammini = std::move(esito);
}

}  // namespace ombrelia::officina
