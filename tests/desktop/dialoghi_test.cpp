// The window's dialogs: files for machines, readings of the wall and the clock of its zone.
#include <QCalendarWidget>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QToolButton>
#include <cmath>
#include <fstream>

#include "app/progetto.h"
#include "core/file.h"
#include "desktop/banco.h"
#include "desktop/letture_parete.h"
#include "desktop/note_campi.h"
#include "desktop/pagine_carta.h"
#include "desktop/per_macchina.h"
#include "officina/tratti.h"

namespace ombrelia {
namespace {

using prova::BancoFinestra;

// --- for the machine ---------------------------------------------------------------------------------------------------------

struct BancoMacchina : BancoFinestra {
    desktop::PerMacchina *d = nullptr;
    BancoMacchina() {
        QSettings().remove(QStringLiteral("macchina"));
        for (const char *c : {"chkOreAstronomiche", "Ck_DayLightCurves"}) spunta(c);
        f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click();
        premi("cmdRun");
    }
    void apri() {
        for (QAction *a : f.findChildren<QAction *>())
            if (a->text() == QStringLiteral("Per la macchina...")) a->trigger();
        d = dynamic_cast<desktop::PerMacchina *>(f.findChild<QDialog *>(QStringLiteral("perMacchina")));
        ASSERT_TRUE(d);
        aspetta();
    }
    void aspetta() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !d->attivo(); }, 20000));
    }
    template <class T>
    T *dentro(const char *nome) {
        return d->findChild<T *>(QString::fromLatin1(nome));
    }
};

TEST(PerMacchina, ShowsThePathsBeforeTheyAreSaved) {
    BancoMacchina b;
    b.apri();
    ASSERT_TRUE(b.d->disegno());
    std::string errore;
    officina::ComePreparare come;
    come.testi = officina::CiSonoTratti() ? officina::Testi::Tratti : officina::Testi::Testo;
    const officina::Disegno suo = officina::Prepara(b.s().tavolo, come, errore);
    EXPECT_EQ(b.d->disegno()->cammini.size(), suo.cammini.size());
    EXPECT_TRUE(b.dentro<QLabel>("conto")->text().startsWith(QString::number(suo.cammini.size())));
    EXPECT_EQ(static_cast<std::size_t>(b.dentro<QTableWidget>("generi")->rowCount()), officina::GeneriUsati(suo).size());
    auto *salva = b.dentro<QPushButton>("salva");
    auto *tolleranza = b.dentro<QLineEdit>("tolleranza");
    for (const char *t : {"0", "-1", "un po'", "", "1e4"}) {
        tolleranza->setText(QString::fromUtf8(t));
        b.aspetta();
        EXPECT_FALSE(salva->isEnabled()) << t;
        EXPECT_TRUE(tolleranza->property("fuori").toBool()) << t;
    }
    tolleranza->setText(QStringLiteral("0,5"));
    b.aspetta();
    EXPECT_TRUE(salva->isEnabled());
    ASSERT_TRUE(b.d->disegno());
    EXPECT_LT(b.d->disegno()->resoconto.vertici, suo.resoconto.vertici) << "a coarser curve has fewer points";
    b.dialoghi.risposte = {"taglio.plt"};  // another format's ending
    salva->click();
    std::ifstream file("taglio.plt");
    std::string inizio(2, ' ');
    file.read(inizio.data(), 2);
    EXPECT_EQ(inizio, "IN");
    EXPECT_FALSE(b.d->isVisible());
    EXPECT_NE(b.campo("Tavolo1.p_mess").find("taglio.plt"), std::string::npos);
    EXPECT_TRUE(b.dialoghi.avvisi.empty());
}

// $INSUNITS: 4 millimetres, 1 inches; 25.4 of the ones are one of the others.
TEST(PerMacchina, ADxfHasTheUnitThatWasChosen) {
    double larga[2] = {};
    for (const int pollici : {0, 1}) {
        BancoMacchina b;
        b.apri();
        b.dentro<QComboBox>("unita")->setCurrentIndex(pollici);
        ASSERT_TRUE(QTest::qWaitFor([&] { return b.dentro<QPushButton>("salva")->isEnabled(); }, 20000));
        b.dialoghi.risposte = {"unita.dxf"};
        b.dentro<QPushButton>("salva")->click();
        const QStringList righe =
            desktop::Q(*LeggiFile("unita.dxf", 1U << 28)).remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
        const auto dopo = [&](const char *nome, int quante) {
            return righe.value(righe.indexOf(QLatin1String(nome)) + quante).trimmed();
        };
        EXPECT_EQ(dopo("$INSUNITS", 2), QString::number(pollici ? 1 : 4));
        larga[pollici] = dopo("$EXTMAX", 2).toDouble() - dopo("$EXTMIN", 2).toDouble();
    }
    EXPECT_NEAR(larga[0], 25.4 * larga[1], 0.01);
}

