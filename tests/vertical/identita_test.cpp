// The vertical and the direct engine on one wall: lines that mean the same coincide within 0.01 mm on a gnomon of 200 mm.
#include <gtest/gtest.h>

#include "analytic/quadranti.h"

namespace ombrelia {
namespace {

constexpr double CENTESIMO = 1e-5;  // metres

// ckFunzione: the direct engine draws the days between the solstices with it, the vertical engine without it.
struct DoppioMuro : prova::QuadroProvato {
    DoppioMuro(const std::string &muro, bool verticale)
        : QuadroProvato(
              "txtInc=0 TxtStilo=.2 TxtFraz=1 txtLonG=-12 txtX0=-6 txtX1=6 txtY0=6 txtY1=-6 chkOreAstronomiche Ck_DayLightCurves "
              "ck_Equinoziale ck_Lemniscate ckTemp " +
              muro) {
        s.in.ck_Italiche = s.in.ck_babiloniche = 1;  // both, which their clicks would not leave
        prepara("TxtInizio=0 TxtFine=24");
        s.in.CkUNI = verticale;
        s.in.ckFunzione = !verticale;
        esegui();
    }
};

TEST(VerticaleEDiretta, TheSameWall) {
    // Where the constants of the two differ the line is compared by a day of the user's choice: the direct engine moves
    // that by a factor of 1.0001.
    const struct {
        const char *verticale, *diretta;
        std::size_t passo;  // every how many chords
    } linee[] = {{"Astro", "hour", 1},
                 {"21 III or 23 IX Eq", "equinox", 1},
                 {"Solstizio dicembre", "delta -23.445°", 1},
                 {"Diurna opzionale", "Delta opt", 1},
                 {"Lemniscata", "Analemma", 3},
                 {"Ita", "Ita", 23},
                 {"Bab", "Bab", 23},
                 {"Temp", "Temp", 23}};
    double peggiore = 0;
    std::size_t confrontati = 0;
    for (const std::string muro : {"45.7 txtDec=-20", "45 txtDec=30", "30 txtDec=-60", "60 txtDec=10", "52 txtDec=75",
                                   "10 txtDec=-35", "45 txtDec=120", "35 txtDec=-150"}) {
        const DoppioMuro v("txtDelta=10.001 txtLAT=" + muro, true), d("txtDelta=10 txtLAT=" + muro, false);
        for (const auto &linea : linee) {
            const auto di = v.linee(linea.verticale), su = d.linee(linea.diretta);
            for (std::size_t i = 0; i < di.size(); i += linea.passo) {
                const double scarto = prova::DaCorde(di[i].X1, di[i].Y1, su);
                EXPECT_LE(scarto, CENTESIMO) << muro << " " << linea.verticale << " at " << di[i].X1 << " " << di[i].Y1;
                peggiore = std::max(peggiore, scarto);
                ++confrontati;
            }
        }
    }
    EXPECT_GT(confrontati, 15000u);
    std::printf("%zu chord ends compared, worst %.6f mm\n", confrontati, peggiore * 1000);
}

// The other way round on a wall that looks South, where no night hour falls on the plane. Sunset and sunrise themselves
// lie on the horizon, where the tenth digit of PI decides what is drawn; they are left out.
TEST(VerticaleEDiretta, NothingMoreInTheDirect) {
    const DoppioMuro v("txtLAT=45.7 txtDec=-20", true), d("txtLAT=45.7 txtDec=-20", false);
    for (const auto &[diretta, verticale, passo] : {std::tuple{"hour", "Astro", 7U}, {"Ita", "Ita", 23U}, {"Bab", "Bab", 23U}}) {
        const auto di = d.linee(diretta), su = v.linee(verticale);
        std::size_t lontani = 0, tutti = 0;
        for (std::size_t i = 0; i < di.size(); i += passo) {
            if (std::fabs(di[i].Y1) < 1e-6) continue;
            ++tutti;
            lontani += !(prova::DaCorde(di[i].X1, di[i].Y1, su) <= CENTESIMO);
        }
        // What is left is the last degree at the horizon, where the vertical engine asks both ends.
        EXPECT_LT(lontani * 25, tutti) << diretta;
    }
}

}  // namespace
}  // namespace ombrelia
