// Painting of the sheet on a device: mirrors, transform, clipping, and the replay of the whole list.
#include <array>
#include <cmath>

#include "plot/tavolo.h"

namespace ombrelia {

namespace {

// Device coordinates are 32 bit; what does not fit is not painted.
constexpr double LIMITE_DISPOSITIVO = 2147483647.0;

template <class... T>
bool dipingibile(T... v) {
    return ((std::fabs(v) <= LIMITE_DISPOSITIVO) && ...);
}

}  // namespace

std::optional<PuntoPiano> IntersezioneDueRette(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                                               double y4) {
    const double dx1 = x2 - x1, dy1 = y2 - y1, dx2 = x4 - x3, dy2 = y4 - y3;
    const double denX = dy1 * dx2 - dy2 * dx1;
    const double denY = dx1 * dy2 - dx2 * dy1;
    if (denX == 0 || denY == 0) return {};
    const double c1 = x1 * dy1 - y1 * dx1, c2 = x3 * dy2 - y3 * dx2;
    const PuntoPiano p{(c1 * dx2 - c2 * dx1) / denX, (c2 * dy1 - c1 * dy2) / denY};
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return {};
    return p;
}

int Tavolo::RitagliaSegmento(double &X1, double &Y1, double &X2, double &Y2) const {
    const double sx = -shiftX_, dx = quadranteL_ - shiftX_, su = -shiftY_, giu = quadranteH_ - shiftY_;
    const auto dentro = [&](double x, double y) { return sx <= x && x <= dx && su <= y && y <= giu; };
    const bool primo = dentro(X1, Y1), secondo = dentro(X2, Y2);
    if (primo && secondo) return 2;
    if (X1 == X2 && Y1 == Y2) return 0;

    // Place of a point along the segment: 0 at its first end, 1 at its second. Of the longer component: squares of
    // lengths underflow.
    const double lx = X2 - X1, ly = Y2 - Y1;
    const auto posto = [&](const PuntoPiano &p) { return std::fabs(lx) > std::fabs(ly) ? (p.x - X1) / lx : (p.y - Y1) / ly; };
    struct Lato {
        double x1, y1, x2, y2;
    };
    std::array<PuntoPiano, 4> colpi{};
    std::size_t n = 0;
    for (const Lato &l : {Lato{sx, su, dx, su}, Lato{dx, su, dx, giu}, Lato{sx, giu, dx, giu}, Lato{sx, su, sx, giu}}) {
        auto p = IntersezioneDueRette(X1, Y1, X2, Y2, l.x1, l.y1, l.x2, l.y2);
        if (!p) continue;
        const bool orizzontale = l.y1 == l.y2;
        (orizzontale ? p->y : p->x) = orizzontale ? l.y1 : l.x1;
        if (orizzontale ? !(sx <= p->x && p->x <= dx) : !(su <= p->y && p->y <= giu)) continue;
        colpi[n++] = *p;
    }
    if (primo || secondo) {
        // The end on the sheet stays; the hit farthest on the other end's side of it replaces the other.
        std::size_t scelto = n;
        double migliore = 0;
        for (std::size_t i = 0; i < n; ++i) {
            const double avanti = primo ? posto(colpi[i]) : 1 - posto(colpi[i]);
            if (avanti >= 0 && (scelto == n || avanti > migliore)) {
                migliore = avanti;
                scelto = i;
            }
        }
        if (scelto == n) return 0;
        (primo ? X2 : X1) = colpi[scelto].x;
        (primo ? Y2 : Y1) = colpi[scelto].y;
        return 2;
    }
    // Hits beyond the ends are hits of the line only; a corner is hit on two sides and counts once.
    std::array<PuntoPiano, 2> fini{};
    int esito = 0;
    for (std::size_t i = 0; i < n && esito < 2; ++i) {
        const double t = posto(colpi[i]);
        if (!(t >= 0 && t <= 1)) continue;
        if (esito == 1 && colpi[i].x == fini[0].x && colpi[i].y == fini[0].y) continue;
        fini[static_cast<std::size_t>(esito++)] = colpi[i];
    }
    if (esito == 0) return 0;
    if (esito == 1) fini[1] = fini[0];
    X1 = fini[0].x;
    Y1 = fini[0].y;
    X2 = fini[1].x;
    Y2 = fini[1].y;
    return esito;
}

void Tavolo::dipingiLinea(double X1, double Y1, double X2, double Y2, Colore colore, std::int32_t Spessore, bool specchiata) {
    if (specchiata) {
        X1 *= FattoreX;
        Y1 *= FattoreY;
        X2 *= FattoreX;
        Y2 *= FattoreY;
    }
    if (RitagliaSegmento(X1, Y1, X2, Y2) == 0) return;
    const double k = scalaCorrente_;
    dispositivo->Linea((X1 + shiftX_) * k, (Y1 + shiftY_) * k, (X2 + shiftX_) * k, (Y2 + shiftY_) * k, tinta(colore), Spessore);
}

void Tavolo::dipingiPunto(double X, double Y, Colore colore) {
    const double xd = (X * FattoreX + shiftX_) * scalaCorrente_, yd = (Y * FattoreY + shiftY_) * scalaCorrente_;
    if (dipingibile(xd, yd)) dispositivo->Punto(xd, yd, tinta(colore));
}

void Tavolo::dipingiRiquadro(double X1, double Y1, double X2, double Y2, Colore colore, bool pieno, bool specchiato) {
    const double fx = specchiato ? FattoreX : 1.0, fy = specchiato ? FattoreY : 1.0, k = scalaCorrente_;
    const double x1 = (X1 * fx + shiftX_) * k, y1 = (Y1 * fy + shiftY_) * k;
    const double x2 = (X2 * fx + shiftX_) * k, y2 = (Y2 * fy + shiftY_) * k;
    // A box filled in the black that stands for its colour would leave a black page: only its outline is printed.
    if (dipingibile(x1, y1, x2, y2)) dispositivo->Riquadro(x1, y1, x2, y2, tinta(colore), pieno && !inNero());
}

void Tavolo::dipingiCerchio(double X, double Y, double Raggio, Colore colore, Colore riempimento, double Aspect, double Start,
                            double End, bool specchiato) {
    // Only the centre mirrors; the angles of an arc stay as they are.
    const double fx = specchiato ? FattoreX : 1.0, fy = specchiato ? FattoreY : 1.0, k = scalaCorrente_;
    const double x = (X * fx + shiftX_) * k, y = (Y * fy + shiftY_) * k, r = Raggio * k;
    const Colore interno = riempimento < 0 ? riempimento : tinta(riempimento);
    if (dipingibile(x, y, r) && r >= 0) dispositivo->Cerchio(x, y, r, tinta(colore), interno, Start, End, Aspect);
}

void Tavolo::dipingiPolilinea(IdNome Id) {
    const auto inizio = lista_.TrovaStart(Id);
    if (!inizio) return;
    const auto &f = lista_.Figure;
    std::size_t fine = *inizio + 1;
    while (fine < f.size() && !(f[fine].Tipo == 'V' && f[fine].Id == Id && f[fine].voce == Voce::END)) ++fine;
    if (fine == f.size()) return;  // not ended yet
    const RecFigura *prima = nullptr;
    for (std::size_t i = *inizio + 1; i < fine; ++i) {
        if (f[i].Tipo != 'V' || f[i].Id != Id) continue;
        if (prima) dipingiLinea(prima->X1, prima->Y1, f[i].X1, f[i].Y1, f[i].colore, Penna(), specchia(Id));
        prima = &f[i];
    }
}

void Tavolo::dipingiTesto(double xd, double yd, std::string_view testo) {
    if (!testo.empty() && dipingibile(xd, yd)) dispositivo->Testo(xd, yd, testo, tinta(ForeColor));
}

void Tavolo::Refresh() {
    if (!dispositivo) return;
    if (suAttesa) suAttesa(true);
    if (!OutputToPRN) dispositivo->Cls();
    rigioca();
    if (suAttesa) suAttesa(false);
}

void Tavolo::rigioca() {
    for (const RecTesto &t : lista_.Testi)
        dipingiTesto((t.X + shiftX_) * scalaCorrente_, (t.Y + shiftY_) * scalaCorrente_, t.Testo);
    // Boxes, circles and polylines share an array; each letter takes the next unread record of its own kind.
    const auto &f = lista_.Figure;
    std::size_t punto = 0, linea = 0, box = 0, cerchio = 0, poli = 0;
    const auto prossima = [&f](std::size_t &i, char tipo) -> const RecFigura * {
        while (i < f.size() && !(f[i].Tipo == tipo && f[i].voce == Voce::START)) ++i;
        return i < f.size() ? &f[i++] : nullptr;
    };
    for (const char tipo : lista_.Ordine) {
        if (tipo == 'P') {
            const RecPunto &r = lista_.Punti[punto++];
            // A point is tested against the sheet as it is now.
            if (sulFoglio(r.X, r.Y)) dipingiPunto(r.X, r.Y, r.colore);
        } else if (tipo == 'L') {
            const RecLinea &r = lista_.Linee[linea++];
            dipingiLinea(r.X1, r.Y1, r.X2, r.Y2, r.colore, r.Spessore, specchia(r.Id));
        } else if (tipo == 'B') {
            if (const RecFigura *r = prossima(box, 'B'))
                dipingiRiquadro(r->X1, r->Y1, r->X2, r->Y2, r->colore, r->pieno, specchia(r->Id));
        } else if (tipo == 'C') {
            if (const RecFigura *r = prossima(cerchio, 'C'))
                dipingiCerchio(r->X1, r->Y1, r->X2, r->colore, r->Riempimento, r->Y2, r->A, r->B, specchia(r->Id));
        } else if (const RecFigura *r = prossima(poli, 'V')) {
            dipingiPolilinea(r->Id);
        }
    }
}

}  // namespace ombrelia
