// Several readings of one wall.
#include "desktop/letture_parete.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWidgetAction>
#include <algorithm>
#include <cmath>

#include "controlli/nomi.h"
#include "core/testo.h"
#include "desktop/dialoghi.h"
#include "desktop/fuso_vicino.h"
#include "desktop/icone.h"
#include "desktop/lingua_finestra.h"
#include "desktop/parole.h"

namespace ombrelia::desktop {

namespace {

const QString GIORNO = QStringLiteral("dd/MM/yyyy");
// Of the readings as the project keeps them.
constexpr char FRA_CELLE = '|', FRA_RIGHE = ';';
constexpr auto DELL_OROLOGIO = "orologio", SENZA = "senza";

// A day is picked in a calendar, or typed.
class Giorni final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget *createEditor(QWidget *genitore, const QStyleOptionViewItem &, const QModelIndex &) const override {
        auto *e = new QDateEdit(genitore);
        e->setCalendarPopup(true);
        e->setDisplayFormat(GIORNO);
        e->setDateRange(QDate(1583, 1, 1), QDate(9999, 12, 31));
        return e;
    }
    void setEditorData(QWidget *e, const QModelIndex &i) const override {
        if (auto *d = qobject_cast<QDateEdit *>(e)) d->setDate(QDate::fromString(i.data(Qt::EditRole).toString(), GIORNO));
    }
    void setModelData(QWidget *e, QAbstractItemModel *m, const QModelIndex &i) const override {
        if (auto *d = qobject_cast<QDateEdit *>(e)) m->setData(i, d->date().toString(GIORNO));
    }
};

QString gradi(double x, int decimali = 3) { return QString::number(x, 'f', decimali) + QStringLiteral("°"); }

// "UT+2", "UT-3:30".
QString scartoUT(int secondi) {
    const int m = std::abs(secondi) / 60;
    QString t = QStringLiteral("UT%1%2").arg(secondi < 0 ? QLatin1Char('-') : QLatin1Char('+')).arg(m / 60);
    if (m % 60) t += QStringLiteral(":%1").arg(m % 60, 2, 10, QLatin1Char('0'));
    return t;
}

}  // namespace

GraficoLetture::GraficoLetture(QWidget *genitore) : QWidget(genitore) {
    setObjectName(QStringLiteral("graficoLetture"));
    setMinimumHeight(110);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
}

void GraficoLetture::mostra(std::vector<double> gradi, std::vector<int> righe, std::vector<bool> escluse,
                            const sun::Riassunto &insieme) {
    gradi_ = std::move(gradi);
    righe_ = std::move(righe);
    escluse_ = std::move(escluse);
    insieme_ = insieme;
    update();
}

void GraficoLetture::paintEvent(QPaintEvent *) {
    QPainter p(this);
    const QColor fondo = palette().color(QPalette::Base), testo = palette().color(QPalette::Text);
    p.fillRect(rect(), fondo);
    p.setPen(palette().color(QPalette::PlaceholderText));
    p.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    if (gradi_.empty()) return;
    p.setRenderHint(QPainter::Antialiasing);
    // On the circle, about the mean.
    double estremo = std::max(2.5 * insieme_.scarto, 0.05);
    for (const double g : gradi_) estremo = std::max(estremo, 1.15 * std::fabs(sun::Girato(g - insieme_.media)));
    const double mezzo = height() / 2.0, su = (mezzo - 8) / estremo, sinistra = 58,
                 passo = (width() - sinistra - 14.0) / static_cast<double>(gradi_.size());
    const bool scuro = fondo.lightness() < 128;
    const QColor banda = scuro ? QColor(0x2f, 0x4a, 0x3d) : QColor(0xdc, 0xee, 0xe3),
                 buona = scuro ? QColor(0x9c, 0xc2, 0xf0) : QColor(0x1f, 0x3a, 0x5f),
                 stona = scuro ? QColor(0xff, 0x9a, 0x7a) : QColor(0x9a, 0x3b, 0x12);
    const double alta = std::min(insieme_.scarto * su, mezzo - 2);
    p.fillRect(QRectF(sinistra, mezzo - alta, width() - sinistra - 4.0, 2 * alta), banda);
    p.setPen(QPen(testo, 1));
    p.drawLine(QPointF(sinistra, mezzo), QPointF(width() - 4.0, mezzo));
    p.drawText(QRectF(4, mezzo - 10, sinistra - 8, 20), Qt::AlignRight | Qt::AlignVCenter, gradi(insieme_.media, 2));
    for (std::size_t i = 0; i < gradi_.size(); ++i) {
        const QPointF m(sinistra + (static_cast<double>(i) + 0.5) * passo, mezzo - sun::Girato(gradi_[i] - insieme_.media) * su);
        const bool fuori = escluse_[i];
        p.setPen(QPen(fuori ? stona : buona, 1.6));
        if (fuori) {
            p.drawLine(m - QPointF(4, 4), m + QPointF(4, 4));
            p.drawLine(m - QPointF(4, -4), m + QPointF(4, -4));
        } else {
            p.setBrush(buona);
            p.drawEllipse(m, 3.5, 3.5);
        }
        const bool sotto = m.y() < 22;
        p.drawText(QRectF(m.x() - 15, sotto ? m.y() + 5 : m.y() - 20, 30, 15), Qt::AlignCenter, QString::number(righe_[i]));
    }
}

