// The plot surface in the window.
#include "desktop/quadro.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "controlli/nomi.h"
#include "desktop/comandi.h"
#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

namespace {

QFrame *riga(QWidget *genitore) {
    auto *f = new QFrame(genitore);
    f->setFrameShape(QFrame::VLine);
    f->setFrameShadow(QFrame::Sunken);
    return f;
}

}  // namespace

Quadro::Quadro(Ponte &ponte, QWidget *genitore) : QWidget(genitore), ponte_(ponte) {
    ponte.adotta("frmTavolo.Tavolo1", this);
    auto *colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    colonna->addWidget(testata());
    foglio_ = new Foglio(ponte.sessione().tavolo, this);
    ponte.adotta("Tavolo1.picPlot", foglio_->viewport());
    ponte.adotta("Tavolo1.HScroll1", foglio_->horizontalScrollBar());
    ponte.adotta("Tavolo1.VScroll1", foglio_->verticalScrollBar());
    colonna->addWidget(foglio_, 1);
    avviso_ = new QLabel(this);
    avviso_->setObjectName(QStringLiteral("avvisoCornice"));
    avviso_->setTextFormat(Qt::RichText);
    avviso_->setWordWrap(true);
    avviso_->setMinimumWidth(1);
    avviso_->setContentsMargins(8, 3, 8, 3);
    connect(avviso_, &QLabel::linkActivated, this, [this](const QString &quale) {
        if (quale == QStringLiteral("a")) return suAdatta ? suAdatta() : void();
        const auto n = static_cast<std::size_t>(quale.toInt());
        if (n >= offerte_.size()) return;
        const auto azione = offerte_[n].azione;
        offerte_.clear();
        detto_.clear();
        azione();
        mostraAvviso();
    });
    colonna->addWidget(avviso_);
    colonna->addWidget(piede());
    pannelli_ = {
        {pannello("Tavolo1.PicAssi", {{"Tavolo1.lblX", "Tavolo1.txtX"},
                                      {"Tavolo1.lblY", "Tavolo1.txtY"},
                                      {"Tavolo1.cmdAssiAgg", "Tavolo1.cmdAssiChiudi"}}),
         ponte_.widget("Tavolo1.cmdAssi")},
        {pannello("Tavolo1.picDimensioni", {{"Tavolo1.lblQL", "Tavolo1.txtQL"},
                                            {"Tavolo1.lblQH", "Tavolo1.txtQH"},
                                            {"Tavolo1.cmdQAggiorna", "Tavolo1.cmdQAnnulla"}}),
         ponte_.widget("Tavolo1.cmdDim")},
        {pannello("Tavolo1.picPrint", {{"Tavolo1.optAll"}, {"Tavolo1.optSelected"}, {"Tavolo1.cmdPOk", "Tavolo1.cmdPCancel"}}),
         ponte_.widget("Tavolo1.cmdStampa")},
    };
    foglio_->suClic = [this](const QPointF &punto) { clic(punto); };
    foglio_->suDestro = [this](const QPointF &punto) {
        if (suLinea) suLinea(foglio_->sulFoglio(punto) ? lineaPresso(foglio_->suMondo(punto)) : std::nullopt);
        if (suMenu) suMenu(foglio_->viewport()->mapToGlobal(punto.toPoint()));
    };
    foglio_->suSotto = [this](const QPointF &mondo) { sotto(mondo); };
    foglio_->testoMisura = [](double mm, double gradi) {
        return QStringLiteral("%1 mm   %2°").arg(mm, 0, 'f', 1).arg(gradi, 0, 'f', 1);
    };
    foglio_->suPosizione = [this](std::optional<QPointF> mm) {
        posizione_->setText(mm ? QStringLiteral("x %1   y %2 mm").arg(mm->x(), 0, 'f', 1).arg(mm->y(), 0, 'f', 1) : QString());
    };
}

