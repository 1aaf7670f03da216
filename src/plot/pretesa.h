// What drawn lines say of themselves: a range of the display list and the line that it claims to be. Plain data; who
// draws fills it, who judges or names a line reads it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ombrelia {

// The kinds of lines. The value that goes with each stands beside it.
//
// A claim is what the finished dial means to its maker. A southern run (segnoLat = -1) draws the northern dial of the
// mirrored latitude, to be mirrored in x; the mirror swaps north and south and leaves east and west. So a line drawn for
// declination d claims -d there and one drawn for azimuth a claims the opposite side of the east-west line, 180 - a
// (-180 - a when a < 0), while every hour, true, Italic, Babylonian or temporary, is what it was.
//
// Where one line carries both a Sun and its opposite (an azimuth's vertical plane), the value is the side that is swept.
enum class Specie : std::uint8_t {
    Ora,           // true hour on the face, 0..24, 12 at noon; in zone time with the zone's box set
    Diurna,        // declination of the Sun, degrees
    Equinoziale,   // 0
    Italica,       // hours since sunset
    Babilonica,    // hours since sunrise
    Temporaria,    // twelfths of the day since sunrise
    Almucantarat,  // altitude of the Sun, degrees
    Azimut,        // azimuth of the Sun, degrees from South, West positive
    Asr,           // shadow lengths beyond the noon shadow: 1
    Qibla,         // 0: the Sun stands in the bearing of the Qibla
    Analemma,      // hour of mean time on the face, 12 for mean noon
    Mezzogiorno,   // 0: the site's meridian
    OraSustilare,  // 0: the hour line through the substyle
    Sustilare,     // 0: the substyle itself
    Orizzonte,     // 0: the Sun on the horizon
    Stilo,         // 0: the triangle of the style
    Tacca,         // a mark on the day line of a declination, degrees
    Etichetta,     // labels and title block
    Nessuna        // frame, axes, glyphs, map: nothing to hold them against
};

// Records da to a (one past the last) of Lista::Ordine; the first line, point and figure among them.
struct Pretesa {
    Specie specie;
    double valore;
    std::size_t da, a;
    std::size_t linea, punto, figura;
};

}  // namespace ombrelia
