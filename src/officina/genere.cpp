// The table of kinds.
#include "officina/genere.h"

#include <cmath>

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

// Beginnings of layer names; the first that fits. Day lines of the vertical engine are named by their dates.
struct Inizio {
    std::string_view nome;
    Genere genere;
};
constexpr Inizio INIZI[] = {
    {"Cornice", Cornice},
    {"hour", Ore},
    {"Astro", Ore},
    {"Ore_astro", Ore},
    {"half", MezzeOre},
    {"quarter", Quarti},
    {"equinox", Equinoziale},
    {"21 III", Equinoziale},
    {"delta", Diurne},
    {"Delta", Diurne},
    {"Diurna", Diurne},
    {"Solstizio", Diurne},
    {"20 ", Diurne},
    {"Ita", Italiche},
    {"Bab", Babiloniche},
    {"Temp", Temporarie},
    {"Analemma", Analemma},
    {"Lemniscata", Analemma},
    {"Mezzogiorno", Mezzogiorno},
    {"substyle", Sustilare},
    {"polar style", Stilo},
    {"pillar", Stilo},
    {"Ortostilo", Stilo},
    {"Ipotenusa", Stilo},
    {"IPOTENUSA", Stilo},
    {"FALSO", Stilo},
    {"Cateto", Stilo},
    {"CATETO", Stilo},
    {"Etichette", Etichette},
    {"Cartiglio", Cartiglio},
    {"AssiXY", Ausiliarie},
};

}  // namespace

std::span<const RigaGenere> Generi() { return GENERI; }

const RigaGenere &Riga(Genere g) { return GENERI[static_cast<std::size_t>(g)]; }

Genere GenereDi(Specie specie, double valore) {
    switch (specie) {
        case Specie::Ora: {
            const double minuti = std::fabs(valore * 60 - std::round(valore) * 60);
            return minuti < 0.5 ? Ore : std::fabs(minuti - 30) < 0.5 ? MezzeOre : Quarti;
        }
        case Specie::Diurna:
        case Specie::Tacca:
            return valore == 0 ? Equinoziale : Diurne;
        case Specie::Equinoziale:
            return Equinoziale;
        case Specie::Italica:
            return Italiche;
        case Specie::Babilonica:
            return Babiloniche;
        case Specie::Temporaria:
            return Temporarie;
        case Specie::Almucantarat:
            return Almucantarat;
        case Specie::Azimut:
            return Azimutali;
        case Specie::Asr:
            return Asr;
        case Specie::Qibla:
            return Qibla;
        case Specie::Analemma:
            return Analemma;
        case Specie::Mezzogiorno:
            return Mezzogiorno;
        case Specie::OraSustilare:
        case Specie::Sustilare:
            return Sustilare;
        case Specie::Orizzonte:
            return Orizzonte;
        case Specie::Stilo:
            return Stilo;
        case Specie::Etichetta:
            return Etichette;
        case Specie::Nessuna:
            break;
    }
    return Altro;
}

Genere GenereDi(std::string_view strato) {
    if (strato.empty()) return Figure;
    for (const Inizio &i : INIZI)
        if (strato.starts_with(i.nome)) return i.genere;
    return Altro;
}

}  // namespace ombrelia::officina
