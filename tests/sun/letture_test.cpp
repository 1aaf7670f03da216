// Several readings of a wall: what is read, what is refused, and the statistics.
#include "sun/letture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "cli/sun.h"
#include "comuni/cartella.h"
#include "comuni/prova.h"

namespace ombrelia::sun {
namespace {

TEST(Letture, RowsRemarksSeparatorsAndErrors) {
    for (const auto &r : prova::Tabella("letture.txt")) {
        std::string errore, lette;
        for (const LetturaParete &l : LeggiLetture(prova::Scritto(r.at(0)), {.lat = 45}, errore)) {
            const DatiDeclinazione &d = l.dati;
            lette += std::to_string(l.riga) + ": " + l.testo + ":";
            for (const Valore v : {d.anno, d.mese, d.giorno, d.ore, d.minuti, d.secondi, d.angolo, d.lat})
                lette += " " + Formato(v, "0.00");
            lette += ";";
        }
        EXPECT_EQ(errore, r.at(1)) << r.at(0);
        EXPECT_EQ(lette, prova::Scritto(r.at(2))) << r.at(0);
    }
}

// Grubbs' critical values for one reading in twenty, both sides, as in the usual tables: the verdict turns
// there. The other readings lie evenly on both sides of their mean.
TEST(Letture, TheReadingThatIsOff) {
    const double casi[][2] = {{3, 1.1543}, {4, 1.4812}, {5, 1.7150},  {6, 1.8871},
                              {7, 2.0200}, {8, 2.1266}, {10, 2.2900}, {20, 2.7082}};
    for (const auto &[n, critico] : casi) {
        std::vector<double> v;
        for (double i = 0; i + 1 < n; ++i) v.push_back(i - (n - 2) / 2);
        v.push_back(0);
        const auto con = [&v](double x) { return v.back() = x, Riassumi(v); };
        // The distance at which the verdict turns, by halving; 90 degrees are far enough for any of them.
        double basso = n, alto = 90;
        ASSERT_TRUE(!con(basso / 2).stona && con(alto).stona) << n;
        for (int i = 0; i < 50; ++i) {
            const double mezzo = (basso + alto) / 2;
            (con(mezzo).stona ? alto : basso) = mezzo;
        }
        const Riassunto r = con(alto);
        EXPECT_EQ(r.lontana, v.size() - 1);
        EXPECT_NEAR((alto - r.media) / r.scarto, critico, 0.0006) << n;
    }
}

TEST(Letture, MeanAndSpreadOnTheCircle) {
    for (const auto &c : prova::Tabella("letture_statistiche.txt")) {
        std::vector<double> gradi;
        for (const std::string &g : prova::Divisi(c.at(0), ' ')) gradi.push_back(std::stod(g));
        const Riassunto r = Riassumi(gradi);
        EXPECT_NEAR(r.media, std::stod(c.at(1)), 1e-6) << c.at(0);
        EXPECT_NEAR(r.scarto, std::stod(c.at(2)), 1e-6) << c.at(0);
        EXPECT_EQ(std::to_string(r.lontana), c.at(3)) << c.at(0);
        EXPECT_EQ(r.stona, c.at(4) == "1") << c.at(0);
        EXPECT_EQ(r.distanze.size(), gradi.size());
    }
    EXPECT_NEAR(Riassumi({20.1, 20.2, 19.9, 24, 20.0}).distanze[3], 24 - 20.05, 1e-9);
}

class ComandoSun : public prova::InCartella {
protected:
    int stato = 0;
    std::string detto, errore;  // standard output and standard error
    void comando(const std::string &parole) {
        std::vector<std::string> divise = prova::Divisi(parole, ' ');
        std::vector<char *> argv;
        for (std::string &p : divise) argv.push_back(p.data());
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        stato = cli::Sun(static_cast<int>(argv.size()), argv.data());
        std::fflush(stdout);
        detto = testing::internal::GetCapturedStdout();
        errore = testing::internal::GetCapturedStderr();
    }
};

TEST_F(ComandoSun, ErrorsNameTheOption) {
    for (const auto &r : prova::Tabella("sun_errori.txt")) {
        comando(r.at(0));
        EXPECT_TRUE(stato == 2 && detto.empty()) << r.at(0);
        EXPECT_TRUE(errore.starts_with("ombrelia sun: " + r.at(1))) << errore;
    }
    comando("--date 2026-06-21 --time 9:40 --lat 45.07 --lon -7.68 --zone -1 --angle 12.5 --dst");
    EXPECT_EQ(stato, 0) << errore;
    EXPECT_NE(detto.find(" -67.9956 "), std::string::npos) << detto;
    EXPECT_TRUE(detto.ends_with("  21  19  51\n")) << detto;
    EXPECT_EQ(detto.find('\r'), std::string::npos);
}

TEST_F(ComandoSun, ReadingsTellTheRowAndTheOneFarOff) {
    // The Sun's azimuth less the declination of a wall of 20 degrees West, the last but one half an hour late.
    std::string testo = "# muro\n";
    for (const std::string ora : {"9:00", "9:30", "10:00", "10:30", "11:00"}) {
        DatiDeclinazione d{.lat = 45, .lon = -7, .giorno = 10, .mese = 4, .anno = 2026};
        ASSERT_EQ(LeggiOra(ora == "10:30" ? "11:00" : ora, d), "");
        testo += "2026-04-10 " + ora + " " + Formato(Declinazione(d, {}).azimut - 20, "0.000") + "\n";
    }
    const auto leggi = [this](const std::string &t) { scrivi("muro.txt", t), comando("--readings muro.txt --lat 45 --lon -7"); };
    leggi(testo);
    EXPECT_EQ(stato, 0) << errore;
    EXPECT_NE(detto.find("stands out          muro.txt:5: 2026-04-10 10:30"), std::string::npos) << detto;
    EXPECT_NE(detto.find("measure it again"), std::string::npos) << detto;
    leggi(testo + "2026-04-10 25:00 3\n");
    EXPECT_EQ(errore, "ombrelia sun: muro.txt:7: there is no such time: 25:00\n");
    leggi("# nothing\n");
    EXPECT_EQ(stato, 2);
}

}  // namespace
}  // namespace ombrelia::sun
