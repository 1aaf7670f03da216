// The series of the Sun against printed values and a precise theory, the board's report, the conversions of degrees.
#include "sun/sole.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>

#include "comuni/prova.h"
#include "core/angoli.h"
#include "sun/declinazione.h"

namespace ombrelia::sun {
namespace {

TEST(EqTempo, DatesAsTextsAndNumbers) {
    for (const auto &r : prova::Tabella("sole_date.txt")) {
        std::string mese = r.at(1), giorno = r.at(2);
        Sole sole;
        const Valore v = EqTempo(r.at(0), mese, giorno, Val(r.at(3)), 0, 0, sole);
        EXPECT_EQ(mese + giorno, r.at(4) + r.at(5)) << r.at(0);
        EXPECT_NEAR(sole.giuliano.v, Val(r.at(6)).v, 1e-8) << r.at(0);
        // Whole minutes and rest have the sign and add up.
        EXPECT_EQ((sole.minuti + sole.resto).v, v.v);
        EXPECT_TRUE(sole.minuti * v >= 0 && sole.resto * v >= 0 && Abs(sole.resto) < 1) << r.at(0);
    }
}

TEST(Sole, PrintedValuesAndPreciseTheoryFrom1900To2100) {
    std::map<std::string, double> peggiori;
    int righe = 0;
    for (const char *tavola : {"sole_pubblicati.txt", "sole_efemeridi.txt"}) {
        for (const auto &r : prova::Tabella(tavola)) {
            const auto n = [&r](std::size_t i) { return Val(r.at(i)); };
            const EsitoDeclinazione e = Declinazione(
                {.lat = n(4), .lon = n(5), .giorno = n(0), .mese = n(1), .anno = n(2), .ore = n(3), .fuso = n(6)}, {});
            const std::map<std::string, Valore> gradi{
                {"delta", Gradi(e.sole.delta)}, {"tempo", e.equazione}, {"azimut", e.azimut}, {"altezza", e.altezza}};
            const std::map<std::string, Valore> ore{{"ascensione", e.sole.ascensione},
                                                    {"mezzodi", e.mezzodi},
                                                    {"sorge", e.mezzodi - e.arco / 2},
                                                    {"tramonta", e.mezzodi + e.arco / 2}};
            const std::string &quale = r.at(7);
            const bool orologio = ore.contains(quale);  // taken around the clock
            const double trovato = (orologio ? ore : gradi).at(quale).v;
            const double errore = std::fabs(std::remainder(trovato - n(8).v, orologio ? 24 : 1e9));
            EXPECT_TRUE(errore <= n(9).v) << r.at(10) << ": " << r.at(2) << ' ' << quale << ' ' << trovato << " for " << r.at(8);
            peggiori[quale] = std::max(peggiori[quale], errore);
            ++righe;
        }
    }
    std::printf("%d values of the Sun compared; worst:\n", righe);
    for (const auto &[quale, p] : peggiori) std::printf("  %-10s %.5f\n", quale.c_str(), p);
    EXPECT_GE(righe, 24 + 48);
}

TEST(Conversioni, DecimalToSexagesimalAndBack) {
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

DatiDeclinazione Torino() {
    return {
        .lat = 45.07, .lon = -7.68, .giorno = 21, .mese = 6, .anno = 2026, .ore = 9, .minuti = 40, .angolo = 12.5, .fuso = -1};
}

TEST(Declinazione, ReportsToTheLastDigit) {
    const auto etichette = prova::Tabella("sole_etichette.txt");
    int righe = 0, notti = 0, giorni = 0;
    for (const auto &r : prova::Tabella("sole_rapporti.txt")) {
        std::string atteso, chi;
        for (std::size_t i = 0; i < 11; ++i) chi += r.at(i) + " ";
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
        EXPECT_EQ(e.rapporto, atteso) << chi;
        EXPECT_EQ(e.txtDelta.value_or(""), r.at(11)) << chi;
        EXPECT_EQ(e.corrLong, e.declinazione > 0) << chi;
        EXPECT_EQ(e.errore, "") << chi;
        ++righe;
    }
    std::printf("%d reports compared, %d polar nights, %d polar days\n", righe, notti, giorni);
    EXPECT_TRUE(righe >= 100 && notti >= 3 && giorni >= 3);
}

TEST(Declinazione, LabelsGoThroughTheDictionary) {
    Dizionario d;
    d.Interpreta("\"Azimut del Sole:  |Azimuth of the Sun:  \r\nwest|ovest\r\nIl sole tramonta:   |Sunset:   \r\n\"\r\n");
    DatiDeclinazione dati = Torino();
    dati.angolo = -80;
    const std::string t = Declinazione(dati, d).rapporto;
    EXPECT_TRUE(t.starts_with("Azimuth of the Sun:  -55.4956\r\nDeclinazione del quadrante solare: 24.5044    ovest\r\n")) << t;
    EXPECT_TRUE(t.ends_with("\r\nSunset:   20  19  51")) << t;
}

// A fault ends the calculation where it stands; what was written before it stays written.
TEST(Declinazione, FaultsStopItWhereTheyAre) {
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

}  // namespace
}  // namespace ombrelia::sun
