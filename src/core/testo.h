// Numbers to text and back, and the encodings of our files. One formatter for every file and every table.
#pragma once

#include <string>
#include <string_view>

#include "core/reale.h"

namespace ombrelia {

// The longest numeric prefix behind leading blanks: sign, digits, point, exponent. Given: a text. Gives: its number, 0 when there
// is none. Source: the usual decimal form, read exactly rounded. Faults: no value when the number overflows a double.
[[nodiscard]] Valore Val(std::string_view testo);

// The number form of files: up to 15 significant digits without trailing zeros; plain from 0.1 up to below 1E+15,
// otherwise with an exponent of a sign and at least two digits. Appends to the text. Never "-0".
void AggiungiNumero(std::string &testo, double numero);
[[nodiscard]] std::string NumeroGenerale(double numero);

// The number form for people: the same digits, always plain decimals with a leading zero, no leading blank.
[[nodiscard]] std::string TestoNumero(double numero);

// A format mask of zeros around a point ("00.00", ".0000"): at least as many digits before it as the mask has zeros,
// exactly as many behind it; a half rounds away from zero; no minus before zeros. Faults read as an empty text.
[[nodiscard]] std::string Formato(Valore numero, std::string_view maschera);

// Roman numerals up to XXXIX; nothing beyond, for 0 and below.
[[nodiscard]] std::string NumeroRomano(int n);

// 17 significant digits, as "%.17g" prints them: the form of the display list.
void AggiungiNumero17(std::string &testo, double numero);

// Whether a byte is a control character; none goes into a file of lines, cells or marks.
[[nodiscard]] constexpr bool CarattereDiControllo(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }
// A character as XML and HTML have it: the marks that have a meaning there by their names.
void AggiungiXml(std::string &uscita, char c);
[[nodiscard]] std::string SenzaBlanks(std::string_view testo);                    // without leading and trailing blanks
[[nodiscard]] bool UguaglianzaSenzaCaso(std::string_view a, std::string_view b);  // ASCII letters

// Text read from a file of ours: as it stands when it is valid UTF-8 (a byte order mark dropped), else decoded from Windows-1252.
[[nodiscard]] std::string DaFile(std::string grezzo);
// UTF-8 to Windows-1252, one byte a character; what has no place there becomes "?".
void AggiungiCp1252(std::string &uscita, std::string_view utf8);

// Marks a text that goes through the dictionary elsewhere than where it stands, as the labels of a table do:
// "Latitudine "_it. The test of the dictionaries finds it by this; what stands inside Traduci("...") needs no mark.
[[nodiscard]] constexpr std::string_view operator""_it(const char *testo, std::size_t n) { return {testo, n}; }

// A text joined from labels and numbers (in the form for people). A number without a value faults the whole text: then
// it does not exist and what was to show it is left out.
class Frase {
public:
    Frase() = default;
    Frase(std::string_view t) : testo_(t) {}        // NOLINT: a label is a phrase
    Frase(const char *t) : testo_(t) {}             // NOLINT
    Frase(std::string t) : testo_(std::move(t)) {}  // NOLINT
    Frase &operator<<(std::string_view t) {
        testo_ += t;
        return *this;
    }
    Frase &operator<<(Valore n) {
        if (n.esiste()) testo_ += TestoNumero(n.v);
        else esiste_ = false;
        return *this;
    }
    [[nodiscard]] bool esiste() const { return esiste_; }
    [[nodiscard]] const std::string &testo() const { return testo_; }

private:
    std::string testo_;
    bool esiste_ = true;
};

}  // namespace ombrelia
