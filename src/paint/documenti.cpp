// Documents. Corners of sheet and tiles stay doubles until the device, so that neighbours meet.
#include "paint/documenti.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>
#include <cmath>

#include "paint/applicazione.h"
#include "paint/dispositivo_qt.h"
#include "paint/pagine_pdf.h"
#include "paint/su_carta.h"

namespace ombrelia::paint {

namespace {

bool vuoto(const Tavolo &t, std::string &errore) {
    if (t.QuadranteL() > 0 && t.QuadranteH() > 0) return false;
    errore = "the sheet is empty";
    return true;
}

// What a page loses at its edges: there a printer does not reach.
constexpr double MARGINE_L = 0.013, MARGINE_H = 0.015;  // metres

// A rectangle of this size in metres in the middle of the printer's paper.
QRectF inMezzo(const QPagedPaintDevice &d, double larga, double alta) {
    const double u = UnitaAlMetro(d);
    // The paper itself, not its whole points: they put the middle an eighth of a millimetre off.
    const Carta carta = CartaDi(d);
    return {(carta.larga - larga) / 2 * u, (carta.alta - alta) / 2 * u, larga * u, alta * u};
}

}  // namespace

QByteArray PdfFoglio(Tavolo &t, std::string &errore) {
    if (vuoto(t, errore)) return {};
    AssicuraApplicazione();
    const QSizeF punti(t.QuadranteL() * PUNTI_AL_METRO, t.QuadranteH() * PUNTI_AL_METRO);
    const QSizeF intera(PuntiInteri(punti.width()), PuntiInteri(punti.height()));
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter w(&buffer);
        ApriPdf(w, QPageSize(intera, QPageSize::Point, QString(), QPageSize::ExactMatch));
        QPainter p(&w);
        if (!p.isActive()) {
            errore = "no PDF can be made of this sheet";
            return {};
        }
        const double u = UnitaAlMetro(w);
        p.setClipRect(QRectF(0, 0, t.QuadranteL() * u, t.QuadranteH() * u));
        DispositivoQt d(p, Supporto::Carta, PosaSuCarta(u, t.Scala(), 0, 0));
        Dipingi(t, d);
        d.vuota();
    }
    return ConPagineEsatte(pdf, punti);
}

void StampaTutto(Tavolo &t, QPagedPaintDevice &stampante) {
    InteraPagina(stampante);
    QPainter p(&stampante);
    if (!p.isActive()) return;
    const Carta carta = CartaDi(stampante);
    // A sheet that the page can't hold shows its first tile.
    const QRectF foglio = inMezzo(stampante, std::min(t.QuadranteL() / t.Scala(), carta.larga - MARGINE_L),
                                  std::min(t.QuadranteH() / t.Scala(), carta.alta - MARGINE_H));
    p.setClipRect(foglio);
    DispositivoQt d(p, Supporto::Carta, PosaSuCarta(UnitaAlMetro(stampante), 1, foglio.left(), foglio.top()));
    t.PrintAll(d);
    d.vuota();
}

Carta CartaDi(const QPagedPaintDevice &stampante) {
    const QPageLayout l = stampante.pageLayout();
    const QSizeF punti = l.fullRect(QPageLayout::Point).size() / PUNTI_AL_METRO;
    // Whole points of a paper that has a name lie up to half a point off.
    for (const CartaNota &nota : CARTE_NOTE)
        for (const Carta &c : {nota.carta, Carta{nota.carta.alta, nota.carta.larga}})
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
    PosaDipinta posa = PosaSuCarta(u, 1, 0, 0);
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
