// A run of the vertical engine from its fields to the caption.
#include "vertical/piana.h"

#include "glyphs/zodiaco.h"
#include "gnomonica/almucantarat.h"
#include "gnomonica/centro.h"
#include "gnomonica/contorno.h"
#include "sessione/limiti.h"
#include "vertical/corsa.h"

namespace ombrelia::vertical {

namespace {

// c2 is the sine of the style's elevation.
void didascalia(const Corsa &c, Valore c2) {
    Sessione &s = c.s;
    const Variabili &v = c.v;
    const std::string_view misura = TestoUnita(s);
    const Reale hEstate = AltezzaSolstizio(c.piano(), 1);
    const Reale hInverno = AltezzaSolstizio(c.piano(), -1);
    const RigaDati righe[] = {
        {"latitudine  = "_it, Tronca5(v.lat), " °"},
        {"declinazione  = "_it, Tronca5(v.decGradi), " °"},
        {"inclinazione = "_it, 0, " °"},
        {"longitudine = "_it, Round(v.lonCopia, 5), " °"},
        {"ortostilo = "_it, v.gn, misura},
        {"assostilo = "_it, Abs(Tronca5(v.gn / c2)), misura},
        {"sottostilo = "_it, Abs(Tronca5(v.gn / tan(v.altStilo))), misura},
        {"ascissa centro = "_it, Tronca5(v.xCentro), misura},
        {"ordinata centro = "_it, Tronca5(v.yCentro), misura},
        {"ordinata orizzonte = "_it, Tronca5(OrdinataOrizzonte(v.gn, v.iz_o)), misura},
        {"Altezza del sole alle 12 d'estate = "_it, Tronca5(hEstate), " °"},
        {"Altezza del sole alle 12 d'inverno = "_it, Tronca5(hInverno), " °"},
    };
    s.Dati("");
    ScriviDati(s, righe);
}

// The engine's own reading of the fields, in place of the common one: the plane with the latitude's sign, the site, the zone, the
// parts of the hour. letture is not raised: the original dial stays open until a common reading, and until then is this one.
void leggiParametriPiana(Corsa &c) {
    Variabili &v = c.s.v;
    if (v.flagVerticale == 0) v.diffLong = 0;
    v.unita = c.letto.unita;
    const Lettura &letto = c.letto;
    v.lat = letto.lat;
    v.latR = PI * v.lat / 180;
    v.dec = letto.dec;
    v.decR = PI * v.dec / 180;
    v.inc = letto.inc;
    v.incR = PI * v.inc / 180;
    v.segnoLatPiana = SegnoLatitudine(v.latR);
    if (v.letture == 0) {
        v.lat_o = v.latR;
        v.dec_o = v.decR;
        v.iz_o = v.incR;
    }
    // The lemniscate follows the site from the first press on.
    v.lon = letto.lon;
    v.lonCopia = letto.lon;
    v.meridiano = letto.meridiano;
    v.segnoLon = letto.lon < 0 ? 1 : -1;
    v.lonAssoluta = Abs(letto.lon);
    v.angOraLong = PI * (-v.meridiano - v.segnoLatPiana * v.segnoLon * v.lonAssoluta) / 180;
    v.decGradi = letto.dec;
    v.declinSessag = v.decGradi;
    v.decR = PI * v.declinSessag / 180;
    v.gradiPasso = 15 / letto.fraz;
    v.passo = letto.passo;
    v.gn = letto.gn;
    c.rifaiPiano();
}

// The style's elevation from its sine, radians; the sheet's middle, metres, for lines that cross it.
void lasciaStilo(Corsa &c, Valore seno) {
    Variabili &v = c.s.v;
    v.altStilo = Abs(seno) < 1 ? ArcSin(seno) : Valore(PI / 2);
    v.semiL = c.s.tavolo.ShiftX();
    v.semiH = c.s.tavolo.ShiftY();
}

// The centre as the caption tells it, by the elevation that the lines left.
PostoCentro centroDidascalia(const Corsa &c) {
    const Reale sustilare = SustilareMuroIntera(c.piano());
    return CentroDaStiloIntero(c.v.gn, sustilare, c.v.altStilo);
}
// First the one, then the other; where a plane has no centre, that of the dial before stays.
void lasciaCentro(Variabili &v, const PostoCentro &c) {
    v.xCentro = c.x;
    v.yCentro = c.y;
}

// --- the table of features ------------------------------------------------------------------------------------------

using In = DialInputs;
using Riga = Caratteristica<Corsa>;

bool conRomani(const Corsa &c) { return c.s.in.ckRomani == 1; }
bool conArabi(const Corsa &c) { return c.s.in.ckArabi == 1; }
bool senzaCifre(const Corsa &c) { return !conRomani(c) && !conArabi(c); }
bool nonOrizzontale(const Corsa &c) { return !(c.v.inc_o == 90); }
bool conEtichette(const Corsa &c) { return nonOrizzontale(c) && !conRomani(c); }
bool piena(const Corsa &c) { return c.s.in.ckFunzione == 1; }

constexpr LineaAttesa EQUINOZIALE[] = {{0, 0, "21 III or 23 IX Eq", BLU}};
constexpr LineaAttesa LEMNISCATA[] = {{0, 12, "Lemniscata", MAGENTA}};

constexpr Riga CARATTERISTICHE[] = {
    {&In::chkOreAstronomiche, Specie::Ora, "true hours, halves and quarters", LineeOre, TracciaOreAstro, nullptr, LasciaOre},
    // The routine looks at ckRomani alone: with both boxes set the Roman numerals come twice.
    {&In::chkOreAstronomiche, Specie::Etichetta, "Roman numerals", LineeNumeri, PosizionaNumeriOrari, conRomani, LasciaNumeri,
     Specie::Ora},
    {&In::chkOreAstronomiche, Specie::Etichetta, "Arabic numerals", LineeNumeri, PosizionaNumeriOrari, conArabi, LasciaNumeri,
     Specie::Ora},
    {&In::Ck_DayLightCurves, Specie::Diurna, "days of solstice and signs", LineeDiurne, TracciaDiurne},
    {&In::Ck_DayLightCurves, Specie::Diurna, "the day of choice", LineaOpzionale, TracciaDiurne, senzaCifre},
    {&In::ck_Italiche, Specie::Italica, "hours from sunset", LineeItaliche, TracciaItaliche, nonOrizzontale, PreparaItaliche},
    {&In::ck_Italiche, Specie::Etichetta, "their numbers", NumeriItaliche, EtichetteItaliche, conEtichette, LasciaEtichette,
     Specie::Italica},
    {&In::ck_babiloniche, Specie::Babilonica, "hours from sunrise", LineeBabiloniche, TracciaBabiloniche, nonOrizzontale,
     LasciaStagionali},
    {&In::ck_babiloniche, Specie::Etichetta, "their numbers", NumeriBabiloniche, EtichetteBabiloniche, conEtichette,
     LasciaEtichette, Specie::Babilonica},
    {&In::ckTemp, Specie::Temporaria, "twelfths of the day", LineeTemporarie, TracciaTemporarie, nullptr, LasciaStagionali},
    {&In::ckTemp, Specie::Etichetta, "their numbers", NumeriTemporarie, EtichetteTemporarie,
     [](const Corsa &c) { return c.s.in.ck_Italiche != 1 && c.s.in.ck_babiloniche != 1 && !conRomani(c); }, nullptr,
     Specie::Temporaria},
    {&In::ck_Equinoziale, Specie::Equinoziale, "the equinoctial of a wall that declines", LineeFisse<EQUINOZIALE>,
     TracciaEquinoziale, [](const Corsa &c) { return !(c.v.declinSessag == 0); }, LasciaEquinoziale},
    {&In::ck_Equinoziale, Specie::Equinoziale, "the equinoctial of one that does not", UnaLinea<BLU>, PuntiEquinozialeDecZero,
     [](const Corsa &c) { return c.v.declinSessag == 0; }, LasciaEquinoziale},
    {&In::ck_Orizzonte, Specie::Orizzonte, "the horizon", UnaLinea<VERDE_SCURO>, TracciaOrizzonte, nullptr, LasciaOrizzonte},
    {&In::ck_Lemniscate, Specie::Analemma, "mean noon of the zone", LineeFisse<LEMNISCATA>, TracciaLemniscata, nullptr,
     LasciaLemniscata},
    {&In::ck_Lemniscate, Specie::Tacca, "day marks across it", LineeTacche, TracciaTacche, piena},
    // ckZodiac has no step of its own: the signs come with the lemniscate.
    {&In::ck_Lemniscate, Specie::Nessuna, "signs of the zodiac", nullptr,
     [](Corsa &c, const LineeAttese &) {
         DisegnaZodiaco(c.s);
         c.rifaiPiano();
     },
     [](const Corsa &c) { return piena(c) && c.s.in.ckZodiac == 1; }},
    {&In::ck_Lemniscate, Specie::Mezzogiorno, "the noon line", UnaLinea<ROSSO>, RettaMezzogiorno, piena, LasciaMezzogiorno},
    {&In::ck_Sustilare, Specie::OraSustilare, "hour line of the substyle", UnaLinea<BLU>, TracciaSustilare},
    {&In::ck_Triangolo, Specie::Stilo, "triangle of the polar style", LineeTriangolo, TracciaTriangoloStilo},
    {&In::ck_Triangolo, Specie::Nessuna, "its measures", nullptr, TestiTriangolo},
    // In the colour of the list on a northern plane; a southern one and walls that look due east or west have their own.
    {&In::CkQibla, Specie::Qibla, "bearing of the Qibla", UnaLinea<ROSSO>, TracciaQibla, nullptr, RileggiPiano},
    {&In::ckAlt, Specie::Almucantarat, "equal altitudes", [](const Corsa &c, LineeAttese &l) { LineeAlmucantarat(c.letto, l); },
     [](Corsa &c, const LineeAttese &l) { TracciaAlmucantarat(c, l); }},
    {&In::ckAz, Specie::Azimut, "equal azimuths", LineeAzimutali, TracciaAzimutali, nullptr, RileggiPiano},
};

constexpr Riga ORIZZONTE_DI_NUOVO[] = {
    {&In::ck_Orizzonte, Specie::Orizzonte, "the horizon again", UnaLinea<GIALLO>,
     [](Corsa &c, const LineeAttese &linee) {
         const Variabili &v = c.v;
         const Pretendi pretendi(c.s.tavolo, Specie::Orizzonte);
         c.s.tavolo.TracciaLinea(-v.semiL, v.yOriz, v.semiL, v.yOriz, linee[0].colore);
     },
     [](const Corsa &c) { return c.s.in.ckCorretta != 1; }},
};

// After the caption.
constexpr LineaAttesa ASR[] = {{0, 1, "", SMERALDO}};
constexpr Riga ULTIME[] = {
    {&In::ckAsr, Specie::Asr, "afternoon prayer", LineeFisse<ASR>, TracciaAsr, nullptr, RileggiPiano},
};

}  // namespace

std::vector<SignificatoCasella> Significati() { return SignificatiDi(CARATTERISTICHE, ULTIME); }

bool TroppoFitta(Sessione &s, const Lettura &letto) {
    const DialInputs &in = s.in;
    Reale passo = s.v.passo, fraz = s.v.fraz;
    passo = letto.passo;
    fraz = letto.fraz;
    if (fraz == 0) fraz = 1;
    const auto denso = [&](const Conteggio &giro, double volte = 1) {
        return TroppoFitto(s, {{"txtDensity", in.txtDensity, giro, volte}});
    };
    const Conteggio anno(-OBLIQUITA_2344, OBLIQUITA_2344, 10 * passo);
    const double punti = std::min(anno.passi(), static_cast<double>(PUNTI_LINEA));
    const auto ore = [&](int casella, int quante) {
        return casella == 1 && (denso(anno) || TroppoFitto(s, {{"TxtFraz", in.TxtFraz, Conteggio(0, quante, 1 / fraz), punti}}));
    };
    return (s.v.inc_o != 90 && (ore(in.ck_Italiche, 18) || ore(in.ck_babiloniche, 18))) || ore(in.ckTemp, 12) ||
           (in.ck_Equinoziale == 1 && letto.dec == 0 && denso({-90, 90, 10 * passo})) ||
           (in.ck_Sustilare == 1 && denso({-OBLIQUITA, OBLIQUITA, 0.999 * passo})) ||
           // At most eleven altitudes, morning and afternoon.
           (in.ckAlt == 1 && denso({-OBLIQUITA_2345, OBLIQUITA_2345, letto.passo * 10}, 22));
}

void Piana_Esegui(Sessione &s, const Lettura &letto) {
    Corsa c(s, letto);
    const Variabili &v = c.v;
    if (TroppoFitta(s, letto)) return;
    s.utente.Puntatore(true);
    s.Messaggio("Piana _Esegui: Vertical dial by spherical trigonometry ");
    leggiParametriPiana(c);
    const Reale c2 = SenStiloMuro(c.piano());
    lasciaStilo(c, c2);
    TracciaAssi(s);
    lasciaCentro(s.v, CentroMuro(c.piano()));

    PercorriCaratteristiche(c, Motore::Verticale, CARATTERISTICHE);
    PercorriCaratteristiche(c, Motore::Verticale, ORIZZONTE_DI_NUOVO);
    if (s.in.ck_Orizzonte == 1) s.Scrivi(&DialInputs::txtOriz, TestoNumero(v.yOriz.numero()));
    TracciaLimiti(s, letto, c.cornice);
    s.utente.Puntatore(false);

    lasciaCentro(s.v, centroDidascalia(c));
    didascalia(c, c2);
    PercorriCaratteristiche(c, Motore::Verticale, ULTIME);
}

}  // namespace ombrelia::vertical
