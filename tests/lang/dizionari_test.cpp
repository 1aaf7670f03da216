// The two dictionaries that come with the program: no text without a translation, no entry without a text.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <vector>

#include "controlli/controlli.h"
#include "controlli/lingue.h"
#include "core/testo.h"
#include "lang/dizionario.h"

namespace ombrelia {
namespace {

// A text of the program and the file it stands in.
struct TestoSorgente {
    std::string testo, file;
};
// The texts of sources, what stands inside Traduci(...) and what is marked by _it; and the files that call Traduci without
// a literal.
struct Raccolta {
    std::vector<TestoSorgente> testi;
    std::set<std::string> variabili;

    void Leggi(const std::string &codice, const std::string &file) {
        static const std::regex PEZZO(
            R"~(//.*|#.*|/\*[^]*?\*/|"((?:[^"\\]|\\.)*)"(_it)?|'(?:[^'\\]|\\.)*'|\d[\w']*|\w+|[^\s\w])~");
        std::string testo, prima;  // of adjacent literals; the piece before
        bool dentro = false, letterale = false, segnato = false, trovati = false;
        int profondo = 0;
        const auto chiudi = [&] {
            if (letterale && (segnato || dentro)) testi.push_back({testo, file});
            trovati |= letterale;
            testo.clear();
            letterale = segnato = false;
        };
        for (std::sregex_iterator p(codice.begin(), codice.end(), PEZZO), fine; p != fine; ++p) {
            const std::string pezzo = p->str();
            if (pezzo.starts_with("//") || pezzo[0] == '#' || pezzo.starts_with("/*")) continue;
            if (pezzo[0] == '"') {
                testo += Sciolto((*p)[1].str());
                letterale = true;
                segnato |= (*p)[2].matched;
                continue;
            }
            chiudi();
            if (pezzo == "(" && !dentro && prima == "Traduci") {
                dentro = true;
                trovati = false;
                profondo = 0;
            }
            if (dentro && pezzo == "(") ++profondo;
            if (dentro && pezzo == ")" && --profondo == 0) {
                dentro = false;
                if (!trovati) variabili.insert(file);
            }
            prima = pezzo;
        }
        chiudi();
    }

