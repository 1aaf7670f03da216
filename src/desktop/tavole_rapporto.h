// A report's form from the inside: its tables as tables, its text line by line.
#pragma once

#include <QTabWidget>
#include <functional>
#include <vector>

#include "desktop/dialoghi.h"
#include "desktop/ponte.h"
#include "ombra/ombra.h"
#include "reports/rapporti.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTableView;

namespace ombrelia::desktop {

class TavoleRapporto final : public QTabWidget {
public:
    // testo: the widget of the text form, the last tab.
    TavoleRapporto(Ponte &ponte, Dialoghi &dialoghi, QWidget *testo, QWidget *genitore);
    void mostra(const Rapporto &r);
    // The points of a chosen row, in the numbers of the report: x to the right, y upward.
    std::function<void(const std::vector<ombra::Punto> &)> suPunti;
    // Where the dial stands, for the head of a page.
    std::function<QString()> suLuogo;

protected:
    bool eventFilter(QObject *chi, QEvent *e) override;

private:
    void riempi(int quale);
    void copia();
    void salva(const QString &forma);
    [[nodiscard]] QByteArray pdf() const;
    void scelta();

    Ponte &ponte_;
    Dialoghi &dialoghi_;
    Rapporto rapporto_;
    std::vector<reports::Blocco> blocchi_;
    QWidget *pagina_;
    QComboBox *quale_;
    QLineEdit *cerca_;
    QLabel *quanti_;
    QTableView *tavola_, *prima_;  // the second shows the first column alone, over the first
    QStandardItemModel *modello_;
    QSortFilterProxyModel *filtro_;
};

}  // namespace ombrelia::desktop
