// The groups and their rows as widgets: one loop over the table of groups.
#include "desktop/gruppi.h"

#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>
#include <set>
#include <vector>

#include "app/gruppi.h"
#include "controlli/nomi.h"
#include "desktop/dialoghi.h"
#include "desktop/figure.h"
#include "desktop/luogo.h"

namespace ombrelia::desktop {

namespace {

constexpr int CAMPO = 108, CAMPO_STRETTO = 70;

void mettiRiga(Ponte &ponte, const app::Gruppo::RigaDiGruppo &nomi, QVBoxLayout *colonna, QWidget *gruppo) {
    auto *fila = new QHBoxLayout;
    fila->setSpacing(6);
    QLabel *prima = nullptr;
    const bool stretta = nomi.size() > 2;
    for (const app::Gruppo::VoceDiGruppo &cosa : nomi) {
        QWidget *w = nullptr;
        const std::string_view nome = cosa.id == NESSUN_CONTROLLO ? std::string_view() : RigaDi(cosa.id).nome;
        if (cosa.id == NESSUN_CONTROLLO) {
            auto *l = new QLabel(Q(ponte.sessione().Traduci(cosa.caption)), gruppo);
            l->setTextFormat(Qt::PlainText);
            w = l;
        } else if (cosa.id == NomeControllo("Picture2") || cosa.id == NomeControllo("Picture3")) {
            w = cosa.id == NomeControllo("Picture2") ? FiguraPianta(ponte.sessione(), gruppo)
                                                     : FiguraFianco(ponte.sessione(), gruppo);
            ponte.adotta(cosa.id, w);
        } else if (cosa.id == NomeControllo("Line1")) {
            auto *linea = new QFrame(gruppo);
            linea->setFrameShape(QFrame::HLine);
            linea->setFrameShadow(QFrame::Sunken);
            ponte.adotta(cosa.id, linea);
            w = linea;
        } else {
            w = ponte.crea(cosa.id, gruppo);
        }
        const bool campo = qobject_cast<QLineEdit *>(w) != nullptr;
        if (campo) {
            w->setFixedWidth(stretta ? CAMPO_STRETTO : CAMPO);
            if (prima) prima->setBuddy(w);
        }
        prima = qobject_cast<QLabel *>(w);
        constexpr int LUNGA = 26;  // letters
        // A long caption has a row of its own.
        if (prima && nomi.size() == 2 && prima->text().size() > LUNGA) {
            prima->setWordWrap(true);
            colonna->addWidget(prima);
            fila->addStretch(1);
            continue;
        }
        fila->addWidget(w, campo || (stretta && prima) ? 0 : 1);
        if (stretta && prima && nome.starts_with("Label")) fila->addStretch(1);
    }
    colonna->addLayout(fila);
}

QScrollArea *colonna(Ponte &ponte, const std::vector<app::Gruppo> &gruppi, QWidget *genitore) {
    auto *area = new QScrollArea(genitore);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    auto *tela = new QWidget(area);
    auto *giu = new QVBoxLayout(tela);
    giu->setContentsMargins(8, 6, 8, 8);
    giu->setSpacing(6);
    for (const app::Gruppo &g : gruppi) {
        auto *piega = new Piega(Q(ponte.sessione().Traduci(g.titolo)), Q(g.titolo), g.piegato, tela);
        auto *righe = new QVBoxLayout(piega->corpo());
        righe->setContentsMargins(10, 7, 10, 8);
        righe->setSpacing(5);
        if (g.titolo == "Luogo") righe->addWidget(CercaLuogo(ponte, piega->corpo()));
        for (const app::Gruppo::RigaDiGruppo &r : g.righe) mettiRiga(ponte, r, righe, piega->corpo());
        giu->addWidget(piega);
    }
    giu->addStretch(1);
    area->setWidget(tela);
    area->setMinimumWidth(tela->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    return area;
}

}  // namespace

Piega::Piega(const QString &titolo, const QString &chiave, bool piegato, QWidget *genitore)
    : QWidget(genitore), chiave_(QStringLiteral("pieghe/") + chiave) {
    setObjectName(QStringLiteral("piega"));
    setProperty("gruppo", chiave);
    auto *giu = new QVBoxLayout(this);
    giu->setContentsMargins(0, 0, 0, 0);
    giu->setSpacing(2);
    testa_ = new QToolButton(this);
    testa_->setObjectName(QStringLiteral("testaPiega"));
    testa_->setText(titolo.left(1).toUpper() + titolo.mid(1));
    testa_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    testa_->setCheckable(true);
    testa_->setAutoRaise(true);
    testa_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    corpo_ = new QFrame(this);
    corpo_->setObjectName(QStringLiteral("corpoPiega"));
    giu->addWidget(testa_);
    giu->addWidget(corpo_);
    connect(testa_, &QToolButton::toggled, this, [this](bool su) {
        mostra(su);
        QSettings().setValue(chiave_, su);
    });
    const bool aperto = QSettings().value(chiave_, !piegato).toBool();
    const QSignalBlocker zitto(testa_);
    testa_->setChecked(aperto);
    mostra(aperto);
}

void Piega::mostra(bool aperto) {
    testa_->setArrowType(aperto ? Qt::DownArrow : Qt::RightArrow);
    corpo_->setVisible(aperto);
}

void Piega::apri() {
    testa_->setChecked(true);
    for (QWidget *w = parentWidget(); w; w = w->parentWidget())
        if (auto *area = qobject_cast<QScrollArea *>(w)) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            area->ensureWidgetVisible(this);
            break;
        }
    for (QWidget *w : corpo_->findChildren<QWidget *>())
        if (w->focusPolicy() & Qt::TabFocus && w->isEnabled()) return w->setFocus(Qt::TabFocusReason);
}

Piega *Piega::trova(const QObject *dove, std::string_view titolo) {
    for (QWidget *w : dove->findChildren<QWidget *>())
        if (auto *p = dynamic_cast<Piega *>(w); p && p->chiave_ == QStringLiteral("pieghe/") + Q(titolo)) return p;
    return nullptr;
}

QWidget *ColonnaQuadrante(Ponte &ponte, QWidget *genitore) {
    QScrollArea *area = colonna(ponte, app::GruppiQuadrante(), genitore);
    ponte.adotta("Panel3D1", area);
    ponte.adotta("PicScroll", area->widget());
    ponte.adotta("VScroll1", area->verticalScrollBar());
    return area;
}

// Fields that no group names yet stand in one of their own, each behind its caption.
QWidget *ColonnaDisegno(Ponte &ponte, QWidget *genitore) {
    std::vector<app::Gruppo> gruppi = app::GruppiDisegno();
    std::set<IdControllo> nominati;
    for (const std::vector<app::Gruppo> *tavola :
         {&app::GruppiQuadrante(), static_cast<const std::vector<app::Gruppo> *>(&gruppi)})
        for (const app::Gruppo &g : *tavola)
            for (const app::Gruppo::RigaDiGruppo &r : g.righe)
                for (const app::Gruppo::VoceDiGruppo &cosa : r) nominati.insert(cosa.id);
    app::Gruppo altro{"Altro"_it, {}, true};
    for (const Controllo &c : ControlliDi("MDIForm1")) {
        if (!c.nostro || nominati.contains(IdDi(c))) continue;
        if (!c.visibile) {  // its user meets it elsewhere
            ponte.crea(IdDi(c), genitore);
            continue;
        }
        if (c.classe == Classe::Testo && !altro.righe.empty() && altro.righe.back().size() == 1)
            altro.righe.back().push_back(app::Gruppo::VoceDiGruppo(IdDi(c)));
        else altro.righe.push_back({app::Gruppo::VoceDiGruppo(IdDi(c))});
    }
    if (!altro.righe.empty()) gruppi.push_back(std::move(altro));
    return colonna(ponte, gruppi, genitore);
}

}  // namespace ombrelia::desktop
