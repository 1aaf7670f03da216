// The guard of a run.
#include "sessione/limiti.h"

namespace ombrelia {

bool TroppoFitto(Sessione &s, std::initializer_list<Giro> giri) {
    for (const Giro &g : giri) {
        if (!g.conteggio.eccessivo() && g.conteggio.passi() * g.puntiPerPasso <= PUNTI_MASSIMI) continue;
        s.utente.Box(std::string(g.campo) + " = " + g.testo + ": " + s.Traduci("troppo fitto"));
        return true;
    }
    return false;
}

Giro GiroOre(const Sessione &s, Valore da, Valore a, Valore frazione, double puntiPerPasso) {
    const Giro intere{"", s.in.TxtFraz, Conteggio(da, a, 1), puntiPerPasso};
    const bool lunghe = intere.conteggio.eccessivo() || intere.conteggio.passi() * puntiPerPasso > PUNTI_MASSIMI;
    const Conteggio conteggio(da, a, 1 / frazione);
    if (!lunghe) return {"TxtFraz", s.in.TxtFraz, conteggio, puntiPerPasso};
    if (Abs(da) > Abs(a)) return {"TxtInizio", s.in.TxtInizio, conteggio, puntiPerPasso};
    return {"TxtFine", s.in.TxtFine, conteggio, puntiPerPasso};
}

}  // namespace ombrelia