QWidget *Quadro::testata() {
    QWidget *testa = ponte_.crea("Tavolo1.picHead", this);
    // Icons alone where it is narrow, in two rows where it is narrower still.
    file_ = new QBoxLayout(QBoxLayout::LeftToRight, testa);
    file_->setSizeConstraint(QLayout::SetNoConstraint);
    file_->setContentsMargins(6, 4, 6, 4);
    file_->setSpacing(4);
    auto *fila = new QHBoxLayout;
    fila->setSpacing(3);
    file_->addLayout(fila);
    const auto metti = [&](NomeControllo nome) {
        QWidget *w = ponte_.crea(nome, testa);
        fila->addWidget(w);
        if (qobject_cast<QPushButton *>(w)) bottoni_ << w;
        return w;
    };
    for (const NomeControllo nome :
         std::initializer_list<NomeControllo>{"Tavolo1.cmdStampa", "Tavolo1.cmdSave", "Tavolo1.cmdDxf"})
        metti(nome);
    fila->addWidget(riga(testa));
    for (const NomeControllo nome :
         std::initializer_list<NomeControllo>{"Tavolo1.cmdAssi", "Tavolo1.CmdGriglia", "Tavolo1.cmdDim", "Tavolo1.cmdPulisci"})
        metti(nome);
    fila->addStretch(1);
    fila = new QHBoxLayout;
    fila->setSpacing(3);
    file_->addLayout(fila, 1);
    invX_ = metti("Tavolo1.cmdInvX");
    invY_ = metti("Tavolo1.cmdInvY");
    fila->addStretch(1);
    const auto strumento = [&](std::string_view nome, auto azione) {
        auto *b = new QToolButton(testa);
        const Comando *c = TrovaComando(nome);
        const QString aiuto = ponte_.Traduci(c->testo);
        VestiBottone(b, c);
        b->setToolTip(aiuto + TastiDi(c));
        b->setAutoRaise(true);
        b->setAccessibleName(aiuto);
        b->setFocusPolicy(Qt::TabFocus);
        connect(b, &QToolButton::clicked, this, azione);
        fila->addWidget(b);
    };
    constexpr double PASSO = 1.25;
    strumento("rimpicciolisci", [this] { foglio_->ingrandisci(1 / PASSO); });
    strumento("ingrandisci", [this] { foglio_->ingrandisci(PASSO); });
    strumento("tutto", [this] { foglio_->tutto(); });
    metti("Tavolo1.cmbScala");
    return testa;
}

QWidget *Quadro::piede() {
    auto *p = new QWidget(this);
    p->setObjectName(QStringLiteral("piede"));
    // The message has a row of its own where the window is narrow.
    piede_ = new QBoxLayout(QBoxLayout::LeftToRight, p);
    piede_->setContentsMargins(8, 3, 8, 3);
    piede_->setSpacing(4);
    detti_ = new QBoxLayout(QBoxLayout::LeftToRight);
    detti_->setObjectName(QStringLiteral("detti"));
    detti_->setSpacing(14);
    piede_->addLayout(detti_, 1);
    auto *messaggio = qobject_cast<QLabel *>(ponte_.crea("Tavolo1.p_mess", p));
    messaggio->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    messaggio->setMinimumWidth(60);
    messaggio->setWordWrap(true);
    detti_->addWidget(messaggio, 1);
    auto *fila = new QHBoxLayout;
    fila->setSpacing(10);
    piede_->addLayout(fila);
    posizione_ = new QLabel(p);
    posizione_->setTextFormat(Qt::PlainText);
    posizione_->setToolTip(ponte_.Traduci("Sotto il puntatore, millimetri: x verso destra, y verso il basso"));
    posizione_->setMinimumWidth(posizione_->fontMetrics().horizontalAdvance(QStringLiteral("x -00000.0   y -00000.0 mm")));
    posizione_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    fila->addWidget(posizione_, 1);
    for (const auto &[nome, aiuto] :
         {std::pair{NomeControllo("Tavolo1.lblXYval"),
                    ponte_.Traduci("Ultimo punto premuto, millimetri: x verso destra, y verso il basso")},
          std::pair{NomeControllo("Tavolo1.lblDimVal"), ponte_.Traduci("Foglio, metri")},
          std::pair{NomeControllo("Tavolo1.lblScala"), ponte_.Traduci("Scala del foglio")}}) {
        fila->addWidget(riga(p));
        QWidget *w = ponte_.crea(nome, p);
        w->setToolTip(aiuto);
        w->setMinimumWidth(w->fontMetrics().horizontalAdvance(
            QString::fromLatin1(nome == NomeControllo("Tavolo1.lblScala") ? "1:100" : "-0000 : -0000")));
        fila->addWidget(w);
    }
    return p;
}

QWidget *Quadro::pannello(NomeControllo cornice, std::initializer_list<std::initializer_list<NomeControllo>> righe) {
    QWidget *p = ponte_.crea(cornice, this);
    p->setAutoFillBackground(true);
    auto *griglia = new QGridLayout(p);
    int r = 0;
    for (const auto &voci : righe) {
        int c = 0;
        for (const NomeControllo nome : voci) {
            QWidget *w = ponte_.crea(nome, p);
            if (qobject_cast<QLineEdit *>(w)) w->setFixedWidth(96);
            griglia->addWidget(w, r, c, 1, voci.size() == 1 ? 2 : 1);
            if (c == 1)
                if (auto *etichetta = qobject_cast<QLabel *>(griglia->itemAtPosition(r, 0)->widget())) etichetta->setBuddy(w);
            ++c;
        }
        ++r;
    }
    return p;
}

