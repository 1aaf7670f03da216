// Files written whole or not at all.
#include "core/file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "comuni/cartella.h"

namespace ombrelia {
namespace {

namespace fs = std::filesystem;

using File = prova::InCartella;

TEST_F(File, ScrittoERiletto) {
    const std::string f = "a.dxf", testo = std::string("uno\r\ndue\0tre", 12);
    EXPECT_EQ(ScriviFile(f, std::string(100000, 'x')), std::nullopt);
    fs::permissions(f, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(ScriviFile(f, testo), std::nullopt);
    EXPECT_EQ(LeggiFile(f, 12), testo);
    EXPECT_EQ(fs::status(f).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(ScriviFile(f, ""), std::nullopt);
    EXPECT_EQ(LeggiFile(f, 0), "");
    EXPECT_EQ(quanti(), 1U) << "nothing is left beside the target";
}

TEST_F(File, CollegamentiRestano) {
    fs::create_directory("altrove");
    fs::create_symlink("altrove/b", "a");
    EXPECT_EQ(ScriviFile("a", "primo"), std::nullopt) << "the link may point to nothing yet";
    EXPECT_EQ(ScriviFile("a", "secondo"), std::nullopt);
    EXPECT_TRUE(fs::is_symlink("a"));
    EXPECT_EQ(LeggiFile("altrove/b", 100), "secondo");
    fs::create_symlink("giro", "giro");
    EXPECT_TRUE(ScriviFile("giro", "x"));
}

TEST_F(File, ErroriConNomeEMotivo) {
    ASSERT_EQ(::mkfifo("tubo", 0600), 0);
    struct Riga {
        std::string nome;
        const char *motivo;
    };
    for (const Riga &r :
         {Riga{"/dev/full", "No space left on device"}, Riga{".", "Is a directory"}, Riga{"manca/a", "No such file or directory"},
          Riga{"", "No such file"}, Riga{"tubo", "No such device"}, Riga{"/proc/a.dxf", "No such file"},
          Riga{std::string(300, 'n'), "name too long"}, Riga{std::string("a\0b", 3), "No such file"}}) {
        const auto errore = ScriviFile(r.nome, "abc");
        ASSERT_TRUE(errore) << r.nome;
        EXPECT_NE(errore->find("\"" + r.nome + "\": "), std::string::npos) << *errore;
        EXPECT_NE(errore->find(r.motivo), std::string::npos) << *errore;
    }
    EXPECT_EQ(ScriviFile("/dev/null", "abc"), std::nullopt);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(quanti(), 1U) << "the pipe only";
}

TEST_F(File, CartellaChiusa) {
    ASSERT_EQ(ScriviFile("vecchio", "vecchio"), std::nullopt);
    fs::permissions(".", fs::perms::owner_read | fs::perms::owner_exec);
    const auto errore = ScriviFile("vecchio", "nuovo");
    fs::permissions(".", fs::perms::owner_all);
    if (::geteuid() == 0) GTEST_SKIP() << "root writes everywhere";
    EXPECT_TRUE(errore);
    EXPECT_EQ(LeggiFile("vecchio", 100), "vecchio");
}

TEST_F(File, LetturaLimitata) {
    ASSERT_EQ(ScriviFile("a", std::string(50000, 'x')), std::nullopt);
    ASSERT_EQ(::mkfifo("tubo", 0600), 0);
    std::string errore;
    EXPECT_EQ(LeggiFile("a", 49999, &errore), std::nullopt);
    EXPECT_NE(errore.find("49999"), std::string::npos);
    EXPECT_EQ(LeggiFile("a", 50000)->size(), 50000U);
    EXPECT_EQ(LeggiFile("/dev/zero", 1000000, &errore), std::nullopt);
    EXPECT_EQ(LeggiFile(".", 10, &errore), std::nullopt);
    EXPECT_NE(errore.find("directory"), std::string::npos);
    EXPECT_EQ(LeggiFile("manca", 10, &errore), std::nullopt);
    EXPECT_NE(errore.find("No such file"), std::string::npos);
    EXPECT_EQ(LeggiFile("tubo", 10), "") << "a pipe that nobody writes ends at once";
}

}  // namespace
}  // namespace ombrelia
