// The program without a window: picks the command.
#include <cstdio>
#include <new>
#include <string>
#include <string_view>

#include "cli/aiuto.h"
#include "cli/batch.h"
#include "cli/draw.h"
#include "cli/report.h"
#include "cli/sun.h"

namespace {

struct Comando {
    std::string_view nome;
    int (*esegui)(int argc, char **argv);
};
constexpr Comando COMANDI[] = {{"batch", ombrelia::cli::Batch}, {"draw", ombrelia::cli::Draw}, {"report", ombrelia::cli::Report}, {"sun", ombrelia::cli::Sun}};

bool chiedeAiuto(std::string_view a) { return a == "--help" || a == "-h" || a == "help"; }

}  // namespace

int main(int argc, char **argv) {
    const std::string_view primo = argc > 1 ? argv[1] : "";
    if (primo == "--version") {
        std::puts("ombrelia " OMBRELIA_VERSIONE);
        return 0;
    }
    if (primo.empty() || chiedeAiuto(primo)) {
        std::fputs(ombrelia::cli::Aiuto(argc > 2 ? argv[2] : "").c_str(), stdout);
        return primo.empty() ? 2 : 0;
    }
    for (const Comando &c : COMANDI) {
        if (c.nome != primo) continue;
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
