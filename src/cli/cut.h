// The command that makes files for machines.
#pragma once

namespace ombrelia::cli {

// The command `ombrelia cut`; gives the exit status.
int Cut(int argc, char **argv);

}  // namespace ombrelia::cli
