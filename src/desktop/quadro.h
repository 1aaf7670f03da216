// The plot surface in the window: head panel, sheet, read-outs, and the three panels that its buttons open.
#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "desktop/foglio.h"
#include "desktop/ponte.h"

namespace ombrelia::desktop {

class Quadro final : public QWidget {
public:
    Quadro(Ponte &ponte, QWidget *genitore);

    [[nodiscard]] Foglio &foglio() { return *foglio_; }
    // Tells something under the sheet, with what the user may do about it; the next action of his takes it away.
    struct Offerta {
        QString testo;
        std::function<void()> azione;
    };
    void offri(const QString &testo, std::vector<Offerta> offerte);
    // After an action: the mirrors' tints, the panels' places, the hint about frame and sheet.
    void aggiorna();

    std::function<void()> suAdatta;
    std::function<void(const std::optional<Linea> &)> suLinea;  // a line was pressed, or none
    std::function<void(const QPoint &)> suMenu;                 // a menu is asked for there, of the chosen line

protected:
    void resizeEvent(QResizeEvent *e) override;
    void showEvent(QShowEvent *e) override;

private:
    QWidget *testata();
    QWidget *piede();
    QWidget *pannello(NomeControllo cornice, std::initializer_list<std::initializer_list<NomeControllo>> righe);
    void collocaPannelli();
    void piega();
    [[nodiscard]] bool corniceFuori() const;

    Ponte &ponte_;
    Foglio *foglio_ = nullptr;
    void mostraAvviso();
    void clic(const QPointF &punto);
    void sotto(const QPointF &mondo);
    [[nodiscard]] std::optional<Linea> lineaPresso(const QPointF &mondo) const;

    QLabel *posizione_ = nullptr, *avviso_ = nullptr;
    QString detto_;
    std::vector<Offerta> offerte_;
    QBoxLayout *file_ = nullptr, *piede_ = nullptr, *detti_ = nullptr;  // of the head, of the foot
    QList<QWidget *> bottoni_;                                          // of the head
    int larga_ = 0;                                                     // the head with its texts
    QWidget *invX_ = nullptr, *invY_ = nullptr;
    std::vector<std::pair<QWidget *, QWidget *>> pannelli_;  // and the button below which each opens
};

}  // namespace ombrelia::desktop
