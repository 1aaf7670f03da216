// Reading and writing files whole. Nothing here knows what a file holds.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ombrelia {

// Writes a file beside its target and renames it over the target when whole, so that a failure leaves the old file. A
// link keeps pointing where it did and what it points to is replaced, with its owner and mode; a file that can't be replaced so
// (it has other names, its folder is closed) is written in place after a copy; a device, a pipe or an open file (/dev/stdout,
// /dev/fd/63) is written as it is. Gives nothing when done, else a text that names the file and the reason.
[[nodiscard]] std::optional<std::string> ScriviFile(const std::string &nome, std::string_view contenuto);

// Reads a file of at most massimo bytes. Gives nothing for a file that is missing, unreadable or larger, and then, when
// asked, the file and the reason. Fonte::File takes files alone: a pipe, which may keep its reader waiting, is unreadable.
enum class Fonte { Qualsiasi, File };
[[nodiscard]] std::optional<std::string> LeggiFile(const std::string &nome, std::size_t massimo, std::string *errore = nullptr,
                                                   Fonte fonte = Fonte::Qualsiasi);

}  // namespace ombrelia
