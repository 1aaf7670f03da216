// A drawing as a document: PDF at true scale, pictures, and the pages of a printer. Dark on white, as paper is.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPagedPaintDevice>
#include <functional>

#include "plot/tavolo.h"

namespace ombrelia::paint {

// Points of a PDF page a metre.
inline constexpr double PUNTI_AL_METRO = 72 / 0.0254;
// Of the pictures, at the sheet's present scale.
inline constexpr int PUNTI_AL_POLLICE = 150;

// Hears each tile before it is drawn (from 0, of how many) and stops the run by false.
using Avanzamento = std::function<bool(std::size_t, std::size_t)>;

// The whole sheet as one page of its own size, true to scale, in the records' colours. Empty, and errore tells why, for a
// sheet without an area.
[[nodiscard]] QByteArray PdfFoglio(Tavolo &t, std::string &errore);
// The selected tiles, each on a page of the sheet's paper. Empty when none is selected or the run was stopped.
[[nodiscard]] QByteArray PdfPiastrelle(Tavolo &t, const Avanzamento &avanza = {});
// The sheet at its present scale; its dots per metre are those of the true size.
[[nodiscard]] QImage Immagine(Tavolo &t, std::string &errore);
// A picture file's bytes; formato is "PNG" or "BMP".
[[nodiscard]] QByteArray FileImmagine(Tavolo &t, const char *formato, std::string &errore);

// The printer's paper, as it lies. Tiles chosen for another no longer fit: see Tavolo::Pagina.
[[nodiscard]] Carta CartaDi(const QPagedPaintDevice &stampante);
// The sheet as it lies, at its present scale, in the middle of one page, its texts listed at its head. What a printer does
// not reach is cut off.
void StampaTutto(Tavolo &t, QPagedPaintDevice &stampante);
// The selected tiles at 1:1, each in the middle of a page of its own, with its number, a ruler of 100 mm and cut marks in
// the page's margins. A tile shows what its outline encloses on the sheet, whatever the sheet's shift. False when none
// is selected or the run was stopped.
bool StampaPiastrelle(Tavolo &t, QPagedPaintDevice &stampante, const Avanzamento &avanza = {});

}  // namespace ombrelia::paint
