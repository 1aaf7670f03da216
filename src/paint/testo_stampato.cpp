// Rows measured, and set.
#include "paint/testo_stampato.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "paint/su_carta.h"
#include "paint/tinte.h"

namespace ombrelia::paint {

namespace {

constexpr double MASSIMO = 10, MINIMO = 6, DRITTO = 7.5;           // points
constexpr double MARGINE = 0.015, TESTATA = 0.012, PIEDE = 0.008;  // metres
constexpr int RIENTRO = 4;                                         // letters, of a broken row's rest

QFont carattere(double corpo) {
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPointSizeF(corpo);
    return f;
}

// Width of the widest row in points, for letters of one point.
double larghezza(const TestoStampato &t) {
    constexpr double PROVA = 100;
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPixelSize(static_cast<int>(PROVA));
    const QFontMetricsF m(f);
    double larga = 0;
    for (const RigaStampata &r : t.righe) larga = std::max(larga, m.horizontalAdvance(r.testo));
    return larga / PROVA;
}

double corpoPer(double larga, double carta) {
    const double posto = (carta - 2 * MARGINE) / POLLICE * 72;
    return larga > 0 ? std::min(MASSIMO, posto / larga) : MASSIMO;
}

// For a page of this width; letters a little smaller, so that rounding does not break a row.
Composizione componi(double larga, double carta) {
    constexpr double FINO = 20;
    Composizione c;
    c.corpo = std::floor(corpoPer(larga, carta) * FINO) / FINO;
    c.spezzate = c.corpo < MINIMO;
    c.corpo = std::max(c.corpo, MINIMO);
    return c;
}

// A row in pieces of so many letters; the rest is set in.
void spezza(const RigaStampata &r, qsizetype lettere, std::vector<RigaStampata> &righe) {
    QString resto = r.testo;
    while (resto.size() > lettere && lettere > 2 * RIENTRO) {
        // Between two columns, where there is a blank.
        qsizetype qui = resto.lastIndexOf(QLatin1Char(' '), lettere);
        if (qui <= lettere / 2) qui = lettere;
        righe.push_back({resto.left(qui), r.colore});
        resto = QString(RIENTRO, QLatin1Char(' ')) + resto.mid(qui).trimmed();
    }
    righe.push_back({resto, r.colore});
}

}  // namespace

Composizione ComponiTesto(const TestoStampato &t, QPagedPaintDevice &stampante) {
    const QSizeF punti = stampante.pageLayout().fullRect(QPageLayout::Point).size();
    const double stretta = std::min(punti.width(), punti.height()) / 72 * POLLICE,
                 lunga = std::max(punti.width(), punti.height()) / 72 * POLLICE;
    const double larga = larghezza(t);
    const bool diLato = corpoPer(larga, stretta) < DRITTO;
    Composizione c = componi(larga, diLato ? lunga : stretta);
    c.orizzontale = diLato;
    return c;
}

Composizione StampaTesto(const TestoStampato &t, QPagedPaintDevice &stampante) {
    InteraPagina(stampante);
    QPainter p(&stampante);
    if (!p.isActive()) return {};
    const double u = UnitaAlMetro(stampante);
    const QSizeF foglio = stampante.pageLayout().fullRect(QPageLayout::Point).size() / 72 * POLLICE;  // metres
    Composizione c = componi(larghezza(t), foglio.width());
    c.orizzontale = foglio.width() > foglio.height();
    const QFont f = carattere(c.corpo);
    p.setFont(f);
    const QFontMetricsF m(f, &stampante);
    const double x = MARGINE * u, larga = (foglio.width() - 2 * MARGINE) * u, su = (MARGINE + TESTATA) * u,
                 giu = (foglio.height() - MARGINE - PIEDE) * u, riga = m.lineSpacing();
    std::vector<RigaStampata> righe;
    const auto lettere = static_cast<qsizetype>(larga / m.horizontalAdvance(QLatin1Char('0')));
    for (const RigaStampata &r : t.righe)
        if (c.spezzate) spezza(r, lettere, righe);
        else righe.push_back(r);
    const auto aPagina = static_cast<std::size_t>(std::max(1.0, std::floor((giu - su) / riga)));
    const std::size_t pagine = std::max<std::size_t>(1, (righe.size() + aPagina - 1) / aPagina);
    QFont testata = carattere(9);
    for (std::size_t n = 0; n < pagine; ++n) {
        if (n > 0) stampante.newPage();
        p.setPen(Qt::black);
        testata.setBold(true);
        p.setFont(testata);
        const double interlinea = QFontMetricsF(testata, &stampante).lineSpacing();
        const auto entro = [&](const QString &testo) {
            return QFontMetricsF(p.font(), &stampante).elidedText(testo, Qt::ElideRight, larga);
        };
        p.drawText(QRectF(x, MARGINE * u, larga, interlinea), Qt::AlignLeft | Qt::AlignTop, entro(t.titolo));
        testata.setBold(false);
        p.setFont(testata);
        p.drawText(QRectF(x, MARGINE * u + interlinea, larga, interlinea), Qt::AlignLeft | Qt::AlignTop, entro(t.luogo));
        p.setPen(QPen(Qt::black, 0.0001 * u));
        const double filo = MARGINE * u + 2.15 * interlinea;
        p.drawLine(QPointF(x, filo), QPointF(x + larga, filo));
        p.drawText(QRectF(x, giu + 0.002 * u, larga, interlinea), Qt::AlignRight | Qt::AlignTop,
                   QStringLiteral("%1/%2").arg(n + 1).arg(pagine));
        p.setFont(f);
        double y = su + m.ascent();
        for (std::size_t i = n * aPagina; i < std::min(righe.size(), (n + 1) * aPagina); ++i, y += riga) {
            p.setPen(Inchiostro(righe[i].colore, Supporto::Carta));
            p.drawText(QPointF(x, y), righe[i].testo);
        }
    }
    c.pagine = static_cast<int>(pagine);
    return c;
}

}  // namespace ombrelia::paint
