// Between widgets and session: every widget is made from its row of the table of controls, bears the row's name, tells the
// session what its user does and shows what the session holds. No handler lives here.
#pragma once

#include <QAction>
#include <QComboBox>
#include <QWidget>
#include <functional>
#include <string_view>
#include <type_traits>
#include <vector>

#include "app/comandi.h"
#include "sessione/sessione.h"

namespace ombrelia::desktop {

class Ponte {
public:
    explicit Ponte(Sessione &s) : s_(s) {}
    Ponte(const Ponte &) = delete;
    Ponte &operator=(const Ponte &) = delete;

    // The widget of a control.
    QWidget *crea(IdControllo id, QWidget *genitore);
    QWidget *crea(NomeControllo nome, QWidget *genitore) { return crea(IdControllo(nome), genitore); }
    // A menu entry.
    QAction *voce(NomeControllo nome, QObject *genitore) { return voce(IdControllo(nome), genitore); }
    QAction *voce(IdControllo id, QObject *genitore);
    // A row shown by a widget made elsewhere: it takes the row's name, and follows its state.
    void adotta(IdControllo id, QWidget *widget);
    void adotta(NomeControllo nome, QWidget *widget) { adotta(IdControllo(nome), widget); }

    // Shows everything as the session has it.
    void sincronizza();
    // Runs an action of the user on the session, then shows what became of it. id: the control, or NESSUN_CONTROLLO. The
    // action may give its outcome. A want of memory in it is told, and ends the action alone.
    template <class F>
    app::Esito fai(IdControllo id, const F &azione) {
        if constexpr (std::is_void_v<std::invoke_result_t<F>>)
            return svolgi(id, [&] {
                azione();
                return app::Esito(app::Esito::Fatto);
            });
        else return svolgi(id, azione);
    }

    // The widget made for a control; null when there is none.
    [[nodiscard]] QWidget *widget(IdControllo id) const;
    [[nodiscard]] QWidget *widget(NomeControllo nome) const { return widget(IdControllo(nome)); }
    // Presses a control as its user would.
    app::Esito premi(IdControllo id);
    app::Esito premi(NomeControllo nome) { return premi(IdControllo(nome)); }

    // Asked before each action, which false keeps from happening; told after it.
    std::function<bool(IdControllo)> prima;
    std::function<void(IdControllo, const app::Esito &)> dopo;
    QString passo;                                   // name of the action in hand for the list of steps, when no control names it
    std::function<void(bool memoria)> suInterrotto;  // an action ran out of memory, or its user stopped it
    std::function<void()> suVirgolette;              // a double quote was typed: it would end the project's text

    [[nodiscard]] Sessione &sessione() { return s_; }
    [[nodiscard]] const Sessione &sessione() const { return s_; }
    // What the window calls a control: its maker's word for it, or its caption.
    [[nodiscard]] QString didascalia(IdControllo id) const;
    // A control's name as its user reads it: that, or that of the label before it.
    [[nodiscard]] QString nome(IdControllo id) const;
    // Through the dictionary.
    [[nodiscard]] QString Traduci(std::string_view testo) const;

private:
    struct Legame {
        IdControllo id;
        QWidget *widget;
        QAction *azione;
        std::string detto{};  // caption and tool tip as they were shown last
    };
    app::Esito svolgi(IdControllo id, const std::function<app::Esito()> &azione);
    void collega(IdControllo id, QWidget *w);
    void mostra(Legame &l);

    Sessione &s_;
    std::vector<Legame> legami_;
    int dentro_ = 0;
};

// A caption as people read it: the blanks that pad it in the table are left out, accelerators are none.
[[nodiscard]] QString Leggibile(const std::string &caption);
// A tool tip that is shown as it stands, whatever marks it holds.
[[nodiscard]] QString SoloTesto(const QString &testo);

}  // namespace ombrelia::desktop
