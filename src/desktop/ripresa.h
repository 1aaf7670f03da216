// What a crash or a power cut may take: at most a minute. The unsaved work of each window is kept beside its project, or in the
// program's own folder when it has none, and offered at the next start.
#pragma once

#include <QString>
#include <QStringList>
#include <string>

namespace ombrelia::desktop {

class Ripresa {
public:
    // Where the work of this window on a project is kept; percorso may be empty.
    [[nodiscard]] static QString fileDi(const QString &percorso);
    // Writes it; what an earlier project of this window had is taken away.
    void tieni(const QString &percorso, const std::string &progetto);
    // The work was saved or given up.
    void lascia();
    // What windows that are no more have left: files to open, newest first. A project's own lies beside it.
    [[nodiscard]] static QStringList rimaste(const QString &percorso);

private:
    QString file_;
};

}  // namespace ombrelia::desktop
