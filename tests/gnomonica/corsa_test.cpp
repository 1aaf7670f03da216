// What every run has in common, whichever engine draws: the zone's meridian and the claims of lines, held against shadows
// by vectors; the original dial; lines that another room draws.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "comuni/prova.h"
#include "ombra/ombra.h"

namespace ombrelia {
namespace {

using ombra::RADIANTI;
using prova::Banco;

struct Motrice {
    const char *nome, *dec, *inc, *bottone;
    bool piana, australe;
};
constexpr Motrice MOTRICI[] = {
    {"direct, wall", "-18", "0", "cmdRun", false, true},  {"direct, reclining", "25", "30", "cmdRun", false, true},
    {"direct, level", "0", "90", "cmdRun", false, true},  {"vertical", "-18", "0", "cmdRun", true, false},
    {"vertical, west", "65", "0", "cmdRun", true, false}, {"analytic", "-18", "0", "cmdEqui", false, false},
};

// The dial as it is mounted: what a southern run draws is mirrored in x, and its plane declines from the North.
ombra::PianoMontato montato(const Motrice &m, double lat) {
    const double g = std::atof(m.dec);
    return ombra::PianoMontato(
        {lat * RADIANTI, (lat < 0 ? (g < 0 ? -180 - g : 180 - g) : g) * RADIANTI, std::atof(m.inc) * RADIANTI, 0.1});
}

// Calls punto(claim, x, y) for both ends of each claimed chord, y upward, as mounted.
template <typename Punto>
void perOgniEstremo(const Lista &lista, bool australe, Punto punto) {
    for (const Pretesa &p : lista.pretese) {
        std::size_t linea = p.linea;
        for (std::size_t i = p.da; i < p.a; ++i) {
            if (lista.Ordine[i] != 'L') continue;
            const RecLinea &l = lista.Linee[linea++];
            const double verso = australe ? -1 : 1;
            punto(p, verso * l.X1, l.Y1);
            punto(p, verso * l.X2, l.Y2);
        }
    }
}

TEST(Corsa, LinesOfEveryZoneWhereTheShadowFalls) {
    for (const auto &r : prova::Tabella("meridiani.txt"))
        for (const Motrice &m : MOTRICI)
            for (const bool zona : {true, false}) {
                const double lat = std::stod(r[1]), scarto = zona ? std::stod(r[2]) - std::stod(r[3]) : 0;
                const bool australe = lat < 0;
                if (australe && !m.australe) continue;
                Banco b({{"txtLAT", r[1]},
                         {"txtLonG", r[2]},
                         {"txtMeridiano", r[3]},
                         {"txtDec", m.dec},
                         {"txtInc", m.inc},
                         {"TxtFraz", "2"},
                         {"txtDelta", "-7"}},
                        {"chkOreAstronomiche", "Ck_DayLightCurves"});
                b.cornice("0.1", "-2", "2", "2", "-2");
                b.spunta("ck_Etna", zona);
                b.s.in.CkUNI = m.piana;
                b.premi(m.bottone);
                const ombra::PianoMontato piano = montato(m, lat);
                std::set<double> ore;
                double oraPeggiore = 0, giornoPeggiore = 0;
                perOgniEstremo(b.lista(), australe, [&](const Pretesa &p, double x, double y) {
                    if (p.specie == Specie::Diurna)
                        giornoPeggiore =
                            std::max(giornoPeggiore, std::fabs(piano.leggi(ombra::Punto{x, y}).delta / RADIANTI - p.valore));
                    if (p.specie != Specie::Ora || std::fabs(x) > 5) return;
                    ore.insert(p.valore);
                    const ombra::Retta retta = piano.ombraDelloStilo(((p.valore - 12) * 15 - scarto) * RADIANTI);
                    oraPeggiore = std::max(oraPeggiore, std::fabs(retta.a * x + retta.b * y - retta.c));
                });
                EXPECT_GT(ore.size(), 8U) << r[0] << " " << m.nome;
                EXPECT_LT(oraPeggiore, 1e-5) << "metres; " << r[0] << " " << m.nome;
                EXPECT_LT(giornoPeggiore, 0.0051) << "degrees; " << r[0] << " " << m.nome;
            }
}

// The figure of mean noon is centred on the zone's noon, on a level plane where no part of it is cut.
TEST(Corsa, AnalemmaOfTheZonesMeridian) {
    for (const auto &r : prova::Tabella("meridiani.txt")) {
        const double lat = std::stod(r[1]);
        if (std::fabs(lat) > 60) continue;
        Banco b({{"txtLAT", r[1]}, {"txtLonG", r[2]}, {"txtMeridiano", r[3]}, {"txtInc", "90"}}, {"ck_Lemniscate"});
        b.cornice("0.1", "-4", "4", "4", "-4");
        b.premi("cmdRun");
        const ombra::PianoMontato piano = montato(MOTRICI[2], lat);
        double somma = 0;
        int punti = 0;
        perOgniEstremo(b.lista(), lat < 0, [&](const Pretesa &p, double x, double y) {
            if (p.specie != Specie::Analemma) return;
            somma += piano.leggi(ombra::Punto{x, y}).t / RADIANTI;
            ++punti;
        });
        ASSERT_GT(punti, 7000) << r[0];
        EXPECT_NEAR(somma / punti, std::stod(r[3]) - std::stod(r[2]), 0.02) << r[0] << ": the equation of time has no mean";
    }
}

// What a run leaves on the sheet, as the session's first or behind another dial's, whose fields were these but for some.
std::string disegno(const Motrice &m, const std::vector<std::string_view> &altri) {
    Banco b({}, {"chkOreAstronomiche", "ck_Italiche", "ckTemp", "ck_Orizzonte", "ckAlt"});
    b.s.originaleFresco = true;
    const prova::CampiScritti suoi{
        {"txtLAT", "47"}, {"txtDec", m.dec}, {"txtInc", m.inc}, {"TxtStilo", "0.1"}, {"txtOriz", "0.1"}};
    b.imposta(suoi);
    for (const std::string_view campo : altri) b.imposta({{campo, campo == "txtLAT" ? "30" : campo == "txtDec" ? "40" : "10"}});
    if (altri.size() > 0) b.premi("cmdRun");
    b.s.tavolo.Clear();
    b.imposta(suoi);
    b.s.in.CkUNI = m.piana;
    b.premi(m.bottone);
    return ListaTesto(b.lista());
}

TEST(Corsa, AFreshOriginalWipesTheRunBefore) {
    const std::vector<std::vector<std::string_view>> tutti{{"txtLAT", "txtDec", "txtInc"}, {"txtLAT"}, {"txtDec"}, {"txtInc"}};
    for (const Motrice &m : MOTRICI)
        for (const auto &altri : tutti)
            EXPECT_TRUE(disegno(m, altri) == disegno(m, {})) << m.nome << " behind another " << altri[0];
}

TEST(Corsa, AnotherDrawsInTheEnginesPlace) {
    for (const Motrice &m : MOTRICI) {
        Banco b({{"txtLAT", "45"}, {"txtDec", m.dec}, {"txtInc", m.inc}, {"txtX0", "-2"}, {"txtX1", "2"}, {"txtY1", "-2"}},
                {"chkOreAstronomiche", "Ck_DayLightCurves", "ck_Equinoziale", "ck_Italiche", "ck_Lemniscate"});
        std::set<Specie> chieste;
        std::size_t ore = 0;
        b.s.suCorretta = [&](Sessione &, const Attesa &a) {
            chieste.insert(a.specie);
            if (a.specie == Specie::Ora) ore = a.linee.size();
            return a.specie == Specie::Ora;
        };
        const auto pretende = [&](Specie specie) {
            for (const Pretesa &p : b.lista().pretese)
                if (p.specie == specie) return true;
            return false;
        };
        b.s.in.CkUNI = m.piana;
        b.premi(m.bottone);
        EXPECT_TRUE(chieste.empty() && pretende(Specie::Ora)) << m.nome << ": with the box clear nobody is asked";
        b.s.tavolo.Clear();
        b.spunta("ckCorretta");
        b.premi(m.bottone);
        for (const Specie s : {Specie::Ora, Specie::Diurna, Specie::Equinoziale, Specie::Italica, Specie::Analemma})
            EXPECT_EQ(chieste.count(s), 1U) << m.nome << " " << static_cast<int>(s);
        EXPECT_GE(ore, 13U) << m.nome;
        EXPECT_FALSE(pretende(Specie::Ora)) << m.nome;
        EXPECT_TRUE(pretende(Specie::Analemma)) << m.nome << ": what the other left alone is the engine's";
        EXPECT_NE(ListaTesto(b.lista()).find("Cornice"), std::string::npos) << m.nome;
    }
}

TEST(Corsa, RefusedInTheSouthItStaysSouthern) {
    Banco b({{"txtLAT", "-33"}, {"TxtFraz", "1e9"}}, {"ckTemp"});
    b.premi("cmdRun");
    EXPECT_EQ(b.s.in.txtLAT, "-33");
    EXPECT_TRUE(b.lista().Ordine.empty());
    ASSERT_EQ(b.utente.box.size(), 1U);
    EXPECT_EQ(b.utente.box[0].substr(0, 7), "TxtFraz");
}

}  // namespace
}  // namespace ombrelia
