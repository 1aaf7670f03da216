// The kinds of lines, a row each: all that names, layers, labels and looks need to know of one. What is left to code is its true
// line (certificato).
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "core/testo.h"

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

enum class ValoreDi : std::uint8_t { Niente, Orologio, Ore, Gradi };  // no value; hours and minutes; plain hours; degrees

// The end of a line that its label looks for first: the farthest from where its family meets, from the foot, the rightmost one.
enum class CapoScritto : std::uint8_t { DalFuoco, DalPiede, Destro };

// What its label writes of the value: the hour's number, the date of a declination, degrees.
enum class ScrittoDi : std::uint8_t { Niente, Ora, Giorno, Gradi };

struct RigaSpecie {
    Specie specie;
    // For people: a family of such lines, one of them, and one as a sentence has it, before its value. English: for files; none
    // where nothing is claimed that could be judged.
    std::string_view famiglia, una, distesa, inglese;
    ValoreDi valore;
    bool ore;                        // a departure is told in seconds of time; else in minutes of arc
    std::string_view macchina;       // the machines' layer, a name of officina's table of these; empty: by the layer's name
    ScrittoDi scritto;               // on its labels
    CapoScritto capo;                // of its labels
    std::uint32_t chiaro, scuro;     // RGB on the light sheet and on the dark one
    std::uint8_t trattini;           // pattern on paper, where families are told apart by it: see Dispositivo::Trattini
    std::string_view unitaEstesa{};  // behind the value in a sentence
};

