// The data of the equivalent vertical dial, worked out again on the original one: the fields hold the equivalent by now.
#include "gnomonica/equivalente.h"

#include "gnomonica/conica.h"
#include "gnomonica/declinazioni.h"
#include "reports/tabulato.h"

namespace ombrelia::reports {

namespace {

Elemento gradi(Valore radianti) { return Fmt(Gradi(radianti), "0.00000"); }

// The wall: f1 and d1 in radians, E the elevation of the original's style with its sign turned. d1 has no sign yet; s is it.
struct Parete {
    Reale E, s, f1, d1;
};

Parete parete(Conto &v) {
    const Piano piano(v);
    const PareteEquivalente e = EquivalenteDi(piano, v.dec);
    Parete p;
    const Reale A = piano.senStilo();
    p.E = ArcSin(A);
    p.s = e.girata ? Valore(1) : Sgn(v.decR);  // 0 for a plane without declination, unlike elsewhere: meant
    if (!e.girata && v.inc == 90) return p;
    p.f1 = e.f1;
    p.d1 = e.d1;
    v.diffLong = e.diffLong;
    if (!e.girata) v.segnoTrasf = Sgn(p.f1);
    return p;
}

void orizzontale(Conto &v, Tabulato &f) {
    f.etichetta("QUADRANTE VERTICALE EQUIVALENTE al quadrante orizzontale"_it);
    f.riga({f.tr("latitudine f1 = "_it), gradi(PI / 2 - v.latR), "°  "});
    f.riga({f.tr("declinazione d1 = "_it), Numero(180), "°  "});
    f.riga({f.tr("inclinazione = 0"_it), "°  "});
    f.etichetta("ordinata orizzonte = inf "_it);
    f.riga({f.tr("elevazione dello stilo = "_it), Fmt(v.lat, "0.00000"), "°  "});
    if (v.lat_o != 0) f.riga({f.tr("ordinata ora 12 italica-babilonese = "_it), Fmt(-v.gn / tan(2 * v.lat_o), "0.00000"), " mm"});
    v.yOriz = 100000;
}

void inclinato(const Conto &v, Tabulato &f, const Parete &p) {
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
    const Valore diff = Gradi(v.diffLong);
    f.riga({f.tr("differenza in longitudine delta lambda per ora vera locale = "_it), gradi(v.diffLong), "°  "});
    f.riga({f.tr("longitudine per ora vera locale = "_it), Fmt(v.meridiano - diff, "0.00000"), "°  "});
    f.riga({f.tr("longitudine per ora vera MEC = "_it), Fmt(v.lonCopia - diff, "0.00000"), "°  "});
    f.etichetta("da usarsi per avere l'ora vera MEC"_it);
    f.vuota();
    f.riga({f.tr("elevazione dello stilo = "_it), gradi(p.E), "°  "});

    // Hours at which the horizontal and the vertical through the foot stand, and the meridian line's slope.
    Reale L, V;
    if (v.decR != 0 && v.latR != 0) L = Atn(-1 / (tan(v.decR) * sin(v.latR)));
    if (v.latR == 0) L = -PI / 2;
    const Reale e = PI / 2 - ArcSin(Piano(v).senZenit());
    const Reale w = sin(v.incR) * sin(v.decR) / sin(e);
    V = ArcSin(w);
    const auto tagliata = [&](std::string_view nome, Valore x, std::string_view coda) {
        f.rigaUnita({f.tr(nome), Unito(Tronca5(x)).vero(x), coda});
    };
    tagliata("ora orizzontale:    "_it, 12 + L * 12 / PI, " h");
    tagliata("linea meridiana:    "_it, Atn(sin(v.incR) * tan(v.decR)) * 180 / PI, "°  ");
    tagliata("ora verticale:    "_it, 12 - V * 12 / PI, " h");
}

// Where the solstices meet the horizon and the line x = 0 on the wall.
void solstizi(Conto &v, Tabulato &f, Parete &p) {
    p.d1 = p.s * DeclinazioneEquivalente(Piano(v), p.f1);
    Reale yo, xPiu, xMeno, yPiu, yMeno;
    yo = v.letto.oriz * 1;
    v.segnoDec = SegnoDeclinazione(v.dec, v.decR);
    bool daConica = true;
    if (v.lat == 0) {
        v.angSustilare = (PI / 2) * v.segnoDec;
        v.altStilo = StiloMuroEquatore(p.d1);
        v.angoloOra = (PI / 2) * v.segnoDec;
        if (v.dec == 0) {
            xPiu = v.gn / tan(Radianti(OBLIQUITA));
            xMeno = -v.gn / tan(Radianti(OBLIQUITA));
            daConica = false;
        }
    } else {
        v.angSustilare = SustilareMuro(p.f1, p.d1) * v.segnoLat2;
        v.altStilo = StiloMuroQuadrati(p.f1, p.d1);
    }
    v.y0 = DistanzaEquinoziale(v.gn, v.altStilo);
    Conica k;
    k.calcola(QuadratoCotangente(OBLIQUITA), v.altStilo, v.gn);
    if (Abs(v.inc_o) != 90) {
        if (daConica) {
            const Radici x = AscisseConica(k, v.angSustilare, v.y0, yo);
            xPiu = x.piu;
            xMeno = x.meno;
        }
        f.etichetta("Ascisse delle intersezioni dei solstizi con l'orizzonte "_it);
        f.riga({Fmt(xPiu, "0.000000"), " mm"});
        f.riga({Fmt(xMeno, "0.000000"), " mm"});
    }
    const Valore ss = sin(v.angSustilare), cs = cos(v.angSustilare);
    const Valore a = cs * cs + k.R * (ss * ss), b = cs * (2 * v.y0 + k.Q), c = v.y0 * v.y0 + k.Q * v.y0 + k.P;
    v.deltaOpz = b * b - 4 * a * c;  // the discriminant stays in the optional declination: meant
    if (v.deltaOpz >= 0) {
        yPiu = (-b + Sqr(v.deltaOpz)) / (2 * a);
        yMeno = (-b - Sqr(v.deltaOpz)) / (2 * a);
        f.etichetta("Ordinate delle intersezioni dei solstizi con la retta x = 0 "_it);
        f.riga({Fmt(yPiu, "0.00000"), " mm"});
        f.riga({Fmt(yMeno, "0.00000"), " mm"});
    }
}

// Substyle of the original plane: its hour angle goes to angoloOra, its angle is given, radians.
Valore sustilareOriginale(Conto &v) {
    const Piano piano(v);
    Reale n;
    n = piano.sg / piano.divisoreOra();
    v.angoloOra = DalLatoDi(v.decR, Atn(n));

    Reale D = piano.senStilo();
    const bool estOvest = Abs(v.declinSessag) == 90;
    if ((v.incR == 0 && (estOvest || Abs(v.dec) == 90)) || (v.latR == 0 && estOvest)) D = 0;
    Reale X, Y, u;
    if (v.latR == 0 && v.incR == 0) u = (PI / 2) * Sgn(v.decR);
    else u = Atn(piano.tanSustilare());
    if (D != 0) {
        X = (v.gn / D) * piano.cphi * piano.sg;
        Y = (-v.gn / D) * piano.senZenit();
        u = SustilareDalCentro(u, X, Y);
    }
    if (v.latR != 0 && v.segnoLat2 == -1) u = -u;
    return u;
}

void lascia(Variabili &v, const Conto &conto) {
    using V = Variabili;
    // The original dial in the place of the fields'; unit and zone.
    Lascia(v, conto,
           {&V::latR, &V::segnoLat2, &V::decR, &V::segnoDec, &V::incR, &V::lon, &V::lonCopia, &V::meridiano, &V::unita});
    // What makes it the equivalent one; the equivalent's substyle and style, the original's hour of the substyle.
    Lascia(v, conto, {&V::diffLong, &V::segnoTrasf, &V::angSustilare, &V::altStilo, &V::y0, &V::angoloOra, &V::yOriz});
    // The discriminant of the solstices' ordinates, in the place of the declination of choice: meant.
    Lascia(v, conto, {&V::deltaOpz});
}

}  // namespace

void DatiEquivalente(Sessione &s, Uscita uscita) {
    if (uscita == Uscita::Stampa && s.v.flagVerticale != 1) return DatiFondamentali(s, uscita);
    Conto v(s, Lettura(s.in));
    Tabulato f(s, "Form10", uscita);
    v.unita = v.letto.unita;
    v.lon = v.letto.lon;
    v.meridiano = v.letto.meridiano;
    v.segnoLat2 = SegnoLatitudine(v.latR);
    v.latR = v.lat_o;
    v.decR = v.dec_o;
    v.incR = v.iz_o;
    v.lonCopia = v.lon_o;
    Parete p = parete(v);
    f.vuota();
    f.etichetta("PARAMETRI PRIMARI del QUADRANTE SOLARE VERTICALE EQUIVALENTE"_it);
    f.etichetta("con LO STESSO ANGOLO SUSTILARE del QUADRANTE ORIGINALE"_it);
    f.vuota();
    if (v.inc == 90) orizzontale(v, f);
    else inclinato(v, f, p);
    f.colore(BLU);
    if (v.incR != 0) solstizi(v, f, p);

    const Valore u = sustilareOriginale(v);
    lascia(s.v, v);
    f.colore(NERO);
    f.riga({f.tr("angolo sustilare = "_it), gradi(u), "°  "});
    f.riga({f.tr("ora sustilare = "_it), Fmt(12 + v.angoloOra * 12 / PI, "0.00000")});
    f.vuota();
    f.etichetta("QUADRANTE ORIGINALE "_it);
    f.riga({f.tr("latitudine fO = "_it), gradi(v.lat_o), "°  "});
    f.riga({f.tr("declinazione dO = "_it), gradi(v.dec_o), "°  "});
    f.riga({f.tr("inclinazione = "_it), Numero(v.inc_o), "°  "});
    f.riga({f.tr("longitudine = "_it), Numero(v.lonCopia), "°  "});
    f.chiudi();
}

}  // namespace ombrelia::reports
