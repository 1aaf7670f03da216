// The direct engine against dials worked out in print.
#include <gtest/gtest.h>

#include <cstdio>

#include "comuni/prova.h"
#include "gnomonica/proiezione.h"

namespace ombrelia {
namespace {

TEST(Pubblicati, PuntiDelPiano) {
    double peggiore = 0;
    int righe = 0;
    for (const auto &r : prova::Tabella("punti_pubblicati.txt")) {
        const auto n = [&r](std::size_t i) { return Val(r.at(i)); };
        const auto proietta = Proiezione::delPiano(Radianti(n(0)), Radianti(n(1)), Radianti(n(2)), 1, 1);
        Reale x, y;
        proietta(Radianti(n(3)), Radianti(n(4)), x, y);
        const double errore = std::max(Abs(x - n(5)).v, Abs(y - n(6)).v);
        EXPECT_TRUE(errore <= n(7).v) << r.at(8) << ": " << x.numero() << ", " << y.numero();
        peggiore = std::max(peggiore, errore);
        ++righe;
    }
    std::printf("%d published points, worst off by %.6f gnomons\n", righe, peggiore);
    EXPECT_GE(righe, 2);
}

// From the drawn lines, not from the formula: the angle of each hour line of a horizontal dial with the noon line.
TEST(Pubblicati, AngoliOrariOrizzontali) {
    prova::Banco banco({{"txtLAT", "54.8"},
                        {"txtInc", "90"},
                        {"TxtStilo", "1"},
                        {"txtX0", "-5"},
                        {"txtX1", "5"},
                        {"txtY0", "5"},
                        {"txtY1", "-5"},
                        {"TxtFraz", "1"}},
                       {"chkOreAstronomiche"});
    banco.esegui();
    const auto linee = banco.linee("hour");
    double peggiore = 0;
    for (const auto &r : prova::Tabella("angoli_orizzontali.txt")) {
        const double atteso = Val(r.at(2)).v, tolleranza = Val(r.at(3)).v;
        double migliore = 1e9;
        for (const RecLinea &l : linee) {
            const double angolo = std::atan2(l.X2 - l.X1, l.Y2 - l.Y1) * 180 / PI;
            migliore = std::min(migliore, std::fabs(std::fabs(std::remainder(angolo, 180)) - atteso));
        }
        EXPECT_TRUE(migliore <= tolleranza) << r.at(1) << " h off by " << migliore;
        peggiore = std::max(peggiore, migliore);
    }
    std::printf("hour angles at 54.8: worst off by %.5f degrees\n", peggiore);
}

}  // namespace
}  // namespace ombrelia
