// Angles as people write them: decimal degrees, degrees with minutes and seconds, letters for the four winds. One parser for
// every field of an angle.
#pragma once

#include <string>
#include <string_view>

namespace ombrelia::luoghi {

// Which letters an angle takes, and what is positive.
enum class Verso {
    Nudo,      // no letters
    NordSud,   // N and S, North positive
    OvestEst,  // W (or O, as in ovest and ouest) and E, West positive
};

// A field that holds an angle: its range in degrees, both ends included.
struct CampoAngolo {
    std::string_view nome;
    Verso verso;
    double da, a;
};

// The row of a control's name; null for a field that holds no angle.
[[nodiscard]] const CampoAngolo *TrovaCampoAngolo(std::string_view nome);

enum class Intoppo { Nessuno, Vuoto, NonSiLegge, Sessanta, Decimali, SegnoELettera, LetteraEstranea, FuoriCampo };

struct AngoloLetto {
    Intoppo intoppo = Intoppo::Vuoto;
    double gradi = 0;   // in the field's sign
    std::string testo;  // what the field is to hold: a plain decimal number; a plain number stays as it was typed. Empty where
                        // the text is no angle at all; one out of the range is one
    [[nodiscard]] bool buono() const { return intoppo == Intoppo::Nessuno; }
};

// Reads "45°04'13\"N", "45 4 13", "7.6869E", "7,6869 E", "E 7 41.2", "-7.6869", "45d4m13s". Degrees may be followed by minutes,
// these by seconds; only the last of them has decimals, and below 60 they must be. A sign or a letter, not both. Never fails
// otherwise.
[[nodiscard]] AngoloLetto LeggiAngolo(std::string_view testo, const CampoAngolo &campo);

// Both forms of what was understood: "45.070278° = 45°04'13\" N". Seconds are rounded to tenths where they are not whole.
[[nodiscard]] std::string DueForme(double gradi, Verso verso);

// Why an angle makes no sense: Italian, as it goes through the dictionary, and English. The range is the field's own.
[[nodiscard]] std::string_view Motivo(Intoppo intoppo);
[[nodiscard]] std::string_view MotivoInglese(Intoppo intoppo);

}  // namespace ombrelia::luoghi