LettureParete::LettureParete(Ponte &ponte, QWidget *genitore) : QWidget(genitore), ponte_(ponte) {
    setObjectName(QStringLiteral("lettureParete"));
    auto *giu = new QVBoxLayout(this);
    auto *fila = new QHBoxLayout;
    giu->addLayout(fila);
    ore_ = new QComboBox(this);
    ore_->setObjectName(QStringLiteral("ore"));
    ore_->addItems({ponte_.Traduci("Le ore sono in UT"), ponte_.Traduci("Le ore sono dell'orologio")});
    ore_->setAccessibleName(ponte_.Traduci("Come sono date le ore"));
    ore_->setToolTip(ponte_.Traduci("L'orologio è quello della città vicina, con la sua ora legale del giorno"));
    connect(ore_, &QComboBox::currentIndexChanged, this, [this] { cambiata(); });
    fila->addWidget(ore_, 1);
    auto *togli = new QPushButton(ponte_.Traduci("Togli la riga"), this);
    togli->setAutoDefault(false);
    fila->addWidget(togli);

    tavola_ = new QTableWidget(0, COLONNE, this);
    tavola_->setObjectName(QStringLiteral("letture"));
    tavola_->setAccessibleName(ponte_.Traduci("Letture della parete"));
    tavola_->setToolTip(ponte_.Traduci("Una riga per misura: giorno, ora e angolo az fra la perpendicolare e l'ombra del filo"));
    tavola_->setHorizontalHeaderLabels({ponte_.Traduci("Giorno"), ponte_.Traduci("Ora letta"), ponte_.Traduci("Angolo az"),
                                        ponte_.Traduci("Parete a"), ponte_.Traduci("Dalle altre")});
    tavola_->setItemDelegateForColumn(Data, new Giorni(tavola_));
    tavola_->setEditTriggers(QAbstractItemView::AllEditTriggers);
    tavola_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    constexpr int LARGA = 124;  // a date with its arrow
    tavola_->horizontalHeader()->setSectionResizeMode(Data, QHeaderView::Fixed);
    tavola_->setColumnWidth(Data, LARGA);
    tavola_->setMinimumHeight(150);
    giu->addWidget(tavola_, 2);
    connect(tavola_, &QTableWidget::cellChanged, this, [this] {
        if (!riempiendo_) cambiata();
    });
    connect(togli, &QPushButton::clicked, this, [this] {
        if (tavola_->currentRow() < 0) return;
        tavola_->removeRow(tavola_->currentRow());
        cambiata();
    });
    detto_ = new QLabel(this);
    detto_->setObjectName(QStringLiteral("detto"));
    detto_->setTextFormat(Qt::PlainText);
    detto_->setWordWrap(true);
    giu->addWidget(detto_);
    grafico_ = new GraficoLetture(this);
    grafico_->setAccessibleName(ponte_.Traduci("Le declinazioni intorno alla loro media"));
    grafico_->setToolTip(ponte_.Traduci("Le declinazioni intorno alla loro media; la fascia è lo scarto tipo"));
    giu->addWidget(grafico_, 1);
    senza_ = new QCheckBox(ponte_.Traduci("Lascia fuori la lettura che stona"), this);
    senza_->setToolTip(ponte_.Traduci(
        "Prova di Grubbs: misure oneste di questo scarto ne avrebbero una così lontana meno di una volta su venti"));
    senza_->setEnabled(false);
    connect(senza_, &QCheckBox::toggled, this, [this] { cambiata(); });
    giu->addWidget(senza_);
    usa_ = new QPushButton(Iniziale(ponte_.Traduci("usa come declinazione della parete")), this);
    usa_->setObjectName(QStringLiteral("usaDeclinazione"));
    usa_->setAutoDefault(false);
    usa_->setToolTip(ponte_.Traduci("La media va nel campo della declinazione del quadrante"));
    connect(usa_, &QPushButton::clicked, this, [this] { usa(); });
    giu->addWidget(usa_);
    nuovaRiga();
    ricalcola();
}

