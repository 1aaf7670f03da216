// The texts of the program, gathered from its source files.
#include "lang/sorgenti.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace ombrelia::prova {

namespace {

struct Pezzo {
    enum Tipo { Nome, Letterale, Segno } tipo;
    std::string testo;
    bool segnato = false;  // a literal with the mark _it
};

bool diNome(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

std::string nome(std::string_view codice, std::size_t &i) {
    const std::size_t da = i;
    while (i < codice.size() && diNome(codice[i])) ++i;
    return std::string(codice.substr(da, i - da));
}

// The characters of a literal that opens at i, i moved behind its closing quote.
std::string letterale(std::string_view codice, std::size_t &i) {
    const char chiude = codice[i++];
    std::string t;
    for (; i < codice.size() && codice[i] != chiude; ++i) {
        if (codice[i] != '\\' || i + 1 == codice.size()) {
            t += codice[i];
            continue;
        }
        ++i;
        t += codice[i] == 'n' ? '\n' : codice[i] == 'r' ? '\r' : codice[i] == 't' ? '\t' : codice[i];
    }
    ++i;
    return t;
}

// Names, string literals (adjacent ones joined) and signs of a source, comments and directives dropped.
std::vector<Pezzo> pezzi(std::string_view codice) {
    std::vector<Pezzo> p;
    for (std::size_t i = 0; i < codice.size();) {
        const char c = codice[i];
        if (codice.substr(i, 2) == "//" || c == '#') {
            i = std::min(codice.find('\n', i), codice.size());
        } else if (codice.substr(i, 2) == "/*") {
            i = std::min(codice.find("*/", i), codice.size() - 2) + 2;
        } else if (c == '"') {
            std::string t = letterale(codice, i);
            const bool segnato = nome(codice, i) == "_it";
            if (!p.empty() && p.back().tipo == Pezzo::Letterale) {
                p.back().testo += t;
                p.back().segnato |= segnato;
            } else {
                p.push_back({Pezzo::Letterale, std::move(t), segnato});
            }
        } else if (c == '\'') {
            letterale(codice, i);
            p.push_back({Pezzo::Segno, "'"});
        } else if (std::isdigit(static_cast<unsigned char>(c)) != 0) {  // with its digit separators
            while (i < codice.size() && (diNome(codice[i]) || codice[i] == '\'')) ++i;
            p.push_back({Pezzo::Segno, "0"});
        } else if (diNome(c)) {
            p.push_back({Pezzo::Nome, nome(codice, i)});
        } else {
            if (std::isspace(static_cast<unsigned char>(c)) == 0) p.push_back({Pezzo::Segno, std::string(1, c)});
            ++i;
        }
    }
    return p;
}

}  // namespace

void TestiDi(std::string_view codice, const std::string &file, std::vector<TestoSorgente> &testi,
             std::vector<std::string> &variabili) {
    const std::vector<Pezzo> p = pezzi(codice);
    for (std::size_t i = 0; i < p.size(); ++i) {
        if (p[i].tipo == Pezzo::Letterale && p[i].segnato) testi.push_back({p[i].testo, file});
        if (p[i].testo != "Traduci" || i + 1 == p.size() || p[i + 1].testo != "(") continue;
        int profondo = 0;
        bool letterali = false;
        for (std::size_t k = i + 1; k < p.size(); ++k) {
            if (p[k].testo == "(" && p[k].tipo == Pezzo::Segno) ++profondo;
            if (p[k].testo == ")" && p[k].tipo == Pezzo::Segno && --profondo == 0) break;
            if (p[k].tipo != Pezzo::Letterale) continue;
            letterali = true;
            if (!p[k].segnato) testi.push_back({p[k].testo, file});
        }
        if (!letterali) variabili.push_back(file);
    }
}

void TestiDelProgramma(std::vector<TestoSorgente> &testi, std::vector<std::string> &variabili) {
    const std::filesystem::path radice = OMBRELIA_RADICE "/src";
    for (const auto &voce : std::filesystem::recursive_directory_iterator(radice)) {
        const std::string ending = voce.path().extension().string();
        if (ending != ".cpp" && ending != ".h") continue;
        std::ifstream f(voce.path(), std::ios::binary);
        const std::string codice{std::istreambuf_iterator<char>(f), {}};
        TestiDi(codice, std::filesystem::relative(voce.path(), radice).generic_string(), testi, variabili);
    }
}

}  // namespace ombrelia::prova
