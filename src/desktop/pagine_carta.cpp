// Pages chosen and sent.
#include "desktop/pagine_carta.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPageLayout>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <limits>

#include "core/file.h"
#include "core/testo.h"
#include "desktop/elenchi.h"
#include "desktop/parole.h"

namespace ombrelia::desktop {

namespace {

constexpr double MM = 1000;
constexpr int VERTICALE = 0;

}  // namespace

QString NomeCarta(const Carta &carta) {
    constexpr double QUASI = 0.0004;
    for (const CartaNota &n : CARTE_NOTE)
        for (const Carta &c : {n.carta, Carta{n.carta.alta, n.carta.larga}})
            if (std::fabs(c.larga - carta.larga) < QUASI && std::fabs(c.alta - carta.alta) < QUASI) return Q(n.nome);
    return QStringLiteral("%1 × %2 mm").arg(std::round(carta.larga * MM)).arg(std::round(carta.alta * MM));
}

PagineCarta::PagineCarta(Ponte &ponte, Dialoghi &dialoghi, const Tavolo &disegno, const QString &proposta, QWidget *genitore)
    : QDialog(genitore), ponte_(ponte), dialoghi_(dialoghi), tavolo_(std::make_shared<Tavolo>(disegno)), proposta_(proposta) {
    tavolo_->dispositivo = nullptr;
    tavolo_->suMessaggio = nullptr;
    tavolo_->suAttesa = nullptr;
    tavolo_->LasciaPagine();
    setObjectName(QStringLiteral("pagineCarta"));
    setWindowTitle(ponte_.Traduci("Pagine e carta"));
    setWindowModality(Qt::WindowModal);
    auto *fianco = new QHBoxLayout(this);
    anteprima_ = new AnteprimaPagine(tavolo_, this);
    anteprima_->setAccessibleName(ponte_.Traduci("Le pagine come si uniscono"));
    anteprima_->setToolTip(ponte_.Traduci("Premi una pagina per sceglierla o lasciarla; frecce e barra con la tastiera"));
    anteprima_->suScelta = [this] { conta(); };
    fianco->addWidget(scelte());
    auto *destra = new QVBoxLayout;
    fianco->addLayout(destra, 1);
    destra->addWidget(anteprima_, 1);
    conto_ = new QLabel(this);
    conto_->setObjectName(QStringLiteral("conto"));
    conto_->setTextFormat(Qt::PlainText);
    conto_->setWordWrap(true);
    destra->addWidget(conto_);
    auto *bottoni = new QHBoxLayout;
    destra->addLayout(bottoni);
    bottoni->addStretch(1);
    const auto bottone = [&](const QString &testo, const char *nome, const QString &aiuto, auto azione) {
        auto *b = new QPushButton(testo, this);
        b->setObjectName(QString::fromLatin1(nome));
        b->setToolTip(aiuto);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, azione);
        bottoni->addWidget(b);
        return b;
    };
    bottone(ponte_.Traduci("Chiudi"), "chiudi", {}, [this] { reject(); });
    bottone(ponte_.Traduci("Tutto su una pagina..."), "intero",
            ponte_.Traduci("Un PDF di una pagina sola, grande come il foglio, in grandezza vera"), [this] { salva(true); });
    stampa_ = bottone(ponte_.Traduci("Stampa..."), "stampa", ponte_.Traduci("Le pagine scelte alla stampante, in grandezza vera"),
                      [this] { stampa(); });
    salva_ = bottone(ponte_.Traduci("Salva PDF..."), "salva", ponte_.Traduci("Le pagine scelte in un PDF, in grandezza vera"),
                     [this] { salva(false); });
    salva_->setProperty("principale", true);
    salva_->setDefault(true);
    resize(980, 660);
    cambiata(true);
}

