// A device that keeps what it is told, as one line of text an operation, in rounded device units.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "core/testo.h"
#include "plot/dispositivo.h"

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
    void NuovaPagina() override { atti.push_back("pagina"); }
    void FineDocumento() override { atti.push_back("fine"); }

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

}  // namespace ombrelia::prova