std::string LettureParete::scritte() const {
    QStringList parti;
    for (int r = 0; r < tavola_->rowCount(); ++r) {
        QStringList celle;
        for (const Colonna c : {Data, Ora, Angolo}) {
            QString t = tavola_->item(r, c) ? tavola_->item(r, c)->text() : QString();
            // What would end a cell, a row or the project's own tag is part of no reading.
            t.removeIf([](QChar q) { return q < QLatin1Char(' ') || QStringLiteral("|;<>\"").contains(q); });
            celle << t.trimmed();
        }
        if (!celle.at(Ora).isEmpty() || !celle.at(Angolo).isEmpty()) parti << celle.join(QLatin1Char(FRA_CELLE));
    }
    if (parti.isEmpty()) return {};
    if (ore_->currentIndex() == 1) parti << QLatin1String(DELL_OROLOGIO);
    if (senza_->isChecked()) parti << QLatin1String(SENZA);
    return parti.join(QLatin1Char(FRA_RIGHE)).toStdString();
}

void LettureParete::rileggi() {
    const std::string &loro = ponte_.sessione().in.txtLetture;
    if (loro == lette_) return;
    lette_ = loro;
    riempiendo_ = true;
    const QSignalBlocker zitte(ore_), zitto(senza_);
    tavola_->setRowCount(0);
    QStringList parti = Q(loro).split(QLatin1Char(FRA_RIGHE), Qt::SkipEmptyParts);
    senza_->setChecked(parti.removeAll(QLatin1String(SENZA)) > 0);
    ore_->setCurrentIndex(parti.removeAll(QLatin1String(DELL_OROLOGIO)) > 0 && fuso_ ? 1 : 0);
    constexpr qsizetype RIGHE_MASSIME = 1000;
    for (const QString &parte : parti.mid(0, RIGHE_MASSIME)) {
        const QStringList celle = parte.split(QLatin1Char(FRA_CELLE));
        nuovaRiga();
        riempiendo_ = true;
        for (const Colonna c : {Data, Ora, Angolo}) tavola_->item(tavola_->rowCount() - 1, c)->setText(celle.value(c));
    }
    riempiendo_ = false;
}

void LettureParete::cambiata() {
    ricalcola();
    const std::string mie = scritte();
    if (mie == lette_) return;
    lette_ = mie;
    ponte_.passo = ponte_.Traduci("Letture della parete");
    ponte_.fai(NESSUN_CONTROLLO, [&] { ponte_.sessione().in.txtLetture = mie; });
}

double LettureParete::campo(NomeControllo nome) const {
    const Valore v = Val(ponte_.sessione().testo(nome));
    return v.esiste() ? v.v : std::nan("");
}

void LettureParete::nuovaRiga() {
    riempiendo_ = true;
    const int n = tavola_->rowCount();
    const QTableWidgetItem *prima = n > 0 ? tavola_->item(n - 1, Data) : nullptr;
    tavola_->insertRow(n);
    for (int c = 0; c < COLONNE; ++c) {
        auto *voce = new QTableWidgetItem(c == Data ? prima ? prima->text() : QDate::currentDate().toString(GIORNO) : QString());
        if (c > Data) voce->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        if (c >= Declinazione) voce->setFlags({});  // Tab passes over them
        tavola_->setItem(n, c, voce);
    }
    riempiendo_ = false;
}

