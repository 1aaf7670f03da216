// Loading and lookup of a dictionary.
#include "lang/dizionario.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

#include "comuni/prova.h"

namespace ombrelia {
namespace {

Dizionario Da(const std::string &file) {
    Dizionario d;
    d.Interpreta(file);
    return d;
}

using Voci = std::vector<Dizionario::Lemma>;

TEST(Dizionario, WhatAFileHolds) {
    for (const auto &r : prova::Tabella("dizionario.txt")) {
        Voci attese;
        for (std::size_t i = 1; i + 1 < r.size(); i += 2) attese.emplace_back(prova::Scritto(r[i]), prova::Scritto(r[i + 1]));
        EXPECT_EQ(Da(prova::Scritto(r.at(0))).Voci(), attese) << r[0];
    }
}

TEST(Dizionario, Search) {
    const Dizionario d = Da("\"Latitudine:   |Latitude:   \r\ncittà è già più|CITY\r\nUno|first\r\nuno|second\r\nœuvre ÿ|work\"");
    const std::pair<const char *, const char *> casi[] = {{"Latitudine:   ", "Latitude:   "},
                                                          {"LATITUDINE:   ", "Latitude:   "},
                                                          {"Latitudine:", "Latitudine:"},
                                                          {"CITTÀ È GIÀ PIÙ", "CITY"},
                                                          {"UNO", "first"},
                                                          {"uno", "first"},
                                                          {"ŒUVRE Ÿ", "work"},
                                                          {"OEUVRE Y", "OEUVRE Y"},
                                                          {"", ""},
                                                          {"citta e gia piu", "citta e gia piu"}};
    for (const auto &[testo, traduzione] : casi) EXPECT_EQ(d.Traduci(testo), traduzione);
    EXPECT_EQ(Dizionario().Traduci("Latitudine:   "), "Latitudine:   ");
}

TEST(Dizionario, AccentedCapitals) {
    EXPECT_EQ(Maiuscolo("àèéìíîòóùúâêîôûëïüçœæÿ÷ß€ zA9"), "ÀÈÉÌÍÎÒÓÙÚÂÊÎÔÛËÏÜÇŒÆŸ÷ß€ ZA9");
    EXPECT_EQ(Maiuscolo("\xC3"), "\xC3") << "half a letter at the end";
}

// The plain search that the lookup stands for.
std::string Lineare(const Voci &voci, std::string_view testo) {
    for (const auto &[sorgente, traduzione] : voci)
        if (Maiuscolo(sorgente) == Maiuscolo(testo)) return traduzione;
    return std::string(testo);
}

TEST(Dizionario, AsTheLinearSearchFinds) {
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

}  // namespace
}  // namespace ombrelia
