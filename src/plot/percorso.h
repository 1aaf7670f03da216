// The one walk through the display list: every reading of it (device, DXF, SVG, text, tiles) is a visitor.
#pragma once

#include <cstddef>

#include "plot/lista.h"

namespace ombrelia {

// Calls v.punto(record), v.linea(record) and v.figura(index in Figure) for the primitives in the order they were added. A
// polyline comes as its START; its vertices and its end have no letter in the order.
template <class V>
void Percorri(const Lista &l, V &&v) {
    std::size_t punto = 0, linea = 0, figura = 0;
    const auto &f = l.Figure;
    for (const char tipo : l.Ordine) {
        if (tipo == 'P') v.punto(l.Punti[punto++]);
        else if (tipo == 'L') v.linea(l.Linee[linea++]);
        else {
            while (figura < f.size() && f[figura].Tipo == 'V' && f[figura].voce != Voce::START) ++figura;
            if (figura < f.size()) v.figura(figura++);
        }
    }
}

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
