// The drawing surface of the whole program: the display list, the sheet it lies on and the one transform from world to
// device. Engines draw only through it and it records whether or not a device is there.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/controlli.h"
#include "core/reale.h"
#include "plot/dispositivo.h"
#include "plot/lista.h"

namespace ombrelia {

// World coordinates: metres on the dial's plane, origin at (ShiftX, ShiftY) from the sheet's top left corner, x to the
// right, y downward. Every coordinate argument is a Valore: a call with an argument that has no value is a faulted
// statement and does nothing.
class Tavolo {
public:
    static constexpr double ScalaBase = 56700.0;  // device units (twips) a metre at 1:1
    static constexpr double ALTEZZA_RIGA = 195;   // device units from one text line to the next
    static constexpr double LATO_MASSIMO = 15;    // metres

    // A page of the printer in device units; A4 upright when no printer says otherwise.
    explicit Tavolo(double larghezzaPagina = 11906, double altezzaPagina = 16838);

    // --- drawing -------------------------------------------------------------------------------------------------
    // Width 1 is the pen's own; Store false paints only.
    void xLine(Valore X1, Valore Y1, Valore X2, Valore Y2, Colore colore, std::string_view Id = {}, bool Store = true);
    void xLine(Valore X1, Valore Y1, Valore X2, Valore Y2, Colore colore, IdNome Id) ;
    // Only a point of the sheet is kept: its low edges belong to it, its high edges do not.
    void xPset(Valore X, Valore Y, Colore colore, std::string_view Id = {}, bool Store = true);
    void xBox(Valore X1, Valore Y1, Valore X2, Valore Y2, Colore colore, bool Filled, std::string_view Id = {}, bool Store = true);
    void xCircle(Valore X, Valore Y, Valore Raggio, Colore colore, Colore FillColor = -1, Valore Aspect = 1, Valore Start = 0,
                 Valore End = 0, std::string_view Id = {}, bool Store = true);
    void xPlineStart(std::string_view Id);
    void xPLineVertex(Valore X, Valore Y, Colore colore, std::string_view Id);
    // Paints the polyline: it appears only when ended.
    void xPlineEnd(std::string_view Id);
    // Text at (X, Y), or at the present device position where a coordinate is missing. Afterwards the position is the
    // left edge of the sheet, one line lower. Texts do not mirror.
    void Dati(std::string_view Text, std::optional<Valore> X = {}, std::optional<Valore> Y = {}, bool Store = true);
    // Status line; records nothing.
    void Messaggio(std::string_view Text);
    // Empties list and picture, mirrors off; sheet, shift and scale stay.
    void Clear();
    // Repaints the attached device from the list: texts first, then the primitives in their order.
    void Refresh();

    // --- sheet ---------------------------------------------------------------------------------------------------
    [[nodiscard]] double QuadranteH() const { return quadranteH_; }
    [[nodiscard]] double QuadranteL() const { return quadranteL_; }
    void QuadranteH(double metri);
    void QuadranteL(double metri);
    [[nodiscard]] double ShiftX() const { return shiftX_; }
    [[nodiscard]] double ShiftY() const { return shiftY_; }
    void ShiftX(double metri);
    void ShiftY(double metri);
    [[nodiscard]] int Scala() const { return scala_; }
    // n of the scale 1:n; without effect below ScalaMinima, which counts as 0 on a printer.
    void Scala(int n);
    [[nodiscard]] int ScalaMinima() const;
    [[nodiscard]] double ScalaCorrente() const { return scalaCorrente_; }
    [[nodiscard]] double LarghezzaPagina() const { return larghezzaPagina_; }
    [[nodiscard]] double AltezzaPagina() const { return altezzaPagina_; }
    // Entries of the scale list, from the smallest allowed.
    [[nodiscard]] const std::vector<int> &cmbScala() const { return vociScala_; }
    void CaricaComboScala(int Minimo, int Corrente);

    // Present device position as world metres.
    [[nodiscard]] double xCurrentX() const { return currentX_ / ScalaBase * scala_ - shiftX_; }
    [[nodiscard]] double xCurrentY() const { return currentY_ / ScalaBase * scala_ - shiftY_; }

    double FattoreX = 1.0, FattoreY = 1.0;  // mirrors, each 1 or -1
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
    // Selects the tile under a point given in metres from the sheet's corner.
    void xTrovaA4(double X, double Y);
    // A press of the mouse at a device position: read-out in whole millimetres, then xTrovaA4.
    void MouseDown(double px, double py);

    [[nodiscard]] const Lista &lista() const { return lista_; }
    [[nodiscard]] IdNome nome(std::string_view Id) { return lista_.nomi.id(Id); }

    Dispositivo *dispositivo = nullptr;                        // not owned; may be absent
    std::function<void(std::string_view)> suMessaggio;         // hears the status line
    std::function<void()> suDimensioni;                        // hears a new plot size
    std::function<void(bool)> suAttesa;                        // wait cursor on and off
};

// Meeting point of the line through points 1 and 2 with the line through points 3 and 4; none when they are parallel.
struct PuntoPiano {
    double x, y;
};
[[nodiscard]] std::optional<PuntoPiano> IntersezioneDueRette(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4);

}  // namespace ombrelia
