// The declination board: its report, and the board as a user works it: boxes, signs, options, the main window.
#include "sun/declinazione.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <tuple>

#include "comuni/prova.h"

namespace ombrelia::sun {
namespace {

DatiDeclinazione Torino() {
    return {
        .lat = 45.07, .lon = -7.68, .giorno = 21, .mese = 6, .anno = 2026, .ore = 9, .minuti = 40, .angolo = 12.5, .fuso = -1};
}

TEST(Declinazione, ReportsToTheLastDigit) {
    const auto etichette = prova::Tabella("sole_etichette.txt");
    int righe = 0, notti = 0, giorni = 0;
    for (const auto &r : prova::Tabella("sole_rapporti.txt")) {
        std::string atteso;
        SCOPED_TRACE(r.at(0) + ' ' + r.at(2) + '-' + r.at(3) + '-' + r.at(4) + ' ' + r.at(5));
        std::size_t i = 12;
        for (const auto &e : etichette) atteso += e.at(0) + r.at(i++) + (e.at(1) == "2" ? "\r\n\r\n" : "\r\n");
        if (r.at(i) == "notte") atteso += "Il sole non sorge  ", ++notti;
        else if (r.at(i) == "giorno") atteso += "Il sole non tramonta  ", ++giorni;
        else atteso += "Il Sole sorge:   " + r.at(i) + "\r\nIl sole tramonta:   " + r.at(i + 1);
        std::replace(atteso.begin(), atteso.end(), '_', ' ');
        DatiDeclinazione d;
        std::size_t k = 0;
        for (Valore *v : {&d.lat, &d.lon, &d.giorno, &d.mese, &d.anno, &d.ore, &d.minuti, &d.secondi, &d.angolo, &d.fuso})
            *v = Val(r.at(k++));
        d.dst = r.at(10) == "1";
        const EsitoDeclinazione e = Declinazione(d, {});
        EXPECT_EQ(e.rapporto, atteso);
        EXPECT_EQ(e.txtDelta.value_or(""), r.at(11));
        EXPECT_EQ(e.corrLong, e.declinazione > 0);
        EXPECT_EQ(e.errore, "");
        ++righe;
    }
    EXPECT_TRUE(righe >= 100 && notti >= 3 && giorni >= 3);
}

TEST(Declinazione, LabelsPassThroughTheDictionary) {
    Dizionario d;
    d.Interpreta("\"Azimut del Sole:  |Azimuth of the Sun:  \r\nwest|ovest\r\nIl sole tramonta:   |Sunset:   \r\n\"\r\n");
    DatiDeclinazione dati = Torino();
    dati.angolo = -80;
    const std::string t = Declinazione(dati, d).rapporto;
    EXPECT_TRUE(t.starts_with("Azimuth of the Sun:  -55.4956\r\nDeclinazione del quadrante solare: 24.5044    ovest\r\n")) << t;
    EXPECT_TRUE(t.ends_with("\r\nSunset:   20  19  51")) << t;
}

// A fault ends the calculation where it stands; what was written before it stays written.
TEST(Declinazione, FaultsStopIt) {
    const Valore no = Valore::nessuno();
    using D = DatiDeclinazione;
    const std::tuple<Valore D::*, Valore, bool> casi[] = {
        {&D::lat, no, false}, {&D::fuso, no, false}, {&D::angolo, no, false}, {&D::anno, 1e200, false}, {&D::lon, 1.7e308, true}};
    for (const auto &[campo, valore, delta] : casi) {
        D dati = Torino();
        dati.*campo = valore;
        const EsitoDeclinazione e = Declinazione(dati, {});
        EXPECT_TRUE(e.errore != "" && e.rapporto.empty()) << valore.v;
        EXPECT_TRUE(e.deltaOpz.has_value() == delta && e.txtDelta.has_value() == delta) << valore.v;
        EXPECT_FALSE(e.txtAO.has_value() || e.corrLong) << valore.v;
    }
}

class Strumenti : public testing::Test {
protected:
    prova::Banco b;

