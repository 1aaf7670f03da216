// The main window's files and pages: projects, recent ones, exports, printing.
#include <QFileInfo>
#include <QMenu>
#include <QPrinter>
#include <QProgressDialog>
#include <QSettings>

#include "app/progetto.h"
#include "core/file.h"
#include "desktop/finestra.h"
#include "paint/documenti.h"
#include "paint/file_disegno.h"
#include "plot/dxf.h"
#include "plot/svg.h"

namespace ombrelia::desktop {

namespace {

constexpr auto RECENTI = "recenti";
constexpr int RECENTI_MASSIMI = 8;

}  // namespace

bool Finestra::modificato() { return app::ScriviProgetto(s_) != salvato_; }

bool Finestra::lasciaAndare() {
    if (!modificato()) return true;
    switch (dialoghi_.salvaPrima(this, ponte_.Traduci("Il progetto è cambiato. Vuoi salvarlo?"))) {
        case Salvataggio::Annulla: return false;
        case Salvataggio::Scarta: return true;
        case Salvataggio::Salva: break;
    }
    if (QAction *salva = findChild<QAction *>(QStringLiteral("mnuSalva"))) salva->trigger();
    return !modificato();
}

void Finestra::apri(const QString &percorso) {
    if (!lasciaAndare()) return;
    bool aperto = false;
    ponte_.fai(NESSUN_CONTROLLO, [&] { aperto = static_cast<bool>(app::ApriProgetto(s_, percorso.toStdString())); });
    if (!aperto) return;
    ricorda(percorso);
    salvato_ = app::ScriviProgetto(s_);
    quadro_->foglio().tutto();
}

void Finestra::ricorda(const QString &percorso) {
    QSettings ricordi;
    QStringList file = ricordi.value(QLatin1String(RECENTI)).toStringList();
    const QString intero = QFileInfo(percorso).absoluteFilePath();
    file.removeAll(intero);
    file.prepend(intero);
    ricordi.setValue(QLatin1String(RECENTI), QStringList(file.mid(0, RECENTI_MASSIMI)));
}

void Finestra::riempiRecenti() {
    recenti_->clear();
    for (const QString &f : QSettings().value(QLatin1String(RECENTI)).toStringList())
        recenti_->addAction(QFileInfo(f).fileName(), this, [this, f] { apri(f); })->setToolTip(f);
    if (recenti_->isEmpty()) recenti_->addAction(ponte_.Traduci("Nessuno"))->setEnabled(false);
}

// Runs what goes from tile to tile under a progress box with its stop button.
bool Finestra::piastrelle(const std::function<bool(const paint::Avanzamento &)> &lavoro) {
    QProgressDialog attesa(ponte_.Traduci("Disegno delle pagine..."), ponte_.Traduci("Ferma"), 0, static_cast<int>(s_.tavolo.lista().Aree.size()), this);
    attesa.setWindowModality(Qt::WindowModal);
    return lavoro([&attesa](std::size_t fatte, std::size_t) {
        attesa.setValue(static_cast<int>(fatte));
        return !attesa.wasCanceled();
    });
}

void Finestra::stampa(bool aree) {
    dialoghi_.stampa(this, ponte_.Traduci("Stampa del quadrante"), [this, aree](QPrinter &stampante) {
        if (!aree) return paint::StampaTutto(s_.tavolo, stampante);
        piastrelle([&](const paint::Avanzamento &avanza) { return paint::StampaPiastrelle(s_.tavolo, stampante, avanza); });
    });
}

void Finestra::esportaPdf() {
    const bool aree = !s_.tavolo.lista().Aree.empty() &&
                      dialoghi_.siNo(this, ponte_.Traduci("Solo le pagine scelte, una per foglio A4? Con No tutto il foglio su una pagina sola."));
    const auto f = dialoghi_.file(this, true, QStringLiteral("pdf"), QStringLiteral("*.pdf"), Q(app::CartellaDisegni()) + QStringLiteral("/quadrante.pdf"));
    if (!f || f->isEmpty()) return;
    std::string errore;
    QByteArray pdf;
    if (aree) piastrelle([&](const paint::Avanzamento &avanza) {
        pdf = paint::PdfPiastrelle(s_.tavolo, avanza);
        return true;
    });
    else pdf = paint::PdfFoglio(s_.tavolo, errore);
    if (!errore.empty()) return dialoghi_.avviso(this, Q(errore));
    if (pdf.isEmpty()) return messaggio(ponte_.Traduci("Nessun file scritto"));
    if (const auto e = ScriviFile(f->toStdString(), pdf.toStdString())) return dialoghi_.avviso(this, Q(*e));
    messaggio(ponte_.Traduci("Scritto") + QLatin1Char(' ') + *f);
}

void Finestra::esporta() {
    const auto f = dialoghi_.file(this, true, QStringLiteral("svg"), QStringLiteral("*.svg;;*.png;;*.bmp;;*.dxf;;*.pdf"),
                                  Q(app::CartellaDisegni()) + QStringLiteral("/quadrante.svg"));
    if (!f || f->isEmpty()) return;
    const QString fine = QFileInfo(*f).suffix().toLower();
    std::string errore, contenuto;
    if (fine == QStringLiteral("svg")) contenuto = SVG_Generate(s_.tavolo);
    else if (fine == QStringLiteral("dxf")) contenuto = DXF_Generate(s_.tavolo);
    else if (fine == QStringLiteral("png")) contenuto = paint::Png(s_.tavolo, errore);
    else if (fine == QStringLiteral("bmp")) contenuto = paint::Bmp(s_.tavolo, errore);
    else if (fine == QStringLiteral("pdf")) contenuto = paint::Pdf(s_.tavolo, errore);
    else errore = f->toStdString() + ": svg, dxf, pdf, png, bmp";
    if (errore.empty()) errore = ScriviFile(f->toStdString(), contenuto).value_or("");
    if (!errore.empty()) return dialoghi_.avviso(this, Q(errore));
    messaggio(ponte_.Traduci("Scritto") + QLatin1Char(' ') + *f);
}

}  // namespace ombrelia::desktop
