// The drawing on paper: all its pages as they will be joined, chosen by a click, and sent to a file or a printer.
#pragma once

#include <QDialog>
#include <QImage>
#include <memory>
#include <set>

#include "desktop/dialoghi.h"
#include "desktop/ponte.h"
#include "paint/impaginazione.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;

namespace ombrelia::desktop {

// The sheet with the pages over it.
class AnteprimaPagine final : public QWidget {
public:
    AnteprimaPagine(std::shared_ptr<Tavolo> tavolo, QWidget *genitore);
    void mostra(std::vector<paint::PaginaFoglio> pagine, double sovrapposizione);
    [[nodiscard]] const std::vector<paint::PaginaFoglio> &pagine() const { return pagine_; }
    // Numbers of the chosen ones.
    [[nodiscard]] const std::set<int> &scelte() const { return scelte_; }
    void scegli(std::set<int> quali);
    // Where a page's middle is seen.
    [[nodiscard]] QPointF mezzo(int numero) const;

    std::function<void()> suScelta;

protected:
    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;

private:
    [[nodiscard]] QRectF dove(const paint::PaginaFoglio &p) const;
    // The page under a point, the nearest middle where two overlap; 0 when there is none.
    [[nodiscard]] int sotto(const QPointF &punto) const;
    void disponi();
    void inverti(int numero);

    std::shared_ptr<Tavolo> tavolo_;
    std::vector<paint::PaginaFoglio> pagine_;
    double sovrapposizione_ = 0;
    std::set<int> scelte_;
    int mira_ = 1;  // the page that the keys are at
    QImage immagine_;
    double fattore_ = 1, x0_ = 0, y0_ = 0;  // dots a metre; the sheet's corner
};

class PagineCarta final : public QDialog {
public:
    // The drawing is copied. proposta: path of the file without an ending.
    PagineCarta(Ponte &ponte, Dialoghi &dialoghi, const Tavolo &disegno, const QString &proposta, QWidget *genitore);

    std::function<void(const QString &)> suScritto;  // hears the file's path
    [[nodiscard]] AnteprimaPagine &anteprima() const { return *anteprima_; }
    [[nodiscard]] paint::Impaginazione impaginazione() const;

private:
    QWidget *scelte();
    void cambiata(bool nuove);
    void conta();
    [[nodiscard]] std::vector<paint::PaginaFoglio> daStampare() const;
    // Goes from page to page under a box with its stop button.
    bool adagio(std::size_t quante, const std::function<bool(const paint::Avanzamento &)> &lavoro);
    void salva(bool intero);
    void stampa();

    Ponte &ponte_;
    Dialoghi &dialoghi_;
    std::shared_ptr<Tavolo> tavolo_;
    QString proposta_;
    QComboBox *carta_ = nullptr, *verso_ = nullptr;
    QDoubleSpinBox *larga_ = nullptr, *alta_ = nullptr, *margine_ = nullptr, *sovrapposizione_ = nullptr;
    QCheckBox *segni_ = nullptr, *righello_ = nullptr;
    QLabel *conto_ = nullptr;
    QPushButton *salva_ = nullptr, *stampa_ = nullptr;
    AnteprimaPagine *anteprima_ = nullptr;
};

// A paper by its name, else its millimetres.
[[nodiscard]] QString NomeCarta(const Carta &carta);
// Tells, when the boxes in hand are done, that pages were laid out anew for the printer's paper.
void AvvisaCarta(Ponte &ponte, Dialoghi &dialoghi, QWidget *sopra, const Carta &carta);

}  // namespace ombrelia::desktop
