// The drawing surface of the whole program: the display list, the sheet it lies on and the one transform from world to
// device. Engines draw only through it and it records whether or not a device is there.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/inputs.h"
#include "core/reale.h"
#include "core/testo.h"
#include "plot/carta.h"
#include "plot/dispositivo.h"
#include "plot/lista.h"
#include "plot/pittore.h"

namespace ombrelia {

// Ordinate of the foot where a script reads 0: scripts read y downward, and would read 0 as -0.
inline constexpr double PIEDE = -0.0;

// World coordinates: metres on the dial's plane, origin at (ShiftX, ShiftY) from the sheet's top left corner, x to the
// right, y upward. Every coordinate argument is a Valore: a call with an argument that has no value is a faulted
// statement and does nothing.
class Tavolo {
public:
    static constexpr double ScalaBase = 56700.0;  // device units (twips) a metre at 1:1
    static constexpr double ALTEZZA_RIGA = 195;   // device units from one text line to the next
    static constexpr double LATO_MASSIMO = 15;    // metres

    // A page of the printer in device units; A4 upright when no printer says otherwise.
    explicit Tavolo(double larghezzaPagina = 11906, double altezzaPagina = 16838);

    // --- drawing -------------------------------------------------------------------------------------------------
    // As a dial thinks and as the list keeps it: y upward from the foot. Width 1 is the pen's own.
    void TracciaLinea(Valore x1, Valore y1, Valore x2, Valore y2, Colore colore, std::string_view Id = {}) {
        TracciaLinea(x1, y1, x2, y2, colore, nome(Id));
    }
    void TracciaLinea(Valore x1, Valore y1, Valore x2, Valore y2, Colore colore, IdNome Id) {
        TracciaLinea(x1, y1, x2, y2, colore, Id, Penna());
    }
    // With a pen width of its own.
    void TracciaLinea(Valore x1, Valore y1, Valore x2, Valore y2, Colore colore, IdNome Id, std::int32_t Spessore) {
        if (!(x1.esiste() && y1.esiste() && x2.esiste() && y2.esiste())) return;
        if (lista_.Ordine.size() >= recordMassimi) pieno();
        lista_.Linee.push_back({x1.v, y1.v, x2.v, y2.v, colore, Spessore, Id});
        lista_.Ordine.push_back('L');
        if (dispositivo) pittore().linea(x1.v, y1.v, x2.v, y2.v, colore, Spessore, specchia(Id));
    }
    // Only a point of the sheet is kept: its left and top edge belong to it, the others do not.
    void TracciaPunto(Valore x, Valore y, Colore colore, std::string_view Id = {}) { TracciaPunto(x, y, colore, nome(Id)); }
    void TracciaPunto(Valore x, Valore y, Colore colore, IdNome Id) {
        if (!q_.tiene(x, y)) return;
        if (lista_.Ordine.size() >= recordMassimi) pieno();
        lista_.Punti.push_back({x.v, y.v, colore, Id});
        lista_.Ordine.push_back('P');
        if (dispositivo) pittore().punto(x.v, y.v, colore);
    }
    // Many points of the sheet, as TracciaPunto records them one by one; the list's room is taken once.
    void TracciaPunti(std::span<const RecPunto> punti);
    void TracciaRiquadro(Valore x1, Valore y1, Valore x2, Valore y2, Colore colore, bool pieno, std::string_view Id = {});
    void TracciaCerchio(Valore x, Valore y, Valore raggio, Colore colore, Colore FillColor = -1, Valore Aspect = 1,
                        Valore Start = 0, Valore End = 0, std::string_view Id = {});
    void Scritta(std::string_view testo, Valore x, Valore y) { scrivi(testo, x, y); }

