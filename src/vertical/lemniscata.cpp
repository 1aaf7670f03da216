// The lemniscate of the vertical engine, a mean noon of the zone meridian through a year of days, and what ckFunzione
// adds to it: the day marks, the zodiac and the straight noon line.
#include <array>
#include <optional>

#include "core/conteggio.h"
#include "glyphs/zodiaco.h"
#include "vertical/piana.h"
#include "vertical/sfera.h"

namespace ombrelia::vertical {

namespace {

// -1 when the plane that was transformed or reported last was horizontal.
double segnoPiano(const Variabili &v) { return v.incR2 == PI / 2 ? -1 : 1; }

// Extremes of the equation of time on a day of declination delta (degrees), minutes of time.
struct Tacche {
    double delta, Emax, Emin;
};

void traccia(Sessione &s, const Tacche &t) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    v.deltaOpz = t.delta;
    const Valore HrMax = t.Emax * 15 * PI / (60.0 * 180) - v.corrLong;
    const Valore HrMin = t.Emin * 15 * PI / (60.0 * 180) - v.corrLong;
    constexpr int PARTI = 4;
    const Valore parte = (HrMax - HrMin) / PARTI;
    const Pretendi pretendi(s.tavolo, Specie::Diurna, t.delta);

    Sfera sfera(v);
    const Sfera::Giorno giorno = sfera.giorno(t.delta);
    Reale Hr = HrMin, x, y, xPrima, yPrima;
    bool dentroPrima = false;
    for (int i = 0; i <= PARTI; ++i) {
        sfera.puntoOra(Orario(Hr), giorno, x, y);
        // The horizon is the one that the lemniscate left.
        const bool dentro = y < v.yOriz && cornice.contiene(x, y);
        if (dentro && dentroPrima) s.tavolo.xLine(xPrima, -yPrima, x, -y, QB(14));
        xPrima = x;
        yPrima = y;
        dentroPrima = dentro;
        Hr = Hr + parte;
    }
}

}  // namespace

void TracciaLemniscata(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    const double segno = segnoPiano(v);
    v.yOriz = OrdinataOrizzonte(v, segno);
    if (v.flagTrasformato != 1 && v.flagVerticale == 1) v.lon = v.lonEq;
    v.lonPiu15 = v.lon + 15;
    v.corrLong = PI * v.lonPiu15 / 180;  // whatever oraFuso says
    v.y0 = tan(v.altStilo) * v.gn;

    constexpr int GIORNI = 440;
    std::array<Reale, GIORNI + 1> x, y;
    const IdNome strato = s.tavolo.nome("Lemniscata");
    const Valore cosLat = cos(v.latR), senLatA = sin(v.latR * segno), senLat = segno * sin(v.latR);
    Sfera sfera(v);
    std::optional<Pretendi> pretendi(std::in_place, s.tavolo, Specie::Analemma, 12);
    for (const double d : Conteggio(-80, 360, 360 / 365.2422)) {
        const SoleMedio sole = SoleAllaLongitudine(PI * d / 180);
        const Orario ora(sole.Et - v.corrLong);
        const double cosD = std::cos(sole.D);
        sfera.A = Atn(Valore(segno * ora.sen) / (senLatA * ora.cos - cosLat * std::tan(sole.D)));
        if (sfera.quadranteErrato(ora)) sfera.mendaMuro();
        sfera.h = ArcSin(cosLat * cosD * ora.cos + senLat * std::sin(sole.D));
        // The day, a half to the even one: where two samples share it the later stands.
        const auto k = static_cast<std::size_t>(std::nearbyint(d + 80));
        sfera.punto(x[k], y[k]);
        if (k == 0 || !(y[k] < v.yOriz) || Sgn(x[k]) != Sgn(x[k - 1]) || !cornice.contiene(x[k], y[k])) continue;
        s.tavolo.xLine(x[k], -y[k], x[k - 1], -y[k - 1], QB(13), strato);
    }
    pretendi.reset();  // the marks claim for themselves
    if (s.in.ckFunzione == 1) TaccheMeno20(s);
}

void TaccheMeno20(Sessione &s) {
    traccia(s, {-20, 14, -10.98});
    TaccheMeno115(s);
}
void TaccheMeno115(Sessione &s) {
    traccia(s, {-11.5, 15.65, -13.85});
    TaccheEquinozio(s);
}
void TaccheEquinozio(Sessione &s) {
    traccia(s, {0, 7.3666, -7.28});
    TacchePiu115(s);
}
void TacchePiu115(Sessione &s) {
    traccia(s, {11.5, 1.0666, -2.466});
    TacchePiu20(s);
}
void TacchePiu20(Sessione &s) {
    traccia(s, {20, 3.58, -6.25});
    if (s.in.ckZodiac == 1) DisegnaZodiaco(s);
    RettaMezzogiorno(s);
}

void RettaMezzogiorno(Sessione &s) {
    Variabili &v = s.v;
    (void)LeggiCornice(s);
    const Reale L0 = v.unita * Val(s.in.TxtStilo);
    v.oraFuso = s.in.ck_Etna == 1 ? 1 : 0;
    v.yOriz = segnoPiano(v) * v.unita * tan(v.iz_o) * L0;  // unita twice: meant
    v.lon = Val(s.in.txtLonG);
    const Orario ora(PI * (v.oraFuso * 180 * v.angOraLong / PI) / 180);
    Sfera sfera(v);
    const auto punto = [&](double delta, Reale &x, Reale &y) {
        v.deltaOpz = delta;
        sfera.puntoMuro(ora, sfera.giorno(delta), x, y);
    };
    Reale x2, y2;
    punto(23.445, v.x1, v.y1);
    punto(-23.445, x2, y2);
    const Pretendi pretendi(s.tavolo, Specie::Mezzogiorno);
    // A wall's points lie below its horizon, so this seldom passes: meant.
    if (v.yOriz <= y2) s.tavolo.xLine(v.x1, -v.y1, x2, -y2, QB(12));
}

}  // namespace ombrelia::vertical
