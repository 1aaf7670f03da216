// Day lines and the equinoctial of the direct engine: sweeps of the hour angle at a fixed declination.
#include "direct/corsa.h"

namespace ombrelia::direct {

namespace {

// A day line beside its claim. The offsets of a thousandth from the claim are meant.
struct Diurna {
    double delta, dichiarata;
    bool intermedia;  // only with ckFunzione
    int lato;         // of the branch kept: 1 beyond the equinoctial, -1 this side of it
    bool forzato;     // kept whatever the side where the substyle lies level; the last has no such case, as meant
    Colore colore;
    std::string_view strato;
};
constexpr Diurna DIURNE[] = {
    {-OBLIQUITA, -OBLIQUITA, false, 1, true, GIALLO, "delta -23.445°"},
    {-20.001, -DELTA_SEGNI, true, 1, true, MAGENTA, "delta -20°"},
    {20.001, DELTA_SEGNI, true, -1, true, MAGENTA, "delta 20°"},
    {-11.501, -DELTA_SEGNI_VICINI, true, 1, true, CIANO, "delta -11.5°"},
    {11.501, DELTA_SEGNI_VICINI, true, -1, false, CIANO, "delta 11.5°"},
};
constexpr std::string_view STRATO_OPZIONALE = "Delta opt";

}  // namespace

void LineeDiurne(const Corsa &c, LineeAttese &linee) {
    const bool intermedie = c.s.in.ckFunzione == 1;
    const Reale verso = c.v.segnoLat;
    for (const Diurna &d : DIURNE)
        if (!d.intermedia || intermedie) linee.push_back({d.delta, (d.dichiarata * verso).v, d.strato, d.colore});
    // A whole ten-thousandth more than asked for: meant.
    const Valore opzionale = c.letto.delta * verso * 1.0001;
    linee.push_back({opzionale.v, c.letto.delta.v, STRATO_OPZIONALE, BLU});
}

void TracciaLineeDiurne(Corsa &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    const Variabili &v = c.v;
    const Piano &p = c.piano();
    // The half-plane beyond the equinoctial, to tell the branches of the conics: the substyle's angle S, the elevation
    // Hs of the style, and (a, b) where the substyle meets the equinoctial.
    const Reale E = p.divisoreSustilare();
    const Reale tanS = p.sg / E;
    const Reale S = Atn(tanS);
    const Reale Hs = ArcSin(p.senStilo());
    const Reale a = -v.gn * tan(Hs) * sin(S) * v.unita;
    const Reale b = v.gn * tan(Hs) * cos(S) * v.unita;

    const Sbarramento passa(c.cornice, v);
    const Proiezione proietta(c.piano());
    const std::vector<SenCos> &ore = c.giorno.con(v.diffLong);
    Reale x, y;
    Reale gradi = v.deltaOpz;  // a declination of choice without a value takes that of the line before
    for (const LineaAttesa &l : linee) {
        const Valore delta = l.parametro;
        int lato = delta < 0 ? 1 : delta > 0 ? -1 : 0;
        bool forza = false;
        for (const Diurna &d : DIURNE) {
            if (d.strato != l.strato) continue;
            lato = d.lato;
            forza = d.forzato && E == 0;
        }
        gradi = delta;
        const double tanD = tan(PI * gradi / 180).v;
        const Pretendi pretendi(s.tavolo, Specie::Diurna, l.valore);
        Catena catena(s.tavolo, l.strato);
        for (const SenCos &t : ore) {
            proietta(t, tanD, x, y);
            const Valore W = y - tanS * (x - a) - b;
            catena.punto(x, y, (forza || (lato > 0 ? W > 0 : lato < 0 && W < 0)) && passa(x, y), l.colore);
        }
    }
    LasciaDeclinazione(s.v, gradi);
}

void TracciaEquinoziale(Corsa &c, const LineeAttese &linee) {
    const Sbarramento passa(c.cornice, c.v);
    const Proiezione proietta(c.piano());
    for (const LineaAttesa &l : linee) {
        const Pretendi pretendi(c.s.tavolo, Specie::Equinoziale);
        Catena catena(c.s.tavolo, l.strato);
        Reale x, y;
        for (const SenCos &t : c.giorno.con(c.v.diffLong)) {
            proietta.equinozio(t, x, y);
            catena.punto(x, y, passa(x, y), l.colore);
        }
    }
}

}  // namespace ombrelia::direct
