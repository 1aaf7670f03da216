// The shadow by vectors: forward against dials in print and against the engines' projection, back against forward, hours,
// and the Sun of a date against almanacs.
#include "ombra/ombra.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>

#include "comuni/prova.h"
#include "gnomonica/proiezione.h"
#include "ombra/sole.h"

namespace ombrelia::ombra {
namespace {

double n(const std::string &t) { return Val(t).v; }

struct Caso {
    std::mt19937_64 g{20260621};
    double tra(double a, double b) { return std::uniform_real_distribution<double>(a, b)(g); }
    QuadranteMontato piano() {
        return {tra(-90, 90) * RADIANTI, tra(-180, 180) * RADIANTI, tra(-90, 90) * RADIANTI, tra(0.01, 0.5)};
    }
};

TEST(Ombra, PublishedPoints) {
    for (const auto &r : prova::Tabella("punti_pubblicati.txt")) {
        const PianoMontato p({n(r[0]) * RADIANTI, n(r[1]) * RADIANTI, n(r[2]) * RADIANTI, 1});
        const Getto e = p.getta(n(r[3]) * RADIANTI, n(r[4]) * RADIANTI);
        EXPECT_TRUE(e.luce == Luce::Si) << r[8];
        EXPECT_NEAR(e.punto.x, n(r[5]), n(r[7])) << r[8];
        EXPECT_NEAR(e.punto.y, n(r[6]), n(r[7])) << r[8];
    }
}

TEST(Ombra, TheWayBackUndoesTheWayOut) {
    Caso c;
    double peggiore = 0, mirato = 0, derivata = 0;
    int lette = 0, notti = 0, dietro = 0;
    while (lette < 1'000'000) {
        const QuadranteMontato q = c.piano();
        const PianoMontato p(q);
        for (int k = 0; k < 200; ++k) {
            const double t = c.tra(-180, 180) * RADIANTI, delta = c.tra(-23.44, 23.44) * RADIANTI;
            const Getto e = p.getta(t, delta);
            notti += e.luce == Luce::Notte;
            dietro += e.luce == Luce::Dietro;
            if (e.luce != Luce::Si) continue;
            const SoleLetto l = p.leggi(e.punto);
            ASSERT_TRUE(l.luce == Luce::Si);
            peggiore = std::max({peggiore, std::fabs(l.t - t), std::fabs(l.delta - delta)});
            ++lette;
            if (lette % 50 != 0 || std::hypot(e.punto.x, e.punto.y) > 20 * q.gnomone) continue;
            // The engines' projection, whose pi has ten digits, and the derivative as a quotient of differences.
            Reale x, y;
            Proiezione::delPiano(q.latitudine, q.declinazione, q.inclinazione, q.gnomone, 1)(t, delta, x, y);
            mirato = std::max(mirato, std::hypot(x.numero() - e.punto.x, y.numero() - e.punto.y) / q.gnomone);
            const Moto m = p.moto(t, delta);
            const double h = 1e-6;
            const Punto a = *p.proietta(PianoMontato::sole(t + h, delta + 2 * h)),
                        b = *p.proietta(PianoMontato::sole(t - h, delta - 2 * h));
            const double dx = (a.x - b.x) / (2 * h), dy = (a.y - b.y) / (2 * h);
            derivata = std::max(derivata, std::hypot(m.perT.x + 2 * m.perDelta.x - dx, m.perT.y + 2 * m.perDelta.y - dy) /
                                              (q.gnomone + std::hypot(dx, dy)));
        }
    }
    std::printf("%d points read back, worst off by %.2g radians; %.2g gnomons from the engines' projection\n", lette, peggiore,
                mirato);
    EXPECT_TRUE(peggiore <= 1e-9);
    EXPECT_TRUE(mirato <= 1e-6);
    EXPECT_TRUE(derivata <= 1e-6) << derivata;
    EXPECT_TRUE(notti > 100000 && dietro > 100000);
}

// Points with no sunlight, and the lines that part them.
TEST(Ombra, LinesOfThePlane) {
    Caso c;
    for (int k = 0; k < 2000; ++k) {
        const QuadranteMontato q = c.piano();
        const PianoMontato p(q);
        const Punto a{c.tra(-2, 2) * q.gnomone, c.tra(-2, 2) * q.gnomone};
        const SoleLetto l = p.leggi(a);
        const auto scarto = [&a](const Retta &r) { return std::fabs(r.a * a.x + r.b * a.y - r.c); };
        // The style's shadow passes through the tip's shadow and through the centre.
        const Retta r = p.ombraDelloStilo(l.t);
        EXPECT_LT(scarto(r), 1e-12 * q.gnomone + 1e-15);
        if (const auto centro = p.centro(); centro && std::hypot(centro->x, centro->y) < 100 * q.gnomone) {
            EXPECT_NEAR(r.a * centro->x + r.b * centro->y, r.c, 1e-10);
        }
        const Retta o = p.orizzonte();
        if (scarto(o) > 1e-9) {
            EXPECT_EQ(l.luce == Luce::Notte, !(l.altezza > 0));
        }
        EXPECT_EQ(l.luce == Luce::Mai, l.altezza > 0 && std::fabs(l.delta) > 23.45 * RADIANTI);
    }
    // A wall's horizon runs through the foot; what stands above it lies in the dark.
    const PianoMontato muro({45 * RADIANTI, 0.3, 0, 0.1});
    EXPECT_NEAR(muro.orizzonte().c, 0, 1e-15);
    EXPECT_TRUE(muro.leggi(Punto{0.02, 0.01}).luce == Luce::Notte);
    EXPECT_TRUE(muro.getta(0, -RADIANTI).luce == Luce::Si && muro.getta(-3.1, 0).luce == Luce::Notte);
    EXPECT_TRUE(muro.getta(-1.6, 0.4).luce == Luce::Dietro);
    // South of the equator, plainly: a wall that looks North, its noon shadow below the foot, the morning's to the left.
    const PianoMontato sydney({-33.87 * RADIANTI, std::numbers::pi, 0, 0.1});
    const Punto mezzodi = sydney.getta(0, 0).punto, mattino = sydney.getta(-0.5, 0).punto;
    EXPECT_NEAR(mezzodi.x, 0, 1e-15);
    EXPECT_NEAR(mezzodi.y, -0.1 * std::tan((90 - 33.87) * RADIANTI), 1e-12);
    EXPECT_GT(mattino.x, 0.01);
}

TEST(Ombra, HoursOfTheDay) {
    // Latitude 45, summer solstice: half of the day is arc cos(-tan 23.44) = 115.69419 degrees, 7.712946 hours.
    const double f = 45 * RADIANTI, d = 23.44 * RADIANTI;
    EXPECT_NEAR(*semiarco(f, d) * GRADI, 115.69419, 1e-5);
    EXPECT_NEAR(*italica(f, 0, d), 24 - 7.712946, 1e-6);
    EXPECT_NEAR(*babilonica(f, 0, d), 7.712946, 1e-6);
    EXPECT_NEAR(*temporaria(f, 0, d), 6, 1e-12);
    EXPECT_NEAR(*temporaria(f, *semiarco(f, d), d), 12, 1e-12);
    EXPECT_FALSE(temporaria(f, 2.1, d) || temporaria(f, -2.1, d));
    EXPECT_NEAR(oraVera(-1.5 * 15 * RADIANTI), 10.5, 1e-12);
    for (const double polo : {70.0, -70.0})
        for (const double delta : {23.0, -23.0})
            EXPECT_FALSE(semiarco(polo * RADIANTI, delta * RADIANTI) || italica(polo * RADIANTI, 0, delta * RADIANTI));
}

TEST(SoleDiUnaData, AgainstAlmanacs) {
    double delta = 0, tempo = 0;
    int righe = 0;
    for (const char *tavola : {"sole_efemeridi.txt", "sole_pubblicati.txt"}) {
        for (const auto &r : prova::Tabella(tavola)) {
            if (r[7] != "delta" && r[7] != "tempo") continue;
            const Sole s = soleDi(giornoGiuliano({int(n(r[2])), int(n(r[1])), int(n(r[0]))}) + n(r[3]) / 24);
            // The published rows come from several theories and delta Ts: 2.1 seconds of arc, 0.31 of time, and half a unit of
            // the third place. Against the precise theory what is promised holds, and half a unit of the row's last place, in
            // years whose delta T is known.
            const bool precisa = r[10] == "ERFA" && n(r[2]) < 2030;
            if (r[7] == "delta") EXPECT_NEAR(s.delta * GRADI, n(r[8]), precisa ? 0.55 / 3600 + 5e-6 : 2.1 / 3600 + 5e-4) << r[2];
            else EXPECT_NEAR(s.equazione, n(r[8]), precisa ? 0.12 / 60 + 5e-5 : 0.31 / 60 + 5e-4) << r[2];
            double &peggiore = r[7] == "delta" ? delta : tempo;
            peggiore = std::max(peggiore, std::fabs((r[7] == "delta" ? s.delta * GRADI : s.equazione) - n(r[8])));
            ++righe;
        }
    }
    std::printf("%d rows of almanacs, worst off by %.5f degrees, %.4f minutes\n", righe, delta, tempo);
    EXPECT_GE(righe, 35);
}

TEST(SoleDiUnaData, DatesOfADeclination) {
    for (const int anno : {1900, 1999, 2024, 2026, 2099})
        for (int giorno = 3; giorno < 362; giorno += 7) {
            const double jd0 = giornoGiuliano({anno, 1, 1}) + giorno, t = (giorno % 90 - 45) * RADIANTI;
            const double jd = momento(jd0, t, -9 * RADIANTI);
            const Sole s = soleDi(jd);
            EXPECT_NEAR(angoloOrario(jd, s.equazione, -9 * RADIANTI), t, 1e-7);
            if (std::fabs(s.delta) > 23.43 * RADIANTI) continue;  // at a solstice a day moves it by less than a second
            const auto date = dateDi(s.delta, t, anno, -9 * RADIANTI, 1);
            ASSERT_EQ(date.size(), 2U) << anno << ' ' << giorno;
            const Data d = dataDi(jd + 1 / 24.0);
            EXPECT_TRUE(date[0] == d || date[1] == d) << testoData(d) << ' ' << testoData(date[0]) << ' ' << testoData(date[1]);
        }
    EXPECT_EQ(dateDi(23.445 * RADIANTI, 0, 2026, 0, 0).size(), 1U);
    EXPECT_EQ(testoData(dateDi(23.445 * RADIANTI, 0, 2026, 0, 0).at(0)), "2026-06-21");
    EXPECT_TRUE(dateDi(24 * RADIANTI, 0, 2026, 0, 0).empty());
    for (const char *t : {"2026-02-29", "2026-13-01", "2026-1", "x", "2026-06-21x", "0-1-1"}) EXPECT_FALSE(leggiData(t)) << t;
    EXPECT_EQ(testoData(*leggiData("2024-02-29")), "2024-02-29");
}

}  // namespace
}  // namespace ombrelia::ombra
