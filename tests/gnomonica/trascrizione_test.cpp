// The engines and reports against a calculation written apart from them (tools/trascrizione, which makes the table).
#include "plot/lista_testo.h"
#include "reports/rapporto_prova.h"

namespace ombrelia {
namespace {

// The numbers of each record that a row speaks of.
std::vector<std::vector<double>> registrati(const prova::Banco &b, const std::string &quali) {
    std::vector<std::vector<double>> trovati;
    const std::size_t numeri = quali[0] == 'L' ? 4 : 2;
    for (const std::string &riga : prova::Divisi(ListaTesto(b.lista()), '\n')) {
        const auto campi = prova::Divisi(riga, '\t');
        if (campi.size() < numeri + 3 || campi[0][0] != quali[0]) continue;
        const bool nostro =
            quali[1] == '*' ? campi.back() == quali.substr(2) : campi[numeri + 1] == quali.substr(1) && campi.back().empty();
        if (!nostro) continue;
        auto &n = trovati.emplace_back();
        for (std::size_t i = 1; i <= numeri; ++i) n.push_back(prova::Numero(campi[i]));
    }
    return trovati;
}

std::vector<std::vector<double>> avuti(prova::BancoRapporti &b, const std::string &premi, const std::string &quali) {
    if (premi == "cmdTrasforma") {
        b.premi(premi);
        return {{prova::Numero(b.s.in.*TavolaControlli()[static_cast<std::size_t>(TrovaControllo(quali))].testo)}};
    }
    if (premi == "cmdData") return {{prova::Numero(prova::RigaCon(b.apri(premi), quali).substr(quali.size() + 1))}};
    if (premi != "OptInter") {
        b.premi(premi);
        return registrati(b, quali);
    }
    std::vector<std::vector<double>> righe;
    for (const auto &celle : prova::RigheTabella(b.apri(premi), 0)) {
        auto &n = righe.emplace_back();
        for (std::size_t i = 0; i < 6; ++i) n.push_back(prova::Numero(celle.at(i)));
    }
    return righe;
}

TEST(Trascrizione, Tavola) {
    int confrontati = 0;
    for (const auto &r : prova::Tabella("trascrizione.txt")) {
        prova::BancoRapporti b(r.at(1));
        const auto trovati = avuti(b, r[0], r.at(2));
        ASSERT_EQ(std::to_string(trovati.size()), r.at(3)) << r[2] << " of " << r[1];
        for (const std::string &voce : prova::Divisi(r.at(4), ',')) {
            const auto parti = prova::Divisi(SenzaBlanks(voce), ' ');
            const auto &n = trovati.at(std::stoul(parti.at(0)));
            ASSERT_EQ(n.size() + 1, parti.size());
            for (std::size_t i = 0; i < n.size(); ++i) {
                const double atteso = prova::Numero(parti[i + 1]);
                EXPECT_LE(std::fabs(n[i] - atteso), 1e-11 * (1 + std::fabs(atteso)))
                    << r[2] << ' ' << voce << " of " << r[1] << ": " << n[i];
                ++confrontati;
            }
        }
    }
    std::printf("%d numbers of a second calculation\n", confrontati);
    EXPECT_GT(confrontati, 3000);
}

}  // namespace
}  // namespace ombrelia
