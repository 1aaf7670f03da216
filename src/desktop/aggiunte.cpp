// Docks and boxes round the window.
#include "desktop/aggiunte.h"

#include <QApplication>
#include <QCheckBox>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <functional>
#include <utility>

#include "app/rapporti.h"
#include "controlli/nomi.h"
#include "desktop/barra_tempo.h"
#include "desktop/comandi.h"
#include "desktop/finestra.h"
#include "desktop/manuale.h"
#include "desktop/pannello_certificato.h"
#include "desktop/tavole_rapporto.h"

namespace ombrelia::desktop {

namespace {

void mescola(std::size_t &h, double x) { h = h * 1099511628211U ^ std::hash<double>{}(x); }

std::size_t improntaDisegno(const Lista &l) {
    std::size_t h = std::hash<std::string_view>{}(l.Ordine);
    for (const RecLinea &r : l.Linee) mescola(h, r.X1), mescola(h, r.Y1), mescola(h, r.X2), mescola(h, r.Y2);
    for (const RecPunto &r : l.Punti) mescola(h, r.X), mescola(h, r.Y);
    return h;
}

// How the dial is mounted, with its drawing.
std::size_t improntaPosa(const Sessione &s, std::size_t h) {
    const Posa p = PosaDelDisegno(s);
    const ombra::QuadranteMontato &q = p.quadrante;
    for (const double x : {q.latitudine, q.declinazione, q.inclinazione, q.gnomone, p.longitudine, p.meridiano}) mescola(h, x);
    return h;
}

}  // namespace

Aggiunte::Aggiunte(Finestra &finestra, Dialoghi &dialoghi) : QObject(&finestra), f_(finestra), dialoghi_(dialoghi) {
    Ponte &ponte = f_.ponte();
    sopra_ = new SopraFoglio(f_.quadro().foglio(), f_.sessione().tavolo);
    tempo_ = new BarraTempo(ponte, *sopra_, &f_);
    molo(ponte.Traduci("Ombra nel tempo"), "tempo", tempo_, Qt::BottomDockWidgetArea, QStringLiteral("Ctrl+Shift+T"));
    certificato_ = new PannelloCertificato(ponte, dialoghi_, *sopra_, &f_);
    QDockWidget *certificato =
        molo(ponte.Traduci("Certificato"), "certificato", certificato_, Qt::BottomDockWidgetArea, QStringLiteral("Ctrl+Shift+V"));
    certificato_->suCorreggi = [this] { correggi(); };
    connect(certificato_->distintivo(), &QToolButton::clicked, certificato, [certificato] {
        certificato->setVisible(certificato->isHidden());
        if (!certificato->isHidden()) certificato->raise();
    });
    if (auto *detti = f_.findChild<QLayout *>(QStringLiteral("detti"))) detti->addWidget(certificato_->distintivo());
    // The points of a report's row, as the report counts them.
    for (const app::VoceRapporto &r : app::ElencoRapporti())
        if (TavoleRapporto *t = f_.moduli().tavole(r.modulo))
            t->suPunti = [this](std::vector<ombra::Punto> punti) {
                const double mm = PosaDelDisegno(f_.sessione()).unita * 1000;
                for (ombra::Punto &p : punti) p.x *= mm, p.y *= mm;
                sopra_->accendi({}, std::move(punti), false);
            };
    QAction *manuale = CreaComando(ponte, "manuale", this, [this] { apriManuale(&f_); });
    manuale->setShortcutContext(Qt::ApplicationShortcut);
    tastiManuale_ = manuale->shortcut();
    qApp->installEventFilter(this);
    QMenu *aiuto = menu(QStringLiteral("&?"));
    aiuto->insertAction(aiuto->actions().value(0), manuale);
    constexpr int CALMA = 150;
    calma_.setInterval(CALMA);
    calma_.setSingleShot(true);
    connect(&calma_, &QTimer::timeout, this, [this] { dipinto(); });
    sopra_->suDipinto = [this] {
        if (!calma_.isActive()) calma_.start();
    };
}

QDockWidget *Aggiunte::molo(const QString &titolo, const char *nome, QWidget *contenuto, Qt::DockWidgetArea dove,
                            const QString &tasti) {
    auto *d = new QDockWidget(titolo, &f_);
    d->setObjectName(QString::fromLatin1(nome));
    d->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetFloatable);
    d->setWidget(contenuto);
    f_.addDockWidget(dove, d);
    d->hide();
    d->toggleViewAction()->setShortcut(QKeySequence(tasti));
    menu(f_.ponte().Traduci("&Vista"))->addAction(d->toggleViewAction());
    return d;
}

QMenu *Aggiunte::menu(const QString &titolo) {
    for (QAction *a : f_.menuBar()->actions())
        if (a->menu() && a->text() == titolo) return a->menu();
    return f_.menuBar()->addMenu(titolo);
}

// The manual at what has the keys, in the window or in one of its forms.
void Aggiunte::apriManuale(QWidget *sopra) {
    if (!ApriManuale(f_.ponte(), sopra, AncoraDi(QApplication::focusWidget())))
        dialoghi_.avviso(sopra, f_.ponte().Traduci("Il manuale non è installato"));
}

// A box that must be answered first keeps the keys from the window's commands; the manual it needs opens over it.
bool Aggiunte::eventFilter(QObject *chi, QEvent *e) {
    QWidget *box = e->type() == QEvent::KeyPress ? QApplication::activeModalWidget() : nullptr;
    if (!box || !chi->isWidgetType() || QKeySequence(static_cast<QKeyEvent *>(e)->keyCombination()) != tastiManuale_)
        return QObject::eventFilter(chi, e);
    apriManuale(box);
    return true;
}

// What is laid over the sheet has it painted too: only another drawing counts.
void Aggiunte::dipinto() {
    const std::size_t disegno = improntaDisegno(f_.sessione().tavolo.lista()), tutto = improntaPosa(f_.sessione(), disegno);
    if (disegno != std::exchange(disegno_, disegno)) {
        sopra_->accendi({}, {}, false);
        certificato_->giudica();
    }
    if (tutto != std::exchange(impronta_, tutto)) tempo_->aggiorna();
}

// True lines, on a sheet of their own: what is there goes.
void Aggiunte::correggi() {
    auto *vivo = f_.findChild<QCheckBox *>(QStringLiteral("disegnaMentreScrivi"));
    auto *casella = qobject_cast<QAbstractButton *>(f_.ponte().widget("ckCorretta"));
    if (casella && !casella->isChecked()) casella->click();
    if (vivo && vivo->isChecked()) return;
    auto *pulisci = f_.findChild<QCheckBox *>(QStringLiteral("pulisciPrima"));
    const bool prima = pulisci && pulisci->isChecked();
    if (pulisci) pulisci->setChecked(true);
    f_.esegui();
    if (pulisci) pulisci->setChecked(prima);
}

}  // namespace ombrelia::desktop
