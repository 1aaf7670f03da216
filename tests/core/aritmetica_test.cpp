// The arithmetic that keeps old values, the counting ranges, the number forms and the encodings.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>
#include <utility>

#include "comuni/prova.h"
#include "core/angoli.h"
#include "core/cifre.h"
#include "core/conteggio.h"
#include "core/funzioni.h"
#include "core/testo.h"

namespace ombrelia {
namespace {

TEST(Reale, AFaultLeavesTheLastValue) {
    const Reale zero, uno = 1;
    const Valore guasti[] = {uno / zero,      zero / zero,      Sqr(-uno),        ArcSin(1),
                             ArcSin(-2),      ArcCos(1.5),      Arco2(1, 0),      Valore(1e308) * 10,
                             Atn(uno / zero), 1 / (uno / zero), Val("1e999"),     Round(Valore::nessuno(), 3),
                             Sgn(uno / zero), Int(zero / zero), uno + uno / zero, Valore(1) / (Valore(1e308) * 1e10)};
    for (const Valore &g : guasti) {
        Reale x = 7;
        x = g;
        EXPECT_EQ(x.numero(), 7) << &g - guasti;
        EXPECT_FALSE(g < 1 || g > 1 || g == 1 || g != 1 || g <= 1 || g >= 1) << &g - guasti;
    }
    const Reale nato = uno / zero;
    EXPECT_EQ(nato.numero(), 0);
    Reale y = 3;
    y = 2 * y + 1;
    EXPECT_EQ(y.numero(), 7);
}

TEST(Angoli, Table) {
    const std::pair<Valore, double> casi[] = {
        {Arco2(1, 1), PI / 4},
        {Arco2(1, -1), 3 * PI / 4},
        {Arco2(-1, -1), 5 * PI / 4},
        {Arco2(-1, 1), CERCHIO - PI / 4},
        {Arco2(0, 5), 0},
        {Arco2(0, -5), PI},
        {ArcCos(0), PI / 2.0},
        {ArcSin(0), 0},
        {ArcSin(0.5), 0.5235987755982989},
        {ArcCos(-0.5), PI / 2.0 + 0.5235987755982989},
        {Int(-1.5), -2},
        {Int(1.5), 1},
        {Sgn(-3), -1},
        {Sgn(0), 0},
        {Round(0.125, 2), 0.12},
        {Round(-2.5, 0), -2},
        {Round(12.345675, 5), 12.34568},
        {Tronca5(-1.000001), -1.00001},
        {Tronca5(0.123456), 0.12345},
    };
    for (const auto &c : casi) EXPECT_NEAR(c.first.v, c.second, 1e-9) << &c - casi;
    EXPECT_EQ(Radianti(90), PI / 2.0) << "a horizontal plane is known by an exact comparison";
}

TEST(Conteggio, CountsByAdding) {
    const Valore no = Valore::nessuno();
    const Valore casi[][4] = {{-90, 90, 15, 13},
                              {-23.445, 23.445, 0.05, 938},
                              {-23.445, 23.445, 0.005, 9379},
                              {-120, 120, 0.1, 2401},
                              {-23.45, 23.55, 1, 48},
                              {-50, 50, 0.05, 2001},
                              {0, 12, 0.5, 25},
                              {5, 1, -2, 3},
                              {1, 5, -1, 0},
                              {1, 5, 0, 0},
                              {1, 1, 1, 1},
                              {0, 1, no, 0},
                              {1e17, 2e17, 1, 0},
                              {no, 1, 1, 0},
                              {0, 1e12, 1, 0},
                              {-97.5, 97.5, 3.75, 53}};
    for (const auto &[da, a, passo, passi] : casi) {
        int n = 0;
        for ([[maybe_unused]] const double d : Conteggio(da, a, passo)) ++n;
        EXPECT_EQ(n, passi.v) << da.v << " to " << a.v << " by " << passo.v;
    }
    EXPECT_TRUE(Conteggio(0, 1e12, 1).eccessivo());
    EXPECT_FALSE(Conteggio(0, 4999999, 1).eccessivo());
}

TEST(Val, LongestPrefix) {
    for (const auto &r : prova::Tabella("val.txt")) {
        const Valore v = Val(prova::Scritto(r.at(0)));
        EXPECT_EQ(v.esiste(), r.at(1) != "none") << r[0];
        EXPECT_TRUE(!v.esiste() || v.v == std::stod(r[1])) << r[0];
    }
}

TEST(Numeri, FormsAndMasks) {
    for (const auto &r : prova::Tabella("numeri.txt")) {
        const double n = std::stod(r.at(0));
        const std::string avuto = r.at(1) == "file" ? NumeroGenerale(n) : r[1] == "people" ? TestoNumero(n) : Formato(n, r[1]);
        EXPECT_EQ(avuto, r.at(2)) << r[0] << " " << r[1];
    }
    EXPECT_EQ(Formato(Valore::nessuno(), "0.0"), "");
    // The quick way to fifteen digits against the library's exact one.
    std::mt19937_64 caso(20240229);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> potenza(-12, 14);
    for (int i = 0; i < 200000; ++i) {
        const double x = mantissa(caso) * std::pow(10, potenza(caso));
        char b[64];
        std::snprintf(b, sizeof b, "%.15g", x);
        ASSERT_EQ(Val(NumeroGenerale(x)).v, Val(b).v) << b;
    }
}

// The make for libraries without floating charconv against the library's own: bits of every size, dial-sized numbers, ties.
TEST(Numeri, PortableDigitsGiveTheSameBytes) {
    std::mt19937_64 caso(17);
    const auto uguali = [](double x) {
        char a[64], b[64];
        const auto testo = [](const char *t, std::size_t n) { return std::string(t, n); };
        EXPECT_EQ(testo(a, cifre::Diciassette(a, x)), testo(b, cifre::portatile::Diciassette(b, x)));
        for (const int decimali : {0, 14})
            EXPECT_EQ(testo(a, cifre::Scientifico(a, x, decimali)), testo(b, cifre::portatile::Scientifico(b, x, decimali)));
        double da = 1, dalla = 2;
        const std::size_t n = cifre::Diciassette(a, std::fabs(x));
        EXPECT_EQ(cifre::Leggi(a, a + n, da), cifre::portatile::Leggi(a, a + n, dalla)) << testo(a, n);
        EXPECT_EQ(da, dalla);
        // Fifteen digits by the exact form are what the shortest form comes to.
        const std::size_t m = cifre::portatile::Scientifico(b, std::fabs(x), 14);
        EXPECT_EQ(Val(testo(b, m)).v, Val(NumeroGenerale(std::fabs(x))).v);
    };
    for (int i = 0; i < 100000 && !testing::Test::HasFailure(); ++i) {
        const auto x = std::bit_cast<double>(caso());
        if (std::isfinite(x) && x != 0) uguali(x);
        uguali(std::ldexp(static_cast<double>(caso() >> 11) - 0x1p52, -50));
        uguali(static_cast<double>(caso() % 2000001) / 8192 + 0x1p-14);
        uguali(std::ldexp(1, static_cast<int>(caso() % 2098) - 1074));
    }
    for (const char *t : {"1e400", "1e-400", "0.00000000001e330", "4.9e-324", "2.4e-324", "1.7976931348623159e308"}) {
        double a = 1, b = 2;
        EXPECT_EQ(cifre::Leggi(t, t + std::strlen(t), a), cifre::portatile::Leggi(t, t + std::strlen(t), b)) << t;
    }
}

// Against the library's longer type, rounded once more: where that stands near the middle of two doubles they may part.
TEST(Funzioni, RoundedToTheNearest) {
    std::mt19937_64 caso(23);
    std::uniform_real_distribution<double> angolo(-8, 8), largo(-1e5, 1e5), retta(-1.5707, 1.5707);
    constexpr int PROVE = 50000;
    int diversi = 0;
    const auto conta = [&](double avuto, long double vero) {
        diversi += avuto != static_cast<double>(vero);
        EXPECT_LE(std::fabs(static_cast<long double>(avuto) - vero), std::fabs(vero) * 0x1.01p-53L);
    };
    for (int i = 0; i < PROVE; ++i) {
        const double x = i % 2 == 0 ? angolo(caso) : largo(caso), t = std::tan(retta(caso));
        const long double lx = x;
        conta(portatile::sin(x), std::sin(lx));
        conta(portatile::cos(x), std::cos(lx));
        conta(portatile::tan(x), std::tan(lx));
        conta(portatile::atan(t), std::atan(static_cast<long double>(t)));
    }
    EXPECT_LT(diversi, PROVE / 200);
    for (const double x :
         {0.0, -0.0, 1e-300, -3e-9, 1.5707963267948966, 3.141592653589793, 3.141592654, 1e300, 0.78539816339744828}) {
        EXPECT_DOUBLE_EQ(portatile::sin(x), std::sin(x)) << x;
        EXPECT_DOUBLE_EQ(portatile::cos(x), std::cos(x)) << x;
        EXPECT_DOUBLE_EQ(portatile::tan(x), std::tan(x)) << x;
        EXPECT_DOUBLE_EQ(portatile::atan(x), std::atan(x)) << x;
    }
    const double infinito = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(std::isnan(portatile::sin(infinito)) && std::isnan(portatile::tan(-infinito)) &&
                std::isnan(portatile::atan(std::nan(""))));
    EXPECT_EQ(portatile::atan(-infinito), std::atan(-infinito));
}

TEST(Codifiche, Utf8AndWindows1252) {
    EXPECT_EQ(DaFile("citt\xE0 \x80 20\xB0"), "città € 20°");
    EXPECT_EQ(DaFile("città"), "città");
    EXPECT_EQ(DaFile("\xEF\xBB\xBFx"), "x");
    std::string t;
    AggiungiCp1252(t, "delta 20° € 日 ");
    EXPECT_EQ(t, "delta 20\xB0 \x80 ? ");
    t.clear();
    AggiungiCp1252(t, "\xC3");
    EXPECT_EQ(t, "?");
}

TEST(Frase, ANumberWithoutValueTakesThePhraseAway) {
    EXPECT_EQ((Frase("a = ") << Valore(0.5) << " m").testo(), "a = 0.5 m");
    EXPECT_FALSE((Frase("a = ") << Valore(1) / 0 << " m").esiste());
}

}  // namespace
}  // namespace ombrelia
