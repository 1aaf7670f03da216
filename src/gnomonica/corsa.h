// One run of an engine: what was read of the fields, and the plane that follows from it.
#pragma once

#include "core/certo.h"
#include "gnomonica/stilo.h"
#include "sessione/sessione.h"

namespace ombrelia {

// What the runs of all engines have; each adds what its own lines share.
struct CorsaBase {
    CorsaBase(Sessione &sessione, const Lettura &lettura)
        : s(sessione), v(sessione.v), letto(lettura), cornice(CorniceDi(letto)), piano_(v) {}

    Sessione &s;         // what lines are drawn on
    const Variabili &v;  // as they stand; what a routine leaves there it leaves in a function Lascia...
    const Lettura letto;
    const Cornice cornice;

    // The plane of the shared variables, which a run may leave as another than it was: whoever changes latR, decR, incR, gn or
    // unita there makes it anew.
    [[nodiscard]] const Piano &piano() const { return piano_; }
    void rifaiPiano() { piano_ = Piano(v); }
    // Before each feature: that nobody forgot.
    void verifica() const { Certo(piano_.di(v), "the plane of a run is not that of its variables"); }

private:
    Piano piano_;
};

}  // namespace ombrelia
