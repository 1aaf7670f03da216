// What the tests of the reports share: a report opened on fields of one's choice, its lines and rows.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "app/rapporti.h"
#include "comuni/prova.h"
#include "reports/rapporti.h"

namespace ombrelia::prova {

inline std::vector<std::string> Righe(const Rapporto &r) {
    auto righe = Divisi(reports::RapportoTesto(r), '\n');
    if (!righe.empty()) righe.pop_back();  // each line has its end
    return righe;
}

// Cells of the rows of a report's table n, as printed, without blanks.
inline std::vector<std::vector<std::string>> RigheTabella(const Rapporto &r, int n) {
    std::vector<std::vector<std::string>> righe;
    for (const RigaRapporto &riga : r.righe) {
        if (riga.tabella != n || riga.genere != GenereRiga::Dati) continue;
        righe.emplace_back();
        for (const Elemento &e : riga.voci)
            if (!e.ornamento) righe.back().push_back(SenzaBlanks(e.testo));
    }
    return righe;
}

inline double Numero(const std::string &testo) { return Val(testo).v; }

// The line that begins with a label; empty when there is none.
inline std::string RigaCon(const Rapporto &r, std::string_view inizio) {
    for (const std::string &riga : Righe(r))
        if (riga.starts_with(inizio)) return riga;
    return {};
}

// A bench with the clock stopped at 21 June 2026, 9:04:07, and a report opened by pressing a control.
class BancoRapporti : public Banco {
public:
    // Fields as txtInc=0;txtDec=10; a name alone is a box to tick or a button to press.
    explicit BancoRapporti(const std::string &campi = {}) {
        s.rapporti.orologio = [] { return std::tm{7, 4, 9, 21, 5, 126, 0, 0, 0, 0, nullptr}; };
        scrivi(campi);
    }
    void scrivi(const std::string &campi) {
        for (const std::string &c : Divisi(campi, ';'))
            if (const std::size_t i = c.find('='); i != std::string::npos) imposta({{c.substr(0, i), c.substr(i + 1)}});
            else if (c.starts_with("cmd")) premi(c);
            else spunta(c);
    }
    const Rapporto &apri(std::string_view controllo) { return premi(controllo), s.rapporti.aperto; }
    const Rapporto &stampa() { return app::StampaRapporto(s), s.rapporti.stampato; }
};

}  // namespace ombrelia::prova
