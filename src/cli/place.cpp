// Places by name.
#include "cli/place.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "core/testo.h"

namespace ombrelia::cli {

namespace {

constexpr std::size_t SCELTE = 20;  // places of an ambiguous name that are listed

int rifiuta(const std::string &motivo) {
    std::fprintf(stderr, "ombrelia place: %s\n", motivo.c_str());
    return 2;
}

bool sigla(const std::string &paese) {
    return paese.size() == 2 &&
           std::all_of(paese.begin(), paese.end(), [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); });
}

std::string manca() {
    return luoghi::Atlante::Comune().vuoto() ? "the table of places, luoghi.csv, is not where the program looks for its data"
                                             : "";
}

std::size_t lettere(const std::string &t) {
    return static_cast<std::size_t>(
        std::count_if(t.begin(), t.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

// Columns: name, country, latitude, longitude, meridian, zone.
std::string righe(const std::vector<const luoghi::Luogo *> &luoghi, const std::string &chiesto, std::string_view margine) {
    std::vector<std::vector<std::string>> celle;
    std::vector<std::size_t> larghe(6, 0);
    for (const luoghi::Luogo *l : luoghi) {
        std::string nome(luoghi::NomeChiesto(*l, chiesto));
        if (nome != l->nome) nome += " (" + std::string(l->nome) + ")";
        const std::string regione = l->regione.empty() ? "" : "-" + std::string(l->regione);
        celle.push_back({nome, std::string(l->paese) + regione, Formato(l->latitudine, "0.0000"),
                         Formato(l->longitudine, "0.0000"), TestoNumero(l->meridiano), std::string(l->fuso)});
        for (std::size_t i = 0; i < larghe.size(); ++i) larghe[i] = std::max(larghe[i], lettere(celle.back()[i]));
    }
    std::string t;
    for (const auto &riga : celle) {
        t += margine;
        for (std::size_t i = 0; i < riga.size(); ++i) {
            const std::string vuoto(larghe[i] - lettere(riga[i]), ' ');
            const bool numero = i >= 2 && i <= 4;
            t += (i ? "  " : "") + (numero ? vuoto + riga[i] : riga[i] + (i + 1 < riga.size() ? vuoto : ""));
        }
        t += '\n';
    }
    return t;
}

std::string citato(std::string_view t) {
    std::string c = "\"";
    for (const char x : t) {
        if (x == '"' || x == '\\') c += '\\';
        c += static_cast<unsigned char>(x) < 0x20 ? ' ' : x;
    }
    return c + '"';
}

std::string json(const std::vector<const luoghi::Luogo *> &luoghi) {
    std::string t = "[";
    for (const luoghi::Luogo *l : luoghi) {
        t += (t.size() > 1 ? ",\n {" : "\n {") + ("\"name\": " + citato(l->nome)) + ", \"country\": " + citato(l->paese);
        if (!l->regione.empty()) t += ", \"region\": " + citato(l->regione);
        t += ", \"latitude\": " + TestoNumero(l->latitudine) + ", \"longitude\": " + TestoNumero(l->longitudine) +
             ", \"meridian\": " + TestoNumero(l->meridiano) + ", \"zone\": " + citato(l->fuso) +
             ", \"population\": " + std::to_string(l->popolazione) + "}";
    }
    return t + (luoghi.empty() ? "]\n" : "\n]\n");
}

std::string nessuno(const std::string &nome, const std::string &paese) {
    return "no place called " + nome.substr(0, 100) + (paese.empty() ? "" : " in " + paese);
}

}  // namespace

const luoghi::Luogo *TrovaLuogo(const std::string &nome, const std::string &paese, std::string &errore) {
    errore = manca();
    if (errore.empty() && !paese.empty() && !sigla(paese)) errore = "--country " + paese + ": two letters, as in IT";
    if (!errore.empty()) return nullptr;
    luoghi::Scelta scelta = luoghi::Atlante::Comune().Scegli(nome, paese);
    if (scelta.luogo) return scelta.luogo;
    errore =
        scelta.omonimi
            ? nome + " is the name of several places; say which by --country or as \"NAME, XX\", or give latitude and longitude:"
            : nessuno(nome, paese) + (scelta.tra.empty() ? "" : "; there are:");
    if (scelta.tra.size() > SCELTE) scelta.tra.resize(SCELTE);
    if (!scelta.tra.empty()) errore += "\n" + righe(scelta.tra, nome, "  ");
    if (errore.ends_with('\n')) errore.pop_back();
    return nullptr;
}

int Place(int argc, char **argv) {
    std::string nome, paese;
    bool inJson = false;
    for (int i = 0; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--json") {
            inJson = true;
        } else if (a == "--country") {
            if (i + 1 >= argc) return rifiuta("--country needs two letters, as in IT");
            paese = argv[++i];
            if (!sigla(paese)) return rifiuta("--country " + paese + ": two letters, as in IT");
        } else if (a.starts_with("--")) {
            return rifiuta("unknown option " + a + "; see ombrelia place --help");
        } else {
            nome += (nome.empty() ? "" : " ") + a;  // a name of several words needs no quotes
        }
    }
    if (SenzaBlanks(nome).empty()) return rifiuta("which place? as in ombrelia place Torino");
    if (const std::string e = manca(); !e.empty()) return rifiuta(e);
    const luoghi::Trovati trovati = luoghi::Atlante::Comune().Cerca(nome, paese);
    const std::string testo = inJson ? json(trovati.luoghi) : righe(trovati.luoghi, nome, "");
    std::fwrite(testo.data(), 1, testo.size(), stdout);
    if (trovati.luoghi.empty()) {
        std::fprintf(stderr, "ombrelia place: %s\n", nessuno(nome, paese).c_str());
        return 1;
    }
    if (trovati.come != luoghi::Somiglianza::Uguale)
        std::fprintf(stderr, "ombrelia place: %s; these come near it\n", nessuno(nome, paese).c_str());
    return 0;
}

}  // namespace ombrelia::cli
