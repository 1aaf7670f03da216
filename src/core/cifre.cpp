// Digits of a double and back.
#include "core/cifre.h"

#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace ombrelia::cifre {

namespace portatile {

namespace {

// A program with a window runs under the user's locale, where the point may be a comma.
std::size_t conPunto(std::span<char> b, int scritti) {
    const auto n = static_cast<std::size_t>(scritti);
    for (std::size_t i = 0; i < n; ++i)
        if (b[i] == ',') b[i] = '.';
    return n;
}

}  // namespace

std::size_t Scientifico(std::span<char> b, double numero, int decimali) {
    return conPunto(b, std::snprintf(b.data(), b.size(), "%.*e", decimali, numero));
}

std::size_t Diciassette(std::span<char> b, double numero) {
    return conPunto(b, std::snprintf(b.data(), b.size(), "%.17g", numero));
}

bool Leggi(const char *da, const char *a, double &numero) {
    const std::string testo(da, a);
    numero = std::strtod(testo.c_str(), nullptr);
    return std::isfinite(numero) && numero != 0;
}

}  // namespace portatile

#ifdef __cpp_lib_to_chars

namespace {

std::size_t quanti(std::span<char> b, std::to_chars_result r) { return static_cast<std::size_t>(r.ptr - b.data()); }

}  // namespace

std::size_t Scientifico(std::span<char> b, double numero, int decimali) {
    return quanti(b, std::to_chars(b.data(), b.data() + b.size(), numero, std::chars_format::scientific, decimali));
}
std::size_t Diciassette(std::span<char> b, double numero) {
    return quanti(b, std::to_chars(b.data(), b.data() + b.size(), numero, std::chars_format::general, 17));
}
std::size_t Corto(std::span<char> b, double numero) {
    return quanti(b, std::to_chars(b.data(), b.data() + b.size(), numero, std::chars_format::scientific));
}
bool Leggi(const char *da, const char *a, double &numero) {
    return std::from_chars(da, a, numero).ec != std::errc::result_out_of_range;
}

#else

std::size_t Scientifico(std::span<char> b, double numero, int decimali) { return portatile::Scientifico(b, numero, decimali); }
std::size_t Diciassette(std::span<char> b, double numero) { return portatile::Diciassette(b, numero); }
std::size_t Corto(std::span<char> b, double numero) { return portatile::Scientifico(b, numero, 14); }
bool Leggi(const char *da, const char *a, double &numero) { return portatile::Leggi(da, a, numero); }

#endif

}  // namespace ombrelia::cifre
