// Where a label goes.
#include "officina/etichette.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

#include "officina/griglia.h"
#include "officina/passi.h"
#include "officina/tratti.h"
#include "plot/specie.h"

namespace ombrelia::officina {

namespace {

constexpr double ARIA = 0.3;    // heights between a label and anything else
constexpr int INDIETRO = 14;    // places tried back along the line, half a height apart
constexpr double FITTO = 0.02;  // mm: enough for places
constexpr Colore INCHIOSTRO = ARGENTO;

struct Scatola {
    P2 centro, asse;
    double a, b;  // half length, half height
};

bool separate(const Scatola &x, const Scatola &y, P2 asse) {
    const auto ombra = [&](const Scatola &s) {
        const P2 su{-s.asse.y, s.asse.x};
        return std::fabs(Scalare(s.asse, asse)) * s.a + std::fabs(Scalare(su, asse)) * s.b;
    };
    return std::fabs(Scalare(x.centro - y.centro, asse)) > ombra(x) + ombra(y);
}
bool siToccano(const Scatola &x, const Scatola &y) {
    for (const P2 asse : {x.asse, P2{-x.asse.y, x.asse.x}, y.asse, P2{-y.asse.y, y.asse.x}})
        if (separate(x, y, asse)) return false;
    return true;
}

struct LineaDaScrivere {
    Specie specie;
    double valore;
    std::vector<std::vector<P2>> pezzi;
};

// Place and outward direction at a distance from one end of a piece.
struct Posto {
    P2 p, fuori;
};
std::optional<Posto> lungo(const std::vector<P2> &pezzo, bool coda, double indietro) {
    const std::size_t n = pezzo.size();
    const auto punto = [&](std::size_t i) { return coda ? pezzo[n - 1 - i] : pezzo[i]; };
    for (std::size_t i = 0; i + 1 < n; ++i) {
        const P2 v = punto(i) - punto(i + 1);
        const double l = Lungo(v);
        if (l == 0) continue;
        if (indietro <= l) return Posto{punto(i) - (indietro / l) * v, (1 / l) * v};
        indietro -= l;
    }
    return {};
}

// The point that the lines of a family lie nearest to, as straight lines; none for parallel ones.
std::optional<P2> fuoco(const std::vector<const LineaDaScrivere *> &linee) {
    double xx = 0, xy = 0, yy = 0, bx = 0, by = 0;
    for (const LineaDaScrivere *l : linee)
        for (const auto &p : l->pezzi) {
            const P2 v = p.back() - p.front();
            const double d = Lungo(v);
            if (d == 0) continue;
            const P2 n{-v.y / d, v.x / d};
            const double c = Scalare(n, p.front());
            xx += n.x * n.x;
            xy += n.x * n.y;
            yy += n.y * n.y;
            bx += c * n.x;
            by += c * n.y;
        }
    const double det = xx * yy - xy * xy;
    if (det < 1e-4 * (xx + yy) * (xx + yy)) return {};
    return P2{(bx * yy - by * xy) / det, (by * xx - bx * xy) / det};
}

// The sheet as it will be read: as its mirrors show it, and turned where its user will mirror it yet.
class VersoDiLettura {
public:
    VersoDiLettura(const Tavolo &t, bool specchiata)
        : x_(specchiata || t.FattoreX < 0 ? -1 : 1), y_(t.FattoreY < 0 ? -1 : 1), giro_(x_ * (t.FattoreX < 0 ? -1 : 1)) {}
    // From what is seen.
    void specchia(P2 &p) const { p.x *= giro_; }
    void specchia(Riquadro &r) const {
        if (giro_ < 0) r = {-r.x1, r.y0, -r.x0, r.y1};
    }
    // A stroke, mm.
    void traccia(Tavolo &t, P2 a, P2 b, IdNome strato) const {
        t.TracciaLinea(0.001 * x_ * a.x, 0.001 * y_ * a.y, 0.001 * x_ * b.x, 0.001 * y_ * b.y, INCHIOSTRO, strato);
    }

private:
    double x_, y_, giro_;
};

class Scrivano {
public:
    Scrivano(Tavolo &t, const StileEtichette &s) : tavolo_(t), s_(s), lettura_(t, s.specchiata) {
        bool senza = false;
        campo_ = Campo(t, Ritaglio::Cornice, senza);
        Resoconto r;
        Raccolta tutto = Raccogli(t, campo_, {}, r);
        lettura_.specchia(campo_);
        for (Cammino &c : tutto.cammini)
            for (P2 &p : c.punti) lettura_.specchia(p);
        griglia_.emplace(campo_);
        std::map<int, std::vector<Cammino>> linee;
        for (Cammino &c : tutto.cammini)
            if (c.tipo == Cammino::Tipo::Linea && c.genere != Genere::Ausiliarie) linee[c.linea].push_back(std::move(c));
        for (auto &[numero, c] : linee) {
            const Specie specie = c[0].specie;
            const double valore = c[0].valore;
            // A line may be swept forth and back: its ends show when it is there once.
            if (specie != Specie::Nessuna) Riduci(c, campo_, FITTO, r);
            for (const Cammino &k : c)
                for (std::size_t i = 1; i < k.punti.size(); ++i) griglia_->aggiungi(k.punti[i - 1], k.punti[i]);
            if (!Giudicabile(specie)) continue;
            linee_.push_back({specie, valore, {}});
            for (Cammino &k : c) linee_.back().pezzi.push_back(std::move(k.punti));
        }
    }

