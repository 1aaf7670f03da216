// What a kill in the middle and a disk that fills up leave of a file.
#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>

#include "comuni/cartella.h"
#include "core/campi.h"
#include "persist/parametri.h"

namespace ombrelia {
namespace {

using InterruzioneTest = prova::InCartella;

std::string Grande(char c) { return std::string(300000, c); }

TEST_F(InterruzioneTest, AKillLeavesTheOldFileOrTheNew) {
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

TEST_F(InterruzioneTest, AFullDiskLeavesTheOldFile) {
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
