// Choices in a dialog's form that stand as its user left them the last time.
#pragma once

#include <QComboBox>
#include <QFormLayout>
#include <QSettings>

namespace ombrelia::desktop {

// A list in a row of its own. ricordi holds the number of its entry under the key, prima stands at the first use.
[[nodiscard]] QComboBox *ElencoRicordato(QFormLayout &righe, const QSettings &ricordi, const QString &nome, const char *chiave,
                                         const QStringList &voci, int prima);

}  // namespace ombrelia::desktop
