// The command `ombrelia gui`. No toolkit in this header: the program's main includes it.
#pragma once

namespace ombrelia::desktop {

// Whether a window could be shown.
[[nodiscard]] bool HaSchermo();
// Opens the window; the arguments may name a project, "--run" before it draws it at once. Gives the exit status.
int ApriFinestra(int argc, char **argv);

}  // namespace ombrelia::desktop
