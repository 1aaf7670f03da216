// The command for the numbers of a dial: a report as text, CSV or HTML.
#pragma once

#include <string>

namespace ombrelia::cli {

// The command `ombrelia report`; gives the exit status.
int Report(int argc, char **argv);

// Names of the reports with what each holds, one a line, for the help.
[[nodiscard]] std::string NomiRapporti();

}  // namespace ombrelia::cli
