// Guards of the window that a maker would miss when they are gone: files that fail, the live dial, what a dial was turned into.
#include <QCheckBox>
#include <QDateEdit>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QRegularExpression>
#include <QSlider>
#include <QTimeEdit>
#include <map>
#include <set>

#include "desktop/banco.h"
#include "desktop/disegno_di.h"

namespace ombrelia {
namespace {

using prova::BancoFinestra;
using prova::disegnoDi;

TEST(Guardie, WhatWasNotWrittenStaysUnsavedAndWhatWasNotReadUnopened) {
    BancoFinestra b;
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("casa")));
    b.dialoghi.risposte = {"casa/tre.omb"};
    b.f.ponte().premi("mnuSalva");
    ASSERT_FALSE(b.f.percorso().isEmpty());
    ASSERT_TRUE(QDir(QStringLiteral("casa")).removeRecursively());
    b.scrivi("txtDec", "6");
    b.dialoghi.prima = desktop::Salvataggio::Salva;
    EXPECT_FALSE(b.f.close());
    EXPECT_TRUE(b.f.isVisible() && b.f.modificato());
    b.dialoghi.prima = desktop::Salvataggio::Scarta;
    const QString prima = b.f.percorso();
    b.f.apri(QStringLiteral("manca.omb"));
    EXPECT_TRUE(b.f.modificato());
    EXPECT_EQ(b.f.percorso(), prima);
    EXPECT_EQ(b.campo("txtDec"), "6");
}

TEST(Guardie, TheLiveDialIsOfItsFieldsAndShownAsItIsMounted) {
    const std::vector<std::string_view> caselle{"chkOreAstronomiche", "ck_babiloniche"};
    BancoFinestra b;
    for (const std::string_view c : caselle) b.spunta(c);
    b.scrivi("txtLAT", "12");
    b.premi("cmdRun");
    b.vivo()->setChecked(true);
    b.scrivi("txtLAT", "38.25");
    b.aspettaVivo();
    EXPECT_TRUE(b.lista() == disegnoDi({{"txtLAT", "38.25"}}, caselle));
    // The picture that comes with the drawing is the one the sheet would paint.
    for (const char *lat : {"-38.25", "41"}) {
        b.scrivi("txtLAT", lat);
        b.aspettaVivo();
        desktop::Foglio &foglio = b.f.quadro().foglio();
        const QImage arrivata = foglio.viewport()->grab().toImage();
        foglio.cambiato();
        EXPECT_EQ(foglio.viewport()->grab().toImage(), arrivata) << lat;
    }
    b.vivo()->setChecked(false);
}

TEST(Guardie, ADialTurnedIntoAnotherLeavesNothingToTheNext) {
    const std::vector<std::string_view> caselle{"chkOreAstronomiche", "ck_babiloniche"};
    const std::string attesa = disegnoDi({{"txtLAT", "38.25"}, {"txtInc", "20"}}, caselle);
    for (const bool nuovo : {true, false}) {
        BancoFinestra b;
        for (const std::string_view c : caselle) b.spunta(c);
        b.scrivi("txtLAT", "38.25");
        b.scrivi("txtInc", "20");
        b.dialoghi.risposte = {"venti.omb"};
        b.f.ponte().premi("mnuSalva");
        b.scrivi("txtLAT", "50");
        b.scrivi("txtInc", "60");
        b.premi("cmdRun");
        b.premi("cmdTrasforma");
        ASSERT_NE(b.s().v.flagVerticale.numero() + b.s().v.flagTrasformato.numero(), 0);
        if (nuovo) {
            b.f.nuovo();
            b.s().in.ckEtichette = 0;
            for (const std::string_view c : caselle)
                if (b.s().valore(TrovaControllo(c)) == 0) b.spunta(c);
            b.scrivi("txtLAT", "38.25");
            b.scrivi("txtInc", "20");
        } else {
            b.f.apri(QStringLiteral("venti.omb"));
        }
        b.premi("Tavolo1.cmdPulisci");
        b.premi("cmdRun");
        if (nuovo) {
            EXPECT_TRUE(b.lista() == attesa);
            continue;
        }
        BancoFinestra altra;  // which was never anything else
        altra.f.apri(QStringLiteral("venti.omb"));
        altra.premi("cmdRun");
        EXPECT_TRUE(b.lista() == altra.lista());
    }
}

