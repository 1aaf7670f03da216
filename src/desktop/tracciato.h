// The paths of a machine's file as its head will go them: colours by kind, the way between two cuts dashed, start and end marked.
#pragma once

#include <QPointF>
#include <QWidget>
#include <memory>

#include "officina/disegno.h"

namespace ombrelia::desktop {

class Tracciato final : public QWidget {
public:
    // The words beside the marks, and what stands there while there is no drawing.
    Tracciato(const QString &inizio, const QString &fine, QWidget *genitore);

    void mostra(std::shared_ptr<const officina::Disegno> disegno, const QString &invece = {});
    // So many paths of the drawing are cut already; the others are pale.
    void finoA(int quanti);
    // The whole drawing in the window.
    void tutto();

protected:
    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;
    void wheelEvent(QWheelEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseDoubleClickEvent(QMouseEvent *) override { tutto(); }

private:
    [[nodiscard]] QPointF dot(officina::P2 p) const {
        const Quadrante vista{0, 0, x0_, y0_};
        return {vista.daSinistra(p.x * fattore_), vista.dallAlto(p.y * fattore_)};
    }
    void dipingi(QPainter &p, const officina::Cammino &c) const;

    QString inizio_, fine_, invece_;
    std::shared_ptr<const officina::Disegno> disegno_;
    int fino_ = 0;
    double fattore_ = 1, x0_ = 0, y0_ = 0;  // dots a millimetre; dot of the origin
    QPointF presa_;
};

// The colour of a kind so that it is seen on white.
[[nodiscard]] QColor TintaDelGenere(officina::Genere g);

}  // namespace ombrelia::desktop
