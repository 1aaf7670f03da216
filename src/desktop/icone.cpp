// Icons. The toolkit's own reader of SVG is a package apart that a stroke of two units doesn't need.
#include "desktop/icone.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QXmlStreamReader>
#include <cctype>
#include <cmath>
#include <map>
#include <numbers>

#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

namespace {

constexpr double LATO = 24, PENNA = 2;  // of the set's drawings

// Numbers and flags of a path's text.
class LettoreTracciato {
public:
    explicit LettoreTracciato(const QString &t) : t_(t) {}
    // The next command, or the last one again where numbers follow it; 0 at the end or at what is neither.
    char comando(char ultimo) {
        salta();
        if (i_ >= t_.size()) return 0;
        if (t_.at(i_).isLetter()) return t_.at(i_++).toLatin1();
        const QChar c = t_.at(i_);
        const bool numero = c.isDigit() || c == QLatin1Char('-') || c == QLatin1Char('+') || c == QLatin1Char('.');
        if (!numero || ultimo == 'Z' || ultimo == 'z') return 0;
        return ultimo == 'M' ? 'L' : ultimo == 'm' ? 'l' : ultimo;
    }
    double numero() {
        salta();
        const qsizetype da = i_;
        bool punto = false, esponente = false;
        for (; i_ < t_.size(); ++i_) {
            const char c = t_.at(i_).toLatin1();
            const bool dopoE = i_ > da && (t_.at(i_ - 1) == QLatin1Char('e') || t_.at(i_ - 1) == QLatin1Char('E'));
            if ((c == '-' || c == '+') && i_ != da && !dopoE) break;
            if (c == '.' && std::exchange(punto, true)) break;
            if ((c == 'e' || c == 'E') && std::exchange(esponente, true)) break;
            if (!(c >= '0' && c <= '9') && c != '-' && c != '+' && c != '.' && c != 'e' && c != 'E') break;
        }
        bool va = false;
        const double x = t_.mid(da, i_ - da).toDouble(&va);
        buono_ = buono_ && va;
        return x;
    }
    bool segno() {
        salta();
        const bool uno = i_ < t_.size() && t_.at(i_) == QLatin1Char('1');
        buono_ = buono_ && (uno || (i_ < t_.size() && t_.at(i_) == QLatin1Char('0')));
        ++i_;
        return uno;
    }
    QPointF punto(const QPointF &da) {
        const double x = numero(), y = numero();
        return da + QPointF(x, y);
    }
    [[nodiscard]] bool buono() const { return buono_; }

private:
    void salta() {
        while (i_ < t_.size() && (t_.at(i_).isSpace() || t_.at(i_) == QLatin1Char(','))) ++i_;
    }
    const QString &t_;
    qsizetype i_ = 0;
    bool buono_ = true;
};

// From the arc's ends to its centre, as the format's appendix does it.
void arco(QPainterPath &p, double rx, double ry, bool grande, bool orario, const QPointF &a) {
    const QPointF da = p.currentPosition();
    if (da == a) return;
    rx = std::fabs(rx);
    ry = std::fabs(ry);
    if (rx == 0 || ry == 0) return p.lineTo(a);
    const double x = (da.x() - a.x()) / 2 / rx, y = (da.y() - a.y()) / 2 / ry, q = x * x + y * y;
    if (q > 1) rx *= std::sqrt(q), ry *= std::sqrt(q);
    const double k = (grande == orario ? -1 : 1) * std::sqrt(std::max(0.0, 1 / q - 1));
    const QPointF centro((da.x() + a.x()) / 2 + k * rx * y, (da.y() + a.y()) / 2 - k * ry * x);
    const auto angolo = [&](const QPointF &s) {
        return std::atan2(-(s.y() - centro.y()) / ry, (s.x() - centro.x()) / rx) * 180 / std::numbers::pi;
    };
    double giro = std::remainder(angolo(a) - angolo(da), 360);
    if (orario && giro > 0) giro -= 360;
    if (!orario && giro < 0) giro += 360;
    p.arcTo(QRectF(centro.x() - rx, centro.y() - ry, 2 * rx, 2 * ry), angolo(da), giro);
}

QPainterPath figura(const QXmlStreamReader &x) {
    const auto n = [&x](const char *nome) { return x.attributes().value(QLatin1String(nome)).toDouble(); };
    QPainterPath p;
    if (x.name() == QLatin1String("path")) return PercorsoSvg(x.attributes().value(QLatin1String("d")).toString());
    if (x.name() == QLatin1String("circle")) p.addEllipse(QPointF(n("cx"), n("cy")), n("r"), n("r"));
    else if (x.name() == QLatin1String("ellipse")) p.addEllipse(QPointF(n("cx"), n("cy")), n("rx"), n("ry"));
    else if (x.name() == QLatin1String("rect"))
        p.addRoundedRect(QRectF(n("x"), n("y"), n("width"), n("height")), n("rx"), n("rx"));
    else if (x.name() == QLatin1String("line")) p.moveTo(n("x1"), n("y1")), p.lineTo(n("x2"), n("y2"));
    return p;
}

// Each drawing is read once.
const QPainterPath &disegno(const std::string &nome) {
    static std::map<std::string, QPainterPath> letti;
    const auto [i, nuovo] = letti.try_emplace(nome);
    QFile f(QStringLiteral(":/icone/") + Q(nome) + QStringLiteral(".svg"));
    if (!nuovo || !f.open(QIODevice::ReadOnly)) return i->second;
    QXmlStreamReader x(&f);
    while (!x.atEnd())
        if (x.readNext() == QXmlStreamReader::StartElement) i->second.addPath(figura(x));
    return i->second;
}

class MotoreIcona final : public QIconEngine {
public:
    MotoreIcona(std::string nome, Fondo fondo) : nome_(std::move(nome)), fondo_(fondo) {}
    void paint(QPainter *p, const QRect &r, QIcon::Mode modo, QIcon::State) override {
        const QPalette tinte = QGuiApplication::palette();
        const QColor c = modo == QIcon::Disabled    ? tinte.color(QPalette::Disabled, QPalette::ButtonText)
                         : fondo_ == Fondo::Accento ? tinte.color(QPalette::HighlightedText)
                         : modo == QIcon::Selected  ? tinte.color(QPalette::HighlightedText)
                                                    : tinte.color(QPalette::ButtonText);
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        p->translate(r.topLeft());
        p->scale(r.width() / LATO, r.height() / LATO);
        p->strokePath(disegno(nome_), QPen(c, PENNA, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p->restore();
    }
    QPixmap pixmap(const QSize &misura, QIcon::Mode modo, QIcon::State stato) override {
        QPixmap q(misura);
        q.fill(Qt::transparent);
        QPainter p(&q);
        paint(&p, QRect(QPoint(0, 0), misura), modo, stato);
        return q;
    }
    [[nodiscard]] QIconEngine *clone() const override { return new MotoreIcona(nome_, fondo_); }

private:
    std::string nome_;
    Fondo fondo_;
};

}  // namespace

QPainterPath PercorsoSvg(const QString &d) {
    QPainterPath p;
    LettoreTracciato l(d);
    QPointF inizio, leva;  // of the piece; the last handle of a curve
    for (char c = l.comando(0), prima = 0; c != 0; prima = c, c = l.comando(c)) {
        const QPointF qui = p.currentPosition(), o = std::islower(static_cast<unsigned char>(c)) ? qui : QPointF();
        const char k = static_cast<char>(std::toupper(c)), era = static_cast<char>(std::toupper(prima));
        if (k == 'M') p.moveTo(inizio = l.punto(o));
        else if (k == 'L') p.lineTo(l.punto(o));
        else if (k == 'H') p.lineTo(o.x() + l.numero(), qui.y());
        else if (k == 'V') p.lineTo(qui.x(), o.y() + l.numero());
        else if (k == 'C' || k == 'S') {
            const QPointF prima1 = k == 'C' ? l.punto(o) : era == 'C' || era == 'S' ? 2 * qui - leva : qui;
            leva = l.punto(o);
            p.cubicTo(prima1, leva, l.punto(o));
        } else if (k == 'Q' || k == 'T') {
            leva = k == 'Q' ? l.punto(o) : era == 'Q' || era == 'T' ? 2 * qui - leva : qui;
            p.quadTo(leva, l.punto(o));
        } else if (k == 'A') {
            const double rx = l.numero(), ry = l.numero();
            l.numero();
            const bool grande = l.segno(), orario = l.segno();
            arco(p, rx, ry, grande, orario, l.punto(o));
        } else if (k == 'Z') {
            p.closeSubpath();
            p.moveTo(inizio);
        } else {
            break;
        }
        if (!l.buono()) break;
    }
    return p;
}

QIcon IconaDi(std::string_view nome, Fondo fondo) {
    std::string n(nome);
    if (n.empty() || disegno(n).isEmpty()) return {};
    return QIcon(new MotoreIcona(std::move(n), fondo));
}

}  // namespace ombrelia::desktop
