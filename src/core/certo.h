// Assertions that stay on in every build.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace ombrelia {

// What can't be unless the program itself is wrong: it ends here, and says why, rather than go on with what it does not know.
inline void Certo(bool vero, const char *altrimenti) {
    if (vero) [[likely]]
        return;
    std::fprintf(stderr, "bug: %s\n", altrimenti);
    std::abort();
}

}  // namespace ombrelia
