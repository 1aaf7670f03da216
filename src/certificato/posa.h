// How the dial of the fields is mounted, for the shadow by vectors. Reads a session and changes nothing.
#pragma once

#include "ombra/ombra.h"
#include "sessione/sessione.h"

namespace ombrelia {

// Given, gives: see each. Source: elementary (an hour is 15 degrees, a degree 4 minutes). Faults: none.
struct Posa {
    ombra::QuadranteMontato quadrante;  // as mounted: a southern plane's field of declination counts from North
    double longitudine = 0;             // radians, West positive
    double meridiano = 0;               // of the zone, radians, West positive
    double unita = 1;                   // metres in a unit of the fields
    bool australe = false;              // the list of its drawing is the mirror image: x is the other way round there

    // From the list's x to that of the plane as mounted, and back.
    [[nodiscard]] double verso() const { return australe ? -1 : 1; }
    // Hours of the zone's mean time East of Greenwich.
    [[nodiscard]] double fuso() const { return -meridiano * ombra::GRADI / 15; }
    // Minutes that make the site's true time the zone's: added to it.
    [[nodiscard]] double minutiDelFuso() const { return (longitudine - meridiano) * ombra::GRADI * 4; }
};

// A field's number. Given, gives: as typed. Source: by definition. Faults: 0 for one without a value.
inline double NumeroDi(Reale campo) { return campo.numero(); }

// The dial of the fields as they stand, before a run.
[[nodiscard]] Posa PosaDeiCampi(const Sessione &s);
// The dial of the last run: a southern latitude that the run made positive counts as it was typed, and an equivalent
// dial is the plane that it stands for.
[[nodiscard]] Posa PosaDelDisegno(const Sessione &s, const Lettura &letto);
[[nodiscard]] inline Posa PosaDelDisegno(const Sessione &s) { return PosaDelDisegno(s, Lettura(s.in)); }

}  // namespace ombrelia
