// The list of layers: what the drawing is made of, line by line, with boxes that hide, colours, widths and lengths.
#pragma once

#include <QWidget>

#include "desktop/foglio.h"
#include "desktop/ponte.h"

class QSpinBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace ombrelia::desktop {

class PannelloStrati final : public QWidget {
public:
    PannelloStrati(Ponte &ponte, Foglio &foglio, QWidget *genitore);

    // The drawing changed: legend now, the list when it is seen.
    void aggiorna();
    // Chooses a line on the sheet and in the list; none clears the choice.
    void scegli(const std::optional<Linea> &linea);
    // What can be done with the chosen line, as a menu; with none, what can be done with them all.
    void menu(const QPoint &globale);
    // Looks of a theme; what the user hid and widened stays.
    void vesti(bool scuro);
    // Where the chosen line lies, world metres as painted.
    [[nodiscard]] std::optional<QRectF> dovScelta() const;

protected:
    void showEvent(QShowEvent *e) override;

private:
    void riempi();
    void spuntata(QTreeWidgetItem *voce);
    void colora();
    // The looks of what is current in the list, a layer or a line, for a change.
    [[nodiscard]] StileFoglio::AspettoLinea &corrente(StileFoglio &stile) const;
    void ingrossa(int spessore);
    void applica(const StileFoglio &stile);
    void mostraLegenda();

    Ponte &ponte_;
    Foglio &foglio_;
    QTreeWidget *albero_;
    QSpinBox *spesso_;
    bool riempiendo_ = false, vecchio_ = true;
};

}  // namespace ombrelia::desktop
