// A drawing for the screen.
#include "web/snello.h"

#include <algorithm>
#include <vector>

#include "core/testo.h"
#include "officina/scrittori.h"
#include "officina/semplifica.h"

namespace ombrelia::web {

namespace {

using officina::P2;

// The points of "Mx yLx y x y…", with or without "Z"; nothing for any other path.
bool leggi(std::string_view d, std::vector<P2> &punti, bool &chiuso) {
    punti.clear();
    chiuso = d.ends_with('Z');
    if (chiuso) d.remove_suffix(1);
    std::vector<double> numeri;
    while (!d.empty()) {
        const char segno = d.front();
        const bool atteso = numeri.empty() ? segno == 'M' : numeri.size() == 2 ? segno == 'L' : segno == ' ';
        if (!atteso) return false;
        for (int i = 0; i < 2; ++i) {
            if (d.empty()) return false;
            d.remove_prefix(1);
            const std::size_t fine = std::min(d.find_first_not_of("-.0123456789"), d.size());
            if (fine == 0 || (i == 0 && fine < d.size() && d[fine] != ' ')) return false;
            numeri.push_back(Val(d.substr(0, fine)).v);
            d.remove_prefix(fine);
        }
    }
    for (std::size_t i = 0; i + 1 < numeri.size(); i += 2) punti.push_back({numeri[i], numeri[i + 1]});
    return punti.size() > 2;
}

}  // namespace

std::string Snello(std::string_view svg, double tolleranza) {
    constexpr std::string_view INIZIO = " d=\"";
    std::string t;
    std::vector<P2> punti;
    while (!svg.empty()) {
        const std::size_t da = svg.find(INIZIO);
        const std::size_t a = da == std::string_view::npos ? da : svg.find('"', da + INIZIO.size());
        if (a == std::string_view::npos) break;
        t += svg.substr(0, da + INIZIO.size());
        const std::string_view d = svg.substr(da + INIZIO.size(), a - da - INIZIO.size());
        svg.remove_prefix(a);
        bool chiuso = false;
        if (!leggi(d, punti, chiuso)) {
            t += d;
            continue;
        }
        officina::Sfoltisci(punti, tolleranza);
        constexpr int DECIMALI = 4;
        for (std::size_t i = 0; i < punti.size(); ++i) {
            t += i == 0 ? 'M' : i == 1 ? 'L' : ' ';
            officina::AggiungiDecimali(t, punti[i].x, DECIMALI);
            t += ' ';
            officina::AggiungiDecimali(t, punti[i].y, DECIMALI);
        }
        if (chiuso) t += 'Z';
    }
    return t += svg;
}

}  // namespace ombrelia::web
