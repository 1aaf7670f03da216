// What is laid over the sheet's picture: rulers, legend, mark, measure, lens. Painted at each turn, kept nowhere.
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "desktop/foglio.h"

namespace ombrelia::desktop {

namespace {

struct TinteSopra {
    QColor fondo, testo, bordo;
};
TinteSopra tinte(bool scuro) {
    return scuro ? TinteSopra{QColor(0x1B, 0x21, 0x28, 0xE6), QColor(0xDD, 0xE3, 0xE8), QColor(0x4A, 0x54, 0x5E)}
                 : TinteSopra{QColor(0xFF, 0xFF, 0xFF, 0xE6), QColor(0x2A, 0x30, 0x36), QColor(0xB8, 0xBE, 0xC5)};
}

// A step of 1, 2 or 5 that leaves at least so many dots between two marks.
double passo(double millimetriAlPunto, double punti) {
    const double minimo = millimetriAlPunto * punti, decade = std::pow(10, std::floor(std::log10(minimo)));
    for (const double n : {1.0, 2.0, 5.0})
        if (n * decade >= minimo) return n * decade;
    return 10 * decade;
}

}  // namespace

void Foglio::sopra(QPainter &p) {
    p.setRenderHint(QPainter::Antialiasing);
    const TinteSopra t = tinte(stile().scuro);
    if (conLente_ && puntatore_) dipingiLente(p);
    if (misurata_) {
        const QPointF a = alPunto(misurata_->first), b = alPunto(misurata_->second), d = misurata_->second - misurata_->first;
        p.setPen(QPen(QColor(0xC0, 0x26, 0x1C), 1.6));
        p.drawLine(a, b);
        for (const QPointF &q : {a, b}) p.drawEllipse(q, 3, 3);
        const double mm = std::hypot(d.x(), d.y()) * 1000, gradi = std::atan2(Capovolta(d.y()), d.x()) * 180 / std::numbers::pi;
        const QString testo = testoMisura ? testoMisura(mm, gradi) : QStringLiteral("%1 mm").arg(mm, 0, 'f', 1);
        const QRectF r = p.boundingRect(QRectF(), Qt::AlignLeft, testo).translated((a + b) / 2 + QPointF(8, -22));
        p.fillRect(r.adjusted(-4, -2, 4, 2), t.fondo);
        p.setPen(t.testo);
        p.drawText(r, testo);
    }
    if (conRighelli_) righelli(p);
    if (!legendaQui_.isEmpty()) dipingiLegenda(p);
    if (!fumetto_.isEmpty()) {
        QRectF r =
            p.boundingRect(QRectF(0, 0, viewport()->width() - RIGHELLO - 24, 200), Qt::AlignLeft | Qt::TextWordWrap, fumetto_);
        r.moveBottomLeft(QPointF(RIGHELLO + 10, viewport()->height() - 8));
        p.setPen(t.bordo);
        p.setBrush(t.fondo);
        p.drawRoundedRect(r.adjusted(-7, -4, 7, 4), 4, 4);
        p.setPen(t.testo);
        p.drawText(r, Qt::AlignLeft | Qt::TextWordWrap, fumetto_);
    }
}

// Millimetres along the edges, from the dial's origin, as the read-outs count them.
void Foglio::righelli(QPainter &p) {
    const TinteSopra t = tinte(stile().scuro);
    const double mm = metriAlPunto() * 1000;
    if (!(mm > 0)) return;
    const double tacca = passo(mm, 7), numero = passo(mm, 62);
    const int l = viewport()->width(), h = viewport()->height();
    QFont f = font();
    f.setPixelSize(10);
    p.setFont(f);
    p.setRenderHint(QPainter::Antialiasing, false);
    p.fillRect(0, 0, l, RIGHELLO, t.fondo);
    p.fillRect(0, 0, RIGHELLO, h, t.fondo);
    p.setPen(t.bordo);
    p.drawLine(0, RIGHELLO, l, RIGHELLO);
    p.drawLine(RIGHELLO, 0, RIGHELLO, h);
    const QPointF inizio = (daBordo({0, 0}) - piede()) * 1000, fine = (daBordo(QPointF(l, h)) - piede()) * 1000;
    const auto tacche = [&](double da, double a, const auto &disegna) {
        for (double x = std::ceil(da / tacca) * tacca; x <= a; x += tacca)
            disegna(x, std::fabs(std::remainder(x, numero)) < tacca / 2);
    };
    tacche(inizio.x(), fine.x(), [&](double x, bool lunga) {
        const int dove = static_cast<int>(std::lround(alPunto(piede() + QPointF(x / 1000, 0)).x()));
        if (dove <= RIGHELLO) return;
        p.setPen(t.bordo);
        p.drawLine(dove, lunga ? 3 : 13, dove, RIGHELLO);
        if (!lunga) return;
        p.setPen(t.testo);
        p.drawText(dove + 3, 11, QString::number(std::round(x * 100) / 100 + 0.0));
    });
    tacche(inizio.y(), fine.y(), [&](double y, bool lunga) {
        const int dove = static_cast<int>(std::lround(alPunto(piede() + QPointF(0, y / 1000)).y()));
        if (dove <= RIGHELLO) return;
        p.setPen(t.bordo);
        p.drawLine(lunga ? 3 : 13, dove, RIGHELLO, dove);
        if (!lunga) return;
        p.save();
        p.translate(11, dove - 3);
        p.rotate(-90);
        p.setPen(t.testo);
        p.drawText(0, 0, QString::number(std::round(y * 100) / 100 + 0.0));
        p.restore();
    });
    p.fillRect(0, 0, RIGHELLO, RIGHELLO, t.fondo);
    p.setPen(t.testo);
    p.drawText(QRect(0, 0, RIGHELLO, RIGHELLO), Qt::AlignCenter, QStringLiteral("mm"));
    p.setFont(font());
    p.setRenderHint(QPainter::Antialiasing);
}

void Foglio::dipingiLegenda(QPainter &p) {
    const TinteSopra t = tinte(stile().scuro);
    const QFontMetrics m(font());
    const int riga = m.height() + 2, cella = legendaQui_.width() / colonneLegenda_,
              righe = (static_cast<int>(legenda_.size()) + colonneLegenda_ - 1) / colonneLegenda_;
    p.setPen(t.bordo);
    p.setBrush(t.fondo);
    p.drawRoundedRect(legendaQui_, 5, 5);
    p.setBrush(Qt::NoBrush);
    int n = 0;
    for (const auto &[nome, tinta] : legenda_) {
        const int x = legendaQui_.left() + n / righe * cella, y = legendaQui_.top() + 5 + n % righe * riga;
        p.setPen(QPen(tinta, 2.4));
        p.drawLine(x + 9, y + riga / 2, x + 29, y + riga / 2);
        p.setPen(t.testo);
        p.drawText(x + 37, y + m.ascent() + 1, nome);
        ++n;
    }
}

// What lies under the pointer as large as it will be.
void Foglio::dipingiLente(QPainter &p) {
    constexpr int LATO = 240;
    Vista v = vista_;
    v.misura = QSize(LATO, LATO);
    v.fattore = fattoreVero() * tavolo_.Scala();
    v.origine = QPointF(LATO / 2.0, LATO / 2.0) - suDispositivo(*puntatore_) * v.fattore;
    const QRectF r(*puntatore_ - QPointF(LATO / 2.0, LATO / 2.0), QSizeF(LATO, LATO));
    QPainterPath tondo;
    tondo.addEllipse(r);
    p.save();
    p.setClipPath(tondo);
    p.drawImage(r.topLeft(), DisegnaVista(tavolo_, v));
    p.restore();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(0xB9, 0x80, 0x1A), 3));
    p.drawEllipse(r);
}

}  // namespace ombrelia::desktop
