// The small drawings of what a field measures. One size, the palette's colours; the measured quantity in the accent.
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <cmath>
#include <numbers>

#include "desktop/aiuti.h"

namespace ombrelia::desktop {

namespace {

constexpr int LARGO = 200, ALTO = 128;
using P = QPointF;

// A pen in three inks: the thing, what helps to see it, what is measured.
class Mano {
public:
    explicit Mano(QPainter &p) : p_(p) {
        const QPalette t = QGuiApplication::palette();
        cosa_ = t.color(QPalette::ToolTipText);
        aiuto_ = t.color(QPalette::PlaceholderText);
        misura_ = t.color(QPalette::Link);
    }
    Mano &cosa(double spessa = 2.4) { return penna(cosa_, spessa, Qt::SolidLine); }
    Mano &aiuto() { return penna(aiuto_, 1.2, Qt::DashLine); }
    Mano &misura() { return penna(misura_, 2.4, Qt::SolidLine); }
    Mano &linea(P a, P b) {
        p_.drawLine(a, b);
        return *this;
    }
    Mano &cerchio(P c, double r) {
        p_.drawEllipse(c, r, r);
        return *this;
    }
    // From one direction to another, degrees counterclockwise from the right.
    Mano &arco(P c, double r, double da, double a) {
        p_.drawArc(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r), static_cast<int>(da * 16), static_cast<int>((a - da) * 16));
        return *this;
    }
    Mano &freccia(P a, P b) {
        const double t = std::atan2(b.y() - a.y(), b.x() - a.x());
        linea(a, b);
        for (const double d : {2.6, -2.6}) p_.drawLine(b, b + 8 * P(std::cos(t + d), std::sin(t + d)));
        return *this;
    }
    Mano &quota(P a, P b) { return freccia((a + b) / 2, a).freccia((a + b) / 2, b); }
    Mano &testo(P dove, const QString &t) {
        p_.drawText(QRectF(dove.x() - 40, dove.y() - 10, 80, 20), Qt::AlignCenter, t);
        return *this;
    }
    Mano &tratteggia(P a, P b, P verso) {
        for (int i = 0; i <= 8; ++i) linea(a + (b - a) * i / 8.0, a + (b - a) * i / 8.0 + verso);
        return *this;
    }
    Mano &curva(P a, P leva, P b) {
        QPainterPath s(a);
        s.quadTo(leva, b);
        p_.drawPath(s);
        return *this;
    }

private:
    Mano &penna(const QColor &c, double spessa, Qt::PenStyle stile) {
        p_.setPen(QPen(c, spessa, stile, Qt::RoundCap));
        return *this;
    }
    QPainter &p_;
    QColor cosa_, aiuto_, misura_;
};

P verso(double gradi, double quanto) {
    const double t = gradi * std::numbers::pi / 180;
    return {quanto * std::cos(t), -quanto * std::sin(t)};
}

const QString PHI = QStringLiteral("φ"), LAMBDA = QStringLiteral("λ"), D = QStringLiteral("d"), I = QStringLiteral("i"),
              G = QStringLiteral("g"), NORD = QStringLiteral("N"), SUD = QStringLiteral("S");

// The globe from its side, the equator across: the angle from it to the place.
void latitudine(Mano &m) {
    const P c(100, 64);
    m.aiuto().linea(c - P(62, 0), c + P(62, 0)).cosa().cerchio(c, 50).testo(c - P(0, 57), NORD);
    m.misura().linea(c, c + verso(45, 50)).arco(c, 26, 0, 45).testo(c + verso(22, 38), PHI);
}

// The globe from above its pole: the angle from Greenwich to the place's meridian.
void longitudine(Mano &m) {
    const P c(100, 64);
    m.cosa().cerchio(c, 50).aiuto().linea(c, c + verso(-90, 56)).testo(c + P(-34, 54), QStringLiteral("0°"));
    m.cosa(1.2).testo(c - P(0, 8), NORD);
    m.misura().linea(c, c + verso(-35, 50)).arco(c, 26, -90, -35).testo(c + verso(-62, 40), LAMBDA);
}

// From above: the wall, South, and where the wall looks.
void declinazione(Mano &m) {
    const P c(100, 40);
    constexpr double GIRO = 28;
    const P lungo = verso(-GIRO, 74), dietro = verso(90 - GIRO, 9);
    m.cosa(3).linea(c - lungo, c + lungo).cosa(1).tratteggia(c - lungo, c + lungo, dietro);
    m.aiuto().linea(c, c + P(0, 76)).cosa(1.2).testo(c + P(12, 78), SUD);
    m.misura().freccia(c, c + verso(-90 - GIRO, 72)).arco(c, 42, -90 - GIRO, -90).testo(c + verso(-90 - GIRO / 2, 56), D);
}

// From the side: the plane and the vertical.
void inclinazione(Mano &m) {
    const P c(118, 112);
    m.aiuto().linea(c, c - P(0, 100)).linea(c - P(90, 0), c + P(60, 0));
    m.cosa(3).linea(c, c + verso(125, 108)).misura().arco(c, 60, 90, 125).testo(c + verso(107, 76), I);
}

// From the side: a rod square to the wall, its foot, its tip and the tip's shadow.
void ortostilo(Mano &m) {
    const P piede(60, 52), punta(136, 52);
    m.cosa(3).linea({60, 8}, {60, 122}).cosa(1).tratteggia({60, 8}, {60, 122}, {-8, 6});
    m.aiuto().linea(P(176, 22), P(60, 109)).cosa(1.6).cerchio({183, 17}, 8);
    m.misura().linea(piede, punta).cosa(1).quota({60, 36}, {136, 36}).testo({98, 24}, G);
    m.cosa(2).cerchio(punta, 3).cerchio({60, 109}, 2);
}

// The polar style over its substyle, with the rod that carries its tip.
void stilo(Mano &m) {
    const P centro(40, 24), piede(118, 92), punta(150, 56);
    m.cosa(2).linea(centro, centro + (piede - centro) * 1.25).misura().linea(centro, punta + (punta - centro) * 0.15);
    m.cosa(1.6).linea(piede, punta).cerchio(centro, 3).cerchio(punta, 3);
}

// The frame about the foot of the rod, with the four measures.
void cornice(Mano &m) {
    const QRectF r(34, 14, 132, 100);
    const P piede(88, 54);
    m.cosa()
        .linea(r.topLeft(), r.topRight())
        .linea(r.topRight(), r.bottomRight())
        .linea(r.bottomRight(), r.bottomLeft())
        .linea(r.bottomLeft(), r.topLeft());
    m.aiuto().linea({34, 54}, {166, 54}).linea({88, 14}, {88, 114}).cosa(2).cerchio(piede, 3);
    m.misura().freccia(piede, {34, 54}).freccia(piede, {166, 54}).freccia(piede, {88, 14}).freccia(piede, {88, 114});
    m.cosa(1).testo({54, 44}, QStringLiteral("x0")).testo({134, 44}, QStringLiteral("x1"));
    m.testo({102, 30}, QStringLiteral("y0")).testo({102, 90}, QStringLiteral("y1"));
}

// Hour lines from the centre, one of them chosen.
void ore(Mano &m) {
    const P c(100, 10);
    for (int i = -3; i <= 3; ++i)
        (i == 2 ? m.misura() : m.cosa(1.6)).linea(c + verso(-90 + 22 * i, 26), c + verso(-90 + 22 * i, 104 - 3 * std::abs(i)));
}

// The curves of the solstices and the line between them.
void giorno(Mano &m) {
    m.cosa(1.6).curva({14, 22}, {100, 62}, {186, 22}).linea({14, 60}, {186, 60}).misura().curva({14, 104}, {100, 66}, {186, 104});
    m.cosa(2).cerchio({100, 24}, 3);
}

void carattere(Mano &m) {
    m.cosa(3).linea({66, 104}, {100, 24}).linea({100, 24}, {134, 104}).linea({80, 74}, {120, 74});
    m.aiuto().linea({40, 24}, {176, 24}).linea({40, 104}, {176, 104}).misura().quota({166, 24}, {166, 104});
}

}  // namespace

