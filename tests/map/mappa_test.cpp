// The outlines: reading the file, and where, whether and in what colour a place is drawn.
#include "map/mappa.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "prova_mappa.h"

namespace ombrelia {
namespace {

TEST(LeggiMondo, RunsCountriesAndWhatIsPassedOver) {
    struct Caso {
        const char *testo;
        std::vector<std::size_t> tratti;  // points a run
        std::vector<std::string> paesi;   // a run's country
        std::size_t voci;                 // entries of the list
    };
    const std::string lunga(100000, '9');
    const Caso casi[] = {
        {"", {}, {}, 1},
        {"A1;1;2\nA1;3;4\nA2;5;6\nB1;7;8\n", {2, 1, 1}, {"A", "A", "B"}, 3},
        {"A1;1;2\r\nA1;3;4\r\n\r\n", {2}, {"A"}, 2},
        {"A1;1;2\rA1;3;4", {2}, {"A"}, 2},
        {"A1;1;2\n\n   \nA1;3;4", {2}, {"A"}, 2},
        {"A1\nA1;1\nA1;;\nA1;x;2\nA1;1;y\nA1;1;2", {1}, {"A"}, 2},
        {"A1;1;1e999\nA1;1e999;1\nA1;1;1e308", {1}, {"A"}, 2},
        {"11;1;2\n12;1;2\nA1;1;2\n3;1;2", {1, 1, 1, 1}, {"", "", "A", ""}, 4},
        {"A1;1;2\nB1;1;2\nA1;1;2", {1, 1, 1}, {"A", "B", "A"}, 4},
        {"1A 2b3;1;2;rest\n;4;5", {1, 1}, {"A b", ""}, 3},
        {"A1; +1 ;\t.5\n", {1}, {"A"}, 2},
        {";;;;\n;;\n;", {}, {}, 1},
    };
    for (const Caso &c : casi) {
        SCOPED_TRACE(c.testo);
        const Mondo m = LeggiMondo(c.testo, 0);
        std::vector<std::size_t> tratti;
        std::vector<std::string> paesi;
        for (std::size_t t = 0; t < m.tratti.size(); ++t) {
            tratti.push_back((t + 1 < m.tratti.size() ? m.tratti[t + 1].primo : m.punti.size()) - m.tratti[t].primo);
            paesi.push_back(m.paesi[m.tratti[t].paese]);
        }
        EXPECT_EQ(tratti, c.tratti);
        EXPECT_EQ(paesi, c.paesi);
        ASSERT_EQ(m.paesi.size(), c.voci);
        EXPECT_EQ(m.paesi[0], " World");
    }
    EXPECT_TRUE(LeggiMondo("A;" + lunga + ";1", 0).punti.empty());
}

TEST(LeggiMondo, WestIsPositiveFromTheSiteAndSouthIsPositive) {
    const Mondo m = LeggiMondo("A1;41.9;12.5\nA1;-34.6;-58.4", -7.85);
    ASSERT_EQ(m.punti.size(), 2u);
    EXPECT_DOUBLE_EQ(m.punti[0].X, -4.65);
    EXPECT_DOUBLE_EQ(m.punti[0].Y, -41.9);
    EXPECT_DOUBLE_EQ(m.punti[1].X, 66.25);
    EXPECT_DOUBLE_EQ(m.punti[1].Y, 34.6);
}

// A current directory of one's own for as long as the test lasts.
struct Cartella {
    std::filesystem::path prima = std::filesystem::current_path(), qui;
    Cartella() {
        std::string nome = (std::filesystem::temp_directory_path() / "ombrelia_mondo_XXXXXX").string();
        if (!mkdtemp(nome.data())) throw std::runtime_error(nome);
        std::filesystem::current_path(qui = nome);
    }
    ~Cartella() {
        std::filesystem::current_path(prima);
        std::filesystem::remove_all(qui);
    }
    void scrivi(std::string_view testo) const { std::ofstream(qui / "mondo.csv", std::ios::binary) << testo; }
};

TEST(CaricaMondo, ReplacesWhatWasLoadedAndShowsTheFilter) {
    const Cartella cartella;
    BancoMappa b;
    EXPECT_FALSE(b.s.stato("lblFiltro").visibile);
    EXPECT_FALSE(b.s.stato("Filtertxt").visibile);

    cartella.scrivi(
        "Per\xF9"
        "1;-12;-77\nCuba1;23;-82\n");  // Windows-1252
    CaricaMondo(b.s);
    EXPECT_EQ(b.s.mondo.paesi, (std::vector<std::string>{" World", "Perù", "Cuba"}));
    EXPECT_EQ(b.s.in.cmbStati, " World");
    EXPECT_EQ(b.utente.messaggi, std::vector<std::string>{"Map"});
    EXPECT_TRUE(b.s.stato("lblFiltro").visibile);
    EXPECT_TRUE(b.s.stato("Filtertxt").visibile);

    b.s.in.cmbStati = "Cuba";
    cartella.scrivi("\xEF\xBB\xBFÅland1;60;20");
    CaricaMondo(b.s);
    EXPECT_EQ(b.s.mondo.paesi, (std::vector<std::string>{" World", "Åland"}));
    EXPECT_EQ(b.s.mondo.punti.size(), 1u);
    EXPECT_EQ(b.s.in.cmbStati, " World");

    std::filesystem::remove("mondo.csv");
    CaricaMondo(b.s);
    EXPECT_EQ(b.s.mondo.paesi, std::vector<std::string>{" World"});
    DisegnaMondo(b.s);
    EXPECT_TRUE(b.linee().empty());
}

TEST(CaricaMondo, TheDrawingLoadsOnlyWhenNothingIsLoaded) {
    const Cartella cartella;
    BancoMappa b;
    cartella.scrivi("A1;45;1\nA1;45;2\n");
    b.s.in.ck_inv = 1;
    b.s.in.punto = 1;
    DisegnaMondo(b.s);
    EXPECT_EQ(b.linee().size(), 1u);
    EXPECT_EQ(b.s.in.punto, 0);
    EXPECT_EQ(b.utente.attese, (std::vector<bool>{true, false}));
    cartella.scrivi("A1;45;1\nA1;45;2\nA1;45;3\n");
    DisegnaMondo(b.s);
    EXPECT_EQ(b.linee().size(), 2u);
}

// The plane's own axes, from the geometry of the globe: the place's direction in the site's east, north and up, seen
// from a plane whose normal looks to the azimuth dec (West of south) and up by inc.
std::array<double, 2> atteso(double lat, double lon, double sitoLat, double sitoLon, double dec, double inc, double gn) {
    const double r = std::acos(-1.0) / 180;
    const double L = lat * r, f = sitoLat * r, d = (lon - sitoLon) * r, g = dec * r, i = inc * r;
    const double est = std::cos(L) * std::sin(d);
    const double nord = std::cos(f) * std::sin(L) - std::sin(f) * std::cos(L) * std::cos(d);
    const double alto = std::sin(f) * std::sin(L) + std::cos(f) * std::cos(L) * std::cos(d);
    const double destra = est * std::cos(g) - nord * std::sin(g);
    const double fronte = -nord * std::cos(g) - est * std::sin(g);
    const double normale = fronte * std::cos(i) + alto * std::sin(i);
    const double su = alto * std::cos(i) - fronte * std::sin(i);
    return {-gn * destra / normale, -gn * su / normale};
}

TEST(DisegnaMondo, PlacesFallWhereTheGlobeSays) {
    struct Piano {
        const char *lat, *lonG, *dec, *inc, *gn;
        int mm;
    };
    // txtLonG is West positive.
    const Piano piani[] = {{"45", "-12", "0", "90", ".05", 0},    {"45", "-12", "0", "0", ".3", 0},
                           {"41.9", "-12.5", "30", "0", ".3", 0}, {"45", "70", "-40", "25", "50", 1},
                           {"-33", "-151", "20", "60", ".1", 0},  {"0.5", "0", "0", "90", "200", 1}};
    const double luoghi[][2] = {{10, 5}, {-25, -8}, {40, 60}, {64, -21.9}, {-33, 151}, {12, -70}, {0, 0}};
    double peggiore = 0;
    int confronti = 0, notte = 0;
    for (const Piano &p : piani) {
        for (const int inv : {0, 1}) {
            for (const auto &luogo : luoghi) {
                BancoMappa b;
                DialInputs &in = b.s.in;
                in.txtLAT = p.lat, in.txtLonG = p.lonG, in.txtDec = p.dec, in.txtInc = p.inc, in.TxtStilo = p.gn;
                in.ChCentimetro = p.mm, in.ck_inv = inv;
                const double metri = p.mm == 1 ? 0.001 : 1;
                b.mondo("A1;" + std::to_string(luogo[0]) + ';' + std::to_string(luogo[1]) + "\nA1;" + std::to_string(luogo[0]) +
                        ';' + std::to_string(luogo[1]));
                DisegnaMondo(b.s);
                // Without the inversion the map is mirrored north to south: ordinates are minus the latitude.
                const double lat = inv == 1 ? luogo[0] : -luogo[0];
                const double sito = std::stod(p.lat), lonSito = -std::stod(p.lonG), gn = std::stod(p.gn) * metri;
                const bool orizzontale = std::string(p.inc) == "90";
                const auto q = atteso(lat, luogo[1], sito, lonSito, orizzontale ? 0 : std::stod(p.dec), std::stod(p.inc), gn);
                // A place behind the plane would be seen from a plane that looks the other way.
                const auto rovescio =
                    atteso(-lat, luogo[1] + 180, sito, lonSito, orizzontale ? 0 : std::stod(p.dec), std::stod(p.inc), gn);
                EXPECT_NEAR(q[0], rovescio[0], 1e-9);
                if (b.linee().empty()) {
                    ++notte;
                    continue;
                }
                const RecLinea &l = b.linee().front();
                const double scarto = std::max(std::abs(l.X1 - q[0]), std::abs(-l.Y1 - q[1])) / gn;
                EXPECT_LT(scarto, 1e-6) << p.lat << ' ' << p.inc << ' ' << lat << ' ' << luogo[1];
                EXPECT_EQ(l.X1, l.X2);
                EXPECT_EQ(l.colore, QB(11));
                peggiore = std::max(peggiore, scarto);
                ++confronti;
            }
        }
    }
    std::printf("%d places, worst %.1e ortostili; %d behind the plane\n", confronti, peggiore, notte);
    EXPECT_GT(confronti, 30);
}

TEST(DisegnaMondo, OnlyTheSideBeforeThePlaneIsDrawn) {
    struct Caso {
        const char *dec, *inc;
        double lat, lon;
        bool visibile;
    };
    // Off the site's meridian: exactly on it a place north of the zenith has the azimuth 0, as the formula gives it.
    const Caso casi[] = {
        {"0", "90", 45, 13, true},    {"0", "90", -40, 13, true},    {"0", "90", -46, 13, false}, {"0", "90", 50, -160, true},
        {"0", "90", 40, -160, false}, {"0", "90", -44, -160, false}, {"0", "0", 0, 13, true},     {"0", "0", 80, 13, false},
        {"0", "0", -70, 20, true},    {"0", "0", 0, -170, false},    {"-90", "0", 0, 60, true},   {"-90", "0", 0, -40, false},
        {"90", "0", 0, -40, true},    {"90", "0", 0, 60, false},     {"170", "0", 80, 13, true},  {"170", "0", 0, 13, false},
        {"0", "0", 80, 12, true},
    };
    for (const Caso &c : casi) {
        BancoMappa b;
        b.s.in.ck_inv = 1, b.s.in.txtDec = c.dec, b.s.in.txtInc = c.inc;
        const std::string luogo = "A1;" + std::to_string(c.lat) + ';' + std::to_string(c.lon) + '\n';
        b.mondo(luogo + luogo);
        DisegnaMondo(b.s);
        EXPECT_EQ(b.linee().size(), c.visibile ? 1u : 0u) << c.dec << ' ' << c.inc << ' ' << c.lat << ' ' << c.lon;
    }
}

TEST(DisegnaMondo, FilterFrameAndChosenCountry) {
    const std::string due = "A1;44;11\nA1;45;12\nA1;46;13\nB1;45;11\nB1;46;11\nA2;43;12\nA2;43;13\n";
    struct Caso {
        const char *filtro, *stato, *x1;
        std::size_t corde;
        Colore colore;
    };
    const Caso casi[] = {
        {"100", " World", "1000", 4, QB(11)}, {"0", " World", "1000", 0, 0},   {"", " World", "1000", 0, 0},
        {"100", "A", "1000", 3, QB(12)},      {"100", "B", "1000", 1, QB(12)}, {"100", "a", "1000", 0, 0},
        {"100", "World", "1000", 0, 0},       {".0001", "A", "1000", 0, 0},    {"100", " World", "-.0002", 2, QB(11)}};
    for (const Caso &c : casi) {
        BancoMappa b;
        b.s.in.ck_inv = 1;
        b.mondo(due);
        b.s.in.Filtertxt = c.filtro, b.s.in.cmbStati = c.stato, b.s.in.txtX1 = c.x1;
        DisegnaMondo(b.s);
        EXPECT_EQ(b.linee().size(), c.corde) << c.filtro << c.stato << c.x1;
        for (const RecLinea &l : b.linee()) EXPECT_EQ(l.colore, c.colore);
        // The newer end is tested, the older may lie outside.
        if (std::string(c.x1) == "-.0002") {
            for (const RecLinea &l : b.linee()) EXPECT_TRUE(l.X1 < -.0002 && l.X2 > -.0002);
        }
    }
}

TEST(DisegnaMondo, APlaceBehindThePlaneLeavesItsSlotAsItWas) {
    const std::string qui = "46;13\n", la = "47;14\n", notte = "-44;-160\n";
    BancoMappa b;
    b.s.in.ck_inv = 1;
    // The first run starts in the dark: its chord comes from a slot never written. The third meets the first one's slot.
    b.mondo("A1;" + notte + "A1;" + qui + "A2;" + la + "B1;" + notte + "B1;" + qui + "C1;" + notte + "C1;" + notte);
    DisegnaMondo(b.s);
    const auto &l = b.linee();
    ASSERT_EQ(l.size(), 2u);
    EXPECT_EQ(l[0].X2, 0);
    EXPECT_EQ(l[0].Y2, 0);
    EXPECT_EQ(l[1].X1, l[0].X1);
    EXPECT_LT(l[1].X2, l[0].X1);  // 47 N 14 E lies beyond 46 N 13 E

    // A second press starts afresh.
    DisegnaMondo(b.s);
    ASSERT_EQ(l.size(), 4u);
    EXPECT_EQ(l[2].X2, 0);
}

TEST(DisegnaMondo, PointsPastTheArraysAreSkipped) {
    BancoMappa b;
    b.s.in.ck_inv = 1;
    std::string lunga;
    for (int i = 0; i < 100010; ++i) lunga += "A1;45;12\n";
    b.mondo(lunga + "B1;45;12\nB1;45;12\n");
    DisegnaMondo(b.s);
    EXPECT_EQ(b.linee().size(), 100000u + 1u);
}

TEST(DisegnaMondo, HostileFieldsAndPlacesAreHarmless) {
    for (const char *campo : {"1e308", "-1e308", "1e999", "", "abc", "90", "-90", "1e-320"}) {
        BancoMappa b;
        b.s.in.txtLAT = b.s.in.txtDec = b.s.in.txtInc = b.s.in.TxtStilo = b.s.in.txtLonG = campo;
        b.mondo("A1;1e308;-1e308\nA1;1e308;1e300\nA1;90;0\nA1;-90;0\nA1;0;0\nA1;0;0");
        DisegnaMondo(b.s);
        for (const RecLinea &l : b.linee()) EXPECT_TRUE(std::isfinite(l.X1 + l.Y1 + l.X2 + l.Y2)) << campo;
    }
}

// The shipped file: whole rings, no edge longer than a degree, no digit left in a name.
TEST(MondoCsv, IsWhatADialNeeds) {
    const Mondo m = MondoSpedito();
    EXPECT_EQ(m.paesi.size(), 242u);
    EXPECT_GT(m.punti.size(), 90000u);
    double peggiore = 0;
    for (std::size_t t = 0; t < m.tratti.size(); ++t) {
        const std::size_t fine = t + 1 < m.tratti.size() ? m.tratti[t + 1].primo : m.punti.size();
        EXPECT_GE(fine - m.tratti[t].primo, 2u);
        for (std::size_t i = m.tratti[t].primo + 1; i < fine; ++i) {
            const auto &p = m.punti[i], &q = m.punti[i - 1];
            peggiore = std::max({peggiore, std::abs(std::remainder(p.X - q.X, 360)), std::abs(p.Y - q.Y)});
        }
    }
    EXPECT_LT(peggiore, 1.02);
}

}  // namespace
}  // namespace ombrelia
