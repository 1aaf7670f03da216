// The command line as a shell meets it: arguments in; standard output, standard error and exit status out.
#include <sys/wait.h>

#include <cstdlib>
#include <regex>

#include "comuni/cartella.h"
#include "comuni/prova.h"

namespace ombrelia {
namespace {

struct Comandi : prova::InCartella {
    // Runs a line of the shell, in which "ombrelia" is the program and $programma its file; fills detto and errore.
    int guscio(const std::string &riga) {
        const std::string preludio =
            "exec >fuori 2>errore </dev/null; programma='" OMBRELIA_PROGRAMMA "'; ombrelia() { \"$programma\" \"$@\"; }; ";
        scrivi("riga.sh", preludio + riga + "\n");
        const int stato = std::system("QT_QPA_PLATFORM=offscreen sh riga.sh");
        detto = leggi("fuori");
        errore = leggi("errore");
        return WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
    }
    std::string detto, errore;
};

// What a row expects of a stream: silence for an empty field, else what the pattern finds in it.
bool come(const std::string &testo, const std::string &atteso) {
    if (atteso.empty()) return testo.empty();
    return std::regex_search(testo, std::regex(atteso));
}

TEST_F(Comandi, TheTable) {
    int righe = 0;
    for (const auto &r : prova::Tabella("comandi.txt")) {
        ++righe;
        ASSERT_EQ(r.size(), 4U) << r[0];
        const int stato = guscio(prova::Scritto(r[0]));
        EXPECT_EQ(std::to_string(stato), r[1]) << r[0] << "\n" << errore;
        EXPECT_TRUE(come(detto, prova::Scritto(r[2]))) << r[0] << "\nstandard output: " << detto.substr(0, 500);
        EXPECT_TRUE(come(errore, prova::Scritto(r[3]))) << r[0] << "\nstandard error: " << errore.substr(0, 500);
    }
    EXPECT_GT(righe, 0);
}

}  // namespace
}  // namespace ombrelia
