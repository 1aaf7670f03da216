// Axes and limit lines.
#include "gnomonica/contorno.h"

namespace ombrelia {

void TracciaAssi(Sessione &s) {
    if (s.in.ckAssi != 1) return;
    Tavolo &t = s.tavolo;
    t.xLine(-t.ShiftX(), 0, t.ShiftX(), 0, QB(15));
    t.xLine(0, -2 * t.ShiftY(), 0, 2 * t.ShiftY(), QB(15));
}

void TracciaLimiti(Sessione &s, const Lettura &letto, const Cornice &c) {
    Tavolo &t = s.tavolo;
    const Variabili &v = s.v;
    const double l = t.ShiftX(), h = t.ShiftY();
    // Under the frame's own sides: a corrected dial has these once.
    if (s.in.ckCorretta != 1) {
        t.xLine(-l, -c.yMax, l, -c.yMax, QB(12));
        t.xLine(-l, -c.yMin, l, -c.yMin, QB(4));
        // Upward half as far as downward, unlike the axes: meant.
        t.xLine(c.xMin, -h, c.xMin, 2 * h, QB(12));
        t.xLine(c.xMax, -h, c.xMax, 2 * h, QB(4));
    }
    TracciaCornice(s, letto);
    s.Dati(Frase() << c.xMin / v.unita, c.xMin, 0);
    s.Dati(Frase() << c.xMax / v.unita, c.xMax, 0);
    s.Dati(Frase() << c.yMax / v.unita, 0, -c.yMax);
    s.Dati(Frase() << c.yMin / v.unita, 0, -c.yMin);
}

}  // namespace ombrelia
