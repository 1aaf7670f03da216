// The transformation into the equivalent vertical dial.
#include "analytic/equivalente.h"

namespace ombrelia::analytic {

namespace {

std::string gradi5(Valore radianti) { return TestoNumero(Reale(Round(Gradi(radianti), 5)).numero()); }

// The two fields of the equivalent plane's frame that every branch writes alike.
void scriviPiano(Sessione &s, const std::string &lat, const std::string &dec, const std::string &orizzonte) {
    s.Scrivi(&DialInputs::txtLAT, lat);
    s.Scrivi(&DialInputs::txtDec, dec);
    s.Scrivi(&DialInputs::txtInc, "0");
    s.Scrivi(&DialInputs::txtOriz, orizzonte);
}

}  // namespace

void TrasformaInVerticaleEquivalente(Sessione &s) {
    Variabili &v = s.v;
    LeggiParametri(s);
    v.latGradi = Val(s.in.txtLAT);
    const Valore sl = v.latGradi == 0 ? Valore(1) : Sgn(v.latGradi);
    v.segnoLat2 = 1;
    v.unita = s.in.ChCentimetro == 1 ? 0.001 : 1.0;
    v.lonEq = v.lonCopia + (v.diffLong * 180 / PI) * 0;
    if (v.incR == 0) return;
    v.incR2 = v.incR;
    s.utente.Beep();

    const Valore si = sin(v.incR), ci = cos(v.incR), sf = sin(v.latR), cf = cos(v.latR), sg = sin(v.decR), cg = cos(v.decR);
    const Reale A = si * sf - ci * cf * cg;
    const Reale E = ArcSin(A);  // -E is the elevation of the style over the plane
    v.segnoDec = v.dec == 0 ? Valore(1) : Sgn(v.decR);
    Reale f1, d1;
    if (v.inc == 90) {
        v.flagTrasformato = 1;
    } else {
        const Reale B = ci * sf + si * cf * cg;
        if (v.dec == 0 && A > 0) {
            f1 = Atn(B / Sqr(1 - B * B));
            d1 = PI;
            v.diffLong = PI;
        } else {
            f1 = ArcSin(B);
            v.segnoTrasf = Sgn(f1);
            const Valore sf1 = sin(f1), cf1 = cos(f1), segno = v.segnoDec;
            const Reale W = si * sg / cf1;
            if (v.dec == 0) v.diffLong = 0;
            else if (Abs(v.dec) == 180) v.diffLong = PI;
            else v.diffLong = ArcCos((ci - sf * sf1) / (cf * cf1)) * Sgn(W);
            if (v.dec == 0) d1 = 0;
            else if (Abs(v.dec) == 180) d1 = PI * segno;
            else d1 = ArcCos(((ci * sf1 - sf) / (si * cf1)) * Sgn(f1)) * segno;
            // Of the original plane; its own style and substyle, as the reports expect to find them.
            v.altStilo = E;
            const Reale x = sg * ci / cos(v.altStilo);
            v.angoloOra = Atn(x / Sqr(1 - x * x));
            if (v.decR != 0 && v.latR != 0) s.utente.Beep();
        }
    }

    if (v.segnoLat2 == -1 && v.inc == -90) {  // never: the sign was set above. Meant
        scriviPiano(s, TestoNumero(Gradi(-(PI / 2 + v.latR)).v), "-180", "infinito");
        s.Scrivi(&DialInputs::txtLonG, TestoNumero(v.lonCopia.numero()));
        return;
    }
    if (v.inc == 90) {
        scriviPiano(s, gradi5(PI / 2 - v.latR), "180", "infinito");
        s.Scrivi(&DialInputs::txtLonG, TestoNumero(v.lonCopia.numero()));
        return;
    }
    const Reale orizzonte = Tronca5(v.gn * tan(v.incR2));
    scriviPiano(s, gradi5(sl * f1), gradi5(d1), TestoNumero(orizzonte.numero()));
    const Reale longitudine = (s.in.ck_Etna == 0 ? v.meridiano : v.lonCopia) - v.diffLong * 180 / PI;
    s.Scrivi(&DialInputs::txtLonG, TestoNumero(longitudine.numero()));
    v.lonEq = v.lonCopia - v.diffLong * 180 / PI;
    s.in.ck_Etna = 1;
}

}  // namespace ombrelia::analytic
