// The manual.
#include "desktop/manuale.h"

#include <QFile>
#include <QLineEdit>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "core/percorsi.h"
#include "desktop/dialoghi.h"
#include "desktop/lingua_finestra.h"

namespace ombrelia::desktop {

QString ManualeDi(const QString &manuale, const QString &lingua) {
    const QString titolo = lingua == QLatin1String("fr")   ? QStringLiteral("\n## Français\n")
                           : lingua == QLatin1String("en") ? QStringLiteral("\n## English\n")
                                                           : QStringLiteral("\n## Italiano\n");
    const qsizetype da = manuale.indexOf(titolo);
    if (da < 0) return manuale;
    const qsizetype a = manuale.indexOf(QLatin1String("\n## "), da + titolo.size());
    return manuale.mid(da + 1, a < 0 ? -1 : a - da);
}

bool ApriManuale(Ponte &ponte, QWidget *sopra, const QString &parola) {
    const auto dato = TrovaDato("luoghi.csv");
    if (!dato) return false;
    // Beside the sources' data, and where it is installed.
    QFile file;
    for (const char *dove : {"../docs/manual.md", "../doc/ombrelia/manual.md"}) {
        file.setFileName(Q((dato->parent_path() / dove).string()));
        if (file.open(QIODevice::ReadOnly)) break;
    }
    if (!file.isOpen()) return false;
    auto *w = new QWidget(sopra, Qt::Window);
    w->setAttribute(Qt::WA_DeleteOnClose);
    w->setWindowTitle(ponte.Traduci("Manuale"));
    w->resize(860, 720);
    auto *giu = new QVBoxLayout(w);
    auto *cerca = new QLineEdit(w);
    cerca->setPlaceholderText(ponte.Traduci("Cerca nel manuale, Invio per il seguente"));
    cerca->setAccessibleName(cerca->placeholderText());
    giu->addWidget(cerca);
    auto *testo = new QTextBrowser(w);
    testo->setOpenExternalLinks(true);
    testo->setSearchPaths({Q(dato->parent_path().string()) + QStringLiteral("/../docs"),
                           Q(dato->parent_path().string()) + QStringLiteral("/../doc/ombrelia")});
    testo->setMarkdown(ManualeDi(QString::fromUtf8(file.readAll()), CodiceLingua(ponte.sessione())));
    giu->addWidget(testo, 1);
    QObject::connect(cerca, &QLineEdit::returnPressed, testo, [cerca, testo] {
        if (testo->find(cerca->text())) return;
        testo->moveCursor(QTextCursor::Start);
        testo->find(cerca->text());
    });
    w->show();
    if (!parola.isEmpty()) testo->find(parola);
    return true;
}

}  // namespace ombrelia::desktop
