// The sheet in the window.
#include "desktop/foglio.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleHints>
#include <cmath>

namespace ombrelia::desktop {

namespace {

constexpr double TWIP_AL_POLLICE = 1440, MARGINE = 26;
constexpr double ZOOM_MINIMO = 0.02, ZOOM_MASSIMO = 60;  // against true size at the present scale

}  // namespace

Foglio::Foglio(Tavolo &tavolo, QWidget *genitore) : QAbstractScrollArea(genitore), tavolo_(tavolo) {
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setMinimumSize(240, 200);
    vista_.stile = StileDi(false);
}

// By the screen's own measure where it tells one.
double Foglio::fattoreVero() const {
    const int punti = physicalDpiX();
    return (punti >= 40 && punti <= 800 ? punti : logicalDpiX()) / TWIP_AL_POLLICE;
}

QPointF Foglio::suMondo(const QPointF &punto) const {
    const QPointF m = daBordo(punto);
    const PuntoPiano p = tavolo_.disegnato(m.x(), m.y());
    return {p.x, p.y};
}

QPointF Foglio::daMondo(const QPointF &m) const {
    const PuntoPiano p = tavolo_.dipinto(m.x(), m.y());
    return alPunto({p.x, p.y});
}

QPointF Foglio::daBordo(const QPointF &punto) const { return suDispositivo(punto) * (tavolo_.Scala() / Tavolo::ScalaBase); }

QPointF Foglio::alPunto(const QPointF &metri) const {
    return metri * (Tavolo::ScalaBase / tavolo_.Scala() * vista_.fattore) + vista_.origine;
}

double Foglio::metriAlPunto() const { return tavolo_.Scala() / Tavolo::ScalaBase / vista_.fattore; }

void Foglio::stile(const StileFoglio &nuovo) {
    if (nuovo == vista_.stile) return;
    vista_.stile = nuovo;
    viewport()->update();
}

void Foglio::legenda(std::vector<std::pair<QString, QColor>> voci) {
    legenda_ = std::move(voci);
    disponi();
    viewport()->update();
}

void Foglio::mostraLegenda(bool si) {
    conLegenda_ = si;
    disponi();
    viewport()->update();
}

void Foglio::mostraRighelli(bool si) {
    conRighelli_ = si;
    viewport()->update();
}

void Foglio::fumetto(const QString &testo) {
    if (testo == fumetto_) return;
    fumetto_ = testo;
    viewport()->update();
}

void Foglio::misura(bool si) {
    conMisura_ = si;
    misurata_.reset();
    viewport()->update();
}

void Foglio::lente(bool si) {
    conLente_ = si;
    viewport()->update();
}

void Foglio::inquadra(const QRectF &mondo) {
    const double k = Tavolo::ScalaBase / tavolo_.Scala();
    const QSizeF finestra = viewport()->size();
    const double l = std::max(mondo.width(), 1e-3) * k, h = std::max(mondo.height(), 1e-3) * k;
    const double nuovo = std::min((finestra.width() - 4 * MARGINE) / l, (finestra.height() - 4 * MARGINE) / h);
    zoom(nuovo / vista_.fattore, QPointF(finestra.width() / 2, finestra.height() / 2));
    const QPointF centro = daMondo(mondo.center());
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + static_cast<int>(centro.x() - finestra.width() / 2));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(centro.y() - finestra.height() / 2));
}

void Foglio::cambiato() {
    stantia_ = true;
    disponi();
    viewport()->update();
}

void Foglio::cambiato(const QImage &pronta, const Vista &per) {
    disponi();
    if (per == vista_) {
        immagine_ = pronta;
        dipinta_ = per;
        stantia_ = false;
    } else {
        stantia_ = true;
    }
    viewport()->update();
}

void Foglio::tutto() {
    intero_ = true;
    cambiato();
}

void Foglio::vero() {
    const QPointF centro(viewport()->width() / 2.0, viewport()->height() / 2.0);
    zoom(fattoreVero() * tavolo_.Scala() / vista_.fattore, centro);
}

