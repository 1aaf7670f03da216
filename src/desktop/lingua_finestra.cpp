// The window's language.
#include "desktop/lingua_finestra.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>

#include "app/lingua.h"
#include "core/campi.h"
#include "core/file.h"
#include "core/percorsi.h"
#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

namespace {

constexpr auto LINGUA = "lingua";

// The toolkit's catalogue for the language that the dictionary says it is: "it" is translated to its own code.
void traduciQt(const Sessione &s) {
    static QTranslator *catalogo = nullptr;
    if (catalogo) QCoreApplication::removeTranslator(catalogo);
    else catalogo = new QTranslator(QCoreApplication::instance());
    const QString codice = Q(s.Traduci("codice della lingua: it"_it)).section(QLatin1Char(' '), -1);
    if (catalogo->load(QStringLiteral("qtbase_") + codice, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) QCoreApplication::installTranslator(catalogo);
}

}  // namespace

void LinguaRicordata(Sessione &s) {
    if (s.dizionario.Voci().empty()) {
        const std::string nome = QSettings().value(QLatin1String(LINGUA)).toString().toStdString();
        if (const auto file = nome.empty() ? std::nullopt : TrovaDato(Dizionario::NomeFile(nome)))
            if (auto contenuto = LeggiFile(file->string(), FILE_MASSIMO)) {
                s.dizionario.Interpreta(std::move(*contenuto));
                for (const std::string_view modulo : {"MDIForm1", "frmTavolo", "Tavolo1"}) app::CaricaForm(s, modulo);
            }
    }
    traduciQt(s);
}

void RicordaLingua(std::string_view voce, const app::Esito &esito) {
    if (!esito) return;
    const char *nome = voce == "mnuFrancais" ? "FranceseC2008" : voce == "mnuInglese" ? "IngleseC2008" : "";
    QSettings().setValue(QLatin1String(LINGUA), QString::fromLatin1(nome));
}

void Ritraduci(Sessione &s) {
    const std::string titolo = s.titolo("MDIForm1");
    app::CaricaForm(s, "MDIForm1");
    s.titolo("MDIForm1") = titolo;
}

}  // namespace ombrelia::desktop
