// Lines under fields.
#include "desktop/note_campi.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QStyle>
#include <algorithm>
#include <set>

#include "app/plausibile.h"
#include "core/testo.h"
#include "desktop/campo.h"
#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

namespace {

// The main window's fields that hold an angle.
const std::vector<std::pair<IdControllo, const luoghi::CampoAngolo *>> &campiAngolo() {
    static const auto tavola = [] {
        std::vector<std::pair<IdControllo, const luoghi::CampoAngolo *>> campi;
        for (const Controllo &c : ControlliDi("MDIForm1"))
            if (const auto *angolo = luoghi::TrovaCampoAngolo(c.nome); angolo && c.classe == Classe::Testo)
                campi.emplace_back(IdDi(c), angolo);
        return campi;
    }();
    return tavola;
}

}  // namespace

NoteCampi::NoteCampi(Ponte &ponte, QObject *genitore) : QObject(genitore), ponte_(ponte) {
    // Later: the keys leave a window that goes away, too, when its fields may be gone already.
    connect(
        qApp, &QApplication::focusChanged, this, [this] { aggiorna(); }, Qt::QueuedConnection);
}

NoteCampi::Nota NoteCampi::diAngolo(IdControllo campo, const luoghi::CampoAngolo &c) const {
    const std::string &testo = ponte_.sessione().testo(campo);
    const luoghi::AngoloLetto letto = luoghi::LeggiAngolo(testo, c);
    const QWidget *w = ponte_.widget(campo);
    if (letto.buono())
        return {letto.testo != testo || (w && w->hasFocus())
                    ? QStringLiteral("= ") + DueFormeTradotte(ponte_, letto.gradi, c.verso)
                    : QString()};
    if (letto.intoppo == luoghi::Intoppo::Vuoto) return {};
    return {ponte_.Traduci(luoghi::Motivo(letto.intoppo)), true};
}

// The line is the next one of the field's group, made when it is needed first.
QLabel *NoteCampi::etichetta(QWidget *campo) {
    QWidget *gruppo = campo->parentWidget();
    auto *colonna = gruppo ? qobject_cast<QBoxLayout *>(gruppo->layout()) : nullptr;
    if (!colonna || colonna->direction() != QBoxLayout::TopToBottom) return nullptr;
    int riga = -1;
    for (int i = 0; i < colonna->count() && riga < 0; ++i) {
        QLayoutItem *voce = colonna->itemAt(i);
        if (voce->widget() == campo || (voce->layout() && voce->layout()->indexOf(campo) >= 0)) riga = i;
    }
    if (riga < 0) return nullptr;
    auto *l = new QLabel(gruppo);
    l->setObjectName(QStringLiteral("nota"));
    l->setTextFormat(Qt::PlainText);
    l->setWordWrap(true);
    l->hide();
    colonna->insertWidget(riga + 1, l);
    return l;
}

void NoteCampi::aggiorna() {
    std::map<IdControllo, Nota> note;
    for (const auto &[campo, angolo] : campiAngolo())
        if (Nota n = diAngolo(campo, *angolo); !n.testo.isEmpty()) note[campo] = std::move(n);
    for (const app::Dubbio &d : app::Dubbi(ponte_.sessione().in)) note[d.campo] = {ponte_.Traduci(d.motivo), true};
    std::set<IdControllo> tutti;
    for (const auto &[campo, n] : note) tutti.insert(campo);
    for (const auto &[campo, l] : etichette_) tutti.insert(campo);
    for (const IdControllo campo : tutti) {
        QWidget *w = ponte_.widget(campo);
        if (!w) continue;
        const auto gia = etichette_.find(campo);
        QLabel *l = gia != etichette_.end() ? gia->second : etichette_[campo] = etichetta(w);
        if (!l) continue;
        const auto n = note.find(campo);
        const bool dubbio = n != note.end() && n->second.dubbio;
        l->setText(n == note.end() ? QString() : n->second.testo);
        l->setVisible(n != note.end());
        if (l->property("dubbio").toBool() != dubbio) {
            l->setProperty("dubbio", dubbio);
            l->style()->unpolish(l);
            l->style()->polish(l);
        }
        if (dubbio || w->property("dubbio").toBool()) {
            w->setProperty("dubbio", dubbio);
            w->setAccessibleDescription(dubbio ? l->text() : QString());
        }
    }
}

QString NoteCampi::nota(IdControllo campo) const {
    const auto l = etichette_.find(campo);
    return l == etichette_.end() || !l->second || l->second->isHidden() ? QString() : l->second->text();
}

bool NoteCampi::angoliInteri() const {
    Sessione &s = ponte_.sessione();
    return std::ranges::all_of(campiAngolo(), [&](const auto &campo) {
        const luoghi::AngoloLetto letto = luoghi::LeggiAngolo(s.testo(campo.first), *campo.second);
        return letto.intoppo == luoghi::Intoppo::Vuoto || !letto.testo.empty();
    });
}

bool NoteCampi::leggiAngoli() {
    Sessione &s = ponte_.sessione();
    for (const auto &[id, angolo] : campiAngolo()) {
        const luoghi::AngoloLetto letto = luoghi::LeggiAngolo(s.testo(id), *angolo);
        // A plain number out of its range is told and drawn all the same.
        if (!letto.testo.empty() && letto.testo != s.testo(id)) app::Cambia(s, id, letto.testo);
        if (!letto.testo.empty() || letto.intoppo == luoghi::Intoppo::Vuoto) continue;
        if (QWidget *w = ponte_.widget(id)) w->setFocus(Qt::OtherFocusReason);
        aggiorna();
        return false;
    }
    return true;
}

}  // namespace ombrelia::desktop
