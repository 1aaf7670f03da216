// Each kind of line as a path of the Sun.
#include "certificato/corrette.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "certificato/cielo.h"
#include "certificato/tracciato.h"
#include "core/angoli.h"

namespace ombrelia {

using ombra::Punto;
using ombra::Vettore;

namespace {

constexpr double RAD = ombra::RADIANTI, MEZZO_GIRO = std::numbers::pi, ORA = 15 * RAD;
// The Sun of a line on the horizon itself stands a tenth of a second of arc above it.
constexpr double ORLO = 5e-7;

// What one feature is drawn with.
struct Corredo {
    Sessione &s;
    const Attesa &attesa;
    Lettura letto;
    Scena scena = Scena(s, letto);
    bool punti;  // the engine would draw dots

    [[nodiscard]] Pennello tratto(const LineaAttesa &l) const { return {l.colore, l.strato, punti}; }
    void percorso(const LineaAttesa &l, Specie specie, double valore, const Percorso &p, double da, double a, int passi,
                  bool annua) const {
        const Pretendi pretendi(s.tavolo, specie, valore);
        Traccia(s.tavolo, scena, p, da, a, passi, tratto(l), annua);
    }
    // Along the year, or a part of it, at an hour angle that follows the declination; none where there is none.
    template <typename Angolo>
    void lungoLAnno(const LineaAttesa &l, Specie specie, double valore, Angolo angolo, double da = -SOLSTIZIO,
                    double a = SOLSTIZIO) const {
        percorso(
            l, specie, valore,
            [&angolo](double delta) -> std::optional<Vettore> {
                const std::optional<double> t = angolo(delta);
                if (!t) return {};
                return ombra::PianoMontato::sole(*t, delta);
            },
            da, a, 48, false);
    }
    // Along a vertical circle, by altitude.
    void lungoIlVerticale(const LineaAttesa &l, Specie specie, double valore, double azimut) const {
        const ombra::PianoMontato &piano = scena.piano();
        const Vettore verso = std::cos(azimut) * piano.sud() + std::sin(azimut) * Vettore{0, 1, 0};
        percorso(
            l, specie, valore,
            [&](double h) -> std::optional<Vettore> { return std::cos(h) * verso + std::sin(h) * piano.zenit(); }, 0,
            MEZZO_GIRO / 2, 48, true);
    }
};

// --- hours -----------------------------------------------------------------------------------------------------------

void ore(const Corredo &d) {
    std::vector<double> fatte;
    const auto traccia = [&](const LineaAttesa &l, double valore) {
        // Quarters and halves come after the hours and run over them; so does midnight seen from its other side.
        const double ora = std::fmod(valore + 24, 24);
        const auto stessa = [&](double f) { return std::fabs(f - ora) < 1e-9; };
        if (std::any_of(fatte.begin(), fatte.end(), stessa)) return;
        fatte.push_back(ora);
        const double t = d.scena.angolo(ora, d.letto.fuso);
        d.lungoLAnno(l, Specie::Ora, valore, [t](double) -> std::optional<double> { return t; });
    };
    const auto &linee = d.attesa.linee;
    for (const LineaAttesa &l : linee) traccia(l, l.valore);
    // A wall has all the hours of the day; the quarters that its engine counts stop one short of the turn.
    if (d.attesa.motore != Motore::Verticale || linee.size() < 2) return;
    const double passo = linee.back().valore - linee[linee.size() - 2].valore;
    if (passo > 1e-3)
        for (double ora = 0; ora < 24 - 1e-9; ora += passo) traccia(linee.back(), ora);
}

std::optional<double> daTramonto(double latitudine, double delta, double ore) {
    const auto h0 = ombra::semiarco(latitudine, delta);
    if (!h0 || !(*h0 > 2 * ORLO) || ore < -1e-9 || ore * ORA > 2 * *h0 + 1e-9) return {};
    return std::clamp(*h0 - ore * ORA, -*h0 + ORLO, *h0 - ORLO);
}

// The declinations on which the Sun rises and sets and the day has that many hours. Near a pole they are a few days only.
std::pair<double, double> giorniDa(double latitudine, double ore) {
    const double q = std::tan(std::fabs(latitudine)), limite = std::atan(1 / q);
    const double lungo = std::atan(-std::cos(std::min(ore, 24.0) / 2 * ORA) / q);
    const double da = std::clamp(ore > 0 ? lungo : -limite, -SOLSTIZIO, SOLSTIZIO), a = std::min(limite, SOLSTIZIO);
    return latitudine < 0 ? std::pair(-a, -da) : std::pair(da, a);
}

void stagionale(const Corredo &d, const LineaAttesa &l, double k) {
    const double lat = d.scena.latitudine();
    const Specie specie = d.attesa.specie;
    const double ore = specie == Specie::Italica ? 24 - k : specie == Specie::Babilonica ? k : 0;
    const auto [da, a] = giorniDa(lat, ore);
    if (!(da < a)) return;
    d.lungoLAnno(
        l, specie, k,
        [=](double delta) -> std::optional<double> {
            if (specie == Specie::Italica) return daTramonto(lat, delta, ore);
            if (specie == Specie::Babilonica) {
                const auto t = daTramonto(lat, delta, ore);
                return t ? std::optional(-*t) : t;
            }
            const auto h0 = ombra::semiarco(lat, delta);
            if (!h0 || !(*h0 > 2 * ORLO)) return {};
            return std::clamp(*h0 * (k / 6 - 1), -*h0 + ORLO, *h0 - ORLO);
        },
        da, a);
}

// The hours that the longest day has beyond those an engine draws, unless the user chose his own first and last hour.
std::vector<double> oreMancanti(const Corredo &d) {
    const bool italiche = d.attesa.specie == Specie::Italica;
    const bool scelte = d.attesa.motore == Motore::Diretta &&
                        (NumeroDi(d.letto.inizio) != (italiche ? 13 : 0) || NumeroDi(d.letto.fine) != (italiche ? 24 : 12));
    const auto &linee = d.attesa.linee;
    std::vector<double> mancanti;
    if (scelte || linee.size() < 2) return mancanti;
    const double passo = linee[1].valore - linee[0].valore;
    const double lunghezza = 2 * d.scena.semiarcoMassimo() / ORA;
    if (!(passo > 1e-3)) return mancanti;
    if (italiche)
        for (double k = linee.front().valore - passo; k >= 24 - lunghezza - 1e-9; k -= passo) mancanti.push_back(k);
    else
        for (double k = linee.back().valore + passo; k <= lunghezza + 1e-9; k += passo) mancanti.push_back(k);
    return mancanti;
}

void giorno(const Corredo &d, const LineaAttesa &l, Specie specie, double gradi) {
    const double delta = gradi * RAD;
    if (std::fabs(gradi) > SOLSTIZIO_GRADI + 0.005) return;  // no Sun there
    d.percorso(
        l, specie, gradi, [delta](double t) -> std::optional<Vettore> { return ombra::PianoMontato::sole(t, delta); },
        -MEZZO_GIRO, MEZZO_GIRO, 96, false);
}

void stagionali(const Corredo &d) {
    for (const LineaAttesa &l : d.attesa.linee) stagionale(d, l, l.valore);
    if (d.attesa.specie == Specie::Temporaria || d.attesa.linee.empty()) return;
    for (const double k : oreMancanti(d)) stagionale(d, d.attesa.linee.front(), k);
}

// --- days ------------------------------------------------------------------------------------------------------------

// Whether the day of choice is one of those that are drawn beside it.
bool giaDelleAltre(const Corredo &d, const LineaAttesa &l) {
    const DialInputs &in = d.s.in;
    const bool muro = d.attesa.motore == Motore::Verticale && l.strato == "Diurna opzionale";
    const bool analitica = d.attesa.motore == Motore::Analitica && d.attesa.linee.size() == 2 && in.Ck_DayLightCurves == 1;
    if (!muro && !analitica) return false;
    const double v = std::fabs(l.valore);
    if (std::fabs(v - SOLSTIZIO_GRADI) < 0.006) return true;
    return (analitica || in.ckFunzione != 1) && (std::fabs(v - 20) < 0.006 || std::fabs(v - 11.5) < 0.006);
}

void giorni(const Corredo &d) {
    std::vector<double> fatti;
    const DialInputs &in = d.s.in;
    if (d.attesa.specie == Specie::Diurna && in.ck_Equinoziale == 1) fatti.push_back(0);
    for (const LineaAttesa &l : d.attesa.linee) {
        if (giaDelleAltre(d, l)) continue;
        // A southern run of the direct engine would draw each on the layer of the opposite one, but for the chosen day.
        const bool opposta = d.attesa.motore == Motore::Diretta && d.scena.posa().australe && l.strato.starts_with("delta ");
        const double gradi = opposta ? -l.valore : l.valore;
        const auto stesso = [&](double f) { return std::fabs(f - gradi) < 0.002; };
        if (std::any_of(fatti.begin(), fatti.end(), stesso)) continue;
        fatti.push_back(gradi);
        giorno(d, l, gradi == 0 ? Specie::Equinoziale : Specie::Diurna, gradi);
    }
}

// --- altitudes, azimuths, prayer -------------------------------------------------------------------------------------

void almucantarat(const Corredo &d) {
    const ombra::PianoMontato &piano = d.scena.piano();
    // The ring begins and ends behind the plane, where it is not seen.
    const double dietro = d.scena.posa().quadrante.declinazione - MEZZO_GIRO;
    std::vector<double> fatte;
    for (const LineaAttesa &l : d.attesa.linee) {
        if (std::find(fatte.begin(), fatte.end(), l.valore) != fatte.end()) continue;  // morning and afternoon are one
        fatte.push_back(l.valore);
        if (!(l.valore < 90)) continue;  // the zenith is a point
        const double h = l.valore * RAD;
        d.percorso(
            l, Specie::Almucantarat, l.valore,
            [&piano, h](double a) -> std::optional<Vettore> {
                return std::sin(h) * piano.zenit() + std::cos(h) * (std::cos(a) * piano.sud() + std::sin(a) * Vettore{0, 1, 0});
            },
            dietro, dietro + 2 * MEZZO_GIRO, 96, true);
    }
}

void asr(const Corredo &d, const LineaAttesa &l) {
    const double lat = d.scena.latitudine();
    d.lungoLAnno(l, Specie::Asr, 1, [lat](double delta) -> std::optional<double> {
        const double distanza = std::fabs(lat - delta);
        if (!(distanza < MEZZO_GIRO / 2)) return {};
        const double h = std::atan2(1, 1 + std::tan(distanza));
        const double c = (std::sin(h) - std::sin(lat) * std::sin(delta)) / (std::cos(lat) * std::cos(delta));
        if (!(std::fabs(c) <= 1)) return {};
        return std::acos(c);
    });
}

void qibla(const Corredo &d) {
    const Posa &p = d.scena.posa();
    const double q =
        Rilevamento(p.quadrante.latitudine, p.longitudine, NumeroDi(d.letto.qLat) * RAD, NumeroDi(d.letto.qLon) * RAD);
    if (d.attesa.rilevamento) *d.attesa.rilevamento = q * ombra::GRADI;
    if (d.attesa.linee.empty()) return;
    d.lungoIlVerticale(d.attesa.linee.back(), Specie::Qibla, 0, q);
}

// --- mean time -------------------------------------------------------------------------------------------------------

void lemniscata(const Corredo &d) {
    for (const LineaAttesa &l : d.attesa.linee) {
        const TempoMedio medio(d.scena.posa(), AnnoDelSole(d.s), l.valore);
        d.percorso(
            l, Specie::Analemma, l.valore,
            [&medio](double giorno) -> std::optional<Vettore> {
                const auto [t, delta] = medio.sole(giorno);
                return ombra::PianoMontato::sole(t, delta);
            },
            0, GIORNI_DELL_ANNO, 122, false);
    }
}

// --- figures ---------------------------------------------------------------------------------------------------------

// Hour angle of the plane's own meridian: where the style's shadow falls on the substyle.
std::optional<double> oraSustilare(const ombra::PianoMontato &piano) {
    const Vettore &n = piano.normale();
    if (std::hypot(n.m, n.w) < 1e-9) return {};  // the style stands square to the plane
    return std::atan2(n.w, n.m);
}

void mezzogiorno(const Corredo &d, const LineaAttesa &l) {
    const bool traLeOre =
        d.s.in.chkOreAstronomiche == 1 && (!d.letto.fuso || d.scena.posa().longitudine == d.scena.posa().meridiano);
    if (!traLeOre) d.lungoLAnno(l, Specie::Mezzogiorno, 0, [](double) -> std::optional<double> { return 0; });
}

void sustilare(const Corredo &d) {
    const auto t = oraSustilare(d.scena.piano());
    if (!t) return;
    for (const LineaAttesa &l : d.attesa.linee) d.lungoLAnno(l, d.attesa.specie, 0, [&](double) { return t; });
}

void orizzonte(const Corredo &d) {
    const ombra::Retta r = d.scena.piano().orizzonte();
    if ((r.a == 0 && r.b == 0) || d.attesa.linee.empty()) return;
    const LineaAttesa &l = d.attesa.linee.front();
    const double lunga = std::hypot(d.scena.xMax - d.scena.xMin, d.scena.yMax - d.scena.yMin) +
                         std::hypot(d.scena.xMin, d.scena.yMin) + std::fabs(r.c);
    const Punto a{r.a * r.c - r.b * lunga, r.b * r.c + r.a * lunga}, b{r.a * r.c + r.b * lunga, r.b * r.c - r.a * lunga};
    const Pretendi pretendi(d.s.tavolo, Specie::Orizzonte);
    TracciaSegmento(d.s.tavolo, d.scena, d.scena.nellaLista(a), d.scena.nellaLista(b), d.tratto(l));
}

// Where an angle of a label stands: on the summer solstice of the site, in front of the plane and by day.
void etichette(const Corredo &d) {
    const double lat = d.scena.latitudine(), delta = SOLSTIZIO;
    const auto h0 = ombra::semiarco(lat, delta);
    if (!h0) return;
    const Colore prima = d.s.tavolo.ForeColor;
    for (const LineaAttesa &l : d.attesa.linee) {
        const double k = l.valore;
        const double t = d.attesa.di == Specie::Italica      ? *h0 - (24 - k) * ORA
                         : d.attesa.di == Specie::Babilonica ? k * ORA - *h0
                                                             : *h0 * (k / 6 - 1);
        const Vettore sole = ombra::PianoMontato::sole(std::clamp(t, -*h0 + ORLO, *h0 - ORLO), delta);
        if (std::fabs(t) > *h0 + ORLO || !d.scena.visibile(sole)) continue;
        const auto p = d.scena.punto(sole);
        if (!p) continue;
        d.s.tavolo.ForeColor = l.colore;
        d.s.tavolo.Scritta(l.strato, p->x, p->y);
    }
    d.s.tavolo.ForeColor = prima;
}

// The triangle of gnomon, substyle and polar style, folded into the plane about the substyle: the gnomon square to it.
// Lines: style, gnomon, substyle where the engine has it; of the vertical engine those of its own table.
void triangolo(const Corredo &d) {
    constexpr double LONTANO = 100;  // metres: a centre beyond is not drawn
    const ombra::PianoMontato &piano = d.scena.piano();
    const double g = d.scena.posa().quadrante.gnomone;
    const double px = piano.destra().p, py = piano.alto().p, l = std::hypot(px, py);
    // To the right of the foot as drawn; straight to the right where the style stands square to the plane.
    Punto punta = d.scena.nellaLista(l > 1e-12 ? Punto{-py / l * g, px / l * g} : Punto{g, 0});
    if (punta.x < 0) punta = {-punta.x, -punta.y};
    Tavolo &t = d.s.tavolo;
    const auto &linee = d.attesa.linee;
    std::optional<Pretendi> pretendi(std::in_place, t, Specie::Stilo);
    const auto segmento = [&](std::size_t i, const Punto &a, const Punto &b) {
        if (i < linee.size()) TracciaSegmento(t, d.scena, a, b, {linee[i].colore, linee[i].strato}, true);
    };
    const auto c = piano.centro();
    const bool vicino = c && std::hypot(c->x, c->y) < LONTANO;
    const Punto centro = vicino ? d.scena.nellaLista(*c) : Punto{}, piede;
    if (d.attesa.motore == Motore::Analitica) {
        t.TracciaPunto(0, PIEDE, BIANCO);
    } else {
        if (vicino) t.TracciaPunto(centro.x, centro.y, ROSSO);
        t.TracciaPunto(punta.x, punta.y, ROSSO);
    }
    if (d.attesa.motore == Motore::Verticale) {
        enum { STILO_LUNGO, FALSO, SOTTO_LUNGO, STILO, SOTTO, MERIDIANA, ORTOSTILO };
        // Lengthened beyond the foot by txtSUBSTYLE: a higher triangle with the same style.
        const double allungo = NumeroDi(d.letto.allungo) * d.scena.posa().unita, r = std::hypot(centro.x, centro.y);
        if (vicino && l > 1e-12 && allungo != 0) {
            const double k = -allungo / r, alto = (r + allungo) / r;
            const Punto radice{k * centro.x, k * centro.y}, cima{radice.x + alto * punta.x, radice.y + alto * punta.y};
            segmento(STILO_LUNGO, centro, cima);
            segmento(FALSO, radice, cima);
            segmento(SOTTO_LUNGO, piede, radice);
        }
        if (vicino) segmento(STILO, punta, centro);
        if (vicino && l > 1e-12) segmento(SOTTO, centro, piede);
        segmento(ORTOSTILO, punta, piede);
        pretendi.reset();
        const bool gia = d.s.in.ck_Lemniscate == 1 && d.s.in.ckFunzione == 1;
        if (!gia) mezzogiorno(d, linee[MERIDIANA]);
        return;
    }
    if (vicino) segmento(0, punta, centro);
    segmento(1, punta, piede);
    if (vicino && l > 1e-12) segmento(2, centro, piede);
}

// The stretch of a day line between the two branches of the analemma.
void tacche(const Corredo &d) {
    std::vector<std::pair<double, double>> annata;
    const TempoMedio medio(d.scena.posa(), AnnoDelSole(d.s), 12);
    for (int i = 0; i <= 366; ++i) annata.push_back(medio.sole(i));
    for (const LineaAttesa &l : d.attesa.linee) {
        if (l.valore == 0 && d.s.in.ck_Equinoziale == 1) continue;
        const double delta = l.valore * RAD;
        std::vector<double> angoli;
        auto prima = annata[0];
        for (const auto &ora : annata) {
            if ((prima.second < delta) != (ora.second < delta)) {
                const double k = (delta - prima.second) / (ora.second - prima.second);
                angoli.push_back(prima.first + k * (ora.first - prima.first));
            }
            prima = ora;
        }
        if (angoli.size() < 2) continue;
        d.percorso(
            l, Specie::Tacca, l.valore,
            [delta](double t) -> std::optional<Vettore> { return ombra::PianoMontato::sole(t, delta); },
            std::min(angoli[0], angoli[1]), std::max(angoli[0], angoli[1]), 8, false);
    }
}

// Which features the engines draw as dots.
bool aPunti(const Lettura &letto, const Attesa &a) {
    switch (a.specie) {
        case Specie::Almucantarat:
        case Specie::Azimut:
        case Specie::Asr:
            return true;
        case Specie::Qibla:
            return a.motore != Motore::Diretta || std::fabs(NumeroDi(letto.inc)) != 90;
        case Specie::OraSustilare:
            return a.motore == Motore::Verticale;
        case Specie::Equinoziale:
            return a.motore == Motore::Analitica || (a.motore == Motore::Verticale && NumeroDi(letto.dec) == 0);
        case Specie::Diurna:
        case Specie::Italica:
        case Specie::Babilonica:
        case Specie::Analemma:
        case Specie::Sustilare:
            return a.motore == Motore::Analitica;
        case Specie::Ora:
        case Specie::Temporaria:
        case Specie::Mezzogiorno:
        case Specie::Orizzonte:
        case Specie::Stilo:
        case Specie::Tacca:
        case Specie::Etichetta:
        case Specie::Nessuna:
            break;
    }
    return false;
}

}  // namespace

OmbreVere::Dove OmbreNellaLista(const Sessione &s) {
    return [scena = Scena(s)](double t, double delta) -> std::optional<std::pair<double, double>> {
        const Vettore sole = ombra::PianoMontato::sole(t, delta);
        const auto p = scena.illuminato(sole) ? scena.punto(sole) : std::nullopt;
        if (!p) return {};
        return std::pair(p->x, p->y);
    };
}

bool TracciaVera(Sessione &s, const Attesa &attesa) {
    const Lettura letto(s.in);
    const Corredo d{.s = s, .attesa = attesa, .letto = letto, .punti = aPunti(letto, attesa)};
    if (attesa.specie == Specie::Qibla) {
        qibla(d);
        return true;
    }
    if (attesa.specie == Specie::Nessuna || (attesa.specie == Specie::Etichetta && attesa.di == Specie::Ora)) return false;
    if (!d.scena.esiste()) return true;
    switch (attesa.specie) {
        case Specie::Ora:
            ore(d);
            break;
        case Specie::Diurna:
        case Specie::Equinoziale:
            giorni(d);
            break;
        case Specie::Tacca:
            tacche(d);
            break;
        case Specie::Italica:
        case Specie::Babilonica:
        case Specie::Temporaria:
            stagionali(d);
            break;
        case Specie::Almucantarat:
            almucantarat(d);
            break;
        case Specie::Azimut:
            for (const LineaAttesa &l : attesa.linee) d.lungoIlVerticale(l, Specie::Azimut, l.valore, l.valore * RAD);
            break;
        case Specie::Asr:
            if (!attesa.linee.empty()) asr(d, attesa.linee.front());
            break;
        case Specie::Analemma:
            lemniscata(d);
            break;
        case Specie::Mezzogiorno:
            for (const LineaAttesa &l : attesa.linee) mezzogiorno(d, l);
            break;
        case Specie::OraSustilare:
        case Specie::Sustilare:
            sustilare(d);
            break;
        case Specie::Orizzonte:
            orizzonte(d);
            break;
        case Specie::Stilo:
            triangolo(d);
            break;
        case Specie::Etichetta:
            etichette(d);
            break;
        case Specie::Qibla:
        case Specie::Nessuna:
            return false;
    }
    return true;
}

}  // namespace ombrelia
