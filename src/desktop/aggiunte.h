// What stands round fields and sheet: docks and boxes of their own, hung into the window's menus when it is made.
#pragma once

#include <QKeySequence>
#include <QObject>
#include <QTimer>

#include "desktop/dialoghi.h"

class QAction;
class QDockWidget;
class QMenu;

namespace ombrelia::desktop {

class BarraTempo;
class Finestra;
class PannelloCertificato;
class SopraFoglio;

class Aggiunte final : public QObject {
public:
    // Before the window takes its docks' remembered places.
    Aggiunte(Finestra &finestra, Dialoghi &dialoghi);

protected:
    bool eventFilter(QObject *chi, QEvent *e) override;

private:
    void apriManuale(QWidget *sopra);
    QDockWidget *molo(const QString &titolo, const char *nome, QWidget *contenuto, Qt::DockWidgetArea dove, const QString &tasti);
    // A menu of the window by its caption; never null: the bar gets a new one where it has none.
    QMenu *menu(const QString &titolo);
    void dipinto();
    void correggi();

    Finestra &f_;
    Dialoghi &dialoghi_;
    SopraFoglio *sopra_ = nullptr;
    BarraTempo *tempo_ = nullptr;
    PannelloCertificato *certificato_ = nullptr;
    std::size_t disegno_ = 0, impronta_ = 0;
    QKeySequence tastiManuale_;
    QTimer calma_;  // between the last painting and what follows from it
};

}  // namespace ombrelia::desktop