// Each below its button; those open together side by side.
void Quadro::collocaPannelli() {
    int libero = 4;
    for (const auto &[p, bottone] : pannelli_) {
        if (p->isHidden()) continue;
        p->adjustSize();
        const QPoint sotto = bottone->mapTo(this, QPoint(0, bottone->height() + 8));
        const int x = std::max(libero, std::min(sotto.x(), width() - p->width() - 24));
        p->move(x, sotto.y());
        p->raise();
        libero = x + p->width() + 6;
    }
}

void Quadro::offri(const QString &testo, std::vector<Offerta> offerte) {
    detto_ = testo;
    offerte_ = std::move(offerte);
    mostraAvviso();
}

void Quadro::mostraAvviso() {
    const auto legame = [](const QString &dove, const QString &testo) {
        return QStringLiteral(" &nbsp;<a href=\"%1\">%2</a>").arg(dove, testo.toHtmlEscaped());
    };
    QString t = detto_.toHtmlEscaped();
    for (std::size_t i = 0; i < offerte_.size(); ++i) t += legame(QString::number(i), offerte_[i].testo);
    if (t.isEmpty() && corniceFuori())
        t = ponte_.Traduci("La cornice esce dal foglio:").toHtmlEscaped() +
            legame(QStringLiteral("a"), ponte_.Traduci("Adatta il foglio"));
    avviso_->setText(t);
    avviso_->setVisible(!t.isEmpty());
}

std::optional<Linea> Quadro::lineaPresso(const QPointF &mondo) const {
    constexpr double RAGGIO = 5;  // dots
    return LineaSotto(ponte_.sessione().tavolo, foglio_->stile(), mondo, RAGGIO * foglio_->metriAlPunto());
}

// A line is chosen; beside the lines a tile of paper is; off the sheet nothing.
void Quadro::clic(const QPointF &punto) {
    if (!foglio_->sulFoglio(punto)) return;
    if (const auto linea = lineaPresso(foglio_->suMondo(punto)); linea && suLinea) return suLinea(linea);
    const QPointF d = foglio_->suDispositivo(punto);
    if (foglio_->stile().scelta && suLinea) suLinea({});
    ponte_.passo = ponte_.Traduci("Pagina scelta");
    ponte_.fai(NESSUN_CONTROLLO, [&] { ponte_.sessione().tavolo.MouseDown(d.x(), d.y()); });
}

void Quadro::sotto(const QPointF &mondo) {
    const Sessione &s = ponte_.sessione();
    if (s.tavolo.lista().pretese.empty()) return foglio_->fumetto({});
    QString testo;
    if (const auto linea = lineaPresso(mondo)) testo = NomeLinea(s, linea->strato, linea->valore);
    if (const QString letto = LetturaDi(s, mondo); !letto.isEmpty())
        testo += (testo.isEmpty() ? QString() : QStringLiteral("\n")) + letto;
    foglio_->fumetto(testo);
}

void Quadro::piega() {
    if (larga_ == 0) {
        if (!isVisible()) return;
        larga_ = file_->sizeHint().width();
    }
    constexpr int FILA = 470, PIEDE = 760;
    SoloIcona(bottoni_, width() < larga_);
    file_->setDirection(width() < FILA ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    piede_->setDirection(width() < PIEDE ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    detti_->setDirection(width() < FILA ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    detti_->setSpacing(width() < FILA ? 2 : 14);
}

void Quadro::resizeEvent(QResizeEvent *e) {
    piega();
    QWidget::resizeEvent(e);
    collocaPannelli();
}

void Quadro::showEvent(QShowEvent *e) {
    QWidget::showEvent(e);
    piega();
}

// Whether the frame of the limit lines leaves the sheet.
bool Quadro::corniceFuori() const {
    const DialInputs &in = ponte_.sessione().in;
    const Tavolo &t = ponte_.sessione().tavolo;
    const double u = UnitaDi(in);
    const Valore x0 = Val(in.txtX0) * u, x1 = Val(in.txtX1) * u, y0 = Val(in.txtY0) * u, y1 = Val(in.txtY1) * u;
    if (!(x0.esiste() && x1.esiste() && y0.esiste() && y1.esiste())) return false;
    constexpr double NULLA = 1e-9;
    const PuntoPiano a = t.dipinto(x0.v, y0.v), b = t.dipinto(x1.v, y1.v);
    const auto fuori = [](double p, double q, double lato) { return std::min(p, q) < -NULLA || std::max(p, q) > lato + NULLA; };
    return fuori(a.x, b.x, t.QuadranteL()) || fuori(a.y, b.y, t.QuadranteH());
}

void Quadro::aggiorna() {
    const Tavolo &t = ponte_.sessione().tavolo;
    // 0x80FFFF of the palette's order: a pale yellow.
    const QString tinta = QStringLiteral("background:#ffff80; color:#202020;");
    invX_->setStyleSheet(t.FattoreX < 0 ? tinta : QString());
    invY_->setStyleSheet(t.FattoreY < 0 ? tinta : QString());
    mostraAvviso();
    collocaPannelli();
}

}  // namespace ombrelia::desktop
