// The board's report, what it writes back, and where it stops.
#include "sun/declinazione.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "comuni/prova.h"

namespace ombrelia::sun {
namespace {

DatiDeclinazione Torino() {
    return {.lat = 45.07, .lon = -7.68, .giorno = 21, .mese = 6, .anno = 2026, .ore = 9, .minuti = 40, .angolo = 12.5, .fuso = -1, .dst = true};
}

// The whole text once, as it stands; the tables below have the numbers.
TEST(Declinazione, TheReportAsItStands) {
    const EsitoDeclinazione e = Declinazione(Torino(), {});
    EXPECT_EQ(e.rapporto,
              "Azimut del Sole:  -55.4956\r\n"
              "Declinazione del quadrante solare: -67.9956    East\r\n"
              "Equazione del tempo: -1  48.21       -1.8035\r\n"
              "\r\n"
              "Latitudine:   45   4   12\r\n"
              "Longitudine: -7   40   47\r\n"
              "\r\n"
              "Longitudine del meridiano del fuso:  -15\r\n"
              "Locale longitudine in h m s:  -0 : 30 : 43\r\n"
              "\r\n"
              "ora del quadrante solare:  10   8   54\r\n"
              "mezzodì:  13   31   5\r\n"
              "angolo orario:   -27.7709\r\n"
              "\r\n"
              "Ascensione Retta : 6   0   14\r\n"
              "declinazione del Sole:  23.4358\r\n"
              "\r\n"
              "Altezza del Sole: 58.7510\r\n"
              "\r\n"
              "Julian Day: 2461212.90278\r\n"
              "\r\n"
              "Arco diurno:      15   37   32\r\n"
              "Il Sole sorge:   5  42  18\r\n"
              "Il sole tramonta:   21  19  51");
    EXPECT_EQ(e.errore, "");
}

// A row's values behind their labels, each with the line ends that follow.
std::string Atteso(const std::vector<std::string> &riga, std::size_t da) {
    constexpr struct {
        const char *etichetta, *fine;
    } RIGHE[] = {
        {"Azimut del Sole:  ", "\r\n"},
        {"Declinazione del quadrante solare: ", "\r\n"},
        {"Equazione del tempo: ", "\r\n\r\n"},
        {"Latitudine:   ", "\r\n"},
        {"Longitudine: ", "\r\n\r\n"},
        {"Longitudine del meridiano del fuso:  ", "\r\n"},
        {"Locale longitudine in h m s:  ", "\r\n\r\n"},
        {"ora del quadrante solare:  ", "\r\n"},
        {"mezzodì:  ", "\r\n"},
        {"angolo orario:   ", "\r\n\r\n"},
        {"Ascensione Retta : ", "\r\n"},
        {"declinazione del Sole:  ", "\r\n\r\n"},
        {"Altezza del Sole: ", "\r\n\r\n"},
        {"Julian Day: ", "\r\n\r\n"},
        {"Arco diurno:      ", "\r\n"},
    };
    std::string t;
    for (const auto &r : RIGHE) {
        std::string valore = riga.at(da++);
        std::replace(valore.begin(), valore.end(), '_', ' ');
        t += r.etichetta + valore + r.fine;
    }
    if (riga.at(da) == "notte") return t + "Il sole non sorge  ";
    if (riga.at(da) == "giorno") return t + "Il sole non tramonta  ";
    std::string sorge = riga.at(da), tramonta = riga.at(da + 1);
    std::replace(sorge.begin(), sorge.end(), '_', ' ');
    std::replace(tramonta.begin(), tramonta.end(), '_', ' ');
    return t + "Il Sole sorge:   " + sorge + "\r\nIl sole tramonta:   " + tramonta;
}

TEST(Declinazione, ReportsToTheLastDigit) {
    int righe = 0, notti = 0, giorni = 0;
    for (const auto &r : prova::Tabella("sole_rapporti.txt")) {
        const auto n = [&r](std::size_t i) { return Val(r.at(i)); };
        const EsitoDeclinazione e = Declinazione({.lat = n(0),
                                                  .lon = n(1),
                                                  .giorno = n(2),
                                                  .mese = n(3),
                                                  .anno = n(4),
                                                  .ore = n(5),
                                                  .minuti = n(6),
                                                  .secondi = n(7),
                                                  .angolo = n(8),
                                                  .fuso = n(9),
                                                  .dst = n(10) == 1},
                                                 {});
        std::string chi;
        for (std::size_t i = 0; i < 11; ++i) chi += r.at(i) + " ";
        EXPECT_EQ(e.rapporto, Atteso(r, 12)) << chi;
        EXPECT_EQ(e.txtDelta.value_or(""), r.at(11)) << chi;
        EXPECT_EQ(e.corrLong, e.declinazione > 0) << chi;
        ++righe;
        notti += r.back() == "notte";
        giorni += r.back() == "giorno";
    }
    std::printf("%d reports compared, %d polar nights, %d polar days\n", righe, notti, giorni);
    EXPECT_GE(righe, 100);
    EXPECT_GE(notti, 3);
    EXPECT_GE(giorni, 3);
}

TEST(Declinazione, LabelsGoThroughTheDictionary) {
    Dizionario d;
    d.Interpreta("\"Azimut del Sole:  |Azimuth of the Sun:  \r\nwest|ovest\r\nIl sole tramonta:   |Sunset:   \r\n\"\r\n");
    DatiDeclinazione dati = Torino();
    dati.angolo = -80;
    const std::string t = Declinazione(dati, d).rapporto;
    EXPECT_TRUE(t.starts_with("Azimuth of the Sun:  -55.4956\r\nDeclinazione del quadrante solare: 24.5044    ovest\r\n")) << t;
    EXPECT_TRUE(t.ends_with("\r\nSunset:   21  19  51")) << t;
}

// A fault ends the calculation where it stands; what was written before it stays written.
TEST(Declinazione, FaultsStopItWhereTheyAre) {
    const Valore no = Valore::nessuno();
    const struct {
        Valore DatiDeclinazione::*campo, valore;
        bool delta, txtDelta, txtAO;
    } casi[] = {
        {&DatiDeclinazione::lat, no, false, false, false},      {&DatiDeclinazione::fuso, no, false, false, false},
        {&DatiDeclinazione::angolo, no, false, false, false},   {&DatiDeclinazione::anno, 1e200, false, false, false},
        {&DatiDeclinazione::lon, 1.7e308, true, true, false},
    };
    for (const auto &c : casi) {
        DatiDeclinazione dati = Torino();
        dati.*c.campo = c.valore;
        const EsitoDeclinazione e = Declinazione(dati, {});
        EXPECT_NE(e.errore, "") << c.valore.v;
        EXPECT_EQ(e.rapporto, "") << c.valore.v;
        EXPECT_EQ(e.deltaOpz.has_value(), c.delta) << c.valore.v;
        EXPECT_EQ(e.txtDelta.has_value(), c.txtDelta) << c.valore.v;
        EXPECT_EQ(e.txtAO.has_value(), c.txtAO) << c.valore.v;
        EXPECT_FALSE(e.corrLong) << c.valore.v;
    }
}

TEST(Declinazione, ZoneAndSummerTimeMoveTheClockAlone) {
    const EsitoDeclinazione prima = Declinazione(Torino(), {});
    DatiDeclinazione dati = Torino();
    dati.fuso = 3;
    dati.dst = false;
    const EsitoDeclinazione dopo = Declinazione(dati, {});
    EXPECT_EQ(dopo.oraAngolo.v, prima.oraAngolo.v);
    EXPECT_EQ(dopo.declinazione.v, prima.declinazione.v);
    EXPECT_EQ(dopo.arco.v, prima.arco.v);
    EXPECT_NEAR(dopo.mezzodi.v, prima.mezzodi.v - 4, 1e-12);
}

}  // namespace
}  // namespace ombrelia::sun
