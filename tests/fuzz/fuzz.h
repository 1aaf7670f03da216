// What the fuzz targets share: their entry point, and a check that stays on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *dati, std::size_t quanti);

namespace ombrelia::fuzz {

inline std::string Testo(const std::uint8_t *dati, std::size_t quanti) { return {reinterpret_cast<const char *>(dati), quanti}; }

inline void Pretendi(bool vero, const char *cosa) {
    if (vero) return;
    std::fprintf(stderr, "not so: %s\n", cosa);
    std::abort();
}

}  // namespace ombrelia::fuzz
