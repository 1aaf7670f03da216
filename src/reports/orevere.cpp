// The true hours on any plane, on a wall and at the equator: angles and points before the tables.
#include "reports/orevere.h"

#include "gnomonica/longitudine.h"

namespace ombrelia::reports {

namespace {

using ore::Calcolo;
using ore::SpecieOreVere;

// The hour angle of the substyle goes to the side of the declination.
void mettiDalSuoLato(Variabili &v) {
    if (Sgn(sin(v.angoloOra)) != Sgn(sin(v.decR))) v.angoloOra = v.angoloOra > 0 ? v.angoloOra - PI : v.angoloOra + PI;
}

// A reclining plane, by the wall of latitude f1 and declination d1 that has its lines; latR and decR become that wall's.
void angoliInclinato(Sessione &s, bool schermo, Calcolo &c) {
    Variabili &v = s.v;
    const Reale segno = v.decR == 0 ? Valore(1) : Sgn(v.decR);
    if (schermo && Abs(v.iz_o) == PI / 2) {  // on the screen alone: meant
        v.decR = 0;
        v.declinSessag = 0;
    }
    const Valore si = sin(v.incR), ci = cos(v.incR), sf = sin(v.latR), cf = cos(v.latR), sg = sin(v.decR), cg = cos(v.decR);
    v.altStilo = -ArcSin(si * sf - ci * cf * cg);
    v.angSustilare = ArcSin(sg * cf / cos(v.altStilo));
    v.assostiloLen = Abs(v.gn / sin(v.altStilo));
    c.k = -1;
    Reale f1, w, coseno, d1, u;
    f1 = ArcSin(ci * sf + si * cf * cg);
    w = si * sg / cos(f1);
    if (v.dec == 0) {
        v.diffLong = 0;
    } else if (Abs(v.dec) == 180) {
        v.diffLong = PI;
    } else {
        coseno = (ci - sf * sin(f1)) / (cf * cos(f1));
        if (Abs(coseno) < 1) v.diffLong = ArcCos(coseno) * Sgn(w);
        else v.diffLong = 0;
    }
    v.lon = (s.in.ck_Etna == 0 ? Valore(v.meridiano) : Valore(v.lonCopia)) - v.diffLong * 180 / PI;
    if (v.dec == 0) {
        d1 = 0;
    } else if (Abs(v.dec) == 180) {
        d1 = PI;
    } else if (v.incR == 0) {
        d1 = v.decR;
    } else {
        coseno = (ci * sin(f1) - sf) / (si * cos(f1));
        if (Abs(coseno) < 1) d1 = ArcCos(coseno) * segno;
        else d1 = 0;
    }
    if (v.inc == 90) {
        v.angoloOra = 0;
    } else {
        u = tan(d1) / sin(f1);
        v.angoloOra = Atn(u);
        mettiDalSuoLato(v);
    }
    c.oraSus = 12 + (v.angoloOra - v.diffLong) * 12 / PI;
    v.latR = f1;
    v.decR = d1;
}

// Longitude terms under the box of the zone meridian.
void longitudine(Variabili &v) {
    v.segnoDec = v.dec == 0 ? Valore(1) : Sgn(v.decR);
    LasciaDalMeridiano(v);
    v.corrLong = (v.lonPiu15 * PI / 180) * v.oraFuso;
}

void angoliParete(Variabili &v, Calcolo &c) {
    longitudine(v);
    v.angSustilare = Atn(sin(v.decR) / tan(v.latR));
    const Valore cl = cos(v.latR), cd = cos(v.decR);
    c.sine = cl * cd / Sqr(1 - cd * cd * (cl * cl));
    v.altStilo = Atn(c.sine);
    v.assostiloLen = Abs(v.gn / sin(v.altStilo));
    c.k = 1;
    if (v.latR == 0 && v.incR == 0) {
        v.angoloOra = (PI / 2) * Sgn(v.decR);
    } else {
        v.angoloOra = Atn(tan(v.decR) / sin(v.latR));
        mettiDalSuoLato(v);
    }
    c.oraSus = 12 + (v.angoloOra - v.diffLong) * 12 / PI;
}

// A wall on the equator; its style lies at the complement of the declination.
void angoliLatZero(Variabili &v, Calcolo &c) {
    const Valore cd = cos(v.decR);
    if (Abs(cd) == 1) v.altStilo = (PI / 2) * Sgn(cd);
    else v.altStilo = ArcSin(cd);
    v.angSustilare = (PI / 2) * v.segnoDec;
    v.angoloOra = v.angSustilare;
    if (v.decR != 0) c.L = cd / sin(v.decR);
    v.assostiloLen = v.gn / sin(v.altStilo);
    c.k = Abs(v.dec) == 180 ? 1 : -1;
}

void punti(Variabili &v, Calcolo &c) {
    const Valore te = tan(v.altStilo), ss = sin(v.angSustilare), ts = tan(v.angSustilare);
    v.xCentro = -v.gn * ss / te;
    v.yCentro = v.gn * cos(v.angSustilare) / te;
    v.segStiloSus = v.assostiloLen * cos(v.altStilo);
    v.segCentroPiede = v.assostiloLen / sin(v.latR);
    v.xCentroNeg = v.gn * ss / te;
    v.yCentroNeg = -v.yCentro;
    v.segAsse = v.assostiloLen / cos(v.altStilo);
    if (v.latR != 0) {
        c.yM = -(v.gn / (sin(v.altStilo) * sin(v.latR)) - v.yCentro);
        v.segPiedeEq = v.gn * ts / (sin(v.latR) * sin(v.altStilo));
    } else {
        v.segCentroPiede = v.segAsse / cos(v.angSustilare);
        v.segPiedeEq = -v.segCentroPiede * ts;
    }
    if (v.decR == 0 || c.specie == SpecieOreVere::LatZero) return;
    v.ySusEq = (v.xEq - v.xCentro) * ts + c.yM;
    v.xSusEq = (v.yEq - c.yM) / ts + v.xCentro;
    v.xSusPiede = -v.xSus / ts;
    v.ySusPiede = -v.ySus * ts;
}

void oreVere(Sessione &s, Uscita uscita, SpecieOreVere specie) {
    Variabili &v = s.v;
    if (TroppeRighe(s, Val(s.in.TxtInizio), Val(s.in.TxtFine), Val(s.in.TxtFraz), 2)) return;
    LeggiParametri(s);
    Tabulato f(s, "Form2", uscita);
    v.deltaOpz = Abs(Val(s.in.txtDelta));
    Calcolo c;
    c.specie = specie;
    switch (specie) {
        case SpecieOreVere::Inclinato:
            angoliInclinato(s, f.schermo(), c);
            punti(v, c);
            v.lonPiu15 = DalMeridiano(v.lon, v.meridiano) + (v.diffLong * 180 / PI) * 0;
            v.corrLong = v.lonPiu15 * PI / 180;  // whatever the box of the zone meridian says: it is in lon by now
            break;
        case SpecieOreVere::Parete:
            angoliParete(v, c);
            punti(v, c);
            break;
        default:
            longitudine(v);
            if (v.incR != 0) {
                c.specie = SpecieOreVere::LatZeroInclinato;
            } else {
                angoliLatZero(v, c);
                punti(v, c);
            }
            f.etichetta(c.specie == SpecieOreVere::LatZero ? "  LATITUDINE ZERO"_it
                                                           : "  LATITUDINE ZERO, declinazione gnomonica = 0"_it);
            c.oraSus = 12 + v.angoloOra * 12 / PI;
            break;
    }
    ore::Tabelle(s, f, c);
    ore::Blocchi(s, f, c);
}

}  // namespace

void OreVere(Sessione &s, Uscita uscita) {
    const bool stampa = uscita == Uscita::Stampa;
    if (stampa && s.v.lat < 0) return;
    const bool equatore = (stampa ? Valore(s.v.lat) : Val(s.in.txtLAT)) == 0;
    const bool parete = (stampa ? Valore(s.v.incR) : Val(s.in.txtInc)) == 0;
    oreVere(s, uscita, equatore ? SpecieOreVere::LatZero : parete ? SpecieOreVere::Parete : SpecieOreVere::Inclinato);
}

}  // namespace ombrelia::reports