    static IdControllo id(const std::string &nome) { return TrovaControllo("frmDeclin." + nome); }
    std::string testo(const std::string &nome) { return b.s.testo(id(nome)); }
    app::Esito scrivi(const std::string &nome, const std::string &t) { return app::Imposta(b.s, id(nome), t); }
    app::Esito premi(const std::string &nome) { return app::Premi(b.s, id(nome)); }
    std::string parti(bool lon) {
        return b.s.stato(id(lon ? "cmdSign(1)" : "cmdSign(0)")).caption + testo(lon ? "txtLonG" : "txtLatG") + " " +
               testo(lon ? "txtLonP" : "txtLatP") + " " + testo(lon ? "txtLonS" : "txtLATS");
    }
};

TEST_F(Strumenti, OnOpeningTakesSiteAndClock) {
    b.imposta({{"txtLAT", "-45.5"}, {"txtLonG", "7.25"}});
    const std::time_t prima = std::time(nullptr);
    EXPECT_EQ(b.premi("mnuAusiliaria"), app::Esito::Fatto);
    EXPECT_EQ(testo("txtLAT") + ' ' + parti(false), "-45.5 -45 30 0.0000");
    EXPECT_EQ(testo("txtLON") + ' ' + parti(true), "7.25 +7 15 0.0000");
    EXPECT_EQ(b.s.valore(id("optModoDec")), 1);
    EXPECT_EQ(scrivi("txtLatG", "1"), app::Esito::Disabilitato);
    const auto n = [this](const char *nome) { return std::stoi(testo(nome)); };
    std::tm m{};
    m.tm_year = n("txtYear") - 1900, m.tm_mon = n("txtMonth") - 1, m.tm_mday = n("txtDay");
    m.tm_hour = n("txtHH"), m.tm_min = n("txtMM"), m.tm_sec = n("txtSS");
    const std::time_t mostrata = timegm(&m);
    EXPECT_TRUE(prima <= mostrata && mostrata <= std::time(nullptr));
}

TEST_F(Strumenti, BoxesSignsAndModes) {
    b.premi("mnuAusiliaria");
    for (const auto &r : prova::Tabella("strumenti.txt")) {
        EXPECT_EQ(r.at(1).empty() ? premi(r.at(0)) : scrivi(r.at(0), r.at(1)), app::Esito::Fatto) << r.at(0);
        const std::string trovati[] = {testo("txtLAT"), parti(false), testo("txtLON"), parti(true)};
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(r.at(i + 2).empty() ? "" : trovati[i], r.at(i + 2)) << r.at(0) << ' ' << r.at(1);
    }
    scrivi("txtLAT", "");
    EXPECT_EQ(parti(false), "+0 0 0.0000");
    // Typed keys pass the box's filter and convert nothing before the box is left.
    const std::string prima = testo("txtLON");
    app::Digita(b.s, id("txtLON"), "5");
    EXPECT_EQ(testo("txtLON"), prima + "5");
    EXPECT_EQ(parti(true), "-33 52 36");
    app::Digita(b.s, id("txtMonth"), "-1,2.x+");
    EXPECT_TRUE(testo("txtMonth").ends_with("12.")) << testo("txtMonth");
    scrivi("txtAngle", "");
    app::Digita(b.s, id("txtAngle"), "-1,2.x+");
    EXPECT_EQ(testo("txtAngle"), "-12.+");
    EXPECT_EQ(b.utente.beep, 0);
    premi("OptModoSess");
    EXPECT_EQ(scrivi("txtLAT", "1"), app::Esito::Disabilitato);
}

TEST_F(Strumenti, ARunWritesAndAFaultLeaves) {
    b.premi("mnuAusiliaria");
    for (const std::string &c : prova::Divisi("LAT=45.07|LON=-7.68|Day=21|Month=6|Year=2026|HH=9|MM=40|SS=0|Angle=12.5", '|'))
        EXPECT_EQ(scrivi("txt" + c.substr(0, c.find('=')), c.substr(c.find('=') + 1)), app::Esito::Fatto) << c;
    app::Spunta(b.s, id("ckDst"), 1);
    b.s.v.corrLong = 0.25;
    premi("cmdCalcola");
    EXPECT_NE(testo("txtResult").find("mezzodì:  13   31   5\r\n"), std::string::npos);
    EXPECT_EQ(b.s.in.txtDelta, "23.436");
    EXPECT_TRUE(b.s.in.txtAO.starts_with("-27.7708755678")) << b.s.in.txtAO;
    EXPECT_NEAR(b.s.v.deltaOpz.numero(), 0.409032289527948, 1e-14);
    EXPECT_EQ(b.s.v.corrLong.numero(), 0.25);  // an East wall leaves it alone
    scrivi("txtAngle", "-80");
    premi("cmdCalcola");
    EXPECT_EQ(b.s.v.corrLong.numero(), 1);
    EXPECT_TRUE(b.utente.box.empty());

    const std::string prima = testo("txtResult");
    scrivi("txtYear", "9e150");
    premi("cmdCalcola");
    ASSERT_EQ(b.utente.box.size(), 1U);
    EXPECT_TRUE(b.utente.box[0].starts_with("Il calcolo si ferma: ")) << b.utente.box[0];
    EXPECT_EQ(testo("txtResult"), prima);
    EXPECT_EQ(b.s.in.txtDelta, "23.436");

    premi("cmdTrans");  // the site goes to the main window
    EXPECT_EQ(b.s.in.txtLAT + b.s.in.txtLonG, "45.07-7.68");
}

}  // namespace
}  // namespace ombrelia::sun
