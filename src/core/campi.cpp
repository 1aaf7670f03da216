// The quoted forms of our text files.
#include "core/campi.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "core/testo.h"

namespace ombrelia {

namespace {

constexpr std::string_view FINE_CAMPO = ",\r\n";

// Drops up to the comma or line end that closes a field, and that itself.
void passaOltre(std::string_view &resto) {
    resto.remove_prefix(std::min(resto.find_first_of(FINE_CAMPO), resto.size()));
    resto.remove_prefix(resto.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, resto.size()));
}

}  // namespace

std::string PrendiCampo(std::string_view &resto) {
    const std::size_t virgolette = resto.find_first_not_of(" \t");
    const bool aperto = virgolette != std::string_view::npos && resto[virgolette] == '"';
    if (aperto) resto.remove_prefix(virgolette + 1);
    const std::size_t fine = std::min(aperto ? resto.find('"') : resto.find_first_of(FINE_CAMPO), resto.size());
    const std::string campo(resto.substr(0, fine));
    resto.remove_prefix(fine);
    passaOltre(resto);
    return campo;
}

std::string TraVirgolette(std::string_view testo) {
    std::string t = "\"";
    t += testo;
    t += '"';
    return t;
}

std::optional<int> Intero16(std::string_view testo) {
    using Interi16 = std::numeric_limits<std::int16_t>;
    const double n = std::trunc(Val(testo).v);  // NaN where there is no value
    if (!(n >= Interi16::min() && n <= Interi16::max())) return {};
    return static_cast<int>(n);
}

}  // namespace ombrelia
