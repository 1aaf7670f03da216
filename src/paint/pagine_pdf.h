// Page boxes to the last digit: the toolkit's writer knows whole points only.
#pragma once

#include <QByteArray>
#include <QList>
#include <QSizeF>

namespace ombrelia::paint {

// The document with every page's box of this size in points, measured from the page's top left corner; the drawing is
// not touched. The document as it was when its pages are not found.
[[nodiscard]] QByteArray ConPagineEsatte(const QByteArray &pdf, const QSizeF &punti);

}  // namespace ombrelia::paint
