// The data of the equivalent vertical dial, worked out again on the original one: the fields hold the equivalent by now.
#include "gnomonica/conica.h"
#include "gnomonica/declinazioni.h"
#include "reports/tabulato.h"

namespace ombrelia::reports {

namespace {

Elemento gradi(Valore radianti) { return Fmt(Gradi(radianti), "0.00000"); }

// The wall: f1 and d1 in radians, E the elevation of the original's style with its sign turned. d1 has no sign yet; s is it.
struct Parete {
    Reale A, E, s, f1, d1;
};

// The d1 that the general case gives, without its sign.
Valore declinazione(const Variabili &v, Valore f1) {
    return ArcCos(((cos(v.incR) * sin(f1) - sin(v.latR)) / (sin(v.incR) * cos(f1))) * Sgn(f1));
}

Parete parete(Variabili &v) {
    const Valore si = sin(v.incR), ci = cos(v.incR), sf = sin(v.latR), cf = cos(v.latR), sg = sin(v.decR), cg = cos(v.decR);
    Parete p;
    p.A = si * sf - ci * cf * cg;
    p.E = ArcSin(p.A);
    p.s = Sgn(v.decR);  // 0 for a plane without declination, unlike elsewhere: meant
    const Reale B = ci * sf + si * cf * cg;
    if (v.dec == 0 && p.A > 0) {
        p.f1 = ArcSin(B);
        p.s = 1;
        p.d1 = PI;
        v.diffLong = PI;
    } else if (v.inc != 90) {
        p.f1 = ArcSin(B);
        v.segnoTrasf = Sgn(p.f1);
        const Reale W = si * sg / cos(p.f1);
        if (v.dec == 0) v.diffLong = 0;
        else if (Abs(v.dec) == 180) v.diffLong = PI;
        else v.diffLong = ArcCos((ci - sf * sin(p.f1)) / (cf * cos(p.f1))) * Sgn(W);
        if (v.dec == 0) p.d1 = 0;
        else if (Abs(v.dec) == 180) p.d1 = PI;
        else p.d1 = declinazione(v, p.f1);
    }
    return p;
}

void orizzontale(Variabili &v, Tabulato &f) {
    f.etichetta("QUADRANTE VERTICALE EQUIVALENTE al quadrante orizzontale"_it);
    f.riga({f.tr("latitudine f1 = "_it), gradi(PI / 2 - v.latR), "°  "});
    f.riga({f.tr("declinazione d1 = "_it), Numero(180), "°  "});
    f.riga({f.tr("inclinazione = 0"_it), "°  "});
    f.etichetta("ordinata orizzonte = inf "_it);
    f.riga({f.tr("elevazione dello stilo = "_it), Fmt(v.lat, "0.00000"), "°  "});
    if (v.lat_o != 0) f.riga({f.tr("ordinata ora 12 italica-babilonese = "_it), Fmt(-v.gn / tan(2 * v.lat_o), "0.00000"), " mm"});
    v.yOriz = 100000;
}

void inclinato(Variabili &v, Tabulato &f, const Parete &p) {
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
    const Valore c = cos(v.incR) * sin(v.latR) + sin(v.incR) * cos(v.latR) * cos(v.decR);
    const Reale e = PI / 2 - ArcSin(c);
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
void solstizi(Sessione &s, Tabulato &f, Parete &p) {
    Variabili &v = s.v;
    p.d1 = p.s * declinazione(v, p.f1);
    Reale yo, xPiu, xMeno, yPiu, yMeno;
    yo = Val(s.in.txtOriz) * 1;
    v.segnoDec = v.dec == 0 ? Valore(1) : Sgn(v.decR);
    bool daConica = true;
    if (v.lat == 0) {
        v.angSustilare = (PI / 2) * v.segnoDec;
        v.altStilo = PI / 2 - Abs(p.d1);
        v.angoloOra = (PI / 2) * v.segnoDec;
        if (v.dec == 0) {
            xPiu = v.gn / tan(Radianti(OBLIQUITA));
            xMeno = -v.gn / tan(Radianti(OBLIQUITA));
            daConica = false;
        }
    } else {
        const Valore cf = cos(p.f1), cd = cos(p.d1);
        v.angSustilare = Atn(sin(p.d1) / tan(p.f1)) * v.segnoLat2;
        v.altStilo = Atn(cf * cd / Sqr(1 - cd * cd * (cf * cf)));
    }
    v.y0 = v.gn * tan(v.altStilo);
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
Valore sustilareOriginale(Variabili &v) {
    Reale n;
    n = sin(v.decR) / (sin(v.latR) * cos(v.decR) + cos(v.latR) * tan(v.incR));
    v.angoloOra = Atn(n);
    if (Sgn(sin(v.angoloOra)) != Sgn(sin(v.decR))) v.angoloOra = v.angoloOra > 0 ? v.angoloOra - PI : v.angoloOra + PI;

    Reale D = sin(v.incR) * sin(v.latR) - cos(v.incR) * cos(v.latR) * cos(v.decR);
    const bool estOvest = Abs(v.declinSessag) == 90;
    if ((v.incR == 0 && (estOvest || Abs(v.dec) == 90)) || (v.latR == 0 && estOvest)) D = 0;
    Reale X, Y, u;
    if (D != 0) {
        X = (v.gn / D) * cos(v.latR) * sin(v.decR);
        Y = (-v.gn / D) * (sin(v.latR) * cos(v.incR) + cos(v.latR) * sin(v.incR) * cos(v.decR));
    }
    if (v.latR == 0 && v.incR == 0) u = (PI / 2) * Sgn(v.decR);
    else u = Atn(sin(v.decR) / (tan(v.latR) * cos(v.incR) + cos(v.decR) * sin(v.incR)));
    if (D != 0) {
        if (X <= 0 && Y < 0) u = u + PI;
        else if (X > 0 && Y < 0) u = u - PI;
        if (Abs(u) > PI) u = -Abs(2 * PI - Abs(u)) * Sgn(u);
    }
    if (v.latR != 0 && v.segnoLat2 == -1) u = -u;
    return u;
}

}  // namespace

void DatiEquivalente(Sessione &s, Uscita uscita) {
    Variabili &v = s.v;
    if (uscita == Uscita::Stampa && v.flagVerticale != 1) return DatiFondamentali(s, uscita);
    Tabulato f(s, "Form10", uscita);
    v.unita = s.in.ChCentimetro == 1 ? 0.001 : 1.0;
    v.lon = Val(s.in.txtLonG);
    v.meridiano = Val(s.in.txtMeridiano);
    v.segnoLat2 = v.latR == 0 ? Valore(1) : Sgn(v.latR);
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
    if (v.incR != 0) solstizi(s, f, p);

    const Valore u = sustilareOriginale(v);
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
