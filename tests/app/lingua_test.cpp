// The language of the forms and the commands that change it.
#include "app/lingua.h"

#include "comuni/cartella.h"
#include "comuni/prova.h"

namespace ombrelia {
namespace {

using prova::Banco;
using LinguaTest = prova::InCartella;

const char *const DIZIONARIO =
    "\"Latitudine|Latitude\r\nOMBRELIA|Ombrella\r\nApri...|Open...\r\nDati|Data\r\nTechnical data of sundial|Its data\r\n"
    "altezza del simbolo|height\r\n            Rette orarie|   Hour lines\r\n.02|never\r\nStampa|Print it\r\n"
    "Troppo fitto|too dense\r\nEsegui|RUN\r\nTavola di conversione|Conversion\r\nL Larghezza |W \r\n"
    "File non riconosciuto!|Not known!\r\nInversion of the map|flip\r\nazimut|\r\n\"\r\n";

TEST_F(LinguaTest, WhichTextsOfAFormAreTranslated) {
    scrivi("DBC2008.txt", DIZIONARIO);
    Banco b;
    Sessione &s = b.s;
    EXPECT_EQ(s.titolo("MDIForm1"), "Ombrella");
    EXPECT_EQ(s.testo(TrovaControllo("txtZodiacsize")), "0.02");
    const char *const casi[][2] = {{"lblLatitudine", "Latitude"}, {"mnuApri", "Open..."},
                                   {"cmdData", "Data"},           {"chkOreAstronomiche", "   Hour lines"},
                                   {"Tavolo1.lblQL", "W "},       {"ckAz", "Azimut"}};  // a blank translation does not exist
    for (const auto &[nome, caption] : casi) EXPECT_EQ(s.stato(TrovaControllo(nome)).caption, caption);
    EXPECT_EQ(s.stato("cmdData").toolTip + s.stato("txtZodiacsize").toolTip + s.stato("ck_inv").toolTip, "Its dataheightflip");
    EXPECT_EQ(s.stato("Form1.menuFond").caption, "Stampa") << "a form is translated when it is loaded";
    app::CaricaForm(s, "Form1");
    EXPECT_EQ(s.stato("Form1.menuFond").caption, "Print it");
    s.stato("frmDeclin.cmdCalcola").caption = "Esegui!";
    app::CaricaForm(s, "frmDeclin");
    EXPECT_EQ(s.stato("frmDeclin.cmdCalcola").caption, "RUN") << "a load starts from the form as designed";
    EXPECT_EQ(s.stato("frmDeclin.Frame1").caption, "Conversion");
    b.utente.risposte = {"manca.omb"};
    b.premi("mnuApri");
    EXPECT_EQ(b.utente.box, std::vector<std::string>{"Not known!"});
}

TEST_F(LinguaTest, NamesOfTheLanguage) {
    scrivi("DBuno.txt", "\"Stati|1\"");
    scrivi("DBdue.txt", "\"Stati|2\r\n1|once more\"");
    Banco b;
    Sessione &s = b.s;
    app::TraduciForm(s, "MDIForm1", "");
    EXPECT_EQ(s.stato("LabelCombo").caption, "Stati");
    app::TraduciForm(s, "MDIForm1", "uno");
    EXPECT_EQ(s.stato("LabelCombo").caption, "1");
    app::TraduciForm(s, "MDIForm1", "due");
    EXPECT_EQ(s.stato("LabelCombo").caption, "once more");
    EXPECT_EQ(s.dizionario.Nome(), "due");
    s.dizionario.CaricaDizionario("manca");
    EXPECT_EQ(s.dizionario.Traduci("1"), "1");
}

TEST_F(LinguaTest, Exports) {
    Banco b;
    app::TraduciForm(b.s, "frmAbout", "_DB");
    EXPECT_EQ(
        leggi("_DBfrmAbout.txt"),
        "\"Ombrelia|\r\nVersione|\r\nProgetto di orologi solari in scala reale|\r\nOK|\r\nInformazioni di sistema...|\r\n\"\r\n");
    app::TraduciForm(b.s, "Tavolo1", "_DBnuova");
    const std::string t = leggi("_DBTavolo1.txt");
    EXPECT_TRUE(t.starts_with("\"|\r\nPrint|\r\nAxes|\r\n")) << t.substr(0, 40);
    EXPECT_NE(t.find("\r\nSave|\r\nSave as BMP file (image.bmp)|\r\n"), std::string::npos);
    EXPECT_NE(t.find("\r\nShift Axes (metres)|\r\n"), std::string::npos);
    app::TraduciForm(b.s, "frmTavolo", "_DB");
    EXPECT_EQ(leggi("_DBfrmTavolo.txt"), "\"\"\r\n");
    // Of the main window what the dictionaries always held: later controls have files of their own.
    app::TraduciForm(b.s, "MDIForm1", "_DB");
    const std::string finestra = leggi("_DBMDIForm1.txt");
    EXPECT_NE(finestra.find("\r\nLatitudine|\r\n"), std::string::npos);
    EXPECT_EQ(finestra.find("Geometria corretta"), std::string::npos);
}

TEST_F(LinguaTest, CommandsChangeTheFileOnce) {
    const std::string francese = prova::Scritto("\"Dati|Donn\\xE9es\"\\r\\n");
    scrivi("DBFranceseC2008.txt", francese);
    scrivi("DBIngleseC2008.txt", "\"Dati|Data\"\r\n");
    Banco b;
    const struct {
        const char *voce, *messaggio;
        std::string file;
    } passi[] = {
        {"mnuFrancais", "Il faut sortir avant d'exécuter Ombrelia!!", francese},
        {"mnuInglese", "You must restart Ombrelia!!", "\"Dati|Data\"\r\n"},
        {"mnuItalian", "Riavviare Ombrelia!!", ""},
    };
    for (const auto &p : passi) {
        EXPECT_EQ(b.premi(p.voce), app::Esito::Fatto) << p.voce;
        EXPECT_EQ(b.utente.box.back(), p.messaggio);
        EXPECT_EQ(leggi("DBC2008.txt"), p.file);
        EXPECT_EQ(b.premi(p.voce), app::Esito::Disabilitato) << p.voce;
        EXPECT_EQ(b.s.stato("cmdData").caption, "Dati") << "nothing is translated before the next start";
        Banco nuovo;
        EXPECT_EQ(nuovo.s.stato("cmdData").caption, p.file == francese ? "Données" : p.file.empty() ? "Dati" : "Data");
    }
    EXPECT_EQ(b.utente.box.size(), 3U);
    EXPECT_FALSE(std::filesystem::exists("DBC2008.txt"));
    std::filesystem::create_directories("DBC2008.txt/dentro");
    Banco guasto;
    guasto.premi("mnuFrancais");
    ASSERT_FALSE(guasto.utente.box.empty());
    EXPECT_NE(guasto.utente.box[0].find("DBC2008.txt"), std::string::npos) << guasto.utente.box[0];
}

}  // namespace
}  // namespace ombrelia
