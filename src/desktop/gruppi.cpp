// The groups and their rows as widgets: one loop over the table of groups.
#include "desktop/gruppi.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <vector>

#include "app/gruppi.h"
#include "desktop/dialoghi.h"
#include "desktop/figure.h"

namespace ombrelia::desktop {

namespace {

constexpr int CAMPO = 92, CAMPO_STRETTO = 62;

void mettiRiga(Ponte &ponte, const app::Gruppo::Riga &nomi, QVBoxLayout *colonna, QWidget *gruppo) {
    auto *fila = new QHBoxLayout;
    fila->setSpacing(6);
    QLabel *prima = nullptr;
    const bool stretta = nomi.size() > 2;
    for (const std::string_view nome : nomi) {
        QWidget *w = nullptr;
        if (TrovaControllo(nome) == NESSUN_CONTROLLO) {
            w = new QLabel(Q(ponte.sessione().Traduci(nome)), gruppo);
        } else if (nome.starts_with("Picture")) {
            w = nome == "Picture2" ? FiguraPianta(ponte.sessione(), gruppo) : FiguraFianco(ponte.sessione(), gruppo);
            ponte.adotta(nome, w);
        } else if (nome == "Line1") {
            auto *linea = new QFrame(gruppo);
            linea->setFrameShape(QFrame::HLine);
            linea->setFrameShadow(QFrame::Sunken);
            ponte.adotta(nome, linea);
            w = linea;
        } else {
            w = ponte.crea(nome, gruppo);
        }
        const bool campo = qobject_cast<QLineEdit *>(w) != nullptr;
        if (campo) {
            w->setFixedWidth(stretta ? CAMPO_STRETTO : CAMPO);
            if (prima) prima->setBuddy(w);
        }
        prima = qobject_cast<QLabel *>(w);
        constexpr int LUNGA = 26;  // letters
        if (prima) prima->setWordWrap(nomi.size() == 2 && prima->text().size() > LUNGA);
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
        auto *scatola = new QGroupBox(Q(ponte.sessione().Traduci(g.titolo)), tela);
        auto *righe = new QVBoxLayout(scatola);
        righe->setContentsMargins(10, 6, 10, 8);
        righe->setSpacing(5);
        for (const app::Gruppo::Riga &r : g.righe) mettiRiga(ponte, r, righe, scatola);
        giu->addWidget(scatola);
    }
    giu->addStretch(1);
    area->setWidget(tela);
    area->setMinimumWidth(tela->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    return area;
}

}  // namespace

QWidget *ColonnaQuadrante(Ponte &ponte, QWidget *genitore) {
    QScrollArea *area = colonna(ponte, app::GruppiQuadrante(), genitore);
    ponte.adotta("Panel3D1", area);
    ponte.adotta("PicScroll", area->widget());
    ponte.adotta("VScroll1", area->verticalScrollBar());
    return area;
}

QWidget *ColonnaDisegno(Ponte &ponte, QWidget *genitore) { return colonna(ponte, app::GruppiDisegno(), genitore); }

}  // namespace ombrelia::desktop
