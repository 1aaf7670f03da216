// The time bar: a day and a time, played; the shadow goes over the drawing.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include "certificato/istante.h"
#include "desktop/ponte.h"
#include "desktop/sopra_foglio.h"

class QCheckBox;
class QDateEdit;
class QLabel;
class QSlider;
class QTimeEdit;
class QToolButton;

namespace ombrelia::desktop {

class BarraTempo final : public QWidget {
public:
    BarraTempo(Ponte &ponte, SopraFoglio &sopra, QWidget *genitore);
    // The dial may have changed.
    void aggiorna();
    [[nodiscard]] const Istante &istante() const { return istante_; }

protected:
    void showEvent(QShowEvent *e) override;
    void hideEvent(QHideEvent *e) override;

private:
    void suona(bool si);
    void cambiato();
    void estate();
    [[nodiscard]] ombra::Data data() const;

    Ponte &ponte_;
    SopraFoglio &sopra_;
    Istante istante_;
    QToolButton *suona_;
    QDateEdit *data_;
    QTimeEdit *ora_;
    QSlider *giornata_, *anno_;
    QCheckBox *legale_;
    QLabel *esito_;
    QTimer battito_;
    QElapsedTimer tempo_;
    double daOra_ = 0;
    double latitudine_ = 99, longitudine_ = 0;  // that legale_ was set for
    std::int64_t giornoLegale_ = 0;
    std::string fuso_;  // the nearest town's, when it agrees with the field
};

}  // namespace ombrelia::desktop
