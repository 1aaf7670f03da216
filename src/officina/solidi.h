// Solids of a dial for printers and mills: closed shells of triangles, millimetres, outward normals.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "officina/disegno.h"
#include "officina/triangoli.h"

namespace ombrelia::officina {

struct P3 {
    double x = 0, y = 0, z = 0;
};

// A shell. Given: its triangles, counter-clockwise from outside, millimetres. Gives: cubic millimetres. Source: the divergence
// theorem, summed over tetrahedra to the origin. Faults: an open shell has a volume that means nothing.
struct Solido {
    std::vector<std::array<P3, 3>> facce;
    [[nodiscard]] double volume() const;
    void aggiungi(const Solido &altro, P3 dove);
};

struct Misure {
    double spessore = 3;    // of the style's plate
    double lastra = 5;      // of the dial's plate
    double profondita = 1;  // of lines and labels
    bool rilievo = true;    // they stand out; else they are sunk
    double linea = 0.8;     // width of a line
    double perno = 4;       // diameter of the gnomon's rod
};

// The gnomon as it stands on the plate: its foot is the drawing's origin.
struct Gnomone {
    double altezza = 0;        // mm, of the tip over the plate
    std::optional<P2> centro;  // mm, where the polar style meets the plane; none when it runs along it
};

// The polar style's plate lying flat: its edge from the centre, or from where the dial's plate ends, to the tip; two tabs
// under it for the slots. errore tells why there is none.
[[nodiscard]] Solido PiastraStilo(const Gnomone &g, const Riquadro &lastra, const Misure &m, std::string &errore);
// The rod's socket: a boss with a blind hole.
[[nodiscard]] Solido Zoccolo(const Misure &m);
// The dial's plate with the drawing raised or sunk and, for a style with tabs, two slots.
[[nodiscard]] Solido Lastra(const Disegno &d, const Gnomone &g, const Misure &m, bool fessure, std::string &errore);
// The plate's outline: page and a margin.
[[nodiscard]] Riquadro ContornoLastra(const Disegno &d);

// A binary STL file.
[[nodiscard]] std::string Stl(const Solido &s);

}  // namespace ombrelia::officina
