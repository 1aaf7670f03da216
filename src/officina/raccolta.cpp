// From the list to chains: which line each record belongs to, what of it lies in the field.
#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <variant>

#include "officina/passi.h"
#include "officina/tratti.h"
#include "plot/percorso.h"

namespace ombrelia::officina {

namespace {

constexpr double MM = 1000;
constexpr double CORPO = 2.0;   // mm: height of the capitals of the caption's texts, 8 point
constexpr double BASE = 2.6;    // mm from the top of a text line to its base line
constexpr double INTERO = 150;  // mm: a larger figure is no glyph and is clipped like a line

class Raccoglitore {
public:
    Raccoglitore(const Tavolo &t, const Riquadro &campo, const ComePreparare &o, Resoconto &r)
        : lista(t.lista()), campo(campo), opzioni(o), r(r), F(t.FattoreX), G(t.FattoreY) {
        mezzoFoglio = MM / 2 * std::min(t.QuadranteL(), t.QuadranteH());
    }

    Raccolta esegui() {
        Percorri(lista, *this);
        for (auto &[g, catena] : aperte) chiudi(g, catena);
        for (auto &[g, punti] : puntini) curve(g, punti);
        figureIntere();
        testi();
        return std::move(esito);
    }

    void pretesa(const Pretesa *p) { sua = p; }
    void punto(const RecPunto &p) { puntino(p); }
    void linea(const RecLinea &l) { corda(l); }
    void figura(std::size_t i) {
        const auto &f = lista.Figure;
        const Appartenenza g = gruppo(f[i].Id, f[i].colore);
        if (f[i].Tipo == 'B') {
            const P2 a = mm(f[i].X1, f[i].Y1), c = mm(f[i].X2, f[i].Y2), b{c.x, a.y}, d{a.x, c.y};
            ++r.corde;
            for (const auto &[p, q] : {std::pair{a, b}, {b, c}, {c, d}, {d, a}}) tratto(g, p, q);
        } else if (f[i].Tipo == 'C') {
            cerchio(f[i], g);
        } else {
            std::optional<P2> prima;
            for (++i; i < f.size() && f[i].voce != Voce::END; ++i) {
                const P2 p = mm(f[i].X1, f[i].Y1);
                ++r.corde;
                if (prima) tratto(g, *prima, p);
                prima = p;
            }
        }
    }

private:
    struct Appartenenza {
        Genere genere;
        int linea;
        Specie specie = Specie::Nessuna;
        double valore = 0;
        bool operator<(const Appartenenza &g) const { return linea != g.linea ? linea < g.linea : genere < g.genere; }
        [[nodiscard]] Cammino cammino(Cammino::Tipo tipo = Cammino::Tipo::Linea) const {
            return {.genere = genere, .tipo = tipo, .linea = linea, .specie = specie, .valore = valore};
        }
    };

    [[nodiscard]] P2 mm(double x, double y, bool specchia = true) const {
        return specchia ? P2{MM * F * x, MM * G * y} : P2{MM * x, MM * y};
    }

    using ChiaveLinea = std::variant<std::size_t, std::pair<Specie, double>, std::pair<IdNome, Colore>>;
    static int numero(std::map<ChiaveLinea, int> &linee, const ChiaveLinea &chiave) {
        return linee.try_emplace(chiave, static_cast<int>(linee.size())).first->second;
    }

    // The group of the present record. Without a claim, records of one layer and colour belong together.
    Appartenenza gruppo(IdNome id, Colore colore, Genere senzaNome = Genere::Figure) {
        if (sua) {
            const Pretesa &p = *sua;
            const auto pretesa = static_cast<std::size_t>(sua - lista.pretese.data());
            if (p.specie == Specie::Etichetta)
                return {std::max(Genere::Etichette, GenereDi(lista.nomi.testo(id))), numero(linee, pretesa), p.specie, p.valore};
            // One line may be claimed in pieces, a point at a time.
            if (p.specie != Specie::Nessuna)
                return {GenereDi(p.specie, p.valore), numero(linee, std::pair{p.specie, p.valore}), p.specie, p.valore};
        }
        return {id == 0 ? senzaNome : GenereDi(lista.nomi.testo(id)), numero(linee, std::pair{id, colore})};
    }

