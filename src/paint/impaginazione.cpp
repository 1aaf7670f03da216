// Pages. Corners stay doubles until the device, so that neighbours meet.
#include "paint/impaginazione.h"

#include <QBuffer>
#include <QPainter>
#include <cmath>

#include "paint/applicazione.h"
#include "paint/pagine_pdf.h"
#include "paint/su_carta.h"

namespace ombrelia::paint {

namespace {

void testoPiccolo(QPainter &p, const QPointF &dove, const QString &testo, double corpo) {
    QFont f = p.font();
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(corpo))));
    p.setFont(f);
    p.setPen(Qt::black);
    p.drawText(dove, testo);
}

// What helps to put pages together: all of it but the seams lies outside what the page shows.
void segni(QPainter &p, const QRectF &tessera, double u, int numero, const std::string &marchio) {
    const double mm = u / 1000;
    p.setPen(QPen(Qt::black, 0.1 * mm, Qt::SolidLine, Qt::FlatCap));
    for (const double x : {tessera.left(), tessera.right()})
        for (const double y : {tessera.top(), tessera.bottom()}) {
            const double dx = x == tessera.left() ? -1 : 1, dy = y == tessera.top() ? -1 : 1;
            p.drawLine(QPointF(x + dx * 0.5 * mm, y), QPointF(x + dx * 5 * mm, y));
            p.drawLine(QPointF(x, y + dy * 0.5 * mm), QPointF(x, y + dy * 5 * mm));
        }
    QString testo = QString::number(numero);
    if (!marchio.empty()) testo += QLatin1Char(' ') + QString::fromStdString(marchio);
    testoPiccolo(p, {tessera.left() + 8 * mm, tessera.top() - 1.5 * mm}, testo, 3.4 * mm);
}

void righello(QPainter &p, const QRectF &tessera, double u) {
    const double mm = u / 1000;
    constexpr int CENTIMETRI = 10;
    p.setPen(QPen(Qt::black, 0.1 * mm, Qt::SolidLine, Qt::FlatCap));
    const double y = tessera.bottom() + 1.5 * mm, x = tessera.left() + 20 * mm;
    p.drawLine(QPointF(x, y), QPointF(x + CENTIMETRI * 10 * mm, y));
    for (int i = 0; i <= CENTIMETRI; ++i) {
        const double lungo = i == 0 || i == CENTIMETRI ? 2.5 : i == CENTIMETRI / 2 ? 1.8 : 1.2;
        p.drawLine(QPointF(x + i * 10 * mm, y), QPointF(x + i * 10 * mm, y + lungo * mm));
    }
    testoPiccolo(p, {x + CENTIMETRI * 10 * mm + 2 * mm, y + 2.2 * mm}, QStringLiteral("100 mm"), 2.6 * mm);
}

// Where the page to the right and the one below begin.
void giunture(QPainter &p, const QRectF &tessera, double u, double sovrapposizione) {
    if (!(sovrapposizione > 0)) return;
    const double s = sovrapposizione * u;
    p.setPen(QPen(QColor(0x80, 0x80, 0x80), 0.1 * u / 1000, Qt::DashLine, Qt::FlatCap));
    p.drawLine(QPointF(tessera.right() - s, tessera.top()), QPointF(tessera.right() - s, tessera.bottom()));
    p.drawLine(QPointF(tessera.left(), tessera.bottom() - s), QPointF(tessera.right(), tessera.bottom() - s));
}

// How many pages of a side, each a step on, show the whole length.
int quante(double lunga, double lato, double passo) {
    constexpr double NIENTE = 1e-9;
    return std::max(1, static_cast<int>(std::ceil((lunga - lato) / passo - NIENTE)) + 1);
}

}  // namespace

bool Impaginazione::buona() const {
    constexpr double MINIMO = 0.01;
    return margine >= 0 && sovrapposizione >= 0 && larga() - sovrapposizione >= MINIMO && alta() - sovrapposizione >= MINIMO;
}

