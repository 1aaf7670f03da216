// The kinds of lines, a row each: all that names, layers, labels and looks need to know of one. What is left to code is its true
// line (certificato) and what a label says of its value (app).
#pragma once

#include <iterator>
#include <string_view>

#include "core/testo.h"
#include "plot/pretesa.h"

namespace ombrelia {

enum class ValoreDi : std::uint8_t { Niente, Orologio, Ore, Gradi };  // no value; hours and minutes; plain hours; degrees

// The end of a line that its label looks for first: the farthest from where its family meets, from the foot, the rightmost one.
enum class CapoScritto : std::uint8_t { DalFuoco, DalPiede, Destro };

struct RigaSpecie {
    Specie specie;
    // For people: a family of such lines, one of them, and one as a sentence has it, before its value. English: for files; none
    // where nothing is claimed that could be judged.
    std::string_view famiglia, una, distesa, inglese;
    ValoreDi valore;
    bool ore;                        // a departure is told in seconds of time; else in minutes of arc
    std::string_view macchina;       // the machines' layer, a name of officina's table of these; empty: by the layer's name
    CapoScritto capo;                // of its labels
    std::uint32_t chiaro, scuro;     // RGB on the light sheet and on the dark one
    std::uint8_t trattini;           // pattern on paper, where families are told apart by it: see Dispositivo::Trattini
    std::string_view unitaEstesa{};  // behind the value in a sentence
};

// Any two of hour lines, day lines, equinoctial, Italic, Babylonian and temporary hours, altitudes, azimuths, prayer, analemma
// and horizon are told apart by eyes that lack one kind of cone, too.
inline constexpr RigaSpecie SPECIE[] = {
    {Specie::Ora, "Ore"_it, "Ora"_it, "ora vera "_it, "hour ",  //
     ValoreDi::Orologio, true, "ORE", CapoScritto::DalFuoco, 0x002141, 0x93add0, 0},
    {Specie::Diurna, "Linee diurne"_it, "Linea diurna"_it, "linea diurna "_it, "declination ",  //
     ValoreDi::Gradi, false, "DIURNE", CapoScritto::Destro, 0xc56a12, 0xf0b15b, 1},
    {Specie::Equinoziale, "Equinoziale"_it, "Equinoziale"_it, "linea equinoziale"_it, "equinoctial",  //
     ValoreDi::Niente, false, "EQUINOZIALE", CapoScritto::Destro, 0x3e9087, 0x3cbbaf, 2},
    {Specie::Italica, "Ore italiche"_it, "Ora italica"_it, "ora italica "_it, "Italic ",  //
     ValoreDi::Orologio, true, "ITALICHE", CapoScritto::DalFuoco, 0x652bd8, 0x9d82c9, 3},
    {Specie::Babilonica, "Ore babiloniche"_it, "Ora babilonica"_it, "ora babilonica "_it, "Babylonian ",  //
     ValoreDi::Orologio, true, "BABILONICHE", CapoScritto::DalFuoco, 0xc60f64, 0xd77891, 4},
    {Specie::Temporaria, "Ore temporarie"_it, "Ora temporaria"_it, "ora temporaria "_it, "temporary ",  //
     ValoreDi::Ore, true, "TEMPORARIE", CapoScritto::DalFuoco, 0x11742b, 0xdaed88, 5},
    {Specie::Almucantarat, "Almucantarat"_it, "Altezza"_it, "altezza del Sole "_it, "altitude ",  //
     ValoreDi::Gradi, false, "ALMUCANTARAT", CapoScritto::Destro, 0x58738f, 0xc0cddc, 6},
    {Specie::Azimut, "Azimut"_it, "Azimut"_it, "azimut del Sole "_it, "azimuth ",  //
     ValoreDi::Gradi, false, "AZIMUTALI", CapoScritto::DalPiede, 0x565855, 0xac9c78, 7},
    {Specie::Asr, "Asr"_it, "Asr"_it, "linea dell'Asr"_it, "Asr",  //
     ValoreDi::Niente, false, "ASR", CapoScritto::DalFuoco, 0x074e15, 0x8adc9e, 8},
    {Specie::Qibla, "Qibla"_it, "Qibla"_it, "linea della Qibla"_it, "Qibla",  //
     ValoreDi::Niente, false, "QIBLA", CapoScritto::DalFuoco, 0x074e15, 0x8adc9e, 8},
    {Specie::Analemma, "Lemniscata"_it, "Lemniscata"_it, "lemniscata delle ore "_it, "analemma ",  //
     ValoreDi::Orologio, true, "ANALEMMA", CapoScritto::DalFuoco, 0xa21fad, 0xce97fb, 0, " h"},
    {Specie::Mezzogiorno, "Mezzogiorno"_it, "Mezzogiorno"_it, "linea meridiana"_it, "noon line",  //
     ValoreDi::Niente, true, "MEZZOGIORNO", CapoScritto::DalFuoco, 0x002141, 0x93add0, 0},
    {Specie::OraSustilare, "Ora della sustilare"_it, "Ora della sustilare"_it, "ora sustilare"_it, "substyle hour",  //
     ValoreDi::Niente, true, "SUSTILARE", CapoScritto::DalFuoco, 0x57534e, 0xb8afa6, 9},
    {Specie::Sustilare, "Sustilare"_it, "Sustilare"_it, "linea sustilare"_it, "substyle",  //
     ValoreDi::Niente, false, "SUSTILARE", CapoScritto::DalFuoco, 0x57534e, 0xb8afa6, 2},
    {Specie::Orizzonte, "Orizzonte"_it, "Orizzonte"_it, "linea dell'orizzonte"_it, "horizon",  //
     ValoreDi::Niente, false, "ORIZZONTE", CapoScritto::DalFuoco, 0x3d4978, 0x80d9ff, 9},
    {Specie::Stilo, "Stilo"_it, "Stilo"_it, "triangolo dello stilo polare"_it, "style",  //
     ValoreDi::Niente, false, "STILO", CapoScritto::DalFuoco, 0x1c1917, 0xe7e5e4, 0},
    {Specie::Tacca, "Segni di data"_it, "Segno di data"_it, "segno della declinazione "_it, "mark of declination ",  //
     ValoreDi::Gradi, false, "DIURNE", CapoScritto::DalFuoco, 0xc56a12, 0xf0b15b, 0},
    {Specie::Etichetta, "Etichette"_it, "Etichetta"_it, "", "",  //
     ValoreDi::Niente, false, "ETICHETTE", CapoScritto::DalFuoco, 0x1f2937, 0xd6dce2, 0},
    {Specie::Nessuna, "Cornice e segni"_it, "Cornice"_it, "", "",  //
     ValoreDi::Niente, false, "", CapoScritto::DalFuoco, 0x4b5563, 0xaab3bd, 0},
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
