// The command for people: the Sun over a place, and the declination of a wall out of one reading or several.
#pragma once

namespace ombrelia::cli {

// The command `ombrelia sun`; gives the exit status.
int Sun(int argc, char **argv);

}  // namespace ombrelia::cli
