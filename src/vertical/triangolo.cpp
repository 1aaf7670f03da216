// The triangle of the polar style for the builder: the style lengthened along the substyle by txtSUBSTYLE, the plain
// triangle under it, and the measures as text.
#include <optional>

#include "gnomonica/centro.h"
#include "vertical/corsa.h"

namespace ombrelia::vertical {

namespace {

struct VerticeStilo {
    Reale x, y;  // scaled, y upward
};

// New root of the style, foot of its false ortostilo, centre of the dial, tip of the gnomon folded into the plane.
struct Triangolo {
    Reale altStilo;    // elevation of the style, radians
    Reale sottostilo;  // its length on the substyle before it is lengthened
    Reale lunghezza;   // whole length on the substyle
    Reale ortoFalso;
    VerticeStilo P, Q, F, G;
};

Triangolo calcola(const Corsa &c) {
    const Variabili &v = c.v;
    const Piano &p = c.piano();
    const Valore segnoDecLocale = SegnoDeclinazione(p.g);
    const Valore segnoLatLocale = SegnoLatitudine(p.phi);
    const Reale allungo = v.unita * c.letto.allungo;
    const Reale sust = SustilareMuroIntera(p);
    Triangolo t;
    t.altStilo = v.altStilo;  // what faults keeps the run's
    t.sottostilo = v.segStiloSus;
    const Reale &g = t.altStilo;
    t.altStilo = -StiloMuro(p);
    t.sottostilo = v.unita * Abs(v.gn / tan(g));

    t.lunghezza = allungo + t.sottostilo;
    t.ortoFalso = tan(g) * t.lunghezza;
    t.P.x = sin(sust) * allungo;
    t.P.y = cos(sust) * -allungo;
    t.Q.x = t.P.x + cos(sust) * tan(g) * t.lunghezza * segnoDecLocale;
    t.Q.y = t.P.y + sin(sust) * tan(g) * t.lunghezza * segnoDecLocale;
    const PostoCentro centro = CentroDaMezzogiorno(p, segnoLatLocale);
    t.F.x = centro.x;
    t.F.y = centro.y;
    const Valore gnVerso = v.gn * -segnoDecLocale;
    t.G.x = segnoLatLocale * v.unita * cos(sust) * gnVerso;
    t.G.y = segnoLatLocale * v.unita * sin(sust) * gnVerso;
    return t;
}

// The elevation of the style, negative here on a wall that looks south, which the caption's centre follows, and the sottostilo.
void lascia(Variabili &v, const Triangolo &t) {
    v.altStilo = t.altStilo;
    v.segStiloSus = t.sottostilo;
}

enum { IPOTENUSA_L, FALSO, CATETO_L, IPOTENUSA, CATETO, MEZZOGIORNO, ORTOSTILO };

}  // namespace

void LineeTriangolo(const Corsa &, LineeAttese &linee) {
    for (const auto &[strato, colore] : std::initializer_list<std::pair<std::string_view, Colore>>{{"IPOTENUSA_L", BLU},
                                                                                                   {"FALSO ortostilo", BLU},
                                                                                                   {"CATETO_L", BLU},
                                                                                                   {"Ipotenusa", BLU},
                                                                                                   {"Cateto", GIALLO},
                                                                                                   {"Mezzogiorno", GRIGIO},
                                                                                                   {"Ortostilo", MAGENTA}})
        linee.push_back({0, 0, strato, colore});
}

void TracciaTriangoloStilo(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    Tavolo &t = c.s.tavolo;
    const Triangolo triangolo = calcola(c);
    lascia(c.s.v, triangolo);
    const VerticeStilo &P = triangolo.P, &Q = triangolo.Q, &F = triangolo.F, &G = triangolo.G;
    const auto cerchio = [&](const VerticeStilo &p, int divisore, Colore colore) {
        t.TracciaCerchio(p.x, p.y, v.unita * v.gn / divisore, colore);
    };
    const auto linea = [&](const VerticeStilo &a, const VerticeStilo &b, int n) {
        const LineaAttesa &l = linee[static_cast<std::size_t>(n)];
        t.TracciaLinea(a.x, a.y, b.x, b.y, l.colore, l.strato);
    };
    const VerticeStilo origine;
    std::optional<Pretendi> pretendi(std::in_place, t, Specie::Stilo);
    cerchio(P, 10, BIANCO);
    cerchio(Q, 10, ROSSO);
    linea(F, Q, IPOTENUSA_L);
    linea(P, Q, FALSO);
    linea(origine, P, CATETO_L);
    for (int volta = 0; volta < (c.s.in.ckFunzione == 1 ? 1 : 2); ++volta) {
        t.TracciaPunto(F.x, F.y, ROSSO);
        t.TracciaPunto(G.x, G.y, ROSSO);
        linea(G, F, IPOTENUSA);
        linea(F, origine, CATETO);
    }
    cerchio(F, 10, ROSSO);
    pretendi.emplace(t, Specie::Mezzogiorno);
    t.TracciaLinea(F.x, F.y, F.x, -2 * t.ShiftY(), linee[MEZZOGIORNO].colore, linee[MEZZOGIORNO].strato);
    pretendi.emplace(t, Specie::Stilo);
    linea(G, origine, ORTOSTILO);
    cerchio(F, 100, ROSSO);
}

void TestiTriangolo(Corsa &c, const LineeAttese &) {
    Sessione &s = c.s;
    const Triangolo t = calcola(c);
    lascia(s.v, t);
    const Variabili &v = c.v;
    const Valore g = t.altStilo;
    s.Dati("");
    s.Dati(s.Traduci("TRIANGOLO dello STILO LUNGO"));
    const auto riga = [&](std::string_view etichetta, Valore lunghezza, const VerticeStilo &p) {
        s.Dati(Frase(s.Traduci(etichetta)) << Abs(Tronca5(lunghezza)) / v.unita << ", " << s.Traduci("coordinate x, y ")
                                           << Tronca5(p.x / v.unita) << ", " << Tronca5(p.y / v.unita));
    };
    riga("Falso ortostilo = "_it, t.ortoFalso, t.P);
    riga("assostilo = "_it, t.lunghezza / cos(g), t.Q);
    riga("cateto sottostilo = "_it, t.ortoFalso / tan(g), t.F);
}

}  // namespace ombrelia::vertical
