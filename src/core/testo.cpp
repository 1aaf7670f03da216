// Numbers to text and back; encodings.
#include "core/testo.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>

#include "core/cifre.h"

namespace ombrelia {

namespace {

constexpr bool cifra(char c) { return c >= '0' && c <= '9'; }

// A finite double as up to 15 significant digits: 0.d1d2... times ten to the esponente, trailing zeros cut.
struct Cifre {
    std::array<char, 20> d{};
    int n = 0;
    int esponente = 0;
    bool meno = false;
};

void leggiScientifico(Cifre &c, const char *da, const char *a) {
    c.n = 0;
    for (; da != a && *da != 'e'; ++da)
        if (*da != '.') c.d[static_cast<std::size_t>(c.n++)] = *da;
    int e = 0;
    ++da;
    if (*da == '+') ++da;
    std::from_chars(da, a, e);
    c.esponente = e + 1;
}

void tagliaZeri(Cifre &c) {
    while (c.n > 0 && c.d[static_cast<std::size_t>(c.n - 1)] == '0') --c.n;
}

Cifre quindiciCifre(double x) {
    Cifre c;
    c.meno = x < 0;
    x = std::fabs(x);
    if (!(x > 0) || !std::isfinite(x)) {
        c.meno = false;
        return c;
    }
    std::array<char, 40> b;
    // The shortest form is several times quicker than the exact one and decides all but the ties of its own digits.
    leggiScientifico(c, b.data(), b.data() + cifre::Corto(b, x));
    if (c.n > 15) {
        const bool pari = c.n == 16 && c.d[15] == '5';
        int ordine = 0;
        const bool potenza = std::frexp(x, &ordine) == 0.5;
        if (pari || potenza) {
            leggiScientifico(c, b.data(), b.data() + cifre::Scientifico(b, x, 14));
        } else {
            const bool su = c.d[15] >= '5';
            c.n = 15;
            if (su) {
                int i = 14;
                while (i >= 0 && c.d[static_cast<std::size_t>(i)] == '9') c.d[static_cast<std::size_t>(i--)] = '0';
                if (i >= 0) {
                    ++c.d[static_cast<std::size_t>(i)];
                } else {
                    c.d[0] = '1';
                    ++c.esponente;
                }
            }
        }
    }
    tagliaZeri(c);
    return c;
}

void aggiungiPiano(std::string &t, const Cifre &c) {
    if (c.n == 0) {
        t += '0';
        return;
    }
    if (c.meno) t += '-';
    const auto n = static_cast<std::size_t>(c.n);
    if (c.esponente <= 0) {
        t += "0.";
        t.append(static_cast<std::size_t>(-c.esponente), '0');
        t.append(c.d.data(), n);
    } else if (c.n <= c.esponente) {
        t.append(c.d.data(), n);
        t.append(static_cast<std::size_t>(c.esponente - c.n), '0');
    } else {
        const auto intere = static_cast<std::size_t>(c.esponente);
        t.append(c.d.data(), intere);
        t += '.';
        t.append(c.d.data() + intere, n - intere);
    }
}

// Windows-1252 from 0x80 to 0x9F; 0 where the page has a hole.
constexpr std::array<char16_t, 32> CP1252{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                          0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                          0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// Next code point of a UTF-8 text from i on, moving i past it; -1 (and one byte on) where the text is not valid.
int prossimo(std::string_view t, std::size_t &i) {
    const auto byte = [&](std::size_t k) { return k < t.size() ? static_cast<unsigned char>(t[k]) : 0U; };
    const unsigned b0 = byte(i++);
    if (b0 < 0x80) return static_cast<int>(b0);
    const int coda = b0 >= 0xF0 && b0 < 0xF5 ? 3 : b0 >= 0xE0 && b0 < 0xF0 ? 2 : b0 >= 0xC2 && b0 < 0xE0 ? 1 : 0;
    if (coda == 0) return -1;
    unsigned p = b0 & (0x3FU >> coda);
    for (int k = 0; k < coda; ++k) {
        const unsigned b = byte(i + static_cast<std::size_t>(k));
        if ((b & 0xC0U) != 0x80U) return -1;
        p = (p << 6) | (b & 0x3FU);
    }
    constexpr std::array<unsigned, 4> minimo{0, 0x80, 0x800, 0x10000};
    if (p < minimo[static_cast<std::size_t>(coda)] || p > 0x10FFFF || (p >= 0xD800 && p < 0xE000)) return -1;
    i += static_cast<std::size_t>(coda);
    return static_cast<int>(p);
}

bool utf8Valido(std::string_view t) {
    for (std::size_t i = 0; i < t.size();)
        if (prossimo(t, i) < 0) return false;
    return true;
}

void aggiungiUtf8(std::string &t, unsigned p) {
    if (p < 0x80) {
        t += static_cast<char>(p);
    } else if (p < 0x800) {
        t += static_cast<char>(0xC0 | (p >> 6));
        t += static_cast<char>(0x80 | (p & 0x3F));
    } else {
        t += static_cast<char>(0xE0 | (p >> 12));
        t += static_cast<char>(0x80 | ((p >> 6) & 0x3F));
        t += static_cast<char>(0x80 | (p & 0x3F));
    }
}

}  // namespace

Valore Val(std::string_view testo) {
    std::size_t i = testo.find_first_not_of(" \t");
    if (i == std::string_view::npos) return 0;
    testo.remove_prefix(i);
    i = testo[0] == '+' || testo[0] == '-' ? 1 : 0;
    const std::size_t prima = i;
    // Decimal place of the first digit that counts, to tell an overflow from a number too small for a double.
    long posto = 0;
    bool significativa = false;
    std::size_t cifre = 0;
    for (bool punto = false; i < testo.size() && (cifra(testo[i]) || (testo[i] == '.' && !punto)); ++i) {
        if (testo[i] == '.') {
            punto = true;
            continue;
        }
        ++cifre;
        significativa = significativa || testo[i] != '0';
        if (!punto && significativa) ++posto;
        if (punto && !significativa) --posto;
    }
    if (cifre == 0) return 0;
    std::size_t fine = i;
    if (i < testo.size() && (testo[i] == 'e' || testo[i] == 'E')) {
        std::size_t k = i + 1;
        if (k < testo.size() && (testo[k] == '+' || testo[k] == '-')) ++k;
        if (k < testo.size() && cifra(testo[k])) {
            while (k < testo.size() && cifra(testo[k])) ++k;
            fine = k;
        }
    }
    if (!significativa) return 0;
    const bool meno = testo[0] == '-';
    const char *da = testo.data() + prima;
    double x = 0;
    if (!cifre::Leggi(da, testo.data() + fine, x)) {
        long e = 0;
        if (fine > i) {
            const char *es = testo.data() + i + 1;
            if (*es == '+') ++es;
            if (std::from_chars(es, testo.data() + fine, e).ec != std::errc()) e = *es == '-' ? -1000000 : 1000000;
        }
        return e + posto > 0 ? Valore::nessuno() : Valore(0);
    }
    return meno ? -x : x;
}

void AggiungiNumero(std::string &testo, double numero) {
    const Cifre c = quindiciCifre(numero);
    if (c.n == 0 || (c.esponente >= 0 && c.esponente <= 15)) {
        aggiungiPiano(testo, c);
        return;
    }
    if (c.meno) testo += '-';
    testo += c.d[0];
    if (c.n > 1) {
        testo += '.';
        testo.append(c.d.data() + 1, static_cast<std::size_t>(c.n - 1));
    }
    const int e = c.esponente - 1;
    testo += e < 0 ? "E-" : "E+";
    const std::string cifreE = std::to_string(std::abs(e));
    if (cifreE.size() < 2) testo += '0';
    testo += cifreE;
}

std::string NumeroGenerale(double numero) {
    std::string t;
    AggiungiNumero(t, numero);
    return t;
}

std::string TestoNumero(double numero) {
    std::string t;
    aggiungiPiano(t, quindiciCifre(numero));
    return t;
}

std::string Formato(Valore numero, std::string_view maschera) {
    if (!numero.esiste()) return {};
    const std::size_t punto = maschera.find('.');
    const std::size_t intere = std::min(punto, maschera.size());
    const int decimali = punto == std::string_view::npos ? 0 : static_cast<int>(maschera.size() - punto) - 1;
    Cifre c = quindiciCifre(numero.v);
    // Round the digits themselves at the last place of the mask, half away from zero.
    const int tenute = c.esponente + decimali;
    if (tenute < 0) {
        c.n = 0;
    } else if (tenute < c.n) {
        const bool su = c.d[static_cast<std::size_t>(tenute)] >= '5';
        c.n = tenute;
        if (su) {
            int i = tenute - 1;
            while (i >= 0 && c.d[static_cast<std::size_t>(i)] == '9') --i;
            if (i >= 0) {
                ++c.d[static_cast<std::size_t>(i)];
                c.n = i + 1;
            } else {
                c.d[0] = '1';
                c.n = 1;
                ++c.esponente;
            }
        }
        tagliaZeri(c);
    }
    const auto cifraAl = [&](int posto) {  // posto 0 is the first behind the point, -1 the units
        const int i = c.esponente + posto;
        return i >= 0 && i < c.n ? c.d[static_cast<std::size_t>(i)] : '0';
    };
    std::string t;
    if (c.meno && c.n > 0) t += '-';
    const int prima = std::max(static_cast<int>(intere), c.n > 0 ? c.esponente : 0);
    for (int p = -prima; p < 0; ++p) t += cifraAl(p);
    if (punto != std::string_view::npos) t += '.';
    for (int p = 0; p < decimali; ++p) t += cifraAl(p);
    return t;
}

std::string NumeroRomano(int n) {
    constexpr std::pair<int, const char *> CIFRE[] = {{10, "X"}, {9, "IX"}, {5, "V"}, {4, "IV"}, {1, "I"}};
    std::string testo;
    if (n > 39) return testo;
    for (const auto &[valore, lettere] : CIFRE)
        for (; n >= valore; n -= valore) testo += lettere;
    return testo;
}

void AggiungiNumero17(std::string &testo, double numero) {
    std::array<char, 32> b;
    testo.append(b.data(), cifre::Diciassette(b, numero));
}

void AggiungiXml(std::string &uscita, char c) {
    switch (c) {
        case '&':
            uscita += "&amp;";
            break;
        case '<':
            uscita += "&lt;";
            break;
        case '>':
            uscita += "&gt;";
            break;
        case '"':
            uscita += "&quot;";
            break;
        default:
            uscita += c;
    }
}

std::string SenzaBlanks(std::string_view testo) {
    const std::size_t a = testo.find_first_not_of(' ');
    if (a == std::string_view::npos) return {};
    return std::string(testo.substr(a, testo.find_last_not_of(' ') - a + 1));
}

bool UguaglianzaSenzaCaso(std::string_view a, std::string_view b) {
    const auto basso = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [&](char x, char y) { return basso(x) == basso(y); });
}

std::string DaFile(std::string grezzo) {
    if (grezzo.starts_with("\xEF\xBB\xBF")) grezzo.erase(0, 3);
    if (utf8Valido(grezzo)) return grezzo;
    std::string t;
    t.reserve(grezzo.size() + grezzo.size() / 8);
    for (const char c : grezzo) {
        const auto b = static_cast<unsigned char>(c);
        const unsigned p = b >= 0x80 && b < 0xA0 ? CP1252[b - 0x80U] : b;
        aggiungiUtf8(t, p != 0 || b == 0 ? p : b);
    }
    return t;
}

void AggiungiCp1252(std::string &uscita, std::string_view utf8) {
    for (std::size_t i = 0; i < utf8.size();) {
        const int p = prossimo(utf8, i);
        if (p >= 0 && (p < 0x80 || (p >= 0xA0 && p <= 0xFF))) {
            uscita += static_cast<char>(p);
            continue;
        }
        const auto *posto = p < 0 ? CP1252.end() : std::find(CP1252.begin(), CP1252.end(), static_cast<char16_t>(p));
        uscita += posto == CP1252.end() ? '?' : static_cast<char>(0x80 + (posto - CP1252.begin()));
    }
}

}  // namespace ombrelia
