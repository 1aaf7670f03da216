// Documents. Corners of sheet and tiles stay doubles until the device, so that neighbours meet.
#include "paint/documenti.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>
#include <cmath>

#include "paint/applicazione.h"
#include "paint/dispositivo_qt.h"
#include "paint/pagine_pdf.h"

namespace ombrelia::paint {

namespace {

constexpr double POLLICE = 0.0254;
constexpr double PENNA = 0.0002, PUNTO = 0.00035, CORPO = 8 * POLLICE / 72, TOLLERANZA = 0.00001;  // metres
constexpr int RISOLUZIONE_PDF = 1440;

// On paper: u painter units a metre; what is measured on paper stands in metres.
Posa posaSuCarta(double u, double scala, double x0, double y0) {
    Posa p;
    p.fattore = u / Tavolo::ScalaBase * scala;
    p.x0 = x0;
    p.y0 = y0;
    p.penna = PENNA * u;
    p.punto = PUNTO * u;
    p.corpo = CORPO * u;
    p.tolleranza = TOLLERANZA * u;
    return p;
}

bool vuoto(const Tavolo &t, std::string &errore) {
    if (t.QuadranteL() > 0 && t.QuadranteH() > 0) return false;
    errore = "the sheet is empty";
    return true;
}

// While it lives the target is the printer.
struct SullaCarta {
    explicit SullaCarta(Tavolo &t) : tavolo(t) { tavolo.OutputToPRN = true; }
    ~SullaCarta() { tavolo.OutputToPRN = false; }
    SullaCarta(const SullaCarta &) = delete;
    SullaCarta &operator=(const SullaCarta &) = delete;
    Tavolo &tavolo;
};

double unitaAlMetro(const QPagedPaintDevice &d) { return d.logicalDpiX() / POLLICE; }

void interaPagina(QPagedPaintDevice &d) {
    QPageLayout l = d.pageLayout();
    l.setMode(QPageLayout::FullPageMode);
    l.setMargins(QMarginsF());
    d.setPageLayout(l);
}

void apri(QPdfWriter &w, const QPageSize &misura) {
    w.setResolution(RISOLUZIONE_PDF);
    w.setCreator(QStringLiteral("Ombrelia"));
    w.setPageLayout(QPageLayout(misura, QPageLayout::Portrait, QMarginsF(), QPageLayout::Point));
    interaPagina(w);
}

// What a page loses at its edges: there a printer does not reach.
constexpr double MARGINE_L = 0.013, MARGINE_H = 0.015;  // metres

// A rectangle of this size in metres in the middle of the printer's paper.
QRectF inMezzo(const QPagedPaintDevice &d, double larga, double alta) {
    const double u = unitaAlMetro(d);
    // The paper itself, not its whole points: they put the middle an eighth of a millimetre off.
    const Carta carta = CartaDi(d);
    return {(carta.larga - larga) / 2 * u, (carta.alta - alta) / 2 * u, larga * u, alta * u};
}

// A whole number of points that holds the length.
double puntiInteri(double punti) { return std::max(3.0, std::ceil(punti - 1e-6)); }

void testoPiccolo(QPainter &p, const QPointF &dove, const QString &testo, double corpo) {
    QFont f = p.font();
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(corpo))));
    p.setFont(f);
    p.setPen(Qt::black);
    p.drawText(dove, testo);
}

// What helps to put tiles together: all of it lies outside the tile.
void segni(QPainter &p, const QRectF &tessera, double u, int numero, const std::string &marchio) {
    const double mm = u / 1000;
    p.setPen(QPen(Qt::black, 0.1 * mm, Qt::SolidLine, Qt::FlatCap));
    for (const double x : {tessera.left(), tessera.right()})
        for (const double y : {tessera.top(), tessera.bottom()}) {
            const double dx = x == tessera.left() ? -1 : 1, dy = y == tessera.top() ? -1 : 1;
            p.drawLine(QPointF(x + dx * 0.5 * mm, y), QPointF(x + dx * 5 * mm, y));
            p.drawLine(QPointF(x, y + dy * 0.5 * mm), QPointF(x, y + dy * 5 * mm));
        }
    constexpr int CENTIMETRI = 10;
    const double y = tessera.bottom() + 1.5 * mm, x = tessera.left() + 20 * mm;
    p.drawLine(QPointF(x, y), QPointF(x + CENTIMETRI * 10 * mm, y));
    for (int i = 0; i <= CENTIMETRI; ++i) {
        const double lungo = i == 0 || i == CENTIMETRI ? 2.5 : i == CENTIMETRI / 2 ? 1.8 : 1.2;
        p.drawLine(QPointF(x + i * 10 * mm, y), QPointF(x + i * 10 * mm, y + lungo * mm));
    }
    testoPiccolo(p, {x + CENTIMETRI * 10 * mm + 2 * mm, y + 2.2 * mm}, QStringLiteral("100 mm"), 2.6 * mm);
    QString testo = QString::number(numero);
    if (!marchio.empty()) testo += QLatin1Char(' ') + QString::fromStdString(marchio);
    testoPiccolo(p, {tessera.left() + 8 * mm, tessera.top() - 1.5 * mm}, testo, 3.4 * mm);
}

}  // namespace

