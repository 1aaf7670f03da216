// Handlers of the world map: loading, drawing, cities, the Sun or Moon point.
#include "app/comandi.h"
#include "map/mappa.h"

namespace ombrelia::app {

namespace {

void punto_Click(Sessione &s, int) {
    if (s.in.ckFunzione == 1) DisegnaCitta(s);
    else PuntoOpzionale(s);
}

constexpr Gestore GESTORI[] = {
    {"MDIForm1", "cmdStati", Evento::Clic, [](Sessione &s, int) { CaricaMondo(s); }},
    {"MDIForm1", "cmdPlot", Evento::Clic, [](Sessione &s, int) { DisegnaMondo(s); }},
    {"MDIForm1", "punto", Evento::Clic, punto_Click},
};

}  // namespace

std::span<const Gestore> GestoriMappa() { return GESTORI; }

}  // namespace ombrelia::app
