// What a field has to say for itself, in a line under it: an angle as it was understood, in both forms; what no dial can be.
#pragma once

#include <QObject>
#include <map>

#include "desktop/ponte.h"
#include "luoghi/angolo.h"

class QLabel;

namespace ombrelia::desktop {

class NoteCampi final : public QObject {
public:
    // The window's fields are made already.
    NoteCampi(Ponte &ponte, QObject *genitore);
    // The fields may have changed, or another has the keys.
    void aggiorna();
    // Before a run: angles written in degrees and minutes become the numbers they stand for. False when one makes no sense: its
    // line tells why, and it has the keys.
    [[nodiscard]] bool leggiAngoli();
    // Whether each angle makes sense as it stands now: one that is being typed may not do so yet.
    [[nodiscard]] bool angoliInteri() const;
    // Under a field; empty when there is nothing to say.
    [[nodiscard]] QString nota(IdControllo campo) const;

private:
    struct Nota {
        QString testo;
        bool dubbio = false;
    };
    [[nodiscard]] Nota diAngolo(IdControllo campo, const luoghi::CampoAngolo &c) const;
    QLabel *etichetta(QWidget *campo);

    Ponte &ponte_;
    std::map<IdControllo, QLabel *> etichette_;
};

}  // namespace ombrelia::desktop
