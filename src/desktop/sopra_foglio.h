// What is laid over the sheet's picture for a while: the shadow of a moment, a line lit, a place marked. Takes no mouse.
#pragma once

#include <QColor>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "desktop/foglio.h"
#include "ombra/ombra.h"

namespace ombrelia::desktop {

class SopraFoglio final : public QWidget {
public:
    SopraFoglio(Foglio &foglio, const Tavolo &tavolo);

    // The shadow: of the tip, of the polar style (the line that it lies on), and where the style leaves the plane. Metres as
    // mounted; australe: the list is the mirror image.
    struct Ombra {
        std::optional<ombra::Punto> punta, centro;
        ombra::Retta stilo;
        bool australe = false;
    };
    void ombra(std::optional<Ombra> o);
    // Records of the list that are lit (ranges of its order), and places, millimetres as mounted.
    void accendi(std::vector<std::pair<std::size_t, std::size_t>> tratti, std::vector<ombra::Punto> segni, bool australe);
    // The sheet was painted anew.
    std::function<void()> suDipinto;

protected:
    void paintEvent(QPaintEvent *e) override;
    bool eventFilter(QObject *chi, QEvent *e) override;

private:
    [[nodiscard]] QPointF dot(double x, double y) const { return foglio_.daMondo({x, y}); }  // metres of the drawing
    [[nodiscard]] QPointF dot(const ombra::Punto &p, bool australe) const { return dot(australe ? -p.x : p.x, p.y); }
    void dipingiOmbra(QPainter &p) const;
    void dipingiAccese(QPainter &p) const;

    Foglio &foglio_;
    const Tavolo &tavolo_;
    std::optional<Ombra> ombra_;
    std::vector<std::pair<std::size_t, std::size_t>> accese_;
    std::vector<ombra::Punto> segni_;
    bool australe_ = false;
};

}  // namespace ombrelia::desktop
