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

// Which language a dictionary is, by how it says "open".
const Lingua &linguaDi(const Sessione &s) {
    const std::string apri = s.Traduci("Apri...");
    for (const Lingua &l : Lingue())
        if (apri == l.apri) return l;
    return Lingue()[0];
}

bool aggiungi(Sessione &s, std::string_view nome, void (Dizionario::*come)(std::string)) {
    const auto file = TrovaDato(nome);
    auto contenuto = file ? LeggiFile(file->string(), FILE_MASSIMO) : std::nullopt;
    if (contenuto) (s.dizionario.*come)(std::move(*contenuto));
    return contenuto.has_value();
}

void traduciQt(const QString &codice) {
    static QTranslator *catalogo = nullptr;
    if (catalogo) QCoreApplication::removeTranslator(catalogo);
    else catalogo = new QTranslator(QCoreApplication::instance());
    if (catalogo->load(QStringLiteral("qtbase_") + codice, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(catalogo);
}

}  // namespace

void LinguaRicordata(Sessione &s) {
    if (s.dizionario.Voci().empty()) {
        const std::string nome = QSettings().value(QLatin1String(LINGUA)).toString().toStdString();
        if (!nome.empty()) aggiungi(s, Dizionario::NomeFile(nome), &Dizionario::Interpreta);
    }
    if (const std::string aggiunta = FileDi(linguaDi(s))[1]; !aggiunta.empty()) {
        aggiungi(s, aggiunta, &Dizionario::Aggiungi);
        for (const std::string_view modulo : {"MDIForm1", "frmTavolo", "Tavolo1"}) app::CaricaForm(s, modulo);
    }
    traduciQt(CodiceLingua(s));
}

QString CodiceLingua(const Sessione &s) { return Q(linguaDi(s).codice); }

void RicordaLingua(const Lingua &lingua, const app::Esito &esito) {
    if (esito) QSettings().setValue(QLatin1String(LINGUA), Q(DizionarioDi(lingua)));
}

void Ritraduci(Sessione &s) {
    const std::string titolo = s.titolo("MDIForm1");
    app::CaricaForm(s, "MDIForm1");
    s.titolo("MDIForm1") = titolo;
}

}  // namespace ombrelia::desktop
