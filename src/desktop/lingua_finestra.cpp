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
struct LinguaDellaFinestra {
    std::string_view apri;
    const char *codice, *aggiunta;  // of the toolkit's catalogue; the dictionary of the window's own texts
};
constexpr LinguaDellaFinestra LINGUE[] = {
    {"Open...", "en", "DBFinestraInglese.txt"}, {"Ouvrir...", "fr", "DBFinestraFrancese.txt"}, {"", "it", ""}};

const LinguaDellaFinestra &linguaDi(const Sessione &s) {
    const std::string apri = s.Traduci("Apri...");
    for (const LinguaDellaFinestra &l : LINGUE)
        if (apri == l.apri) return l;
    return LINGUE[2];
}

bool aggiungi(Sessione &s, std::string_view nome, void (Dizionario::*come)(std::string)) {
    const auto file = TrovaDato(nome);
    auto contenuto = file ? LeggiFile(file->string(), FILE_MASSIMO) : std::nullopt;
    if (contenuto) (s.dizionario.*come)(std::move(*contenuto));
    return contenuto.has_value();
}

void traduciQt(const char *codice) {
    static QTranslator *catalogo = nullptr;
    if (catalogo) QCoreApplication::removeTranslator(catalogo);
    else catalogo = new QTranslator(QCoreApplication::instance());
    if (catalogo->load(QStringLiteral("qtbase_") + QString::fromLatin1(codice),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(catalogo);
}

}  // namespace

void LinguaRicordata(Sessione &s) {
    if (s.dizionario.Voci().empty()) {
        const std::string nome = QSettings().value(QLatin1String(LINGUA)).toString().toStdString();
        if (!nome.empty()) aggiungi(s, Dizionario::NomeFile(nome), &Dizionario::Interpreta);
    }
    const LinguaDellaFinestra &lingua = linguaDi(s);
    if (*lingua.aggiunta) {
        aggiungi(s, lingua.aggiunta, &Dizionario::Aggiungi);
        for (const std::string_view modulo : {"MDIForm1", "frmTavolo", "Tavolo1"}) app::CaricaForm(s, modulo);
    }
    traduciQt(lingua.codice);
}

QString CodiceLingua(const Sessione &s) { return QString::fromLatin1(linguaDi(s).codice); }

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
