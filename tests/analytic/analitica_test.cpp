// Walls drawn by plane geometry against the same walls drawn by projection, and what a run draws, says and leaves.
#include <gtest/gtest.h>

#include "analytic/conica.h"
#include "analytic/quadranti.h"
#include "sessione/proiezione.h"

namespace ombrelia {
namespace {

using prova::Banco;
using prova::puntiDi;

struct Parete {
    const char *lat, *dec, *lon;
    bool zona;
};
constexpr Parete PARETI[] = {{"45", "0", "-9", true},    {"45", "30", "-15", true},   {"45.74805", "-20", "-12.3", true}, {"30", "-70", "0", false},
                             {"60", "110", "-20", true}, {"51.5", "-150", "3", true}, {"45", "180", "-15", true},         {"21", "5", "-15", false},
                             {"0", "30", "-15", true},   {"0", "-60", "-10", true},   {"70", "15", "-25", true},          {"45", "-180", "-12", true}};

void parete(Banco &b, const Parete &p, std::initializer_list<std::string_view> caselle) {
    b.imposta({{"txtLAT", p.lat}, {"txtDec", p.dec}, {"txtInc", "0"}, {"txtLonG", p.lon}, {"TxtStilo", "0.2"}});
    b.imposta({{"txtX0", "-1.5"}, {"txtX1", "1.5"}, {"txtY0", "1.5"}, {"txtY1", "-1.5"}});
    if (p.zona) b.spunta("ck_Etna");
    for (const std::string_view c : caselle) b.spunta(c);
}

TEST(Analitica, RetteOrarieComeLaProiezione) {
    for (const Parete &p : PARETI) {
        for (const char *frazione : {"1", "2", "4"}) {
            Banco dir, ana;
            for (Banco *b : {&dir, &ana}) {
                b->imposta({{"TxtFraz", frazione}});
                parete(*b, p, {"chkOreAstronomiche"});
            }
            dir.esegui();
            ana.premi("cmdEqui");
            const auto rette = ana.linee("Ore_astro");
            EXPECT_EQ(rette.size(), static_cast<std::size_t>(12 * Val(frazione).v) + 1);
            for (const std::string_view strato : {"hour", "half", "quarter"}) {
                // At the equator the first run has no side for the substyle's hour angle: only the family is the same.
                const bool noon = strato == "hour" && *p.lat != '0';
                const auto c = prova::Confronta(dir.linee(strato), rette, noon);
                EXPECT_LT(c.peggiore, 1e-6) << p.lat << " " << p.dec << " " << strato;
                if (strato == "hour") { EXPECT_GT(c.punti, 500) << p.lat << " " << p.dec; }
            }
        }
    }
}

// Every point of the day lines is on the cone of its declination, seen from the tip of the gnomon.
TEST(Analitica, LineeDiurneSulConoDelSole) {
    for (const Parete &p : PARETI) {
        Banco b;
        parete(b, p, {"Ck_DayLightCurves"});
        b.imposta({{"txtDelta", "-17"}});
        b.premi("cmdEqui");
        const bool equatore = *p.lat == '0';
        const double lat = Radianti(Val(p.lat)).v, dec = Radianti(Val(p.dec)).v;
        // The pole in the frame of the wall: right, up, outward.
        const double polo[] = {-std::cos(lat) * std::sin(dec), std::sin(lat), -std::cos(lat) * std::cos(dec)};
        const struct {
            int colore;
            double delta;
        } linee[] = {{9, 17}, {equatore ? 2 : 15, 23.45}, {equatore ? 3 : 14, 20}, {equatore ? 4 : 13, 11.5}};
        for (const auto &l : linee) {
            int quanti = 0;
            for (const RecPunto &q : puntiDi(b, QB(l.colore))) {
                if (q.X == 0 && q.Y == 0) continue;  // the foot has the colour of the first line
                const double d[] = {q.X, -q.Y, -0.2};
                const double lungo = d[0] * polo[0] + d[1] * polo[1] + d[2] * polo[2];
                const double quadrato = d[0] * d[0] + d[1] * d[1] + d[2] * d[2];
                EXPECT_NEAR(std::fabs(lungo) / std::sqrt(quadrato), std::sin(Radianti(l.delta).v), 1e-7) << p.lat << " " << p.dec << " " << l.delta;
                ++quanti;
            }
            EXPECT_GT(quanti, 200) << p.lat << " " << p.dec << " " << l.delta;
        }
    }
}

// The direct engine's chords of the analemma pass within their own sag of every analytic point that its horizon lets see.
TEST(Analitica, LemniscataComeLaProiezione) {
    int vicini = 0;
    for (const Parete &p : PARETI) {
        if (std::string_view(p.dec) == "0") continue;  // a formula of its own
        Banco dir, ana;
        for (Banco *b : {&dir, &ana}) parete(*b, p, {"ck_Lemniscate"});
        dir.esegui();
        if (*p.lat == '0') ana.premi("cmdEqui");
        ana.premi("Tavolo1.cmdPulisci");
        ana.premi("cmdEqui");
        const auto corde = dir.linee("Analemma");
        const auto punti = puntiDi(ana, QB(12));
        // From the direct engine to the analytic: every tenth of a day has an analytic point within a day's walk.
        std::size_t coperte = 0;
        for (const RecLinea &c : corde) {
            double d = 1e9;
            for (const RecPunto &q : punti) d = std::min(d, std::hypot(q.X - c.X1, q.Y - c.Y1));
            coperte += d < 0.03;
        }
        EXPECT_GE(static_cast<double>(coperte), 0.97 * static_cast<double>(corde.size())) << p.lat << " " << p.dec;
        // And back, for points well inside what the direct engine shows.
        for (const RecPunto &q : punti) {
            if (!(std::fabs(q.X) < 1.4 && q.Y > 0.001 && q.Y < 1.4)) continue;
            double d = 1e9;
            for (const RecLinea &c : corde) d = std::min(d, prova::distanza(q.X, q.Y, c) + std::max(0.0, std::hypot(q.X - c.X1, q.Y - c.Y1) - 0.01));
            EXPECT_LT(d, 2e-5) << p.lat << " " << p.dec << " at " << q.X << " " << q.Y;
            ++vicini;
        }
    }
    EXPECT_GT(vicini, 500);
}

// Each line of the direct engine is one of the tangents. Due south each routine has its own; on other walls those that
// cross the equinoctial behind the wall belong to the other routine.
TEST(Analitica, ItalicheEBabilonicheComeLaProiezione) {
    constexpr Parete A_SUD[] = {{"30", "0", "0", false}, {"45", "0", "0", false}, {"60", "0", "0", false}};
    const auto confronta = [](const Parete &p, bool italiche, bool babiloniche) {
        Banco dir, ana;
        for (Banco *b : {&dir, &ana}) {
            parete(*b, p, {});
            b->imposta({{"txtDensity", "1"}, {"TxtInizio", babiloniche ? "0" : "13"}, {"TxtFine", italiche ? "24" : "12"}, {"TxtFraz", "1"}});
            b->s.in.ck_Italiche = italiche;
            b->s.in.ck_babiloniche = babiloniche;
        }
        dir.esegui();
        ana.premi("cmdEqui");
        const auto punti = puntiDi(ana, QB(15));
        std::vector<RecLinea> tangenti;  // each through two points that follow one another
        for (std::size_t i = 1; i < punti.size(); ++i) {
            const double passo = std::hypot(punti[i].X - punti[i - 1].X, punti[i].Y - punti[i - 1].Y);
            if (passo > 1e-4) tangenti.push_back({punti[i - 1].X, punti[i - 1].Y, punti[i].X, punti[i].Y, 0, 1, 0});
        }
        auto corde = dir.linee("Ita");
        const auto altre = dir.linee("Bab");
        corde.insert(corde.end(), altre.begin(), altre.end());
        ASSERT_GT(corde.size(), 500U) << p.lat << " " << p.dec;
        EXPECT_LT(prova::Confronta(corde, tangenti, false).peggiore, 1e-6) << p.lat << " " << p.dec << " " << italiche << babiloniche;
    };
    for (const Parete &p : A_SUD) {
        confronta(p, true, false);
        confronta(p, false, true);
    }
    for (const Parete &p : PARETI)
        // Neither the equator, which has none, nor polar days, whose arcs the direct engine keeps from before.
        if (Val(p.lat) != 0 && Val(p.lat) < 66) confronta(p, true, true);
}

TEST(Analitica, OrdineColoriEDiUnaCorsa) {
    Banco b({{"txtLAT", "42"}, {"txtDec", "15"}, {"txtInc", "0"}, {"txtOriz", "-0.1"}, {"txtLonG", "-13"}},
            {"ckAssi", "chkOreAstronomiche", "Ck_DayLightCurves", "ck_Sustilare", "ck_Equinoziale", "ck_babiloniche", "ck_Lemniscate"});
    b.premi("cmdEqui");
    const Lista &l = b.lista();
    std::string forma;  // runs of one kind and colour: P or L and the number in the palette
    std::size_t linea = 0, punto = 0;
    std::string prima;
    for (const char c : l.Ordine) {
        const Colore colore = c == 'P' ? l.Punti[punto++].colore : c == 'L' ? l.Linee[linea++].colore : 0;
        int n = 0;
        while (n < 16 && c != 'B' && QB(n) != colore) ++n;
        const std::string adesso = c + (c == 'B' ? std::string() : std::to_string(n)) + " ";
        if (adesso != prima) forma += adesso;
        prima = adesso;
    }
    // The three day lines and the two branches of the envelope take turns.
    for (const std::string_view giro : {"P15 P14 P13 ", "P5 P10 "}) {
        const std::size_t da = forma.find(giro);
        ASSERT_NE(da, std::string::npos) << giro;
        std::size_t a = da;
        while (forma.compare(a, giro.size(), giro) == 0) a += giro.size();
        forma.replace(da, a - da, std::string(giro));
    }
    EXPECT_EQ(forma, "L15 L12 L15 L4 P9 P15 P14 P13 P14 P10 L9 L12 P15 L14 P5 P10 P15 P12 B ");
    for (const RecLinea &r : l.Linee) EXPECT_EQ(r.Spessore, 1);
    EXPECT_EQ(puntiDi(b, QB(10)).size(), 6001U + puntiDi(b, QB(5)).size()) << "equinoctial and one branch";
    EXPECT_TRUE(b.testo(" ordinata ore 12 itabab"));
    EXPECT_TRUE(b.testo("Ascisse delle intersezioni dei solstizi con l'orizzonte"));
    EXPECT_EQ(b.s.v.xEq, 0.8);
    EXPECT_EQ(b.utente.messaggi, std::vector<std::string>{"Piede Esegui: algoritmo che usa prevalentemente la Geometria Analitica "});
}

TEST(Analitica, PuntiFondamentali) {
    Banco b({{"txtLAT", "45"}, {"txtDec", "30"}, {"txtInc", "0"}, {"TxtStilo", "0.2"}});
    b.premi("cmdEqui");
    const Variabili &v = b.s.v;
    // The pole as the wall sees it.
    EXPECT_NEAR(v.xCentro.numero(), -0.2 * std::tan(PI / 6), 1e-9);
    EXPECT_NEAR(v.yCentro.numero(), 0.2 / std::cos(PI / 6), 1e-9);
    const auto &linee = b.lista().Linee;
    const auto lunga = [&](int colore) {
        for (const RecLinea &l : linee)
            if (l.colore == QB(colore)) return std::hypot(l.X1 - l.X2, l.Y1 - l.Y2);
        return -1.0;
    };
    EXPECT_NEAR(lunga(12), 0.2, 1e-12) << "the ortostilo laid flat keeps its length";
    EXPECT_NEAR(lunga(9), 0.2 / std::sin(v.altStilo.numero()), 1e-12) << "so does the polar style";
    // Where the solstices cross the horizon, at the hour when the Sun rises.
    const double d = Radianti(23.445).v, f = Radianti(45).v;
    double attesi[2];
    for (const int segno : {-1, 1}) {
        const double delta = segno * d;
        const double H = std::acos(-std::tan(f) * std::tan(delta));
        for (const double t : {-H, H}) {
            Reale x, y;
            Proiezione::delPiano(Radianti(45), Radianti(30), 0, 0.2, 1)(t, delta, x, y);
            EXPECT_NEAR(y.numero(), 0, 1e-8);
            // Rising and setting lie on one line through the tip with the opposite solstice's setting and rising.
            attesi[x.numero() > 0] = x.numero();
        }
    }
    EXPECT_TRUE(b.testo(Formato(attesi[0], "0.000000"))) << attesi[0];
    EXPECT_TRUE(b.testo(Formato(attesi[1], "0.000000"))) << attesi[1];
}

TEST(Analitica, MillimetriSenzaOreRestanoMillimetri) {
    Banco metri({{"txtDec", "15"}, {"txtInc", "0"}, {"TxtStilo", "0.2"}}, {"chkOreAstronomiche", "ck_Equinoziale"});
    Banco mm({{"txtDec", "15"}, {"txtInc", "0"}, {"TxtStilo", "200"}}, {"ChCentimetro", "chkOreAstronomiche", "ck_Equinoziale"});
    metri.premi("cmdEqui");
    mm.premi("cmdEqui");
    const auto a = metri.linee("Ore_astro"), b = mm.linee("Ore_astro");
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_NEAR(a[i].X1, b[i].X1, 1e-9);
    EXPECT_NEAR(metri.s.v.yCentro.numero(), mm.s.v.yCentro.numero(), 1e-12);
    mm.spunta("chkOreAstronomiche", 0);
    mm.premi("cmdEqui");
    EXPECT_NEAR(mm.s.v.yCentro.numero(), 1000 * metri.s.v.yCentro.numero(), 1e-9) << "only the hour lines scale the gnomon";
    EXPECT_TRUE(mm.testo("200000")) << "and the note divides it again";
}

TEST(Analitica, CasiDelPiano) {
    struct Caso {
        const char *lat, *dec;
        int rosse, meridiani, stili, ortostili;  // lines of hours in red, colour 4, 9 and 12 without a layer
        bool sustilare;
    };
    const Caso casi[] = {{"0", "0", 1, 1, 0, 0, true},    {"0", "90", 1, 0, 0, 0, true},   {"45", "-90", 1, 0, 0, 0, true}, {"45", "180", 1, 1, 1, 1, false},
                         {"45", "0", 1, 1, 1, 1, false},  {"45", "88", 1, 1, 0, 1, true},  {"0", "20", 1, 1, 1, 1, true},   {"-20", "0", 0, 0, 0, 0, false},
                         {"89.99999", "10", 1, 1, 0, 1, true}};
    for (const Caso &c : casi) {
        Banco b({{"txtLAT", c.lat}, {"txtDec", c.dec}, {"txtInc", "0"}, {"TxtFraz", "4"}, {"TxtStilo", "0.2"}}, {"chkOreAstronomiche", "ck_Sustilare"});
        b.premi("cmdEqui");
        int rosse = 0, senza[16] = {};
        for (const RecLinea &l : b.lista().Linee) {
            if (!b.strato(l).empty()) rosse += l.colore == QB(12);
            else
                for (int n = 0; n < 16; ++n) senza[n] += l.colore == QB(n);
            EXPECT_TRUE(std::isfinite(l.X1 + l.Y1 + l.X2 + l.Y2));
        }
        const std::string dove = std::string(c.lat) + " " + c.dec;
        EXPECT_EQ(rosse, c.rosse) << dove;
        EXPECT_EQ(senza[4], c.meridiani) << dove;
        EXPECT_EQ(senza[9], c.stili) << dove;
        EXPECT_EQ(senza[12], c.ortostili) << dove;
        EXPECT_EQ(!puntiDi(b, QB(14)).empty(), c.sustilare) << dove;
    }
}

TEST(Analitica, EquatoreFraISolstizi) {
    Banco b({{"txtLAT", "0"}, {"txtDec", "90"}, {"txtInc", "0"}, {"TxtStilo", "0.1"}, {"TxtFraz", "1"}, {"txtX0", "-1"}, {"txtX1", "1"}, {"txtY1", "-1"}},
            {"chkOreAstronomiche"});
    b.premi("cmdEqui");
    auto parallele = b.linee("Ore_astro");
    std::erase_if(parallele, [](const RecLinea &l) { return l.colore != QB(14); });
    ASSERT_EQ(parallele.size(), 11U);
    for (int i = 0; i < 11; ++i) {
        // Horizontal, below the foot by the tangent of the hour, as long as the shadow at 23.45 either side. At noon the
        // root is of a difference that should be 0: where it rounds below, the ordinate of the line before stays.
        const RecLinea &l = parallele[static_cast<std::size_t>(i)];
        const double h = Radianti(15 * (i - 5)).v;
        EXPECT_NEAR(l.Y1, l.Y2, 1e-12);
        if (i != 5) { EXPECT_NEAR(l.Y1, 0.1 * std::fabs(std::tan(h)), 1e-12); }
        EXPECT_NEAR(l.X1, 0.1 * std::tan(Radianti(23.45).v) / std::cos(h), 1e-12);
        EXPECT_EQ(l.X2, -l.X1);
    }
}

TEST(Analitica, CioCheRestaDiPrima) {
    // At the equator the substyle's hour angle takes its side from the run before: nought at first.
    Banco b({{"txtLAT", "0"}, {"txtDec", "-30"}, {"txtInc", "0"}, {"TxtFraz", "1"}}, {"chkOreAstronomiche"});
    b.premi("cmdEqui");
    const auto prima = b.linee("Ore_astro");
    b.premi("Tavolo1.cmdPulisci");
    b.premi("cmdEqui");
    const auto dopo = b.linee("Ore_astro");
    ASSERT_EQ(prima.size(), dopo.size());
    EXPECT_EQ(b.s.v.angoloOra, -PI / 2);
    // Then the family is the same but shifted by six hours.
    EXPECT_NEAR(prima[0].X1, dopo[6].X1, 1e-5);
    EXPECT_GT(std::fabs(prima[0].X1 - dopo[0].X1), 0.1);
    // A west wall keeps the centre of the dial drawn before.
    b.imposta({{"txtLAT", "45"}, {"txtDec", "30"}});
    b.premi("cmdEqui");
    const Reale x = b.s.v.xCentro;
    b.imposta({{"txtDec", "90"}});
    b.premi("cmdEqui");
    EXPECT_EQ(b.s.v.xCentro, x);
    // lat_o is 0 since the first run: no Italic hours, whatever the latitude now.
    b.spunta("ck_Italiche");
    b.premi("Tavolo1.cmdPulisci");
    b.premi("cmdEqui");
    EXPECT_TRUE(puntiDi(b, QB(5)).empty());
}

TEST(Analitica, AustraleRifiutata) {
    Banco b({{"txtLAT", "-45"}, {"txtInc", "0"}}, {"chkOreAstronomiche", "ckAssi"});
    EXPECT_EQ(b.premi("cmdEqui"), app::Esito::Fatto);
    EXPECT_TRUE(b.lista().Ordine.empty() && b.lista().Testi.empty());
    ASSERT_EQ(b.utente.messaggi.size(), 2U);
    EXPECT_EQ(b.utente.messaggi[1], "Grafica Analitica non è abilitata a lavorare a latitudini australi ");
    EXPECT_EQ(b.s.v.segnoLat, -1);
    EXPECT_EQ(b.s.in.txtLAT, "-45");
    EXPECT_EQ(b.s.v.letture, 0);
}

TEST(Analitica, PulsanteEFoglio) {
    Banco b({{"txtInc", "5"}});
    EXPECT_EQ(b.premi("cmdEqui"), app::Esito::Disabilitato);
    b.imposta({{"txtInc", "0"}});
    b.foglio(2, 1, 0, 0);
    EXPECT_EQ(b.premi("cmdEqui"), app::Esito::Fatto);
    EXPECT_DOUBLE_EQ(b.s.tavolo.ShiftX(), 1);
    EXPECT_DOUBLE_EQ(b.s.tavolo.ShiftY(), 1 / 3.33333);
    b.s.tavolo.ShiftX(0);
    b.premi("cmdEqui");
    EXPECT_EQ(b.s.tavolo.ShiftX(), 0) << "one shift of 0 is a choice";
}

TEST(Analitica, CampiAssurdiSonoRifiutatiOInnocui) {
    struct Caso {
        std::pair<std::string_view, std::string_view> campo;
        std::string_view box;  // empty: the run goes through
    };
    const Caso casi[] = {
        {{"TxtFraz", "1e9"}, "TxtFraz = 1e9: troppo fitto"},        {{"txtDensity", "1e-6"}, "txtDensity = 1e-6: troppo fitto"},
        {{"txtDensity", "1e-5"}, "txtDensity = 1e-5: troppo fitto"},  // a thousandth of it for the envelope alone
        {{"txtDensity", "0"}, ""},    {{"txtDensity", "-1"}, ""},   {{"TxtFraz", "0"}, ""},       {{"TxtFraz", "1e400"}, ""},
        {{"txtDelta", "0"}, ""},      {{"txtDelta", "90"}, ""},     {{"txtDelta", "1e308"}, ""},  {{"txtLAT", "1e308"}, ""},
        {{"txtLAT", "90"}, ""},       {{"txtDec", "1e308"}, ""},    {{"TxtStilo", "1e308"}, ""},  {{"TxtStilo", "0"}, ""},
        {{"txtOriz", "infinito"}, ""}, {{"txtOriz", "1e308"}, ""},
    };
    for (const Caso &c : casi) {
        Banco b({{"txtInc", "0"}}, {"chkOreAstronomiche", "Ck_DayLightCurves", "ck_Sustilare", "ck_Equinoziale", "ck_babiloniche", "ck_Lemniscate"});
        b.s.in.ck_Italiche = 1;
        b.imposta({c.campo});
        b.premi("cmdEqui");
        EXPECT_EQ(b.utente.box.empty() ? "" : b.utente.box.front(), c.box) << c.campo.first << " " << c.campo.second;
        EXPECT_EQ(b.lista().Ordine.empty(), !c.box.empty()) << c.campo.first << " " << c.campo.second;
        for (const RecLinea &l : b.lista().Linee) for (const double d : {l.X1, l.Y1, l.X2, l.Y2}) ASSERT_TRUE(std::isfinite(d)) << c.campo.second;
    }
    // At the equator no loop follows the density, so nothing is refused.
    Banco b({{"txtLAT", "0"}, {"txtInc", "0"}, {"txtDensity", "1e-6"}});
    b.s.in.ck_Italiche = 1;
    b.premi("cmdEqui");
    EXPECT_TRUE(b.utente.box.empty());
}

TEST(Conica, RadiciECostanti) {
    using namespace analytic;
    Conica k;
    k.calcola(QuadratoCotangente(0), 0.5, 1);
    EXPECT_EQ(k.A, 0) << "no cotangent on the equinox: the constants stay";
    const Radici niente = RisolviQuadratica(1, 0, 1), piatta = RisolviQuadratica(0, 1, 1);
    EXPECT_FALSE(niente.reali);
    EXPECT_TRUE(piatta.reali && !piatta.meno.esiste() && !piatta.piu.esiste());
    const Radici r = RisolviQuadratica(2, -6, 4);
    EXPECT_EQ(r.meno, 1);
    EXPECT_EQ(r.piu, 2);
    // A frame and a conic turned by nothing: ordinates v - y0 of v² + Q v + R u² + P = 0.
    k.calcola(QuadratoCotangente(20), 0.7, 2);
    const Valore y0 = 2 * tan(Valore(0.7));
    const Radici y = OrdinateConica(k, 0, y0)(0.3);
    ASSERT_TRUE(y.reali);
    for (const Valore ordinata : {y.meno, y.piu}) {
        const Valore v = ordinata + y0;
        EXPECT_NEAR((v * v + k.Q * v + k.R * 0.09 + k.P).v, 0, 1e-12);
    }
    // An abscissa where the conic meets an ordinate gives back that ordinate, on a turned frame.
    const Radici x = AscisseConica(k, 0.4, y0, -4);
    ASSERT_TRUE(x.reali);
    const Radici di = OrdinateConica(k, 0.4, y0)(x.meno);
    EXPECT_NEAR(std::min(Abs(di.meno + 4).v, Abs(di.piu + 4).v), 0, 1e-9);
}

}  // namespace
}  // namespace ombrelia
