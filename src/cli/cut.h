// The commands that make files for machines.
#pragma once

namespace ombrelia::cli {

// The commands `ombrelia cut` and `ombrelia solid`; give the exit status.
int Cut(int argc, char **argv);
int Solid(int argc, char **argv);

}  // namespace ombrelia::cli
