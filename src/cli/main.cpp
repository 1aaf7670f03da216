// The program without a window: picks the command.
#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#define OMBRELIA_POSIX 1
#endif

#include <csignal>
#include <cstdio>
#include <new>
#include <string>
#include <string_view>

#include "cli/aiuto.h"
#ifdef OMBRELIA_CON_QT
#include "desktop/avvio.h"
#endif

namespace {

// The window, when this build has one: by name, or with no command where there is a display.
bool apreFinestra(std::string_view primo, int argc, char **argv, int &esito) {
#ifdef OMBRELIA_CON_QT
    if (primo != "gui" && !(primo.empty() && ombrelia::desktop::HaSchermo())) return false;
    if (!ombrelia::desktop::HaSchermo()) {
        std::fputs("ombrelia: there is no display for the window; see ombrelia --help for what needs none\n", stderr);
        esito = 2;
        return true;
    }
    if (argc > 1) argv[1] = argv[0];
    esito = ombrelia::desktop::ApriFinestra(argc > 1 ? argc - 1 : argc, argc > 1 ? argv + 1 : argv);
    return true;
#else
    if (primo != "gui") return false;
    (void)argc, (void)argv;
    std::fputs("ombrelia: this build has no Qt and so no window\n", stderr);
    esito = 2;
    return true;
#endif
}

bool chiedeAiuto(std::string_view a) { return a == "--help" || a == "-h" || a == "help"; }

// Runs the command that is asked for; gives the exit status.
int esegui(int argc, char **argv) {
    const std::string_view primo = argc > 1 ? argv[1] : "";
    if (primo == "--version" || (primo == "gui" && argc > 2 && std::string_view(argv[2]) == "--version")) {
        std::puts("ombrelia " OMBRELIA_VERSIONE);
        return 0;
    }
    const bool aiuto = argc > 2 && chiedeAiuto(argv[2]);
    if (primo == "gui" && aiuto) {
        std::fputs(ombrelia::cli::Aiuto(primo).c_str(), stdout);
        return 0;
    }
    if (int esito = 0; apreFinestra(primo, argc, argv, esito)) return esito;
#ifdef OMBRELIA_POSIX
    // A reader that goes away, or a limit on files, is lost output, which is told.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    if (primo.empty() || chiedeAiuto(primo)) {
        std::fputs(ombrelia::cli::Aiuto(argc > 2 ? argv[2] : "").c_str(), stdout);
        return primo.empty() ? 2 : 0;
    }
    for (const ombrelia::cli::Sottocomando &c : ombrelia::cli::Sottocomandi()) {
        if (c.nome != primo || !c.esegui) continue;
        for (int i = 2; i < argc; ++i)
            if (std::string_view(argv[i]) == "--help" || std::string_view(argv[i]) == "-h") {
                std::fputs(ombrelia::cli::Aiuto(primo).c_str(), stdout);
                return 0;
            }
        try {
            return c.esegui(argc - 2, argv + 2);
        } catch (const std::bad_alloc &) {
            std::fputs("ombrelia: not enough memory for this drawing\n", stderr);
            return 2;
        }
    }
    std::fprintf(stderr, "ombrelia: unknown command %.*s; see ombrelia --help\n", static_cast<int>(primo.size()), primo.data());
    return 2;
}

// A stream that is not there is one that fails: no file opened later takes its place.
void chiudiMancanti() {
#ifdef OMBRELIA_POSIX
    for (int fd = 0; fd < 3; ++fd)
        if (::fcntl(fd, F_GETFD) < 0) ::open("/dev/null", fd == 0 ? O_WRONLY : O_RDONLY);
#endif
}

}  // namespace

int main(int argc, char **argv) {
    chiudiMancanti();
    const int esito = esegui(argc, argv);
    // What was said and got lost was not said.
    const bool persa = std::ferror(stdout) != 0;
    if (std::fflush(stdout) == 0 && !persa) return esito;
    std::fputs("ombrelia: standard output: not all could be written\n", stderr);
    return esito == 0 ? 2 : esito;
}
