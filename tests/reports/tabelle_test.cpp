// Labels, order and values of the reports on a grid of dials: heads to the blank, rows, special texts, what stays behind.
#include <cmath>

#include "reports/rapporto_prova.h"

namespace ombrelia {
namespace {

using prova::BancoRapporti;
using prova::Numero;
using prova::RigaCon;
using prova::Righe;
using prova::RigheTabella;

// The number behind a label.
double Valore_(const Rapporto &r, std::string_view etichetta) { return Numero(RigaCon(r, etichetta).substr(etichetta.size())); }

TEST(DatiFondamentali, LabelsInTheirOrder) {
    BancoRapporti b({{"txtInc", "0"}, {"txtDec", "30"}}, {"ChCentimetro"});
    b.imposta({{"TxtStilo", "200"}});
    const auto righe = Righe(b.apri("cmdData"));
    const char *inizi[] = {
        "PARAMETRI PRIMARI DEL QUADRANTE SOLARE ORIGINALE",
        "Latitudine  45.74805",
        "Longitudine 0",
        "Declinazione 30",
        "Inclinazione zenitale 0",
        "ordinata orizzonte = 0 mm",
        "T R I A N G O L O  dello S T I L O",
        "Ortostilo: cateto 200 mm",
        "Assostilo: ipotenusa ",
        "Distanza Centro Piede: cateto CG  ",
        "Elevazione dello stilo ",
        "Angolo sustilare ",
        "Angolo orario sustilare, angolo al polo ",
        "Longitudine per lemniscata sustilare ",
        "Eccentricità linee diurne ",
        "Solstizi ",
        "linee diurne 20° ",
        "linee diurne 11.5° ",
        "linee diurne  23.445 °",
        "Costante locale = 60 p",
        "CM = ",
        "CG = ",
        "GP = ",
        "sigma = ",
        "epsilon = ",
        "CX = ",
        "ORA VERA SUSTILARE ",
        "declinazione sole a scelta   23.445  °",
        "Legenda : G piede e origine coordinate, C centro, P incontro sustilare equinoziale, ",
        "M incontro linea meridiana equinoziale,S incontro sustilare con retta orizzontale da M.",
        "Metodo delle lunghezze d'ombra : se distanza C solstizio e, si C solstizio i, se-si distanza tra solstizi, ",
        "ce distanza C equinoziale, se-ce solstizio e equinoziale, si-se solstizio i equinoziale",
        "Lia Berna frazione Colle 7 00100 Borgo ",
        "Ascisse delle intersezioni dei solstizi con l'orizzonte ",
        "Ordinate delle intersezioni dei solstizi con la retta x = 0 ",
        "Ascisse delle intersezioni della linea diurna a scelta con l'orizzonte ",
        "Ordinate delle intersezioni della linea diurna a scelta con la retta x = 0 ",
        "",
        "Coo equinoziali delle ore. L'origine è P, incontro equinoziale-sustilare",
        "AO                         ora                        Ascissa eq"};
    ASSERT_EQ(righe.size(), std::size(inizi) + 25 + 2);
    for (std::size_t i = 0; i < std::size(inizi); ++i) EXPECT_TRUE(righe[i].starts_with(inizi[i])) << i << ": " << righe[i];
    EXPECT_TRUE(righe[20].find(" mm   MS = ") != std::string::npos) << righe[20];
}

// A wall's triangle by the textbook: elevation asin(cos lat cos dec), substyle atan(sin dec / tan lat), lengths from them.
TEST(DatiFondamentali, TheStyleOfAWall) {
    for (const double lat : {30.0, 45.0, 60.0})
        for (const double dec : {-70.0, -20.0, 10.0, 50.0}) {
            BancoRapporti b({{"txtInc", "0"}});
            b.imposta({{"txtLAT", TestoNumero(lat)}, {"txtDec", TestoNumero(dec)}});
            const Rapporto &r = b.apri("cmdData");
            const double G = std::acos(-1.0) / 180, epsilon = std::asin(std::cos(lat * G) * std::cos(dec * G)), gn = 0.195;
            EXPECT_NEAR(std::fabs(Valore_(r, "Elevazione dello stilo ")), epsilon / G, 1e-5) << lat << ' ' << dec;
            EXPECT_NEAR(Valore_(r, "Angolo sustilare "), std::atan(std::sin(dec * G) / std::tan(lat * G)) / G, 1e-5);
            EXPECT_NEAR(Valore_(r, "Assostilo: ipotenusa "), gn / std::sin(epsilon), 1.1e-5);
            EXPECT_NEAR(Valore_(r, "CG = "), gn / std::tan(epsilon), 1e-5);
            EXPECT_NEAR(Valore_(r, "CM = "), gn / std::sin(epsilon) / std::sin(lat * G), 1e-5);
            EXPECT_NEAR(Valore_(r, "Solstizi "), std::cos(epsilon) / std::sin(23.445 * G), 1e-5);
        }
}

TEST(DatiFondamentali, EquatorHorizontalAndWhatStaysBehind) {
    BancoRapporti equatore({{"txtLAT", "0"}, {"txtInc", "0"}});
    for (const std::string &riga : Righe(equatore.apri("cmdData"))) EXPECT_EQ(riga.find("inf"), std::string::npos) << riga;
    EXPECT_EQ(equatore.s.v.latR.numero(), 1e-07);

    BancoRapporti piano({{"txtInc", "90"}, {"txtDec", "0"}, {"TxtFraz", "4"}});
    const auto righe = RigheTabella(piano.apri("cmdData"), 0);
    ASSERT_EQ(righe.size(), 49U);
    for (std::size_t i = 1; i < 48; ++i) EXPECT_NEAR(Numero(righe[i][2]), -Numero(righe[48 - i][2]), 1e-9) << righe[i][1];

    BancoRapporti sud({{"txtLAT", "-45"}});
    sud.apri("cmdData");
    EXPECT_LT(sud.s.v.latR.numero(), 0);
    EXPECT_EQ(sud.s.in.txtDelta, "23.445");
    EXPECT_NE(sud.s.v.deltaOpz.numero(), 23.445) << "a discriminant stays in the optional declination";

    // A chosen day line of declination 0 has no cotangent, and repeats the solstices' conic; its eccentricity ends the line.
    BancoRapporti zero({{"txtDelta", "0"}, {"txtInc", "0"}});
    const Rapporto &r = zero.apri("cmdData");
    EXPECT_EQ(RigaCon(r, "linee diurne  "), "linee diurne  0 °");
    const auto coda = [](const std::string &t) { return t.substr(t.rfind("-0.0")); };
    EXPECT_EQ(coda(RigaCon(r, "Ordinate delle intersezioni dei sol")), coda(RigaCon(r, "Ordinate delle intersezioni della")));
}

TEST(OreVere, HeadsToTheBlank) {
    const struct {
        const char *lat, *dec, *inc;
        std::string schermo, carta;
    } casi[] = {
        {"45", "10", "0",
         "T ora      ascissa    ordinata         ascissa                   ordinata                             se               "
         "      "
         "       si                     se-si                         ce                        se-ce                    si-ce   "
         "       "
         "          delta",
         "T ora   ascissa    ordinata    ascissa            ordinata              se                si                   se-si   "
         "       "
         "     ce                  se-ce             si-ce                    delta"},
        {"45", "170", "0",
         "T ora      ascissa    ordinata         ascissa                   ordinata                             si               "
         "      "
         "       se                     se-si                         ce                        si-ce                    se-ce   "
         "       "
         "          delta",
         "T ora   ascissa    ordinata    ascissa            ordinata              si                si                   se-si   "
         "       "
         "     ce                  si-ce             se-ce                    delta"},
        {"45", "10", "25",
         "  ora      ascissa    ordinata         ascissa                   ordinata                              si              "
         "      "
         "        se                     se-si                         ce                        si-ce                    se-ce  "
         "       "
         "           delta",
         "  ora   ascissa    ordinata    ascissa            ordinata              si                si                   se-si   "
         "       "
         "     ce                  si-ce             se-ce                    delta"},
        {"45", "10", "80",
         "  ora      ascissa    ordinata         ascissa                   ordinata                              se              "
         "      "
         "        si                     se-si                         ce                        se-ce                    si-ce  "
         "       "
         "           delta",
         "  ora   ascissa    ordinata    ascissa            ordinata              se                si                   se-si   "
         "       "
         "     ce                  se-ce             si-ce                    delta"},
        {"0", "170", "0",
         "  ora      ascissa    ordinata         ascissa                   ordinata                              si              "
         "      "
         "        se                     se-si                         ce                        se-ce                    si-ce  "
         "       "
         "           delta",
         ""},
    };
    for (const auto &c : casi) {
        BancoRapporti b({{"txtLAT", c.lat}, {"txtDec", c.dec}, {"txtInc", c.inc}});
        const Rapporto &r = b.apri("optHorae");
        const std::string inizio = c.schermo.substr(0, 5);
        EXPECT_EQ(RigaCon(r, inizio), c.schermo) << c.lat << ' ' << c.dec << ' ' << c.inc;
        EXPECT_EQ(Righe(r)[c.lat[0] == '0' ? 3 : 2], "  hour ");
        if (!c.carta.empty()) {
            EXPECT_EQ(RigaCon(b.stampa(), inizio), c.carta) << c.lat << ' ' << c.dec << ' ' << c.inc;
        }
    }
}

// Shadow lengths from the centre by the law of sines in the triangle of style and ray, for a direct south wall at noon.
TEST(OreVere, ShadowLengthsAtNoon) {
    BancoRapporti b(
        {{"txtLAT", "45"}, {"txtDec", "0"}, {"txtInc", "0"}, {"txtLonG", "-15"}, {"TxtInizio", "12"}, {"TxtFine", "12"}});
    const auto riga = RigheTabella(b.apri("optHorae"), 0);
    ASSERT_EQ(riga.size(), 1U) << "equal hours give one row";
    const double G = std::acos(-1.0) / 180, assostilo = 0.195 / std::sin(45 * G), d = 23.445;
    // Angle at the tip between style and ray is 90 - delta, at the wall 45 + delta.
    const auto ombra = [&](double delta) { return assostilo * std::sin((90 - delta) * G) / std::sin((45 + delta) * G); };
    EXPECT_EQ(riga[0][0], "12.00");
    EXPECT_EQ(riga[0][4], "inf");
    EXPECT_NEAR(Numero(riga[0][5]), ombra(-d), 1.01e-4);
    EXPECT_NEAR(Numero(riga[0][6]), ombra(d), 1.01e-4);
    EXPECT_NEAR(Numero(riga[0][8]), ombra(0), 1.01e-4);
    EXPECT_NEAR(Numero(riga[0][7]), ombra(-d) - ombra(d), 1.01e-4);
    EXPECT_EQ(riga[0].back(), "23.445");
}

TEST(OreVere, RowsOfSpecialDials) {
    BancoRapporti est(
        {{"txtLAT", "45"}, {"txtDec", "-90"}, {"txtInc", "0"}, {"TxtInizio", "7"}, {"TxtFine", "8"}, {"TxtFraz", "1"}});
    for (const int n : {0, 1})
        for (const auto &riga : RigheTabella(est.apri("optHorae"), n)) {
            EXPECT_EQ(riga[5] + riga[6] + riga[8], "infinfinf");
            EXPECT_NE(riga[7] + riga[9] + riga[10], "") << "their differences are printed";
            EXPECT_EQ(riga.size(), n == 0 ? 12U : 11U);
        }

    BancoRapporti zero({{"txtDelta", "0"}, {"txtInc", "0"}, {"txtDec", "10"}});
    for (const auto &riga : RigheTabella(zero.apri("optHorae"), 0)) {
        EXPECT_EQ(riga[5], riga[6]);
        EXPECT_EQ(riga[5], riga[8]);
        EXPECT_EQ(riga[7] + riga[9] + riga[10], "000");
    }
    BancoRapporti rovescio({{"TxtInizio", "12"}, {"TxtFine", "11"}});
    EXPECT_TRUE(RigheTabella(rovescio.apri("optHorae"), 0).empty());

    BancoRapporti equatore({{"txtLAT", "0"}, {"txtInc", "25"}});
    EXPECT_EQ(Righe(equatore.apri("optHorae"))[0], "  LATITUDINE ZERO, declinazione gnomonica = 0");
    for (const auto &riga : RigheTabella(equatore.s.rapporti.aperto, 0)) {
        EXPECT_EQ(riga[8] + riga[9] + riga[10], "infinfinf");
        EXPECT_NEAR(Numero(riga[5]), 0.195 / std::tan(23.445 * std::acos(-1.0) / 180), 1e-4);
    }
    BancoRapporti muro({{"txtLAT", "0"}, {"txtInc", "0"}, {"txtDec", "90"}});
    EXPECT_EQ(Righe(muro.apri("optHorae"))[0], "  LATITUDINE ZERO");
    for (const auto &riga : RigheTabella(muro.s.rapporti.aperto, 0)) EXPECT_EQ(riga[1], "inf");
    EXPECT_NE(RigaCon(muro.s.rapporti.aperto, "latitudine ").find(" metri, assostilo"), std::string::npos);
}

// A declination on a horizontal plane means nothing on the screen; on paper it is still computed with.
TEST(OreVere, HorizontalPlaneOnScreenAndPaper) {
    BancoRapporti b({{"txtInc", "90"}, {"txtDec", "20"}}), senza({{"txtInc", "90"}, {"txtDec", "0"}});
    const auto schermo = RigheTabella(b.apri("optHorae"), 0), giusto = RigheTabella(senza.apri("optHorae"), 0);
    for (std::size_t i = 0; i < schermo.size(); ++i) EXPECT_EQ(schermo[i][5], giusto[i][5]);
    EXPECT_NE(RigaCon(b.stampa(), "sigma ="), RigaCon(b.s.rapporti.aperto, "sigma ="));
}

TEST(Stagionali, SpecialRows) {
    BancoRapporti b({{"txtInc", "0"}, {"TxtInizio", "23"}, {"TxtFine", "24"}, {"TxtFraz", "2"}});
    const Rapporto &r = b.apri("OptIta");
    for (const int n : {1, 2}) {
        const auto righe = RigheTabella(r, n);
        ASSERT_EQ(righe.size(), 3U);
        EXPECT_EQ(righe[2][2] + righe[2][4], "0inf");
        EXPECT_NE(righe[1][4], "inf");
    }
    EXPECT_EQ(RigheTabella(r, 2)[0][1], "0.6000");
    EXPECT_EQ(RigheTabella(r, 2)[0][3], "-0.8000");
    EXPECT_EQ(RigaCon(r, "lat  "), "lat   45.748  -20            0 ");

    BancoRapporti piano({{"txtInc", "90"}, {"txtDec", "30"}, {"TxtInizio", "1"}, {"TxtFine", "5"}, {"TxtFraz", "1"}});
    const auto ore = RigheTabella(piano.apri("OptBab"), 0);
    ASSERT_EQ(ore.size(), 11U);
    EXPECT_EQ(ore.front()[0] + ore.back()[0], "12.0022.00");

    EXPECT_EQ(Righe(piano.apri("OptTEMP"))[0], "iz0 = 90");
    const auto temporarie = RigheTabella(piano.s.rapporti.aperto, 0);
    ASSERT_EQ(temporarie.size(), 11U);
    EXPECT_EQ(temporarie[5][2], "inf") << "noon is upright";
    EXPECT_EQ(Righe(piano.s.rapporti.aperto).back(), "Lia Berna 220408 ");
    EXPECT_EQ(Righe(piano.stampa())[0], "iz_o = 90");

    BancoRapporti muro({{"txtInc", "0"}, {"TxtFraz", "1"}});
    const auto cinque = RigheTabella(muro.apri("OptTEMP"), 0);
    ASSERT_EQ(cinque.size(), 5U);
    EXPECT_EQ(cinque[0][4], "inf");
    EXPECT_EQ(cinque[0][2], "0.0000");
    BancoRapporti equatore({{"txtLAT", "0"}});
    EXPECT_TRUE(equatore.apri("OptTEMP").tabelle.empty());
}

TEST(Intersezioni, FifthTableIsTheThirdUnderAnotherLabel) {
    BancoRapporti b({{"txtDelta", "7"}, {"TxtFraz", "1"}});
    const Rapporto &r = b.apri("OptInter");
    auto terza = RigheTabella(r, 2), quinta = RigheTabella(r, 4);
    ASSERT_EQ(terza.size(), 12U);
    ASSERT_EQ(quinta.size(), 12U);
    for (std::size_t i = 0; i < terza.size(); ++i) {
        EXPECT_EQ(terza[i].back() + quinta[i].back(), "11.57");
        terza[i].back() = quinta[i].back();
        EXPECT_EQ(terza[i], quinta[i]);
    }
    for (const auto &riga : RigheTabella(r, 3)) EXPECT_EQ(riga[2] + riga[3], riga[4] + riga[5]) << "the equinox has one line";
}

TEST(Intersezioni, DayLinesInMillimetres) {
    BancoRapporti b({{"txtInc", "0"}, {"txtDec", "0"}, {"txtMinus", "-100"}, {"txtMax", "100"}, {"TxtStilo", "100"}},
                    {"ChCentimetro"});
    const auto righe = RigheTabella(b.apri("Option1"), 0);
    ASSERT_EQ(righe.size(), 5U);
    EXPECT_EQ(righe[1][0], "-50.00");
    ASSERT_EQ(righe[2].size(), 9U);
    const double G = std::acos(-1.0) / 180;
    // On the meridian of a south wall: gn times the tangent of the Sun's altitude.
    EXPECT_NEAR(Numero(righe[2][1]), -100 * std::tan((90 - 45.74805 + 23.445) * G), 1e-3);
    EXPECT_NEAR(Numero(righe[2][2]), -100 * std::tan((90 - 45.74805 - 23.445) * G), 1e-3);
}

TEST(DatiEquivalente, InclinedAndHorizontal) {
    BancoRapporti b;
    b.premi("cmdTrasforma");
    const Rapporto &r = b.apri("cmdData");
    ASSERT_EQ(r.modulo, "Form10");
    EXPECT_NEAR(Valore_(r, "latitudine f1 = "), Numero(b.s.in.txtLAT), 1e-5);
    EXPECT_NEAR(Valore_(r, "declinazione d1 = "), Numero(b.s.in.txtDec), 1e-5);
    EXPECT_EQ(RigaCon(r, "latitudine fO"), "latitudine fO = 45.74805°  ");
    EXPECT_EQ(RigaCon(r, "inclinazione =  "), "inclinazione =  25.2 °  ");
    // The substyle that the fundamental data give for the same plane.
    BancoRapporti originale;
    EXPECT_NEAR(Valore_(r, "angolo sustilare = "), Valore_(originale.apri("cmdData"), "Angolo sustilare "), 1e-5);
    EXPECT_EQ(Righe(b.stampa()), Righe(b.apri("cmdData")));

    BancoRapporti piano({{"txtInc", "90"}, {"txtLAT", "45"}, {"txtDec", "0"}});
    piano.premi("cmdTrasforma");
    const Rapporto &p = piano.apri("cmdData");
    EXPECT_EQ(RigaCon(p, "declinazione d1"), "declinazione d1 =  180 °  ");
    EXPECT_EQ(RigaCon(p, "elevazione"), "elevazione dello stilo = 45.00000°  ");
    EXPECT_FALSE(RigaCon(p, "ordinata orizzonte = inf ").empty());
    EXPECT_EQ(piano.s.v.yOriz.numero(), 100000);
}

}  // namespace
}  // namespace ombrelia