TEST(PerMacchina, TellsWhyThereIsNothingToSave) {
    BancoMacchina b;
    b.s().tavolo.Clear();
    b.apri();
    EXPECT_FALSE(b.d->disegno());
    EXPECT_FALSE(b.dentro<QPushButton>("salva")->isEnabled());
    b.d->reject();
}

// --- the wall ----------------------------------------------------------------------------------------------------------------

struct BancoParete : BancoFinestra {
    QTableWidget *t = nullptr;
    BancoParete(const char *lat, const char *lon, const char *meridiano) {
        s().in.txtLAT = lat;
        s().in.txtLonG = lon;
        s().in.txtMeridiano = meridiano;
        f.ponte().premi(TrovaControllo("mnuAusiliaria"));
        t = f.moduli().letture().findChild<QTableWidget *>(QStringLiteral("letture"));
    }
    void scriviRiga(int r, const char *giorno, const char *ora, const char *angolo) {
        for (const auto &[c, testo] : {std::pair{0, giorno}, {1, ora}, {2, angolo}})
            t->item(r, c)->setText(QString::fromUtf8(testo));
    }
    void istante(int giorno, int mese, int anno, int ore) {
        for (const auto &[nome, n] :
             {std::pair{"txtDay", giorno}, {"txtMonth", mese}, {"txtYear", anno}, {"txtHH", ore}, {"txtMM", 0}}) {
            const IdControllo id = TrovaControllo("frmDeclin." + std::string(nome));
            f.ponte().fai(id, [&, n = n] { s().testo(id) = std::to_string(n); });
        }
    }
};

TEST(LettureParete, MeanSpreadAndTheReadingThatIsOff) {
    BancoParete b("44.494", "-11.343", "-15");
    // The board's own answer, reading by reading: the wall's declination is the azimuth less the angle.
    const auto azimut = [&](int ore, int minuti) {
        return sun::Declinazione(
                   {.lat = 44.494, .lon = -11.343, .giorno = 3, .mese = 5, .anno = 2026, .ore = ore, .minuti = minuti},
                   b.s().dizionario)
            .azimut.v;
    };
    const double vere[] = {20.1, 19.9, 20.2, 19.8, 27};
    const std::pair<int, int> quando[] = {{8, 30}, {9, 40}, {10, 15}, {12, 5}, {13, 0}};
    int r = 0;
    for (const double d : vere) {
        const auto [ore, minuti] = quando[r];
        ASSERT_EQ(b.t->rowCount(), r + 1) << "a whole row asks for the next";
        b.scriviRiga(r, "03/05/2026", (std::to_string(ore) + ":" + std::to_string(minuti)).c_str(),
                     std::to_string(azimut(ore, minuti) - d).c_str());
        EXPECT_NEAR(b.t->item(r, 3)->text().chopped(1).toDouble(), d, 0.001);
        ++r;
    }
    desktop::LettureParete &l = b.f.moduli().letture();
    EXPECT_NEAR(l.insieme().media, 21.4, 0.001);
    EXPECT_TRUE(l.insieme().stona);
    EXPECT_EQ(l.insieme().lontana, 4U);
    for (auto *c : l.findChildren<QAbstractButton *>())
        if (c->isCheckable() && c->text().startsWith(QStringLiteral("Lascia"))) c->click();
    EXPECT_NEAR(l.insieme().media, 20, 0.001);
    l.findChild<QPushButton *>(QStringLiteral("usaDeclinazione"))->click();
    EXPECT_EQ(b.campo("txtDec"), "20");
    b.f.passi().undo();
    EXPECT_NE(b.campo("txtDec"), "20");
    // What makes no sense counts for nothing and says why.
    for (const auto &[giorno, ora, angolo, colonna] : {std::tuple{"31/04/2026", "9:40", "3", 0},
                                                       {"03/05/2026", "25:00", "3", 1},
                                                       {"03/05/2026", "9:40", "tre", 2},
                                                       {"03/05/2026", "1:00", "3", 1}}) {
        b.scriviRiga(4, giorno, ora, angolo);
        EXPECT_FALSE(b.t->item(4, colonna)->toolTip().isEmpty()) << giorno << ora << angolo;
        EXPECT_TRUE(b.t->item(4, 3)->text().isEmpty()) << giorno << ora << angolo;
    }
}

