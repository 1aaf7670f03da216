// The display list: what a dial is once it is drawn. World coordinates are the dial's, metres from the foot, y upward; the list
// knows nothing of scale, shift or device.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/colori.h"
#include "plot/pretesa.h"

namespace ombrelia {

// Layer names stand once; a record keeps a number. 0 is the empty name.
using IdNome = std::uint32_t;

class Nomi {
public:
    Nomi() { (void)id(""); }
    Nomi(Nomi &&) = default;
    Nomi &operator=(Nomi &&) = default;
    // The index points into its own names: a copy makes its own.
    Nomi(const Nomi &altri) {
        for (const std::string &nome : altri.nomi_) (void)id(nome);
    }
    Nomi &operator=(const Nomi &altri) { return *this = Nomi(altri); }
    // The number of a name, new or known; it holds for the life of the list, across svuota too.
    IdNome id(std::string_view nome) { return !nomi_.empty() && nomi_[ultimo_] == nome ? ultimo_ : cerca(nome); }
    [[nodiscard]] const std::string &testo(IdNome id) const { return nomi_[id]; }
    [[nodiscard]] std::size_t quanti() const { return nomi_.size(); }

private:
    IdNome cerca(std::string_view nome);
    IdNome ultimo_ = 0;             // asked for last: engines draw a layer at a time
    std::deque<std::string> nomi_;  // a deque: the keys of the index point into it
    std::unordered_map<std::string_view, IdNome> indice_;
};

struct RecLinea {
    double X1, Y1, X2, Y2;
    Colore colore;
    std::int32_t Spessore;
    IdNome Id;
};
static_assert(sizeof(RecLinea) <= 48);

struct RecPunto {
    double X, Y;
    Colore colore;
    IdNome Id;
};

enum class Voce : std::uint8_t { START, VERTEX, END };  // entries of a polyline

// Boxes, circles and polyline entries share one record and one array.
struct RecFigura {
    char Tipo;      // 'B', 'C' or 'V'
    Voce voce;      // of a polyline
    bool pieno;     // of a box: the filled flag
    double X1, Y1;  // a corner; the centre; a vertex
    double X2, Y2;  // the other corner; radius and aspect; 0
    double A, B;    // start and end of an arc, radians; an end of 0 means a whole circle
    Colore colore;
    Colore Riempimento;  // fill of a circle, negative for none
    IdNome Id;
};

struct RecTesto {
    double X, Y;
    std::string Testo;  // as shown: at most 100 characters, without padding
    Colore colore = 0;  // in which it is painted
};

// A selected tile: its number and its top left corner in metres from the sheet's corner; its outline, the first of four
// lines, and its text in the list.
struct RecArea {
    int Pagina;
    double X, Y;
    std::size_t linea, testo;
};

struct Lista {
    std::vector<RecLinea> Linee;
    std::vector<RecPunto> Punti;
    std::vector<RecFigura> Figure;
    std::vector<RecTesto> Testi;
    std::vector<RecArea> Aree;
    std::string Ordine;  // the kind of each primitive in the order it was added: P, L, V, B or C
    Nomi nomi;
    std::vector<std::uint8_t> trattini;  // of each line, where lines have any: see Dispositivo::Trattini; empty: all are plain
    std::vector<Pretesa> pretese;        // in the order of their records; ranges do not overlap

    void svuota();
    // Room for as many lines and points as another list holds.
    void riserva(const Lista &come);
    // Takes a selected tile out, with its outline and its number.
    void togliArea(std::size_t quale);
    // All of it, for who reads it while the drawing goes on.
    [[nodiscard]] Lista copia() const;

    // Index in Figure of the last START of a polyline's name; none when there is none. Two polylines of one name are
    // not told apart: the later stands for both.
    [[nodiscard]] std::optional<std::size_t> TrovaStart(IdNome id) const;
};

}  // namespace ombrelia
