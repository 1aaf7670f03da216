// The one reading of the fields.
#include "sessione/lettura.h"

#include "core/testo.h"

namespace ombrelia {

Lettura::Lettura(const DialInputs &in)
    : lat(Val(in.txtLAT)),
      dec(Val(in.txtDec)),
      inc(Val(in.txtInc)),
      lon(Val(in.txtLonG)),
      gn(Val(in.TxtStilo)),
      meridiano(Val(in.txtMeridiano)),
      x0(Val(in.txtX0)),
      y0(Val(in.txtY0)),
      x1(Val(in.txtX1)),
      y1(Val(in.txtY1)),
      xEq(Val(in.txtEqx)),
      yEq(Val(in.txtEqy)),
      xSus(Val(in.txtSusx)),
      ySus(Val(in.txtSusy)),
      oriz(Val(in.txtOriz)),
      fraz(Val(in.TxtFraz)),
      delta(Val(in.txtDelta)),
      passo(Val(in.txtDensity)),
      limMin(Val(in.txtMinus)),
      limMax(Val(in.txtMax)),
      inizio(Val(in.TxtInizio)),
      fine(Val(in.TxtFine)),
      qLat(Val(in.txtQlat)),
      qLon(Val(in.txtQlon)),
      allungo(Val(in.txtSUBSTYLE)),
      arabi(Val(in.txtArabi)),
      romani(Val(in.txtNumbersize)),
      segni(Val(in.txtZodiacsize)),
      unita(UnitaDi(in)),
      fuso(in.ck_Etna == 1) {}

}  // namespace ombrelia
