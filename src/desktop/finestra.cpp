// The main window: how it is put together and what follows each action.
#include "desktop/finestra.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenuBar>
#include <QSettings>
#include <QToolBar>
#include <QVBoxLayout>
#include <filesystem>

#include "app/progetto.h"
#include "desktop/gruppi.h"
#include "paint/file_disegno.h"

namespace ombrelia::desktop {

namespace {

const Controllo &riga(IdControllo id) { return TavolaControlli()[static_cast<std::size_t>(id)]; }

// A field whose change another run would show.
bool campo(IdControllo id) {
    return id != NESSUN_CONTROLLO && riga(id).modulo == "MDIForm1" && (riga(id).classe == Classe::Testo || riga(id).classe == Classe::Casella);
}

std::string impronta(const Sessione &s) {
    std::string t;
    for (const Controllo &c : TavolaControlli()) {
        if (c.testo) t += s.in.*c.testo;
        else if (c.casella && c.classe == Classe::Casella) t += static_cast<char>('0' + s.in.*c.casella);
        t += '\n';
    }
    return t;
}

constexpr auto VIVO = "disegnaMentreScrivi", PULISCI = "pulisciPrima", GEOMETRIA = "geometria", STATO = "stato";

}  // namespace

Finestra::Finestra(Dialoghi &dialoghi) : dialoghi_(dialoghi), utente_(dialoghi), s_(utente_), ponte_(s_) {
    setObjectName(QStringLiteral("MDIForm1"));
    utente_.sopra = this;
    std::error_code nonImporta;
    std::filesystem::create_directories(app::CartellaDisegni(), nonImporta);
    app::Avvia(s_);
    setWindowTitle(Q(s_.titolo("MDIForm1")));

    // Made in the order in which the eye, and so the Tab key, goes: commands, the dial, the sheet, the drawing.
    costruisciBarra();
    molo(ponte_.Traduci("Quadrante"), "quadrante", ColonnaQuadrante(ponte_, this), Qt::LeftDockWidgetArea);
    auto *foglio = new QWidget(this);
    foglio->setObjectName(QStringLiteral("frmTavolo"));
    auto *dentro = new QVBoxLayout(foglio);
    dentro->setContentsMargins(0, 0, 0, 0);
    quadro_ = new Quadro(ponte_, foglio);
    dentro->addWidget(quadro_);
    setCentralWidget(foglio);
    // What opens file boxes has no looks of its own.
    auto *scatola = new QWidget(this);
    scatola->hide();
    scatola->setObjectName(QStringLiteral("CDialog1"));

    molo(ponte_.Traduci("Disegno"), "disegno", ColonnaDisegno(ponte_, this), Qt::RightDockWidgetArea);
    moduli_ = std::make_unique<Moduli>(ponte_, dialoghi_, this);
    costruisciMenu();

    utente_.suModulo = [this](std::string_view nome, bool aperto) { moduli_->apri(nome, aperto); };
    s_.rapporti.suApertura = [this](const Rapporto &r) { moduli_->mostra(r); };
    s_.rapporti.suStampa = [this](const Rapporto &r) { moduli_->stampa(r); };
    s_.suStampa = [this](Sessione &, bool aree) { stampa(aree); };
    s_.suImmagine = [](Sessione &s) {
        std::string errore;
        return paint::Bmp(s.tavolo, errore);
    };
    quadro_->suAdatta = [this] { adatta(); };
    ponte_.prima = [this](IdControllo id) { return prima(id); };
    ponte_.dopo = [this](IdControllo id) { dopo(id); };
    vivo_ = std::make_unique<Vivo>(this, s_.dizionario, [this](Vivo::Esito &e) { disegnoVivo(e); });

    resize(1360, 860);
    const QSettings ricordi;
    restoreGeometry(ricordi.value(QLatin1String(GEOMETRIA)).toByteArray());
    restoreState(ricordi.value(QLatin1String(STATO)).toByteArray());
    vivoAcceso_->setChecked(ricordi.value(QLatin1String(VIVO), false).toBool());
    pulisciPrima_->setChecked(false);
    salvato_ = app::ScriviProgetto(s_);
    improntaCampi_ = impronta(s_);
    ponte_.sincronizza();
    quadro_->aggiorna();
    ponte_.widget("txtLAT")->setFocus(Qt::OtherFocusReason);
}

Finestra::~Finestra() { vivo_.reset(); }

QAction *Finestra::comando(const QString &testo, const QKeySequence &tasti, const std::function<void()> &azione) {
    auto *a = new QAction(testo, this);
    a->setShortcut(tasti);
    connect(a, &QAction::triggered, this, azione);
    return a;
}

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
    voce(file, "mnuApri", QKeySequence::Open);
    recenti_ = file->addMenu(ponte_.Traduci("Aperti di recente"));
    connect(recenti_, &QMenu::aboutToShow, this, [this] { riempiRecenti(); });
    voce(file, "mnuSalva", QKeySequence::Save);
    file->addSeparator();
    file->addAction(comando(ponte_.Traduci("Esporta PDF..."), QKeySequence(QStringLiteral("Ctrl+E")), [this] { esportaPdf(); }));
    file->addAction(comando(ponte_.Traduci("Esporta disegno..."), QKeySequence(QStringLiteral("Ctrl+Shift+E")), [this] { esporta(); }));
    file->addAction(bottone("Tavolo1.cmdStampa", QKeySequence::Print));
    file->addSeparator();
    voce(file, "mnuEsci", QKeySequence(QStringLiteral("Ctrl+Q")));

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

void Finestra::molo(const QString &titolo, const char *nome, QWidget *contenuto, Qt::DockWidgetArea dove) {
    auto *d = new QDockWidget(titolo, this);
    d->setObjectName(QString::fromLatin1(nome));
    d->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
    d->setWidget(contenuto);
    addDockWidget(dove, d);
}

// Before an action: what runs off the thread is given up, unsaved work is asked about, the sheet is wiped when wished.
bool Finestra::prima(IdControllo id) {
    if (!campo(id)) vivo_->ferma();
    if (id == NESSUN_CONTROLLO) return true;
    const std::string_view nome = riga(id).nome;
    if (nome == "mnuApri" && s_.titolo("frmTavolo").empty() && !lasciaAndare()) return false;
    if (nome == "cmdRun" && pulisciPrima_->isChecked()) app::Premi(s_, TrovaControllo("Tavolo1.cmdPulisci"));
    return true;
}

void Finestra::dopo(IdControllo id) {
    const std::string_view nome = id == NESSUN_CONTROLLO ? std::string_view() : riga(id).nome;
    if (nome == "mnuApri" || nome == "mnuSalva") {
        if (auto file = std::exchange(utente_.ultimoFile, {}); !file.empty()) {
            ricorda(Q(file));
            salvato_ = app::ScriviProgetto(s_);
            if (nome == "mnuApri") quadro_->foglio().tutto();
        }
    }
    const std::string &progetto = s_.titolo("frmTavolo");
    setWindowTitle(progetto.empty() ? Q(s_.titolo("MDIForm1")) : Q(progetto) + QStringLiteral(" — ") + Q(s_.titolo("MDIForm1")));
    if (campo(id)) {
        for (const char *figura : {"Picture2", "Picture3"}) ponte_.widget(figura)->update();
        const bool nuovo = impronta(s_) != improntaCampi_;
        if (vivoAcceso_->isChecked() && nuovo) chiediVivo();
        else if (riga(id).classe == Classe::Casella) quadro_->foglio().cambiato();  // some boxes draw when they are set
    } else if (id == NESSUN_CONTROLLO || riga(id).classe != Classe::Testo) {
        quadro_->foglio().cambiato();
    }
    quadro_->aggiorna();
    if (nome == "M_about") moduli_->apri("frmAbout", true);
    if (nome == "mnuEsci") QMetaObject::invokeMethod(this, [this] { close(); }, Qt::QueuedConnection);
}

void Finestra::chiediVivo() {
    improntaCampi_ = impronta(s_);
    vivo_->chiedi(s_, quadro_->foglio().vista());
}

// A run off the thread has come: its drawing, its variables and its sheet are the session's, its fields are not.
void Finestra::disegnoVivo(Vivo::Esito &e) {
    Tavolo &t = s_.tavolo;
    t.ScambiaDisegno(*e.tavolo);
    t.ForeColor = e.tavolo->ForeColor;
    s_.v = e.v;
    if (t.ShiftX() != e.tavolo->ShiftX()) t.ShiftX(e.tavolo->ShiftX());
    if (t.ShiftY() != e.tavolo->ShiftY()) t.ShiftY(e.tavolo->ShiftY());
    if (t.QuadranteL() != e.tavolo->QuadranteL()) t.QuadranteL(e.tavolo->QuadranteL());
    if (t.QuadranteH() != e.tavolo->QuadranteH()) t.QuadranteH(e.tavolo->QuadranteH());
    t.Messaggio(e.avviso);
    quadro_->foglio().cambiato(e.immagine, e.vista);
    ponte_.sincronizza();
    quadro_->aggiorna();
}

void Finestra::adatta() {
    bool fatto = false;
    ponte_.fai(NESSUN_CONTROLLO, [&] { fatto = app::Adatta(s_); });
    if (!fatto) return messaggio(ponte_.Traduci("Le quattro rette non chiudono un foglio: controlla x0, x1, y0, y1"));
    quadro_->foglio().tutto();
    if (vivoAcceso_->isChecked()) chiediVivo();
}

void Finestra::esegui() { ponte_.premi("cmdRun"); }

void Finestra::messaggio(const QString &testo) {
    s_.Messaggio(testo.toStdString());
    ponte_.sincronizza();
}

void Finestra::closeEvent(QCloseEvent *e) {
    if (modificato() ? !lasciaAndare() : !app::ChiudiTavolo(s_)) return e->ignore();
    QSettings ricordi;
    ricordi.setValue(QLatin1String(GEOMETRIA), saveGeometry());
    ricordi.setValue(QLatin1String(STATO), saveState());
    ricordi.setValue(QLatin1String(VIVO), vivoAcceso_->isChecked());
    vivo_->ferma();
    QMainWindow::closeEvent(e);
}

}  // namespace ombrelia::desktop
