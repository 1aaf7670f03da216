// The table of features: a run of an engine is the walk of one. A new line is a routine and a row.
#pragma once

#include <iterator>
#include <vector>

#include "sessione/sessione.h"

namespace ombrelia {

using LineeAttese = std::vector<LineaAttesa>;

// Corsa is an engine's run, a CorsaBase.
template <typename Corsa>
struct Caratteristica {
    int DialInputs::*casella;      // its box; none: in every run
    Specie specie;                 // what its lines claim
    std::string_view significato;  // what it shows: the help of commands tells it
    // Its lines, as counter, claim, layer and colour, in the order of drawing; null where one pass draws none that counts.
    void (*linee)(const Corsa &, LineeAttese &);
    // Draws them. Each line claims as its row of linee says.
    void (*traccia)(Corsa &, const LineeAttese &);
    bool (*guardia)(const Corsa &) = nullptr;  // beside the box
    void (*contorno)(Corsa &) = nullptr;       // frame and values left behind, whoever draws the lines
    Specie di = Specie::Nessuna;               // of labels: of which lines
};

template <typename Corsa, std::size_t N>
void PercorriCaratteristiche(Corsa &c, Motore motore, const Caratteristica<Corsa> (&tavola)[N]) {
    Sessione &s = c.s;
    LineeAttese linee;
    for (const Caratteristica<Corsa> &r : tavola) {
        if (r.casella && s.in.*r.casella != 1) continue;
        if (r.guardia && !r.guardia(c)) continue;
        if (r.contorno) r.contorno(c);
        linee.clear();
        if (r.linee) r.linee(c, linee);
        c.verifica();
        if (!s.corretta({motore, r.specie, r.di, linee})) r.traccia(c, linee);
    }
}

// What a box draws, as rows say it.
struct SignificatoCasella {
    int DialInputs::*casella;
    std::string_view significato;
};
// Those of tables, in their order; rows of every run have no box.
template <typename... Tavole>
[[nodiscard]] std::vector<SignificatoCasella> SignificatiDi(const Tavole &...tavole) {
    std::vector<SignificatoCasella> tutti;
    const auto prendi = [&](const auto &tavola) {
        for (const auto &r : tavola)
            if (r.casella) tutti.push_back({r.casella, r.significato});
    };
    (prendi(tavole), ...);
    return tutti;
}

// Lists the lines of a row that are the same on every dial.
template <const auto &righe, class Corsa>
void LineeFisse(const Corsa &, LineeAttese &linee) {
    linee.insert(linee.end(), std::begin(righe), std::end(righe));
}

// Lists the one line of a row that has no more to say of it than its colour.
template <Colore colore, class Corsa>
void UnaLinea(const Corsa &, LineeAttese &linee) {
    linee.push_back({0, 0, "", colore});
}

}  // namespace ombrelia
