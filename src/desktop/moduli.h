// The lesser forms: reports, notice, utility board with its instructions, about box. Each is made once, hidden, and shown
// when the session opens it.
#pragma once

#include <QDialog>
#include <QMainWindow>
#include <map>
#include <string>

#include "desktop/dialoghi.h"
#include "desktop/ponte.h"

class QPlainTextEdit;
class QTabWidget;

namespace ombrelia::desktop {

class LettureParete;
class TavoleRapporto;

class Moduli {
public:
    Moduli(Ponte &ponte, Dialoghi &dialoghi, QWidget *finestra);

    // Shows a form by its name or hides it; an unknown name does nothing.
    void apri(std::string_view nome, bool aperto);
    // Fills a report's form and shows it.
    void mostra(const Rapporto &r);
    // Prints what a "Stampa" menu sent.
    void stampa(const Rapporto &r);
    // A form's window; null when there is none.
    [[nodiscard]] QWidget *modulo(std::string_view nome) const;
    // The looks of the window are others.
    void vesti();
    // What the utility board shows beside its boxes follows them; with its sum done, the result comes forward.
    void aggiorna(bool calcolato);
    [[nodiscard]] LettureParete &letture() const { return *letture_; }
    // Of a report's form, its tables; null for the others.
    [[nodiscard]] TavoleRapporto *tavole(std::string_view nome) const;

private:
    void rapporto(std::string_view nome);
    [[nodiscard]] QString luogo() const;
    void avviso();
    void strumenti();
    void istruzioni();
    void informazioni();
    void salvaTesto(QWidget *sopra, const Rapporto &r);

    Ponte &ponte_;
    Dialoghi &dialoghi_;
    QWidget *finestra_;
    LettureParete *letture_ = nullptr;
    QTabWidget *schede_ = nullptr;
    std::map<std::string, QWidget *, std::less<>> finestre_;
    std::map<std::string, Rapporto, std::less<>> contenuti_;
};

}  // namespace ombrelia::desktop
