// The fixed figures of the dial: triangle of the style, hour line of the substyle, azimuth lines, almucantars.
#include "direct/diretta.h"
#include "direct/sbarramento.h"

namespace ombrelia::direct {

void TracciaStiloPolare(Sessione &s) {
    Variabili &v = s.v;
    Tavolo &t = s.tavolo;
    v.segnoLat2 = 1;
    (void)LeggiCornice(s);
    const Valore phi = v.latR, g = v.decR, i = v.incR, z = (PI / 2.0) - i;
    const Valore polo = sin(i) * sin(phi) - cos(i) * cos(phi) * cos(g);
    v.segnoDec = v.dec == 0 ? Valore(1) : Sgn(g);
    // No quadrant correction: the substyle is read in the right half-circle of the arc tangent.
    Reale S;
    if (v.latR == 0 && v.incR == 0) S = (PI / 2.0) * v.segnoDec;
    else S = Atn(sin(g) / (tan(phi) * cos(i) + cos(g) * sin(i)));
    // The dial's centre, and the tip of the gnomon folded into the plane.
    const Reale xc = v.gn * sin(g) * cos(phi) / polo * v.unita;
    const Reale yc = v.gn * -(sin(phi) * sin(z) + cos(phi) * cos(z) * cos(g)) / polo * v.unita;
    const Reale px = v.gn * cos(-S) * v.unita;
    const Reale py = v.gn * sin(-S) * v.unita;

    {
        const Pretendi pretendi(t, Specie::Stilo);
        t.xPset(xc, -yc, QB(12));
        t.xPset(px, -py, QB(12));
        t.xLine(px, -py, xc, -yc, QB(9), "polar style");
        t.xLine(px, -py, 0, 0, QB(13), "pillar");
        t.xLine(xc, -yc, 0, 0, QB(14), "substyle");
    }
    const Pretendi pretendi(t, Specie::Mezzogiorno);
    t.xLine(xc, -t.ShiftY(), xc, 2 * t.ShiftY(), QB(8));
}

void TracciaSustilare(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    Reale t;
    if (v.latR == 0 && v.incR == 0) t = PI / 2.0;
    else t = Arco2(sin(v.decR), sin(v.latR) * cos(v.decR) + cos(v.latR) * tan(v.incR));
    const SenCos angolo(t);
    const Proiezione proietta(v);
    const Pretendi pretendi(s.tavolo, Specie::OraSustilare);
    Catena catena(s.tavolo, "substyle hour");
    Reale x, y;
    // Past the solstices, so as to reach the centre.
    for (const double d : Conteggio(-50, 50, 0.05)) {
        v.deltaOpz = d;
        proietta(angolo, std::tan(PI * d / 180), x, y);
        catena.punto(x, y, cornice.contiene(x, y), QB(9));
    }
}

// The azimuth that the mirror of north and south makes of one, degrees.
static double oltreEstOvest(double A) { return A < 0 ? -180 - A : 180 - A; }

void TracciaRetteAzimutali(Sessione &s) {
    Variabili &v = s.v;
    if (s.in.ckAz != 1 || v.latR == 0) return;
    const Cornice cornice = LeggiCornice(s);
    v.latR = PI * Val(s.in.txtLAT) / 180.0;
    Reale G = Val(s.in.txtDec);
    if (v.latR < 0) G = -(180 + G);
    v.decR = PI * G / 180;
    v.gn = Val(s.in.TxtStilo);
    Reale limite;
    if (v.incR == PI / 2.0) {
        // A horizontal plane is worked as the wall that it equals.
        limite = 10;
        v.decR = PI;
        v.latR = (PI / 2.0) - v.latR;
        v.incR = 0;
    } else {
        limite = v.gn * tan(v.incR);  // unscaled, as meant
    }
    const Proiezione proietta(v);
    const Valore tanLat = tan(v.latR);
    Reale t, x, y;
    for (const double A : Conteggio(-90, 90, 15)) {
        const Pretendi pretendi(s.tavolo, Specie::Azimut, v.segnoLat == -1 ? oltreEstOvest(A) : A);
        const Reale B = Atn(sin(v.latR) * tan(PI * A / 180));
        const Valore senB = sin(B);
        for (const Declinazione &d : Anno()) {
            const Reale r = d.tanD * senB / tanLat;
            t = B - ArcSin(r);
            proietta(SenCos(t), d.tanD, x, y);
            if (y <= limite && cornice.contiene(x, y)) s.tavolo.xPset(x, -y, QB(6));
        }
    }
    v.deltaOpz = Anno().back().d;
    s.in.ckAz = 0;  // the lines appear once a request
}

void TracciaAlmucantarat(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    v.latR = PI * Val(s.in.txtLAT) / 180.0;
    v.gn = Val(s.in.TxtStilo);
    v.incR = PI * Val(s.in.txtInc) / 180;
    const bool orizzontale = Abs(Val(s.in.txtInc)) == 90;
    if (orizzontale) v.decR = 0;
    const Reale limite = v.gn * tan(v.incR);  // unscaled, as meant
    const Reale hMax = (90 - Val(s.in.txtLAT)) + 23.445;
    const bool nord = v.latR >= 0;

    // The declinations of the sweep, their limits 23.45 where the other lines have 23.445.
    struct Campione {
        double tanD, senTermine, cosTermine;
    };
    std::vector<Campione> anno;
    const Valore senLat = sin(v.latR), cosLat = cos(v.latR);
    for (const double d : Conteggio(-23.45, 23.45, Val(s.in.txtDensity) * 10)) {
        const double D = PI * d / 180;
        v.deltaOpz = d;
        anno.push_back({std::tan(D), senLat.v * std::sin(D), cosLat.v * std::cos(D)});
    }
    const Proiezione proietta(v);
    Reale c, t, x, y;
    for (const bool mattina : {true, false}) {
        for (const double h : Conteggio(10, hMax, 10)) {
            const Pretendi pretendi(s.tavolo, Specie::Almucantarat, h);
            const double senH = std::sin(PI * h / 180);
            for (const Campione &a : anno) {
                c = (Valore(senH) - a.senTermine) / a.cosTermine;
                if (Abs(c) > 1) continue;
                t = mattina ? -ArcCos(c) : ArcCos(c);
                proietta(SenCos(t), a.tanD, x, y);
                const bool dentro = cornice.contiene(x, y);
                if (!dentro) continue;
                if (nord && y <= limite) s.tavolo.xPset(x, -y, QB(4));
                if (!nord && y >= limite) s.tavolo.xPset(-x, y, QB(4));
                // On a horizontal plane every point of the frame is plotted once more.
                if (orizzontale) s.tavolo.xPset(x, -y, QB(4));
            }
        }
    }
}

}  // namespace ombrelia::direct