    void chiudi(const Appartenenza &g, std::vector<P2> &catena) {
        if (catena.size() < 2) return;
        if (g.genere != Genere::Figure) esito.vertici.insert(esito.vertici.end(), catena.begin(), catena.end());
        Cammino c = g.cammino();
        c.punti = std::move(catena);
        esito.cammini.push_back(std::move(c));
        catena.clear();
    }

    // Adds a chord to the chain of its group where an end of it is the chain's end.
    void unisci(const Appartenenza &g, P2 a, P2 b) {
        auto &c = aperte[g];
        if (c.size() == 2 && (a == c[0] || b == c[0])) std::swap(c[0], c[1]);
        if (!c.empty() && c.back() == b) std::swap(a, b);
        if (c.empty() || !(c.back() == a)) {
            chiudi(g, c);
            c.push_back(a);
        }
        c.push_back(b);
    }

    void tratto(const Appartenenza &g, P2 a, P2 b) {
        const double lunga = Distanza(a, b);
        if (lunga == 0) return;
        if (g.genere != Genere::Figure && g.genere != Genere::Cartiglio) {
            P2 p = a, q = b;
            if (!Taglia(campo, p, q)) {
                r.fuori += lunga;
                return;
            }
            r.fuori += std::max(0.0, lunga - Distanza(p, q));
            if (p == q) return;
            a = p;
            b = q;
        }
        unisci(g, a, b);
    }

    void corda(const RecLinea &l) {
        ++r.corde;
        const std::string &nome = lista.nomi.testo(l.Id);
        if (nome == "sys:page") return;
        const bool specchia = nome != "AssiXY";
        const P2 a = mm(l.X1, l.Y1, specchia), b = mm(l.X2, l.Y2, specchia);
        const bool lunga = Distanza(a, b) >= mezzoFoglio;  // of the figures only axes and limit lines are as long
        tratto(gruppo(l.Id, l.colore, lunga ? Genere::Ausiliarie : Genere::Figure), a, b);
    }

    void puntino(const RecPunto &p) {
        ++r.puntini;
        const P2 q = mm(p.X, p.Y);
        if (!campo.contiene(q)) {
            ++r.puntiFuori;
            return;
        }
        auto &suoi = puntini[gruppo(p.Id, p.colore, Genere::Altro)];
        suoi.push_back({q, suoi.size()});
    }

    void curve(const Appartenenza &g, const std::vector<Puntino> &punti) {
        std::vector<std::vector<P2>> catene;
        std::vector<P2> soli;
        CatenePunti(punti, catene, soli);
        r.curve += catene.size();
        for (const Puntino &q : punti) esito.vertici.push_back(q.p);
        for (auto &c : catene) {
            r.puntiUniti += c.size();
            Cammino k = g.cammino();
            k.punti = std::move(c);
            esito.cammini.push_back(std::move(k));
        }
        for (const P2 p : soli) {
            esito.cammini.push_back(g.cammino(Cammino::Tipo::Punto));
            esito.cammini.back().punti = {p};
        }
    }

    // The angles of an arc do not mirror, as on the screen.
    void cerchio(const RecFigura &f, const Appartenenza &g) {
        ++r.cerchi;
        const P2 centro = mm(f.X1, f.Y1);
        const double raggio = MM * f.X2, inizio = std::fabs(f.A), fine = std::fabs(f.B);
        const bool intero = f.B == 0;
        if (raggio <= 0) return;
        Cammino c = g.cammino(intero ? Cammino::Tipo::Cerchio : Cammino::Tipo::Arco);
        if (f.Y2 == 1) {
            c.punti = {centro};
            c.raggio = raggio;
            c.inizio = inizio;
            c.fine = fine;
            esito.cammini.push_back(std::move(c));
            return;
        }
        // An ellipse: the longer half axis is the radius.
        const double rx = f.Y2 > 1 ? raggio / f.Y2 : raggio, ry = f.Y2 > 1 ? raggio : raggio * f.Y2;
        const double da = intero ? 0 : inizio,
                     giro = intero ? 2 * std::numbers::pi : std::fmod(fine - inizio + 4 * std::numbers::pi, 2 * std::numbers::pi);
        const int n = std::max(8, static_cast<int>(std::ceil(giro * std::sqrt(raggio / opzioni.tolleranza))));
        P2 prima{};
        for (int k = 0; k <= n; ++k) {
            const double a = da + giro * k / n;
            const P2 p{centro.x + rx * std::cos(a), centro.y + ry * std::sin(a)};
            if (k > 0) tratto(g, prima, p);
            prima = p;
        }
    }

