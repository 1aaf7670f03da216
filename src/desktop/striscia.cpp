// The strip of steps. Where it is narrow its names give way to icons.
#include "desktop/striscia.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "desktop/comandi.h"
#include "desktop/icone.h"

namespace ombrelia::desktop {

Striscia::Striscia(Ponte &ponte, std::vector<std::function<void()>> azioni, QWidget *genitore) : QWidget(genitore) {
    setObjectName(QStringLiteral("passi"));
    auto *fila = new QHBoxLayout(this);
    constexpr int BORDO = 6, SPAZIO = 2;
    fila->setContentsMargins(BORDO, SPAZIO, BORDO, SPAZIO);
    fila->setSpacing(SPAZIO);
    fila->setSizeConstraint(QLayout::SetNoConstraint);
    int n = 0;
    for (const std::function<void()> &azione : azioni) {
        if (n > 0) {
            auto *poi = new QLabel(QStringLiteral("›"), this);
            poi->setTextFormat(Qt::PlainText);
            poi->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
            fila->addWidget(poi);
            frecce_.push_back(poi);
        }
        const std::string nome = "passo" + std::to_string(++n);
        auto *b = new QToolButton(this);
        b->setObjectName(QString::fromStdString(nome));
        const Comando *c = TrovaComando(nome);
        QString titolo = ponte.Traduci(c->testo);
        titolo = titolo.left(1).toUpper() + titolo.mid(1);
        b->setText(QStringLiteral("%1  %2").arg(n).arg(titolo));
        b->setIcon(IconaDi(c->icona));
        b->setAutoRaise(true);
        b->setFocusPolicy(Qt::TabFocus);
        b->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
        b->setShortcut(QKeySequence(QString::fromLatin1(c->tasti)));
        b->setToolTip(titolo + TastiDi(c));
        b->setAccessibleName(titolo);
        connect(b, &QToolButton::clicked, this, azione);
        fila->addWidget(b);
        bottoni_.push_back(b);
    }
    fila->addStretch(1);
    const auto misura = [this] {
        int l = 2 * BORDO;
        for (QToolButton *b : bottoni_) b->ensurePolished(), l += b->sizeHint().width() + SPAZIO;
        for (QWidget *f : frecce_) f->ensurePolished(), l += f->sizeHint().width() + SPAZIO;
        return l;
    };
    veste(true);
    minima_ = misura();
    veste(false);
    larga_ = misura();
}

QSize Striscia::minimumSizeHint() const { return {minima_, layout()->minimumSize().height()}; }

void Striscia::veste(bool stretta) {
    for (QToolButton *b : bottoni_) b->setToolButtonStyle(stretta ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
}

void Striscia::resizeEvent(QResizeEvent *e) {
    veste(width() < larga_);
    QWidget::resizeEvent(e);
}

}  // namespace ombrelia::desktop
