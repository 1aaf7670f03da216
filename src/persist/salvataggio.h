// The text of a project file: tags found by their first occurrence. No parser stands behind it, and none is meant to:
// a value that holds another control's tag confuses it. Nothing here knows a control.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ombrelia {

// A text in which tags are looked up without regard to the case of ASCII letters.
class TestoProgetto {
public:
    explicit TestoProgetto(std::string testo);

    // The stretch from the first "<" + Nome to just before the first "</" + Nome, blanks around the name dropped; empty
    // when either is missing or the close does not come after the open. A view into this text.
    [[nodiscard]] std::string_view EstraiTag(std::string_view Nome) const { return estrai("<", "</", Nome); }
    // The same with "<_" and "</_".
    [[nodiscard]] std::string_view EstraiTagSheet(std::string_view Nome) const { return estrai("<_", "</_", Nome); }

private:
    [[nodiscard]] std::string_view estrai(std::string_view apre, std::string_view chiude, std::string_view Nome) const;

    std::string testo_, minuscolo_;
};

// All that follows the first ">" of a fragment; empty when there is none.
[[nodiscard]] std::string_view ValoreTag(std::string_view Frammento);

// What a project file holds between its quotes, decoded; nothing when it holds nothing, or cannot be read.
[[nodiscard]] std::optional<std::string> LeggiProgetto(const std::string &NomeFile);
[[nodiscard]] std::optional<std::string> TestoDaProgetto(std::string contenuto);
// The content of the file that keeps a text.
[[nodiscard]] std::string ProgettoDaTesto(std::string_view testo);

}  // namespace ombrelia
