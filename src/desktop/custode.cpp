// The judge's thread.
#include "desktop/custode.h"

#include <QMetaObject>
#include <utility>

namespace ombrelia::desktop {

Custode::Custode(QObject *contesto, std::function<void(const DatiCertificato &, const Certificato &)> pronto)
    : contesto_(contesto), pronto_(std::move(pronto)), filo_([this] { lavora(); }) {}

Custode::~Custode() {
    sportello_.chiudi();
    filo_.join();
}

void Custode::chiedi(DatiCertificato dati, Lista lista) { sportello_.chiedi({std::move(dati), std::move(lista)}); }

void Custode::lavora() {
    constexpr double TOLLERANZA = 0.1;  // mm
    while (auto incarico = sportello_.attendi()) {
        auto &[r, mio] = *incarico;
        // Of a drawing that is no more nothing is asked.
        Certificato c = Certifica(r.dati, r.lista, TOLLERANZA, [this, numero = mio] { return numero != sportello_.numero(); });
        // Its context is gone with this object: what arrives later is dropped by the toolkit.
        QMetaObject::invokeMethod(
            contesto_,
            [this, numero = mio, dati = std::move(r.dati), c = std::move(c)] {
                if (numero == sportello_.numero()) pronto_(dati, c);
            },
            Qt::QueuedConnection);
    }
}

}  // namespace ombrelia::desktop
