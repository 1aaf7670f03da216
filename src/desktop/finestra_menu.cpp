// The main window's menus and tool bar.
#include <QCheckBox>
#include <QDockWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>

#include "desktop/finestra.h"

namespace ombrelia::desktop {

namespace {

constexpr auto VIVO = "disegnaMentreScrivi", PULISCI = "pulisciPrima";

}  // namespace

void Finestra::costruisciMenu() {
    const auto voce = [this](QMenu *m, std::string_view nome, const QKeySequence &tasti = {}) {
        QAction *a = ponte_.voce(nome, this);
        a->setShortcut(tasti);
        m->addAction(a);
    };
    const auto bottone = [this](std::string_view nome, const QKeySequence &tasti) {
        QWidget *w = ponte_.widget(nome);
        QAction *a = comando(Leggibile(s_.stato(nome).caption), tasti, [w] {
            if (auto *b = qobject_cast<QAbstractButton *>(w)) b->click();
        });
        return a;
    };
    QMenu *file = menuBar()->addMenu(ponte_.Traduci("&File"));
    file->addAction(comando(ponte_.Traduci("Nuovo"), QKeySequence::New, [this] { nuovo(); }));
    voce(file, "mnuApri", QKeySequence::Open);
    recenti_ = file->addMenu(ponte_.Traduci("Aperti di recente"));
    connect(recenti_, &QMenu::aboutToShow, this, [this] { riempiRecenti(); });
    voce(file, "mnuSalva", QKeySequence::Save);
    file->addAction(comando(ponte_.Traduci("Salva con nome..."), QKeySequence(QStringLiteral("Ctrl+Shift+S")), [this] { salva(true); }));
    file->addSeparator();
    file->addAction(comando(ponte_.Traduci("Esporta PDF..."), QKeySequence(QStringLiteral("Ctrl+E")), [this] { esportaPdf(); }));
    file->addAction(comando(ponte_.Traduci("Esporta disegno..."), QKeySequence(QStringLiteral("Ctrl+Shift+E")), [this] { esporta(); }));
    file->addAction(bottone("Tavolo1.cmdStampa", QKeySequence::Print));
    file->addSeparator();
    voce(file, "mnuEsci", QKeySequence(QStringLiteral("Ctrl+Q")));

    QMenu *modifica = menuBar()->addMenu(ponte_.Traduci("&Modifica"));
    QAction *annulla = passi_->createUndoAction(this, ponte_.Traduci("Annulla")), *rifai = passi_->createRedoAction(this, ponte_.Traduci("Ripeti"));
    annulla->setObjectName(QStringLiteral("annulla"));
    rifai->setObjectName(QStringLiteral("ripeti"));
    annulla->setShortcut(QKeySequence::Undo);
    rifai->setShortcuts({QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});
    modifica->addActions({annulla, rifai});

    QMenu *quadrante = menuBar()->addMenu(ponte_.Traduci("&Quadrante"));
    const std::pair<std::string_view, const char *> comandi[] = {
        {"cmdRun", "F5"}, {"cmdEqui", "F6"}, {"cmdData", "F7"}, {"cmdTrasforma", "F8"}, {"Tavolo1.cmdPulisci", "Ctrl+L"}};
    for (const auto &[nome, tasti] : comandi) quadrante->addAction(bottone(nome, QKeySequence(QString::fromLatin1(tasti))));
    quadrante->addSeparator();
    quadrante->addAction(comando(ponte_.Traduci("Adatta il foglio"), QKeySequence(QStringLiteral("Ctrl+T")), [this] { adatta(); }));
    quadrante->addAction(comando(ponte_.Traduci("Disegna mentre scrivi"), QKeySequence(QStringLiteral("F9")), [this] { vivoAcceso_->toggle(); }));

    QMenu *vedi = menuBar()->addMenu(ponte_.Traduci("&Vista"));
    constexpr double PASSO = 1.25;
    Foglio &f = quadro_->foglio();
    vedi->addAction(comando(ponte_.Traduci("Ingrandisci"), QKeySequence::ZoomIn, [&f] { f.ingrandisci(PASSO); }));
    vedi->addAction(comando(ponte_.Traduci("Rimpicciolisci"), QKeySequence::ZoomOut, [&f] { f.ingrandisci(1 / PASSO); }));
    vedi->addAction(comando(ponte_.Traduci("Tutto il foglio"), QKeySequence(QStringLiteral("Ctrl+0")), [&f] { f.tutto(); }));
    vedi->addAction(comando(ponte_.Traduci("Grandezza vera"), QKeySequence(QStringLiteral("Ctrl+1")), [&f] { f.vero(); }));
    vedi->addSeparator();
    for (QDockWidget *d : findChildren<QDockWidget *>()) vedi->addAction(d->toggleViewAction());

    QMenu *strumenti = menuBar()->addMenu(ponte_.Traduci("&Strumenti"));
    voce(strumenti, "mnuAusiliaria", QKeySequence(QStringLiteral("F2")));
    QMenu *lingua = menuBar()->addMenu(ponte_.Traduci("&Lingua"));
    for (const std::string_view nome : {"mnuItalian", "mnuFrancais", "mnuInglese"}) voce(lingua, nome);
    QMenu *aiuto = menuBar()->addMenu(QStringLiteral("&?"));
    voce(aiuto, "mnuAvviso", QKeySequence(QStringLiteral("F1")));
    voce(aiuto, "M_about");
}

void Finestra::costruisciBarra() {
    auto *barra = new QToolBar(ponte_.Traduci("Comandi"), this);
    barra->setObjectName(QStringLiteral("barra"));
    barra->setMovable(false);
    QWidget *esegui = ponte_.crea("cmdRun", barra);
    esegui->setProperty("principale", true);
    barra->addWidget(esegui);
    for (const std::string_view nome : {"cmdEqui", "cmdTrasforma", "cmdData"}) barra->addWidget(ponte_.crea(nome, barra));
    barra->addSeparator();
    auto *adattaFoglio = new QPushButton(ponte_.Traduci("Adatta"), barra);
    adattaFoglio->setObjectName(QStringLiteral("Adatta"));
    adattaFoglio->setToolTip(ponte_.Traduci("Foglio e origine intorno alle quattro rette, con un margine di 2 cm"));
    connect(adattaFoglio, &QPushButton::clicked, this, [this] { adatta(); });
    barra->addWidget(adattaFoglio);
    const auto interruttore = [&](const QString &testo, const char *nome) {
        auto *c = new QCheckBox(testo, barra);
        c->setObjectName(QString::fromLatin1(nome));
        barra->addWidget(c);
        return c;
    };
    vivoAcceso_ = interruttore(ponte_.Traduci("Disegna mentre scrivi"), VIVO);
    connect(vivoAcceso_, &QCheckBox::toggled, this, [this](bool acceso) {
        if (acceso) chiediVivo();
        else vivo_->ferma();
    });
    pulisciPrima_ = interruttore(ponte_.Traduci("Pulisci prima di Esegui"), PULISCI);
    auto *molla = new QWidget(barra);
    molla->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    barra->addWidget(molla);
    barra->addWidget(ponte_.crea("cmdSave", barra));
    addToolBar(barra);
}

}  // namespace ombrelia::desktop
