// Project files over the table of controls.
#include "app/progetto.h"

#include <iterator>
#include <random>
#include <tuple>

#include "comuni/cartella.h"
#include "comuni/prova.h"

namespace ombrelia {
namespace {

using prova::Banco;
using ProgettoTest = prova::InCartella;

std::string Tag(const std::string &nome, const std::string &valore, const std::string &attributi = " visible=true enabled=true") {
    return "<" + nome + attributi + ">" + valore + "</" + nome + ">\r\n";
}
const std::string FOGLIO = "<_QuadranteH>2</_QuadranteH><_QuadranteL>3</_QuadranteL><_Shiftx>1</_Shiftx><_Shifty>.5</_Shifty>";

// Every state of the main window that a project keeps, gathered field by field.
std::vector<std::string> Tutto(Sessione &s) {
    std::vector<std::string> t;
    for (const Controllo &c : ControlliDi("MDIForm1")) {
        if (c.classe == Classe::Pulsante || c.classe > Classe::Etichetta) continue;
        const StatoControllo &stato = s.stato(IdDi(c));
        t.push_back(std::string(c.nome) + "|" + s.testo(IdDi(c)) + "|" + std::to_string(s.valore(IdDi(c))) + "|" +
                    (c.classe == Classe::Etichetta ? stato.caption : "") + (stato.visibile ? "v" : "-") +
                    (stato.abilitato ? "e" : "-"));
    }
    for (const double n : {s.tavolo.QuadranteH(), s.tavolo.QuadranteL(), s.tavolo.ShiftX(), s.tavolo.ShiftY()})
        t.push_back(NumeroGenerale(n));
    return t;
}

TEST_F(ProgettoTest, FormOfTheFile) {
    Banco b({{"txtInc", "0"}}, {"ckZodiac"});
    b.foglio(3, 2, 1.0 / 64, -0.25);
    b.premi("optHorae");
    ASSERT_EQ(app::SalvaProgetto(b.s, "p.omb"), std::nullopt);
    const std::string t = leggi("p.omb");
    for (const auto &r : prova::Tabella("righe_progetto.txt"))
        EXPECT_EQ(t.find(prova::Scritto(r.at(1))) != std::string::npos, r.at(0) == "has") << r[1];
    EXPECT_TRUE(t.starts_with("\"<mnuApri ") && t.ends_with("</_Shifty>\"\r\n"));
}

TEST_F(ProgettoTest, SaveOpenAndSaveAgain) {
    std::mt19937 caso(7);
    const char *TESTI[] = {"", " ", "45.5", "-7,68", "12abc", "perché €", "<b>", "a > b", "1E-7", "x=true enabled", "'"};
    for (int giro = 0; giro < 20; ++giro) {
        Banco prima, poi;
        for (const Controllo &c : ControlliDi("MDIForm1")) {
            if (c.nostro) continue;  // files hold a later control only where it differs from its start
            StatoControllo &stato = prima.s.stato(IdDi(c));
            if (c.classe == Classe::Testo) prima.s.testo(IdDi(c)) = TESTI[caso() % std::size(TESTI)];
            if (c.classe == Classe::Casella) prima.s.valore(IdDi(c)) = static_cast<int>(caso() % 3);
            if (c.classe == Classe::Menu) prima.s.valore(IdDi(c)) = static_cast<int>(caso() % 2);
            if (c.classe == Classe::Etichetta) stato.caption = TESTI[caso() % std::size(TESTI)];
            if (c.classe == Classe::Pulsante || c.classe > Classe::Etichetta) continue;
            stato.visibile = caso() % 2 == 0;
            if (c.classe != Classe::Etichetta) stato.abilitato = caso() % 2 == 0;
        }
        prima.s.valore(TrovaControllo(giro % 2 == 0 ? "OptTEMP" : "Option_P")) = 1;
        const auto numero = [&caso] { return static_cast<double>(caso()) / 4.0e9 * 15; };
        prima.foglio(numero(), numero(), -numero(), numero() * 1e-5);
        ASSERT_EQ(app::SalvaProgetto(prima.s, "a.omb"), std::nullopt);
        ASSERT_TRUE(app::ApriProgetto(poi.s, "a.omb"));
        ASSERT_EQ(app::SalvaProgetto(poi.s, "b.omb"), std::nullopt);
        EXPECT_EQ(leggi("a.omb"), leggi("b.omb"));
        EXPECT_EQ(Tutto(prima.s), Tutto(poi.s));
    }
}

TEST_F(ProgettoTest, AMissingTagLeavesTheControl) {
    Banco b({{"txtDec", "11"}, {"txtLAT", "12"}}, {"ck_Sustilare", "ckAlt"});
    b.s.stato("txtDec").visibile = false;
    const auto attesi = Tutto(b.s);
    app::ApplicaProgetto(b.s, Tag("txtLAT", "44") + Tag("ckAlt", "0", "") + FOGLIO);
    EXPECT_EQ(b.s.in.txtLAT, "44");
    EXPECT_EQ(b.s.in.ckAlt, 0);
    EXPECT_EQ(b.s.in.txtDec, "11");
    EXPECT_EQ(b.s.in.ck_Sustilare, 1);
    EXPECT_FALSE(b.s.stato("txtDec").visibile);
    const auto avuti = Tutto(b.s);
    std::size_t diversi = 0;
    for (std::size_t i = 0; i < avuti.size(); ++i) diversi += avuti[i] != attesi[i];
    EXPECT_EQ(diversi, 6U) << "two controls and four numbers";
}

TEST_F(ProgettoTest, ValuesOfEveryClass) {
    const std::tuple<const char *, const char *, int> casi[] = {
        {"ckAlt", "1", 1},   {"ckAlt", "2", 2},   {"ckAlt", "1.9", 1},    {"ckAlt", "", 0},
        {"ckAlt", "1e9", 1}, {"ckAlt", "abc", 0}, {"OptIta", "-1", 1},    {"OptIta", "1", 1},
        {"OptIta", "0", 0},  {"OptIta", "", 0},   {"mnuAvviso", "-1", 1}, {"mnuAvviso", "0", 0}};
    Banco b;
    for (const auto &[nome, valore, atteso] : casi) {
        b.s.valore(TrovaControllo(nome)) = 1;
        app::ApplicaProgetto(b.s, Tag(nome, valore) + FOGLIO);
        EXPECT_EQ(b.s.valore(TrovaControllo(nome)), atteso) << nome << " " << valore;
    }
    app::ApplicaProgetto(
        b.s, Tag("OptTEMP", "-1") + Tag("optHorae", "-1") + Tag("lblLatitudine", "Breite", " visible=false") + FOGLIO);
    EXPECT_EQ(b.s.in.OptTEMP + b.s.in.optHorae, 1) << "one option at a time";
    app::ApplicaProgetto(b.s, Tag("ck_Italiche", "1") + Tag("ck_babiloniche", "1") + Tag("txtInc", "0") + FOGLIO);
    EXPECT_EQ(b.s.in.ck_Italiche + b.s.in.ck_babiloniche, 2) << "no handler runs";
    EXPECT_EQ(b.s.in.TxtInizio, "6.5");
    EXPECT_EQ(b.s.stato("lblLatitudine").caption, "Breite");
    EXPECT_FALSE(b.s.stato("lblLatitudine").visibile);
    EXPECT_TRUE(b.s.stato("lblLatitudine").abilitato);
}

TEST_F(ProgettoTest, TagsThatClash) {
    Banco b;
    // A value that holds the open tag of a control confuses it; the later element is not seen.
    app::ApplicaProgetto(b.s, Tag("txtLAT", "<txtDec>9") + Tag("txtDec", "8") + FOGLIO);
    EXPECT_EQ(b.s.in.txtLAT, "<txtDec>9");
    EXPECT_EQ(b.s.in.txtDec, "9</txtLAT>\r\n<txtDec visible=true enabled=true>8");
    // The value's own words reach the attributes.
    app::ApplicaProgetto(b.s, Tag("txtH", "enabled=true", " visible=true enabled=false") + FOGLIO);
    EXPECT_TRUE(b.s.stato("txtH").abilitato);
}

TEST_F(ProgettoTest, TheSheet) {
    for (const auto &r : prova::Tabella("fogli.txt")) {
        Banco b;
        app::ApplicaProgetto(b.s, r.at(0));
        const Tavolo &t = b.s.tavolo;
        EXPECT_EQ((std::vector{t.QuadranteH(), t.QuadranteL(), t.ShiftX(), t.ShiftY(), double(b.utente.messaggi.size())}),
                  (std::vector{Val(r.at(1)).v, Val(r.at(2)).v, Val(r.at(3)).v, Val(r.at(4)).v, Val(r.at(5)).v}))
            << r[0];
    }
}

TEST_F(ProgettoTest, FilesThatAreNoProjects) {
    scrivi("vuoto.omb", "");
    scrivi("virgolette.omb", "\"\"\r\n");
    for (const char *nome : {"vuoto.omb", "virgolette.omb", "manca.omb", "."}) {
        Banco b({{"txtLAT", "12"}});
        const auto prima = Tutto(b.s);
        EXPECT_FALSE(app::ApriProgetto(b.s, nome)) << nome;
        EXPECT_EQ(b.utente.box, std::vector<std::string>{"File non riconosciuto!"}) << nome;
        EXPECT_EQ(Tutto(b.s), prima) << nome;
        EXPECT_EQ(b.s.titolo("frmTavolo"), "") << nome;
    }
}

TEST_F(ProgettoTest, MenusAskAndTell) {
    Banco b({{"txtLAT", "33"}});
    std::filesystem::create_directory("qui");
    b.utente.risposte = {"qui/muro.omb"};
    b.premi("mnuSalva");
    b.utente.risposte = {""};
    b.premi("mnuSalva");
    EXPECT_TRUE(std::filesystem::exists("qui/muro.omb"));
    for (const char *scritto : {"34", "35"}) {  // the second time the user says No
        b.imposta({{"txtLAT", scritto}});
        b.utente.risposte = {scritto[1] == '5' ? "No" : "qui/muro.omb"};
        b.premi("mnuApri");
        EXPECT_EQ(b.s.in.txtLAT, scritto[1] == '5' ? "35" : "33");
        EXPECT_EQ(b.s.titolo("frmTavolo"), "muro.omb");
    }
    EXPECT_EQ(b.utente.box, std::vector<std::string>{"Attenzione! Vuoi chiudere il file muro.omb?"});
    b.utente.risposte = {"No"};
    EXPECT_FALSE(app::ChiudiTavolo(b.s));
    EXPECT_EQ(b.utente.box.back(), "Attenzione! desideri chiudere il file muro.omb?");
    b.utente.risposte.clear();
    EXPECT_TRUE(app::ChiudiTavolo(b.s));
    EXPECT_EQ(b.s.titolo("frmTavolo"), "");
    for (const char *nome : {"/dev/full", "manca/muro.omb"}) {
        b.utente.risposte = {nome};
        b.premi("mnuSalva");
        EXPECT_NE(b.utente.box.back().find(nome), std::string::npos) << b.utente.box.back();
    }
}

}  // namespace
}  // namespace ombrelia
