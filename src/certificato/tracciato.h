// The true drawing of a line: a path of the Sun, cut to where its shadow falls inside the frame, as chords or dots. No
// engine's formula is used here; the geometry is that of the shadow by vectors.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "certificato/posa.h"
#include "sessione/sessione.h"

namespace ombrelia {

// Where a shadow may fall and be drawn: by day, before the plane, inside the frame. Given: see each. Gives: radians; metres in
// the frame of the list with y upward, x turned round for a southern dial. Source: PianoMontato, ombra::semiarco, hours by
// definition. Faults: what does not exist is part of the value.
class Scena {
public:
    // The session's dial as the run that is under way draws it.
    explicit Scena(const Sessione &s) : Scena(s, Lettura(s.in)) {}
    Scena(const Sessione &s, const Lettura &letto);

    [[nodiscard]] const Posa &posa() const { return posa_; }
    [[nodiscard]] const ombra::PianoMontato &piano() const { return piano_; }
    [[nodiscard]] double latitudine() const { return posa_.quadrante.latitudine; }
    // Whether there is anything to draw on: a gnomon and a frame that is not turned round.
    [[nodiscard]] bool esiste() const { return posa_.quadrante.gnomone > 0 && xMin < xMax && yMin < yMax; }
    // Hour angle, radians, of an hour on the face (12 at noon); in zone time with fuso.
    [[nodiscard]] double angolo(double ora, bool fuso) const;
    // Longest day's half arc of a year, radians, pi where the Sun does not set.
    [[nodiscard]] double semiarcoMassimo() const;

    // The shadow of a Sun, wherever it stands; none where it runs along the plane.
    [[nodiscard]] std::optional<ombra::Punto> punto(const ombra::Vettore &sole) const;
    [[nodiscard]] bool visibile(const ombra::Vettore &sole) const;
    // By day and before the plane, whatever the frame.
    [[nodiscard]] bool illuminato(const ombra::Vettore &sole) const;
    [[nodiscard]] bool dentro(const ombra::Punto &p) const { return xMin <= p.x && p.x <= xMax && yMin <= p.y && p.y <= yMax; }
    // A straight segment of the drawing cut to the frame; false when nothing of it is left.
    [[nodiscard]] bool ritaglia(ombra::Punto &a, ombra::Punto &b) const;
    [[nodiscard]] ombra::Punto nellaLista(const ombra::Punto &montato) const { return {verso_ * montato.x, montato.y}; }
    // Sines of the half-spaces that bound what is visible: all not below 0.
    static constexpr std::size_t FACCE = 8;
    [[nodiscard]] const std::array<ombra::Vettore, FACCE> &facce() const { return facce_; }

    double xMin = 0, xMax = 0, yMin = 0, yMax = 0;
    // Longest chord, greatest distance of a chord from its curve, distance of dots: metres.
    double corda = 0, freccia = 0, passoPunti = 0;

private:
    Posa posa_;
    ombra::PianoMontato piano_;
    double verso_ = 1;
    double longitudine_ = 0;  // that the hours count from, radians
    std::array<ombra::Vettore, FACCE> facce_{};
};

// A path of the Sun: its direction at a value of the parameter, or none.
using Percorso = std::function<std::optional<ombra::Vettore>(double)>;

struct Pennello {
    Colore colore;
    std::string_view strato;
    bool punti = false;  // dots, else chords
};

// Draws what is visible of a path between two values of its parameter, looked at in that many steps to begin with.
// annua: the Sun's declination is bounded by the year; false for a path that stays within it by itself.
void Traccia(Tavolo &t, const Scena &scena, const Percorso &percorso, double da, double a, int passi, const Pennello &tratto,
             bool annua = true);
// A straight segment of the drawing, cut to the frame unless intero.
void TracciaSegmento(Tavolo &t, const Scena &scena, ombra::Punto a, ombra::Punto b, const Pennello &tratto, bool intero = false);

}  // namespace ombrelia
