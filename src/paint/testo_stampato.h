// A text on a printer's pages: rows that are not broken, in their colours, with a head and the page's number.
#pragma once

#include <QPagedPaintDevice>
#include <QString>
#include <vector>

#include "core/colori.h"
#include "paint/pagina_stampata.h"

namespace ombrelia::paint {

struct RigaStampata {
    QString testo;
    Colore colore = 0;
};

struct TestoStampato {
    QString titolo, luogo;  // of each page's head: what it is, and where the dial stands
    std::vector<RigaStampata> righe;
};

// Upright while the widest row has letters of 7.5 points or more there, else on its side; letters of 10 points at the most and
// 6 at the least.
[[nodiscard]] Composizione ComponiTesto(const TestoStampato &t, const QPagedPaintDevice &stampante);
// Composes it for the page as the printer has it and paints it. Rows that are too wide at 6 points are broken.
Composizione StampaTesto(const TestoStampato &t, QPagedPaintDevice &stampante);

}  // namespace ombrelia::paint
