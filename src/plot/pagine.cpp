// Pages: the grid of tiles, their selection, and the printing runs.
#include "core/angoli.h"
#include "core/conteggio.h"
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

struct Casella {
    double bordo;  // metres from the sheet's corner
    int numero;
};

// Column or row of a position, counted by repeated addition; none off the grid.
std::optional<Casella> casella(double posizione, double lato) {
    if (!(posizione >= 0)) return {};
    Casella c{0, 0};
    while (!(posizione - c.bordo < lato)) {
        if (++c.numero >= PIASTRELLE_MASSIME) return {};
        c.bordo += lato;
    }
    return c;
}

}  // namespace

void Tavolo::xPlotA4() {
    // The picture is the sheet at the present scale, so in metres it is the sheet again.
    const double w = LarghezzaImmagine() / ScalaBase * scala_, h = AltezzaImmagine() / ScalaBase * scala_;
    constexpr Colore GRIGIO = 0x808080;
    const IdNome id = nome("Page");
    if (dispositivo) dispositivo->Tratteggio(true);
    for (const double x : Conteggio(larghezzaPagina_, w + 3 * larghezzaPagina_, larghezzaPagina_))
        xLine(x - shiftX_, -shiftY_, x - shiftX_, h - shiftY_, GRIGIO, id, 1);
    for (const double y : Conteggio(altezzaPagina_, h + 3 * altezzaPagina_, altezzaPagina_))
        xLine(-shiftX_, y - shiftY_, w - shiftX_, y - shiftY_, GRIGIO, id, 1);
    if (dispositivo) dispositivo->Tratteggio(false);
}

void Tavolo::xTrovaA4(double X, double Y) {
    const auto colonna = casella(X, larghezzaPagina_), riga = casella(Y, altezzaPagina_);
    if (!colonna || !riga) return;
    // A last column of less than a twentieth is not counted.
    const Valore q = LarghezzaImmagine() / ScalaBase * scala_ / larghezzaPagina_;
    const double n = Int(q).v + (Round(q, 1) > Int(q) ? 1 : 0);
    const double numero = riga->numero * n + colonna->numero + 1;
    if (!(numero >= 1 && numero <= PIASTRELLE_MASSIME)) return;
    const int pagina = static_cast<int>(numero);

    const double sinistra = colonna->bordo - shiftX_, destra = colonna->bordo + larghezzaPagina_ - shiftX_;
    const double alto = riga->bordo - shiftY_, basso = riga->bordo + altezzaPagina_ - shiftY_;
    constexpr Colore ARANCIO = 0x80FF;
    xLine(sinistra, alto, destra, alto, ARANCIO, idPagina_);
    xLine(destra, alto, destra, basso, ARANCIO, idPagina_);
    xLine(destra, basso, sinistra, basso, ARANCIO, idPagina_);
    xLine(sinistra, basso, sinistra, alto, ARANCIO, idPagina_);
    Dati(std::to_string(pagina), sinistra + 0.003, alto + 0.003);
    lista_.Aree.push_back({pagina, colonna->bordo, riga->bordo});
}

void Tavolo::PrintAll(Dispositivo &stampante) {
    const SullaStampante guida(*this, stampante);
    double y = RIENTRO;
    dipingiTesto(0, y, Marchio);
    // The sheet's texts as a plain list at the page's head; Refresh then puts them in their places too.
    for (const RecTesto &t : lista_.Testi) dipingiTesto(0, y += ALTEZZA_RIGA, t.Testo);
    Refresh();
    stampante.FineDocumento();
}

bool Tavolo::PrintArea(Dispositivo &stampante, const std::function<bool(std::size_t, std::size_t)> &avanza) {
    if (lista_.Aree.empty()) return false;
    // Members are set and put back directly: the sheet on the screen and its panels show nothing of the run.
    struct Foglio {
        Tavolo &t;
        double sx, sy, h, l, corrente;
        int scala;
        ~Foglio() {
            t.shiftX_ = sx;
            t.shiftY_ = sy;
            t.quadranteH_ = h;
            t.quadranteL_ = l;
            t.scalaCorrente_ = corrente;
            t.scala_ = scala;
        }
    };
    const Foglio prima{*this, shiftX_, shiftY_, quadranteH_, quadranteL_, scalaCorrente_, scala_};
    const SullaStampante guida(*this, stampante);
    quadranteH_ = altezzaPagina_;
    quadranteL_ = larghezzaPagina_;
    scala_ = 1;
    scalaCorrente_ = ScalaBase;
    std::size_t fatte = 0;
    for (const RecArea &a : lista_.Aree) {
        if (avanza && !avanza(fatte++, lista_.Aree.size())) break;
        const std::string numero = std::to_string(a.Pagina);
        dipingiTesto(RIENTRO, RIENTRO, Marchio.empty() ? numero : numero + " " + Marchio);
        // The shift alone selects what comes on the page.
        shiftX_ = -a.X;
        shiftY_ = -a.Y;
        Refresh();
        stampante.NuovaPagina();
    }
    stampante.FineDocumento();
    return true;
}

}  // namespace ombrelia
