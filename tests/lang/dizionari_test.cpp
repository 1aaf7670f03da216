// The two dictionaries that come with the program: no text without a translation, no entry without a text.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "core/controlli.h"
#include "core/testo.h"
#include "lang/dizionario.h"
#include "lang/sorgenti.h"

namespace ombrelia {
namespace {

using prova::TestoSorgente;

constexpr const char *LINGUE[] = {"DBFranceseC2008.txt", "DBIngleseC2008.txt"};

std::string Contenuto(const std::string &nome) {
    std::ifstream f(OMBRELIA_RADICE "/data/" + nome, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

bool HaLettere(std::string_view t) {
    return std::any_of(t.begin(), t.end(), [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c < 0; });
}

// Upper-cased texts of the program, each with a place where it stands.
std::map<std::string, TestoSorgente> TuttiITesti() {
    std::vector<TestoSorgente> testi;
    std::vector<std::string> variabili;
    prova::TestiDelProgramma(testi, variabili);
    for (const Modulo &m : TavolaModuli()) testi.push_back({std::string(m.caption), "form " + std::string(m.nome)});
    for (const Controllo &c : TavolaControlli())
        for (const std::string_view t : {c.caption, c.toolTip})
            testi.push_back({std::string(t), std::string(c.modulo) + "." + std::string(c.nome)});
    std::map<std::string, TestoSorgente> tutti;
    for (TestoSorgente &t : testi)
        if (HaLettere(t.testo)) tutti.emplace(Maiuscolo(t.testo), t);
    return tutti;
}

TEST(Dizionari, EachTextOfTheProgramIsTranslatedAndEachEntryUsed) {
    const auto tutti = TuttiITesti();
    ASSERT_GT(tutti.size(), 150U);
    for (const char *lingua : LINGUE) {
        Dizionario d;
        d.Interpreta(Contenuto(lingua));
        std::set<std::string> sorgenti;
        for (const Dizionario::Voce &v : d.Voci()) {
            EXPECT_TRUE(sorgenti.insert(Maiuscolo(v.first)).second) << lingua << " has twice: " << v.first;
            EXPECT_TRUE(tutti.contains(Maiuscolo(v.first))) << lingua << " has an entry that no text uses: \"" << v.first << '"';
        }
        for (const auto &[chiave, t] : tutti)
            EXPECT_TRUE(sorgenti.contains(chiave)) << lingua << " lacks \"" << t.testo << "\" of " << t.file;
    }
}

// Captions are laid out, and numbers joined to labels, by the blanks around the texts.
TEST(Dizionari, TranslationsKeepTheBlanksAround) {
    for (const char *lingua : LINGUE) {
        Dizionario d;
        d.Interpreta(Contenuto(lingua));
        for (const auto &[sorgente, traduzione] : d.Voci()) {
            EXPECT_EQ(sorgente.find_first_not_of(' '), traduzione.find_first_not_of(' ')) << lingua << ": \"" << sorgente << '"';
            EXPECT_EQ(sorgente.size() - sorgente.find_last_not_of(' '), traduzione.size() - traduzione.find_last_not_of(' '))
                << lingua << ": \"" << sorgente << '"';
        }
    }
}

TEST(Dizionari, FilesAreWhole) {
    for (const char *lingua : LINGUE) {
        const std::string t = Contenuto(lingua);
        EXPECT_EQ(DaFile(t), t) << lingua << " is no plain UTF-8";
        EXPECT_EQ(std::count(t.begin(), t.end(), '"'), 2) << lingua << ": a quote inside ends the reading";
        EXPECT_TRUE(t.starts_with('"') && t.ends_with("\r\n\"\r\n")) << lingua;
        for (std::size_t i = t.find('\n'); i != std::string::npos; i = t.find('\n', i + 1))
            EXPECT_EQ(t[i - 1], '\r') << lingua << " at " << i;
    }
}

// A file that translates what is no literal has marked its literals, unless it only hands texts on.
TEST(Dizionari, TextsTranslatedByVariableAreMarked) {
    std::vector<TestoSorgente> testi;
    std::vector<std::string> variabili;
    prova::TestiDelProgramma(testi, variabili);
    const std::set<std::string> senzaTesti{"lang/dizionario.h", "lang/dizionario.cpp", "sessione/sessione.h", "app/lingua.cpp",
                                           "reports/foglio.h",  "desktop/ponte.h",     "desktop/ponte.cpp"};
    for (const std::string &file : variabili) {
        const bool segnati = std::any_of(testi.begin(), testi.end(), [&](const TestoSorgente &t) { return t.file == file; });
        EXPECT_TRUE(segnati || senzaTesti.contains(file)) << file << " calls Traduci for texts that bear no _it";
    }
}

TEST(Dizionari, TheGathererSeesWhatItShould) {
    std::vector<TestoSorgente> testi;
    std::vector<std::string> variabili;
    prova::TestiDi(R"(#include "no"
        // s.Traduci("no")
        f(s.Traduci("uno \"1\" "
                    "due"), "no", '"', 1'000, "tre"_it);  /* "no" */
        g(Traduci(x < 0 ? "East" : h("West")), "no");
        s.Traduci(riga.etichetta);)",
                   "f", testi, variabili);
    std::vector<std::string> trovati;
    for (const TestoSorgente &t : testi) trovati.push_back(t.testo);
    EXPECT_EQ(trovati, (std::vector<std::string>{"uno \"1\" due", "tre", "East", "West"}));
    EXPECT_EQ(variabili.size(), 1U);
}

}  // namespace
}  // namespace ombrelia
