// The judge's thread.
#include "desktop/custode.h"

#include <QMetaObject>
#include <utility>

namespace ombrelia::desktop {

Custode::Custode(QObject *contesto, std::function<void(const DatiCertificato &, const Certificato &)> pronto)
    : contesto_(contesto), pronto_(std::move(pronto)), filo_([this] { lavora(); }) {}

Custode::~Custode() {
    {
        const std::lock_guard chiave(mutex_);
        fine_ = true;
    }
    sveglia_.notify_one();
    filo_.join();
}

void Custode::chiedi(DatiCertificato dati, Lista lista) {
    {
        const std::lock_guard chiave(mutex_);
        prossima_ = Richiesta{std::move(dati), std::move(lista)};
        ++numero_;
    }
    sveglia_.notify_one();
}

void Custode::lavora() {
    for (;;) {
        Richiesta r;
        unsigned mio = 0;
        {
            std::unique_lock chiave(mutex_);
            sveglia_.wait(chiave, [this] { return fine_ || prossima_; });
            if (fine_) return;
            r = std::move(*prossima_);
            prossima_.reset();
            mio = numero_;
        }
        Certificato c = Certifica(r.dati, r.lista);
        // Its context is gone with this object: what arrives later is dropped by the toolkit.
        QMetaObject::invokeMethod(
            contesto_,
            [this, mio, dati = std::move(r.dati), c = std::move(c)] {
                {
                    const std::lock_guard chiave(mutex_);
                    if (mio != numero_) return;
                }
                pronto_(dati, c);
            },
            Qt::QueuedConnection);
    }
}

}  // namespace ombrelia::desktop
