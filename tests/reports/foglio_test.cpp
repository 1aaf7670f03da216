// The line model: print zones, blanks, numbers, faults, exports; how reports open, clear and print.
#include "cli/batch.h"
#include "comuni/cartella.h"
#include "reports/rapporto_prova.h"

namespace ombrelia {
namespace {

using prova::BancoRapporti;
using prova::RigaCon;
using prova::Righe;
using reports::Fmt;
using reports::Foglio;
using reports::Numero;
using reports::Spc;
using reports::Uscita;
using reports::Zona;

const Valore NIENTE = Valore::nessuno();

std::string Riga(std::initializer_list<Elemento> voci) {
    prova::Banco b;
    Foglio f(b.s, "Form1", Uscita::Schermo, nullptr);
    f.riga(voci);
    const auto righe = Righe(b.s.rapporti.aperto);
    return righe.empty() ? "(none)" : righe[0];
}

TEST(Foglio, ZonesBlanksAndNumbers) {
    const std::string z(14, ' ');
    EXPECT_EQ(Riga({"a", Zona(), "b"}), "a" + std::string(13, ' ') + "b");
    EXPECT_EQ(Riga({"12345678901234", Zona(), "b"}), "12345678901234" + z + "b") << "a text that fills its zone skips the next";
    EXPECT_EQ(Riga({"1234567890123", Zona(), "b"}), "1234567890123 b");
    EXPECT_EQ(Riga({Zona(), "b"}), z + "b");
    EXPECT_EQ(Riga({"a", Spc(3), Zona(), "b"}), "a" + std::string(13, ' ') + "b");
    EXPECT_EQ(Riga({"a", Spc(13), Zona(), "b"}), "a" + std::string(27, ' ') + "b") << "blanks count as printed";
    EXPECT_EQ(Riga({"à è °", Zona(), "b"}), "à è °" + std::string(9, ' ') + "b") << "characters, not bytes";
    EXPECT_EQ(Riga({"x", Numero(1.5), "y", Numero(-2), "z", Numero(-0.0), "."}), "x 1.5 y-2 z 0 .");
    EXPECT_EQ(Riga({"x", Zona()}), "x");
}

TEST(Foglio, FaultsEndALineOrLeaveItOut) {
    EXPECT_EQ(Riga({"a ", Numero(1), Fmt(NIENTE, "0.0"), "tail"}), "a  1 ");
    EXPECT_EQ(Riga({Fmt(NIENTE, "0.0"), "tail"}), "(none)");
    prova::Banco b;
    Foglio f(b.s, "Form1", Uscita::Schermo, nullptr);
    f.rigaUnita({"a ", reports::Unito(NIENTE), "tail"});
    f.rigaUnita({"b ", reports::Unito(0.015), " m"});
    EXPECT_EQ(Righe(b.s.rapporti.aperto), std::vector<std::string>{"b 0.015 m"});
}

TEST(Foglio, CutsGoDownAndKeepTheNumberBehind) {
    EXPECT_EQ(reports::Taglio4(-0.00001).testo, "-0.0001 ");
    EXPECT_EQ(reports::Taglio4(1.23459).testo, " 1.2345 ");
    EXPECT_EQ(reports::Arrotonda5(0.5).testo, " 0.5 ");
    EXPECT_DOUBLE_EQ(reports::Taglio4(1.23459).numero.value(), 1.23459);
    EXPECT_EQ(Fmt(-0.12345, ".0000").testo, "-.1235");
}

TEST(Foglio, NamesOfColumnsFollowTheDictionary) {
    prova::Banco b;
    const reports::Trilingue teste{"ora   x y   z ", " heure      abscisse", "hour "};
    using Nomi = std::vector<std::string>;
    EXPECT_EQ(reports::Colonne(b.s, teste), (Nomi{"ora", "x y", "z"}));
    b.s.dizionario.Interpreta("\"ora|heure\r\n\"");
    EXPECT_EQ(reports::Colonne(b.s, teste), (Nomi{"heure", "abscisse", "z"}));
    b.s.dizionario.Interpreta("\"ora|hour\r\n\"");
    EXPECT_EQ(reports::Colonne(b.s, teste), (Nomi{"hour", "abscisse", "z"}));
}

TEST(Rapporti, CsvAndHtmlHoldWhatTheTextShows) {
    BancoRapporti b({{"txtInc", "0"}, {"txtDec", "10"}});
    const Rapporto &r = b.apri("optHorae");
    const std::string csv = reports::RapportoCsv(r), html = reports::RapportoHtml(r);
    EXPECT_NE(csv.find("T ora,ascissa x,ordinata y0,ascissa x0,ordinata y,se,si,"), std::string::npos);
    EXPECT_NE(csv.find("\r\n\"x0 = -0.5, y0 = 0.4\"\r\n"), std::string::npos);
    // Each row of the first table: the same hour, and an abscissa that the printed one rounds.
    std::size_t i = csv.find("delta\r\n") + 7;
    const auto righe = prova::RigheTabella(r, 0);
    ASSERT_EQ(righe.size(), 23U);
    for (const auto &riga : righe) {
        EXPECT_EQ(Val(csv.substr(i)).v, prova::Numero(riga[0]));
        const std::size_t virgola = csv.find(',', i);
        EXPECT_NEAR(Val(csv.substr(virgola + 1)).v, prova::Numero(riga[1]), 1.5e-4);
        i = csv.find('\n', i) + 1;
    }
    std::size_t righeHtml = 0, celle = 0;
    for (std::size_t k = html.find("<tr><td>"); k != std::string::npos; k = html.find("<tr><td>", k + 1)) ++righeHtml;
    for (std::size_t k = html.find("<td>"); k != std::string::npos; k = html.find("<td>", k + 1)) ++celle;
    EXPECT_EQ(righeHtml, 46U);
    EXPECT_EQ(celle, 46U * 12U) << "a row without its last cell would leave a hole";
    EXPECT_EQ(html.find("http"), std::string::npos);

    Rapporto cattivo;
    cattivo.caption = "a,\"b\" <i>";
    cattivo.righe.push_back({{Elemento("x & y = "), Numero(0.1)}, 0, Genere::Testo, -1});
    EXPECT_EQ(reports::RapportoCsv(cattivo), "\"a,\"\"b\"\" <i>\"\r\n\r\nx & y =,0.1\r\n");
    EXPECT_NE(reports::RapportoHtml(cattivo).find("&quot;b&quot; &lt;i&gt;</h1>"), std::string::npos);
}

TEST(Rapporti, WhatOpensAndWhatIsRefused) {
    const struct {
        const char *lat, *inc, *casella, *controllo, *modulo;
        int rimane;  // value of the option after the press
    } casi[] = {
        {"45", "25.2", "", "cmdData", "Form1", 0},
        {"45", "25.2", "", "optHorae", "Form2", 0},
        {"45", "0", "", "optHorae", "Form2", 0},
        {"0", "0", "", "optHorae", "Form2", 0},
        {"-1", "0", "", "optHorae", "", 0},
        {"45", "25.2", "", "OptIta", "Form9", 0},
        {"0", "25.2", "", "OptIta", "Form9", 0},
        {"-1", "25.2", "", "OptIta", "", 0},
        {"45", "0", "", "OptBab", "Form4", 0},
        {"-1", "0", "", "OptBab", "", 0},
        {"45", "0", "", "OptTEMP", "Form3", 0},
        {"-1", "0", "", "OptTEMP", "", 0},
        {"45", "0", "", "OptInter", "Form6", 1},
        {"45", "0", "ckFunzione", "OptInter", "Form7", 0},
        {"45", "3", "ckFunzione", "OptInter", "Form6", 1},
        {"0", "0", "", "OptInter", "Form6", 0},
        {"-1", "0", "", "OptInter", "", 0},
        {"45", "0", "", "Option1", "Form8", 1},
        {"45", "3", "", "Option1", "", 0},
        {"45", "0", "", "mnuAvviso", "Form5", 0},
    };
    for (const auto &c : casi) {
        BancoRapporti b({{"txtLAT", c.lat}, {"txtInc", c.inc}});
        if (*c.casella) b.spunta(c.casella);
        const Rapporto &r = b.apri(c.controllo);
        EXPECT_EQ(r.modulo, c.modulo) << c.controllo << " lat " << c.lat << " inc " << c.inc;
        EXPECT_EQ(r.righe.empty(), *c.modulo == 0);
        EXPECT_EQ(b.s.valore(TrovaControllo(c.controllo)), c.rimane) << c.controllo << " lat " << c.lat << " inc " << c.inc;
    }
}

TEST(Rapporti, ASecondOpeningLeavesNothingOfTheFirst) {
    BancoRapporti b({{"TxtInizio", "6"}, {"TxtFine", "18"}});
    const std::string prima = reports::RapportoTesto(b.apri("OptIta"));
    b.imposta({{"TxtInizio", "14"}, {"TxtFine", "15"}});
    const std::string breve = reports::RapportoTesto(b.apri("OptIta"));
    EXPECT_LT(breve.size(), prima.size());
    BancoRapporti nuovo({{"TxtInizio", "14"}, {"TxtFine", "15"}});
    EXPECT_EQ(reports::RapportoTesto(nuovo.apri("OptIta")), breve);
    EXPECT_EQ(reports::RapportoTesto(b.apri("OptIta")), breve);
    b.imposta({{"txtLAT", "-3"}});
    EXPECT_EQ(b.apri("OptIta").modulo, "Form9") << "a refusal leaves the open form";
}

TEST(Rapporti, EachEndsWithAddressDateAndTime) {
    for (const char *controllo : {"cmdData", "optHorae", "OptIta", "OptBab", "OptTEMP", "OptInter"}) {
        BancoRapporti b;
        for (const Rapporto *r : {&b.apri(controllo), &b.stampa()}) {
            const auto righe = Righe(*r);
            ASSERT_GT(righe.size(), 10U) << controllo;
            EXPECT_EQ(righe[righe.size() - 2], "Lia Berna frazione Colle 7 00100 Borgo    06-21-2026     m,d,y") << controllo;
            EXPECT_EQ(righe.back(), "09:04:07") << controllo;
        }
    }
}

// A printed page is the form's text but for the heads of the hour tables and what two reports say for themselves.
TEST(Rapporti, PaperRepeatsTheScreen) {
    const struct {
        const char *controllo, *inc;
        std::size_t diverse;  // lines that differ
    } casi[] = {{"cmdData", "25.2", 0}, {"optHorae", "25.2", 4}, {"optHorae", "0", 4},
                {"OptIta", "25.2", 0},  {"OptBab", "0", 0},      {"OptTEMP", "25.2", 0},
                {"OptTEMP", "90", 1},   {"OptInter", "25.2", 0}, {"Option1", "0", 0}};
    for (const auto &c : casi) {
        BancoRapporti b({{"txtInc", c.inc}});
        const auto schermo = Righe(b.apri(c.controllo)), carta = Righe(b.stampa());
        ASSERT_EQ(schermo.size(), carta.size()) << c.controllo;
        std::size_t diverse = 0;
        for (std::size_t i = 0; i < carta.size(); ++i) diverse += schermo[i] != carta[i];
        EXPECT_EQ(diverse, c.diverse) << c.controllo << ' ' << c.inc;
    }
}

TEST(Rapporti, TooManyRowsAreRefused) {
    BancoRapporti b({{"TxtFraz", "1e6"}});
    for (const char *controllo : {"cmdData", "optHorae", "OptIta", "OptBab", "OptTEMP", "OptInter"}) {
        b.utente.box.clear();
        EXPECT_TRUE(b.apri(controllo).modulo.empty()) << controllo;
        EXPECT_EQ(b.utente.box, std::vector<std::string>{"TxtFraz = 1e6: troppo fitto"}) << controllo;
    }
    BancoRapporti larga({{"txtInc", "0"}, {"txtMax", "1e9"}});
    EXPECT_TRUE(larga.apri("Option1").modulo.empty());
    EXPECT_EQ(larga.utente.box, std::vector<std::string>{"txtMax = 1e9: troppo fitto"});
}

TEST(Rapporti, TheNoticeSpeaksThreeLanguages) {
    BancoRapporti b;
    const std::string t = reports::RapportoTesto(b.apri("mnuAvviso"));
    for (const char *parola : {"pietra", "stone", "pierre", "secondo", "second method", "seconde"})
        EXPECT_NE(t.find(parola), std::string::npos) << parola;
    EXPECT_EQ(b.s.rapporti.stampa, nullptr);
}

using RapportiBatch = prova::InCartella;

TEST_F(RapportiBatch, ReportAndPrintActions) {
    EXPECT_EQ(cli::EseguiAzioni("click optHorae\nreport a.txt\nprint b.txt\nclick Form2.mnuPrinta", "prova"), 0);
    EXPECT_TRUE(leggi("a.txt").starts_with("  ora      ascissa"));
    EXPECT_TRUE(leggi("b.txt").starts_with("  ora   ascissa"));
    EXPECT_EQ(cli::EseguiAzioni("report a.txt", "prova"), 2);
    EXPECT_EQ(cli::EseguiAzioni("print a.txt", "prova"), 2);
    EXPECT_EQ(cli::EseguiAzioni("click mnuAvviso\nreport c.txt\nprint a.txt", "prova"), 2);
    EXPECT_FALSE(leggi("c.txt").empty());
    EXPECT_EQ(cli::EseguiAzioni("click cmdData\nreport", "prova"), 2);
}

}  // namespace
}  // namespace ombrelia
