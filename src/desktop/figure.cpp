// The drawings.
#include "desktop/figure.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <functional>
#include <numbers>

#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

namespace {

constexpr double GRADO = std::numbers::pi / 180;
const QColor SOLE(0xE0, 0x9A, 0x10), OMBRA(0x3B, 0x6E, 0xA8), MURO(0xB9, 0xAA, 0x98);

// A picture that a function paints, in a square of 100 units round the middle unless it asks for another size.
class Figura final : public QWidget {
public:
    Figura(QWidget *genitore, QSizeF misura, std::function<void(QPainter &)> dipingi)
        : QWidget(genitore), misura_(misura), dipingi_(std::move(dipingi)) {}

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const double k = std::min(width() / misura_.width(), height() / misura_.height());
        p.translate(width() / 2.0, height() / 2.0);
        p.scale(k, k);
        QFont f = font();
        f.setPixelSize(9);
        p.setFont(f);
        dipingi_(p);
    }

private:
    QSizeF misura_;
    std::function<void(QPainter &)> dipingi_;
};

double gradi(const std::string &testo, double altrimenti) {
    const Valore v = Val(testo);
    return v.esiste() && std::fabs(v.v) <= 360 ? v.v : altrimenti;
}

QPen penna(const QColor &c, double larga, Qt::PenStyle stile = Qt::SolidLine) { return {c, larga, stile, Qt::RoundCap}; }

void freccia(QPainter &p, const QPointF &da, const QPointF &a, const QColor &c, double larga = 1.6) {
    p.setPen(penna(c, larga));
    p.drawLine(da, a);
    const double t = std::atan2(a.y() - da.y(), a.x() - da.x());
    constexpr double PUNTA = 6, APERTURA = 0.42;
    QPainterPath punta(a);
    punta.lineTo(a - PUNTA * QPointF(std::cos(t - APERTURA), std::sin(t - APERTURA)));
    punta.lineTo(a - PUNTA * QPointF(std::cos(t + APERTURA), std::sin(t + APERTURA)));
    p.setPen(Qt::NoPen);
    p.setBrush(c);
    p.drawPath(punta);
    p.setBrush(Qt::NoBrush);
}

void scritta(QPainter &p, const QPointF &centro, const QString &testo, const QColor &c) {
    p.setPen(c);
    p.drawText(QRectF(centro.x() - 80, centro.y() - 8, 160, 16), Qt::AlignCenter, testo);
}

// The side with the wall's body, hatched behind the line from a to b; the body lies on the left going from a to b.
void muro(QPainter &p, const QPointF &a, const QPointF &b, double spesso) {
    const double t = std::atan2(b.y() - a.y(), b.x() - a.x());
    const QPointF dietro(spesso * std::sin(t), -spesso * std::cos(t));
    p.setPen(Qt::NoPen);
    p.setBrush(QBrush(MURO, Qt::BDiagPattern));
    p.drawPolygon(QPolygonF{a, b, b + dietro, a + dietro});
    p.setBrush(Qt::NoBrush);
    p.setPen(penna(MURO.darker(150), 2));
    p.drawLine(a, b);
}

void sole(QPainter &p, const QPointF &c, double r) {
    p.setPen(penna(SOLE, 1.4));
    for (int i = 0; i < 12; ++i) {
        const QPointF d(std::cos(i * 30 * GRADO), std::sin(i * 30 * GRADO));
        p.drawLine(c + d * (r + 3), c + d * (r + 7));
    }
    p.setBrush(SOLE);
    p.drawEllipse(c, r, r);
    p.setBrush(Qt::NoBrush);
}

// South of the equator declination 0 looks North. The run of a southern dial leaves the latitude without its sign.
bool meridionale(const Sessione &s) {
    const Valore lat = Val(s.in.txtLAT);
    return lat < 0 || (s.v.segnoLat == -1 && lat == -s.v.latGradi && lat > 0);
}

// Painted in the plane's own turn: declination 0 looks to the equator, West is left of a map whose North is up.
void pianta(QPainter &p, const Sessione &s, const QColor &testo) {
    const double d = gradi(s.in.txtDec, 0);
    const QString ovest = Q(s.Traduci("O (ovest)"_it)).left(1);
    QColor tenue = testo;
    tenue.setAlpha(90);
    p.setPen(penna(tenue, 0.8, Qt::DashLine));
    p.drawLine(QPointF(0, -34), QPointF(0, 36));
    for (const auto &[dove, lettera] :
         {std::pair{QPointF(0, -42), QStringLiteral("N")}, std::pair{QPointF(0, 43), QStringLiteral("S")},
          std::pair{QPointF(-48, 0), ovest}, std::pair{QPointF(48, 0), QStringLiteral("E")}})
        scritta(p, dove, lettera, tenue);
    p.save();
    if (meridionale(s)) p.scale(1, -1);
    p.rotate(d);
    muro(p, {-36, 0}, {36, 0}, 9);
    freccia(p, {0, 0}, {0, 32}, SOLE);
    p.restore();
}

