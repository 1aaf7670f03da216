// The dial while the user types: a run of the program on a copy of the fields, off the window's thread. The newest
// request wins: it stops the run in hand.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include "desktop/sportello.h"
#include "desktop/vista.h"
#include "sessione/sessione.h"

namespace ombrelia::desktop {

class Vivo {
public:
    // What a run needs of the session. Plain copies.
    struct Richiesta {
        DialInputs in;
        Variabili v;
        std::vector<StatoControllo> stati;
        double quadranteL = 0, quadranteH = 0, shiftX = 0, shiftY = 0;
        int scala = 1;
        double fattoreX = 1, fattoreY = 1;
        Vista vista;
    };
    struct ProvaViva {
        std::unique_ptr<Tavolo> tavolo;  // the drawing, on the sheet as the run left it
        Variabili v;
        QImage immagine;
        Vista vista;
        std::string avviso;  // what a box would have said
    };

    // pronto is called on the window's thread (that of contesto).
    Vivo(QObject *contesto, const Dizionario &dizionario, std::function<void(ProvaViva &)> pronto);
    ~Vivo();
    Vivo(const Vivo &) = delete;
    Vivo &operator=(const Vivo &) = delete;

    // specchia: the picture's mirror of X is turned against the sheet's.
    void chiedi(const Sessione &s, const Vista &vista, bool specchia = false);
    // Gives up what is asked and what runs; nothing of it will arrive.
    void ferma();
    [[nodiscard]] bool attivo() const { return attese_ > 0; }

private:
    void lavora();

    QObject *contesto_;
    Dizionario dizionario_;
    std::function<void(ProvaViva &)> pronto_;
    Sportello<Richiesta> sportello_;
    std::atomic<int> attese_ = 0;
    std::thread filo_;
};

}  // namespace ombrelia::desktop
