// The world on a dial: reading the outlines, and where, whether and in what colour a place, a city, a star is drawn.
#include "map/mappa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "comuni/cartella.h"
#include "comuni/prova.h"
#include "core/file.h"
#include "map/citta.h"
#include "ombra/ombra.h"

namespace ombrelia {
namespace {

struct UtenteMappa : prova::UtenteDiProva {
    std::vector<bool> attese;
    void Puntatore(bool attesa) override { attese.push_back(attesa); }
};

// A horizontal dial at latitude 45, 12 East, with a frame and a filter that keep everything.
struct BancoMappa {
    UtenteMappa utente;
    Sessione s{utente};
    const Lista &lista = s.tavolo.lista();
    const std::vector<RecLinea> &l = lista.Linee;
    BancoMappa() {
        s.in.txtLAT = "45", s.in.txtLonG = "-12", s.in.txtDec = "0", s.in.txtInc = "90", s.in.TxtStilo = ".05", s.in.ck_inv = 1;
        s.in.txtX0 = s.in.txtY1 = "-1000000", s.in.txtX1 = s.in.txtY0 = s.in.Filtertxt = "1000000";
    }
    void disegna(const std::string &testo) {
        s.mondo = LeggiMondo(testo, Val(s.in.txtLonG));
        s.in.cmbStati = " World";
        DisegnaMondo(s);
    }
    // A place: an outline of one point twice.
    void luogo(double lat, double lon) {
        const std::string riga = "A1;" + std::to_string(lat) + ';' + std::to_string(lon) + '\n';
        disegna(riga + riga);
    }
};

// Calls lato(country, point, the point before) for every edge; gives the number of points of each run.
template <class F>
std::vector<std::size_t> Lati(const Mondo &m, const F &lato) {
    std::vector<std::size_t> punti;
    for (std::size_t t = 0; t < m.tratti.size(); ++t) {
        const std::size_t primo = m.tratti[t].primo, fine = t + 1 < m.tratti.size() ? m.tratti[t + 1].primo : m.punti.size();
        for (std::size_t i = primo + 1; i < fine; ++i) lato(m.paesi[m.tratti[t].paese], m.punti[i], m.punti[i - 1]);
        punti.push_back(fine - primo);
    }
    return punti;
}

TEST(LeggiMondo, StrokesCountriesAndWhatIsSkipped) {
    for (const auto &r : prova::Tabella("mondo_righe.txt")) {
        SCOPED_TRACE(r.at(0));
        const Mondo m = LeggiMondo(prova::Scritto(r.at(0)), 0);
        std::string punti, paesi;
        for (const std::size_t quanti : Lati(m, [](auto &...) {})) punti += std::to_string(quanti) + ' ';
        for (const auto &t : m.tratti) paesi += m.paesi[t.paese] + ',';
        EXPECT_EQ(SenzaBlanks(punti), r.at(1));
        EXPECT_EQ(paesi, r.at(2));
        EXPECT_EQ(std::to_string(m.paesi.size()) + m.paesi.at(0), r.at(3) + " World");
    }
    EXPECT_TRUE(LeggiMondo("A;" + std::string(100000, '9') + ";1", 0).punti.empty());
    // West is positive from the site, and south is positive.
    const Mondo m = LeggiMondo("A1;-34.6;-58.4", -7.85);
    EXPECT_DOUBLE_EQ(m.punti.at(0).X, 66.25);
    EXPECT_DOUBLE_EQ(m.punti.at(0).Y, 34.6);
}

class CaricaMondoQui : public prova::InCartella {};

TEST_F(CaricaMondoQui, ReplacesShowsTheFilterAndLoadsOnce) {
    using Nomi = std::vector<std::string>;
    BancoMappa b;
    EXPECT_FALSE(b.s.stato("lblFiltro").visibile || b.s.stato("Filtertxt").visibile);
    // Windows-1252, UTF-8 with its mark, no file.
    const std::pair<std::string, Nomi> casi[] = {{"Per\3711;-12;-77\nCuba1;23;-82\n", {" World", "Perù", "Cuba"}},
                                                 {"\xEF\xBB\xBFÅland1;60;20", {" World", "Åland"}},
                                                 {"", {" World"}}};
    for (const auto &[testo, paesi] : casi) {
        scrivi("mondo.csv", testo);
        if (testo.empty()) std::filesystem::remove("mondo.csv");
        b.s.in.cmbStati = "Cuba";
        CaricaMondo(b.s);
        EXPECT_EQ(b.s.mondo.paesi, paesi);
        EXPECT_EQ(b.s.mondo.punti.size(), paesi.size() - 1);
        EXPECT_EQ(b.s.in.cmbStati, " World");
    }
    EXPECT_EQ(b.utente.messaggi.at(0), "Map");
    EXPECT_TRUE(b.s.stato("lblFiltro").visibile && b.s.stato("Filtertxt").visibile);
    DisegnaMondo(b.s);
    EXPECT_TRUE(b.l.empty());
    scrivi("mondo.csv", "A1;45;1\nA1;45;2\n");
    b.s.in.punto = 1;
    b.utente.attese.clear();
    DisegnaMondo(b.s);
    EXPECT_EQ(b.l.size(), 1u);
    EXPECT_EQ(b.s.in.punto, 0);
    EXPECT_EQ(b.utente.attese, (std::vector<bool>{true, false}));
    scrivi("mondo.csv", "A1;45;1\nA1;45;2\nA1;45;3\n");
    DisegnaMondo(b.s);
    EXPECT_EQ(b.l.size(), 2u);
}

// The plane's own axes, from the geometry of the globe: the place's direction in the site's east, north and up, seen
// from a plane whose normal looks to the azimuth dec (West of south) and up by inc. The sight is the last.
std::array<double, 3> atteso(double lat, double lon, double sitoLat, double sitoLon, double dec, double inc, double gn) {
    const double r = PI / 180;
    const double L = lat * r, f = sitoLat * r, d = (lon - sitoLon) * r, g = dec * r, i = inc * r;
    const double est = std::cos(L) * std::sin(d);
    const double nord = std::cos(f) * std::sin(L) - std::sin(f) * std::cos(L) * std::cos(d);
    const double alto = std::sin(f) * std::sin(L) + std::cos(f) * std::cos(L) * std::cos(d);
    const double destra = est * std::cos(g) - nord * std::sin(g);
    const double fronte = -nord * std::cos(g) - est * std::sin(g);
    const double normale = fronte * std::cos(i) + alto * std::sin(i);
    return {-gn * destra / normale, -gn * (alto * std::cos(i) - fronte * std::sin(i)) / normale, normale};
}

TEST(DisegnaMondo, PlacesInFrontWhereTheGlobeSays) {
    // Off the sites' meridians: exactly on them a place north of the zenith has the azimuth 0, as the formula gives it.
    const double luoghi[][2] = {{10, 5},    {-25, -8},   {40, 60},  {64, -21.9}, {-33, 150}, {12, -71},
                                {0, 1},     {45, 20},    {-40, 20}, {-46, 20},   {80, 30},   {50, -160},
                                {40, -160}, {-44, -160}, {0, -170}, {-70, 20},   {0, -40},   {0, 60}};
    int confronti = 0, notte = 0;
    for (const auto &p : prova::Tabella("mondo_piani.txt")) {
        const auto n = [&p](std::size_t i) { return std::stod(p.at(i)); };
        for (const int inv : {0, 1}) {
            for (const auto &[lat, lon] : luoghi) {
                BancoMappa b;
                DialInputs &in = b.s.in;
                in.txtLAT = p[0], in.txtLonG = p[1], in.txtDec = p[2], in.txtInc = p[3], in.TxtStilo = p[4];
                in.ChCentimetro = p[5] == "1", in.ck_inv = inv;
                b.luogo(lat, lon);
                // Without the inversion the map is mirrored north to south: ordinates are minus the latitude.
                const double gn = n(4) * (p[5] == "1" ? 0.001 : 1);
                const auto q = atteso(inv == 1 ? lat : -lat, lon, n(0), -n(1), n(2), n(3), gn);
                SCOPED_TRACE(p[0] + ' ' + p[2] + ' ' + p[3] + ' ' + std::to_string(lat) + ' ' + std::to_string(lon));
                ASSERT_EQ(b.l.size(), q[2] > 0 ? 1u : 0u);
                if (b.l.empty() && ++notte > 0) continue;
                const double x = q[0] / gn, y = q[1] / gn, scarto = std::hypot(b.l[0].X1 / gn - x, b.l[0].Y1 / gn - y);
                EXPECT_LT(scarto / (1 + x * x + y * y), 1e-6);  // as an angle
                EXPECT_TRUE(b.l[0].X1 == b.l[0].X2 && b.l[0].colore == QB(11));
                ++confronti;
            }
        }
    }
    EXPECT_TRUE(confronti > 100 && notte > 100);
}

TEST(DisegnaMondo, FilterFrameAndCountry) {
    for (const auto &r : prova::Tabella("mondo_filtri.txt")) {
        BancoMappa b;
        b.s.mondo = LeggiMondo("A1;44;11\nA1;45;12\nA1;46;13\nB1;45;11\nB1;46;11\nA2;43;12\nA2;43;13\n", -12);
        b.s.in.Filtertxt = r.at(0), b.s.in.cmbStati = prova::Scritto(r.at(1)), b.s.in.txtX1 = r.at(2);
        DisegnaMondo(b.s);
        EXPECT_EQ(std::to_string(b.l.size()), r.at(3)) << r.at(0) << r.at(1) << r.at(2);
        for (const RecLinea &l : b.l) {
            EXPECT_EQ(l.colore, QB(std::stoi(r.at(4))));
            EXPECT_TRUE(r.at(2) == "1000" || (l.X1 < -.0002 && l.X2 > -.0002));
        }
    }
}

TEST(DisegnaMondo, APlaceBehindLeavesTheSpot) {
    const std::string qui = "46;13\n", la = "47;14\n", notte = "-44;-160\n";
    BancoMappa b;
    // The first run starts in the dark: its chord comes from a slot never written. The third meets the first one's slot.
    b.disegna("A1;" + notte + "A1;" + qui + "A2;" + la + "B1;" + notte + "B1;" + qui + "C1;" + notte + "C1;" + notte);
    ASSERT_EQ(b.l.size(), 2u);
    EXPECT_TRUE(b.l[0].X2 == 0 && b.l[0].Y2 == 0);
    EXPECT_EQ(b.l[1].X1, b.l[0].X1);
    EXPECT_LT(b.l[1].X2, b.l[0].X1);  // 47 N 14 E lies beyond 46 N 13 E
    DisegnaMondo(b.s);                // a second press starts afresh
    ASSERT_EQ(b.l.size(), 4u);
    EXPECT_EQ(b.l[2].X2, 0);
}

TEST(DisegnaMondo, LongStrokesAndHostileFields) {
    BancoMappa lungo;
    std::string testo;
    for (int i = 0; i < 100010; ++i) testo += "A1;45;12\n";
    lungo.disegna(testo + "B1;45;12\nB1;45;12\n");
    EXPECT_EQ(lungo.l.size(), 100000u + 1u);  // points past the arrays are skipped
    for (const char *campo : {"1e308", "-1e308", "1e999", "", "abc", "90", "-90", "1e-320"}) {
        BancoMappa b;
        b.s.in.ck_inv = 0;
        b.s.in.txtLAT = b.s.in.txtDec = b.s.in.txtInc = b.s.in.TxtStilo = b.s.in.txtLonG = campo;
        b.disegna("A1;1e308;-1e308\nA1;1e308;1e300\nA1;90;0\nA1;-90;0\nA1;0;0\nA1;0;0");
        for (const RecLinea &l : b.l) EXPECT_TRUE(std::isfinite(l.X1 + l.Y1 + l.X2 + l.Y2)) << campo;
    }
}

// How far a place lies from a country, degrees; 0 inside it.
double distanzaDaCorda(const Mondo &m, std::string_view paese, double X, double Y) {
    double vicino = 1e9;
    bool dentro = false;
    Lati(m, [&](const std::string &chi, const auto &p, const auto &q) {
        if (chi != paese) return;
        const double k = std::cos(Y * PI / 180), ex = (q.X - p.X) * k, ey = q.Y - p.Y, dx = (X - p.X) * k, dy = Y - p.Y;
        const double u = std::clamp((dx * ex + dy * ey) / (ex * ex + ey * ey), 0.0, 1.0);
        vicino = std::min(vicino, std::hypot(dx - u * ex, dy - u * ey));
        if ((p.Y > Y) != (q.Y > Y) && X < p.X + (q.X - p.X) * (Y - p.Y) / (q.Y - p.Y)) dentro = !dentro;
    });
    return dentro ? 0 : vicino;
}

// The shipped file has whole rings and no edge longer than a degree; each city lies in its country.
TEST(Citta, EveryPlaceInItsCountry) {
    const Mondo m = LeggiMondo(LeggiFile(OMBRELIA_RADICE "/data/mondo.csv", 32u << 20).value_or(""), 0);
    EXPECT_TRUE(m.paesi.size() == 242 && m.punti.size() > 90000) << m.paesi.size() << ' ' << m.punti.size();
    double lato = 0;
    for (const std::size_t punti : Lati(m, [&lato](auto &, const auto &p, const auto &q) {
             lato = std::max({lato, std::abs(std::remainder(p.X - q.X, 360)), std::abs(p.Y - q.Y)});
         }))
        EXPECT_GE(punti, 2u);
    EXPECT_LT(lato, 1.02);

    std::map<std::string, Citta> tavola;
    for (const Citta &c : TavolaCitta()) tavola.emplace(SenzaBlanks(c.nome), c);
    ASSERT_EQ(tavola.size(), 165u);
    EXPECT_EQ(TavolaCitta().size(), 165u);
    EXPECT_EQ(TavolaCitta()[0].nome, "Wellington");
    EXPECT_EQ(TavolaCitta()[164].nome, "Midway Island");
    for (const auto &r : prova::Tabella("citta.txt")) {
        for (std::size_t i = 1; i < r.size(); ++i) {
            // A quay or an islet may lie off the outline's 1:50 million.
            EXPECT_LT(distanzaDaCorda(m, r[0], tavola.at(r[i]).X, tavola.at(r[i]).Y), 0.15) << r[i] << " in " << r[0];
            tavola.erase(r[i]);
        }
    }
    for (const auto &r : prova::Tabella("citta_atolli.txt")) {
        const Citta &c = tavola.at(r.at(0));
        EXPECT_LT(std::max(std::abs(c.Y + std::stod(r.at(1))), std::abs(c.X + std::stod(r.at(2)))), 0.05) << r[0];
        tavola.erase(r[0]);
    }
    EXPECT_TRUE(tavola.empty()) << tavola.begin()->first;
}

TEST(DisegnaCitta, OnlyRowsInView) {
    for (const auto &r : prova::Tabella("citta_righe.txt")) {
        SCOPED_TRACE(r.at(0) + ' ' + r.at(1));
        BancoMappa b;
        b.s.in.punto = 1, b.s.in.txtEAST = r.at(0), b.s.in.txtWest = r.at(1);
        DisegnaCitta(b.s);
        std::vector<std::string> nomi;
        for (const RecTesto &t : b.lista.Testi) nomi.push_back(t.Testo);
        EXPECT_EQ(nomi, prova::Divisi(r.at(2), ','));
        ASSERT_EQ(b.lista.Figure.size(), nomi.size());
        for (std::size_t i = 0; i < nomi.size(); ++i) {
            const RecFigura &f = b.lista.Figure[i];
            EXPECT_TRUE(f.X2 == 0.0009 && f.colore == QB(14) && f.Riempimento == QB(12));
            EXPECT_EQ(b.lista.Testi[i].X, f.X1);
            EXPECT_NEAR(b.lista.Testi[i].Y, f.Y1 - 0.02, 1e-15);
        }
        EXPECT_EQ(b.s.in.punto, 1);
        EXPECT_EQ(b.utente.box, r.at(3).empty() ? std::vector<std::string>{} : std::vector{r.at(3)});
    }
    // A city stands where an outline through it does: the two take the site's longitude away in different places.
    // The first and the last row of the table too, on their own meridian.
    for (const std::size_t riga : {std::size_t{74}, std::size_t{1}, TavolaCitta().size()}) {
        const Citta &c = TavolaCitta()[riga - 1];
        BancoMappa b;
        if (riga != 74) b.s.in.txtLAT = "10", b.s.in.txtLonG = TestoNumero(c.X);
        b.s.in.txtEAST = b.s.in.txtWest = std::to_string(riga);
        b.luogo(-c.Y, -c.X);
        DisegnaCitta(b.s);
        ASSERT_EQ(b.lista.Figure.size(), 1U) << c.nome;
        EXPECT_EQ(b.lista.Testi.at(0).Testo, c.nome);
        EXPECT_NEAR(b.lista.Figure.at(0).X1, b.l.at(0).X1, 1e-15);
        EXPECT_NEAR(b.lista.Figure.at(0).Y1, b.l.at(0).Y1, 1e-15);
    }
}

TEST(PuntoOpzionale, AStarOnTheShadow) {
    // The circle's radius is not scaled, the star's is.
    for (const bool mm : {false, true}) {
        BancoMappa b;
        DialInputs &in = b.s.in;
        in.TxtStilo = mm ? "200" : ".2", in.ChCentimetro = mm, in.txtDelta = "20", in.txtAO = "-12", in.punto = 1;
        PuntoOpzionale(b.s);
        // Hour angle -12 + 12: the Sun culminates, 65 degrees high in the south; its shadow falls north.
        ASSERT_EQ(b.lista.Figure.size(), 1u);
        const RecFigura &f = b.lista.Figure[0];
        EXPECT_NEAR(f.X1, 0, 1e-9);
        EXPECT_NEAR(f.Y1, .2 * std::tan(25 * PI / 180), 1e-9);
        EXPECT_NEAR(f.X2 / (mm ? 200 : .2), std::sin(0.1 * PI) / std::sin(0.7 * PI) / 20, 1e-7);
        EXPECT_TRUE(f.colore == QB(14) && f.Riempimento == QB(9));
        EXPECT_TRUE(in.punto == 0 && b.s.v.deltaOpz == 20);
        EXPECT_EQ(b.utente.messaggi, std::vector<std::string>{"Optional position"});
        // The star: five tips in one closed stroke, anticlockwise as seen from 72 degrees; ordinates grow downward.
        DisegnaStella(b.s, 0, 0, Valore::nessuno(), ROSSO);  // draws nothing
        ASSERT_EQ(b.l.size(), 10u);
        for (std::size_t k = 0; k < 10; ++k) {
            const RecLinea &l = b.l[k], &poi = b.l[(k + 1) % 10];
            EXPECT_TRUE(l.colore == QB(15) && l.X2 == poi.X1 && l.Y2 == poi.Y1) << k;
            EXPECT_NEAR(std::hypot(l.X1 - f.X1, l.Y1 - f.Y1), .2 / 20 * (k % 2 == 0 ? 1 : 0.381966), 1e-8);
            const double gradi = std::atan2(l.Y1 - f.Y1, l.X1 - f.X1) * 180 / PI;
            EXPECT_NEAR(std::remainder(gradi - 72 - 36.0 * static_cast<double>(k), 360), 0, 1e-6);
        }
    }
}

// On a corrected dial the point stands where the shadow of its hour angle falls, whatever the longitude; a southern one is
// drawn from inside the wall.
TEST(PuntoOpzionale, WhereTheShadowFalls) {
    for (const double lat : {41.9, -33.9})
        for (const char *lon : {"0", "-12.5"}) {
            prova::Banco b({{"txtLAT", TestoNumero(lat)},
                            {"txtLonG", lon},
                            {"txtDec", "35"},
                            {"txtInc", "-12"},
                            {"TxtStilo", ".2"},
                            {"txtAO", "25"},
                            {"txtDelta", "16.3"}},
                           {"ckCorretta", "punto"});
            using ombra::RADIANTI;
            const ombra::PianoMontato piano({lat * RADIANTI, (lat < 0 ? 145 : 35) * RADIANTI, -12 * RADIANTI, .2});
            const ombra::Getto e = piano.getta(25 * RADIANTI, 16.3 * RADIANTI);
            ASSERT_TRUE(e.luce == ombra::Luce::Si && b.lista().Figure.size() == 1) << lat;
            EXPECT_NEAR(b.lista().Figure[0].X1, lat < 0 ? -e.punto.x : e.punto.x, 1e-9) << lat << ' ' << lon;
            EXPECT_NEAR(b.lista().Figure[0].Y1, e.punto.y, 1e-9) << lat << ' ' << lon;
        }
}

}  // namespace
}  // namespace ombrelia
