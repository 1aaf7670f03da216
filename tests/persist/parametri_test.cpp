// The store of keys and values, to the byte.
#include "persist/parametri.h"

#include "comuni/cartella.h"
#include "core/campi.h"

namespace ombrelia {
namespace {

using ParametriTest = prova::InCartella;

TEST_F(ParametriTest, EachWriteKeepsTheOtherRows) {
    Parametri p;
    EXPECT_EQ(p.Leggi("LAT"), "");
    EXPECT_EQ(p.Scrivi("LAT", "45,5"), std::nullopt);
    EXPECT_EQ(p.Scrivi("lat", ""), std::nullopt);
    EXPECT_EQ(p.Scrivi("DEC", " -20 "), std::nullopt);
    EXPECT_EQ(p.Scrivi("LAT", "46"), std::nullopt);
    EXPECT_EQ(leggi("Ombrelia.dat"), "\"LAT\",\"46\"\r\n\"lat\",\"\"\r\n\"DEC\",\" -20 \"\r\n");
    Parametri altro;
    EXPECT_EQ(altro.Leggi("LAT"), "46");
    EXPECT_EQ(altro.Leggi("DEC"), " -20 ");
    EXPECT_EQ(altro.Leggi("Lat"), "");
    EXPECT_EQ(quanti(), 1U);
}

TEST_F(ParametriTest, WhatFilesHold) {
    const struct {
        std::string file;
        const char *valore;  // of the key K
    } casi[] = {
        {"\"K\",\"first\"\r\n\"K\",\"second\"\r\n", "first"},
        {"K,plain\nL,x\n", "plain"},
        {"\"L\"\r\n\"x\"\r\n\"K\",\"v\"\r\n", "v"},  // the next line's first field is the value
        {"\"L\"\r\n\"K\",\"v\"\r\n", ""},            // and so K is a value here, and v a key
        {"\"K\",\"say \"hm\"\"\r\n", "say "},
        {"\"L\",\"x\"\r\n\"K\"", ""},
        {"\xEF\xBB\xBF\"K\",\"perch\xC3\xA9\"\r\n", "perché"},
        {"\"K\",\"perch\xE9 \x80\"\r\n", "perché €"},  // Windows-1252
        {"\"k\",\"x\"\r\n", ""},
        {"", ""},
    };
    for (const auto &caso : casi) {
        scrivi("Ombrelia.dat", caso.file);
        EXPECT_EQ(Parametri().Leggi("K"), caso.valore) << caso.file;
    }
}

TEST_F(ParametriTest, AQuoteInAValueEndsItOnlyWhenItIsReadAgain) {
    Parametri p;
    EXPECT_EQ(p.Scrivi("A", "5\" pipe, x"), std::nullopt);
    EXPECT_EQ(p.Scrivi("B", "2"), std::nullopt);
    EXPECT_EQ(leggi("Ombrelia.dat"), "\"A\",\"5\" pipe, x\"\r\n\"B\",\"2\"\r\n");
    EXPECT_EQ(p.Leggi("A"), "5\" pipe, x");
    EXPECT_EQ(Parametri().Leggi("A"), "5");
}

TEST_F(ParametriTest, ManyRows) {
    std::string file;
    for (int i = 0; i < 5000; ++i) file += "\"k" + std::to_string(i) + "\",\"" + std::to_string(i * i) + "\"\r\n";
    scrivi("Ombrelia.dat", file);
    Parametri p;
    EXPECT_EQ(p.Leggi("k4999"), "24990001");
    EXPECT_EQ(p.Scrivi("k0", "0"), std::nullopt);
    EXPECT_EQ(leggi("Ombrelia.dat"), file);
}

TEST_F(ParametriTest, TheNextLoadOrWriteUsesTheName) {
    scrivi("altro.dat", "\"K\",\"v\"\r\n");
    Parametri p;
    EXPECT_EQ(p.NomeFile(), "Ombrelia.dat");
    p.NomeFile("altro.dat");
    EXPECT_EQ(p.Leggi("K"), "v");
    p.NomeFile("terzo.dat");
    EXPECT_EQ(p.Scrivi("L", "w"), std::nullopt);
    EXPECT_EQ(leggi("terzo.dat"), "\"K\",\"v\"\r\n\"L\",\"w\"\r\n");
    EXPECT_EQ(leggi("altro.dat"), "\"K\",\"v\"\r\n");
}

TEST_F(ParametriTest, NoFileIsLostToAWriteThatCannotBe) {
    const std::string grande = "\"K\",\"" + std::string(FILE_MASSIMO, 'x') + "\"\r\n";
    scrivi("grande.dat", grande);
    const std::string pieno = "\"K\",\"" + std::string(FILE_MASSIMO - 20, 'x') + "\"\r\n";
    scrivi("pieno.dat", pieno);
    std::filesystem::create_directory("cartella.dat");
    for (const char *nome : {"grande.dat", "pieno.dat", "cartella.dat", "/dev/full", "manca/nulla.dat"}) {
        Parametri p;
        p.NomeFile(nome);
        const auto errore = p.Scrivi("CHIAVE", "un valore");
        ASSERT_TRUE(errore) << nome;
        EXPECT_NE(errore->find(nome), std::string::npos) << *errore;
    }
    EXPECT_EQ(leggi("grande.dat"), grande);
    EXPECT_EQ(leggi("pieno.dat"), pieno);
    EXPECT_EQ(quanti(), 3U) << "nothing is left beside the targets";
}

}  // namespace
}  // namespace ombrelia
