// A file for a machine: its paths, the way of the head between them and what was left out, seen before anything is saved.
#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>
#include <optional>

#include "desktop/dialoghi.h"
#include "desktop/ponte.h"
#include "officina/scrittori.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QTableWidget;
class QThread;

namespace ombrelia::desktop {

class Tracciato;

class PerMacchina final : public QDialog {
public:
    // The drawing is copied: what the window does meanwhile is not seen here. proposta: path of the file without an ending.
    PerMacchina(Ponte &ponte, Dialoghi &dialoghi, const Tavolo &disegno, const QString &proposta, QWidget *genitore);
    ~PerMacchina() override;

    std::function<void(const QString &)> suScritto;  // hears the file's path
    // A drawing is being made ready off the window's thread.
    [[nodiscard]] bool attivo() const { return filo_ || attesa_.isActive(); }
    // The newest; none while its choices make no sense or nothing is left.
    [[nodiscard]] const std::shared_ptr<const officina::Disegno> &disegno() const { return pronto_; }

private:
    struct Lavoro;
    QWidget *scelte();
    // The choices as they stand; nothing, told beside its field, where one is wrong.
    std::optional<officina::ComePreparare> leggi();
    void chiedi();
    void avvia();
    void arrivato(const Lavoro &lavoro);
    void salva();

    Ponte &ponte_;
    Dialoghi &dialoghi_;
    const std::shared_ptr<const Tavolo> tavolo_;
    QString proposta_;
    QComboBox *formato_ = nullptr, *testi_ = nullptr, *unita_ = nullptr, *ritaglio_ = nullptr;
    QLineEdit *tolleranza_ = nullptr, *punti_ = nullptr;
    QLabel *dubbioTolleranza_ = nullptr, *dubbioPunti_ = nullptr, *conto_ = nullptr, *racconto_ = nullptr;
    QTableWidget *generi_ = nullptr;
    QSlider *testa_ = nullptr;
    Tracciato *tracciato_ = nullptr;
    QPushButton *salva_ = nullptr;
    QTimer attesa_;  // a little, so that a number is typed whole
    QThread *filo_ = nullptr;
    bool ancora_ = false;  // the choices changed since the run in hand began
    std::shared_ptr<const officina::Disegno> pronto_;
};

// What was done, in the window's language.
[[nodiscard]] QString RaccontoMacchina(const Ponte &ponte, const officina::Disegno &d, const officina::ComePreparare &o);

}  // namespace ombrelia::desktop
