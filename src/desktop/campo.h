// The text boxes: what is typed, pasted or dropped goes through the row's filter; wheel and arrows step; the unit stands in the
// box, the range is told when it is left, an angle may be written in degrees, minutes and seconds.
#pragma once

#include <QLineEdit>

#include "desktop/ponte.h"
#include "luoghi/angolo.h"

namespace ombrelia::desktop {

// What a field measures.
struct MisuraCampo {
    NomeControllo campo;
    char unita = 0;        // 'g' degrees, 'l' lengths as the box of millimetres says, 'm' millimetres, 'h' hours, 0 none
    double passo = 0;      // of wheel and arrows; of a length in metres
    double da = 0, a = 0;  // range, when da < a
};
[[nodiscard]] const MisuraCampo *TrovaMisura(IdControllo id);

// An angle in both forms, its wind as the language calls it.
[[nodiscard]] QString DueFormeTradotte(const Ponte &ponte, double gradi, luoghi::Verso verso);

// Entered by mouse or key, its whole text is selected.
class CampoTesto final : public QLineEdit {
public:
    CampoTesto(Ponte &ponte, IdControllo id, QWidget *genitore);
    [[nodiscard]] QString unita() const;
    // What the session is to hold of what stands in the box: of an angle that makes sense its decimal number, else the text.
    [[nodiscard]] std::string valore() const;

protected:
    bool event(QEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void contextMenuEvent(QContextMenuEvent *e) override;
    void dropEvent(QDropEvent *e) override;
    void wheelEvent(QWheelEvent *e) override;
    void paintEvent(QPaintEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void focusInEvent(QFocusEvent *e) override;
    void focusOutEvent(QFocusEvent *e) override;

private:
    // Puts a text in as its keys would.
    void immetti(const QString &testo);
    void cambia();
    void scatta(int volte);
    // An angle in minutes becomes a number; the range is told beside the box.
    void concludi();

    Ponte &ponte_;
    IdControllo id_;
    const MisuraCampo *misura_;
    bool angolo_;
    bool entrato_ = false;  // by the press of the mouse in hand
};

}  // namespace ombrelia::desktop
