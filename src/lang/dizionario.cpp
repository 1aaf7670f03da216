// The language dictionary.
#include "lang/dizionario.h"

#include <algorithm>
#include <utility>

#include "core/campi.h"
#include "core/file.h"
#include "core/testo.h"

namespace ombrelia {

std::string Maiuscolo(std::string_view testo) {
    std::string t(testo);
    for (std::size_t i = 0; i < t.size(); ++i) {
        char &c = t[i];
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
        if (i + 1 == t.size()) break;
        char &d = t[i + 1];
        if (c == '\xC3' && d >= '\xA0' && d <= '\xBE' && d != '\xB7') {  // à to þ, but the division sign
            d = static_cast<char>(d - 32);
        } else if (c == '\xC3' && d == '\xBF') {  // ÿ
            c = '\xC5';
            d = '\xB8';
        } else if (c == '\xC5' && d == '\x93') {  // œ
            d = '\x92';
        }
    }
    return t;
}

std::string Dizionario::Traduci(std::string_view testo) const {
    if (indice_.empty()) return std::string(testo);
    const auto i = indice_.find(Maiuscolo(testo));
    return i == indice_.end() ? std::string(testo) : voci_[i->second].second;
}

std::string Dizionario::NomeFile(std::string_view Nome) { return "DB" + SenzaBlanks(Nome) + ".txt"; }

void Dizionario::CaricaDizionario(std::string_view Nome) {
    Interpreta(LeggiFile(NomeFile(Nome), FILE_MASSIMO, nullptr, Fonte::File).value_or(std::string()));
    nome_ = Nome;
}

void Dizionario::Interpreta(std::string contenuto) {
    voci_.clear();
    indice_.clear();
    Aggiungi(std::move(contenuto));
}

void Dizionario::Aggiungi(std::string contenuto) {
    const std::string decodificato = DaFile(std::move(contenuto));
    std::string_view file = decodificato;
    const std::string testo = PrendiCampo(file);
    for (std::string_view resto = testo; !resto.empty();) {
        const std::size_t fine = std::min(resto.find("\r\n"), resto.size());
        const std::string_view riga = resto.substr(0, fine);
        resto.remove_prefix(std::min(fine + 2, resto.size()));
        // A line without divider is the translation of the empty text, as meant.
        const std::size_t divisore = riga.find('|');
        const std::string_view sorgente = divisore == std::string_view::npos ? std::string_view() : riga.substr(0, divisore);
        const std::string_view traduzione = divisore == std::string_view::npos ? riga : riga.substr(divisore + 1);
        if (SenzaBlanks(traduzione).empty()) continue;
        indice_.emplace(Maiuscolo(sorgente), voci_.size());
        voci_.emplace_back(sorgente, traduzione);
    }
}

}  // namespace ombrelia