// A wall that looks West has a declination above zero, as the field's caption says.
TEST(LettureParete, TheMeanSaysItsSideAndTheCalendarItsDay) {
    BancoParete b("44.494", "-11.343", "-15");
    const auto *detto = b.f.moduli().letture().findChild<QLabel *>(QStringLiteral("detto"));
    for (const auto &[angolo, verso] : {std::pair{"-60", "Ovest"}, {"60", "Est"}}) {
        b.scriviRiga(0, "03/05/2026", "11:06", angolo);  // the Sun is within a degree or two of South
        EXPECT_TRUE(detto->text().contains(QString::fromUtf8(verso))) << detto->text().toStdString();
    }
    auto *menu = b.f.findChild<QToolButton *>(QStringLiteral("calendario"))->menu();
    emit menu->aboutToShow();
    emit menu->findChild<QCalendarWidget *>()->clicked(QDate(2026, 7, 4));
    EXPECT_EQ(b.campo("frmDeclin.txtDay") + '/' + b.campo("frmDeclin.txtMonth") + '/' + b.campo("frmDeclin.txtYear"), "4/7/2026");
}

TEST(LettureParete, TheTableIsUndone) {
    BancoParete b("44.494", "-11.343", "-15");
    const int aperta = b.f.passi().count();
    const std::string prima = b.campo("frmDeclin.txtLAT");
    b.scrivi("frmDeclin.txtLAT", "52.5");
    b.scrivi("frmDeclin.txtAngle", "12");
    b.premi("frmDeclin.cmdCalcola");
    EXPECT_FALSE(b.campo("frmDeclin.txtResult").empty());
    EXPECT_EQ(b.f.passi().count(), aperta + 3) << "each field one step, and the run";
    for (int i = 0; i < 3; ++i) b.f.passi().undo();
    EXPECT_EQ(b.campo("frmDeclin.txtLAT"), prima);
    EXPECT_EQ(b.w<QLineEdit>("frmDeclin.txtLAT")->text().toStdString(), prima);
    EXPECT_EQ(b.campo("frmDeclin.txtAngle"), "0");
    b.f.passi().redo();
    EXPECT_EQ(b.campo("frmDeclin.txtLAT"), "52.5");
}

// They are part of the dial: kept with it, found again, taken back like any other step.
TEST(LettureParete, StandInTheProject) {
    const auto righe = [](BancoParete &b) {
        QStringList t;
        for (int r = 0; r < b.t->rowCount(); ++r)
            for (int c = 0; c < 3; ++c) t << b.t->item(r, c)->text();
        return t.join(QLatin1Char(' '));
    };
    QString scritte;
    {
        BancoParete b("44.494", "-11.343", "-15");
        const std::string vuoto = app::ScriviProgetto(b.s());
        EXPECT_EQ(vuoto.find("etture"), std::string::npos) << "none, and the file is as ever";
        b.scriviRiga(0, "03/05/2026", "10:00", "12.5");
        b.scriviRiga(1, "04/05/2026", "11:30", "-3<b>\"|;");  // what can't be a reading breaks no file
        b.f.moduli().letture().findChild<QComboBox *>(QStringLiteral("ore"))->setCurrentIndex(1);
        EXPECT_TRUE(b.f.modificato());
        const int passi = b.f.passi().count();
        EXPECT_GT(passi, 3);
        ASSERT_FALSE(app::SalvaProgetto(b.s(), "letture.omb"));
        scritte = righe(b);
        for (int i = 0; i < passi; ++i) b.f.passi().undo();
        EXPECT_EQ(b.t->rowCount(), 1);
        EXPECT_TRUE(b.t->item(0, 1)->text().isEmpty());
        for (int i = 0; i < passi; ++i) b.f.passi().redo();
        EXPECT_EQ(b.t->item(1, 1)->text(), QStringLiteral("11:30"));
        b.f.nuovo();
        EXPECT_EQ(b.t->rowCount(), 1);
    }
    BancoFinestra chiusa;
    chiusa.f.apri(QStringLiteral("letture.omb"));
    chiusa.f.ponte().premi(TrovaControllo("mnuAusiliaria"));
    auto *t = chiusa.f.moduli().letture().findChild<QTableWidget *>(QStringLiteral("letture"));
    ASSERT_EQ(t->rowCount(), 3);
    EXPECT_EQ(t->item(0, 2)->text(), QStringLiteral("12.5"));
    EXPECT_EQ(t->item(1, 2)->text(), QStringLiteral("-3b"));
    EXPECT_FALSE(t->item(0, 3)->text().isEmpty());
    EXPECT_EQ(chiusa.f.moduli().letture().findChild<QComboBox *>(QStringLiteral("ore"))->currentIndex(), 1);
    EXPECT_FALSE(chiusa.f.modificato());
}

