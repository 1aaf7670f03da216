// The tables agree with the drawn lines: points of the reports lie on the lines of the engines, within the printed digits.
#include <limits>
#include <map>

#include "analytic/quadranti.h"
#include "reports/rapporto_prova.h"

namespace ombrelia {
namespace {

using namespace prova;

struct Coordinate {
    double x, y;
    Coordinate(const std::string &a, const std::string &b) : x(Numero(a)), y(Numero(b)) {}
    [[nodiscard]] bool dentro() const { return std::fabs(x) < 1.99 && std::fabs(y) < 1.99; }
};

struct Quadrante {
    std::string nome;  // its fields
    double lat, dec, inc;

    // Whether the Sun at hour angle a (degrees, negative before noon) and declination d shines well on the plane: sines of
    // its altitude over horizon and plane, from its direction alone.
    [[nodiscard]] bool illuminato(double a, double d) const {
        constexpr double G = 3.14159265358979 / 180;
        const double phi = lat * G, g = dec * G, i = inc * G;
        const double sud = std::sin(phi) * std::cos(d * G) * std::cos(a * G) - std::cos(phi) * std::sin(d * G);
        const double ovest = std::cos(d * G) * std::sin(a * G);
        const double su = std::sin(phi) * std::sin(d * G) + std::cos(phi) * std::cos(d * G) * std::cos(a * G);
        return su > 0.02 && std::cos(i) * (sud * std::cos(g) + ovest * std::sin(g)) + std::sin(i) * su > 0.1;
    }
    // Beyond a right angle the direct engine keeps other branches of the day lines.
    [[nodiscard]] bool versoSud() const { return std::fabs(dec) <= 90; }
};

std::vector<Quadrante> Quadranti() {
    std::vector<Quadrante> r;
    for (const auto &t : Tabella("quadranti.txt"))
        r.push_back({"txtLAT=" + t[0] + ";txtDec=" + t[1] + ";txtInc=" + t[2], Numero(t[0]), Numero(t[1]), Numero(t[2])});
    return r;
}

// The dial drawn in a frame of four metres, with the boxes and hours asked for.
struct Disegnato : BancoRapporti {
    Disegnato(const Quadrante &q, const std::string &caselle, const std::string &ore)
        : BancoRapporti(q.nome + ";txtX0=-2;txtX1=2;txtY0=2;txtY1=-2;TxtFraz=1;txtLonG=-15;" + caselle + ";" + ore) {
        esegui();
    }
};

// From the nearest line, drawn on.
double LontananzaRetta(const std::vector<RecLinea> &rette, const Coordinate &p) {
    double vicina = std::numeric_limits<double>::infinity();
    for (const RecLinea &r : rette) vicina = std::min(vicina, distanza(p.x, p.y, r));
    return vicina;
}

constexpr double QUATTRO_CIFRE = 0.5e-4 * 1.4143 + 1e-6;  // rounded in both coordinates
constexpr double TAGLIO = 1e-4 * 1.4143 + 1e-6;           // cut in both

TEST(Concordanza, SphericalTablesLieOnHourAndDayLines) {
    int confrontati = 0;
    for (const Quadrante &q : Quadranti()) {
        Disegnato b(q, "chkOreAstronomiche;Ck_DayLightCurves", "TxtInizio=6;TxtFine=18");
        const auto corde = b.linee("hour"), rette = Rette(corde, 0.02), inverno = b.linee("delta -23.445°");
        for (const auto &riga : RigheTabella(b.apri("OptInter"), 0))
            for (const int lato : {-1, 1}) {
                const Coordinate p(riga[lato < 0 ? 2 : 4], riga[lato < 0 ? 3 : 5]);
                if (!q.illuminato(Numero(riga[1]), lato * 23.445) || !p.dentro()) continue;
                EXPECT_LT(DaCorde(p.x, p.y, corde), 0.01) << q.nome << " hour " << riga[0];
                EXPECT_LT(LontananzaRetta(rette, p), QUATTRO_CIFRE) << q.nome << " hour " << riga[0];
                EXPECT_TRUE(lato > 0 || !q.versoSud() || DaCorde(p.x, p.y, inverno) < QUATTRO_CIFRE + 1e-5) << q.nome << riga[0];
                ++confrontati;
            }
    }
    EXPECT_GT(confrontati, 100);
}

// The two roots of a row are the two days' points, in an order that depends on the hour.
TEST(Concordanza, TheAnalyticTableRepeatsTheSpherical) {
    int confrontati = 0;
    for (const Quadrante &q : Quadranti()) {
        if (q.inc != 0 || q.lat == 0 || !q.versoSud()) continue;
        BancoRapporti b(q.nome + ";txtLonG=-15");
        const Rapporto sferica = b.apri("OptInter");
        b.spunta("ckFunzione");
        const Rapporto &analitica = b.apri("OptInter");
        for (const int n : {0, 1, 2}) {
            std::map<std::string, std::vector<std::string>> perOra;
            for (const auto &riga : RigheTabella(sferica, n)) perOra[riga[0]] = riga;
            for (const auto &riga : RigheTabella(analitica, n)) {
                const auto &altra = perOra.at(riga[0]);
                double dritto = 0, scambiato = 0, grande = 1;
                for (std::size_t i = 2; i < 6; ++i) {
                    dritto = std::max(dritto, std::fabs(Numero(riga[i]) - Numero(altra[i])));
                    scambiato = std::max(scambiato, std::fabs(Numero(riga[i]) - Numero(altra[i < 4 ? i + 2 : i - 2])));
                    grande = std::max(grande, std::fabs(Numero(altra[i])));
                }
                EXPECT_LT(std::min(dritto, scambiato), 1.6e-4 + 1e-9 * std::pow(grande, 3)) << q.nome << n << " hour " << riga[0];
                ++confrontati;
            }
        }
    }
    EXPECT_EQ(confrontati, 5 * 3 * 23);
}

TEST(Concordanza, DayLinesAreTheEngines) {
    int confrontati = 0;
    for (const std::string q : {"txtLAT=45;txtDec=35", "txtLAT=52;txtDec=-70", "txtLAT=45;txtDec=0"})
        for (const std::string delta : {"23.445", "-17", "5"}) {
            BancoRapporti b(q + ";txtInc=0;txtDensity=0.05;txtDelta=" + delta + ";cmdEqui");
            const auto punti = puntiDi(b, QB(9));
            for (const auto &riga : RigheTabella(b.apri("Option1"), 0))
                for (const std::size_t k : {7U, 8U}) {
                    const Coordinate p(riga[0], riga[k]);
                    const bool trovato = std::any_of(punti.begin(), punti.end(), [&](const RecPunto &r) {
                        return std::fabs(r.X - p.x) < 1e-9 && std::fabs(r.Y - p.y) < 0.5001e-4;
                    });
                    EXPECT_TRUE(trovato || std::fabs(p.y) > 7) << q << " delta " << delta << " at " << riga[0];
                    ++confrontati;
                }
        }
    EXPECT_GT(confrontati, 500);
}

// The intercepts of the true hours lie on the drawn hour lines, drawn on to the chosen line.
TEST(Concordanza, TrueHoursOnTheChosenLines) {
    int confrontati = 0;
    for (const Quadrante &q : Quadranti())
        for (const auto &[fuso, scarto] :
             {std::pair{"", 0.0}, {";ck_Etna", 0.0}, {";txtLonG=-9.18", 0.0}, {";txtLonG=-9.18;ck_Etna", 5.82}}) {
            // A level plane's table is the mirror image of its drawing, as meant: only a symmetric one lies on it.
            if (q.inc == 90 && scarto != 0) continue;
            // A wall's meridian row is the one where the zone's box is clear and the longitude not 15 East.
            Disegnato b(q, std::string("chkOreAstronomiche") + fuso, "TxtInizio=7;TxtFine=17");
            const auto rette = Rette(b.linee("hour"), 0.02);
            const Rapporto &r = b.apri("optHorae");
            for (const int n : {0, 1})
                for (const auto &riga : RigheTabella(r, n)) {
                    const double a = 15 * Numero(riga[0]) - 180 - scarto;
                    if (!q.illuminato(a, -23.445) && !q.illuminato(a, 23.445)) continue;
                    Coordinate ascissa(riga[1], riga[2]), ordinata(riga[3], riga[4]);
                    // An east wall at the equator has the ordinates of the west one.
                    if (q.lat == 0 && q.dec == -90) ordinata.y = -ordinata.y;
                    for (const auto &[punto, testo] : {std::pair(ascissa, riga[1]), std::pair(ordinata, riga[4])}) {
                        if (testo == "inf" || !(std::hypot(punto.x, punto.y) < 10)) continue;
                        EXPECT_LT(LontananzaRetta(rette, punto), TAGLIO) << q.nome << " table " << n << " hour " << riga[0];
                        ++confrontati;
                    }
                }
        }
    EXPECT_GT(confrontati, 300);
}

TEST(Concordanza, ItalicAndBabylonianHoursOnTheirLines) {
    int confrontati = 0;
    for (const Quadrante &q : Quadranti())
        for (const bool italiche : {true, false}) {
            if (q.inc == 90) continue;  // the table's hours are fixed there
            Disegnato b(q, italiche ? "ck_Italiche;Ck_DayLightCurves" : "ck_babiloniche;Ck_DayLightCurves",
                        italiche ? "TxtInizio=14;TxtFine=23" : "TxtInizio=1;TxtFine=11");
            const auto rette = Rette(b.linee(italiche ? "Ita" : "Bab"), 0.02), inverno = b.linee("delta -23.445°");
            const Rapporto &r = b.apri(italiche ? "OptIta" : "OptBab");
            const double salita = Gradi(ArcSin(tan(b.s.v.lat_o) * tan(Radianti(23.445)))).v;
            // On a day: whether the Sun lights the hour's point, sunset's hour angle being H.
            const auto acceso = [&](const std::string &ora, double H, double delta) {
                return q.illuminato(15 * Numero(ora) + (italiche ? H - 360 : -H), delta);
            };
            for (const auto &riga : RigheTabella(r, 0))
                for (const int lato : {-1, 1}) {
                    const Coordinate p(riga[lato < 0 ? 1 : 3], riga[lato < 0 ? 2 : 4]);
                    if (!acceso(riga[0], 90 + lato * salita, lato * 23.445) || !p.dentro()) continue;
                    EXPECT_LT(LontananzaRetta(rette, p), QUATTRO_CIFRE) << q.nome << " hour " << riga[0];
                    // A line's two ends are told apart by the winter line alone.
                    EXPECT_TRUE(lato > 0 || !q.versoSud() || DaCorde(p.x, p.y, inverno) < QUATTRO_CIFRE + 1e-5)
                        << q.nome << riga[0];
                    ++confrontati;
                }
            for (const auto &riga : RigheTabella(r, 1))  // the chosen lines: on the same straight lines
                for (const Coordinate &p : {Coordinate(riga[1], riga[2]), Coordinate(riga[4], riga[3])})
                    EXPECT_TRUE(!acceso(riga[0], 90, 0) || !p.dentro() || LontananzaRetta(rette, p) < QUATTRO_CIFRE + 2e-5)
                        << q.nome << riga[0];
        }
    EXPECT_GT(confrontati, 150);
}

}  // namespace
}  // namespace ombrelia
