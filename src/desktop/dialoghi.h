// What the window asks its user in boxes of their own. Tests put their own answers in its place, so that none waits.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>

#include "sessione/utente.h"

class QPrinter;
class QWidget;

namespace ombrelia::desktop {

enum class Salvataggio { Salva, Scarta, Annulla };

class Dialoghi {
public:
    virtual ~Dialoghi() = default;
    virtual void avviso(QWidget *sopra, const QString &testo) = 0;
    virtual bool siNo(QWidget *sopra, const QString &testo) = 0;
    virtual QString testo(QWidget *sopra, const QString &domanda, const QString &titolo, const QString &proposta) = 0;
    // Nothing when cancelled. filtro as file dialogs take it; proposta a path or a bare name.
    virtual std::optional<QString> file(QWidget *sopra, bool salva, const QString &estensione, const QString &filtro,
                                        const QString &proposta) = 0;
    virtual Salvataggio salvaPrima(QWidget *sopra, const QString &testo) = 0;
    // Shows the pages that dipingi puts on a printer, and prints them when told to.
    virtual void stampa(QWidget *sopra, const QString &titolo, const std::function<void(QPrinter &)> &dipingi) = 0;
    virtual void beep() = 0;
};

// The real ones.
class DialoghiQt final : public Dialoghi {
public:
    void avviso(QWidget *sopra, const QString &testo) override;
    bool siNo(QWidget *sopra, const QString &testo) override;
    QString testo(QWidget *sopra, const QString &domanda, const QString &titolo, const QString &proposta) override;
    std::optional<QString> file(QWidget *sopra, bool salva, const QString &estensione, const QString &filtro,
                                const QString &proposta) override;
    Salvataggio salvaPrima(QWidget *sopra, const QString &testo) override;
    void stampa(QWidget *sopra, const QString &titolo, const std::function<void(QPrinter &)> &dipingi) override;
    void beep() override;
};

// The session's user at the window.
class UtenteFinestra final : public Utente {
public:
    explicit UtenteFinestra(Dialoghi &dialoghi) : dialoghi_(dialoghi) {}

    QWidget *sopra = nullptr;  // the window over which boxes open
    std::function<void(std::string_view, bool)> suModulo;

    void Messaggio(std::string_view) override {}  // the status line is a control of the sheet
    bool Box(std::string_view testo, Domanda domanda) override;
    std::string Input(std::string_view domanda, std::string_view titolo, std::string_view proposta) override;
    std::optional<std::string> File(const RichiestaFile &richiesta) override;
    std::optional<std::string> NomeDxf(std::string_view domanda, std::string_view titolo, std::string_view proposta) override;
    void Beep() override { dialoghi_.beep(); }
    void Modulo(std::string_view nome, bool aperto) override {
        if (suModulo) suModulo(nome, aperto);
    }
    void Puntatore(bool attesa) override;

private:
    Dialoghi &dialoghi_;
};

[[nodiscard]] QString Q(std::string_view testo);

}  // namespace ombrelia::desktop