// Any two of hour lines, day lines, equinoctial, Italic, Babylonian and temporary hours, altitudes, azimuths, prayer, analemma
// and horizon are told apart by eyes that lack one kind of cone, too.
inline constexpr RigaSpecie SPECIE[] = {
    {Specie::Ora, "Ore"_it, "Ora"_it, "ora vera "_it, "hour ",  //
     ValoreDi::Orologio, true, "ORE", ScrittoDi::Ora, CapoScritto::DalFuoco, 0x002141, 0x93add0, 0},
    {Specie::Diurna, "Linee diurne"_it, "Linea diurna"_it, "linea diurna "_it, "declination ",  //
     ValoreDi::Gradi, false, "DIURNE", ScrittoDi::Giorno, CapoScritto::Destro, 0xc56a12, 0xf0b15b, 1},
    {Specie::Equinoziale, "Equinoziale"_it, "Equinoziale"_it, "linea equinoziale"_it, "equinoctial",  //
     ValoreDi::Niente, false, "EQUINOZIALE", ScrittoDi::Giorno, CapoScritto::Destro, 0x3e9087, 0x3cbbaf, 2},
    {Specie::Italica, "Ore italiche"_it, "Ora italica"_it, "ora italica "_it, "Italic ",  //
     ValoreDi::Orologio, true, "ITALICHE", ScrittoDi::Ora, CapoScritto::DalFuoco, 0x652bd8, 0x9d82c9, 3},
    {Specie::Babilonica, "Ore babiloniche"_it, "Ora babilonica"_it, "ora babilonica "_it, "Babylonian ",  //
     ValoreDi::Orologio, true, "BABILONICHE", ScrittoDi::Ora, CapoScritto::DalFuoco, 0xc60f64, 0xd77891, 4},
    {Specie::Temporaria, "Ore temporarie"_it, "Ora temporaria"_it, "ora temporaria "_it, "temporary ",  //
     ValoreDi::Ore, true, "TEMPORARIE", ScrittoDi::Ora, CapoScritto::DalFuoco, 0x11742b, 0xdaed88, 5},
    {Specie::Almucantarat, "Almucantarat"_it, "Altezza"_it, "altezza del Sole "_it, "altitude ",  //
     ValoreDi::Gradi, false, "ALMUCANTARAT", ScrittoDi::Gradi, CapoScritto::Destro, 0x58738f, 0xc0cddc, 6},
    {Specie::Azimut, "Azimut"_it, "Azimut"_it, "azimut del Sole "_it, "azimuth ",  //
     ValoreDi::Gradi, false, "AZIMUTALI", ScrittoDi::Gradi, CapoScritto::DalPiede, 0x565855, 0xac9c78, 7},
    {Specie::Asr, "Asr"_it, "Asr"_it, "linea dell'Asr"_it, "Asr",  //
     ValoreDi::Niente, false, "ASR", ScrittoDi::Niente, CapoScritto::DalFuoco, 0x074e15, 0x8adc9e, 8},
    {Specie::Qibla, "Qibla"_it, "Qibla"_it, "linea della Qibla"_it, "Qibla",  //
     ValoreDi::Niente, false, "QIBLA", ScrittoDi::Niente, CapoScritto::DalFuoco, 0x074e15, 0x8adc9e, 8},
    {Specie::Analemma, "Lemniscata"_it, "Lemniscata"_it, "lemniscata delle ore "_it, "analemma ",  //
     ValoreDi::Orologio, true, "ANALEMMA", ScrittoDi::Niente, CapoScritto::DalFuoco, 0xa21fad, 0xce97fb, 0, " h"},
    {Specie::Mezzogiorno, "Mezzogiorno"_it, "Mezzogiorno"_it, "linea meridiana"_it, "noon line",  //
     ValoreDi::Niente, true, "MEZZOGIORNO", ScrittoDi::Niente, CapoScritto::DalFuoco, 0x002141, 0x93add0, 0},
    {Specie::OraSustilare, "Ora della sustilare"_it, "Ora della sustilare"_it, "ora sustilare"_it, "substyle hour",  //
     ValoreDi::Niente, true, "SUSTILARE", ScrittoDi::Niente, CapoScritto::DalFuoco, 0x57534e, 0xb8afa6, 9},
    {Specie::Sustilare, "Sustilare"_it, "Sustilare"_it, "linea sustilare"_it, "substyle",  //
     ValoreDi::Niente, false, "SUSTILARE", ScrittoDi::Niente, CapoScritto::DalFuoco, 0x57534e, 0xb8afa6, 2},
    {Specie::Orizzonte, "Orizzonte"_it, "Orizzonte"_it, "linea dell'orizzonte"_it, "horizon",  //
     ValoreDi::Niente, false, "ORIZZONTE", ScrittoDi::Niente, CapoScritto::DalFuoco, 0x3d4978, 0x80d9ff, 9},
    {Specie::Stilo, "Stilo"_it, "Stilo"_it, "triangolo dello stilo polare"_it, "style",  //
     ValoreDi::Niente, false, "STILO", ScrittoDi::Niente, CapoScritto::DalFuoco, 0x1c1917, 0xe7e5e4, 0},
    {Specie::Tacca, "Segni di data"_it, "Segno di data"_it, "segno della declinazione "_it, "mark of declination ",  //
     ValoreDi::Gradi, false, "DIURNE", ScrittoDi::Niente, CapoScritto::DalFuoco, 0xc56a12, 0xf0b15b, 0},
    {Specie::Etichetta, "Etichette"_it, "Etichetta"_it, "", "",  //
     ValoreDi::Niente, false, "ETICHETTE", ScrittoDi::Niente, CapoScritto::DalFuoco, 0x1f2937, 0xd6dce2, 0},
    {Specie::Nessuna, "Cornice e segni"_it, "Cornice"_it, "", "",  //
     ValoreDi::Niente, false, "", ScrittoDi::Niente, CapoScritto::DalFuoco, 0x4b5563, 0xaab3bd, 0},
};

static_assert(
    [] {
        std::size_t i = 0;
        for (const RigaSpecie &r : SPECIE)
            if (static_cast<std::size_t>(r.specie) != i++) return false;
        return i == static_cast<std::size_t>(Specie::Nessuna) + 1;
    }(),
    "a row for each kind, in their order");

[[nodiscard]] constexpr const RigaSpecie &DellaSpecie(Specie s) { return SPECIE[static_cast<std::size_t>(s)]; }

// Whether its lines claim what a judge can hold them against.
[[nodiscard]] constexpr bool Giudicabile(Specie s) { return !DellaSpecie(s).inglese.empty(); }

}  // namespace ombrelia
