// What printed texts and tables share: letters as large as their widest row lets them be, a page turned as it needs, a head and
// a number.
#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace ombrelia::paint {

// How something lies on its pages.
struct Composizione {
    bool orizzontale = false;
    double corpo = 0;       // points
    bool spezzate = false;  // the widest row does not fit at the smallest size
    int pagine = 0;
};

// Sizes of letters in points. The page stays upright while they are dritte or larger there.
struct Corpi {
    double massimo, dritto, minimo;
};

// For the page as it lies. larga: width of the widest row in points, for letters of one point.
[[nodiscard]] Composizione ComponiQui(double larga, const QPagedPaintDevice &stampante, const Corpi &corpi);
// For the same paper, upright or on its side.
[[nodiscard]] Composizione Componi(double larga, const QPagedPaintDevice &stampante, const Corpi &corpi);

// The pages of a document that is being painted.
class PaginaStampata {
public:
    PaginaStampata(QPainter &p, QPagedPaintDevice &stampante, const QString &titolo, const QString &luogo);
    // Where a page's rows go, painter units.
    [[nodiscard]] QRectF campo() const { return campo_; }
    // The next page: its head, unless the rows have their own, and its number of how many.
    void apri(int pagine, bool testata = true);

private:
    QPainter &p_;
    QPagedPaintDevice &stampante_;
    QString titolo_, luogo_;
    double u_;  // painter units a metre
    QRectF campo_;
    int fatte_ = 0;
};

}  // namespace ombrelia::paint
