// The rows of all forms as one table that the compiler knows. For controlli.cpp and nomi.h alone.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "controlli/righe_moduli.h"
#include "controlli/righe_principale.h"
#include "controlli/righe_tavolo.h"

namespace ombrelia::righe {

inline constexpr std::array<std::span<const RigheModulo>, 3> FORME{GRUPPI_PRINCIPALE, GRUPPI_TAVOLO, GRUPPI_MODULI};

template <class F>
constexpr void PerOgniGruppo(const F &f) {
    for (const std::span<const RigheModulo> gruppi : FORME)
        for (const RigheModulo &g : gruppi) f(g);
}

inline constexpr std::size_t QUANTE_RIGHE = [] {
    std::size_t n = 0;
    PerOgniGruppo([&](const RigheModulo &g) { n += g.righe.size(); });
    return n;
}();

inline constexpr std::array<Controllo, QUANTE_RIGHE> TAVOLA = [] {
    std::array<Controllo, QUANTE_RIGHE> tutte{};
    std::size_t i = 0;
    PerOgniGruppo([&](const RigheModulo &g) {
        for (const Controllo &riga : g.righe) {
            tutte[i] = riga;
            tutte[i++].modulo = g.modulo.nome;
        }
    });
    return tutte;
}();

constexpr bool SenzaCaso(Sv a, Sv b) {
    constexpr auto minuscola = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (minuscola(a[i]) != minuscola(b[i])) return false;
    return true;
}

// The row named "name", of the main window, "form.name" or "form.name(index)"; NESSUN_CONTROLLO when there is none.
constexpr IdControllo PostoDi(Sv nome) {
    const std::size_t punto = nome.find('.');
    const Sv modulo = punto == Sv::npos ? GRUPPI_PRINCIPALE[0].modulo.nome : nome.substr(0, punto);
    if (punto != Sv::npos) nome.remove_prefix(punto + 1);
    // Arrays of controls are short: an index is one digit.
    int indice = -1;
    if (nome.size() > 3 && nome.back() == ')' && nome[nome.size() - 3] == '(' && nome[nome.size() - 2] >= '0') {
        indice = nome[nome.size() - 2] - '0';
        nome.remove_suffix(3);
    }
    for (std::size_t i = 0; i < TAVOLA.size(); ++i)
        if (TAVOLA[i].indice == indice && SenzaCaso(TAVOLA[i].nome, nome) && SenzaCaso(TAVOLA[i].modulo, modulo))
            return static_cast<IdControllo>(i);
    return NESSUN_CONTROLLO;
}

}  // namespace ombrelia::righe
