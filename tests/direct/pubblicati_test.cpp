// The direct engine against dials worked out in print.
#include <gtest/gtest.h>

#include <cstdio>
#include <numbers>

#include "comuni/prova.h"
#include "gnomonica/proiezione.h"
#include "ombra/ombra.h"

namespace ombrelia {
namespace {

TEST(Pubblicati, PointsOfThePlane) {
    double peggiore = 0;
    int righe = 0;
    for (const auto &r : prova::Tabella("punti_pubblicati.txt")) {
        const auto n = [&r](std::size_t i) { return Val(r.at(i)); };
        const auto proietta = Proiezione::delPiano(Radianti(n(0)), Radianti(n(1)), Radianti(n(2)), 1, 1);
        Reale x, y;
        proietta(Radianti(n(3)), Radianti(n(4)), x, y);
        const double errore = std::max(Abs(x - n(5)).v, Abs(y - n(6)).v);
        EXPECT_TRUE(errore <= n(7).v) << r.at(8) << ": " << x.numero() << ", " << y.numero();
        peggiore = std::max(peggiore, errore);
        ++righe;
    }
    std::printf("%d published points, worst off by %.6f gnomons\n", righe, peggiore);
    EXPECT_GE(righe, 2);
}

// From the drawn lines, not from the formula: the angle of each hour line of a horizontal dial with the noon line.
TEST(Pubblicati, AnglesOfLevelHourLines) {
    prova::Banco banco({{"txtLAT", "54.8"}, {"txtInc", "90"}, {"TxtFraz", "1"}}, {"chkOreAstronomiche"});
    banco.cornice("1", "-5", "5", "5", "-5");
    banco.esegui();
    // Each line by its claim, the afternoon's to the right of noon and the morning's to the left.
    double peggiore = 0;
    for (const auto &r : prova::Tabella("angoli_orizzontali.txt")) {
        const double ora = Val(r.at(1)).v, atteso = Val(r.at(2)).v, tolleranza = Val(r.at(3)).v;
        for (const double verso : {1.0, -1.0}) {
            const RecLinea *l = nullptr;
            for (const Pretesa &p : banco.lista().pretese)
                if (p.specie == Specie::Ora && p.valore == 12 + verso * ora) l = &banco.lista().Linee.at(p.linea);
            ASSERT_TRUE(l) << r[1];
            const double errore =
                std::fabs(std::remainder(std::atan2(l->X2 - l->X1, l->Y2 - l->Y1) * 180 / PI - verso * atteso, 180));
            EXPECT_TRUE(errore <= tolleranza) << verso * ora << " h off by " << errore;
            peggiore = std::max(peggiore, errore);
        }
    }
    std::printf("hour angles at 54.8: worst off by %.5f degrees\n", peggiore);
}

// The level dial's points of a colour, each as the Sun that throws the shadow there.
std::vector<ombra::SoleLetto> lette(const prova::Banco &b, const ombra::PianoMontato &piano, Colore colore) {
    std::vector<ombra::SoleLetto> l;
    for (const RecPunto &p : b.lista().Punti)
        if (p.colore == colore) l.push_back(piano.leggi(ombra::Punto{p.X, p.Y}));
    return l;
}

prova::Banco piano(const std::string &lat, const std::string &lon, std::initializer_list<std::string_view> caselle) {
    return prova::Banco({{"txtLAT", lat},
                         {"txtLonG", lon},
                         {"txtInc", "90"},
                         {"TxtStilo", "1"},
                         {"txtQlat", "21.4225"},
                         {"txtQlon", "-39.8262"},
                         {"txtX0", "-6"},
                         {"txtX1", "6"},
                         {"txtY0", "6"},
                         {"txtY1", "-6"}},
                        caselle);
}

// The rule of three of the four schools: a shadow as long as its rod and the shadow of that noon together; in the afternoon.
TEST(Pubblicati, RuleOfAsr) {
    for (const char *lat : {"10", "30", "41.9", "51.5"}) {
        prova::Banco b = piano(lat, "-15", {"ckAsr"});
        b.esegui();
        const double phi = Val(lat).v * ombra::RADIANTI;
        const auto punti = lette(b, ombra::PianoMontato({phi, 0, std::numbers::pi / 2, 1}), QB(7));
        ASSERT_GT(punti.size(), 900U) << lat;
        for (const ombra::SoleLetto &l : punti) {
            if (l.delta > phi) continue;  // the noon shadow lies to the South: not the rule's case
            ASSERT_NEAR(1 / std::tan(l.altezza), 1 + std::tan(phi - l.delta), 1e-6) << lat;
            ASSERT_GT(l.t, 0) << lat;
        }
    }
    for (const auto &r : prova::Tabella("asr_definizione.txt")) {
        prova::Banco b = piano(r.at(0), "-15", {"ckAsr"});
        b.esegui();
        const double delta = Val(r.at(1)).v * ombra::RADIANTI;
        const auto punti = lette(b, ombra::PianoMontato({Val(r[0]).v * ombra::RADIANTI, 0, std::numbers::pi / 2, 1}), QB(7));
        double t = 1e9;  // between the neighbours, a twentieth of a degree apart
        for (std::size_t i = 1; i < punti.size(); ++i)
            if (const auto &p = punti[i - 1], &q = punti[i]; (p.delta <= delta + 1e-9) != (q.delta <= delta + 1e-9))
                t = std::lerp(p.t, q.t, (delta - p.delta) / (q.delta - p.delta));
        EXPECT_NEAR(t * ombra::GRADI, Val(r.at(2)).v, 1e-4) << r[0] << " " << r[1];
    }
}

// Bearings that charts of the Qibla give: in the caption, and of the Sun whose shadow falls on the curve.
TEST(Pubblicati, BearingOfTheQibla) {
    int curve = 0;
    for (const auto &r : prova::Tabella("qibla_pubblicate.txt")) {
        prova::Banco b = piano(r.at(1), r.at(2), {"CkQibla"});
        b.esegui();
        const double atteso = Val(r.at(3)).v - 180;  // from South, West positive
        std::string scritta;
        for (const RecTesto &t : b.lista().Testi)
            if (t.Testo.starts_with("Qibla from South = ")) scritta = t.Testo.substr(19);
        EXPECT_NEAR(Val(scritta).v, atteso, 0.1) << r[0];
        for (const ombra::SoleLetto &l :
             lette(b, ombra::PianoMontato({Val(r[1]).v * ombra::RADIANTI, 0, std::numbers::pi / 2, 1}), QB(10))) {
            // The whole straight line is drawn; the Sun of a day stands on one side of it or the other.
            ASSERT_NEAR(std::remainder(l.azimut * ombra::GRADI - atteso, 180), 0, 0.1) << r[0];
            ++curve;
        }
    }
    EXPECT_GT(curve, 10000);
}

// The turning points of the equation of time, where the drawn figure of mean noon turns.
TEST(Pubblicati, ExtremesOfTheAnalemma) {
    prova::Banco b = piano("45", "-15", {"ck_Lemniscate"});
    b.esegui();
    const ombra::PianoMontato livello({45 * ombra::RADIANTI, 0, std::numbers::pi / 2, 1});
    std::vector<ombra::SoleLetto> anno;
    for (const RecLinea &l : b.linee("Analemma")) anno.push_back(livello.leggi(ombra::Punto{l.X1, l.Y1}));
    ASSERT_GT(anno.size(), 3600U);
    std::vector<std::pair<double, double>> estremi;  // minutes, declination
    for (std::size_t i = 1; i + 1 < anno.size(); ++i)
        if ((anno[i].t - anno[i - 1].t) * (anno[i + 1].t - anno[i].t) < 0)
            estremi.emplace_back(anno[i].t * ombra::GRADI * 4, anno[i].delta * ombra::GRADI);
    const auto righe = prova::Tabella("analemma_pubblicata.txt");
    ASSERT_EQ(estremi.size(), righe.size());
    for (std::size_t i = 0; i < righe.size(); ++i) {
        EXPECT_NEAR(estremi[i].first, Val(righe[i].at(1)).v, 0.2) << righe[i][0];
        EXPECT_NEAR(estremi[i].second, Val(righe[i].at(2)).v, 0.6) << righe[i][0] << ": two days of declination";
    }
}

}  // namespace
}  // namespace ombrelia
