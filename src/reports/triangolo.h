// The triangle of the polar style, as the data report and the hours' report work it out and leave it for each other.
#pragma once

#include "core/variabili.h"

namespace ombrelia::reports {

// Lengths and places in the unit of gn; origin at the foot of the ortostilo, y upward. C is the centre, G the foot, P where
// substyle and equinoctial meet, M where meridian and equinoctial do, S where the substyle meets the horizontal line through M.
struct TriangoloStilo {
    // As the shared variables hold it: a length without a value keeps its own.
    explicit TriangoloStilo(const Variabili &v);

    // CG and CP. Given: the style's elevation, radians, and assostiloLen. Source: elementary geometry. Faults: as above.
    void suSustilare(Valore altStilo);

    Reale assostiloLen;            // the hypotenuse, C to the tip
    Reale CG, CM, CP, MS;          // segStiloSus, segCentroPiede, segAsse, segPiedeEq
    Reale xCentro, yCentro;        // C seen from G
    Reale xCentroNeg, yCentroNeg;  // G seen from C
};

// For the analytic engine's style and centre, and for the next report.
void LasciaTriangolo(Variabili &v, const TriangoloStilo &t);

}  // namespace ombrelia::reports