void Foglio::ingrandisci(double volte) { zoom(volte, {viewport()->width() / 2.0, viewport()->height() / 2.0}); }

void Foglio::zoom(double volte, const QPointF &fermo) {
    const double nuovo = std::clamp(vista_.fattore * volte, fattoreVero() * ZOOM_MINIMO, fattoreVero() * ZOOM_MASSIMO);
    const QPointF sotto = suDispositivo(fermo);
    intero_ = false;
    vista_.fattore = nuovo;
    vista_.origine = fermo - sotto * nuovo;
    disponi();
    // What stands under the pointer stays there, as far as the bars reach.
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(sotto.x() * nuovo + MARGINE - fermo.x())));
    verticalScrollBar()->setValue(static_cast<int>(std::lround(sotto.y() * nuovo + MARGINE - fermo.y())));
    disponi();
    viewport()->update();
}

// The legend's place. A sheet that is shown whole leaves it room, beside or below, whichever makes the sheet larger; over one
// that is looked at closely it lies in the corner. Gives the part of the window that is the sheet's.
QSizeF Foglio::disponiLegenda(double l, double h) {
    const QSize finestra = viewport()->size();
    legendaQui_ = {};
    if (!conLegenda_ || legenda_.empty()) return finestra;
    constexpr int ARIA = 12;
    const QFontMetrics m(font());
    int cella = 0;
    for (const auto &[nome, tinta] : legenda_) cella = std::max(cella, m.horizontalAdvance(nome) + 46);
    const int voci = static_cast<int>(legenda_.size());
    const auto alta = [&](int colonne) { return (voci + colonne - 1) / colonne * (m.height() + 2) + 10; };
    const QRect angolo(finestra.width() - cella - ARIA, RIGHELLO + 10, cella, alta(1));
    const bool accanto = angolo.height() <= finestra.height() - 60 && cella <= finestra.width() / 2;
    colonneLegenda_ = 1;
    if (!intero_) {
        if (accanto) legendaQui_ = angolo;
        return finestra;
    }
    const auto entra = [&](const QSizeF &s) { return std::min((s.width() - 2 * MARGINE) / l, (s.height() - 2 * MARGINE) / h); };
    const QSizeF resto(finestra.width() - cella - ARIA, finestra.height());
    const int colonne = std::clamp((finestra.width() - RIGHELLO - 2 * ARIA) / cella, 1, voci);
    const QSizeF sopra(finestra.width(), finestra.height() - alta(colonne) - ARIA / 2);
    const bool sotto = alta(colonne) <= finestra.height() / 3;
    if (accanto && (!sotto || entra(resto) >= entra(sopra))) {
        legendaQui_ = angolo;
        const bool libera = (finestra.width() + l * entra(finestra)) / 2 < angolo.left();
        return libera ? QSizeF(finestra) : resto;
    }
    if (!sotto) return finestra;
    colonneLegenda_ = colonne;
    legendaQui_ = QRect(RIGHELLO + (finestra.width() - RIGHELLO - colonne * cella) / 2,
                        finestra.height() - alta(colonne) - ARIA / 2, colonne * cella, alta(colonne));
    return sopra;
}

// Bars and origin for the present window, sheet and zoom.
void Foglio::disponi() {
    if (disponendo_) return;
    disponendo_ = true;
    const double l = std::max(tavolo_.LarghezzaImmagine(), 1.0), h = std::max(tavolo_.AltezzaImmagine(), 1.0);
    const QSizeF finestra = disponiLegenda(l, h);
    if (intero_) {
        const double entra = std::min((finestra.width() - 2 * MARGINE) / l, (finestra.height() - 2 * MARGINE) / h);
        vista_.fattore = std::max(entra, fattoreVero() * ZOOM_MINIMO);
    }
    const auto barra = [](QScrollBar *b, double lungo, double pagina) {
        b->setPageStep(static_cast<int>(pagina));
        b->setSingleStep(20);
        b->setRange(0, std::max(0, static_cast<int>(std::ceil(lungo + 2 * MARGINE - pagina))));
    };
    barra(horizontalScrollBar(), l * vista_.fattore, finestra.width());
    barra(verticalScrollBar(), h * vista_.fattore, finestra.height());
    // A sheet smaller than the window stands in its middle.
    const auto inizio = [](const QScrollBar *b, double lungo, double pagina) {
        return b->maximum() > 0 ? MARGINE - b->value() : std::floor((pagina - lungo) / 2);
    };
    vista_.origine = {inizio(horizontalScrollBar(), l * vista_.fattore, finestra.width()),
                      inizio(verticalScrollBar(), h * vista_.fattore, finestra.height())};
    vista_.misura = viewport()->size();
    vista_.rapporto = devicePixelRatioF();
    disponendo_ = false;
}

