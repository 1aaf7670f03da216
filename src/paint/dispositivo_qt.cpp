// Painting on a QPainter. Chords that follow each other are held back and drawn as one line; corners that no eye can tell
// from the line are left out.
#include "paint/dispositivo_qt.h"

#include <QFontMetricsF>
#include <cmath>
#include <numbers>

namespace ombrelia::paint {

namespace {

constexpr qsizetype LINEA_MASSIMA = 4096, PUNTI_MASSIMI_IN_MANO = 4096;
constexpr Colore NESSUNO = -1;

// Patterns of lines: stroke, gap, stroke, gap ... in millimetres. The first is plain.
const std::vector<double> TRATTINI[] = {
    {},       {3, 1.2}, {7, 1.2},         {4, 1, 0.6, 1}, {4, 1, 0.6, 1, 0.6, 1},
    {0.6, 1}, {1.5, 1}, {1.5, 1, 0.6, 1}, {6, 1, 1.5, 1}, {10, 1, 0.6, 1, 0.6, 1, 0.6, 1},
};

}  // namespace

DispositivoQt::DispositivoQt(QPainter &pittore, Supporto supporto, const PosaDipinta &posa)
    : pittore_(pittore), supporto_(supporto), posa_(posa) {
    if (supporto != Supporto::Carta && !posa.vista.isEmpty())
        celle_.assign(static_cast<std::size_t>(posa.vista.width() + 1) * static_cast<std::size_t>(posa.vista.height() + 1),
                      NESSUNO);
}

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

QPen DispositivoQt::matita(Colore colore, double larghezza, std::uint8_t trattini) {
    QPen p(ink(colore), larghezza, tratteggio_ ? Qt::DotLine : Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (supporto_ != Supporto::Carta && !tratteggio_) p.setCapStyle(Qt::FlatCap), p.setJoinStyle(Qt::BevelJoin);
    if (trattini > 0 && trattini < std::size(TRATTINI) && !tratteggio_) {
        QList<qreal> volte;  // of the pen's width
        for (const double mm : TRATTINI[trattini]) volte << mm * posa_.millimetro / larghezza;
        p.setDashPattern(volte);
        p.setCapStyle(Qt::FlatCap);
    }
    return p;
}

void DispositivoQt::Linea(double x1, double y1, double x2, double y2, Colore colore, int spessore) {
    const QPointF a = porta(x1, y1), b = porta(x2, y2);
    if (fuori(a, b)) return;
    // Chords go on whichever way round they are drawn; the first of a line shows its way only with the second.
    for (LineaInMano &c : catene_) {
        if (c.colore != colore || c.spessore != spessore || c.trattini != trattini_ || c.corsa.isEmpty() ||
            c.corsa.size() >= LINEA_MASSIMA)
            continue;
        if (c.sola && (c.corsa[0] == a || c.corsa[0] == b)) {
            std::swap(c.corsa[0], c.fine);
            c.dirX = -c.dirX;
            c.dirY = -c.dirY;
        }
        if (c.fine != a && c.fine != b) continue;
        c.sola = false;
        return aggiungi(c, c.fine == a ? b : a);
    }
    LineaInMano &c = catene_[turno_];
    turno_ = (turno_ + 1) % catene_.size();
    vuotaCatena(c);
    c.colore = colore;
    c.spessore = spessore;
    c.trattini = trattini_;
    c.sola = true;
    c.corsa.append(a);
    aggiungi(c, b);
}

// A point is held back while all points since the last kept corner lie within the tolerance of one straight run.
void DispositivoQt::aggiungi(LineaInMano &c, const QPointF &p) const {
    const auto verso = [this, &c](const QPointF &q) {
        const QPointF da = c.corsa.constLast();
        const double dx = q.x() - da.x(), dy = q.y() - da.y(), d = std::sqrt(dx * dx + dy * dy);
        // A line that turns back keeps the point where it did.
        if (d < c.lunga - posa_.tolleranza) return true;
        c.lunga = std::max(c.lunga, d);
        if (d <= posa_.tolleranza) return false;
        if (c.apertura == 0) {
            c.dirX = dx / d;
            c.dirY = dy / d;
            c.apertura = posa_.tolleranza / d;
            return false;
        }
        // Sine of the angle off the run's direction; the run narrows as it grows longer.
        const double seno = std::fabs(c.dirX * dy - c.dirY * dx) / d;
        if (c.dirX * dx + c.dirY * dy <= 0 || seno > c.apertura) return true;
        c.apertura = std::min(c.apertura, posa_.tolleranza / d);
        return false;
    };
    if (verso(p)) {
        c.corsa.append(c.fine);
        c.apertura = c.lunga = 0;
        verso(p);
    }
    c.fine = p;
}

void DispositivoQt::vuotaCatena(LineaInMano &c) {
    if (c.corsa.isEmpty()) return;
    c.corsa.append(c.fine);
    c.apertura = c.lunga = 0;
    if (c.corsa.size() == 2) {
        QLineF linea(c.corsa[0], c.corsa[1]);
        c.corsa.clear();
        // On a screen a trace of crumbs is drawn dot by dot: each dot once, and then whole.
        if (const double lunga = linea.length(); !celle_.empty() && lunga < posa_.penna) {
            const QPointF mezzo = linea.center();
            if (segnata(mezzo, c.colore)) return;
            const QPointF verso = lunga > 0 ? QPointF(linea.dx(), linea.dy()) / lunga : QPointF(1, 0);
            linea = QLineF(mezzo - verso * (posa_.penna / 2), mezzo + verso * (posa_.penna / 2));
        }
        for (LineeSciolte &t : tratti_)
            if (t.colore == c.colore && t.spessore == c.spessore && t.trattini == c.trattini) return t.linee.append(linea);
        tratti_.push_back({c.colore, c.spessore, c.trattini, {linea}});
        return;
    }
    pittore_.setPen(matita(c.colore, posa_.penna * c.spessore, c.trattini));
    pittore_.drawPolyline(c.corsa);
    c.corsa.clear();
}

void DispositivoQt::vuotaTratti() {
    for (LineeSciolte &t : tratti_) {
        if (t.linee.isEmpty()) continue;
        pittore_.setPen(matita(t.colore, posa_.penna * t.spessore, t.trattini));
        pittore_.drawLines(t.linee);
        t.linee.clear();
    }
}

bool DispositivoQt::segnata(const QPointF &p, Colore colore) {
    if (celle_.empty() || fuori(p, p)) return false;
    const auto i = static_cast<std::size_t>(p.x() - posa_.vista.left()), j = static_cast<std::size_t>(p.y() - posa_.vista.top());
    Colore &cella = celle_[j * static_cast<std::size_t>(posa_.vista.width() + 1) + i];
    const bool gia = cella == colore;
    cella = colore;
    return gia;
}

void DispositivoQt::Punto(double x, double y, Colore colore) {
    const QPointF p = porta(x, y);
    if (fuori(p, p)) return;
    if (segnata(p, colore)) return;
    if (!punti_.isEmpty() && (colore != colorePunti_ || punti_.size() >= PUNTI_MASSIMI_IN_MANO)) vuotaPunti();
    colorePunti_ = colore;
    punti_.append(p);
}

void DispositivoQt::vuotaPunti() {
    if (punti_.isEmpty()) return;
    QPen p(ink(colorePunti_), posa_.punto, Qt::SolidLine, Qt::RoundCap);
    if (supporto_ != Supporto::Carta) {
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
    for (std::size_t i = 0; i < catene_.size(); ++i) vuotaCatena(catene_[(turno_ + i) % catene_.size()]);
    vuotaTratti();
    vuotaPunti();
}

void DispositivoQt::Riquadro(double x1, double y1, double x2, double y2, Colore colore, bool) {
    vuota();
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
    pittore_.setPen(matita(colore, posa_.penna));
    if (riempimento >= 0) pittore_.setBrush(ink(riempimento));
    constexpr double GIRO = 2 * std::numbers::pi;
    double arco = std::fmod(fine - inizio, GIRO);
    if (arco < 0) arco += GIRO;
    constexpr double INTERO = 1e-6, SEDICESIMI = 16 * 180 / std::numbers::pi;
    if (fine == 0 || arco < INTERO || arco > GIRO - INTERO) pittore_.drawEllipse(dove);
    else
        pittore_.drawArc(dove, static_cast<int>(std::lround(std::fmod(inizio, GIRO) * SEDICESIMI)),
                         static_cast<int>(std::lround(arco * SEDICESIMI)));
    pittore_.setBrush(Qt::NoBrush);
}

void DispositivoQt::Testo(double x, double y, std::string_view testo, Colore colore) {
    vuota();
    const QPointF p = porta(x, y);
    if (!posa_.vista.isEmpty() &&
        (p.y() > posa_.vista.bottom() || p.x() > posa_.vista.right() || p.y() + 2 * posa_.corpo < posa_.vista.top()))
        return;
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

void Dipingi(Tavolo &t, Dispositivo &d) {
    struct Rimessa {
        Tavolo &t;
        Dispositivo *prima;
        std::function<void(bool)> attesa;
        ~Rimessa() {
            t.dispositivo = prima;
            t.suAttesa = std::move(attesa);
        }
    } guida{t, t.dispositivo, std::move(t.suAttesa)};
    t.suAttesa = nullptr;
    t.dispositivo = &d;
    t.Refresh();
}

}  // namespace ombrelia::paint
