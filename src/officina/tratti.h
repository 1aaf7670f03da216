// Texts as single strokes, for a tool that draws with a point: the Hershey alphabet of the system, with accents set on
// the letters from its own strokes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "officina/disegno.h"

namespace ombrelia::officina {

// Whether this build has the alphabet and this machine its letters.
[[nodiscard]] bool CiSonoTratti();

// Strokes of a text, beginning at the left end of its base line; the signs of the zodiac are characters too. Given: UTF-8;
// altezza, that of the capitals, mm. Gives: mm, y upward. Source: Hershey's tables. Faults: a character without strokes leaves a
// blank.
[[nodiscard]] std::vector<std::vector<P2>> TrattiDi(std::string_view testo, double altezza);
// Width of the text. Given, gives, source: as above. Faults: without the alphabet an estimate.
[[nodiscard]] double LarghezzaTratti(std::string_view testo, double altezza);

}  // namespace ombrelia::officina