// Zone and summer time of the day, by the rules of the place: known dates of its changes.
TEST(LettureParete, TheBoardHasThePlacesTime) {
    struct Caso {
        const char *lat, *lon, *meridiano;
        int giorno, mese, anno, ore;
        const char *fuso;
        int legale;
        const char *orologio;
    };
    for (const Caso &c : {Caso{"44.494", "-11.343", "-15", 28, 3, 2026, 12, "-1", 0, "13:"},
                          {"44.494", "-11.343", "-15", 29, 3, 2026, 12, "-1", 1, "14:"},
                          {"44.494", "-11.343", "-15", 25, 10, 2026, 12, "-1", 0, "13:"},
                          {"40.7128", "74.006", "75", 1, 7, 2026, 12, "5", 1, "8:"},
                          {"-33.868", "-151.207", "-150", 1, 1, 2026, 12, "-10", 1, "23:"},
                          {"22.5726", "-88.3639", "-82.5", 1, 7, 2026, 12, "-5.5", 0, "17:30 "}}) {
        BancoParete b(c.lat, c.lon, c.meridiano);
        b.istante(c.giorno, c.mese, c.anno, c.ore);
        EXPECT_EQ(b.campo("frmDeclin.TxtFuso"), c.fuso) << c.lat;
        EXPECT_EQ(b.s().valore(TrovaControllo("frmDeclin.ckDst")), c.legale) << c.lat << ' ' << c.giorno << '/' << c.mese;
        EXPECT_TRUE(b.f.findChild<QLabel *>(QStringLiteral("orologio"))->text().contains(QString::fromLatin1(c.orologio)))
            << b.f.findChild<QLabel *>(QStringLiteral("orologio"))->text().toStdString();
    }
    // What the user types there is his.
    BancoParete b("44.494", "-11.343", "-15");
    b.istante(1, 7, 2026, 12);
    const IdControllo fuso = TrovaControllo("frmDeclin.TxtFuso");
    b.f.ponte().fai(fuso, [&] { b.s().testo(fuso) = "-3"; });
    b.istante(1, 1, 2026, 12);
    EXPECT_EQ(b.campo("frmDeclin.TxtFuso"), "-3");
    // A time of the clock is taken to UT by the day's offset.
    auto *ore = b.f.moduli().letture().findChild<QComboBox *>(QStringLiteral("ore"));
    b.scriviRiga(0, "03/05/2026", "8:00", "0");
    const QString ut = b.t->item(0, 3)->text();
    b.scriviRiga(0, "03/05/2026", "10:00", "0");
    ore->setCurrentIndex(1);
    EXPECT_EQ(b.t->item(0, 3)->text(), ut);
}

// --- paper -------------------------------------------------------------------------------------------------------------------

int pagineDelPdf(const char *file) {
    QFile f(QString::fromLatin1(file));
    return f.open(QIODevice::ReadOnly) ? static_cast<int>(f.readAll().count("/MediaBox")) : 0;
}

