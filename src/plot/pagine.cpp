// Pages: paper, the grid of tiles, their selection, and the sheet on one page. Tiles are printed by paint.
#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "core/angoli.h"
#include "core/conteggio.h"
#include "plot/percorso.h"
#include "plot/tavolo.h"

namespace ombrelia {

namespace {

constexpr double RIENTRO = Tavolo::ScalaBase * 0.015;  // of the texts at a page's head, device units
constexpr int PIASTRELLE_MASSIME = 10000;

// Points a sheet at the printer; put back whatever happens.
struct SullaStampante {
    SullaStampante(Tavolo &t, Dispositivo &stampante) : tavolo(t), prima(t.dispositivo) {
        tavolo.dispositivo = &stampante;
        tavolo.OutputToPRN = true;
    }
    ~SullaStampante() {
        tavolo.dispositivo = prima;
        tavolo.OutputToPRN = false;
    }
    SullaStampante(const SullaStampante &) = delete;
    SullaStampante &operator=(const SullaStampante &) = delete;
    Tavolo &tavolo;
    Dispositivo *prima;
};

// Column or row of a position, counted by repeated addition; none off the grid.
std::optional<Tavolo::Casella> casella(double posizione, double lato) {
    if (!(posizione >= 0)) return {};
    Tavolo::Casella c{0, 0};
    while (!(posizione - c.bordo < lato)) {
        if (++c.numero >= PIASTRELLE_MASSIME) return {};
        c.bordo += lato;
    }
    return c;
}

// Marks the tiles that what is painted on it crosses.
class Segnatessere final : public DispositivoMuto {
public:
    Segnatessere(const Tavolo::GrigliaPagine &griglia, double L, double H) : g_(griglia), L_(L), H_(H) {}
    std::set<std::pair<int, int>> tessere;  // row, column

