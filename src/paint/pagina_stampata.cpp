// Pages of rows.
#include "paint/pagina_stampata.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageLayout>
#include <algorithm>
#include <cmath>

#include "paint/su_carta.h"

namespace ombrelia::paint {

namespace {

constexpr double MARGINE = 0.015, TESTATA = 0.012, PIEDE = 0.008;  // metres

QSizeF foglio(const QPagedPaintDevice &d) {
    return d.pageLayout().fullRect(QPageLayout::Point).size() / 72 * POLLICE;  // metres
}

double corpoPer(double larga, double carta, double massimo) {
    const double posto = (carta - 2 * MARGINE) / POLLICE * 72;
    return larga > 0 ? std::min(massimo, posto / larga) : massimo;
}

// Letters a little smaller than would do, so that rounding does not break a row.
Composizione suCarta(double larga, double carta, const Corpi &corpi) {
    constexpr double FINO = 20;
    Composizione c;
    c.corpo = std::floor(corpoPer(larga, carta, corpi.massimo) * FINO) / FINO;
    c.spezzate = c.corpo < corpi.minimo;
    c.corpo = std::max(c.corpo, corpi.minimo);
    return c;
}

}  // namespace

Composizione ComponiQui(double larga, const QPagedPaintDevice &stampante, const Corpi &corpi) {
    const QSizeF f = foglio(stampante);
    Composizione c = suCarta(larga, f.width(), corpi);
    c.orizzontale = f.width() > f.height();
    return c;
}

Composizione Componi(double larga, const QPagedPaintDevice &stampante, const Corpi &corpi) {
    const QSizeF f = foglio(stampante);
    const double stretta = std::min(f.width(), f.height()), lunga = std::max(f.width(), f.height());
    const bool diLato = corpoPer(larga, stretta, corpi.massimo) < corpi.dritto;
    Composizione c = suCarta(larga, diLato ? lunga : stretta, corpi);
    c.orizzontale = diLato;
    return c;
}

PaginaStampata::PaginaStampata(QPainter &p, QPagedPaintDevice &stampante, const QString &titolo, const QString &luogo)
    : p_(p), stampante_(stampante), titolo_(titolo), luogo_(luogo), u_(UnitaAlMetro(stampante)) {
    const QSizeF f = foglio(stampante);
    campo_ = QRectF(MARGINE * u_, (MARGINE + TESTATA) * u_, (f.width() - 2 * MARGINE) * u_,
                    (f.height() - 2 * MARGINE - TESTATA - PIEDE) * u_);
}

void PaginaStampata::apri(int pagine, bool testata) {
    constexpr double CORPO = 9;
    if (fatte_ > 0) stampante_.newPage();
    ++fatte_;
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPointSizeF(CORPO);
    const double x = campo_.left(), larga = campo_.width(), su = MARGINE * u_;
    const double riga = QFontMetricsF(f, &stampante_).lineSpacing();
    p_.setPen(Qt::black);
    if (testata) {
        // A line too long has smaller letters, down to 6 points, before it is cut short.
        const auto scrivi = [&](double y, QFont come, const QString &testo) {
            const double lungo = QFontMetricsF(come, &stampante_).horizontalAdvance(testo);
            if (lungo > larga) come.setPointSizeF(std::max(6.0, std::floor(CORPO * larga / lungo * 20) / 20));
            p_.setFont(come);
            p_.drawText(QRectF(x, y, larga, riga), Qt::AlignLeft | Qt::AlignTop,
                        QFontMetricsF(come, &stampante_).elidedText(testo, Qt::ElideRight, larga));
        };
        QFont grassa = f;
        grassa.setBold(true);
        scrivi(su, grassa, titolo_);
        scrivi(su + riga, f, luogo_);
        p_.setPen(QPen(Qt::black, 0.0001 * u_));
        p_.drawLine(QPointF(x, su + 2.15 * riga), QPointF(x + larga, su + 2.15 * riga));
    }
    p_.setFont(f);
    p_.drawText(QRectF(x, campo_.bottom() + 0.002 * u_, larga, riga), Qt::AlignRight | Qt::AlignTop,
                QStringLiteral("%1/%2").arg(fatte_).arg(pagine));
}

}  // namespace ombrelia::paint
