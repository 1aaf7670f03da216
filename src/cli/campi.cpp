// Fields and boxes from options.
#include "cli/campi.h"

#include <algorithm>
#include <filesystem>
#include <limits>

#include "app/comandi.h"
#include "app/progetto.h"
#include "cli/place.h"
#include "core/testo.h"
#include "luoghi/angolo.h"
#include "sessione/limiti.h"

namespace ombrelia::cli {

namespace {

std::string motivo(const app::Esito &e, const std::string &nome) {
    if (e == app::Esito::Disabilitato) return nome + " is disabled: it works on walls only (txtInc must read 0)";
    return e ? std::string() : nome + " can't take that";
}

std::string leggiAngolo(const luoghi::CampoAngolo &campo, std::string &testo) {
    const luoghi::AngoloLetto letto = luoghi::LeggiAngolo(testo, campo);
    if (letto.buono()) {
        testo = letto.testo;
        return {};
    }
    std::string e = testo.substr(0, 80) + ": " + std::string(luoghi::MotivoInglese(letto.intoppo));
    if (letto.intoppo == luoghi::Intoppo::FuoriCampo)
        e += ": it goes from " + TestoNumero(campo.da) + " to " + TestoNumero(campo.a);
    return e;
}

// What a field gets out of what was written.
std::string leggiCampo(const Controllo &riga, std::string &testo) {
    if (riga.classe == Classe::Testo && riga.testo)
        if (const luoghi::CampoAngolo *angolo = luoghi::TrovaCampoAngolo(riga.nome)) return leggiAngolo(*angolo, testo);
    if (testo.find('"') != std::string::npos) return testo + ": a field can't hold a double quote";
    // The filter of the map is the one box of the window that holds no number.
    if (riga.classe != Classe::Testo || !riga.testo || riga.testo == &DialInputs::Filtertxt) return {};
    constexpr double TUTTO = std::numeric_limits<double>::max();
    double n = 0;
    if (std::string e = LeggiNumero(testo, -TUTTO, TUTTO, n); !e.empty()) return e;
    std::replace(testo.begin(), testo.end(), ',', '.');
    return {};
}

}  // namespace

void Campi::opzioni(Opzioni &o) {
    o.righe.push_back(Testo("--project", "a project file", progetto));
    o.righe.push_back(Testo("--place", "a town, as in Torino", luogo));
    o.righe.push_back(Testo("--country", "two letters, as in IT", paese));
    o.righe.push_back({"--set", 1, "FIELD=TEXT, as in txtLAT=45.7",
                       [this](const Valori &v) -> std::string {
                           const std::size_t uguale = v[0].find('=');
                           if (uguale == std::string::npos) return v[0] + ": write FIELD=TEXT, as in --set txtLAT=45.7";
                           testi.emplace_back(v[0].substr(0, uguale), v[0].substr(uguale + 1));
                           return {};
                       },
                       true});
    for (const auto &[nome, valore] : {std::pair{"--check", 1}, {"--uncheck", 0}})
        o.righe.push_back({nome, 1, "a box, as in ck_Italiche",
                           [this, valore = valore](const Valori &v) {
                               caselle.emplace_back(v[0], valore);
                               return std::string();
                           },
                           true});
    o.righe.push_back({"--corrected", 0, {}, [this](const Valori &) {
                           caselle.emplace_back("ckCorretta", 1);
                           return std::string();
                       }});
}

std::string Campi::Applica(Sessione &s) const {
    s.originaleFresco = true;
    s.tavolo.recordMassimi = RecordInMemoria();
    if (std::error_code e; !progetto.empty() && !std::filesystem::exists(progetto, e)) return progetto + ": no such file";
    if (!progetto.empty() && !app::ApriProgetto(s, progetto)) return progetto + ": no project file, or unreadable";
    if (luogo.empty() && !paese.empty()) return "--country goes with --place";
    if (!luogo.empty()) {
        std::string errore;
        const luoghi::Luogo *l = TrovaLuogo(luogo, paese, errore);
        if (!l) return errore;
        const struct {
            NomeControllo id;
            double gradi;
        } campi[] = {{"txtLAT", l->latitudine}, {"txtLonG", l->longitudine}, {"txtMeridiano", l->meridiano}};
        for (const auto &[id, gradi] : campi)
            if (std::string e = motivo(app::Imposta(s, id, TestoNumero(gradi)), std::string(RigaDi(id).nome)); !e.empty())
                return e;
    }
    for (auto [nome, testo] : testi) {
        const auto id = CercaControllo(nome);
        if (!id) return "unknown field " + nome;
        if (const std::string e = leggiCampo(RigaDi(*id), testo); !e.empty()) return "--set " + nome + ": " + e;
        if (std::string e = motivo(app::Imposta(s, *id, testo), nome); !e.empty()) return e;
    }
    for (const auto &[nome, valore] : caselle) {
        const auto id = CercaControllo(nome);
        if (!id) return "unknown box " + nome;
        if (std::string e = motivo(app::Spunta(s, *id, valore), nome); !e.empty()) return e;
    }
    return {};
}

}  // namespace ombrelia::cli
