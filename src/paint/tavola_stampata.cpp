// Tables measured, and set.
#include "paint/tavola_stampata.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFontInfo>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <cmath>

#include "paint/applicazione.h"
#include "paint/su_carta.h"

namespace ombrelia::paint {

namespace {

Corpi corpi(const TavolaStampata &t) {
    constexpr double DRITTO = 6.5, MINIMO = 4;
    return {t.corpo, DRITTO, MINIMO};
}

// No cell of a table with a head is broken; the words of its head stand one below the other.
void intere(const QTextTable &t, int capi) {
    for (int r = 0; r < t.rows(); ++r)
        for (int c = 0; c < t.columns(); ++c) {
            QTextCursor dentro = t.cellAt(r, c).firstCursorPosition();
            dentro.setPosition(t.cellAt(r, c).lastPosition(), QTextCursor::KeepAnchor);
            if (r < capi) {
                const QTextCharFormat come = dentro.charFormat();
                dentro.insertText(dentro.selectedText().simplified().replace(QLatin1Char(' '), QChar(QChar::LineSeparator)),
                                  come);
            }
            QTextBlockFormat f = dentro.blockFormat();
            f.setNonBreakableLines(true);
            dentro.setBlockFormat(f);
        }
}

// Laid out by the letters' own widths, so that a larger or smaller page has the same rows.
void apri(QTextDocument &d, const TavolaStampata &t) {
    d.setUseDesignMetrics(true);
    d.setDocumentMargin(0);
    QFont f;
    f.setFamily(QStringLiteral("sans-serif"));
    f.setPointSizeF(t.corpo);
    d.setDefaultFont(f);
    // The paper has its own margins.
    d.setHtml(QString(t.html).replace(QStringLiteral("</style>"), QStringLiteral("body{margin:0;padding:0}</style>")));
    for (QTextFrame *f : d.rootFrame()->childFrames())
        if (const auto *tavola = qobject_cast<QTextTable *>(f); tavola && tavola->format().headerRowCount() > 0)
            intere(*tavola, tavola->format().headerRowCount());
}

// A document's units in a point.
double unitaAlPunto() {
    constexpr double PROVA = 72;
    QFont f;
    f.setPointSizeF(PROVA);
    return QFontInfo(f).pixelSize() / PROVA;
}

// Width of the widest row in points, for letters of one point.
double larghezza(QTextDocument &d, const TavolaStampata &t) {
    d.setTextWidth(1);
    return d.size().width() / unitaAlPunto() / t.corpo;
}

}  // namespace

Composizione ComponiTavola(const TavolaStampata &t, const QPagedPaintDevice &stampante) {
    QTextDocument d;
    apri(d, t);
    return Componi(larghezza(d, t), stampante, corpi(t));
}

Composizione StampaTavola(const TavolaStampata &t, QPagedPaintDevice &stampante) {
    InteraPagina(stampante);
    QPainter p(&stampante);
    if (!p.isActive()) return {};
    QTextDocument d;
    apri(d, t);
    Composizione c = ComponiQui(larghezza(d, t), stampante, corpi(t));
    PaginaStampata pagina(p, stampante, t.titolo, t.luogo);
    const QRectF campo = pagina.campo();
    // Painter units a unit of the document.
    const double f = UnitaAlMetro(stampante) * POLLICE / 72 / unitaAlPunto() * c.corpo / t.corpo;
    const QSizeF misura = campo.size() / f;
    d.setPageSize(misura);
    c.pagine = d.pageCount();
    for (int n = 0; n < c.pagine; ++n) {
        pagina.apri(c.pagine, n > 0);
        QAbstractTextDocumentLayout::PaintContext come;
        come.clip = QRectF(QPointF(0, n * misura.height()), misura);
        come.palette.setColor(QPalette::Text, Qt::black);
        p.save();
        p.translate(campo.topLeft());
        p.scale(f, f);
        p.translate(-come.clip.topLeft());
        p.setClipRect(come.clip);
        d.documentLayout()->draw(&p, come);
        p.restore();
    }
    return c;
}

QByteArray PdfTavola(const TavolaStampata &t) {
    AssicuraApplicazione();
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter w(&buffer);
    ApriPdf(w, QPageSize(QPageSize::A4));
    w.setTitle(t.titolo);
    if (ComponiTavola(t, w).orizzontale) w.setPageOrientation(QPageLayout::Landscape);
    StampaTavola(t, w);
    return pdf;
}

}  // namespace ombrelia::paint