std::optional<double> LettureParete::leggi(int riga) {
    const auto testo = [&](Colonna c) { return tavola_->item(riga, c) ? tavola_->item(riga, c)->text().trimmed() : QString(); };
    const QString ora = testo(Ora),
                  angolo = testo(Angolo).replace(QLatin1Char(','), QLatin1Char('.')).remove(QStringLiteral("°"));
    for (const Colonna c : {Data, Ora, Angolo})
        if (tavola_->item(riga, c))
            tavola_->item(riga, c)->setData(Qt::BackgroundRole, {}), tavola_->item(riga, c)->setToolTip({});
    if (ora.isEmpty() || angolo.isEmpty()) return {};
    const auto sbagliata = [&](Colonna c, const QString &perche) {
        tavola_->item(riga, c)->setBackground(QColor(palette().color(QPalette::Base).lightness() < 128 ? 0x6b2a1c : 0xffd9cc));
        tavola_->item(riga, c)->setToolTip(perche);
        return std::nullopt;
    };
    sun::DatiDeclinazione d{.lat = campo("frmDeclin.txtLAT"), .lon = campo("frmDeclin.txtLON")};
    const QDate giorno = QDate::fromString(testo(Data), GIORNO);
    if (!giorno.isValid()) return sbagliata(Data, ponte_.Traduci("Non c'è un giorno così"));
    if (!sun::LeggiOra(QString(ora).replace(QLatin1Char('.'), QLatin1Char(':')).toStdString(), d).empty())
        return sbagliata(Ora, ponte_.Traduci("Scrivi l'ora come 9:40 o 9:40:30"));
    if (!sun::LeggiNumero(angolo.toStdString(), -180, 180, d.angolo).empty())
        return sbagliata(Angolo, ponte_.Traduci("Scrivi l'angolo in gradi, come -12.5, da -180 a 180"));
    luoghi::Orario o{giorno.year(),
                     giorno.month(),
                     giorno.day(),
                     static_cast<int>(d.ore.v),
                     static_cast<int>(d.minuti.v),
                     static_cast<int>(d.secondi.v)};
    if (ore_->currentIndex() == 1 && fuso_) {
        const luoghi::Civile c = fuso_->InCivile(o);
        if (c.quale == luoghi::Civile::Saltata)
            return sbagliata(Ora, ponte_.Traduci("Quel giorno l'orologio salta quest'ora: comincia l'ora legale"));
        o = luoghi::DaSecondi(c.ut);
    }
    d.anno = static_cast<double>(o.anno);
    d.mese = o.mese;
    d.giorno = o.giorno;
    d.ore = o.ore;
    d.minuti = o.minuti;
    d.secondi = o.secondi;
    const sun::EsitoDeclinazione e = sun::Declinazione(d, ponte_.sessione().dizionario);
    if (!e.errore.empty()) return sbagliata(Angolo, Q(e.errore));
    if (e.altezza < 0) return sbagliata(Ora, ponte_.Traduci("A quest'ora il Sole è sotto l'orizzonte"));
    return sun::Girato(e.declinazione.v);
}

