// The picture of a part of the sheet.
#include "desktop/vista.h"

#include "paint/dispositivo_qt.h"

namespace ombrelia::desktop {

void VestiFoglio(const Tavolo &t, const StileFoglio &stile, bool perCarta, Tavolo &vestito) {
    vestito.QuadranteL(t.QuadranteL());
    vestito.QuadranteH(t.QuadranteH());
    vestito.ShiftX(t.ShiftX());
    vestito.ShiftY(t.ShiftY());
    vestito.Scala(t.Scala());
    vestito.FattoreX = t.FattoreX;
    vestito.FattoreY = t.FattoreY;
    vestito.specchiaArchi = t.specchiaArchi;
    vestito.Pagina(t.carta());
    vestito.ForeColor = t.ForeColor;
    vestito.PrintMultiColor = t.PrintMultiColor;
    vestito.Marchio = t.Marchio;
    vestito.MettiDisegno(Vesti(t, stile, perCarta));
}

QImage DisegnaVista(const Tavolo &t, const Vista &v) {
    QImage immagine(v.misura * v.rapporto, QImage::Format_RGB32);
    if (immagine.isNull()) return immagine;
    immagine.setDevicePixelRatio(v.rapporto);
    const bool scuro = v.stile.scuro;
    immagine.fill(scuro ? QColor(0x2B, 0x31, 0x38) : QColor(0xD9, 0xDC, 0xE0));
    Tavolo vestito;
    VestiFoglio(t, v.stile, false, vestito);
    QPainter p(&immagine);
    const QRectF foglio = v.foglio(t);
    const paint::Supporto supporto = scuro ? paint::Supporto::Schermo : paint::Supporto::SchermoChiaro;
    p.fillRect(foglio, paint::Sfondo(supporto));
    p.setPen(scuro ? QColor(0x5A, 0x64, 0x6E) : QColor(0xA9, 0xAF, 0xB6));
    p.drawRect(foglio.adjusted(-0.5, -0.5, 0.5, 0.5));
    p.setRenderHint(QPainter::Antialiasing);
    p.setClipRect(foglio.adjusted(-1, -1, 1, 1) & QRectF(QPointF(0, 0), QSizeF(v.misura)));
    paint::PosaDipinta posa;
    posa.fattore = v.fattore;
    posa.x0 = v.origine.x();
    posa.y0 = v.origine.y();
    posa.penna = 1.2;
    posa.punto = 1.4;
    constexpr double CORPO = 160;  // 8 point in device units
    posa.corpo = std::max(4.0, CORPO * v.fattore);
    posa.tolleranza = 0.35 / v.rapporto;
    posa.vista = QRectF(QPointF(-2, -2), QSizeF(v.misura) + QSizeF(4, 4));
    paint::DispositivoQt d(p, supporto, posa);
    paint::Dipingi(vestito, d);
    d.vuota();
    return immagine;
}

}  // namespace ombrelia::desktop
