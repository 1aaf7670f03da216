// The manual.
#include "desktop/manuale.h"

#include <QFile>
#include <QLineEdit>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "core/percorsi.h"
#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

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
    testo->setMarkdown(QString::fromUtf8(file.readAll()));
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
