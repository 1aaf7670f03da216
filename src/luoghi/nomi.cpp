// Names as a search sees them.
#include "luoghi/nomi.h"

#include <cstdint>

namespace ombrelia::luoghi {

namespace {

// Plain letters of U+00C0..U+024F and of U+1E00..U+1EFF, one a place; A, O, S, T are ae, oe, ss, th; "-" is no letter.
constexpr std::string_view LATINE =
    "aaaaaaAceeeeiiiidnooooo-ouuuuyTSaaaaaaAceeeeiiiidnooooo-ouuuuyTyaaaaaaccccccccddddeeeeeeeeeegggggggg"
    "hhhhiiiiiiiiiiiijjkkkllllllllllnnnnnnnnnooooooOOrrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs-b----o-"
    "--d----ee-------kk------oo-------------uu--yy---------------dddlllnnnaaiioouuuuuuuuuueaaaaAA--ggkkoo"
    "oo--jdddgg--nnaaAAooaaaaeeeeiiiioooorrrruuuusstt--hh------aaeeooooooooyy----------------------------";
constexpr std::string_view LATINE_ESTESE =
    "aabbbbbbccddddddddddeeeeeeeeeeffgghhhhhhhhhhiiiikkkkkkllllllllmmmmmmnnnnnnnnoooooooopppprrrrrrrrssss"
    "ssssssttttttttuuuuuuuuuuvvvvwwwwwwwwwwxxxxyyzzzzzzhtwyas--S-aaaaaaaaaaaaaaaaaaaaaaaaeeeeeeeeeeeeeeee"
    "iiiioooooooooooooooooooooooouuuuuuuuuuuuuuyyyyyyyy------";
static_assert(LATINE.size() == 0x250 - 0xC0 && LATINE_ESTESE.size() == 0x100);

// The next character of UTF-8; a byte that begins none is none.
std::uint32_t prossimo(std::string_view t, std::size_t &i) {
    const auto b = [&](std::size_t k) { return i + k < t.size() ? static_cast<unsigned char>(t[i + k]) : 0U; };
    const std::uint32_t primo = b(0);
    if (primo >= 0x80 && primo < 0xC0) {
        ++i;
        return 0xFFFD;
    }
    const std::size_t n = primo >= 0xF0 ? 4 : primo >= 0xE0 ? 3 : primo >= 0xC0 ? 2 : 1;
    std::uint32_t c = n == 1 ? primo : primo & (0xFFU >> (n + 1));
    for (std::size_t k = 1; k < n; ++k) {
        if ((b(k) & 0xC0U) != 0x80U) {
            ++i;
            return 0xFFFD;
        }
        c = c << 6U | (b(k) & 0x3FU);
    }
    i += n;
    return c;
}

// "" drops the character, " " divides words.
std::string_view piana(std::uint32_t c, std::string_view scritta, std::string &uno) {
    if (c < 0x80) {
        if (c == '\'' || c == '.' || c == '`') return "";
        const bool lettera = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        uno.assign(1, !lettera ? ' ' : static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c));
        return uno;
    }
    if ((c >= 0x300 && c <= 0x36F) || (c >= 0x2018 && c <= 0x201B) || c == 0x2BB || c == 0x2BC || c == 0x2B9 || c == 0xB4)
        return "";
    if ((c >= 0x2000 && c <= 0x206F) || c == 0xA0 || c == 0xB7) return " ";
    char l = '-';
    if (c >= 0xC0 && c < 0x250) l = LATINE[c - 0xC0];
    else if (c >= 0x1E00 && c < 0x1F00) l = LATINE_ESTESE[c - 0x1E00];
    else if (c == 0x259) l = 'e';  // small ə, outside both tables
    else return scritta;
    switch (l) {
        case 'A':
            return "ae";
        case 'O':
            return "oe";
        case 'S':
            return "ss";
        case 'T':
            return "th";
        case '-':
            return scritta;
        default:
            uno.assign(1, l);
            return uno;
    }
}

}  // namespace

std::string Appiana(std::string_view nome) {
    std::string piano, uno;
    for (std::size_t i = 0; i < nome.size();) {
        const std::size_t da = i;
        const std::uint32_t c = prossimo(nome, i);
        const std::string_view s = piana(c, nome.substr(da, i - da), uno);
        if (s == " " && (piano.empty() || piano.back() == ' ')) continue;
        piano += s;
    }
    while (!piano.empty() && piano.back() == ' ') piano.pop_back();
    if (piano.starts_with("st ")) piano.replace(0, 2, "saint");
    return piano;
}

std::string SenzaDieresi(std::string_view appianato) {
    std::string t;
    for (std::size_t i = 0; i < appianato.size(); ++i) {
        const char c = appianato[i];
        t += c;
        if ((c == 'a' || c == 'o' || c == 'u') && i + 1 < appianato.size() && appianato[i + 1] == 'e') ++i;
    }
    return t;
}

bool AUnPasso(std::string_view a, std::string_view b) {
    if (a.size() > b.size()) std::swap(a, b);
    if (b.size() - a.size() > 1) return false;
    std::size_t i = 0;
    while (i < a.size() && a[i] == b[i]) ++i;
    if (a.size() < b.size()) return a.substr(i) == b.substr(i + 1);
    if (i == a.size() || a.substr(i + 1) == b.substr(i + 1)) return true;
    return i + 1 < a.size() && a[i] == b[i + 1] && a[i + 1] == b[i] && a.substr(i + 2) == b.substr(i + 2);
}

}  // namespace ombrelia::luoghi
