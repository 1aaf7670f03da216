// The place where another room may draw a feature's true lines instead of the engine's own. The engines ask; they don't
// know who answers.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "core/colori.h"
#include "core/reale.h"
#include "plot/pretesa.h"

namespace ombrelia {

struct Sessione;

enum class Motore : std::uint8_t { Diretta, Verticale, Analitica };

// One line that an engine is about to draw.
struct LineaAttesa {
    double parametro;         // the engine's own counter: hour angle in degrees, hour, declination, altitude, azimuth
    double valore;            // what the line claims, as in plot/specie.h
    std::string_view strato;  // layer; of a label its text
    Colore colore;
};

// One feature about to be drawn by an engine. specie Etichetta stands for the numerals or labels of the lines `di`.
struct Attesa {
    Motore motore;
    Specie specie;
    Specie di;
    std::span<const LineaAttesa> linee;  // in the order in which the engine would draw them; its life is the call's
    Reale *rilevamento = nullptr;        // of the Qibla alone: the bearing that captions give, degrees, open to correction
};

// Asked with ckCorretta set, once a row of an engine's table of features, in the row's place in the order. True: the lines
// were drawn (or belong to none), and the engine's own routine is not run. False: it is. What surrounds a row, frame,
// horizon's ordinate, centre, caption, is the engine's in both cases.
//
// What it may read: the fields (s.in), the original dial (lat_o, iz_o, dec_o, inc_o, lon_o of s.v), segnoLat (-1: a
// southern run; what is drawn will be mirrored in x), flagVerticale, flagTrasformato, diffLong, lonEq, unita. The other
// shared variables are an engine's working state. What it draws it draws on s.tavolo as the engines do, metres, y
// upward, with claims of its own (Pretendi). The Qibla's row is asked in every run of the direct engine, with no lines
// where CkQibla is clear, so that the caption's bearing can be put right.
using Correzione = std::function<bool(Sessione &, const Attesa &)>;

// Figures that belong to a Sun, moved to its shadow where true lines are drawn.
class OmbreVere {
public:
    // Where a Sun of that hour angle and declination, radians, throws the tip's shadow: metres on the list, y upward; none
    // where it throws none.
    using Dove = std::function<std::optional<std::pair<double, double>>(double t, double delta)>;
    // With no function nothing moves.
    explicit OmbreVere(Dove dove) : dove_(std::move(dove)) {}
    // Moves a figure; false where no shadow falls and none is to be drawn.
    [[nodiscard]] bool sposta(Valore t, Valore delta, Reale &x, Reale &y) const {
        if (!dove_) return true;
        const auto p = dove_(t.v, delta.v);
        if (p) x = p->first, y = p->second;
        return p.has_value();
    }

private:
    Dove dove_;
};

}  // namespace ombrelia
