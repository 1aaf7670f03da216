// Rows measured, and set.
#include "paint/testo_stampato.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "paint/su_carta.h"
#include "paint/tinte.h"

namespace ombrelia::paint {

namespace {

constexpr Corpi CORPI{10, 7.5, 6};
constexpr int RIENTRO = 4;  // letters, of a broken row's rest

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

Composizione ComponiTesto(const TestoStampato &t, const QPagedPaintDevice &stampante) {
    return Componi(larghezza(t), stampante, CORPI);
}

Composizione StampaTesto(const TestoStampato &t, QPagedPaintDevice &stampante) {
    InteraPagina(stampante);
    QPainter p(&stampante);
    if (!p.isActive()) return {};
    Composizione c = ComponiQui(larghezza(t), stampante, CORPI);
    PaginaStampata pagina(p, stampante, t.titolo, t.luogo);
    const QRectF campo = pagina.campo();
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPointSizeF(c.corpo);
    const QFontMetricsF m(f, &stampante);
    const double riga = m.lineSpacing();
    std::vector<RigaStampata> righe;
    const auto lettere = static_cast<qsizetype>(campo.width() / m.horizontalAdvance(QLatin1Char('0')));
    for (const RigaStampata &r : t.righe)
        if (c.spezzate) spezza(r, lettere, righe);
        else righe.push_back(r);
    const auto aPagina = static_cast<std::size_t>(std::max(1.0, std::floor(campo.height() / riga)));
    c.pagine = static_cast<int>(std::max<std::size_t>(1, (righe.size() + aPagina - 1) / aPagina));
    for (std::size_t n = 0; n < static_cast<std::size_t>(c.pagine); ++n) {
        pagina.apri(c.pagine);
        p.setFont(f);
        double y = campo.top() + m.ascent();
        for (std::size_t i = n * aPagina; i < std::min(righe.size(), (n + 1) * aPagina); ++i, y += riga) {
            p.setPen(Inchiostro(righe[i].colore, Supporto::Carta));
            p.drawText(QPointF(campo.left(), y), righe[i].testo);
        }
    }
    return c;
}

}  // namespace ombrelia::paint
