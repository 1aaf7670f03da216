// The main window's files and pages: projects, recent ones, exports, printing.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QPrinter>
#include <QProgressDialog>
#include <QSettings>
#include <chrono>
#include <future>

#include "app/progetto.h"
#include "controlli/nomi.h"
#include "core/file.h"
#include "desktop/finestra.h"
#include "desktop/lingua_finestra.h"
#include "desktop/pagine_carta.h"
#include "desktop/parole.h"
#include "desktop/per_macchina.h"
#include "formati/formati.h"
#include "paint/documenti.h"

namespace ombrelia::desktop {

namespace {

constexpr auto RECENTI = "recenti";
constexpr int RECENTI_MASSIMI = 8;

}  // namespace

bool Finestra::lasciaAndare() {
    if (!modificato()) return true;
    const QString nome = percorso_.isEmpty() ? ponte_.Traduci("Senza nome") : QFileInfo(percorso_).fileName();
    switch (dialoghi_.salvaPrima(this, nome + QStringLiteral(": ") + ponte_.Traduci("Il progetto è cambiato. Vuoi salvarlo?") +
                                           QLatin1Char('\n') + ponte_.Traduci("Non salvati:") + QLatin1Char(' ') + cambiati())) {
        case Salvataggio::Annulla:
            return false;
        case Salvataggio::Scarta:
            return true;
        case Salvataggio::Salva:
            break;
    }
    return salva(false);
}

void Finestra::tieniRipresa() {
    if (modificato()) ripresa_.tieni(percorso_, app::ScriviProgetto(s_));
    else ripresa_.lascia();
}

void Finestra::offriRipresa(const QString &percorso) {
    const QStringList rimaste = Ripresa::rimaste(percorso);
    if (rimaste.isEmpty()) return;
    const QString chi = percorso.isEmpty() ? ponte_.Traduci("Senza nome") : QFileInfo(percorso).fileName();
    if (dialoghi_.siNo(this, chi + QStringLiteral(": ") +
                                 ponte_.Traduci("c'è lavoro non salvato di una volta precedente. Vuoi riprenderlo?"))) {
        ponte_.passo = ponte_.Traduci("Lavoro ripreso");
        ponte_.fai(NESSUN_CONTROLLO, [&] {
            const app::Esito e = app::ApriProgetto(s_, rimaste.front().toStdString());
            if (!e) return e;
            Ritraduci(s_);
            s_.titolo("frmTavolo") = percorso_.isEmpty() ? std::string() : QFileInfo(percorso_).fileName().toStdString();
            return e;
        });
        quadro_->foglio().tutto();
    }
    for (const QString &f : rimaste) QFile::remove(f);
    tieniRipresa();
}

bool Finestra::salva(bool conNome) {
    if (!conNome && !percorso_.isEmpty()) return salvaIn(percorso_);
    const QString prima = std::exchange(percorso_, {});
    const bool fatto = static_cast<bool>(ponte_.premi("mnuSalva"));
    if (!fatto) percorso_ = prima;
    titolo();
    return fatto;
}

bool Finestra::salvaIn(const QString &percorso) {
    if (const auto errore = app::SalvaProgetto(s_, percorso.toStdString())) return dialoghi_.avviso(this, Q(*errore)), false;
    salvato_ = improntaProgetto();
    ripresa_.lascia();
    titolo();
    messaggio(ponte_.Traduci("Scritto") + QLatin1Char(' ') + percorso);
    return true;
}

void Finestra::apri(const QString &percorso) {
    if (!lasciaAndare()) return;
    ponte_.passo = ponte_.Traduci("Apri") + QLatin1Char(' ') + QFileInfo(percorso).fileName();
    ponte_.fai(NESSUN_CONTROLLO, [&] {
        const app::Esito aperto = app::ApriProgetto(s_, percorso.toStdString());
        if (aperto) progettoNuovo(percorso);
        return aperto;
    });
}

void Finestra::apriEsempio(const QString &percorso) {
    if (!lasciaAndare()) return;
    ponte_.passo = ponte_.Traduci("Apri") + QLatin1Char(' ') + QFileInfo(percorso).fileName();
    const app::Esito aperto = ponte_.fai(NESSUN_CONTROLLO, [&] {
        const app::Esito e = app::ApriProgetto(s_, percorso.toStdString());
        if (e) progettoNuovo({});
        return e;
    });
    if (aperto && !vivo_acceso()) esegui();
}

void Finestra::progettoNuovo(const QString &percorso) {
    Ritraduci(s_);
    // A dial of its own: what an earlier one was turned into is no part of it.
    for (Reale Variabili::*v : {&Variabili::flagVerticale, &Variabili::flagTrasformato, &Variabili::diffLong}) s_.v.*v = 0;
    percorso_ = percorso.isEmpty() ? QString() : QFileInfo(percorso).absoluteFilePath();
    if (!percorso_.isEmpty()) ricorda(percorso_);
    salvato_ = improntaProgetto();
    ponte_.sincronizza();
    quadro_->foglio().tutto();
    titolo();
    if (vivo_acceso()) chiediVivo();
}

void Finestra::nuovo() {
    if (!lasciaAndare()) return;
    ponte_.passo = ponte_.Traduci("Nuovo");
    ponte_.fai(NESSUN_CONTROLLO, [&] {
        const Sessione vergine(utente_);
        Tavolo &t = s_.tavolo;
        s_.in = vergine.in;
        s_.v = vergine.v;
        for (std::size_t i = 0; i < s_.stati.size(); ++i)
            s_.stati[i].abilitato = true, s_.stati[i].visibile = vergine.stati[i].visibile;
        t.Clear();
        t.QuadranteL(vergine.tavolo.QuadranteL());
        t.QuadranteH(vergine.tavolo.QuadranteH());
        s_.titolo("frmTavolo").clear();
        app::Avvia(s_);
        Ritraduci(s_);
        etichetteAccese();
        percorso_.clear();
        salvato_ = improntaProgetto();
    });
    quadro_->foglio().tutto();
    if (vivo_acceso()) chiediVivo();
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
    QProgressDialog attesa(ponte_.Traduci("Disegno delle pagine..."), ponte_.Traduci("Ferma"), 0,
                           static_cast<int>(s_.tavolo.lista().Aree.size()), this);
    attesa.setWindowModality(Qt::WindowModal);
    return lavoro([&attesa](std::size_t fatte, std::size_t) {
        attesa.setValue(static_cast<int>(fatte));
        return !attesa.wasCanceled();
    });
}

std::optional<Finestra::Prodotto> Finestra::fabbrica(const std::function<Prodotto(Tavolo &)> &lavoro) {
    auto foglio = std::make_shared<Tavolo>(perCarta());
    foglio->dispositivo = nullptr;
    foglio->suMessaggio = nullptr;
    foglio->suAttesa = nullptr;
    auto promessa = std::make_shared<std::promise<Prodotto>>();
    std::future<Prodotto> futuro = promessa->get_future();
    std::jthread scrivano([foglio, promessa, lavoro] {
        try {
            promessa->set_value(lavoro(*foglio));
        } catch (...) {
            promessa->set_exception(std::current_exception());
        }
    });
    QElapsedTimer tempo;
    tempo.start();
    std::unique_ptr<QProgressDialog> box;
    constexpr std::chrono::milliseconds GIRO(15);
    while (futuro.wait_for(GIRO) != std::future_status::ready) {
        if (!box && tempo.elapsed() >= pazienza) {
            box = std::make_unique<QProgressDialog>(ponte_.Traduci("Scrivo il file..."), ponte_.Traduci("Ferma"), 0, 0, this);
            box->setWindowModality(Qt::WindowModal);
            box->setMinimumDuration(0);
            box->show();
        }
        QCoreApplication::processEvents(box ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
        if (!box || !box->wasCanceled()) continue;
        rinunciati_.push_back(std::move(scrivano));
        return messaggio(ponte_.Traduci("Nessun file scritto")), std::nullopt;
    }
    try {
        return futuro.get();
    } catch (const std::bad_alloc &) {
        dialoghi_.avviso(this, ponte_.Traduci("La memoria non basta"));
        return {};
    }
}

void Finestra::stampa(bool aree) {
    dialoghi_.stampa(this, ponte_.Traduci("Stampa del quadrante"), [this, aree](QPrinter &stampante) {
        // Tiles are those of the printer's paper; those chosen for another are chosen anew.
        if (s_.tavolo.Pagina(paint::CartaDi(stampante)) && aree) {
            s_.tavolo.ScegliPiene();
            AvvisaCarta(ponte_, dialoghi_, this, s_.tavolo.carta());
        }
        if (!aree) return paint::StampaTutto(perCarta(), stampante);
        piastrelle([&](const paint::Avanzamento &avanza) { return paint::StampaPiastrelle(perCarta(), stampante, avanza); });
    });
}

void Finestra::esportaPdf() {
    const bool aree =
        !s_.tavolo.lista().Aree.empty() &&
        dialoghi_.siNo(this,
                       ponte_.Traduci("Solo le pagine scelte, ognuna su carta %1? Con No tutto il foglio su una pagina sola.")
                           .arg(NomeCarta(s_.tavolo.carta())));
    const auto f = dialoghi_.file(this, true, QStringLiteral("pdf"), QStringLiteral("*.pdf"),
                                  Q(app::CartellaDisegni()) + QStringLiteral("/quadrante.pdf"));
    if (!f || f->isEmpty()) return;
    Prodotto pdf;
    if (aree) {
        piastrelle([&](const paint::Avanzamento &avanza) {
            pdf.contenuto = paint::PdfPiastrelle(perCarta(), avanza).toStdString();
            return true;
        });
    } else if (auto fatto = fabbrica([](Tavolo &t) {
                   Prodotto p;
                   p.contenuto = paint::PdfFoglio(t, p.errore).toStdString();
                   return p;
               })) {
        pdf = std::move(*fatto);
    }
    if (!pdf.errore.empty()) return dialoghi_.avviso(this, Motivo(ponte_, pdf.errore));
    if (pdf.contenuto.empty()) return messaggio(ponte_.Traduci("Nessun file scritto"));
    scrivi(*f, pdf.contenuto);
}

void Finestra::esporta() {
    QStringList filtri, fini;
    for (const FormatoDisegno &forma : Formati())
        if (forma.disegno) filtri << QStringLiteral("*.") + Q(forma.estensione), fini << Q(forma.estensione);
    filtri.move(filtri.indexOf(QStringLiteral("*.svg")), 0);
    const auto f = dialoghi_.file(this, true, QStringLiteral("svg"), filtri.join(QStringLiteral(";;")),
                                  Q(app::CartellaDisegni()) + QStringLiteral("/quadrante.svg"));
    if (!f || f->isEmpty()) return;
    const FormatoDisegno *forma = FormatoDi(QFileInfo(*f).suffix().toStdString());
    if (!forma || !forma->disegno)
        return dialoghi_.avviso(this, Motivo(ponte_, f->toStdString() + ": " + fini.join(QStringLiteral(", ")).toStdString()));
    const auto fatto = fabbrica([forma](Tavolo &t) {
        Prodotto p;
        p.contenuto = forma->scrivi(t, p.errore);
        return p;
    });
    if (!fatto) return;
    if (!fatto->errore.empty()) return dialoghi_.avviso(this, Motivo(ponte_, fatto->errore));
    scrivi(*f, fatto->contenuto);
}

Tavolo &Finestra::perCarta() {
    if (!Ritoccato(quadro_->foglio().stile())) return s_.tavolo;
    VestiFoglio(s_.tavolo, quadro_->foglio().stile(), true, carta_);
    return carta_;
}

QString Finestra::nomeProposto() const {
    return Q(app::CartellaDisegni()) + QLatin1Char('/') +
           (percorso_.isEmpty() ? QStringLiteral("quadrante") : QFileInfo(percorso_).completeBaseName());
}

template <class D>
void Finestra::apriDialogo() {
    auto *d = new D(ponte_, dialoghi_, perCarta(), nomeProposto(), this);
    d->setAttribute(Qt::WA_DeleteOnClose);
    d->suScritto = [this](const QString &file) { messaggio(ponte_.Traduci("Scritto") + QLatin1Char(' ') + file); };
    d->show();
}

void Finestra::perMacchina() { apriDialogo<PerMacchina>(); }
void Finestra::impagina() { apriDialogo<PagineCarta>(); }

bool Finestra::scrivi(const QString &file, const std::string &contenuto) {
    if (const auto e = ScriviFile(file.toStdString(), contenuto)) return dialoghi_.avviso(this, Q(*e)), false;
    messaggio(ponte_.Traduci("Scritto") + QLatin1Char(' ') + file);
    return true;
}

}  // namespace ombrelia::desktop
