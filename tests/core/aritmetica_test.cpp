// The arithmetic that keeps old values, the counting ranges, the number forms and the encodings.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <random>

#include "core/angoli.h"
#include "core/conteggio.h"
#include "core/testo.h"

namespace ombrelia {
namespace {

TEST(Reale, UnGuastoLasciaIlValoreDiPrima) {
    const Reale zero, uno = 1;
    const Valore guasti[] = {uno / zero,        zero / zero,          Sqr(-uno),           ArcSin(1),      ArcSin(-2),    ArcCos(1.5),
                             Arco2(1, 0),       Valore(1e308) * 10,   Atn(uno / zero),     1 / (uno / zero), Val("1e999"), Round(Valore::nessuno(), 3),
                             Sgn(uno / zero),   Int(zero / zero),     uno + uno / zero,    Valore(1) / (Valore(1e308) * 1e10)};
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

TEST(Angoli, Tabella) {
    const struct {
        Valore v;
        double atteso;
    } casi[] = {
        {Arco2(1, 1), PI / 4},       {Arco2(1, -1), 3 * PI / 4}, {Arco2(-1, -1), 5 * PI / 4}, {Arco2(-1, 1), CERCHIO - PI / 4},
        {Arco2(0, 5), 0},            {Arco2(0, -5), PI},         {ArcCos(0), PI / 2.0},       {ArcSin(0), 0},
        {ArcSin(0.5), 0.5235987755982989}, {ArcCos(-0.5), PI / 2.0 + 0.5235987755982989},     {Int(-1.5), -2}, {Int(1.5), 1},
        {Sgn(-3), -1},               {Sgn(0), 0},                {Round(0.125, 2), 0.12},     {Round(-2.5, 0), -2},
        {Round(12.345675, 5), 12.34568}, {Tronca5(-1.000001), -1.00001}, {Tronca5(0.123456), 0.12345},
    };
    for (const auto &c : casi) EXPECT_NEAR(c.v.v, c.atteso, 1e-9) << &c - casi;
    EXPECT_EQ(Radianti(90), PI / 2.0) << "a horizontal plane is known by an exact comparison";
}

TEST(Conteggio, ContaComeSempre) {
    const struct {
        Valore da, a, passo;
        int passi;
    } casi[] = {
        {-90, 90, 15, 13},        {-23.445, 23.445, 0.05, 938},       {-23.445, 23.445, 0.005, 9379}, {-120, 120, 0.1, 2401},
        {-23.45, 23.55, 1, 48},   {-50, 50, 0.05, 2001},              {0, 12, 0.5, 25},               {5, 1, -2, 3},
        {1, 5, -1, 0},            {1, 5, 0, 0},                       {1, 1, 1, 1},                   {0, 1, Valore(1) / 0, 0},
        {1e17, 2e17, 1, 0},       {Valore::nessuno(), 1, 1, 0},       {0, 1e12, 1, 0},                {-97.5, 97.5, 3.75, 53},
    };
    for (const auto &c : casi) {
        int n = 0;
        for ([[maybe_unused]] const double d : Conteggio(c.da, c.a, c.passo)) ++n;
        EXPECT_EQ(n, c.passi) << c.da.v << " to " << c.a.v << " by " << c.passo.v;
    }
    EXPECT_TRUE(Conteggio(0, 1e12, 1).eccessivo());
    EXPECT_FALSE(Conteggio(0, 4999999, 1).eccessivo());
}

TEST(Val, PrefissoPiuLungo) {
    const struct {
        const char *testo;
        double atteso;
    } casi[] = {
        {"45.74805", 45.74805}, {".195", .195}, {"-20", -20}, {"", 0}, {"   12abc", 12}, {"1-2", 1}, {"-.5e1x", -5}, {"1e", 1}, {"1e+", 1},
        {"+3", 3}, {"--3", 0}, {"-", 0}, {".", 0}, {"inf", 0}, {"nan", 0}, {"0x10", 0}, {"1.2.3", 1.2}, {"1,5", 1}, {"1e-999", 0},
        {"0e999999999999", 0}, {"0.00000000000000000000000000000000000000001e41", 1}, {"5.", 5}, {"1E2", 100}, {"infinito", 0}, {"\t7", 7},
    };
    for (const auto &c : casi) EXPECT_EQ(Val(c.testo).v, c.atteso) << c.testo;
    for (const char *t : {"1e309", "-9e99999999999999999999", "1e+400"}) EXPECT_FALSE(Val(t).esiste()) << t;
}

TEST(Numeri, FormeDiFileEDiPersone) {
    const struct {
        double n;
        const char *file, *persone;
    } casi[] = {
        {1000, "1000", "1000"}, {123.456, "123.456", "123.456"}, {0.015, "1.5E-02", "0.015"}, {-0.0, "0", "0"}, {0.1, "0.1", "0.1"},
        {1e15, "1E+15", "1000000000000000"}, {999999999999999, "999999999999999", "999999999999999"}, {999999999999999.9, "1E+15", "1000000000000000"},
        {-0.05, "-5E-02", "-0.05"}, {1.0 / 3, "0.333333333333333", "0.333333333333333"}, {0.0999999999999999999, "0.1", "0.1"},
        {2.0 / 3 * 1e-7, "6.66666666666667E-08", "0.0000000666666666666667"}, {1e-300, "1E-300", nullptr}, {12345678901234567.0, "1.23456789012346E+16", "12345678901234600"},
    };
    for (const auto &c : casi) {
        EXPECT_EQ(NumeroGenerale(c.n), c.file);
        if (c.persone) {
            EXPECT_EQ(TestoNumero(c.n), c.persone);
        }
    }
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

TEST(Numeri, Maschere) {
    const struct {
        double n;
        const char *maschera, *atteso;
    } casi[] = {
        {1.5, "00.00", "01.50"},   {-1.5, "00.00", "-01.50"}, {0.12345, ".0000", ".1235"}, {-0.00001, "0.0000", "0.0000"}, {12.34565, "0.0000", "12.3457"},
        {0.5, "0", "1"},           {-0.5, "0", "-1"},         {99.995, "0.00", "100.00"},  {123.4, ".0000", "123.4000"},  {0, "0.000000", "0.000000"},
        {1e-20, "0.00000", "0.00000"}, {2.675, "0.00", "2.68"}, {0.00049, "0.000", "0.000"}, {0.0005, "0.000", "0.001"},
    };
    for (const auto &c : casi) EXPECT_EQ(Formato(c.n, c.maschera), c.atteso) << c.n << " " << c.maschera;
    EXPECT_EQ(Formato(Valore::nessuno(), "0.0"), "");
}

TEST(Codifiche, Utf8EWindows1252) {
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

TEST(Frase, UnNumeroSenzaValoreTogliLaFrase) {
    EXPECT_EQ((Frase("a = ") << Valore(0.5) << " m").testo(), "a = 0.5 m");
    EXPECT_FALSE((Frase("a = ") << Valore(1) / 0 << " m").esiste());
}

}  // namespace
}  // namespace ombrelia
