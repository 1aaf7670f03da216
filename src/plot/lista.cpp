// Layer names and the emptying of the display list.
#include "plot/lista.h"

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
}

std::optional<std::size_t> Lista::TrovaStart(IdNome id) const {
    for (std::size_t i = Figure.size(); i-- > 0;)
        if (Figure[i].Tipo == 'V' && Figure[i].voce == Voce::START && Figure[i].Id == id) return i;
    return {};
}

}  // namespace ombrelia
