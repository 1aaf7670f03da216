// Guards of the window that a maker would miss when they are gone: files that fail, the live dial, what a dial was turned into.
#include <QCheckBox>
#include <QClipboard>
#include <QDateEdit>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSlider>
#include <QTimeEdit>
#include <QTimer>
#include <map>
#include <set>

#include "controlli/lingue.h"
#include "core/file.h"
#include "desktop/banco.h"
#include "desktop/disegno_di.h"
#include "desktop/ripresa.h"
#include "formati/formati.h"

namespace ombrelia {
namespace {

using prova::BancoFinestra;
using prova::disegnoDi;

TEST(Guardie, WhatWasNotWrittenStaysUnsavedAndWhatWasNotReadUnopened) {
    BancoFinestra b;
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("casa")));
    b.dialoghi.risposte = {"casa/tre.omb"};
    b.f.ponte().premi(TrovaControllo("mnuSalva"));
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

QStringList recenti(BancoFinestra &b) {
    QStringList nomi;
    for (auto *m : b.f.findChildren<QMenu *>())
        if (m->title() == QStringLiteral("Aperti di recente")) {
            for (int volta = 0; volta < 2; ++volta) emit m->aboutToShow();  // opened again it has no more of them
            for (const QAction *a : m->actions()) nomi << a->text();
        }
    return nomi;
}

TEST(Guardie, RecentFilesStandOnceTheLastOneFirst) {
    QSettings().remove(QStringLiteral("recenti"));
    BancoFinestra b;
    const auto salva = [&](const std::string &nome) {
        b.dialoghi.risposte = {nome};
        b.comando("salvaConNome");
    };
    salva("alfa.omb");
    salva("beta.omb");
    b.f.apri(QStringLiteral("alfa.omb"));
    EXPECT_EQ(recenti(b), (QStringList{QStringLiteral("alfa.omb"), QStringLiteral("beta.omb")}));
    for (int n = 1; n <= 8; ++n) salva(std::to_string(n) + ".omb");
    EXPECT_EQ(recenti(b).size(), 8);
    EXPECT_EQ(recenti(b).value(0), QStringLiteral("8.omb"));
}

// Work that has no name yet lies in the program's own folder, then beside its file, and nowhere once it is saved.
TEST(Guardie, EachMinuteKeepsUnsavedWork) {
    BancoFinestra b;
    QTimer *minuto = nullptr;
    for (auto *t : b.f.findChildren<QTimer *>())
        if (t->interval() == 60000) minuto = t;
    ASSERT_TRUE(minuto);
    const auto passa = [&] {
        bool passato = false;
        const auto chi = QObject::connect(minuto, &QTimer::timeout, [&] { passato = true; });
        minuto->start(0);
        (void)QTest::qWaitFor([&] { return passato; }, 10000);
        minuto->start(60000);
        QObject::disconnect(chi);
    };
    const auto tenuto = [](const QString &progetto) {
        return LeggiFile(desktop::Ripresa::fileDi(progetto).toStdString(), 1U << 20).value_or("");
    };
    b.scrivi("txtDec", "6");
    passa();
    EXPECT_NE(tenuto({}).find(">6</txtDec>"), std::string::npos);
    b.dialoghi.risposte = {"minuto.omb"};
    b.comando("salvaConNome");
    b.scrivi("txtDec", "7");
    passa();
    EXPECT_EQ(tenuto({}), "");
    EXPECT_NE(tenuto(b.f.percorso()).find(">7</txtDec>"), std::string::npos);
    b.f.ponte().premi(TrovaControllo("mnuSalva"));
    passa();
    EXPECT_EQ(tenuto(b.f.percorso()), "");
}

// A project's name keeps its points; what goes out has the looks of the list of layers, file and clipboard alike.
TEST(Guardie, WhatIsExportedIsWhatIsSeenUnderTheNameOfTheProject) {
    BancoFinestra b;
    for (const char *c : {"chkOreAstronomiche", "Ck_DayLightCurves"}) b.spunta(c);
    b.adatta();
    b.premi("cmdRun");
    b.dialoghi.risposte = {"casa.v2.omb"};
    b.comando("salvaConNome");
    b.comando("impagina");
    b.f.findChild<QPushButton *>(QStringLiteral("intero"))->click();
    EXPECT_TRUE(QString::fromStdString(b.dialoghi.proposti.back()).endsWith(QStringLiteral("/casa.v2.pdf")))
        << b.dialoghi.proposti.back();
    const auto svg = [&] {
        b.dialoghi.risposte = {"casa.v2.svg"};
        b.comando("esporta");
        return LeggiFile("casa.v2.svg", 1U << 28).value_or("");
    };
    const std::string intero = svg();
    std::string errore;
    EXPECT_TRUE(intero == FormatoDi("svg")->scrivi(b.s().tavolo, errore));
    b.comando("copiaSvg");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().toStdString() == intero);
    desktop::StileFoglio stile = b.f.quadro().foglio().stile();
    stile.strati[desktop::Strato(Specie::Ora)].nascosto = true;
    b.f.quadro().foglio().stile(stile);
    EXPECT_LT(svg().size(), intero.size());
    EXPECT_TRUE(b.dialoghi.avvisi.empty());
}

TEST(Guardie, TheWindowSpeaksTheLanguageThatItWasTold) {
    const QString file = QString::fromStdString(FileDi(LinguaDi("en"))[0]);
    ASSERT_TRUE(QFile::copy(QStringLiteral(OMBRELIA_RADICE "/data/") + file, file));
    {
        BancoFinestra b;
        EXPECT_EQ(b.w<QLabel>("lblLatitudine")->text(), QStringLiteral("Latitudine"));
        b.f.ponte().premi(TrovaControllo("mnuInglese"));
        QFile::remove(QStringLiteral("DBC2008.txt"));  // what is left beside the program goes by the program
    }
    EXPECT_EQ(BancoFinestra().w<QLabel>("lblLatitudine")->text(), QStringLiteral("Latitude"));
    QFile::remove(file);
    QSettings().remove(QStringLiteral("lingua"));
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
        b.f.ponte().premi(TrovaControllo("mnuSalva"));
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
