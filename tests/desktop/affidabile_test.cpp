// What a maker relies on: nothing lost, nothing drawn twice, nothing asked falsely, every step taken back.
#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QProcess>
#include <QSettings>
#include <clocale>
#include <fstream>
#include <new>

#include "app/parametri_default.h"
#include "core/file.h"
#include "desktop/banco.h"
#include "desktop/disegno_di.h"
#include "reports/rapporti.h"

namespace ombrelia {
namespace {

using prova::BancoFinestra;
using prova::disegnoDi;

TEST(Affidabile, AFailedSaveKeepsTheMark) {
    BancoFinestra b;
    b.scrivi("txtDec", "7.25");
    b.dialoghi.risposte = {"no such folder/x.omb"};
    b.f.ponte().premi(TrovaControllo("mnuSalva"));
    EXPECT_EQ(b.dialoghi.avvisi.size(), 1U);
    EXPECT_TRUE(b.f.modificato() && b.f.isWindowModified());
    EXPECT_TRUE(b.f.percorso().isEmpty());
    EXPECT_FALSE(QSettings()
                     .value(QStringLiteral("recenti"))
                     .toStringList()
                     .join(QLatin1Char(' '))
                     .contains(QStringLiteral("no such folder")));
    b.dialoghi.risposte = {"missing.omb"};
    b.f.ponte().premi(TrovaControllo("mnuApri"));
    EXPECT_TRUE(b.f.modificato());
    b.dialoghi.prima = desktop::Salvataggio::Salva;  // the closing question's Save fails too: the window stays
    b.dialoghi.risposte = {"no such folder/x.omb"};
    EXPECT_FALSE(b.f.close());
    b.dialoghi.prima = desktop::Salvataggio::Scarta;
    EXPECT_TRUE(b.f.close());
}

TEST(Affidabile, TheProjectIsSavedWhereItIsAndAnotherAsks) {
    BancoFinestra b;
    b.scrivi("txtDec", "3");
    b.dialoghi.risposte = {"uno.omb"};
    QTest::keyClick(b.w("txtDec"), Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(QFile::exists(QStringLiteral("uno.omb")));
    EXPECT_TRUE(b.f.windowTitle().startsWith(QStringLiteral("uno.omb[*]")));
    b.scrivi("txtDec", "4");
    EXPECT_TRUE(b.f.isWindowModified());
    QTest::keyClick(b.w("txtDec"), Qt::Key_S, Qt::ControlModifier);  // no name is asked for
    EXPECT_FALSE(b.f.modificato());
    EXPECT_NE(LeggiFile("uno.omb", 1U << 20)->find(">4</txtDec>"), std::string::npos);
    b.dialoghi.risposte = {"due.omb"};
    QTest::keyClick(b.w("txtDec"), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(QFile::exists(QStringLiteral("due.omb")));
    b.scrivi("txtDec", "5");
    b.dialoghi.prima = desktop::Salvataggio::Annulla;
    b.dialoghi.risposte = {"uno.omb"};
    b.dialoghi.domande.clear();
    b.f.ponte().premi(TrovaControllo("mnuApri"));
    ASSERT_EQ(b.dialoghi.domande.size(), 1U);
    EXPECT_NE(b.dialoghi.domande[0].find("Vuoi salvarlo"), std::string::npos);
    EXPECT_EQ(b.campo("txtDec"), "5");
    b.dialoghi.prima = desktop::Salvataggio::Scarta;
    QTest::keyClick(b.w("txtDec"), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(b.campo("txtDec"), "-20");
    EXPECT_TRUE(b.f.percorso().isEmpty() && !b.f.modificato());
}

TEST(Affidabile, TheDxfGoesWhereOneSaysOrNowhere) {
    BancoFinestra b;
    const auto disegni = [] { return QDir().entryList({QStringLiteral("*.dxf")}, QDir::Files | QDir::Hidden); };
    const QStringList prima = disegni();  // other tests' too
    b.premi("Tavolo1.cmdDxf");            // cancelled
    EXPECT_EQ(disegni(), prima);
    QFile::remove(QStringLiteral("muro.dxf"));
    b.dialoghi.risposte = {"muro.dxf"};
    b.premi("Tavolo1.cmdDxf");
    EXPECT_TRUE(QFile::exists(QStringLiteral("muro.dxf")));
    EXPECT_NE(b.campo("Tavolo1.p_mess").find("muro.dxf"), std::string::npos);
}

TEST(Affidabile, ADialIsOfItsFields) {
    const std::vector<std::string_view> caselle{"chkOreAstronomiche", "ck_babiloniche"};
    for (const auto &[campo, testo] : {std::pair{"txtDec", "-33"}, {"txtInc", "40"}, {"txtLAT", "38.25"}}) {
        const std::string attesa = disegnoDi({{campo, testo}}, caselle);
        BancoFinestra b;
        for (const std::string_view c : caselle) b.spunta(c);
        // Live: the run in hand is of what is typed, and leaves the count of readings and the original dial alone.
        b.vivo()->setChecked(true);
        b.scrivi(campo, testo);
        b.aspettaVivo();
        EXPECT_TRUE(b.lista() == attesa) << campo;
        EXPECT_EQ(b.s().v.letture, 0) << campo;
        EXPECT_EQ(b.s().v.lat_o, 0) << campo;
        b.vivo()->setChecked(false);
        // Pressed: a run of other fields before leaves no trace.
        b.f.ponte().fai(NESSUN_CONTROLLO, [&] { app::Imposta(b.s(), TrovaControllo("txtLAT"), "12"); });
        b.premi("cmdRun");
        b.premi("Tavolo1.cmdPulisci");
        b.f.nuovo();
        b.s().in.ckEtichette = 0;  // of a new dial
        for (const std::string_view c : caselle)
            if (b.s().valore(TrovaControllo(c)) == 0) b.spunta(c);
        b.scrivi(campo, testo);
        b.premi("cmdRun");
        EXPECT_TRUE(b.lista() == attesa) << campo;
    }
    BancoFinestra b;
    for (const std::string_view c : caselle) b.spunta(c);
    b.scrivi("txtLAT", "12");
    b.premi("cmdRun");
    b.premi("Tavolo1.cmdPulisci");
    b.scrivi("txtLAT", "50");
    b.premi("cmdRun");
    EXPECT_TRUE(b.lista() == disegnoDi({{"txtLAT", "50"}}, caselle));
}

TEST(Affidabile, NumeralsOnceOnly) {
    for (const bool universale : {false, true}) {
        BancoFinestra b;
        b.scrivi("txtInc", "0");
        if (universale) b.spunta("CkUNI");
        b.spunta("chkOreAstronomiche");
        b.f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click();
        b.spunta("ckArabi");
        EXPECT_TRUE(b.s().tavolo.lista().Linee.empty()) << "numerals before the first run";
        b.premi("cmdRun");
        std::string attesa = b.lista();
        if (!universale) {
            b.spunta("ckArabi");
            b.premi("Tavolo1.cmdPulisci");
            b.premi("cmdRun");
            b.f.ponte().fai(NESSUN_CONTROLLO, [&] { app::Spunta(b.s(), TrovaControllo("ckArabi"), 1); });
            attesa = b.lista();
        }
        b.vivo()->setChecked(true);
        b.aspettaVivo();
        EXPECT_TRUE(b.lista() == attesa) << universale;
        b.vivo()->setChecked(false);
    }
}

TEST(Affidabile, AFieldTakesWhatKeysWouldTake) {
    BancoFinestra b;
    auto *campo = b.w<QLineEdit>("txtDec");
    b.scrivi("txtDec", "-33");
    b.w("txtLAT")->setFocus();
    QTest::mouseClick(campo, Qt::LeftButton, Qt::NoModifier, QPoint(campo->width() - 4, campo->height() / 2));
    EXPECT_EQ(campo->selectedText(), QStringLiteral("-33"));
    QTest::keyClicks(campo, QStringLiteral("7"));
    EXPECT_EQ(b.campo("txtDec"), "7");
    // By the context menu and by dropping, the same filter.
    QGuiApplication::clipboard()->setText(QStringLiteral("1<b>2,5\""));
    campo->selectAll();
    QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(3, 3), campo->mapToGlobal(QPoint(3, 3)));
    QCoreApplication::sendEvent(campo, &menu);
    auto *incolla = campo->findChild<QAction *>(QStringLiteral("incolla"));
    ASSERT_NE(incolla, nullptr);
    incolla->trigger();
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(b.campo("txtDec"), "12.5");
    EXPECT_GE(b.dialoghi.beepSentiti, 3);
    // A quote would cut the project there.
    b.scrivi("txtSUBSTYLE", "1\"2");
    EXPECT_EQ(b.campo("txtSUBSTYLE"), "12");
    EXPECT_NE(b.campo("Tavolo1.p_mess").find("virgolette"), std::string::npos);
    // The program's shortcuts are not the field's.
    b.dialoghi.risposte = {"scorciatoia.pdf"};
    QTest::keyClick(campo, Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(QFile::exists(QStringLiteral("scorciatoia.pdf")));
}

TEST(Affidabile, TheWindowDoesNotContradictItself) {
    BancoFinestra b;
    b.f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click();
    // Both read-outs of one point.
    desktop::Foglio &foglio = b.f.quadro().foglio();
    const QPoint punto(foglio.viewport()->width() / 2, foglio.viewport()->height() * 3 / 4);
    std::optional<QPointF> sotto;
    const auto mostra = foglio.suPosizione;
    foglio.suPosizione = [&](std::optional<QPointF> mm) { sotto = mm; };
    QTest::mouseMove(foglio.viewport(), punto);
    QTest::mouseClick(foglio.viewport(), Qt::LeftButton, Qt::NoModifier, punto);
    const QStringList letti = desktop::Q(b.campo("Tavolo1.lblXYval")).split(QStringLiteral(" : "));
    ASSERT_TRUE(sotto && letti.size() == 2);
    EXPECT_LT(std::abs(sotto->y() - letti[1].toDouble()), 2);
    mostra(sotto);
    // Panels that are open together stand side by side.
    b.premi("Tavolo1.cmdAssi");
    b.premi("Tavolo1.cmdDim");
    EXPECT_FALSE(b.w("Tavolo1.PicAssi")->geometry().intersects(b.w("Tavolo1.picDimensioni")->geometry()));
    // A box that doesn't answer shows and draws nothing.
    b.scrivi("txtInc", "0");
    b.spunta("ckZodiac");
    b.scrivi("txtInc", "90");
    EXPECT_FALSE(b.w<QAbstractButton>("ckZodiac")->isChecked());
    b.premi("cmdRun");
    b.premi("Tavolo1.cmdPulisci");
    b.premi("cmdRun");
    const std::string spento = b.lista();
    b.scrivi("txtInc", "0");
    EXPECT_TRUE(b.w<QAbstractButton>("ckZodiac")->isChecked());
    b.spunta("ckZodiac");
    b.scrivi("txtInc", "90");
    b.premi("Tavolo1.cmdPulisci");
    b.premi("cmdRun");
    EXPECT_TRUE(b.lista() == spento);
    // A southern wall looks the other way, whoever wrote the field.
    const auto pianta = [&] { return b.w("Picture2")->grab().toImage(); };
    const QImage nord = pianta();
    b.f.ponte().fai(NESSUN_CONTROLLO, [&] { app::Imposta(b.s(), TrovaControllo("txtLAT"), "-33"); });
    EXPECT_NE(pianta(), nord);
}

TEST(Affidabile, AnItalianProjectInAnEnglishWindow) {
    {
        BancoFinestra b;
        b.dialoghi.risposte = {"italiano.omb"};
        b.f.ponte().premi(TrovaControllo("mnuSalva"));
        b.f.ponte().premi(TrovaControllo("mnuInglese"));
        EXPECT_FALSE(b.f.modificato());
    }
    ASSERT_TRUE(QFile::copy(QStringLiteral(OMBRELIA_RADICE "/data/DBIngleseC2008.txt"), QStringLiteral("DBC2008.txt")));
    {
        BancoFinestra b;
        const QString prima = b.w<QLabel>("lblLatitudine")->text();
        EXPECT_EQ(prima, QStringLiteral("Latitude"));
        b.f.apri(QStringLiteral("italiano.omb"));
        EXPECT_EQ(b.w<QLabel>("lblLatitudine")->text(), prima);
        EXPECT_FALSE(b.f.modificato());
        EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Discard"), QStringLiteral("Discard"));
    }
    QFile::remove(QStringLiteral("DBC2008.txt"));
    QSettings().remove(QStringLiteral("lingua"));
}

TEST(Affidabile, TheBoardTellsAndUndoes) {
    BancoFinestra b;
    b.f.ponte().premi(TrovaControllo("mnuAusiliaria"));
    b.f.ponte().fai(NESSUN_CONTROLLO, [&] { app::Imposta(b.s(), TrovaControllo("frmDeclin.txtAngle"), "12"); });
    b.f.ponte().premi(TrovaControllo("frmDeclin.cmdCalcola"));
    EXPECT_NE(b.campo("txtDelta"), "23.445");
    auto *avviso = b.f.findChild<QLabel *>(QStringLiteral("avvisoCornice"));
    EXPECT_TRUE(avviso->text().contains(QStringLiteral("23.445")));
    emit avviso->linkActivated(QStringLiteral("1"));
    // The wall's declination, by its own words in the result.
    EXPECT_NE(b.campo("frmDeclin.txtResult").find("Declinazione del quadrante solare: " + b.campo("txtDec") + " "),
              std::string::npos);
    b.f.ponte().premi(TrovaControllo("frmDeclin.cmdCalcola"));
    for (int i = 0; i < 3; ++i) b.f.passi().undo();
    EXPECT_EQ(b.campo("txtDelta"), "23.445");
    EXPECT_EQ(b.campo("txtAO"), "-15");
    b.f.ponte().premi(TrovaControllo("frmDeclin.cmdCalcola"));
    EXPECT_NE(b.campo("txtAO"), "-15");
    emit avviso->linkActivated(QStringLiteral("0"));
    EXPECT_EQ(b.campo("txtDelta"), "23.445");
    EXPECT_EQ(b.campo("txtAO"), "-15");
}

TEST(Affidabile, WithoutMemoryTheDialStays) {
    BancoFinestra b;
    b.spunta("chkOreAstronomiche");
    b.premi("cmdRun");
    const std::string prima = b.lista();
    b.f.ponte().fai(TrovaControllo("cmdEqui"), [&] {
        b.s().tavolo.xLine(0, 0, 1, 1, 0, "mezza");
        throw std::bad_alloc();
    });
    EXPECT_TRUE(b.lista() == prima);
    ASSERT_EQ(b.dialoghi.avvisi.size(), 1U);
    EXPECT_NE(b.dialoghi.avvisi[0].find("memoria"), std::string::npos);
}

TEST(Affidabile, TextsAsTheyStand) {
    BancoFinestra b;
    const std::string marcato = "<img src='segreto.png'>x";
    b.s().stato("lblLatitudine").caption = marcato;
    b.s().stato("txtLAT").toolTip = marcato;
    b.f.ponte().sincronizza();
    EXPECT_EQ(b.w<QLabel>("lblLatitudine")->textFormat(), Qt::PlainText);
    EXPECT_FALSE(b.w("txtLAT")->toolTip().contains(QLatin1Char('<')));
    for (const Controllo &c : ControlliDi("MDIForm1"))
        if (const auto *l = b.w<QLabel>(c.nome)) {
            EXPECT_EQ(l->textFormat(), Qt::PlainText) << c.nome;
        }
}

TEST(Affidabile, NumbersKnowNoLocale) {
    BancoFinestra b;
    b.scrivi("txtLAT", "45.0703");
    b.f.ponte().premi(TrovaControllo("cmdData"));
    const auto csv = [&](const char *nome) {
        b.dialoghi.risposte = {nome};
        b.f.moduli().modulo("Form1")->findChild<QAction *>(QStringLiteral("salva"))->trigger();
        return *LeggiFile(nome, 1U << 20);
    };
    const std::string attesa = csv("c.csv");
    ASSERT_NE(attesa.find("45.0703"), std::string::npos);
    QProcess p;
    p.start(QStringLiteral("localedef"), {QStringLiteral("-i"), QStringLiteral("it_IT"), QStringLiteral("-f"),
                                          QStringLiteral("UTF-8"), QDir::currentPath() + QStringLiteral("/it_IT.UTF-8")});
    p.waitForFinished();
    qputenv("LOCPATH", QDir::currentPath().toLocal8Bit());
    if (!std::setlocale(LC_ALL, "it_IT.UTF-8")) GTEST_SKIP() << "no Italian locale here";
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(csv("it.csv"), attesa);
    std::setlocale(LC_ALL, "C");
}

TEST(Affidabile, EveryStepIsUndoneAndRedone) {
    BancoFinestra b;
    b.scrivi("txtInc", "0");
    b.dialoghi.risposte = {"passi.omb"};
    b.f.ponte().premi(TrovaControllo("mnuSalva"));
    const std::vector<std::pair<const char *, std::function<void()>>> azioni{
        {"field", [&] { b.scrivi("txtDec", "17.25"); }},
        {"fit", [&] { b.f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click(); }},
        {"box", [&] { b.spunta("chkOreAstronomiche"); }},
        {"run", [&] { b.premi("cmdRun"); }},
        {"numerals", [&] { b.spunta("ckArabi"); }},
        {"tile",
         [&] {
             b.f.quadro().foglio().suClic(b.f.quadro().foglio().daMondo({-0.5, 0.4}));
         }},
        {"mirror", [&] { b.premi("Tavolo1.cmdInvX"); }},
        {"second run", [&] { b.premi("cmdRun"); }},
        {"transform", [&] { b.premi("cmdTrasforma"); }},
        {"clear", [&] { b.premi("Tavolo1.cmdPulisci"); }},
        {"open", [&] { b.f.apri(QStringLiteral("passi.omb")); }},
    };
    const auto stato = [&] {
        return app::ScriviProgetto(b.s()) + b.lista() + std::to_string(b.s().tavolo.FattoreX) +
               std::to_string(b.s().tavolo.lista().Aree.size());
    };
    std::vector<std::string> stati{stato()};
    const int primo = b.f.passi().index();
    for (const auto &[nome, azione] : azioni) {
        azione();
        stati.push_back(stato());
        EXPECT_EQ(b.f.passi().index(), primo + static_cast<int>(stati.size()) - 1) << nome;
        EXPECT_FALSE(b.f.passi().undoText().isEmpty()) << nome;
    }
    const auto tasto = [&](Qt::KeyboardModifiers m) { QTest::keyClick(b.w("txtLAT"), Qt::Key_Z, m); };
    b.w("txtLAT")->setFocus();
    for (std::size_t i = azioni.size(); i-- > 0;) {
        tasto(Qt::ControlModifier);
        EXPECT_TRUE(stato() == stati[i]) << azioni[i].first;
    }
    for (std::size_t i = 0; i < azioni.size(); ++i) {
        tasto(Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(stato() == stati[i + 1]) << azioni[i].first;
    }
}

}  // namespace
}  // namespace ombrelia
