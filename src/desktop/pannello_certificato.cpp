// The certificate's table and badge.
#include "desktop/pannello_certificato.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPageLayout>
#include <QPrinter>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <array>
#include <cmath>
#include <utility>

#include "core/file.h"
#include "paint/tavola_stampata.h"

namespace ombrelia::desktop {

namespace {

// Numbers that sort as numbers.
class CellaNumero final : public QTableWidgetItem {
public:
    CellaNumero(double valore, int decimali) : QTableWidgetItem(QString::number(valore, 'f', decimali)), valore_(valore) {
        setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    bool operator<(const QTableWidgetItem &altra) const override {
        const auto *c = dynamic_cast<const CellaNumero *>(&altra);
        return c ? valore_ < c->valore_ : QTableWidgetItem::operator<(altra);
    }

private:
    double valore_;
};

constexpr std::array<std::string_view, 7> COLONNE{
    "Linea"_it,        "Lunga mm"_it, "Scarto massimo mm"_it, "Scarto in tempo o angolo"_it, "Mancanti mm"_it,
    "Superflui mm"_it, "Esito"_it};

constexpr double CORPO = 8;  // points, of the page's rows

}  // namespace

PannelloCertificato::PannelloCertificato(Ponte &ponte, Dialoghi &dialoghi, SopraFoglio &sopra, QWidget *genitore)
    : QWidget(genitore),
      ponte_(ponte),
      dialoghi_(dialoghi),
      sopra_(sopra),
      custode_(this, [this](const DatiCertificato &d, const Certificato &c) { arrivato(d, c); }) {
    setObjectName(QStringLiteral("pannelloCertificato"));
    distintivo_ = new QToolButton(this);
    distintivo_->setObjectName(QStringLiteral("distintivo"));
    distintivo_->setAutoRaise(true);
    distintivo_->setToolTip(
        ponte_.Traduci("Ogni linea disegnata, riletta dall'ombra calcolata per vettori: premi per il certificato"));
    distintivo_->hide();

    auto *giu = new QVBoxLayout(this);
    giu->setContentsMargins(10, 6, 10, 8);
    testa_ = new QBoxLayout(QBoxLayout::LeftToRight);
    giu->addLayout(testa_);
    verdetto_ = new QLabel(ponte_.Traduci("Nessun disegno da certificare"), this);
    verdetto_->setTextFormat(Qt::PlainText);
    verdetto_->setWordWrap(true);
    verdetto_->setMinimumWidth(1);
    testa_->addWidget(verdetto_, 1);
    auto *fila = new QHBoxLayout;
    testa_->addLayout(fila);
    const auto bottone = [&](const QString &testo, const QString &aiuto, auto azione) {
        auto *b = new QPushButton(testo, this);
        b->setToolTip(aiuto);
        b->setEnabled(false);
        connect(b, &QPushButton::clicked, this, azione);
        fila->addWidget(b);
        return b;
    };
    correggi_ = bottone(ponte_.Traduci("Correggi"),
                        ponte_.Traduci("Accende Geometria corretta e disegna di nuovo: ogni linea è allora quella vera"), [this] {
                            if (suCorreggi) suCorreggi();
                        });
    stampa_ =
        bottone(ponte_.Traduci("Stampa il certificato..."),
                ponte_.Traduci("Una pagina con titolo, luogo, piano e data, da tenere col quadrante"), [this] {
                    dialoghi_.stampa(this, ponte_.Traduci("Certificato"), [this, prima = true](QPrinter &stampante) mutable {
                        const paint::TavolaStampata t{ponte_.Traduci("Certificato"), Q(dati_.titolo), Q(pagina()), CORPO};
                        // The page is turned as the rows need it; the user may turn it back.
                        if (std::exchange(prima, false))
                            stampante.setPageOrientation(paint::ComponiTavola(t, stampante).orizzontale ? QPageLayout::Landscape
                                                                                                        : QPageLayout::Portrait);
                        paint::StampaTavola(t, stampante);
                    });
                });
    salva_ = bottone(ponte_.Traduci("Salva il certificato..."), ponte_.Traduci("La stessa pagina come file HTML"), [this] {
        const auto f =
            dialoghi_.file(this, true, QStringLiteral("html"), QStringLiteral("*.html"), QStringLiteral("certificato.html"));
        if (!f || f->isEmpty()) return;
        if (const auto errore = ScriviFile(f->toStdString(), pagina())) dialoghi_.avviso(this, Q(*errore));
    });

    tavola_ = new QTableWidget(0, static_cast<int>(COLONNE.size()), this);
    tavola_->setObjectName(QStringLiteral("tavolaCertificato"));
    tavola_->setAccessibleName(ponte_.Traduci("Certificato"));
    tavola_->setToolTip(
        ponte_.Traduci("Premi una riga: la linea si accende sul foglio, con un cerchio dov'è più lontana dal vero"));
    QStringList titoli;
    for (const std::string_view c : COLONNE) titoli << ponte_.Traduci(c);
    tavola_->setHorizontalHeaderLabels(titoli);
    tavola_->verticalHeader()->hide();
    tavola_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tavola_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tavola_->setSelectionMode(QAbstractItemView::SingleSelection);
    tavola_->setAlternatingRowColors(true);
    giu->addWidget(tavola_, 1);
    connect(tavola_, &QTableWidget::currentItemChanged, this, [this](QTableWidgetItem *voce) {
        if (voce && tavola_->item(voce->row(), 0)) mostraRiga(tavola_->item(voce->row(), 0)->data(Qt::UserRole).toInt());
    });
}

// Where the panel is narrow its buttons have a row of their own.
void PannelloCertificato::resizeEvent(QResizeEvent *e) {
    constexpr int STRETTO = 640;
    testa_->setDirection(width() < STRETTO ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    QWidget::resizeEvent(e);
}

void PannelloCertificato::giudica() {
    const Sessione &s = ponte_.sessione();
    DatiCertificato dati = DatiDelCertificato(s);
    if (const QString titolo = window()->windowTitle(); !titolo.isEmpty())
        dati.titolo = titolo.section(QStringLiteral(" - "), 0, 0).remove(QStringLiteral("[*]")).trimmed().toStdString();
    distintivo_->setEnabled(false);
    verdetto_->setText(ponte_.Traduci("Rileggo le linee..."));
    custode_.chiedi(std::move(dati), s.tavolo.lista());
}

void PannelloCertificato::arrivato(const DatiCertificato &dati, const Certificato &c) {
    dati_ = dati;
    certificato_ = c;
    const bool qualcosa = !c.righe.empty(), esaminate = c.esaminate();
    const QString detto = Q(Verdetto(ponte_.sessione().dizionario, c));
    distintivo_->setVisible(qualcosa);
    distintivo_->setEnabled(true);
    distintivo_->setText((!esaminate ? QString() : c.vero() ? QStringLiteral("✓ ") : QStringLiteral("✗ ")) + detto);
    // Both hold 4.5 to 1 on the panel, light or dark.
    const bool scuro = palette().color(QPalette::Window).lightness() < 128;
    distintivo_->setStyleSheet(QStringLiteral("QToolButton { font-weight: 600; color: %1; }")
                                   .arg(!esaminate ? (scuro ? "#c8d0d8" : "#46525e")
                                        : c.vero() ? (scuro ? "#7fd49a" : "#17663a")
                                                   : (scuro ? "#ff9a7a" : "#9a3b12")));
    verdetto_->setText(qualcosa ? detto + (c.ignoti > 0
                                               ? QStringLiteral("  ·  ") + ponte_.Traduci("%1 tratti senza pretesa").arg(c.ignoti)
                                               : QString())
                                : ponte_.Traduci("Nessun disegno da certificare"));
    stampa_->setEnabled(qualcosa);
    salva_->setEnabled(qualcosa);
    correggi_->setEnabled(!c.vero() && ponte_.sessione().in.ckCorretta != 1);

    tavola_->setSortingEnabled(false);
    tavola_->setRowCount(static_cast<int>(c.righe.size()));
    for (int i = 0; i < tavola_->rowCount(); ++i) {
        const RigaCertificato &r = c.righe[static_cast<std::size_t>(i)];
        auto *linea = new QTableWidgetItem(Q(TestoRiga(ponte_.sessione().dizionario, r)));
        linea->setData(Qt::UserRole, i);
        tavola_->setItem(i, 0, linea);
        tavola_->setItem(i, 1, new CellaNumero(r.disegnati, 1));
        tavola_->setItem(i, 2, new CellaNumero(r.massimo, 3));
        auto *naturale = new CellaNumero(r.naturale, 1);
        naturale->setText(naturale->text() + (r.tempo ? QStringLiteral(" s") : QStringLiteral(" ′")));
        tavola_->setItem(i, 3, naturale);
        tavola_->setItem(i, 4, new CellaNumero(r.mancanti, 1));
        tavola_->setItem(i, 5, new CellaNumero(r.superflui, 1));
        auto *esito = new QTableWidgetItem(r.vera ? QStringLiteral("✓ ") + ponte_.Traduci("vera")
                                                  : QStringLiteral("✗ ") + ponte_.Traduci("non vera"));
        tavola_->setItem(i, 6, esito);
        if (!r.vera)
            for (int k = 0; k < tavola_->columnCount(); ++k) {
                QFont f = tavola_->font();
                f.setBold(true);
                tavola_->item(i, k)->setFont(f);
            }
    }
    // In the order of drawing, until a head is pressed.
    tavola_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    tavola_->setSortingEnabled(true);
    tavola_->resizeColumnsToContents();
}

void PannelloCertificato::mostraRiga(int riga) {
    if (riga < 0 || static_cast<std::size_t>(riga) >= certificato_.righe.size()) return;
    const RigaCertificato &r = certificato_.righe[static_cast<std::size_t>(riga)];
    std::vector<std::pair<std::size_t, std::size_t>> tratti;
    constexpr double UGUALE = 1e-9;
    for (const Pretesa &p : ponte_.sessione().tavolo.lista().pretese)
        if (p.specie == r.specie && std::fabs(p.valore - r.valore) < UGUALE) tratti.emplace_back(p.da, p.a);
    sopra_.accendi(std::move(tratti),
                   r.misurata() ? std::vector{ombra::Punto{r.xPeggiore, r.yPeggiore}} : std::vector<ombra::Punto>(),
                   dati_.posa.australe);
}

std::string PannelloCertificato::pagina() const { return CertificatoHtml(dati_, certificato_, &ponte_.sessione().dizionario); }

}  // namespace ombrelia::desktop
