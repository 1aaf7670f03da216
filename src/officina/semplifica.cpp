// The shortest way over chords, each seen from its near end.
#include "officina/semplifica.h"

#include <algorithm>
#include <limits>

#include "plot/snello.h"

namespace ombrelia::officina {

void Semplifica(std::vector<P2> &p, double tolleranza) {
    const std::size_t n = p.size();
    if (n < 3) return;
    constexpr std::uint32_t MAI = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint32_t> passi(n, MAI), da(n, 0);
    passi[0] = 0;
    for (std::size_t i = 0; i + 1 < n; ++i) {
        Cuneo cuneo(p[i], tolleranza);
        for (std::size_t j = i + 1; j < n; ++j) {
            const auto e = cuneo.vede(p[j]);
            // The next point always can be reached, even one that lies on this one.
            if ((e == Cuneo<P2>::Veduta::Si || j == i + 1) && passi[i] + 1 < passi[j]) {
                passi[j] = passi[i] + 1;
                da[j] = static_cast<std::uint32_t>(i);
            }
            if (e == Cuneo<P2>::Veduta::Basta) break;
        }
    }
    std::vector<P2> esito;
    for (std::size_t k = n - 1; k != 0; k = da[k]) esito.push_back(p[k]);
    esito.push_back(p[0]);
    std::reverse(esito.begin(), esito.end());
    p = std::move(esito);
}

}  // namespace ombrelia::officina
