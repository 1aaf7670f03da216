// The sheet in the window: a picture with scroll bars, zoom and pan. It shows the session's drawing and keeps none.
#pragma once

#include <QAbstractScrollArea>
#include <functional>
#include <optional>

#include "desktop/vista.h"

namespace ombrelia::desktop {

class Foglio final : public QAbstractScrollArea {
public:
    Foglio(Tavolo &tavolo, QWidget *genitore);

    // The drawing changed, or the sheet. With a picture made elsewhere for just this view there is nothing to paint.
    void cambiato();
    void cambiato(const QImage &pronta, const Vista &per);
    // The whole sheet in the window, and so again whenever the window or the sheet changes, until the user zooms.
    void tutto();
    // True size on this screen.
    void vero();
    void ingrandisci(double volte);
    [[nodiscard]] const Vista &vista() const { return vista_; }
    // Device position of the sheet under a point of the picture.
    [[nodiscard]] QPointF suDispositivo(const QPointF &punto) const { return (punto - vista_.origine) / vista_.fattore; }

    std::function<void(double, double)> suClic;                        // device position
    std::function<void(std::optional<QPointF>)> suPosizione;           // world millimetres under the pointer
    std::function<void(const Vista &)> suDipinto;

protected:
    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;
    void wheelEvent(QWheelEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent *e) override;

private:
    void disponi();
    void zoom(double volte, const QPointF &fermo);
    [[nodiscard]] double fattoreVero() const;

    Tavolo &tavolo_;
    Vista vista_, dipinta_;
    QImage immagine_;
    bool intero_ = true, stantia_ = true, disponendo_ = false;
    std::optional<QPointF> premuto_;
    QPoint ultimo_;
    bool trascina_ = false;
};

}  // namespace ombrelia::desktop
