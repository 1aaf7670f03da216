// The strip of the five steps from a place to paper, above the sheet.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "desktop/ponte.h"

class QToolButton;

namespace ombrelia::desktop {

class Striscia final : public QWidget {
public:
    Striscia(Ponte &ponte, std::vector<std::function<void()>> azioni, QWidget *genitore);
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *e) override;

private:
    void veste(bool stretta);

    std::vector<QToolButton *> bottoni_;
    std::vector<QWidget *> frecce_;
    int larga_ = 0, minima_ = 0;  // with names, and without
};

}  // namespace ombrelia::desktop