QByteArray PdfFoglio(Tavolo &t, std::string &errore) {
    if (vuoto(t, errore)) return {};
    AssicuraApplicazione();
    const QSizeF punti(t.QuadranteL() * PUNTI_AL_METRO, t.QuadranteH() * PUNTI_AL_METRO);
    const QSizeF intera(puntiInteri(punti.width()), puntiInteri(punti.height()));
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter w(&buffer);
        apri(w, QPageSize(intera, QPageSize::Point, QString(), QPageSize::ExactMatch));
        QPainter p(&w);
        if (!p.isActive()) {
            errore = "no PDF can be made of this sheet";
            return {};
        }
        const double u = unitaAlMetro(w);
        p.setClipRect(QRectF(0, 0, t.QuadranteL() * u, t.QuadranteH() * u));
        DispositivoQt d(p, Supporto::Carta, posaSuCarta(u, t.Scala(), 0, 0));
        Dipingi(t, d);
        d.vuota();
    }
    return ConPagineEsatte(pdf, punti);
}

QByteArray PdfPiastrelle(Tavolo &t, const Avanzamento &avanza) {
    AssicuraApplicazione();
    const QSizeF punti = QSizeF(t.carta().larga, t.carta().alta) * PUNTI_AL_METRO;
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter w(&buffer);
        // Whole points, no paper of a name: an A4 of whole points would do for a sheet of another size that is near it.
        apri(w, QPageSize(QSizeF(puntiInteri(punti.width()), puntiInteri(punti.height())), QPageSize::Point, QString(),
                          QPageSize::ExactMatch));
        if (!StampaPiastrelle(t, w, avanza)) return {};
    }
    return ConPagineEsatte(pdf, punti);
}

bool StampaPiastrelle(Tavolo &t, QPagedPaintDevice &stampante, const Avanzamento &avanza) {
    const auto &aree = t.lista().Aree;
    if (aree.empty()) return false;
    interaPagina(stampante);
    QPainter p(&stampante);
    if (!p.isActive()) return false;
    const double u = unitaAlMetro(stampante);
    const QRectF tessera = inMezzo(stampante, t.LarghezzaPagina(), t.AltezzaPagina());
    const SullaCarta guida(t);
    std::size_t fatte = 0;
    for (const RecArea &a : aree) {
        if (avanza && !avanza(fatte, aree.size())) return false;
        if (fatte++ > 0) stampante.newPage();
        segni(p, tessera, u, a.Pagina, t.Marchio);
        p.save();
        p.setClipRect(tessera);
        Posa posa = posaSuCarta(u, t.Scala(), tessera.left() - a.X * u, tessera.top() - a.Y * u);
        posa.vista = tessera;
        DispositivoQt d(p, Supporto::Carta, posa);
        Dipingi(t, d);
        d.vuota();
        p.restore();
    }
    return true;
}

void StampaTutto(Tavolo &t, QPagedPaintDevice &stampante) {
    interaPagina(stampante);
    QPainter p(&stampante);
    if (!p.isActive()) return;
    const Carta carta = CartaDi(stampante);
    // A sheet that the page can't hold shows its first tile.
    const QRectF foglio = inMezzo(stampante, std::min(t.QuadranteL() / t.Scala(), carta.larga - MARGINE_L),
                                  std::min(t.QuadranteH() / t.Scala(), carta.alta - MARGINE_H));
    p.setClipRect(foglio);
    DispositivoQt d(p, Supporto::Carta, posaSuCarta(unitaAlMetro(stampante), 1, foglio.left(), foglio.top()));
    t.PrintAll(d);
    d.vuota();
}

Carta CartaDi(const QPagedPaintDevice &stampante) {
    const QPageLayout l = stampante.pageLayout();
    const QSizeF punti = l.fullRect(QPageLayout::Point).size() / PUNTI_AL_METRO;
    // Whole points of a paper that has a name lie up to half a point off.
    for (const Carta &nota : {CARTA_A4, Carta{0.297, 0.420}, Carta{0.2159, 0.2794}})
        for (const Carta &c : {nota, Carta{nota.alta, nota.larga}})
            if (std::fabs(punti.width() - c.larga) < 0.0004 && std::fabs(punti.height() - c.alta) < 0.0004) return c;
    return {punti.width(), punti.height()};
}

QImage Immagine(Tavolo &t, std::string &errore) {
    if (vuoto(t, errore)) return {};
    AssicuraApplicazione();
    const double u = PUNTI_AL_POLLICE / POLLICE;
    const int l = static_cast<int>(std::lround(t.QuadranteL() / t.Scala() * u)),
              h = static_cast<int>(std::lround(t.QuadranteH() / t.Scala() * u));
    QImage immagine(std::max(l, 1), std::max(h, 1), QImage::Format_RGB32);
    if (immagine.isNull()) {
        errore = "not enough memory for this picture";
        return {};
    }
    // A print of the picture is the dial's true size.
    immagine.setDotsPerMeterX(static_cast<int>(std::lround(u / t.Scala())));
    immagine.setDotsPerMeterY(static_cast<int>(std::lround(u / t.Scala())));
    immagine.fill(Sfondo(Supporto::Carta));
    QPainter p(&immagine);
    p.setRenderHint(QPainter::Antialiasing);
    Posa posa = posaSuCarta(u, 1, 0, 0);
    posa.vista = QRectF(immagine.rect()).adjusted(-2, -2, 2, 2);
    posa.tolleranza = 0.2;
    DispositivoQt d(p, Supporto::Carta, posa);
    Dipingi(t, d);
    d.vuota();
    return immagine;
}

QByteArray FileImmagine(Tavolo &t, const char *formato, std::string &errore) {
    const QImage immagine = Immagine(t, errore);
    QByteArray file;
    if (immagine.isNull()) return file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    if (!immagine.save(&buffer, formato)) errore = std::string("no picture of the kind ") + formato;
    return file;
}

}  // namespace ombrelia::paint
