// The language dictionary: Italian texts to their translation. Nothing here knows a form or a window.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ombrelia {

// Upper case of the letters of Italian, French and English, accents kept. UTF-8.
[[nodiscard]] std::string Maiuscolo(std::string_view testo);

class Dizionario {
public:
    // A source text and its translation, as they stand.
    using Lemma = std::pair<std::string, std::string>;

    // The translation of a text, or the text itself when there is none. Sources are compared in upper case, blanks
    // included; of equal ones the first stands. Without a dictionary every text is its own.
    [[nodiscard]] std::string Traduci(std::string_view testo) const;

    // Replaces what is loaded by the file "DB" + Nome + ".txt" of the current directory. A missing one leaves nothing.
    void CaricaDizionario(std::string_view Nome);
    // The same from the content of a file.
    void Interpreta(std::string contenuto);

    // Adds the entries of another file's content; what is there already stands.
    void Aggiungi(std::string contenuto);

    // Name of the file last loaded.
    [[nodiscard]] const std::string &Nome() const { return nome_; }
    // Entries whose translation is not blank, in the order of the file.
    [[nodiscard]] const std::vector<Lemma> &Voci() const { return voci_; }

    // The file of a language.
    [[nodiscard]] static std::string NomeFile(std::string_view Nome);

private:
    std::string nome_;
    std::vector<Lemma> voci_;
    std::unordered_map<std::string, std::size_t> indice_;  // upper-cased source to its first entry
};

}  // namespace ombrelia
