// A run of the direct engine from its fields to the caption.
#include "direct/diretta.h"

#include "direct/corsa.h"
#include "glyphs/zodiaco.h"
#include "gnomonica/almucantarat.h"
#include "gnomonica/centro.h"
#include "gnomonica/contorno.h"
#include "gnomonica/longitudine.h"
#include "sessione/limiti.h"

namespace ombrelia::direct {

namespace {

void didascalia(const Corsa &c, Valore seno, Valore q) {
    Sessione &s = c.s;
    const Variabili &v = c.v;
    const std::string_view misura = TestoUnita(s);
    const Reale estate = AltezzaSolstizio(c.piano(), 1);
    const Reale inverno = AltezzaSolstizio(c.piano(), -1);
    const RigaDati righe[] = {
        {"latitudine  = "_it, Tronca5(v.latGradi), " °"},
        {"declinazione  = "_it, Tronca5(v.dec), " °"},
        {"inclinazione = "_it, Tronca5(v.inc), " °"},
        {"longitudine = "_it, Round(v.lonCopia, 5), " °"},
        {"ortostilo = "_it, v.gn, misura},
        {"assostilo = "_it, Abs(Tronca5(v.gn / seno)), misura},
        {"ascissa centro = "_it, Tronca5(v.xCentro), misura},
        {"ordinata centro = "_it, Tronca5(v.yCentro), misura},
        {"ordinata orizzonte = "_it, Tronca5(OrdinataOrizzonte(v.gn, v.iz_o)), misura},
        {"Quibla = "_it, Tronca5(q), " °"},
        {"Altezza del sole alle 12 d'estate = "_it, Tronca5(estate), " °"},
        {"Altezza del sole alle 12 d'inverno = "_it, Tronca5(inverno), " °"},
    };
    s.tavolo.ForeColor = BIANCO;
    ScriviDati(s, righe);
    Frase costante(s.Traduci("Costante locale = "_it));
    costante << CostanteLocale(v) << " p";
    // A constant that does not count from the start's zone names its meridian.
    if (AltroMeridiano(v)) costante << " (" << s.Traduci("longitudine = "_it) << v.meridiano << " °)";
    s.Dati(costante);
    // A southern site has its sign back by now, but a run that cmdRun mirrored reads a northern latitude. True lines need
    // no exchange.
    if ((v.latR < 0 || v.segnoLat == -1) && s.in.ckCorretta != 1)
        s.Dati(s.Traduci("Per ottenere le ore italiche cliccare babiloniche e viceversa"));
}

void rettaOrizzonte(Corsa &c, const LineeAttese &linee) {
    const Valore y = c.v.yOriz;
    const double l = c.s.tavolo.ShiftX();
    const Pretendi pretendi(c.s.tavolo, Specie::Orizzonte);
    c.s.tavolo.TracciaLinea(-l, y, l, y, linee[0].colore);
}

// --- the table of features ------------------------------------------------------------------------------------------

// Once more under hours and days; a corrected dial has one frame.
void cornice(Corsa &c) {
    if (c.s.in.ckCorretta != 1) TracciaCornice(c.s, c.letto);
}

// The signs read the fields once more; the horizon is the field's from here on, unscaled, and the plane what was typed.
void zodiaco(Corsa &c, const LineeAttese &) {
    DisegnaZodiaco(c.s);
    c.rifaiPiano();
}

using In = DialInputs;
using Riga = Caratteristica<Corsa>;

constexpr LineaAttesa EQUINOZIALE[] = {{0, 0, "equinox", BLU}};
constexpr LineaAttesa SUSTILARE[] = {{0, 0, "substyle hour", BLU}};
constexpr LineaAttesa STILO[] = {{0, 0, "polar style", BLU}, {0, 0, "pillar", MAGENTA}, {0, 0, "substyle", GIALLO}};
constexpr LineaAttesa ASR[] = {{0, 1, "", ARGENTO}};

constexpr Riga CARATTERISTICHE[] = {
    {&In::chkOreAstronomiche, Specie::Ora, "true hours, halves and quarters", LineeOrarie, TracciaRetteOrarie, nullptr, cornice},
    {&In::Ck_DayLightCurves, Specie::Diurna, "days of solstice, signs and choice", LineeDiurne, TracciaLineeDiurne, nullptr,
     cornice},
    {&In::ck_Equinoziale, Specie::Equinoziale, "the equinoctial", LineeFisse<EQUINOZIALE>, TracciaEquinoziale},
    {&In::ck_Italiche, Specie::Italica, "hours from sunset", LineeItaliche, TracciaOreItaliche},
    {&In::ck_babiloniche, Specie::Babilonica, "hours from sunrise", LineeBabiloniche, TracciaOreBabiloniche},
    {&In::ckTemp, Specie::Temporaria, "twelfths of the day", LineeTemporarie, TracciaOreTemporarie},
    {&In::ck_Sustilare, Specie::OraSustilare, "hour line of the substyle", LineeFisse<SUSTILARE>, TracciaSustilare},
    {&In::ck_Triangolo, Specie::Stilo, "triangle of the polar style", LineeFisse<STILO>, TracciaStiloPolare},
    {&In::ck_Triangolo, Specie::Mezzogiorno, "line of greatest slope through the centre", UnaLinea<GRIGIO>,
     TracciaVerticaleCentro},
    {&In::ckZodiac, Specie::Nessuna, "signs of the zodiac", nullptr, zodiaco},
    {&In::ckAlt, Specie::Almucantarat, "equal altitudes", [](const Corsa &c, LineeAttese &l) { LineeAlmucantarat(c.letto, l); },
     [](Corsa &c, const LineeAttese &l) { TracciaAlmucantarat(c, l); }},
    {&In::ck_Lemniscate, Specie::Analemma, "mean noon of the zone", LineeLemniscata, TracciaLemniscata, nullptr,
     LasciaLemniscata},
    {&In::ckAsr, Specie::Asr, "afternoon prayer", LineeFisse<ASR>, TracciaAsr},
};

// After the Qibla and the centre.
constexpr Riga ORIZZONTE[] = {
    {&In::ck_Orizzonte, Specie::Orizzonte, "the horizon", UnaLinea<GIALLO>, rettaOrizzonte,
     [](const Corsa &c) { return !c.orizzontale; }},
};
// After the caption the horizon comes once more, on a level plane too.
constexpr Riga ORIZZONTE_DI_NUOVO[] = {
    {&In::ck_Orizzonte, Specie::Orizzonte, "the horizon again", UnaLinea<GIALLO>, rettaOrizzonte,
     [](const Corsa &c) { return c.s.in.ckCorretta != 1; }},
};
// The lines appear once a request: their box clears itself.
void lasciaRichiesta(Corsa &c) { c.s.in.ckAz = 0; }

// Behind the frame.
constexpr Riga ULTIME[] = {
    {&In::ckAz, Specie::Azimut, "equal azimuths", LineeAzimutali, TracciaRetteAzimutali,
     [](const Corsa &c) { return c.v.latR != 0 || c.s.in.ckCorretta == 1; }, lasciaRichiesta},
};

// Bearing in every run; curve and texts with CkQibla set, the curve only off the equator. Gives the caption's bearing.
Reale qibla(Corsa &c) {
    Sessione &s = c.s;
    Qibla qibla = CalcolaQibla(c);
    const bool chiesta = s.in.CkQibla == 1;
    const LineaAttesa curva{0, 0, "Quibla", VERDE};
    const bool fatta = s.corretta({Motore::Diretta, Specie::Qibla, Specie::Nessuna, {&curva, chiesta ? 1U : 0U}, &qibla.q});
    if (chiesta) {
        if (!fatta && c.v.latR != 0) TracciaQibla(c, qibla.B);
        TestiQibla(c, qibla.q);
    }
    return qibla.q;
}

// --- what the run leaves in the shared variables beside its features ------------------------------------------------------

// The fields, as every engine reads them; the unit; the sign of a latitude that is positive by now.
void leggiParametri(Corsa &c) {
    Variabili &v = c.s.v;
    v.unita = c.letto.unita;
    LeggiParametri(c.s, c.letto);
    v.segnoLat2 = SegnoLatitudine(v.latR);
    c.rifaiPiano();
}

// A level plane has no declination: in the variables, in the field and for the rest of the run (Corsa::dec).
void lasciaOrizzontale(Corsa &c) {
    c.s.v.decR = 0;
    c.s.Scrivi(&DialInputs::txtDec, "0");
    c.rifaiPiano();
}

// The place of the origin on a sheet that has none yet, and the shift that holds; metres.
void lasciaOrigine(Sessione &s) {
    Variabili &v = s.v;
    Tavolo &t = s.tavolo;
    v.rapportoBase = v.inc_o == 90 ? 2.0 : 3.33333;
    if (t.ShiftX() == 0 && t.ShiftY() == 0) {
        t.ShiftX(t.QuadranteL() / 2.0);
        t.ShiftY((t.QuadranteH() / v.rapportoBase).v);
    }
    v.origineX = t.ShiftX();
    v.origineY = t.ShiftY();
}

// The horizon's ordinate of the original plane, metres, which most lines end at; its field, in its unit. A level plane has none
// and gets one that lets every line pass.
void lasciaOrizzonte(Sessione &s) {
    Variabili &v = s.v;
    if (v.iz_o == PI / 2.0) {
        v.yOriz = -1;
        return;
    }
    v.yOriz = OrdinataOrizzonte(v.gn, v.iz_o);
    s.Scrivi(&DialInputs::txtOriz, TestoNumero(v.yOriz.numero()));
    v.yOriz = v.yOriz * v.unita;
}

// Figures and caption start from the fields again, as the zodiac and the azimuth lines may have changed them; the latitude keeps
// its sign from here on, a level plane its declination of 0.
void rileggiPiano(Corsa &c) {
    Variabili &v = c.s.v;
    v.latR = PI * c.letto.lat / 180.0;
    v.gn = c.letto.gn;
    v.lonCopia = c.letto.lon;
    v.incR = PI * c.letto.inc / 180;
    c.rifaiPiano();
}

// The dial's centre, in the unit of the fields; untouched where the style lies in the plane.
void lasciaCentro(Corsa &c) {
    Variabili &v = c.s.v;
    const Piano &p = c.piano();
    const Reale polo = p.senStilo();
    if (polo == 0) return;
    const PostoCentro centro = CentroConComplemento(p, polo);
    v.xCentro = centro.x;
    v.yCentro = centro.y;
}

// The frame's upper left corner, metres.
void lasciaCornice(Corsa &c) {
    c.s.v.x1 = c.cornice.xMin;
    c.s.v.y1 = c.cornice.yMax;
}

}  // namespace

std::vector<SignificatoCasella> Significati() { return SignificatiDi(CARATTERISTICHE, ORIZZONTE, ULTIME); }

bool TroppoFitta(Sessione &s, const Lettura &letto) {
    const DialInputs &in = s.in;
    const Valore frazione = letto.fraz == 0 ? Valore(1) : letto.fraz;
    const auto punti = static_cast<double>(Anno().size());
    const bool ore = in.ck_Italiche == 1 || in.ck_babiloniche == 1;
    if (ore && TroppoFitto(s, {GiroOre(s, letto.inizio, letto.fine, frazione, punti)})) return true;
    if (in.ckTemp == 1 && TroppoFitto(s, {GiroOre(s, 0, 12, frazione, punti)})) return true;
    const Conteggio anno(-OBLIQUITA_2345, OBLIQUITA_2345, letto.passo * 10);
    // At most eleven altitudes, morning and afternoon.
    return in.ckAlt == 1 && TroppoFitto(s, {{"txtDensity", in.txtDensity, anno, 22}});
}

void I_Graf_diretta(Sessione &s, const Lettura &letto) {
    if (s.v.flagVerticale == 1 && Abs(s.v.inc_o) == 90) {
        s.utente.Box(s.Traduci("Funzione disabilitata"));
        return;
    }
    s.Messaggio("I_Graf_diretta per ogni tipo di os comunque orientato ");
    Corsa c(s, letto);
    if (Sgn(letto.lat) == -1) return;
    if (TroppoFitta(s, letto)) return;

    leggiParametri(c);
    s.utente.Puntatore(true);
    // The original dial answers here and below, not the fields as they now stand.
    c.orizzontale = Abs(c.v.iz_o) == PI / 2.0;
    if (c.orizzontale) lasciaOrizzontale(c);
    const Reale seno = c.piano().senStilo();
    lasciaOrigine(s);
    TracciaAssi(s);
    lasciaOrizzonte(s);
    PercorriCaratteristiche(c, Motore::Diretta, CARATTERISTICHE);

    rileggiPiano(c);
    s.tavolo.Dati("");
    const Reale q = qibla(c);
    lasciaCentro(c);
    PercorriCaratteristiche(c, Motore::Diretta, ORIZZONTE);
    didascalia(c, seno, q);
    PercorriCaratteristiche(c, Motore::Diretta, ORIZZONTE_DI_NUOVO);
    lasciaCornice(c);
    TracciaLimiti(s, c.letto, c.cornice);
    PercorriCaratteristiche(c, Motore::Diretta, ULTIME);
    s.utente.Puntatore(false);
}

}  // namespace ombrelia::direct
