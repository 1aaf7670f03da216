// The main window's docks, menus and tool bar.
#include <QActionGroup>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QShowEvent>
#include <QTimer>
#include <QToolBar>
#include <QUndoView>
#include <QVBoxLayout>
#include <QWhatsThis>

#include "app/lingua.h"
#include "app/rapporti.h"
#include "controlli/nomi.h"
#include "desktop/aiuti.h"
#include "desktop/comandi.h"
#include "desktop/esempi.h"
#include "desktop/finestra.h"
#include "desktop/gruppi.h"
#include "desktop/icone.h"
#include "desktop/lingua_finestra.h"
#include "desktop/parole.h"
#include "desktop/stile.h"
#include "desktop/striscia.h"
#include "plot/svg.h"

namespace ombrelia::desktop {

namespace {

constexpr auto VIVO = "disegnaMentreScrivi", PULISCI = "pulisciPrima", TEMA = "tema";

}  // namespace

// Made in the order in which the eye, and so the Tab key, goes: commands, the dial, the sheet, the drawing.
void Finestra::costruisciMoli() {
    costruisciBarra();
    molo(ponte_.Traduci("Quadrante"), "quadrante", ColonnaQuadrante(ponte_, this), Qt::LeftDockWidgetArea);
    auto *foglio = new QWidget(this);
    foglio->setObjectName(QStringLiteral("frmTavolo"));
    auto *dentro = new QVBoxLayout(foglio);
    dentro->setContentsMargins(0, 0, 0, 0);
    dentro->setSpacing(0);
    dentro->addWidget(striscia(foglio));
    quadro_ = new Quadro(ponte_, foglio);
    dentro->addWidget(quadro_);
    setMinimumWidth(900);
    setCentralWidget(foglio);
    // What opens file boxes has no looks of its own.
    auto *scatola = new QWidget(this);
    scatola->hide();
    scatola->setObjectName(QStringLiteral("CDialog1"));

    molo(ponte_.Traduci("Disegno"), "disegno", ColonnaDisegno(ponte_, this), Qt::RightDockWidgetArea);
    strati_ = new PannelloStrati(ponte_, quadro_->foglio(), this);
    molo(ponte_.Traduci("Strati"), "strati", strati_, Qt::RightDockWidgetArea);
    passi_ = std::make_unique<Passi>(s_, this, [this](bool rifai) { rimesso(rifai); });
    auto *storia = new QUndoView(passi_.get(), this);
    storia->setObjectName(QStringLiteral("elencoPassi"));
    storia->setAccessibleName(ponte_.Traduci("Passi fatti"));
    storia->setEmptyLabel(ponte_.Traduci("All'inizio"));
    storia->setToolTip(ponte_.Traduci("Premi un passo per tornare a com'era allora"));
    molo(ponte_.Traduci("Passi fatti"), "storia", storia, Qt::RightDockWidgetArea);
    for (const char *dopo : {"strati", "storia"})
        tabifyDockWidget(findChild<QDockWidget *>(QStringLiteral("disegno")),
                         findChild<QDockWidget *>(QString::fromLatin1(dopo)));
    findChild<QDockWidget *>(QStringLiteral("disegno"))->raise();
    strati_->vesti(TemaScuro());
}

// A menu of the bar while it is filled.
class Finestra::VociMenu {
public:
    VociMenu(Finestra &f, const QString &titolo) : menu(f.menuBar()->addMenu(titolo)), f_(f) {}

    QAction *nostro(std::string_view nome, const std::function<void()> &azione) const {
        QAction *a = CreaComando(f_.ponte_, nome, &f_, azione);
        menu->addAction(a);
        return a;
    }
    QAction *voce(NomeControllo nome) const {
        QAction *a = f_.ponte_.voce(nome, &f_);
        VestiVoce(a, TrovaComando(nome));
        menu->addAction(a);
        return a;
    }
    // A button's entry says what the button says.
    void bottone(NomeControllo nome) const {
        auto *b = qobject_cast<QAbstractButton *>(f_.ponte_.widget(nome));
        auto *a = new QAction(f_.ponte_.didascalia(nome), &f_);
        VestiVoce(a, TrovaComando(nome));
        connect(a, &QAction::triggered, &f_, [b] { b->click(); });
        menu->addAction(a);
    }

