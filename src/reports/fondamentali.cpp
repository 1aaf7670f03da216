// The fundamental data of a dial.
#include "gnomonica/conica.h"
#include "gnomonica/declinazioni.h"
#include "gnomonica/longitudine.h"
#include "gnomonica/stilo.h"
#include "reports/tabulato.h"

namespace ombrelia::reports {

namespace {

// What the preparation computes beside the shared variables.
struct Preparazione {
    Reale sigma, s0, xC, yC;
};

void leggi(Conto &v) {
    const Lettura &letto = v.letto;
    v.segnoDec = SegnoDeclinazione(v.dec, v.decR);
    v.unita = letto.unita;
    v.incR = letto.inc * PI / 180;
    v.latR = letto.lat * PI / 180;
    if (v.latR == 0) v.latR = 1e-07;  // this report never divides by a latitude of 0
    v.segnoLat2 = Sgn(v.latR);
    v.lonCopia = letto.lon;
    v.incR2 = v.incR;
    v.gn = letto.gn;
    v.yOriz = v.gn * tan(v.incR2);
    v.decGradi = letto.dec;
    if (Abs(v.decGradi) > 180) v.decGradi = v.decGradi - Sgn(v.decGradi) * 360;
    v.declinSessag = v.decGradi;
    v.decR = v.declinSessag * PI / 180;
    v.deltaOpz = letto.delta;
    v.lon = letto.lon;
    v.meridiano = letto.meridiano;
}

Preparazione prepara(Conto &v) {
    leggi(v);
    const Piano piano(v);
    Preparazione p;
    p.s0 = piano.senStilo();
    if (Abs(p.s0) == 1) v.altStilo = (-PI / 2) * Sgn(p.s0);
    else v.altStilo = -Atn(p.s0 / Sqr(-p.s0 * p.s0 + 1));

    if (v.letto.inc == 90) {
        v.angoloOra = 0;
    } else {
        Reale T;
        T = piano.sg / piano.divisoreOra();
        v.angoloOra = v.letto.inc > 90 ? -Atn(T) : Atn(T);
        // On the right side already, an overhanging plane's is taken with its sign turned back: meant.
        v.angoloOra = Sgn(sin(v.angoloOra)) == Sgn(piano.sg) ? Atn(T) : DalLatoDi(v.decR, v.angoloOra);
    }

    if ((v.incR == 0 || v.latR == 0) && Abs(v.declinSessag) == 90) p.s0 = 0;
    if (p.s0 != 0) {
        p.xC = (v.gn / p.s0) * piano.cphi * piano.sg;
        p.yC = (-v.gn / p.s0) * piano.senZenit();
    }

    Reale T2;
    T2 = piano.tanSustilare();
    p.sigma = Atn(T2);
    if (p.s0 != 0) p.sigma = SustilareDalCentro(p.sigma, p.xC, p.yC);
    if (v.segnoLat2 == -1) p.sigma = -p.sigma;

    v.assostiloLen = Abs(v.gn / sin(v.altStilo));
    v.xCentro = p.xC;
    v.yCentro = p.yC;
    v.segStiloSus = v.assostiloLen * cos(v.altStilo);
    v.segCentroPiede = Abs(v.assostiloLen / sin(v.latR));
    v.xCentroNeg = -v.xCentro;
    v.yCentroNeg = -v.yCentro;
    v.segAsse = v.assostiloLen / cos(v.altStilo);
    v.segPiedeEq = Abs(v.gn * tan(p.sigma) / (sin(v.latR) * sin(v.altStilo)));
    return p;
}

void primari(const Sessione &s, const Conto &v, Tabulato &f, const Preparazione &p) {
    const std::string_view misura = TestoUnita(s);
    const auto gradi = [](Valore radianti) { return Fmt(Gradi(radianti), "0.00000"); };
    const auto eccentricita = [&](Valore delta) { return Fmt(Abs(cos(v.altStilo) / sin(Radianti(delta))), "0.00000"); };
    f.etichetta("PARAMETRI PRIMARI DEL QUADRANTE SOLARE ORIGINALE"_it);
    f.riga({f.tr("Latitudine "_it), Numero(v.letto.lat * v.segnoLat)});
    f.rigaUnita({f.tr("Longitudine "_it), Unito(v.letto.lon)});
    f.rigaUnita({f.tr("Declinazione "_it), Unito(v.letto.dec)});
    f.rigaUnita({f.tr("Inclinazione zenitale "_it), Unito(v.letto.inc)});
    const Valore orizzonte = v.gn * tan(v.incR2);
    f.rigaUnita({f.tr("ordinata orizzonte = "_it), Unito(Tronca5(orizzonte)).vero(orizzonte), misura});
    f.etichetta("T R I A N G O L O  dello S T I L O"_it);
    f.rigaUnita({f.tr("Ortostilo: cateto "_it), Unito(v.gn), misura});
    f.rigaUnita({f.tr("Assostilo: ipotenusa "_it), Unito(Abs(Tronca5(v.assostiloLen))).vero(Abs(v.assostiloLen)), misura});
    const Valore CG = Sqr(v.assostiloLen * v.assostiloLen - v.gn * v.gn);
    f.rigaUnita({f.tr("Distanza Centro Piede: cateto CG  "_it), Unito(Tronca5(CG)).vero(CG), misura});
    f.riga({f.tr("Elevazione dello stilo "_it), gradi(-v.altStilo), " °"});
    f.riga({f.tr("Angolo sustilare "_it), gradi(p.sigma), " °"});
    f.riga({f.tr("Angolo orario sustilare, angolo al polo "_it), gradi(v.angoloOra), " °"});
    f.riga(
        {f.tr("Longitudine per lemniscata sustilare "_it), Fmt(-DalMeridiano(Gradi(v.angoloOra), v.meridiano), "0.00000"), " °"});
    f.etichetta("Eccentricità linee diurne "_it);
    f.riga({f.tr("Solstizi "_it), eccentricita(OBLIQUITA)});
    f.riga({f.tr("linee diurne 20° "_it), eccentricita(DELTA_SEGNI)});
    f.riga({f.tr("linee diurne 11.5° "_it), eccentricita(DELTA_SEGNI_VICINI)});
    f.riga({f.tr("linee diurne "_it), Numero(v.deltaOpz), "°", eccentricita(v.deltaOpz)});
    const Elemento costante = Unito(CostanteLocale(v));
    if (AltroMeridiano(v))
        f.rigaUnita({f.tr("Costante locale = "_it), costante, " p (", f.tr("longitudine = "_it), Unito(v.meridiano), " °)"});
    else f.rigaUnita({f.tr("Costante locale = "_it), costante, " p"});
}

void lunghezze(const Sessione &s, const Conto &v, Tabulato &f, const Preparazione &p) {
    const std::string_view misura = TestoUnita(s);
    const auto cinque = [](Valore x) { return Fmt(x, "0.00000"); };
    f.colore(NERO);
    const auto coppia = [&](std::string_view a, Valore x, std::string_view b, Valore y) {
        f.riga({f.tr(a), cinque(x), misura, Spc(3), f.tr(b), cinque(y), misura});
    };
    coppia("CM = "_it, v.segCentroPiede, "MS = "_it, v.segPiedeEq);
    coppia("CG = "_it, v.segStiloSus, "CP = "_it, v.segAsse);
    coppia("GP = "_it, Abs(v.segAsse) - Abs(v.segStiloSus), "PM = "_it, Abs(v.segAsse * tan(p.sigma)));
    f.colore(VIOLA);
    const auto angolo = [&](std::string_view nome, Valore x, std::string_view cosa) {
        f.riga({f.tr(nome), cinque(x), f.tr(" rad   ; "_it), cinque(Gradi(x)), " °", Zona(), f.tr(cosa)});
    };
    angolo("sigma = "_it, p.sigma, "angolo sustilare "_it);
    angolo("epsilon = "_it, -v.altStilo, "elevazione dello stilo "_it);
    f.colore(ROSSO);
    f.riga({f.tr("CX = "_it), cinque(v.xCentro), misura, Spc(3), f.tr("CY = "_it), cinque(v.yCentro), misura, Zona(),
            f.tr("Coordinate del centro"_it)});
    f.colore(BLU);
    const Reale H = 12 + v.angoloOra * 12 / PI;
    const Valore minuti = 60 * (H - Int(H));
    f.riga({f.tr("ORA VERA SUSTILARE "_it), cinque(H), Zona(), Numero(Int(H)), Numero(Int(minuti)),
            Fmt(60 * (minuti - Int(minuti)), "00.00")});
    f.colore(ROSSO);
    f.riga({f.tr("declinazione sole a scelta "_it), Zona(), Numero(v.deltaOpz), " °"});
    f.colore(VIOLA);
    f.legenda();
    f.riga({INDIRIZZO});
    f.colore(BLU);
}

// Where the day lines of the solstices, then of txtDelta, meet the horizon and the line x = 0.
void lineeDiurne(Conto &v, Tabulato &f) {
    const Reale dOpz = v.letto.delta;
    const Reale Y = v.yOriz;
    v.segnoDec = SegnoDeclinazione(v.dec, v.decR);
    Conica k;
    Reale m, xPiu, xMeno, yPiu, yMeno;
    const struct {
        Valore delta;
        std::string_view orizzonte, verticale;
    } linee[] = {
        {OBLIQUITA, "Ascisse delle intersezioni dei solstizi con l'orizzonte "_it,
         "Ordinate delle intersezioni dei solstizi con la retta x = 0 "_it},
        {dOpz, "Ascisse delle intersezioni della linea diurna a scelta con l'orizzonte "_it,
         "Ordinate delle intersezioni della linea diurna a scelta con la retta x = 0 "_it},
    };
    for (const auto &linea : linee) {
        v.angSustilare = SustilareMuro(v.latR, v.decR);
        v.altStilo = StiloMuroQuadrati(v.latR, v.decR);
        v.y0 = DistanzaEquinoziale(v.gn, v.altStilo);
        m = QuadratoCotangente(linea.delta);
        k.calcola(m, v.altStilo, v.gn);
        const Radici x = AscisseConica(k, v.angSustilare, v.y0, Y);
        xPiu = x.piu;
        xMeno = x.meno;
        f.riga({f.tr(linea.orizzonte), Spc(2), Zona(), Fmt(xPiu, "0.000000"), Spc(2), Zona(), Fmt(xMeno, "0.000000")});
        const Valore ss = sin(v.angSustilare), cs = cos(v.angSustilare);
        const Valore A2 = cs * cs + k.R * (ss * ss), B2 = cs * (2 * v.y0 + k.Q), C2 = v.y0 * v.y0 + k.Q * v.y0 + k.P;
        v.deltaOpz = B2 * B2 - 4 * A2 * C2;  // the discriminant stays in the optional declination: meant
        yPiu = (-B2 + Sqr(v.deltaOpz)) / (2 * A2);
        yMeno = (-B2 - Sqr(v.deltaOpz)) / (2 * A2);
        f.riga({f.tr(linea.verticale), Zona(), Fmt(yPiu, "0.00000"), Zona(), Fmt(yMeno, "0.00000")});
    }
}

// The hours along the equinoctial, from its meeting with the substyle.
void equinoziale(const Sessione &s, Conto &v, Tabulato &f) {
    v.oraFuso = v.letto.fuso ? 1 : 0;
    v.lon = v.letto.lon;
    LasciaDalMeridiano(v);
    v.corrLong = CorrezioneFuso(v);
    Reale L, E;
    L = v.gn / cos(ArcSin(Piano(v).senStilo()));
    v.fraz = v.letto.fraz;
    const std::string titolo = s.Traduci("Coo equinoziali delle ore. L'origine è P, incontro equinoziale-sustilare");
    const std::string teste = s.Traduci("AO                         ora                        Ascissa eq");
    f.vuota();
    f.tabella(titolo, Colonne(s, {teste, {}, {}}));
    f.titoli({titolo, {}, {}});
    f.intestazioni({teste, {}, {}});
    for (const double V : Conteggio(-90, 90, 15 / v.fraz)) {
        E = L * tan(-v.angoloOra + V * PI / 180 - v.corrLong);
        f.dati({Numero(V - v.lonPiu15 * v.oraFuso), Zona(), Numero(Valore(V) / 15 + 12), Zona(), Fmt(E, "0.000")});
    }
}

void lascia(Variabili &v, const Conto &conto) {
    using V = Variabili;
    // Site and plane as typed, the latitude with its sign, the declination within half a turn; unit, zone, parts of the hour.
    Lascia(v, conto,
           {&V::latR, &V::segnoLat2, &V::decR, &V::decGradi, &V::declinSessag, &V::segnoDec, &V::incR, &V::incR2, &V::gn,
            &V::unita, &V::lon, &V::lonCopia, &V::lonPiu15, &V::meridiano, &V::oraFuso, &V::corrLong, &V::fraz});
    // Style and substyle; these two last are the wall's, whatever the slope.
    Lascia(v, conto, {&V::angoloOra, &V::altStilo, &V::angSustilare, &V::y0, &V::yOriz});
    // Centre and lengths of the style's triangle, which the analytic engine and the hours' report may take up.
    Lascia(v, conto,
           {&V::xCentro, &V::yCentro, &V::xCentroNeg, &V::yCentroNeg, &V::assostiloLen, &V::segStiloSus, &V::segCentroPiede,
            &V::segAsse, &V::segPiedeEq});
    // The discriminant of the last day line, in the place of the declination of choice: meant.
    Lascia(v, conto, {&V::deltaOpz});
}

}  // namespace

void DatiFondamentali(Sessione &s, Uscita uscita) {
    Conto v(s, Lettura(s.in));
    if (TroppeRighe(s, -6, 6, v.letto.fraz, 1)) return;
    Tabulato f(s, "Form1", uscita);
    const Preparazione p = prepara(v);
    primari(s, v, f, p);
    lunghezze(s, v, f, p);
    lineeDiurne(v, f);
    equinoziale(s, v, f);
    lascia(s.v, v);
    f.chiudi();
}

}  // namespace ombrelia::reports
