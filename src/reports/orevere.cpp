// The true hours on any plane, on a wall and at the equator: angles and points before the tables.
#include "reports/orevere.h"

#include "gnomonica/longitudine.h"
#include "gnomonica/stilo.h"

namespace ombrelia::reports {

namespace {

using ore::Calcolo;
using ore::SpecieOreVere;

// A reclining plane, by the wall of latitude f1 and declination d1 that has its lines; latR and decR become that wall's.
void angoliInclinato(Conto &v, bool senzaFuso, bool schermo, Calcolo &c) {
    const Reale segno = SegnoDeclinazione(v.decR, v.decR);
    if (schermo && Abs(v.iz_o) == PI / 2) {  // on the screen alone: meant
        v.decR = 0;
        v.declinSessag = 0;
    }
    const Piano p(v);
    v.altStilo = -ArcSin(p.senStilo());
    v.angSustilare = ArcSin(p.sg * p.cphi / cos(v.altStilo));
    v.assostiloLen = Abs(v.gn / sin(v.altStilo));
    c.k = -1;
    Reale f1, w, coseno, d1, u;
    f1 = ArcSin(p.senZenit());
    w = p.si * p.sg / cos(f1);
    if (v.dec == 0) {
        v.diffLong = 0;
    } else if (Abs(v.dec) == 180) {
        v.diffLong = PI;
    } else {
        coseno = (p.ci - p.sphi * sin(f1)) / (p.cphi * cos(f1));
        if (Abs(coseno) < 1) v.diffLong = ArcCos(coseno) * Sgn(w);
        else v.diffLong = 0;
    }
    v.lon = (senzaFuso ? Valore(v.meridiano) : Valore(v.lonCopia)) - v.diffLong * 180 / PI;
    if (v.dec == 0) {
        d1 = 0;
    } else if (Abs(v.dec) == 180) {
        d1 = PI;
    } else if (v.incR == 0) {
        d1 = v.decR;
    } else {
        coseno = (p.ci * sin(f1) - p.sphi) / (p.si * cos(f1));
        if (Abs(coseno) < 1) d1 = ArcCos(coseno) * segno;
        else d1 = 0;
    }
    if (v.inc == 90) {
        v.angoloOra = 0;
    } else {
        u = tan(d1) / sin(f1);
        v.angoloOra = DalLatoDi(v.decR, Atn(u));
    }
    c.oraSus = 12 + (v.angoloOra - v.diffLong) * 12 / PI;
    v.latR = f1;
    v.decR = d1;
}

// Longitude terms under the box of the zone meridian.
void longitudine(Conto &v) {
    v.segnoDec = SegnoDeclinazione(v.dec, v.decR);
    LasciaDalMeridiano(v);
    v.corrLong = CorrezioneFuso(v);
}

void angoliParete(Conto &v, Calcolo &c) {
    longitudine(v);
    v.angSustilare = SustilareMuro(v.latR, v.decR);
    c.sine = TanStiloMuro(v.latR, v.decR);
    v.altStilo = Atn(c.sine);
    v.assostiloLen = Abs(v.gn / sin(v.altStilo));
    c.k = 1;
    if (v.latR == 0 && v.incR == 0) {
        v.angoloOra = (PI / 2) * Sgn(v.decR);
    } else {
        v.angoloOra = Atn(tan(v.decR) / sin(v.latR));
        v.angoloOra = DalLatoDi(v.decR, v.angoloOra);
    }
    c.oraSus = 12 + (v.angoloOra - v.diffLong) * 12 / PI;
}

// A wall on the equator; its style lies at the complement of the declination.
void angoliLatZero(Conto &v, Calcolo &c) {
    const Valore cd = cos(v.decR);
    if (Abs(cd) == 1) v.altStilo = (PI / 2) * Sgn(cd);
    else v.altStilo = ArcSin(cd);
    v.angSustilare = (PI / 2) * v.segnoDec;
    v.angoloOra = v.angSustilare;
    if (v.decR != 0) c.L = cd / sin(v.decR);
    v.assostiloLen = v.gn / sin(v.altStilo);
    c.k = Abs(v.dec) == 180 ? 1 : -1;
}

void punti(Conto &v, Calcolo &c) {
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

void lascia(Variabili &v, const Conto &conto) {
    using V = Variabili;
    // The plane worked on, which for a reclining one is the equivalent wall; the longitude that has lines like it.
    Lascia(v, conto, {&V::latR, &V::decR, &V::declinSessag, &V::segnoDec, &V::diffLong, &V::lon, &V::lonPiu15, &V::corrLong});
    // Style and substyle, centre and lengths of the style's triangle, as the data report leaves them.
    Lascia(v, conto,
           {&V::angSustilare, &V::altStilo, &V::angoloOra, &V::assostiloLen, &V::xCentro, &V::yCentro, &V::xCentroNeg,
            &V::yCentroNeg, &V::segStiloSus, &V::segCentroPiede, &V::segAsse, &V::segPiedeEq});
    // The chosen lines against equinoctial and substyle; the declination of choice without its sign.
    Lascia(v, conto, {&V::xSusEq, &V::ySusEq, &V::xSusPiede, &V::ySusPiede, &V::deltaOpz});
}

void oreVere(Sessione &s, Uscita uscita, SpecieOreVere specie) {
    const Lettura letto(s.in);
    if (TroppeRighe(s, letto.inizio, letto.fine, letto.fraz, 2)) return;
    LeggiParametri(s, letto);
    Conto v(s, letto);
    Tabulato f(s, "Form2", uscita);
    v.deltaOpz = Abs(letto.delta);
    Calcolo c;
    c.specie = specie;
    switch (specie) {
        case SpecieOreVere::Inclinato:
            angoliInclinato(v, s.in.ck_Etna == 0, f.schermo(), c);
            punti(v, c);
            v.lonPiu15 = DalMeridiano(v.lon, v.meridiano) + (v.diffLong * 180 / PI) * 0;
            v.corrLong = CorrezioneLongitudine(v);  // whatever the box of the zone meridian says: it is in lon by now
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
    ore::Tabelle(s, v, f, c);
    ore::Blocchi(s, v, f, c);
    lascia(s.v, v);
    f.chiudi();
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
