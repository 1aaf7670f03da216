// Where the program's own data files lie. Nothing here knows what is in them.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace ombrelia {

// A data file by its bare name: in the current directory, else beside the program, else in the folder data or
// share/ombrelia next to the program's own. Nothing when it is in none of them.
[[nodiscard]] std::optional<std::filesystem::path> TrovaDato(std::string_view nome);

// The folders that TrovaDato looks in, for whoever tells that a file is missing: "a, b, c".
[[nodiscard]] std::string LuoghiDati();

}  // namespace ombrelia
