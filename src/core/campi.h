// The quoted forms of our text files. Nothing here knows what a field means.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ombrelia {

// No defaults, project or dictionary file is larger; a larger one counts as unreadable.
inline constexpr std::size_t FILE_MASSIMO = 1U << 20;

// Takes one field off the text: what stands between the quotes, line ends included, or what stands before the next comma
// or line end when the field opens with no quote. Blanks before an opening quote, and what follows the closing one on
// its line, belong to no field. A quote that is never closed reaches to the end of the text.
[[nodiscard]] std::string PrendiCampo(std::string_view &resto);

// "text": a quote inside has no escape and ends the field when it is read again.
[[nodiscard]] std::string TraVirgolette(std::string_view testo);

// A text's value cut to a 16-bit integer; nothing when it has no value or does not fit.
[[nodiscard]] std::optional<int> Intero16(std::string_view testo);

}  // namespace ombrelia
