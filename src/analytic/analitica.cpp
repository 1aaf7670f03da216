// A run of the analytic engine from its fields to the frame, and the fundamental angles and points.
#include "analytic/analitica.h"

#include "sessione/limiti.h"

namespace ombrelia::analytic {

namespace {

bool troppoFitto(Sessione &s) {
    const DialInputs &in = s.in;
    const Variabili &v = s.v;
    // As the reading of the fields is about to leave them.
    Reale lat = v.lat, passo = v.passo, fraz = v.fraz;
    lat = Val(in.txtLAT);
    passo = Val(in.txtDensity);
    fraz = Val(in.TxtFraz);
    const bool tangenti = (in.ck_Italiche == 1 || in.ck_babiloniche == 1) && (v.letture == 0 ? lat : v.lat_o) != 0;
    const double diurne = in.Ck_DayLightCurves == 1 ? 8 : 2;
    if (in.chkOreAstronomiche == 1 && TroppoFitto(s, {{"TxtFraz", in.TxtFraz, Conteggio(-90, 90, 15 / fraz)}})) return true;
    if (lat != 0 && TroppoFitto(s, {{"txtDensity", in.txtDensity, Conteggio(-1, 1, passo), diurne}})) return true;
    return tangenti && TroppoFitto(s, {{"txtDensity", in.txtDensity, Conteggio(-0.5, 0.5, passo / 100), 2},
                                       {"txtDensity", in.txtDensity, Conteggio(-1, 1, passo / 10), 13}});
}

}  // namespace

void EseguiGraficaAnalitica(Sessione &s) {
    Variabili &v = s.v;
    const DialInputs &in = s.in;
    Tavolo &t = s.tavolo;
    s.Messaggio("Piede Esegui: algoritmo che usa prevalentemente la Geometria Analitica ");
    if (Sgn(Val(in.txtLAT)) == -1) {
        s.Messaggio("Grafica Analitica non è abilitata a lavorare a latitudini australi ");
        return;
    }
    if (troppoFitto(s)) return;
    s.utente.Puntatore(true);
    v.semiL = t.ShiftX();
    v.semiH = t.ShiftY();
    if (in.ckAssi == 1) {
        t.xLine(-v.semiL, 0, v.semiL, 0, QB(15));
        t.xLine(0, -2 * v.semiH, 0, 2 * v.semiH, QB(15));  // only this one doubled: meant
    }
    v.unita = in.ChCentimetro == 1 ? 0.001 : 1.0;
    CalcolaAngoliAnalitici(s);
    // The hour lines alone scale gn: without them a dial in millimetres is drawn with gn as typed. Meant.
    if (in.chkOreAstronomiche == 1) TracciaOreAstronomiche(s);
    CalcolaCentroAnalitico(s);
    TracciaLineaDiurnaScelta(s);
    if (in.Ck_DayLightCurves == 1) TracciaLineeDiurneAnalitiche(s);
    if (in.ck_Sustilare == 1) TracciaSustilareAnalitica(s);
    if (in.ck_Equinoziale == 1) TracciaEquinozialeAnalitica(s);
    TracciaTriangoloAnalitico(s);
    CalcolaSolstiziOrizzonte(s);
    if (in.ck_Italiche == 1) TracciaItalicheAnalitiche(s);
    if (in.ck_babiloniche == 1) TracciaBabilonicheAnalitiche(s);
    if (in.ck_Lemniscate == 1) TracciaLemniscataAnalitica(s);
    TracciaCornice(s);
    s.utente.Puntatore(false);
}

void CalcolaAngoliAnalitici(Sessione &s) {
    Variabili &v = s.v;
    LeggiParametri(s);
    const Valore segno = v.decR == 0 ? Valore(1) : Sgn(v.decR);
    const Valore c = cos(v.decR) * cos(v.latR);
    if (v.lat == 0) {
        v.angSustilare = (PI / 2) * segno;
        v.altStilo = PI / 2 - Abs(v.decR);
        v.angoloOra = (PI / 2) * v.segnoDec;  // the sign that the run before left: meant
    } else {
        v.angSustilare = Atn(sin(v.decR) / tan(v.latR));
        v.altStilo = Atn(c / Sqr(1 - c * c));
        v.angoloOra = -Atn(tan(v.angSustilare) / sin(v.altStilo));
    }
}

void CalcolaCentroAnalitico(Sessione &s) {
    Variabili &v = s.v;
    if (v.dec == 180) v.angSustilare = 0;
    if (Abs(v.dec) == 90) return;
    v.segStiloSus = v.gn / tan(v.altStilo);
    v.xCentro = -v.segStiloSus * sin(v.angSustilare);
    v.yCentro = v.segStiloSus * cos(v.angSustilare);
    const Pretendi pretendi(s.tavolo, Specie::Mezzogiorno);
    s.tavolo.xLine(v.xCentro, -v.semiH, v.xCentro, v.semiH, QB(4));
}

}  // namespace ombrelia::analytic
