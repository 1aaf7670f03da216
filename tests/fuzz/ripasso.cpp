// Stands in for the fuzzer where there is none: each file of the corpus, every beginning of it, and it with single bytes
// changed.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz.h"

namespace {

void prova(const std::string &testo) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(testo.data()), testo.size());
}

}  // namespace

int main(int argc, char **argv) {
    std::size_t quanti = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto &voce : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream f(voce.path(), std::ios::binary);
            std::string testo{std::istreambuf_iterator<char>(f), {}};
            prova(testo);
            const std::size_t passo = testo.size() / 200 + 1;
            for (std::size_t k = 0; k < testo.size(); k += passo) {
                prova(testo.substr(0, k));
                for (const char c : {'"', '<', '\0', '\r', ',', '|', '\xFF'}) {
                    const char prima = testo[k];
                    testo[k] = c;
                    prova(testo);
                    testo[k] = prima;
                }
            }
            ++quanti;
        }
    }
    std::printf("%zu files\n", quanti);
    return quanti > 0 ? 0 : 1;
}
