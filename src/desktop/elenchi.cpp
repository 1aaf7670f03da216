// Lists that remember.
#include "desktop/elenchi.h"

#include <algorithm>

namespace ombrelia::desktop {

QComboBox *ElencoRicordato(QFormLayout &righe, const QSettings &ricordi, const QString &nome, const char *chiave,
                           const QStringList &voci, int prima) {
    auto *c = new QComboBox(righe.parentWidget());
    c->setObjectName(QString::fromLatin1(chiave));
    c->addItems(voci);
    c->setCurrentIndex(std::clamp(ricordi.value(QLatin1String(chiave), prima).toInt(), 0, static_cast<int>(voci.size()) - 1));
    c->setAccessibleName(nome);
    righe.addRow(nome, c);
    return c;
}

}  // namespace ombrelia::desktop
