// The picture of a part of the sheet.
#include "desktop/vista.h"

#include "paint/dispositivo_qt.h"

namespace ombrelia::desktop {

QImage DisegnaVista(Tavolo &t, const Vista &v) {
    QImage immagine(v.misura * v.rapporto, QImage::Format_RGB32);
    if (immagine.isNull()) return immagine;
    immagine.setDevicePixelRatio(v.rapporto);
    const QColor intorno(0x2B, 0x31, 0x38), bordo(0x5A, 0x64, 0x6E);
    immagine.fill(intorno);
    QPainter p(&immagine);
    const QRectF foglio = v.foglio(t);
    p.fillRect(foglio, paint::Sfondo(paint::Supporto::Schermo));
    p.setPen(bordo);
    p.drawRect(foglio.adjusted(-0.5, -0.5, 0.5, 0.5));
    p.setRenderHint(QPainter::Antialiasing);
    p.setClipRect(foglio.adjusted(-1, -1, 1, 1) & QRectF(QPointF(0, 0), QSizeF(v.misura)));
    paint::Posa posa;
    posa.fattore = v.fattore;
    posa.x0 = v.origine.x();
    posa.y0 = v.origine.y();
    posa.penna = 1;
    posa.punto = 1.4;
    constexpr double CORPO = 160;  // 8 point in device units
    posa.corpo = std::max(4.0, CORPO * v.fattore);
    posa.tolleranza = 0.35 / v.rapporto;
    posa.vista = QRectF(QPointF(-2, -2), QSizeF(v.misura) + QSizeF(4, 4));
    paint::DispositivoQt d(p, paint::Supporto::Schermo, posa);
    paint::Dipingi(t, d);
    d.vuota();
    return immagine;
}

}  // namespace ombrelia::desktop
