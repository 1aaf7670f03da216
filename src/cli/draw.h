// The command for people: a dial from options to files.
#pragma once

namespace ombrelia::cli {

// The command `ombrelia draw`; gives the exit status.
int Draw(int argc, char **argv);

}  // namespace ombrelia::cli
