// The groups and their rows: one table, one loop.
#include "desktop/gruppi.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <vector>

#include "desktop/dialoghi.h"
#include "desktop/figure.h"

namespace ombrelia::desktop {

namespace {

// A row holds names of controls; what is no control's name is a caption of the window's own.
using Riga = std::vector<std::string_view>;
struct Gruppo {
    std::string_view titolo;
    std::vector<Riga> righe;
};

const std::vector<Gruppo> QUADRANTE = {
    {"Luogo"_it, {{"lblLatitudine", "txtLAT"}, {"lblLongitudine", "txtLonG"}, {"ck_Etna"}}},
    {"Piano"_it,
     {{"Picture2", "Picture3"}, {"lblDeclinazione", "txtDec"}, {"lblInclinazione", "txtInc"}, {"CkUNI"}}},
    {"Gnomone"_it,
     {{"p_Stilo", "TxtStilo"}, {"LabSUS", "txtSUBSTYLE"}, {"ChCentimetro"}, {"ck_Sustilare", "ck_Triangolo"}}},
    {"Cornice e rette"_it,
     {{"lblX0", "txtX0"},
      {"lblY0", "txtY0"},
      {"lblX1", "txtX1"},
      {"lblY1", "txtY1"},
      {"Line1"},
      {"lblEqx", "txtEqx"},
      {"lblEqy", "txtEqy"},
      {"lblSusx", "txtSusx"},
      {"lblSusy", "txtSusy"},
      {"lblOriz", "txtOriz"}}},
};

const std::vector<Gruppo> DISEGNO = {
    {"Ore"_it,
     {{"chkOreAstronomiche", "ck_Lemniscate"},
      {"ck_Italiche", "ck_babiloniche"},
      {"ckTemp"},
      {"LblHour", "TxtFraz"},
      {"Orainizilale", "TxtInizio", "Orafinale", "TxtFine"}}},
    {"Linee"_it,
     {{"Ck_DayLightCurves", "ck_Equinoziale"},
      {"ckAlt", "ckAz"},
      {"ck_Orizzonte", "ckAssi"},
      {"ckFunzione"},
      {"lblDelta", "txtDelta"},
      {"lblAO", "txtAO"},
      {"lblMinus", "txtMinus"},
      {"lblMax", "txtMax"},
      {"lbl_Definizione", "txtDensity"}}},
    {"Numeri e segni"_it, {{"ckRomani", "txtNumbersize"}, {"ckArabi", "txtArabi"}, {"ckZodiac", "txtZodiacsize"}}},
    {"Preghiera"_it, {{"ckAsr", "CkQibla"}, {"lblQlat", "txtQlat"}, {"lblQlon", "txtQlon"}}},
    {"Tabelle"_it, {{"optHorae", "OptInter"}, {"OptIta", "OptBab"}, {"OptTEMP", "Option1"}}},
    {"Mappa e punto"_it,
     {{"LabelCombo", "cmbStati"},
      {"cmdStati", "cmdPlot", "ck_inv"},
      {"lblFiltro", "Filtertxt"},
      {"Città da"_it, "txtEAST", "fino a"_it, "txtWest"},
      {"punto", "Option_P"},
      {"Label2", "textDelta", "txtH"}}},
};

constexpr int CAMPO = 92, CAMPO_STRETTO = 62;

void mettiRiga(Ponte &ponte, const Riga &nomi, QVBoxLayout *colonna, QWidget *gruppo) {
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

QScrollArea *colonna(Ponte &ponte, const std::vector<Gruppo> &gruppi, QWidget *genitore) {
    auto *area = new QScrollArea(genitore);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    auto *tela = new QWidget(area);
    auto *giu = new QVBoxLayout(tela);
    giu->setContentsMargins(8, 6, 8, 8);
    giu->setSpacing(6);
    for (const Gruppo &g : gruppi) {
        auto *scatola = new QGroupBox(Q(ponte.sessione().Traduci(g.titolo)), tela);
        auto *righe = new QVBoxLayout(scatola);
        righe->setContentsMargins(10, 6, 10, 8);
        righe->setSpacing(5);
        for (const Riga &r : g.righe) mettiRiga(ponte, r, righe, scatola);
        giu->addWidget(scatola);
    }
    giu->addStretch(1);
    area->setWidget(tela);
    area->setMinimumWidth(tela->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    return area;
}

}  // namespace

QWidget *ColonnaQuadrante(Ponte &ponte, QWidget *genitore) {
    QScrollArea *area = colonna(ponte, QUADRANTE, genitore);
    ponte.adotta("Panel3D1", area);
    ponte.adotta("PicScroll", area->widget());
    ponte.adotta("VScroll1", area->verticalScrollBar());
    return area;
}

QWidget *ColonnaDisegno(Ponte &ponte, QWidget *genitore) { return colonna(ponte, DISEGNO, genitore); }

}  // namespace ombrelia::desktop
