// Loading and lookup of a dictionary.
#include "lang/dizionario.h"

#include <random>

#include "comuni/cartella.h"

namespace ombrelia {
namespace {

Dizionario Da(const std::string &file) {
    Dizionario d;
    d.Interpreta(file);
    return d;
}

using Voci = std::vector<Dizionario::Voce>;

TEST(Dizionario, WhatAFileHolds) {
    const struct {
        std::string file;
        Voci voci;
    } casi[] = {
        {"\"uno|one\r\ndue |two \r\n\"\r\n", {{"uno", "one"}, {"due ", "two "}}},
        {"\"uno|one\r\ndue|two", {{"uno", "one"}, {"due", "two"}}},
        {"\"uno|a|b\r\n|vuoto\r\n\"", {{"uno", "a|b"}, {"", "vuoto"}}},
        {"\"uno|\r\ndue|   \r\n\r\ntre|3\"", {{"tre", "3"}}},
        {"\"senza divisore\r\nuno|1\"", {{"", "senza divisore"}, {"uno", "1"}}},
        {"\"uno|1\r\ndue|2\"\r\ntre|3\"", {{"uno", "1"}, {"due", "2"}}},
        {"\"uno|1\ndue|2\r\ntre|3\"", {{"uno", "1\ndue|2"}, {"tre", "3"}}},
        {"uno|1, resto\r\ndue|2", {{"uno", "1"}}},
        {"\"citt\xE0|ville\r\n\"", {{"città", "ville"}}},
        {"\"   \r\n   \"", {}},
        {"", {}},
        {"\"\"", {}},
    };
    for (const auto &caso : casi) EXPECT_EQ(Da(caso.file).Voci(), caso.voci) << caso.file;
}

TEST(Dizionario, Lookup) {
    const Dizionario d = Da("\"Latitudine:   |Latitude:   \r\ncittà è già più|CITY\r\nUno|first\r\nuno|second\r\nœuvre ÿ|work\"");
    const struct {
        const char *testo, *traduzione;
    } casi[] = {
        {"Latitudine:   ", "Latitude:   "},
        {"LATITUDINE:   ", "Latitude:   "},
        {"Latitudine:", "Latitudine:"},
        {"CITTÀ È GIÀ PIÙ", "CITY"},
        {"UNO", "first"},
        {"uno", "first"},
        {"ŒUVRE Ÿ", "work"},
        {"OEUVRE Y", "OEUVRE Y"},
        {"", ""},
        {"citta e gia piu", "citta e gia piu"},
    };
    for (const auto &caso : casi) EXPECT_EQ(d.Traduci(caso.testo), caso.traduzione);
    EXPECT_EQ(Dizionario().Traduci("Latitudine:   "), "Latitudine:   ");
}

TEST(Dizionario, UpperCaseOfAccentedLetters) {
    EXPECT_EQ(Maiuscolo("àèéìíîòóùúâêîôûëïüçœæÿ÷ß€ zA9"), "ÀÈÉÌÍÎÒÓÙÚÂÊÎÔÛËÏÜÇŒÆŸ÷ß€ ZA9");
    EXPECT_EQ(Maiuscolo("\xC3"), "\xC3") << "half a letter at the end";
}

// The plain search that the lookup stands for.
std::string Lineare(const Voci &voci, std::string_view testo) {
    for (const auto &[sorgente, traduzione] : voci)
        if (Maiuscolo(sorgente) == Maiuscolo(testo)) return traduzione;
    return std::string(testo);
}

TEST(Dizionario, EqualsTheLinearSearch) {
    std::mt19937 caso(20260621);
    const auto testo = [&caso] {
        constexpr const char *LETTERE[] = {"a", "A", "b", "è", "È", " ", "z", "|"};
        std::string t;
        for (auto n = caso() % 5; n > 0; --n) t += LETTERE[caso() % 8];
        return t;
    };
    int trovati = 0;
    for (int giro = 0; giro < 50; ++giro) {
        std::string file = "\"";
        for (int i = 0; i < 60; ++i) file += testo() + '|' + testo() + "\r\n";
        const Dizionario d = Da(file + '"');
        for (int i = 0; i < 200; ++i) {
            const std::string t = testo();
            ASSERT_EQ(d.Traduci(t), Lineare(d.Voci(), t)) << t;
            trovati += d.Traduci(t) != t;
        }
    }
    EXPECT_GT(trovati, 1000);
}

using DizionarioTest = prova::InCartella;

TEST_F(DizionarioTest, FilesOfTheCurrentDirectory) {
    scrivi("DBC2008.txt", "\"uno|one\"\r\n");
    Dizionario d;
    d.CaricaDizionario(" C2008 ");
    EXPECT_EQ(d.Traduci("uno"), "one");
    EXPECT_EQ(d.Nome(), " C2008 ");
    d.CaricaDizionario("manca");
    EXPECT_EQ(d.Nome(), "manca");
    EXPECT_EQ(d.Traduci("uno"), "uno");
    EXPECT_TRUE(d.Voci().empty());
}

}  // namespace
}  // namespace ombrelia
