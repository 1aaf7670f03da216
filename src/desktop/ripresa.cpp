// Unsaved work.
#include "desktop/ripresa.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "core/file.h"

namespace ombrelia::desktop {

namespace {

const QString CODA = QStringLiteral(".ripresa-");

QDir cartella() { return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)); }

bool vive(qint64 pid) {
#ifdef __linux__
    // One that ended and was not fetched yet is no more, and a number may be another program's by now.
    const QString casa = QStringLiteral("/proc/%1/").arg(pid);
    QFile stato(casa + QStringLiteral("stat"));
    if (!stato.open(QIODevice::ReadOnly)) return false;
    const QByteArray testo = stato.readAll();
    const char fase = testo.mid(testo.lastIndexOf(')') + 1).trimmed().left(1).toStdString().c_str()[0];
    return fase != 'Z' && fase != 'X' &&
           QFileInfo(casa + QStringLiteral("exe")).symLinkTarget() == QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
#else
    (void)pid;
    return false;
#endif
}

}  // namespace

QString Ripresa::fileDi(const QString &percorso) {
    const QString mia = CODA + QString::number(QCoreApplication::applicationPid());
    if (!percorso.isEmpty()) return percorso + mia;
    return cartella().filePath(QStringLiteral("senza nome.omb") + mia);
}

void Ripresa::tieni(const QString &percorso, const std::string &progetto) {
    const QString dove = fileDi(percorso);
    if (!file_.isEmpty() && file_ != dove) lascia();
    QDir().mkpath(QFileInfo(dove).path());
    if (!ScriviFile(dove.toStdString(), progetto)) file_ = dove;
}

void Ripresa::lascia() {
    if (!file_.isEmpty()) QFile::remove(file_);
    file_.clear();
}

QStringList Ripresa::rimaste(const QString &percorso) {
    const QFileInfo progetto(percorso);
    const QDir dove = percorso.isEmpty() ? cartella() : progetto.dir();
    const QString nome = percorso.isEmpty() ? QStringLiteral("senza nome.omb") : progetto.fileName();
    QStringList trovate;
    for (const QFileInfo &f : dove.entryInfoList(QDir::Files | QDir::Hidden, QDir::Time)) {
        if (!f.fileName().startsWith(nome + CODA) || vive(f.fileName().mid(nome.size() + CODA.size()).toLongLong())) continue;
        trovate << f.filePath();
    }
    return trovate;
}

}  // namespace ombrelia::desktop
