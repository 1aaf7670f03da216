// Single points on the dial: the city table, the cities drawn, the optional Sun or Moon and its star.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <stdexcept>

#include "map/citta.h"
#include "prova_mappa.h"

namespace ombrelia {
namespace {

// How far a place lies from a country, degrees; 0 inside it.
double distanza(const Mondo &m, std::string_view paese, double X, double Y) {
    double vicino = 1e9;
    bool dentro = false;
    for (std::size_t t = 0; t < m.tratti.size(); ++t) {
        if (m.paesi[m.tratti[t].paese] != paese) continue;
        const std::size_t fine = t + 1 < m.tratti.size() ? m.tratti[t + 1].primo : m.punti.size();
        for (std::size_t i = m.tratti[t].primo + 1; i < fine; ++i) {
            const auto &p = m.punti[i], &q = m.punti[i - 1];
            const double k = std::cos(Y * PI / 180), ex = (q.X - p.X) * k, ey = q.Y - p.Y, dx = (X - p.X) * k, dy = Y - p.Y;
            const double u = std::clamp((dx * ex + dy * ey) / (ex * ex + ey * ey), 0.0, 1.0);
            vicino = std::min(vicino, std::hypot(dx - u * ex, dy - u * ey));
            if ((p.Y > Y) != (q.Y > Y) && X < p.X + (q.X - p.X) * (Y - p.Y) / (q.Y - p.Y)) dentro = !dentro;
        }
    }
    return dentro ? 0 : vicino;
}

TEST(Citta, EachPlaceLiesInItsCountry) {
    const auto tavola = TavolaCitta();
    ASSERT_EQ(tavola.size(), 165u);
    EXPECT_EQ(tavola[0].nome, "Wellington");
    EXPECT_EQ(tavola[0].Y, 41.2855);
    EXPECT_EQ(tavola[1].X, -153.0227);
    EXPECT_EQ(tavola[164].nome, "Midway Island");

    const Mondo m = MondoSpedito();
    const auto trova = [&](std::string_view nome) {
        const auto c =
            std::find_if(tavola.begin(), tavola.end(), [&](const Citta &una) { return SenzaBlanks(una.nome) == nome; });
        return c == tavola.end() ? throw std::out_of_range(std::string(nome)) : *c;
    };
    std::set<std::string> viste;
    double peggiore = 0;
    for (const auto &riga : prova::Tabella("citta.txt")) {
        for (std::size_t i = 1; i < riga.size(); ++i) {
            const Citta c = trova(riga[i]);
            EXPECT_TRUE(viste.insert(riga[i]).second) << riga[i];
            const double d = distanza(m, riga[0], c.X, c.Y);
            // A quay or an islet may lie off the outline's 1:50 million.
            EXPECT_LT(d, 0.15) << riga[i] << " in " << riga[0];
            peggiore = std::max(peggiore, d);
        }
    }
    // Atolls that the outlines do not have: latitude and longitude, north and East positive.
    const struct {
        std::string_view nome;
        double lat, lon;
    } atolli[] = {{"Palmyra Atoll", 5.88, -162.08}, {"Johnston Atoll", 16.73, -169.53}, {"Midway Island", 28.21, -177.38}};
    for (const auto &a : atolli) {
        EXPECT_NEAR(-trova(a.nome).Y, a.lat, 0.05) << a.nome;
        EXPECT_NEAR(-trova(a.nome).X, a.lon, 0.05) << a.nome;
        viste.emplace(a.nome);
    }
    std::printf("%zu places, the worst %.3f degrees outside its country's outline\n", viste.size(), peggiore);
    EXPECT_EQ(viste.size(), 165u);
}

TEST(DisegnaCitta, RowsOfTheTableInSightAndNothingElse) {
    struct Caso {
        const char *est, *ovest;
        std::vector<std::string> nomi;
    };
    // On this dial the front of the plane holds what is within 90 degrees of 45 N 12 E.
    const Caso casi[] = {
        {"74", "76", {"Roma", "Oslo", "Tunis"}},
        {"0", "2", {}},
        {"164", "300", {}},
        {"77", "77.9", {"Bra"}},
        {"80", "79", {}},
        {"-5", "0", {}},
        {"1e9", "1e9", {}},
        {"1e999", "80", {}},
        {"73.6", "74.7", {"Roma", "Oslo"}},
    };
    for (const Caso &c : casi) {
        SCOPED_TRACE(c.est);
        BancoMappa b;
        b.s.in.ck_inv = 1, b.s.in.punto = 1, b.s.in.txtEAST = c.est, b.s.in.txtWest = c.ovest;
        DisegnaCitta(b.s);
        const Lista &lista = b.s.tavolo.lista();
        std::vector<std::string> nomi;
        for (const RecTesto &t : lista.Testi) nomi.push_back(t.Testo);
        EXPECT_EQ(nomi, c.nomi);
        ASSERT_EQ(lista.Figure.size(), nomi.size());
        for (std::size_t i = 0; i < nomi.size(); ++i) {
            const RecFigura &f = lista.Figure[i];
            EXPECT_EQ(f.X2, 0.0009);
            EXPECT_EQ(f.colore, QB(14));
            EXPECT_EQ(f.Riempimento, QB(12));
            EXPECT_EQ(lista.Testi[i].X, f.X1);
            EXPECT_NEAR(lista.Testi[i].Y, f.Y1 + 0.02, 1e-15);
        }
        EXPECT_EQ(b.s.in.punto, 1);
        EXPECT_TRUE(b.utente.box.empty());
    }
    BancoMappa b;
    b.s.in.txtWest = "1e9";
    DisegnaCitta(b.s);
    EXPECT_EQ(b.utente.box, std::vector<std::string>{"txtWest = 1e9: troppo fitto"});
    EXPECT_TRUE(b.s.tavolo.lista().Testi.empty());
}

// A city stands where an outline through it does: the two take the site's longitude away in different places.
TEST(DisegnaCitta, ACityLiesOnTheMap) {
    BancoMappa b;
    b.s.in.ck_inv = 1, b.s.in.txtEAST = b.s.in.txtWest = "74";
    const Citta roma = TavolaCitta()[73];
    const std::string luogo = "A1;" + std::to_string(-roma.Y) + ';' + std::to_string(-roma.X) + '\n';
    b.mondo(luogo + luogo);
    DisegnaMondo(b.s);
    DisegnaCitta(b.s);
    ASSERT_EQ(b.linee().size(), 1u);
    ASSERT_EQ(b.s.tavolo.lista().Figure.size(), 1u);
    EXPECT_NEAR(b.s.tavolo.lista().Figure[0].X1, b.linee()[0].X1, 1e-15);
    EXPECT_NEAR(b.s.tavolo.lista().Figure[0].Y1, b.linee()[0].Y1, 1e-15);
}

TEST(PuntoOpzionale, MarksTheShadowOfADeclinationAndAnHourAngle) {
    struct Caso {
        const char *gn;
        int mm;
        double metri, cerchio;
    };
    // The circle's radius is not scaled, the star's is.
    const double nodo = std::sin(0.1 * std::acos(-1.0)) / std::sin(0.7 * std::acos(-1.0)) / 20;
    for (const Caso &c : {Caso{".2", 0, .2, .2 * nodo}, Caso{"200", 1, .2, 200 * nodo}}) {
        BancoMappa b;
        DialInputs &in = b.s.in;
        in.TxtStilo = c.gn, in.ChCentimetro = c.mm, in.txtDelta = "20", in.txtAO = "-12", in.punto = 1;
        PuntoOpzionale(b.s);
        // Hour angle -12 + 12: the Sun culminates, 65 degrees high in the south; its shadow falls north.
        const Lista &lista = b.s.tavolo.lista();
        ASSERT_EQ(lista.Figure.size(), 1u);
        const RecFigura &f = lista.Figure[0];
        EXPECT_NEAR(f.X1, 0, 1e-9);
        EXPECT_NEAR(-f.Y1, c.metri * std::tan(25 * std::acos(-1.0) / 180), 1e-9);
        EXPECT_NEAR(f.X2, c.cerchio, 1e-6 * c.cerchio);
        EXPECT_EQ(f.colore, QB(14));
        EXPECT_EQ(f.Riempimento, QB(9));
        ASSERT_EQ(b.linee().size(), 10u);
        EXPECT_NEAR(std::hypot(b.linee()[0].X1 - f.X1, b.linee()[0].Y1 - f.Y1), c.metri / 20, 1e-12);
        EXPECT_EQ(b.linee()[0].colore, QB(15));
        EXPECT_EQ(in.punto, 0);
        EXPECT_EQ(b.s.v.deltaOpz, 20);
        EXPECT_EQ(b.utente.messaggi, std::vector<std::string>{"Optional position"});
    }
}

TEST(DisegnaStella, FiveTipsInOneClosedStroke) {
    BancoMappa b;
    DisegnaStella(b.s, 0.5, -0.25, 0.1, 12);
    const auto &l = b.linee();
    ASSERT_EQ(l.size(), 10u);
    for (std::size_t k = 0; k < 10; ++k) {
        EXPECT_EQ(l[k].colore, QB(12));
        EXPECT_EQ(l[k].X2, l[(k + 1) % 10].X1);
        EXPECT_EQ(l[k].Y2, l[(k + 1) % 10].Y1);
        EXPECT_NEAR(std::hypot(l[k].X1 - 0.5, l[k].Y1 + 0.25), k % 2 == 0 ? 0.1 : 0.0381966, 1e-12);
        // Anticlockwise as seen, from 72 degrees; the sheet's ordinates grow downward.
        const double gradi = std::atan2(-(l[k].Y1 + 0.25), l[k].X1 - 0.5) * 180 / PI;
        EXPECT_NEAR(std::remainder(gradi - 72 - 36.0 * static_cast<double>(k), 360), 0, 1e-6);
    }
    DisegnaStella(b.s, 0, 0, Valore::nessuno(), 12);
    EXPECT_EQ(l.size(), 10u);
}

}  // namespace
}  // namespace ombrelia
