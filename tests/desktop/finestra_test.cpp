// The window: its widgets are the table's rows, its handlers those of the action script, its keys are filtered, and no
// box waits for anybody.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QWheelEvent>
#include <fstream>
#include <sstream>

#include "core/file.h"
#include "desktop/banco.h"

namespace ombrelia {
namespace {

using desktop::Finestra;

using prova::BancoFinestra;

TEST(Finestra, EveryRowHasItsControl) {
    BancoFinestra b;
    std::size_t trovati = 0;
    for (const Controllo &c : TavolaControlli()) {
        QString nome = desktop::Q(c.nome);
        if (c.indice >= 0) nome += QStringLiteral("(%1)").arg(c.indice);
        QObject *dove = c.modulo == "MDIForm1" ? &b.f
                        : c.modulo == "Tavolo1" || c.modulo == "frmTavolo"
                            ? &b.f.quadro()
                            : static_cast<QObject *>(b.f.moduli().modulo(c.modulo));
        ASSERT_NE(dove, nullptr) << c.modulo;
        QObject *w = dove->objectName() == nome ? dove : dove->findChild<QObject *>(nome);
        EXPECT_NE(w, nullptr) << c.modulo << '.' << c.nome;
        trovati += w != nullptr;
        if (const auto *campo = qobject_cast<QLineEdit *>(w); campo && c.testo) {
            EXPECT_EQ(campo->text().toStdString(), c.inizio) << c.nome;
        }
        if (c.classe == Classe::Menu) {
            EXPECT_NE(qobject_cast<QAction *>(w), nullptr) << c.nome;
        }
    }
    EXPECT_EQ(trovati, TavolaControlli().size());
    EXPECT_GT(trovati, 150U);
}

TEST(Finestra, WindowAndScriptMakeTheSameDrawing) {
    struct Caso {
        const char *nome;
        std::vector<std::pair<std::string_view, const char *>> campi;
        std::vector<std::string_view> caselle, pulsanti;
        const char *detto = nullptr;  // in the status line
    };
    const std::vector<Caso> casi{
        {"wall",
         {{"txtLAT", "45.07"}, {"txtDec", "18"}, {"txtInc", "0"}, {"TxtFraz", "1"}},
         {"chkOreAstronomiche", "Ck_DayLightCurves", "ck_Triangolo"},
         {"cmdRun"},
         "Disegnato: un piano qualsiasi"},
        {"leaning, added up",
         {{"txtDec", "-12.5"}, {"txtInc", "33"}},
         {"chkOreAstronomiche", "ck_Equinoziale"},
         {"cmdRun", "cmdRun", "Tavolo1.cmdAssi"}},
        {"southern", {{"txtLAT", "-33"}}, {"chkOreAstronomiche"}, {"cmdRun"}},
        {"italic against babylonian",
         {{"txtInc", "0"}},
         {"ck_babiloniche", "ck_Italiche", "ck_babiloniche"},
         {"cmdRun", "Tavolo1.CmdGriglia"}},
        {"analytic",
         {{"txtInc", "0"}, {"txtDec", "10"}},
         {"chkOreAstronomiche", "ck_Equinoziale"},
         {"cmdEqui"},
         "Disegnata: una parete, per geometria analitica"},
    };
    for (const Caso &c : casi) {
        BancoFinestra b;
        prova::UtenteDiProva utente;
        Sessione s(utente);
        app::Avvia(s);
        s.australeMontato = true;
        for (const auto &[nome, testo] : c.campi) {
            b.scrivi(nome, testo);
            app::Imposta(s, TrovaControllo(nome), testo);
        }
        for (const std::string_view nome : c.caselle) {
            b.spunta(nome);
            app::Premi(s, TrovaControllo(nome));
        }
        for (const std::string_view nome : c.pulsanti) {
            b.premi(nome);
            app::Premi(s, TrovaControllo(nome));
        }
        ASSERT_FALSE(s.tavolo.lista().Ordine.empty()) << c.nome;
        EXPECT_EQ(b.lista(), ListaTesto(s.tavolo.lista())) << c.nome;
        EXPECT_EQ(b.dialoghi.avvisi, utente.box) << c.nome;
        EXPECT_EQ(app::ScriviProgetto(b.f.sessione()), app::ScriviProgetto(s)) << c.nome;
        EXPECT_EQ(b.w<QLineEdit>("txtLAT")->text().toStdString(), s.in.txtLAT) << c.nome;
        if (c.detto) {
            EXPECT_EQ(b.w<QLabel>("Tavolo1.p_mess")->text(), QString::fromUtf8(c.detto));
        }
    }
}

TEST(Finestra, KeysPassTheFilter) {
    struct Caso {
        std::string_view campo;
        const char *tasti, *resta;
        int beep;
    };
    const Caso casi[] = {
        {"txtLAT", "45,7x5", "45.75", 1},                                     // a comma is a point
        {"txtDec", "-1e2", "-12", 1},           {"txtInc", "2e1", "2e1", 0},  // no filter there
        {"frmDeclin.txtAngle", "+3a", "+3", 0},                               // the board's filter is silent
        {"frmDeclin.txtHH", "-9.5", "9.5", 0},
    };
    for (const Caso &c : casi) {
        BancoFinestra b;
        if (c.campo.starts_with("frmDeclin")) {
            b.f.ponte().premi(TrovaControllo("mnuAusiliaria"));
            QApplication::setActiveWindow(b.f.moduli().modulo("frmDeclin"));
        }
        b.scrivi(c.campo, c.tasti);
        EXPECT_EQ(b.w<QLineEdit>(c.campo)->text().toStdString(), c.resta);
        EXPECT_EQ(b.f.sessione().testo(TrovaControllo(c.campo)), c.resta);
        EXPECT_EQ(b.dialoghi.beepSentiti, c.beep) << c.campo;
    }
}

TEST(Finestra, FieldsFollowTheRules) {
    BancoFinestra b;
    EXPECT_FALSE(b.w("cmdEqui")->isEnabled());
    b.scrivi("txtInc", "0");
    for (const std::string_view nome : {"cmdEqui", "ckZodiac", "ckRomani", "ckArabi", "Option1"})
        EXPECT_TRUE(b.w(nome)->isEnabled()) << nome;
    b.spunta("ck_Italiche");
    EXPECT_EQ(b.w<QLineEdit>("TxtInizio")->text(), QStringLiteral("13"));
    b.scrivi("txtInc", "5");
    b.spunta("CkUNI");
    EXPECT_EQ(b.w<QLineEdit>("txtInc")->text(), QStringLiteral("0"));
}

TEST(Finestra, EveryReportOpensAndIsPrinted) {
    struct Caso {
        std::string_view comando, modulo, menu;
    };
    const Caso casi[] = {
        {"cmdData", "Form1", "menuFond"},   {"optHorae", "Form2", "mnuPrinta"}, {"OptTEMP", "Form3", "mnustampat"},
        {"OptBab", "Form4", "mnubabprint"}, {"OptInter", "Form6", "mnu_Print"}, {"Option1", "Form8", "menuprinta"},
        {"OptIta", "Form9", "mnuStammpa"},
    };
    BancoFinestra b;
    b.scrivi("txtInc", "0");
    std::size_t stampati = 0;
    for (const Caso &c : casi) {
        b.f.ponte().premi(TrovaControllo(c.comando));
        QWidget *w = b.f.moduli().modulo(c.modulo);
        ASSERT_TRUE(w->isVisible()) << c.modulo;
        EXPECT_GT(w->findChild<QPlainTextEdit *>(QStringLiteral("testo"))->toPlainText().size(), 200) << c.modulo;
        w->findChild<QAction *>(desktop::Q(c.menu))->trigger();
        EXPECT_EQ(b.dialoghi.stampe.size(), ++stampati) << c.modulo;
        w->close();
    }
    b.spunta("ckFunzione");
    b.f.ponte().premi(TrovaControllo("OptInter"));
    EXPECT_TRUE(b.f.moduli().modulo("Form7")->isVisible());
    b.f.ponte().premi(TrovaControllo("mnuAvviso"));
    EXPECT_TRUE(b.f.moduli().modulo("Form5")->isVisible());
}

TEST(Finestra, TheBoardHandsItsNumbersOn) {
    BancoFinestra b;
    b.f.ponte().premi(TrovaControllo("mnuAusiliaria"));
    QWidget *board = b.f.moduli().modulo("frmDeclin");
    ASSERT_TRUE(board->isVisible());
    QApplication::setActiveWindow(board);
    b.scrivi("frmDeclin.txtLAT", "44.5");
    b.w("frmDeclin.txtLON")->setFocus();  // converted when it is left
    EXPECT_EQ(b.w<QLineEdit>("frmDeclin.txtLatP")->text(), QStringLiteral("30"));
    b.premi("frmDeclin.cmdTrans");
    EXPECT_EQ(b.w<QLineEdit>("txtLAT")->text(), QStringLiteral("44.5"));
    b.premi("frmDeclin.cmdCalcola");
    EXPECT_TRUE(b.w<QPlainTextEdit>("frmDeclin.txtResult")->toPlainText().contains(QStringLiteral("Azimut")));
    b.premi("frmDeclin.cmdInfo");
    EXPECT_TRUE(b.f.moduli().modulo("frmInfoDec")->isVisible());
    b.f.moduli().modulo("frmInfoDec")->close();
    b.premi("frmDeclin.cmdExit");
    EXPECT_FALSE(board->isVisible());
}

TEST(Finestra, TheLiveDialIsTheFieldsRun) {
    BancoFinestra b;
    b.spunta("chkOreAstronomiche");
    b.spunta("Ck_DayLightCurves");
    b.f.findChild<QAbstractButton *>(QStringLiteral("disegnaMentreScrivi"))->setChecked(true);
    b.scrivi("txtDec", "-33.5");  // a request a key: the newest wins
    b.aspettaVivo();
    prova::UtenteDiProva utente;
    Sessione s(utente);
    app::Avvia(s);
    for (const std::string_view nome : {"chkOreAstronomiche", "Ck_DayLightCurves"}) app::Spunta(s, TrovaControllo(nome), 1);
    app::Imposta(s, TrovaControllo("txtDec"), "-33.5");
    app::Premi(s, TrovaControllo("cmdRun"));
    EXPECT_EQ(b.lista(), ListaTesto(s.tavolo.lista()));

    // The typed field is the user's: a southern latitude is drawn, told in the status line, and stays.
    b.scrivi("txtLAT", "-30");
    b.aspettaVivo();
    EXPECT_EQ(b.w<QLineEdit>("txtLAT")->text(), QStringLiteral("-30"));
    EXPECT_TRUE(b.dialoghi.avvisi.empty());
    // The button draws again what is there: no line twice.
    const std::string vivo = b.lista();
    b.premi("cmdRun");
    EXPECT_EQ(b.lista(), vivo);
    EXPECT_TRUE(b.dialoghi.avvisi.empty());
    EXPECT_NE(b.campo("Tavolo1.p_mess").find("specchiato"), std::string::npos);
    b.f.findChild<QAbstractButton *>(QStringLiteral("disegnaMentreScrivi"))->setChecked(false);
}

TEST(Finestra, ALongRunStopsAtAKey) {
    BancoFinestra b;
    for (const std::string_view nome : {"chkOreAstronomiche", "Ck_DayLightCurves", "ckAlt", "ckAz"}) b.spunta(nome);
    b.f.findChild<QAbstractButton *>(QStringLiteral("disegnaMentreScrivi"))->setChecked(true);
    b.scrivi("txtDensity", ".00001");
    QElapsedTimer t;
    t.start();
    b.scrivi("txtDensity", ".01");
    EXPECT_LT(t.elapsed(), 2000);  // the keys themselves never wait
    b.aspettaVivo();
    const std::size_t linee = b.f.sessione().tavolo.lista().Ordine.size();
    EXPECT_GT(linee, 0U);
    EXPECT_LT(linee, 100000U);
    b.f.findChild<QAbstractButton *>(QStringLiteral("disegnaMentreScrivi"))->setChecked(false);
}

TEST(Finestra, TheSheetFollowsTheFrame) {
    BancoFinestra b;
    auto *avviso = b.f.findChild<QLabel *>(QStringLiteral("avvisoCornice"));
    EXPECT_FALSE(avviso->text().isEmpty());
    b.f.findChild<QPushButton *>(QStringLiteral("Adatta"))->click();
    EXPECT_TRUE(avviso->text().isEmpty());
    EXPECT_NEAR(b.f.sessione().tavolo.QuadranteL(), 1.14, 1e-12);
    // A mirror takes a frame that is wider on one side off the sheet.
    b.premi("Tavolo1.cmdInvX");
    EXPECT_FALSE(avviso->text().isEmpty());
    b.premi("Tavolo1.cmdInvX");
    EXPECT_TRUE(avviso->text().isEmpty());
    b.spunta("chkOreAstronomiche");
    b.premi("cmdRun");
    const std::string una = b.lista();
    b.f.findChild<QAbstractButton *>(QStringLiteral("pulisciPrima"))->setChecked(true);
    b.premi("cmdRun");
    EXPECT_EQ(b.lista(), una);
}

TEST(Finestra, AClickOnTheSheetReadsAndChooses) {
    BancoFinestra b;
    b.f.findChild<QPushButton *>(QStringLiteral("Adatta"))->click();
    desktop::Foglio &foglio = b.f.quadro().foglio();
    const Tavolo &t = b.f.sessione().tavolo;
    // A point of the second column of tiles, 30 mm to the right of its edge and 20 mm below the sheet's top.
    const double scala = Tavolo::ScalaBase / t.Scala(), x = (t.LarghezzaPagina() + 0.03) * scala, y = 0.02 * scala;
    const QPointF punto = QPointF(x, y) * foglio.vista().fattore + foglio.vista().origine;
    QTest::mouseClick(foglio.viewport(), Qt::LeftButton, Qt::NoModifier, punto.toPoint());
    ASSERT_EQ(t.lista().Aree.size(), 1U);
    EXPECT_EQ(t.lista().Aree[0].Pagina, 2);
    const QString letto = b.w<QLabel>("Tavolo1.lblXYval")->text();
    EXPECT_NEAR(letto.split(QStringLiteral(" : ")).at(0).toInt(), (t.LarghezzaPagina() + 0.03 - t.ShiftX()) * 1000, 2.5)
        << letto.toStdString();
    // With a tile chosen the print button opens its panel.
    b.premi("Tavolo1.cmdStampa");
    EXPECT_TRUE(b.w("Tavolo1.picPrint")->isVisible());
    b.premi("Tavolo1.cmdPCancel");
    EXPECT_FALSE(b.w("Tavolo1.picPrint")->isVisible());
}

TEST(Finestra, PagesReachThePrinter) {
    if (QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty()) GTEST_SKIP() << "needs poppler-utils";
    BancoFinestra b;
    b.spunta("chkOreAstronomiche");
    b.premi("cmdRun");
    const auto pagine = [](const char *file) {
        QProcess p;
        p.start(QStringLiteral("pdfinfo"), {QString::fromLatin1(file)});
        p.waitForFinished();
        const auto m = QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)")).match(QString::fromUtf8(p.readAllStandardOutput()));
        return m.captured(1).toInt();
    };
    // Nothing chosen: a sheet that a page holds goes there at once.
    Tavolo &t = b.f.sessione().tavolo;
    const double alto = t.QuadranteH(), largo = t.QuadranteL();
    t.QuadranteH(0.2);
    t.QuadranteL(0.15);
    b.dialoghi.stampaSu = QStringLiteral("tutto.pdf");
    b.premi("Tavolo1.cmdStampa");
    EXPECT_EQ(pagine("tutto.pdf"), 1);
    t.QuadranteH(alto);
    t.QuadranteL(largo);
    // Two tiles, through the panel.
    for (const double y : {1000.0, 17000.0}) b.f.ponte().fai(NESSUN_CONTROLLO, [&] { b.f.sessione().tavolo.MouseDown(1000, y); });
    b.premi("Tavolo1.cmdStampa");
    b.w<QAbstractButton>("Tavolo1.optSelected")->click();
    b.dialoghi.stampaSu = QStringLiteral("scelte.pdf");
    b.premi("Tavolo1.cmdPOk");
    EXPECT_EQ(pagine("scelte.pdf"), 2);
    EXPECT_FALSE(b.w("Tavolo1.picPrint")->isVisible());
    EXPECT_FALSE(b.f.sessione().tavolo.OutputToPRN);
    // The picture, under the name that is given; a cancelled box does nothing.
    b.premi("Tavolo1.cmdSave");
    b.dialoghi.risposte = {"Image.bmp"};
    b.premi("Tavolo1.cmdSave");
    EXPECT_FALSE(QImage(QStringLiteral("Image.bmp")).isNull());
    b.premi("Tavolo1.cmdPulisci");
    b.f.ponte().premi(TrovaControllo("Tavolo1.cmdPOk"));
    ASSERT_EQ(b.dialoghi.avvisi.size(), 1U);
    EXPECT_EQ(b.dialoghi.avvisi[0], "Nessuna area selezionata");
}

TEST(Finestra, TheWheelEnlargesAtThePointer) {
    BancoFinestra b;
    b.f.findChild<QPushButton *>(QStringLiteral("Adatta"))->click();
    desktop::Foglio &foglio = b.f.quadro().foglio();
    const QPointF punta(foglio.viewport()->width() * 0.4, foglio.viewport()->height() * 0.6);
    const auto gira = [&](int scatti) {
        QWheelEvent e(punta, foglio.viewport()->mapToGlobal(punta), {}, {0, 120 * scatti}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(foglio.viewport(), &e);
        QCoreApplication::processEvents();
    };
    gira(6);  // past where the sheet fills the window
    const QPointF sotto = foglio.suDispositivo(punta);
    const double prima = foglio.vista().fattore;
    gira(4);
    EXPECT_NEAR(foglio.vista().fattore / prima, 4, 1e-9);
    const QPointF spostato = (foglio.suDispositivo(punta) - sotto) * foglio.vista().fattore;
    EXPECT_LT(std::hypot(spostato.x(), spostato.y()), 1.5);
    foglio.tutto();
    const QRectF intero = foglio.vista().foglio(b.f.sessione().tavolo);
    EXPECT_TRUE(QRectF(foglio.viewport()->rect()).contains(intero));
}

TEST(Finestra, AProjectIsSavedOpenedAskedFor) {
    BancoFinestra b;
    b.scrivi("txtDec", "7.25");
    EXPECT_TRUE(b.f.modificato());
    b.dialoghi.risposte = {"prova.omb"};
    b.f.ponte().premi(TrovaControllo("mnuSalva"));
    EXPECT_FALSE(b.f.modificato());
    b.scrivi("txtDec", "8");
    b.dialoghi.prima = desktop::Salvataggio::Annulla;
    EXPECT_FALSE(b.f.close());
    ASSERT_EQ(b.dialoghi.domande.size(), 1U);
    b.dialoghi.prima = desktop::Salvataggio::Scarta;
    b.dialoghi.risposte = {"prova.omb"};
    b.f.ponte().premi(TrovaControllo("mnuApri"));
    EXPECT_EQ(b.w<QLineEdit>("txtDec")->text(), QStringLiteral("7.25"));
    b.dialoghi.risposte = {"missing.omb"};
    b.f.ponte().premi(TrovaControllo("mnuApri"));
    ASSERT_FALSE(b.dialoghi.avvisi.empty());
    EXPECT_EQ(b.dialoghi.avvisi.back(), "File non riconosciuto!");
    EXPECT_EQ(b.w<QLineEdit>("txtDec")->text(), QStringLiteral("7.25"));
}

}  // namespace
}  // namespace ombrelia
