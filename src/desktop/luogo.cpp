// The place by its name.
#include "desktop/luogo.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>
#include <cmath>
#include <functional>
#include <memory>

#include "core/testo.h"
#include "desktop/dialoghi.h"
#include "luoghi/atlante.h"

namespace ombrelia::desktop {

namespace {

QString voce(const luoghi::Luogo &l) {
    QString t = Q(l.nome) + QStringLiteral(", ") + Q(l.paese);
    if (!l.regione.empty()) t += QStringLiteral(" (") + Q(l.regione) + QLatin1Char(')');
    return t;
}

std::string numero(double x) { return TestoNumero(std::round(x * 1e5) / 1e5); }

// With the list open and nothing chosen in it the key takes the first.
class CampoLuogo final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;
    std::function<void()> suPrimo;

protected:
    void keyPressEvent(QKeyEvent *e) override {
        const bool invio = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
        if (!invio || completer()->popup()->currentIndex().isValid()) return QLineEdit::keyPressEvent(e);
        suPrimo();
        e->accept();
    }
};

}  // namespace

QWidget *CercaLuogo(Ponte &ponte, QWidget *genitore) {
    auto *cerca = new CampoLuogo(genitore);
    cerca->setObjectName(QStringLiteral("cercaLuogo"));
    cerca->setPlaceholderText(ponte.Traduci("Cerca un luogo..."));
    cerca->setToolTip(ponte.Traduci("Scrivi il nome di una città: latitudine, longitudine e meridiano del fuso vengono da sé"));
    cerca->setAccessibleName(ponte.Traduci("Cerca un luogo..."));
    cerca->setClearButtonEnabled(true);
    auto *nomi = new QStringListModel(cerca);
    auto *guida = new QCompleter(nomi, cerca);
    guida->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    guida->setMaxVisibleItems(12);
    cerca->setCompleter(guida);
    auto trovati = std::make_shared<std::vector<const luoghi::Luogo *>>();
    QObject::connect(cerca, &QLineEdit::textEdited, cerca, [nomi, trovati](const QString &testo) {
        trovati->clear();
        constexpr int LETTERE = 2;
        if (testo.trimmed().size() >= LETTERE) *trovati = luoghi::Atlante::Comune().Suggerisci(testo.trimmed().toStdString());
        QStringList voci;
        for (const luoghi::Luogo *l : *trovati) voci << voce(*l);
        nomi->setStringList(voci);
    });
    const auto scegli = [&ponte, trovati, cerca](const luoghi::Luogo &l) {
        ponte.passo = voce(l);
        ponte.fai(NESSUN_CONTROLLO, [&] {
            Sessione &s = ponte.sessione();
            s.Scrivi(&DialInputs::txtLAT, numero(l.latitudine));
            s.Scrivi(&DialInputs::txtLonG, numero(l.longitudine));
            s.Scrivi(&DialInputs::txtMeridiano, numero(l.meridiano));
        });
        cerca->selectAll();
    };
    QObject::connect(guida, qOverload<const QModelIndex &>(&QCompleter::activated), cerca,
                     [trovati, scegli](const QModelIndex &quale) {
                         const auto n = static_cast<std::size_t>(quale.row());
                         if (quale.isValid() && n < trovati->size()) scegli(*(*trovati)[n]);
                     });
    cerca->suPrimo = [trovati, scegli, guida] {
        guida->popup()->hide();
        if (!trovati->empty()) scegli(*trovati->front());
    };
    return cerca;
}

}  // namespace ombrelia::desktop
