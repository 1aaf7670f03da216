// Whole runs of the vertical engine: what each line is drawn with, what the boxes and fields change, and what a press
// leaves for the next.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "comuni/prova.h"
#include "vertical/piana.h"

namespace ombrelia {
namespace {

using prova::Banco;
using Caselle = std::initializer_list<std::string_view>;

constexpr Colore VERDE = Rgb(0, 193, 97), ROSA = Rgb(255, 128, 128);

// A wall in a wide frame; boxes are set without their clicks, which would clear one another.
struct Muro : Banco {
    Muro(const char *lat, const char *dec, Caselle caselle, prova::Campi campi = {}) {
        imposta({{"txtInc", "0"}, {"txtLAT", lat}, {"txtDec", dec}, {"TxtStilo", ".2"}, {"TxtFraz", "1"}});
        imposta({{"txtX0", "-6"}, {"txtX1", "6"}, {"txtY0", "6"}, {"txtY1", "-6"}});
        imposta(campi);
        casella("CkUNI");
        for (const std::string_view c : caselle) casella(c);
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
        r.erase("");
        return r;
    }
    // Chords without a layer in a colour.
    [[nodiscard]] std::size_t anonime(Colore colore) const {
        std::size_t n = 0;
        for (const RecLinea &l : linee("")) n += l.colore == colore;
        return n;
    }
    [[nodiscard]] std::size_t punti(Colore colore) const {
        return static_cast<std::size_t>(std::ranges::count(lista().Punti, colore, &RecPunto::colore));
    }
};

const Caselle TUTTO = {"ckAssi",    "chkOreAstronomiche", "Ck_DayLightCurves", "ck_Italiche",  "ck_babiloniche", "ckTemp", "ck_Equinoziale", "ck_Orizzonte",
                           "ck_Lemniscate", "ck_Sustilare",   "ck_Triangolo",      "CkQibla",      "ckAlt",          "ckAz",   "ckAsr"};

TEST(Piana, ColoriEStratiDiOgniLinea) {
    Muro b("42", "15", TUTTO, {{"TxtFraz", "4"}, {"txtDelta", "-17"}, {"txtLonG", "-12"}});
    b.premuto();
    std::map<std::string, std::set<Colore>> colori;
    for (const RecLinea &l : b.lista().Linee) {
        colori[b.strato(l)].insert(l.colore);
        EXPECT_EQ(l.Spessore, 1);
    }
    const std::map<std::string, std::set<Colore>> attesi{
        // Axes, half hours, quarters and two limits, horizon twice, the other limits.
        {"", {QB(15), QB(13), QB(4), QB(2), QB(14), QB(12)}},
        {"Astro", {QB(7), QB(9), QB(12)}},
        {"Solstizio dicembre", {QB(12)}},
        {"20 XI or 20 I", {QB(13)}},
        {"20 II or 20 X", {QB(11)}},
        {"20 IV or 20 VIII", {QB(11)}},
        {"20 V or 20 VII", {QB(13)}},
        {"Solstizio giugno", {QB(12)}},
        {"Diurna opzionale", {QB(14)}},
        {"Ita", {ROSA}},
        {"Bab", {QB(11)}},
        {"Temp", {QB(6)}},
        {"21 III or 23 IX Eq", {QB(9)}},
        {"Lemniscata", {QB(13)}},
        {"IPOTENUSA_L", {QB(9)}},
        {"FALSO ortostilo", {QB(9)}},
        {"CATETO_L", {QB(9)}},
        {"Ipotenusa", {QB(9)}},
        {"Cateto", {QB(14)}},
        {"Mezzogiorno", {QB(8)}},
        {"Ortostilo", {QB(13)}},
    };
    EXPECT_EQ(colori, attesi);
    std::set<Colore> punti;
    for (const RecPunto &p : b.lista().Punti) punti.insert(p.colore);
    EXPECT_EQ(punti, (std::set<Colore>{QB(9), QB(12), QB(4), QB(6), VERDE}));
    // The Asr curve comes last of all, behind the caption; the frame before it.
    EXPECT_EQ(b.lista().Punti.back().colore, VERDE);
    EXPECT_EQ(b.s.in.ckAz, 1) << "unlike the direct engine the box stays";
    EXPECT_EQ(b.utente.messaggi.back(), "Piana _Esegui: Vertical dial by spherical trigonometry ");
}

TEST(Piana, EtichetteTestiEOrdine) {
    using Testi = std::vector<std::string>;
    const struct {
        Caselle caselle;
        Testi attesi;
    } casi[] = {
        // At 45 degrees the Sun of the summer solstice rises 7.71 hours before noon and stands before a wall due South for
        // 4.29 hours on either side of it. The sheet keeps no blanks at the end of a text.
        {{"ck_babiloniche"}, {" 4", " 5", " 6", " 7", " 8", " 9", " 10", " 11"}},
        {{"ck_Italiche"}, {" 13", " 14", " 15", " 16", " 17", " 18", " 19", " 20"}},
        {{"ckTemp"}, {"3", "4", "5", "6", "7", "8", "9"}},
        {{"ckTemp", "ck_Italiche"}, {" 13", " 14", " 15", " 16", " 17", " 18", " 19", " 20"}},
        {{"ckTemp", "ckRomani"}, {}},
        {{"ck_Italiche", "ck_babiloniche", "ckRomani"}, {}},
        {{"ckTemp", "ckArabi"}, {"3", "4", "5", "6", "7", "8", "9"}},
    };
    for (const auto &c : casi) {
        Muro b("45", "0", c.caselle);
        b.s.tavolo.ForeColor = QB(5);
        b.premuto();
        const Testi testi = b.testi();
        // What follows are the four limits and the caption.
        const auto fine = std::ranges::find(testi, "-6");
        EXPECT_EQ(Testi(testi.begin(), fine), c.attesi) << *c.caselle.begin();
        EXPECT_EQ(b.s.tavolo.ForeColor, QB(5));
    }
    // A wall that sees the early morning: 12 before 11.
    Muro b("45", "-60", {"ck_Italiche"});
    const Testi testi = b.premuto().testi();
    const auto dodici = std::ranges::find(testi, " 12"), undici = std::ranges::find(testi, " 11");
    ASSERT_NE(dodici, testi.end());
    ASSERT_NE(undici, testi.end());
    EXPECT_LT(dodici, undici);
}

TEST(Piana, DidascaliaNelSuoOrdine) {
    // By hand for latitude 40, declination 25, gnomon 0.2; values are cut, negatives away from 0.
    for (const bool mm : {false, true}) {
        Muro b("40", "25", {}, {{"txtLonG", "-12.3456789"}});
        if (mm) {
            b.casella("ChCentimetro");
            b.imposta({{"TxtStilo", "200"}});
        }
        b.premuto();
        const auto testi = b.testi();
        const std::vector<std::string> metri{"", "DATI QUADRANTE", "latitudine  = 40 °", "declinazione  = 25 °", "inclinazione = 0 °",
                                             "longitudine = -12.34568 °", "ortostilo = 0.2 m", "assostilo = 0.28807 m", "sottostilo = 0.20732 m",
                                             "ascissa centro = 0.09326 m", "ordinata centro = -0.18517 m", "ordinata orizzonte = 0 m",
                                             "Altezza del sole alle 12 d'estate = 73.43965 °", "Altezza del sole alle 12 d'inverno = 26.55329 °"};
        ASSERT_EQ(testi.size(), 4 + metri.size());
        if (!mm) {
            EXPECT_EQ(std::vector(testi.begin() + 4, testi.end()), metri);
            EXPECT_EQ(std::vector(testi.begin(), testi.begin() + 4), (std::vector<std::string>{"-6", "6", "6", "-6"}));
        } else {
            EXPECT_EQ(testi[10], "ortostilo = 200 mm");
            EXPECT_EQ(testi[11], "assostilo = 288.07151 mm");
        }
    }
}

TEST(Piana, FrazioniEMezzore) {
    // Half hours from 2 on, quarters at 4 alone; at 0 the division faults, so the spacing stays: 0 in a new session.
    const struct {
        const char *prima, *frazione;
        bool mezze, quarti;
    } casi[] = {{"", "0", true, false}, {"", "1", false, false}, {"", "2", true, false}, {"", "3", true, false},
                {"", "4", true, true},  {"1", "0", false, false}, {"4", "0", true, false}};
    for (const auto &c : casi) {
        Muro b("45", "20", {"chkOreAstronomiche"});
        if (*c.prima) {
            b.imposta({{"TxtFraz", c.prima}});
            b.premuto().s.tavolo.Clear();
        }
        b.imposta({{"TxtFraz", c.frazione}});
        b.premuto();
        EXPECT_EQ(b.anonime(QB(13)) > 0, c.mezze) << c.frazione;
        EXPECT_EQ(b.anonime(QB(4)) > 2, c.quarti) << c.frazione;  // two limit lines have that colour
        EXPECT_GT(b.linee("Astro").size(), 300u);
    }
    // Seasonal hours: 0 counts as 1, and a finer count keeps the coarser lines.
    const auto temporarie = [](const char *frazione) { return Muro("45", "20", {"ckTemp"}, {{"TxtFraz", frazione}}).premuto().linee("Temp").size(); };
    EXPECT_EQ(temporarie("0"), temporarie("1"));
    EXPECT_GT(temporarie("2"), 3 * temporarie("1") / 2);
}

using Coppia = std::pair<double, double>;
std::set<Coppia> capi(const std::vector<RecLinea> &linee) {
    std::set<Coppia> r;
    for (const RecLinea &l : linee) r.emplace(l.X1, l.Y1);
    return r;
}
bool contenuti(const std::set<Coppia> &pochi, const std::set<Coppia> &tanti, double tolleranza) {
    return std::ranges::all_of(pochi, [&](const Coppia &p) {
        const auto da = tanti.lower_bound({p.first - tolleranza, -1e9}), a = tanti.upper_bound({p.first + tolleranza, 1e9});
        return std::any_of(da, a, [&](const Coppia &q) { return std::fabs(q.second - p.second) <= tolleranza; });
    });
}

TEST(Piana, OraDelFusoEdEffettiDellaLongitudine) {
    const auto ore = [](bool fuso, const char *lon) {
        Muro b("45", "0", {"chkOreAstronomiche"}, {{"txtLonG", lon}});
        b.casella("ck_Etna", fuso);
        return b.premuto().linee("Astro");
    };
    const auto locali = capi(ore(false, "-7"));
    EXPECT_EQ(locali, capi(ore(false, "40"))) << "local time knows no longitude";
    EXPECT_EQ(locali, capi(ore(true, "-15"))) << "on the zone meridian both times are one";
    // At longitude 0 the zone's noon is an hour before: whole hours fall on whole hours, the red one among them.
    const auto spostate = ore(true, "0");
    EXPECT_TRUE(contenuti(capi(spostate), locali, 1e-9));
    for (const RecLinea &l : spostate)
        if (l.colore == QB(12)) {
            EXPECT_LT(l.X1, 0) << "noon of the zone is a morning hour here";
        }
    // A quarter of an hour off, none does.
    const auto sghembe = capi(ore(true, "-11.25"));
    EXPECT_FALSE(contenuti(sghembe, locali, 1e-9));
}

TEST(Piana, CkFunzione) {
    Muro senza("45", "20", {"Ck_DayLightCurves", "ck_Italiche", "ck_Lemniscate", "ck_Triangolo"}, {{"TxtFraz", "2"}});
    Muro con("45", "20", {"Ck_DayLightCurves", "ck_Italiche", "ck_Lemniscate", "ck_Triangolo", "ckFunzione"});
    senza.premuto();
    con.premuto();
    std::set<std::string> mancano;
    std::ranges::set_difference(senza.strati(), con.strati(), std::inserter(mancano, mancano.end()));
    EXPECT_EQ(mancano, (std::set<std::string>{"20 XI or 20 I", "20 II or 20 X", "20 IV or 20 VIII", "20 V or 20 VII"}));
    EXPECT_EQ(senza.linee("Ipotenusa").size(), 2u);
    EXPECT_EQ(con.linee("Ipotenusa").size(), 1u);
    // The hours of the steeples are the half hours of the others.
    EXPECT_EQ(con.utente.messaggi.back(), "Steeple Italic Hours");
    EXPECT_TRUE(contenuti(capi(con.linee("Ita")), capi(senza.linee("Ita")), 0));
    EXPECT_NE(senza.utente.messaggi.back(), "Steeple Italic Hours");
    // Five day marks of four chords, from the least to the greatest equation of time; no noon line on a plumb wall.
    std::vector<RecLinea> tacche;
    for (const RecLinea &l : con.linee(""))
        if (l.colore == QB(14)) tacche.push_back(l);
    ASSERT_EQ(tacche.size(), 20u);
    for (std::size_t i = 0; i < 20; ++i) {
        EXPECT_LT(tacche[i].X1, tacche[i].X2) << "older end first, from morning to afternoon";
        if (i % 4 > 0) {
            EXPECT_EQ(tacche[i].X1, tacche[i - 1].X2);
        }
    }
    EXPECT_EQ(senza.anonime(QB(14)), 0u);
    EXPECT_EQ(con.anonime(QB(12)), 2u) << "the limit lines alone";
}

TEST(Piana, OgniMuroSenzaSorprese) {
    // Over the range of walls: finite numbers, newer ends inside the frame, hours below the horizon at both ends, and
    // millimetres that draw what metres draw.
    for (const char *lat : {"0", "23.45", "45", "66.55", "80"})
        for (const char *dec : {"-180", "-135", "-90", "-45", "0", "30", "90", "150", "180"}) {
            Muro m(lat, dec, TUTTO, {{"txtDensity", ".02"}, {"txtX0", "-.5"}, {"txtX1", ".6"}, {"txtY0", ".4"}, {"txtY1", "-.8"}});
            Muro mm(lat, dec, TUTTO, {{"txtDensity", ".02"}, {"TxtStilo", "200"}, {"txtX0", "-500"}, {"txtX1", "600"}, {"txtY0", "400"}, {"txtY1", "-800"}});
            mm.casella("ChCentimetro");
            m.premuto();
            mm.premuto();
            for (const RecLinea &l : m.lista().Linee) {
                ASSERT_TRUE(std::isfinite(l.X1) && std::isfinite(l.Y1) && std::isfinite(l.X2) && std::isfinite(l.Y2));
                const std::string &strato = m.strato(l);
                if (strato != "Astro" && strato != "Ita" && strato != "Bab" && strato != "Temp" && !strato.starts_with("20 ")) continue;
                ASSERT_TRUE(-.5 < l.X1 && l.X1 < .6 && -.4 < l.Y1 && l.Y1 < .8) << lat << " " << dec << " " << strato;
                if (strato == "Astro") {
                    ASSERT_TRUE(l.Y1 >= 0 && l.Y2 >= 0);
                }
            }
            // A point on the edge of the frame or of the horizon may fall on either side: allow a few.
            const auto n = static_cast<double>(m.lista().Ordine.size()), nmm = static_cast<double>(mm.lista().Ordine.size());
            EXPECT_NEAR(n, nmm, 0.002 * n + 2) << lat << " " << dec;
            EXPECT_GT(n, 100);
        }
}

TEST(Piana, TroppoFittoPrimaDiDisegnare) {
    const struct {
        Caselle caselle;
        const char *dec, *campo, *valore;
        bool rifiutato;
    } casi[] = {
        {{"ckTemp"}, "10", "txtDensity", "1e-9", true},         {{"ckTemp"}, "10", "TxtFraz", "1e9", true},
        {{"ck_Italiche"}, "10", "TxtFraz", "1e6", true},        {{"ck_babiloniche"}, "10", "txtDensity", ".0000001", true},
        {{"ck_Sustilare"}, "10", "txtDensity", ".000009", true}, {{"ck_Sustilare"}, "10", "txtDensity", ".0001", false},
        {{"ck_Equinoziale"}, "0", "txtDensity", ".000003", true}, {{"ck_Equinoziale"}, "10", "txtDensity", ".000003", false},
        {{"ckAlt"}, "10", "txtDensity", "1e-7", true},          {{"chkOreAstronomiche"}, "10", "txtDensity", "1e-9", false},
        {{"ckTemp"}, "10", "txtDensity", "0", false},           {{"ckTemp", "ck_Sustilare"}, "10", "txtDensity", "-1e-9", false},
    };
    for (const auto &c : casi) {
        Muro b("45", c.dec, c.caselle, {{c.campo, c.valore}});
        b.premuto();
        const std::string che = std::string(c.campo) + " = " + c.valore;
        if (c.rifiutato) {
            EXPECT_EQ(b.utente.box, std::vector{che + ": troppo fitto"});
            EXPECT_TRUE(b.lista().Ordine.empty() && b.lista().Testi.empty()) << che;
        } else {
            EXPECT_TRUE(b.utente.box.empty()) << che;
            EXPECT_FALSE(b.lista().Ordine.empty());
        }
    }
}

TEST(Piana, PressioniInUnaSessione) {
    Muro b("45", "20", TUTTO);
    b.premuto();
    const std::size_t una = b.lista().Ordine.size(), testi = b.lista().Testi.size();
    const RecLinea seconda = b.lista().Linee[1];
    const std::size_t linee = b.lista().Linee.size();
    b.premuto();
    EXPECT_EQ(b.lista().Ordine.size(), 2 * una) << "presses add up, and the second draws the same";
    EXPECT_EQ(b.lista().Testi.size(), 2 * testi);
    EXPECT_EQ(b.lista().Linee[linee + 1].Y1, seconda.Y1);
    // This engine's reading leaves the original dial open.
    EXPECT_EQ(b.s.v.letture, 0);
    b.imposta({{"txtLAT", "30"}});
    b.premuto();
    EXPECT_EQ(b.s.v.lat_o, b.s.v.latR);
    // The zodiac's common reading fixes it.
    b.casella("ckZodiac");
    b.casella("ckFunzione");
    b.premuto();
    EXPECT_EQ(b.s.v.letture, 1);
    b.imposta({{"txtLAT", "50"}});
    b.premuto();
    EXPECT_EQ(b.s.v.letture, 2);
    EXPECT_NEAR(b.s.v.lat_o.numero() * 180 / PI, 30, 1e-9);

    // After a reclining dial the horizon of a wall is still that of the first dial.
    Muro c("45", "20", {"ck_Orizzonte"}, {{"txtInc", "25"}});
    c.casella("CkUNI", 0);
    c.premuto();
    EXPECT_EQ(c.s.v.letture, 1);
    c.spunta("CkUNI");
    EXPECT_EQ(c.s.in.txtInc, "0");
    c.premuto();
    EXPECT_NEAR(c.s.v.yOriz.numero(), .2 * std::tan(25 * PI / 180), 1e-12);
    EXPECT_EQ(c.s.in.txtOriz, TestoNumero(c.s.v.yOriz.numero()));
    EXPECT_EQ(c.anonime(QB(2)), 1u);
}

TEST(Piana, QualeMotore) {
    const struct {
        const char *lat, *inc;
        int universali;
        bool verticale;
    } casi[] = {{"45", "0", 1, true}, {"0", "0", 1, true}, {"45", "0", 0, false}, {"45", "10", 1, false}, {"-45", "0", 1, false}};
    for (const auto &c : casi) {
        Muro b(c.lat, "10", {"chkOreAstronomiche"}, {{"txtInc", c.inc}});
        b.casella("CkUNI", c.universali);
        b.premuto();
        EXPECT_EQ(!b.linee("Astro").empty(), c.verticale) << c.lat << " " << c.inc;
        EXPECT_EQ(b.linee("hour").empty(), c.verticale);
    }
}

// A point behind the wall is counted but not kept, so the chord after the gap comes from what stands in its place: in a
// line that nothing preceded, the foot of the ortostilo.
TEST(Piana, CordeDopoUnVuoto) {
    Muro b("45", "60", {"ck_babiloniche", "ck_Italiche"});
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

TEST(Piana, CasiLimite) {
    // The equinoctial of a plane of declination 0 has the other sign and is refused North of the equator.
    EXPECT_EQ(Muro("45", "0", {"ck_Equinoziale"}).premuto().punti(QB(9)), 0u);
    EXPECT_EQ(Muro("45", "0", {"ck_Equinoziale"}).premuto().linee("21 III or 23 IX Eq").size(), 0u);
    EXPECT_EQ(Muro("0", "20", {"ckAz"}).premuto().punti(QB(6)), 0u);
    // On a wall that faces East or West each Asr point of the frame comes twice, the others once.
    EXPECT_GT(Muro("45", "90", {"ckAsr"}).premuto().punti(VERDE), 1000u);
    Muro occidentale("45", "90", {"ckAsr"});
    std::map<Coppia, int> volte;
    for (const RecPunto &p : occidentale.premuto().lista().Punti) ++volte[{p.X, p.Y}];
    EXPECT_TRUE(std::ranges::any_of(volte, [](const auto &p) { return p.second == 2; }));
    // At declination 0 of the user's day the optional line is the equinoctial within the limits of the day.
    Muro equinozio("45", "20", {"Ck_DayLightCurves", "ck_Equinoziale"}, {{"txtDelta", "0"}});
    equinozio.premuto();
    EXPECT_TRUE(contenuti(capi(equinozio.linee("Diurna opzionale")), capi(equinozio.linee("21 III or 23 IX Eq")), 1e-9));
    EXPECT_GT(equinozio.linee("Diurna opzionale").size(), 100u);
    // No sunrise, no point; and a day line that the Sun draws all round stays in one piece but for the plumb line.
    EXPECT_TRUE(Muro("80", "0", {"Ck_DayLightCurves"}).premuto().linee("Solstizio dicembre").empty());
    // Chords never cross the plumb line through the foot.
    for (const RecLinea &l : Muro("45", "0", {"Ck_DayLightCurves"}).premuto().linee("Solstizio giugno")) EXPECT_GE(l.X1 * l.X2, 0);
}

TEST(Piana, TriangoloAllungato) {
    Muro corto("45", "20", {"ck_Triangolo"}), lungo("45", "20", {"ck_Triangolo"}, {{"txtSUBSTYLE", ".1"}});
    corto.premuto();
    lungo.premuto();
    // Without lengthening the root is the foot of the ortostilo, and the false ortostilo is as long as the true one.
    const RecLinea cateto = corto.linee("CATETO_L").at(0), falso = corto.linee("FALSO ortostilo").at(0);
    EXPECT_EQ(cateto.X2, 0);
    EXPECT_EQ(cateto.Y2, 0);
    EXPECT_NEAR(std::hypot(falso.X2 - falso.X1, falso.Y2 - falso.Y1), .2, 1e-9);
    EXPECT_TRUE(corto.testo("Falso ortostilo = 0.2, coordinate x, y 0, 0") || corto.testo("Falso ortostilo = 0.19999, coordinate x, y 0, 0"));
    // The long one is similar to it: all three sides grow by the same factor, and its root lies on the substyle.
    const RecLinea radice = lungo.linee("CATETO_L").at(0), piede = lungo.linee("FALSO ortostilo").at(0), asse = lungo.linee("IPOTENUSA_L").at(0);
    EXPECT_NEAR(std::hypot(radice.X2, radice.Y2), .1, 1e-12);
    const double sustilare = std::hypot(asse.X1, asse.Y1);
    const double fattore = (sustilare + .1) / sustilare;
    EXPECT_NEAR(std::hypot(piede.X2 - piede.X1, piede.Y2 - piede.Y1), .2 * fattore, 1e-8);
    EXPECT_EQ(corto.lista().Figure.size(), 5u);  // four circles and the frame
    EXPECT_EQ(corto.linee("Mezzogiorno").at(0).Y2, 2 * corto.s.tavolo.ShiftY());
}

TEST(Piana, NumeriSulleOre) {
    const auto segni = [](Caselle caselle) {
        Muro b("45", "0", caselle, {{"txtDelta", "10"}, {"txtNumbersize", ".03"}});
        b.premuto();
        return b.anonime(QB(7)) + b.linee("Astro").size();
    };
    const std::size_t ore = segni({"chkOreAstronomiche"}), romani = segni({"chkOreAstronomiche", "ckRomani"});
    EXPECT_GT(romani, ore);
    EXPECT_EQ(segni({"chkOreAstronomiche", "ckRomani", "ckArabi"}) - ore, 2 * (romani - ore)) << "both boxes: Roman twice, no Arabic";
    EXPECT_EQ(segni({"ckRomani"}), 0u) << "numerals come with the hour lines";
    // The day line of the user gives way to the numerals.
    EXPECT_FALSE(Muro("45", "0", {"Ck_DayLightCurves", "ckArabi"}).premuto().strati().contains("Diurna opzionale"));
    // The boxes' clicks place a row at once, after a first run only.
    Muro b("45", "0", {});
    b.spunta("ckRomani");
    EXPECT_TRUE(b.lista().Ordine.empty());
    b.premuto().s.tavolo.Clear();
    b.spunta("ckArabi");
    EXPECT_FALSE(b.lista().Linee.empty());
}

TEST(Piana, ZodiacoSoloConLaLemniscata) {
    const auto tratti = [](Caselle caselle) { return Muro("45", "0", caselle).premuto().lista().Ordine.size(); };
    EXPECT_EQ(tratti({"ckZodiac"}), tratti({}));
    EXPECT_EQ(tratti({"ckZodiac", "ck_Lemniscate"}), tratti({"ck_Lemniscate"}));
    EXPECT_GT(tratti({"ckZodiac", "ck_Lemniscate", "ckFunzione"}), tratti({"ck_Lemniscate", "ckFunzione"}) + 400);
}

}  // namespace
}  // namespace ombrelia
