// The lesser forms.
#include "desktop/moduli.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QSysInfo>
#include <QTabWidget>
#include <QTextBlock>
#include <QVBoxLayout>

#include "app/rapporti.h"
#include "controlli/nomi.h"
#include "core/file.h"
#include "core/testo.h"
#include "desktop/figure.h"
#include "desktop/letture_parete.h"
#include "desktop/tavole_rapporto.h"
#include "luoghi/angolo.h"
#include "paint/testo_stampato.h"
#include "paint/tinte.h"
#include "reports/rapporti.h"

namespace ombrelia::desktop {

namespace {

QPlainTextEdit *lettura(QWidget *genitore) {
    auto *t = new QPlainTextEdit(genitore);
    t->setReadOnly(true);
    t->setLineWrapMode(QPlainTextEdit::NoWrap);
    t->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return t;
}

// A row's colour so that it can be read on the ground of the text, light or dark.
QColor inchiostro(Colore colore, const QColor &fondo) {
    const auto luce = [](const QColor &c) {
        const auto l = [](double x) { return x <= 0.03928 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4); };
        return 0.05 + 0.2126 * l(c.redF()) + 0.7152 * l(c.greenF()) + 0.0722 * l(c.blueF());
    };
    const bool scuro = fondo.lightness() < 128;
    QColor c = paint::Inchiostro(colore, scuro ? paint::Supporto::Schermo : paint::Supporto::Carta);
    constexpr double LEGGIBILE = 4.5, PASSO = 0.08;
    for (double via = 1; via > 0; via -= PASSO) {
        const double a = luce(c), b = luce(fondo);
        if (std::max(a, b) / std::min(a, b) >= LEGGIBILE) break;
        const auto verso = [&](double x) { return static_cast<float>(scuro ? x + (1 - x) * PASSO * 2 : x * (1 - PASSO * 2)); };
        c = QColor::fromRgbF(verso(c.redF()), verso(c.greenF()), verso(c.blueF()));
    }
    return c;
}

// The lines in their colours. A report's text has a line for each of its rows.
void riempi(QPlainTextEdit *t, const Rapporto &r) {
    const QStringList righe = Q(reports::RapportoTesto(r)).split(QLatin1Char('\n'));
    t->clear();
    QTextCursor c(t->document());
    for (qsizetype i = 0; i < righe.size(); ++i) {
        QTextCharFormat f;
        const auto n = static_cast<std::size_t>(i);
        const Colore colore = n < r.righe.size() ? r.righe[n].colore : 0;
        f.setForeground(inchiostro(colore, t->palette().color(QPalette::Base)));
        if (i > 0) c.insertBlock();
        c.insertText(righe.at(i), f);
    }
    c.movePosition(QTextCursor::Start);
    t->setTextCursor(c);
}

}  // namespace

Moduli::Moduli(Ponte &ponte, Dialoghi &dialoghi, QWidget *finestra) : ponte_(ponte), dialoghi_(dialoghi), finestra_(finestra) {
    for (const app::VoceRapporto &r : app::ElencoRapporti())
        if (app::MenuStampa(r.modulo)) rapporto(r.modulo);
    avviso();
    strumenti();
    istruzioni();
    informazioni();
}

QWidget *Moduli::modulo(std::string_view nome) const {
    const auto i = finestre_.find(nome);
    return i == finestre_.end() ? nullptr : i->second;
}

void Moduli::apri(std::string_view nome, bool aperto) {
    QWidget *w = modulo(nome);
    if (!w) return;
    w->setWindowTitle(Q(ponte_.sessione().titolo(nome)).simplified());
    ponte_.sincronizza();
    if (!aperto) return w->hide();
    if (nome == "frmInfoDec") {
        // Modal, without a loop of its own: it waits over the board.
        if (QWidget *sotto = modulo("frmDeclin"); sotto && sotto->isVisible()) w->setParent(sotto, w->windowFlags());
        w->setWindowModality(Qt::WindowModal);
    }
    w->show();
    w->raise();
    w->activateWindow();
    if (nome == "frmDeclin") aggiorna(false);
}

