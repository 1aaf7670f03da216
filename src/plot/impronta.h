// What tells two drawn things from each other.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <vector>

namespace ombrelia {

// A point in whole steps of a writer.
struct PuntoIntero {
    std::int64_t x, y;
    bool operator==(const PuntoIntero &) const = default;
};

// A run of points as two hashes of 64 bits, the same either way round.
struct Impronta {
    std::uint64_t a = 0x9E3779B97F4A7C15U, b = 0;

    explicit Impronta(const std::vector<PuntoIntero> &punti) : b(punti.size()) {
        const auto prima = [](const PuntoIntero &p, const PuntoIntero &q) { return p.x != q.x ? p.x < q.x : p.y < q.y; };
        const auto mescola = [this](const PuntoIntero &p) {
            for (const std::int64_t v : {p.x, p.y}) {
                a = (a ^ static_cast<std::uint64_t>(v)) * 0xFF51AFD7ED558CCDU;
                a ^= a >> 29;
                b = (b + static_cast<std::uint64_t>(v)) * 0xC4CEB9FE1A85EC53U;
                b ^= b >> 32;
            }
        };
        if (std::lexicographical_compare(punti.rbegin(), punti.rend(), punti.begin(), punti.end(), prima))
            std::for_each(punti.rbegin(), punti.rend(), mescola);
        else std::for_each(punti.begin(), punti.end(), mescola);
    }
    bool operator==(const Impronta &) const = default;
    struct Resto {
        std::size_t operator()(const Impronta &i) const { return static_cast<std::size_t>(i.a); }
    };
};
using Visti = std::unordered_set<Impronta, Impronta::Resto>;

}  // namespace ombrelia