std::vector<PaginaFoglio> PagineDi(const Tavolo &t, const Impaginazione &come) {
    constexpr double MASSIME = 10000;
    const double L = t.QuadranteL(), H = t.QuadranteH();
    if (!come.buona() || !(L > 0 && H > 0)) return {};
    const Tavolo::GrigliaPagine g{come.larga(), come.alta(), come.larga() - come.sovrapposizione,
                                  come.alta() - come.sovrapposizione};
    if (!((L / g.passoX + 1) * (H / g.passoY + 1) <= MASSIME)) return {};
    const int colonne = quante(L, g.larga, g.passoX), righe = quante(H, g.alta, g.passoY);
    const auto piene = t.PagineConLinee(g);
    std::vector<PaginaFoglio> pagine;
    for (int r = 0; r < righe; ++r)
        for (int c = 0; c < colonne; ++c)
            pagine.push_back(
                {static_cast<int>(pagine.size()) + 1, r, c, c * g.passoX, r * g.passoY, g.larga, g.alta, piene.contains({r, c})});
    return pagine;
}

bool StampaPagine(Tavolo &t, const std::vector<PaginaFoglio> &pagine, const Impaginazione &come, QPagedPaintDevice &stampante,
                  const Avanzamento &avanza) {
    if (pagine.empty()) return false;
    InteraPagina(stampante);
    QPainter p(&stampante);
    if (!p.isActive()) return false;
    const double u = UnitaAlMetro(stampante);
    const Carta carta = CartaDi(stampante);
    const SullaCarta guida(t);
    std::size_t fatte = 0;
    for (const PaginaFoglio &a : pagine) {
        if (avanza && !avanza(fatte, pagine.size())) return false;
        if (fatte++ > 0) stampante.newPage();
        const QRectF tessera((carta.larga - a.larga) / 2 * u, (carta.alta - a.alta) / 2 * u, a.larga * u, a.alta * u);
        if (come.segni) segni(p, tessera, u, a.numero, t.Marchio);
        if (come.righello) righello(p, tessera, u);
        giunture(p, tessera, u, come.sovrapposizione);
        p.save();
        p.setClipRect(tessera);
        PosaDipinta posa = PosaSuCarta(u, t.Scala(), tessera.left() - a.x * u, tessera.top() - a.y * u);
        posa.vista = tessera;
        DispositivoQt d(p, Supporto::Carta, posa);
        Dipingi(t, d);
        d.vuota();
        p.restore();
    }
    return true;
}

QByteArray PdfPagine(Tavolo &t, const std::vector<PaginaFoglio> &pagine, const Impaginazione &come, const Avanzamento &avanza) {
    AssicuraApplicazione();
    const QSizeF punti = QSizeF(come.carta.larga, come.carta.alta) * PUNTI_AL_METRO;
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter w(&buffer);
        // Whole points, no paper of a name: an A4 of whole points would do for a sheet of another size that is near it.
        ApriPdf(w, QPageSize(QSizeF(PuntiInteri(punti.width()), PuntiInteri(punti.height())), QPageSize::Point, QString(),
                             QPageSize::ExactMatch));
        if (!StampaPagine(t, pagine, come, w, avanza)) return {};
    }
    return ConPagineEsatte(pdf, punti);
}

// --- the tiles that are chosen on the sheet itself ---------------------------------------------------------------------------

namespace {

std::vector<PaginaFoglio> Piastrelle(const Tavolo &t) {
    std::vector<PaginaFoglio> pagine;
    for (const RecArea &a : t.lista().Aree)
        pagine.push_back({a.Pagina, 0, 0, a.X, a.Y, t.LarghezzaPagina(), t.AltezzaPagina(), true});
    return pagine;
}

}  // namespace

QByteArray PdfPiastrelle(Tavolo &t, const Avanzamento &avanza) {
    return PdfPagine(t, Piastrelle(t), {.carta = t.carta()}, avanza);
}

bool StampaPiastrelle(Tavolo &t, QPagedPaintDevice &stampante, const Avanzamento &avanza) {
    return StampaPagine(t, Piastrelle(t), {.carta = t.carta()}, stampante, avanza);
}

}  // namespace ombrelia::paint
