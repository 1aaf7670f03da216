// The store of keys and values, to the byte, and what a kill in the middle and a disk that fills up leave of it.
#include "persist/parametri.h"

#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>

#include "comuni/cartella.h"
#include "comuni/prova.h"
#include "core/campi.h"

namespace ombrelia {
namespace {

using ParametriTest = prova::InCartella;

TEST_F(ParametriTest, EveryWriteKeepsTheOtherRows) {
    Parametri p;
    EXPECT_EQ(p.Leggi("LAT"), "");
    const std::pair<const char *, const char *> righe[] = {
        {"LAT", "45,5"}, {"lat", ""}, {"A", "5\" pipe, x"}, {"DEC", " -20 "}, {"LAT", "46"}};
    for (const auto &[chiave, valore] : righe) EXPECT_EQ(p.Scrivi(chiave, valore), std::nullopt);
    EXPECT_EQ(leggi("Ombrelia.dat"), "\"LAT\",\"46\"\r\n\"lat\",\"\"\r\n\"A\",\"5\" pipe, x\"\r\n\"DEC\",\" -20 \"\r\n");
    EXPECT_EQ(p.Leggi("A"), "5\" pipe, x");
    EXPECT_EQ(Parametri().Leggi("LAT"), "46");
    EXPECT_EQ(Parametri().Leggi("A"), "5") << "a quote in a value ends it when it is read again";
    EXPECT_EQ(Parametri().Leggi("Lat"), "");
    EXPECT_EQ(quanti(), 1U);
}

TEST_F(ParametriTest, WhatFilesHold) {
    for (const auto &r : prova::Tabella("parametri.txt")) {
        scrivi("Ombrelia.dat", prova::Scritto(r.at(0)));
        EXPECT_EQ(Parametri().Leggi("K"), prova::Scritto(r.at(1))) << r[0];
    }
}

TEST_F(ParametriTest, NoFileIsLostToAnImpossibleWrite) {
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

std::string Grande(char c) { return std::string(300000, c); }

TEST_F(ParametriTest, AHaltLeavesTheOldOrTheNew) {
    ASSERT_EQ(Parametri().Scrivi("K", Grande('a')), std::nullopt);
    const std::string prima = leggi("Ombrelia.dat");
    bool scritto = false;
    for (int giro = 0; giro < 15; ++giro) {
        const pid_t figlio = ::fork();
        ASSERT_GE(figlio, 0);
        if (figlio == 0) {
            for (char c = 'b';; c = c == 'z' ? 'b' : static_cast<char>(c + 1)) (void)Parametri().Scrivi("K", Grande(c));
        }
        ::usleep(1000 + 3000 * static_cast<unsigned>(giro));
        ::kill(figlio, SIGKILL);
        ::waitpid(figlio, nullptr, 0);
        const std::string poi = leggi("Ombrelia.dat");
        ASSERT_EQ(poi.size(), prima.size());
        const std::string valore = Parametri().Leggi("K");
        ASSERT_EQ(valore, Grande(valore[0]));
        scritto = scritto || poi != prima;
    }
    EXPECT_TRUE(scritto) << "no child came as far as one write";
}

TEST_F(ParametriTest, AFullDiskLeavesTheOld) {
    ASSERT_EQ(Parametri().Scrivi("K", "old"), std::nullopt);
    const std::string prima = leggi("Ombrelia.dat");
    const pid_t figlio = ::fork();
    ASSERT_GE(figlio, 0);
    if (figlio == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{100000, 100000};
        if (::setrlimit(RLIMIT_FSIZE, &limite) != 0) ::_exit(3);
        const auto errore = Parametri().Scrivi("K", Grande('b'));
        ::_exit(errore && errore->find("Ombrelia.dat") != std::string::npos ? 0 : 1);
    }
    int stato = 0;
    ::waitpid(figlio, &stato, 0);
    EXPECT_TRUE(WIFEXITED(stato) && WEXITSTATUS(stato) == 0) << "the failure is told with the file's name";
    EXPECT_EQ(leggi("Ombrelia.dat"), prima);
    EXPECT_EQ(quanti(), 1U) << "nothing is left beside it";
}

}  // namespace
}  // namespace ombrelia