    static std::string Sciolto(const std::string &t) {
        std::string r;
        for (std::size_t i = 0; i < t.size(); ++i) {
            if (t[i] == '\\' && ++i < t.size()) r += t[i] == 'n' ? '\n' : t[i] == 'r' ? '\r' : t[i] == 't' ? '\t' : t[i];
            else r += t[i];
        }
        return r;
    }
};

const Raccolta &DelProgramma() {
    static const Raccolta r = [] {
        Raccolta tutti;
        const std::filesystem::path radice = OMBRELIA_RADICE "/src";
        for (const auto &voce : std::filesystem::recursive_directory_iterator(radice)) {
            if (voce.path().extension() != ".cpp" && voce.path().extension() != ".h") continue;
            std::ifstream f(voce.path(), std::ios::binary);
            tutti.Leggi({std::istreambuf_iterator<char>(f), {}}, std::filesystem::relative(voce.path(), radice).generic_string());
        }
        return tutti;
    }();
    return r;
}

// Of each language but the program's own: the dictionary that every user may take away, and those of the window's and the page's
// own words.
const std::vector<std::array<std::string, 3>> LINGUE = [] {
    std::vector<std::array<std::string, 3>> file;
    for (const Lingua &l : Lingue())
        if (!l.file.empty()) file.push_back(FileDi(l));
    return file;
}();

std::string Contenuto(const std::string &nome) {
    std::ifstream f(OMBRELIA_RADICE "/data/" + nome, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

// Rows that no text of the window asks for: the files that a user takes away keep their bytes.
const std::set<std::string> RIMASTE{"Cornice e rette", "Piano", "Ultimo punto premuto, millimetri",
                                    "Solo le pagine scelte, una per foglio A4? Con No tutto il foglio su una pagina sola."};

bool HaLettere(std::string_view t) {
    return std::any_of(t.begin(), t.end(), [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c < 0; });
}

// Upper-cased texts of the program, each with a place where it stands.
std::map<std::string, TestoSorgente> TuttiITesti() {
    std::vector<TestoSorgente> testi = DelProgramma().testi;
    for (const Modulo &m : TavolaModuli()) testi.push_back({std::string(m.caption), "form " + std::string(m.nome)});
    for (const Controllo &c : TavolaControlli())
        for (const std::string_view t : {c.caption, c.toolTip})
            testi.push_back({std::string(t), std::string(c.modulo) + "." + std::string(c.nome)});
    std::map<std::string, TestoSorgente> tutti;
    for (TestoSorgente &t : testi)
        if (HaLettere(t.testo)) tutti.emplace(Maiuscolo(t.testo), t);
    return tutti;
}

TEST(Dizionari, EveryTextTranslatedAndEveryEntryUsed) {
    const auto tutti = TuttiITesti();
    ASSERT_GT(tutti.size(), 150U);
    for (const auto &file : LINGUE) {
        std::set<std::string> sorgenti;
        for (const std::string &nome : file) {
            Dizionario d;
            d.Interpreta(Contenuto(nome));
            std::set<std::string> sue;
            for (const Dizionario::Lemma &v : d.Voci()) {
                EXPECT_TRUE(sue.insert(Maiuscolo(v.first)).second) << nome << " has twice: " << v.first;
                EXPECT_TRUE(tutti.contains(Maiuscolo(v.first)) || RIMASTE.contains(v.first))
                    << nome << " has an entry that no text uses: \"" << v.first << '"';
            }
            sorgenti.merge(sue);
        }
        for (const auto &[chiave, t] : tutti)
            EXPECT_TRUE(sorgenti.contains(chiave)) << file[0] << " lacks \"" << t.testo << "\" of " << t.file;
    }
}

// Captions are laid out, and numbers joined to labels, by the blanks around the texts.
TEST(Dizionari, FilesWholeWithTheirBlanks) {
    std::vector<std::string> tutti;
    for (const auto &file : LINGUE) tutti.insert(tutti.end(), file.begin(), file.end());
    for (const std::string &lingua : tutti) {
        const std::string t = Contenuto(lingua);
        Dizionario d;
        d.Interpreta(t);
        for (const auto &[sorgente, traduzione] : d.Voci()) {
            EXPECT_EQ(sorgente.find_first_not_of(' '), traduzione.find_first_not_of(' ')) << lingua << ": " << sorgente;
            EXPECT_EQ(sorgente.size() - sorgente.find_last_not_of(' '), traduzione.size() - traduzione.find_last_not_of(' '))
                << lingua << ": " << sorgente;
        }
        EXPECT_EQ(DaFile(t), t) << lingua << " is no plain UTF-8";
        EXPECT_EQ(std::count(t.begin(), t.end(), '"'), 2) << lingua << ": a quote inside ends the reading";
        EXPECT_TRUE(t.starts_with('"') && t.ends_with("\r\n\"\r\n")) << lingua;
        for (std::size_t i = t.find('\n'); i != std::string::npos; i = t.find('\n', i + 1))
            EXPECT_EQ(t[i - 1], '\r') << lingua << " at " << i;
    }
}

// A file that translates what is no literal has marked its literals, unless it only hands texts on.
TEST(Dizionari, TextsTranslatedByVariable) {
    const auto &[testi, variabili] = DelProgramma();
    const std::set<std::string> senzaTesti{"cli/disegno.cpp",        "lang/dizionario.h",   "lang/dizionario.cpp",
                                           "sessione/sessione.h",    "app/lingua.cpp",      "reports/tabulato.h",
                                           "desktop/ponte.h",        "desktop/ponte.cpp",   "web/tavola.cpp",
                                           "desktop/note_campi.cpp", "desktop/striscia.cpp"};
    for (const std::string &file : variabili) {
        bool segnati = false;
        for (const TestoSorgente &t : testi) segnati |= t.file == file;
        EXPECT_TRUE(segnati || senzaTesti.contains(file)) << file << " calls Traduci for texts that bear no _it";
    }
}

TEST(Dizionari, TheGathererSeesWhatItShould) {
    Raccolta r;
    r.Leggi(R"(#include "no"
        // s.Traduci("no")
        f(s.Traduci("uno \"1\" "
                    "due"), "no", '"', 1'000, "tre"_it);  /* "no" */
        g(Traduci(x < 0 ? "East" : h("West")), "no");
        s.Traduci(riga.etichetta);)",
            "f");
    std::string trovati;
    for (const TestoSorgente &t : r.testi) trovati += t.testo + '|';
    EXPECT_EQ(trovati, "uno \"1\" due|tre|East|West|");
    EXPECT_EQ(r.variabili.size(), 1U);
}

}  // namespace
}  // namespace ombrelia
