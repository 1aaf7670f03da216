// The utility board as a user works it: boxes, signs, options, what goes to the main window.
#include <gtest/gtest.h>

#include <cmath>
#include <ctime>
#include <string>

#include "comuni/prova.h"
#include "sun/declinazione.h"

namespace ombrelia {
namespace {

class Strumenti : public testing::Test {
protected:
    prova::Banco b;

    static IdControllo id(const std::string &nome) { return TrovaControllo("frmDeclin." + nome); }
    std::string testo(const std::string &nome) { return b.s.testo(id(nome)); }
    std::string segno(int i) { return b.s.stato("frmDeclin.cmdSign(" + std::to_string(i) + ")").caption; }
    app::Esito scrivi(const std::string &nome, const std::string &t) { return app::Imposta(b.s, id(nome), t); }
    app::Esito premi(const std::string &nome) { return app::Premi(b.s, id(nome)); }
    std::string sessagesimale(bool lat) {
        return lat ? segno(0) + testo("txtLatG") + " " + testo("txtLatP") + " " + testo("txtLATS")
                   : segno(1) + testo("txtLonG") + " " + testo("txtLonP") + " " + testo("txtLonS");
    }
    void muro() {
        for (const auto &[nome, t] : {std::pair{"txtLAT", "45.07"}, {"txtLON", "-7.68"}, {"txtDay", "21"}, {"txtMonth", "6"}, {"txtYear", "2026"},
                                      {"txtHH", "9"}, {"txtMM", "40"}, {"txtSS", "0"}, {"txtAngle", "12.5"}})
            EXPECT_EQ(scrivi(nome, t), app::Esito::Fatto) << nome;
    }
};

TEST_F(Strumenti, OpeningTakesTheSiteAndTheClock) {
    b.imposta({{"txtLAT", "-45.5"}, {"txtLonG", "7.25"}});
    const std::time_t prima = std::time(nullptr);
    EXPECT_EQ(b.premi("mnuAusiliaria"), app::Esito::Fatto);
    EXPECT_EQ(testo("txtLAT"), "-45.5");
    EXPECT_EQ(testo("txtLON"), "7.25");
    EXPECT_EQ(sessagesimale(true), "-45 30 0.0000");
    EXPECT_EQ(sessagesimale(false), "+7 15 0.0000");
    EXPECT_EQ(b.s.valore(id("optModoDec")), 1);
    EXPECT_EQ(scrivi("txtLatG", "1"), app::Esito::Disabilitato);
    std::tm m{};
    m.tm_year = std::stoi(testo("txtYear")) - 1900;
    m.tm_mon = std::stoi(testo("txtMonth")) - 1;
    m.tm_mday = std::stoi(testo("txtDay"));
    m.tm_hour = std::stoi(testo("txtHH"));
    m.tm_min = std::stoi(testo("txtMM"));
    m.tm_sec = std::stoi(testo("txtSS"));
    const std::time_t mostrata = timegm(&m);
    EXPECT_LE(prima, mostrata);
    EXPECT_LE(mostrata, std::time(nullptr));
}

TEST_F(Strumenti, BoxesAreConvertedWhenTheyAreLeft) {
    b.premi("mnuAusiliaria");
    const struct {
        const char *scritto, *letto;
    } decimali[] = {{"12.3456", "+12 20 44.1600"}, {"-0.5", "-0 30 0.0000"}, {"0", "+0 0 0.0000"}, {"", "+0 0 0.0000"}, {"-33.87", "-33 52 12.0000"}};
    for (const auto &c : decimali) {
        scrivi("txtLAT", c.scritto);
        EXPECT_EQ(sessagesimale(true), c.letto) << c.scritto;
        EXPECT_EQ(testo("txtLAT"), c.scritto);
        scrivi("txtLON", c.scritto);
        EXPECT_EQ(sessagesimale(false), c.letto) << c.scritto;
    }
    // Typed keys convert nothing before the box is left.
    app::Digita(b.s, id("txtLON"), "5");
    EXPECT_EQ(testo("txtLON"), "-33.875");
    EXPECT_EQ(sessagesimale(false), "-33 52 12.0000");

    EXPECT_EQ(premi("OptModoSess"), app::Esito::Fatto);
    EXPECT_EQ(scrivi("txtLAT", "1"), app::Esito::Disabilitato);
    EXPECT_EQ(scrivi("txtLatG", "10"), app::Esito::Fatto);
    EXPECT_EQ(testo("txtLAT"), "-10.87000");
    scrivi("txtLatP", "30");
    scrivi("txtLATS", "0");
    EXPECT_EQ(testo("txtLAT"), "-10.50000");
    EXPECT_EQ(testo("txtLON"), "-33.875");
    scrivi("txtLonS", "36");
    EXPECT_EQ(testo("txtLON"), "-33.87667");
    EXPECT_EQ(premi("optModoDec"), app::Esito::Fatto);
    EXPECT_EQ(scrivi("txtLAT", "1e999"), app::Esito::Fatto);
    EXPECT_EQ(sessagesimale(true), "-10 30 0");  // no number, nothing to convert
}

TEST_F(Strumenti, SignButtons) {
    b.premi("mnuAusiliaria");
    scrivi("txtLAT", "45.50");
    scrivi("txtLON", "-7.68");
    premi("cmdSign(0)");
    premi("cmdSign(1)");
    EXPECT_EQ(segno(0), "-");
    EXPECT_EQ(testo("txtLAT"), "-45.5");
    EXPECT_EQ(segno(1), "+");
    EXPECT_EQ(testo("txtLON"), "7.68");
    premi("cmdSign(0)");
    EXPECT_EQ(testo("txtLAT"), "45.5");
    premi("OptModoSess");
    EXPECT_EQ(premi("cmdSign(1)"), app::Esito::Fatto);  // the buttons answer in both modes
    EXPECT_EQ(testo("txtLON"), "-7.68");
    // The caption decides, not the sign in the box.
    premi("optModoDec");
    app::Digita(b.s, id("txtLAT"), "");
    scrivi("txtLAT", "0");
    premi("cmdSign(0)");
    EXPECT_EQ(testo("txtLAT"), "0");
    EXPECT_EQ(segno(0), "-");
}

TEST_F(Strumenti, KeysPassTheirFilters) {
    app::Digita(b.s, id("txtMonth"), "-1,2.x+");
    EXPECT_EQ(testo("txtMonth"), "12.");
    scrivi("txtAngle", "");
    app::Digita(b.s, id("txtAngle"), "-1,2.x+");
    EXPECT_EQ(testo("txtAngle"), "-12.+");
    EXPECT_EQ(b.utente.beep, 0);
}

TEST_F(Strumenti, ARunWritesReportFieldsAndSharedVariables) {
    b.premi("mnuAusiliaria");
    muro();
    app::Spunta(b.s, id("ckDst"), 1);
    b.s.v.corrLong = 0.25;
    premi("cmdCalcola");
    EXPECT_NE(testo("txtResult").find("Declinazione del quadrante solare: -67.9956    East\r\n"), std::string::npos) << testo("txtResult");
    EXPECT_NE(testo("txtResult").find("mezzodì:  13   31   5\r\n"), std::string::npos);
    EXPECT_EQ(b.s.in.txtDelta, "23.436");
    EXPECT_TRUE(b.s.in.txtAO.starts_with("-27.7708755678")) << b.s.in.txtAO;
    EXPECT_NEAR(b.s.v.deltaOpz.numero(), 0.409032289527948, 1e-14);
    EXPECT_EQ(b.s.v.corrLong.numero(), 0.25);  // an East wall leaves it alone
    scrivi("txtAngle", "-80");
    premi("cmdCalcola");
    EXPECT_EQ(b.s.v.corrLong.numero(), 1);
    EXPECT_TRUE(b.utente.box.empty());
}

TEST_F(Strumenti, AFaultIsToldAndTheReportStays) {
    b.premi("mnuAusiliaria");
    muro();
    premi("cmdCalcola");
    const std::string prima = testo("txtResult");
    scrivi("txtYear", "9e150");
    premi("cmdCalcola");
    ASSERT_EQ(b.utente.box.size(), 1U);
    EXPECT_TRUE(b.utente.box[0].starts_with("Il calcolo si ferma: ")) << b.utente.box[0];
    EXPECT_EQ(testo("txtResult"), prima);
    EXPECT_EQ(b.s.in.txtDelta, "23.436");
}

TEST_F(Strumenti, TheSiteGoesToTheMainWindow) {
    b.premi("mnuAusiliaria");
    muro();
    premi("cmdTrans");
    EXPECT_EQ(b.s.in.txtLAT, "45.07");
    EXPECT_EQ(b.s.in.txtLonG, "-7.68");
}

}  // namespace
}  // namespace ombrelia
