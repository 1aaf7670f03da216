// A device that keeps what it is told, as one line of text an operation, in rounded device units; and drawings
// written as steps.
#pragma once

#include <algorithm>
#include <cctype>
#include <cmath>
#include <string>
#include <vector>

#include "core/testo.h"
#include "plot/dispositivo.h"
#include "plot/tavolo.h"

namespace ombrelia::prova {

class Registratore : public Dispositivo {
public:
    std::vector<std::string> atti;

    void Cls() override { atti.push_back("Cls"); }
    void Linea(double x1, double y1, double x2, double y2, Colore c, int spessore) override {
        atti.push_back(numeri("L", {x1, y1, x2, y2, double(c), double(spessore)}));
    }
    void Riquadro(double x1, double y1, double x2, double y2, Colore c, bool pieno) override {
        atti.push_back(numeri("B", {x1, y1, x2, y2, double(c)}) + (pieno ? " pieno" : " vuoto"));
    }
    void Punto(double x, double y, Colore c) override { atti.push_back(numeri("P", {x, y, double(c)})); }
    void Cerchio(double x, double y, double r, Colore c, Colore f, double a, double b, double aspetto) override {
        atti.push_back(numeri("C", {x, y, r, double(c), double(f), a, b, aspetto}));
    }
    void Testo(double x, double y, std::string_view testo, Colore c) override {
        atti.push_back(numeri("T", {x, y, double(c)}).append(" ").append(testo));
    }
    void Tratteggio(bool si) override { atti.push_back(si ? "punteggiata" : "continua"); }

private:
    static std::string numeri(const char *atto, std::initializer_list<double> valori) {
        std::string t = atto;
        for (const double v : valori) {
            t += ' ';
            AggiungiNumero(t, std::round(v * 100) / 100);
        }
        return t;
    }
};

using Atti = std::vector<std::string>;

// Draws steps divided by ";": a letter, its numbers ("no": no value) and the rest as a name.
inline void Disegna(Tavolo &t, std::string_view passi) {
    constexpr std::string_view SEGNI = "LPBCTVDSEMFKAZNXO", QUANTI = "53682300024100100";
    const auto prendi = [](std::string_view &da, char fine) {
        const std::size_t n = std::min(da.find(fine), da.size());
        const std::string pezzo = SenzaBlanks(da.substr(0, n));
        da.remove_prefix(std::min(n + 1, da.size()));
        return pezzo;
    };
    while (!passi.empty()) {
        const std::string passo = prendi(passi, ';');
        const char segno = passo.at(0);
        std::string_view resto = std::string_view(passo).substr(std::min<std::size_t>(2, passo.size()));
        std::vector<Valore> n(8, 0.0);
        for (std::size_t i = 0; i < static_cast<std::size_t>(QUANTI.at(SEGNI.find(segno)) - '0'); ++i) {
            const std::string parola = prendi(resto, ' ');
            n[i] = parola == "no" ? Valore::nessuno() : Val(parola);
        }
        const auto c = [&n](std::size_t i) { return static_cast<Colore>(n[i].v); };
        if (segno == 'L') t.xLine(n[0], n[1], n[2], n[3], c(4), resto);
        else if (segno == 'P') t.xPset(n[0], n[1], c(2), resto);
        else if (segno == 'B') t.xBox(n[0], n[1], n[2], n[3], c(4), c(5) != 0, resto);
        else if (segno == 'C') t.xCircle(n[0], n[1], n[2], c(3), c(4), n[5], n[6], n[7], resto);
        else if (segno == 'T') t.Dati(resto, n[0], n[1]);
        else if (segno == 'D') t.Dati(resto);
        else if (segno == 'S') t.xPlineStart(resto);
        else if (segno == 'V') t.xPLineVertex(n[0], n[1], c(2), resto);
        else if (segno == 'E') t.xPlineEnd(resto);
        else if (segno == 'M') t.FattoreX = n[0].v, t.FattoreY = n[1].v;
        else if (segno == 'F') t.QuadranteL(n[0].v), t.QuadranteH(n[1].v), t.ShiftX(n[2].v), t.ShiftY(n[3].v);
        else if (segno == 'K') t.Scala(c(0));
        else if (segno == 'A') t.Assi();
        else if (segno == 'N') t.ForeColor = c(0);
        else if (segno == 'X') t.specchiaArchi = true;
        else if (segno == 'O') t.xPlotA4();
        else t.Clear();
    }
}

}  // namespace ombrelia::prova
