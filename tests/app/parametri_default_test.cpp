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

TEST_F(DefaultTest, AFreshFile) {
    Banco b({{"txtLAT", "45,5"}, {"txtNumbersize", ".07"}}, {"ckAsr"});
    b.s.in.ckRomani = 1;  // disabled on this plane
    b.premi("cmdSave");
    const std::string t = leggi("Ombrelia.dat");
    EXPECT_EQ(std::count(t.begin(), t.end(), '\n'), 41);
    EXPECT_TRUE(
        t.starts_with("\"LAT\",\"45,5\"\r\n\"DEC\",\"-20\"\r\n\"INC\",\"25.2\"\r\n\"ORTO\",\".195\"\r\n\"LONG\","
                      "\"0\"\r\n\"FRAZIONE\",\"2\"\r\n"));
    EXPECT_TRUE(t.ends_with("\"CENTIMETRO\",\"0\"\r\n\"ARABI\",\".03\"\r\n\"ROMANI\",\".07\"\r\n\"ZODIACO\",\"0.02\"\r\n"));
    for (const char *riga :
         {"\"CIFRE\",\"1\"\r\n\"QUADRO\",\"1\"\r\n\"QIBLA\",\"0\"\r\n", "\"ORAINIZIO\",\"6.5\"\r\n\"ORAFINE\",\"17.5\"\r\n"})
        EXPECT_NE(t.find(riga), std::string::npos) << riga;
}

TEST_F(DefaultTest, WhatIsSavedIsThereAtTheNextStart) {
    Banco prima({{"txtLAT", "41.9"}, {"txtOriz", "12abc"}, {"txtZodiacsize", ".05"}}, {"ck_Etna", "ck_Lemniscate", "ckTemp"});
    prima.imposta({{"TxtInizio", "3"}, {"TxtFine", "9"}});
    prima.premi("cmdSave");
    Banco poi;
    for (const Controllo &c : ControlliDi("MDIForm1")) {
        if (c.testo) {
            EXPECT_EQ(poi.s.in.*c.testo, prima.s.in.*c.testo) << c.nome;
        }
        if (c.casella) {
            EXPECT_EQ(poi.s.in.*c.casella, prima.s.in.*c.casella) << c.nome;
        }
    }
    const std::string file = leggi("Ombrelia.dat");
    poi.premi("cmdSave");
    EXPECT_EQ(leggi("Ombrelia.dat"), file);
}

TEST_F(DefaultTest, SameBytesAsSingleWrites) {
    const std::string vecchio = "\"mine\",\"kept\"\r\n\"DEC\",\"1\"\r\n\"DEC\",\"2\"\r\n\"lat\",\"3\"\r\nZODIACO,.9\n";
    scrivi("Ombrelia.dat", vecchio);
    Banco b({{"txtLAT", "5\" x"}});
    b.premi("cmdSave");
    const std::string avuto = leggi("Ombrelia.dat");
    EXPECT_TRUE(
        avuto.starts_with("\"mine\",\"kept\"\r\n\"DEC\",\"1\"\r\n\"DEC\",\"2\"\r\n\"lat\",\"3\"\r\n\"ZODIACO\",\".9\"\r\n\"LAT\","
                          "\"5\" x\"\r\n\"INC\""));

    scrivi("nuovo.dat", "");
    b.premi("cmdSave");
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

TEST_F(DefaultTest, WhatTheFileDoesToTheControls) {
    const struct {
        const char *file, *nome, *atteso;
    } casi[] = {
        {"\"LAT\",\"\"\r\n", "txtLAT", "45.74805"},
        {"\"lat\",\"1\"\r\n", "txtLAT", "45.74805"},
        {"\"LAT\",\" 4,5 \"\r\n", "txtLAT", " 4,5 "},
        {"\"ORAMEDIA\",\"1\"\r\n", "ck_Etna", "1"},
        {"\"ORAMEDIA\",\"1.7 or so\"\r\n", "ck_Etna", "1"},
        {"\"ORAMEDIA\",\"40000\"\r\n", "ck_Etna", "0"},
        {"\"ORAMEDIA\",\"si\"\r\n", "ck_Etna", "0"},
        // A box that changes fires its handler; the hours of the file come later.
        {"\"ITALICHE\",\"1\"\r\n", "TxtInizio", "13"},
        {"\"ITALICHE\",\"1\"\r\n\"ORAINIZIO\",\"15\"\r\n", "TxtInizio", "15"},
        {"\"ITALICHE\",\"1\"\r\n\"BABILONICHE\",\"1\"\r\n", "ck_Italiche", "0"},
        {"\"ITALICHE\",\"1\"\r\n\"BABILONICHE\",\"1\"\r\n", "ck_babiloniche", "0"},
        {"no fields at all", "txtLAT", "45.74805"},
    };
    for (const auto &caso : casi) {
        scrivi("Ombrelia.dat", caso.file);
        Banco b;
        const IdControllo id = TrovaControllo(caso.nome);
        const bool casella = TavolaControlli()[static_cast<std::size_t>(id)].classe == Classe::Casella;
        EXPECT_EQ(casella ? std::to_string(b.s.valore(id)) : b.s.testo(id), caso.atteso) << caso.file;
        EXPECT_TRUE(b.utente.box.empty()) << caso.file;
    }
}

// The sheet's height and the rule of the inclination follow what was read.
TEST_F(DefaultTest, TheStartUpReadsFirst) {
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
}

TEST_F(DefaultTest, ASaveThatFailsIsTold) {
    Banco b;
    std::filesystem::create_directory("Ombrelia.dat");
    b.premi("cmdSave");
    ASSERT_EQ(b.utente.box.size(), 1U);
    EXPECT_NE(b.utente.box[0].find("Ombrelia.dat"), std::string::npos) << b.utente.box[0];
}

}  // namespace
}  // namespace ombrelia
