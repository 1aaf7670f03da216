// The certificate from options: a dial drawn in memory and held against the shadow.
#pragma once

namespace ombrelia::cli {

// The command `ombrelia certify`; gives the exit status: 0 true, 1 not, 2 for what can't be done.
int Certify(int argc, char **argv);

}  // namespace ombrelia::cli
