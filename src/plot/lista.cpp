// Layer names, and what leaves the display list.
#include "plot/lista.h"

#include <algorithm>

namespace ombrelia {

IdNome Nomi::cerca(std::string_view nome) {
    if (const auto noto = indice_.find(nome); noto != indice_.end()) return ultimo_ = noto->second;
    const auto id = static_cast<IdNome>(nomi_.size());
    indice_.emplace(nomi_.emplace_back(nome), id);
    return ultimo_ = id;
}

void Lista::svuota() {
    Linee.clear();
    Punti.clear();
    Figure.clear();
    Testi.clear();
    Aree.clear();
    Ordine.clear();
    pretese.clear();
    trattini.clear();
}

void Lista::riserva(const Lista &come) {
    constexpr std::size_t MASSIMA = std::size_t{1} << 20;  // a larger drawing grows as it goes
    Linee.reserve(std::min(come.Linee.size(), MASSIMA));
    Punti.reserve(std::min(come.Punti.size(), MASSIMA));
    Ordine.reserve(std::min(come.Ordine.size(), 2 * MASSIMA));
}

void Lista::togliArea(std::size_t quale) {
    constexpr std::size_t LATI = 4;
    const auto i = static_cast<std::ptrdiff_t>(quale);
    const RecArea tolta = Aree[quale];
    // Where the outline stands in the order.
    std::size_t posto = 0;
    for (std::size_t linee = 0; posto < Ordine.size() && !(Ordine[posto] == 'L' && linee == tolta.linea); ++posto)
        if (Ordine[posto] == 'L') ++linee;
    Ordine.erase(posto, LATI);
    const auto prima = Linee.begin() + static_cast<std::ptrdiff_t>(tolta.linea);
    Linee.erase(prima, prima + LATI);
    Testi.erase(Testi.begin() + static_cast<std::ptrdiff_t>(tolta.testo));
    Aree.erase(Aree.begin() + i);
    for (RecArea &a : Aree) {
        if (a.linea > tolta.linea) a.linea -= LATI;
        if (a.testo > tolta.testo) --a.testo;
    }
    for (Pretesa &r : pretese) {
        if (r.da <= posto) continue;
        r.da -= LATI;
        r.a -= LATI;
        r.linea -= LATI;
    }
}

Lista Lista::copia() const {
    Lista l;
    l.Linee = Linee;
    l.Punti = Punti;
    l.Figure = Figure;
    l.Testi = Testi;
    l.Aree = Aree;
    l.Ordine = Ordine;
    l.pretese = pretese;
    l.trattini = trattini;
    for (std::size_t i = 0; i < nomi.quanti(); ++i) (void)l.nomi.id(nomi.testo(static_cast<IdNome>(i)));
    return l;
}

std::optional<std::size_t> Lista::TrovaStart(IdNome id) const {
    for (std::size_t i = Figure.size(); i-- > 0;)
        if (Figure[i].Tipo == 'V' && Figure[i].voce == Voce::START && Figure[i].Id == id) return i;
    return {};
}

}  // namespace ombrelia
