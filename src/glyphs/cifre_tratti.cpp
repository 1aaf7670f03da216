// The lettering of the dial, on a cell 150 high and 110 wide: ten digits as the centre lines of a V-cut, and the letters
// I, V, X as outlines with a thick and a thin stroke and flat serifs, as cut inscriptions have them.
#include <array>

#include "glyphs/tratti.h"

namespace ombrelia {

namespace {

using T = Tratto;

constexpr std::array ZERO{T::giro(55, 75, 38, 75, 90, 450)};
constexpr std::array UNO{T::linea(30, 122, 60, 150), T::linea(60, 150, 60, 0), T::linea(36, 0, 84, 0)};
// The diagonal leaves the bow along its tangent.
constexpr std::array DUE{T::giro(54, 109, 36, 41, 165, -42.118), T::linea(80.7035, 81.503, 16, 0), T::linea(16, 0, 92, 0)};
// The lower bowl is the larger one; both meet at the waist.
constexpr std::array TRE{T::giro(51, 113, 35, 37, 155, -90), T::giro(51, 38, 40, 38, 90, -150)};
constexpr std::array QUATTRO{T::linea(74, 0, 74, 150), T::linea(74, 150, 12, 42), T::linea(12, 42, 98, 42)};
constexpr std::array CINQUE{T::linea(85, 150, 30, 150), T::linea(30, 150, 23.7157, 81.9411), T::giro(52, 48, 40, 48, 135, -150)};
// The stem runs into the bowl's left side, upright where they meet; the 9 is the 6 turned half round.
constexpr std::array SEI{T::giro(90, 46, 73, 104, 95, 180), T::giro(56, 46, 39, 46, 180, 540)};
constexpr std::array SETTE{T::linea(16, 150, 94, 150), T::linea(94, 150, 44, 0)};
constexpr std::array OTTO{T::giro(55, 113, 34, 37, 270, 630), T::giro(55, 38, 41, 38, 90, -270)};
constexpr std::array NOVE{T::giro(20, 104, 73, 104, -85, 0), T::giro(54, 104, 39, 46, 0, 360)};

constexpr std::array<Vertice, 12> LETTERA_I{
    {{2, 0}, {48, 0}, {48, 5}, {35, 5}, {35, 145}, {48, 145}, {48, 150}, {2, 150}, {2, 145}, {15, 145}, {15, 5}, {2, 5}}};
constexpr std::array<Vertice, 15> LETTERA_V{{{51, 0},
                                             {57, 0},
                                             {98, 145},
                                             {108, 145},
                                             {108, 150},
                                             {79, 150},
                                             {79, 145},
                                             {89, 145},
                                             {60.3, 43.5},
                                             {33, 145},
                                             {43, 145},
                                             {43, 150},
                                             {2, 150},
                                             {2, 145},
                                             {12, 145}}};
constexpr std::array<Vertice, 28> LETTERA_X{
    {{14, 145}, {46.6316, 71.3158}, {13, 5},   {3, 5},     {3, 0},     {32, 0},   {32, 5},
     {22, 5},   {50.8271, 61.8421}, {76, 5},   {66, 5},    {66, 0},    {107, 0},  {107, 5},
     {97, 5},   {62.0376, 83.9474}, {93, 145}, {103, 145}, {103, 150}, {74, 150}, {74, 145},
     {84, 145}, {57.8421, 93.4211}, {35, 145}, {45, 145},  {45, 150},  {4, 150},  {4, 145}}};

}  // namespace

std::span<const Tratto> TrattiCifra(int cifra) {
    static constexpr std::span<const Tratto> CIFRE[] = {ZERO, UNO, DUE, TRE, QUATTRO, CINQUE, SEI, SETTE, OTTO, NOVE};
    return cifra >= 0 && cifra <= 9 ? CIFRE[cifra] : std::span<const Tratto>{};
}

Lettera LetteraRomana(char lettera) {
    switch (lettera) {
        case 'I':
            return {50, LETTERA_I};
        case 'V':
            return {110, LETTERA_V};
        case 'X':
            return {110, LETTERA_X};
        default:
            return {0, {}};
    }
}

}  // namespace ombrelia
