// Names as a search sees them. Knows letters, no places.
#pragma once

#include <string>
#include <string_view>

namespace ombrelia::luoghi {

// A name flattened: Latin letters without their marks, small; apostrophes and points dropped, all other signs one blank between
// words; "St" at the beginning is "saint". Letters of other scripts stay as they are. "Köln" and "KOLN" give "koln", "Xi’an"
// "xian".
[[nodiscard]] std::string Appiana(std::string_view nome);

// The same with "ae", "oe", "ue" as a German writes ä, ö, ü: "koeln" gives "koln".
[[nodiscard]] std::string SenzaDieresi(std::string_view appianato);

// Whether one letter changed, left out, put in, or swapped with its neighbour makes one of the other.
[[nodiscard]] bool AUnPasso(std::string_view a, std::string_view b);

}  // namespace ombrelia::luoghi
