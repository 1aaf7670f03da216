// Joins the engines' tables of features by box.
#include "app/significati.h"

#include <algorithm>

#include "analytic/analitica.h"
#include "controlli/controlli.h"
#include "direct/diretta.h"
#include "vertical/piana.h"

namespace ombrelia::app {

std::vector<CasellaSpiegata> CaselleSpiegate() {
    std::vector<CasellaSpiegata> tutte;
    for (const auto &motore : {direct::Significati(), vertical::Significati(), analytic::Significati()})
        for (const SignificatoCasella &s : motore) {
            const auto &righe = TavolaControlli();
            const auto c = std::find_if(righe.begin(), righe.end(), [&](const Controllo &r) { return r.casella == s.casella; });
            auto qui = std::find_if(tutte.begin(), tutte.end(), [&](const CasellaSpiegata &x) { return x.nome == c->nome; });
            if (qui == tutte.end()) qui = tutte.insert(qui, {c->nome, {}});
            if (std::find(qui->significati.begin(), qui->significati.end(), s.significato) == qui->significati.end())
                qui->significati.push_back(s.significato);
        }
    return tutte;
}

}  // namespace ombrelia::app
