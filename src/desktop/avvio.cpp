// The window's process.
#include "desktop/avvio.h"

#include <QApplication>
#include <QSettings>
#include <QTimer>
#include <clocale>

#include "desktop/finestra.h"
#include "desktop/stile.h"

namespace ombrelia::desktop {

bool HaSchermo() {
#if defined(_WIN32) || defined(__APPLE__)
    return true;
#else
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#endif
}

int ApriFinestra(int argc, char **argv) {
    QApplication a(argc, argv);
    std::setlocale(LC_NUMERIC, "C");  // the toolkit took the user's
    QCoreApplication::setOrganizationName(QStringLiteral("Ombrelia"));
    QCoreApplication::setApplicationName(QStringLiteral("Ombrelia"));
    QGuiApplication::setDesktopFileName(QStringLiteral("ombrelia"));
    VestiApplicazione(a, static_cast<Tema>(QSettings().value(QStringLiteral("tema"), 0).toInt()));
    QString progetto;
    bool esegui = false;
    for (const QString &argomento : QCoreApplication::arguments().mid(1)) {
        if (argomento == QStringLiteral("--run")) esegui = true;
        else progetto = argomento;
    }
    DialoghiQt dialoghi;
    Finestra finestra(dialoghi);
    finestra.show();
    QTimer::singleShot(0, &finestra, [&] {
        if (!progetto.isEmpty()) finestra.apri(progetto);
        else finestra.primoQuadrante();
        finestra.offriRipresa(finestra.percorso());
        if (esegui) finestra.esegui();
    });
    return QApplication::exec();
}

}  // namespace ombrelia::desktop