void Moduli::rapporto(std::string_view nome) {
    auto *w = new QMainWindow(finestra_, Qt::Window);
    w->setObjectName(Q(nome));
    auto *testo = lettura(w);
    testo->setObjectName(QStringLiteral("testo"));
    auto *tavole = new TavoleRapporto(ponte_, dialoghi_, testo, w);
    tavole->suLuogo = [this] { return luogo(); };
    w->setCentralWidget(tavole);
    w->resize(900, 560);
    QAction *stampa = ponte_.voce(*app::MenuStampa(nome), w);
    stampa->setShortcut(QKeySequence::Print);
    w->menuBar()->addAction(stampa);
    auto *salva = new QAction(ponte_.Traduci("Salva come..."), w);
    salva->setObjectName(QStringLiteral("salva"));
    salva->setShortcut(QKeySequence::Save);
    QObject::connect(salva, &QAction::triggered, w, [this, w, chi = std::string(nome)] { salvaTesto(w, contenuti_[chi]); });
    auto *chiudi = new QAction(ponte_.Traduci("Chiudi"), w);
    chiudi->setShortcuts({QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)});
    QObject::connect(chiudi, &QAction::triggered, w, &QWidget::hide);
    w->menuBar()->addActions({salva, chiudi});
    finestre_.emplace(nome, w);
}

void Moduli::salvaTesto(QWidget *sopra, const Rapporto &r) {
    QStringList filtri;
    for (const reports::FormaRapporto &forma : reports::FormeRapporto()) filtri << QStringLiteral("*.") + Q(forma.estensione);
    filtri.removeDuplicates();
    const auto f = dialoghi_.file(sopra, true, QStringLiteral("txt"), filtri.join(QStringLiteral(";;")),
                                  Q(r.modulo) + QStringLiteral(".txt"));
    if (!f || f->isEmpty()) return;
    const std::string contenuto = reports::FormaRapportoDi(QFileInfo(*f).suffix().toStdString()).scrivi(r);
    if (const auto errore = ScriviFile(f->toStdString(), contenuto)) dialoghi_.avviso(sopra, Q(*errore));
}

void Moduli::mostra(const Rapporto &r) {
    QWidget *w = modulo(r.modulo);
    if (!w) return;
    contenuti_[r.modulo] = r;
    if (auto *testo = w->findChild<QPlainTextEdit *>(QStringLiteral("testo"))) riempi(testo, r);
    if (TavoleRapporto *t = tavole(r.modulo)) t->mostra(r);
    apri(r.modulo, true);
}

void Moduli::vesti() {
    for (const auto &[nome, r] : contenuti_)
        if (auto *testo = finestre_[nome]->findChild<QPlainTextEdit *>(QStringLiteral("testo"))) riempi(testo, r);
}

void Moduli::aggiorna(bool calcolato) {
    letture_->aggiorna();
    if (calcolato) schede_->setCurrentIndex(1);
}

TavoleRapporto *Moduli::tavole(std::string_view nome) const {
    const auto *w = qobject_cast<QMainWindow *>(modulo(nome));
    return w ? dynamic_cast<TavoleRapporto *>(w->centralWidget()) : nullptr;
}

// Which dial a printed report is of: its place where it has a name, and how it stands.
QString Moduli::luogo() const {
    const DialInputs &in = ponte_.sessione().in;
    // With letters in minutes and seconds, without them in degrees.
    const auto angolo = [](const std::string &testo, luoghi::Verso verso) {
        const Valore v = Val(testo);
        if (!v.esiste()) return Q(testo);
        return Q(luoghi::DueForme(v.v, verso))
            .section(QStringLiteral(" = "), verso == luoghi::Verso::Nudo ? 0 : 1, verso == luoghi::Verso::Nudo ? 0 : 1);
    };
    QStringList parti;
    if (!in.txtLuogo.empty()) parti << Q(in.txtLuogo);
    parti << angolo(in.txtLAT, luoghi::Verso::NordSud) + QStringLiteral(", ") + angolo(in.txtLonG, luoghi::Verso::OvestEst);
    for (const auto &[nome, valore] : {std::pair("Declinazione O +, E -", in.txtDec), {"Inclinazione zenitale", in.txtInc}})
        parti << ponte_.Traduci(nome).simplified() + QStringLiteral(": ") + angolo(valore, luoghi::Verso::Nudo);
    return parti.join(QStringLiteral("  ·  "));
}

void Moduli::stampa(const Rapporto &r) {
    paint::TestoStampato t{Q(r.caption).simplified(), luogo(), {}};
    const QStringList righe = Q(reports::RapportoTesto(r)).split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < righe.size(); ++i) {
        const auto n = static_cast<std::size_t>(i);
        t.righe.push_back({righe.at(i), n < r.righe.size() ? r.righe[n].colore : 0});
    }
    bool prima = true, detto = false;
    dialoghi_.stampa(finestra_, t.titolo, [&](QPrinter &stampante) {
        // The page is turned as the rows need it; the user may turn it back.
        if (std::exchange(prima, false))
            stampante.setPageOrientation(paint::ComponiTesto(t, stampante).orizzontale ? QPageLayout::Landscape
                                                                                       : QPageLayout::Portrait);
        if (!paint::StampaTesto(t, stampante).spezzate || std::exchange(detto, true)) return;
        QMetaObject::invokeMethod(
            finestra_,
            [this] {
                dialoghi_.avviso(finestra_,
                                 ponte_.Traduci("Le righe sono più larghe di questa carta anche a 6 punti: sono spezzate."));
            },
            Qt::QueuedConnection);
    });
}

