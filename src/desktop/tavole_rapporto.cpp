// Reports as tables.
#include "desktop/tavole_rapporto.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "core/file.h"
#include "paint/tavola_stampata.h"

namespace ombrelia::desktop {

namespace {

constexpr int DECIMALI = 6;

// A cell as it is read: a number short for the eye, whole in its tip.
QStandardItem *cella(const std::string &testo) {
    bool numero = false;
    const QString t = Q(testo);
    const double x = t.toDouble(&numero);
    auto *c = new QStandardItem(numero ? QString::number(x, 'g', DECIMALI) : t);
    c->setEditable(false);
    if (numero) {
        c->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        c->setData(x, Qt::UserRole);
        if (c->text() != t) c->setToolTip(t);
    } else {
        c->setData(t, Qt::UserRole);
    }
    return c;
}

bool comincia(const std::string &colonna, std::initializer_list<std::string_view> con) {
    return std::any_of(con.begin(), con.end(), [&](std::string_view c) { return colonna.starts_with(c); });
}

}  // namespace

TavoleRapporto::TavoleRapporto(Ponte &ponte, Dialoghi &dialoghi, QWidget *testo, QWidget *genitore)
    : QTabWidget(genitore), ponte_(ponte), dialoghi_(dialoghi) {
    setDocumentMode(true);
    pagina_ = new QWidget(this);
    auto *giu = new QVBoxLayout(pagina_);
    giu->setContentsMargins(8, 6, 8, 8);
    auto *fila = new QHBoxLayout;
    giu->addLayout(fila);
    quale_ = new QComboBox(pagina_);
    quale_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    quale_->setMinimumContentsLength(24);
    quale_->setToolTip(ponte_.Traduci("Quale tabella del rapporto"));
    quale_->setAccessibleName(quale_->toolTip());
    fila->addWidget(quale_, 1);
    cerca_ = new QLineEdit(pagina_);
    cerca_->setObjectName(QStringLiteral("cerca"));
    cerca_->setPlaceholderText(ponte_.Traduci("Cerca"));
    cerca_->setAccessibleName(cerca_->placeholderText());
    cerca_->setToolTip(ponte_.Traduci("Mostra le sole righe che contengono il testo (Ctrl+F)"));
    cerca_->setClearButtonEnabled(true);
    cerca_->setMaximumWidth(200);
    fila->addWidget(cerca_);
    quanti_ = new QLabel(pagina_);
    fila->addWidget(quanti_);
    const auto bottone = [&](const QString &scritta, const QString &aiuto, auto azione) {
        auto *b = new QToolButton(pagina_);
        b->setText(scritta);
        b->setToolTip(aiuto);
        connect(b, &QToolButton::clicked, this, azione);
        fila->addWidget(b);
    };
    bottone(ponte_.Traduci("Copia"), ponte_.Traduci("Le righe scelte, o tutte, negli appunti (Ctrl+C)"), [this] { copia(); });
    // Of forms with one ending the first; a page for paper is the window's own.
    QStringList forme;
    for (const reports::FormaRapporto &f : reports::FormeRapporto())
        if (f.tavole && &f == &reports::FormaRapportoDi(f.estensione)) forme << Q(f.estensione);
    for (const QString &forma : forme << QStringLiteral("pdf"))
        bottone(forma.toUpper(), ponte_.Traduci("Scrive il rapporto intero in un file"), [this, forma] { salva(forma); });

    modello_ = new QStandardItemModel(this);
    filtro_ = new QSortFilterProxyModel(this);
    filtro_->setSourceModel(modello_);
    filtro_->setFilterKeyColumn(-1);
    filtro_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    filtro_->setSortRole(Qt::UserRole);
    tavola_ = new QTableView(pagina_);
    tavola_->setObjectName(QStringLiteral("tavola"));
    tavola_->setModel(filtro_);
    prima_ = new QTableView(tavola_);
    prima_->setModel(filtro_);
    prima_->setFocusPolicy(Qt::NoFocus);
    prima_->setSelectionModel(tavola_->selectionModel());
    prima_->setFrameShape(QFrame::NoFrame);
    prima_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    prima_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (QTableView *t : {tavola_, prima_}) {
        t->verticalHeader()->hide();
        t->setSelectionBehavior(QAbstractItemView::SelectRows);
        t->setAlternatingRowColors(true);
        t->setSortingEnabled(false);
        t->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        t->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        t->setWordWrap(false);
    }
    connect(tavola_->verticalScrollBar(), &QScrollBar::valueChanged, prima_->verticalScrollBar(), &QScrollBar::setValue);
    connect(prima_->verticalScrollBar(), &QScrollBar::valueChanged, tavola_->verticalScrollBar(), &QScrollBar::setValue);
    tavola_->installEventFilter(this);
    giu->addWidget(tavola_, 1);

    addTab(pagina_, ponte_.Traduci("Tabella"));
    addTab(testo, ponte_.Traduci("Testo del rapporto"));
    connect(quale_, &QComboBox::currentIndexChanged, this, [this](int n) { riempi(n); });
    connect(cerca_, &QLineEdit::textChanged, this, [this](const QString &t) {
        filtro_->setFilterFixedString(t);
        quanti_->setText(QStringLiteral("%1 / %2").arg(filtro_->rowCount()).arg(modello_->rowCount()));
    });
    connect(tavola_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { scelta(); });
    auto *trova = new QShortcut(QKeySequence::Find, pagina_);
    connect(trova, &QShortcut::activated, this, [this] { cerca_->setFocus(Qt::ShortcutFocusReason); });
}

void TavoleRapporto::mostra(const Rapporto &r) {
    rapporto_ = r;
    blocchi_ = reports::RapportoBlocchi(r);
    {
        const QSignalBlocker zitto(quale_);
        quale_->clear();
        int n = 0;
        for (const reports::Blocco &b : blocchi_) {
            ++n;
            quale_->addItem(!b.titolo.empty() ? Q(b.titolo)
                            : b.tabella < 0   ? QStringLiteral("%1. ").arg(n) + ponte_.Traduci("Valori")
                                              : QStringLiteral("%1").arg(n));
        }
    }
    // The first block of more than a few rows is what the reader came for.
    const auto grande = std::find_if(blocchi_.begin(), blocchi_.end(), [](const reports::Blocco &b) { return b.tabella >= 0; });
    const int qui = grande == blocchi_.end() ? 0 : static_cast<int>(grande - blocchi_.begin());
    setTabEnabled(0, !blocchi_.empty());
    if (blocchi_.empty()) return setCurrentIndex(1);
    quale_->setCurrentIndex(qui);
    riempi(qui);
}

void TavoleRapporto::riempi(int quale) {
    modello_->clear();
    if (quale < 0 || static_cast<std::size_t>(quale) >= blocchi_.size()) return;
    const reports::Blocco &b = blocchi_[static_cast<std::size_t>(quale)];
    QStringList titoli;
    for (const std::string &c : b.colonne) titoli << Q(c);
    std::size_t larghe = b.colonne.size();
    for (const auto &riga : b.righe) larghe = std::max(larghe, riga.size());
    if (titoli.isEmpty()) titoli << ponte_.Traduci("Grandezza") << ponte_.Traduci("Valore");
    while (static_cast<std::size_t>(titoli.size()) < larghe) titoli << QString();
    modello_->setHorizontalHeaderLabels(titoli);
    for (const auto &riga : b.righe) {
        QList<QStandardItem *> celle;
        for (const std::string &c : riga) celle << cella(c);
        modello_->appendRow(celle);
    }
    cerca_->clear();
    quanti_->setText(QStringLiteral("%1 / %2").arg(filtro_->rowCount()).arg(modello_->rowCount()));
    tavola_->resizeColumnsToContents();
    prima_->setColumnWidth(0, tavola_->columnWidth(0));
    for (int c = 1; c < modello_->columnCount(); ++c) prima_->setColumnHidden(c, true);
    prima_->setColumnHidden(0, false);
    QResizeEvent e(tavola_->size(), tavola_->size());
    eventFilter(tavola_, &e);
}

bool TavoleRapporto::eventFilter(QObject *chi, QEvent *e) {
    if (e->type() == QEvent::Resize || e->type() == QEvent::Show) {
        prima_->horizontalHeader()->setFixedHeight(tavola_->horizontalHeader()->height());
        prima_->setGeometry(tavola_->frameWidth(), tavola_->frameWidth(), tavola_->columnWidth(0),
                            tavola_->viewport()->height() + tavola_->horizontalHeader()->height());
    }
    if (e->type() == QEvent::ShortcutOverride || e->type() == QEvent::KeyPress) {
        auto *tasto = dynamic_cast<QKeyEvent *>(e);
        if (tasto && tasto->matches(QKeySequence::Copy)) {
            tasto->accept();
            if (e->type() == QEvent::KeyPress) copia();
            return true;
        }
    }
    return QTabWidget::eventFilter(chi, e);
}

// Whole numbers, heads above them, as spreadsheets paste it.
void TavoleRapporto::copia() {
    const int quale = quale_->currentIndex();
    if (quale < 0) return;
    const reports::Blocco &b = blocchi_[static_cast<std::size_t>(quale)];
    std::vector<int> righe;
    for (const QModelIndex &i : tavola_->selectionModel()->selectedRows()) righe.push_back(filtro_->mapToSource(i).row());
    if (righe.empty())
        for (int i = 0; i < filtro_->rowCount(); ++i) righe.push_back(filtro_->mapToSource(filtro_->index(i, 0)).row());
    std::sort(righe.begin(), righe.end());
    QString testo;
    const auto riga = [&testo](const std::vector<std::string> &celle) {
        QStringList parti;
        for (const std::string &c : celle) parti << Q(c);
        if (!parti.isEmpty()) testo += parti.join(QLatin1Char('\t')) + QLatin1Char('\n');
    };
    riga(b.colonne);
    for (const int i : righe) riga(b.righe[static_cast<std::size_t>(i)]);
    QGuiApplication::clipboard()->setText(testo);
}

// The page of tables as paper takes it: letters in points, rows in one piece.
QByteArray TavoleRapporto::pdf() const {
    constexpr double CORPO = 9;
    QString html = Q(reports::RapportoHtml(rapporto_));
    html.replace(QStringLiteral("</style>"), QStringLiteral("body,table,pre{font-size:%1pt}pre{white-space:pre}"
                                                            "th,td{padding:1px 5px}</style>")
                                                 .arg(CORPO));
    const QString luogo = suLuogo ? suLuogo() : QString();
    html.replace(QStringLiteral("</h1>"), QStringLiteral("</h1><p>") + luogo.toHtmlEscaped() + QStringLiteral("</p>"));
    return paint::PdfTavola({Q(rapporto_.caption).simplified(), luogo, html, CORPO});
}

void TavoleRapporto::salva(const QString &forma) {
    const auto f =
        dialoghi_.file(this, true, forma, QStringLiteral("*.") + forma, Q(rapporto_.modulo) + QLatin1Char('.') + forma);
    if (!f || f->isEmpty()) return;
    const std::string testo =
        forma == QStringLiteral("pdf") ? pdf().toStdString() : reports::FormaRapportoDi(forma.toStdString()).scrivi(rapporto_);
    if (const auto errore = ScriviFile(f->toStdString(), testo)) dialoghi_.avviso(this, Q(*errore));
}

// An abscissa with an ordinate beside it is a point of the drawing.
void TavoleRapporto::scelta() {
    const QModelIndex i = tavola_->selectionModel()->currentIndex();
    const int quale = quale_->currentIndex();
    if (!suPunti || !i.isValid() || quale < 0) return;
    const reports::Blocco &b = blocchi_[static_cast<std::size_t>(quale)];
    const auto &riga = b.righe[static_cast<std::size_t>(filtro_->mapToSource(i).row())];
    std::vector<ombra::Punto> punti;
    for (std::size_t c = 0; c + 1 < std::min(riga.size(), b.colonne.size()); ++c) {
        if (!comincia(b.colonne[c], {"ascissa", "abscisse", "abscissa"}) ||
            !comincia(b.colonne[c + 1], {"ordinata", "ordonnée", "ordinate"}))
            continue;
        bool x = false, y = false;
        const ombra::Punto p{Q(riga[c]).toDouble(&x), Q(riga[c + 1]).toDouble(&y)};
        if (x && y) punti.push_back(p);
    }
    suPunti(punti);
}

}  // namespace ombrelia::desktop
