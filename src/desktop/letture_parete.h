// The readings of a wall: a table of them, what they say together, and a small plot. The sums are the board's own. Beside it,
// the board's calendar and the clock of the site's zone.
#pragma once

#include <QWidget>
#include <optional>

#include "desktop/ponte.h"
#include "luoghi/fusi.h"
#include "sun/letture.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace ombrelia::desktop {

// Declinations one beside the other about their mean.
class GraficoLetture final : public QWidget {
public:
    explicit GraficoLetture(QWidget *genitore);
    // Degrees; righe are the numbers beside the points. escluse are drawn, but the mean is not theirs.
    void mostra(std::vector<double> gradi, std::vector<int> righe, std::vector<bool> escluse, const sun::Riassunto &insieme);

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    std::vector<double> gradi_;
    std::vector<int> righe_;
    std::vector<bool> escluse_;
    sun::Riassunto insieme_;
};

class LettureParete final : public QWidget {
public:
    LettureParete(Ponte &ponte, QWidget *genitore);
    // The board's site, date or zone may have changed.
    void aggiorna();
    // Of the readings that count; of no use without one.
    [[nodiscard]] const sun::Riassunto &insieme() const { return insieme_; }

    // For the board's own boxes: a button that opens a calendar, and the line that tells the clock's time.
    QWidget *calendario(QWidget *genitore);
    QLabel *orologio(QWidget *genitore);

private:
    enum Colonna { Data, Ora, Angolo, Declinazione, Scarto, COLONNE };
    struct Letta {
        int riga;
        double declinazione;
    };
    // The table as the project keeps it: a row a reading, day, hour and angle between bars; then how the hours are given, and
    // whether the reading that stands out is left out. Empty without a reading.
    [[nodiscard]] std::string scritte() const;
    // The project's readings into the table, where they are not the table's own.
    void rileggi();
    // What the user did with the table goes to the project, as a step that can be taken back.
    void cambiata();
    void nuovaRiga();
    // What a row says; nothing for one that is empty or makes no sense, which is then marked.
    std::optional<double> leggi(int riga);
    void ricalcola();
    void fusoDelLuogo();
    void usa();
    [[nodiscard]] double campo(NomeControllo nome) const;

    Ponte &ponte_;
    QTableWidget *tavola_ = nullptr;
    QComboBox *ore_ = nullptr;
    QCheckBox *senza_ = nullptr;
    QLabel *detto_ = nullptr, *orologio_ = nullptr;
    QPushButton *usa_ = nullptr;
    GraficoLetture *grafico_ = nullptr;
    sun::Riassunto insieme_;
    std::size_t quante_ = 0;
    bool riempiendo_ = false;
    std::string lette_;  // as the project and the table agreed last

    std::optional<luoghi::Fuso> fuso_;  // of the nearest town
    std::string luogo_, cercato_;       // its name; the site it was looked for at
    std::string messo_;                 // zone and summer time as they were set here; others are the user's
    bool suoi_ = false;
};

}  // namespace ombrelia::desktop
