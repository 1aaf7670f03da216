// The series of the Sun against printed values and a precise theory, and the conversions of degrees.
#include "sun/sole.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

#include "comuni/prova.h"
#include "core/angoli.h"
#include "sun/declinazione.h"

namespace ombrelia::sun {
namespace {

TEST(EqTempo, DatesTextsAndNumbers) {
    for (const auto &r : prova::Tabella("sole_date.txt")) {
        std::string mese = r.at(1), giorno = r.at(2);
        SoleDelPannello sole;
        const Valore v = EqTempo(r.at(0), mese, giorno, Val(r.at(3)), 0, 0, sole);
        EXPECT_EQ(mese + giorno, r.at(4) + r.at(5)) << r.at(0);
        EXPECT_NEAR(sole.giuliano.v, Val(r.at(6)).v, 1e-8) << r.at(0);
        // Whole minutes and rest have the sign and add up.
        EXPECT_EQ((sole.minuti + sole.resto).v, v.v);
        EXPECT_TRUE(sole.minuti * v >= 0 && sole.resto * v >= 0 && Abs(sole.resto) < 1) << r.at(0);
    }
}

TEST(Sole, PrintedValuesAndTheoryFrom1900To2100) {
    int righe = 0;
    for (const char *tavola : {"sole_pubblicati.txt", "sole_efemeridi.txt"}) {
        for (const auto &r : prova::Tabella(tavola)) {
            const auto n = [&r](std::size_t i) { return Val(r.at(i)); };
            const EsitoDeclinazione e = Declinazione(
                {.lat = n(4), .lon = n(5), .giorno = n(0), .mese = n(1), .anno = n(2), .ore = n(3), .fuso = n(6)}, {});
            const Valore sorge = e.mezzodi - e.arco / 2, tramonta = e.mezzodi + e.arco / 2;
            const std::map<std::string, Valore> gradi{
                {"delta", Gradi(e.sole.delta)}, {"tempo", e.equazione}, {"azimut", e.azimut}, {"altezza", e.altezza}};
            const std::map<std::string, Valore> ore{
                {"ascensione", e.sole.ascensione}, {"mezzodi", e.mezzodi}, {"sorge", sorge}, {"tramonta", tramonta}};
            const bool orologio = ore.contains(r.at(7));  // taken around the clock
            const double trovato = (orologio ? ore : gradi).at(r.at(7)).v;
            const double errore = std::fabs(std::remainder(trovato - n(8).v, orologio ? 24 : 1e9));
            EXPECT_TRUE(errore <= n(9).v) << r.at(10) << ": " << r.at(2) << ' ' << r.at(7) << ' ' << trovato << " for "
                                          << r.at(8);
            ++righe;
        }
    }
    EXPECT_GE(righe, 24 + 48);
}

TEST(Conversioni, DecimalAndSexagesimal) {
    for (const auto &r : prova::Tabella("sole_gradi.txt")) {
        const Valore valore = Val(r.at(0)), segno = valore < 0 ? -1 : 1;
        const Sessagesimale s = GradiDecToSex(valore);
        EXPECT_EQ(s.gradi.v, Val(r.at(1)).v) << r.at(0);
        EXPECT_EQ(s.primi.v, Val(r.at(2)).v) << r.at(0);
        EXPECT_NEAR(s.secondi.v, Val(r.at(3)).v, 1e-6) << r.at(0);
        EXPECT_EQ(GradiSexToDec(valore < 0 ? "-" : "+", segno * s.gradi, segno * s.primi, segno * s.secondi),
                  Formato(valore, "0.00000"));
    }
    EXPECT_EQ(GradiSexToDec("-", 0, 0, 0), "-0.00000");  // the sign is put in front of whatever stands there
    EXPECT_EQ(GradiSexToDec("-", 1, 90, 3600), "-3.50000");
    EXPECT_EQ(GradiSexToDec("-", 1, Valore::nessuno(), 0), "");
    // The report's split goes down with negative hours.
    const Sessagesimale ore = OreMinutiSecondi(-0.25);
    EXPECT_TRUE(ore.gradi == -1 && ore.primi == 45 && ore.secondi == 0);
}

}  // namespace
}  // namespace ombrelia::sun
