// Several readings of a wall: what is read, what is refused, and the statistics.
#include "sun/letture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "cli/sun.h"
#include "comuni/prova.h"
#include "core/file.h"

namespace ombrelia::sun {
namespace {

TEST(Letture, LinesCommentsAndDividers) {
    const DatiDeclinazione comune{.lat = 45, .lon = -7, .fuso = -1};
    std::string errore;
    const auto l = LeggiLetture("# a wall\r\n\r\n2026-06-21 9:40 -12.5\r\n  2026-6-1,10:05:30;+3.25  # clouds\n\t2026-06-21\t23:59:59\t.5", comune, errore);
    EXPECT_EQ(errore, "");
    ASSERT_EQ(l.size(), 3U);
    EXPECT_EQ(l[0].riga, 3U);
    EXPECT_EQ(l[0].dati.angolo.v, -12.5);
    EXPECT_EQ(l[0].dati.lat.v, 45);
    EXPECT_EQ(l[1].riga, 4U);
    EXPECT_EQ(l[1].testo, "2026-6-1,10:05:30;+3.25");
    EXPECT_EQ(l[1].dati.giorno.v, 1);
    EXPECT_EQ(l[1].dati.secondi.v, 30);
    EXPECT_EQ(l[2].dati.ore.v, 23);
    EXPECT_EQ(l[2].dati.angolo.v, 0.5);
}

TEST(Letture, WrongLinesAreNamed) {
    const struct {
        const char *testo, *errore;
    } casi[] = {
        {"2026-06-21 9:40", "1: write date, time and angle, as in 2026-06-21 9:40 -12.5"},
        {"#\n\n2026-06-21 9:40 1 2", "3: write date, time and angle, as in 2026-06-21 9:40 -12.5"},
        {"21/6/2026 9:40 1", "1: no date: 21/6/2026; write year-month-day, as in 2026-06-21"},
        {"2026-06 9:40 1", "1: no date: 2026-06; write year-month-day, as in 2026-06-21"},
        {"2026-06-21-1 9:40 1", "1: no date: 2026-06-21-1; write year-month-day, as in 2026-06-21"},
        {"2026-02-29 9:40 1", "1: there is no such day: 2026-02-29"},
        {"1900-02-29 9:40 1", "1: there is no such day: 1900-02-29"},
        {"1582-10-10 9:40 1", "1: there is no such day: 1582-10-10"},
        {"2026-13-01 9:40 1", "1: there is no such day: 2026-13-01"},
        {"0-01-01 9:40 1", "1: there is no such day: 0-01-01"},
        {"2026-06-21 9.40 1", "1: no time: 9.40; write hours:minutes, UT, as in 9:40 or 9:40:30"},
        {"2026-06-21 24:00 1", "1: there is no such time: 24:00"},
        {"2026-06-21 9:40 1e2", "1: no number: 1e2; write plain decimals with a point, as in -7.68"},
        {"2026-06-21 9:40 --1", "1: no number: --1; write plain decimals with a point, as in -7.68"},
        {"2026-06-21 9:40 181", "1: 181 is outside -180..180"},
    };
    for (const auto &c : casi) {
        std::string errore;
        EXPECT_TRUE(LeggiLetture(c.testo, {}, errore).empty()) << c.testo;
        EXPECT_EQ(errore, c.errore) << c.testo;
    }
    // Leap days of both calendars are days.
    for (const char *data : {"2000-02-29", "1500-02-29", "4-02-29", "1582-10-4", "1582-10-15"}) {
        DatiDeclinazione d;
        EXPECT_EQ(LeggiData(data, d), "") << data;
    }
}

// Grubbs' critical values for one reading in twenty, both sides, as in the usual tables: the verdict turns
// there. The other readings lie evenly on both sides of their mean.
TEST(Letture, TheReadingThatStandsOut) {
    const struct {
        std::size_t n;
        double critico;
    } casi[] = {{3, 1.1543}, {4, 1.4812}, {5, 1.7150}, {6, 1.8871}, {7, 2.0200}, {8, 2.1266}, {10, 2.2900}, {20, 2.7082}};
    for (const auto &c : casi) {
        std::vector<double> altre;
        for (std::size_t i = 0; i + 1 < c.n; ++i) altre.push_back(static_cast<double>(i) - static_cast<double>(c.n - 2) / 2);
        const auto con = [&](double x) {
            std::vector<double> v = altre;
            v.push_back(x);
            return Riassumi(v);
        };
        // The distance at which the verdict turns, by halving; 90 degrees are far enough for any of them.
        double basso = static_cast<double>(c.n), alto = 90;
        ASSERT_TRUE(!con(basso / 2).stona && con(alto).stona) << c.n;
        for (int i = 0; i < 50; ++i) {
            const double mezzo = (basso + alto) / 2;
            (con(mezzo).stona ? alto : basso) = mezzo;
        }
        const Riassunto r = con(alto);
        EXPECT_EQ(r.lontana, c.n - 1);
        EXPECT_NEAR((alto - r.media) / r.scarto, c.critico, 0.0006) << c.n;
    }
}

TEST(Letture, MeanAndSpreadOnTheCircle) {
    const struct {
        std::vector<double> gradi;
        double media, scarto;
        std::size_t lontana;
        bool stona;
    } casi[] = {
        {{10}, 10, 0, 0, false},
        {{10, 14}, 12, std::sqrt(8.0), 0, false},
        {{1, 2, 3, 4, 5}, 3, std::sqrt(2.5), 0, false},
        {{179, -179, 180}, 180, 1, 0, false},
        {{-179, 179}, 180, std::sqrt(2.0), 0, false},
        {{350, -10, 710}, -10, 0, 0, false},
        {{20.1, 20.2, 19.9, 24, 20.0}, 20.84, 1.7700282, 3, true},
        {{20, 20, 21}, 20.3333333, 0.5773503, 2, true},
    };
    for (const auto &c : casi) {
        const Riassunto r = Riassumi(c.gradi);
        EXPECT_NEAR(r.media, c.media, 1e-6) << c.gradi[0];
        EXPECT_NEAR(r.scarto, c.scarto, 1e-6) << c.gradi[0];
        EXPECT_EQ(r.lontana, c.lontana) << c.gradi[0];
        EXPECT_EQ(r.stona, c.stona) << c.gradi[0];
        EXPECT_EQ(r.distanze.size(), c.gradi.size());
    }
    EXPECT_NEAR(Riassumi({20.1, 20.2, 19.9, 24, 20.0}).distanze[3], 24 - 20.05, 1e-9);
}

// The command: status, standard output and standard error.
struct Uscita {
    int stato;
    std::string detto, errore;
};
Uscita Comando(std::vector<std::string> parole) {
    std::vector<char *> argv;
    for (std::string &p : parole) argv.push_back(p.data());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int stato = cli::Sun(static_cast<int>(argv.size()), argv.data());
    std::fflush(stdout);
    return {stato, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

TEST(ComandoSun, ErrorsNameTheOption) {
    const struct {
        std::vector<std::string> parole;
        const char *errore;
    } casi[] = {
        {{}, "--date is missing"},
        {{"--date"}, "--date needs a date"},
        {{"--date", "x"}, "--date: no date: x"},
        {{"--lat", "91"}, "--lat: 91 is outside -90..90"},
        {{"--lon", "7,68"}, "--lon: no number: 7,68"},
        {{"--zone", "-1", "--zone", "1"}, "--zone stands twice"},
        {{"--date", "2026-06-21", "--time", "9:40", "--lat", "45", "--lon", "-7"}, "--zone is missing"},
        {{"--readings", "x", "--lat", "45"}, "--lon is missing"},
        {{"--readings", "x", "--lat", "45", "--lon", "1", "--angle", "3"}, "--angle: the file of --readings"},
        {{"--readings", "/nowhere/x", "--lat", "45", "--lon", "1"}, "--readings: \"/nowhere/x\""},
        {{"--height", "3"}, "unknown option --height"},
    };
    for (const auto &c : casi) {
        const Uscita u = Comando(c.parole);
        EXPECT_EQ(u.stato, 2) << c.errore;
        EXPECT_EQ(u.detto, "") << c.errore;
        EXPECT_TRUE(u.errore.starts_with(std::string("ombrelia sun: ") + c.errore)) << u.errore;
    }
}

TEST(ComandoSun, OneReadingGivesTheReport) {
    const Uscita u = Comando({"--date", "2026-06-21", "--time", "9:40", "--lat", "45.07", "--lon", "-7.68", "--zone", "-1", "--angle", "12.5", "--dst"});
    EXPECT_EQ(u.stato, 0) << u.errore;
    EXPECT_NE(u.detto.find(" -67.9956 "), std::string::npos) << u.detto;
    EXPECT_TRUE(u.detto.ends_with("  21  19  51\n")) << u.detto;
    EXPECT_EQ(u.detto.find('\r'), std::string::npos);
}

TEST(ComandoSun, ReadingsTellTheirLineAndTheFarOne) {
    const std::string file = (std::filesystem::temp_directory_path() / "ombrelia_letture.txt").string();
    // The Sun's azimuth less the declination of a wall of 20 degrees West, the last but one half an hour late.
    std::string testo = "# muro\n";
    for (const char *ora : {"9:00", "9:30", "10:00", "10:30", "11:00"}) {
        DatiDeclinazione d{.lat = 45, .lon = -7, .giorno = 10, .mese = 4, .anno = 2026};
        ASSERT_EQ(LeggiOra(std::string(ora) == "10:30" ? "11:00" : ora, d), "");
        testo += std::string("2026-04-10 ") + ora + " " + Formato(Declinazione(d, {}).azimut - 20, "0.000") + "\n";
    }
    ASSERT_EQ(ScriviFile(file, testo), std::nullopt);
    const Uscita u = Comando({"--readings", file, "--lat", "45", "--lon", "-7"});
    EXPECT_EQ(u.stato, 0) << u.errore;
    EXPECT_NE(u.detto.find("stands out          " + file + ":5: 2026-04-10 10:30"), std::string::npos) << u.detto;
    EXPECT_NE(u.detto.find("measure it again"), std::string::npos) << u.detto;
    ASSERT_EQ(ScriviFile(file, testo + "2026-04-10 25:00 3\n"), std::nullopt);
    EXPECT_EQ(Comando({"--readings", file, "--lat", "45", "--lon", "-7"}).errore, "ombrelia sun: " + file + ":7: there is no such time: 25:00\n");
    ASSERT_EQ(ScriviFile(file, "# nothing\n"), std::nullopt);
    EXPECT_EQ(Comando({"--readings", file, "--lat", "45", "--lon", "-7"}).stato, 2);
    std::filesystem::remove(file);
}

}  // namespace
}  // namespace ombrelia::sun
