// A sheet on paper.
#include "paint/su_carta.h"

#include <QPageLayout>

namespace ombrelia::paint {

PosaDipinta PosaSuCarta(double u, double scala, double x0, double y0) {
    constexpr double PENNA = 0.0002, PUNTO = 0.00035, CORPO = 8 * POLLICE / 72, TOLLERANZA = 0.00001;  // metres
    PosaDipinta p;
    p.fattore = u / Tavolo::ScalaBase * scala;
    p.x0 = x0;
    p.y0 = y0;
    p.penna = PENNA * u;
    p.punto = PUNTO * u;
    p.corpo = CORPO * u;
    p.millimetro = u / 1000;
    p.tolleranza = TOLLERANZA * u;
    return p;
}

void InteraPagina(QPagedPaintDevice &d) {
    QPageLayout l = d.pageLayout();
    l.setMode(QPageLayout::FullPageMode);
    l.setMargins(QMarginsF());
    d.setPageLayout(l);
}

void ApriPdf(QPdfWriter &w, const QPageSize &misura) {
    constexpr int RISOLUZIONE = 1440;
    w.setResolution(RISOLUZIONE);
    w.setCreator(QStringLiteral("Ombrelia"));
    w.setPageLayout(QPageLayout(misura, QPageLayout::Portrait, QMarginsF(), QPageLayout::Point));
    InteraPagina(w);
}

}  // namespace ombrelia::paint
