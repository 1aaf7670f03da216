// Painting.
#include "plot/pittore.h"

#include <cmath>
#include <utility>

#include "core/angoli.h"
#include "plot/percorso.h"

namespace ombrelia {

namespace {

// Device coordinates are 32 bit; what does not fit is not painted.
constexpr double LIMITE_DISPOSITIVO = 2147483647.0;

template <class... T>
bool dipingibile(T... v) {
    return ((std::fabs(v) <= LIMITE_DISPOSITIVO) && ...);
}

}  // namespace

void Specchio::arco(double &A, double &B) const {
    if (!archi || B == 0 || (FattoreX > 0 && FattoreY > 0)) return;
    const auto volta = [&](double intero) {
        const double prima = A;
        A = intero - B;
        B = intero - prima;
    };
    if (FattoreX < 0) volta(PI);
    if (FattoreY < 0) volta(0);
    if (A < 0 || B == 0) A += 2 * PI, B += 2 * PI;
}

void Pittore::linea(double X1, double Y1, double X2, double Y2, Colore colore, std::int32_t Spessore, bool specchiata) const {
    if (specchiata) {
        X1 *= specchio.FattoreX;
        Y1 *= specchio.FattoreY;
        X2 *= specchio.FattoreX;
        Y2 *= specchio.FattoreY;
    }
    const Quadrante &q = quadrante;
    if (q.RitagliaSegmento(X1, Y1, X2, Y2) == 0) return;
    dispositivo.Linea(q.daSinistra(X1) * scala, q.dallAlto(Y1) * scala, q.daSinistra(X2) * scala, q.dallAlto(Y2) * scala,
                      tinta(colore), Spessore);
}

void Pittore::punto(double X, double Y, Colore colore) const {
    const double xd = quadrante.daSinistra(X * specchio.FattoreX) * scala, yd = quadrante.dallAlto(Y * specchio.FattoreY) * scala;
    if (dipingibile(xd, yd)) dispositivo.Punto(xd, yd, tinta(colore));
}

void Pittore::riquadro(double X1, double Y1, double X2, double Y2, Colore colore, bool pieno, bool specchiato) const {
    const double sx = fx(specchiato), sy = fy(specchiato);
    const double x1 = quadrante.daSinistra(X1 * sx) * scala, y1 = quadrante.dallAlto(Y1 * sy) * scala;
    const double x2 = quadrante.daSinistra(X2 * sx) * scala, y2 = quadrante.dallAlto(Y2 * sy) * scala;
    // A box filled in the black that stands for its colour would leave a black page: only its outline is printed.
    if (dipingibile(x1, y1, x2, y2)) dispositivo.Riquadro(x1, y1, x2, y2, tinta(colore), pieno && !nero);
}

void Pittore::cerchio(const RecFigura &f) const {
    const bool specchiato = specchia(f.Id);
    const double x = quadrante.daSinistra(f.X1 * fx(specchiato)) * scala, y = quadrante.dallAlto(f.Y1 * fy(specchiato)) * scala;
    const double r = f.X2 * scala;
    double inizio = f.A, fine = f.B;
    if (specchiato) specchio.arco(inizio, fine);
    const Colore interno = f.Riempimento < 0 ? f.Riempimento : tinta(f.Riempimento);
    if (dipingibile(x, y, r) && r >= 0) dispositivo.Cerchio(x, y, r, tinta(f.colore), interno, inizio, fine, f.Y2);
}

void Pittore::polilinea(const Lista &l, IdNome Id) const {
    PercorriPolilinea(
        l, Id, [&](const RecFigura &a, const RecFigura &b) { linea(a.X1, a.Y1, b.X1, b.Y1, b.colore, penna, specchia(Id)); });
}

void Pittore::figura(const Lista &l, const RecFigura &r) const {
    if (r.Tipo == 'B') riquadro(r.X1, r.Y1, r.X2, r.Y2, r.colore, r.pieno, specchia(r.Id));
    else if (r.Tipo == 'C') cerchio(r);
    else polilinea(l, r.Id);
}

void Pittore::testo(double xd, double yd, std::string_view testo, Colore colore) const {
    if (!testo.empty() && dipingibile(xd, yd)) dispositivo.Testo(xd, yd, testo, tinta(colore));
}

void Pittore::rigioca(const Lista &l) const {
    for (const RecTesto &t : l.Testi)
        testo(quadrante.daSinistra(t.X) * scala, quadrante.dallAlto(t.Y) * scala, t.Testo, t.colore);
    struct Visita {
        const Pittore &p;
        const Lista &l;
        bool punteggiato = false;

        void tratteggia(bool si) {
            if (si != punteggiato) p.dispositivo.Tratteggio(punteggiato = si);
        }
        void punto(const RecPunto &r) const {
            if (p.quadrante.tiene(r.X, r.Y)) p.punto(r.X, r.Y, r.colore);
        }
        void linea(const RecLinea &r) {
            tratteggia(r.Id == p.griglia);
            if (const auto i = static_cast<std::size_t>(&r - l.Linee.data()); i < l.trattini.size())
                p.dispositivo.Trattini(l.trattini[i]);
            p.linea(r.X1, r.Y1, r.X2, r.Y2, r.colore, r.Spessore, p.specchia(r.Id));
        }
        void figura(std::size_t i) {
            tratteggia(false);
            p.figura(l, l.Figure[i]);
        }
    } visita{*this, l};
    Percorri(l, visita);
    visita.tratteggia(false);
}

}  // namespace ombrelia
