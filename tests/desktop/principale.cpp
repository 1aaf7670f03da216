// The window's tests run on a platform without a display, in a folder of their own, and forget what they were told.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>

#include "desktop/stile.h"

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The platform without a display says at each window what it lacks.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &testo) {
        if (!testo.startsWith(QStringLiteral("This plugin does not support"))) std::fprintf(stderr, "%s\n", qPrintable(testo));
    });
    const QTemporaryDir casa;
    qputenv("XDG_RUNTIME_DIR", casa.path().toUtf8());
    qputenv("HOME", casa.path().toUtf8());
    QDir::setCurrent(casa.path());
    for (const char *nome : {"DBFinestraInglese.txt", "DBFinestraFrancese.txt", "luoghi.csv"})
        QFile::copy(QStringLiteral(OMBRELIA_RADICE "/data/") + QString::fromLatin1(nome), QString::fromLatin1(nome));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, casa.path());
    QApplication a(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Ombrelia"));
    QCoreApplication::setApplicationName(QStringLiteral("prove"));
    ombrelia::desktop::VestiApplicazione(a);
    return RUN_ALL_TESTS();
}
