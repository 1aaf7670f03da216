// The text of a project file.
#include "persist/salvataggio.h"

#include <algorithm>
#include <functional>

#include "core/campi.h"
#include "core/file.h"
#include "core/testo.h"

namespace ombrelia {

namespace {

// ASCII only, so that every place keeps its distance from the start.
std::string minuscolo(std::string t) {
    for (char &c : t)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    return t;
}

// First place of a piece; quick in a text of nothing but "<", where plain search tries each of them.
std::size_t trova(const std::string &testo, const std::string &pezzo) {
#ifdef __cpp_lib_boyer_moore_searcher
    const auto dove = std::search(testo.begin(), testo.end(), std::boyer_moore_horspool_searcher(pezzo.begin(), pezzo.end()));
    return dove == testo.end() ? std::string::npos : static_cast<std::size_t>(dove - testo.begin());
#else
    return testo.find(pezzo);  // the page's library has no other
#endif
}

}  // namespace

TestoProgetto::TestoProgetto(std::string testo) : testo_(std::move(testo)), minuscolo_(minuscolo(testo_)) {}

std::string_view TestoProgetto::estrai(std::string_view apre, std::string_view chiude, std::string_view Nome) const {
    const std::string nome = minuscolo(SenzaBlanks(Nome));
    const std::size_t inizio = trova(minuscolo_, std::string(apre) + nome);
    const std::size_t fine = trova(minuscolo_, std::string(chiude) + nome);
    if (inizio == std::string::npos || fine == std::string::npos || fine <= inizio) return {};
    return std::string_view(testo_).substr(inizio, fine - inizio);
}

std::string_view ValoreTag(std::string_view Frammento) {
    const std::size_t i = Frammento.find('>');
    return i == std::string_view::npos ? std::string_view() : Frammento.substr(i + 1);
}

std::optional<std::string> TestoDaProgetto(std::string contenuto) {
    const std::string decodificato = DaFile(std::move(contenuto));
    std::string_view resto = decodificato;
    std::string testo = PrendiCampo(resto);
    return testo.empty() ? std::nullopt : std::optional(std::move(testo));
}

std::optional<std::string> LeggiProgetto(const std::string &NomeFile) {
    std::optional<std::string> contenuto = LeggiFile(NomeFile, FILE_MASSIMO);
    return contenuto ? TestoDaProgetto(std::move(*contenuto)) : std::nullopt;
}

std::string ProgettoDaTesto(std::string_view testo) { return TraVirgolette(testo) + "\r\n"; }

}  // namespace ombrelia
