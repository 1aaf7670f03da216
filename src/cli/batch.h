// The action script: a user's actions at the main window, one a line.
#pragma once

#include <string>
#include <string_view>

namespace ombrelia::cli {

// Performs the actions of a script; nome stands for it in errors. Gives the exit status: 0 when every action was done,
// 2 when one could not be, with "nome:line: reason" on standard error.
int EseguiAzioni(std::string_view script, const std::string &nome);

// The command `ombrelia batch FILE`.
int Batch(int argc, char **argv);

}  // namespace ombrelia::cli
