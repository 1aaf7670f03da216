// Judges the drawing off the window's thread: one judgement at a time, the newest request next.
#pragma once

#include <QObject>
#include <functional>
#include <thread>

#include "certificato/certificato.h"
#include "desktop/sportello.h"

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
    struct DaGiudicare {
        DatiCertificato dati;
        Lista lista;
    };
    void lavora();

    QObject *contesto_;
    std::function<void(const DatiCertificato &, const Certificato &)> pronto_;
    Sportello<DaGiudicare> sportello_;
    std::thread filo_;
};

}  // namespace ombrelia::desktop
