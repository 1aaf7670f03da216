// The main window's menus and tool bar.
#include <QActionGroup>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QToolBar>
#include <QToolButton>

#include "desktop/finestra.h"
#include "desktop/gruppi.h"
#include "desktop/parole.h"
#include "desktop/stile.h"
#include "plot/svg.h"

namespace ombrelia::desktop {

namespace {

constexpr auto VIVO = "disegnaMentreScrivi", PULISCI = "pulisciPrima", TEMA = "tema";

}  // namespace

void Finestra::costruisciMenu() {
    const auto voce = [this](QMenu *m, std::string_view nome, const QKeySequence &tasti = {}) {
        QAction *a = ponte_.voce(nome, this);
        a->setShortcut(tasti);
        m->addAction(a);
    };
    const auto bottone = [this](std::string_view nome, const QKeySequence &tasti) {
        QWidget *w = ponte_.widget(nome);
        QAction *a = comando(Leggibile(s_.stato(TrovaControllo(nome)).caption), tasti, [w] {
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
    file->addAction(
        comando(ponte_.Traduci("Salva con nome..."), QKeySequence(QStringLiteral("Ctrl+Shift+S")), [this] { salva(true); }));
    file->addSeparator();
    file->addAction(comando(ponte_.Traduci("Esporta PDF..."), QKeySequence(QStringLiteral("Ctrl+E")), [this] { esportaPdf(); }));
    file->addAction(
        comando(ponte_.Traduci("Esporta disegno..."), QKeySequence(QStringLiteral("Ctrl+Shift+E")), [this] { esporta(); }));
    file->addAction(
        comando(ponte_.Traduci("Per la macchina..."), QKeySequence(QStringLiteral("Ctrl+Shift+M")), [this] { perMacchina(); }));
    file->addAction(bottone("Tavolo1.cmdStampa", QKeySequence::Print));
    file->addSeparator();
    voce(file, "mnuEsci", QKeySequence(QStringLiteral("Ctrl+Q")));

    QMenu *modifica = menuBar()->addMenu(ponte_.Traduci("&Modifica"));
    QAction *annulla = passi_->createUndoAction(this, ponte_.Traduci("Annulla")),
            *rifai = passi_->createRedoAction(this, ponte_.Traduci("Ripeti"));
    annulla->setObjectName(QStringLiteral("annulla"));
    rifai->setObjectName(QStringLiteral("ripeti"));
    annulla->setShortcut(QKeySequence::Undo);
    rifai->setShortcuts({QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});
    modifica->addActions({annulla, rifai});
    modifica->addSeparator();
    modifica->addAction(
        comando(ponte_.Traduci("Copia come immagine"), QKeySequence(QStringLiteral("Ctrl+Shift+C")), [this] { copia(false); }));
    modifica->addAction(comando(ponte_.Traduci("Copia come SVG"), {}, [this] { copia(true); }));

    QMenu *quadrante = menuBar()->addMenu(ponte_.Traduci("&Quadrante"));
    const std::pair<std::string_view, const char *> comandi[] = {
        {"cmdRun", "F5"}, {"cmdEqui", "F6"}, {"cmdData", "F7"}, {"cmdTrasforma", "F8"}, {"Tavolo1.cmdPulisci", "Ctrl+L"}};
    for (const auto &[nome, tasti] : comandi) quadrante->addAction(bottone(nome, QKeySequence(QString::fromLatin1(tasti))));
    quadrante->addSeparator();
    quadrante->addAction(
        comando(ponte_.Traduci("Scegli le pagine con linee"), QKeySequence(QStringLiteral("Ctrl+Shift+P")), [this] {
            ponte_.passo = ponte_.Traduci("Pagina scelta");
            ponte_.fai(NESSUN_CONTROLLO, [this] { s_.tavolo.ScegliPiene(); });
        }));
    quadrante->addAction(
        comando(ponte_.Traduci("Adatta il foglio"), QKeySequence(QStringLiteral("Ctrl+T")), [this] { adatta(); }));
    quadrante->addAction(
        comando(ponte_.Traduci("Disegna mentre scrivi"), QKeySequence(QStringLiteral("F9")), [this] { vivoAcceso_->toggle(); }));

    QMenu *vedi = menuBar()->addMenu(ponte_.Traduci("&Vista"));
    constexpr double PASSO = 1.25;
    Foglio &f = quadro_->foglio();
    vedi->addAction(comando(ponte_.Traduci("Ingrandisci"), QKeySequence::ZoomIn, [&f] { f.ingrandisci(PASSO); }));
    vedi->addAction(comando(ponte_.Traduci("Rimpicciolisci"), QKeySequence::ZoomOut, [&f] { f.ingrandisci(1 / PASSO); }));
    vedi->addAction(comando(ponte_.Traduci("Tutto il foglio"), QKeySequence(QStringLiteral("Ctrl+0")), [&f] { f.tutto(); }));
    vedi->addAction(comando(ponte_.Traduci("Grandezza vera"), QKeySequence(QStringLiteral("Ctrl+1")), [&f] { f.vero(); }));
    vedi->addAction(comando(ponte_.Traduci("Alla cornice"), QKeySequence(QStringLiteral("Ctrl+2")), [this, &f] {
        const Cornice c = CorniceDi(Lettura(s_.in));
        f.inquadra(QRectF(QPointF(c.xMin.numero(), -c.yMax.numero()), QPointF(c.xMax.numero(), -c.yMin.numero())));
    }));
    vedi->addAction(comando(ponte_.Traduci("Alla linea scelta"), QKeySequence(QStringLiteral("Ctrl+3")), [this, &f] {
        if (const auto dove = strati_->dovScelta()) f.inquadra(*dove);
        else messaggio(ponte_.Traduci("Nessuna linea scelta: premine una sul foglio"));
    }));
    vedi->addSeparator();
    const auto interruttore = [&](const QString &testo, const char *nome, const QKeySequence &tasti, bool acceso, auto azione) {
        QAction *a = comando(testo, tasti, [] {});
        a->setObjectName(QString::fromLatin1(nome));
        a->setCheckable(true);
        a->setChecked(acceso);
        connect(a, &QAction::toggled, this, azione);
        vedi->addAction(a);
    };
    interruttore(ponte_.Traduci("Misura sul foglio"), "misura", QKeySequence(QStringLiteral("Ctrl+M")), false,
                 [&f](bool si) { f.misura(si); });
    interruttore(ponte_.Traduci("Lente a grandezza vera"), "lente", QKeySequence(QStringLiteral("Ctrl+Shift+L")), false,
                 [&f](bool si) { f.lente(si); });
    interruttore(ponte_.Traduci("Legenda"), "legenda", {}, true, [&f](bool si) { f.mostraLegenda(si); });
    interruttore(ponte_.Traduci("Righelli"), "righelli", {}, true, [&f](bool si) { f.mostraRighelli(si); });
    vedi->addSeparator();
    QMenu *temi = vedi->addMenu(ponte_.Traduci("Aspetto"));
    auto *scelti = new QActionGroup(this);
    const int tema = QSettings().value(QLatin1String(TEMA), 0).toInt();
    int n = 0;
    for (const QString &testo : {ponte_.Traduci("Come il sistema"), ponte_.Traduci("Chiaro"), ponte_.Traduci("Scuro")}) {
        QAction *a = temi->addAction(testo);
        a->setCheckable(true);
        a->setChecked(n == tema);
        scelti->addAction(a);
        connect(a, &QAction::triggered, this, [this, n] { vesti(n); });
        ++n;
    }
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
    for (QWidget *w : barra->findChildren<QWidget *>())
        if (w->accessibleName().isEmpty())
            if (const auto *b = qobject_cast<QAbstractButton *>(w)) w->setAccessibleName(b->text());
}

// The way from a place to paper: each step opens its group.
QWidget *Finestra::striscia(QWidget *genitore) {
    auto *s = new QWidget(genitore);
    s->setObjectName(QStringLiteral("passi"));
    auto *fila = new QHBoxLayout(s);
    fila->setContentsMargins(6, 2, 6, 2);
    fila->setSpacing(2);
    const auto gruppo = [this](const char *titolo) {
        for (QDockWidget *d : findChildren<QDockWidget *>())
            if (Piega *p = Piega::trova(d, titolo)) {
                d->show();
                return p->apri();
            }
    };
    const std::pair<std::string_view, std::function<void()>> passi[] = {
        {"Luogo"_it, [gruppo] { gruppo("Luogo"); }},
        {"Parete"_it,
         [this, gruppo] {
             gruppo("Parete");
             ponte_.premi("mnuAusiliaria");
         }},
        {"Gnomone"_it, [gruppo] { gruppo("Gnomone"); }},
        {"Linee"_it, [gruppo] { gruppo("Linee"); }},
        {"Carta"_it,
         [this, gruppo] {
             gruppo("Cornice");
             if (auto *carta = findChild<QDockWidget *>(QStringLiteral("carta"))) carta->show();
             else ponte_.premi("Tavolo1.CmdGriglia");
         }},
    };
    int n = 0;
    for (const auto &[nome, azione] : passi) {
        if (n > 0) {
            auto *poi = new QLabel(QStringLiteral("›"), s);
            poi->setTextFormat(Qt::PlainText);
            fila->addWidget(poi);
        }
        auto *b = new QToolButton(s);
        const QString titolo = ponte_.Traduci(nome);
        b->setText(QStringLiteral("%1  %2").arg(++n).arg(titolo.left(1).toUpper() + titolo.mid(1)));
        b->setObjectName(QStringLiteral("passo%1").arg(n));
        b->setAutoRaise(true);
        b->setMinimumWidth(b->fontMetrics().horizontalAdvance(b->text()) + 22);
        b->setFocusPolicy(Qt::TabFocus);
        b->setShortcut(QKeySequence(QStringLiteral("Alt+%1").arg(n)));
        b->setToolTip(QStringLiteral("Alt+%1").arg(n));
        connect(b, &QToolButton::clicked, this, azione);
        fila->addWidget(b);
    }
    fila->addStretch(1);
    return s;
}

void Finestra::vesti(int tema) {
    QSettings().setValue(QLatin1String(TEMA), tema);
    VestiApplicazione(*qApp, static_cast<Tema>(tema));
    strati_->vesti(TemaScuro());
}

// What the list of layers shows goes along.
void Finestra::copia(bool svg) {
    auto *dati = new QMimeData;
    std::string errore;
    Tavolo vestito;
    VestiFoglio(s_.tavolo, quadro_->foglio().stile(), true, vestito);
    if (svg) {
        const QByteArray testo = QByteArray::fromStdString(SVG_Generate(vestito));
        dati->setData(QStringLiteral("image/svg+xml"), testo);
        dati->setText(QString::fromUtf8(testo));
    } else {
        dati->setImageData(paint::Immagine(vestito, errore));
    }
    if (!errore.empty()) {
        delete dati;
        return dialoghi_.avviso(this, Motivo(ponte_, errore));
    }
    QGuiApplication::clipboard()->setMimeData(dati);
    messaggio(ponte_.Traduci("Il disegno è negli appunti"));
}

}  // namespace ombrelia::desktop
