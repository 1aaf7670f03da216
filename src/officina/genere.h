// The kinds of lines as a machine's file has them: one layer, one colour and one width a kind.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "plot/lista.h"

namespace ombrelia::officina {

// In the order in which they keep a stretch that two of them claim: the first keeps it.
enum class Genere : std::uint8_t {
    Cornice,
    Ore,
    MezzeOre,
    Quarti,
    Equinoziale,
    Diurne,
    Italiche,
    Babiloniche,
    Temporarie,
    Analemma,
    Almucantarat,
    Azimutali,
    Asr,
    Qibla,
    Orizzonte,
    Mezzogiorno,
    Sustilare,
    Stilo,
    Figure,  // glyphs, signs, map: strokes without a layer of their own
    Etichette,
    Cartiglio,
    Testi,
    Ausiliarie,  // axes and limit lines
    Altro
};

struct RigaGenere {
    Genere genere;
    std::string_view nome;  // of the layer: A-Z, 0-9 and _, at most 30 characters
    int aci;                // colour number of DXF
    std::uint32_t rgb;      // 0xRRGGBB
    double spessore;        // mm, of a stroke where the writer has widths
    std::string_view che;   // what lies on it, for people
};

[[nodiscard]] std::span<const RigaGenere> Generi();
[[nodiscard]] const RigaGenere &Riga(Genere g);

// The kind of a claimed line, as its row in plot/specie.h says; hours by their parts, and the day line of declination 0 is the
// equinoctial.
[[nodiscard]] Genere GenereDi(Specie specie, double valore);
// The kind of a record without a claim, by its layer's name; Altro for a name that is not known, Figure for none.
[[nodiscard]] Genere GenereDi(std::string_view strato);

}  // namespace ombrelia::officina
