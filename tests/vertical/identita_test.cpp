// The vertical and the direct engine on one wall: lines that mean the same coincide within 0.01 mm on a gnomon of 200 mm.
#include <gtest/gtest.h>

#include <algorithm>

#include "comuni/prova.h"

namespace ombrelia {
namespace {

using prova::Banco;

constexpr double CENTESIMO = 1e-5;  // metres

struct Punto {
    double x, y;
};

// Distance from p to the chords. One end of a line may reach beyond the other engine's by less than a chord, where the
// two sweeps end at other declinations or a frame cuts; so a chord counts as long as itself once more at either end.
double distanza(Punto p, const std::vector<RecLinea> &corde) {
    double minima = 1e9;
    for (const RecLinea &c : corde) {
        const double ux = c.X2 - c.X1, uy = c.Y2 - c.Y1, l = ux * ux + uy * uy;
        const double t = l > 0 ? std::clamp(((p.x - c.X1) * ux + (p.y - c.Y1) * uy) / l, -1.0, 2.0) : 0;
        minima = std::min(minima, std::hypot(c.X1 + t * ux - p.x, c.Y1 + t * uy - p.y));
    }
    return minima;
}

struct Muro {
    const char *lat, *dec;
};
constexpr Muro MURI[] = {{"45.7", "-20"}, {"45", "30"}, {"30", "-60"}, {"60", "10"}, {"52", "75"}, {"10", "-35"}, {"45", "120"}, {"35", "-150"}};

// ckFunzione: the direct engine draws the days between the solstices with it, the vertical engine without it.
void disegna(Banco &b, const Muro &m, bool verticale, const char *delta) {
    b.imposta({{"txtInc", "0"}, {"txtLAT", m.lat}, {"txtDec", m.dec}, {"TxtStilo", ".2"}, {"TxtFraz", "1"}, {"txtDelta", delta}, {"txtLonG", "-12"},
               {"txtX0", "-6"}, {"txtX1", "6"}, {"txtY0", "6"}, {"txtY1", "-6"}});
    for (const char *c : {"chkOreAstronomiche", "Ck_DayLightCurves", "ck_Equinoziale", "ck_Lemniscate", "ckTemp"}) b.spunta(c);
    b.s.in.ck_Italiche = b.s.in.ck_babiloniche = 1;  // both, which their clicks would not leave
    b.imposta({{"TxtInizio", "0"}, {"TxtFine", "24"}});
    b.s.in.CkUNI = verticale;
    b.s.in.ckFunzione = !verticale;
    b.esegui();
}

TEST(VerticaleEDiretta, LoStessoMuro) {
    // Where the constants of the two differ the line is compared by a day of the user's choice: the direct engine moves
    // that by a factor of 1.0001.
    const struct {
        const char *verticale, *diretta;
        int passo;  // every how many chords
    } linee[] = {{"Astro", "hour", 1},      {"21 III or 23 IX Eq", "equinox", 1}, {"Solstizio dicembre", "delta -23.445°", 1}, {"Diurna opzionale", "Delta opt", 1},
                 {"Lemniscata", "Analemma", 3}, {"Ita", "Ita", 23},                   {"Bab", "Bab", 23},                              {"Temp", "Temp", 23}};
    double peggiore = 0;
    std::size_t confrontati = 0;
    for (const Muro &m : MURI) {
        Banco v, d;
        disegna(v, m, true, "10.001");
        disegna(d, m, false, "10");
        for (const auto &linea : linee) {
            const auto di = v.linee(linea.verticale), su = d.linee(linea.diretta);
            for (std::size_t i = 0; i < di.size(); i += static_cast<std::size_t>(linea.passo)) {
                const double scarto = distanza({di[i].X1, di[i].Y1}, su);
                EXPECT_LE(scarto, CENTESIMO) << m.lat << " " << m.dec << " " << linea.verticale << " at " << di[i].X1 << " " << di[i].Y1;
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
TEST(VerticaleEDiretta, NienteDiPiuNellaDiretta) {
    Banco v, d;
    disegna(v, {"45.7", "-20"}, true, "10.001");
    disegna(d, {"45.7", "-20"}, false, "10");
    for (const auto &[diretta, verticale, passo] : {std::tuple{"hour", "Astro", 7}, {"Ita", "Ita", 23}, {"Bab", "Bab", 23}}) {
        const auto di = d.linee(diretta), su = v.linee(verticale);
        std::size_t lontani = 0, tutti = 0;
        for (std::size_t i = 0; i < di.size(); i += static_cast<std::size_t>(passo)) {
            if (std::fabs(di[i].Y1) < 1e-6) continue;
            ++tutti;
            lontani += !(distanza({di[i].X1, di[i].Y1}, su) <= CENTESIMO);
        }
        // What is left is the last degree at the horizon, where the vertical engine asks both ends.
        EXPECT_LT(lontani * 25, tutti) << diretta;
    }
}

}  // namespace
}  // namespace ombrelia
