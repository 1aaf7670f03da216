// The display list as plain text.
#include "plot/lista_testo.h"

#include <algorithm>
#include <initializer_list>

#include "core/testo.h"
#include "plot/percorso.h"
#include "plot/quadrante.h"

namespace ombrelia {

namespace {

// Scripts read y downward, as xLine and its like take it.
class ScrittoreLista {
public:
    explicit ScrittoreLista(const Lista &l) : lista(l) {
        t.reserve(l.Linee.size() * 112 + l.Punti.size() * 72 + l.Figure.size() * 128 + l.Testi.size() * 96);
    }

    void punto(const RecPunto &r) {
        t += 'P';
        numeri({r.X, Capovolta(r.Y)});
        fine({r.colore}, r.Id);
    }
    void linea(const RecLinea &r) {
        t += 'L';
        numeri({r.X1, Capovolta(r.Y1), r.X2, Capovolta(r.Y2)});
        fine({r.colore, r.Spessore}, r.Id);
    }
    void figura(std::size_t i) {
        scrivi(lista.Figure[i]);
        seguito(i + 1);
    }
    // Vertices and ends have no letter in the order: they follow the entry they stand behind.
    void seguito(std::size_t i) {
        const auto &f = lista.Figure;
        for (; i < f.size() && f[i].Tipo == 'V' && f[i].voce != Voce::START; ++i) scrivi(f[i]);
    }
    // Texts have no layer: the field stays empty.
    void testo(const RecTesto &r) {
        t += 'T';
        numeri({r.X, Capovolta(r.Y)});
        t += "\t\t";
        testo(r.Testo);
        t += '\n';
    }

    std::string t;

private:
    void scrivi(const RecFigura &r) {
        t += r.Tipo;
        if (r.Tipo == 'B') {
            numeri({r.X1, Capovolta(r.Y1), r.X2, Capovolta(r.Y2)});
            fine({r.colore, r.pieno ? 1 : 0}, r.Id);
        } else if (r.Tipo == 'C') {
            numeri({r.X1, Capovolta(r.Y1), r.X2, r.Y2});
            interi({r.colore, r.Riempimento});
            numeri({r.A, r.B});
            fine({}, r.Id);
        } else {
            t += r.voce == Voce::START ? "\tSTART" : r.voce == Voce::VERTEX ? "\tVERTEX" : "\tEND";
            numeri({r.X1, Capovolta(r.Y1)});
            fine({r.colore}, r.Id);
        }
    }
    void numeri(std::initializer_list<double> valori) {
        for (const double v : valori) {
            t += '\t';
            AggiungiNumero17(t, v);
        }
    }
    void interi(std::initializer_list<std::int32_t> valori) {
        for (const std::int32_t v : valori) {
            t += '\t';
            t += std::to_string(v);
        }
    }
    // Names and texts come from dictionaries and fields: a control character would make records of its own.
    void testo(std::string_view scritto) {
        const std::size_t qui = t.size();
        t += scritto;
        std::replace_if(t.begin() + static_cast<std::ptrdiff_t>(qui), t.end(), CarattereDiControllo, ' ');
    }
    void fine(std::initializer_list<std::int32_t> valori, IdNome id) {
        interi(valori);
        t += '\t';
        testo(lista.nomi.testo(id));
        t += '\n';
    }

    const Lista &lista;
};

}  // namespace

std::string ListaTesto(const Lista &lista) {
    ScrittoreLista s(lista);
    s.seguito(0);
    Percorri(lista, s);
    for (const RecTesto &r : lista.Testi) s.testo(r);
    return std::move(s.t);
}

}  // namespace ombrelia