TEST(PagineCarta, PrintOffersThePagesThatHoldLines) {
    QSettings().remove(QStringLiteral("pagine"));
    BancoFinestra b;
    for (const char *c : {"chkOreAstronomiche", "Ck_DayLightCurves"}) b.spunta(c);
    b.f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click();
    b.premi("cmdRun");
    b.premi("Tavolo1.cmdStampa");
    EXPECT_TRUE(b.dialoghi.stampe.empty());
    auto *d = dynamic_cast<desktop::PagineCarta *>(b.f.findChild<QDialog *>(QStringLiteral("pagineCarta")));
    ASSERT_TRUE(d);
    desktop::AnteprimaPagine &a = d->anteprima();
    std::set<int> piene;
    for (const paint::PaginaFoglio &p : a.pagine())
        if (p.piena) piene.insert(p.numero);
    ASSERT_GT(piene.size(), 2U);
    EXPECT_EQ(a.scelte(), piene);
    // A click takes a page out, another takes it in again.
    const int una = *piene.begin();
    for (const bool c : {false, true}) {
        QTest::mouseClick(&a, Qt::LeftButton, Qt::NoModifier, a.mezzo(una).toPoint());
        EXPECT_EQ(a.scelte().contains(una), c);
    }
    // Another printer's paper than the one that was laid out is told.
    b.dialoghi.stampaSu = QStringLiteral("pagine.pdf");
    const auto stampa = [&] { d->findChild<QPushButton *>(QStringLiteral("stampa"))->click(); };
    stampa();
    QCoreApplication::processEvents();
    EXPECT_TRUE(b.dialoghi.avvisi.empty());
    EXPECT_EQ(pagineDelPdf("pagine.pdf"), static_cast<int>(piene.size()));
    b.dialoghi.cartaSua = QPageSize::A5;
    stampa();
    QCoreApplication::processEvents();
    ASSERT_EQ(b.dialoghi.avvisi.size(), 1U);
    EXPECT_NE(b.dialoghi.avvisi[0].find("148"), std::string::npos) << b.dialoghi.avvisi[0];
    EXPECT_GT(pagineDelPdf("pagine.pdf"), static_cast<int>(piene.size()));
    // One page a chosen one, none without a choice.
    d->findChild<QPushButton *>(QStringLiteral("nessuna"))->click();
    EXPECT_FALSE(d->findChild<QPushButton *>(QStringLiteral("salva"))->isEnabled());
    a.scegli({2, 3});
    b.dialoghi.risposte = {"scelte.pdf"};
    d->findChild<QPushButton *>(QStringLiteral("salva"))->click();
    EXPECT_EQ(pagineDelPdf("scelte.pdf"), 2);
}

TEST(PagineCarta, PagesAreTurnedAndChosenByKeysAndPointer) {
    QSettings().remove(QStringLiteral("pagine"));
    BancoFinestra b;
    b.spunta("chkOreAstronomiche");
    b.adatta();
    b.premi("cmdRun");
    // A sheet that a page holds one way only is larger than a page.
    b.s().tavolo.QuadranteL(0.5);
    b.s().tavolo.QuadranteH(0.2);
    b.premi("Tavolo1.cmdStampa");
    EXPECT_TRUE(b.dialoghi.stampe.empty());
    b.s().tavolo.QuadranteH(0.9);
    delete b.f.findChild<QDialog *>(QStringLiteral("pagineCarta"));
    b.comando("impagina");
    auto *d = dynamic_cast<desktop::PagineCarta *>(b.f.findChild<QDialog *>(QStringLiteral("pagineCarta")));
    ASSERT_TRUE(d);
    desktop::AnteprimaPagine &a = d->anteprima();
    // A4 with margins of 7.5 mm.
    EXPECT_NEAR(a.pagine()[0].larga, 0.195, 1e-9);
    d->findChild<QComboBox *>(QStringLiteral("verso"))->setCurrentIndex(1);
    EXPECT_NEAR(a.pagine()[0].larga, 0.282, 1e-9);
    EXPECT_NEAR(a.pagine()[0].alta, 0.195, 1e-9);
    d->findChild<QComboBox *>(QStringLiteral("verso"))->setCurrentIndex(0);
    ASSERT_EQ(a.pagine().back().colonna, 2);
    a.scegli({});
    for (const auto tasto : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Space}) QTest::keyClick(&a, tasto);
    EXPECT_EQ(a.scelte(), std::set<int>{5}) << "second row, second column, of three";
    // Where two pages show the same place the press is for the nearer.
    d->findChild<QDoubleSpinBox *>(QStringLiteral("sovrapposizione"))->setValue(80);
    const double passo = a.mezzo(2).x() - a.mezzo(1).x();
    for (const int quale : {1, 2}) {
        a.scegli({});
        const double verso = quale == 1 ? 0.45 : 0.55;
        QTest::mouseClick(&a, Qt::LeftButton, Qt::NoModifier, (a.mezzo(1) + QPointF(verso * passo, 0)).toPoint());
        EXPECT_EQ(a.scelte(), std::set<int>{quale});
    }
}

// --- fields ------------------------------------------------------------------------------------------------------------------

