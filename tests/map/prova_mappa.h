// A session for the map's tests: a horizontal dial at latitude 45, 12 East, with a frame and a filter that keep everything.
#pragma once

#include <string>
#include <vector>

#include "comuni/prova.h"
#include "core/file.h"
#include "map/mappa.h"

namespace ombrelia {

struct UtenteMappa : prova::UtenteDiProva {
    std::vector<bool> attese;
    void Puntatore(bool attesa) override { attese.push_back(attesa); }
};

struct BancoMappa {
    UtenteMappa utente;
    Sessione s{utente};
    BancoMappa() {
        s.in.txtLAT = "45", s.in.txtLonG = "-12", s.in.txtDec = "0", s.in.txtInc = "90", s.in.TxtStilo = ".05";
        s.in.txtX0 = s.in.txtY1 = "-1000000", s.in.txtX1 = s.in.txtY0 = "1000000";
        s.in.Filtertxt = "1000000";
    }
    // Lines of "mondo.csv", loaded.
    void mondo(const std::string &testo) {
        s.mondo = LeggiMondo(testo, Val(s.in.txtLonG));
        s.in.cmbStati = " World";
    }
    [[nodiscard]] const std::vector<RecLinea> &linee() const { return s.tavolo.lista().Linee; }
};

// The file that comes with the program, for Greenwich.
inline Mondo MondoSpedito() { return LeggiMondo(LeggiFile(OMBRELIA_RADICE "/data/mondo.csv", 32u << 20).value_or(""), 0); }

}  // namespace ombrelia
