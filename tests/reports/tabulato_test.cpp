// The line model: print zones, blanks, numbers, faults, exports; how reports open, clear and print.
#include "reports/tabulato.h"

#include <functional>
#include <numeric>

#include "cli/batch.h"
#include "comuni/cartella.h"
#include "reports/rapporto_prova.h"

namespace ombrelia {
namespace {

using namespace prova;
using reports::Fmt;
using reports::Spc;
using reports::Tabulato;
using reports::Uscita;
using reports::Zona;

const Valore NIENTE = Valore::nessuno();

std::string Riga(std::initializer_list<Elemento> voci) {
    Banco b;
    Tabulato f(b.s, "Form1", Uscita::Schermo);
    f.riga(voci);
    const auto righe = Righe(b.s.rapporti.aperto);
    return righe.empty() ? "(none)" : righe[0];
}

TEST(Tabulato, ZonesBlanksNumbersAndFaults) {
    using reports::Numero;
    EXPECT_EQ(Riga({"a", Zona(), "b"}), "a             b");
    EXPECT_EQ(Riga({"12345678901234", Zona(), "b"}), "12345678901234              b")
        << "a text that fills its zone skips the next";
    EXPECT_EQ(Riga({"1234567890123", Zona(), "b"}), "1234567890123 b");
    EXPECT_EQ(Riga({Zona(), "b"}), "              b");
    EXPECT_EQ(Riga({"a", Spc(3), Zona(), "b"}), "a             b");
    EXPECT_EQ(Riga({"a", Spc(13), Zona(), "b"}), "a                           b") << "blanks count as printed";
    EXPECT_EQ(Riga({"à è °", Zona(), "b"}), "à è °         b") << "characters, not bytes";
    EXPECT_EQ(Riga({"x", Numero(1.5), "y", Numero(-2), "z", Numero(-0.0), "."}), "x 1.5 y-2 z 0 .");
    EXPECT_EQ(Riga({"x", Zona()}), "x");
    EXPECT_EQ(Riga({"a ", Numero(1), Fmt(NIENTE, "0.0"), "tail"}), "a  1 ");
    EXPECT_EQ(Riga({Fmt(NIENTE, "0.0"), "tail"}), "(none)");
    Banco b;
    Tabulato f(b.s, "Form1", Uscita::Schermo);
    f.rigaUnita({"a ", reports::Unito(NIENTE), "tail"});
    f.rigaUnita({"b ", reports::Unito(0.015), " m"});
    EXPECT_EQ(Righe(b.s.rapporti.aperto), std::vector<std::string>{"b 0.015 m"});
    EXPECT_EQ(reports::Taglio4(-0.00001).testo, "-0.0001 ");
    EXPECT_EQ(reports::Taglio4(1.23459).testo, " 1.2345 ");
    EXPECT_DOUBLE_EQ(reports::Taglio4(1.23459).numero.value(), 1.23459);
    EXPECT_EQ(Fmt(-0.12345, ".0000").testo, "-.1235");
}

TEST(Tabulato, ColumnsFollowTheDictionary) {
    Banco b;
    const reports::Trilingue teste{"ora   x y   z ", " heure      abscisse", "hour "};
    using Nomi = std::vector<std::string>;
    EXPECT_EQ(reports::Colonne(b.s, teste), (Nomi{"ora", "x y", "z"}));
    b.s.dizionario.Interpreta("\"ora|hour\r\n\"");
    EXPECT_EQ(reports::Colonne(b.s, teste), (Nomi{"hour", "abscisse", "z"}));
}

TEST(Rapporti, CsvAndHtmlHoldTheText) {
    BancoRapporti b("txtInc=0;txtDec=10");
    const Rapporto &r = b.apri("optHorae");
    const std::string csv = reports::RapportoCsv(r), html = reports::RapportoHtml(r);
    EXPECT_NE(csv.find("T ora,ascissa x,ordinata y0,ascissa x0,ordinata y,se,si,"), std::string::npos);
    EXPECT_NE(csv.find("\r\n\"x0 = -0.5, y0 = 0.4\"\r\n"), std::string::npos);
    // Each row of the first table: the same hour, and an abscissa that the printed one rounds.
    std::size_t i = csv.find("delta\r\n") + 7;
    const auto righe = RigheTabella(r, 0);
    ASSERT_EQ(righe.size(), 23U);
    for (const auto &riga : righe) {
        EXPECT_EQ(Val(csv.substr(i)).v, Numero(riga[0]));
        EXPECT_NEAR(Val(csv.substr(csv.find(',', i) + 1)).v, Numero(riga[1]), 1.5e-4);
        i = csv.find('\n', i) + 1;
    }
    const auto quanti = [&html](std::string_view segno) {
        int n = 0;
        for (std::size_t k = html.find(segno); k != std::string::npos; k = html.find(segno, k + 1)) ++n;
        return n;
    };
    EXPECT_EQ(quanti("<tr><td>"), 46);
    EXPECT_EQ(quanti("<td>"), 46 * 12) << "a row without its last cell would leave a hole";
    EXPECT_EQ(quanti("http"), 0);
    Rapporto cattivo;
    cattivo.caption = "a,\"b\" <i>";
    cattivo.righe.push_back({{Elemento("x & y = "), reports::Numero(0.1)}, 0, GenereRiga::Testo, -1});
    EXPECT_EQ(reports::RapportoCsv(cattivo), "\xEF\xBB\xBF\"a,\"\"b\"\" <i>\"\r\n\r\nx & y =,0.1\r\n");
    // What a spreadsheet would reckon is told to be a text, and a number is one.
    for (const auto &[scritto, cella] :
         {std::pair{"=1+1", "\"'=1+1\""}, {"-a1", "\"'-a1\""}, {"+a1", "\"'+a1\""}, {"@a", "\"'@a\""}, {"-1.5e-7", "-1.5e-7"}}) {
        Rapporto formula;
        formula.caption = scritto;
        EXPECT_EQ(reports::RapportoCsv(formula), std::string("\xEF\xBB\xBF") + cella + "\r\n");
    }
    EXPECT_NE(reports::RapportoHtml(cattivo).find("&quot;b&quot; &lt;i&gt;</h1>"), std::string::npos);
}

constexpr std::string_view FIRMA = "Lia Berna frazione Colle 7 00100 Borgo    06-21-2026     m,d,y";

TEST(Rapporti, WhatOpensIsRefusedIsPrinted) {
    for (const auto &t : Tabella("rapporti_aperti.txt")) {
        BancoRapporti b(t[0]);
        const std::string caso = t[0] + " " + t[1];
        const Rapporto &r = b.apri(t[1]);
        EXPECT_EQ(r.modulo.empty() ? "-" : r.modulo, t[2]) << caso;
        EXPECT_EQ(r.righe.empty(), t[2] == "-") << caso;
        EXPECT_TRUE(t[3] == "-" || b.s.valore(TrovaControllo(t[1])) == std::stoi(t[3])) << caso;
        EXPECT_TRUE(!t[5].ends_with("fitto") || b.utente.box == std::vector{t[5]}) << caso;
        if (t[2] == "-") continue;
        const auto schermo = Righe(r);
        ASSERT_GT(schermo.size(), 1U) << caso;
        EXPECT_EQ(schermo.back(), Scritto(t[5])) << caso;
        EXPECT_TRUE(!t[5].starts_with("09") || schermo.end()[-2] == FIRMA) << caso;
        if (t[4] == "-") continue;
        const auto carta = Righe(b.stampa());
        ASSERT_EQ(schermo.size(), carta.size()) << caso;
        const auto uguali = std::inner_product(schermo.begin(), schermo.end(), carta.begin(), 0, std::plus(), std::equal_to());
        EXPECT_EQ(std::ssize(carta) - uguali, std::stoi(t[4])) << caso;
    }
}

TEST(Rapporti, TheSecondOpeningWipesTheFirst) {
    BancoRapporti b("TxtInizio=6;TxtFine=18"), nuovo("TxtInizio=14;TxtFine=15");
    const std::string prima = reports::RapportoTesto(b.apri("OptIta"));
    b.scrivi("TxtInizio=14;TxtFine=15");
    const std::string breve = reports::RapportoTesto(b.apri("OptIta"));
    EXPECT_LT(breve.size(), prima.size());
    EXPECT_EQ(reports::RapportoTesto(nuovo.apri("OptIta")), breve);
    EXPECT_EQ(reports::RapportoTesto(b.apri("OptIta")), breve);
    b.scrivi("txtLAT=-3");
    EXPECT_EQ(b.apri("OptIta").modulo, "Form9") << "a refusal leaves the open form";
}

using RapportiBatch = InCartella;

TEST_F(RapportiBatch, ActionsReportAndPrint) {
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
