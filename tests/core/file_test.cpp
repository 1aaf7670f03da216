// Files written whole or not at all.
#include "core/file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "comuni/cartella.h"

namespace ombrelia {
namespace {

namespace fs = std::filesystem;

using File = prova::InCartella;

TEST_F(File, WrittenAndReadBack) {
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

TEST_F(File, LinksStay) {
    fs::create_directory("altrove");
    fs::create_symlink("altrove/b", "a");
    EXPECT_EQ(ScriviFile("a", "primo"), std::nullopt) << "the link may point to nothing yet";
    EXPECT_EQ(ScriviFile("a", "secondo"), std::nullopt);
    EXPECT_TRUE(fs::is_symlink("a"));
    EXPECT_EQ(LeggiFile("altrove/b", 100), "secondo");
    fs::create_symlink("giro", "giro");
    EXPECT_TRUE(ScriviFile("giro", "x"));
}

TEST_F(File, ErrorsWithNameAndReason) {
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

// What can be written but not replaced is written in place, and what it holds is never lost.
TEST_F(File, WhereNothingCanBeReplaced) {
    ASSERT_EQ(ScriviFile("vecchio", "vecchio, e piu lungo"), std::nullopt);
    fs::create_hard_link("vecchio", "altro nome");
    EXPECT_EQ(ScriviFile("vecchio", "uno"), std::nullopt);
    EXPECT_EQ(LeggiFile("altro nome", 100), "uno");
    EXPECT_EQ(fs::hard_link_count("vecchio"), 2U);
    fs::remove("altro nome");
    EXPECT_EQ(quanti(), 1U);
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown("vecchio", 12345, 23456), 0);
        EXPECT_EQ(ScriviFile("vecchio", "due"), std::nullopt);
        struct stat s {};
        ASSERT_EQ(::stat("vecchio", &s), 0);
        EXPECT_EQ(s.st_uid, 12345U);
        EXPECT_EQ(s.st_gid, 23456U);
    } else {
        fs::permissions(".", fs::perms::owner_read | fs::perms::owner_exec);
        const auto vecchio = ScriviFile("vecchio", "due"), nuovo = ScriviFile("nuovo", "due");
        fs::permissions(".", fs::perms::owner_all);
        EXPECT_EQ(vecchio, std::nullopt);
        EXPECT_TRUE(nuovo);
    }
    EXPECT_EQ(LeggiFile("vecchio", 100), "due");
}

// Killed programs leave files beside their targets; a program that lives holds its own.
TEST_F(File, TemporaryFilesOfTheDead) {
    for (const char *nome : {".ombrelia-0.tmp", ".ombrelia-77.tmp", ".ombrelia-mio", "ombrelia-1.tmp"}) scrivi(nome, "mezzo");
    const int vivo = ::open(".ombrelia-77.tmp", O_RDONLY);
    ASSERT_EQ(::flock(vivo, LOCK_EX), 0);
    EXPECT_EQ(ScriviFile("a", "a"), std::nullopt);
    ::close(vivo);
    EXPECT_FALSE(fs::exists(".ombrelia-0.tmp"));
    EXPECT_EQ(quanti(), 4U) << "of others, of the living, and the target";
    EXPECT_TRUE(fs::exists(".ombrelia-77.tmp"));
}

TEST_F(File, OpenFilesAndPipes) {
    int capi[2];
    ASSERT_EQ(::pipe(capi), 0);
    EXPECT_EQ(ScriviFile("/dev/fd/" + std::to_string(capi[1]), "per il tubo"), std::nullopt);
    char letto[32] = {};
    EXPECT_EQ(::read(capi[0], letto, sizeof letto), 11);
    EXPECT_STREQ(letto, "per il tubo");
    ::close(capi[0]), ::close(capi[1]);
    ASSERT_EQ(::mkfifo("tubo", 0600), 0);
    const int scrive = ::open("tubo", O_RDWR);  // would keep a reader waiting
    std::string errore;
    EXPECT_EQ(LeggiFile("tubo", 10, &errore, Fonte::File), std::nullopt);
    EXPECT_NE(errore.find("\"tubo\": "), std::string::npos);
    ::close(scrive);
}

TEST_F(File, BoundedReading) {
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
