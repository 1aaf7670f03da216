// Whole runs of the direct engine: identities that any dial keeps, what each line is drawn with, and what a fault leaves.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <new>
#include <set>

#include "comuni/prova.h"
#include "gnomonica/proiezione.h"

namespace ombrelia {
namespace {

using prova::Banco;

// A wide frame, so that nothing but the horizon cuts.
constexpr std::pair<std::string_view, std::string_view> LARGA[] = {
    {"txtX0", "-6"}, {"txtX1", "6"}, {"txtY0", "6"}, {"txtY1", "-6"}};

void allarga(Banco &b) {
    for (const auto &c : LARGA) b.imposta({c});
}

double scarto(const RecLinea &a, const RecLinea &b) {  // distance of a's first end from the line through b
    const double dx = b.X2 - b.X1, dy = b.Y2 - b.Y1;
    return std::fabs((a.X1 - b.X1) * dy - (a.Y1 - b.Y1) * dx) / std::hypot(dx, dy);
}

struct PianoScritto {
    const char *lat, *dec, *inc;
};
constexpr PianoScritto PIANI[] = {{"0", "0", "0"},         {"0", "30", "10"},    {"20", "-80", "0"},
                                  {"45.7", "-20", "25.2"}, {"45", "110", "-30"}, {"60", "170", "5"},
                                  {"80", "15", "60"},      {"51.5", "0", "90"},  {"35", "-135", "80"}};

TEST(Diretta, HourLinesAreStraight) {
    for (const PianoScritto &p : PIANI) {
        Banco b({{"txtLAT", p.lat}, {"txtDec", p.dec}, {"txtInc", p.inc}, {"TxtFraz", "4"}}, {"chkOreAstronomiche"});
        allarga(b);
        b.esegui();
        ASSERT_FALSE(b.lista().Linee.empty());
        for (const std::string_view strato : {"hour", "half", "quarter"}) {
            const auto linee = b.linee(strato);
            const RecLinea *prima = nullptr;
            for (const RecLinea &l : linee) {
                const bool segue = prima && l.X2 == prima->X1 && l.Y2 == prima->Y1;
                // Over a chord long enough to give a direction.
                if (segue && std::hypot(l.X1 - l.X2, l.Y1 - l.Y2) > 1e-4) {
                    EXPECT_LT(scarto(l, *prima), 1e-9) << p.lat << " " << p.dec << " " << p.inc << " " << strato;
                }
                prima = &l;
            }
        }
    }
}

// On a plane that looks along the meridian the afternoon mirrors the morning.
TEST(Diretta, MorningMirrorsAfternoon) {
    for (const PianoScritto &p : {PianoScritto{"45", "0", "0"}, PianoScritto{"45", "0", "40"}, PianoScritto{"30", "0", "90"},
                                  PianoScritto{"60", "0", "-20"}}) {
        Banco b({{"txtLAT", p.lat}, {"txtDec", p.dec}, {"txtInc", p.inc}, {"TxtFraz", "2"}},
                {"chkOreAstronomiche", "Ck_DayLightCurves", "ckFunzione", "ck_Equinoziale"});
        allarga(b);
        b.esegui();
        // Of each layer the abscissas of the ends that were tested. Day lines are swept from -120 to 120 degrees by adding 0.1,
        // which departs from symmetry by 5.1e-12 degrees at most, and a shadow moves by (its distance from the tip)^2 / gnomon a
        // radian: (6^2 + 6^2) / 0.195 in this frame, which makes 3.3e-11. The first end of such a sweep is never tested, so the
        // last may stand alone. Hour lines have the same angles on both sides, and functions that are odd and even to the bit.
        std::map<std::string, std::set<double>> ascisse;
        for (const RecLinea &l : b.lista().Linee) ascisse[b.strato(l)].insert(l.X1);
        ascisse.erase("");
        for (const auto &[strato, x] : ascisse) {
            const auto sola = [&insieme = x](double v) {
                const auto i = insieme.lower_bound(-v - 1e-10);
                return i == insieme.end() || *i > -v + 1e-10;
            };
            EXPECT_LE(std::count_if(x.begin(), x.end(), sola), strato == "hour" || strato == "half" ? 0 : 1)
                << strato << " at " << p.lat << " " << p.inc;
        }
        std::vector<double> ore;
        for (const RecLinea &l : b.linee("hour")) ore.push_back(l.X1);
        std::sort(ore.begin(), ore.end());
        for (std::size_t i = 0; i < ore.size(); ++i) ASSERT_EQ(ore[i], -ore[ore.size() - 1 - i]) << p.lat << " " << p.inc;
    }
}

TEST(Diretta, AzimuthLinesOnceARequest) {
    Banco b({}, {"ckAz"});
    b.esegui();
    EXPECT_EQ(b.s.in.ckAz, 0);
    EXPECT_EQ(b.spunta("ckAz"), app::Esito::Fatto);
}

// Direction, zero and sign of the frame, each where a maker would notice.
TEST(Diretta, DirectionsAndSigns) {
    struct Caso {
        const char *che, *lat, *dec, *inc;
        double ora, delta;
        int segnoX, segnoY;  // of the shadow's tip, y upward
    };
    const Caso casi[] = {
        {"south wall, morning: shadow to the West, on the left", "45", "0", "0", -45, 0, -1, -1},
        {"south wall, afternoon: to the right", "45", "0", "0", 45, 0, 1, -1},
        {"horizontal, noon: shadow northward, up the sheet", "45", "0", "90", 0, 0, 0, 1},
        {"west wall, afternoon: shadow to the North, on the left", "45", "90", "0", 60, 0, -1, -1},
        {"east wall, morning: shadow to the North, on the right", "45", "-90", "0", -60, 0, 1, -1},
    };
    for (const Caso &c : casi) {
        Variabili v;
        v.latR = Radianti(Val(c.lat));
        v.decR = Radianti(Val(c.dec));
        v.incR = Radianti(Val(c.inc));
        v.gn = 1;
        v.unita = 1;
        Reale x, y;
        Proiezione::delPiano(v.latR, v.decR, v.incR, v.gn, v.unita)(Radianti(c.ora), Radianti(c.delta), x, y);
        EXPECT_EQ(Sgn(Round(x, 6)).v, c.segnoX) << c.che << ": " << x.numero();
        EXPECT_EQ(Sgn(Round(y, 6)).v, c.segnoY) << c.che << ": " << y.numero();
    }
}

// In polar night the half day arc faults: the line keeps the arc of the declination before and goes on.
TEST(Diretta, APolarDayKeepsTheLastArc) {
    Banco b({{"txtLAT", "75"}, {"txtDec", "0"}, {"txtInc", "90"}, {"TxtStilo", ".01"}}, {"ckTemp"});
    allarga(b);
    b.esegui();
    const auto temp = b.linee("Temp");
    ASSERT_FALSE(temp.empty());
    for (const RecLinea &l : temp) EXPECT_TRUE(std::isfinite(l.X1) && std::isfinite(l.Y1));
    // Hour 6 is noon whatever the arc: its line lies on the meridian.
    int sulMeridiano = 0;
    for (const RecLinea &l : temp) sulMeridiano += std::fabs(l.X1) < 1e-12;
    EXPECT_GT(sulMeridiano, 100);
}

TEST(Diretta, TheFirstReadingFixesTheDial) {
    Banco b({{"txtLAT", "45"}, {"txtInc", "90"}, {"txtDec", "33"}});
    b.esegui();
    EXPECT_EQ(b.s.in.txtDec, "0") << "a horizontal dial has no declination";
    EXPECT_EQ(b.s.v.rapportoBase, 2.0);
    EXPECT_EQ(b.s.v.yOriz, -1);
    b.imposta({{"txtInc", "0"}, {"txtLAT", "30"}, {"txtDec", "10"}});
    b.esegui();
    EXPECT_EQ(b.s.v.inc_o, 90) << "the first read since start stands";
    EXPECT_EQ(b.s.in.txtDec, "0");
    EXPECT_EQ(b.s.v.lat_o, Radianti(45));
    EXPECT_EQ(b.s.v.latR, Radianti(30));
    EXPECT_EQ(b.s.v.letture, 2);
}

TEST(Diretta, OriginHorizonAndCaption) {
    Banco b({{"txtLAT", "45.74805"}, {"txtLonG", "-12.3456789"}, {"ck_Orizzonte", "1"}});
    b.foglio(2, 1.5, 0, 0);
    b.esegui();
    EXPECT_DOUBLE_EQ(b.s.tavolo.ShiftX(), 1.0);
    EXPECT_DOUBLE_EQ(b.s.tavolo.ShiftY(), 1.5 / 3.33333);
    b.s.tavolo.ShiftX(0.7);
    b.esegui();
    EXPECT_DOUBLE_EQ(b.s.tavolo.ShiftX(), 0.7) << "a user's shift is kept";
    EXPECT_EQ(b.s.in.txtOriz, TestoNumero(0.195 * std::tan(25.2 * PI / 180.0)));
    for (const char *riga :
         {"DATI QUADRANTE ", "latitudine  = 45.74805 °", "declinazione  = -20 °", "inclinazione = 25.2 °",
          "longitudine = -12.34568 °", "ortostilo = 0.195 m", "Costante locale = 10.6172844 p", "-0.5", "0.6", "0.4", "-0.8"})
        EXPECT_TRUE(b.testo(riga) || b.testo(SenzaBlanks(riga))) << riga;
    // Twice the same dial adds the same records again.
    const std::size_t righe = b.lista().Ordine.size();
    b.premi("Tavolo1.cmdPulisci");
    EXPECT_TRUE(b.lista().Ordine.empty());
    b.esegui();
    EXPECT_EQ(b.lista().Ordine.size() * 2, righe);
}

TEST(Diretta, MillimetresGiveTheSameDial) {
    const auto punti = [](Banco &b) {
        b.esegui();
        return b.linee("hour");
    };
    Banco metri({{"txtInc", "0"}, {"TxtStilo", "0.2"}}, {"chkOreAstronomiche"});
    Banco mm({{"txtInc", "0"}, {"TxtStilo", "200"}, {"txtX0", "-500"}, {"txtX1", "600"}, {"txtY0", "400"}, {"txtY1", "-800"}},
             {"chkOreAstronomiche", "ChCentimetro"});
    const auto a = punti(metri), b = punti(mm);
    ASSERT_EQ(a.size(), b.size());
    ASSERT_GT(a.size(), 1000U);
    for (std::size_t i = 0; i < a.size(); ++i) {
        EXPECT_NEAR(a[i].X1, b[i].X1, 1e-12);
        EXPECT_NEAR(a[i].Y2, b[i].Y2, 1e-12);
    }
    EXPECT_TRUE(mm.testo("ortostilo = 200 mm"));
}

TEST(Diretta, SouthernSite) {
    Banco b({{"txtLAT", "-33"}, {"txtInc", "0"}, {"txtDec", "0"}}, {"ck_Lemniscate"});
    b.esegui();
    EXPECT_EQ(b.s.in.txtLAT, "33");
    EXPECT_EQ(b.utente.box, std::vector<std::string>{"A grafico ottenuto usare il tasto InvertX"});
    EXPECT_FALSE(b.linee("Analemma Sud").empty());
    EXPECT_TRUE(b.testo("Per ottenere le ore italiche cliccare babiloniche e viceversa"));
    EXPECT_TRUE(b.testo("latitudine  = -33 °"));
    b.premi("Tavolo1.cmdPulisci");
    b.esegui();
    EXPECT_EQ(b.utente.box.size(), 1U) << "the next press is a northern run";
    EXPECT_TRUE(b.linee("Analemma Sud").empty());
    EXPECT_FALSE(b.testo("Per ottenere le ore italiche cliccare babiloniche e viceversa"));
}

// A drawing that memory can't hold is refused before it starts where its fields tell, and ends as want of memory does where not.
TEST(Diretta, ADrawingTooLargeDoesNotBegin) {
    Banco b({{"TxtFraz", "4000"}}, {"ck_Italiche"});
    b.s.tavolo.recordMassimi = 1000000;
    b.esegui();
    ASSERT_EQ(b.utente.box.size(), 1U);
    EXPECT_TRUE(b.utente.box[0].ends_with("la memoria non basta per tanti punti")) << b.utente.box[0];
    EXPECT_TRUE(b.lista().Linee.empty());

    Banco c({}, {"Ck_DayLightCurves"});
    c.esegui();
    const std::size_t tutti = c.lista().Ordine.size();
    for (const bool basta : {true, false}) {
        c.s.tavolo.Clear();
        c.s.tavolo.recordMassimi = basta ? tutti : tutti - 1000;
        if (basta) EXPECT_NO_THROW(c.esegui());
        else EXPECT_THROW(c.esegui(), std::bad_alloc);
    }
}

TEST(Diretta, AbsurdFieldsAreRefusedOrHarmless) {
    struct Caso {
        std::pair<std::string_view, std::string_view> campo;
        std::string_view box;  // empty: the run goes through
    };
    const Caso casi[] = {
        {{"TxtFraz", "1e9"}, "TxtFraz = 1e9: troppo fitto"},
        {{"TxtFine", "1e12"}, "TxtFine = 1e12: troppo fitto"},
        {{"TxtInizio", "-3e8"}, "TxtInizio = -3e8: troppo fitto"},
        {{"txtDensity", "1e-9"}, "txtDensity = 1e-9: troppo fitto"},
        {{"txtDensity", "0"}, ""},
        {{"txtDensity", "-1"}, ""},
        {{"txtDensity", "1e-300"}, ""},
        {{"TxtFraz", "-2"}, ""},
        {{"TxtFraz", "1e400"}, ""},
        {{"TxtFraz", "abc"}, ""},
        {{"TxtFine", "1e400"}, ""},
        {{"txtLAT", "1e308"}, ""},
        {{"txtLAT", "9e999"}, ""},
        {{"txtInc", "1e308"}, ""},
        {{"TxtStilo", "1e308"}, ""},
        {{"TxtStilo", ""}, ""},
        {{"txtX0", "nan"}, ""},
        {{"txtDec", "inf"}, ""},
        {{"txtQlat", "90"}, ""},
        {{"txtLAT", "90"}, ""},
        {{"txtLAT", "66.555"}, ""},
    };
    for (const Caso &c : casi) {
        Banco b({}, {"chkOreAstronomiche", "Ck_DayLightCurves", "ck_Equinoziale", "ckTemp", "ck_Italiche", "ckAlt",
                     "ck_Lemniscate", "CkQibla", "ckAsr", "ckAz", "ck_Triangolo", "ck_Sustilare"});
        b.spunta("ckTemp");
        b.imposta({c.campo});
        b.esegui();
        EXPECT_EQ(b.utente.box.empty() ? "" : b.utente.box.front(), c.box) << c.campo.first << " " << c.campo.second;
        EXPECT_EQ(b.lista().Ordine.empty(), !c.box.empty()) << c.campo.first << " " << c.campo.second;
        for (const RecLinea &l : b.lista().Linee)
            for (const double d : {l.X1, l.Y1, l.X2, l.Y2}) ASSERT_TRUE(std::isfinite(d)) << c.campo.second;
    }
}

}  // namespace
}  // namespace ombrelia
