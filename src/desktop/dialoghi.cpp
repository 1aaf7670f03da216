// Boxes, and the session's questions passed on to them.
#include "desktop/dialoghi.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "app/comandi.h"

namespace ombrelia::desktop {

QString Q(std::string_view testo) { return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())); }

namespace {

// A box that shows its text as it stands: names of files and projects may hold marks.
QMessageBox::StandardButton domanda(QWidget *sopra, QMessageBox::Icon icona, const QString &testo,
                                    QMessageBox::StandardButtons bottoni) {
    QMessageBox b(icona, QStringLiteral("Ombrelia"), testo, bottoni, sopra);
    b.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(b.exec());
}

}  // namespace

void DialoghiQt::avviso(QWidget *sopra, const QString &testo) {
    domanda(sopra, QMessageBox::Information, testo, QMessageBox::Ok);
}

bool DialoghiQt::siNo(QWidget *sopra, const QString &testo) {
    return domanda(sopra, QMessageBox::Question, testo, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

QString DialoghiQt::testo(QWidget *sopra, const QString &domanda, const QString &titolo, const QString &proposta) {
    bool dato = false;
    const QString t = QInputDialog::getText(sopra, titolo, Qt::mightBeRichText(domanda) ? domanda.toHtmlEscaped() : domanda,
                                            QLineEdit::Normal, proposta, &dato);
    return dato ? t : QString();
}

std::optional<QString> DialoghiQt::file(QWidget *sopra, bool salva, const QString &estensione, const QString &filtro,
                                        const QString &proposta) {
    QFileDialog d(sopra, QString(), QString(), filtro);
    d.setAcceptMode(salva ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    d.setFileMode(salva ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    d.setDefaultSuffix(estensione);
    if (!proposta.isEmpty()) {
        const QFileInfo i(proposta);
        if (i.isAbsolute()) d.setDirectory(i.path());
        if (!i.fileName().contains(QLatin1Char('*'))) d.selectFile(i.fileName());
    }
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty()) return {};
    return d.selectedFiles().constFirst();
}

Salvataggio DialoghiQt::salvaPrima(QWidget *sopra, const QString &testo) {
    switch (domanda(sopra, QMessageBox::Question, testo, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel)) {
        case QMessageBox::Save:
            return Salvataggio::Salva;
        case QMessageBox::Discard:
            return Salvataggio::Scarta;
        default:
            return Salvataggio::Annulla;
    }
}

void DialoghiQt::stampa(QWidget *sopra, const QString &titolo, const std::function<void(QPrinter &)> &dipingi) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setDocName(titolo);
    QPrintPreviewDialog anteprima(&stampante, sopra);
    anteprima.setWindowTitle(titolo);
    anteprima.resize(900, 700);
    QObject::connect(&anteprima, &QPrintPreviewDialog::paintRequested, &anteprima, [&](QPrinter *p) { dipingi(*p); });
    anteprima.exec();
}

void DialoghiQt::beep() { QApplication::beep(); }

bool UtenteFinestra::Box(std::string_view testo, Domanda domanda) {
    if (domanda == Domanda::SiNo) return dialoghi_.siNo(sopra, Q(testo));
    dialoghi_.avviso(sopra, Q(testo));
    return true;
}

std::string UtenteFinestra::Input(std::string_view domanda, std::string_view titolo, std::string_view proposta) {
    return dialoghi_.testo(sopra, Q(domanda), Q(titolo), Q(proposta)).toStdString();
}

std::optional<std::string> UtenteFinestra::File(const RichiestaFile &r) {
    QString proposta = Q(r.suggerito);
    if (proposta.isEmpty() || proposta.contains(QLatin1Char('*'))) proposta = Q(app::CartellaDisegni()) + QLatin1Char('/');
    const auto f = dialoghi_.file(sopra, r.salva, Q(r.estensione), Q(r.filtro), proposta);
    if (!f || f->isEmpty()) return {};
    return f->toStdString();
}

// The overwrite question, the ending and the cancel button are the file box's.
std::optional<std::string> UtenteFinestra::NomeDxf(std::string_view, std::string_view, std::string_view proposta) {
    const auto f =
        dialoghi_.file(sopra, true, QStringLiteral("dxf"), QStringLiteral("*.dxf"), Q(proposta) + QStringLiteral(".dxf"));
    if (!f || f->isEmpty()) return {};
    return f->toStdString();
}

void UtenteFinestra::Puntatore(bool attesa) {
    if (attesa) QApplication::setOverrideCursor(Qt::WaitCursor);
    else QApplication::restoreOverrideCursor();
}

}  // namespace ombrelia::desktop
