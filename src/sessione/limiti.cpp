// The guard of a run.
#include "sessione/limiti.h"

#include <algorithm>
#include <fstream>
#include <string>

#include "core/testo.h"

namespace ombrelia {

std::size_t RecordInMemoria() {
    constexpr double SENZA_NOTIZIE = 4e9, AL_RECORD = 5 * 48.0, MINIMO = 1e6;  // bytes, bytes, records
    double liberi = SENZA_NOTIZIE;
    std::ifstream memoria("/proc/meminfo");
    for (std::string nome, resto; memoria >> nome; std::getline(memoria, resto))
        if (double kB = 0; nome == "MemAvailable:" && memoria >> kB) liberi = kB * 1024;
    return static_cast<std::size_t>(std::max(liberi / AL_RECORD, MINIMO));
}

bool TroppoFitto(Sessione &s, std::initializer_list<GiroDelCampo> giri) {
    for (const GiroDelCampo &g : giri) {
        const bool lungo = g.conteggio.eccessivo() || g.conteggio.passi() * g.puntiPerPasso > PUNTI_MASSIMI;
        const bool grande = g.conteggio.passi() * g.puntiPerPasso > static_cast<double>(s.tavolo.recordMassimi);
        if (!lungo && !grande) continue;
        s.utente.Box(std::string(g.campo) + " = " + g.testo + ": " +
                     s.Traduci(lungo ? "troppo fitto"_it : "la memoria non basta per tanti punti"_it));
        return true;
    }
    return false;
}

GiroDelCampo GiroOre(const Sessione &s, Valore da, Valore a, Valore frazione, double puntiPerPasso) {
    const GiroDelCampo intere{"", s.in.TxtFraz, Conteggio(da, a, 1), puntiPerPasso};
    const bool lunghe = intere.conteggio.eccessivo() || intere.conteggio.passi() * puntiPerPasso > PUNTI_MASSIMI;
    const Conteggio conteggio(da, a, 1 / frazione);
    if (!lunghe) return {"TxtFraz", s.in.TxtFraz, conteggio, puntiPerPasso};
    if (Abs(da) > Abs(a)) return {"TxtInizio", s.in.TxtInizio, conteggio, puntiPerPasso};
    return {"TxtFine", s.in.TxtFine, conteggio, puntiPerPasso};
}

}  // namespace ombrelia
