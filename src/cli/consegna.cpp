// Output to a file or to standard output.
#include "cli/consegna.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "core/file.h"

namespace ombrelia::cli {

std::string Consegna(const std::string &percorso, std::string_view contenuto) {
    if (percorso != "-") return ScriviFile(percorso, contenuto).value_or("");
    if (std::fwrite(contenuto.data(), 1, contenuto.size(), stdout) != contenuto.size() || std::fflush(stdout) != 0)
        return std::string("standard output: ") + std::strerror(errno);
    return {};
}

}  // namespace ombrelia::cli
