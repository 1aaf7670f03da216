// The list of layers.
#include "desktop/pannello_strati.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <set>

#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

namespace {

constexpr int STRATO = Qt::UserRole, VALORE = Qt::UserRole + 1, LINEA = Qt::UserRole + 2;

std::pair<std::size_t, double> chiave(const QTreeWidgetItem *v) {
    return {v->data(0, STRATO).toULongLong(), v->data(0, VALORE).toDouble()};
}

constexpr auto TRATTINI = "trattini";

QIcon campione(const QColor &tinta) {
    QPixmap q(14, 14);
    q.fill(tinta);
    return QIcon(q);
}

}  // namespace

PannelloStrati::PannelloStrati(Ponte &ponte, Foglio &foglio, QWidget *genitore)
    : QWidget(genitore), ponte_(ponte), foglio_(foglio) {
    auto *giu = new QVBoxLayout(this);
    giu->setContentsMargins(6, 6, 6, 6);
    albero_ = new QTreeWidget(this);
    albero_->setObjectName(QStringLiteral("alberoStrati"));
    albero_->setAccessibleName(ponte.Traduci("Strati del disegno"));
    albero_->setColumnCount(2);
    albero_->setHeaderLabels({ponte.Traduci("Linea"), ponte.Traduci("Lunghezza, mm")});
    albero_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    albero_->header()->setStretchLastSection(false);
    albero_->setUniformRowHeights(true);
    giu->addWidget(albero_, 1);
    auto *fila = new QHBoxLayout;
    auto *colore = new QPushButton(ponte.Traduci("Colore..."), this);
    auto *spesso = spesso_ = new QSpinBox(this);
    spesso->setRange(0, 9);
    spesso->setSpecialValueText(ponte.Traduci("spessore suo"));
    spesso->setPrefix(ponte.Traduci("spessore") + QLatin1Char(' '));
    spesso->setAccessibleName(ponte.Traduci("spessore"));
    fila->addWidget(colore);
    fila->addWidget(spesso, 1);
    giu->addLayout(fila);
    auto *trattini = new QCheckBox(ponte.Traduci("Sulla carta ogni famiglia col suo tratto"), this);
    trattini->setObjectName(QString::fromLatin1(TRATTINI));
    trattini->setToolTip(
        ponte.Traduci("Linee intere, a tratti, a punti: si distinguono anche senza i colori. Vale per PDF, stampa e immagini"));
    trattini->setChecked(QSettings().value(QLatin1String(TRATTINI), false).toBool());
    giu->addWidget(trattini);
    const auto tratteggia = [this](bool si) {
        StileFoglio s = foglio_.stile();
        s.trattini = si;
        applica(s);
    };
    tratteggia(trattini->isChecked());
    connect(trattini, &QCheckBox::toggled, this, [tratteggia](bool si) {
        QSettings().setValue(QLatin1String(TRATTINI), si);
        tratteggia(si);
    });
    connect(colore, &QPushButton::clicked, this, [this] { colora(); });
    connect(spesso, &QSpinBox::valueChanged, this, [this](int n) { ingrossa(n); });
    connect(albero_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *v, int) { spuntata(v); });
    connect(albero_, &QTreeWidget::currentItemChanged, this, [this, spesso](QTreeWidgetItem *v) {
        if (riempiendo_ || !v) return;
        const auto chi = chiave(v);
        const QSignalBlocker zitto(spesso);
        spesso->setValue((v->data(0, LINEA).toBool() ? foglio_.stile().tratto(chi) : foglio_.stile().strati[chi.first]).spessore);
        StileFoglio s = foglio_.stile();
        s.scelta.reset();
        if (v->data(0, LINEA).toBool()) s.scelta = chi;
        applica(s);
    });
}

void PannelloStrati::applica(const StileFoglio &stile) {
    foglio_.stile(stile);
    mostraLegenda();
}

void PannelloStrati::vesti(bool scuro) {
    const StileFoglio nuovi = StileDi(scuro);
    StileFoglio s = foglio_.stile();
    s.scuro = scuro;
    for (std::size_t i = 0; i < STRATI; ++i)
        if (!s.strati[i].mio) s.strati[i].colore = nuovi.strati[i].colore;
    for (auto &[chi, tratto] : s.sue)
        if (!tratto.mio) tratto.colore = nuovi.strati[chi.first].colore;
    applica(s);
    aggiorna();
}

void PannelloStrati::aggiorna() {
    mostraLegenda();
    vecchio_ = true;
    if (isVisible()) riempi();
}

void PannelloStrati::showEvent(QShowEvent *) {
    if (vecchio_) riempi();
}

// Layers that the drawing has, those of lines only.
void PannelloStrati::mostraLegenda() {
    std::set<std::size_t> presenti;
    for (const Pretesa &p : ponte_.sessione().tavolo.lista().pretese)
        if (Giudicabile(p.specie)) presenti.insert(Strato(p.specie));
    std::vector<std::pair<QString, QColor>> voci;
    for (const std::size_t i : presenti)
        if (!foglio_.stile().strati[i].nascosto)
            voci.emplace_back(NomeStrato(ponte_.sessione(), i), TintaDi(foglio_.stile().strati[i].colore));
    foglio_.legenda(std::move(voci));
}

