// The fields of the main window, grouped as a maker thinks.
#pragma once

#include <QWidget>

#include "desktop/ponte.h"

class QFrame;
class QToolButton;

namespace ombrelia::desktop {

// A group that folds; it remembers how it was left.
class Piega final : public QWidget {
public:
    Piega(const QString &titolo, const QString &chiave, bool piegato, QWidget *genitore);
    [[nodiscard]] QFrame *corpo() const { return corpo_; }
    // Unfolds, comes into sight, and gives its first field the keys.
    void apri();
    // By its Italian title; null when there is none.
    static Piega *trova(const QObject *dove, std::string_view titolo);

private:
    void mostra(bool aperto);

    QString chiave_;
    QToolButton *testa_;
    QFrame *corpo_;
};

// The dial: site, plane, gnomon, frame. Panel3D1 with its scroll bar.
QWidget *ColonnaQuadrante(Ponte &ponte, QWidget *genitore);
// The drawing: hours, lines, numerals, prayer, map, tables.
QWidget *ColonnaDisegno(Ponte &ponte, QWidget *genitore);

}  // namespace ombrelia::desktop
