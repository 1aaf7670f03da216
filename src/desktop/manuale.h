// The manual in a window of its own.
#pragma once

#include <QHash>
#include <string_view>
#include <vector>

#include "desktop/ponte.h"

namespace ombrelia::desktop {

// What of the window the manual speaks of where: the name of a widget, or the Italian title of a group, and an anchor.
struct ParteManuale {
    std::string_view chi, ancora;
};
// Those of the window and of each report's form.
[[nodiscard]] const std::vector<ParteManuale> &PartiManuale();
// Of a widget, or of the nearest around it that has a part; the manual's beginning for others.
[[nodiscard]] QString AncoraDi(const QWidget *w);

// A manual without its anchors, and the heading that stands behind each (empty: its beginning).
struct ManualeLetto {
    QString testo;
    QHash<QString, QString> titoli;
};
[[nodiscard]] ManualeLetto LeggiManuale(const QString &markdown);

// Opens the manual over a window, in the window's language, at an anchor. False when it is not installed.
bool ApriManuale(Ponte &ponte, QWidget *sopra, const QString &ancora);

}  // namespace ombrelia::desktop
