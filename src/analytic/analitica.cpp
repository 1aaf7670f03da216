// A run of the analytic engine from its fields to the frame, and the fundamental angles and points.
#include "analytic/analitica.h"

#include "analytic/corsa.h"
#include "gnomonica/angoli_parete.h"
#include "gnomonica/centro.h"
#include "gnomonica/contorno.h"
#include "sessione/limiti.h"

namespace ombrelia::analytic {

namespace {

bool troppoFitto(Sessione &s, const Lettura &letto) {
    const DialInputs &in = s.in;
    const Variabili &v = s.v;
    // As the reading of the fields is about to leave them.
    Reale lat = v.lat, passo = v.passo, fraz = v.fraz;
    lat = letto.lat;
    passo = letto.passo;
    fraz = letto.fraz;
    const bool tangenti = (in.ck_Italiche == 1 || in.ck_babiloniche == 1) && (v.letture == 0 ? lat : v.lat_o) != 0;
    const double diurne = in.Ck_DayLightCurves == 1 ? 8 : 2;
    if (in.chkOreAstronomiche == 1 && TroppoFitto(s, {{"TxtFraz", in.TxtFraz, Conteggio(-90, 90, 15 / fraz)}})) return true;
    if (lat != 0 && TroppoFitto(s, {{"txtDensity", in.txtDensity, Conteggio(-1, 1, passo), diurne}})) return true;
    return tangenti && TroppoFitto(s, {{"txtDensity", in.txtDensity, Conteggio(-0.5, 0.5, passo / 100), 2},
                                       {"txtDensity", in.txtDensity, Conteggio(-1, 1, passo / 10), 13}});
}

// --- the table of features ------------------------------------------------------------------------------------------

using In = DialInputs;
using Riga = Caratteristica<Corsa>;

// A wall that has a centre within reach; true lines need none.
bool conCentro(const Corsa &c) {
    const Variabili &v = c.v;
    return c.s.in.ckCorretta == 1 || !((v.lat == 0 && v.dec == 0) || Abs(v.dec) == 90);
}

constexpr LineaAttesa TRIANGOLO[] = {{0, 0, "", BLU}, {0, 0, "", ROSSO}};
constexpr LineaAttesa LEMNISCATA[] = {{0, 12, "", ROSSO}};

constexpr Riga CARATTERISTICHE[] = {
    // The hour lines alone scale gn: without them a dial in millimetres is drawn with gn as typed. Meant.
    {&In::chkOreAstronomiche, Specie::Ora, "true hours and their parts", LineeOre, TracciaOreAstronomiche, nullptr, LasciaOre},
    {nullptr, Specie::Mezzogiorno, "vertical through the centre", LineeCentro, TracciaCentro, nullptr, LasciaCentro},
    {nullptr, Specie::Diurna, "the day of choice", LineaScelta, TracciaLineaDiurnaScelta, nullptr, LasciaDiurne},
    {&In::Ck_DayLightCurves, Specie::Diurna, "days of solstices and signs", LineeDiurne, TracciaLineeDiurneAnalitiche, nullptr,
     LasciaDiurne},
    {&In::ck_Sustilare, Specie::Sustilare, "the substyle", UnaLinea<GIALLO>, TracciaSustilareAnalitica},
    {&In::ck_Equinoziale, Specie::Equinoziale, "the equinoctial", UnaLinea<VERDE>, TracciaEquinozialeAnalitica},
    {nullptr, Specie::Stilo, "triangle of the style, laid flat", LineeFisse<TRIANGOLO>, TracciaTriangoloAnalitico, conCentro},
    {nullptr, Specie::Orizzonte, "horizontal through the foot", UnaLinea<GIALLO>, TracciaOrizzontale, conCentro},
    {nullptr, Specie::Nessuna, "solstices on the horizon, as text", nullptr, CalcolaSolstiziOrizzonte},
    {&In::ck_Italiche, Specie::Italica, "hours from sunset", LineeItaliche, TracciaItalicheAnalitiche, nullptr, LasciaTangenti},
    {&In::ck_babiloniche, Specie::Babilonica, "hours from sunrise", LineeBabiloniche, TracciaBabilonicheAnalitiche, nullptr,
     LasciaTangenti},
    {&In::ck_Lemniscate, Specie::Analemma, "mean noon of the zone",
     // Due south its points have a colour of their own.
     LineeFisse<LEMNISCATA>, TracciaLemniscataAnalitica, nullptr, LasciaLemniscata},
};

// The sheet's middle, metres, for the lines that cross it; the unit of the fields.
void lasciaFoglio(Corsa &c) {
    Variabili &v = c.s.v;
    v.semiL = c.s.tavolo.ShiftX();
    v.semiH = c.s.tavolo.ShiftY();
    v.unita = c.letto.unita;
}

}  // namespace

std::vector<SignificatoCasella> Significati() { return SignificatiDi(CARATTERISTICHE); }

void EseguiGraficaAnalitica(Sessione &s, const Lettura &letto) {
    Corsa c(s, letto);
    s.Messaggio("Piede Esegui: algoritmo che usa prevalentemente la Geometria Analitica ");
    if (Sgn(letto.lat) == -1) {
        s.Messaggio("Grafica Analitica non è abilitata a lavorare a latitudini australi ");
        return;
    }
    if (troppoFitto(s, letto)) return;
    s.utente.Puntatore(true);
    lasciaFoglio(c);
    TracciaAssi(s);
    CalcolaAngoliAnalitici(s, letto);
    c.rifaiPiano();
    PercorriCaratteristiche(c, Motore::Analitica, CARATTERISTICHE);
    TracciaCornice(s, letto);
    s.utente.Puntatore(false);
}

// Foot and centre, of which triangle, horizontal and captions are made; a wall that looks due north has its substyle upright.
void LasciaCentro(Corsa &c) {
    Variabili &v = c.s.v;
    v.xCentroNeg = 0;
    v.yCentroNeg = 0;
    if (v.dec == 180) v.angSustilare = 0;
    c.rifaiPiano();
    if (Abs(v.dec) == 90) return;
    v.segStiloSus = v.gn / c.stilo().te;  // stands where the style is square to the plane
    const PostoCentro centro = CentroDaSustilare(v.segStiloSus, c.stilo().sigma);
    v.xCentro = centro.x;
    v.yCentro = centro.y;
}
void LineeCentro(const Corsa &c, LineeAttese &linee) {
    if (!(Abs(c.v.dec) == 90)) linee.push_back({0, 0, "", ROSSO_SCURO});
}
void TracciaCentro(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    const Pretendi pretendi(c.s.tavolo, Specie::Mezzogiorno);
    for (const LineaAttesa &l : linee) c.s.tavolo.TracciaLinea(v.xCentro, v.semiH, v.xCentro, -v.semiH, l.colore);
}

}  // namespace ombrelia::analytic
