// Strokes of characters, from the Hershey alphabet where the build has it.
#include "officina/tratti.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "officina/alfabeto.h"

namespace ombrelia::officina {

namespace {

constexpr double ALTE = 21, BASSE = 14;  // height of capitals and of small letters, in units of the alphabet
constexpr double LARGO_MEDIO = 18;       // for an estimate

char32_t prossimo(std::string_view &t) {
    const auto c = static_cast<unsigned char>(t[0]);
    const std::size_t n = c < 0x80 ? 1 : c < 0xE0 ? 2 : c < 0xF0 ? 3 : 4;
    char32_t u = n == 1 ? c : c & (0xFFU >> (n + 1));
    for (std::size_t i = 1; i < n && i < t.size(); ++i) u = (u << 6) | (static_cast<unsigned char>(t[i]) & 0x3FU);
    t.remove_prefix(std::min(n, t.size()));
    return u;
}

enum class Accento : char { Grave, Acuto, Circonflesso, Tilde, Dieresi, Anello, Cediglia };

struct Accentata {
    char32_t codice;
    char lettera;
    Accento accento;
};
using enum Accento;
constexpr Accentata ACCENTATE[] = {
    {U'À', 'A', Grave},        {U'Á', 'A', Acuto},        {U'Â', 'A', Circonflesso}, {U'Ã', 'A', Tilde},
    {U'Ä', 'A', Dieresi},      {U'Å', 'A', Anello},       {U'Ç', 'C', Cediglia},     {U'È', 'E', Grave},
    {U'É', 'E', Acuto},        {U'Ê', 'E', Circonflesso}, {U'Ë', 'E', Dieresi},      {U'Ì', 'I', Grave},
    {U'Í', 'I', Acuto},        {U'Î', 'I', Circonflesso}, {U'Ï', 'I', Dieresi},      {U'Ñ', 'N', Tilde},
    {U'Ò', 'O', Grave},        {U'Ó', 'O', Acuto},        {U'Ô', 'O', Circonflesso}, {U'Õ', 'O', Tilde},
    {U'Ö', 'O', Dieresi},      {U'Ù', 'U', Grave},        {U'Ú', 'U', Acuto},        {U'Û', 'U', Circonflesso},
    {U'Ü', 'U', Dieresi},      {U'Ý', 'Y', Acuto},        {U'à', 'a', Grave},        {U'á', 'a', Acuto},
    {U'â', 'a', Circonflesso}, {U'ã', 'a', Tilde},        {U'ä', 'a', Dieresi},      {U'å', 'a', Anello},
    {U'ç', 'c', Cediglia},     {U'è', 'e', Grave},        {U'é', 'e', Acuto},        {U'ê', 'e', Circonflesso},
    {U'ë', 'e', Dieresi},      {U'ì', 'i', Grave},        {U'í', 'i', Acuto},        {U'î', 'i', Circonflesso},
    {U'ï', 'i', Dieresi},      {U'ñ', 'n', Tilde},        {U'ò', 'o', Grave},        {U'ó', 'o', Acuto},
    {U'ô', 'o', Circonflesso}, {U'õ', 'o', Tilde},        {U'ö', 'o', Dieresi},      {U'ù', 'u', Grave},
    {U'ú', 'u', Acuto},        {U'û', 'u', Circonflesso}, {U'ü', 'u', Dieresi},      {U'ý', 'y', Acuto},
    {U'ÿ', 'y', Dieresi},
};

// A character that another of the alphabet stands for.
struct Sostituto {
    char32_t codice;
    unsigned char lettera;
};
constexpr Sostituto SOSTITUTI[] = {{U'°', 127}, {U'º', 127}, {U'’', '\''}, {U'‘', '`'}, {U'′', '\''}, {U'″', '"'},
                                   {U'“', '"'}, {U'”', '"'}, {U'–', '-'},  {U'—', '-'}, {U'−', '-'},  {U'×', 'x'}};

// Signs of the zodiac in their own alphabet, Aries first; Libra has none there.
constexpr unsigned char SEGNI[] = {64, 91, 93, 94, 95, 96, 0, 123, 124, 125, 126, 33};
constexpr char32_t ARIETE = U'♈';

const Alfabeto &romano() {
    static const Alfabeto a("rowmans");
    return a;
}

const Alfabeto &astrologico() {
    static const Alfabeto a("astrology");
    return a;
}

Riquadro contorno(const Tratti &tratti) {
    Riquadro b{1e9, 1e9, -1e9, -1e9};
    for (const auto &t : tratti)
        for (const P2 p : t) b.allarga(p);
    return b;
}

// Strokes turned a quarter left so many times, then laid into a box.
Tratti dentro(Tratti tratti, const Riquadro &dove, int quarti = 0) {
    for (; quarti > 0; --quarti)
        for (auto &t : tratti)
            for (P2 &p : t) p = {-p.y, p.x};
    const Riquadro b = contorno(tratti);
    const double kx = b.x1 > b.x0 ? (dove.x1 - dove.x0) / (b.x1 - b.x0) : 0,
                 ky = b.y1 > b.y0 ? (dove.y1 - dove.y0) / (b.y1 - b.y0) : 0;
    for (auto &t : tratti)
        for (P2 &p : t) p = {dove.x0 + kx * (p.x - b.x0), dove.y0 + ky * (p.y - b.y0)};
    return tratti;
}

// Accents are other characters of the alphabet laid small over or under the letter.
void accenta(LetteraIncisa &l, Accento a, bool maiuscola) {
    const Riquadro b = contorno(l.tratti);
    const double x = (b.x0 + b.x1) / 2, y = (maiuscola ? ALTE : BASSE) + 2.5, su = 5;
    const auto metti = [&](char c, const Riquadro &dove, int quarti = 0) {
        for (auto &t : dentro(romano().lettera(static_cast<unsigned char>(c)).tratti, dove, quarti))
            l.tratti.push_back(std::move(t));
    };
    switch (a) {
        case Grave:
            metti('\\', {x - 3.5, y, x + 1.5, y + su});
            break;
        case Acuto:
            metti('/', {x - 1.5, y, x + 3.5, y + su});
            break;
        case Circonflesso:
            metti('>', {x - 3.5, y, x + 3.5, y + 4}, 1);
            break;
        case Tilde:
            metti('~', {x - 5, y, x + 5, y + 4});
            break;
        case Dieresi:
            metti('.', {x - 4, y, x - 2.5, y + 1.5});
            metti('.', {x + 2.5, y, x + 4, y + 1.5});
            break;
        case Anello:
            metti('o', {x - 2.5, y - 1, x + 2.5, y + 4});
            break;
        case Cediglia:
            metti(',', {x - 1, -6, x + 1.5, 0});
            break;
    }
}

// A sign as tall as a capital. The Libra is an arch over two lines.
LetteraIncisa segno(std::size_t n) {
    LetteraIncisa l;
    if (SEGNI[n] != 0 && astrologico().esiste()) {
        l = astrologico().lettera(SEGNI[n]);
    } else if (SEGNI[n] == 0) {
        l.tratti = dentro(romano().lettera('U').tratti, {7, 7, 15, 20}, 2);
        l.tratti.push_back({{2, 7}, {7, 7}});
        l.tratti.push_back({{15, 7}, {20, 7}});
        l.tratti.push_back({{2, 2}, {20, 2}});
        l.largo = 22;
    }
    return l;
}

LetteraIncisa cerca(char32_t u) {
    if (u >= ARIETE && u < ARIETE + 12) return segno(u - ARIETE);
    if (u < 128) return romano().lettera(static_cast<unsigned char>(u));
    for (const Sostituto &s : SOSTITUTI)
        if (s.codice == u) return romano().lettera(s.lettera);
    for (const Accentata &a : ACCENTATE) {
        if (a.codice != u) continue;
        LetteraIncisa l = romano().lettera(static_cast<unsigned char>(a.lettera));
        // The accent takes the place of the dot.
        if (a.lettera == 'i') std::erase_if(l.tratti, [](const auto &t) { return t[0].y > BASSE + 1; });
        accenta(l, a.accento, a.lettera < 'a');
        return l;
    }
    return romano().lettera(' ');
}

}  // namespace

bool CiSonoTratti() { return romano().esiste(); }

Tratti TrattiDi(std::string_view testo, double altezza) {
    Tratti esito;
    if (!CiSonoTratti()) return esito;
    const double k = altezza / ALTE;
    double x = 0;
    while (!testo.empty()) {
        LetteraIncisa l = cerca(prossimo(testo));
        for (auto &t : l.tratti) {
            for (P2 &p : t) p = {k * (p.x + x), k * p.y};
            esito.push_back(std::move(t));
        }
        x += l.largo;
    }
    return esito;
}

double LarghezzaTratti(std::string_view testo, double altezza) {
    double x = 0;
    const bool alfabeto = CiSonoTratti();
    while (!testo.empty()) {
        const char32_t u = prossimo(testo);
        x += alfabeto ? cerca(u).largo : LARGO_MEDIO;
    }
    return x * altezza / ALTE;
}

}  // namespace ombrelia::officina
