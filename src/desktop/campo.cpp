// The text boxes.
#include "desktop/campo.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "app/azioni.h"
#include "controlli/nomi.h"
#include "desktop/dialoghi.h"
#include "luoghi/angolo.h"

namespace ombrelia::desktop {

namespace {

// Signs of degrees and minutes, and the winds in capitals.
const QString DELL_ANGOLO = QString::fromUtf8("°'′″ NSEWO");

constexpr MisuraCampo MISURE[] = {
    {"txtLAT", 'g', 0.5, -90, 90},
    {"txtLonG", 'g', 0.5, -180, 180},
    {"txtDec", 'g', 1, -180, 180},
    {"txtInc", 'g', 1, -90, 90},
    {"txtMeridiano", 'g', 15, -180, 180},
    {"TxtStilo", 'l', 0.005},
    {"txtSUBSTYLE", 'l', 0.005},
    {"txtX0", 'l', 0.01},
    {"txtY0", 'l', 0.01},
    {"txtX1", 'l', 0.01},
    {"txtY1", 'l', 0.01},
    {"txtEqx", 'l', 0.01},
    {"txtEqy", 'l', 0.01},
    {"txtSusx", 'l', 0.01},
    {"txtSusy", 'l', 0.01},
    {"txtOriz", 'l', 0.01},
    {"TxtFraz", 0, 1, 1, 60},
    {"TxtInizio", 'h', 0.5, 0, 24},
    {"TxtFine", 'h', 0.5, 0, 24},
    {"txtDelta", 'g', 0.5, -23.45, 23.45},
    {"txtAO", 'g', 1, -180, 180},
    {"txtMinus", 'l', 0.05},
    {"txtMax", 'l', 0.05},
    {"txtDensity", 0, 0.001, 0.0001, 1},
    {"txtNumbersize", 'l', 0.002},
    {"txtArabi", 'l', 0.002},
    {"txtZodiacsize", 'l', 0.002},
    {"txtAltezzaEtichette", 'm', 1, 1, 200},
    {"txtQlat", 'g', 0.5, -90, 90},
    {"txtQlon", 'g', 0.5, -180, 180},
    {"textDelta", 'g', 0.5, -30, 30},
    {"txtH", 'g', 1, -180, 180},
};

}  // namespace

const MisuraCampo *TrovaMisura(IdControllo id) {
    const auto i = std::find_if(std::begin(MISURE), std::end(MISURE), [id](const MisuraCampo &m) { return m.campo == id; });
    return i == std::end(MISURE) ? nullptr : i;
}

QString DueFormeTradotte(const Ponte &ponte, double gradi, luoghi::Verso verso) {
    QString t = Q(luoghi::DueForme(gradi, verso));
    if (t.endsWith(QStringLiteral(" W"))) t = t.chopped(1) + ponte.Traduci("O (ovest)").left(1);
    return t;
}

CampoTesto::CampoTesto(Ponte &ponte, IdControllo id, QWidget *genitore)
    : QLineEdit(genitore),
      ponte_(ponte),
      id_(id),
      misura_(TrovaMisura(id)),
      angolo_(RigaDi(id).modulo == "MDIForm1" && luoghi::TrovaCampoAngolo(RigaDi(id).nome) != nullptr) {
    if (RigaDi(id).filtro != Filtro::Nessuno) setInputMethodHints(Qt::ImhPreferNumbers);
    if (misura_ && misura_->unita) setTextMargins(0, 0, fontMetrics().horizontalAdvance(QStringLiteral("mm")) + 3, 0);
    connect(this, &QLineEdit::returnPressed, this, [this] { concludi(); });
}

QString CampoTesto::unita() const {
    switch (misura_ ? misura_->unita : 0) {
        case 'g':
            return QStringLiteral("°");
        case 'h':
            return QStringLiteral("h");
        case 'm':
            return QStringLiteral("mm");
        case 'l':
            return ponte_.sessione().in.ChCentimetro == 1 ? QStringLiteral("mm") : QStringLiteral("m");
        default:
            return {};
    }
}

void CampoTesto::paintEvent(QPaintEvent *e) {
    QLineEdit::paintEvent(e);
    const QString u = unita();
    if (u.isEmpty()) return;
    QPainter p(this);
    p.setPen(palette().color(QPalette::PlaceholderText));
    p.drawText(rect().adjusted(0, 0, -6, 0), Qt::AlignRight | Qt::AlignVCenter, u);
}

// One key's worth up or down, exact in decimals.
void CampoTesto::scatta(int volte) {
    if (!misura_ || misura_->passo == 0 || isReadOnly()) return;
    const bool mm = misura_->unita == 'l' && ponte_.sessione().in.ChCentimetro == 1;
    const double passo = misura_->passo * (mm ? 1000 : 1);
    const Valore ora = Val(text().toStdString());
    double nuovo = (ora.esiste() ? ora.v : 0) + volte * passo;
    nuovo = std::round(nuovo * 1e6) / 1e6;
    if (misura_->da < misura_->a) nuovo = std::clamp(nuovo, misura_->da, misura_->a);
    setText(Q(TestoNumero(nuovo)));
    selectAll();
    cambia();
}

void CampoTesto::wheelEvent(QWheelEvent *e) {
    // A box that was not entered lets its column scroll.
    if (!hasFocus() || !misura_ || misura_->passo == 0) return e->ignore();
    constexpr int SCATTO = 120;
    if (e->angleDelta().y() != 0) scatta(e->angleDelta().y() >= SCATTO ? 1 : e->angleDelta().y() <= -SCATTO ? -1 : 0);
    e->accept();
}

std::string CampoTesto::valore() const {
    std::string testo = text().toStdString();
    if (!angolo_) return testo;
    luoghi::AngoloLetto letto = luoghi::LeggiAngolo(testo, *luoghi::TrovaCampoAngolo(RigaDi(id_).nome));
    return letto.testo.empty() ? testo : std::move(letto.testo);
}

void CampoTesto::cambia() {
    ponte_.fai(id_, [this] { app::Cambia(ponte_.sessione(), id_, valore()); });
}

void CampoTesto::concludi() {
    const auto t = [this](std::string_view x) { return ponte_.Traduci(x); };
    QString detto;
    if (angolo_) {
        const luoghi::CampoAngolo &campo = *luoghi::TrovaCampoAngolo(RigaDi(id_).nome);
        const std::string prima = text().toStdString();
        const luoghi::AngoloLetto letto = luoghi::LeggiAngolo(prima, campo);
        if (letto.buono() && letto.testo != prima) {
            detto = Q(prima) + QStringLiteral(" = ") + DueFormeTradotte(ponte_, letto.gradi, campo.verso);
            setText(Q(letto.testo));
            cambia();
        } else if (!letto.buono() && letto.intoppo != luoghi::Intoppo::Vuoto && letto.intoppo != luoghi::Intoppo::FuoriCampo) {
            detto = t(luoghi::Motivo(letto.intoppo));
        }
    }
    bool fuori = false;
    if (misura_ && misura_->da < misura_->a) {
        const Valore v = Val(text().toStdString());
        fuori = !v.esiste() || v.v < misura_->da || v.v > misura_->a;
        if (fuori)
            detto = t("da"_it) + QLatin1Char(' ') + Q(TestoNumero(misura_->da)) + QLatin1Char(' ') + t("a"_it) +
                    QLatin1Char(' ') + Q(TestoNumero(misura_->a)) + QLatin1Char(' ') + unita();
    }
    if (property("fuori").toBool() != fuori) {
        setProperty("fuori", fuori);
        style()->unpolish(this);
        style()->polish(this);
    }
    if (!detto.isEmpty() && isVisible())
        QToolTip::showText(mapToGlobal(QPoint(width() + 4, -4)), SoloTesto(detto), this, {}, 5000);
}

void CampoTesto::immetti(const QString &testo) {
    if (isReadOnly()) return;
    QString tenuto;
    for (const QChar c : testo) {
        const char latino = c.toLatin1();
        if (c == QLatin1Char('"')) {
            ponte_.sessione().utente.Beep();
            if (ponte_.suVirgolette) ponte_.suVirgolette();
        } else if (RigaDi(id_).filtro == Filtro::Nessuno || (angolo_ && DELL_ANGOLO.contains(c))) {
            if (c.isPrint()) tenuto += c;
        } else if (latino < ' ') {
            ponte_.sessione().utente.Beep();  // no filter lets it pass
        } else if (const char k = app::FiltraTasto(ponte_.sessione(), id_, latino)) {
            tenuto += QLatin1Char(k);
        }
    }
    if (!tenuto.isEmpty()) insert(tenuto);
    cambia();
}

// The program's shortcuts are its own; the box would take some of them for moves of its cursor.
bool CampoTesto::event(QEvent *e) {
    if (e->type() == QEvent::ShortcutOverride) {
        const auto *t = static_cast<QKeyEvent *>(e);
        const auto m = t->modifiers() & ~Qt::ShiftModifier;
        if (m == Qt::ControlModifier && (t->key() == Qt::Key_E || t->key() == Qt::Key_Z || t->key() == Qt::Key_Y)) {
            e->ignore();
            return false;
        }
    }
    return QLineEdit::event(e);
}

void CampoTesto::keyPressEvent(QKeyEvent *e) {
    if (misura_ && e->modifiers() == Qt::NoModifier && (e->key() == Qt::Key_Up || e->key() == Qt::Key_Down))
        return scatta(e->key() == Qt::Key_Up ? 1 : -1);
    const bool incolla = e->matches(QKeySequence::Paste);
    const QString testo = incolla ? QGuiApplication::clipboard()->text().trimmed() : e->text();
    const bool stampabile = !testo.isEmpty() && testo.at(0).isPrint() &&
                            !(e->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!incolla && !stampabile) return QLineEdit::keyPressEvent(e);
    immetti(testo);
    e->accept();
}

void CampoTesto::mousePressEvent(QMouseEvent *e) {
    QLineEdit::mousePressEvent(e);
    if (entrato_) selectAll();  // the press has set the cursor
}

void CampoTesto::mouseReleaseEvent(QMouseEvent *e) {
    if (e->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection())
        return immetti(QGuiApplication::clipboard()->text(QClipboard::Selection).trimmed());
    QLineEdit::mouseReleaseEvent(e);
    if (std::exchange(entrato_, false) && selectedText().size() < 2) selectAll();
}

void CampoTesto::contextMenuEvent(QContextMenuEvent *e) {
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction *a : menu->actions()) {
        if (!a->text().startsWith(QLineEdit::tr("&Paste"))) continue;
        a->disconnect();
        a->setObjectName(QStringLiteral("incolla"));
        connect(a, &QAction::triggered, this, [this] { immetti(QGuiApplication::clipboard()->text().trimmed()); });
    }
    menu->popup(e->globalPos());
}

void CampoTesto::dropEvent(QDropEvent *e) {
    if (!e->mimeData()->hasText()) return;
    setCursorPosition(cursorPositionAt(e->position().toPoint()));
    immetti(e->mimeData()->text().trimmed());
    e->setDropAction(Qt::CopyAction);
    e->accept();
}

void CampoTesto::focusInEvent(QFocusEvent *e) {
    QLineEdit::focusInEvent(e);
    if (e->reason() == Qt::PopupFocusReason || e->reason() == Qt::ActiveWindowFocusReason) return;
    entrato_ = e->reason() == Qt::MouseFocusReason;
    app::Entra(ponte_.sessione(), id_);
    selectAll();
}

void CampoTesto::focusOutEvent(QFocusEvent *e) {
    QLineEdit::focusOutEvent(e);
    entrato_ = false;
    if (e->reason() == Qt::PopupFocusReason || e->reason() == Qt::ActiveWindowFocusReason) return;
    concludi();
    ponte_.fai(id_, [this] { app::LasciaCampo(ponte_.sessione(), id_); });
}

}  // namespace ombrelia::desktop
