// Walls drawn by plane geometry against the same walls drawn by projection, and what a run draws, says and leaves.
#include <gtest/gtest.h>

#include "analytic/quadranti.h"
#include "gnomonica/proiezione.h"
#include "ombra/ombra.h"

namespace ombrelia {
namespace {

using prova::QuadroProvato;

// The same wall for both engines.
struct Motori {
    QuadroProvato dir, ana;
    explicit Motori(const std::string &come) : dir(come), ana(come) {}
    void esegui() {
        dir.esegui();
        // At the equator the substyle's hour angle takes its side from the run before.
        if (ana.s.in.txtLAT == "0") ana.analitica();
        ana.analitica();
    }
};
std::string Parete(const std::vector<std::string> &r) {
    return "txtInc=0 TxtStilo=0.2 txtX0=-1.5 txtX1=1.5 txtY0=1.5 txtY1=-1.5 txtLAT=" + r.at(0) + " txtDec=" + r.at(1) +
           " txtLonG=" + r.at(2) + (r.at(3).empty() ? "" : " ") + r.at(3);
}

TEST(Analitica, HourLinesAsTheProjectionHasThem) {
    for (const auto &r : prova::Tabella("analitica_pareti.txt"))
        for (const char *frazione : {"1", "2", "4"}) {
            Motori m(Parete(r) + " chkOreAstronomiche TxtFraz=" + frazione);
            m.esegui();
            const auto rette = m.ana.linee("Ore_astro");
            EXPECT_EQ(rette.size(), static_cast<std::size_t>(12 * Val(frazione).v) + 1);
            for (const std::string_view strato : {"hour", "half", "quarter"}) {
                const auto c = prova::Confronta(m.dir.linee(strato), rette, strato == "hour");
                EXPECT_LT(c.peggiore, 1e-6) << r[0] << " " << r[1] << " " << strato;
                EXPECT_TRUE(strato != "hour" || c.punti > 500) << r[0] << " " << r[1];
            }
        }
}

// Every point of the day lines is on the cone of its declination, seen from the tip of the gnomon. Every analytic point of
// the analemma that the direct engine's horizon lets see is within the sag of its chords, and has a neighbour there.
TEST(Analitica, DayLinesLieOnTheSunsConeAndTheAnalemmaIsTheProjections) {
    std::size_t vicini = 0;
    for (const auto &r : prova::Tabella("analitica_pareti.txt")) {
        Motori m(Parete(r) + " txtDelta=-17 Ck_DayLightCurves ck_Lemniscate");
        m.esegui();
        const double lat = Radianti(Val(r[0])).v, dec = Radianti(Val(r[1])).v;
        // The pole in the frame of the wall: right, up, outward.
        const double polo[] = {-std::cos(lat) * std::sin(dec), std::sin(lat), -std::cos(lat) * std::cos(dec)};
        const bool equatore = lat == 0;
        for (const auto &[colore, delta] :
             {std::pair{9, 17.0}, {equatore ? 2 : 15, 23.45}, {equatore ? 3 : 14, 20}, {equatore ? 4 : 13, 11.5}}) {
            int quanti = 0;
            for (const RecPunto &q : m.ana.punti(colore)) {
                if (q.X == 0 && q.Y == 0) continue;  // the foot has the colour of the first line
                const double seno = std::fabs(q.X * polo[0] + q.Y * polo[1] - 0.2 * polo[2]) / std::hypot(q.X, q.Y, 0.2);
                EXPECT_NEAR(seno, std::sin(Radianti(delta).v), 1e-7) << r[0] << " " << r[1] << " " << delta;
                ++quanti;
            }
            EXPECT_GT(quanti, 200) << r[0] << " " << r[1] << " " << delta;
        }
        if (r[1] == "0") continue;  // an analemma by a formula of its own
        const auto corde = m.dir.linee("Analemma");
        const auto punti = m.ana.punti(12);
        const auto coperte = std::ranges::count_if(corde, [&](const RecLinea &c) {
            return std::ranges::any_of(punti, [&](const RecPunto &q) { return std::hypot(q.X - c.X1, q.Y - c.Y1) < 0.03; });
        });
        EXPECT_GE(static_cast<double>(coperte), 0.97 * static_cast<double>(corde.size())) << r[0] << " " << r[1];
        for (const RecPunto &q : punti) {
            if (!(std::fabs(q.X) < 1.4 && q.Y < -0.001 && q.Y > -1.4)) continue;
            EXPECT_LT(prova::DaCorde(q.X, q.Y, corde), 2e-5) << r[0] << " " << r[1] << " at " << q.X << " " << q.Y;
            ++vicini;
        }
    }
    EXPECT_GT(vicini, 500U);
}

// Each line of the direct engine is one of the tangents. Due south each routine has its own; on other walls those that
// cross the equinoctial behind the wall belong to the other routine.
TEST(Analitica, ItalicAndBabylonianHoursAsTheProjectionHasThem) {
    const auto confronta = [](const std::string &parete, bool italiche, bool babiloniche) {
        Motori m(parete + " txtDensity=1 TxtFraz=1 TxtInizio=" + (babiloniche ? "0" : "13") +
                 " TxtFine=" + (italiche ? "24" : "12"));
        m.dir.s.in.ck_Italiche = m.ana.s.in.ck_Italiche = italiche;
        m.dir.s.in.ck_babiloniche = m.ana.s.in.ck_babiloniche = babiloniche;
        m.esegui();
        const auto punti = m.ana.punti(15);
        std::vector<RecLinea> tangenti;  // each through two points that follow one another
        for (std::size_t i = 1; i < punti.size(); ++i)
            if (std::hypot(punti[i].X - punti[i - 1].X, punti[i].Y - punti[i - 1].Y) > 1e-4)
                tangenti.push_back({punti[i - 1].X, punti[i - 1].Y, punti[i].X, punti[i].Y, 0, 1, 0});
        auto corde = m.dir.linee("Ita");
        std::ranges::copy(m.dir.linee("Bab"), std::back_inserter(corde));
        ASSERT_GT(corde.size(), 500U) << parete;
        EXPECT_LT(prova::Confronta(corde, tangenti, false).peggiore, 1e-6) << parete << italiche << babiloniche;
        // What each claims is what the Sun reads on it, where it shines: beyond the tangent's point it is another hour.
        const double lat = Val(m.ana.s.in.txtLAT).v, dec = Val(m.ana.s.in.txtDec).v;
        const ombra::PianoMontato piano({lat * ombra::RADIANTI, dec * ombra::RADIANTI, 0, 0.2});
        int conLuce = 0, vere = 0;
        for (const Pretesa &p : m.ana.lista().pretese) {
            if (p.specie != Specie::Italica && p.specie != Specie::Babilonica) continue;
            int lette = 0, sue = 0;
            for (std::size_t i = p.da, k = p.punto; i < p.a; ++i, ++k) {
                const ombra::SoleLetto l = piano.leggi(ombra::Punto{m.ana.lista().Punti[k].X, m.ana.lista().Punti[k].Y});
                if (l.luce != ombra::Luce::Si) continue;
                const auto ora =
                    (p.specie == Specie::Italica ? ombra::italica : ombra::babilonica)(lat * ombra::RADIANTI, l.t, l.delta);
                ++lette;
                sue += ora && std::fabs(std::remainder(*ora - p.valore, 24)) < 1e-5;
            }
            conLuce += lette > 0;
            vere += sue > 0;
        }
        EXPECT_TRUE(std::fabs(dec) > 90 || (conLuce > 6 && 2 * vere > conLuce))
            << parete << ": " << vere << " claims of " << conLuce;
    };
    for (const char *lat : {"30", "45", "60"})
        for (const bool italiche : {false, true}) confronta(Parete({lat, "0", "0", ""}), italiche, !italiche);
    for (const auto &r : prova::Tabella("analitica_pareti.txt"))
        // Neither the equator, which has none, nor polar days, whose arcs the direct engine keeps from before.
        if (Val(r[0]) != 0 && Val(r[0]) < 66) confronta(Parete(r), true, true);
}

TEST(Analitica, OrderColoursAndWhatIsOfOneRun) {
    QuadroProvato b(
        "txtLAT=42 txtDec=15 txtInc=0 txtOriz=-0.1 txtLonG=-13 ckAssi chkOreAstronomiche Ck_DayLightCurves ck_Sustilare "
        "ck_Equinoziale ck_babiloniche ck_Lemniscate");
    b.premi("cmdEqui");
    const Lista &l = b.lista();
    std::string forma, prima;  // runs of one kind and colour: P or L and the number in the palette
    std::size_t linea = 0, punto = 0;
    for (const char c : l.Ordine) {
        const Colore colore = c == 'P' ? l.Punti[punto++].colore : c == 'L' ? l.Linee[linea++].colore : 0;
        int n = 0;
        while (n < 16 && c != 'B' && QB(n) != colore) ++n;
        const std::string adesso = c + (c == 'B' ? "" : std::to_string(n)) + " ";
        if (adesso != prima) forma += adesso;
        prima = adesso;
    }
    // The three day lines and the two branches of the envelope take turns.
    for (const std::string giro : {"P15 P14 P13 ", "P5 P10 "})
        for (std::size_t i; (i = forma.find(giro + giro)) != std::string::npos;) forma.erase(i, giro.size());
    EXPECT_EQ(forma, "L15 L12 L15 L4 P9 P15 P14 P13 P14 P10 L9 L12 P15 L14 P5 P10 P15 P12 B ");
    EXPECT_EQ(b.punti(10).size(), 6001U + b.punti(5).size()) << "equinoctial and one branch";
    EXPECT_TRUE(b.testo(" ordinata ore 12 itabab") && b.testo("Ascisse delle intersezioni dei solstizi con l'orizzonte"));
    EXPECT_EQ(b.s.v.xEq, 0.8);
    EXPECT_EQ(b.utente.messaggi,
              std::vector<std::string>{"Piede Esegui: algoritmo che usa prevalentemente la Geometria Analitica "});
    EXPECT_TRUE(std::ranges::all_of(l.Linee, [](const RecLinea &r) { return r.Spessore == 1; }));
}

TEST(Analitica, FundamentalPoints) {
    QuadroProvato b("txtLAT=45 txtDec=30 txtInc=0 TxtStilo=0.2");
    b.premi("cmdEqui");
    EXPECT_NEAR(b.s.v.xCentro.numero(), -0.2 * std::tan(PI / 6), 1e-9) << "the pole as the wall sees it";
    EXPECT_NEAR(b.s.v.yCentro.numero(), 0.2 / std::cos(PI / 6), 1e-9);
    // Ortostilo and polar style laid flat keep their lengths.
    for (const auto &[colore, lunga] : {std::pair{12, 0.2}, {9, 0.2 / std::sin(b.s.v.altStilo.numero())}}) {
        const auto l = std::ranges::find(b.lista().Linee, QB(colore), &RecLinea::colore);
        ASSERT_NE(l, b.lista().Linee.end()) << colore;
        EXPECT_NEAR(std::hypot(l->X1 - l->X2, l->Y1 - l->Y2), lunga, 1e-12) << colore;
    }
    // Where the solstices cross the horizon, at the hour when the Sun rises or sets; each is noted.
    for (const double delta : {-Radianti(23.445).v, Radianti(23.445).v})
        for (const int lato : {-1, 1}) {
            Reale x, y;
            Proiezione::delPiano(Radianti(45), Radianti(30), 0, 0.2, 1)(lato * std::acos(-std::tan(delta)), delta, x, y);
            EXPECT_TRUE(b.testo(Formato(x, "0.000000"))) << x.numero();
        }
}

TEST(Analitica, MillimetresWithoutHoursStayMillimetres) {
    QuadroProvato metri("txtDec=15 txtInc=0 TxtStilo=0.2 chkOreAstronomiche"),
        mm("txtDec=15 txtInc=0 TxtStilo=200 ChCentimetro chkOreAstronomiche");
    const auto a = metri.analitica().linee("Ore_astro"), b = mm.analitica().linee("Ore_astro");
    EXPECT_TRUE(std::ranges::equal(a, b, [](const RecLinea &l, const RecLinea &m) { return std::fabs(l.X1 - m.X1) < 1e-9; }));
    EXPECT_NEAR(metri.s.v.yCentro.numero(), mm.s.v.yCentro.numero(), 1e-12);
    mm.spunta("chkOreAstronomiche", 0);
    EXPECT_NEAR(mm.analitica().s.v.yCentro.numero(), 1000 * metri.s.v.yCentro.numero(), 1e-9)
        << "only the hour lines scale the gnomon";
    EXPECT_TRUE(mm.testo("200000")) << "and the note divides it again";
}

TEST(Analitica, CasesOfThePlane) {
    for (const auto &r : prova::Tabella("analitica_casi.txt")) {
        QuadroProvato b("txtInc=0 TxtFraz=4 TxtStilo=0.2 chkOreAstronomiche ck_Sustilare txtLAT=" + r.at(0) +
                        " txtDec=" + r.at(1));
        b.premi("cmdEqui");
        std::vector<std::string> visti{r[0], r[1]};
        for (const auto &[strato, colore] : {std::pair{"Ore_astro", 12}, {"", 4}, {"", 9}, {"", 12}})
            visti.push_back(std::to_string(std::ranges::count(b.linee(strato), QB(colore), &RecLinea::colore)));
        visti.emplace_back(b.punti(14).empty() ? "0" : "1");
        EXPECT_EQ(visti, r);
    }
}

TEST(Analitica, AtTheEquatorBetweenTheSolstices) {
    QuadroProvato b("txtLAT=0 txtDec=90 txtInc=0 TxtStilo=0.1 TxtFraz=1 txtX0=-1 txtX1=1 txtY1=-1 chkOreAstronomiche");
    b.premi("cmdEqui");
    auto parallele = b.linee("Ore_astro");
    std::erase_if(parallele, [](const RecLinea &l) { return l.colore != QB(14); });
    ASSERT_EQ(parallele.size(), 11U);
    double h = -75;
    for (const RecLinea &l : parallele) {
        // Horizontal, below the foot by the tangent of the hour, as long as the shadow at 23.45 either side. At noon the
        // root is of a difference that should be 0: where it rounds below, the ordinate of the line before stays.
        EXPECT_NEAR(l.Y1, l.Y2, 1e-12);
        EXPECT_NEAR(l.Y1, h == 0 ? l.Y2 : -0.1 * std::fabs(tan(Radianti(h)).v), 1e-12);
        EXPECT_NEAR(l.X1, 0.1 * (tan(Radianti(23.45)) / cos(Radianti(h))).v, 1e-12);
        EXPECT_EQ(l.X2, -l.X1);
        h += 15;
    }
}

TEST(Analitica, WhatIsLeftFromBefore) {
    // At the equator the substyle's hour angle has no side at first; then the family is the same but shifted by six hours.
    QuadroProvato b("txtLAT=0 txtDec=-30 txtInc=0 TxtFraz=1 chkOreAstronomiche");
    const auto prima = b.analitica().linee("Ore_astro"), dopo = b.analitica().linee("Ore_astro");
    ASSERT_EQ(prima.size(), 13U);
    EXPECT_NEAR(prima[0].X1, dopo.at(6).X1, 1e-5);
    EXPECT_GT(std::fabs(prima[0].X1 - dopo[0].X1), 0.1);
    // A west wall keeps the centre of the dial drawn before.
    b.prepara("txtLAT=45 txtDec=30");
    const Reale x = b.analitica().s.v.xCentro;
    b.prepara("txtDec=90 ck_Italiche");
    EXPECT_EQ(b.analitica().s.v.xCentro, x);
    EXPECT_TRUE(b.punti(5).empty()) << "lat_o is 0 since the first run: no Italic hours, whatever the latitude now";
}

TEST(Analitica, RefusalsAndTheSheet) {
    QuadroProvato australe("txtLAT=-45 txtInc=0 chkOreAstronomiche ckAssi");
    EXPECT_EQ(australe.premi("cmdEqui"), app::Esito::Fatto);
    EXPECT_TRUE(australe.lista().Ordine.empty() && australe.lista().Testi.empty());
    EXPECT_EQ(australe.s.v.segnoLat, -1);
    ASSERT_EQ(australe.utente.messaggi.size(), 2U);
    EXPECT_EQ(australe.utente.messaggi[1], "Grafica Analitica non è abilitata a lavorare a latitudini australi ");
    EXPECT_EQ(australe.s.in.txtLAT, "-45");
    EXPECT_EQ(australe.s.v.letture, 0);

    QuadroProvato b("txtInc=5");
    EXPECT_EQ(b.premi("cmdEqui"), app::Esito::Disabilitato);
    b.prepara("txtInc=0");
    b.foglio(2, 1, 0, 0);
    EXPECT_EQ(b.premi("cmdEqui"), app::Esito::Fatto);
    EXPECT_DOUBLE_EQ(b.s.tavolo.ShiftX(), 1);
    EXPECT_DOUBLE_EQ(b.s.tavolo.ShiftY(), 1 / 3.33333);
    b.s.tavolo.ShiftX(0);
    b.premi("cmdEqui");
    EXPECT_EQ(b.s.tavolo.ShiftX(), 0) << "one shift of 0 is a choice";
}

TEST(Analitica, AbsurdFieldsAreRefusedOrHarmless) {
    for (const auto &r : prova::Tabella("analitica_assurdi.txt")) {
        QuadroProvato b(
            "txtInc=0 chkOreAstronomiche Ck_DayLightCurves ck_Sustilare ck_Equinoziale ck_babiloniche ck_Lemniscate " + r.at(0));
        b.s.in.ck_Italiche = 1;
        b.premi("cmdEqui");
        EXPECT_EQ(b.utente.box.empty() ? "" : b.utente.box.front(), r.at(1)) << r[0];
        EXPECT_EQ(b.lista().Ordine.empty(), !r[1].empty()) << r[0];
        for (const RecLinea &l : b.lista().Linee)
            for (const double d : {l.X1, l.Y1, l.X2, l.Y2}) ASSERT_TRUE(std::isfinite(d)) << r[0];
    }
    QuadroProvato b("txtLAT=0 txtInc=0 txtDensity=1e-6");
    b.s.in.ck_Italiche = 1;
    b.premi("cmdEqui");
    EXPECT_TRUE(b.utente.box.empty()) << "at the equator no loop follows the density";
}

}  // namespace
}  // namespace ombrelia
