// The commands of the program, one a row, and the help of each.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ombrelia::cli {

struct Sottocomando {
    std::string_view nome, che, aiuto;       // what it is for in one line; its help
    int (*esegui)(int argc, char **argv);    // what stands behind its name; gives the exit status. The window's is null
    void (*coda)(std::string &t) = nullptr;  // adds the rows of other tables to its help
};
[[nodiscard]] std::span<const Sottocomando> Sottocomandi();

// Help of a command; the overview for an empty or unknown name.
[[nodiscard]] std::string Aiuto(std::string_view comando);

}  // namespace ombrelia::cli