    EsitoEtichette scrivi() {
        std::map<Specie, std::vector<const LineaDaScrivere *>> famiglie;
        for (const LineaDaScrivere &l : linee_) famiglie[l.specie].push_back(&l);
        EsitoEtichette esito;
        const IdNome strato = tavolo_.nome("Etichette");
        for (const auto &[specie, linee] : famiglie) {
            const CapoScritto capo = DellaSpecie(specie).capo;
            const bool curve = capo == CapoScritto::Destro;
            const std::optional<P2> centro = curve                           ? std::nullopt
                                             : capo == CapoScritto::DalPiede ? std::optional(P2{})
                                                                             : fuoco(linee);
            for (const LineaDaScrivere *l : linee) {
                const std::string testo = s_.testo(l->specie, l->valore);
                if (testo.empty()) continue;
                if (posa(*l, testo, curve, centro, strato)) ++esito.scritte;
                else ++esito.senzaPosto;
            }
        }
        return esito;
    }

private:
    bool posa(const LineaDaScrivere &l, const std::string &testo, bool curva, const std::optional<P2> &centro, IdNome strato) {
        const double largo = LarghezzaTratti(testo, s_.altezza);
        // Ends, the outermost first: of a curve the rightmost, of a ray the farthest from where its family meets.
        struct CapoLinea {
            double quanto;
            const std::vector<P2> *pezzo;
            bool coda;
        };
        std::vector<CapoLinea> capi;
        for (const auto &p : l.pezzi)
            for (const bool coda : {false, true}) {
                const P2 e = coda ? p.back() : p.front();
                capi.push_back({curva ? e.x : centro ? Distanza(e, *centro) : -e.y, &p, coda});
            }
        std::sort(capi.begin(), capi.end(), [](const CapoLinea &a, const CapoLinea &b) { return a.quanto > b.quanto; });
        const double aria = ARIA * s_.altezza;
        for (const CapoLinea &c : capi) {
            for (int k = -1; k < INDIETRO; ++k) {
                const auto posto = lungo(*c.pezzo, c.coda, k < 0 ? 0 : largo / 2 + aria + 0.5 * k * s_.altezza);
                if (!posto) break;
                Scatola q{{}, {1, 0}, largo / 2, s_.altezza / 2};
                if (s_.lungo) {
                    q.asse = posto->fuori;
                    // Never upside down; a line straight up is read from below.
                    if (q.asse.x < -1e-9 || (std::fabs(q.asse.x) <= 1e-9 && q.asse.y < 0)) q.asse = -1.0 * q.asse;
                }
                const P2 su{-q.asse.y, q.asse.x};
                const auto mezzo = [&](P2 d) {
                    return std::fabs(Scalare(d, q.asse)) * (q.a + 1.01 * aria) + std::fabs(Scalare(d, su)) * (q.b + 1.01 * aria);
                };
                const P2 lato{-posto->fuori.y, posto->fuori.x};
                for (const P2 d : k < 0 ? std::vector{posto->fuori} : std::vector{lato, -1.0 * lato}) {
                    q.centro = posto->p + mezzo(d) * d;
                    if (!libera(q, aria)) continue;
                    disegna(q, testo, strato);
                    poste_.push_back({q.centro, q.asse, q.a + aria, q.b + aria});
                    return true;
                }
            }
        }
        return false;
    }

