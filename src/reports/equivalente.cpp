// The data of the equivalent vertical dial, worked out again on the original one: the fields hold the equivalent by now.
#include "gnomonica/equivalente.h"

#include "gnomonica/centro.h"
#include "gnomonica/conica.h"
#include "gnomonica/declinazioni.h"
#include "reports/tabulato.h"

namespace ombrelia::reports {

namespace {

Elemento gradi(Valore radianti) { return Fmt(Gradi(radianti), "0.00000"); }

// The original dial in the place of the fields', unit and zone as the fields say. Radians, degrees for the longitudes.
struct Originale {
    Originale(const Variabili &v, const Lettura &letto)
        : piano(v.lat_o, v.dec_o, v.iz_o, v.gn, letto.unita), lonCopia(v.lon_o), lon(v.lon), meridiano(v.meridiano) {
        lon = letto.lon;
        meridiano = letto.meridiano;
    }
    Piano piano;
    Reale lonCopia, lon, meridiano;
};

// The wall.
struct Parete {
    explicit Parete(const Variabili &v) : diffLong(v.diffLong), segnoTrasf(v.segnoTrasf) {}
    Reale E;           // elevation of the original's style with its sign turned, radians
    Reale s;           // sign of d1
    Reale f1, d1;      // latitude; declination without its sign; radians
    Reale diffLong;    // of the original less the wall's, radians
    Reale segnoTrasf;  // sign of f1
};

// Given: the original plane. Gives: see Parete. Source: see EquivalenteDi. Faults: an angle without a value is 0, a difference of
// longitude that of the dial before.
Parete pareteDi(const Variabili &v, const Piano &piano) {
    const PareteEquivalente e = EquivalenteDi(piano, v.dec);
    Parete p(v);
    p.E = ArcSin(piano.senStilo());
    p.s = e.girata ? Valore(1) : Sgn(piano.g);  // 0 for a plane without declination, unlike elsewhere: meant
    if (!e.girata && v.inc == 90) return p;
    p.f1 = e.f1;
    p.d1 = e.d1;
    p.diffLong = e.diffLong;
    if (!e.girata) p.segnoTrasf = Sgn(p.f1);
    return p;
}

void orizzontale(const Variabili &v, const Originale &o, Tabulato &f) {
    f.etichetta("QUADRANTE VERTICALE EQUIVALENTE al quadrante orizzontale"_it);
    f.riga({f.tr("latitudine f1 = "_it), gradi(PI / 2 - o.piano.phi), "°  "});
    f.riga({f.tr("declinazione d1 = "_it), Numero(180), "°  "});
    f.riga({f.tr("inclinazione = 0"_it), "°  "});
    f.etichetta("ordinata orizzonte = inf "_it);
    f.riga({f.tr("elevazione dello stilo = "_it), Fmt(v.lat, "0.00000"), "°  "});
    if (v.lat_o != 0) f.riga({f.tr("ordinata ora 12 italica-babilonese = "_it), Fmt(-v.gn / tan(2 * v.lat_o), "0.00000"), " mm"});
}

// Hours at which the horizontal and the vertical through the foot stand, and the meridian line's slope. Given: the plane. Gives:
// hours and degrees, cut to five places. Source: spherical triangle of pole, zenith and plane (Rohr, Sundials). Faults: an angle
// without a value is 0.
void oreDelleRette(const Piano &p, Tabulato &f) {
    Reale L;
    if (p.g != 0 && p.phi != 0) L = Atn(-1 / (tan(p.g) * p.sphi));
    if (p.phi == 0) L = -PI / 2;
    const Reale e = PI / 2 - ArcSin(p.senZenit());
    const Reale w = p.si * p.sg / sin(e);
    const Reale V = ArcSin(w);
    const auto tagliata = [&](std::string_view nome, Valore x, std::string_view coda) {
        f.rigaUnita({f.tr(nome), Unito(Tronca5(x)).vero(x), coda});
    };
    tagliata("ora orizzontale:    "_it, 12 + L * 12 / PI, " h");
    tagliata("linea meridiana:    "_it, Atn(p.si * tan(p.g)) * 180 / PI, "°  ");
    tagliata("ora verticale:    "_it, 12 - V * 12 / PI, " h");
}

void inclinato(const Variabili &v, const Originale &o, Tabulato &f, const Parete &p) {
    f.etichetta("QUADRANTE VERTICALE EQUIVALENTE "_it);
    f.riga({f.tr("latitudine f1 = "_it), gradi(p.f1), "°  "});
    const Valore d1 = Gradi(p.d1);
    f.riga({f.tr("declinazione d1 = "_it), Numero(p.s * Val(Formato(d1, "0.00000"))).vero(p.s * d1), "°  "});
    f.riga({f.tr("inclinazione = 0"_it), "°  "});
    const Valore orizzonte = v.gn * tan(v.incR2);
    f.rigaUnita({f.tr("ordinata orizzonte = "_it), Unito(Tronca5(orizzonte)).vero(orizzonte), " mm"});
    f.vuota();
    f.etichetta("La check box ora vera MEC deve risultare sempre attivata "_it);
    f.vuota();
    const Valore diff = Gradi(p.diffLong);
    f.riga({f.tr("differenza in longitudine delta lambda per ora vera locale = "_it), gradi(p.diffLong), "°  "});
    f.riga({f.tr("longitudine per ora vera locale = "_it), Fmt(o.meridiano - diff, "0.00000"), "°  "});
    f.riga({f.tr("longitudine per ora vera MEC = "_it), Fmt(o.lonCopia - diff, "0.00000"), "°  "});
    f.etichetta("da usarsi per avere l'ora vera MEC"_it);
    f.vuota();
    f.riga({f.tr("elevazione dello stilo = "_it), gradi(p.E), "°  "});
    oreDelleRette(o.piano, f);
}

// The wall's style, as its solstices take it, radians.
struct StiloSolstizi {
    explicit StiloSolstizi(const Variabili &v)
        : segnoDec(v.segnoDec), angSustilare(v.angSustilare), altStilo(v.altStilo), y0(v.y0), disc(v.deltaOpz) {}
    Reale segnoDec, angSustilare, altStilo;
    Reale y0;    // from the foot to the equinoctial
    Reale disc;  // discriminant of the ordinates on x = 0
};

// Given: the plane, the wall. Gives: see StiloSolstizi, disc as it stood. Source: as at each form; departure: at latitude 0 the
// substyle lies level. Faults: what has no value is that of the dial before.
StiloSolstizi stiloDeiSolstizi(const Variabili &v, const Piano &piano, const Parete &p) {
    StiloSolstizi r(v);
    Reale d1 = p.d1;
    d1 = p.s * DeclinazioneEquivalente(piano, p.f1);
    r.segnoDec = SegnoDeclinazione(v.dec, piano.g);
    if (v.lat == 0) {
        r.angSustilare = (PI / 2) * r.segnoDec;
        r.altStilo = StiloMuroEquatore(d1);
    } else {
        r.angSustilare = SustilareMuro(p.f1, d1) * SegnoLatitudine(v.latR);
        r.altStilo = StiloMuroQuadrati(p.f1, d1);
    }
    r.y0 = DistanzaEquinoziale(v.gn, r.altStilo);
    return r;
}

// Where the solstices meet the horizon and the line x = 0 on the wall. Given: the plane, the wall. Gives: rows in the unit of gn,
// y upward; the wall's style and substyle and the discriminant of the ordinates. Source: see Conica. Faults: an abscissa without
// a value is 0; a discriminant that overflows is what stands in the declination of choice.
StiloSolstizi solstizi(const Variabili &v, const Lettura &letto, const Piano &piano, Tabulato &f, const Parete &p) {
    StiloSolstizi r = stiloDeiSolstizi(v, piano, p);
    const Reale yo = letto.oriz;  // one that overflows is 0
    Reale xPiu, xMeno, yPiu, yMeno;
    Conica k;
    k.calcola(QuadratoCotangente(OBLIQUITA), r.altStilo, v.gn);
    if (Abs(v.inc_o) != 90) {
        if (v.lat == 0 && v.dec == 0) {
            xPiu = v.gn / tan(Radianti(OBLIQUITA));
            xMeno = -v.gn / tan(Radianti(OBLIQUITA));
        } else {
            const Radici x = AscisseConica(k, r.angSustilare, r.y0, yo);
            xPiu = x.piu;
            xMeno = x.meno;
        }
        f.etichetta("Ascisse delle intersezioni dei solstizi con l'orizzonte "_it);
        f.riga({Fmt(xPiu, "0.000000"), " mm"});
        f.riga({Fmt(xMeno, "0.000000"), " mm"});
    }
    const Quadratica ordinate = OrdinateSulPiede(k, r.angSustilare, r.y0);
    r.disc = ordinate.discriminante();
    const Radici y = ordinate.radici(r.disc);
    if (y.reali) {
        yPiu = y.piu;
        yMeno = y.meno;
        f.etichetta("Ordinate delle intersezioni dei solstizi con la retta x = 0 "_it);
        f.riga({Fmt(yPiu, "0.00000"), " mm"});
        f.riga({Fmt(yMeno, "0.00000"), " mm"});
    }
    return r;
}

// The original plane's substyle: its hour angle and its angle. Given: the plane. Gives: radians. Source: as stiloDi of the data
// report. Faults: an angle without a value is 0.
struct SustilareOriginale {
    Reale angoloOra, sigma;
};

SustilareOriginale sustilareOriginale(const Variabili &v, const Piano &piano) {
    SustilareOriginale s;
    const Reale T = piano.oraSustilareMezza();
    s.angoloOra = DalLatoDi(piano.g, T);

    Reale D = piano.senStilo();
    const bool estOvest = Abs(v.declinSessag) == 90;
    if ((piano.i == 0 && (estOvest || Abs(v.dec) == 90)) || (piano.phi == 0 && estOvest)) D = 0;
    if (piano.phi == 0 && piano.i == 0) s.sigma = (PI / 2) * Sgn(piano.g);
    else s.sigma = Atn(piano.tanSustilare());
    if (D != 0) {
        const PostoCentro c = CentroDelPiano(piano, D);
        s.sigma = SustilareDalCentro(s.sigma, Reale(c.x), Reale(c.y));  // one that overflows is 0
    }
    if (piano.phi != 0 && SegnoLatitudine(v.latR) == -1) s.sigma = -s.sigma;
    return s;
}

void lasciaOriginale(Variabili &v, const Originale &o, const SustilareOriginale &s) {
    // The original dial in the place of the fields'; unit and zone.
    v.segnoLat2 = SegnoLatitudine(v.latR);
    v.latR = o.piano.phi;
    v.decR = o.piano.g;
    v.incR = o.piano.i;
    v.lon = o.lon;
    v.lonCopia = o.lonCopia;
    v.meridiano = o.meridiano;
    v.unita = o.piano.unita;
    v.angoloOra = s.angoloOra;
}

void lasciaParete(Variabili &v, const Parete &p) {
    // What makes the original the equivalent one; a level plane has its horizon out of sight.
    if (v.inc == 90) v.yOriz = 100000;
    v.diffLong = p.diffLong;
    v.segnoTrasf = p.segnoTrasf;
}

void lasciaSolstizi(Variabili &v, const StiloSolstizi &r) {
    v.segnoDec = r.segnoDec;
    v.angSustilare = r.angSustilare;
    v.altStilo = r.altStilo;
    v.y0 = r.y0;
    // In the place of the declination of choice, which routines read again: meant.
    v.deltaOpz = r.disc;
}

}  // namespace

void DatiEquivalente(Sessione &s, Uscita uscita) {
    if (uscita == Uscita::Stampa && s.v.flagVerticale != 1) return DatiFondamentali(s, uscita);
    const Variabili &v = s.v;
    const Lettura letto(s.in);
    const Originale o(v, letto);
    const Parete p = pareteDi(v, o.piano);
    Tabulato f(s, "Form10", uscita);
    f.vuota();
    f.etichetta("PARAMETRI PRIMARI del QUADRANTE SOLARE VERTICALE EQUIVALENTE"_it);
    f.etichetta("con LO STESSO ANGOLO SUSTILARE del QUADRANTE ORIGINALE"_it);
    f.vuota();
    if (v.inc == 90) orizzontale(v, o, f);
    else inclinato(v, o, f, p);
    f.colore(BLU);
    StiloSolstizi stilo(v);
    if (o.piano.i != 0) stilo = solstizi(v, letto, o.piano, f, p);

    const SustilareOriginale sustilare = sustilareOriginale(v, o.piano);
    lasciaSolstizi(s.v, stilo);
    lasciaParete(s.v, p);
    lasciaOriginale(s.v, o, sustilare);
    f.colore(NERO);
    f.riga({f.tr("angolo sustilare = "_it), gradi(sustilare.sigma), "°  "});
    f.riga({f.tr("ora sustilare = "_it), Fmt(12 + sustilare.angoloOra * 12 / PI, "0.00000")});
    f.vuota();
    f.etichetta("QUADRANTE ORIGINALE "_it);
    f.riga({f.tr("latitudine fO = "_it), gradi(v.lat_o), "°  "});
    f.riga({f.tr("declinazione dO = "_it), gradi(v.dec_o), "°  "});
    f.riga({f.tr("inclinazione = "_it), Numero(v.inc_o), "°  "});
    f.riga({f.tr("longitudine = "_it), Numero(o.lonCopia), "°  "});
    f.chiudi();
}

}  // namespace ombrelia::reports
