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

// Strokes of a text in UTF-8, in mm, y upward, beginning at the left end of its base line; altezza is that of the
// capitals. The signs of the zodiac are characters too. A character without strokes leaves a blank.
[[nodiscard]] std::vector<std::vector<P2>> TrattiDi(std::string_view testo, double altezza);
// Width of the text; without the alphabet an estimate.
[[nodiscard]] double LarghezzaTratti(std::string_view testo, double altezza);

}  // namespace ombrelia::officina
