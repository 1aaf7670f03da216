// A run that lasts.
#include "desktop/clessidra.h"

#include <QCoreApplication>
#include <QProgressDialog>
#include <QString>

namespace ombrelia::desktop {

Clessidra::Clessidra(QWidget *sopra, const QString &testo, const QString &ferma, int pazienza)
    : pazienza_(pazienza), sopra_(sopra), testo_(std::make_unique<QString>(testo)), ferma_(std::make_unique<QString>(ferma)) {
    tempo_.start();
}

Clessidra::~Clessidra() = default;

void Clessidra::guarda() {
    constexpr int GIRO = 60;  // milliseconds
    if (!box_) {
        if (tempo_.elapsed() < pazienza_) return;
        box_ = std::make_unique<QProgressDialog>(*testo_, *ferma_, 0, 0, sopra_);
        box_->setWindowModality(Qt::ApplicationModal);
        box_->setMinimumDuration(0);
        box_->show();
    } else if (tempo_.elapsed() < GIRO) {
        return;
    }
    tempo_.restart();
    QCoreApplication::processEvents();
    if (box_->wasCanceled()) throw Fermato{};
}

}  // namespace ombrelia::desktop
