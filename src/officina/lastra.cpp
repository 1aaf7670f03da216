// The dial's plate: strokes widened to areas, each a step up or down.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "officina/profilo.h"
#include "officina/scrittori.h"

#ifdef OMBRELIA_CLIPPER
#include <polyclipping/clipper.hpp>
#endif

namespace ombrelia::officina {

namespace {

constexpr double ORLO = 5;  // mm around the drawing

}  // namespace

Riquadro ContornoLastra(const Disegno &d) {
    const Riquadro p = Pagina(d);
    return {p.x0 - ORLO, p.y0 - ORLO, p.x1 + ORLO, p.y1 + ORLO};
}

#ifndef OMBRELIA_CLIPPER

Solido Lastra(const Disegno &, const Gnomone &, const Misure &, bool, std::string &errore) {
    errore = "this build has no polygon clipping (libpolyclipping), which a plate takes";
    return {};
}

#else

namespace {

namespace cl = ClipperLib;

cl::IntPoint micron(P2 p) { return {std::llround(1000 * p.x), std::llround(1000 * p.y)}; }

cl::Path rettangolo(P2 a, P2 b, P2 c, P2 d) { return {micron(a), micron(b), micron(c), micron(d)}; }

// All strokes as areas; no two contours touch.
cl::Paths aree(const Disegno &d, const Misure &m) {
    cl::ClipperOffset o(2, 5);  // round ends within 0.005 mm
    for (const Cammino &c : d.cammini) {
        cl::Path p;
        if (c.tipo == Cammino::Tipo::Testo) continue;
        if (c.tipo == Cammino::Tipo::Cerchio || c.tipo == Cammino::Tipo::Arco) {
            const double giro = c.lunghezza() / c.raggio, da = c.tipo == Cammino::Tipo::Arco ? c.inizio : 0;
            const int n = std::max(12, static_cast<int>(std::ceil(giro * std::sqrt(c.raggio / 0.04))));
            for (int i = 0; i <= n; ++i)
                p.push_back(micron(c.punti[0] + c.raggio * P2{std::cos(da + giro * i / n), std::sin(da + giro * i / n)}));
        } else {
            for (const P2 q : c.punti) p.push_back(micron(q));
        }
        const bool chiuso = c.chiuso || c.tipo == Cammino::Tipo::Cerchio;
        if (c.tipo == Cammino::Tipo::Cerchio) p.pop_back();
        o.AddPath(p, cl::jtRound, chiuso ? cl::etClosedLine : cl::etOpenRound);
    }
    cl::Paths esito;
    o.Execute(esito, 500 * m.linea);
    return esito;
}

Contorno contorno(const cl::Path &p) {
    Contorno c;
    for (const cl::IntPoint &q : p) c.push_back({q.X, q.Y});
    return c;
}

// Contours that touch at a corner part when they shrink by a hundredth of a millimetre.
cl::Paths pulite(cl::Paths p, const cl::Paths &fessure) {
    cl::Clipper k;
    k.AddPaths(p, cl::ptSubject, true);
    cl::ClipperOffset largo;
    largo.AddPaths(fessure, cl::jtMiter, cl::etClosedPolygon);
    cl::Paths via, esito;
    largo.Execute(via, 300);
    k.AddPaths(via, cl::ptClip, true);
    k.StrictlySimple(true);
    k.Execute(cl::ctDifference, esito, cl::pftNonZero, cl::pftNonZero);
    cl::CleanPolygons(esito, 3);
    cl::ClipperOffset stretto(2, 5);
    stretto.AddPaths(esito, cl::jtMiter, cl::etClosedPolygon);
    stretto.Execute(esito, -10);
    std::erase_if(esito, [](const cl::Path &q) { return q.size() < 3 || std::fabs(cl::Area(q)) < 2000; });
    return esito;
}

}  // namespace

Solido Lastra(const Disegno &d, const Gnomone &g, const Misure &m, bool conFessure, std::string &errore) {
    Solido s;
    if (m.profondita <= 0 || m.lastra <= 0 || (!m.rilievo && m.profondita >= m.lastra)) {
        errore = "the lines would go through the plate";
        return s;
    }
    const Riquadro b = ContornoLastra(d);
    cl::Paths fessure;
    if (conFessure) {
        const auto p = ProfiloStilo(g, b, errore);
        if (!p) return s;
        const P2 lato{-p->verso.y, p->verso.x};
        const double mezzo = m.spessore / 2 + 0.1, gioco = 0.1;
        for (const auto &[da, a] : p->linguette) {
            const P2 i = (da - gioco) * p->verso, k = (a + gioco) * p->verso;
            cl::Path f = rettangolo(i - mezzo * lato, k - mezzo * lato, k + mezzo * lato, i + mezzo * lato);
            const bool dentro = std::all_of(f.begin(), f.end(), [&](const cl::IntPoint &q) {
                return Riquadro{b.x0 + 1, b.y0 + 1, b.x1 - 1, b.y1 - 1}.contiene(
                    {static_cast<double>(q.X) / 1000, static_cast<double>(q.Y) / 1000});
            });
            if (dentro) fessure.push_back(f);
        }
    }
    const cl::Paths linee = pulite(aree(d, m), fessure);
    // Every contour with the smallest one around it; the plate's own is the first.
    struct ContornoAnnidato {
        Contorno c;
        enum { Bordo, Linea, Fessura } che;
        std::vector<std::size_t> figli;
        std::int64_t x0, x1, y0, y1;
    };
    std::vector<ContornoAnnidato> voci;
    const auto metti = [&](const Contorno &c, decltype(ContornoAnnidato::che) che) {
        const auto [xa, xb] = std::minmax_element(c.begin(), c.end(), [](Pm p, Pm q) { return p.x < q.x; });
        const auto [ya, yb] = std::minmax_element(c.begin(), c.end(), [](Pm p, Pm q) { return p.y < q.y; });
        voci.push_back({c, che, {}, xa->x, xb->x, ya->y, yb->y});
    };
    metti(contorno(rettangolo({b.x0, b.y0}, {b.x1, b.y0}, {b.x1, b.y1}, {b.x0, b.y1})), ContornoAnnidato::Bordo);
    for (const cl::Path &p : linee) metti(contorno(p), ContornoAnnidato::Linea);
    for (const cl::Path &p : fessure) metti(contorno(p), ContornoAnnidato::Fessura);
    for (std::size_t i = 1; i < voci.size(); ++i) {
        std::size_t madre = 0;
        std::int64_t minima = std::numeric_limits<std::int64_t>::max();
        for (std::size_t k = 1; k < voci.size(); ++k) {
            const ContornoAnnidato &v = voci[k];
            const Pm p = voci[i].c[0];
            if (k == i || p.x < v.x0 || p.x > v.x1 || p.y < v.y0 || p.y > v.y1) continue;
            cl::Path q;
            for (const Pm c : v.c) q.emplace_back(c.x, c.y);
            const std::int64_t area = std::abs(AreaDoppia(v.c));
            if (area < minima && cl::PointInPolygon({p.x, p.y}, q) != 0) {
                minima = area;
                madre = k;
            }
        }
        voci[madre].figli.push_back(i);
    }
    const double su = m.lastra, linea = m.rilievo ? su + m.profondita : su - m.profondita;
    const auto verso = [](Contorno c, bool antiorario) {
        if ((AreaDoppia(c) > 0) != antiorario) std::reverse(c.begin(), c.end());
        return c;
    };
    for (const ContornoAnnidato &v : voci) {
        if (v.che == ContornoAnnidato::Fessura) continue;
        std::vector<Contorno> fori;
        for (const std::size_t k : v.figli) fori.push_back(verso(voci[k].c, false));
        // A counter-clockwise line is its area, a clockwise one the plate that it encloses.
        const bool area = v.che == ContornoAnnidato::Linea && AreaDoppia(v.c) > 0;
        Faccia(s, Triangola(verso(v.c, true), fori), area ? linea : su, true);
        if (v.che == ContornoAnnidato::Linea) Parete(s, v.c, su, linea);
        else Parete(s, v.c, 0, su);
    }
    std::vector<Contorno> fori;
    for (const ContornoAnnidato &v : voci)
        if (v.che == ContornoAnnidato::Fessura) {
            fori.push_back(verso(v.c, false));
            Parete(s, fori.back(), 0, su);
        }
    Faccia(s, Triangola(voci[0].c, fori), 0, false);
    return s;
}

#endif

}  // namespace ombrelia::officina
