// Axes and limit lines.
#include "gnomonica/contorno.h"

namespace ombrelia {

void TracciaAssi(Sessione &s) {
    if (s.in.ckAssi != 1) return;
    Tavolo &t = s.tavolo;
    t.TracciaLinea(-t.ShiftX(), PIEDE, t.ShiftX(), PIEDE, BIANCO);
    t.TracciaLinea(0, 2 * t.ShiftY(), 0, -2 * t.ShiftY(), BIANCO);
}

void TracciaLimiti(Sessione &s, const Lettura &letto, const Cornice &c) {
    Tavolo &t = s.tavolo;
    const Variabili &v = s.v;
    const double l = t.ShiftX(), h = t.ShiftY();
    // Under the frame's own sides: a corrected dial has these once.
    if (s.in.ckCorretta != 1) {
        t.TracciaLinea(-l, c.yMax, l, c.yMax, ROSSO);
        t.TracciaLinea(-l, c.yMin, l, c.yMin, ROSSO_SCURO);
        // Upward half as far as downward, unlike the axes: meant.
        t.TracciaLinea(c.xMin, h, c.xMin, -2 * h, ROSSO);
        t.TracciaLinea(c.xMax, h, c.xMax, -2 * h, ROSSO_SCURO);
    }
    TracciaCornice(s, letto);
    s.Dati(Frase() << c.xMin / v.unita, c.xMin, PIEDE);
    s.Dati(Frase() << c.xMax / v.unita, c.xMax, PIEDE);
    s.Dati(Frase() << c.yMax / v.unita, 0, c.yMax);
    s.Dati(Frase() << c.yMin / v.unita, 0, c.yMin);
}

void ScriviDati(Sessione &s, std::span<const RigaDati> righe) {
    s.Dati(s.Traduci("DATI QUADRANTE "));
    for (const RigaDati &r : righe) s.Dati(Frase(s.Traduci(r.etichetta)) << r.valore << r.coda);
}

}  // namespace ombrelia
