// True lines: straight ones by planes through the tip, day lines and almucantars as cones, the rest by hour angle and
// declination.
#include "certificato/lineavera.h"

#include <algorithm>
#include <limits>

#include "certificato/cielo.h"

namespace ombrelia {

using ombra::PianoMontato;
using ombra::Punto;
using ombra::RADIANTI;
using ombra::Retta;
using ombra::Vettore;

namespace {

constexpr double PI_ = std::numbers::pi;
constexpr double INFINITO = std::numeric_limits<double>::infinity();
constexpr double FINE_ANNO = 23.46 * RADIANTI;  // beyond it no shadow is allowed for
constexpr double PASSO = 0.0005;                // metres between samples
constexpr double RIGA = 0.0001;                 // metres of grace at the horizon: the width of a stroke
constexpr int CAMPIONI_ANNO = 1464;

const Vettore POLO{0, 0, 1}, OVEST{0, 1, 0};

double norma(const Vettore &v) { return std::sqrt(v * v); }

// Where A s^2 + B s + C <= 0.
Intervalli sottoZero(double A, double B, double C) {
    if (A == 0) {
        if (B == 0) return C <= 0 ? Intervalli{{-INFINITO, INFINITO}} : Intervalli{};
        return B > 0 ? Intervalli{{-INFINITO, -C / B}} : Intervalli{{-C / B, INFINITO}};
    }
    const double d = B * B - 4 * A * C;
    if (d <= 0) return A > 0 ? Intervalli{} : Intervalli{{-INFINITO, INFINITO}};
    const double q = -(B + std::copysign(std::sqrt(d), B)) / 2;
    double s1 = q / A, s2 = q != 0 ? C / q : 0;
    if (s1 > s2) std::swap(s1, s2);
    if (A > 0) return {{s1, s2}};
    return {{-INFINITO, s1}, {s2, INFINITO}};
}

}  // namespace

double Lunghezza(const Intervalli &t) {
    double l = 0;
    for (const auto &[a, b] : t) l += b - a;
    return l;
}

void UnisciIntervalli(Intervalli &t) {
    if (!std::is_sorted(t.begin(), t.end())) std::sort(t.begin(), t.end());
    std::size_t k = 0;
    for (std::size_t i = 1; i < t.size(); ++i) {
        if (t[i].first <= t[k].second) t[k].second = std::max(t[k].second, t[i].second);
        else t[++k] = t[i];
    }
    if (!t.empty()) t.resize(k + 1);
}

Intervalli Intersezione(const Intervalli &a, const Intervalli &b) {
    Intervalli r;
    for (std::size_t i = 0, k = 0; i < a.size() && k < b.size();) {
        const double da = std::max(a[i].first, b[k].first), fino = std::min(a[i].second, b[k].second);
        if (da < fino) r.emplace_back(da, fino);
        a[i].second < b[k].second ? ++i : ++k;
    }
    return r;
}

LineaVera::LineaVera(const DatiCertificato &dati, Specie specie, double valore)
    : dati_(dati), piano_(dati.posa.quadrante), valore_(valore) {
    const ombra::QuadranteMontato &q = dati.posa.quadrante;
    const double s = std::copysign(1, q.gnomone);
    base_ = std::fabs(q.gnomone) * piano_.normale();
    destra_ = s * piano_.destra();
    alto_ = s * piano_.alto();
    orizzonte_ = piano_.orizzonte();
    const double phi = q.latitudine;
    // The Sun's hour circle; the meeting of the horizon with the equator's turn by an angle.
    const auto oraria = [](double t) { return Vettore{-std::sin(t), std::cos(t), 0}; };
    const auto girato = [&](double t) {
        return Vettore{std::cos(phi) * std::cos(t), std::cos(phi) * std::sin(t), std::sin(phi)};
    };
    switch (specie) {
        case Specie::Ora: {
            const double t = (valore - 12) * 15 * RADIANTI - dati.scartoOra;
            const Vettore lato{std::cos(t), std::sin(t), 0};
            retta(oraria(t), &lato, false);
            break;
        }
        case Specie::Equinoziale:
            retta(POLO, nullptr, false);
            break;
        case Specie::Italica:
        case Specie::Babilonica: {
            // The horizon carried along by the Sun since it set or rose.
            const double t = valore * 15 * RADIANTI;
            const Vettore lato = (specie == Specie::Italica ? 1.0 : -1.0) * oraria(t);
            retta(girato(t), &lato, true);
            break;
        }
        case Specie::Azimut:
        case Specie::Qibla: {
            const double a = specie == Specie::Azimut
                                 ? valore * RADIANTI
                                 : Rilevamento(q.latitudine, dati.posa.longitudine, dati.qiblaLat, dati.qiblaLon);
            const Vettore lato = std::cos(a) * piano_.sud() + std::sin(a) * OVEST;
            retta(std::cos(a) * OVEST - std::sin(a) * piano_.sud(), &lato, specie == Specie::Qibla);
            break;
        }
        case Specie::Mezzogiorno:
            costruzione_ = true;
            retta(OVEST, nullptr, false);
            break;
        case Specie::OraSustilare:
        case Specie::Sustilare: {
            costruzione_ = true;
            const Vettore &n = piano_.normale();
            retta({-n.w, n.m, 0}, nullptr, false);
            break;
        }
        case Specie::Orizzonte:
            costruzione_ = true;
            retta(piano_.zenit(), nullptr, false);
            break;
        case Specie::Tacca:
            frammento_ = true;
            [[fallthrough]];
        case Specie::Diurna:
            legge_ = Legge::Conica;
            asse_ = POLO;
            seno_ = std::sin(valore * RADIANTI);
            campiona(-PI_, PI_, 96);
            break;
        case Specie::Almucantarat:
            legge_ = Legge::Conica;
            asse_ = piano_.zenit();
            seno_ = std::sin(valore * RADIANTI);
            campiona(-PI_, PI_, 96);
            break;
        case Specie::Temporaria:
            if (valore == 0 || valore == 12) {  // sunrise and sunset: either half of the horizon
                const Vettore lato = (valore == 0 ? -1.0 : 1.0) * OVEST;
                retta(piano_.zenit(), &lato, true);
                break;
            }
            [[fallthrough]];
        case Specie::Asr:
            legge_ = specie == Specie::Asr ? Legge::Asr : Legge::Temporaria;
            campiona(-SOLSTIZIO, SOLSTIZIO, 24);
            break;
        case Specie::Analemma:
            legge_ = Legge::Analemma;
            preparaAnalemma();
            campiona(0, CAMPIONI_ANNO, 122);
            break;
        case Specie::Stilo: {
            costruzione_ = true;
            forma_ = Andamento::Stilo;
            // The substyle, and the style folded into the plane about it on either side: through centre and tip, or along
            // the substyle at the gnomon's length where the style runs along the plane.
            const Vettore &n = piano_.normale();
            const Retta sus = piano_.retta({-n.w, n.m, 0});
            stilo_ = {sus};
            for (const double g : {q.gnomone, -q.gnomone}) {
                const Punto punta{sus.a * g, sus.b * g};
                if (const auto c = piano_.centro()) {
                    const double dx = punta.x - c->x, dy = punta.y - c->y, l = std::hypot(dx, dy);
                    stilo_.push_back({-dy / l, dx / l, (-dy * c->x + dx * c->y) / l});
                } else {
                    stilo_.push_back({sus.a, sus.b, g});
                }
            }
            break;
        }
        case Specie::Etichetta:
        case Specie::Nessuna:
            break;
    }
}

bool LineaVera::dentro(const Punto &p) const {
    return dati_.xMin <= p.x && p.x <= dati_.xMax && dati_.yMin <= p.y && p.y <= dati_.yMax;
}

void LineaVera::retta(const Vettore &normale, const Vettore *lato, bool soloLato) {
    forma_ = Andamento::Retta;
    legge_ = Legge::Lineare;
    retta_ = piano_.retta(normale);
    if (lato) lato_ = *lato;
    if (retta_.a == 0 && retta_.b == 0) return;
    // The Sun of punto(s) is along v - s w.
    const Vettore v = verso(punto(0)), w = -retta_.b * destra_ + retta_.a * alto_;
    const auto sopra = [&](const Vettore &n, double grazia) {  // stretches with (v - s w) n > -grazia
        return sottoZero(0, w * n, -(v * n) - grazia);
    };
    const auto anno = [&](double delta) {
        const double k = std::sin(delta) * std::sin(delta);
        return sottoZero(w.p * w.p - k * (w * w), 2 * (k * (v * w) - v.p * w.p), v.p * v.p - k * (v * v));
    };
    const Vettore &z = piano_.zenit();
    const double grazia = RIGA * std::hypot(z * destra_, z * alto_);
    lucenti_ = Intersezione(sopra(z, grazia), anno(FINE_ANNO));
    // A line that meets the horizon at a narrow angle ends there; one that is the horizon needs the grace.
    const bool orizzontale = norma(normale - (normale * z) * z) < 1e-9;
    Intervalli vere = Intersezione(sopra(z, orizzontale ? grazia : 0), anno(SOLSTIZIO));
    if (lato_) {
        const Intervalli da = sopra(*lato_, 1e-12);
        if (soloLato) lucenti_ = Intersezione(lucenti_, da);
        else opposti_ = Intersezione(lucenti_, sopra(-1.0 * *lato_, 0));
        vere = Intersezione(vere, da);
    }
    // Inside the frame: a s and b s between its sides.
    const Punto p0 = punto(0);
    Intervalli quadro{{-INFINITO, INFINITO}};
    const auto lati = [&](double p, double d, double minimo, double massimo) {
        quadro = Intersezione(quadro, sottoZero(0, d, p - massimo));
        quadro = Intersezione(quadro, sottoZero(0, -d, minimo - p));
    };
    lati(p0.x, -retta_.b, dati_.xMin, dati_.xMax);
    lati(p0.y, retta_.a, dati_.yMin, dati_.yMax);
    visibili_ = Intersezione(vere, quadro);
}

std::optional<Vettore> LineaVera::direzione(double u) const {
    const double phi = dati_.posa.quadrante.latitudine;
    if (legge_ == Legge::Conica) {
        const double c = std::sqrt(1 - seno_ * seno_);
        if (asse_.p == 1) return Vettore{c * std::cos(u), c * std::sin(u), seno_};
        return seno_ * asse_ + c * std::cos(u) * piano_.sud() + c * std::sin(u) * OVEST;
    }
    if (legge_ == Legge::Temporaria) {
        const auto h0 = ombra::semiarco(phi, u);
        if (!h0) return {};
        return PianoMontato::sole(*h0 * (valore_ / 6 - 1), u);
    }
    if (legge_ == Legge::Asr) {
        if (!(std::fabs(phi - u) < PI_ / 2)) return {};
        const double h = std::atan(1 / (valore_ + std::tan(std::fabs(phi - u))));
        const double c = (std::sin(h) - std::sin(phi) * std::sin(u)) / (std::cos(phi) * std::cos(u));
        if (!(std::fabs(c) <= 1)) return {};
        return PianoMontato::sole(std::acos(c), u);
    }
    const double k = std::clamp(u, 0.0, CAMPIONI_ANNO - 1e-9);
    const auto i = static_cast<std::size_t>(k);
    const GiornoAnalemma &a = anno_[i], &b = anno_[i + 1];
    const double f = k - static_cast<double>(i);
    return PianoMontato::sole(a.t + f * (b.t - a.t), a.delta + f * (b.delta - a.delta));
}

LineaVera::Campione LineaVera::campione(double u) const {
    const auto s = direzione(u);
    const bool fuori = !s || !(*s * piano_.normale() > 1e-9);
    if (fuori) return {u, {INFINITO, INFINITO}, false};
    const Punto p = *piano_.proietta(*s);
    // A day line's own declination may pass the solstice's by the little that engines add.
    const bool anno = std::fabs(s->p) <= std::sin(asse_.p == 1 ? FINE_ANNO : SOLSTIZIO + 1e-9);
    return {u, p, *s * piano_.zenit() > 0 && anno && dentro(p)};
}

void LineaVera::campiona(double da, double a, int parti) {
    forma_ = Andamento::Curva;
    Campione prima = campione(da);
    campioni_.push_back(prima);
    for (int i = 1; i <= parti; ++i) {
        const Campione dopo = campione(da + (a - da) * i / parti);
        dividi(prima, dopo, 0);
        prima = dopo;
    }
}

// Appends the samples behind a up to b.
void LineaVera::dividi(const Campione &a, const Campione &b, int livello) {
    const double dx = b.p.x - a.p.x, dy = b.p.y - a.p.y, l = std::hypot(dx, dy);
    const bool noti = l < INFINITO;  // false for no number too
    bool basta = livello >= 16 || (noti && l <= PASSO);
    if (!basta && !noti) basta = !a.visibile && !b.visibile && (livello >= 3 || (a.p.x == INFINITO && b.p.x == INFINITO));
    if (!basta && noti && !a.visibile && !b.visibile) {
        // Far from the frame by more than its own length.
        const double x0 = std::min(a.p.x, b.p.x) - l, x1 = std::max(a.p.x, b.p.x) + l;
        const double y0 = std::min(a.p.y, b.p.y) - l, y1 = std::max(a.p.y, b.p.y) + l;
        basta = x1 < dati_.xMin || x0 > dati_.xMax || y1 < dati_.yMin || y0 > dati_.yMax;
        if (livello >= 7) basta = true;
    }
    if (basta) {
        campioni_.push_back(b);
        return;
    }
    const Campione m = campione((a.u + b.u) / 2);
    dividi(a, m, livello + 1);
    dividi(m, b, livello + 1);
}

void LineaVera::preparaAnalemma() {
    const TempoMedio medio(dati_.posa, dati_.anno, valore_);
    anno_.reserve(CAMPIONI_ANNO + 1);
    for (const auto &[t, delta] : medio.annata(CAMPIONI_ANNO)) {
        GiornoAnalemma g{t, delta, {}, 0};
        // Behind the plane too: what is drawn there is the analemma's other side, and dark.
        const Vettore sole = PianoMontato::sole(g.t, g.delta);
        const auto p = piano_.proietta(sole);
        if (p && std::fabs(sole * piano_.normale()) > 1e-6) g.p = *p, g.lato = sole * piano_.normale() > 0 ? 1 : -1;
        anno_.push_back(g);
    }
}

// To the nearest chord between two samples, found by steps of eight and then one by one about the two best.
double LineaVera::scartoAnalemma(const Punto &p, double &u) const {
    const auto quadrato = [&](std::size_t i) {
        return anno_[i].lato != 0 ? (anno_[i].p.x - p.x) * (anno_[i].p.x - p.x) + (anno_[i].p.y - p.y) * (anno_[i].p.y - p.y)
                                  : INFINITO;
    };
    constexpr std::size_t SALTO = 8;
    std::size_t primo = 0, secondo = 0;
    double d1 = INFINITO, d2 = INFINITO;
    for (std::size_t i = 0; i < anno_.size(); i += SALTO) {
        const double d = quadrato(i);
        if (d < d1) {
            if (i > primo + 4 * SALTO) secondo = primo, d2 = d1;
            primo = i, d1 = d;
        } else if (d < d2 && i > primo + 4 * SALTO) {
            secondo = i, d2 = d;
        }
    }
    double migliore = INFINITO;
    u = 0;
    for (const std::size_t centro : {primo, secondo}) {
        const std::size_t da = centro > SALTO ? centro - SALTO : 0, a = std::min(centro + SALTO, anno_.size() - 1);
        for (std::size_t i = da; i < a; ++i) {
            const GiornoAnalemma &g = anno_[i], &h = anno_[i + 1];
            if (g.lato == 0 || g.lato != h.lato) continue;
            const double dx = h.p.x - g.p.x, dy = h.p.y - g.p.y, l2 = dx * dx + dy * dy;
            const double f = l2 > 0 ? std::clamp(((p.x - g.p.x) * dx + (p.y - g.p.y) * dy) / l2, 0.0, 1.0) : 0;
            const double d = std::hypot(p.x - g.p.x - f * dx, p.y - g.p.y - f * dy);
            if (d < migliore) migliore = d, u = static_cast<double>(i) + f;
        }
    }
    return migliore;
}

LineaVera::Esame LineaVera::esamina(const Punto &p) const {
    if (forma_ == Andamento::Retta) {
        if (retta_.a == 0 && retta_.b == 0) return {INFINITO, 0, true};
        return {std::fabs(retta_.a * p.x + retta_.b * p.y - retta_.c), retta_.a * p.y - retta_.b * p.x, false};
    }
    if (forma_ == Andamento::Stilo) {
        double d = INFINITO;
        for (const Retta &r : stilo_) d = std::min(d, std::fabs(r.a * p.x + r.b * p.y - r.c));
        return {d, 0, false};
    }
    const Vettore v = verso(p);
    const double n = norma(v);
    const double z = v * piano_.zenit();
    bool buia =
        z < -RIGA * std::hypot(piano_.zenit() * destra_, piano_.zenit() * alto_) || std::fabs(v.p) > std::sin(FINE_ANNO) * n;
    if (legge_ == Legge::Conica) {
        const double f = v * asse_ - seno_ * n;
        const double gx = -(destra_ * asse_) + seno_ * (v * destra_) / n, gy = -(alto_ * asse_) + seno_ * (v * alto_) / n;
        const double u = asse_.p == 1 ? std::atan2(v.w, v.m) : std::atan2(v.w, v * piano_.sud());
        return {std::fabs(f) / std::hypot(gx, gy), u, buia};
    }
    if (legge_ == Legge::Analemma) {
        Esame e{0, 0, buia};
        e.distanza = scartoAnalemma(p, e.parametro);
        e.buia = e.buia || anno_[static_cast<std::size_t>(e.parametro)].lato < 0;
        return e;
    }
    // By hour angle and declination, and how these change along x and y.
    const double phi = dati_.posa.quadrante.latitudine;
    const double r2 = v.m * v.m + v.w * v.w, r = std::sqrt(r2);
    const double t = std::atan2(v.w, v.m), delta = std::atan2(v.p, r);
    const auto lungo = [&](const Vettore &d, double perT, double perDelta, double perAltezza) {
        const double dt = (v.m * -d.w - v.w * -d.m) / r2;
        const double dd = (-d.p * n * n + v.p * (v * d)) / (n * n * r);
        const double q = std::sqrt(std::max(n * n - z * z, 1e-300));
        const double dh = (-(d * piano_.zenit()) * n * n + z * (v * d)) / (n * n * q);
        return perT * dt + perDelta * dd + perAltezza * dh;
    };
    double f = 0, fT = 0, fDelta = 0, fAltezza = 0;
    if (legge_ == Legge::Temporaria) {
        const auto h0 = ombra::semiarco(phi, delta);
        if (!h0 || !(*h0 > 0 && *h0 < PI_)) return {0, delta, true};
        const double k = 1 - valore_ / 6;
        f = t + *h0 * k;
        fT = 1;
        fDelta = k * std::tan(phi) / (std::cos(delta) * std::cos(delta) * std::sin(*h0));
    } else {
        const double e = phi - delta, u = valore_ + std::tan(std::fabs(e));
        if (!(std::fabs(e) < PI_ / 2)) return {0, delta, true};
        f = std::atan2(z, std::sqrt(std::max(n * n - z * z, 0.0))) - std::atan(1 / u);
        fAltezza = 1;
        fDelta = -std::copysign(1, e) / (std::cos(e) * std::cos(e) * (1 + u * u));
        buia = buia || t < 0;
    }
    const double g = std::hypot(lungo(destra_, fT, fDelta, fAltezza), lungo(alto_, fT, fDelta, fAltezza));
    return {std::fabs(f) / g, delta, buia};
}

}  // namespace ombrelia