TEST(NoteCampi, WhatIsUnderstoodAndWhatNoDialCanBeStandsUnderTheField) {
    struct Caso {
        const char *campo, *testo, *nota;  // part of the line; empty: none
        bool dubbio;
    };
    BancoFinestra b;
    for (const Caso &c : {Caso{"txtLAT", "45 4 13", "45.070278° = 45°04'13", false},
                          {"txtLAT", "95", "-90", true},
                          {"txtLAT", "45 70", "60", true},
                          {"txtLonG", "7.6869 E", "-7.6869", false},
                          {"TxtStilo", "0", "ombra", true},
                          {"TxtStilo", "-1", "negativo", true},
                          {"TxtStilo", "900", "diagonali", true},
                          {"txtX1", "-9", "x1", true},
                          {"txtY1", "9", "y1", true}}) {
        const std::string prima = b.campo(c.campo);
        const auto scrivi = [&](const std::string &testo) {
            const IdControllo id = TrovaControllo(c.campo);
            b.f.ponte().fai(id, [&] { app::Cambia(b.s(), id, testo); });
        };
        scrivi(c.testo);
        const QString nota = b.f.note().nota(TrovaControllo(c.campo));
        EXPECT_TRUE(nota.contains(QString::fromUtf8(c.nota))) << c.campo << ' ' << c.testo << ": " << nota.toStdString();
        EXPECT_EQ(b.w(c.campo)->property("dubbio").toBool(), c.dubbio) << c.campo << ' ' << c.testo;
        scrivi(prima);
        EXPECT_FALSE(b.w(c.campo)->property("dubbio").toBool()) << c.campo;
    }
    // A run takes an angle as it was understood; of one that makes no sense it draws nothing.
    b.spunta("chkOreAstronomiche");
    b.f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click();
    const IdControllo lat = TrovaControllo("txtLAT");
    b.f.ponte().fai(lat, [&] { app::Cambia(b.s(), lat, "44 75"); });
    b.f.esegui();
    EXPECT_TRUE(b.s().tavolo.lista().Ordine.empty());
    b.f.ponte().fai(lat, [&] { app::Cambia(b.s(), lat, "44 30 N"); });
    b.f.esegui();
    EXPECT_EQ(b.campo("txtLAT"), "44.5");
    EXPECT_FALSE(b.s().tavolo.lista().Ordine.empty());
}

TEST(Unita, LengthsAreConvertedByOnePressAndBackByOne) {
    BancoFinestra b;
    const std::pair<const char *, const char *> prima[] = {{"TxtStilo", ".195"}, {"txtX0", "-0.5"}, {"txtNumbersize", ".03"}};
    for (const auto &[campo, testo] : prima) b.s().testo(TrovaControllo(campo)) = testo;
    const std::string latitudine = b.campo("txtLAT");
    b.f.passi().aggiorna(false);
    b.spunta("ChCentimetro");
    for (const auto &[campo, testo] : prima) EXPECT_EQ(b.campo(campo), testo) << "not before it is asked for";
    auto *offerta = b.f.findChild<QLabel *>(QStringLiteral("avvisoCornice"));
    ASSERT_TRUE(offerta->isVisible());
    const int passi = b.f.passi().count();
    emit offerta->linkActivated(QStringLiteral("0"));
    for (const auto &[campo, testo] : {std::pair{"TxtStilo", "195"}, {"txtX0", "-500"}, {"txtNumbersize", "30"}})
        EXPECT_EQ(b.campo(campo), testo);
    EXPECT_EQ(b.campo("txtLAT"), latitudine);
    EXPECT_EQ(b.f.passi().count(), passi + 1);
    b.f.passi().undo();
    for (const auto &[campo, testo] : prima) EXPECT_EQ(b.campo(campo), testo);
    EXPECT_EQ(b.s().in.ChCentimetro, 1);
}

TEST(Etichette, ANewDialHasThemAnOpenedOneAsItWasSaved) {
    const int accese = officina::CiSonoTratti() ? 1 : 0;
    BancoFinestra b;
    EXPECT_EQ(b.s().in.ckEtichette, 0);
    ASSERT_FALSE(app::SalvaProgetto(b.s(), "senza.omb"));
    b.f.primoQuadrante();
    b.aspettaVivo();
    EXPECT_EQ(b.s().in.ckEtichette, accese);
    b.vivo()->setChecked(false);
    b.f.apri(QStringLiteral("senza.omb"));
    EXPECT_EQ(b.s().in.ckEtichette, 0);
    b.f.nuovo();
    EXPECT_EQ(b.s().in.ckEtichette, accese);
    EXPECT_FALSE(b.f.modificato());
}

}  // namespace
}  // namespace ombrelia
