// A run of the vertical engine from its fields to the caption.
#include "vertical/piana.h"

#include "gnomonica/almucantarat.h"
#include "sessione/limiti.h"
#include "vertical/sfera.h"

namespace ombrelia::vertical {

namespace {

bool troppoFitto(Sessione &s) {
    const DialInputs &in = s.in;
    Reale passo = s.v.passo, fraz = s.v.fraz;
    passo = Val(in.txtDensity);
    fraz = Val(in.TxtFraz);
    if (fraz == 0) fraz = 1;
    const auto denso = [&](const Conteggio &giro, double volte = 1) {
        return TroppoFitto(s, {{"txtDensity", in.txtDensity, giro, volte}});
    };
    const Conteggio anno(-23.44, 23.44, 10 * passo);
    const double punti = std::min(anno.passi(), static_cast<double>(PUNTI_LINEA));
    const auto ore = [&](int casella, int quante) {
        return casella == 1 && (denso(anno) || TroppoFitto(s, {{"TxtFraz", in.TxtFraz, Conteggio(0, quante, 1 / fraz), punti}}));
    };
    return (s.v.inc_o != 90 && (ore(in.ck_Italiche, 18) || ore(in.ck_babiloniche, 18))) || ore(in.ckTemp, 12) ||
           (in.ck_Equinoziale == 1 && Val(in.txtDec) == 0 && denso({-90, 90, 10 * passo})) ||
           (in.ck_Sustilare == 1 && denso({-23.445, 23.445, 0.999 * passo})) ||
           // At most eleven altitudes, morning and afternoon.
           (in.ckAlt == 1 && denso({-23.45, 23.45, Val(in.txtDensity) * 10}, 22));
}

// Noon altitude at a solstice, degrees. The two near-equal declinations in one formula are meant.
Valore altezzaMezzogiorno(Valore latR, double primo, double secondo) {
    return 180 * ArcSin(sin(latR) * sin(PI * primo / 180) + cos(latR) * cos(PI * secondo / 180)) / PI;
}

void lineeLimite(Sessione &s, const Cornice &c) {
    Tavolo &t = s.tavolo;
    const Variabili &v = s.v;
    const Valore l = v.semiL, h = v.semiH;
    t.xLine(-l, -c.yMax, l, -c.yMax, QB(12));
    t.xLine(-l, -c.yMin, l, -c.yMin, QB(4));
    // Upward half as far as downward, unlike the axes: meant.
    t.xLine(c.xMin, -h, c.xMin, 2 * h, QB(12));
    t.xLine(c.xMax, -h, c.xMax, 2 * h, QB(4));
    TracciaCornice(s);
    s.Dati(Frase() << c.xMin / v.unita, c.xMin, 0);
    s.Dati(Frase() << c.xMax / v.unita, c.xMax, 0);
    s.Dati(Frase() << c.yMax / v.unita, 0, -c.yMax);
    s.Dati(Frase() << c.yMin / v.unita, 0, -c.yMin);
}

// c2 is the sine of the style's elevation.
void didascalia(Sessione &s, Valore c2) {
    const Variabili &v = s.v;
    const std::string_view misura = TestoUnita(s);
    const Reale hEstate = altezzaMezzogiorno(v.latR, 23.445, 23.45);
    const Reale hInverno = altezzaMezzogiorno(v.latR, -23.445, -23.45);
    const struct {
        std::string_view etichetta;
        Valore valore;
        std::string_view coda;
    } righe[] = {
        {"latitudine  = "_it, Tronca5(v.lat), " °"},
        {"declinazione  = "_it, Tronca5(v.decGradi), " °"},
        {"inclinazione = "_it, 0, " °"},
        {"longitudine = "_it, Round(v.lonCopia, 5), " °"},
        {"ortostilo = "_it, v.gn, misura},
        {"assostilo = "_it, Abs(Tronca5(v.gn / c2)), misura},
        {"sottostilo = "_it, Abs(Tronca5(v.gn / tan(v.altStilo))), misura},
        {"ascissa centro = "_it, Tronca5(v.xCentro), misura},
        {"ordinata centro = "_it, Tronca5(v.yCentro), misura},
        {"ordinata orizzonte = "_it, Tronca5(tan(v.iz_o) * v.gn), misura},
        {"Altezza del sole alle 12 d'estate = "_it, Tronca5(hEstate), " °"},
        {"Altezza del sole alle 12 d'inverno = "_it, Tronca5(hInverno), " °"},
    };
    s.Dati("");
    s.Dati(s.Traduci("DATI QUADRANTE "));
    for (const auto &riga : righe) s.Dati(Frase(s.Traduci(riga.etichetta)) << riga.valore << riga.coda);
}

}  // namespace

void LeggiParametriPiana(Sessione &s) {
    Variabili &v = s.v;
    const DialInputs &in = s.in;
    v.lat = Val(in.txtLAT);
    v.latR = PI * v.lat / 180;
    v.dec = Val(in.txtDec);
    v.decR = PI * v.dec / 180;
    v.inc = Val(in.txtInc);
    v.incR = PI * v.inc / 180;
    v.segnoLatPiana = v.latR == 0 ? Valore(1) : Sgn(v.latR);
    if (v.letture == 0) {
        v.lat_o = v.latR;
        v.dec_o = v.decR;
        v.iz_o = v.incR;
    }
    // The lemniscate follows the site from the first press on.
    v.lon = Val(in.txtLonG);
    v.lonCopia = Val(in.txtLonG);
    v.segnoLon = Val(in.txtLonG) < 0 ? 1 : -1;
    v.lonAssoluta = Abs(Val(in.txtLonG));
    v.angOraLong = PI * (15 - v.segnoLatPiana * v.segnoLon * v.lonAssoluta) / 180;
    v.decGradi = Val(in.txtDec);
    v.declinSessag = v.decGradi;
    v.decR = PI * v.declinSessag / 180;
    v.gradiPasso = 15 / Val(in.TxtFraz);
    v.passo = Val(in.txtDensity);
    v.gn = Val(in.TxtStilo);
}

void CalcolaCentroPiana(Sessione &s) {
    Variabili &v = s.v;
    const Valore c = -cos(v.latR) * cos(v.decR);
    if (c == 0) return;
    v.xCentro = v.unita * sin(v.decR) * cos(v.latR) * v.gn / c;
    v.yCentro = v.unita * sin(v.latR) * -v.gn / c;
}

void Piana_Esegui(Sessione &s) {
    if (troppoFitto(s)) return;
    Variabili &v = s.v;
    const DialInputs &in = s.in;
    Tavolo &t = s.tavolo;
    if (v.flagVerticale == 0) v.diffLong = 0;
    (void)LeggiCornice(s);
    s.utente.Puntatore(true);
    s.Messaggio("Piana _Esegui: Vertical dial by spherical trigonometry ");
    LeggiParametriPiana(s);
    const Reale c2 = cos(v.decR) * cos(v.latR);
    v.altStilo = Abs(c2) < 1 ? ArcSin(c2) : Valore(PI / 2);
    v.semiL = t.ShiftX();
    v.semiH = t.ShiftY();
    if (in.ckAssi == 1) {
        t.xLine(-v.semiL, 0, v.semiL, 0, QB(15));
        t.xLine(0, -2 * v.semiH, 0, 2 * v.semiH, QB(15));
    }
    v.gn = Val(in.TxtStilo);
    CalcolaCentroPiana(s);

    if (in.chkOreAstronomiche == 1) {
        TracciaOreAstro(s);
        // The routine looks at ckRomani alone: with both boxes set the Roman numerals come twice.
        if (in.ckRomani == 1) PosizionaNumeriOrari(s);
        if (in.ckArabi == 1) PosizionaNumeriOrari(s);
    }
    if (in.Ck_DayLightCurves == 1) {
        TracciaDiurnaSolstizioDicembre(s);
        TracciaDiurnaOpzionale(s);
    }
    bool italicheFatte = false;
    if (in.ck_Italiche == 1) {
        TracciaItaliche(s);
        italicheFatte = true;
        if (in.ckRomani != 1) EtichetteItaliche(s);
    }
    if (in.ck_babiloniche == 1) {
        TracciaBabiloniche(s);
        italicheFatte = true;
        if (in.ckRomani != 1) EtichetteBabiloniche(s);
    }
    if (in.ckTemp == 1) {
        TracciaTemporarie(s);
        if (!italicheFatte && in.ckRomani != 1) EtichetteTemporarie(s);
    }
    if (in.ck_Equinoziale == 1) {
        if (v.declinSessag == 0) PuntiEquinozialeDecZero(s);
        else TracciaEquinoziale(s);
    }
    if (in.ck_Orizzonte == 1) TracciaOrizzonte(s);
    if (in.ck_Lemniscate == 1) TracciaLemniscata(s);
    if (in.ck_Sustilare == 1) TracciaSustilare(s);
    if (in.ck_Triangolo == 1) TracciaTriangoloStilo(s);
    // ckZodiac has no step of its own: the signs come with the lemniscate.
    if (in.CkQibla == 1) TracciaQibla(s);
    if (in.ckAlt == 1) {
        const Lettura letto(in);
        LineeAttese linee;
        LineeAlmucantarat(letto, linee);
        TracciaAlmucantarat(s, letto, CorniceDi(letto), linee);
    }
    if (in.ckAz == 1) TracciaAzimutali(s);
    if (in.ck_Orizzonte == 1) {
        const Pretendi pretendi(t, Specie::Orizzonte);
        t.xLine(-v.semiL, -v.yOriz, v.semiL, -v.yOriz, QB(14));
        s.Scrivi(&DialInputs::txtOriz, TestoNumero(v.yOriz.numero()));
    }
    lineeLimite(s, LeggiCornice(s));
    s.utente.Puntatore(false);

    // The centre of the caption, without unita.
    const Reale sustilare = Sustilare(v);
    v.xCentro = sin(sustilare) * v.gn / tan(v.altStilo);
    v.yCentro = cos(sustilare) * -v.gn / tan(v.altStilo);
    didascalia(s, c2);
    if (in.ckAsr == 1) TracciaAsr(s);
}

}  // namespace ombrelia::vertical
