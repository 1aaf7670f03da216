// The fundamental data of a dial.
#include "gnomonica/conica.h"
#include "gnomonica/declinazioni.h"
#include "gnomonica/longitudine.h"
#include "reports/tabulato.h"

namespace ombrelia::reports {

namespace {

// What the preparation computes beside the shared variables.
struct Preparazione {
    Reale sigma, s0, xC, yC;
};

void leggi(Sessione &s) {
    Variabili &v = s.v;
    v.segnoDec = v.dec == 0 ? Valore(1) : Sgn(v.decR);
    v.unita = s.in.ChCentimetro == 1 ? 0.001 : 1.0;
    v.incR = Val(s.in.txtInc) * PI / 180;
    v.latR = Val(s.in.txtLAT) * PI / 180;
    if (v.latR == 0) v.latR = 1e-07;  // this report never divides by a latitude of 0
    v.segnoLat2 = Sgn(v.latR);
    v.lonCopia = Val(s.in.txtLonG);
    v.incR2 = v.incR;
    v.gn = Val(s.in.TxtStilo);
    v.yOriz = v.gn * tan(v.incR2);
    v.decGradi = Val(s.in.txtDec);
    if (Abs(v.decGradi) > 180) v.decGradi = v.decGradi - Sgn(v.decGradi) * 360;
    v.declinSessag = v.decGradi;
    v.decR = v.declinSessag * PI / 180;
    v.deltaOpz = Val(s.in.txtDelta);
    v.lon = Val(s.in.txtLonG);
    v.meridiano = Val(s.in.txtMeridiano);
}

Valore senoStilo(const Variabili &v) { return sin(v.incR) * sin(v.latR) - cos(v.incR) * cos(v.latR) * cos(v.decR); }

Preparazione prepara(Sessione &s) {
    leggi(s);
    Variabili &v = s.v;
    Preparazione p;
    p.s0 = senoStilo(v);
    if (Abs(p.s0) == 1) v.altStilo = (-PI / 2) * Sgn(p.s0);
    else v.altStilo = -Atn(p.s0 / Sqr(-p.s0 * p.s0 + 1));

    const Valore inc = Val(s.in.txtInc);
    if (inc == 90) {
        v.angoloOra = 0;
    } else {
        Reale T;
        T = sin(v.decR) / (sin(v.latR) * cos(v.decR) + cos(v.latR) * tan(v.incR));
        v.angoloOra = inc > 90 ? -Atn(T) : Atn(T);
        if (Sgn(sin(v.angoloOra)) == Sgn(sin(v.decR))) v.angoloOra = Atn(T);
        else v.angoloOra = v.angoloOra > 0 ? v.angoloOra - PI : v.angoloOra + PI;
    }

    p.s0 = senoStilo(v);
    if ((v.incR == 0 || v.latR == 0) && Abs(v.declinSessag) == 90) p.s0 = 0;
    if (p.s0 != 0) {
        p.xC = (v.gn / p.s0) * cos(v.latR) * sin(v.decR);
        p.yC = (-v.gn / p.s0) * (sin(v.latR) * cos(v.incR) + cos(v.latR) * sin(v.incR) * cos(v.decR));
    }

    Reale T2;
    T2 = sin(v.decR) / (tan(v.latR) * cos(v.incR) + cos(v.decR) * sin(v.incR));
    p.sigma = Atn(T2);
    if (p.s0 != 0) {
        if (p.xC <= 0 && p.yC < 0) p.sigma = p.sigma + PI;
        else if (p.xC > 0 && p.yC < 0) p.sigma = p.sigma - PI;
        if (Abs(p.sigma) > PI) p.sigma = -Abs(2 * PI - Abs(p.sigma)) * Sgn(p.sigma);
    }
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

void primari(Sessione &s, Tabulato &f, const Preparazione &p) {
    const Variabili &v = s.v;
    const std::string_view misura = TestoUnita(s);
    const auto gradi = [](Valore radianti) { return Fmt(Gradi(radianti), "0.00000"); };
    const auto eccentricita = [&](Valore delta) { return Fmt(Abs(cos(v.altStilo) / sin(Radianti(delta))), "0.00000"); };
    f.etichetta("PARAMETRI PRIMARI DEL QUADRANTE SOLARE ORIGINALE"_it);
    f.riga({f.tr("Latitudine "_it), Numero(Val(s.in.txtLAT) * v.segnoLat)});
    f.rigaUnita({f.tr("Longitudine "_it), Unito(Val(s.in.txtLonG))});
    f.rigaUnita({f.tr("Declinazione "_it), Unito(Val(s.in.txtDec))});
    f.rigaUnita({f.tr("Inclinazione zenitale "_it), Unito(Val(s.in.txtInc))});
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
    f.riga({f.tr("linee diurne 20° "_it), eccentricita(20)});
    f.riga({f.tr("linee diurne 11.5° "_it), eccentricita(11.5)});
    f.riga({f.tr("linee diurne "_it), Numero(v.deltaOpz), "°", eccentricita(v.deltaOpz)});
    const Elemento costante = Unito(CostanteLocale(v));
    if (AltroMeridiano(v))
        f.rigaUnita({f.tr("Costante locale = "_it), costante, " p (", f.tr("longitudine = "_it), Unito(v.meridiano), " °)"});
    else f.rigaUnita({f.tr("Costante locale = "_it), costante, " p"});
}

void lunghezze(Sessione &s, Tabulato &f, const Preparazione &p) {
    const Variabili &v = s.v;
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
void lineeDiurne(Sessione &s, Tabulato &f) {
    Variabili &v = s.v;
    const Reale dOpz = Val(s.in.txtDelta);
    const Reale Y = v.yOriz;
    v.segnoDec = v.dec == 0 ? Valore(1) : Sgn(v.decR);
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
        v.angSustilare = Atn(sin(v.decR) / tan(v.latR));
        const Valore cl = cos(v.latR), cd = cos(v.decR);
        v.altStilo = Atn(cl * cd / Sqr(1 - cd * cd * (cl * cl)));
        v.y0 = v.gn * tan(v.altStilo);
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
void equinoziale(Sessione &s, Tabulato &f) {
    Variabili &v = s.v;
    v.oraFuso = s.in.ck_Etna == 1 ? 1 : 0;
    v.lon = Val(s.in.txtLonG);
    LasciaDalMeridiano(v);
    v.corrLong = (v.lonPiu15 * PI / 180) * v.oraFuso;
    Reale L, E;
    L = v.gn / cos(ArcSin(senoStilo(v)));
    v.fraz = Val(s.in.TxtFraz);
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

}  // namespace

void DatiFondamentali(Sessione &s, Uscita uscita) {
    if (TroppeRighe(s, -6, 6, Val(s.in.TxtFraz), 1)) return;
    Tabulato f(s, "Form1", uscita);
    const Preparazione p = prepara(s);
    primari(s, f, p);
    lunghezze(s, f, p);
    lineeDiurne(s, f);
    equinoziale(s, f);
    f.chiudi();
}

}  // namespace ombrelia::reports
