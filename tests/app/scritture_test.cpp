// What is written on a drawing and into fields by the program: labels, title block, other units, keys, later controls of a
// project.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "app/plausibile.h"
#include "app/progetto.h"
#include "comuni/prova.h"
#include "officina/tratti.h"

namespace ombrelia {
namespace {

using prova::Banco;

// Millimetres of the strokes of a text.
double inchiostro(std::string_view testo, double altezza) {
    double l = 0;
    for (const auto &t : officina::TrattiDi(testo, altezza))
        for (std::size_t i = 1; i < t.size(); ++i) l += officina::Distanza(t[i - 1], t[i]);
    return l;
}

// A label is known by the ink that it took.
TEST(Scritture, HoursAreTheClocks) {
    const std::vector<std::string> arabi{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"};
    const std::vector<std::string> romani{"I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII"};
    for (const auto *ore : {&arabi, &romani}) {
        Banco b({{"txtLAT", "45"}, {"txtDec", "0"}, {"txtInc", "0"}, {"txtX0", "-.6"}, {"txtX1", ".6"}, {"txtY1", "-.8"}},
                {"chkOreAstronomiche", "ckEtichette"});
        if (ore == &romani) b.spunta("ckEtichetteRomane");
        b.esegui();
        std::set<long> noti;
        for (const std::string &t : *ore) noti.insert(std::lround(1e4 * inchiostro(t, 8)));  // IV and VI take the same
        std::set<long> scritte;
        for (const Pretesa &p : b.lista().pretese) {
            if (p.specie != Specie::Etichetta) continue;
            double mm = 0;
            for (std::size_t i = p.linea; i < p.linea + (p.a - p.da); ++i) {
                const RecLinea &l = b.lista().Linee[i];
                mm += 1000 * std::hypot(l.X2 - l.X1, l.Y2 - l.Y1);
            }
            ASSERT_TRUE(noti.contains(std::lround(1e4 * mm))) << mm;
            scritte.insert(std::lround(1e4 * mm));
        }
        // A wall that looks South at 45 degrees is lit from 6 to 18; at either end the lines lie in its horizon.
        for (const std::size_t k : {8U, 9U, 10U, 11U, 12U, 13U, 14U, 15U, 16U})
            EXPECT_TRUE(scritte.contains(std::lround(1e4 * inchiostro((*ore)[(k + 11) % 12], 8)))) << k;
    }
}

TEST(Scritture, TheTitleBlockLiesOnTheSheet) {
    Banco b({{"txtInc", "0"}, {"txtMotto", "tempus"}, {"txtAltezzaEtichette", "20"}}, {"chkOreAstronomiche", "ckCartiglio"});
    ASSERT_TRUE(app::Adatta(b.s));
    b.esegui();
    const auto tratti = b.linee("Cartiglio");
    ASSERT_GT(tratti.size(), 50U);
    const Tavolo &t = b.s.tavolo;
    double alto = -1, basso = 1;
    for (const RecLinea &l : tratti) {
        EXPECT_TRUE(-t.ShiftX() < l.X1 && l.X1 < t.QuadranteL() - t.ShiftX() && t.ShiftY() - t.QuadranteH() < l.Y1 && l.Y1 < -0.8)
            << l.Y1;
        alto = std::max(alto, l.Y1), basso = std::min(basso, l.Y1);
    }
    // Three lines of capitals of 15 mm, 1.7 heights from one to the next: the sheet has room for them as they are.
    EXPECT_NEAR(alto - basso, 0.015 * (1 + 2 * 1.7), 0.006);
}

// Lengths alone take another unit, each as many times what it was.
TEST(Scritture, LengthsChangeTheirUnit) {
    const std::set<std::string_view> lunghezze{"TxtStilo", "txtSUBSTYLE", "txtX0",         "txtY0",        "txtX1",
                                               "txtY1",    "txtEqx",      "txtEqy",        "txtSusx",      "txtSusy",
                                               "txtOriz",  "txtArabi",    "txtNumbersize", "txtZodiacsize"};
    Banco prima({{"txtSUBSTYLE", ".1"}, {"txtEqy", "-.2"}, {"txtOriz", "3"}, {"txtMotto", "12 mm"}}), poi;
    poi.s.in = prima.s.in;
    app::ConvertiLunghezze(poi.s.in, 1000);
    std::size_t quante = 0;
    for (const Controllo &c : ControlliDi("MDIForm1")) {
        if (!c.testo) continue;
        const std::string &a = prima.s.in.*c.testo, &b = poi.s.in.*c.testo;
        if (!lunghezze.contains(c.nome)) EXPECT_EQ(a, b) << c.nome;
        else EXPECT_DOUBLE_EQ(Val(b).v, 1000 * Val(a).v) << c.nome;
        quante += a != b;
    }
    EXPECT_EQ(quante, lunghezze.size());
}

TEST(Scritture, BackspaceTakesALetter) {
    Banco b;
    app::Digita(b.s, TrovaControllo("txtMotto"), "perché\b\bx°\b");
    EXPECT_EQ(b.s.in.txtMotto, "percx");
}

// A project that says nothing of a later control is of a time before it.
TEST(Scritture, AnOldProjectPutsLaterFieldsBack) {
    Banco b({{"txtMeridiano", "75"}, {"txtMotto", "tempus"}}, {"ckCorretta", "ckCartiglio"});
    app::ApplicaProgetto(b.s, "<txtLAT visible=true enabled=true>44</txtLAT>");
    EXPECT_EQ(b.s.in.txtLAT + b.s.in.txtMeridiano + b.s.in.txtMotto, "44-15");
    EXPECT_EQ(b.s.in.ckCorretta + b.s.in.ckCartiglio, 0);
}

}  // namespace
}  // namespace ombrelia
