// The examples with their pictures: each is drawn as the window would draw it, off its thread, when the list is first seen; the
// pictures are kept for the next time.
#pragma once

#include <QDialog>
#include <QStringList>
#include <deque>

#include "desktop/ponte.h"
#include "desktop/vivo.h"

class QListWidget;

namespace ombrelia::desktop {

// The projects that came with the program, by file name; none when they are not installed.
[[nodiscard]] QStringList FileEsempi();

class Esempi final : public QDialog {
public:
    Esempi(Ponte &ponte, QWidget *sopra);
    ~Esempi() override;
    std::function<void(const QString &)> suScelta;
    [[nodiscard]] bool pronti() const { return attesi_.empty(); }

protected:
    void showEvent(QShowEvent *e) override;

private:
    void prossimo();
    void arrivata(const QImage &immagine);
    [[nodiscard]] QString ritrattoDi(const QString &file) const;
    void metti(const QString &file, const QImage &immagine);

    Ponte &ponte_;
    QListWidget *lista_;
    std::deque<QString> attesi_;
    std::unique_ptr<Vivo> vivo_;
};

}  // namespace ombrelia::desktop