    // Strokes that lie together are one glyph: inside by its middle it stays whole, else it goes. What is too large for a
    // glyph is clipped.
    void figureIntere() {
        struct FiguraIntera {
            std::size_t indice;
            Riquadro box;
            std::size_t capo;
        };
        std::vector<FiguraIntera> pezzi;
        for (std::size_t i = 0; i < esito.cammini.size(); ++i) {
            const Cammino &c = esito.cammini[i];
            if (c.genere != Genere::Figure && c.tipo != Cammino::Tipo::Cerchio && c.tipo != Cammino::Tipo::Arco) continue;
            const P2 p = c.punti[0];
            Riquadro b{p.x - c.raggio, p.y - c.raggio, p.x + c.raggio, p.y + c.raggio};
            for (const P2 q : c.punti)
                if (c.raggio == 0) b.allarga(q);
            pezzi.push_back({i, b, pezzi.size()});
        }
        std::sort(pezzi.begin(), pezzi.end(), [](const FiguraIntera &a, const FiguraIntera &b) { return a.box.x0 < b.box.x0; });
        for (std::size_t i = 0; i < pezzi.size(); ++i) pezzi[i].capo = i;
        const auto capo = [&](std::size_t i) {
            while (pezzi[i].capo != i) i = pezzi[i].capo = pezzi[pezzi[i].capo].capo;
            return i;
        };
        const auto lato = [](const Riquadro &b) { return std::max(b.x1 - b.x0, b.y1 - b.y0); };
        for (std::size_t i = 0; i < pezzi.size(); ++i)
            for (std::size_t k = i + 1; k < pezzi.size(); ++k) {
                const Riquadro &a = pezzi[i].box, &b = pezzi[k].box;
                if (b.x0 > a.x1 + 5) break;
                const double m = std::min(5.0, 0.3 * std::max(lato(a), lato(b)));
                if (b.x0 > a.x1 + m || b.y0 > a.y1 + m || a.y0 > b.y1 + m) continue;
                pezzi[capo(i)].capo = capo(k);
            }
        std::map<std::size_t, Riquadro> intero;
        for (std::size_t i = 0; i < pezzi.size(); ++i) {
            auto [b, nuovo] = intero.try_emplace(capo(i), pezzi[i].box);
            b->second.allarga({pezzi[i].box.x0, pezzi[i].box.y0});
            b->second.allarga({pezzi[i].box.x1, pezzi[i].box.y1});
        }
        std::vector<char> via(esito.cammini.size(), 0);
        std::vector<Cammino> tagliati;
        for (std::size_t i = 0; i < pezzi.size(); ++i) {
            const Riquadro &b = intero[capo(i)];
            Cammino &c = esito.cammini[pezzi[i].indice];
            if (lato(b) <= INTERO || c.raggio > 0) {
                const P2 mezzo = c.raggio > 0 && lato(b) > INTERO ? c.punti[0] : 0.5 * P2{b.x0 + b.x1, b.y0 + b.y1};
                if (campo.contiene(mezzo)) continue;
                r.fuori += c.lunghezza();
                ++r.figureFuori;
                via[pezzi[i].indice] = 1;
            } else if (!(campo.contiene({b.x0, b.y0}) && campo.contiene({b.x1, b.y1}))) {
                via[pezzi[i].indice] = 1;
                taglia(c, tagliati);
            }
        }
        std::size_t k = 0;
        std::erase_if(esito.cammini, [&](const Cammino &) { return via[k++] != 0; });
        std::move(tagliati.begin(), tagliati.end(), std::back_inserter(esito.cammini));
        for (const Cammino &c : esito.cammini)
            if (c.genere == Genere::Figure && c.tipo == Cammino::Tipo::Linea)
                esito.vertici.insert(esito.vertici.end(), c.punti.begin(), c.punti.end());
    }