void LettureParete::ricalcola() {
    riempiendo_ = true;
    std::vector<double> tutte;
    std::vector<int> righe;
    for (int r = 0; r < tavola_->rowCount(); ++r) {
        const auto d = leggi(r);
        for (const Colonna c : {Declinazione, Scarto})
            if (QTableWidgetItem *voce = tavola_->item(r, c)) {
                voce->setText(c == Declinazione && d ? gradi(*d) : QString());
                voce->setForeground(palette().color(QPalette::Text));
            }
        if (d) tutte.push_back(*d), righe.push_back(r);
    }
    const sun::Riassunto intero = sun::Riassumi(tutte);
    const bool stona = intero.stona;
    senza_->setEnabled(stona);
    std::vector<bool> escluse(tutte.size(), false);
    std::vector<double> contate = tutte;
    if (stona) escluse[intero.lontana] = true;
    const bool senza = stona && senza_->isChecked();
    if (senza) contate.erase(contate.begin() + static_cast<std::ptrdiff_t>(intero.lontana));
    insieme_ = senza ? sun::Riassumi(contate) : intero;
    quante_ = contate.size();
    for (std::size_t i = 0; i < tutte.size() && tutte.size() > 1; ++i) {
        QTableWidgetItem *voce = tavola_->item(righe[i], Scarto);
        voce->setText((escluse[i] ? QStringLiteral("✗ ") : QString()) + gradi(intero.distanze[i], 2));
        const bool scuro = palette().color(QPalette::Base).lightness() < 128;
        if (escluse[i]) voce->setForeground(QColor(scuro ? 0xff9a7a : 0x9a3b12));
    }
    usa_->setEnabled(quante_ > 0);
    QString t;
    if (tutte.empty()) {
        t = ponte_.Traduci("Scrivi in ogni riga giorno, ora e angolo: la riga dopo viene da sé.");
    } else {
        const QString dove = insieme_.media < 0 ? ponte_.Traduci("verso Est") : ponte_.Traduci("verso Ovest");
        t = ponte_.Traduci("Media di %1: %2 %3.").arg(quante_).arg(gradi(insieme_.media), dove);
        if (quante_ > 1)
            t += QLatin1Char(' ') +
                 ponte_.Traduci("Scarto tipo di una lettura %1, della media %2.")
                     .arg(gradi(insieme_.scarto, 2), gradi(insieme_.scarto / std::sqrt(static_cast<double>(quante_)), 2));
        if (stona)
            t += QLatin1Char(' ') + ponte_.Traduci("La lettura %1 stona: %2 dalle altre.")
                                        .arg(righe[intero.lontana] + 1)
                                        .arg(gradi(intero.distanze[intero.lontana], 2));
    }
    detto_->setText(t);
    for (int &r : righe) ++r;
    grafico_->mostra(std::move(tutte), std::move(righe), std::move(escluse), insieme_);
    riempiendo_ = false;
    // A whole last row asks for the next.
    const int ultima = tavola_->rowCount() - 1;
    if (ultima < 0 || (!tavola_->item(ultima, Ora)->text().isEmpty() && !tavola_->item(ultima, Angolo)->text().isEmpty()))
        nuovaRiga();
}

void LettureParete::usa() {
    if (quante_ == 0) return;
    ponte_.passo = ponte_.Traduci("Declinazione della parete");
    const std::string d = TestoNumero(std::round(insieme_.media * 1000) / 1000);
    ponte_.fai(NESSUN_CONTROLLO, [&] { ponte_.sessione().Scrivi(&DialInputs::txtDec, d); });
}

// --- the site's clock ------------------------------------------------------------------------------------------------------