    [[nodiscard]] bool libera(const Scatola &q, double aria) const {
        const P2 su{-q.asse.y, q.asse.x};
        for (const double i : {-1.0, 1.0})
            for (const double k : {-1.0, 1.0})
                if (!Riquadro{campo_.x0 + aria, campo_.y0 + aria, campo_.x1 - aria, campo_.y1 - aria}.contiene(
                        q.centro + i * q.a * q.asse + k * q.b * su))
                    return false;
        if (griglia_->entra(q.centro, q.asse, q.a + aria, q.b + aria)) return false;
        return std::none_of(poste_.begin(), poste_.end(), [&](const Scatola &p) { return siToccano(p, q); });
    }

    void disegna(const Scatola &q, const std::string &testo, IdNome strato) {
        const P2 su{-q.asse.y, q.asse.x};
        const Pretendi pretendi(tavolo_, Specie::Etichetta);
        for (const auto &tratto : TrattiDi(testo, s_.altezza)) {
            const auto posto = [&](P2 p) { return q.centro + (p.x - q.a) * q.asse + (p.y - q.b) * su; };
            for (std::size_t i = 1; i < tratto.size(); ++i)
                lettura_.traccia(tavolo_, posto(tratto[i - 1]), posto(tratto[i]), strato);
        }
    }

    Tavolo &tavolo_;
    const StileEtichette &s_;
    const VersoDiLettura lettura_;
    Riquadro campo_;
    std::optional<Griglia> griglia_;
    std::vector<LineaDaScrivere> linee_;
    std::vector<Scatola> poste_;
};

}  // namespace

EsitoEtichette Etichetta(Tavolo &tavolo, const StileEtichette &stile) { return Scrivano(tavolo, stile).scrivi(); }

void Cartiglio(Tavolo &tavolo, const std::vector<std::string> &righe, double altezza, bool specchiata) {
    constexpr double RIGA = 1.7;               // heights from one base line to the next
    constexpr double ALTEZZA_LEGGIBILE = 2.5;  // mm: smaller letters help nobody
    if (righe.empty()) return;
    bool senza = false;
    Riquadro cornice = Campo(tavolo, Ritaglio::Cornice, senza), foglio = Campo(tavolo, Ritaglio::Foglio, senza);
    const VersoDiLettura lettura(tavolo, specchiata);
    lettura.specchia(cornice);
    lettura.specchia(foglio);
    double largo = 0;
    for (const std::string &r : righe) largo = std::max(largo, LarghezzaTratti(r, altezza));
    const double alto = altezza * (1 + RIGA * static_cast<double>(righe.size() - 1)), aria = altezza;
    P2 angolo{cornice.x0, cornice.y0 - aria};  // top left corner of the block
    if (const double sotto = cornice.y0 - foglio.y0, chiesto = alto + 2 * aria; sotto < chiesto) {
        if (foglio.x1 - cornice.x1 >= largo + 2 * aria) angolo = {cornice.x1 + aria, cornice.y1};
        else if (cornice.x0 - foglio.x0 >= largo + 2 * aria) angolo = {cornice.x0 - aria - largo, cornice.y1};
        else if (foglio.y1 - cornice.y1 >= chiesto) angolo = {cornice.x0, cornice.y1 + aria + alto};
        else if (const double minore = altezza * sotto / chiesto; minore >= ALTEZZA_LEGGIBILE)
            return Cartiglio(tavolo, righe, minore * (1 - 1e-9), specchiata);
    }
    const IdNome strato = tavolo.nome("Cartiglio");
    double base = angolo.y - altezza;
    for (const std::string &r : righe) {
        const Pretendi pretendi(tavolo, Specie::Etichetta);
        for (const auto &tratto : TrattiDi(r, altezza))
            for (std::size_t i = 1; i < tratto.size(); ++i) {
                const P2 angoloRiga{angolo.x, base};
                lettura.traccia(tavolo, angoloRiga + tratto[i - 1], angoloRiga + tratto[i], strato);
            }
        base -= RIGA * altezza;
    }
}

}  // namespace ombrelia::officina
