// Over the sheet's picture.
#include "desktop/sopra_foglio.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "plot/percorso.h"

namespace ombrelia::desktop {

namespace {

// Seen on white paper and on the dark sheet alike.
const QColor OMBRA(0xD9, 0x4F, 0x2B), STILO(0xE0, 0x9A, 0x10), ACCESA(0xE8, 0x3E, 0x8C);

}  // namespace

SopraFoglio::SopraFoglio(Foglio &foglio, const Tavolo &tavolo) : QWidget(foglio.viewport()), foglio_(foglio), tavolo_(tavolo) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("sopraFoglio"));
    setGeometry(foglio.viewport()->rect());
    foglio.viewport()->installEventFilter(this);
    hide();
}

bool SopraFoglio::eventFilter(QObject *chi, QEvent *e) {
    if (e->type() == QEvent::Resize) setGeometry(foglio_.viewport()->rect());
    if (e->type() == QEvent::Paint && suDipinto) suDipinto();
    return QWidget::eventFilter(chi, e);
}

void SopraFoglio::ombra(std::optional<Ombra> o) {
    ombra_ = std::move(o);
    setVisible(ombra_ || !segni_.empty() || !accese_.empty());
    update();
}

void SopraFoglio::accendi(std::vector<std::pair<std::size_t, std::size_t>> tratti, std::vector<ombra::Punto> segni,
                          bool australe) {
    accese_ = std::move(tratti);
    segni_ = std::move(segni);
    australe_ = australe;
    setVisible(ombra_ || !segni_.empty() || !accese_.empty());
    update();
}

void SopraFoglio::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setClipRect(foglio_.vista().foglio(tavolo_));
    dipingiAccese(p);
    if (ombra_) dipingiOmbra(p);
}

void SopraFoglio::dipingiOmbra(QPainter &p) const {
    const Ombra &o = *ombra_;
    if (!o.punta) return;
    const QPointF punta = dot(*o.punta, o.australe), piede = dot(0, 0);
    constexpr double LONTANO = 20;  // metres: beyond any sheet
    const ombra::Retta &r = o.stilo;
    if (r.a != 0 || r.b != 0) {
        const ombra::Punto qui{r.c * r.a, r.c * r.b};
        p.setPen(QPen(STILO, 1.2, Qt::DashLine));
        p.drawLine(dot({qui.x - LONTANO * r.b, qui.y + LONTANO * r.a}, o.australe),
                   dot({qui.x + LONTANO * r.b, qui.y - LONTANO * r.a}, o.australe));
    }
    if (o.centro && std::hypot(o.centro->x, o.centro->y) < LONTANO) {
        p.setPen(QPen(STILO, 4, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(dot(*o.centro, o.australe), punta);
    }
    p.setPen(QPen(OMBRA, 2.4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(piede, punta);
    p.setPen(QPen(Qt::white, 1.5));
    p.setBrush(OMBRA);
    p.drawEllipse(punta, 6, 6);
}

void SopraFoglio::dipingiAccese(QPainter &p) const {
    const Lista &l = tavolo_.lista();
    if (!accese_.empty()) {
        QPen penna(ACCESA, 3.5, Qt::SolidLine, Qt::RoundCap);
        p.setPen(penna);
        // The place of each record among those of its kind is counted from the list's beginning.
        const TrattiEPunti conta{[](const RecLinea &) {}, [](const RecPunto &) {}};
        const TrattiEPunti dipingi{[&](const RecLinea &r) { p.drawLine(dot(r.X1, r.Y1), dot(r.X2, r.Y2)); },
                                   [&](const RecPunto &r) { p.drawPoint(dot(r.X, r.Y)); }};
        PostoLista qui;
        for (const auto &[da, a] : accese_) qui = Percorri(l, Percorri(l, qui, da, conta), a, dipingi);
    }
    for (const ombra::Punto &segno : segni_) {
        const QPointF qui = dot({segno.x / 1000, segno.y / 1000}, australe_);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(Qt::white, 4.5));
        p.drawEllipse(qui, 11, 11);
        p.setPen(QPen(ACCESA, 2.5));
        p.drawEllipse(qui, 11, 11);
        p.drawLine(qui - QPointF(5, 0), qui + QPointF(5, 0));
        p.drawLine(qui - QPointF(0, 5), qui + QPointF(0, 5));
    }
}

}  // namespace ombrelia::desktop
