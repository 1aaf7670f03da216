// The transformation into the equivalent vertical dial.
#include "analytic/equivalente.h"

#include "gnomonica/equivalente.h"
#include "gnomonica/stilo.h"

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

// Every run and report of a transformed dial finds these: latitude as typed, unit, longitude as yet.
void lasciaInizio(Sessione &s, const Lettura &letto) {
    Variabili &v = s.v;
    LeggiParametri(s, letto);
    v.latGradi = letto.lat;
    v.segnoLat2 = 1;
    v.unita = letto.unita;
    v.lonEq = v.lonCopia + (v.diffLong * 180 / PI) * 0;
}

// The plane's inclination, radians, and its sign of the declination; that a level one was transformed.
void lasciaPiano(Variabili &v) {
    v.incR2 = v.incR;
    v.segnoDec = SegnoDeclinazione(v.dec, v.decR);
    if (v.inc == 90) v.flagTrasformato = 1;
}

// The difference of longitudes, radians; unless the wall is turned round, the sign of its latitude and, of the original plane as
// the reports expect to find them, elevation of the style (E, its sign turned) and hour angle of the substyle.
void lasciaEquivalente(Variabili &v, const PareteEquivalente &e, Valore E) {
    v.diffLong = e.diffLong;
    if (e.girata) return;
    v.segnoTrasf = Sgn(e.f1);
    v.altStilo = E;
    const Reale x = SenOraSustilare(v.decR, v.incR, v.altStilo);
    v.angoloOra = ArcSin(x);
}

// The equivalent dial's longitude, degrees, and the box of the zone's time, in which it is to be drawn.
void lasciaLongitudine(Sessione &s) {
    s.v.lonEq = s.v.lonCopia - s.v.diffLong * 180 / PI;
    s.in.ck_Etna = 1;
}

}  // namespace

void TrasformaInVerticaleEquivalente(Sessione &s) {
    const Variabili &v = s.v;
    const Lettura letto(s.in);
    lasciaInizio(s, letto);
    if (v.incR == 0) return;
    const Valore segno = SegnoLatitudine(v.latGradi);
    lasciaPiano(s.v);
    s.utente.Beep();

    const Piano piano(v);
    const Reale E = ArcSin(piano.senStilo());
    Reale f1, d1;
    if (v.inc != 90) {
        const PareteEquivalente e = EquivalenteDi(piano, v.dec);
        f1 = e.f1;
        d1 = e.d1 * v.segnoDec;
        lasciaEquivalente(s.v, e, E);
        if (!e.girata && v.decR != 0 && v.latR != 0) s.utente.Beep();
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
    const Reale orizzonte = Tronca5(OrdinataOrizzonte(v.gn, v.incR2));
    scriviPiano(s, gradi5(segno * f1), gradi5(d1), TestoNumero(orizzonte.numero()));
    const Reale longitudine = (s.in.ck_Etna == 0 ? v.meridiano : v.lonCopia) - v.diffLong * 180 / PI;
    s.Scrivi(&DialInputs::txtLonG, TestoNumero(longitudine.numero()));
    lasciaLongitudine(s);
}

}  // namespace ombrelia::analytic
