// The action script: a user's actions at the main window, one a line.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "sessione/sessione.h"

namespace ombrelia::cli {

// A program started afresh that performs actions line by line; what it tells goes to standard output.
class Copione {
public:
    Copione();
    ~Copione();
    // Nothing when the line's action was done, else the reason.
    [[nodiscard]] std::optional<std::string> Esegui(std::string_view riga);
    [[nodiscard]] Sessione &sessione();

private:
    struct Interno;
    std::unique_ptr<Interno> interno_;
};

// Performs the actions of a script; nome stands for it in errors. Gives the exit status: 0 when every action was done,
// 2 when one could not be, with "nome:line: reason" on standard error.
int EseguiAzioni(std::string_view script, const std::string &nome);

// The command `ombrelia batch FILE`.
int Batch(int argc, char **argv);

}  // namespace ombrelia::cli
