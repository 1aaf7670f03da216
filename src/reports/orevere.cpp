// The true hours on any plane, on a wall and at the equator: angles and points before the tables.
#include "reports/orevere.h"

#include "gnomonica/centro.h"
#include "gnomonica/equivalente.h"
#include "gnomonica/longitudine.h"

namespace ombrelia::reports {

using ore::DatiOre;
using ore::SpecieOreVere;

ore::DatiOre::DatiOre(const Variabili &v, SpecieOreVere quale)
    : specie(quale),
      latR(v.latR),
      decR(v.decR),
      declinSessag(v.declinSessag),
      segnoDec(v.segnoDec),
      diffLong(v.diffLong),
      lon(v.lon),
      lonPiu15(v.lonPiu15),
      corrLong(v.corrLong),
      delta(v.deltaOpz),
      altStilo(v.altStilo),
      angSustilare(v.angSustilare),
      angoloOra(v.angoloOra),
      lati(v),
      xSusEq(v.xSusEq),
      ySusEq(v.ySusEq),
      xSusPiede(v.xSusPiede),
      ySusPiede(v.ySusPiede) {}

namespace {

// All angles. Given: the dial as it stood, d. Gives: d with them, radians, lengths in the unit of gn. Source: as at each form of
// gnomonica. Faults: what has no value is that of the dial before.

// A reclining plane, by the wall that has its lines: style and substyle are the plane's, latitude and declination the wall's.
DatiOre angoliInclinato(const Variabili &v, DatiOre d, bool senzaFuso, bool schermo) {
    const Valore segno = SegnoDeclinazione(d.decR, d.decR);
    if (schermo && Abs(v.iz_o) == PI / 2) {  // on the screen alone: meant
        d.decR = 0;
        d.declinSessag = 0;
    }
    const Piano p(d.latR, d.decR, v.incR, v.gn, v.unita);
    d.altStilo = -ArcSin(p.senStilo());
    d.angSustilare = ArcSin(p.senSustilare(d.altStilo));
    d.lati.assostiloLen = Abs(v.gn / sin(d.altStilo));
    d.k = -1;
    const PareteEquivalente e = EquivalenteDelleOre(p, v.dec, segno);
    d.diffLong = e.diffLong;
    d.lon = (senzaFuso ? Valore(v.meridiano) : Valore(v.lonCopia)) - d.diffLong * 180 / PI;
    if (v.inc == 90) {
        d.angoloOra = 0;
    } else {
        const Reale mezza = OraSustilareMuroMezza(e.f1, e.d1);
        d.angoloOra = DalLatoDi(d.decR, mezza);
    }
    d.oraSus = 12 + (d.angoloOra - d.diffLong) * 12 / PI;
    d.latR = e.f1;
    d.decR = e.d1;
    return d;
}

// Longitude terms under the box of the zone meridian.
DatiOre longitudine(const Variabili &v, DatiOre d) {
    d.segnoDec = SegnoDeclinazione(v.dec, d.decR);
    d.lonPiu15 = DalMeridiano(d.lon, v.meridiano);
    d.corrLong = CorrezioneFuso(d.lonPiu15, v.oraFuso);
    return d;
}

DatiOre angoliParete(const Variabili &v, DatiOre d) {
    d.angSustilare = SustilareMuro(d.latR, d.decR);
    d.tanStilo = TanStiloMuro(d.latR, d.decR);
    d.altStilo = Atn(d.tanStilo);
    d.lati.assostiloLen = Abs(v.gn / sin(d.altStilo));
    d.k = 1;
    if (d.latR == 0 && v.incR == 0) {
        d.angoloOra = (PI / 2) * Sgn(d.decR);
    } else {
        d.angoloOra = OraSustilareMuroMezza(d.latR, d.decR);
        d.angoloOra = DalLatoDi(d.decR, d.angoloOra);
    }
    d.oraSus = 12 + (d.angoloOra - d.diffLong) * 12 / PI;
    return d;
}

// A wall on the equator; its style lies at the complement of the declination.
DatiOre angoliLatZero(const Variabili &v, DatiOre d) {
    const Valore cd = cos(d.decR);
    if (Abs(cd) == 1) d.altStilo = (PI / 2) * Sgn(cd);
    else d.altStilo = ArcSin(cd);
    d.angSustilare = (PI / 2) * d.segnoDec;
    d.angoloOra = d.angSustilare;
    if (d.decR != 0) d.L = cd / sin(d.decR);
    d.lati.assostiloLen = v.gn / sin(d.altStilo);
    d.k = Abs(v.dec) == 180 ? 1 : -1;
    return d;
}

// Centre, lengths of the style's triangle, and the chosen lines against equinoctial and substyle. Given: a dial with its angles.
// Gives: lengths in the unit of gn, signed, y upward. Source: the right triangles of style, foot and equinoctial. Faults: as
// above.
DatiOre conPunti(const Variabili &v, DatiOre d) {
    TriangoloStilo &t = d.lati;
    const Valore ts = tan(d.angSustilare);
    const PostoCentro centro = CentroDaStilo(v.gn, d.angSustilare, d.altStilo);
    t.xCentro = centro.x;
    t.yCentro = centro.y;
    t.xCentroNeg = -centro.x;
    t.yCentroNeg = -t.yCentro;
    t.CM = t.assostiloLen / sin(d.latR);
    t.suSustilare(d.altStilo);
    Reale yM;  // ordinate of M
    if (d.latR != 0) {
        yM = -(v.gn / (sin(d.altStilo) * sin(d.latR)) - t.yCentro);
        t.MS = v.gn * ts / (sin(d.latR) * sin(d.altStilo));
    } else {
        t.CM = t.CP / cos(d.angSustilare);
        t.MS = -t.CM * ts;
    }
    if (d.decR == 0 || d.specie == SpecieOreVere::LatZero) return d;
    d.ySusEq = (v.xEq - t.xCentro) * ts + yM;
    d.xSusEq = (v.yEq - yM) / ts + t.xCentro;
    d.xSusPiede = -v.xSus / ts;
    d.ySusPiede = -v.ySus * ts;
    return d;
}

DatiOre dati(const Sessione &s, const Lettura &letto, SpecieOreVere specie, bool schermo) {
    const Variabili &v = s.v;
    DatiOre d(v, specie);
    d.delta = Abs(letto.delta);
    if (specie == SpecieOreVere::Inclinato) {
        d = conPunti(v, angoliInclinato(v, d, s.in.ck_Etna == 0, schermo));
        d.lonPiu15 = DalMeridiano(d.lon, v.meridiano) + (d.diffLong * 180 / PI) * 0;
        d.corrLong = CorrezioneLongitudine(d.lonPiu15);  // whatever the box of the zone meridian says: it is in lon by now
        return d;
    }
    d = longitudine(v, d);
    if (specie == SpecieOreVere::Parete) return conPunti(v, angoliParete(v, d));
    if (v.incR != 0) d.specie = SpecieOreVere::LatZeroInclinato;
    else d = conPunti(v, angoliLatZero(v, d));
    d.oraSus = 12 + d.angoloOra * 12 / PI;
    return d;
}

void lascia(Sessione &s, const DatiOre &d) {
    Variabili &v = s.v;
    // The plane worked on, which for a reclining one is the equivalent wall; the longitude that has lines like it.
    v.latR = d.latR;
    v.decR = d.decR;
    v.declinSessag = d.declinSessag;
    v.segnoDec = d.segnoDec;
    v.diffLong = d.diffLong;
    v.lon = d.lon;
    v.lonPiu15 = d.lonPiu15;
    v.corrLong = d.corrLong;
    // Style and substyle, centre and lengths of the style's triangle, as the data report leaves them.
    v.angSustilare = d.angSustilare;
    v.altStilo = d.altStilo;
    v.angoloOra = d.angoloOra;
    LasciaTriangolo(v, d.lati);
    // The chosen lines against equinoctial and substyle; the declination of choice without its sign.
    v.xSusEq = d.xSusEq;
    v.ySusEq = d.ySusEq;
    v.xSusPiede = d.xSusPiede;
    v.ySusPiede = d.ySusPiede;
    v.deltaOpz = d.delta;
    // The option that asked for the report springs back.
    s.in.optHorae = 0;
}

void oreVere(Sessione &s, const Lettura &letto, Uscita uscita, SpecieOreVere specie) {
    if (TroppeRighe(s, letto.inizio, letto.fine, letto.fraz, 2)) return;
    LeggiParametri(s, letto);
    Tabulato f(s, "Form2", uscita);
    const DatiOre d = dati(s, letto, specie, f.schermo());
    if (specie == SpecieOreVere::LatZero)
        f.etichetta(d.specie == SpecieOreVere::LatZero ? "  LATITUDINE ZERO"_it
                                                       : "  LATITUDINE ZERO, declinazione gnomonica = 0"_it);
    ore::Tabelle(s, letto, d, f);
    const DatiOre sotto = ore::DatiDeiBlocchi(s.v, d);
    ore::Blocchi(s, sotto, f);
    lascia(s, sotto);
    f.chiudi();
}

}  // namespace

void OreVere(Sessione &s, Uscita uscita) {
    const bool stampa = uscita == Uscita::Stampa;
    if (stampa && s.v.lat < 0) return;
    const Lettura letto(s.in);
    const bool equatore = (stampa ? Valore(s.v.lat) : letto.lat) == 0;
    const bool parete = (stampa ? Valore(s.v.incR) : letto.inc) == 0;
    oreVere(s, letto, uscita, equatore ? SpecieOreVere::LatZero : parete ? SpecieOreVere::Parete : SpecieOreVere::Inclinato);
}

}  // namespace ombrelia::reports