TEST(Guardie, OnPaperAFamilyHasItsPatternWhereOneWishes) {
    BancoFinestra b;
    b.f.primoQuadrante();
    b.aspettaVivo();
    b.vivo()->setChecked(false);
    auto *casella = b.f.findChild<QCheckBox *>(QStringLiteral("trattini"));
    const auto fogli = [&] {
        std::map<Specie, std::set<int>> trovati;
        Tavolo carta;
        desktop::VestiFoglio(b.s().tavolo, b.f.quadro().foglio().stile(), true, carta);
        const Lista &l = carta.lista();
        for (const Pretesa &p : l.pretese)
            if (p.linea < l.trattini.size()) trovati[p.specie].insert(l.trattini[p.linea]);
        return trovati;
    };
    EXPECT_TRUE(fogli().empty());
    casella->setChecked(true);
    const auto f = fogli();
    EXPECT_EQ(f.at(Specie::Ora), std::set<int>{0});
    EXPECT_EQ(f.at(Specie::Diurna).size(), 1U);
    EXPECT_NE(f.at(Specie::Diurna), f.at(Specie::Ora));
    EXPECT_NE(f.at(Specie::Diurna), f.at(Specie::Equinoziale));
    casella->setChecked(false);
}

// Of either half of the Earth, seen as it is mounted: a point of the ten o'clock line reads ten.
TEST(Guardie, ThePointUnderThePointerIsReadAsTheDialIsMounted) {
    for (const char *lat : {"44", "-33"}) {
        BancoFinestra b;
        b.scrivi("txtLAT", lat);
        b.scrivi("txtDec", "25");
        b.spunta("chkOreAstronomiche");
        b.premi("cmdRun");
        const Tavolo &t = b.s().tavolo;
        bool trovata = false;
        for (const Pretesa &p : t.lista().pretese) {
            if (p.specie != Specie::Ora || p.valore != 10) continue;
            trovata = true;
            const RecLinea &r = t.lista().Linee[p.linea + (p.a - p.da) / 3];
            // The dot where it is painted.
            const desktop::Foglio &foglio = b.f.quadro().foglio();
            const QPointF metri(t.ShiftX() + t.FattoreX * (r.X1 + r.X2) / 2, t.ShiftY() - t.FattoreY * (r.Y1 + r.Y2) / 2);
            const QPointF visto = foglio.suMondo(metri / foglio.metriAlPunto() + foglio.vista().origine);
            EXPECT_TRUE(desktop::LetturaDi(b.s(), visto).contains(QStringLiteral("ora vera 10:00")))
                << lat << ": " << desktop::LetturaDi(b.s(), visto).toStdString();
        }
        EXPECT_TRUE(trovata) << lat;
    }
}

TEST(Guardie, ArrowsStopAtTheEndOfAFieldsRange) {
    BancoFinestra b;
    b.scrivi("txtLAT", "89.9");
    QTest::keyClick(b.w("txtLAT"), Qt::Key_Up);
    EXPECT_EQ(b.campo("txtLAT"), "90");
    QTest::keyClick(b.w("txtLAT"), Qt::Key_Down);
    EXPECT_EQ(b.campo("txtLAT"), "89.5");
}

// Bologna, 21 June 2026: true noon of the place is at 13:16:24 of the clock with summer time (equation of time -1 m 46 s; 14 m 38
// s West of the zone's meridian), so the shadow of 13:16 is that of 12 o'clock.
TEST(Guardie, TheTimeBarsClockIsTheMakers) {
    BancoFinestra b;
    b.scrivi("txtLAT", "44.494");
    b.scrivi("txtLonG", "-11.343");
    b.f.findChild<QDockWidget *>(QStringLiteral("tempo"))->show();
    QCoreApplication::processEvents();
    auto *barra = b.f.findChild<QWidget *>(QStringLiteral("barraTempo"));
    ASSERT_TRUE(barra && barra->isVisible());
    auto *legale = barra->findChild<QCheckBox *>();
    const QList<QSlider *> cursori = barra->findChildren<QSlider *>();  // of the day, of the year
    ASSERT_EQ(cursori.size(), 2);
    auto *giorno = barra->findChild<QDateEdit *>();
    const auto vera = [&] {
        const QString t = b.f.findChild<QLabel *>(QStringLiteral("esitoTempo"))->text();
        const auto m = QRegularExpression(QStringLiteral("ora vera (\\d+):(\\d+)")).match(t);
        return m.captured(1).toInt() * 60 + m.captured(2).toInt();
    };
    giorno->setDate(QDate(2026, 1, 1));
    cursori[1]->setValue(171);
    EXPECT_EQ(giorno->date(), QDate(2026, 6, 21));
    EXPECT_TRUE(legale->isChecked()) << "the nearest town's clock is an hour ahead in June";
    cursori[0]->setValue(13 * 60 + 16);
    EXPECT_NEAR(vera(), 12 * 60, 1);
    legale->click();
    EXPECT_NEAR(vera(), 13 * 60, 1);
    giorno->setDate(QDate(2026, 12, 31));
    EXPECT_EQ(cursori[1]->value(), 364);
}

}  // namespace
}  // namespace ombrelia