QWidget *PagineCarta::scelte() {
    auto *s = new QWidget(this);
    s->setFixedWidth(270);
    auto *giu = new QVBoxLayout(s);
    giu->setContentsMargins(0, 0, 6, 0);
    auto *righe = new QFormLayout;
    giu->addLayout(righe);
    QSettings ricordi;
    ricordi.beginGroup(QStringLiteral("pagine"));
    const auto elenco = [&](const QString &nome, const char *chiave, const QStringList &voci, int prima) {
        QComboBox *c = ElencoRicordato(*righe, ricordi, nome, chiave, voci, prima);
        connect(c, &QComboBox::currentIndexChanged, this, [this] { cambiata(true); });
        return c;
    };
    const auto misura = [&](const QString &nome, const char *chiave, double prima, double da, double a, const QString &aiuto) {
        auto *c = new QDoubleSpinBox(s);
        c->setObjectName(QString::fromLatin1(chiave));
        c->setLocale(QLocale::c());
        c->setRange(da, a);
        c->setDecimals(1);
        c->setSuffix(QStringLiteral(" mm"));
        c->setValue(ricordi.value(QLatin1String(chiave), prima).toDouble());
        c->setAccessibleName(nome);
        c->setToolTip(aiuto);
        righe->addRow(nome, c);
        connect(c, &QDoubleSpinBox::valueChanged, this, [this] { cambiata(true); });
        return c;
    };
    // The paper of the sheet's tiles to begin with: the printer's, where it was asked.
    QStringList carte;
    int sua = 0;
    for (const CartaNota &n : CARTE_NOTE) {
        if (NomeCarta(tavolo_->carta()) == Q(n.nome)) sua = static_cast<int>(carte.size());
        carte << Q(n.nome);
    }
    carte << ponte_.Traduci("Altra misura");
    carta_ = elenco(Iniziale(ponte_.Traduci("Carta")), "carta", carte, sua);
    constexpr double MINIMA = 50, MASSIMA = Tavolo::LATO_MASSIMO * MM;
    larga_ = misura(ponte_.Traduci("Larga"), "larga", 420, MINIMA, MASSIMA, ponte_.Traduci("Larghezza della carta"));
    alta_ = misura(ponte_.Traduci("Alta"), "alta", 594, MINIMA, MASSIMA, ponte_.Traduci("Altezza della carta"));
    verso_ = elenco(ponte_.Traduci("Verso"), "verso", {ponte_.Traduci("Verticale"), ponte_.Traduci("Orizzontale")}, VERTICALE);
    margine_ = misura(ponte_.Traduci("Margine"), "margine", 7.5, 0, 100,
                      ponte_.Traduci("Quanto la stampante non raggiunge ai bordi; i segni stanno nel margine"));
    sovrapposizione_ = misura(
        ponte_.Traduci("Sovrapposizione"), "sovrapposizione", 0, 0, 100,
        ponte_.Traduci(
            "Quanto due pagine vicine mostrano tutte e due, per incollarle; una linea a tratti dice dove comincia la seguente"));
    const auto casella = [&](const QString &testo, const char *chiave, const QString &aiuto) {
        auto *c = new QCheckBox(testo, s);
        c->setObjectName(QString::fromLatin1(chiave));
        c->setToolTip(aiuto);
        c->setChecked(ricordi.value(QLatin1String(chiave), true).toBool());
        giu->addWidget(c);
        return c;
    };
    segni_ = casella(ponte_.Traduci("Numero e segni di taglio"), "segni",
                     ponte_.Traduci("Negli angoli di ogni pagina, fuori del disegno"));
    righello_ = casella(ponte_.Traduci("Righello di 100 mm"), "righello",
                        ponte_.Traduci("Per controllare col metro che la stampa sia in grandezza vera"));
    giu->addSpacing(8);
    const auto scelta = [&](const QString &testo, const char *nome,
                            const std::function<bool(const paint::PaginaFoglio &)> &quale) {
        auto *b = new QPushButton(testo, s);
        b->setObjectName(QString::fromLatin1(nome));
        b->setAutoDefault(false);
        giu->addWidget(b);
        connect(b, &QPushButton::clicked, this, [this, quale] {
            std::set<int> quali;
            for (const paint::PaginaFoglio &p : anteprima_->pagine())
                if (quale(p)) quali.insert(p.numero);
            anteprima_->scegli(std::move(quali));
        });
    };
    scelta(ponte_.Traduci("Scegli le pagine con linee"), "piene", [](const paint::PaginaFoglio &p) { return p.piena; });
    scelta(ponte_.Traduci("Scegli tutte le pagine"), "tutte", [](const paint::PaginaFoglio &) { return true; });
    scelta(ponte_.Traduci("Lascia tutte le pagine"), "nessuna", [](const paint::PaginaFoglio &) { return false; });
    giu->addStretch(1);
    return s;
}

