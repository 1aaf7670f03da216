// The whole way from the list to paths, and what was done said in sentences.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "officina/griglia.h"
#include "officina/passi.h"
#include "officina/tratti.h"

namespace ombrelia::officina {

double Lungo(P2 a) { return std::sqrt(a.x * a.x + a.y * a.y); }

void Riquadro::allarga(P2 p) {
    x0 = std::min(x0, p.x);
    y0 = std::min(y0, p.y);
    x1 = std::max(x1, p.x);
    y1 = std::max(y1, p.y);
}

namespace {

P2 sulCerchio(const Cammino &c, double a) { return c.punti[0] + c.raggio * P2{std::cos(a), std::sin(a)}; }

// How far the vertices of the list lie from the paths. One within reach of none is lost.
void misura(const std::vector<P2> &vertici, const std::vector<Cammino> &cammini, const Riquadro &campo, double tolleranza,
            Resoconto &r) {
    Griglia g(campo);
    for (const Cammino &c : cammini) {
        if (c.tipo == Cammino::Tipo::Punto) g.aggiungi(c.punti[0], c.punti[0]);
        if (c.tipo != Cammino::Tipo::Linea) continue;
        for (std::size_t i = 1; i < c.punti.size(); ++i) g.aggiungi(c.punti[i - 1], c.punti[i]);
        if (c.chiuso) g.aggiungi(c.punti.back(), c.punti.front());
    }
    const double fino = 3 * STESSO + 2 * tolleranza;
    for (std::size_t i = 0; i < vertici.size(); ++i) {
        const double d = g.distanza(vertici[i], fino);
        if (d <= fino) r.scarto = std::max(r.scarto, d);
        else r.persa += i > 0 ? std::min(1.0, Distanza(vertici[i], vertici[i - 1])) : 1;
    }
}

Riquadro estensione(const std::vector<Cammino> &cammini) {
    Riquadro e;
    bool prima = true;
    const auto prendi = [&](P2 p) {
        if (prima) e = {p.x, p.y, p.x, p.y};
        prima = false;
        e.allarga(p);
    };
    for (const Cammino &c : cammini) {
        if (c.tipo == Cammino::Tipo::Cerchio) {
            prendi(c.punti[0] - P2{c.raggio, c.raggio});
            prendi(c.punti[0] + P2{c.raggio, c.raggio});
        } else if (c.tipo == Cammino::Tipo::Arco) {
            constexpr double GIRO = 2 * std::numbers::pi;
            const double giro = std::fmod(c.fine - c.inizio + 2 * GIRO, GIRO);
            prendi(c.capo());
            prendi(c.coda());
            for (int q = 0; q < 8; ++q)
                if (const double a = q * GIRO / 4; a > c.inizio && a < c.inizio + giro) prendi(sulCerchio(c, a));
        } else {
            for (const P2 p : c.punti) prendi(p);
            if (c.tipo == Cammino::Tipo::Testo) prendi(c.punti[0] + P2{LarghezzaTratti(c.testo, c.raggio), c.raggio});
        }
    }
    return e;
}

std::string frase(const char *forma, auto... valori) {
    char b[200];
    std::snprintf(b, sizeof b, forma, valori...);
    return b;
}

std::string metri(double mm) { return frase(mm < 99.95 ? "%.2f mm" : "%.2f m", mm < 99.95 ? mm : mm / 1000); }

}  // namespace

P2 Cammino::capo() const {
    return tipo == Tipo::Cerchio ? punti[0] + P2{raggio, 0} : tipo == Tipo::Arco ? sulCerchio(*this, inizio) : punti.front();
}

P2 Cammino::coda() const {
    return tipo == Tipo::Arco ? sulCerchio(*this, fine) : tipo == Tipo::Linea && !chiuso ? punti.back() : capo();
}

double Cammino::lunghezza() const {
    constexpr double GIRO = 2 * std::numbers::pi;
    if (tipo == Tipo::Cerchio) return GIRO * raggio;
    if (tipo == Tipo::Arco) return raggio * std::fmod(fine - inizio + 2 * GIRO, GIRO);
    if (tipo != Tipo::Linea) return 0;
    double l = chiuso ? Distanza(punti.back(), punti.front()) : 0;
    for (std::size_t i = 1; i < punti.size(); ++i) l += Distanza(punti[i - 1], punti[i]);
    return l;
}

void Cammino::rovescia() {
    if (tipo == Tipo::Linea) std::reverse(punti.begin(), punti.end());
}

Disegno Prepara(const Tavolo &tavolo, const ComePreparare &o, std::string &errore) {
    Disegno d;
    errore.clear();
    if (tavolo.lista().Ordine.empty()) errore = "nothing is drawn";
    else if (!(o.tolleranza > 0)) errore = "the tolerance must be above 0";
    else if (o.testi == Testi::Tratti && !CiSonoTratti())
        errore = "texts as strokes take the Hershey alphabet (libhersheyfont), which is not here";
    if (!errore.empty()) return d;
    Resoconto &r = d.resoconto;
    d.campo = Campo(tavolo, o.ritaglio, d.senzaCornice);
    Raccolta tutto = Raccogli(tavolo, d.campo, o, r);
    std::vector<Cammino> &c = d.cammini;
    c = std::move(tutto.cammini);
    const std::vector<Cammino> prima = c;
    Riduci(c, d.campo, o.tolleranza, r);
    r.coincidono = Coincidenti(prima, c);
    misura(tutto.vertici, c, d.campo, o.tolleranza, r);
    for (Cammino &k : c)
        if (k.tipo == Cammino::Tipo::Punto && o.raggioPunti > 0) {
            k.tipo = Cammino::Tipo::Cerchio;
            k.raggio = o.raggioPunti;
        }
    Ordina(c, r);
    d.estensione = estensione(c);
    for (const Cammino &k : c) {
        r.lunga += k.lunghezza();
        if (k.tipo == Cammino::Tipo::Punto) ++r.punti;
        else ++r.cammini;
        if (k.tipo == Cammino::Tipo::Linea) r.vertici += k.punti.size();
    }
    if (c.empty()) errore = o.ritaglio == Ritaglio::Cornice ? "nothing lies inside the frame" : "nothing lies on the sheet";
    return d;
}

std::string Racconto(const Disegno &d, const ComePreparare &o) {
    const Resoconto &r = d.resoconto;
    std::string t = frase("%zu chords and %zu points to %zu paths of %zu vertices", r.corde, r.puntini, r.cammini, r.vertici);
    if (r.punti) t += frase(" and %zu points", r.punti);
    t += ", " + metri(r.lunga) + "\n";
    if (r.curve) t += frase("%zu points joined to %zu curves\n", r.puntiUniti, r.curve);
    t += metri(r.doppia) + " drawn twice left out";
    if (r.puntiDoppi) t += frase(" with %zu points", r.puntiDoppi);
    t += "; " + metri(r.fuori) +
         (o.ritaglio == Ritaglio::Foglio || d.senzaCornice ? " off the sheet cut off" : " outside the frame cut off");
    if (r.puntiFuori || r.scritteFuori) t += frase(" with %zu points and %zu texts", r.puntiFuori, r.scritteFuori);
    if (d.senzaCornice) t += " (there is no frame)";
    t += frase("\nlargest departure %.4f mm, tolerance %g mm", r.scarto, o.tolleranza);
    if (r.persa > 0) t += "; LOST: " + metri(r.persa);
    t += "\nthe head travels " + metri(r.viaggio) + " between cuts, " + metri(r.viaggioPrima) + " in the drawing's order\n";
    return t;
}

}  // namespace ombrelia::officina
