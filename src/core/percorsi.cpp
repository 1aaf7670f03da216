// Where the program's own data files lie.
#include "core/percorsi.h"

#include <system_error>
#include <vector>

namespace ombrelia {

namespace fs = std::filesystem;

namespace {

// The folders of the data, first the current one.
std::vector<fs::path> cartelle() {
    std::error_code errore;
    const fs::path programma = fs::read_symlink("/proc/self/exe", errore);
    if (programma.empty()) return {{}};
    const fs::path casa = programma.parent_path();
    return {{}, casa, casa.parent_path() / "data", casa.parent_path() / "share" / "ombrelia"};
}

}  // namespace

std::optional<fs::path> TrovaDato(std::string_view nome) {
    std::error_code errore;
    for (const fs::path &cartella : cartelle())
        if (const fs::path p = cartella / nome; fs::is_regular_file(p, errore)) return p;
    return {};
}

std::string LuoghiDati() {
    std::error_code errore;
    std::string testo;
    for (const fs::path &cartella : cartelle()) {
        if (!testo.empty()) testo += ", ";
        testo += (cartella.empty() ? fs::current_path(errore) : cartella).string();
    }
    return testo;
}

}  // namespace ombrelia
