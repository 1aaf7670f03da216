// A run that lasts: after a while a box shows that it goes on and lets its user stop it.
#pragma once

#include <QElapsedTimer>
#include <memory>

#include "plot/dispositivo.h"

class QProgressDialog;
class QWidget;
class QString;

namespace ombrelia::desktop {

struct Fermato {};  // thrown where a run is given up

class Clessidra final : public DispositivoMuto {
public:
    // pazienza: milliseconds until the box comes.
    Clessidra(QWidget *sopra, const QString &testo, const QString &ferma, int pazienza);
    ~Clessidra() override;
    void Linea(double, double, double, double, Colore, int) override { conta(); }
    void Punto(double, double, Colore) override { conta(); }

private:
    void conta() {
        if ((++tratti_ & 0xFFFU) == 0) guarda();
    }
    void guarda();

    QElapsedTimer tempo_;
    int pazienza_;
    unsigned tratti_ = 0;
    QWidget *sopra_;
    std::unique_ptr<QProgressDialog> box_;
    std::unique_ptr<QString> testo_, ferma_;
};

}  // namespace ombrelia::desktop
