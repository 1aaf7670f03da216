// Hershey's alphabets.
#include "officina/alfabeto.h"

#ifdef OMBRELIA_HERSHEY
#include <memory>

extern "C" {
#include <hersheyfont.h>
}
#else
#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/file.h"
#include "core/percorsi.h"
#endif

namespace ombrelia::officina {

#ifdef OMBRELIA_HERSHEY

Alfabeto::Alfabeto(const char *nome) {
    const std::unique_ptr<hershey_font, void (*)(hershey_font *)> font(hershey_font_load(nome), hershey_font_free);
    esiste_ = font != nullptr;
    for (std::size_t c = 0; esiste_ && c < lettere_.size(); ++c) {
        const hershey_glyph *g = hershey_font_glyph(font.get(), static_cast<unsigned char>(c));
        if (!g) continue;
        lettere_[c].largo = g->width;
        for (const hershey_path *p = g->paths; p; p = p->next) {
            std::vector<P2> t;
            for (int i = 0; i < p->nverts; ++i)
                t.push_back({static_cast<double>(p->verts[i].x), static_cast<double>(p->verts[i].y)});
            if (!t.empty()) lettere_[c].tratti.push_back(std::move(t));
        }
    }
}

#else

// A line a character, from the blank on: its number in five columns, how many pairs in three, then pairs of letters that count
// from 'R': the left and right end, then points, y downward; " R" lifts the pen.
Alfabeto::Alfabeto(const char *nome) {
    constexpr std::size_t PRIMA = ' ', TESTA = 8, BASE = 9, MASSIMO = 100000;
    const auto file = TrovaDato(nome + std::string(".jhf"));
    const auto testo = file ? LeggiFile(file->string(), MASSIMO) : std::nullopt;
    if (!testo) return;
    std::string_view resto = *testo;
    for (std::size_t c = PRIMA; !resto.empty() && c < lettere_.size(); ++c) {
        const std::size_t fine = std::min(resto.find('\n'), resto.size());
        const std::string_view riga = resto.substr(0, fine);
        resto.remove_prefix(std::min(fine + 1, resto.size()));
        if (riga.size() < TESTA + 2) continue;
        LetteraIncisa &l = lettere_[c];
        l.largo = riga[TESTA + 1] - riga[TESTA];
        bool alzata = true;
        for (std::size_t i = TESTA + 2; i + 1 < riga.size(); i += 2) {
            if (riga[i] == ' ') {
                alzata = true;
                continue;
            }
            if (alzata) l.tratti.emplace_back();
            alzata = false;
            l.tratti.back().push_back(
                {static_cast<double>(riga[i] - riga[TESTA]), static_cast<double>(BASE) - (riga[i + 1] - 'R')});
        }
    }
    esiste_ = true;
}

#endif

}  // namespace ombrelia::officina