void fianco(QPainter &p, const Sessione &s, const QColor &testo) {
    const double z = gradi(s.in.txtInc, 0) * GRADO;
    QColor tenue = testo;
    tenue.setAlpha(90);
    p.setPen(penna(tenue, 0.8));
    p.drawLine(QPointF(-46, 36), QPointF(46, 36));
    p.setPen(penna(tenue, 0.8, Qt::DashLine));
    const QPointF piede(-14, 36), cima = piede + 62 * QPointF(-std::sin(z), -std::cos(z));
    p.drawLine(piede, piede + QPointF(0, -62));
    muro(p, piede, cima, 8);
    const QPointF mezzo = (piede + cima) / 2, normale(std::cos(z), -std::sin(z));
    freccia(p, mezzo, mezzo + 26 * normale, OMBRA);
}

void misura(QPainter &p, const Sessione &s, const QColor &testo) {
    const auto t = [&s](std::string_view x) { return Q(s.Traduci(x)); };
    muro(p, {-150, -70}, {150, -70}, 14);
    scritta(p, {-110, -92}, t("parete"_it), testo);
    p.setPen(penna(testo, 1));
    p.setBrush(QColor(0xF3, 0xE7, 0xCE));
    p.drawRect(QRectF(-80, -69, 160, 90));
    p.setBrush(Qt::NoBrush);
    const QColor legno(0x5C, 0x4A, 0x2E);
    scritta(p, {-128, 8}, t("tavoletta orizzontale"_it), testo);
    p.setPen(penna(testo, 0.8));
    p.drawLine(QPointF(-112, 0), QPointF(-74, -18));
    p.setPen(penna(legno, 1));
    p.setPen(penna(legno, 1, Qt::DashLine));
    p.drawLine(QPointF(0, -69), QPointF(0, 86));
    scritta(p, {44, 80}, t("perpendicolare"_it), testo);
    constexpr double AZ = 34 * GRADO;
    const QPointF filo(0, 6), verso(std::sin(AZ), -std::cos(AZ));
    p.setPen(penna(OMBRA, 2.4));
    p.drawLine(filo, filo + 89 * verso);
    p.setPen(penna(SOLE, 1, Qt::DotLine));
    p.drawLine(filo, filo - 104 * verso);
    sole(p, filo - 118 * verso, 8);
    scritta(p, filo - 118 * verso + QPointF(0, -24), t("Sole"_it), testo);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xB0, 0x30, 0x20));
    p.drawEllipse(filo, 3.2, 3.2);
    p.setBrush(Qt::NoBrush);
    p.setPen(penna(QColor(0xB0, 0x30, 0x20), 1.4));
    p.drawArc(QRectF(filo.x() - 46, filo.y() - 46, 92, 92), static_cast<int>(16 * (90 - 34)), 16 * 34);
    scritta(p, filo + QPointF(17, -54), QStringLiteral("az"), QColor(0xB0, 0x30, 0x20));
    const QString ombra = t("ombra del filo"_it);
    scritta(p, {118, -30}, ombra, OMBRA);
    p.setPen(penna(OMBRA, 0.8));
    p.drawLine(QPointF(115 - p.fontMetrics().horizontalAdvance(ombra) / 2.0, -34), QPointF(46, -50));
    scritta(p, {60, 34}, t("filo a piombo"_it), QColor(0xB0, 0x30, 0x20));
    p.setPen(penna(QColor(0xB0, 0x30, 0x20), 0.8));
    p.drawLine(QPointF(30, 30), QPointF(4, 9));
    scritta(p, {-44, -56}, QStringLiteral("−"), legno);
    scritta(p, {68, -56}, QStringLiteral("+"), legno);
}

QWidget *figura(QWidget *genitore, QSizeF misura, QSize minima, std::function<void(QPainter &)> f) {
    auto *w = new Figura(genitore, misura, std::move(f));
    w->setMinimumSize(minima);
    return w;
}

}  // namespace

QWidget *FiguraPianta(const Sessione &s, QWidget *genitore) {
    return figura(genitore, {112, 104}, {104, 92},
                  [&s, genitore](QPainter &p) { pianta(p, s, genitore->palette().windowText().color()); });
}

QWidget *FiguraFianco(const Sessione &s, QWidget *genitore) {
    return figura(genitore, {112, 104}, {104, 92},
                  [&s, genitore](QPainter &p) { fianco(p, s, genitore->palette().windowText().color()); });
}

QWidget *FiguraIstruzioni(const Sessione &s, QWidget *genitore) {
    return figura(genitore, {340, 240}, {520, 360},
                  [&s, genitore](QPainter &p) { misura(p, s, genitore->palette().windowText().color()); });
}

}  // namespace ombrelia::desktop
