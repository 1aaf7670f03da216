// The main window: menus, commands, fields, sheet; the user at its keys and the session behind it.
#pragma once

#include <QMainWindow>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "desktop/clessidra.h"
#include "desktop/dialoghi.h"
#include "desktop/moduli.h"
#include "desktop/pannello_strati.h"
#include "desktop/passi.h"
#include "desktop/ponte.h"
#include "desktop/quadro.h"
#include "desktop/ripresa.h"
#include "desktop/vivo.h"
#include "paint/documenti.h"

class QCheckBox;
class QTimer;
class QToolBar;

namespace ombrelia::desktop {

class NoteCampi;

class Esempi;

class Finestra final : public QMainWindow {
public:
    // Starts the program: defaults, dictionary, sheet. The boxes it opens are those of dialoghi, which outlives it.
    explicit Finestra(Dialoghi &dialoghi);
    ~Finestra() override;

    [[nodiscard]] Sessione &sessione() { return s_; }
    [[nodiscard]] Ponte &ponte() { return ponte_; }
    [[nodiscard]] Quadro &quadro() { return *quadro_; }
    [[nodiscard]] Moduli &moduli() { return *moduli_; }
    [[nodiscard]] Vivo &vivo() { return *vivo_; }

    [[nodiscard]] Passi &passi() { return *passi_; }
    [[nodiscard]] NoteCampi &note() { return *note_; }

    // Milliseconds until what goes on says so and lets itself be stopped.
    int pazienza = 600;

    // Opens a project; the user is told when it can't be.
    void apri(const QString &percorso);
    // Opens one of the program's own as a dial without a name, and draws it.
    void apriEsempio(const QString &percorso);
    // An empty dial, as the program starts with.
    void nuovo();
    void esegui();
    // Unsaved work of windows that are no more, offered once.
    void offriRipresa(const QString &percorso);
    // A whole dial to begin with, drawn as it is changed; only on an empty sheet.
    void primoQuadrante();
    // What differs, by names; empty when nothing does.
    [[nodiscard]] QString cambiati() const;
    // True when the fields or the sheet differ from what was opened or saved last.
    [[nodiscard]] bool modificato() const;
    // The open project's path; empty before it was saved.
    [[nodiscard]] const QString &percorso() const { return percorso_; }

protected:
    void closeEvent(QCloseEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;
    void showEvent(QShowEvent *e) override;

private:
    void costruisciMoli();
    void collega();
    void ritrovaPosto();
    class VociMenu;
    void costruisciMenu();
    // Those of their actions that stand in the bar too.
    QList<QAction *> costruisciFile();
    QList<QAction *> costruisciModifica();
    void costruisciQuadrante();
    void costruisciTabelle(QMenu *tabelle);
    void costruisciLingua();
    void costruisciAiuto();
    void nomina();
    void piegaBarra();
    void costruisciVista(QMenu *vedi);
    void costruisciBarra();
    void molo(const QString &titolo, const char *nome, QWidget *contenuto, Qt::DockWidgetArea dove);
    bool prima(IdControllo id);
    void dopo(IdControllo id, const app::Esito &esito);
    void disegnoVivo(Vivo::ProvaViva &e);
    void chiediVivo();
    void lungoVivo(bool dura);
    [[nodiscard]] bool vivo_acceso() const;
    void primaDiEsegui();
    void conAttesa();
    [[nodiscard]] bool australe() const;
    void montaAustrale();
    void dopoEsegui();
    void soleDelGiorno();
    void altraUnita();
    void etichetteAccese();
    void interrotto(bool memoria);
    void tieniRipresa();
    void adatta();
    // A step was taken back or done again.
    void rimesso(bool rifai);
    // What follows when the session holds another project: fields, sheet, language.
    void progettoNuovo(const QString &percorso);
    void titolo();
    QWidget *striscia(QWidget *genitore);
    void vesti(int tema);
    void copia(bool svg);
    // The sheet for paper and files: as drawn, but for what the user hid, coloured or widened.
    [[nodiscard]] Tavolo &perCarta();
    // Of what a project keeps: the closing question goes by it.
    [[nodiscard]] std::string improntaProgetto() const;
    void stampa(bool aree);
    void esportaPdf();
    void esporta();
    void perMacchina();
    void impagina();
    template <class D>
    void apriDialogo();
    // Path of a file of this dial, without an ending.
    [[nodiscard]] QString nomeProposto() const;
    bool scrivi(const QString &file, const std::string &contenuto);
    // Saves where the project lies; asks for a name when it has none, or when told to.
    bool salva(bool conNome);
    bool salvaIn(const QString &percorso);
    // Asks what is to become of unsaved work; false when the user wants to go on with it.
    bool lasciaAndare();
    void ricorda(const QString &percorso);
    void riempiRecenti();
    void messaggio(const QString &testo);
    // A file's content, or why there is none. What may last is made beside the window from a copy of the sheet; nothing when its
    // user gave it up, or memory did.
    struct Prodotto {
        std::string contenuto, errore;
    };
    std::optional<Prodotto> fabbrica(const std::function<Prodotto(Tavolo &)> &lavoro);
    bool piastrelle(const std::function<bool(const paint::Avanzamento &)> &lavoro);

    Dialoghi &dialoghi_;
    std::vector<std::jthread> rinunciati_;  // of fabbrica: files that nobody waits for
    UtenteFinestra utente_;
    Sessione s_;
    Ponte ponte_;
    Quadro *quadro_ = nullptr;
    NoteCampi *note_ = nullptr;
    std::unique_ptr<Moduli> moduli_;
    std::unique_ptr<Vivo> vivo_;
    std::unique_ptr<Clessidra> attesa_;
    PannelloStrati *strati_ = nullptr;
    Ripresa ripresa_;
    Tavolo carta_;
    QMenu *recenti_ = nullptr;
    QToolBar *barra_ = nullptr;
    Esempi *esempi_ = nullptr;
    int barraLarga_ = 0;  // with its texts
    QCheckBox *vivoAcceso_ = nullptr, *pulisciPrima_ = nullptr;
    std::string salvato_, improntaCampi_;
    QByteArray primaGeometria_, primoStato_;  // as the window was first seen
    QString percorso_;
    std::unique_ptr<Passi> passi_;
    Tavolo scorta_;                                              // the drawing that a run replaces, until the run has drawn
    QTimer *pazienza_ = nullptr;                                 // until a live run counts as long
    bool lungo_ = false;                                         // one is told as such
    bool inScorta_ = false, montato_ = false;                    // montato_: the sheet's mirror is a southern dial's
    double specchioPrima_ = 1;                                   // before a run
    std::vector<std::pair<int DialInputs::*, int>> mascherate_;  // boxes that don't answer, set aside while a run lasts
    std::string deltaPrima_, aoPrima_;
};

}  // namespace ombrelia::desktop