void Moduli::avviso() {
    auto *w = new QDialog(finestra_);
    w->setObjectName(QStringLiteral("Form5"));
    auto *giu = new QVBoxLayout(w);
    auto *testo = new QPlainTextEdit(w);
    testo->setReadOnly(true);
    testo->setMinimumSize(560, 320);
    ponte_.adotta("Form5.Text1", testo);
    giu->addWidget(testo);
    finestre_.emplace("Form5", w);
}

void Moduli::strumenti() {
    auto *w = new QDialog(finestra_);
    w->setObjectName(QStringLiteral("frmDeclin"));
    const auto metti = [this](NomeControllo nome, QWidget *genitore) {
        QWidget *q = ponte_.crea(nome, genitore);
        if (qobject_cast<QLineEdit *>(q)) q->setFixedWidth(78);
        if (auto *b = qobject_cast<QPushButton *>(q)) b->setAutoDefault(false);
        return q;
    };
    auto *fianco = new QHBoxLayout(w);
    auto *sinistra = new QVBoxLayout;
    fianco->addLayout(sinistra);

    QWidget *f1 = metti("frmDeclin.Frame1", w);
    auto *g1 = new QGridLayout(f1);
    g1->addWidget(metti("frmDeclin.optModoDec", f1), 0, 1);
    g1->addWidget(metti("frmDeclin.OptModoSess", f1), 0, 3, 1, 3);
    int c = 3;
    for (const NomeControllo nome :
         std::initializer_list<NomeControllo>{"frmDeclin.lblGradi", "frmDeclin.lblPrimi", "frmDeclin.lblSecondi"})
        g1->addWidget(metti(nome, f1), 1, c++);
    const std::vector<std::vector<NomeControllo>> righe{
        {"frmDeclin.lblLAT", "frmDeclin.txtLAT", "frmDeclin.cmdSign(0)", "frmDeclin.txtLatG", "frmDeclin.txtLatP",
         "frmDeclin.txtLATS"},
        {"frmDeclin.lblLON", "frmDeclin.txtLON", "frmDeclin.cmdSign(1)", "frmDeclin.txtLonG", "frmDeclin.txtLonP",
         "frmDeclin.txtLonS"},
    };
    for (int r = 0; r < 2; ++r)
        for (int k = 0; k < 6; ++k) {
            QWidget *q = metti(righe[static_cast<std::size_t>(r)][static_cast<std::size_t>(k)], f1);
            if (k == 2) q->setFixedWidth(34);
            g1->addWidget(q, 2 + r, k);
        }
    g1->addWidget(metti("frmDeclin.cmdTrans", f1), 4, 0, 1, 6);
    sinistra->addWidget(f1);

    QWidget *f2 = metti("frmDeclin.Frame2", w);
    auto *g2 = new QGridLayout(f2);
    const std::vector<std::vector<NomeControllo>> declinazione{
        {"frmDeclin.lblData", "frmDeclin.txtDay", "frmDeclin.txtMonth", "frmDeclin.txtYear"},
        {"frmDeclin.lblUT", "frmDeclin.txtHH", "frmDeclin.txtMM", "frmDeclin.txtSS"},
        {"frmDeclin.lblAngle", "frmDeclin.txtAngle", "frmDeclin.cmdInfo"},
        {"frmDeclin.lblFuso", "frmDeclin.TxtFuso", "frmDeclin.ckDst"}};
    int r = 0;
    for (const auto &riga : declinazione) {
        int k = 0;
        for (const NomeControllo nome : riga) {
            const bool ultimo = k == 2 && riga.size() == 3;
            g2->addWidget(metti(nome, f2), r, k, 1, ultimo ? 2 : 1);
            ++k;
        }
        ++r;
    }
    letture_ = new LettureParete(ponte_, w);
    g2->addWidget(letture_->calendario(f2), 0, 4);
    g2->addWidget(letture_->orologio(f2), r++, 0, 1, 5);
    auto *calcola = metti("frmDeclin.cmdCalcola", f2);
    calcola->setProperty("principale", true);
    g2->addWidget(calcola, r, 0, 1, 2);
    g2->addWidget(metti("frmDeclin.cmdExit", f2), r, 2, 1, 2);
    sinistra->addWidget(f2);
    sinistra->addStretch(1);

    // The result is a text of the session shown over several lines.
    auto *esito = lettura(w);
    esito->setMinimumSize(440, 400);
    ponte_.adotta("frmDeclin.txtResult", esito);
    constexpr int ALTE = 450;  // wrapped texts have their room
    letture_->setMinimumHeight(ALTE);
    schede_ = new QTabWidget(w);
    schede_->addTab(letture_, ponte_.Traduci("Letture della parete"));
    // A page of its own: a control of the session is shown whatever hides it.
    auto *pagina = new QWidget(w);
    (new QVBoxLayout(pagina))->addWidget(esito);
    schede_->addTab(pagina, ponte_.Traduci("Risultato"));
    fianco->addWidget(schede_, 1);
    finestre_.emplace("frmDeclin", w);
}

