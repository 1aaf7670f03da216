// The defaults file and the controls that it keeps.
#include "app/parametri_default.h"

#include <algorithm>

#include "comuni/cartella.h"
#include "comuni/prova.h"
#include "persist/parametri.h"

namespace ombrelia {
namespace {

using prova::Banco;
using DefaultTest = prova::InCartella;

TEST_F(DefaultTest, ANewFile) {
    Banco b({{"txtLAT", "45,5"}, {"txtNumbersize", ".07"}}, {"ckAsr"});
    b.s.in.ckRomani = 1;  // disabled on this plane
    b.premi("cmdSave");
    std::string atteso;
    for (const auto &r : prova::Tabella("fresco.txt")) atteso += '"' + r.at(0) + "\",\"" + r.at(1) + "\"\r\n";
    EXPECT_EQ(leggi("Ombrelia.dat"), atteso);
}

TEST_F(DefaultTest, WhatIsSavedIsThereAtOnce) {
    Banco prima({{"txtLAT", "41.9"}, {"txtOriz", "12abc"}, {"txtZodiacsize", ".05"}}, {"ck_Etna", "ck_Lemniscate", "ckTemp"});
    prima.imposta({{"TxtInizio", "3"}, {"TxtFine", "9"}});
    prima.premi("cmdSave");
    Banco poi;
    for (const Controllo &c : ControlliDi("MDIForm1")) {
        EXPECT_TRUE(!c.testo || poi.s.in.*c.testo == prima.s.in.*c.testo) << c.nome;
        EXPECT_TRUE(!c.casella || poi.s.in.*c.casella == prima.s.in.*c.casella) << c.nome;
    }
}

TEST_F(DefaultTest, TheSameBytesAsSingleWrites) {
    const std::string vecchio = "\"mine\",\"kept\"\r\n\"DEC\",\"1\"\r\n\"DEC\",\"2\"\r\n\"lat\",\"3\"\r\nZODIACO,.9\n";
    scrivi("Ombrelia.dat", vecchio);
    Banco b({{"txtLAT", "5\" x"}});
    b.premi("cmdSave");
    const std::string avuto = leggi("Ombrelia.dat");
    std::filesystem::remove("Ombrelia.dat");
    b.premi("cmdSave");
    const std::string fresco = leggi("Ombrelia.dat");
    // The keys of a fresh file, written one by one.
    scrivi("Ombrelia.dat", vecchio);
    Parametri uno;
    for (std::size_t i = 0; i < fresco.size();) {
        const std::size_t fine = fresco.find("\r\n", i), mezzo = fresco.find("\",\"", i);
        ASSERT_EQ(uno.Scrivi(fresco.substr(i + 1, mezzo - i - 1), fresco.substr(mezzo + 3, fine - mezzo - 4)), std::nullopt);
        i = fine + 2;
    }
    EXPECT_EQ(leggi("Ombrelia.dat"), avuto);
}

TEST_F(DefaultTest, WhatTheFileDoesToControls) {
    for (const auto &r : prova::Tabella("default.txt")) {
        scrivi("Ombrelia.dat", prova::Scritto(r.at(0)));
        Banco b;
        const IdControllo id = TrovaControllo(r.at(1));
        const bool casella = TavolaControlli()[static_cast<std::size_t>(id)].classe == Classe::Casella;
        EXPECT_EQ(casella ? std::to_string(b.s.valore(id)) : b.s.testo(id), prova::Scritto(r.at(2))) << r[0];
        EXPECT_TRUE(b.utente.box.empty()) << r[0];
    }
}

// The sheet's height and the rule of the inclination follow what was read.
TEST_F(DefaultTest, TheStartReadsFirst) {
    scrivi("Ombrelia.dat", "\"LAT\",\"-30\"\r\n\"INC\",\"0\"\r\n");
    prova::UtenteDiProva utente;
    Sessione s(utente);
    const double pagina = s.tavolo.QuadranteH();
    app::Avvia(s);
    EXPECT_EQ(s.tavolo.QuadranteH(), pagina);
    EXPECT_TRUE(s.stato("ckZodiac").abilitato);
    std::filesystem::remove("Ombrelia.dat");
    Sessione nord(utente);
    app::Avvia(nord);
    EXPECT_EQ(nord.tavolo.QuadranteH(), pagina * 1.5);
    EXPECT_FALSE(nord.stato("ckZodiac").abilitato);
    std::filesystem::create_directory("Ombrelia.dat");
    app::Premi(nord, TrovaControllo("cmdSave"));
    EXPECT_NE(utente.box.at(0).find("Ombrelia.dat"), std::string::npos) << "a save that fails is told";
}

}  // namespace
}  // namespace ombrelia