void PannelloStrati::riempi() {
    vecchio_ = false;
    riempiendo_ = true;
    std::set<std::size_t> aperti;
    for (int i = 0; i < albero_->topLevelItemCount(); ++i)
        if (albero_->topLevelItem(i)->isExpanded()) aperti.insert(chiave(albero_->topLevelItem(i)).first);
    albero_->clear();
    const StileFoglio &stile = foglio_.stile();
    QTreeWidgetItem *strato = nullptr;
    double somma = 0;
    for (const Linea &l : LineeDi(ponte_.sessione().tavolo)) {
        if (!strato || chiave(strato).first != l.strato) {
            strato = new QTreeWidgetItem(albero_, {NomeStrato(ponte_.sessione(), l.strato)});
            strato->setData(0, STRATO, static_cast<qulonglong>(l.strato));
            strato->setCheckState(0, stile.strati[l.strato].nascosto ? Qt::Unchecked : Qt::Checked);
            strato->setIcon(0, campione(TintaDi(stile.strati[l.strato].colore)));
            strato->setTextAlignment(1, Qt::AlignRight);
            strato->setExpanded(aperti.contains(l.strato));
            somma = 0;
        }
        somma += l.metri;
        strato->setText(1, QString::number(somma * 1000, 'f', 0));
        if (l.strato == Strato(Specie::Nessuna)) continue;
        auto *linea = new QTreeWidgetItem(
            strato, {NomeLinea(ponte_.sessione(), l.strato, l.valore), QString::number(l.metri * 1000, 'f', 0)});
        linea->setData(0, STRATO, static_cast<qulonglong>(l.strato));
        linea->setData(0, VALORE, l.valore);
        linea->setData(0, LINEA, true);
        linea->setTextAlignment(1, Qt::AlignRight);
        if (const auto i = stile.sue.find({l.strato, l.valore}); i != stile.sue.end() && i->second.mio)
            linea->setIcon(0, campione(TintaDi(i->second.colore)));
        linea->setCheckState(0, stile.nascoste.contains({l.strato, l.valore}) ? Qt::Unchecked : Qt::Checked);
        if (stile.scelta == std::pair{l.strato, l.valore}) albero_->setCurrentItem(linea);
    }
    riempiendo_ = false;
}

void PannelloStrati::spuntata(QTreeWidgetItem *voce) {
    if (riempiendo_) return;
    StileFoglio s = foglio_.stile();
    const auto chi = chiave(voce);
    const bool via = voce->checkState(0) == Qt::Unchecked;
    if (!voce->data(0, LINEA).toBool()) s.strati[chi.first].nascosto = via;
    else if (via) s.nascoste.insert(chi);
    else s.nascoste.erase(chi);
    applica(s);
}

StileFoglio::AspettoLinea &PannelloStrati::corrente(StileFoglio &s) const {
    const QTreeWidgetItem *v = albero_->currentItem();
    const auto chi = chiave(v);
    if (!v->data(0, LINEA).toBool()) return s.strati[chi.first];
    return s.sue.try_emplace(chi, s.strati[chi.first]).first->second;
}

void PannelloStrati::colora() {
    const QTreeWidgetItem *v = albero_->currentItem();
    if (!v) return;
    StileFoglio s = foglio_.stile();
    StileFoglio::AspettoLinea &t = corrente(s);
    const QColor c = QColorDialog::getColor(TintaDi(t.colore), this, v->text(0));
    if (!c.isValid()) return;
    t.colore = static_cast<Colore>(c.red() | (c.green() << 8) | (c.blue() << 16));
    t.mio = true;
    applica(s);
    riempi();
}

void PannelloStrati::ingrossa(int spessore) {
    if (!albero_->currentItem()) return;
    StileFoglio s = foglio_.stile();
    corrente(s).spessore = spessore;
    applica(s);
}

void PannelloStrati::menu(const QPoint &globale) {
    riempi();  // the chosen line becomes the current one
    auto *m = new QMenu(this);
    m->setAttribute(Qt::WA_DeleteOnClose);
    const auto voce = [&](std::string_view testo, auto azione) {
        QAction *a = m->addAction(ponte_.Traduci(testo), this, azione);
        a->setObjectName(Q(testo));
    };
    if (const auto scelta = foglio_.stile().scelta) {
        m->addSection(NomeLinea(ponte_.sessione(), scelta->first, scelta->second));
        voce("Nascondi la linea"_it, [this, chi = *scelta] {
            StileFoglio s = foglio_.stile();
            s.nascoste.insert(chi);
            s.scelta.reset();
            applica(s);
            riempi();
        });
        voce("Colore..."_it, [this] { colora(); });
        QMenu *spessori = m->addMenu(ponte_.Traduci("spessore"));
        for (int n = 0; n <= 4; ++n)
            spessori->addAction(n == 0 ? ponte_.Traduci("spessore suo") : QString::number(n), this, [this, n] { ingrossa(n); });
    }
    voce("Mostra tutte le linee"_it, [this] {
        StileFoglio s = foglio_.stile();
        s.nascoste.clear();
        for (StileFoglio::AspettoLinea &t : s.strati) t.nascosto = false;
        applica(s);
        riempi();
    });
    voce("Aspetto come disegnato"_it, [this] {
        StileFoglio s = StileDi(foglio_.stile().scuro);
        s.trattini = foglio_.stile().trattini;
        s.scelta = foglio_.stile().scelta;
        applica(s);
        riempi();
    });
    m->popup(globale);
}

void PannelloStrati::scegli(const std::optional<Linea> &linea) {
    StileFoglio s = foglio_.stile();
    s.scelta.reset();
    if (linea) s.scelta = {linea->strato, linea->valore};
    applica(s);
    if (isVisible()) riempi();
}

std::optional<QRectF> PannelloStrati::dovScelta() const {
    const auto &scelta = foglio_.stile().scelta;
    if (!scelta) return {};
    for (const Linea &l : LineeDi(ponte_.sessione().tavolo))
        if (scelta == std::pair{l.strato, l.valore}) return l.dove;
    return {};
}

}  // namespace ombrelia::desktop
