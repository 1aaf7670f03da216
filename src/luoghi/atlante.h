// The table of towns and the search by name. Coordinates are in the program's signs: latitude North positive, longitude and
// meridian West positive, degrees.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ombrelia::luoghi {

struct Luogo {
    std::string_view nome;     // the gazetteer's
    std::string_view altri;    // names in other languages, divided by "|"
    std::string_view paese;    // two letters, ISO 3166
    std::string_view regione;  // the state's letters in the United States, else empty
    double latitudine = 0;
    double longitudine = 0;
    double meridiano = 0;  // of its standard time; the turn nearest to the longitude, so that Tonga's (+13 hours) is 165
    std::uint32_t popolazione = 0;
    std::string_view fuso;  // "Europe/Rome"
    int base = 0;           // its standard time, minutes East of Greenwich
};

// How a name was found; the search gives the first of these that finds any.
enum class Somiglianza { Uguale, Inizio, Parola, Vicino };

struct Trovati {
    Somiglianza come = Somiglianza::Uguale;
    std::vector<const Luogo *> luoghi;  // the most populous first
};

// What a name stands for: one place, or those it may mean.
struct Scelta {
    const Luogo *luogo = nullptr;    // null: none, or several
    std::vector<const Luogo *> tra;  // then: the namesakes, or what sounds alike
    bool omonimi = false;            // tra has the very name
};

// Holds the table; its places live as long as it does. Not copied.
class Atlante {
public:
    // Takes the table's text (data/luoghi.csv). Lines that make no sense are passed over, so that no text breaks it.
    explicit Atlante(std::string tabella);
    Atlante(const Atlante &) = delete;
    Atlante &operator=(const Atlante &) = delete;

    // The program's own table, read when it is first asked for. Empty when there is no such file.
    [[nodiscard]] static const Atlante &Comune();

    [[nodiscard]] bool vuoto() const { return luoghi_.empty(); }
    [[nodiscard]] const std::vector<Luogo> &luoghi() const { return luoghi_; }

    // Places of a name in any of its languages, however the capitals and marks are written; a country narrows the search.
    // "Springfield, MO" and "Torino, IT" name state or country behind a comma. When no place has the name, those that begin with
    // it; else those with a word that begins so; else those that differ by one letter.
    [[nodiscard]] Trovati Cerca(std::string_view nome, std::string_view paese = {}, std::size_t quanti = 50) const;

    // For a search box, at every key: places that have the name, then those that begin with it, then those with a word that does.
    [[nodiscard]] std::vector<const Luogo *> Suggerisci(std::string_view inizio, std::size_t quanti = 12,
                                                        std::string_view paese = {}) const;

    // One place for a name, or none. It is one when it alone has the name, or has ten times the people of the next namesake;
    // namesakes within a quarter of a degree are parts of it and don't count.
    [[nodiscard]] Scelta Scegli(std::string_view nome, std::string_view paese = {}) const;

private:
    struct ChiaveNome {
        std::uint32_t da, lunga, luogo;
    };
    struct DomandaLuogo {
        std::string nome, paese, regione;
    };
    static DomandaLuogo domanda(std::string_view nome, std::string_view paese);
    [[nodiscard]] std::string_view testo(const ChiaveNome &c) const { return std::string_view(chiavi_).substr(c.da, c.lunga); }
    [[nodiscard]] bool va(std::uint32_t luogo, const DomandaLuogo &d) const;
    [[nodiscard]] std::vector<std::uint32_t> simili(const DomandaLuogo &d, Somiglianza come) const;
    [[nodiscard]] std::vector<const Luogo *> mostra(std::vector<std::uint32_t> indici, std::size_t quanti) const;

    std::string tabella_;
    std::vector<Luogo> luoghi_;       // the most populous first
    std::string chiavi_;              // flattened names, one after the other
    std::vector<ChiaveNome> indice_;  // in the order of the names
};

// The place's name as it was asked for: the one of its names that the search takes for that, else the gazetteer's.
[[nodiscard]] std::string_view NomeChiesto(const Luogo &luogo, std::string_view chiesto);

// How far two places lie apart, for telling near from far. Given: degrees. Gives: degrees of arc. Source: plane geometry on the
// parallel of the second place; departure: the sphere is flat, wrong far off and near the poles. Faults: none.
[[nodiscard]] double Distanza(const Luogo &a, double latitudine, double longitudine);

}  // namespace ombrelia::luoghi
