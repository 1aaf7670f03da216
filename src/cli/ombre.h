// The shadow from options: what a point of the dial says, and where the shadow falls at a moment.
#pragma once

namespace ombrelia::cli {

// The commands `ombrelia read` and `ombrelia shadow`; give the exit status.
int Read(int argc, char **argv);
int Shadow(int argc, char **argv);

}  // namespace ombrelia::cli
