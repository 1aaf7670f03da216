// Handlers of the world map: loading, drawing, cities, the Sun or Moon point.
#include "app/comandi.h"
#include "core/percorsi.h"
#include "map/mappa.h"

namespace ombrelia::app {

namespace {

void punto_Click(Sessione &s, int) {
    if (s.in.ckFunzione == 1) DisegnaCitta(s);
    else PuntoOpzionale(s);
}

Esito cmdStati_Click(Sessione &s, int) {
    CaricaMondo(s);
    constexpr std::string_view FILE = "mondo.csv";
    if (!s.mondo.paesi.empty() || TrovaDato(FILE)) return Esito::Fatto;
    return Esito::fallito(std::string(FILE), s.Traduci("Non trovo il file ") + std::string(FILE) + ": " + LuoghiDati(), false);
}

constexpr Gestore GESTORI[] = {
    {"cmdStati", Evento::Clic, cmdStati_Click},
    {"cmdPlot", Evento::Clic, [](Sessione &s, int) { DisegnaMondo(s); }},
    {"punto", Evento::Clic, punto_Click},
};

}  // namespace

std::span<const Gestore> GestoriMappa() { return GESTORI; }

}  // namespace ombrelia::app
