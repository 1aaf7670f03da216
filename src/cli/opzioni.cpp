// Reading of options.
#include "cli/opzioni.h"

#include <algorithm>
#include <cstdio>
#include <limits>

#include "core/testo.h"

namespace ombrelia::cli {

bool Opzioni::prendi(int argc, char **argv, int &i, std::vector<std::string_view> &date, std::string &errore) const {
    const std::string a = argv[i];
    const auto riga = std::find_if(righe.begin(), righe.end(), [&](const Opzione &o) { return o.nome == a; });
    if (riga == righe.end()) return false;
    if (!riga->ancora && std::find(date.begin(), date.end(), riga->nome) != date.end()) {
        errore = a + " stands twice";
        return true;
    }
    date.push_back(riga->nome);
    if (static_cast<std::size_t>(argc - i - 1) < riga->valori) {
        errore = a + " needs " + std::string(riga->cosa);
        return true;
    }
    const Valori valori(argv + i + 1, argv + i + 1 + riga->valori);
    i += static_cast<int>(riga->valori);
    if (const std::string e = riga->prendi(valori); !e.empty()) errore = a + " " + e;
    return true;
}

std::string Opzioni::leggi(int argc, char **argv) const {
    std::vector<std::string_view> date;
    for (int i = 0; i < argc; ++i) {
        std::string errore;
        if (!prendi(argc, argv, i, date, errore)) {
            const std::string a = argv[i];
            const bool opzione = a.starts_with("-") && a != "-";
            // A project that stands where a file to write would: it must not be written over.
            if (a.ends_with(".omb") &&
                std::any_of(righe.begin(), righe.end(), [](const Opzione &o) { return o.nome == "--project"; }))
                return a + ": a project is given as --project " + a;
            errore = opzione || !parola ? "unknown option " + a + "; see ombrelia " + comando + " --help" : parola(a);
        }
        if (!errore.empty()) return errore;
    }
    return {};
}

Opzione Testo(std::string_view nome, std::string_view cosa, std::string &dove) {
    return {nome, 1, cosa, [&dove](const Valori &v) {
                dove = v[0];
                return std::string();
            }};
}

Opzione Bandiera(std::string_view nome, bool &dove) {
    return {nome, 0, {}, [&dove](const Valori &) {
                dove = true;
                return std::string();
            }};
}

std::string LeggiNumero(std::string_view testo, double da, double a, double &numero) {
    std::string t = SenzaBlanks(testo);
    std::replace(t.begin(), t.end(), ',', '.');
    std::size_t i = t.find_first_of("+-") == 0 ? 1 : 0, cifre = 0, punti = 0;
    for (; i < t.size() && ((t[i] >= '0' && t[i] <= '9') || t[i] == '.'); ++i) ++(t[i] == '.' ? punti : cifre);
    bool forma = cifre > 0 && punti <= 1;
    if (forma && i < t.size()) {
        std::size_t k = i + 1;
        if (k < t.size() && (t[k] == '+' || t[k] == '-')) ++k;
        forma = (t[i] == 'e' || t[i] == 'E') && k < t.size() && t.find_first_not_of("0123456789", k) == std::string::npos;
    }
    if (!forma) return std::string(testo) + " is no number";
    const Valore v = Val(t);
    if (!(v >= da && v <= a)) {
        const std::string fuori = std::string(testo) + " is out of range";
        return v.esiste() ? fuori + ": it goes from " + TestoNumero(da) + " to " + TestoNumero(a) : fuori;
    }
    numero = v.v;
    return {};
}

bool Numero(std::string_view testo, double &numero) {
    constexpr double TUTTO = std::numeric_limits<double>::max();
    return LeggiNumero(testo, -TUTTO, TUTTO, numero).empty();
}

int Rifiuta(std::string_view comando, const std::string &motivo) {
    std::fprintf(stderr, "ombrelia %.*s: %s\n", static_cast<int>(comando.size()), comando.data(), motivo.c_str());
    return 2;
}

}  // namespace ombrelia::cli
