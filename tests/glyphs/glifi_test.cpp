// The strokes of digits, Roman numerals and signs, and their places on the wall against the projection of the direct engine.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <compare>
#include <numeric>
#include <set>

#include "comuni/prova.h"
#include "glyphs/numeri.h"
#include "glyphs/tratti.h"
#include "glyphs/zodiaco.h"
#include "gnomonica/proiezione.h"

namespace ombrelia {
namespace {

using namespace prova;
using Linee = std::vector<RecLinea>;

constexpr double MM = 0.001, CELLA = 110 * MM;  // a unit of the cell in these tests

// The box of the strokes, in metres, y upward, and where their weight lies.
struct Ingombro {
    double sinistra = 1e9, destra = -1e9, alto = -1e9, basso = 1e9, inchiostro = 0, mx = 0, my = 0;

    explicit Ingombro(const Linee &linee) {
        for (const auto &[x1, y1, x2, y2, colore, spessore, id] : linee) {
            sinistra = std::min({sinistra, x1, x2}), destra = std::max({destra, x1, x2});
            alto = std::max({alto, y1, y2}), basso = std::min({basso, y1, y2});
            const double l = std::hypot(x2 - x1, y2 - y1);
            inchiostro += l, mx += l * (x1 + x2) / 2, my += l * (y1 + y2) / 2;
        }
    }
    [[nodiscard]] double larghezza() const { return destra - sinistra; }
    [[nodiscard]] double altezza() const { return alto - basso; }
    [[nodiscard]] double x() const { return (sinistra + destra) / 2; }
    [[nodiscard]] double y() const { return (alto + basso) / 2; }
    // Whether the weight lies on a side of the box's middle: 1 right or up, -1 left or down, 0 wherever it likes.
    [[nodiscard]] bool pende(double aDestra, double su, double gioco) const {
        return (aDestra == 0 || aDestra * (mx / inchiostro - x()) > gioco) && (su == 0 || su * (my / inchiostro - y()) > gioco);
    }
};

double Distanza(double x, double y, const RecLinea &l) {
    const double dx = l.X2 - l.X1, dy = l.Y2 - l.Y1, q = dx * dx + dy * dy;
    const double t = q == 0 ? 0 : std::clamp(((x - l.X1) * dx + (y - l.Y1) * dy) / q, 0.0, 1.0);
    return std::hypot(x - l.X1 - t * dx, y - l.Y1 - t * dy);
}

// How many separate pieces the lines make, where an end that lies on another line joins it.
std::size_t Pezzi(const Linee &linee, double gioco) {
    std::vector<std::size_t> pezzo(linee.size());
    std::iota(pezzo.begin(), pezzo.end(), std::size_t{0});
    for (std::size_t i = 0; i < linee.size(); ++i)
        for (std::size_t k = 0; k < linee.size(); ++k)
            if (const auto &l = linee[i], &m = linee[k]; std::min(Distanza(l.X1, l.Y1, m), Distanza(l.X2, l.Y2, m)) <= gioco)
                std::replace(pezzo.begin(), pezzo.end(), std::size_t{pezzo[k]}, std::size_t{pezzo[i]});
    return std::set(pezzo.begin(), pezzo.end()).size();
}

// A south wall on which numerals are 150 mm high and signs 15.
struct MuroDiCifre : Banco {
    explicit MuroDiCifre(CampiScritti campi = {}) : Banco({{"txtInc", "0"}, {"txtArabi", ".15"}, {"txtNumbersize", ".15"}}) {
        imposta({{"txtZodiacsize", "0.015"}, {"txtLonG", "-15"}, {"ck_Etna", "0"}});
        imposta(campi);
        LeggiParametri(s);
        s.v.unita = s.v.segnoLat2 = 1;
    }
    [[nodiscard]] Reale alta(Valore Lettura::*figura) const { return Lettura(s.in).*figura * s.v.unita; }
    const Linee &cifra(int n) { return s.tavolo.Clear(), DisegnaCifra(s, alta(&Lettura::arabi), 0, 0, 90, n, 2), lista().Linee; }
    const Linee &numero(int n, double gradi = 90) {
        return s.tavolo.Clear(), DisegnaNumero(s, alta(&Lettura::arabi), 1, 2, gradi, n), lista().Linee;
    }
    const Linee &romano(int n, double r = PI / 2) {
        return s.tavolo.Clear(), DisegnaNumeroRomano(s, alta(&Lettura::romani), 0, 0, r, n), lista().Linee;
    }
    std::size_t romani() { return s.tavolo.Clear(), PosizionaRomani(s), lista().Linee.size(); }
    std::size_t arabi() { return s.tavolo.Clear(), PosizionaArabi(s), lista().Linee.size(); }
    Ingombro segno(int n, double x = 0, double y = 0) {
        s.tavolo.Clear();
        DisegnaSegno(s, alta(&Lettura::segni), static_cast<Segno>(n), x, y, 90);
        Linee linee = lista().Linee;
        for (const RecFigura &f : lista().Figure) {
            const double arco = f.B == 0 ? CERCHIO : std::fmod(f.B - f.A + CERCHIO, CERCHIO);
            const auto px = [&](int i) { return f.X1 + f.X2 * std::cos(f.A + arco * i / 200); };
            const auto py = [&](int i) { return f.Y1 + f.X2 * std::sin(f.A + arco * i / 200); };
            for (int i = 0; i < 200; ++i) linee.push_back({px(i), py(i), px(i + 1), py(i + 1), 0, 0, 0});
        }
        return Ingombro(linee);
    }
    // The places of the signs that have a straight stroke, all but the Bull, where signs have no size.
    Linee posti() {
        DisegnaZodiaco(s);
        Linee r = lista().Linee;
        const auto stesso = [](const auto &a, const auto &b) { return a.X1 == b.X1 && a.Y1 == b.Y1; };
        r.erase(std::unique(r.begin(), r.end(), stesso), r.end());
        return r;
    }
};

// On a southern dial that is mounted at once, what is seen in the sheet's mirror is what a northern one shows.
TEST(Glifi, ReadInTheMirror) {
    MuroDiCifre banco;
    struct Vertice2 {
        double x, y;
        auto operator<=>(const Vertice2 &) const = default;
    };
    const auto ridotto = [](double x) { return std::round(x * 1e7) / 1e7 + 0.0; };
    // Every stroke as points in a mirror that stands at the glyph's own middle.
    const auto punti = [&](bool specchio, double centro) {
        std::vector<Vertice2> p;
        const double verso = specchio ? -1 : 1;
        const auto metti = [&](double x, double y) { p.push_back({ridotto(centro + verso * (x - centro)), ridotto(y)}); };
        for (const RecLinea &l : banco.lista().Linee) metti(l.X1, l.Y1), metti(l.X2, l.Y2);
        for (RecFigura f : banco.lista().Figure) {
            if (specchio && f.B != 0) Specchio{-1, 1, true}.arco(f.A, f.B);
            const double arco = f.B == 0 ? CERCHIO : std::fmod(f.B - f.A + CERCHIO, CERCHIO);
            metti(f.X1, f.Y1);
            for (int i = 0; i <= 4; ++i) {
                const double a = f.A + arco * i / 4;
                // The arc is the mirror's own now: its points are put on the glyph's side of it.
                p.push_back({ridotto(centro + verso * (f.X1 - centro) + f.X2 * std::cos(a)), ridotto(f.Y1 + f.X2 * std::sin(a))});
            }
        }
        std::sort(p.begin(), p.end());
        return p;
    };
    const auto prova = [&](auto disegna, double centro, const std::string &chi) {
        banco.s.australeMontato = false;
        banco.s.tavolo.Clear(), disegna();
        const auto dritti = punti(false, centro);
        banco.s.australeMontato = true;
        banco.s.v.segnoLat = -1;
        banco.s.tavolo.Clear(), disegna();
        EXPECT_TRUE(punti(true, centro) == dritti) << chi;
        banco.s.v.segnoLat = 1;
        banco.s.tavolo.Clear(), disegna();
        EXPECT_TRUE(punti(false, centro) == dritti) << chi;
    };
    for (int n = 0; n < QUANTI_SEGNI; ++n)
        prova([&] { DisegnaSegno(banco.s, 0.015, static_cast<Segno>(n), 0.3, -0.2, 90); }, 0.3, "sign " + std::to_string(n));
    const double mezzaCella = 0.15 * LARGHEZZA_CELLA / ALTEZZA_CELLA / 2;
    for (const int n : {1, 6, 7, 10, 12}) {
        prova([&] { DisegnaNumero(banco.s, 0.15, 0.3, 0, 90, n); }, n <= 9 ? 0.3 - mezzaCella : 0.3, std::to_string(n));
        prova([&] { DisegnaNumeroRomano(banco.s, 0.15, 0.3, 0, PI / 2, n); }, 0.3, "Roman " + std::to_string(n));
    }
}

TEST(Cifre, InTheirCellJoinedAndUpright) {
    MuroDiCifre banco;
    for (const auto &r : Tabella("cifre.txt")) {
        const Linee &linee = banco.cifra(std::stoi(r[0]));
        const Ingombro i(linee);
        EXPECT_TRUE(std::fabs(i.y()) < 0.3 * MM && std::fabs(i.altezza() - 150 * MM) < 0.6 * MM) << r[0];
        EXPECT_TRUE(i.sinistra >= 8 * MM && i.destra <= 102 * MM) << r[0];
        EXPECT_EQ(Pezzi(linee, 0.01 * MM), 1U) << r[0];
        for (const RecLinea &l : linee) EXPECT_TRUE(l.colore == QB(7) && l.Spessore == 2) << r[0];
        EXPECT_TRUE(i.pende(Val(r[1]).v, Val(r[2]).v, 0.5 * MM)) << r[0] << ": mirrored or upside down";
    }
    EXPECT_TRUE(banco.cifra(10).empty() && banco.cifra(-1).empty());
}

TEST(Numeri, OneCellADigit) {
    MuroDiCifre banco;
    const auto fuori = [&v = banco.s.v](double x, double y) { return std::hypot(v.x1.numero() - x, v.y1.numero() - y); };
    for (const int n : {1, 5, 9, 10, 11, 12}) {
        const bool due = n > 9;
        const std::size_t attese = banco.cifra(n % 10).size() + (due ? banco.cifra(1).size() : 0);
        const Ingombro i(banco.numero(n));
        EXPECT_EQ(banco.lista().Linee.size(), attese) << n;
        EXPECT_TRUE(i.sinistra >= 1 - CELLA && i.destra <= (due ? 1 + CELLA : 1) && std::fabs(i.y() - 2) < MM) << n;
        EXPECT_LT(fuori(due ? 1 : 1 - CELLA, 2), 1e-9) << n;
        banco.numero(n, 0);  // upright to the right: the baseline runs down the plane
        EXPECT_LT(fuori(1, due ? 2 : 2 + CELLA), 1e-9) << n;
    }
}

TEST(NumeriRomani, WriteTheHours) {
    MuroDiCifre banco;
    int ora = 0;
    for (const std::string attese : {"I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII"}) {
        const Ingombro i(banco.romano(++ora));
        EXPECT_EQ(Pezzi(banco.lista().Linee, 1e-9), attese.size()) << attese;
        double larghezza = 0;
        for (const char c : attese) larghezza += (c == 'I' ? 50 : 110) * MM;
        EXPECT_NEAR(i.larghezza(), larghezza, 8 * MM) << attese;
        EXPECT_TRUE(std::fabs(i.altezza() - 150 * MM) + std::fabs(i.y()) < 1e-9 && std::fabs(i.x()) < MM) << attese;
    }
    // Which comes first: the strokes of one, moved aside.
    const Linee uno = banco.romano(1);
    for (const auto &[numero, davanti] : {std::pair{2, true}, {4, true}, {5, false}, {6, false}, {9, true}, {11, false}}) {
        const Linee linee = banco.romano(numero);
        ASSERT_GE(linee.size(), uno.size());
        double scarto = 0;
        for (std::size_t i = 0; i < uno.size(); ++i)
            scarto +=
                std::hypot(linee[i].X2 - linee[i].X1 - uno[i].X2 + uno[i].X1, linee[i].Y2 - linee[i].Y1 - uno[i].Y2 + uno[i].Y1);
        EXPECT_EQ(scarto < 1e-9, davanti) << numero;
    }
    EXPECT_NEAR(Ingombro(banco.romano(8, 0)).altezza(), 256 * MM, 1e-9) << "the baseline runs down the sheet";
    EXPECT_TRUE(banco.romano(0).empty() && banco.romano(2000000000).empty());
}

TEST(NumeriSulleOre, OnTheHoursOfTheDayLine) {
    for (const auto &[lat, dec, delta] : {std::array{"45", "0", "-10"}, {"38", "-20", "23.445"}, {"60", "35", "0"}}) {
        MuroDiCifre banco({{"txtLAT", lat}, {"txtDec", dec}, {"txtDelta", delta}, {"txtNumbersize", ".0015"}}), campione;
        banco.s.in.ckRomani = 1, banco.romani();
        const Proiezione proietta{Piano(banco.s.v)};
        auto primo = banco.lista().Linee.begin(), fine = banco.lista().Linee.end();
        for (int V = -90; V <= 90; V += 15) {
            const std::ptrdiff_t n = std::ssize(campione.romano((12 + V / 15 + 11) % 12 + 1));
            ASSERT_LE(n, fine - primo);
            const Ingombro i(Linee(primo, primo + n));
            primo += n;
            Reale x, y;
            proietta(PI * V / 180, Radianti(Val(delta)), x, y);
            const double ax = x.numero(), ay = y.numero(), gioco = 1.5e-5 + 1.5e-7 * std::hypot(ax, ay);
            EXPECT_TRUE(std::fabs(ax) > 1e3 || std::hypot(i.x() - ax, i.y() - ay) < gioco) << V << " " << lat;
        }
        EXPECT_EQ(primo, fine);
    }
}

TEST(NumeriSulleOre, WaitForAWallAndARun) {
    MuroDiCifre banco({{"txtLonG", "0"}});
    EXPECT_TRUE(banco.arabi() > 0 && banco.romani() == banco.arabi()) << "the box is clear: Arabic";
    EXPECT_TRUE(banco.s.v.deltaOpz.numero() == 23.445 && banco.s.v.angOraLong.numero() == 15) << "degrees";
    banco.s.in.txtInc = "25.2";
    EXPECT_EQ(banco.arabi(), 0U) << "no wall";
    banco.s.in.txtInc = "0";
    banco.s.v.unita = 0;
    EXPECT_EQ(banco.romani() + banco.arabi(), 0U) << "no run before";
}

TEST(Segni, OfTheirSizeAndUpright) {
    MuroDiCifre cielo;
    int n = 0;
    for (const auto &r : Tabella("segni.txt")) {
        const Ingombro i = cielo.segno(n++, 1, 2);
        EXPECT_NEAR(static_cast<double>(cielo.lista().Ordine.size()), Val(r[1]).v, 0.1 * Val(r[1]).v) << r[0];
        EXPECT_LE(std::max({i.destra - 1, 1 - i.sinistra, i.alto - 2, 2 - i.basso}), 0.0079) << r[0];
        EXPECT_GE(std::max(i.larghezza(), i.altezza()), 0.011) << r[0] << ": too small to read";
        EXPECT_TRUE(i.pende(Val(r[2]).v, Val(r[3]).v, 0.05 * MM)) << r[0] << ": mirrored or upside down";
        for (const RecFigura &f : cielo.lista().Figure)
            EXPECT_TRUE(f.X2 > 0 && f.A >= 0 && f.A < CERCHIO && f.B >= (f.A > 0 ? 1e-9 : 0) && f.B <= CERCHIO) << r[0];
    }
    EXPECT_EQ(n, QUANTI_SEGNI);
}

TEST(Glifi, GrowWithTheFieldAndTheUnit) {
    MuroDiCifre banco;
    const double alto = banco.segno(QUANTI_SEGNI - 1).altezza();
    banco.imposta({{"txtArabi", "30"}, {"txtNumbersize", "60"}, {"txtZodiacsize", "30"}});
    banco.s.v.unita = MM;
    EXPECT_NEAR(banco.segno(QUANTI_SEGNI - 1).altezza(), 2 * alto, 1e-9);
    EXPECT_NEAR(Ingombro(banco.cifra(4)).altezza() / 30, MM, 1e-10);
    EXPECT_NEAR(Ingombro(banco.romano(4)).altezza() / 60, MM, 1e-10);
    for (const char *niente : {"0", "x", "1e999"}) {
        banco.imposta({{"txtArabi", niente}, {"txtNumbersize", niente}, {"txtZodiacsize", niente}});
        EXPECT_EQ(Ingombro(banco.numero(12)).larghezza() + Ingombro(banco.romano(12)).larghezza(), 0) << niente;
        for (int n = 0; n < QUANTI_SEGNI; ++n) {
            const Ingombro i = banco.segno(n, 3, -4);
            EXPECT_TRUE(i.larghezza() == 0 && i.altezza() == 0 && i.x() == 3 && i.y() == -4) << niente << n;
        }
    }
}

TEST(Zodiaco, FollowsTheLongitudeOnEveryWall) {
    for (const char *lon : {"-9.2", "0", "-15", "-21"})
        for (const char *dec : {"-40", "0", "62"}) {
            MuroDiCifre cielo({{"txtLonG", lon}, {"txtDec", dec}, {"txtLAT", "41.9"}, {"txtZodiacsize", "0"}});
            const Linee posti = cielo.posti();
            ASSERT_EQ(posti.size(), 11U);
            const Proiezione proietta{Piano(cielo.s.v)};
            for (const auto &r : Tabella("posti_segni.txt")) {
                const RecLinea &posto = posti.at(std::stoul(r[0]));
                Reale x, y;  // a mended azimuth carries the error of the ten-digit PI, up to some 1e-8 m at these slopes
                proietta(Radianti(Val(r[1]) / 4 - (15 + Val(lon))), Radianti(Val(r[2])), x, y);
                EXPECT_LT(std::hypot(posto.X1 - x.numero(), posto.Y1 - y.numero()), 1.4e-7) << r[3] << " " << lon << " " << dec;
            }
        }
}

TEST(Zodiaco, InTheSouthTheYearTurns) {
    MuroDiCifre cielo({{"txtDec", "0"}, {"txtLAT", "30"}, {"txtZodiacsize", "0"}});
    cielo.s.v.segnoLat = -1;
    const Linee posti = cielo.posti();
    EXPECT_TRUE(posti.at(0).Y1 < posti.at(5).Y1 && posti[5].Y1 < posti.at(10).Y1)
        << "Capricorn a summer sign, below the equinoctial";
}

TEST(Zodiaco, PointsCloseTheFigure) {
    MuroDiCifre cielo({{"txtDec", "10"}, {"txtLAT", "45"}}), nord({{"txtDec", "180"}, {"txtLAT", "45"}});
    cielo.s.v.flagVerticale = 1, cielo.s.v.lonEq = -12;
    ChiudiZodiaco(cielo.s);
    EXPECT_EQ(cielo.s.v.lonPiu15.numero(), 3) << "the equivalent dial's longitude counts";
    // Radians of the five stretches over their steps, both ends counted where they are met.
    const double attesi = ((24.98 + 29.5 + 14.6466 + 9.83) / 0.0001 + 3.5326 / 0.0002) * 15 * PI / (60 * 180);
    EXPECT_NEAR(static_cast<double>(cielo.lista().Punti.size()), attesi, 5);
    for (const RecPunto &p : cielo.lista().Punti) EXPECT_TRUE(p.Y <= 0 && p.colore == QB(14));
    ChiudiZodiaco(nord.s);
    EXPECT_TRUE(nord.lista().Punti.empty()) << "the wall has the noon Sun behind it";
}

}  // namespace
}  // namespace ombrelia
