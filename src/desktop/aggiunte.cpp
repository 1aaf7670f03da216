// Docks and boxes round the window.
#include "desktop/aggiunte.h"

#include <QDockWidget>
#include <QMenuBar>
#include <functional>
#include <utility>

#include "desktop/barra_tempo.h"
#include "desktop/finestra.h"

namespace ombrelia::desktop {

namespace {

// Of the drawing and of how its dial is mounted.
std::size_t impronta(const Sessione &s) {
    const Lista &l = s.tavolo.lista();
    const Posa p = PosaDelDisegno(s);
    std::size_t h = std::hash<std::string_view>{}(l.Ordine);
    const auto mescola = [&h](double x) { h = h * 1099511628211U ^ std::hash<double>{}(x); };
    for (const RecLinea &r : l.Linee) mescola(r.X1), mescola(r.Y1), mescola(r.X2), mescola(r.Y2);
    for (const RecPunto &r : l.Punti) mescola(r.X), mescola(r.Y);
    const ombra::Quadrante &q = p.quadrante;
    for (const double x : {q.latitudine, q.declinazione, q.inclinazione, q.gnomone, p.longitudine, p.meridiano}) mescola(x);
    return h;
}

}  // namespace

Aggiunte::Aggiunte(Finestra &finestra, Dialoghi &dialoghi) : QObject(&finestra), f_(finestra), dialoghi_(dialoghi) {
    Ponte &ponte = f_.ponte();
    sopra_ = new SopraFoglio(f_.quadro().foglio(), f_.sessione().tavolo);
    tempo_ = new BarraTempo(ponte, *sopra_, &f_);
    molo(ponte.Traduci("Ombra nel tempo"), "tempo", tempo_, Qt::BottomDockWidgetArea, QStringLiteral("Ctrl+Shift+T"));
    constexpr int CALMA = 150;
    calma_.setInterval(CALMA);
    calma_.setSingleShot(true);
    connect(&calma_, &QTimer::timeout, this, [this] { dipinto(); });
    sopra_->suDipinto = [this] {
        if (!calma_.isActive()) calma_.start();
    };
}

QDockWidget *Aggiunte::molo(const QString &titolo, const char *nome, QWidget *contenuto, Qt::DockWidgetArea dove, const QString &tasti) {
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

// What is laid over the sheet has it painted too: only another drawing counts.
void Aggiunte::dipinto() {
    const std::size_t nuova = impronta(f_.sessione());
    if (nuova == std::exchange(impronta_, nuova)) return;
    sopra_->accendi({}, {}, false);
    tempo_->aggiorna();
}

}  // namespace ombrelia::desktop
