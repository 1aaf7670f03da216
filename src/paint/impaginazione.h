// The sheet cut into pages that are joined again: how they lie on it, and each on its paper with what helps to join them.
#pragma once

#include <QByteArray>
#include <QPagedPaintDevice>
#include <vector>

#include "paint/documenti.h"

namespace ombrelia::paint {

// A page: its number, and what it shows of the sheet, metres from the sheet's top left corner.
struct PaginaFoglio {
    int numero = 0, riga = 0, colonna = 0;
    double x = 0, y = 0, larga = 0, alta = 0;
    bool piena = false;  // something of the drawing crosses it
};

// Given, gives: metres. Source: plane geometry. Faults: margins too wide leave sizes that are not buona().
struct Impaginazione {
    Carta carta = CARTA_A4;      // as it lies
    double margine = 0.0075;     // metres, on each side of the paper
    double sovrapposizione = 0;  // metres that two neighbours both show
    bool segni = true;           // number and cut marks
    bool righello = true;        // a bar of 100 mm to check the print by

    [[nodiscard]] double larga() const { return carta.larga - 2 * margine; }
    [[nodiscard]] double alta() const { return carta.alta - 2 * margine; }
    // Pages exist, and each leaves something that its neighbour doesn't show.
    [[nodiscard]] bool buona() const;
};

// All pages of the sheet, row by row, numbered from 1. None for a layout that is not good, a sheet without an area or more
// than 10,000 pages.
[[nodiscard]] std::vector<PaginaFoglio> PagineDi(const Tavolo &t, const Impaginazione &come);

// Each page at 1:1 in the middle of a paper of its own; a dashed line shows where the next page begins. False when there is
// none or the run was stopped.
bool StampaPagine(Tavolo &t, const std::vector<PaginaFoglio> &pagine, const Impaginazione &come, QPagedPaintDevice &stampante,
                  const Avanzamento &avanza = {});
// The same as a document of pages of that paper; empty when there is none or the run was stopped.
[[nodiscard]] QByteArray PdfPagine(Tavolo &t, const std::vector<PaginaFoglio> &pagine, const Impaginazione &come,
                                   const Avanzamento &avanza = {});

}  // namespace ombrelia::paint