void Moduli::istruzioni() {
    auto *w = new QDialog(finestra_);
    w->setObjectName(QStringLiteral("frmInfoDec"));
    auto *giu = new QVBoxLayout(w);
    QWidget *figura = FiguraIstruzioni(ponte_.sessione(), w);
    ponte_.adotta("frmInfoDec.Picture1", figura);
    giu->addWidget(figura, 1);
    const QString passi[] = {
        ponte_.Traduci("Appoggia alla parete una tavoletta orizzontale e traccia la perpendicolare alla parete."),
        ponte_.Traduci("Tieni un filo a piombo sopra la perpendicolare: la sua ombra fa con essa l'angolo az."),
        ponte_.Traduci("Guardando la parete, az è positivo se l'ombra cade a destra, negativo se cade a sinistra."),
        ponte_.Traduci(
            "Annota l'angolo in gradi, la data e l'ora in tempo universale (UT), scrivili nella tavola e premi Esegui."),
        ponte_.Traduci("Ripeti in ore diverse: la media di più misure è più sicura di una sola."),
    };
    int n = 0;
    for (const QString &passo : passi) {
        auto *l = new QLabel(QStringLiteral("%1.  ").arg(++n) + passo, w);
        l->setWordWrap(true);
        giu->addWidget(l);
    }
    finestre_.emplace("frmInfoDec", w);
}

void Moduli::informazioni() {
    auto *w = new QDialog(finestra_);
    w->setObjectName(QStringLiteral("frmAbout"));
    auto *giu = new QVBoxLayout(w);
    giu->setContentsMargins(28, 24, 28, 20);
    const auto metti = [&](NomeControllo nome) { return ponte_.crea(nome, w); };
    auto *icona = new QLabel(w);
    icona->setPixmap(finestra_->windowIcon().pixmap(96, 96));
    icona->setAlignment(Qt::AlignCenter);
    giu->addWidget(icona);
    QWidget *titolo = metti("frmAbout.lblTitle");
    QFont f = titolo->font();
    f.setPointSizeF(f.pointSizeF() * 1.8);
    f.setBold(true);
    titolo->setFont(f);
    auto *fila = new QHBoxLayout;
    fila->addStretch(1);
    fila->addWidget(metti("frmAbout.lblVersion"));
    fila->addWidget(new QLabel(QStringLiteral(OMBRELIA_VERSIONE), w));
    fila->addStretch(1);
    giu->addWidget(titolo, 0, Qt::AlignHCenter);
    giu->addLayout(fila);
    giu->addWidget(metti("frmAbout.lblDescription"), 0, Qt::AlignHCenter);
    auto *crediti = new QLabel(ponte_.Traduci("Città: GeoNames (CC BY 4.0). Confini: Natural Earth. Icone: Lucide (ISC)."), w);
    crediti->setTextFormat(Qt::PlainText);
    giu->addWidget(crediti, 0, Qt::AlignHCenter);
    auto *sistema = new QLabel(w);
    sistema->setVisible(false);
    sistema->setTextInteractionFlags(Qt::TextSelectableByMouse);
    giu->addWidget(sistema, 0, Qt::AlignHCenter);
    auto *bottoni = new QHBoxLayout;
    auto *info = qobject_cast<QPushButton *>(metti("frmAbout.cmdSysInfo"));
    auto *ok = qobject_cast<QPushButton *>(metti("frmAbout.cmdOK"));
    bottoni->addWidget(info);
    bottoni->addStretch(1);
    bottoni->addWidget(ok);
    giu->addSpacing(8);
    giu->addLayout(bottoni);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, w, &QWidget::hide);
    QObject::connect(info, &QPushButton::clicked, w, [sistema, w] {
        sistema->setText(QStringLiteral("%1, %2\nQt %3, %4")
                             .arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture(),
                                  QString::fromLatin1(qVersion()), QLocale::system().name()));
        sistema->setVisible(true);
        w->adjustSize();
    });
    finestre_.emplace("frmAbout", w);
}

}  // namespace ombrelia::desktop
