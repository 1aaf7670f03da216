// Drawings made ready for machines: paths from chords and points, files, labels and solids.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <map>
#include <numbers>
#include <set>
#include <sstream>

#include "comuni/prova.h"
#include "officina/etichette.h"
#include "officina/passi.h"
#include "officina/scrittori.h"
#include "officina/solidi.h"
#include "officina/tratti.h"

namespace ombrelia::officina {
namespace {

// A sheet with a frame of 200 x 100 mm about the origin.
struct Foglio200 : Tavolo {
    Foglio200() {
        QuadranteL(0.4), QuadranteH(0.3), ShiftX(0.2), ShiftY(0.15);
        xBox(-0.1, -0.05, 0.1, 0.05, 0, true, "Cornice");
    }
    void linea(P2 a, P2 b, std::string_view strato) { xLine(a.x / 1000, -a.y / 1000, b.x / 1000, -b.y / 1000, 0, strato); }
    void punto(P2 p) { xPset(p.x / 1000, -p.y / 1000, QB(5)); }
    officina::Disegno pronto(ComePreparare o = {}) {
        std::string errore;
        officina::Disegno d = Prepara(*this, o, errore);
        EXPECT_EQ(errore, "");
        EXPECT_EQ(d.resoconto.persa, 0);
        return d;
    }
};

bool diCornice(const Cammino &c) { return c.genere == Genere::Cornice; }

TEST(Officina, FromChordsToPaths) {
    int righe = 0;
    for (const auto &r : prova::Tabella("taglio.txt")) {
        ++righe;
        Foglio200 f;
        std::stringstream gruppi(r[1]);
        for (std::string gruppo; std::getline(gruppi, gruppo, '!');) {
            const std::size_t due = gruppo.find(':');
            std::string strato = gruppo.substr(0, due);
            strato.erase(0, strato.find_first_not_of(' '));
            std::stringstream corde(gruppo.substr(due + 1));
            for (std::string corda; std::getline(corde, corda, ';');) {
                std::stringstream n(corda);
                P2 a, b;
                ASSERT_TRUE(n >> a.x >> a.y >> b.x >> b.y) << r[0];
                f.linea(a, b, strato);
            }
        }
        const officina::Disegno d = f.pronto();
        double cammini = 0, vertici = 0, lunga = 0;
        for (const Cammino &c : d.cammini)
            if (!diCornice(c)) ++cammini, vertici += static_cast<double>(c.punti.size()), lunga += c.lunghezza();
        const double visto[] = {cammini, vertici, lunga, d.resoconto.doppia, d.resoconto.fuori};
        for (std::size_t k = 0; k < 5; ++k) EXPECT_NEAR(visto[k], std::stod(r[k + 2]), 0.05) << r[0] << ", field " << k;
        EXPECT_LE(d.resoconto.scarto, 0.01) << r[0];
        EXPECT_TRUE(diCornice(d.cammini.back())) << r[0] << ": the frame is cut last";
    }
    EXPECT_GT(righe, 10);
}

// An arc of radius R within a tolerance t takes chords of 2 acos(1 - t/R) at the most; the fewest points are near that.
// Of lines that coincide one is cut, and which they are is told; lines that cross, or are drawn twice, are none.
TEST(Officina, LinesOfOtherNamesThatCoincideAreTold) {
    Foglio200 f;
    const auto linea = [&](P2 a, P2 b, Specie specie, double valore) {
        const Lista &l = f.lista();
        const std::size_t da = l.Ordine.size(), linee = l.Linee.size();
        f.linea(a, b, "x");
        f.pretendi({specie, valore, da, da, linee, l.Punti.size(), l.Figure.size()});
    };
    linea({0, -40}, {0, 40}, Specie::Ora, 12);
    linea({0, -40}, {0, 40}, Specie::Ora, 12);
    linea({0, -30}, {0, 10}, Specie::Mezzogiorno, 0);
    linea({-50, 0}, {50, 0.5}, Specie::Diurna, 0);
    linea({-50, 0.005}, {0, 0.255}, Specie::Temporaria, 6);
    const std::vector<Coincidenza> trovate = f.pronto().resoconto.coincidono;
    std::map<std::pair<Specie, Specie>, double> lunghe;
    for (const Coincidenza &k : trovate) lunghe[std::minmax(k.specie, k.con)] = k.lunga;
    ASSERT_EQ(lunghe.size(), 2U);
    EXPECT_NEAR((lunghe[std::minmax(Specie::Ora, Specie::Mezzogiorno)]), 40, 1);
    EXPECT_NEAR((lunghe[std::minmax(Specie::Diurna, Specie::Temporaria)]), 50, 1);
}

TEST(Officina, CurvesWithFewPoints) {
    for (const double t : {0.1, 0.01, 0.002}) {
        Foglio200 f;
        const int n = 20000;
        const auto su = [](int i) {
            return P2{40 * std::cos(std::numbers::pi * i / n), 40 * std::sin(std::numbers::pi * i / n)};
        };
        for (int i = 0; i < n; ++i) f.linea(su(i), su(i + 1), "delta");
        ComePreparare o;
        o.tolleranza = t;
        const officina::Disegno d = f.pronto(o);
        ASSERT_EQ(d.cammini.size(), 2U);
        const double minimo = std::numbers::pi / (2 * std::acos(1 - t / 40));
        EXPECT_GE(static_cast<double>(d.cammini[0].punti.size()), minimo);
        EXPECT_LE(static_cast<double>(d.cammini[0].punti.size()), 1.25 * minimo + 2) << t;
        EXPECT_LE(d.resoconto.scarto, t);
    }
}

TEST(Officina, DotsAreJoinedAndGapsKept) {
    Foglio200 f;
    // Two branches drawn in turn, one with a gap of ten steps, a lone point.
    for (int i = 0; i <= 100; ++i) {
        const double x = -50 + i;
        f.punto({x, 10 + 0.004 * x * x});
        if (i < 40 || i > 50) f.punto({x, -10 - 0.004 * x * x});
    }
    f.punto({80, -40});
    const officina::Disegno d = f.pronto();
    EXPECT_EQ(d.resoconto.curve, 3U);
    EXPECT_EQ(d.resoconto.punti, 1U);
    EXPECT_EQ(d.resoconto.puntiUniti, 101U + 90U);
    for (const Cammino &c : d.cammini)
        if (c.tipo == Cammino::Tipo::Linea && !diCornice(c)) {
            EXPECT_GT(c.punti[0].y * c.punti.back().y, 0) << "a path stays on its branch";
        }
}

// A glyph whose middle is inside stays whole, another goes whole.
TEST(Officina, GlyphsAreNotCut) {
    for (const double x : {98.0, 102.0}) {
        Foglio200 f;
        f.linea({x - 5, 0}, {x + 5, 0}, "");
        f.linea({x, -5}, {x, 5}, "");
        const officina::Disegno d = f.pronto();
        EXPECT_EQ(d.cammini.size(), x < 100 ? 3U : 1U);
        EXPECT_NEAR(d.resoconto.fuori, x < 100 ? 0 : 20, 1e-9);
    }
}

// A page chosen for the printer is no line of the dial, and its number none of its texts.
TEST(Officina, ChosenPagesAreNotCut) {
    Foglio200 f;
    f.linea({-30, 0}, {30, 0}, "hour");
    const std::size_t senza = f.pronto().cammini.size();
    f.xTrovaA4(0.25, 0.05);
    ASSERT_EQ(f.lista().Aree.size(), 1U);
    EXPECT_EQ(f.pronto().cammini.size(), senza);
}

TEST(Officina, KindsHaveNamesForAll) {
    std::set<std::string_view> nomi;
    for (const RigaGenere &r : Generi()) {
        EXPECT_TRUE(nomi.insert(r.nome).second);
        EXPECT_LE(r.nome.size(), 30U);
        EXPECT_EQ(r.nome.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_"), std::string_view::npos) << r.nome;
        EXPECT_EQ(&Riga(r.genere), &r) << "the table stands in the order of the kinds";
    }
    const struct {
        Specie specie;
        double valore;
        std::string_view nome;
    } linee[] = {{Specie::Ora, 9, "ORE"},          {Specie::Ora, 9.5, "MEZZE_ORE"},
                 {Specie::Ora, 9.25, "QUARTI"},    {Specie::Ora, 16.0 + 1.0 / 3, "QUARTI"},
                 {Specie::Diurna, 20, "DIURNE"},   {Specie::Diurna, 0, "EQUINOZIALE"},
                 {Specie::Tacca, -11.5, "DIURNE"}, {Specie::OraSustilare, 0, "SUSTILARE"},
                 {Specie::Qibla, 0, "QIBLA"}};
    for (const auto &[specie, valore, nome] : linee) EXPECT_EQ(Riga(GenereDi(specie, valore)).nome, nome) << valore;
    const std::pair<std::string_view, std::string_view> strati[] = {
        {"Cornice", "CORNICE"}, {"AssiXY", "AUSILIARIE"}, {"Cartiglio", "CARTIGLIO"}, {"hour", "ALTRO"}, {"", "FIGURE"}};
    for (const auto &[strato, nome] : strati) EXPECT_EQ(Riga(GenereDi(strato)).nome, nome) << strato;
    for (const auto &[ora, nome] :
         {std::pair{10.0, "ORE"}, {10.5, "MEZZE_ORE"}, {11.5, "MEZZE_ORE"}, {10.25, "QUARTI"}, {10.75, "QUARTI"}})
        EXPECT_EQ(Riga(GenereDi(Specie::Ora, ora)).nome, nome) << ora;
}

// What any reader of the format must find: tags in pairs, sections in their order, units, extents that hold every vertex.
TEST(Officina, TheDxfIsWhole) {
    for (const Unita unita : {Unita::Millimetri, Unita::Pollici}) {
        Foglio200 f;
        f.linea({-30, 0}, {30, 25.4}, "hour");
        f.xCircle(0.02, 0.01, 0.005, 0);
        f.xCircle(0.05, 0.01, 0.005, 0, -1, 1, 0.5, 1.5);
        const std::string t = Dxf12(f.pronto(), {unita, ""});
        std::stringstream righe(t);
        std::vector<std::pair<int, std::string>> coppie;
        for (std::string codice, valore; std::getline(righe, codice) && std::getline(righe, valore);) {
            valore.pop_back();
            coppie.emplace_back(std::stoi(codice), valore);
        }
        ASSERT_EQ(coppie.back(), std::pair(0, std::string("EOF")));
        std::string sezioni, variabile, entita, chiuse;
        std::map<std::string, std::vector<std::string>> testa;
        double minimo = 1e9, massimo = -1e9, da = 0, a = 0;
        for (std::size_t i = 0; i < coppie.size(); ++i) {
            const auto &[c, v] = coppie[i];
            if (c == 0) entita = v;
            if (c == 2 && coppie[i - 1].second == "SECTION") sezioni += v + " ";
            if (c == 9) variabile = v;
            else if (!variabile.empty() && sezioni == "HEADER ") testa[variabile].push_back(v);
            if (entita == "POLYLINE" && c == 70) chiuse += v;
            if (entita == "ARC" && c == 50) da = std::stod(v);
            if (entita == "ARC" && c == 51) a = std::stod(v);
            if (entita == "VERTEX" && c == 10) minimo = std::min(minimo, std::stod(v)), massimo = std::max(massimo, std::stod(v));
        }
        const double k = unita == Unita::Pollici ? 25.4 : 1;
        EXPECT_EQ(sezioni, "HEADER TABLES BLOCKS ENTITIES ");
        EXPECT_EQ(chiuse, "01") << "the line is open, the frame comes back to where it began";
        EXPECT_EQ(testa["$ACADVER"][0], "AC1009");
        EXPECT_EQ(testa["$INSUNITS"][0], unita == Unita::Pollici ? "1" : "4");
        EXPECT_NEAR(std::stod(testa["$EXTMIN"][0]) * k, -100, 1e-4);
        EXPECT_NEAR(std::stod(testa["$EXTMAX"][1]) * k, 50, 1e-4);
        EXPECT_NEAR(minimo * k, -100, 1e-4);
        EXPECT_NEAR(massimo * k, 100, 1e-4);
        EXPECT_NE(t.find("CIRCLE\r\n  8\r\nFIGURE\r\n"), std::string::npos);
        EXPECT_NEAR(a - da, 180 / std::acos(-1.0), 1e-3) << "a radian, counter-clockwise";
        // The page of the other form is the field at true size: 72 points an inch.
        const std::string pdf = PdfStrati(f.pronto(), {unita, ""});
        const double larga = std::stod(pdf.substr(pdf.find("/MediaBox [ 0 0 ") + 16));
        EXPECT_NEAR(larga, 200 * 72 / 25.4, 0.01);
    }
}

// Pen moves of a plotter file give back the path's length, in fortieths of a millimetre.
TEST(Officina, TheHpglHasTheLength) {
    Foglio200 f;
    f.linea({-30, 0}, {30, 0}, "hour");
    const std::string t = Hpgl(f.pronto(), {});
    double giu = 0, x = 0, y = 0;
    for (std::size_t i = 0; i < t.size();) {
        const std::size_t fine = t.find(';', i);
        const std::string comando = t.substr(i, fine - i);
        const std::size_t da = comando.find_first_of("PI");
        std::stringstream n(da == std::string::npos ? "" : comando.substr(da + 2));
        double u, v;
        for (char virgola; n >> u >> virgola >> v; n >> virgola) {
            if (comando.substr(da, 2) == "PD") giu += std::hypot(u - x, v - y);
            x = u, y = v;
        }
        if (fine == std::string::npos) break;
        i = fine + 1;
    }
    EXPECT_NEAR(giu / 40, 600 + 60, 0.1);
}

TEST(Officina, StrokesHaveAccentsAndDegrees) {
    if (!CiSonoTratti()) GTEST_SKIP() << "no alphabet here";
    EXPECT_TRUE(TrattiDi(" ", 5).empty());
    for (const char *c : {"à", "è", "é", "ì", "ò", "ù", "ç", "ü", "°", "♈", "♎", "♓"}) {
        const auto tratti = TrattiDi(c, 21);
        ASSERT_FALSE(tratti.empty()) << c;
        for (const auto &t : tratti)
            for (const P2 p : t) EXPECT_TRUE(-8 <= p.y && p.y <= 32 && -3 <= p.x && p.x <= LarghezzaTratti(c, 21) + 3) << c;
    }
    EXPECT_GT(TrattiDi("è", 5).size(), TrattiDi("e", 5).size());
    EXPECT_DOUBLE_EQ(LarghezzaTratti("12", 10), 2 * LarghezzaTratti("1", 10));
}

bool incrocia(P2 a, P2 b, P2 c, P2 d) {
    const auto lato = [](P2 p, P2 q, P2 r) { return Croce(q - p, r - p); };
    return lato(a, b, c) * lato(a, b, d) < 0 && lato(c, d, a) * lato(c, d, b) < 0;
}

// Labels cross nothing and stay inside, on a dial mounted the other way round too; without the box the list is what it was.
TEST(Officina, LabelsStandFree) {
    struct Caso {
        const char *lat, *dec;
        bool lungo, montato;
        std::size_t ore;  // at least so many
    };
    // A wall that looks South at 45 degrees is lit from 6 to 18.
    for (const Caso &k : {Caso{"45", "0", false, false, 11}, {"45", "0", true, false, 11}, {"-45", "20", false, true, 8}}) {
        const prova::CampiScritti muro{{"txtLAT", k.lat}, {"txtDec", k.dec}, {"txtInc", "0"},
                                       {"txtX0", "-.6"},  {"txtX1", ".6"},   {"txtY1", "-.8"}};
        prova::Banco senza(muro, {"chkOreAstronomiche", "Ck_DayLightCurves"});
        prova::Banco con(muro, {"chkOreAstronomiche", "Ck_DayLightCurves", "ckEtichette"});
        for (prova::Banco *b : {&senza, &con}) b->s.australeMontato = k.montato;
        senza.esegui();
        if (k.lungo) con.spunta("ckEtichetteLungo");
        con.esegui();
        std::vector<std::pair<P2, P2>> scritte, linee;
        for (const RecLinea &l : con.lista().Linee) {
            const std::pair p{P2{l.X1, l.Y1}, P2{l.X2, l.Y2}};
            if (con.strato(l) == "Etichette") scritte.push_back(p);
            else linee.push_back(p);
        }
        ASSERT_GT(scritte.size(), 50U);
        EXPECT_EQ(linee.size(), senza.lista().Linee.size());
        for (const auto &[a, b] : scritte) {
            EXPECT_TRUE(std::fabs(a.x) < 0.6 && a.y < 0.8);
            for (const auto &[c, d] : linee) EXPECT_FALSE(incrocia(a, b, c, d)) << k.lat << ' ' << a.x << ' ' << a.y;
        }
        std::size_t ore = 0;
        for (const Pretesa &p : con.lista().pretese) ore += p.specie == Specie::Etichetta;
        EXPECT_GE(ore, k.ore);
        EXPECT_LE(ore, 13U + 7U);
    }
}

// Every edge is met once each way: closed, and oriented. Gives the shell's volume.
double chiuso(const Solido &s, const char *che) {
    std::map<std::pair<std::array<float, 3>, std::array<float, 3>>, int> lati;
    const auto f = [](const P3 &p) {
        return std::array<float, 3>{static_cast<float>(p.x), static_cast<float>(p.y), static_cast<float>(p.z)};
    };
    for (const auto &t : s.facce)
        for (std::size_t k = 0; k < 3; ++k) ++lati[{f(t[k]), f(t[(k + 1) % 3])}];
    std::size_t aperti = 0;
    for (const auto &[lato, volte] : lati) aperti += volte != 1 || !lati.contains({lato.second, lato.first});
    EXPECT_EQ(aperti, 0U) << che;
    EXPECT_GT(s.facce.size(), 10U) << che;
    return s.volume();
}

TEST(Officina, SolidsAreClosedAndOfTheirVolume) {
    Foglio200 f;
    f.linea({-60, -30}, {60, 30}, "hour");
    f.linea({-60, 30}, {60, -30}, "hour");
    const officina::Disegno d = f.pronto();
    const Gnomone g{30, P2{0, 40}};
    Misure m;
    std::string errore;
    // A triangle 40 by 30 and two tabs of a fifth of its length.
    EXPECT_NEAR(chiuso(PiastraStilo(g, ContornoLastra(d), m, errore), "style"), 3 * (600 + 2 * 8 * 5), 0.5);
    const double r = 2.1, h = 12, p = std::numbers::pi;
    const double cono = p * 9 / 3 * (64 + 8 * 4.8 + 4.8 * 4.8);
    EXPECT_NEAR(chiuso(Zoccolo(m), "socket"), p * 64 * 3 + cono - p * r * r * (h - 2), 4);
    // The plate less its slots, the lines on it or out of it.
    const double piatta = 210 * 110 * 5 - 2 * 8.2 * 3.2 * 5;
    m.linea = 1;
    double sopra = 0;
    for (const bool rilievo : {true, false}) {
        m.rilievo = rilievo;
        const double v = chiuso(Lastra(d, g, m, true, errore), "plate");
        if (errore.find("libpolyclipping") != std::string::npos) GTEST_SKIP() << errore;
        ASSERT_EQ(errore, "");
        const double linee = std::fabs(v - piatta);
        EXPECT_EQ(v > piatta, rilievo);
        if (rilievo) sopra = linee;
        else EXPECT_NEAR(linee, sopra, 0.01 * sopra);
        // Frame 600 mm, two diagonals of 134.164 mm, less what the slots take from them.
        EXPECT_NEAR(linee, 600 + 2 * 134.164, 25);
    }
    const std::string stl = Stl(Zoccolo(m));
    std::uint32_t n = 0;
    std::memcpy(&n, stl.data() + 80, 4);
    EXPECT_EQ(stl.size(), 84U + 50U * n);
}

}  // namespace
}  // namespace ombrelia::officina
