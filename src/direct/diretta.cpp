// A run of the direct engine from its fields to the caption.
#include "direct/diretta.h"

#include "direct/sbarramento.h"
#include "glyphs/zodiaco.h"
#include "sessione/limiti.h"

namespace ombrelia::direct {

namespace {

bool troppoFitto(Sessione &s) {
    const DialInputs &in = s.in;
    const Valore letta = Val(in.TxtFraz);
    const Valore frazione = letta == 0 ? Valore(1) : letta;
    const auto punti = static_cast<double>(Anno().size());
    const bool ore = in.ck_Italiche == 1 || in.ck_babiloniche == 1;
    if (ore && TroppoFitto(s, {GiroOre(s, Val(in.TxtInizio), Val(in.TxtFine), frazione, punti)})) return true;
    if (in.ckTemp == 1 && TroppoFitto(s, {GiroOre(s, 0, 12, frazione, punti)})) return true;
    const Conteggio anno(-23.45, 23.45, Val(in.txtDensity) * 10);
    // At most eleven altitudes, morning and afternoon.
    return in.ckAlt == 1 && TroppoFitto(s, {{"txtDensity", in.txtDensity, anno, 22}});
}

// Noon altitude at a solstice, degrees. The two near-equal declinations in one formula are meant.
Valore altezzaMezzogiorno(Valore latR, double primo, double secondo) {
    return ArcSin(sin(latR) * sin(PI * primo / 180.0) + cos(latR) * cos(PI * secondo / 180.0)) * 180 / PI;
}

void didascalia(Sessione &s, Valore seno, Valore q) {
    const Variabili &v = s.v;
    const std::string_view misura = TestoUnita(s);
    const Reale estate = altezzaMezzogiorno(v.latR, 23.445, 23.45);
    const Reale inverno = altezzaMezzogiorno(v.latR, -23.445, -23.45);
    const struct {
        std::string_view etichetta;
        Valore valore;
        std::string_view coda;
    } righe[] = {
        {"latitudine  = "_it, Tronca5(v.latGradi), " °"},
        {"declinazione  = "_it, Tronca5(v.dec), " °"},
        {"inclinazione = "_it, Tronca5(v.inc), " °"},
        {"longitudine = "_it, Round(v.lonCopia, 5), " °"},
        {"ortostilo = "_it, v.gn, misura},
        {"assostilo = "_it, Abs(Tronca5(v.gn / seno)), misura},
        {"ascissa centro = "_it, Tronca5(v.xCentro), misura},
        {"ordinata centro = "_it, Tronca5(v.yCentro), misura},
        {"ordinata orizzonte = "_it, Tronca5(v.gn * tan(v.iz_o)), misura},
        {"Quibla = "_it, Tronca5(q), " °"},
        {"Altezza del sole alle 12 d'estate = "_it, Tronca5(estate), " °"},
        {"Altezza del sole alle 12 d'inverno = "_it, Tronca5(inverno), " °"},
        {"Costante locale = "_it, 4 * (v.lonCopia + 15), " p"},
    };
    s.tavolo.ForeColor = QB(15);
    s.Dati(s.Traduci("DATI QUADRANTE "));
    for (const auto &riga : righe) s.Dati(Frase(s.Traduci(riga.etichetta)) << riga.valore << riga.coda);
    // A southern site has its sign back by now, but a run that cmdRun mirrored reads a northern latitude.
    if (v.latR < 0 || v.segnoLat == -1) s.Dati(s.Traduci("Per ottenere le ore italiche cliccare babiloniche e viceversa"));
}

void rettaOrizzonte(Sessione &s) {
    const Pretendi pretendi(s.tavolo, Specie::Orizzonte);
    const double l = s.tavolo.ShiftX();
    s.tavolo.xLine(-l, -s.v.yOriz, l, -s.v.yOriz, QB(14));
}

void lineeCornice(Sessione &s, const Cornice &c) {
    Tavolo &t = s.tavolo;
    Variabili &v = s.v;
    const double l = t.ShiftX(), h = t.ShiftY();
    t.xLine(-l, -c.yMax, l, -c.yMax, QB(12));
    t.xLine(-l, -c.yMin, l, -c.yMin, QB(4));
    t.xLine(c.xMin, -h, c.xMin, 2.0 * h, QB(12));
    t.xLine(c.xMax, -h, c.xMax, 2.0 * h, QB(4));
    v.x1 = c.xMin;
    v.y1 = c.yMax;
    TracciaCornice(s);
    s.Dati(Frase() << c.xMin / v.unita, c.xMin, 0);
    s.Dati(Frase() << c.xMax / v.unita, c.xMax, 0);
    s.Dati(Frase() << c.yMax / v.unita, 0, -c.yMax);
    s.Dati(Frase() << c.yMin / v.unita, 0, -c.yMin);
}

}  // namespace

void I_Graf_diretta(Sessione &s) {
    Variabili &v = s.v;
    DialInputs &in = s.in;
    Tavolo &t = s.tavolo;
    if (v.flagVerticale == 1 && Abs(v.inc_o) == 90) {
        s.utente.Box(s.Traduci("Funzione disabilitata"));
        return;
    }
    s.Messaggio("I_Graf_diretta per ogni tipo di os comunque orientato ");
    if (Sgn(Val(in.txtLAT)) == -1) return;
    if (troppoFitto(s)) return;

    const Cornice cornice = LeggiCornice(s);
    LeggiParametri(s);
    v.segnoLat2 = v.latR == 0 ? Valore(1) : Sgn(v.latR);
    s.utente.Puntatore(true);

    // The original dial answers here and below, not the fields as they now stand.
    const bool orizzontale = Abs(v.iz_o) == PI / 2.0;
    if (orizzontale) {
        v.decR = 0;
        s.Scrivi(&DialInputs::txtDec, "0");
    }
    // Sine of the assostilo's elevation over the plane.
    const Reale seno = sin(v.latR) * sin(v.incR) - cos(v.latR) * cos(v.incR) * cos(v.decR);
    v.rapportoBase = v.inc_o == 90 ? 2.0 : 3.33333;
    if (t.ShiftX() == 0 && t.ShiftY() == 0) {
        t.ShiftX(t.QuadranteL() / 2.0);
        t.ShiftY((t.QuadranteH() / v.rapportoBase).v);
    }
    v.origineX = t.ShiftX();
    v.origineY = t.ShiftY();
    if (in.ckAssi == 1) {
        t.xLine(-t.ShiftX(), 0, t.ShiftX(), 0, QB(15));
        t.xLine(0, -2 * t.ShiftY(), 0, 2 * t.ShiftY(), QB(15));
    }
    if (v.iz_o != PI / 2.0) {
        v.yOriz = v.gn * tan(v.iz_o);
        s.Scrivi(&DialInputs::txtOriz, TestoNumero(v.yOriz.numero()));
        v.yOriz = v.yOriz * v.unita;
    } else {
        v.yOriz = -1;
    }

    if (in.chkOreAstronomiche == 1) TracciaRetteOrarie(s);
    if (in.Ck_DayLightCurves == 1) TracciaLineeDiurne(s);
    if (in.ck_Equinoziale == 1) TracciaEquinoziale(s);
    if (in.ck_Italiche == 1) TracciaOreItaliche(s);
    if (in.ck_babiloniche == 1) TracciaOreBabiloniche(s);
    if (in.ckTemp == 1) TracciaOreTemporarie(s);
    if (in.ck_Sustilare == 1) TracciaSustilare(s);
    if (in.ck_Triangolo == 1) TracciaStiloPolare(s);
    if (in.ckZodiac == 1) DisegnaZodiaco(s);
    if (in.ckAlt == 1) TracciaAlmucantarat(s);
    if (in.ck_Lemniscate == 1) {
        if (v.segnoLat == -1) TracciaLemniscataSud(s);
        else TracciaLemniscata(s);
    }
    if (in.ckAsr == 1) TracciaAsr(s, cornice, orizzontale);

    // The figures and the caption start from the fields again; the latitude keeps its sign from here on.
    v.latR = PI * Val(in.txtLAT) / 180.0;
    t.Dati("");
    v.gn = Val(in.TxtStilo);
    v.lonCopia = Val(in.txtLonG);
    v.incR = PI * Val(in.txtInc) / 180;

    const Qibla qibla = TracciaQibla(s, cornice, orizzontale);

    const Reale polo = sin(v.latR) * sin(v.incR) - cos(v.latR) * cos(v.incR) * cos(v.decR);
    if (polo != 0) {
        const Valore z = (PI / 2.0) - v.incR;
        v.xCentro = (v.gn / polo) * cos(v.latR) * sin(v.decR);
        v.yCentro = (-v.gn / polo) * (sin(v.latR) * sin(z) + cos(v.latR) * cos(z) * cos(v.decR));
    }
    if (!orizzontale && in.ck_Orizzonte == 1) rettaOrizzonte(s);
    didascalia(s, seno, qibla.q);
    if (in.ck_Orizzonte == 1) rettaOrizzonte(s);
    lineeCornice(s, cornice);
    TracciaRetteAzimutali(s);
    s.utente.Puntatore(false);
}

}  // namespace ombrelia::direct
