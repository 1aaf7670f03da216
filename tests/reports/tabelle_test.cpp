// Labels, order and values of the reports on a grid of dials: heads to the blank, rows, special texts, what stays behind.
#include "reports/rapporto_prova.h"

namespace ombrelia {
namespace {

using namespace prova;

constexpr double G = 3.14159265358979324 / 180;

// The number behind a label.
double Dietro(const Rapporto &r, std::string_view etichetta) { return Numero(RigaCon(r, etichetta).substr(etichetta.size())); }

TEST(Tabelle, CellsAndRowsOfSpecialDials) {
    for (const auto &t : Tabella("celle_rapporti.txt")) {
        BancoRapporti b(t[0]);
        const std::string luogo = t[0] + " " + t[1] + " " + t[2] + " " + t[3] + " " + t[4], atteso = Scritto(t[5]);
        b.apri(t[1].substr(0, t[1].find('/')));
        const Rapporto &r = t[1].ends_with("/carta") ? b.stampa() : b.s.rapporti.aperto;
        const auto testi = Righe(r);
        const auto righe = RigheTabella(r, t[2].empty() ? -1 : std::stoi(t[2]));
        const std::ptrdiff_t quante = std::ssize(righe);
        if (t[2].empty()) {
            const auto riga = t[3].empty() ? std::find(testi.begin(), testi.end(), atteso) : testi.begin() + std::stoi(t[3]);
            EXPECT_TRUE(riga < testi.end() && *riga == atteso) << luogo << atteso;
        } else if (t[3] == "n") {
            EXPECT_EQ(std::to_string(quante), atteso) << luogo;
        } else {
            const std::ptrdiff_t da = t[3] == "*" ? 0 : std::stoi(t[3]) + (t[3][0] == '-' ? quante : 0);
            ASSERT_LT(da, quante) << luogo;
            for (const auto &riga : std::vector(righe.begin() + da, t[3] == "*" ? righe.end() : righe.begin() + da + 1))
                EXPECT_EQ(t[4] == "n" ? std::to_string(riga.size()) : riga.at(std::stoul(t[4])), atteso) << luogo;
        }
    }
}

TEST(DatiFondamentali, LabelsInOrder) {
    BancoRapporti b("txtInc=0;txtDec=30;ChCentimetro;TxtStilo=200");
    const auto righe = Righe(b.apri("cmdData"));
    const auto inizi = Tabella("dati_fondamentali.txt");
    ASSERT_EQ(righe.size(), inizi.size() + 25 + 2);
    for (std::size_t i = 0; i < inizi.size(); ++i) {
        const std::string inizio = inizi[i][0] == "-" ? "" : Scritto(inizi[i][0]);
        EXPECT_TRUE(inizio.empty() ? righe[i].empty() : righe[i].starts_with(inizio)) << i << ": " << righe[i];
    }
    EXPECT_NE(righe[20].find(" mm   MS = "), std::string::npos) << righe[20];
}

// A wall's triangle by the textbook: elevation asin(cos lat cos dec), substyle atan(sin dec / tan lat), lengths from them.
TEST(DatiFondamentali, TheStyleOfAWall) {
    for (const double lat : {30.0, 45.0, 60.0})
        for (const double dec : {-70.0, -20.0, 10.0, 50.0}) {
            BancoRapporti b("txtInc=0;txtLAT=" + TestoNumero(lat) + ";txtDec=" + TestoNumero(dec));
            const Rapporto &r = b.apri("cmdData");
            const double epsilon = std::asin(std::cos(lat * G) * std::cos(dec * G)), gn = 0.195;
            EXPECT_NEAR(std::fabs(Dietro(r, "Elevazione dello stilo ")), epsilon / G, 1e-5) << lat << ' ' << dec;
            EXPECT_NEAR(Dietro(r, "Angolo sustilare "), std::atan(std::sin(dec * G) / std::tan(lat * G)) / G, 1e-5);
            EXPECT_NEAR(Dietro(r, "Assostilo: ipotenusa "), gn / std::sin(epsilon), 1.1e-5);
            EXPECT_NEAR(Dietro(r, "CG = "), gn / std::tan(epsilon), 1e-5);
            EXPECT_NEAR(Dietro(r, "CM = "), gn / std::sin(epsilon) / std::sin(lat * G), 1e-5);
            EXPECT_NEAR(Dietro(r, "Solstizi "), std::cos(epsilon) / std::sin(23.445 * G), 1e-5);
        }
}

TEST(DatiFondamentali, EquatorLevelPlaneAndWhatIsLeft) {
    BancoRapporti equatore("txtLAT=0;txtInc=0"), piano("txtInc=90;txtDec=0;TxtFraz=4"), sud("txtLAT=-45");
    for (const std::string &riga : Righe(equatore.apri("cmdData"))) EXPECT_EQ(riga.find("inf"), std::string::npos) << riga;
    EXPECT_EQ(equatore.s.v.latR.numero(), 1e-07);
    const auto righe = RigheTabella(piano.apri("cmdData"), 0);
    ASSERT_EQ(righe.size(), 49U);
    for (std::size_t i = 1; i < 48; ++i) EXPECT_NEAR(Numero(righe[i][2]), -Numero(righe[48 - i][2]), 1e-9) << righe[i][1];
    sud.apri("cmdData");
    EXPECT_LT(sud.s.v.latR.numero(), 0);
    EXPECT_EQ(sud.s.in.txtDelta, "23.445");
    EXPECT_NE(sud.s.v.deltaOpz.numero(), 23.445) << "a discriminant stays in the optional declination";
}

TEST(OreVere, HeadsToTheBlank) {
    for (const auto &t : Tabella("teste_ore.txt")) {
        BancoRapporti b(t[0]);
        const std::string schermo = Scritto(t[1]), inizio = schermo.substr(0, 5);
        EXPECT_EQ(RigaCon(b.apri("optHorae"), inizio), schermo) << t[0];
        EXPECT_TRUE(t[2] == "-" || RigaCon(b.stampa(), inizio) == Scritto(t[2])) << t[0];
    }
}

// Shadow lengths from the centre by the law of sines in the triangle of style and ray, for a direct south wall at noon.
TEST(OreVere, LengthsOfShadowAtNoon) {
    BancoRapporti b("txtLAT=45;txtDec=0;txtInc=0;txtLonG=-15;TxtInizio=12;TxtFine=12");
    const auto riga = RigheTabella(b.apri("optHorae"), 0);
    ASSERT_EQ(riga.size(), 1U) << "equal hours give one row";
    const double assostilo = 0.195 / std::sin(45 * G), d = 23.445;
    // Angle at the tip between style and ray is 90 - delta, at the wall 45 + delta.
    const auto ombra = [&](double delta) { return assostilo * std::sin((90 - delta) * G) / std::sin((45 + delta) * G); };
    EXPECT_EQ(riga[0][0] + riga[0][4] + riga[0].back(), "12.00inf23.445");
    EXPECT_NEAR(Numero(riga[0][5]), ombra(-d), 1.01e-4);
    EXPECT_NEAR(Numero(riga[0][6]), ombra(d), 1.01e-4);
    EXPECT_NEAR(Numero(riga[0][7]), ombra(-d) - ombra(d), 1.01e-4);
    EXPECT_NEAR(Numero(riga[0][8]), ombra(0), 1.01e-4);
}

// A declination on a horizontal plane means nothing on the screen; on paper it is still computed with.
TEST(OreVere, LevelPlaneOnScreenAndPaper) {
    BancoRapporti b("txtInc=90;txtDec=20"), senza("txtInc=90;txtDec=0");
    const auto schermo = RigheTabella(b.apri("optHorae"), 0), giusto = RigheTabella(senza.apri("optHorae"), 0);
    for (std::size_t i = 0; i < schermo.size(); ++i) EXPECT_EQ(schermo[i][5], giusto.at(i)[5]);
    EXPECT_NE(RigaCon(b.stampa(), "sigma ="), RigaCon(b.s.rapporti.aperto, "sigma ="));
}

TEST(Intersezioni, TheFifthAndTheThirdUnderAnothersName) {
    BancoRapporti b("txtDelta=7;TxtFraz=1");
    const Rapporto &r = b.apri("OptInter");
    auto terza = RigheTabella(r, 2), quinta = RigheTabella(r, 4);
    for (auto *t : {&terza, &quinta})
        for (auto &riga : *t) riga.pop_back();
    EXPECT_EQ(terza.size(), 12U);
    EXPECT_EQ(terza, quinta);
    for (const auto &riga : RigheTabella(r, 3)) EXPECT_EQ(riga[2] + riga[3], riga[4] + riga[5]) << "the equinox has one line";
}

TEST(DatiEquivalente, ThePlaneAndItsSubstyle) {
    BancoRapporti b("cmdTrasforma"), originale, piano("txtInc=90;txtLAT=45;txtDec=0;cmdTrasforma");
    const Rapporto &r = b.apri("cmdData");
    ASSERT_EQ(r.modulo, "Form10");
    EXPECT_NEAR(Dietro(r, "latitudine f1 = "), Numero(b.s.in.txtLAT), 1e-5);
    EXPECT_NEAR(Dietro(r, "declinazione d1 = "), Numero(b.s.in.txtDec), 1e-5);
    EXPECT_NEAR(Dietro(r, "angolo sustilare = "), Dietro(originale.apri("cmdData"), "Angolo sustilare "), 1e-5);
    EXPECT_EQ(Righe(b.stampa()), Righe(r));
    EXPECT_FALSE(RigaCon(piano.apri("cmdData"), "ordinata orizzonte = inf ").empty());
    EXPECT_EQ(piano.s.v.yOriz.numero(), 100000);
}

}  // namespace
}  // namespace ombrelia