paint::Impaginazione PagineCarta::impaginazione() const {
    paint::Impaginazione i;
    const auto quale = static_cast<std::size_t>(std::max(carta_->currentIndex(), 0));
    i.carta = quale < std::size(CARTE_NOTE) ? CARTE_NOTE[quale].carta : Carta{larga_->value() / MM, alta_->value() / MM};
    if (verso_->currentIndex() != VERTICALE) std::swap(i.carta.larga, i.carta.alta);
    i.margine = margine_->value() / MM;
    i.sovrapposizione = sovrapposizione_->value() / MM;
    i.segni = segni_->isChecked();
    i.righello = righello_->isChecked();
    return i;
}

// Another layout: its pages with lines are chosen.
void PagineCarta::cambiata(bool nuove) {
    if (!conto_) return;  // being built
    const bool altra = static_cast<std::size_t>(std::max(carta_->currentIndex(), 0)) >= std::size(CARTE_NOTE);
    larga_->setEnabled(altra);
    alta_->setEnabled(altra);
    const paint::Impaginazione come = impaginazione();
    anteprima_->mostra(paint::PagineDi(*tavolo_, come), come.sovrapposizione);
    if (nuove) {
        std::set<int> piene;
        for (const paint::PaginaFoglio &p : anteprima_->pagine())
            if (p.piena) piene.insert(p.numero);
        anteprima_->scegli(std::move(piene));
    }
    conta();
}

void PagineCarta::conta() {
    const auto &pagine = anteprima_->pagine();
    const std::size_t scelte = anteprima_->scelte().size();
    salva_->setEnabled(scelte > 0);
    stampa_->setEnabled(scelte > 0);
    if (pagine.empty())
        return conto_->setText(impaginazione().buona()
                                   ? ponte_.Traduci("Il foglio è vuoto, o vuole più di 10000 pagine")
                                   : ponte_.Traduci("Margini e sovrapposizione non lasciano posto al disegno"));
    conto_->setText(
        ponte_
            .Traduci(
                "%1 pagine scelte di %2 (%3 in larghezza, %4 in altezza); foglio di %5 × %6 mm, ogni pagina ne mostra %7 × %8")
            .arg(scelte)
            .arg(pagine.size())
            .arg(pagine.back().colonna + 1)
            .arg(pagine.back().riga + 1)
            .arg(tavolo_->QuadranteL() * MM, 0, 'f', 0)
            .arg(tavolo_->QuadranteH() * MM, 0, 'f', 0)
            .arg(pagine.back().larga * MM, 0, 'f', 0)
            .arg(pagine.back().alta * MM, 0, 'f', 0));
}

std::vector<paint::PaginaFoglio> PagineCarta::daStampare() const {
    std::vector<paint::PaginaFoglio> pagine;
    for (const paint::PaginaFoglio &p : anteprima_->pagine())
        if (anteprima_->scelte().contains(p.numero)) pagine.push_back(p);
    return pagine;
}

