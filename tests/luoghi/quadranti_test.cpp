// Dials of far places, as they come mounted, held against a projection of their own: vectors East, North and up, nothing of the
// engines'.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "comuni/prova.h"

namespace ombrelia {
namespace {

constexpr double RAD = 3.14159265358979323846 / 180, GNOMONE = 0.1, BORDO = 0.8;

struct V {
    double e, n, u;
};
double per(V a, V b) { return a.e * b.e + a.n * b.n + a.u * b.u; }
V croce(V a, V b) { return {a.n * b.u - a.u * b.n, a.u * b.e - a.e * b.u, a.e * b.n - a.n * b.e}; }

struct PianoProvato {
    V normale, destra, alto;
    // Azimuth from South, West positive; inclination 0 a wall, 90 level; degrees.
    PianoProvato(double azimut, double inc) {
        const V muro{-std::sin(azimut * RAD), -std::cos(azimut * RAD), 0};
        normale = {muro.e * std::cos(inc * RAD), muro.n * std::cos(inc * RAD), std::sin(inc * RAD)};
        destra = croce({-muro.e, -muro.n, 0}, {0, 0, 1});
        alto = croce(normale, destra);
    }
};

struct Ombra {
    double x, y;
    bool luce;
};
Ombra ombra(const PianoProvato &p, double lat, double H, double delta) {
    const double cf = std::cos(lat * RAD), sf = std::sin(lat * RAD), cd = std::cos(delta * RAD), sd = std::sin(delta * RAD),
                 ch = std::cos(H * RAD);
    const V sole{-cd * std::sin(H * RAD), cf * sd - sf * cd * ch, sf * sd + cf * cd * ch};
    const double fronte = per(sole, p.normale);
    const double k = -GNOMONE / fronte;
    return {k * per(sole, p.destra), k * per(sole, p.alto), fronte > 0.02 && sole.u > 0.02};
}

double n(const std::string &t) { return Val(t).v; }

// Metres from a point to the nearest chord that claims an hour; y upward, mirrors applied.
double lontano(const prova::Banco &b, double ora, double x, double y) {
    double minima = 1e9;
    const Lista &l = b.lista();
    for (std::size_t i = 0; i < l.pretese.size(); ++i) {
        const Pretesa &p = l.pretese[i];
        if (p.specie != Specie::Ora || std::fabs(p.valore - ora) > 1e-9) continue;
        const std::size_t fine = p.linea + static_cast<std::size_t>(std::count(l.Ordine.begin() + static_cast<long>(p.da),
                                                                               l.Ordine.begin() + static_cast<long>(p.a), 'L'));
        for (std::size_t k = p.linea; k < fine; ++k) {
            const RecLinea &r = l.Linee[k];
            const double s = b.s.tavolo.FattoreX, ax = s * r.X1, ay = r.Y1, dx = s * r.X2 - ax, dy = r.Y2 - ay,
                         q = dx * dx + dy * dy;
            const double t = q > 0 ? std::clamp(((x - ax) * dx + (y - ay) * dy) / q, 0.0, 1.0) : 0;
            minima = std::min(minima, std::hypot(x - ax - t * dx, y - ay - t * dy));
        }
    }
    return minima;
}

TEST(LontaniQuadranti, HoursOfTheZoneAndOfThePlace) {
    double peggiore = 0;
    int punti = 0;
    for (const auto &r : prova::Tabella("luoghi_quadranti.txt"))
        for (const std::string_view motore : {"direct", "vertical", "analytic"}) {
            if (r[6].find(motore) == std::string::npos) continue;
            for (const bool fuso : {true, false}) {
                prova::Banco b({{"txtLAT", r[1]},
                                {"txtLonG", r[2]},
                                {"txtMeridiano", r[3]},
                                {"txtInc", r[5]},
                                {"txtDec", r[4]},
                                {"TxtFraz", "1"}});
                b.cornice("0.1", "-1", "1", "1", "-1");
                b.s.australeMontato = true;
                b.spunta("chkOreAstronomiche");
                if (fuso) b.spunta("ck_Etna");
                if (motore == "vertical") b.s.in.CkUNI = 1;
                b.premi(motore == "analytic" ? "cmdEqui" : "cmdRun");
                EXPECT_EQ(b.s.in.txtLAT, r[1]);

                const double lat = n(r[1]), scarto = fuso ? n(r[2]) - n(r[3]) : 0;
                const PianoProvato piano(lat < 0 ? 180 - n(r[4]) : n(r[4]), n(r[5]));
                int suoi = 0;
                double suo = 0;
                for (int ora = 7; ora <= 17; ++ora)
                    for (const double delta : {-23.0, -15.0, -7.0, 3.0, 11.0, 19.0}) {
                        const Ombra o = ombra(piano, lat, (ora - 12) * 15 - scarto, delta);
                        if (!o.luce || std::fabs(o.x) > BORDO || std::fabs(o.y) > BORDO) continue;
                        suo = std::max(suo, lontano(b, ora, o.x, o.y) * 1000);
                        ++suoi;
                    }
                EXPECT_LE(suo, 0.01) << r[0] << ", " << motore << (fuso ? ", zone" : ", site");
                EXPECT_GT(suoi, 15) << r[0] << ", " << motore;
                peggiore = std::max(peggiore, suo);
                punti += suoi;
            }
        }
    std::printf("%d shadows, the worst %.5f mm off its line\n", punti, peggiore);
}

}  // namespace
}  // namespace ombrelia