    // The same in the sheet's frame, y downward, as action scripts read and write it: the surface's whole set, polylines too.
    // Engines draw by the routines above and need no polyline; every reader of the list knows what one is.
    template <class... T>
    void xLine(Valore X1, Valore Y1, Valore X2, Valore Y2, Colore colore, const T &...altro) {
        TracciaLinea(X1, Capovolta(Y1), X2, Capovolta(Y2), colore, altro...);
    }
    template <class... T>
    void xPset(Valore X, Valore Y, Colore colore, const T &...altro) {
        TracciaPunto(X, Capovolta(Y), colore, altro...);
    }
    template <class... T>
    void xCircle(Valore X, Valore Y, Valore Raggio, Colore colore, const T &...altro) {
        TracciaCerchio(X, Capovolta(Y), Raggio, colore, altro...);
    }
    void xBox(Valore X1, Valore Y1, Valore X2, Valore Y2, Colore colore, bool Filled, std::string_view Id = {}) {
        TracciaRiquadro(X1, Capovolta(Y1), X2, Capovolta(Y2), colore, Filled, Id);
    }
    void xPlineStart(std::string_view Id);
    void xPLineVertex(Valore X, Valore Y, Colore colore, std::string_view Id);
    // Paints the polyline: it appears only when ended.
    void xPlineEnd(std::string_view Id);
    // Text at (X, Y), or at the present device position where a coordinate is missing. Afterwards the position is the
    // left edge of the sheet, one line lower. Texts do not mirror.
    void Dati(std::string_view Text, std::optional<Valore> X = {}, std::optional<Valore> Y = {}) {
        scrivi(Text, X, Y ? std::optional(Capovolta(*Y)) : std::nullopt);
    }
    // Status line; records nothing.
    void Messaggio(std::string_view Text);
    // Empties list and picture, mirrors off; sheet, shift and scale stay.
    void Clear();
    // Swaps the drawings of two sheets, text positions with them; nothing is painted.
    void ScambiaDisegno(Tavolo &altro) {
        std::swap(lista_, altro.lista_);
        std::swap(currentX_, altro.currentX_);
        std::swap(currentY_, altro.currentY_);
    }
    // Room for a drawing as large as another's, which the next run's is likely to be.
    void riserva(const Tavolo &come) { lista_.riserva(come.lista_); }
    // A drawing kept aside, and put back; nothing is painted.
    struct DisegnoTenuto {
        Lista lista;
        double currentX = 0, currentY = 0;
    };
    [[nodiscard]] DisegnoTenuto CopiaDisegno() const { return {lista_, currentX_, currentY_}; }
    void MettiDisegno(DisegnoTenuto d) {
        lista_ = std::move(d.lista);
        currentX_ = d.currentX;
        currentY_ = d.currentY;
    }
    // Repaints the attached device from the list: texts first, each in its own colour, then the primitives in their order.
    // A printer is not wiped before.
    void Refresh();
    // Pen width of the target: of the screen 1, of the printer 2.
    [[nodiscard]] std::int32_t Penna() const { return OutputToPRN ? 2 : 1; }

    // --- sheet ---------------------------------------------------------------------------------------------------
    [[nodiscard]] const Quadrante &quadrante() const { return q_; }
    [[nodiscard]] double QuadranteH() const { return q_.H; }
    [[nodiscard]] double QuadranteL() const { return q_.L; }
    void QuadranteH(double metri);
    void QuadranteL(double metri);
    [[nodiscard]] double ShiftX() const { return q_.x; }
    [[nodiscard]] double ShiftY() const { return q_.y; }
    void ShiftX(double metri);
    void ShiftY(double metri);
    [[nodiscard]] int Scala() const { return scala_; }
    // n of the scale 1:n; without effect below ScalaMinima, which counts as 0 on a printer.
    void Scala(int n);
    [[nodiscard]] int ScalaMinima() const;
    // A tile: what a page can hold; and the page itself. Metres.
    [[nodiscard]] double LarghezzaPagina() const { return larghezzaPagina_; }
    [[nodiscard]] double AltezzaPagina() const { return altezzaPagina_; }
    [[nodiscard]] const Carta &carta() const { return carta_; }
    // Tiles by this page from now on. Tiles chosen on pages of another size are given up; true when there were any.
    bool Pagina(const Carta &carta);
    // Entries of the scale list, from the smallest allowed.
    [[nodiscard]] const std::vector<int> &cmbScala() const { return vociScala_; }
    void CaricaComboScala(int Minimo, int Corrente);

    // Where a point of the drawing is painted, and what point is painted there. Given: metres, y upward; back, metres from the
    // sheet's top left corner, y downward. Gives: the other of the two, mirrored as the sheet is. Source: by definition of the
    // sheet. Faults: none.
    [[nodiscard]] PuntoPiano dipinto(double x, double y) const {
        return {q_.daSinistra(x * FattoreX), q_.dallAlto(y * FattoreY)};
    }
    [[nodiscard]] PuntoPiano disegnato(double daSinistra, double dallAlto) const {
        return {(daSinistra - q_.x) * FattoreX, q_.dallAlto(dallAlto) * FattoreY};
    }

    // Size of the picture. Given: the sheet and its scale. Gives: device units. Source: by definition of the scale. Faults: none.
    [[nodiscard]] double LarghezzaImmagine() const { return q_.L * ScalaBase / scala_; }
    [[nodiscard]] double AltezzaImmagine() const { return q_.H * ScalaBase / scala_; }

    // Present device position. Given: device units. Gives: metres from the world's origin, y downward. Source, faults: as above.
    [[nodiscard]] double xCurrentX() const { return currentX_ / ScalaBase * scala_ - q_.x; }
    [[nodiscard]] double xCurrentY() const { return currentY_ / ScalaBase * scala_ - q_.y; }

