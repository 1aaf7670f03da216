// Judges the drawing off the window's thread: one judgement at a time, the newest request next.
#pragma once

#include <QObject>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include "certificato/certificato.h"

namespace ombrelia::desktop {

class Custode {
public:
    // pronto is called on the window's thread (that of contesto), for the newest request alone.
    Custode(QObject *contesto, std::function<void(const DatiCertificato &, const Certificato &)> pronto);
    ~Custode();
    Custode(const Custode &) = delete;
    Custode &operator=(const Custode &) = delete;

    void chiedi(DatiCertificato dati, Lista lista);

private:
    struct Richiesta {
        DatiCertificato dati;
        Lista lista;
    };
    void lavora();

    QObject *contesto_;
    std::function<void(const DatiCertificato &, const Certificato &)> pronto_;
    std::mutex mutex_;
    std::condition_variable sveglia_;
    std::optional<Richiesta> prossima_;
    unsigned numero_ = 0;  // of the newest request; read and written under the mutex
    bool fine_ = false;
    std::thread filo_;
};

}  // namespace ombrelia::desktop
