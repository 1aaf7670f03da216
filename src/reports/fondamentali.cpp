// The fundamental data of a dial.
#include "gnomonica/centro.h"
#include "gnomonica/conica.h"
#include "gnomonica/declinazioni.h"
#include "gnomonica/longitudine.h"
#include "reports/tabulato.h"
#include "reports/triangolo.h"

namespace ombrelia::reports {

namespace {

// The fields as this report takes them: the latitude with its sign and never 0, the declination within half a turn. One whose
// number overflows is what the shared variable holds.
struct CampiDati {
    CampiDati(const Variabili &v, const Lettura &letto)
        : latR(v.latR),
          decGradi(v.decGradi),
          decR(v.decR),
          incR(v.incR),
          gn(v.gn),
          yOriz(v.yOriz),
          delta(v.deltaOpz),
          lon(v.lon),
          lonCopia(v.lonCopia),
          meridiano(v.meridiano),
          lonPiu15(v.lonPiu15),
          corrLong(v.corrLong),
          fraz(v.fraz) {
        incR = letto.inc * PI / 180;
        latR = letto.lat * PI / 180;
        if (latR == 0) latR = 1e-07;  // this report never divides by a latitude of 0
        gn = letto.gn;
        yOriz = gn * tan(incR);
        decGradi = letto.dec;
        if (Abs(decGradi) > 180) decGradi = decGradi - Sgn(decGradi) * 360;
        decR = decGradi * PI / 180;
        delta = letto.delta;
        lon = letto.lon;
        lonCopia = letto.lon;
        meridiano = letto.meridiano;
        oraFuso = letto.fuso ? 1 : 0;
        lonPiu15 = DalMeridiano(lon, meridiano);
        corrLong = CorrezioneFuso(lonPiu15, oraFuso);
        fraz = letto.fraz;
    }
    Reale latR, decGradi, decR, incR;                             // radians, and the declination in degrees too
    Reale gn, yOriz;                                              // ortostilo, ordinate of the horizon
    Reale delta;                                                  // of choice, degrees
    Reale lon, lonCopia, meridiano, lonPiu15, oraFuso, corrLong;  // degrees, but for the last
    Reale fraz;
};

// Style and substyle of the plane, of any slope, radians.
struct StiloPiano {
    explicit StiloPiano(const Variabili &v) : altStilo(v.altStilo), angoloOra(v.angoloOra) {}
    Reale altStilo;   // elevation, negative where the upper end of the polar axis is behind the plane
    Reale angoloOra;  // hour angle of the substyle
    Reale sigma;      // its angle
    Reale polo;       // sine of the style's elevation, 0 where the report takes the plane to have no centre
    PostoCentro centro{0, 0};
};

// Given: the plane, its inclination in degrees as typed. Gives: see StiloPiano. Source: the right spherical triangle of pole,
// zenith and plane, as at each form of Piano (Rohr, Sundials). Faults: an elevation without a value is that of the dial before,
// an angle 0.
StiloPiano stiloDi(const Variabili &v, const CampiDati &d, const Piano &piano, Valore inc) {
    StiloPiano s(v);
    s.polo = piano.senStilo();
    s.altStilo = Abs(s.polo) == 1 ? (-PI / 2) * Sgn(s.polo) : -ArcSin(s.polo);

    if (inc == 90) {
        s.angoloOra = 0;
    } else {
        const Reale T = piano.oraSustilareMezza();
        s.angoloOra = inc > 90 ? -T : Valore(T);
        // On the right side already, an overhanging plane's is taken with its sign turned back: meant.
        s.angoloOra = Sgn(sin(s.angoloOra)) == Sgn(piano.sg) ? Valore(T) : DalLatoDi(d.decR, s.angoloOra);
    }

    if ((d.incR == 0 || d.latR == 0) && Abs(d.decGradi) == 90) s.polo = 0;
    s.sigma = Atn(piano.tanSustilare());
    if (s.polo != 0) {
        const PostoCentro c = CentroDelPiano(piano, s.polo);
        s.centro = {Reale(c.x), Reale(c.y)};  // one that overflows is 0
        s.sigma = SustilareDalCentro(s.sigma, s.centro.x, s.centro.y);
    }
    if (Sgn(d.latR) == -1) s.sigma = -s.sigma;
    return s;
}

// Given: the fields, style and substyle. Gives: the unit of gn, all lengths positive. Source: the right triangles of style, foot
// and equinoctial in the plane of the substyle. Faults: a length without a value is that of the dial before.
TriangoloStilo triangoloDi(const Variabili &v, const CampiDati &d, const StiloPiano &s) {
    TriangoloStilo t(v);
    t.assostiloLen = Abs(d.gn / sin(s.altStilo));
    t.xCentro = s.centro.x;
    t.yCentro = s.centro.y;
    t.xCentroNeg = -t.xCentro;
    t.yCentroNeg = -t.yCentro;
    t.suSustilare(s.altStilo);
    t.CM = Abs(t.assostiloLen / sin(d.latR));
    t.MS = Abs(d.gn * tan(s.sigma) / (sin(d.latR) * sin(s.altStilo)));
    return t;
}

// The wall of that latitude and declination, whatever the plane's slope: the day lines are its.
struct StiloParete {
    Reale angSustilare, altStilo;  // radians, the elevation of a wall that looks to the equator positive
    Reale y0;                      // from the foot to the equinoctial
};

// Given: the fields, and the plane's style, whose elevation stands where the wall's has no value. Gives: see StiloParete. Source:
// as at each form. Faults: what has no value is that of the dial before.
StiloParete pareteDi(const Variabili &v, const CampiDati &d, const StiloPiano &s) {
    StiloParete p{v.angSustilare, s.altStilo, v.y0};
    p.angSustilare = SustilareMuro(d.latR, d.decR);
    p.altStilo = StiloMuroQuadrati(d.latR, d.decR);
    p.y0 = DistanzaEquinoziale(d.gn, p.altStilo);
    return p;
}

void primari(const Sessione &s, Tabulato &f, const Lettura &letto, const CampiDati &d, const StiloPiano &p,
             const TriangoloStilo &t) {
    const std::string_view misura = TestoUnita(s);
    const auto gradi = [](Valore radianti) { return Fmt(Gradi(radianti), "0.00000"); };
    const auto eccentricita = [&](Valore delta) { return Fmt(Abs(cos(p.altStilo) / sin(Radianti(delta))), "0.00000"); };
    f.etichetta("PARAMETRI PRIMARI DEL QUADRANTE SOLARE ORIGINALE"_it);
    f.riga({f.tr("Latitudine "_it), Numero(letto.lat * s.v.segnoLat)});
    f.rigaUnita({f.tr("Longitudine "_it), Unito(letto.lon)});
    f.rigaUnita({f.tr("Declinazione "_it), Unito(letto.dec)});
    f.rigaUnita({f.tr("Inclinazione zenitale "_it), Unito(letto.inc)});
    const Valore orizzonte = d.gn * tan(d.incR);
    f.rigaUnita({f.tr("ordinata orizzonte = "_it), Unito(Tronca5(orizzonte)).vero(orizzonte), misura});
    f.etichetta("T R I A N G O L O  dello S T I L O"_it);
    f.rigaUnita({f.tr("Ortostilo: cateto "_it), Unito(d.gn), misura});
    f.rigaUnita({f.tr("Assostilo: ipotenusa "_it), Unito(Abs(Tronca5(t.assostiloLen))).vero(Abs(t.assostiloLen)), misura});
    const Valore CG = Sqr(t.assostiloLen * t.assostiloLen - d.gn * d.gn);
    f.rigaUnita({f.tr("Distanza Centro Piede: cateto CG  "_it), Unito(Tronca5(CG)).vero(CG), misura});
    f.riga({f.tr("Elevazione dello stilo "_it), gradi(-p.altStilo), " °"});
    f.riga({f.tr("Angolo sustilare "_it), gradi(p.sigma), " °"});
    f.riga({f.tr("Angolo orario sustilare, angolo al polo "_it), gradi(p.angoloOra), " °"});
    f.riga(
        {f.tr("Longitudine per lemniscata sustilare "_it), Fmt(-DalMeridiano(Gradi(p.angoloOra), d.meridiano), "0.00000"), " °"});
    f.etichetta("Eccentricità linee diurne "_it);
    f.riga({f.tr("Solstizi "_it), eccentricita(OBLIQUITA)});
    f.riga({f.tr("linee diurne 20° "_it), eccentricita(DELTA_SEGNI)});
    f.riga({f.tr("linee diurne 11.5° "_it), eccentricita(DELTA_SEGNI_VICINI)});
    f.riga({f.tr("linee diurne "_it), Numero(d.delta), "°", eccentricita(d.delta)});
    const Elemento costante = Unito(CostanteLocale(d.lonCopia, d.meridiano));
    if (AltroMeridiano(d.meridiano))
        f.rigaUnita({f.tr("Costante locale = "_it), costante, " p (", f.tr("longitudine = "_it), Unito(d.meridiano), " °)"});
    else f.rigaUnita({f.tr("Costante locale = "_it), costante, " p"});
}

void lunghezze(const Sessione &s, Tabulato &f, const CampiDati &d, const StiloPiano &p, const TriangoloStilo &t) {
    const std::string_view misura = TestoUnita(s);
    const auto cinque = [](Valore x) { return Fmt(x, "0.00000"); };
    f.colore(NERO);
    const auto coppia = [&](std::string_view a, Valore x, std::string_view b, Valore y) {
        f.riga({f.tr(a), cinque(x), misura, Spc(3), f.tr(b), cinque(y), misura});
    };
    coppia("CM = "_it, t.CM, "MS = "_it, t.MS);
    coppia("CG = "_it, t.CG, "CP = "_it, t.CP);
    coppia("GP = "_it, Abs(t.CP) - Abs(t.CG), "PM = "_it, Abs(t.CP * tan(p.sigma)));
    f.colore(VIOLA);
    const auto angolo = [&](std::string_view nome, Valore x, std::string_view cosa) {
        f.riga({f.tr(nome), cinque(x), f.tr(" rad   ; "_it), cinque(Gradi(x)), " °", Zona(), f.tr(cosa)});
    };
    angolo("sigma = "_it, p.sigma, "angolo sustilare "_it);
    angolo("epsilon = "_it, -p.altStilo, "elevazione dello stilo "_it);
    f.colore(ROSSO);
    f.riga({f.tr("CX = "_it), cinque(t.xCentro), misura, Spc(3), f.tr("CY = "_it), cinque(t.yCentro), misura, Zona(),
            f.tr("Coordinate del centro"_it)});
    f.colore(BLU);
    const Reale H = 12 + p.angoloOra * 12 / PI;
    const Valore minuti = 60 * (H - Int(H));
    f.riga({f.tr("ORA VERA SUSTILARE "_it), cinque(H), Zona(), Numero(Int(H)), Numero(Int(minuti)),
            Fmt(60 * (minuti - Int(minuti)), "00.00")});
    f.colore(ROSSO);
    f.riga({f.tr("declinazione sole a scelta "_it), Zona(), Numero(d.delta), " °"});
    f.colore(VIOLA);
    f.legenda();
    f.riga({INDIRIZZO});
    f.colore(BLU);
}

// Where the day lines of the solstices, then of txtDelta, meet the horizon and the line x = 0. Given: the fields, the wall.
// Gives: rows in the unit of gn, y upward, and the discriminant of the last ordinates. Source: see Conica. Faults: a line that
// doesn't meet prints the row before; a discriminant that overflows is that before, the first one's the declination of choice in
// its place.
Reale lineeDiurne(Tabulato &f, const Lettura &letto, const CampiDati &d, const StiloParete &p) {
    Reale disc = d.delta;
    Conica k;
    Reale xPiu, xMeno, yPiu, yMeno;
    const Reale scelta = letto.delta;  // one that overflows is 0
    const struct {
        Valore delta;
        std::string_view orizzonte, verticale;
    } linee[] = {
        {OBLIQUITA, "Ascisse delle intersezioni dei solstizi con l'orizzonte "_it,
         "Ordinate delle intersezioni dei solstizi con la retta x = 0 "_it},
        {scelta, "Ascisse delle intersezioni della linea diurna a scelta con l'orizzonte "_it,
         "Ordinate delle intersezioni della linea diurna a scelta con la retta x = 0 "_it},
    };
    Reale m;
    for (const auto &linea : linee) {
        m = QuadratoCotangente(linea.delta);
        k.calcola(m, p.altStilo, d.gn);
        const Radici x = AscisseConica(k, p.angSustilare, p.y0, d.yOriz);
        xPiu = x.piu;
        xMeno = x.meno;
        f.riga({f.tr(linea.orizzonte), Spc(2), Zona(), Fmt(xPiu, "0.000000"), Spc(2), Zona(), Fmt(xMeno, "0.000000")});
        const Quadratica ordinate = OrdinateSulPiede(k, p.angSustilare, p.y0);
        disc = ordinate.discriminante();
        const Radici y = ordinate.radici(disc);
        yPiu = y.piu;
        yMeno = y.meno;
        f.riga({f.tr(linea.verticale), Zona(), Fmt(yPiu, "0.00000"), Zona(), Fmt(yMeno, "0.00000")});
    }
    return disc;
}

// The hours along the equinoctial, from its meeting with the substyle. Given: the plane, the substyle's hour angle and the
// longitude's, radians. Gives: E, the unit of gn, positive on the side of the later hours. Source: elementary geometry of the
// equatorial plane through the tip, at L from that meeting. Faults: an abscissa without a value is that of the row before.
void equinoziale(const Sessione &s, Tabulato &f, const CampiDati &d, const Piano &piano, Valore angoloOra) {
    Reale L, E;
    L = d.gn / cos(ArcSin(piano.senStilo()));
    const std::string titolo = s.Traduci("Coo equinoziali delle ore. L'origine è P, incontro equinoziale-sustilare");
    const std::string teste = s.Traduci("AO                         ora                        Ascissa eq");
    f.vuota();
    f.tabella(titolo, Colonne(s, {teste, {}, {}}));
    f.titoli({titolo, {}, {}});
    f.intestazioni({teste, {}, {}});
    for (const double V : Conteggio(-90, 90, 15 / d.fraz)) {
        E = L * tan(-angoloOra + V * PI / 180 - d.corrLong);
        f.dati({Numero(V - d.lonPiu15 * d.oraFuso), Zona(), Numero(Valore(V) / 15 + 12), Zona(), Fmt(E, "0.000")});
    }
}

void lasciaCampi(Variabili &v, const CampiDati &d, Valore unita) {
    // Site and plane as typed, the latitude with its sign, the declination within half a turn; unit, zone, parts of the hour.
    v.latR = d.latR;
    v.segnoLat2 = Sgn(d.latR);
    v.decR = d.decR;
    v.decGradi = d.decGradi;
    v.declinSessag = d.decGradi;
    v.segnoDec = SegnoDeclinazione(v.dec, d.decR);
    v.incR = d.incR;
    v.incR2 = d.incR;
    v.gn = d.gn;
    v.unita = unita;
    v.lon = d.lon;
    v.lonCopia = d.lonCopia;
    v.lonPiu15 = d.lonPiu15;
    v.meridiano = d.meridiano;
    v.oraFuso = d.oraFuso;
    v.corrLong = d.corrLong;
    v.fraz = d.fraz;
    v.yOriz = d.yOriz;
}

void lasciaStilo(Variabili &v, const StiloPiano &s, const StiloParete &p, Valore disc) {
    v.angoloOra = s.angoloOra;
    // The wall's, whatever the slope: worked out last.
    v.altStilo = p.altStilo;
    v.angSustilare = p.angSustilare;
    v.y0 = p.y0;
    // The discriminant of the last day line, in the place of the declination of choice, which routines read again: meant.
    v.deltaOpz = disc;
}

}  // namespace

void DatiFondamentali(Sessione &s, Uscita uscita) {
    const Lettura letto(s.in);
    if (TroppeRighe(s, -6, 6, letto.fraz, 1)) return;
    Tabulato f(s, "Form1", uscita);
    const CampiDati d(s.v, letto);
    const Piano piano(d.latR, d.decR, d.incR, d.gn, letto.unita);
    const StiloPiano stilo = stiloDi(s.v, d, piano, letto.inc);
    const TriangoloStilo triangolo = triangoloDi(s.v, d, stilo);
    const StiloParete parete = pareteDi(s.v, d, stilo);
    primari(s, f, letto, d, stilo, triangolo);
    lunghezze(s, f, d, stilo, triangolo);
    const Reale disc = lineeDiurne(f, letto, d, parete);
    equinoziale(s, f, d, piano, stilo.angoloOra);
    lasciaCampi(s.v, d, letto.unita);
    LasciaTriangolo(s.v, triangolo);
    lasciaStilo(s.v, stilo, parete, disc);
    f.chiudi();
}

}  // namespace ombrelia::reports
