// Where the program's own data files lie.
#include "core/percorsi.h"

#include <system_error>

namespace ombrelia {

std::optional<std::filesystem::path> TrovaDato(std::string_view nome) {
    std::error_code errore;
    const auto c_e = [&](const std::filesystem::path &p) { return std::filesystem::is_regular_file(p, errore); };
    if (const std::filesystem::path qui(nome); c_e(qui)) return qui;

    const std::filesystem::path programma = std::filesystem::read_symlink("/proc/self/exe", errore);
    if (programma.empty()) return {};
    const std::filesystem::path casa = programma.parent_path();
    for (const auto &cartella : {casa, casa.parent_path() / "data", casa.parent_path() / "share" / "ombrelia"}) {
        if (c_e(cartella / nome)) return cartella / nome;
    }
    return {};
}

}  // namespace ombrelia
