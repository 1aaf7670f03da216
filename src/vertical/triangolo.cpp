// The triangle of the polar style for the builder: the style lengthened along the substyle by txtSUBSTYLE, the plain
// triangle under it, and the measures as text.
#include <optional>

#include "vertical/piana.h"
#include "vertical/sfera.h"

namespace ombrelia::vertical {

namespace {

struct Punto {
    Reale x, y;  // scaled, y upward
};

}  // namespace

void TracciaTriangoloStilo(Sessione &s) {
    Variabili &v = s.v;
    Tavolo &t = s.tavolo;
    (void)LeggiCornice(s);
    const Valore segnoDecLocale = v.decR == 0 ? Valore(1) : Sgn(v.decR);
    const Valore segnoLatLocale = v.latR == 0 ? Valore(1) : Sgn(v.latR);
    const Reale allungo = v.unita * Val(s.in.txtSUBSTYLE);
    const Reale sust = Sustilare(v);
    // Here the elevation is negative on a wall that looks south; the caption's centre follows it.
    Reale &g = v.altStilo;
    g = ArcSin(-cos(v.latR) * cos(v.decR));

    v.segStiloSus = v.unita * Abs(v.gn / tan(g));
    const Reale Lu = allungo + v.segStiloSus;  // the whole length on the substyle
    const Reale ortoFalso = tan(g) * Lu;

    // New root of the style, foot of its false ortostilo, centre of the dial, tip of the gnomon folded into the plane.
    Punto P, Q, F, G;
    P.x = sin(sust) * allungo;
    P.y = cos(sust) * -allungo;
    Q.x = P.x + cos(sust) * tan(g) * Lu * segnoDecLocale;
    Q.y = P.y + sin(sust) * tan(g) * Lu * segnoDecLocale;
    F.x = segnoLatLocale * v.unita * tan(v.decR) * -v.gn;
    F.y = segnoLatLocale * v.unita * tan(v.latR) * v.gn / cos(v.decR);

    const auto cerchio = [&](const Punto &p, int divisore, Colore colore) {
        t.xCircle(p.x, -p.y, v.unita * v.gn / divisore, colore);
    };
    const auto linea = [&](const Punto &a, const Punto &b, Colore colore, std::string_view strato) {
        t.xLine(a.x, -a.y, b.x, -b.y, colore, strato);
    };
    const Punto origine;
    std::optional<Pretendi> pretendi(std::in_place, t, Specie::Stilo);
    cerchio(P, 10, QB(15));
    cerchio(Q, 10, QB(12));
    linea(F, Q, QB(9), "IPOTENUSA_L");
    linea(P, Q, QB(9), "FALSO ortostilo");
    linea(origine, P, QB(9), "CATETO_L");

    const Valore gnVerso = v.gn * -segnoDecLocale;
    G.x = segnoLatLocale * v.unita * cos(sust) * gnVerso;
    G.y = segnoLatLocale * v.unita * sin(sust) * gnVerso;
    for (int volta = 0; volta < (s.in.ckFunzione == 1 ? 1 : 2); ++volta) {
        t.xPset(F.x, -F.y, QB(12));
        t.xPset(G.x, -G.y, QB(12));
        linea(G, F, QB(9), "Ipotenusa");
        linea(F, origine, QB(14), "Cateto");
    }
    cerchio(F, 10, QB(12));
    pretendi.emplace(t, Specie::Mezzogiorno);
    t.xLine(F.x, -F.y, F.x, 2 * t.ShiftY(), QB(8), "Mezzogiorno");
    pretendi.emplace(t, Specie::Stilo);
    linea(G, origine, QB(13), "Ortostilo");
    cerchio(F, 100, QB(12));
    pretendi.reset();

    s.Dati("");
    s.Dati(s.Traduci("TRIANGOLO dello STILO LUNGO"));
    const auto riga = [&](std::string_view etichetta, Valore lunghezza, const Punto &p) {
        s.Dati(Frase(s.Traduci(etichetta)) << Abs(Tronca5(lunghezza)) / v.unita << ", " << s.Traduci("coordinate x, y ")
                                           << Tronca5(p.x / v.unita) << ", " << Tronca5(p.y / v.unita));
    };
    riga("Falso ortostilo = "_it, ortoFalso, P);
    riga("assostilo = "_it, Lu / cos(g), Q);
    riga("cateto sottostilo = "_it, ortoFalso / tan(g), F);
}

}  // namespace ombrelia::vertical