QImage DisegnoAiuto(Grandezza quale, double rapporto) {
    QImage i(QSize(LARGO, ALTO) * rapporto, QImage::Format_ARGB32_Premultiplied);
    i.setDevicePixelRatio(rapporto);
    i.fill(QGuiApplication::palette().color(QPalette::ToolTipBase));
    QPainter p(&i);
    p.setRenderHint(QPainter::Antialiasing);
    QFont f = p.font();
    f.setPixelSize(14);
    p.setFont(f);
    Mano m(p);
    switch (quale) {
        case Grandezza::Latitudine:
            latitudine(m);
            break;
        case Grandezza::Longitudine:
            longitudine(m);
            break;
        case Grandezza::Declinazione:
            declinazione(m);
            break;
        case Grandezza::Inclinazione:
            inclinazione(m);
            break;
        case Grandezza::Ortostilo:
            ortostilo(m);
            break;
        case Grandezza::Stilo:
            stilo(m);
            break;
        case Grandezza::Cornice:
            cornice(m);
            break;
        case Grandezza::Ore:
            ore(m);
            break;
        case Grandezza::Giorno:
            giorno(m);
            break;
        case Grandezza::Carattere:
            carattere(m);
            break;
        case Grandezza::Nessuno:
            break;
    }
    return i;
}

}  // namespace ombrelia::desktop
