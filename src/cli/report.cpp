// A report from options.
#include "cli/report.h"

#include <cstdio>
#include <string_view>

#include "app/comandi.h"
#include "app/rapporti.h"
#include "cli/consegna.h"
#include "cli/disegno.h"
#include "gnomonica/longitudine.h"
#include "reports/tabulato.h"

namespace ombrelia::cli {

namespace {

using app::VoceRapporto;

struct ArgomentiReport {
    const VoceRapporto *voce = nullptr;
    Campi campi;
    std::string uscita = "-";
    std::string (*forma)(const Rapporto &) = reports::RapportoTesto;
    bool stampa = false;
};

std::string scegli(const std::string &nome, ArgomentiReport &r) {
    if (r.voce) return "one report at a time: " + std::string(r.voce->nome) + " or " + nome;
    for (const VoceRapporto &v : app::ElencoRapporti())
        if (v.nome == nome) r.voce = &v;
    return r.voce ? std::string() : "unknown report " + nome + "; they are:\n" + NomiRapporti();
}

std::string leggi(int argc, char **argv, ArgomentiReport &r) {
    Opzioni o{.comando = "report", .righe = {}, .parola = [&r](const std::string &p) { return scegli(p, r); }};
    r.campi.opzioni(o);
    for (const reports::FormaRapporto &f : reports::FormeRapporto())
        o.righe.push_back({f.opzione, 0, {}, [&r, &f](const Valori &) {
                               r.forma = f.scrivi;
                               return std::string();
                           }});
    o.righe.push_back(Bandiera("--print", r.stampa));
    o.righe.push_back(Testo("-o", "a file", r.uscita));
    o.righe.push_back(Testo("--out", "a file", r.uscita));
    if (std::string e = o.leggi(argc, argv); !e.empty()) return e;
    return r.voce ? std::string() : "no report named; they are:\n" + NomiRapporti();
}

// Why a report did not open.
std::string perche(const Sessione &s, const VoceRapporto &v) {
    const std::string chi(v.nome);
    if (Val(s.in.txtLAT) < 0)
        return chi + ": txtLAT reads " + s.in.txtLAT +
               ", tables are for northern latitudes only: give the latitude "
               "without its sign and mirror the numbers left to right";
    if (Val(s.in.txtInc) != 0) return chi + ": txtInc reads " + s.in.txtInc + ", this report is for walls only (txtInc 0)";
    return chi + ": the fields give no report";
}

// The report under a head that names the zone's meridian, when it is another than the start's.
Rapporto intestato(const Sessione &s, Rapporto r) {
    if (!AltroMeridiano(s.v)) return r;
    RigaRapporto testa;
    testa.voci = {s.Traduci("Longitudine del meridiano del fuso:  "), reports::Unito(s.v.meridiano), " °"};
    r.righe.insert(r.righe.begin(), std::move(testa));
    return r;
}

}  // namespace

std::string NomiRapporti() {
    std::string t;
    for (const VoceRapporto &v : app::ElencoRapporti()) {
        t.append("  ").append(v.nome).append(13 - v.nome.size(), ' ');
        t.append(v.contenuto).append("\n");
    }
    return t;
}

int Report(int argc, char **argv) {
    const auto rifiuta = [](const std::string &motivo) { return Rifiuta("report", motivo); };
    ArgomentiReport r;
    if (const std::string e = leggi(argc, argv, r); !e.empty()) return rifiuta(e);
    SessioneDiComando comando;
    Sessione &s = comando.s;
    if (const std::string e = r.campi.Applica(s); !e.empty()) return rifiuta(e);
    if (r.voce->ckFunzione >= 0) s.in.ckFunzione = r.voce->ckFunzione;
    if (r.voce->controllo == NESSUN_CONTROLLO) app::ApriRapporto(s, *r.voce);
    for (const NomeControllo id : {r.voce->prima, r.voce->controllo})
        if (id != NESSUN_CONTROLLO && app::Premi(s, id) == app::Esito::Disabilitato) return rifiuta(perche(s, *r.voce));
    if (s.rapporti.aperto.modulo != r.voce->modulo) return rifiuta(perche(s, *r.voce));
    if (r.stampa && !app::StampaRapporto(s)) return rifiuta(std::string(r.voce->nome) + " has no printed form");
    const std::string errore = Consegna(r.uscita, r.forma(intestato(s, r.stampa ? s.rapporti.stampato : s.rapporti.aperto)));
    return errore.empty() ? 0 : rifiuta(errore);
}

}  // namespace ombrelia::cli
