// The table of kinds.
#include "officina/genere.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "plot/specie.h"

namespace ombrelia::officina {

namespace {

using enum Genere;

constexpr RigaGenere GENERI[] = {
    {Cornice, "CORNICE", 7, 0x000000, 0.35, "frame"},
    {Ore, "ORE", 1, 0xE00000, 0.35, "hour lines"},
    {MezzeOre, "MEZZE_ORE", 12, 0xA52929, 0.25, "lines of the half hours"},
    {Quarti, "QUARTI", 14, 0x7F3F3F, 0.18, "lines of the quarters and smaller parts"},
    {Equinoziale, "EQUINOZIALE", 3, 0x00A000, 0.35, "equinoctial"},
    {Diurne, "DIURNE", 94, 0x006000, 0.25, "day lines"},
    {Italiche, "ITALICHE", 30, 0xE07000, 0.25, "Italic hours"},
    {Babiloniche, "BABILONICHE", 5, 0x0000E0, 0.25, "Babylonian hours"},
    {Temporarie, "TEMPORARIE", 6, 0xC000C0, 0.25, "temporary hours"},
    {Analemma, "ANALEMMA", 4, 0x00A0A0, 0.25, "analemmas"},
    {Almucantarat, "ALMUCANTARAT", 150, 0x0070C0, 0.18, "lines of equal altitude"},
    {Azimutali, "AZIMUTALI", 170, 0x3030B0, 0.18, "azimuth lines"},
    {Asr, "ASR", 50, 0xA09000, 0.25, "Asr"},
    {Qibla, "QIBLA", 64, 0x709000, 0.25, "Qibla"},
    {Orizzonte, "ORIZZONTE", 8, 0x707070, 0.25, "horizon"},
    {Mezzogiorno, "MEZZOGIORNO", 10, 0xC00000, 0.25, "noon line of the site"},
    {Sustilare, "SUSTILARE", 40, 0xB07000, 0.25, "substyle and its hour"},
    {Stilo, "STILO", 34, 0x804000, 0.25, "triangle of the style"},
    {Figure, "FIGURE", 7, 0x202020, 0.25, "numerals, signs, map"},
    {Etichette, "ETICHETTE", 7, 0x101010, 0.25, "labels of the lines"},
    {Cartiglio, "CARTIGLIO", 7, 0x303030, 0.25, "title block"},
    {Testi, "TESTI", 8, 0x505050, 0.18, "caption of the run"},
    {Ausiliarie, "AUSILIARIE", 9, 0x909090, 0.18, "axes and limit lines"},
    {Altro, "ALTRO", 252, 0x808080, 0.25, "anything else"},
};

// Layers of records that claim no line, and of labels and title block, which claim to be labels.
struct StratoNoto {
    std::string_view nome;
    Genere genere;
};
constexpr StratoNoto STRATI[] = {
    {"Cornice", Cornice},
    {"Etichette", Etichette},
    {"Cartiglio", Cartiglio},
    {"AssiXY", Ausiliarie},
};

// Of each kind of line, the layer that its row names; a name that is none of these does not compile.
constexpr auto DELLE_SPECIE = [] {
    std::array<Genere, std::size(SPECIE)> generi{};
    for (std::size_t i = 0; i < generi.size(); ++i) {
        const RigaGenere *r =
            std::find_if(std::begin(GENERI), std::end(GENERI), [&](const RigaGenere &g) { return g.nome == SPECIE[i].macchina; });
        generi[i] = SPECIE[i].macchina.empty() ? Altro : r == std::end(GENERI) ? throw "no such layer" : r->genere;
    }
    return generi;
}();

}  // namespace

std::span<const RigaGenere> Generi() { return GENERI; }

const RigaGenere &Riga(Genere g) { return GENERI[static_cast<std::size_t>(g)]; }

Genere GenereDi(Specie specie, double valore) {
    if (specie == Specie::Ora) {
        const double minuti = std::fabs(valore * 60 - std::round(valore) * 60);
        return minuti < 0.5 ? Ore : std::fabs(minuti - 30) < 0.5 ? MezzeOre : Quarti;
    }
    const Genere g = DELLE_SPECIE[static_cast<std::size_t>(specie)];
    return g == Diurne && valore == 0 ? Equinoziale : g;
}

Genere GenereDi(std::string_view strato) {
    if (strato.empty()) return Figure;
    for (const StratoNoto &s : STRATI)
        if (strato == s.nome) return s.genere;
    return Altro;
}

}  // namespace ombrelia::officina
