// The zodiac: where the signs stand, and their strokes on the sheet.
#include "glyphs/zodiaco.h"

#include "core/conteggio.h"
#include "glyphs/punto_parete.h"
#include "glyphs/tratti.h"
#include "gnomonica/longitudine.h"
#include "gnomonica/spazzate.h"

namespace ombrelia {

namespace {

constexpr double GRIGLIA = 28;

// Minutes of time as an angle.
constexpr Valore minuti(double m) { return (m / 60) * 15 * PI / 180; }

// Between 0 and a whole turn, radians.
Valore entroUnGiro(Valore angolo) {
    const double giri = std::floor(angolo.v / CERCHIO);
    return angolo - giri * CERCHIO;
}

// The longitude's part of both routines: of the equivalent dial where there is one, and whatever oraFuso says.
void lasciaLongitudine(Variabili &v) {
    if (v.flagVerticale == 1) v.lon = v.lonEq;
    LasciaDalMeridiano(v);
    v.corrLong = CorrezioneLongitudine(v);
}

// The point at hour angle H, radians, on the day line of delta, degrees.
void calcola(PuntoParete &p, const Variabili &v, Valore H, Valore delta) {
    const Valore D = PI * delta / 180;
    p.azimut(v, H, D);
    if (p.quadranteErrato(H)) p.A = p.A + Sgn(H) * PI;
    p.proietta(v, H, D);
}

}  // namespace

void DisegnaSegno(Sessione &s, Reale altezza, Segno segno, Valore x0, Valore y0, Valore gradi) {
    const Valore h = altezza / 2, rotazione = Radianti(gradi);
    const Valore sen = sin(rotazione), co = cos(rotazione);
    const bool specchio = s.visteAlloSpecchio();  // about its own middle
    const double verso = specchio ? -1 : 1;
    // Both terms are added: a turn at 90 degrees alone, where X takes a and Y takes b.
    const auto X = [&](double a, double b) { return x0 + (a / GRIGLIA) * h * (verso * sen) + (b / GRIGLIA) * h * (verso * co); };
    const auto Y = [&](double a, double b) { return y0 + (a / GRIGLIA) * h * co + (b / GRIGLIA) * h * sen; };
    for (const Tratto &t : TrattiSegno(segno)) {
        if (t.forma != Forma::Arco) {
            t.percorri(t.corde, [&](double a1, double b1, double a2, double b2) {
                s.tavolo.TracciaLinea(X(a1, b1), Y(a1, b1), X(a2, b2), Y(a2, b2), QB(t.colore));
            });
            continue;
        }
        const Valore raggio = (t.c / GRIGLIA) * h;
        Valore inizio = 0, fine = 0;  // an end of 0 is a whole circle
        if (t.fine - t.inizio < 360) {
            const double da = t.inizio, a = t.fine;
            inizio = entroUnGiro(Radianti((specchio ? 180 - a : da) + gradi - 90));
            fine = entroUnGiro(Radianti((specchio ? 180 - da : a) + gradi - 90));
            if (fine == 0) fine = CERCHIO;
        }
        s.tavolo.TracciaCerchio(X(t.a, t.b), Y(t.a, t.b), raggio, QB(t.colore), -1, 1, inizio, fine);
    }
}

void DisegnaZodiaco(Sessione &s) {
    const Lettura letto(s.in);
    LeggiParametri(s, letto);
    lasciaLongitudine(s.v);
    const Variabili &v = s.v;
    const OmbreVere ombre = s.ombreVere();
    double f = 1;
    Valore m0 = 0;
    if (v.segnoLat2 == -1 && v.decR > 0) {
        f = 0;
        m0 = Radianti(5);  // an angle among minutes of time: meant
    }
    const double sl = v.segnoLat.numero();
    struct PostoSegno {
        Segno segno;
        Valore scarto;  // of the hour angle, radians
        double delta;   // declination, degrees
    };
    // Capricorn and Cancer stand outside the solstices, where the day lines leave room.
    const PostoSegno posti[QUANTI_SEGNI] = {
        {Segno::Capricorno, m0, sl == 1 ? -28.0 : 25.0},
        {Segno::Sagittario, minuti(28 * (f + 3) / 4), -20 * sl},
        {Segno::Acquario, minuti(-22 * (f + 3) / 4), -20 * sl},
        {Segno::Scorpione, minuti(30.3), -11.5 * sl},
        {Segno::Pesci, minuti(-23), -11.5 * sl},
        {Segno::Bilancia, minuti(14.7), 0},
        {Segno::Ariete, minuti(-14.5), 0},
        {Segno::Toro, minuti(11.0666), 11.5 * sl},
        {Segno::Vergine, minuti(-10.3666), 11.5 * sl},
        {Segno::Gemelli, minuti(10.58), 20 * sl},
        {Segno::Leone, minuti(-13.25), 20 * sl},
        {Segno::Cancro, 0, sl == 1 ? 25 * sl : 27 * sl},
    };
    PuntoParete p;
    Reale H;
    for (const PostoSegno &posto : posti) {
        H = -v.corrLong + posto.scarto;
        calcola(p, v, H, posto.delta);
        if (!ombre.sposta(H, PI * posto.delta * v.segnoLat / 180, p.x, p.y)) continue;
        DisegnaSegno(s, letto.segni * v.unita, posto.segno, p.x, p.y, 90);
    }
    ChiudiZodiaco(s);
}

void ChiudiZodiaco(Sessione &s) {
    lasciaLongitudine(s.v);
    const Variabili &v = s.v;
    const OmbreVere ombre = s.ombreVere();
    struct Tratta {
        double delta;  // declination in the northern summer's sense, degrees
        double da, a;  // minutes of time
        double passo;  // radians
    };
    static constexpr Tratta TRATTE[] = {
        {-20, -10.98, 14, 0.0001},      {-11.5, -13.85, 15.65, 0.0001}, {0, -7.28, 7.3666, 0.0001},
        {11.5, -2.466, 1.0666, 0.0002}, {20, -6.25, 3.58, 0.0001},
    };
    PuntoParete p;
    Reale delta;
    for (const Tratta &t : TRATTE) {
        delta = t.delta * v.segnoLat;
        for (const double H : Conteggio(-v.corrLong + minuti(t.da), -v.corrLong + minuti(t.a), t.passo)) {
            calcola(p, v, H, delta);
            if (!ombre.sposta(H, PI * t.delta / 180, p.x, p.y)) continue;
            if (p.y <= 0) s.tavolo.TracciaPunto(p.x, p.y, GIALLO);
        }
    }
    LasciaDeclinazione(s.v, delta);
}

}  // namespace ombrelia
