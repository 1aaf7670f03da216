// The sheet in the window: a picture with scroll bars, zoom and pan, rulers, legend, and what the pointer finds on it. It shows
// the session's drawing and keeps none.
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
    // A part of the drawing, metres, fills the window.
    void inquadra(const QRectF &mondo);
    [[nodiscard]] const Vista &vista() const { return vista_; }
    [[nodiscard]] const StileFoglio &stile() const { return vista_.stile; }
    void stile(const StileFoglio &nuovo);
    // Device position of the sheet under a point of the picture.
    [[nodiscard]] QPointF suDispositivo(const QPointF &punto) const { return (punto - vista_.origine) / vista_.fattore; }
    // The drawing's metres, y upward, under a point of the picture, and back.
    [[nodiscard]] QPointF suMondo(const QPointF &punto) const;
    [[nodiscard]] QPointF daMondo(const QPointF &mondo) const;
    // Metres in a dot of the picture.
    [[nodiscard]] double metriAlPunto() const;
    [[nodiscard]] bool sulFoglio(const QPointF &punto) const { return vista_.foglio(tavolo_).contains(punto); }

    // What is laid over the picture: colours with their names, a line of text at the foot.
    void legenda(std::vector<std::pair<QString, QColor>> voci);
    void mostraLegenda(bool si);
    [[nodiscard]] const QRect &postoLegenda() const { return legendaQui_; }
    void mostraRighelli(bool si);
    void fumetto(const QString &testo);
    // Two tools of the pointer: measuring between two points, and a lens that shows true size.
    void misura(bool si);
    void lente(bool si);

    std::function<void(const QPointF &)> suClic, suDestro;    // a point of the picture; of the other button
    std::function<void(std::optional<QPointF>)> suPosizione;  // millimetres from the dial's foot on the sheet, y downward
    std::function<void(const QPointF &)> suSotto;             // metres of the drawing
    std::function<void(const Vista &)> suDipinto;
    std::function<QString(double millimetri, double gradi)> testoMisura;

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
    static constexpr int RIGHELLO = 18;  // dots
    void disponi();
    QSizeF disponiLegenda(double l, double h);
    void zoom(double volte, const QPointF &fermo);
    void sopra(QPainter &p);
    void righelli(QPainter &p);
    void dipingiLegenda(QPainter &p);
    void dipingiLente(QPainter &p);
    [[nodiscard]] double fattoreVero() const;
    // Metres from the sheet's top left corner, y downward, under a point of the picture, and back.
    [[nodiscard]] QPointF daBordo(const QPointF &punto) const;
    [[nodiscard]] QPointF alPunto(const QPointF &metri) const;
    [[nodiscard]] QPointF piede() const { return {tavolo_.ShiftX(), tavolo_.ShiftY()}; }

    Tavolo &tavolo_;
    Vista vista_, dipinta_;
    QImage immagine_;
    bool intero_ = true, stantia_ = true, disponendo_ = false;
    std::optional<QPointF> premuto_;
    QPoint ultimo_;
    bool trascina_ = false;

    std::vector<std::pair<QString, QColor>> legenda_;
    QRect legendaQui_;  // empty: nowhere
    int colonneLegenda_ = 1;
    bool conLegenda_ = true, conRighelli_ = true, conMisura_ = false, conLente_ = false;
    QString fumetto_;
    std::optional<QPointF> puntatore_;                     // a point of the picture
    std::optional<std::pair<QPointF, QPointF>> misurata_;  // metres from the sheet's corner, y downward
};

}  // namespace ombrelia::desktop
