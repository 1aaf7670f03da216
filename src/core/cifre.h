// Digits of a double and back, in two makes: the standard library's own (charconv), and one that asks no more of a library than
// printf and strtod, for those that have no floating charconv yet. Both give the same bytes; testo.h builds its forms on them.
#pragma once

#include <cstddef>
#include <span>

namespace ombrelia::cifre {

// The portable make, for any library.
namespace portatile {

// "d.ddde+XX" with this many digits behind the point (0 to 16), rounded exactly, a tie to even. Gives the number of
// characters; the buffer holds at least 40.
std::size_t Scientifico(std::span<char> b, double numero, int decimali);
// As "%.17g".
std::size_t Diciassette(std::span<char> b, double numero);
// The nearest double of a text that is a number and nothing else: digits, one point, exponent; no sign before. False when
// it overflows a double or comes down to 0.
bool Leggi(const char *da, const char *a, double &numero);

}  // namespace portatile

// What the program uses.
std::size_t Scientifico(std::span<char> b, double numero, int decimali);
std::size_t Diciassette(std::span<char> b, double numero);
bool Leggi(const char *da, const char *a, double &numero);
// The shortest digits that read back as the same number, in the same form; where a library has no such form, 15 digits,
// which decide all that the program asks of them.
std::size_t Corto(std::span<char> b, double numero);

}  // namespace ombrelia::cifre
