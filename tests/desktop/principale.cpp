// The window's tests run on a platform without a display, in a folder of their own, and forget what they were told.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>
#include <string>
#include <vector>

#include "controlli/lingue.h"
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
    std::vector<std::string> dati{"luoghi.csv"};
    for (const ombrelia::Lingua &l : ombrelia::Lingue())
        if (!l.file.empty()) dati.push_back(ombrelia::FileDi(l)[1]);
    for (const std::string &nome : dati)
        QFile::copy(QStringLiteral(OMBRELIA_RADICE "/data/") + QString::fromStdString(nome), QString::fromStdString(nome));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, casa.path());
    QApplication a(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Ombrelia"));
    QCoreApplication::setApplicationName(QStringLiteral("prove"));
    ombrelia::desktop::VestiApplicazione(a);
    return RUN_ALL_TESTS();
}
