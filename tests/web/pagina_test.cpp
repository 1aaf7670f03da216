// The program behind a page: what goes in stays text, what comes out is JSON, layers travel only when they change.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <sstream>

#include "ombra/sole.h"
#include "plot/svg.h"
#include "web/chiamate.h"
#include "web/json.h"

namespace ombrelia::web {
namespace {

std::string Chiama(Pagina &p, std::string_view nome, std::string_view argomento = {}) {
    for (const Chiamata &c : Chiamate())
        if (c.nome == nome) return c.esegui(p, argomento);
    ADD_FAILURE() << "no call " << nome;
    return {};
}

TEST(Json, AnyBytesGiveValidJson) {
    EXPECT_EQ(std::move(Json()
                            .apri('{')
                            .nome("a\"")
                            .testo("\\\n\x01\xE0")
                            .nome("b")
                            .apri('[')
                            .numero(0.5)
                            .numero(1.0 / 0.0)
                            .vero(true)
                            .chiudi(']')
                            .chiudi('}'))
                  .fine(),
              "{\"a\\\"\":\"\\\\\\u000a\\u0001à\",\"b\":[0.5,null,true]}");
}

TEST(Pagina, TheLinkCarriesTheDial) {
    Pagina p, q;
    Chiama(p, "premi", "ck_Italiche");  // sets the hours' range
    for (const char *campo : {"txtLAT\t-33,87", "txtDec\t<b>1&2</b>", "txtX1\t1.5"}) Chiama(p, "scrivi", campo);
    const std::string link = Chiama(p, "collegamento");
    EXPECT_NE(link.find("[\"txtLAT\",\"-33.87\"]"), std::string::npos) << link;
    EXPECT_NE(link.find("[\"txtDec\",\"12\"]"), std::string::npos) << "keys that the filter drops: " << link;
    EXPECT_NE(link.find("[\"TxtInizio\",\"13\"]"), std::string::npos) << link;
    Chiama(q, "collega",
           "TxtInizio\t13\nTxtFine\t24\ntxtLAT\t-33.87\ntxtDec\t12\ntxtX1\t1.5\nck_Italiche\t1\nnessuno\tx\ncmdRun\t1\nfrmDeclin."
           "txtAngle\t9\n");
    EXPECT_EQ(Chiama(q, "collegamento"), link);
    EXPECT_EQ(Chiama(q, "disegna"), Chiama(p, "disegna"));
}

TEST(Pagina, OnlyChangedLayersTravel) {
    Pagina p;
    for (const char *casella : {"chkOreAstronomiche", "ck_Equinoziale"}) Chiama(p, "premi", casella);
    const std::string prima = Chiama(p, "disegna"), stesso = Chiama(p, "disegna");
    EXPECT_NE(prima.find("<path"), std::string::npos);
    EXPECT_EQ(stesso.find("<path"), std::string::npos) << stesso;
    Chiama(p, "scrivi", "TxtStilo\t.2");
    EXPECT_NE(Chiama(p, "disegna").find("<path"), std::string::npos);
}

// A page draws on a copy: what a script meets is the program as it starts.
TEST(Pagina, DrawingsDoNotTouchTheScript) {
    Pagina p, q;
    Chiama(p, "disegna");
    Chiama(p, "rapporto", "cmdData");
    for (Pagina *x : {&p, &q})
        for (const char *riga : {"set txtLAT 40", "check ck_babiloniche", "click cmdRun"})
            EXPECT_EQ(Chiama(*x, "esegui", riga), "");
    EXPECT_EQ(p.Esporta("txt"), q.Esporta("txt"));
    EXPECT_EQ(Chiama(p, "esegui", "nonsense"), "unknown action: nonsense");
}

// Another dial after one, and a fresh start after another engine: as a page that draws it first.
TEST(Pagina, OneDialAfterAnother) {
    const auto disegnato = [](Pagina &p, const char *lat) {
        p.Scrivi("txtInc", "0");
        p.Scrivi("txtLAT", lat);
        (void)p.Disegna(0);
        return p.Esporta("txt");
    };
    Pagina p, q;
    for (Pagina *x : {&p, &q}) x->Premi("ck_babiloniche"), x->Premi("chkOreAstronomiche");
    EXPECT_EQ(p.Esegui("click cmdRun"), "") << "a script's run fixes a dial, not the page's";
    (void)disegnato(p, "45");
    EXPECT_TRUE(disegnato(p, "30") == disegnato(q, "30"));
    p.Premi("cmdEqui");
    EXPECT_FALSE(disegnato(p, "30") == disegnato(q, "30"));
    p.Avvia(), q.Avvia();
    EXPECT_TRUE(disegnato(p, "30") == disegnato(q, "30"));
}

TEST(Pagina, TheTableInItsLanguage) {
    const auto prima = std::filesystem::current_path();
    std::filesystem::current_path(OMBRELIA_RADICE "/data");
    Pagina p, q;
    const std::string nostra = p.Tavola();
    p.Lingua("fr");
    q.Lingua("de");
    std::filesystem::current_path(prima);
    EXPECT_TRUE(q.Tavola() == nostra) << "a language that is not there is Italian";
    EXPECT_NE(p.Tavola().find("\"nome\":\"ck_Etna\",\"classe\":\"casella\",\"caption\":\"Heure vraie"), std::string::npos);
}

// What a screen tells apart, and a nearer one: bends stay, points that touch are a line, a gap stays a gap.
TEST(Snello, WhatIsSeen) {
    Tavolo t;
    t.QuadranteL(1);
    t.QuadranteH(1);
    const double x[] = {0, 0.1, 0.2, 0.3, 0.3}, y[] = {0, 0, 0.00004, 0, 0.2};
    for (std::size_t i = 1; i < 5; ++i) t.xLine(x[i - 1], y[i - 1], x[i], y[i], 0);
    for (const double px : {0.5, 0.5008, 0.5015, 0.6}) t.xPset(px, 0.5, 0);
    const auto d = [&](double pixel) {
        std::string tutti;
        const std::string svg = SVG_Generate(t, pixel);
        for (std::size_t i = 0; (i = svg.find(" d=\"", i)) != std::string::npos;) {
            i += 4;
            tutti += svg.substr(i, svg.find('"', i) - i) + ' ';
        }
        return tutti;
    };
    EXPECT_EQ(d(0), "M0 0L100 0 200 0.04 300 0 300 200 M500 500h0M500.8 500h0M501.5 500h0M600 500h0 ");
    EXPECT_EQ(d(1), "M0 0L300 0 300 200 M500 500L501.5 500M600 500h0 ");
    EXPECT_EQ(d(0.1), "M0 0L100 0 200 0.04 300 0 300 200 M500 500h0M500.8 500h0M501.5 500h0M600 500h0 ");
}

// Steps of an angle as people write it; what the field holds are degrees.
TEST(Pagina, AnglesAsTheyAreWritten) {
    Pagina p;
    EXPECT_EQ(Chiama(p, "scrivi", "txtLAT\t45°30' S"), "45°30' S");
    EXPECT_EQ(p.sessione().in.txtLAT, "-45.5");
}

// The shadow at a moment is read back at that moment, on either side of the equator and on a mirrored sheet.
TEST(Pagina, TheShadowIsReadBack) {
    for (const char *latitudine : {"45.07", "-33.87"}) {
        Pagina p;
        Chiama(p, "scrivi", "txtLAT\t" + std::string(latitudine));
        Chiama(p, "scrivi", "txtLonG\t-15");
        Chiama(p, "premi", "chkOreAstronomiche");
        Chiama(p, "disegna");
        const std::string ombra = Chiama(p, "ombra", "2026-03-10\t11");
        const std::size_t a = ombra.find("\"punta\":[");
        ASSERT_NE(a, std::string::npos) << ombra;
        const std::string xy = ombra.substr(a + 9, ombra.find(']', a) - a - 9);
        const std::size_t virgola = xy.find(',');
        const std::string letto = Chiama(p, "leggi", xy.substr(0, virgola) + "\t" + xy.substr(virgola + 1) + "\t2026");
        EXPECT_NE(letto.find("\"2026-03-10\""), std::string::npos) << letto;
        EXPECT_NE(letto.find("\"11:00\""), std::string::npos) << letto;
    }
}

// Behind the name, the numbers that follow each other.
std::vector<double> numeri(std::string testo, std::string_view nome) {
    std::vector<double> n;
    testo = testo.substr(std::min(testo.find(nome), testo.size()));
    testo = testo.substr(std::min(nome.size(), testo.size()));
    for (char &c : testo)
        if (std::string_view("ML[,").find(c) != std::string_view::npos) c = ' ';
    std::stringstream parole(testo);
    for (double x = 0; parole >> x;) n.push_back(x);
    return n;
}

// At eleven by the Sun the shadow falls on the line of eleven, where the page shows that line: North and South.
TEST(Pagina, TheShadowFallsOnItsLine) {
    const double equazione = ombra::soleDi(ombra::giornoGiuliano({2026, 3, 10}) + 10.2 / 24).equazione;
    for (const char *latitudine : {"45.07", "-33.87"}) {
        Pagina p;
        Chiama(p, "scrivi", "txtLAT\t" + std::string(latitudine));
        Chiama(p, "scrivi", "txtLonG\t-15");
        Chiama(p, "scrivi", "txtDec\t20");
        Chiama(p, "premi", "chkOreAstronomiche");
        Chiama(p, "disegna");
        const auto punta = numeri(Chiama(p, "ombra", "2026-03-10\t" + TestoNumero(11 - equazione / 60)), "\"punta\":");
        ASSERT_EQ(punta.size(), 2U) << latitudine;
        const std::string letto = Chiama(p, "leggi", TestoNumero(punta[0]) + "\t" + TestoNumero(punta[1]) + "\t2026\t1");
        EXPECT_NE(letto.find("\"linea\":\"ora vera 11\""), std::string::npos) << letto;
        const auto linea = numeri(Chiama(p, "linea", TestoNumero(numeri(letto, "\"pretesa\":").at(0))), "");
        double lontano = 1e9;
        for (std::size_t i = 0; i + 1 < linea.size(); i += 2)
            lontano = std::min(lontano, std::hypot(linea[i] - punta[0], linea[i + 1] - punta[1]));
        EXPECT_LT(lontano, 3) << "mm, half a chord; " << latitudine;
        // Tables are for the North, and a run leaves a southern page where it is.
        EXPECT_EQ(Chiama(p, "rapporto", "optHorae") == "null", latitudine[0] == '-');
        EXPECT_EQ(Chiama(p, "rapporto", "optHorae") == "null", latitudine[0] == '-');
    }
}

}  // namespace
}  // namespace ombrelia::web