// Zone and summer time of the day go into the board's boxes, as long as the user has none of his own there.
void LettureParete::fusoDelLuogo() {
    Sessione &s = ponte_.sessione();
    std::string &casella = s.testo("frmDeclin.TxtFuso");
    int &legale = s.valore("frmDeclin.ckDst");
    const auto stanno = [&] { return casella + (legale == 1 ? "+" : ""); };
    const double meridiano = Val(s.in.txtMeridiano).v;
    const std::string qui = s.testo("frmDeclin.txtLAT") + ' ' + s.testo("frmDeclin.txtLON") + ' ' + s.in.txtMeridiano;
    if (qui != cercato_) {
        cercato_ = qui;
        fuso_.reset();
        suoi_ = false;
        messo_.clear();
        if (const luoghi::Luogo *l = LuogoVicino(campo("frmDeclin.txtLAT"), campo("frmDeclin.txtLON"), -meridiano / 15)) {
            luogo_ = l->nome;
            fuso_ = luoghi::Fuso::Leggi(l->fuso);
        }
        const QSignalBlocker zitto(ore_);
        ore_->setItemText(1, fuso_ ? ponte_.Traduci("Le ore sono dell'orologio di %1").arg(Q(luogo_))
                                   : ponte_.Traduci("Le ore sono dell'orologio"));
        if (!fuso_) ore_->setCurrentIndex(0);
        ore_->setEnabled(fuso_.has_value());
    }
    if (!messo_.empty() && stanno() != messo_) suoi_ = true;
    const auto intero = [this](NomeControllo nome) {
        const double x = campo(nome);
        return std::isfinite(x) && std::fabs(x) < 10000 ? static_cast<int>(x) : 0;
    };
    const luoghi::Orario ut{intero("frmDeclin.txtYear"), intero("frmDeclin.txtMonth"), intero("frmDeclin.txtDay"),
                            intero("frmDeclin.txtHH"),   intero("frmDeclin.txtMM"),    intero("frmDeclin.txtSS")};
    const bool giorno = ut.mese >= 1 && ut.mese <= 12 && ut.giorno >= 1 && ut.giorno <= 31;
    if (orologio_) orologio_->setVisible(fuso_ && giorno);
    if (!fuso_ || !giorno) return;
    const std::int64_t t = luoghi::Secondi(ut);
    const luoghi::OraDelFuso ora = fuso_->InUT(t);
    if (!suoi_) {
        casella = TestoNumero(-ora.base / 3600.0);
        legale = ora.estate ? 1 : 0;
        messo_ = stanno();
    }
    if (!orologio_) return;
    const luoghi::Orario o = luoghi::DaSecondi(t + ora.scarto);
    orologio_->setText(ponte_.Traduci("A %1 l'orologio segna %2 del %3 (%4)")
                           .arg(Q(luogo_), QStringLiteral("%1:%2").arg(o.ore).arg(o.minuti, 2, 10, QLatin1Char('0')),
                                QStringLiteral("%1/%2/%3").arg(o.giorno).arg(o.mese).arg(o.anno),
                                scartoUT(ora.scarto) +
                                    (ora.estate ? QStringLiteral(", ") + ponte_.Traduci("Ora legale").toLower() : QString())));
}

void LettureParete::aggiorna() {
    if (!window()->isVisible()) return;
    fusoDelLuogo();
    rileggi();
    ponte_.sincronizza();
    ricalcola();
}

QLabel *LettureParete::orologio(QWidget *genitore) {
    orologio_ = new QLabel(genitore);
    orologio_->setObjectName(QStringLiteral("orologio"));
    orologio_->setTextFormat(Qt::PlainText);
    orologio_->setWordWrap(true);
    orologio_->hide();
    return orologio_;
}

QWidget *LettureParete::calendario(QWidget *genitore) {
    auto *b = new QToolButton(genitore);
    b->setObjectName(QStringLiteral("calendario"));
    b->setToolTip(ponte_.Traduci("Scegli il giorno nel calendario"));
    b->setAccessibleName(b->toolTip());
    b->setPopupMode(QToolButton::InstantPopup);
    b->setIcon(IconaDi("calendar"));
    auto *menu = new QMenu(b);
    b->setMenu(menu);
    const auto scelto = [this, menu](const QDate &d) {
        menu->close();
        ponte_.fai(NESSUN_CONTROLLO, [&] {
            Sessione &s = ponte_.sessione();
            const struct {
                NomeControllo campo;
                int n;
            } parti[] = {{"frmDeclin.txtDay", d.day()}, {"frmDeclin.txtMonth", d.month()}, {"frmDeclin.txtYear", d.year()}};
            for (const auto &[campo, n] : parti) s.testo(campo) = std::to_string(n);
        });
    };
    connect(menu, &QMenu::aboutToShow, this, [this, menu, scelto] {
        menu->clear();
        auto *mese = new QCalendarWidget(menu);
        mese->setLocale(QLocale(CodiceLingua(ponte_.sessione())));
        auto *voce = new QWidgetAction(menu);
        voce->setDefaultWidget(mese);
        menu->addAction(voce);
        connect(mese, &QCalendarWidget::clicked, this, scelto);
        connect(mese, &QCalendarWidget::activated, this, scelto);
        const QDate d(static_cast<int>(campo("frmDeclin.txtYear")), static_cast<int>(campo("frmDeclin.txtMonth")),
                      static_cast<int>(campo("frmDeclin.txtDay")));
        if (d.isValid()) mese->setSelectedDate(d);
        mese->setFocus(Qt::PopupFocusReason);
    });
    return b;
}

}  // namespace ombrelia::desktop