    void taglia(const Cammino &c, std::vector<Cammino> &pezzi) {
        Cammino p{.genere = c.genere, .linea = c.linea};
        const auto posa = [&] {
            if (p.punti.size() > 1) pezzi.push_back(p);
            p.punti.clear();
        };
        for (std::size_t i = 1; i < c.punti.size(); ++i) {
            P2 a = c.punti[i - 1], b = c.punti[i];
            const double lunga = Distanza(a, b);
            if (!Taglia(campo, a, b)) {
                r.fuori += lunga;
                posa();
                continue;
            }
            r.fuori += lunga - Distanza(a, b);
            if (p.punti.empty() || !(p.punti.back() == a)) {
                posa();
                p.punti.push_back(a);
            }
            p.punti.push_back(b);
        }
        posa();
    }

    void testi() {
        for (std::size_t i = 0; i < lista.Testi.size(); ++i) {
            const RecTesto &t = lista.Testi[i];
            // The numbers of pages chosen for the printer are none of the drawing.
            if (std::any_of(lista.Aree.begin(), lista.Aree.end(), [i](const RecArea &a) { return a.testo == i; })) continue;
            if (t.Testo.find_first_not_of(' ') == std::string::npos) continue;
            ++r.scritte;
            if (opzioni.testi == Testi::Niente) continue;
            // Whole or not at all: by the middle of its height at both ends.
            const P2 base{MM * t.X, MM * t.Y - BASE};
            const double largo = LarghezzaTratti(t.Testo, CORPO);
            if (!campo.contiene(base) || !campo.contiene(base + P2{largo, CORPO})) {
                ++r.scritteFuori;
                continue;
            }
            const int linea = static_cast<int>(linee.size() + i);
            if (opzioni.testi == Testi::Testo) {
                esito.cammini.push_back({.genere = Genere::Testi,
                                         .tipo = Cammino::Tipo::Testo,
                                         .linea = linea,
                                         .punti = {base},
                                         .raggio = CORPO,
                                         .testo = t.Testo});
                continue;
            }
            for (auto &tratto : TrattiDi(t.Testo, CORPO)) {
                for (P2 &p : tratto) p = p + base;
                esito.vertici.insert(esito.vertici.end(), tratto.begin(), tratto.end());
                esito.cammini.push_back({.genere = Genere::Testi, .linea = linea, .punti = std::move(tratto)});
            }
        }
    }

    const Lista &lista;
    const Riquadro campo;
    const ComePreparare &opzioni;
    Resoconto &r;
    const double F, G;
    double mezzoFoglio;
    Raccolta esito;
    std::map<Appartenenza, std::vector<P2>> aperte;
    std::map<Appartenenza, std::vector<Puntino>> puntini;
    std::map<ChiaveLinea, int> linee;
    const Pretesa *sua = nullptr;  // the present record's claim
};

}  // namespace

Riquadro Campo(const Tavolo &t, Ritaglio ritaglio, bool &senzaCornice) {
    senzaCornice = false;
    if (ritaglio == Ritaglio::Cornice) {
        for (const RecFigura &f : t.lista().Figure) {
            if (f.Tipo != 'B' || t.lista().nomi.testo(f.Id) != "Cornice") continue;
            const double x1 = MM * t.FattoreX * f.X1, x2 = MM * t.FattoreX * f.X2;
            const double y1 = MM * t.FattoreY * f.Y1, y2 = MM * t.FattoreY * f.Y2;
            if (x1 != x2 && y1 != y2) return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
        }
        senzaCornice = true;
    }
    return {-MM * t.ShiftX(), MM * (t.ShiftY() - t.QuadranteH()), MM * (t.QuadranteL() - t.ShiftX()), MM * t.ShiftY()};
}

Raccolta Raccogli(const Tavolo &tavolo, const Riquadro &campo, const ComePreparare &opzioni, Resoconto &r) {
    return Raccoglitore(tavolo, campo, opzioni, r).esegui();
}

bool Taglia(const Riquadro &c, P2 &a, P2 &b) {
    double p = 0, q = 1;
    const P2 v = b - a;
    const auto lato = [&](double verso, double spazio) {
        if (verso == 0) return spazio >= 0;
        const double t = spazio / verso;
        if (verso < 0) p = std::max(p, t);
        else q = std::min(q, t);
        return p <= q;
    };
    if (!lato(-v.x, a.x - c.x0) || !lato(v.x, c.x1 - a.x) || !lato(-v.y, a.y - c.y0) || !lato(v.y, c.y1 - a.y)) return false;
    const P2 da = a;
    if (q < 1) b = da + q * v;
    if (p > 0) a = da + p * v;
    return true;
}

}  // namespace ombrelia::officina
