// The engines and reports against a calculation written apart from them (tools/trascrizione, which makes the table).
#include <filesystem>

#include "plot/lista_testo.h"
#include "reports/rapporto_prova.h"

namespace ombrelia {
namespace {

// Whether a record's letter is one that a row's letter speaks of.
bool come(char record, char tipo) { return tipo == 'G' ? record == 'L' || record == 'C' : record == (tipo == 'N' ? 'T' : tipo); }

// The numbers of each record that a row speaks of: L and P lines and points, C circles, by "*layer" or colour; G the places of
// strokes without an extent, T# hours written on the sheet, N@x y the number written at a place, N=text
// the number behind a label.
std::vector<std::vector<double>> registrati(const prova::Banco &b, const std::string &quali) {
    std::vector<std::vector<double>> trovati;
    const char tipo = quali[0];
    const std::size_t numeri = tipo == 'L' || tipo == 'G' ? 4 : tipo == 'C' ? 3 : 2;
    for (const std::string &riga : prova::Divisi(ListaTesto(b.lista()), '\n')) {
        const auto campi = prova::Divisi(riga, '\t');
        if (campi.size() < numeri + 3 || !come(campi[0][0], tipo)) continue;
        std::vector<double> n;
        for (std::size_t i = 1; i <= numeri; ++i) n.push_back(prova::Numero(campi[i]));
        const std::string strato = campi.back(), testo = SenzaBlanks(strato);
        bool nostro = false;
        if (tipo == 'G') {
            nostro = campi[0] == "L" ? n[0] == n[2] && n[1] == n[3] : n[2] == 0;
            n.resize(2);
            nostro = nostro && (trovati.empty() || trovati.back() != n);
        } else if (tipo == 'T') {
            n.push_back(prova::Numero(testo));
            nostro = !testo.empty() && testo.find_first_not_of("0123456789") == std::string::npos && n[2] <= 24;
        } else if (tipo == 'N') {
            const std::string che = quali.substr(2) + (quali[1] == '=' ? " = " : "");
            nostro = quali[1] == '=' ? strato.starts_with(che) : TestoNumero(n[0]) + ' ' + TestoNumero(n[1]) == che;
            n = {prova::Numero(quali[1] == '=' && nostro ? strato.substr(che.size()) : testo)};
        } else {
            const std::size_t colore = tipo == 'C' ? 5 : numeri + 1;
            nostro = quali[1] == '*' ? strato == quali.substr(2) : campi[colore] == quali.substr(1) && strato.empty();
            if (quali[1] == '*') n.push_back(prova::Numero(campi[colore]));  // a layer's lines may differ in colour
        }
        if (nostro) trovati.push_back(std::move(n));
    }
    return trovati;
}

std::vector<std::vector<double>> avuti(prova::BancoRapporti &b, const std::string &premi, const std::string &quali) {
    if (premi == "cmdTrasforma") {
        b.premi(premi);
        return {{prova::Numero(b.s.in.*TavolaControlli()[static_cast<std::size_t>(TrovaControllo(quali))].testo)}};
    }
    if (!quali.starts_with("Form") && (premi == "cmdData" || premi == "optHorae"))
        return {{prova::Numero(SenzaBlanks(prova::RigaCon(b.apri(premi), quali).substr(quali.size() + 1)))}};
    if (!quali.starts_with("Form")) {
        if (premi == "punto" || premi.starts_with("ck")) b.spunta(premi);
        else b.premi(premi);
        return registrati(b, quali);
    }
    std::vector<std::vector<double>> righe;
    for (const auto &celle : prova::RigheTabella(b.apri(premi), 0)) {
        auto &n = righe.emplace_back();
        for (std::size_t i = 0; i < std::min<std::size_t>(celle.size(), 6); ++i) n.push_back(prova::Numero(celle[i]));
    }
    return righe;
}

// Rows of the direct engine, of walls, of the analytic engine, and whatever is no run of one.
enum class Parte { Diretta, Parete, Analitica, Altro };
Parte parteDi(const std::vector<std::string> &riga) {
    if (riga.at(0) == "cmdEqui") return Parte::Analitica;
    if (riga[0] != "cmdRun") return Parte::Altro;
    return riga.at(1).starts_with("CkUNI") ? Parte::Parete : Parte::Diretta;
}

void confronta(Parte parte, int almeno) {
    const std::filesystem::path prima = std::filesystem::current_path();
    std::filesystem::current_path(OMBRELIA_RADICE "/data");  // where the world lies
    int confrontati = 0;
    for (const auto &r : prova::Tabella("trascrizione.txt")) {
        if (parteDi(r) != parte || testing::Test::HasFailure()) continue;
        prova::BancoRapporti b(r.at(1));
        const auto trovati = avuti(b, r[0], r.at(2));
        EXPECT_EQ(std::to_string(trovati.size()), r.at(3)) << r[2] << " of " << r[1];
        for (const std::string &voce : prova::Divisi(r.at(4), ',')) {
            const auto parti = prova::Divisi(SenzaBlanks(voce), ' ');
            const std::size_t quale = std::stoul(parti.at(0));
            if (quale >= trovati.size() || trovati[quale].size() + 1 != parti.size()) {
                ADD_FAILURE() << r[2] << ' ' << voce << " of " << r[1] << ": not there";
                continue;
            }
            for (std::size_t i = 0; i + 1 < parti.size(); ++i) {
                const double atteso = prova::Numero(parti[i + 1]);
                EXPECT_LE(std::fabs(trovati[quale][i] - atteso), 1e-9 * (1 + std::fabs(atteso)))
                    << r[2] << ' ' << voce << " of " << r[1] << ": " << trovati[quale][i];
                ++confrontati;
            }
        }
    }
    std::filesystem::current_path(prima);
    std::printf("%d numbers of a second calculation\n", confrontati);
    EXPECT_GT(confrontati, almeno);
}

TEST(Trascrizione, Diretta) { confronta(Parte::Diretta, 2000); }
TEST(Trascrizione, Parete) { confronta(Parte::Parete, 1500); }
TEST(Trascrizione, Analitica) { confronta(Parte::Analitica, 400); }
TEST(Trascrizione, Altro) { confronta(Parte::Altro, 150); }

}  // namespace
}  // namespace ombrelia
