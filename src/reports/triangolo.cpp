// The triangle of the polar style between the reports and the shared variables.
#include "reports/triangolo.h"

namespace ombrelia::reports {

TriangoloStilo::TriangoloStilo(const Variabili &v)
    : assostiloLen(v.assostiloLen),
      CG(v.segStiloSus),
      CM(v.segCentroPiede),
      CP(v.segAsse),
      MS(v.segPiedeEq),
      xCentro(v.xCentro),
      yCentro(v.yCentro),
      xCentroNeg(v.xCentroNeg),
      yCentroNeg(v.yCentroNeg) {}

void TriangoloStilo::suSustilare(Valore altStilo) {
    CG = assostiloLen * cos(altStilo);
    CP = assostiloLen / cos(altStilo);
}

void LasciaTriangolo(Variabili &v, const TriangoloStilo &t) {
    v.assostiloLen = t.assostiloLen;
    v.segStiloSus = t.CG;
    v.segCentroPiede = t.CM;
    v.segAsse = t.CP;
    v.segPiedeEq = t.MS;
    v.xCentro = t.xCentro;
    v.yCentro = t.yCentro;
    v.xCentroNeg = t.xCentroNeg;
    v.yCentroNeg = t.yCentroNeg;
}

}  // namespace ombrelia::reports
