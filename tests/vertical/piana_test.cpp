// Whole runs of the vertical engine: what each line is drawn with, what the boxes and fields change, and what a press
// leaves for the next.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "analytic/quadranti.h"

namespace ombrelia {
namespace {

// A wall in a wide frame; boxes are set without their clicks, which would clear one another.
struct Muro : prova::QuadroProvato {
    Muro(const std::string &campi, const std::string &caselle)
        : QuadroProvato("txtInc=0 txtLAT=45 TxtStilo=.2 TxtFraz=1 txtX0=-6 txtX1=6 txtY0=6 txtY1=-6 " + campi) {
        casella("CkUNI");
        for (const std::string &c : prova::Divisi(caselle, ' ')) casella(c);
    }
    void casella(std::string_view nome, int valore = 1) { s.valore(TrovaControllo(nome)) = valore; }
    Muro &premuto() {
        esegui();
        return *this;
    }
    [[nodiscard]] std::vector<std::string> testi() const {
        std::vector<std::string> t;
        for (const RecTesto &r : lista().Testi) t.push_back(r.Testo);
        return t;
    }
    [[nodiscard]] std::set<std::string> strati() const {
        std::set<std::string> r;
        for (const RecLinea &l : lista().Linee) r.insert(strato(l));
        return r;
    }
    // Chords without a layer in a colour of the palette.
    [[nodiscard]] auto anonime(int colore) const { return std::ranges::count(linee(""), QB(colore), &RecLinea::colore); }
};

const std::string TUTTO =
    "ckAssi chkOreAstronomiche Ck_DayLightCurves ck_Italiche ck_babiloniche ckTemp ck_Equinoziale ck_Orizzonte ck_Lemniscate "
    "ck_Sustilare ck_Triangolo CkQibla ckAlt ckAz ckAsr";

TEST(Piana, AsrComesLastAndAzimuthLinesStay) {
    Muro b("txtLAT=42 txtDec=15", TUTTO);
    b.premuto();
    EXPECT_EQ(b.lista().Punti.back().colore, Rgb(0, 193, 97));
    EXPECT_EQ(b.s.in.ckAz, 1) << "unlike the direct engine the box stays";
}

TEST(Piana, LabelsTextsAndOrder) {
    for (const auto &r : prova::Tabella("piana_etichette.txt")) {
        Muro b("txtDec=" + r.at(0), r.at(1));
        b.s.tavolo.ForeColor = QB(5);
        std::string scritte;
        for (const std::string &t : b.premuto().testi()) {
            if (t == "-6") break;  // the four limits and the caption follow
            scritte += "[" + t + "]";
        }
        EXPECT_EQ(scritte, r.at(2)) << r[1];
        EXPECT_EQ(b.s.tavolo.ForeColor, QB(5));
    }
}

TEST(Piana, CaptionInItsOrder) {
    std::vector<std::string> attesi{"-6", "6", "6", "-6", ""};
    for (const auto &r : prova::Tabella("piana_didascalia.txt")) attesi.push_back(r.at(0));
    EXPECT_EQ(Muro("txtLAT=40 txtDec=25 txtLonG=-12.3456789", "").premuto().testi(), attesi);
    Muro mm("txtLAT=40 txtDec=25 TxtStilo=200", "ChCentimetro");
    EXPECT_TRUE(mm.premuto().testo("ortostilo = 200 mm") && mm.testo("assostilo = 288.07151 mm"));
}

TEST(Piana, FractionsAndHalfHours) {
    // Half hours from 2 on, quarters at 4 alone; at 0 the division faults, so the spacing stays: 0 in a new session.
    const struct {
        const char *prima, *frazione;
        bool mezze, quarti;
    } casi[] = {{"", "0", true, false}, {"", "1", false, false},  {"", "2", true, false}, {"", "3", true, false},
                {"", "4", true, true},  {"1", "0", false, false}, {"4", "0", true, false}};
    for (const auto &c : casi) {
        Muro b("txtDec=20", "chkOreAstronomiche");
        if (*c.prima) {
            b.prepara(std::string("TxtFraz=") + c.prima);
            b.premuto().s.tavolo.Clear();
        }
        b.prepara(std::string("TxtFraz=") + c.frazione);
        b.premuto();
        EXPECT_EQ(b.anonime(13) > 0, c.mezze) << c.frazione;
        EXPECT_EQ(b.anonime(4) > 2, c.quarti) << c.frazione;  // two limit lines have that colour
        EXPECT_GT(b.linee("Astro").size(), 300u);
    }
    // Seasonal hours: 0 counts as 1, and a finer count keeps the coarser lines.
    const auto temporarie = [](const char *n) {
        return Muro(std::string("txtDec=20 TxtFraz=") + n, "ckTemp").premuto().linee("Temp").size();
    };
    EXPECT_EQ(temporarie("0"), temporarie("1"));
    EXPECT_GT(temporarie("2"), 3 * temporarie("1") / 2);
}

// Whether every chord of the few starts where one of the many does.
bool Contenuti(const std::vector<RecLinea> &pochi, const std::vector<RecLinea> &tanti) {
    return !pochi.empty() && std::ranges::all_of(pochi, [&](const RecLinea &p) {
        return std::ranges::any_of(tanti, [&](const RecLinea &q) { return std::hypot(p.X1 - q.X1, p.Y1 - q.Y1) < 1e-9; });
    });
}

TEST(Piana, HoursOfTheZoneAndEffectsOfLongitude) {
    const auto ore = [](const std::string &lon, const char *fuso) {
        return Muro("txtDec=0 txtLonG=" + lon, std::string("chkOreAstronomiche") + fuso).premuto().linee("Astro");
    };
    const auto locali = ore("-7", ""), spostate = ore("0", " ck_Etna");
    EXPECT_TRUE(Contenuti(locali, ore("40", "")) && Contenuti(ore("40", ""), locali)) << "local time knows no longitude";
    EXPECT_TRUE(Contenuti(locali, ore("-15", " ck_Etna")) && Contenuti(ore("-15", " ck_Etna"), locali))
        << "on the zone meridian both times are one";
    // At longitude 0 the zone's noon is an hour before: whole hours fall on whole hours, the red one among them.
    EXPECT_TRUE(Contenuti(spostate, locali));
    for (const RecLinea &l : spostate) EXPECT_TRUE(l.colore != QB(12) || l.X1 < 0) << "noon of the zone is a morning hour here";
    EXPECT_FALSE(Contenuti(ore("-11.25", " ck_Etna"), locali)) << "a quarter of an hour off, none does";
}

TEST(Piana, CkFunction) {
    const std::string caselle = "Ck_DayLightCurves ck_Italiche ck_Lemniscate ck_Triangolo";
    Muro senza("txtDec=20 TxtFraz=2", caselle), con("txtDec=20", caselle + " ckFunzione");
    const auto tutti = senza.premuto().strati(), pochi = con.premuto().strati();
    std::set<std::string> mancano;
    std::ranges::set_difference(tutti, pochi, std::inserter(mancano, mancano.end()));
    EXPECT_EQ(mancano, (std::set<std::string>{"20 XI or 20 I", "20 II or 20 X", "20 IV or 20 VIII", "20 V or 20 VII"}));
    EXPECT_EQ(senza.linee("Ipotenusa").size(), 2u);
    EXPECT_EQ(con.linee("Ipotenusa").size(), 1u);
    // The hours of the steeples are the half hours of the others.
    EXPECT_EQ(con.utente.messaggi.back(), "Steeple Italic Hours");
    EXPECT_NE(senza.utente.messaggi.back(), "Steeple Italic Hours");
    EXPECT_TRUE(Contenuti(con.linee("Ita"), senza.linee("Ita")));
    // Five day marks of four chords, from the least to the greatest equation of time; no noon line on a plumb wall.
    auto tacche = con.linee("");
    std::erase_if(tacche, [](const RecLinea &l) { return l.colore != QB(14); });
    ASSERT_EQ(tacche.size(), 20u);
    for (std::size_t i = 0; i < 20; ++i) {
        EXPECT_LT(tacche[i].X1, tacche[i].X2) << "older end first, from morning to afternoon";
        EXPECT_TRUE(i % 4 == 0 || tacche[i].X1 == tacche[i - 1].X2);
    }
    EXPECT_EQ(senza.anonime(14), 0);
    EXPECT_EQ(con.anonime(12), 2) << "the limit lines alone";
}

TEST(Piana, EveryWallWithoutSurprise) {
    // Over the range of walls: finite numbers, newer ends inside the frame, hours below the horizon at both ends, and
    // millimetres that draw what metres draw.
    for (const std::string lat : {"0", "23.45", "45", "66.55", "80"})
        for (const std::string dec : {"-180", "-135", "-90", "-45", "0", "30", "90", "150", "180"}) {
            const std::string muro = "txtDensity=.02 txtLAT=" + lat + " txtDec=" + dec;
            Muro m(muro + " txtX0=-.5 txtX1=.6 txtY0=.4 txtY1=-.8", TUTTO);
            Muro mm(muro + " TxtStilo=200 txtX0=-500 txtX1=600 txtY0=400 txtY1=-800", TUTTO + " ChCentimetro");
            m.premuto();
            mm.premuto();
            for (const RecLinea &l : m.lista().Linee) {
                ASSERT_TRUE(std::isfinite(l.X1) && std::isfinite(l.Y1) && std::isfinite(l.X2) && std::isfinite(l.Y2));
                const std::string &strato = m.strato(l);
                if (strato != "Astro" && strato != "Ita" && strato != "Bab" && strato != "Temp" && !strato.starts_with("20 "))
                    continue;
                ASSERT_TRUE(-.5 < l.X1 && l.X1 < .6 && -.8 < l.Y1 && l.Y1 < .4) << muro << " " << strato;
                ASSERT_TRUE(strato != "Astro" || (l.Y1 <= 0 && l.Y2 <= 0)) << muro;
            }
            // A point on the edge of the frame or of the horizon may fall on either side: allow a few.
            const auto n = static_cast<double>(m.lista().Ordine.size()), nmm = static_cast<double>(mm.lista().Ordine.size());
            EXPECT_NEAR(n, nmm, 0.002 * n + 2) << muro;
            EXPECT_GT(n, 100);
        }
}

TEST(Piana, TooDenseBeforeAnythingIsDrawn) {
    for (const auto &r : prova::Tabella("piana_fitto.txt")) {
        Muro b("txtDec=" + r.at(1) + " " + r.at(2) + "=" + r.at(3), r[0]);
        b.premuto();
        const bool rifiutato = r.at(4) == "1";
        EXPECT_EQ(b.utente.box, std::vector(rifiutato, r[2] + " = " + r[3] + ": troppo fitto"));
        EXPECT_EQ(b.lista().Ordine.empty(), rifiutato) << r[0] << " " << r[3];
        EXPECT_EQ(b.lista().Testi.empty(), rifiutato) << r[0] << " " << r[3];
    }
}

TEST(Piana, PressesInOneSession) {
    Muro b("txtDec=20", TUTTO);
    const std::size_t una = b.premuto().lista().Ordine.size(), linee = b.lista().Linee.size(), testi = b.lista().Testi.size();
    EXPECT_EQ(b.premuto().lista().Ordine.size(), 2 * una) << "presses add up, and the second draws the same";
    EXPECT_EQ(b.lista().Testi.size(), 2 * testi);
    EXPECT_EQ(b.lista().Linee[linee + 1].Y1, b.lista().Linee[1].Y1);
    EXPECT_EQ(b.s.v.letture, 0) << "this engine's reading leaves the original dial open";
    b.prepara("txtLAT=30");
    b.premuto();
    EXPECT_EQ(b.s.v.lat_o, b.s.v.latR);
    // The zodiac's common reading fixes it.
    b.casella("ckZodiac");
    b.casella("ckFunzione");
    b.premuto();
    EXPECT_EQ(b.s.v.letture, 1);
    b.prepara("txtLAT=50");
    b.premuto();
    EXPECT_EQ(b.s.v.letture, 2);
    EXPECT_NEAR(b.s.v.lat_o.numero() * 180 / PI, 30, 1e-9);

    // After a reclining dial the horizon of a wall is still that of the first dial.
    Muro c("txtDec=20 txtInc=25", "ck_Orizzonte");
    c.casella("CkUNI", 0);
    EXPECT_EQ(c.premuto().s.v.letture, 1);
    c.spunta("CkUNI");
    EXPECT_EQ(c.s.in.txtInc, "0");
    EXPECT_NEAR(c.premuto().s.v.yOriz.numero(), .2 * std::tan(25 * PI / 180), 1e-12);
    EXPECT_EQ(c.s.in.txtOriz, TestoNumero(c.s.v.yOriz.numero()));
    EXPECT_EQ(c.anonime(2), 1);
}

TEST(Piana, WhichEngine) {
    for (const auto &[dove, universali, verticale] : {std::tuple{"txtLAT=45", 1, true},
                                                      {"txtLAT=0", 1, true},
                                                      {"txtLAT=45", 0, false},
                                                      {"txtInc=10", 1, false},
                                                      {"txtLAT=-45", 1, false}}) {
        Muro b(std::string("txtDec=10 ") + dove, "chkOreAstronomiche");
        b.casella("CkUNI", universali);
        EXPECT_EQ(!b.premuto().linee("Astro").empty(), verticale) << dove;
        EXPECT_EQ(b.linee("hour").empty(), verticale) << dove;
    }
}

// A point behind the wall is counted but not kept, so the chord after the gap comes from what stands in its place: in a
// line that nothing preceded, the foot of the ortostilo.
TEST(Piana, ChordsBehindAGap) {
    Muro b("txtDec=60", "ck_babiloniche ck_Italiche");
    b.premuto();
    for (const char *strato : {"Ita", "Bab"}) {
        std::size_t dalPiede = 0, salti = 0;
        const auto linee = b.linee(strato);
        for (std::size_t i = 1; i < linee.size(); ++i) {
            dalPiede += linee[i].X2 == 0 && linee[i].Y2 == 0;
            salti += linee[i].X2 != linee[i - 1].X1;
        }
        EXPECT_LT(dalPiede, 5u) << strato;
        EXPECT_GT(dalPiede + salti, 3u) << strato;
        EXPECT_LT(salti, linee.size() / 20);
    }
}

TEST(Piana, LimitCases) {
    // The equinoctial of a plane of declination 0 has the other sign and is refused North of the equator.
    Muro sud("txtDec=0", "ck_Equinoziale Ck_DayLightCurves");
    EXPECT_TRUE(sud.premuto().punti(9).empty() && !sud.strati().contains("21 III or 23 IX Eq"));
    // Chords never cross the plumb line through the foot.
    for (const RecLinea &l : sud.linee("Solstizio giugno")) EXPECT_GE(l.X1 * l.X2, 0);
    EXPECT_TRUE(Muro("txtLAT=0 txtDec=20", "ckAz").premuto().punti(6).empty());
    EXPECT_FALSE(Muro("txtLAT=80 txtDec=0", "Ck_DayLightCurves").premuto().strati().contains("Solstizio dicembre"))
        << "no sunrise";
    // At declination 0 of the user's day the optional line is the equinoctial within the limits of the day.
    Muro equinozio("txtDec=20 txtDelta=0", "Ck_DayLightCurves ck_Equinoziale");
    equinozio.premuto();
    EXPECT_TRUE(Contenuti(equinozio.linee("Diurna opzionale"), equinozio.linee("21 III or 23 IX Eq")));
    // On a wall that faces East or West each Asr point of the frame comes twice, the others once.
    std::map<std::pair<double, double>, int> volte;
    Muro ovest("txtDec=90", "ckAsr");
    for (const RecPunto &p : ovest.premuto().lista().Punti) ++volte[{p.X, p.Y}];
    EXPECT_GT(volte.size(), 500u);
    EXPECT_TRUE(std::ranges::any_of(volte, [](const auto &p) { return p.second == 2; }));
}

TEST(Piana, LengthenedTriangle) {
    Muro corto("txtDec=20", "ck_Triangolo"), lungo("txtDec=20 txtSUBSTYLE=.1", "ck_Triangolo");
    corto.premuto();
    lungo.premuto();
    const auto lunga = [](const RecLinea &l) { return std::hypot(l.X2 - l.X1, l.Y2 - l.Y1); };
    // Without lengthening the root is the foot of the ortostilo, and the false ortostilo is as long as the true one.
    EXPECT_EQ(std::hypot(corto.linee("CATETO_L").at(0).X2, corto.linee("CATETO_L").at(0).Y2), 0);
    EXPECT_NEAR(lunga(corto.linee("FALSO ortostilo").at(0)), .2, 1e-9);
    EXPECT_TRUE(corto.testo("Falso ortostilo = 0.2, coordinate x, y 0, 0") ||
                corto.testo("Falso ortostilo = 0.19999, coordinate x, y 0, 0"));
    // The long one is similar to it: all three sides grow by the same factor, and its root lies on the substyle.
    const RecLinea radice = lungo.linee("CATETO_L").at(0), asse = lungo.linee("IPOTENUSA_L").at(0);
    EXPECT_NEAR(std::hypot(radice.X2, radice.Y2), .1, 1e-12);
    EXPECT_NEAR(lunga(lungo.linee("FALSO ortostilo").at(0)), .2 * (1 + .1 / std::hypot(asse.X1, asse.Y1)), 1e-8);
    EXPECT_EQ(corto.lista().Figure.size(), 5u);  // four circles and the frame
    EXPECT_EQ(corto.linee("Mezzogiorno").at(0).Y2, -2 * corto.s.tavolo.ShiftY());
}

TEST(Piana, NumeralsAndZodiac) {
    const auto segni = [](const std::string &caselle) {
        Muro b("txtDec=0 txtDelta=10 txtNumbersize=.03", caselle);
        b.premuto();
        return b.anonime(7) + std::ssize(b.linee("Astro"));
    };
    const auto ore = segni("chkOreAstronomiche"), romani = segni("chkOreAstronomiche ckRomani");
    EXPECT_GT(romani, ore);
    EXPECT_EQ(segni("chkOreAstronomiche ckRomani ckArabi") - ore, 2 * (romani - ore)) << "both boxes: Roman twice, no Arabic";
    EXPECT_EQ(segni("ckRomani"), 0) << "numerals come with the hour lines";
    EXPECT_FALSE(Muro("txtDec=0", "Ck_DayLightCurves ckArabi").premuto().strati().contains("Diurna opzionale"))
        << "it gives way to them";
    // The boxes' clicks place a row at once, after a first run only.
    Muro b("txtDec=0", "");
    b.spunta("ckRomani");
    EXPECT_TRUE(b.lista().Ordine.empty());
    b.premuto().s.tavolo.Clear();
    b.spunta("ckArabi");
    EXPECT_FALSE(b.lista().Linee.empty());
    // The zodiac comes with the analemma's day marks alone.
    const auto tratti = [](const char *caselle) { return Muro("txtDec=0", caselle).premuto().lista().Ordine.size(); };
    EXPECT_EQ(tratti("ckZodiac"), tratti(""));
    EXPECT_EQ(tratti("ckZodiac ck_Lemniscate"), tratti("ck_Lemniscate"));
    EXPECT_GT(tratti("ckZodiac ck_Lemniscate ckFunzione"), tratti("ck_Lemniscate ckFunzione") + 400);
}

// Ten, eleven and twelve take two cells beside one another; the hours before and after one.
TEST(Piana, DigitsOfTheHours) {
    constexpr double ALTEZZA = .002, CELLA = ALTEZZA * 110 / 150;
    const auto cifre = [](const std::string &altezza) {
        auto linee = Muro("txtDec=0 txtDelta=0 txtArabi=" + altezza, "chkOreAstronomiche ckArabi").premuto().linee("");
        std::erase_if(linee, [](const RecLinea &l) { return l.Spessore != 2; });
        return linee;
    };
    std::vector<double> posti;
    for (const RecLinea &l : cifre("0"))
        if (posti.empty() || l.X1 != posti.back()) posti.push_back(l.X1);
    ASSERT_EQ(posti.size(), 11U) << "from 7 to 17, sorted";
    std::vector<std::pair<double, double>> estremi(posti.size(), {1e9, -1e9});
    for (const RecLinea &l : cifre(TestoNumero(ALTEZZA))) {
        const auto vicino = std::ranges::min_element(posti, {}, [&](double x) { return std::fabs(x - l.X1); });
        auto &[da, a] = estremi[static_cast<std::size_t>(vicino - posti.begin())];
        da = std::min({da, l.X1, l.X2});
        a = std::max({a, l.X1, l.X2});
    }
    for (std::size_t k = 0; k < posti.size(); ++k)
        EXPECT_EQ(estremi[k].second - estremi[k].first > CELLA, k >= 3 && k <= 5) << k + 7 << " h";
}

}  // namespace
}  // namespace ombrelia
