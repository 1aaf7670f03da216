// Day lines and the equinoctial of the direct engine: sweeps of the hour angle at a fixed declination.
#include "direct/diretta.h"
#include "direct/sbarramento.h"

namespace ombrelia::direct {

namespace {

// -120 to 120 by 0.1 degrees. No time correction: a day line is the same in every zone; diffLong shifts it for an
// equivalent dial.
std::vector<SenCos> giornata(Valore diffLong) {
    std::vector<SenCos> t;
    t.reserve(2401);
    for (const double A : Conteggio(-120, 120, 0.1)) t.emplace_back(PI * A / 180 + diffLong);
    return t;
}

}  // namespace

void TracciaLineeDiurne(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    TracciaCornice(s);

    // The half-plane beyond the equinoctial, to tell the branches of the conics: the substyle's angle S, the elevation
    // Hs of the style, and (a, b) where the substyle meets the equinoctial.
    const Valore i = v.incR, g = v.decR, phi = v.latR;
    const Reale E = tan(phi) * cos(i) + cos(g) * sin(i);
    const Reale tanS = sin(g) / E;
    const Reale S = Atn(tanS);
    const Reale Hs = ArcSin(sin(phi) * sin(i) - cos(phi) * cos(i) * cos(g));
    const Reale a = -v.gn * tan(Hs) * sin(S) * v.unita;
    const Reale b = v.gn * tan(Hs) * cos(S) * v.unita;

    const Valore richiesta = Val(s.in.txtDelta), opzionale = richiesta * v.segnoLat * 1.0001;
    const bool intermedie = s.in.ckFunzione == 1;
    struct Linea {
        Valore delta;
        Valore dichiarata;  // declination that the maker asked for, degrees
        bool si;
        int lato;     // of the branch kept: 1 W > 0, -1 W < 0, 0 none
        bool forzato; // W counts as lato when E = 0; the last two lines have no such case, as meant
        Colore colore;
        std::string_view strato;
    };
    // The offsets of a thousandth and the factor 1.0001 are meant.
    const Linea linee[] = {
        {-23.445, -23.445 * v.segnoLat, true, 1, true, QB(14), "delta -23.445°"},
        {-20.001, -20 * v.segnoLat, intermedie, 1, true, QB(13), "delta -20°"},
        {20.001, 20 * v.segnoLat, intermedie, -1, true, QB(13), "delta 20°"},
        {-11.501, -11.5 * v.segnoLat, intermedie, 1, true, QB(11), "delta -11.5°"},
        {11.501, 11.5 * v.segnoLat, intermedie, -1, false, QB(11), "delta 11.5°"},
        {opzionale, richiesta, true, opzionale < 0 ? 1 : opzionale > 0 ? -1 : 0, false, QB(9), "Delta opt"},
    };
    const Sbarramento passa(cornice, v);
    const Proiezione proietta(v);
    const std::vector<SenCos> ore = giornata(v.diffLong);
    Reale x, y;
    for (const Linea &linea : linee) {
        if (!linea.si) continue;
        v.deltaOpz = linea.delta;
        const double tanD = tan(PI * v.deltaOpz / 180).v;
        const bool forza = linea.forzato && E == 0;
        const Pretendi pretendi(s.tavolo, Specie::Diurna, linea.dichiarata.v);
        Catena catena(s.tavolo, linea.strato);
        for (const SenCos &t : ore) {
            proietta(t, tanD, x, y);
            const Valore W = y - tanS * (x - a) - b;
            const bool lato = forza || (linea.lato > 0 ? W > 0 : linea.lato < 0 && W < 0);
            catena.punto(x, y, lato && passa(x, y), linea.colore);
        }
    }
}

void TracciaEquinoziale(Sessione &s) {
    const Cornice cornice = LeggiCornice(s);
    const Sbarramento passa(cornice, s.v);
    const Proiezione proietta(s.v);
    const Pretendi pretendi(s.tavolo, Specie::Equinoziale);
    Catena catena(s.tavolo, "equinox");
    Reale x, y;
    for (const SenCos &t : giornata(s.v.diffLong)) {
        proietta.equinozio(t, x, y);
        catena.punto(x, y, passa(x, y), QB(9));
    }
}

}  // namespace ombrelia::direct