    void Linea(double x1, double y1, double x2, double y2, Colore, int) override {
        const auto numero = [](double posto, double passo) { return static_cast<int>(std::floor(posto / passo)); };
        const auto [su, giu] = std::minmax(y1, y2);
        const auto [sinistra, destra] = std::minmax(x1, x2);
        if (!(sinistra < L_ && destra >= 0 && su < H_ && giu >= 0)) return;
        // A page reaches over the next ones by what they share.
        const double oltreX = g_.larga - g_.passoX, oltreY = g_.alta - g_.passoY;
        for (int r = std::max(numero(su - oltreY, g_.passoY), 0); r <= numero(std::min(giu, H_), g_.passoY); ++r)
            for (int c = std::max(numero(sinistra - oltreX, g_.passoX), 0); c <= numero(std::min(destra, L_), g_.passoX); ++c) {
                if (c * g_.passoX >= L_ || r * g_.passoY >= H_ || tessere.contains({r, c})) continue;
                const Quadrante tessera{g_.larga, g_.alta, -c * g_.passoX, -r * g_.passoY};
                double a = x1, b = Capovolta(y1), d = x2, e = Capovolta(y2);  // a page is a sheet of its own
                if (tessera.RitagliaSegmento(a, b, d, e) > 0) tessere.insert({r, c});
            }
    }
    void Riquadro(double x1, double y1, double x2, double y2, Colore colore, bool) override {
        Linea(x1, y1, x2, y1, colore, 1);
        Linea(x2, y1, x2, y2, colore, 1);
        Linea(x2, y2, x1, y2, colore, 1);
        Linea(x1, y2, x1, y1, colore, 1);
    }
    void Punto(double x, double y, Colore colore) override {
        if (x < L_ && y < H_) Linea(x, y, x, y, colore, 1);
    }
    void Cerchio(double x, double y, double raggio, Colore colore, Colore, double inizio, double fine, double aspetto) override {
        constexpr int CORDE = 72;
        const double rx = raggio / std::max(1.0, std::fabs(aspetto)), ry = rx * std::fabs(aspetto);
        double arco = fine == 0 ? 2 * PI : std::fmod(fine - inizio, 2 * PI);
        if (arco <= 0) arco += 2 * PI;
        for (int i = 0; i < CORDE; ++i) {
            const double a = inizio + arco * i / CORDE, b = inizio + arco * (i + 1) / CORDE;
            Linea(x + rx * std::cos(a), y - ry * std::sin(a), x + rx * std::cos(b), y - ry * std::sin(b), colore, 1);
        }
    }

private:
    const Tavolo::GrigliaPagine g_;
    const double L_, H_;  // metres
};

}  // namespace

void Tavolo::xPlotA4() {
    // The picture is the sheet at the present scale, so in metres it is the sheet again.
    const double w = LarghezzaImmagine() / ScalaBase * scala_, h = AltezzaImmagine() / ScalaBase * scala_;
    if (dispositivo) dispositivo->Tratteggio(true);
    for (const double x : Conteggio(larghezzaPagina_, w + 3 * larghezzaPagina_, larghezzaPagina_))
        xLine(x - q_.x, -q_.y, x - q_.x, h - q_.y, GRIGIO, idGriglia_, 1);
    for (const double y : Conteggio(altezzaPagina_, h + 3 * altezzaPagina_, altezzaPagina_))
        xLine(-q_.x, y - q_.y, w - q_.x, y - q_.y, GRIGIO, idGriglia_, 1);
    if (dispositivo) dispositivo->Tratteggio(false);
}

void Tavolo::xTrovaA4(double X, double Y) {
    const auto colonna = casella(X, larghezzaPagina_), riga = casella(Y, altezzaPagina_);
    if (!colonna || !riga) return;
    if (piastrelleAScelta) {
        if (!(X < q_.L && Y < q_.H)) return;
        const auto gia = std::find_if(lista_.Aree.begin(), lista_.Aree.end(),
                                      [&](const RecArea &a) { return a.X == colonna->bordo && a.Y == riga->bordo; });
        if (gia != lista_.Aree.end()) {
            lista_.togliArea(static_cast<std::size_t>(gia - lista_.Aree.begin()));
            return Refresh();
        }
    }
    scegli(*colonna, *riga);
}

void Tavolo::scegli(const Casella &colonna, const Casella &riga) {
    // A last column of less than a twentieth is not counted.
    const Valore q = LarghezzaImmagine() / ScalaBase * scala_ / larghezzaPagina_;
    const double n = Int(q).v + (Round(q, 1) > Int(q) ? 1 : 0);
    const double numero = riga.numero * n + colonna.numero + 1;
    if (!(numero >= 1 && numero <= PIASTRELLE_MASSIME)) return;
    const int pagina = static_cast<int>(numero);

    const double sinistra = colonna.bordo - q_.x, destra = colonna.bordo + larghezzaPagina_ - q_.x;
    const double alto = riga.bordo - q_.y, basso = riga.bordo + altezzaPagina_ - q_.y;
    constexpr Colore ARANCIO = 0x80FF;
    const std::size_t linea = lista_.Linee.size(), testo = lista_.Testi.size();
    xLine(sinistra, alto, destra, alto, ARANCIO, idPagina_);
    xLine(destra, alto, destra, basso, ARANCIO, idPagina_);
    xLine(destra, basso, sinistra, basso, ARANCIO, idPagina_);
    xLine(sinistra, basso, sinistra, alto, ARANCIO, idPagina_);
    Dati(std::to_string(pagina), sinistra + 0.003, alto + 0.003);
    lista_.Aree.push_back({pagina, colonna.bordo, riga.bordo, linea, testo});
}

void Tavolo::LasciaPagine() {
    while (!lista_.Aree.empty()) lista_.togliArea(lista_.Aree.size() - 1);
}

std::set<std::pair<int, int>> Tavolo::PagineConLinee(const GrigliaPagine &griglia) const {
    const double pagine = (q_.L / griglia.passoX + 1) * (q_.H / griglia.passoY + 1);
    if (!(q_.L > 0 && q_.H > 0 && griglia.passoX > 0 && griglia.passoY > 0 && pagine <= PIASTRELLE_MASSIME)) return {};
    Segnatessere d(griglia, q_.L, q_.H);
    Pittore p = pittore(d);
    p.scala = 1;
    struct VisitaPagine {
        const Pittore &p;
        const Lista &l;
        [[nodiscard]] bool conta(IdNome Id) const { return p.specchia(Id) && Id != p.griglia; }
        void punto(const RecPunto &r) const {
            if (p.quadrante.tiene(r.X, r.Y)) p.punto(r.X, r.Y, r.colore);
        }
        void linea(const RecLinea &r) const {
            if (conta(r.Id)) p.linea(r.X1, r.Y1, r.X2, r.Y2, r.colore, r.Spessore, true);
        }
        void figura(std::size_t i) const { p.figura(l, l.Figure[i]); }
    };
    Percorri(lista_, VisitaPagine{p, lista_});
    return std::move(d.tessere);
}

std::size_t Tavolo::ScegliPiene() {
    for (const auto &[riga, colonna] : PagineConLinee({larghezzaPagina_, altezzaPagina_, larghezzaPagina_, altezzaPagina_})) {
        const double x = (colonna + 0.5) * larghezzaPagina_, y = (riga + 0.5) * altezzaPagina_;
        const auto dove = casella(x, larghezzaPagina_), sotto = casella(y, altezzaPagina_);
        const bool gia = std::any_of(lista_.Aree.begin(), lista_.Aree.end(),
                                     [&](const RecArea &a) { return a.X == dove->bordo && a.Y == sotto->bordo; });
        // The middle of a last, narrow tile lies beside the sheet.
        if (!gia) scegli(*dove, *sotto);
    }
    return lista_.Aree.size();
}

void Tavolo::PrintAll(Dispositivo &stampante) {
    const SullaStampante guida(*this, stampante);
    double y = RIENTRO;
    pittore().testo(0, y, Marchio, ForeColor);
    // The sheet's texts as a plain list at the page's head; Refresh then puts them in their places too.
    for (const RecTesto &t : lista_.Testi) pittore().testo(0, y += ALTEZZA_RIGA, t.Testo, t.colore);
    Refresh();
}

}  // namespace ombrelia
