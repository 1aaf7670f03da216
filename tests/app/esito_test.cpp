// What becomes of the actions that touch files: done, cancelled, failed with file and reason.
#include "app/esito.h"

#include "comuni/cartella.h"
#include "comuni/prova.h"

namespace ombrelia {
namespace {

using EsitoTest = prova::InCartella;

TEST_F(EsitoTest, OfEveryActionOnFiles) {
    const struct {
        const char *controllo, *risposta;
        app::Esito::Cosa cosa;
        const char *file, *motivo;
    } casi[] = {
        {"mnuSalva", "", app::Esito::Annullato, "", ""},
        {"mnuSalva", "nessuna/a.omb", app::Esito::Fallito, "nessuna/a.omb", "\"nessuna/a.omb\": No such file"},
        {"mnuSalva", "a.omb", app::Esito::Fatto, "a.omb", ""},
        {"mnuApri", "", app::Esito::Annullato, "", ""},
        {"mnuApri", "manca.omb", app::Esito::Fallito, "manca.omb", "File non riconosciuto!"},
        {"mnuApri", "a.omb", app::Esito::Fatto, "a.omb", ""},
        {"cmdSave", "", app::Esito::Fatto, "Ombrelia.dat", ""},
        {"Tavolo1.cmdDxf", "nessuna/b", app::Esito::Fallito, "nessuna/b.dxf", "\"nessuna/b.dxf\": No such file"},
        {"Tavolo1.cmdDxf", "b", app::Esito::Fatto, "b.dxf", ""},
        {"Tavolo1.cmdSave", "", app::Esito::Annullato, "", ""},
        {"Tavolo1.cmdSave", "c.bmp", app::Esito::Fallito, "c.bmp", "c.bmp"},
        {"cmdRun", "", app::Esito::Fatto, "", ""},
    };
    prova::Banco b;
    for (const auto &c : casi) {
        b.utente.risposte.assign(1, c.risposta);
        b.utente.box.clear();
        const app::Esito e = b.premi(c.controllo);
        EXPECT_TRUE(e == c.cosa) << c.controllo << ' ' << c.risposta << ": " << int{e.cosa};
        EXPECT_EQ(e.file, c.file) << c.controllo;
        EXPECT_NE(e.motivo.find(c.motivo), std::string::npos) << e.motivo;
        EXPECT_EQ(e.motivo.empty(), c.cosa != app::Esito::Fallito) << e.motivo;
        EXPECT_EQ(e.detto, b.utente.box.size() == 1) << c.controllo << ": a reason is told once";
        EXPECT_EQ(std::filesystem::exists(e.file), c.cosa == app::Esito::Fatto && *c.file) << e.file;
    }
    b.s.titolo("frmTavolo") = "a.omb";
    b.utente.risposte.assign({"No"});
    EXPECT_TRUE(b.premi("mnuApri") == app::Esito::Annullato) << "the open file is not to be closed";
}

// A language that could not be written, or whose dictionary is not there, is not chosen.
TEST_F(EsitoTest, OfALanguage) {
    std::filesystem::create_directories("DBC2008.txt/dentro");
    scrivi("DBFranceseC2008.txt", "\"Dati|Données\"\r\n");
    prova::Banco b;
    for (const char *voce : {"mnuFrancais", "mnuItalian"}) {
        b.utente.box.clear();
        const app::Esito e = b.premi(voce);
        EXPECT_TRUE(e == app::Esito::Fallito) << voce;
        EXPECT_EQ(b.utente.box, std::vector{e.motivo}) << "and nobody is told to start again";
        EXPECT_TRUE(b.s.stato(TrovaControllo(voce)).abilitato) << voce;
    }
}

}  // namespace
}  // namespace ombrelia
