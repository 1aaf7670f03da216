// The order of cutting.
#include <algorithm>
#include <limits>

#include "officina/passi.h"

namespace ombrelia::officina {

namespace {

double viaggio(const std::vector<Cammino> &c, P2 testa) {
    double somma = 0;
    for (const Cammino &k : c) {
        somma += Distanza(testa, k.capo());
        testa = k.coda();
    }
    return somma;
}

}  // namespace

void Ordina(std::vector<Cammino> &c, Resoconto &r) {
    if (c.empty()) return;
    P2 testa = c[0].capo();
    for (const Cammino &k : c)
        for (const P2 p : k.punti) testa = {std::min(testa.x, p.x), std::min(testa.y, p.y)};
    const P2 casa = testa;  // the head starts at the lower left corner
    r.viaggioPrima = viaggio(c, casa);
    std::vector<Cammino> esito;
    esito.reserve(c.size());
    for (const bool cornice : {false, true}) {
        std::vector<std::size_t> resto;
        for (std::size_t i = 0; i < c.size(); ++i)
            if ((c[i].genere == Genere::Cornice) == cornice) resto.push_back(i);
        while (!resto.empty()) {
            std::size_t scelto = 0, vertice = 0;
            bool coda = false;
            double minima = std::numeric_limits<double>::infinity();
            const auto prova = [&](double d, std::size_t i, bool da, std::size_t v) {
                if (d < minima) minima = d, scelto = i, coda = da, vertice = v;
            };
            for (std::size_t i = 0; i < resto.size(); ++i) {
                const Cammino &k = c[resto[i]];
                if (k.chiuso) {
                    for (std::size_t v = 0; v < k.punti.size(); ++v) prova(Distanza(testa, k.punti[v]), i, false, v);
                } else {
                    prova(Distanza(testa, k.capo()), i, false, 0);
                    if (k.tipo == Cammino::Tipo::Linea) prova(Distanza(testa, k.coda()), i, true, 0);
                }
            }
            Cammino &k = c[resto[scelto]];
            if (coda) k.rovescia();
            if (vertice != 0) std::rotate(k.punti.begin(), k.punti.begin() + static_cast<std::ptrdiff_t>(vertice), k.punti.end());
            testa = k.coda();
            esito.push_back(std::move(k));
            resto[scelto] = resto.back();
            resto.pop_back();
        }
    }
    c = std::move(esito);
    r.viaggio = viaggio(c, casa);
}

}  // namespace ombrelia::officina
