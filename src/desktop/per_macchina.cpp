// The choices of a machine's file, and the making of it.
#include "desktop/per_macchina.h"

#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QStandardItemModel>
#include <QStyle>
#include <QTableWidget>
#include <QThread>
#include <cmath>

#include "certificato/certificato.h"
#include "core/file.h"
#include "core/testo.h"
#include "desktop/elenchi.h"
#include "desktop/parole.h"
#include "desktop/tracciato.h"
#include "officina/tratti.h"

namespace ombrelia::desktop {

namespace {

constexpr double MINIMA = 1e-4, MASSIMA = 1000;  // mm

QString lungo(double mm) {
    return mm < 99.95 ? QString::number(mm, 'f', 2) + QStringLiteral(" mm")
                      : QString::number(mm / 1000, 'f', 2) + QStringLiteral(" m");
}

}  // namespace

struct PerMacchina::Lavoro {
    officina::ComePreparare come;
    officina::Disegno disegno;
    std::string errore;
    bool memoria = true;
};

QString RaccontoMacchina(const Ponte &ponte, const officina::Disegno &d, const officina::ComePreparare &o) {
    const officina::Resoconto &r = d.resoconto;
    QStringList frasi;
    const auto n = [](std::size_t x) { return QString::number(x); };
    frasi << ponte.Traduci("%1 corde e %2 punti diventano %3 cammini di %4 vertici, lunghi %5.")
                 .arg(n(r.corde), n(r.puntini), n(r.cammini), n(r.vertici), lungo(r.lunga));
    if (r.curve) frasi << ponte.Traduci("%1 punti uniti in %2 curve.").arg(n(r.puntiUniti), n(r.curve));
    if (r.punti) frasi << ponte.Traduci("%1 punti restano soli.").arg(n(r.punti));
    frasi << ponte.Traduci("%1 disegnati due volte, lasciati fuori.").arg(lungo(r.doppia));
    constexpr std::size_t DETTE = 8;
    for (std::size_t i = 0; i < std::min(r.coincidono.size(), DETTE); ++i) {
        const officina::Coincidenza &k = r.coincidono[i];
        const Dizionario &diz = ponte.sessione().dizionario;
        frasi << ponte.Traduci("«%1» sta su «%2» per %3: tagliata una volta.")
                     .arg(Q(TestoPretesa(diz, k.specie, k.valore)), Q(TestoPretesa(diz, k.con, k.valoreCon)), lungo(k.lunga));
    }
    if (r.coincidono.size() > DETTE) frasi << QStringLiteral("…");
    frasi << (o.ritaglio == officina::Ritaglio::Foglio || d.senzaCornice ? ponte.Traduci("%1 fuori del foglio, tagliati via.")
                                                                         : ponte.Traduci("%1 fuori della cornice, tagliati via."))
                 .arg(lungo(r.fuori));
    if (d.senzaCornice) frasi << ponte.Traduci("Non c'è cornice: vale il foglio.");
    frasi << ponte.Traduci("Scarto massimo %1 mm, tolleranza %2 mm.")
                 .arg(QString::number(r.scarto, 'f', 4), Q(TestoNumero(o.tolleranza)));
    if (r.persa > 0) frasi << ponte.Traduci("ATTENZIONE: %1 del disegno mancano.").arg(lungo(r.persa));
    frasi << ponte.Traduci("Fra i tagli la testa viaggia %1, nell'ordine del disegno %2: %3 in meno.")
                 .arg(lungo(r.viaggio), lungo(r.viaggioPrima), lungo(std::max(0.0, r.viaggioPrima - r.viaggio)));
    return frasi.join(QLatin1Char(' '));
}

PerMacchina::PerMacchina(Ponte &ponte, Dialoghi &dialoghi, const Tavolo &disegno, const QString &proposta, QWidget *genitore)
    : QDialog(genitore),
      ponte_(ponte),
      dialoghi_(dialoghi),
      tavolo_([&] {
          auto t = std::make_shared<Tavolo>(disegno);
          t->dispositivo = nullptr;
          t->suMessaggio = nullptr;
          t->suAttesa = nullptr;
          return t;
      }()),
      proposta_(proposta) {
    setObjectName(QStringLiteral("perMacchina"));
    setWindowTitle(ponte_.Traduci("Per la macchina"));
    setWindowModality(Qt::WindowModal);
    auto *fianco = new QHBoxLayout(this);
    fianco->addWidget(scelte());
    auto *destra = new QVBoxLayout;
    fianco->addLayout(destra, 1);
    tracciato_ = new Tracciato(ponte_.Traduci("inizio"), ponte_.Traduci("fine"), this);
    tracciato_->setAccessibleName(ponte_.Traduci("I cammini della testa"));
    tracciato_->setToolTip(
        ponte_.Traduci("Colori per genere, a tratti il viaggio della testa; rotella e trascinamento per guardare da vicino"));
    destra->addWidget(tracciato_, 1);
    testa_ = new QSlider(Qt::Horizontal, this);
    testa_->setObjectName(QStringLiteral("testa"));
    testa_->setAccessibleName(ponte_.Traduci("Fin dove è arrivata la testa"));
    testa_->setToolTip(testa_->accessibleName());
    connect(testa_, &QSlider::valueChanged, tracciato_, &Tracciato::finoA);
    destra->addWidget(testa_);
    conto_ = new QLabel(this);
    conto_->setObjectName(QStringLiteral("conto"));
    conto_->setTextFormat(Qt::PlainText);
    QFont grosso = conto_->font();
    grosso.setBold(true);
    conto_->setFont(grosso);
    conto_->setWordWrap(true);
    destra->addWidget(conto_);
    racconto_ = new QLabel(this);
    racconto_->setObjectName(QStringLiteral("racconto"));
    racconto_->setTextFormat(Qt::PlainText);
    racconto_->setWordWrap(true);
    racconto_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    destra->addWidget(racconto_);
    auto *bottoni = new QHBoxLayout;
    bottoni->addStretch(1);
    auto *chiudi = new QPushButton(ponte_.Traduci("Chiudi"), this);
    chiudi->setAutoDefault(false);
    connect(chiudi, &QPushButton::clicked, this, &QDialog::reject);
    salva_ = new QPushButton(ponte_.Traduci("Salva come..."), this);
    salva_->setObjectName(QStringLiteral("salva"));
    salva_->setProperty("principale", true);
    salva_->setDefault(true);
    salva_->setEnabled(false);
    connect(salva_, &QPushButton::clicked, this, [this] { salva(); });
    bottoni->addWidget(chiudi);
    bottoni->addWidget(salva_);
    destra->addLayout(bottoni);
    resize(1000, 660);
    constexpr int RESPIRO = 250;  // milliseconds
    attesa_.setSingleShot(true);
    attesa_.setInterval(RESPIRO);
    connect(&attesa_, &QTimer::timeout, this, [this] { avvia(); });
    avvia();
}

PerMacchina::~PerMacchina() {
    if (!filo_) return;
    filo_->disconnect(this);
    filo_->wait();
    delete filo_;
}

QWidget *PerMacchina::scelte() {
    auto *s = new QWidget(this);
    s->setFixedWidth(300);
    auto *giu = new QVBoxLayout(s);
    giu->setContentsMargins(0, 0, 6, 0);
    auto *righe = new QFormLayout;
    righe->setRowWrapPolicy(QFormLayout::WrapLongRows);
    giu->addLayout(righe);
    QSettings ricordi;
    ricordi.beginGroup(QStringLiteral("macchina"));
    const auto elenco = [&](const QString &nome, const char *chiave, const QStringList &voci, int prima, const QString &aiuto) {
        QComboBox *c = ElencoRicordato(*righe, ricordi, nome, chiave, voci, prima);
        c->setToolTip(aiuto);
        connect(c, &QComboBox::currentIndexChanged, this, [this] { chiedi(); });
        return c;
    };
    QStringList formati;
    for (const officina::FormatoMacchina &f : officina::FormatiMacchina())
        formati << Q(f.nome) + QStringLiteral(" (.") + Q(f.estensione) + QLatin1Char(')');
    formato_ =
        elenco(ponte_.Traduci("Formato"), "formato", formati, 0,
               ponte_.Traduci("DXF per i programmi CAD e il taglio, SVG per il laser, HPGL per il plotter, PDF per la stampa"));
    const bool alfabeto = officina::CiSonoTratti();
    testi_ = elenco(ponte_.Traduci("Scritte"), "testi",
                    {ponte_.Traduci("Come tratti"), ponte_.Traduci("Come testo"), ponte_.Traduci("Nessuna")}, alfabeto ? 0 : 1,
                    ponte_.Traduci("Tratti: lettere di una linea sola, che ogni macchina sa incidere"));
    if (!alfabeto) {
        if (auto *m = qobject_cast<QStandardItemModel *>(testi_->model())) m->item(0)->setEnabled(false);
        if (testi_->currentIndex() == 0) testi_->setCurrentIndex(1);
    }
    ritaglio_ = elenco(ponte_.Traduci("Taglia via"), "ritaglio",
                       {ponte_.Traduci("fuori della cornice"), ponte_.Traduci("fuori del foglio")}, 0,
                       ponte_.Traduci("Che cosa del disegno resta fuori del file"));
    unita_ = elenco(ponte_.Traduci("Unità"), "unita", {ponte_.Traduci("millimetri"), ponte_.Traduci("pollici")}, 0,
                    ponte_.Traduci("Del solo DXF: le altre forme hanno unità proprie"));
    const auto campo = [&](const QString &nome, const char *chiave, const char *prima, const QString &aiuto, QLabel *&dubbio) {
        auto *c = new QLineEdit(ricordi.value(QLatin1String(chiave), QLatin1String(prima)).toString(), s);
        c->setObjectName(QString::fromLatin1(chiave));
        c->setToolTip(aiuto);
        c->setAccessibleName(nome);
        c->setMaximumWidth(90);
        dubbio = new QLabel(s);
        dubbio->setTextFormat(Qt::PlainText);
        dubbio->setObjectName(QStringLiteral("dubbio"));
        dubbio->setWordWrap(true);
        dubbio->hide();
        righe->addRow(nome, c);
        righe->addRow(dubbio);
        connect(c, &QLineEdit::textChanged, this, [this] { chiedi(); });
        return c;
    };
    tolleranza_ = campo(ponte_.Traduci("Tolleranza, mm"), "tolleranza", "0.01",
                        ponte_.Traduci("Quanto un cammino può scostarsi dalla linea del disegno"), dubbioTolleranza_);
    punti_ = campo(ponte_.Traduci("Punti soli: raggio, mm"), "punti", "0",
                   ponte_.Traduci("0: restano punti; altrimenti diventano cerchi di questo raggio"), dubbioPunti_);
    generi_ = new QTableWidget(0, 3, s);
    generi_->setObjectName(QStringLiteral("generi"));
    generi_->setAccessibleName(ponte_.Traduci("Strati del file"));
    generi_->setHorizontalHeaderLabels({Iniziale(ponte_.Traduci("strato")), ponte_.Traduci("Cammini"), QStringLiteral("mm")});
    generi_->verticalHeader()->hide();
    generi_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    generi_->setSelectionMode(QAbstractItemView::NoSelection);
    generi_->setFocusPolicy(Qt::NoFocus);
    generi_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    generi_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    giu->addWidget(generi_, 1);
    return s;
}

std::optional<officina::ComePreparare> PerMacchina::leggi() {
    officina::ComePreparare o;
    bool buone = true;
    const auto lunghezza = [&](QLineEdit *campo, QLabel *dubbio, double da, double &mm) {
        QString t = campo->text().trimmed();
        t.replace(QLatin1Char(','), QLatin1Char('.'));
        bool numero = false;
        mm = t.toDouble(&numero);
        const bool va = numero && mm >= da && mm <= MASSIMA;
        dubbio->setText(!numero ? ponte_.Traduci("Non è un numero")
                                : ponte_.Traduci("da %1 a %2 mm").arg(Q(TestoNumero(da)), Q(TestoNumero(MASSIMA))));
        dubbio->setVisible(!va);
        if (campo->property("fuori").toBool() == va) {
            campo->setProperty("fuori", !va);
            style()->unpolish(campo);
            style()->polish(campo);
        }
        buone = buone && va;
    };
    lunghezza(tolleranza_, dubbioTolleranza_, MINIMA, o.tolleranza);
    lunghezza(punti_, dubbioPunti_, 0, o.raggioPunti);
    constexpr officina::Testi TESTI[] = {officina::Testi::Tratti, officina::Testi::Testo, officina::Testi::Niente};
    o.testi = TESTI[std::clamp(testi_->currentIndex(), 0, 2)];
    o.ritaglio = ritaglio_->currentIndex() == 1 ? officina::Ritaglio::Foglio : officina::Ritaglio::Cornice;
    if (!buone) return {};
    return o;
}

void PerMacchina::chiedi() {
    if (!salva_) return;  // being built
    const officina::FormatoMacchina &f = officina::FormatiMacchina()[static_cast<std::size_t>(formato_->currentIndex())];
    unita_->setEnabled(f.estensione == "dxf");
    salva_->setEnabled(false);
    attesa_.start();
}

void PerMacchina::avvia() {
    const auto come = leggi();
    const officina::FormatoMacchina &f = officina::FormatiMacchina()[static_cast<std::size_t>(formato_->currentIndex())];
    unita_->setEnabled(f.estensione == "dxf");
    if (!come) {
        pronto_.reset();
        conto_->clear();
        racconto_->clear();
        return tracciato_->mostra({}, ponte_.Traduci("Una scelta non va: vedi il campo segnato"));
    }
    if (filo_) {
        ancora_ = true;
        return;
    }
    conto_->setText(ponte_.Traduci("Preparo i cammini..."));
    if (!pronto_) tracciato_->mostra({}, conto_->text());
    setCursor(Qt::BusyCursor);
    auto lavoro = std::make_shared<Lavoro>();
    lavoro->come = *come;
    filo_ = QThread::create([lavoro, tavolo = tavolo_] {
        try {
            lavoro->disegno = officina::Prepara(*tavolo, lavoro->come, lavoro->errore);
        } catch (const std::bad_alloc &) {
            lavoro->memoria = false;
        }
    });
    connect(filo_, &QThread::finished, this, [this, lavoro] {
        filo_->deleteLater();
        filo_ = nullptr;
        if (std::exchange(ancora_, false)) return avvia();
        unsetCursor();
        arrivato(*lavoro);
    });
    filo_->start();
}

void PerMacchina::arrivato(const Lavoro &lavoro) {
    const bool buono = lavoro.memoria && lavoro.errore.empty();
    salva_->setEnabled(buono);
    generi_->setRowCount(0);
    if (!buono) {
        pronto_.reset();
        conto_->clear();
        racconto_->clear();
        testa_->setRange(0, 0);
        return tracciato_->mostra({}, lavoro.memoria ? Motivo(ponte_, lavoro.errore) : ponte_.Traduci("La memoria non basta"));
    }
    pronto_ = std::make_shared<const officina::Disegno>(lavoro.disegno);
    const officina::Resoconto &r = pronto_->resoconto;
    tracciato_->mostra(pronto_);
    testa_->setRange(0, static_cast<int>(pronto_->cammini.size()));
    testa_->setValue(testa_->maximum());
    conto_->setText(ponte_.Traduci("%1 cammini, %2 da tagliare, %3 di viaggio")
                        .arg(pronto_->cammini.size())
                        .arg(lungo(r.lunga), lungo(r.viaggio)));
    racconto_->setText(RaccontoMacchina(ponte_, *pronto_, lavoro.come));
    for (const officina::Genere g : officina::GeneriUsati(*pronto_)) {
        std::size_t quanti = 0;
        double mm = 0;
        for (const officina::Cammino &c : pronto_->cammini)
            if (c.genere == g) ++quanti, mm += c.lunghezza();
        const int n = generi_->rowCount();
        generi_->insertRow(n);
        QPixmap campione(14, 14);
        campione.fill(TintaDelGenere(g));
        generi_->setItem(n, 0, new QTableWidgetItem(QIcon(campione), Q(officina::Riga(g).nome)));
        const QString numeri[] = {QString::number(quanti), QString::number(mm, 'f', 0)};
        for (int k = 0; k < 2; ++k) {
            auto *voce = new QTableWidgetItem(numeri[k]);
            voce->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            generi_->setItem(n, k + 1, voce);
        }
    }
}

void PerMacchina::salva() {
    if (!pronto_ || attivo()) return;
    const officina::FormatoMacchina *f = &officina::FormatiMacchina()[static_cast<std::size_t>(formato_->currentIndex())];
    const QString fine = Q(f->estensione);
    const auto file = dialoghi_.file(this, true, fine, QStringLiteral("*.") + fine, proposta_ + QLatin1Char('.') + fine);
    if (!file || file->isEmpty()) return;
    // An ending that is another format's asks for that one.
    if (const auto *altro = officina::FormatoMacchinaDi(QFileInfo(*file).suffix().toStdString())) f = altro;
    const DialInputs &in = ponte_.sessione().in;
    officina::Intestazione foglio;
    foglio.unita = unita_->currentIndex() == 1 ? officina::Unita::Pollici : officina::Unita::Millimetri;
    foglio.titolo = "Ombrelia: " + in.txtLAT + "°, " + in.txtDec + "°, " + in.txtInc + "°";
    if (const auto errore = ScriviFile(file->toStdString(), f->scrivi(*pronto_, foglio)))
        return dialoghi_.avviso(this, Q(*errore));
    QSettings ricordi;
    ricordi.beginGroup(QStringLiteral("macchina"));
    for (const QComboBox *c : {formato_, testi_, ritaglio_, unita_}) ricordi.setValue(c->objectName(), c->currentIndex());
    for (const QLineEdit *c : {tolleranza_, punti_}) ricordi.setValue(c->objectName(), c->text());
    if (suScritto) suScritto(*file);
    accept();
}

}  // namespace ombrelia::desktop
