// The tables agree with the drawn lines: points of the reports lie on the lines of the engines, within the printed digits.
#include <algorithm>
#include <cmath>
#include <map>

#include "analytic/quadranti.h"
#include "reports/rapporto_prova.h"

namespace ombrelia {
namespace {

using prova::BancoRapporti;
using prova::Numero;
using prova::RigheTabella;

struct Punto {
    double x, y;
};

struct Quadrante {
    const char *lat, *dec, *inc;
};
constexpr Quadrante QUADRANTI[] = {{"45.74805", "-20", "25.2"}, {"45", "0", "0"},    {"45", "35", "0"}, {"52", "-70", "0"},
                                   {"38", "20", "-15"},         {"60", "15", "60"},  {"45", "0", "90"}, {"10", "40", "30"},
                                   {"45", "100", "0"},          {"45", "-120", "0"}, {"50", "0", "40"}, {"0", "30", "0"},
                                   {"0", "-30", "0"},           {"0", "90", "0"},    {"0", "-90", "0"}, {"45", "90", "0"},
                                   {"45", "-90", "0"}};

std::string Nome(const Quadrante &q) { return std::string(q.lat) + " " + q.dec + " " + q.inc; }

// A dial drawn in a frame of four metres, hours as asked for.
void Disegna(BancoRapporti &b, const Quadrante &q, std::initializer_list<std::string_view> caselle, const char *da,
             const char *a) {
    b.imposta({{"txtLAT", q.lat},
               {"txtDec", q.dec},
               {"txtInc", q.inc},
               {"txtX0", "-2"},
               {"txtX1", "2"},
               {"txtY0", "2"},
               {"txtY1", "-2"},
               {"TxtFraz", "1"},
               {"txtLonG", "-15"}});
    for (const std::string_view c : caselle) b.spunta(c);
    b.imposta({{"TxtInizio", da}, {"TxtFine", a}});
    b.esegui();
}

// Whether the Sun at hour angle a (degrees, negative before noon) and declination d shines well on the plane: sines of its
// altitude over horizon and plane, from its direction alone.
bool Illuminato(const Quadrante &q, double a, double d) {
    constexpr double G = 3.14159265358979 / 180;
    const double phi = Val(q.lat).v * G, g = Val(q.dec).v * G, i = Val(q.inc).v * G;
    const double sud = std::sin(phi) * std::cos(d * G) * std::cos(a * G) - std::cos(phi) * std::sin(d * G);
    const double ovest = std::cos(d * G) * std::sin(a * G);
    const double su = std::sin(phi) * std::sin(d * G) + std::cos(phi) * std::cos(d * G) * std::cos(a * G);
    return su > 0.02 && std::cos(i) * (sud * std::cos(g) + ovest * std::sin(g)) + std::sin(i) * su > 0.1;
}

double Lontananza(const std::vector<RecLinea> &corde, Punto p) {  // from the nearest chord
    double vicina = std::numeric_limits<double>::infinity();
    for (const RecLinea &c : corde) {
        const double dx = c.X2 - c.X1, dy = c.Y2 - c.Y1, q = dx * dx + dy * dy;
        const double k = q == 0 ? 0 : std::clamp(((p.x - c.X1) * dx + (-p.y - c.Y1) * dy) / q, 0.0, 1.0);
        vicina = std::min(vicina, std::hypot(p.x - c.X1 - k * dx, -p.y - c.Y1 - k * dy));
    }
    return vicina;
}

double LontananzaRetta(const std::vector<RecLinea> &rette, Punto p) {  // from the nearest line, drawn on
    double vicina = std::numeric_limits<double>::infinity();
    for (const RecLinea &r : rette) vicina = std::min(vicina, prova::distanza(p.x, -p.y, r));
    return vicina;
}

bool Dentro(Punto p) { return std::fabs(p.x) < 1.99 && std::fabs(p.y) < 1.99; }

constexpr double QUATTRO_CIFRE = 0.5e-4 * 1.4143 + 1e-6;  // rounded in both coordinates
constexpr double TAGLIO = 1e-4 * 1.4143 + 1e-6;           // cut in both

TEST(Concordanza, SphericalTableLiesOnHourLinesAndDayLines) {
    int confrontati = 0;
    for (const Quadrante &q : QUADRANTI) {
        BancoRapporti b;
        Disegna(b, q, {"chkOreAstronomiche", "Ck_DayLightCurves"}, "6", "18");
        const auto corde = b.linee("hour"), rette = prova::Rette(corde, 0.02);
        const auto inverno = b.linee("delta -23.445°");
        const bool linee = std::fabs(Val(q.dec).v) <= 90;  // beyond, the direct engine keeps other branches
        for (const auto &riga : RigheTabella(b.apri("OptInter"), 0)) {
            const double a = Numero(riga[1]);
            for (const int lato : {-1, 1}) {
                const std::size_t k = lato < 0 ? 2 : 4;
                const Punto p{Numero(riga[k]), Numero(riga[k + 1])};
                if (!Illuminato(q, a, lato * 23.445) || !Dentro(p)) continue;
                EXPECT_LT(Lontananza(corde, p), 0.01) << Nome(q) << " hour " << riga[0];
                EXPECT_LT(LontananzaRetta(rette, p), QUATTRO_CIFRE) << Nome(q) << " hour " << riga[0];
                if (lato < 0 && linee) {
                    EXPECT_LT(Lontananza(inverno, p), QUATTRO_CIFRE + 1e-5) << Nome(q) << " hour " << riga[0];
                }
                ++confrontati;
            }
        }
    }
    EXPECT_GT(confrontati, 100);
}

// The two roots of a row are the two days' points, in an order that depends on the hour.
TEST(Concordanza, AnalyticTableRepeatsTheSphericalOneOnWalls) {
    int confrontati = 0;
    for (const Quadrante &q : QUADRANTI) {
        if (Val(q.inc) != 0 || Val(q.lat) == 0 || std::fabs(Val(q.dec).v) > 90) continue;
        BancoRapporti b;
        b.imposta({{"txtLAT", q.lat}, {"txtDec", q.dec}, {"txtInc", "0"}, {"txtLonG", "-15"}});
        const Rapporto sferica = b.apri("OptInter");
        b.spunta("ckFunzione");
        const Rapporto analitica = b.apri("OptInter");
        ASSERT_EQ(analitica.modulo, "Form7");
        for (const int n : {0, 1, 2}) {
            std::map<std::string, std::vector<std::string>> perOra;
            for (const auto &riga : RigheTabella(sferica, n)) perOra[riga[0]] = riga;
            for (const auto &riga : RigheTabella(analitica, n)) {
                const auto &altra = perOra.at(riga[0]);
                const auto distano = [&](std::size_t i, std::size_t k) {
                    return std::max(std::fabs(Numero(riga[i]) - Numero(altra[k])),
                                    std::fabs(Numero(riga[i + 1]) - Numero(altra[k + 1])));
                };
                const double scarto = std::min(std::max(distano(2, 2), distano(4, 4)), std::max(distano(2, 4), distano(4, 2)));
                double grande = 1;
                for (std::size_t i = 2; i < 6; ++i) grande = std::max(grande, std::fabs(Numero(altra[i])));
                EXPECT_LT(scarto, 1.6e-4 + 1e-9 * grande * grande * grande) << Nome(q) << " table " << n << " hour " << riga[0];
                ++confrontati;
            }
        }
    }
    EXPECT_EQ(confrontati, 5 * 3 * 23);
}

TEST(Concordanza, DayLineTableIsTheAnalyticEnginesLine) {
    int confrontati = 0;
    for (const Quadrante &q : {Quadrante{"45", "35", "0"}, Quadrante{"52", "-70", "0"}, Quadrante{"45", "0", "0"}})
        for (const char *delta : {"23.445", "-17", "5"}) {
            BancoRapporti b({{"txtLAT", q.lat}, {"txtDec", q.dec}, {"txtInc", "0"}, {"txtDensity", "0.05"}, {"txtDelta", delta}});
            b.premi("cmdEqui");
            const auto punti = prova::puntiDi(b, QB(9));
            for (const auto &riga : RigheTabella(b.apri("Option1"), 0))
                for (const std::size_t k : {7U, 8U}) {
                    const Punto p{Numero(riga[0]), Numero(riga[k])};
                    const bool trovato = std::any_of(punti.begin(), punti.end(), [&](const RecPunto &r) {
                        return std::fabs(r.X - p.x) < 1e-9 && std::fabs(-r.Y - p.y) < 0.5001e-4;
                    });
                    EXPECT_TRUE(trovato || std::fabs(p.y) > 7) << Nome(q) << " delta " << delta << " at " << riga[0];
                    ++confrontati;
                }
        }
    EXPECT_GT(confrontati, 500);
}

// The intercepts of the true hours lie on the drawn hour lines, drawn on to the chosen line.
TEST(Concordanza, TrueHoursMeetTheChosenLines) {
    int confrontati = 0;
    for (const Quadrante &q : QUADRANTI)
        for (const bool fuso : {false, true}) {
            // A wall's meridian row is the one where the zone's box is clear and the longitude not 15 East.
            BancoRapporti b;
            if (fuso) b.spunta("ck_Etna");
            Disegna(b, q, {"chkOreAstronomiche"}, "7", "17");
            const auto rette = prova::Rette(b.linee("hour"), 0.02);
            const Rapporto &r = b.apri("optHorae");
            for (const int n : {0, 1})
                for (const auto &riga : RigheTabella(r, n)) {
                    const double a = 15 * Numero(riga[0]) - 180;
                    if (!Illuminato(q, a, -23.445) && !Illuminato(q, a, 23.445)) continue;
                    // An east wall at the equator has the ordinates of the west one.
                    const int lato = Val(q.lat) == 0 && Val(q.dec) == -90 ? -1 : 1;
                    const Punto p[] = {{Numero(riga[1]), Numero(riga[2])}, {Numero(riga[3]), lato * Numero(riga[4])}};
                    for (const Punto &punto : p) {
                        const bool inf = (&punto == &p[0] ? riga[1] : riga[4]) == "inf";
                        if (inf || !(std::hypot(punto.x, punto.y) < 10)) continue;
                        EXPECT_LT(LontananzaRetta(rette, punto), TAGLIO) << Nome(q) << " table " << n << " hour " << riga[0];
                        ++confrontati;
                    }
                }
        }
    EXPECT_GT(confrontati, 300);
}

TEST(Concordanza, ItalicAndBabylonianTablesLieOnTheirLines) {
    int confrontati = 0;
    for (const Quadrante &q : QUADRANTI)
        for (const bool italiche : {true, false}) {
            BancoRapporti b;
            const char *da = italiche ? "14" : "1", *a = italiche ? "23" : "11";
            Disegna(b, q, {italiche ? "ck_Italiche" : "ck_babiloniche", "Ck_DayLightCurves"}, da, a);
            const auto rette = prova::Rette(b.linee(italiche ? "Ita" : "Bab"), 0.02);
            const auto inverno = b.linee("delta -23.445°");
            if (Val(q.inc) == 90) continue;  // the table's hours are fixed there
            const Rapporto &r = b.apri(italiche ? "OptIta" : "OptBab");
            const double H[] = {Gradi(PI / 2 - ArcSin(tan(b.s.v.lat_o) * tan(Radianti(23.445)))).v,
                                Gradi(PI / 2 + ArcSin(tan(b.s.v.lat_o) * tan(Radianti(23.445)))).v};
            for (const auto &riga : RigheTabella(r, 0))
                for (const std::size_t k : {0U, 1U}) {
                    const Punto p{Numero(riga[1 + 2 * k]), Numero(riga[2 + 2 * k])};
                    const double t = 15 * Numero(riga[0]) + (italiche ? H[k] - 360 : -H[k]);
                    if (!Illuminato(q, t, k == 0 ? -23.445 : 23.445) || !Dentro(p)) continue;
                    EXPECT_LT(LontananzaRetta(rette, p), QUATTRO_CIFRE) << Nome(q) << " hour " << riga[0];
                    // A line's two ends are told apart by the winter line alone.
                    if (k == 0 && std::fabs(Val(q.dec).v) <= 90) {
                        EXPECT_LT(Lontananza(inverno, p), QUATTRO_CIFRE + 1e-5) << Nome(q) << " hour " << riga[0];
                    }
                    ++confrontati;
                }
            // The chosen lines: on the same straight lines.
            for (const auto &riga : RigheTabella(r, 1)) {
                const Punto p[] = {{Numero(riga[1]), Numero(riga[2])}, {Numero(riga[4]), Numero(riga[3])}};
                const double t = 15 * Numero(riga[0]) + (italiche ? 90 - 360 : -90);
                if (!Illuminato(q, t, 0)) continue;
                for (const Punto &punto : p)
                    if (Dentro(punto)) {
                        EXPECT_LT(LontananzaRetta(rette, punto), QUATTRO_CIFRE + 2e-5) << Nome(q) << " hour " << riga[0];
                    }
            }
        }
    EXPECT_GT(confrontati, 150);
}

}  // namespace
}  // namespace ombrelia