bool PagineCarta::adagio(std::size_t quante, const std::function<bool(const paint::Avanzamento &)> &lavoro) {
    QProgressDialog attesa(ponte_.Traduci("Disegno delle pagine..."), ponte_.Traduci("Ferma"), 0, static_cast<int>(quante), this);
    attesa.setWindowModality(Qt::WindowModal);
    return lavoro([&attesa](std::size_t fatte, std::size_t) {
        attesa.setValue(static_cast<int>(fatte));
        return !attesa.wasCanceled();
    });
}

void PagineCarta::salva(bool intero) {
    const auto f = dialoghi_.file(this, true, QStringLiteral("pdf"), QStringLiteral("*.pdf"), proposta_ + QStringLiteral(".pdf"));
    if (!f || f->isEmpty()) return;
    QByteArray pdf;
    std::string errore;
    const auto pagine = daStampare();
    if (intero) pdf = paint::PdfFoglio(*tavolo_, errore);
    else
        adagio(pagine.size(), [&](const paint::Avanzamento &avanza) {
            pdf = paint::PdfPagine(*tavolo_, pagine, impaginazione(), avanza);
            return true;
        });
    if (!errore.empty()) return dialoghi_.avviso(this, Motivo(ponte_, errore));
    if (pdf.isEmpty()) return;  // stopped
    if (const auto e = ScriviFile(f->toStdString(), pdf.toStdString())) return dialoghi_.avviso(this, Q(*e));
    QSettings ricordi;
    ricordi.beginGroup(QStringLiteral("pagine"));
    for (const QComboBox *c : {carta_, verso_}) ricordi.setValue(c->objectName(), c->currentIndex());
    for (const QDoubleSpinBox *c : {larga_, alta_, margine_, sovrapposizione_}) ricordi.setValue(c->objectName(), c->value());
    for (const QCheckBox *c : {segni_, righello_}) ricordi.setValue(c->objectName(), c->isChecked());
    if (suScritto) suScritto(*f);
    accept();
}

// The printer's paper is what it is: pages laid out for another are laid out anew, and the user is told.
void PagineCarta::stampa() {
    bool prima = true, detto = false;
    dialoghi_.stampa(this, ponte_.Traduci("Stampa del quadrante"), [&](QPrinter &stampante) {
        paint::Impaginazione come = impaginazione();
        std::vector<paint::PaginaFoglio> pagine = daStampare();
        if (std::exchange(prima, false)) {
            const QSizeF mm(std::min(come.carta.larga, come.carta.alta) * MM, std::max(come.carta.larga, come.carta.alta) * MM);
            stampante.setPageSize(QPageSize(mm, QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch));
            stampante.setPageOrientation(come.carta.larga > come.carta.alta ? QPageLayout::Landscape : QPageLayout::Portrait);
        }
        const Carta vera = paint::CartaDi(stampante);
        if (NomeCarta(vera) != NomeCarta(come.carta) || (vera.larga > vera.alta) != (come.carta.larga > come.carta.alta)) {
            come.carta = vera;
            pagine = paint::PagineDi(*tavolo_, come);
            std::erase_if(pagine, [](const paint::PaginaFoglio &p) { return !p.piena; });
            if (!std::exchange(detto, true)) AvvisaCarta(ponte_, dialoghi_, this, vera);
        }
        adagio(pagine.size(),
               [&](const paint::Avanzamento &avanza) { return paint::StampaPagine(*tavolo_, pagine, come, stampante, avanza); });
    });
}

void AvvisaCarta(Ponte &ponte, Dialoghi &dialoghi, QWidget *sopra, const Carta &carta) {
    QMetaObject::invokeMethod(
        sopra,
        [&dialoghi, sopra,
         testo = ponte.Traduci("La stampante ha un'altra carta, %1: le pagine sono quelle con linee di questa carta.")
                     .arg(NomeCarta(carta))] { dialoghi.avviso(sopra, testo); },
        Qt::QueuedConnection);
}

}  // namespace ombrelia::desktop
