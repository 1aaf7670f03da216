// A page with tables on a printer's pages: no cell of a table with a head is broken, and the head is repeated.
#pragma once

#include <QByteArray>
#include <QPagedPaintDevice>
#include <QString>

#include "paint/pagina_stampata.h"

namespace ombrelia::paint {

struct TavolaStampata {
    QString titolo, luogo;  // of the head that pages behind the first have
    QString html;           // with its own title
    double corpo = 10;      // points of its tables' letters, where they have room
};

// Upright while the widest row has letters of 6.5 points or more there, else on its side; 4 at the least.
[[nodiscard]] Composizione ComponiTavola(const TavolaStampata &t, const QPagedPaintDevice &stampante);
// Composes it for the page as the printer has it and paints it. A row that is too wide at 4 points is cut off.
Composizione StampaTavola(const TavolaStampata &t, QPagedPaintDevice &stampante);
// As a document of A4 pages.
[[nodiscard]] QByteArray PdfTavola(const TavolaStampata &t);

}  // namespace ombrelia::paint
