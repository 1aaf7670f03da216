// The one walk through the display list: every reading of it (device, DXF, SVG, text, tiles, machines,
// certificate, layers) is a visitor.
#pragma once

#include <algorithm>
#include <cstddef>

#include "plot/lista.h"

namespace ombrelia {

// Where a walk stands: the place in the order, and what comes next of each kind.
struct PostoLista {
    std::size_t ordine = 0, linea = 0, punto = 0, figura = 0;
};

// Calls v.punto(record), v.linea(record) and v.figura(index in Figure) for the primitives in the order they were added, from a
// place up to the record a (one past the last); gives the place where it ended. A polyline comes as its START; its vertices and
// its end have no letter in the order. A visitor that has it is told by v.pretesa(claim), null for none, to what the primitives
// belong that follow.
template <class V>
PostoLista Percorri(const Lista &l, PostoLista qui, std::size_t a, V &&v) {
    constexpr bool conPretese = requires { v.pretesa(static_cast<const Pretesa *>(nullptr)); };
    const auto &f = l.Figure;
    auto prossima = l.pretese.begin();
    std::size_t cambia = qui.ordine;  // where the claim becomes another
    for (a = std::min(a, l.Ordine.size()); qui.ordine < a; ++qui.ordine) {
        if constexpr (conPretese)
            if (qui.ordine == cambia) {
                while (prossima != l.pretese.end() && prossima->a <= qui.ordine) ++prossima;
                const bool dentro = prossima != l.pretese.end() && prossima->da <= qui.ordine;
                cambia = prossima == l.pretese.end() ? a : dentro ? prossima->a : prossima->da;
                v.pretesa(dentro ? &*prossima : nullptr);
            }
        const char tipo = l.Ordine[qui.ordine];
        if (tipo == 'P') v.punto(l.Punti[qui.punto++]);
        else if (tipo == 'L') v.linea(l.Linee[qui.linea++]);
        else {
            while (qui.figura < f.size() && f[qui.figura].Tipo == 'V' && f[qui.figura].voce != Voce::START) ++qui.figura;
            if (qui.figura < f.size()) v.figura(qui.figura++);
        }
    }
    return qui;
}

// All of a list; what belongs to a claim.
template <class V>
void Percorri(const Lista &l, V &&v) {
    Percorri(l, {}, l.Ordine.size(), v);
}
template <class V>
void Percorri(const Lista &l, const Pretesa &p, V &&v) {
    Percorri(l, {p.da, p.linea, p.punto, p.figura}, p.a, v);
}

// A visitor of two functions: of the lines and of the points, figures are nothing to it.
template <class L, class P>
struct TrattiEPunti {
    L linea;
    P punto;
    static void figura(std::size_t) {}
};
template <class L, class P>
TrattiEPunti(L, P) -> TrattiEPunti<L, P>;  // older compilers deduce none for an aggregate

// The chords of the polyline that stands for a name, v(vertex, next vertex): those between its last START and its END. None
// before it is ended.
template <class V>
void PercorriPolilinea(const Lista &l, IdNome Id, V &&v) {
    const auto inizio = l.TrovaStart(Id);
    if (!inizio) return;
    const auto &f = l.Figure;
    const auto fine = [&](const RecFigura &r) { return r.Tipo == 'V' && r.Id == Id && r.voce == Voce::END; };
    std::size_t quanti = *inizio + 1;
    while (quanti < f.size() && !fine(f[quanti])) ++quanti;
    if (quanti == f.size()) return;
    const RecFigura *prima = nullptr;
    for (std::size_t i = *inizio + 1; i < quanti; ++i) {
        if (f[i].Tipo != 'V' || f[i].Id != Id) continue;
        if (prima) v(*prima, f[i]);
        prima = &f[i];
    }
}

}  // namespace ombrelia
