// Reports of other zones than the start's, and of the dial that the fields hold.
#include "reports/rapporto_prova.h"

namespace ombrelia {
namespace {

using namespace prova;

constexpr double GRADO = 3.14159265358979324 / 180;

// On a south wall the style meets it gn * tan lat above the foot, and the line of the hour angle H goes from there
// cos lat * tan H to the right a unit down.
TEST(Zona, HoursOfAWallAtThePlacesMeridian) {
    constexpr struct {
        const char *controllo, *casella;
        std::size_t x1, y1, x2, y2;
    } RAPPORTI[] = {{"optHorae", "", 1, 2, 3, 4}, {"OptInter", "", 2, 3, 4, 5}, {"OptInter", ";ckFunzione", 2, 3, 4, 5}};
    for (const auto &t : Tabella("meridiani.txt")) {
        const double lat = std::stod(t[1]), scarto = std::stod(t[2]) - std::stod(t[3]);
        if (lat < 0) continue;
        const std::string luogo = "txtInc=0;txtDec=0;TxtStilo=100;ck_Etna;txtX0=50;txtY0=-80;txtLAT=" + t[1] +
                                  ";txtLonG=" + t[2] + ";txtMeridiano=" + t[3];
        for (const auto &r : RAPPORTI) {
            BancoRapporti b(luogo + r.casella);
            int punti = 0;
            for (const auto &riga : RigheTabella(b.apri(r.controllo), 0)) {
                const double H = (Numero(riga[0]) - 12) * 15 - scarto;
                if (std::fabs(H) > 70) continue;
                const double passo = std::cos(lat * GRADO) * std::tan(H * GRADO);
                const auto cade = [&](const std::string &x, const std::string &y) {
                    if (x == "inf" || y == "inf") return;
                    const double atteso = (100 * std::tan(lat * GRADO) - Numero(y)) * passo;
                    EXPECT_NEAR(Numero(x), atteso, 2e-4 * (1 + std::fabs(passo))) << t[0] << " " << r.controllo << " " << riga[0];
                    ++punti;
                };
                cade(riga[r.x1], riga[r.y1]);
                cade(riga[r.x2], riga[r.y2]);
            }
            EXPECT_GE(punti, 14) << t[0] << " " << r.controllo << r.casella;
        }
    }
}

// A place as far from its meridian as another from the start's has the other's tables.
TEST(Zona, TablesOfTheSameOffset) {
    for (const char *piano : {"txtLAT=40;txtInc=25;txtDec=30", "txtLAT=0;txtInc=0;txtDec=20", "txtLAT=0;txtInc=10;txtDec=20"})
        for (const char *controllo : {"cmdData", "optHorae"})
            for (const char *fuso : {"", ";ck_Etna"}) {
                BancoRapporti a(std::string(piano) + fuso + ";txtLonG=-16;txtMeridiano=-15");
                BancoRapporti b(std::string(piano) + fuso + ";txtLonG=74;txtMeridiano=75");
                const auto x = RigheTabella(a.apri(controllo), 0), y = RigheTabella(b.apri(controllo), 0);
                ASSERT_EQ(x.size(), y.size()) << piano << controllo;
                ASSERT_GT(x.size(), 8U);
                for (std::size_t i = 0; i < x.size(); ++i)
                    for (std::size_t j = 0; j < x[i].size() && j < 5; ++j)
                        EXPECT_NEAR(Numero(x[i][j]), Numero(y[i][j]), 2e-4) << piano << controllo << i << ' ' << j;
            }
}

TEST(Zona, TheConstantNamesTheMeridian) {
    BancoRapporti b("txtLAT=40.7128;txtLonG=74.006;txtMeridiano=75"), qui("txtLAT=45;txtLonG=-7");
    const std::string costante = RigaCon(b.apri("cmdData"), "Costante locale = ");
    EXPECT_NEAR(Numero(costante.substr(18)), -3.976, 1e-9) << costante;
    EXPECT_TRUE(costante.ends_with(" p (longitudine = 75 °)")) << costante;
    EXPECT_EQ(RigaCon(qui.apri("cmdData"), "Costante locale = "), "Costante locale = 32 p");
}

// Hours of the zones by an atlas, West positive.
TEST(Zona, TheSunsBoardOpensWithTheZone) {
    for (const auto &[meridiano, fuso] :
         {std::pair{"75", "5"}, {"-82.5", "-5.5"}, {"-86.25", "-5.75"}, {"52.5", "3.5"}, {"-15", "2"}}) {
        BancoRapporti b(std::string("txtMeridiano=") + meridiano);
        b.imposta({{"frmDeclin.TxtFuso", "2"}});
        b.premi("mnuAusiliaria");
        EXPECT_EQ(b.s.testo(TrovaControllo("frmDeclin.TxtFuso")), fuso) << meridiano;
    }
}

TEST(Originale, AReportIsOfTheFields) {
    for (const char *controllo : {"OptIta", "OptBab", "OptTEMP", "optHorae"}) {
        BancoRapporti nuovo("txtLAT=47;txtInc=0;txtDec=10"), altro("txtLAT=30;txtInc=0;txtDec=40"),
            vecchio("txtLAT=30;txtInc=0;txtDec=40");
        altro.s.originaleFresco = true;
        for (BancoRapporti *b : {&altro, &vecchio}) {
            b->apri(controllo);
            b->scrivi("txtLAT=47;txtDec=10");
        }
        const auto atteso = Righe(nuovo.apri(controllo));
        EXPECT_EQ(Righe(altro.apri(controllo)), atteso) << controllo;
        if (controllo[0] == 'O') {
            EXPECT_NE(Righe(vecchio.apri(controllo)), atteso) << controllo;
        }
    }
}

}  // namespace
}  // namespace ombrelia
