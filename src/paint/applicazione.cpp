// The application without a display.
#include "paint/applicazione.h"

#include <QGuiApplication>

namespace ombrelia::paint {

void AssicuraApplicazione() {
    if (QCoreApplication::instance()) return;
    static int argc = 1;
    static char nome[] = "ombrelia";
    static char *argv[] = {nome, nullptr};
    const QByteArray prima = qgetenv("QT_QPA_PLATFORM");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the toolkit says of its surroundings is not the user's business here.
    const QtMessageHandler voce = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    // Lives as long as the process: what it holds outlasts every static.
    [[maybe_unused]] static auto *const applicazione = new QGuiApplication(argc, argv);
    qInstallMessageHandler(voce);
    if (prima.isEmpty()) qunsetenv("QT_QPA_PLATFORM");
    else qputenv("QT_QPA_PLATFORM", prima);
}

}  // namespace ombrelia::paint
