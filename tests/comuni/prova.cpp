#include "comuni/prova.h"

#include <fstream>
#include <stdexcept>

namespace ombrelia::prova {

std::vector<std::vector<std::string>> Tabella(std::string_view nome) {
    std::ifstream f(std::string(OMBRELIA_RADICE "/tests/data/") + std::string(nome));
    if (!f) throw std::runtime_error("no table " + std::string(nome));
    std::vector<std::vector<std::string>> righe;
    for (std::string riga; std::getline(f, riga);) {
        if (riga.empty() || riga[0] == '#') continue;
        std::vector<std::string> campi;
        for (std::size_t i = 0; i <= riga.size();) {
            const std::size_t fine = std::min(riga.find('|', i), riga.size());
            campi.push_back(SenzaBlanks(std::string_view(riga).substr(i, fine - i)));
            i = fine + 1;
        }
        righe.push_back(std::move(campi));
    }
    return righe;
}

}  // namespace ombrelia::prova