    double FattoreX = 1.0, FattoreY = 1.0;  // mirrors, each 1 or -1
    // Off for action scripts: arcs mirror with the drawing and not only their centres; a tile's second
    // click takes it back, and a click beside the sheet chooses none.
    bool specchiaArchi = false, piastrelleAScelta = false;
    [[nodiscard]] Specchio specchio() const { return {FattoreX, FattoreY, specchiaArchi}; }
    Colore ForeColor = 0;
    bool OutputToPRN = false;      // the target is the printer
    bool PrintMultiColor = false;  // else a printer prints in black
    std::string Marchio;           // text at the top left of each printed page
    PannelloTavolo pannello;       // texts of the surface's own panels

    void cmdInvX();
    void cmdInvY();
    // The axes through the origin, recorded; they do not mirror.
    void Assi();
    // The grid of pages, recorded.
    void xPlotA4();
    // Selects the tile under a point given in metres from the sheet's corner: draws its outline and number and adds it
    // to Aree. A point left of or above the sheet, or beyond a grid of 10,000 tiles, selects nothing.
    void xTrovaA4(double X, double Y);
    // Selects each tile of the sheet that something of the drawing crosses, row by row; gives how many are selected now.
    // Texts, axes, grid and page marks count for nothing.
    std::size_t ScegliPiene();
    // A grid of pages over the sheet, from its corner: their size, and from one to the next. Metres; pages that overlap
    // lie closer than their size.
    struct GrigliaPagine {
        double larga, alta, passoX, passoY;
    };
    // Row and column of the pages that something of the drawing crosses, as ScegliPiene counts. None of a grid beyond 10,000.
    [[nodiscard]] std::set<std::pair<int, int>> PagineConLinee(const GrigliaPagine &griglia) const;
    // Selects none any more; their outlines and numbers leave the drawing.
    void LasciaPagine();
    // The sheet as it lies, on one page, its texts listed at the page's head.
    void PrintAll(Dispositivo &stampante);
    // A press of the mouse at a device position: read-out in whole millimetres, then xTrovaA4.
    void MouseDown(double px, double py);

    // Column or row of the grid of tiles: its low edge, metres from the sheet's corner, and its number from 0.
    struct Casella {
        double bordo;
        int numero;
    };

    [[nodiscard]] const Lista &lista() const { return lista_; }
    [[nodiscard]] IdNome nome(std::string_view Id) { return lista_.nomi.id(Id); }
    // Keeps a claim up to the last record; one without records says nothing.
    void pretendi(Pretesa p) {
        p.a = lista_.Ordine.size();
        if (p.a > p.da) lista_.pretese.push_back(p);
    }

    // What the machine's memory can hold, for whoever designs; the record beyond it ends the run as a want of memory does.
    std::size_t recordMassimi = SIZE_MAX;
    Dispositivo *dispositivo = nullptr;                 // not owned; may be absent
    std::function<void(std::string_view)> suMessaggio;  // hears the status line
    std::function<void(bool)> suAttesa;                 // wait cursor on and off

private:
    static constexpr std::string_view ID_ASSI = "AssiXY", ID_PAGINA = "sys:page", ID_GRIGLIA = "Page";

    // Axes and page marks do not mirror.
    [[nodiscard]] bool specchia(IdNome Id) const { return Id != idAssi_ && Id != idPagina_; }
    // For the attached device; in black unless the target is the screen or prints in colours.
    [[nodiscard]] Pittore pittore() const { return pittore(*dispositivo); }
    [[nodiscard]] Pittore pittore(Dispositivo &d) const {
        return {d, q_, specchio(), scalaCorrente_, OutputToPRN && !PrintMultiColor, Penna(), idAssi_, idPagina_, idGriglia_};
    }

    void figura(const RecFigura &r, char ordine);
    void scrivi(std::string_view testo, std::optional<Valore> x, std::optional<Valore> y);
    [[noreturn]] static void pieno();
    void impostaScala(int n);
    void dopoFoglio();
    // Draws a tile's outline and number and adds it to Aree.
    void scegli(const Casella &colonna, const Casella &riga);

    Lista lista_;
    IdNome idAssi_, idPagina_, idGriglia_;
    Carta carta_ = CARTA_A4;
    double larghezzaPagina_, altezzaPagina_;  // usable, metres
    Quadrante q_;
    int scala_ = 1;
    double scalaCorrente_ = ScalaBase;
    std::vector<int> vociScala_;
    double currentX_ = 0, currentY_ = 0;  // device units
};

// Brackets the drawing of one line: what is recorded in its life claims to be that line. Brackets do not nest.
class Pretendi {
public:
    Pretendi(Tavolo &tavolo, Specie specie, double valore = 0) : tavolo_(tavolo) {
        const Lista &l = tavolo.lista();
        pretesa_ = {specie, valore, l.Ordine.size(), 0, l.Linee.size(), l.Punti.size(), l.Figure.size()};
    }
    Pretendi(const Pretendi &) = delete;
    Pretendi &operator=(const Pretendi &) = delete;
    ~Pretendi() { tavolo_.pretendi(pretesa_); }

private:
    Tavolo &tavolo_;
    Pretesa pretesa_;
};

}  // namespace ombrelia
