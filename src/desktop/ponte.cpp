// Widgets of the table's rows.
#include "desktop/ponte.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <stdexcept>
#include <utility>

#include "app/azioni.h"
#include "desktop/aiuti.h"
#include "desktop/campo.h"
#include "desktop/clessidra.h"
#include "desktop/comandi.h"
#include "desktop/dialoghi.h"
#include "desktop/parole.h"

namespace ombrelia::desktop {

namespace {

QString nomeOggetto(const Controllo &r) {
    QString n = Q(r.nome);
    if (r.indice >= 0) n += QStringLiteral("(%1)").arg(r.indice);
    return n;
}

template <class T>
void secambia(T *w, const QString &nuovo) {
    if (w->text() != nuovo) w->setText(nuovo);
}

void voci(Sessione &s, IdControllo id, QComboBox *c) {
    QStringList v;
    if (RigaDi(id).pannello)
        for (const int n : s.tavolo.cmbScala()) v << QStringLiteral("1:%1").arg(n);
    else
        for (const std::string &paese : s.mondo.paesi) v << Q(paese);
    bool uguali = v.size() == c->count();
    for (int i = 0; uguali && i < c->count(); ++i) uguali = c->itemText(i) == v.at(i);
    if (!uguali) {
        c->clear();
        c->addItems(v);
    }
    c->setCurrentIndex(c->findText(Q(s.testo(id))));
}

}  // namespace

QString Leggibile(const std::string &caption) { return Q(caption).simplified().replace(QLatin1Char('&'), QStringLiteral("&&")); }

QString Ponte::Traduci(std::string_view testo) const { return Q(s_.Traduci(testo)); }

QString SoloTesto(const QString &testo) { return Qt::mightBeRichText(testo) ? testo.toHtmlEscaped() : testo; }

// A caption that the program changed as it ran stands as it is.
QString Ponte::didascalia(IdControllo id) const {
    const Aiuto *a = TrovaAiuto(id);
    const std::string &sua = s_.stato(id).caption;
    return a && !a->umano.empty() && sua == s_.Traduci(RigaDi(id).caption) ? Traduci(a->umano) : Leggibile(sua);
}

QString Ponte::nome(IdControllo id) const {
    auto k = static_cast<std::size_t>(id);
    const Classe classe = RigaDi(id).classe;
    if (classe == Classe::Testo || classe == Classe::Elenco)
        while (k > 0 && s_.stato(static_cast<IdControllo>(k)).caption.empty()) --k;
    QString n = didascalia(static_cast<IdControllo>(k)).simplified();
    while (n.endsWith(QLatin1Char('=')) || n.endsWith(QLatin1Char(':')) || n.endsWith(QLatin1Char(' '))) n.chop(1);
    return n.isEmpty() ? nomeOggetto(RigaDi(id)) : n;
}

app::Esito Ponte::svolgi(IdControllo id, const std::function<app::Esito()> &azione) {
    if (prima && !prima(id)) {
        sincronizza();
        return app::Esito::Annullato;
    }
    app::Esito esito;
    ++dentro_;
    try {
        esito = azione();
    } catch (const std::bad_alloc &) {
        if (suInterrotto) suInterrotto(true);
        esito = app::Esito::Annullato;
    } catch (const Fermato &) {
        if (suInterrotto) suInterrotto(false);
        esito = app::Esito::Annullato;
    }
    --dentro_;
    sincronizza();
    if (dopo) dopo(id, esito);
    return esito;
}

QWidget *Ponte::widget(IdControllo id) const {
    for (const Legame &l : legami_)
        if (l.id == id) return l.widget;
    return nullptr;
}

app::Esito Ponte::premi(IdControllo id) {
    return fai(id, [&] { return app::Premi(s_, id); });
}

void Ponte::adotta(IdControllo id, QWidget *widget) {
    widget->setObjectName(nomeOggetto(RigaDi(id)));
    legami_.push_back({id, widget, nullptr});
    mostra(legami_.back());
}

QAction *Ponte::voce(IdControllo id, QObject *genitore) {
    auto *a = new QAction(genitore);
    a->setObjectName(nomeOggetto(RigaDi(id)));
    QObject::connect(a, &QAction::triggered, a, [this, id] { fai(id, [&] { return app::Premi(s_, id); }); });
    legami_.push_back({id, nullptr, a});
    mostra(legami_.back());
    return a;
}

QWidget *Ponte::crea(IdControllo id, QWidget *genitore) {
    QWidget *w = nullptr;
    switch (RigaDi(id).classe) {
        case Classe::Testo:
            w = new CampoTesto(*this, id, genitore);
            break;
        case Classe::Casella:
            w = new QCheckBox(genitore);
            break;
        case Classe::Opzione: {
            auto *o = new QRadioButton(genitore);
            o->setAutoExclusive(false);  // the session clears the others
            w = o;
            break;
        }
        case Classe::Pulsante:
            w = new QPushButton(genitore);
            break;
        case Classe::Etichetta: {
            auto *l = new QLabel(genitore);
            l->setTextFormat(Qt::PlainText);
            w = l;
            break;
        }
        case Classe::Elenco:
            w = new QComboBox(genitore);
            break;
        case Classe::Cornice:
            w = RigaDi(id).caption.empty() ? new QWidget(genitore) : new QGroupBox(genitore);
            break;
        default:
            w = new QWidget(genitore);
            break;
    }
    w->setObjectName(nomeOggetto(RigaDi(id)));
    if (auto *b = qobject_cast<QAbstractButton *>(w)) VestiBottone(b, TrovaComando(id));
    Spiega(s_, id, w);
    collega(id, w);
    legami_.push_back({id, w, nullptr});
    mostra(legami_.back());
    return w;
}

void Ponte::collega(IdControllo id, QWidget *w) {
    const auto premuto = [this, id] { fai(id, [&] { return app::Premi(s_, id); }); };
    if (auto *b = qobject_cast<QAbstractButton *>(w)) {
        if (RigaDi(id).classe == Classe::Casella)
            QObject::connect(b, &QAbstractButton::clicked, b,
                             [this, id](bool su) { fai(id, [&] { app::Spunta(s_, id, su ? 1 : 0); }); });
        else QObject::connect(b, &QAbstractButton::clicked, b, premuto);
    } else if (auto *c = qobject_cast<QComboBox *>(w)) {
        QObject::connect(c, &QComboBox::textActivated, c,
                         [this, id](const QString &v) { fai(id, [&] { app::Imposta(s_, id, v.toStdString()); }); });
    } else if (auto *e = qobject_cast<QLineEdit *>(w)) {
        QObject::connect(e, &QLineEdit::textEdited, e, [this, id, e](const QString &v) {
            const auto *campo = dynamic_cast<const CampoTesto *>(e);
            fai(id, [&] { app::Cambia(s_, id, campo ? campo->valore() : v.toStdString()); });
        });
    }
}

void Ponte::sincronizza() {
    if (dentro_ > 0) return;
    for (Legame &l : legami_) mostra(l);
}

void Ponte::mostra(Legame &l) {
    const StatoControllo &stato = s_.stato(l.id);
    if (l.azione) {
        secambia(l.azione, didascalia(l.id));
        l.azione->setEnabled(stato.abilitato);
        return;
    }
    QWidget *w = l.widget;
    const QSignalBlocker zitto(w);
    if (auto *e = qobject_cast<QLineEdit *>(w)) {
        const QString testo = Q(s_.testo(l.id));
        // An angle in hand stands as its user writes it.
        const auto *campo = dynamic_cast<const CampoTesto *>(e);
        const bool inMano = campo && e->hasFocus() && Q(campo->valore()) == testo;
        if (e->text() != testo && !inMano) {
            const int cursore = e->cursorPosition();
            e->setText(testo);
            e->setCursorPosition(e->hasFocus() ? std::min(cursore, static_cast<int>(testo.size())) : 0);
        }
    } else if (auto *c = qobject_cast<QComboBox *>(w)) {
        voci(s_, l.id, c);
    } else if (auto *b = qobject_cast<QAbstractButton *>(w)) {
        if (!b->property("soloIcona").toBool()) secambia(b, didascalia(l.id));
        if (RigaDi(l.id).classe != Classe::Pulsante) {
            b->setCheckable(true);
            // A box that does not answer draws nothing either: it shows so.
            b->setChecked(s_.valore(l.id) == 1 && (stato.abilitato || !RigaDi(l.id).casella));
        }
    } else if (auto *lab = qobject_cast<QLabel *>(w)) {
        if (RigaDi(l.id).classe == Classe::Etichetta)
            secambia(lab, RigaDi(l.id).pannello ? Detto(*this, app::Didascalia(s_, l.id)) : didascalia(l.id));
    } else if (auto *g = qobject_cast<QGroupBox *>(w)) {
        if (g->title() != didascalia(l.id)) g->setTitle(didascalia(l.id));
    } else if (auto *p = qobject_cast<QPlainTextEdit *>(w)) {
        const QString testo = Q(s_.testo(l.id)).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        if (p->toPlainText() != testo) p->setPlainText(testo);
    }
    // What is said of it changes seldom.
    const QString suo = nome(l.id);
    if (std::string detto = suo.toStdString() + stato.toolTip; l.detto != detto) {
        l.detto = std::move(detto);
        if (w->focusPolicy() != Qt::NoFocus) w->setAccessibleName(suo);
        if (const QString aiuto = Suggerimento(s_, l.id); !aiuto.isEmpty() || !RigaDi(l.id).toolTip.empty()) w->setToolTip(aiuto);
    }
    if (w->isEnabled() != stato.abilitato && RigaDi(l.id).classe != Classe::Cornice) w->setEnabled(stato.abilitato);
    if (w->isHidden() == stato.visibile && (RigaDi(l.id).classe != Classe::Altro)) w->setVisible(stato.visibile);
}

}  // namespace ombrelia::desktop
