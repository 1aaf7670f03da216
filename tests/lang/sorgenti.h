// The texts of the program, gathered from its source files: what stands inside Traduci(...) and what is marked by _it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ombrelia::prova {

// A text of the program and the file it stands in.
struct TestoSorgente {
    std::string testo, file;
};

// Those of one C++ source; file is only copied. A call of Traduci without a literal adds the file to variabili.
void TestiDi(std::string_view codice, const std::string &file, std::vector<TestoSorgente> &testi,
             std::vector<std::string> &variabili);

// Those of every source file under src.
void TestiDelProgramma(std::vector<TestoSorgente> &testi, std::vector<std::string> &variabili);

}  // namespace ombrelia::prova
