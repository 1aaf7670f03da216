// The steps by which a list becomes paths; Prepara takes them in this order.
#pragma once

#include "officina/disegno.h"

namespace ombrelia::officina {

constexpr double STESSO = 0.01;  // mm: what lies nearer to a line than this lies on it

// What the list holds, clipped: chains of chords and of points, figures, texts; counts and lengths go to the report.
struct Raccolta {
    std::vector<Cammino> cammini;
    std::vector<P2> vertici;  // every vertex inside, before any is dropped
};
[[nodiscard]] Riquadro Campo(const Tavolo &tavolo, Ritaglio ritaglio, bool &senzaCornice);
[[nodiscard]] Raccolta Raccogli(const Tavolo &tavolo, const Riquadro &campo, const ComePreparare &opzioni, Resoconto &r);

// A point of a line, and which of its points in the order of the list.
struct Puntino {
    P2 p;
    std::size_t ordine;
};
// Chains of points along curves, each at least two long, and the points that stay alone.
void CatenePunti(const std::vector<Puntino> &puntini, std::vector<std::vector<P2>> &catene, std::vector<P2> &soli);

// From chains to paths, kind by kind in their order: ends that meet are joined, stretches within a hundredth of a
// millimetre (or the tolerance, where it is larger) of a path that is kept are left out, the rest keeps few points.
void Riduci(std::vector<Cammino> &cammini, const Riquadro &campo, double tolleranza, Resoconto &r);
// Which lines are gone since they lie on lines of another name.
[[nodiscard]] std::vector<Coincidenza> Coincidenti(const std::vector<Cammino> &prima, const std::vector<Cammino> &dopo);
// Joins ends that meet: paths of one line, and paths of one kind that go straight on.
void Unisci(std::vector<Cammino> &cammini);
// The order of cutting: what lies inside before the frame, the nearest end next.
void Ordina(std::vector<Cammino> &cammini, Resoconto &r);

// The part of a-b in the field; false when there is none.
[[nodiscard]] bool Taglia(const Riquadro &campo, P2 &a, P2 &b);

}  // namespace ombrelia::officina
