// The certificate in the window: its verdict as a badge, its rows as a table that shows each line on the sheet.
#pragma once

#include <QToolButton>
#include <QWidget>

#include "desktop/custode.h"
#include "desktop/dialoghi.h"
#include "desktop/ponte.h"
#include "desktop/sopra_foglio.h"

class QBoxLayout;
class QLabel;
class QPushButton;
class QTableWidget;

namespace ombrelia::desktop {

class PannelloCertificato final : public QWidget {
public:
    PannelloCertificato(Ponte &ponte, Dialoghi &dialoghi, SopraFoglio &sopra, QWidget *genitore);

    // The drawing is another: it is judged, off the thread.
    void giudica();
    // A button with the verdict; whoever places it says what its click opens.
    [[nodiscard]] QToolButton *distintivo() const { return distintivo_; }
    [[nodiscard]] const Certificato &certificato() const { return certificato_; }
    // Draws again with true lines.
    std::function<void()> suCorreggi;

protected:
    void resizeEvent(QResizeEvent *e) override;

private:
    void arrivato(const DatiCertificato &dati, const Certificato &c);
    void mostraRiga(int riga);
    [[nodiscard]] std::string pagina() const;

    Ponte &ponte_;
    Dialoghi &dialoghi_;
    SopraFoglio &sopra_;
    QToolButton *distintivo_;
    QBoxLayout *testa_;
    QLabel *verdetto_;
    QTableWidget *tavola_;
    QPushButton *stampa_, *salva_, *correggi_;
    DatiCertificato dati_;
    Certificato certificato_;
    Custode custode_;  // the last: its thread ends before what it would show
};

}  // namespace ombrelia::desktop
