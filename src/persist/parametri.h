// A small store of keys and values in a text file. Which keys there are, and what they are for, is known above.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ombrelia {

// One pair a line, "key","value"; keys are compared case included. A file that is missing or unreadable reads as an
// empty one.
class Parametri {
public:
    static constexpr std::string_view NOME_FILE = "Ombrelia.dat";  // in the current folder

    // The path that the next load or write uses.
    [[nodiscard]] const std::string &NomeFile() const { return nomeFile_; }
    void NomeFile(std::string nome) { nomeFile_ = std::move(nome); }

    // The value of the first row with this key; empty when there is none.
    [[nodiscard]] std::string Leggi(std::string_view Key);
    // Gives the key its value and rewrites the whole file. Nothing when done, else the file and the reason.
    [[nodiscard]] std::optional<std::string> Scrivi(std::string_view Key, std::string_view Valore);

    // The two halves of Scrivi, for many keys and one write. A file that is there but could not be read, or that would
    // grow beyond what a load takes, is not written over.
    void Poni(std::string_view Key, std::string_view Valore);
    [[nodiscard]] std::optional<std::string> Salva() const;

    // The table out of the content of a file, and the content that would be written.
    void Interpreta(std::string contenuto);
    [[nodiscard]] std::string Testo() const;

private:
    using CoppiaChiave = std::pair<std::string, std::string>;

    void carica();
    [[nodiscard]] CoppiaChiave *trova(std::string_view Key);

    std::string nomeFile_{NOME_FILE};
    std::vector<CoppiaChiave> righe_;  // none means not yet loaded
    std::optional<std::string> illeggibile_;
};

}  // namespace ombrelia
