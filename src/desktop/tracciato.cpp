// Paths on white.
#include "desktop/tracciato.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "paint/tinte.h"

namespace ombrelia::desktop {

QColor TintaDelGenere(officina::Genere g) {
    const std::uint32_t rgb = officina::Riga(g).rgb;
    return paint::Inchiostro(static_cast<Colore>(((rgb & 0xFF) << 16) | (rgb & 0xFF00) | (rgb >> 16)), paint::Supporto::Carta);
}

Tracciato::Tracciato(const QString &inizio, const QString &fine, QWidget *genitore)
    : QWidget(genitore), inizio_(inizio), fine_(fine) {
    setObjectName(QStringLiteral("tracciato"));
    setMinimumSize(320, 260);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setCursor(Qt::OpenHandCursor);
}

void Tracciato::mostra(std::shared_ptr<const officina::Disegno> disegno, const QString &invece) {
    const bool primo = !disegno_;
    disegno_ = std::move(disegno);
    invece_ = invece;
    fino_ = disegno_ ? static_cast<int>(disegno_->cammini.size()) : 0;
    if (primo) tutto();
    update();
}

void Tracciato::finoA(int quanti) {
    fino_ = quanti;
    update();
}

void Tracciato::tutto() {
    if (!disegno_) return;
    officina::Riquadro r = disegno_->campo;
    r.allarga({disegno_->estensione.x0, disegno_->estensione.y0});
    r.allarga({disegno_->estensione.x1, disegno_->estensione.y1});
    constexpr double ORLO = 26;
    const double l = std::max(r.x1 - r.x0, 1e-3), h = std::max(r.y1 - r.y0, 1e-3);
    fattore_ = std::max(std::min((width() - 2 * ORLO) / l, (height() - 2 * ORLO) / h), 1e-6);
    x0_ = (width() - l * fattore_) / 2 - r.x0 * fattore_;
    y0_ = (height() + h * fattore_) / 2 + r.y0 * fattore_;
    update();
}

void Tracciato::dipingi(QPainter &p, const officina::Cammino &c) const {
    using Tipo = officina::Cammino::Tipo;
    const double r = c.raggio * fattore_;
    switch (c.tipo) {
        case Tipo::Linea: {
            QPolygonF punti;
            punti.reserve(static_cast<qsizetype>(c.punti.size()) + 1);
            for (const officina::P2 q : c.punti) punti.append(dot(q));
            if (c.chiuso) punti.append(punti.constFirst());
            p.drawPolyline(punti);
            break;
        }
        case Tipo::Cerchio:
            p.drawEllipse(dot(c.punti[0]), r, r);
            break;
        case Tipo::Arco: {
            constexpr double PASSI = 16 * 180 / std::numbers::pi;
            const double lungo = r > 0 ? c.lunghezza() / c.raggio : 0;
            const QPointF m = dot(c.punti[0]);
            p.drawArc(QRectF(m - QPointF(r, r), m + QPointF(r, r)), static_cast<int>(c.inizio * PASSI),
                      static_cast<int>(lungo * PASSI));
            break;
        }
        case Tipo::Punto:
            p.drawPoint(dot(c.punti[0]));
            break;
        case Tipo::Testo: {
            QFont f = p.font();
            f.setPixelSize(std::max(2, static_cast<int>(1.4 * r)));  // capitals are some 0.7 of it
            p.setFont(f);
            p.drawText(dot(c.punti[0]), QString::fromStdString(c.testo));
            break;
        }
    }
}

void Tracciato::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    p.setPen(QColor(0x8b, 0x93, 0x9b));
    p.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    if (!disegno_) {
        p.setPen(QColor(0x22, 0x27, 0x2c));
        p.drawText(rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap, invece_);
        return;
    }
    p.setRenderHint(QPainter::Antialiasing);
    const auto &cammini = disegno_->cammini;
    const int quanti = static_cast<int>(cammini.size());
    // The head starts at the lower left corner of what it cuts.
    officina::P2 casa = cammini.empty() ? officina::P2{} : cammini[0].capo();
    for (const officina::Cammino &c : cammini)
        for (const officina::P2 q : c.punti) casa = {std::min(casa.x, q.x), std::min(casa.y, q.y)};
    const QPen viaggio(QColor(0x6f, 0x76, 0x7d), 1, Qt::DashLine);
    officina::P2 testa = casa;
    for (int i = 0; i < quanti; ++i) {
        const officina::Cammino &c = cammini[static_cast<std::size_t>(i)];
        if (i < fino_) {
            p.setPen(viaggio);
            p.drawLine(dot(testa), dot(c.capo()));
            testa = c.coda();
        }
        QColor tinta = TintaDelGenere(c.genere);
        if (i >= fino_) tinta = QColor(0xd5, 0xd9, 0xde);
        const bool punto = c.tipo == officina::Cammino::Tipo::Punto;
        p.setPen(QPen(tinta, punto ? 3 : 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        dipingi(p, c);
    }
    const auto segno = [&](officina::P2 dove, const QColor &tinta, const QString &nome, bool tondo, bool sotto) {
        const QPointF m = dot(dove);
        constexpr double R = 5;
        p.setPen(QPen(Qt::white, 1.5));
        p.setBrush(tinta);
        if (tondo) p.drawEllipse(m, R, R);
        else p.drawRect(QRectF(m - QPointF(R, R), m + QPointF(R, R)));
        p.setBrush(Qt::NoBrush);
        p.setFont(font());
        const QRectF scritta = QRectF(p.fontMetrics().boundingRect(nome)).adjusted(-3, -1, 3, 1);
        QRectF qui(QPointF(m.x() + R + 3, sotto ? m.y() + 2 : m.y() - scritta.height() - 2), scritta.size());
        qui.moveRight(std::min(qui.right(), width() - 3.0));
        p.fillRect(qui, QColor(255, 255, 255, 220));
        p.setPen(tinta);
        p.drawText(qui, Qt::AlignCenter, nome);
    };
    segno(casa, QColor(0x17, 0x66, 0x3a), inizio_, true, true);
    segno(testa, QColor(0x9a, 0x3b, 0x12), fine_, false, false);
}

void Tracciato::resizeEvent(QResizeEvent *) { tutto(); }

void Tracciato::wheelEvent(QWheelEvent *e) {
    const double volte = std::clamp(std::pow(2, e->angleDelta().y() / 240.0), 0.25, 4.0);
    if (fattore_ * volte > 1e5 || fattore_ * volte < 1e-4) return;
    const QPointF q = e->position();
    x0_ = q.x() + (x0_ - q.x()) * volte;
    y0_ = q.y() + (y0_ - q.y()) * volte;
    fattore_ *= volte;
    update();
    e->accept();
}

void Tracciato::mousePressEvent(QMouseEvent *e) { presa_ = e->position(); }

void Tracciato::mouseMoveEvent(QMouseEvent *e) {
    const QPointF passo = e->position() - presa_;
    presa_ = e->position();
    x0_ += passo.x();
    y0_ += passo.y();
    update();
}

}  // namespace ombrelia::desktop
