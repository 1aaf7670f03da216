// Painting on a QPainter. Chords that follow each other are held back and drawn as one line; corners that no eye can tell
// from the line are left out.
#include "paint/dispositivo_qt.h"

#include <QFontMetricsF>
#include <cmath>
#include <numbers>

namespace ombrelia::paint {

namespace {

constexpr qsizetype LINEA_MASSIMA = 4096, PUNTI_MASSIMI_IN_MANO = 4096;

}  // namespace

DispositivoQt::DispositivoQt(QPainter &pittore, Supporto supporto, const Posa &posa)
    : pittore_(pittore), supporto_(supporto), posa_(posa) {}

bool DispositivoQt::fuori(const QPointF &a, const QPointF &b) const {
    if (posa_.vista.isEmpty()) return false;
    const QRectF &v = posa_.vista;
    return (a.x() < v.left() && b.x() < v.left()) || (a.x() > v.right() && b.x() > v.right()) ||
           (a.y() < v.top() && b.y() < v.top()) || (a.y() > v.bottom() && b.y() > v.bottom());
}

QColor DispositivoQt::ink(Colore colore) {
    for (const auto &[c, q] : inchiostri_)
        if (c == colore) return q;
    return inchiostri_.emplace_back(colore, Inchiostro(colore, supporto_)).second;
}

QPen DispositivoQt::matita(Colore colore, double larghezza) {
    QPen p(ink(colore), larghezza, tratteggio_ ? Qt::DotLine : Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (supporto_ == Supporto::Schermo && !tratteggio_) p.setCapStyle(Qt::FlatCap), p.setJoinStyle(Qt::BevelJoin);
    return p;
}

void DispositivoQt::pagina() {
    if (!paginaNuova_) return;
    paginaNuova_ = false;
    if (voltaPagina) voltaPagina();
}

void DispositivoQt::Linea(double x1, double y1, double x2, double y2, Colore colore, int spessore) {
    const QPointF a = porta(x1, y1), b = porta(x2, y2);
    if (fuori(a, b)) return;
    vuotaPunti();
    if (linea_.isEmpty() || colore != colore_ || spessore != spessore_ || a != fine_ || linea_.size() >= LINEA_MASSIMA) {
        vuotaLinea();
        prima(colore, spessore);
        linea_.append(a);
        fine_ = a;
    }
    aggiungi(b);
}

void DispositivoQt::prima(Colore colore, int spessore) {
    pagina();
    colore_ = colore;
    spessore_ = spessore;
}

// A point is held back while all points since the last kept corner lie within the tolerance of one straight run.
void DispositivoQt::aggiungi(const QPointF &p) {
    const QPointF da = linea_.constLast();
    double dx = p.x() - da.x(), dy = p.y() - da.y();
    const double d = std::hypot(dx, dy);
    if (d > posa_.tolleranza) {
        dx /= d;
        dy /= d;
        if (apertura_ == 0) {
            dirX_ = dx;
            dirY_ = dy;
            apertura_ = posa_.tolleranza / d;
        } else {
            // Sine of the angle off the run's direction; the run narrows as it grows longer.
            const double seno = std::fabs(dirX_ * dy - dirY_ * dx);
            if (dirX_ * dx + dirY_ * dy <= 0 || seno > apertura_) {
                linea_.append(fine_);
                apertura_ = 0;
                sospesa_ = false;
                const QPointF nuovo = linea_.constLast();
                const double ex = p.x() - nuovo.x(), ey = p.y() - nuovo.y(), e = std::hypot(ex, ey);
                if (e > posa_.tolleranza) {
                    dirX_ = ex / e;
                    dirY_ = ey / e;
                    apertura_ = posa_.tolleranza / e;
                }
            } else {
                apertura_ = std::min(apertura_, posa_.tolleranza / d);
            }
        }
    } else if (apertura_ != 0) {
        // Came back to the corner: keep where it turned.
        linea_.append(fine_);
        apertura_ = 0;
    }
    fine_ = p;
    sospesa_ = true;
}

void DispositivoQt::vuotaLinea() {
    if (linea_.isEmpty()) return;
    if (sospesa_) linea_.append(fine_);
    sospesa_ = false;
    apertura_ = 0;
    pittore_.setPen(matita(colore_, posa_.penna * spessore_));
    if (linea_.size() == 2) pittore_.drawLine(linea_[0], linea_[1]);
    else pittore_.drawPolyline(linea_);
    linea_.clear();
}

void DispositivoQt::Punto(double x, double y, Colore colore) {
    const QPointF p = porta(x, y);
    if (fuori(p, p)) return;
    vuotaLinea();
    if (!punti_.isEmpty()) {
        if (colore != colorePunti_ || punti_.size() >= PUNTI_MASSIMI_IN_MANO) vuotaPunti();
        else if (std::fabs(p.x() - punti_.constLast().x()) + std::fabs(p.y() - punti_.constLast().y()) < posa_.tolleranza) return;
    }
    if (punti_.isEmpty()) pagina();
    colorePunti_ = colore;
    punti_.append(p);
}

void DispositivoQt::vuotaPunti() {
    if (punti_.isEmpty()) return;
    QPen p(ink(colorePunti_), posa_.punto, Qt::SolidLine, Qt::RoundCap);
    if (supporto_ == Supporto::Schermo) {
        // Small squares are as good as dots there, and far quicker.
        const double m = posa_.punto;
        QVector<QRectF> quadri;
        quadri.reserve(punti_.size());
        for (const QPointF &q : punti_) quadri.append(QRectF(q.x() - m / 2, q.y() - m / 2, m, m));
        pittore_.setPen(Qt::NoPen);
        pittore_.setBrush(p.color());
        pittore_.drawRects(quadri);
        pittore_.setBrush(Qt::NoBrush);
    } else {
        pittore_.setPen(p);
        pittore_.drawPoints(punti_);
    }
    punti_.clear();
}

void DispositivoQt::vuota() {
    vuotaLinea();
    vuotaPunti();
}

void DispositivoQt::Riquadro(double x1, double y1, double x2, double y2, Colore colore, bool) {
    vuota();
    pagina();
    pittore_.setPen(matita(colore, posa_.penna));
    pittore_.setBrush(Qt::NoBrush);
    pittore_.drawRect(QRectF(porta(x1, y1), porta(x2, y2)).normalized());
}

void DispositivoQt::Cerchio(double x, double y, double raggio, Colore colore, Colore riempimento, double inizio, double fine,
                            double aspetto) {
    const double r = raggio * posa_.fattore, a = std::fabs(aspetto);
    if (!(r >= 0) || !(a > 0)) return;
    vuota();
    // The radius is the longer half axis.
    const double rx = a > 1 ? r / a : r, ry = a > 1 ? r : r * a;
    const QPointF c = porta(x, y);
    const QRectF dove(c.x() - rx, c.y() - ry, 2 * rx, 2 * ry);
    if (fuori(dove.topLeft(), dove.bottomRight())) return;
    pagina();
    pittore_.setPen(matita(colore, posa_.penna));
    if (riempimento >= 0) pittore_.setBrush(ink(riempimento));
    constexpr double GIRO = 2 * std::numbers::pi;
    double arco = std::fmod(fine - inizio, GIRO);
    if (arco < 0) arco += GIRO;
    constexpr double INTERO = 1e-6, SEDICESIMI = 16 * 180 / std::numbers::pi;
    if (fine == 0 || arco < INTERO || arco > GIRO - INTERO) pittore_.drawEllipse(dove);
    else pittore_.drawArc(dove, static_cast<int>(std::lround(std::fmod(inizio, GIRO) * SEDICESIMI)), static_cast<int>(std::lround(arco * SEDICESIMI)));
    pittore_.setBrush(Qt::NoBrush);
}

void DispositivoQt::Testo(double x, double y, std::string_view testo, Colore colore) {
    vuota();
    const QPointF p = porta(x, y);
    if (!posa_.vista.isEmpty() && (p.y() > posa_.vista.bottom() || p.x() > posa_.vista.right() || p.y() + 2 * posa_.corpo < posa_.vista.top()))
        return;
    pagina();
    QFont f = pittore_.font();
    constexpr double MINIMO = 1;
    f.setPixelSize(static_cast<int>(std::lround(std::max(posa_.corpo, MINIMO))));
    pittore_.setFont(f);
    pittore_.setPen(ink(colore));
    pittore_.drawText(QPointF(p.x(), p.y() + QFontMetricsF(f, pittore_.device()).ascent()),
                      QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())));
}

void DispositivoQt::Tratteggio(bool si) {
    vuota();
    tratteggio_ = si;
}

void DispositivoQt::NuovaPagina() {
    vuota();
    paginaNuova_ = true;
}

void Dipingi(Tavolo &t, Dispositivo &d) {
    struct Guida {
        Tavolo &t;
        Dispositivo *prima;
        std::function<void(bool)> attesa;
        ~Guida() {
            t.dispositivo = prima;
            t.suAttesa = std::move(attesa);
        }
    } guida{t, t.dispositivo, std::move(t.suAttesa)};
    t.suAttesa = nullptr;
    t.dispositivo = &d;
    t.Refresh();
}

}  // namespace ombrelia::paint
