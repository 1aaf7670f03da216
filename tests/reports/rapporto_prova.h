// What the tests of the reports share: a report opened on fields of one's choice, its lines and rows.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "comuni/prova.h"
#include "reports/rapporti.h"

namespace ombrelia::prova {

inline std::vector<std::string> Righe(const Rapporto &r) {
    std::vector<std::string> righe;
    const std::string testo = reports::RapportoTesto(r);
    for (std::size_t i = 0; i < testo.size();) {
        const std::size_t fine = testo.find('\n', i);
        righe.push_back(testo.substr(i, fine - i));
        i = fine + 1;
    }
    return righe;
}

// Cells of the rows of a report's table n, as printed, without blanks.
inline std::vector<std::vector<std::string>> RigheTabella(const Rapporto &r, int n) {
    std::vector<std::vector<std::string>> righe;
    for (const RigaRapporto &riga : r.righe) {
        if (riga.tabella != n || riga.genere != Genere::Dati) continue;
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

// A bench with the clock stopped and a report opened by pressing a control.
class BancoRapporti : public Banco {
public:
    explicit BancoRapporti(Campi campi = {}, std::initializer_list<std::string_view> caselle = {}) : Banco(campi, caselle) {
        s.rapporti.orologio = [] {
            std::tm t{};
            t.tm_year = 126;
            t.tm_mon = 5;
            t.tm_mday = 21;
            t.tm_hour = 9;
            t.tm_min = 4;
            t.tm_sec = 7;
            return t;
        };
    }
    const Rapporto &apri(std::string_view controllo) {
        premi(controllo);
        return s.rapporti.aperto;
    }
    const Rapporto &stampa() {
        s.rapporti.stampa(s);
        return s.rapporti.stampato;
    }
};

}  // namespace ombrelia::prova
