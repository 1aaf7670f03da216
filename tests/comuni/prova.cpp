#include "comuni/prova.h"

#include <fstream>
#include <stdexcept>

namespace ombrelia {

IdControllo TrovaControllo(std::string_view nome) {
    const auto id = CercaControllo(nome);
    if (!id) throw std::runtime_error("no control " + std::string(nome));
    return *id;
}

}  // namespace ombrelia

namespace ombrelia::prova {

std::vector<std::vector<std::string>> Tabella(std::string_view nome) {
    std::ifstream f(std::string(OMBRELIA_RADICE "/tests/data/") + std::string(nome));
    if (!f) throw std::runtime_error("no table " + std::string(nome));
    std::vector<std::vector<std::string>> righe;
    for (std::string riga; std::getline(f, riga);) {
        if (riga.empty() || riga[0] == '#') continue;
        std::vector<std::string> campi = Divisi(riga, '|');
        for (std::string &campo : campi) campo = SenzaBlanks(campo);
        righe.push_back(std::move(campi));
    }
    return righe;
}

std::vector<std::string> Divisi(std::string_view testo, char con) {
    std::vector<std::string> parti;
    if (testo.empty()) return parti;
    for (std::size_t i = 0; i <= testo.size();) {
        const std::size_t fine = std::min(testo.find(con, i), testo.size());
        parti.emplace_back(testo.substr(i, fine - i));
        i = fine + 1;
    }
    return parti;
}

std::string Scritto(std::string_view campo) {
    std::string t;
    for (std::size_t i = 0; i < campo.size(); ++i) {
        if (campo[i] != '\\' || i + 1 == campo.size()) {
            t += campo[i];
        } else if (campo[++i] == 'x') {
            t += static_cast<char>(std::stoi(std::string(campo.substr(i + 1, 2)), nullptr, 16));
            i += 2;
        } else {
            constexpr std::string_view DOPO = "rntsp\\", SONO = "\r\n\t |\\";
            t += SONO.at(DOPO.find(campo[i]));
        }
    }
    return t;
}

}  // namespace ombrelia::prova
