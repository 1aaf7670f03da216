// The sheet and its pages in small.
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

#include "desktop/pagine_carta.h"
#include "paint/dispositivo_qt.h"

namespace ombrelia::desktop {

AnteprimaPagine::AnteprimaPagine(std::shared_ptr<Tavolo> tavolo, QWidget *genitore)
    : QWidget(genitore), tavolo_(std::move(tavolo)) {
    setObjectName(QStringLiteral("anteprimaPagine"));
    setMinimumSize(320, 260);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
}

void AnteprimaPagine::mostra(std::vector<paint::PaginaFoglio> pagine, double sovrapposizione) {
    pagine_ = std::move(pagine);
    sovrapposizione_ = sovrapposizione;
    std::erase_if(scelte_, [this](int n) { return n > static_cast<int>(pagine_.size()); });
    mira_ = 1;
    disponi();
}

void AnteprimaPagine::scegli(std::set<int> quali) {
    scelte_ = std::move(quali);
    update();
    if (suScelta) suScelta();
}

QRectF AnteprimaPagine::dove(const paint::PaginaFoglio &p) const {
    return {x0_ + p.x * fattore_, y0_ + p.y * fattore_, p.larga * fattore_, p.alta * fattore_};
}

QPointF AnteprimaPagine::mezzo(int numero) const { return dove(pagine_[static_cast<std::size_t>(numero - 1)]).center(); }

int AnteprimaPagine::sotto(const QPointF &punto) const {
    int trovata = 0;
    double quanto = std::numeric_limits<double>::infinity();
    for (const paint::PaginaFoglio &p : pagine_) {
        const QRectF r = dove(p);
        const double d = std::hypot(r.center().x() - punto.x(), r.center().y() - punto.y());
        if (r.contains(punto) && d < quanto) quanto = d, trovata = p.numero;
    }
    return trovata;
}

// The picture of the sheet is made once for each size.
void AnteprimaPagine::disponi() {
    constexpr double ORLO = 14;
    double l = tavolo_->QuadranteL(), h = tavolo_->QuadranteH();
    const double L = l, H = h;
    if (!pagine_.empty()) {
        l = std::max(l, pagine_.back().x + pagine_.back().larga);
        h = std::max(h, pagine_.back().y + pagine_.back().alta);
    }
    if (!(l > 0 && h > 0)) return;
    fattore_ = std::max(std::min((width() - 2 * ORLO) / l, (height() - 2 * ORLO) / h), 1e-3);
    x0_ = (width() - l * fattore_) / 2;
    y0_ = (height() - h * fattore_) / 2;
    const double r = devicePixelRatioF();
    QImage i(QSize(std::max(1, static_cast<int>(L * fattore_ * r)), std::max(1, static_cast<int>(H * fattore_ * r))),
             QImage::Format_RGB32);
    i.fill(Qt::white);
    {
        QPainter p(&i);
        p.setRenderHint(QPainter::Antialiasing);
        paint::PosaDipinta posa;
        posa.fattore = fattore_ * r / Tavolo::ScalaBase * tavolo_->Scala();
        posa.penna = r;
        posa.punto = 1.2 * r;
        posa.corpo = std::max(3.0, 0.0028 * fattore_ * r);
        posa.vista = QRectF(i.rect());
        paint::DispositivoQt d(p, paint::Supporto::Carta, posa);
        paint::Dipingi(*tavolo_, d);
        d.vuota();
    }
    i.setDevicePixelRatio(r);
    immagine_ = i;
    update();
}

void AnteprimaPagine::resizeEvent(QResizeEvent *) { disponi(); }

void AnteprimaPagine::paintEvent(QPaintEvent *) {
    QPainter p(this);
    const bool scuro = palette().color(QPalette::Window).lightness() < 128;
    p.fillRect(rect(), scuro ? QColor(0x2b, 0x31, 0x38) : QColor(0xc9, 0xcd, 0xd2));
    p.setRenderHint(QPainter::Antialiasing);
    for (const paint::PaginaFoglio &a : pagine_) p.fillRect(dove(a), Qt::white);
    p.drawImage(QPointF(x0_, y0_), immagine_);
    const double s = sovrapposizione_ * fattore_;
    for (const paint::PaginaFoglio &a : pagine_)
        if (!scelte_.contains(a.numero)) {
            // What neighbours show too is veiled only where they aren't chosen either.
            const QRectF r = dove(a);
            p.fillRect(r.adjusted(a.colonna > 0 ? s : 0, a.riga > 0 ? s : 0, 0, 0), QColor(0x60, 0x68, 0x70, 150));
        }
    const QColor scelta(0x8a, 0x5a, 0x00), altra(0x3a, 0x43, 0x4c);
    for (const paint::PaginaFoglio &a : pagine_) {
        const QRectF r = dove(a);
        const bool si = scelte_.contains(a.numero);
        if (s > 0) {
            const QColor banda(0x8a, 0x5a, 0x00, 40);
            if (a.x + a.larga < pagine_.back().x + pagine_.back().larga)
                p.fillRect(QRectF(r.right() - s, r.top(), s, r.height()), banda);
            if (a.y + a.alta < pagine_.back().y + pagine_.back().alta)
                p.fillRect(QRectF(r.left(), r.bottom() - s, r.width(), s), banda);
        }
        p.setPen(QPen(si ? scelta : altra, si ? 2 : 1));
        p.drawRect(r.adjusted(0.5, 0.5, -0.5, -0.5));
        QFont f = font();
        f.setPixelSize(std::clamp(static_cast<int>(std::min(r.width(), r.height()) / 6), 9, 22));
        f.setBold(true);
        p.setFont(f);
        const QString n = QString::number(a.numero);
        QRectF targa = QRectF(p.fontMetrics().boundingRect(n)).adjusted(-5, -2, 5, 2);
        targa.moveCenter(r.center());
        p.setPen(Qt::NoPen);
        p.setBrush(si ? scelta : QColor(0xff, 0xff, 0xff, 215));
        p.drawRoundedRect(targa, 4, 4);
        p.setBrush(Qt::NoBrush);
        p.setPen(si ? QColor(Qt::white) : altra);
        p.drawText(targa, Qt::AlignCenter, n);
        if (hasFocus() && a.numero == mira_) {
            p.setPen(QPen(QColor(0x1f, 0x3a, 0x5f), 1, Qt::DotLine));
            p.drawRect(r.adjusted(4.5, 4.5, -4.5, -4.5));
        }
    }
}

void AnteprimaPagine::inverti(int numero) {
    if (numero < 1 || numero > static_cast<int>(pagine_.size())) return;
    mira_ = numero;
    std::set<int> quali = scelte_;
    if (quali.erase(numero) == 0) quali.insert(numero);
    scegli(std::move(quali));
}

void AnteprimaPagine::mousePressEvent(QMouseEvent *e) {
    if (e->button() == Qt::LeftButton) inverti(sotto(e->position()));
}

void AnteprimaPagine::keyPressEvent(QKeyEvent *e) {
    if (pagine_.empty()) return QWidget::keyPressEvent(e);
    const int colonne = pagine_.back().colonna + 1, tutte = static_cast<int>(pagine_.size());
    const auto vai = [&](int di) {
        if (mira_ + di >= 1 && mira_ + di <= tutte) mira_ += di;
        update();
    };
    switch (e->key()) {
        case Qt::Key_Left:
            return vai(-1);
        case Qt::Key_Right:
            return vai(1);
        case Qt::Key_Up:
            return vai(-colonne);
        case Qt::Key_Down:
            return vai(colonne);
        case Qt::Key_Space:
            return inverti(mira_);
        default:
            QWidget::keyPressEvent(e);
    }
}

}  // namespace ombrelia::desktop