    QMenu *const menu;

private:
    Finestra &f_;
};

void Finestra::costruisciMenu() {
    const QList<QAction *> file = costruisciFile(), modifica = costruisciModifica();
    costruisciQuadrante();
    costruisciVista(menuBar()->addMenu(ponte_.Traduci("&Vista")));
    VociMenu(*this, ponte_.Traduci("&Strumenti")).voce("mnuAusiliaria");
    costruisciLingua();
    costruisciAiuto();

    // What every hand looks for first stands first in the bar.
    QAction *davanti = barra_->actions().value(0);
    for (const auto &[azioni, nomi] :
         {std::pair{file, std::vector{"nuovo", "mnuApri", "mnuSalva"}}, {modifica, {"annulla", "ripeti"}}}) {
        barra_->insertActions(davanti, azioni);
        barra_->insertSeparator(davanti);
        for (qsizetype i = 0; i < azioni.size(); ++i)
            azioni[i]->setToolTip(Leggibile(azioni[i]->text().remove(QLatin1Char('&')).toStdString()) +
                                  TastiDi(TrovaComando(nomi[static_cast<std::size_t>(i)])));
    }
}

QList<QAction *> Finestra::costruisciFile() {
    const VociMenu m(*this, ponte_.Traduci("&File"));
    QAction *primo = m.nostro("nuovo", [this] { nuovo(); }), *apri = m.voce("mnuApri");
    const auto *recenti = TrovaComando("recenti");
    recenti_ = m.menu->addMenu(IconaDi(recenti->icona), ponte_.Traduci(recenti->testo));
    connect(recenti_, &QMenu::aboutToShow, this, [this] { riempiRecenti(); });
    m.nostro("esempi", [this] {
        if (!esempi_) {
            esempi_ = new Esempi(ponte_, this);
            esempi_->suScelta = [this](const QString &f) { apriEsempio(f); };
        }
        esempi_->show();
    });
    QAction *salvare = m.voce("mnuSalva");
    m.nostro("salvaConNome", [this] { salva(true); });
    m.menu->addSeparator();
    m.nostro("esportaPdf", [this] { esportaPdf(); });
    m.nostro("esporta", [this] { esporta(); });
    m.nostro("perMacchina", [this] { perMacchina(); });
    m.nostro("impagina", [this] { impagina(); });
    m.bottone("Tavolo1.cmdStampa");
    m.menu->addSeparator();
    m.voce("mnuEsci");
    return {primo, apri, salvare};
}

QList<QAction *> Finestra::costruisciModifica() {
    const VociMenu m(*this, ponte_.Traduci("&Modifica"));
    QAction *annulla = passi_->createUndoAction(this, ponte_.Traduci("Annulla")),
            *rifai = passi_->createRedoAction(this, ponte_.Traduci("Ripeti"));
    annulla->setObjectName(QStringLiteral("annulla"));
    rifai->setObjectName(QStringLiteral("ripeti"));
    VestiVoce(annulla, TrovaComando("annulla"));
    VestiVoce(rifai, TrovaComando("ripeti"));
    m.menu->addActions({annulla, rifai});
    moduli_->modulo("frmDeclin")->addActions({annulla, rifai});
    m.menu->addSeparator();
    m.nostro("copiaImmagine", [this] { copia(false); });
    m.nostro("copiaSvg", [this] { copia(true); });
    return {annulla, rifai};
}

void Finestra::costruisciQuadrante() {
    const VociMenu m(*this, ponte_.Traduci("&Quadrante"));
    for (const NomeControllo nome :
         std::initializer_list<NomeControllo>{"cmdRun", "cmdEqui", "cmdData", "cmdTrasforma", "Tavolo1.cmdPulisci"})
        m.bottone(nome);
    costruisciTabelle(m.menu->addMenu(ponte_.Traduci("Tabelle")));
    m.menu->addSeparator();
    m.nostro("scegliPagine", [this] {
        ponte_.passo = ponte_.Traduci("Pagina scelta");
        ponte_.fai(NESSUN_CONTROLLO, [this] { s_.tavolo.ScegliPiene(); });
    });
    m.nostro("Adatta", [this] { adatta(); });
    QAction *segue = m.nostro("vivo", [this] { vivoAcceso_->click(); });
    segue->setCheckable(true);
    connect(vivoAcceso_, &QCheckBox::toggled, segue, &QAction::setChecked);
}

// The reports that the fields have.
void Finestra::costruisciTabelle(QMenu *tabelle) {
    connect(tabelle, &QMenu::aboutToShow, this, [this, tabelle] {
        tabelle->clear();
        for (const app::VoceRapporto &r : app::ElencoRapporti()) {
            if (!app::HaRapporto(s_, r)) continue;
            QAction *a = tabelle->addAction(Leggibile(s_.Traduci(s_.titolo(r.modulo))), this, [this, &r] {
                ponte_.fai(r.controllo, [&] {
                    if (r.controllo == NESSUN_CONTROLLO) app::ApriRapporto(s_, r);
                    else app::Premi(s_, r.controllo);
                });
            });
            a->setEnabled(r.controllo == NESSUN_CONTROLLO || s_.stato(r.controllo).abilitato);
        }
    });
}

void Finestra::costruisciLingua() {
    const VociMenu m(*this, ponte_.Traduci("&Lingua"));
    auto *lingue = new QActionGroup(this);
    const QString parlata = CodiceLingua(s_);
    for (const Lingua &l : Lingue()) {
        QAction *a = l.voce != NESSUN_CONTROLLO ? m.voce(l.voce) : m.menu->addAction(Q(l.nome), this, [this, &l] {
            RicordaLingua(l, ponte_.fai(NESSUN_CONTROLLO, [&] { return app::ScegliLingua(s_, l); }));
        });
        lingue->addAction(a);
        a->setCheckable(true);
        a->setChecked(parlata == Q(l.codice));
    }
}

void Finestra::costruisciAiuto() {
    const VociMenu m(*this, QStringLiteral("&?"));
    // By its keys it speaks of the field that has them, by the menu of what is pressed next.
    m.nostro("cheCosa", [this] {
        const bool tasti = QGuiApplication::keyboardModifiers() & Qt::ShiftModifier;
        if (!tasti || !MostraSpiegazione(focusWidget())) QWhatsThis::enterWhatsThisMode();
    });
    m.voce("mnuAvviso");
    m.voce("M_about");
}

void Finestra::costruisciVista(QMenu *vedi) {
    const auto nostro = [this, vedi](std::string_view nome, const std::function<void()> &azione) {
        vedi->addAction(CreaComando(ponte_, nome, this, azione));
    };
    constexpr double PASSO = 1.25;
    Foglio &f = quadro_->foglio();
    nostro("ingrandisci", [&f] { f.ingrandisci(PASSO); });
    nostro("rimpicciolisci", [&f] { f.ingrandisci(1 / PASSO); });
    nostro("tutto", [&f] { f.tutto(); });
    nostro("vero", [&f] { f.vero(); });
    nostro("allaCornice", [this, &f] {
        const Cornice c = CorniceDi(Lettura(s_.in));
        f.inquadra(QRectF(QPointF(c.xMin.numero(), c.yMin.numero()), QPointF(c.xMax.numero(), c.yMax.numero())));
    });
    nostro("allaLinea", [this, &f] {
        if (const auto dove = strati_->dovScelta()) f.inquadra(*dove);
        else messaggio(ponte_.Traduci("Nessuna linea scelta: premine una sul foglio"));
    });
    vedi->addSeparator();
    const auto interruttore = [&](const char *nome, bool acceso, auto azione) {
        QAction *a = CreaComando(ponte_, nome, this, [] {});
        a->setObjectName(QString::fromLatin1(nome));
        a->setCheckable(true);
        a->setChecked(acceso);
        connect(a, &QAction::toggled, this, azione);
        vedi->addAction(a);
    };
    interruttore("misura", false, [&f](bool si) { f.misura(si); });
    interruttore("lente", false, [&f](bool si) { f.lente(si); });
    interruttore("legenda", true, [&f](bool si) { f.mostraLegenda(si); });
    interruttore("righelli", true, [&f](bool si) { f.mostraRighelli(si); });
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
}

void Finestra::costruisciBarra() {
    barra_ = new QToolBar(ponte_.Traduci("Comandi"), this);
    barra_->setObjectName(QStringLiteral("barra"));
    barra_->setMovable(false);
    constexpr int ICONA = 18;
    barra_->setIconSize(QSize(ICONA, ICONA));
    QWidget *esegui = ponte_.crea("cmdRun", barra_);
    esegui->setProperty("principale", true);
    barra_->addWidget(esegui);
    const auto interruttore = [&](const QString &testo, const QString &aiuto, const char *nome) {
        auto *c = new QCheckBox(testo, barra_);
        c->setObjectName(QString::fromLatin1(nome));
        c->setToolTip(aiuto);
        barra_->addWidget(c);
        return c;
    };
    vivoAcceso_ = interruttore(ponte_.Traduci("Disegna mentre scrivi"),
                               ponte_.Traduci("Il quadrante si ridisegna a ogni tasto") + TastiDi(TrovaComando("vivo")), VIVO);
    connect(vivoAcceso_, &QCheckBox::toggled, this, [this](bool acceso) {
        if (acceso) chiediVivo();
        else vivo_->ferma();
    });
    connect(vivoAcceso_, &QCheckBox::clicked, this, [](bool si) { QSettings().setValue(QLatin1String(VIVO), si); });
    pulisciPrima_ = interruttore(ponte_.Traduci("Pulisci prima di Esegui"),
                                 ponte_.Traduci("Senza, ogni esecuzione si aggiunge a quello che c'è"), PULISCI);
    barra_->addSeparator();
    for (const NomeControllo nome : std::initializer_list<NomeControllo>{"cmdEqui", "cmdTrasforma", "cmdData"})
        barra_->addWidget(ponte_.crea(nome, barra_));
    const Comando *adattare = TrovaComando("Adatta");
    auto *adattaFoglio = new QPushButton(ponte_.Traduci("Adatta"), barra_);
    adattaFoglio->setObjectName(QStringLiteral("Adatta"));
    adattaFoglio->setToolTip(ponte_.Traduci("Foglio e origine intorno alle quattro rette, con un margine di 2 cm") +
                             TastiDi(adattare));
    VestiBottone(adattaFoglio, adattare);
    connect(adattaFoglio, &QPushButton::clicked, this, [this] { adatta(); });
    barra_->addWidget(adattaFoglio);
    auto *molla = new QWidget(barra_);
    molla->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    barra_->addWidget(molla);
    QWidget *partenza = ponte_.crea("cmdSave", barra_);
    barra_->addWidget(partenza);
    addToolBar(barra_);
    for (QWidget *w : barra_->findChildren<QWidget *>())
        if (w->accessibleName().isEmpty())
            if (const auto *b = qobject_cast<QAbstractButton *>(w)) w->setAccessibleName(b->text());
    SoloIcona({partenza}, true);
}

// Narrow, the bar's buttons are icons alone; how wide they are with their texts is known once they have their looks.
void Finestra::piegaBarra() {
    constexpr int LARGA = 1200;
    QList<QWidget *> bottoni;
    for (QPushButton *b : barra_->findChildren<QPushButton *>())
        if (!b->property("principale").toBool() && b->objectName() != QStringLiteral("cmdSave")) bottoni << b;
    if (barraLarga_ == 0) {
        if (!isVisible()) return;
        barraLarga_ = std::max(LARGA, barra_->sizeHint().width());
    }
    SoloIcona(bottoni, width() < barraLarga_);
}

void Finestra::resizeEvent(QResizeEvent *e) {
    piegaBarra();
    QMainWindow::resizeEvent(e);
}

void Finestra::showEvent(QShowEvent *e) {
    QMainWindow::showEvent(e);
    piegaBarra();
    if (e->spontaneous() || !primoStato_.isEmpty()) return;
    QTimer::singleShot(0, this, [this] {
        if (auto *campo = qobject_cast<QLineEdit *>(focusWidget())) campo->selectAll();  // as one entered by hand
        primaGeometria_ = saveGeometry();
        primoStato_ = saveState();
    });
}

// The way from a place to paper: each step opens its group.
QWidget *Finestra::striscia(QWidget *genitore) {
    const auto gruppo = [this](const char *titolo) {
        for (QDockWidget *d : findChildren<QDockWidget *>())
            if (Piega *p = Piega::trova(d, titolo)) {
                d->show();
                d->raise();
                return p->apri();
            }
    };
    return new Striscia(ponte_,
                        {[gruppo] { gruppo("Luogo"); },
                         [this, gruppo] {
                             gruppo("Parete");
                             ponte_.premi("mnuAusiliaria");
                         },
                         [gruppo] { gruppo("Gnomone"); }, [gruppo] { gruppo("Linee"); },
                         [this, gruppo] {
                             gruppo("Cornice");
                             impagina();
                         }},
                        genitore);
}

void Finestra::vesti(int tema) {
    QSettings().setValue(QLatin1String(TEMA), tema);
    VestiApplicazione(*qApp, static_cast<Tema>(tema));
    strati_->vesti(TemaScuro());
    moduli_->vesti();
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