void Foglio::paintEvent(QPaintEvent *) {
    if (stantia_ || !(dipinta_ == vista_)) {
        disponi();
        immagine_ = DisegnaVista(tavolo_, vista_);
        dipinta_ = vista_;
        stantia_ = false;
    }
    QPainter p(viewport());
    p.drawImage(QPointF(0, 0), immagine_);
    sopra(p);
    p.end();
    if (suDipinto) suDipinto(vista_);
}

void Foglio::resizeEvent(QResizeEvent *) {
    disponi();
    viewport()->update();
}

void Foglio::scrollContentsBy(int, int) {
    disponi();
    viewport()->update();
}

void Foglio::wheelEvent(QWheelEvent *e) {
    if (e->modifiers() & Qt::ShiftModifier) return QAbstractScrollArea::wheelEvent(e);
    constexpr double SCATTO = 240;  // two notches double
    zoom(std::pow(2, e->angleDelta().y() / SCATTO), e->position());
    e->accept();
}

void Foglio::mousePressEvent(QMouseEvent *e) {
    if (e->button() != Qt::LeftButton && e->button() != Qt::MiddleButton) return;
    premuto_ = e->position();
    if (conMisura_ && e->button() == Qt::LeftButton) misurata_ = {daBordo(e->position()), daBordo(e->position())};
    ultimo_ = e->position().toPoint();
    trascina_ = false;
}

void Foglio::mouseMoveEvent(QMouseEvent *e) {
    puntatore_ = e->position();
    if (suPosizione) suPosizione((daBordo(e->position()) - piede()) * 1000);
    if (conLente_) viewport()->update();
    if (!premuto_) {
        if (suSotto) suSotto(suMondo(e->position()));
        return;
    }
    if (conMisura_ && misurata_ && (e->buttons() & Qt::LeftButton)) {
        misurata_->second = daBordo(e->position());
        trascina_ = true;
        viewport()->update();
        return;
    }
    if (!trascina_ && (e->position() - *premuto_).manhattanLength() >= QGuiApplication::styleHints()->startDragDistance()) {
        trascina_ = true;
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    if (!trascina_) return;
    const QPoint qui = e->position().toPoint(), passo = qui - ultimo_;
    ultimo_ = qui;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - passo.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - passo.y());
}

void Foglio::mouseReleaseEvent(QMouseEvent *e) {
    if (e->button() == Qt::RightButton && suDestro) suDestro(e->position());
    const bool clic = premuto_ && !trascina_ && e->button() == Qt::LeftButton;
    premuto_.reset();
    trascina_ = false;
    viewport()->setCursor(Qt::CrossCursor);
    if (clic && !conMisura_ && suClic) suClic(e->position());
}

void Foglio::keyPressEvent(QKeyEvent *e) {
    constexpr double PASSO = 1.25;
    switch (e->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return ingrandisci(PASSO);
        case Qt::Key_Minus:
            return ingrandisci(1 / PASSO);
        case Qt::Key_Home:
            return tutto();
        default:
            QAbstractScrollArea::keyPressEvent(e);
    }
}

bool Foglio::viewportEvent(QEvent *e) {
    if (e->type() == QEvent::Leave) {
        puntatore_.reset();
        fumetto({});
        if (suPosizione) suPosizione({});
        viewport()->update();
    }
    return QAbstractScrollArea::viewportEvent(e);
}

}  // namespace ombrelia::desktop
