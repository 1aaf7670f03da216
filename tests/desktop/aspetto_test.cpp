// The window as its maker sees it: a dial at once, nothing cut, readable in both themes, in three languages; the sheet tells its
// lines; fields help; nothing hangs.
#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSettings>
#include <QSpinBox>
#include <QTabBar>
#include <QTimer>
#include <QTreeWidget>
#include <QWheelEvent>
#include <array>
#include <cmath>
#include <numbers>
#include <set>

#include "app/lingua.h"
#include "controlli/lingue.h"
#include "core/file.h"
#include "desktop/banco.h"
#include "desktop/stile.h"
#include "paint/tinte.h"

namespace ombrelia {
namespace {

using desktop::Strato;
using prova::BancoFinestra;

double luce(const QColor &c) {
    const auto l = [](double x) { return x <= 0.03928 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4); };
    return 0.2126 * l(c.redF()) + 0.7152 * l(c.greenF()) + 0.0722 * l(c.blueF());
}
double contrasto(const QColor &a, const QColor &b) {
    return (std::max(luce(a), luce(b)) + 0.05) / (std::min(luce(a), luce(b)) + 0.05);
}

TEST(Aspetto, AWholeDialAtOnce) {
    BancoFinestra b;
    b.f.primoQuadrante();
    b.aspettaVivo();
    EXPECT_FALSE(b.s().tavolo.lista().Ordine.empty());
    EXPECT_FALSE(b.f.modificato());
    EXPECT_TRUE(b.dialoghi.avvisi.empty());
    EXPECT_TRUE(b.f.findChild<QLabel *>(QStringLiteral("avvisoCornice"))->isHidden());
    desktop::Foglio &foglio = b.f.quadro().foglio();
    EXPECT_TRUE(QRectF(foglio.viewport()->rect()).contains(foglio.vista().foglio(b.s().tavolo)));
    const QImage i = foglio.viewport()->grab().toImage();
    std::map<QRgb, int> quanti;
    for (int y = 0; y < i.height(); ++y)
        for (int x = 0; x < i.width(); ++x) ++quanti[i.pixel(x, y)];
    EXPECT_EQ(
        std::max_element(quanti.begin(), quanti.end(), [](const auto &u, const auto &v) { return u.second < v.second; })->first,
        qRgb(255, 255, 255));
    b.vivo()->setChecked(false);
}

TEST(Aspetto, NothingLeavesASmallWindow) {
    for (const QSize misura : {QSize(1024, 700), QSize(1360, 900)}) {
        BancoFinestra b;
        b.f.resize(misura);
        QTest::qWait(50);
        EXPECT_LE(b.f.width(), misura.width());
        EXPECT_LE(b.f.height(), misura.height());
        for (const QWidget *w : b.f.findChildren<QWidget *>()) {
            bool scorre = w->isWindow();
            for (const QWidget *p = w; p && p != &b.f; p = p->parentWidget())
                scorre |= p->isWindow() || qobject_cast<const QAbstractScrollArea *>(p) != nullptr;
            for (const QWidget *p = w; p && p != &b.f; p = p->parentWidget())
                scorre |= p->x() + p->width() < 0;  // a tab behind another
            if (!w->isVisible() || scorre) continue;
            const QRect r(w->mapTo(&b.f, QPoint(0, 0)), w->size());
            EXPECT_TRUE(b.f.rect().contains(r)) << misura.width() << ' ' << w->metaObject()->className() << ' '
                                                << w->objectName().toStdString() << ' ' << r.right() << ' ' << r.bottom();
        }
        EXPECT_GE(b.f.quadro().foglio().viewport()->width(), 240);
    }
}

TEST(Aspetto, TheLegendLeavesTheSheetFree) {
    for (const QSize misura : {QSize(900, 700), QSize(1024, 700), QSize(1360, 900)})
        for (const char *alta : {"-.8", "-.2", "-2.6"}) {
            BancoFinestra b;
            b.f.resize(misura);
            b.scrivi("txtY1", alta);
            b.f.primoQuadrante();
            b.aspettaVivo();
            QTest::qWait(20);
            const desktop::Foglio &foglio = b.f.quadro().foglio();
            ASSERT_FALSE(foglio.postoLegenda().isEmpty()) << misura.width() << alta;
            const QRectF sheet = foglio.vista().foglio(b.s().tavolo);
            EXPECT_FALSE(sheet.intersects(foglio.postoLegenda())) << misura.width() << alta;
            EXPECT_TRUE(QRectF(foglio.viewport()->rect()).contains(sheet)) << misura.width() << alta;
            EXPECT_TRUE(foglio.viewport()->rect().contains(foglio.postoLegenda())) << misura.width() << alta;
            b.vivo()->setChecked(false);
        }
}

TEST(Aspetto, TextsAndLinesStandOut) {
    for (const bool scuro : {false, true}) {
        desktop::VestiApplicazione(*qApp, scuro ? desktop::Tema::Scuro : desktop::Tema::Chiaro);
        const desktop::StileFoglio stile = desktop::StileDi(scuro);
        const auto supporto = scuro ? paint::Supporto::Schermo : paint::Supporto::SchermoChiaro;
        for (std::size_t k = 0; k < desktop::STRATI; ++k) {
            EXPECT_GE(contrasto(paint::Inchiostro(stile.strati[k].colore, supporto), paint::Sfondo(supporto)), 3) << k << scuro;
        }
        BancoFinestra b;
        std::size_t misurati = 0;
        for (QWidget *w : b.f.findChildren<QWidget *>()) {
            const auto *l = qobject_cast<QLabel *>(w);
            const auto *p = qobject_cast<QAbstractButton *>(w);
            const QString testo = l ? l->text() : p ? p->text() : QString();
            if (!w->isVisible() || !w->isEnabled() || testo.trimmed().size() < 3 ||
                w->visibleRegion().boundingRect().size() != w->size())
                continue;
            const QImage i = b.f.grab(QRect(w->mapTo(&b.f, QPoint(0, 0)), w->size())).toImage();
            // The ground is what most points show, the text what stands farthest from it.
            std::map<QRgb, int> quanti;
            for (int y = 0; y < i.height(); ++y)
                for (int x = 0; x < i.width(); ++x) ++quanti[i.pixel(x, y)];
            const QColor fondo = QColor::fromRgb(std::max_element(quanti.begin(), quanti.end(), [](const auto &u, const auto &v) {
                                                     return u.second < v.second;
                                                 })->first);
            double migliore = 1;
            for (const auto &[c, n] : quanti) migliore = std::max(migliore, contrasto(QColor::fromRgb(c), fondo));
            EXPECT_GE(migliore, 4.5) << testo.toStdString() << ' ' << scuro;
            ++misurati;
        }
        EXPECT_GT(misurati, 40U);
    }
    desktop::VestiApplicazione(*qApp, desktop::Tema::Chiaro);
}

// Vision without one kind of cone: matrices for linear RGB of Machado, Oliveira, Fernandes 2009, severity 1. Distances in CIELAB.
TEST(Aspetto, FamiliesAreToldApartByEveryEye) {
    using Terna = std::array<double, 3>;
    const auto per = [](const std::array<Terna, 3> &m, const Terna &v) {
        Terna r{};
        for (std::size_t i = 0; i < 3; ++i) r[i] = m[i][0] * v[0] + m[i][1] * v[1] + m[i][2] * v[2];
        return r;
    };
    const std::array<Terna, 3> OCCHI[] = {
        {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
        {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
        {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
        {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}}};
    const std::array<Terna, 3> XYZ = {
        {{0.4124564, 0.3575761, 0.1804375}, {0.2126729, 0.7151522, 0.0721750}, {0.0193339, 0.1191920, 0.9503041}}};
    const auto lab = [&](const QColor &c, const std::array<Terna, 3> &occhio) {
        const auto lineare = [](double x) { return x <= 0.04045 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4); };
        Terna visto = per(occhio, {lineare(c.redF()), lineare(c.greenF()), lineare(c.blueF())});
        for (double &x : visto) x = std::clamp(x, 0.0, 1.0);
        const Terna q = per(XYZ, visto), bianco{0.95047, 1, 1.08883};
        Terna f{};
        for (std::size_t i = 0; i < 3; ++i) {
            const double t = q[i] / bianco[i];
            f[i] = t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
        }
        return Terna{116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
    };
    using enum Specie;
    for (const bool scuro : {false, true}) {
        const desktop::StileFoglio stile = desktop::StileDi(scuro);
        const auto supporto = scuro ? paint::Supporto::Schermo : paint::Supporto::SchermoChiaro;
        const auto tinta = [&](Specie x) { return paint::Inchiostro(stile.strati[Strato(x)].colore, supporto); };
        const Specie famiglie[] = {Ora,          Diurna, Equinoziale, Italica,  Babilonica, Temporaria,
                                   Almucantarat, Azimut, Asr,         Analemma, Orizzonte};
        for (const Specie a : famiglie)
            for (const Specie b : famiglie)
                for (std::size_t k = 0; a < b && k < std::size(OCCHI); ++k) {
                    const Terna x = lab(tinta(a), OCCHI[k]), y = lab(tinta(b), OCCHI[k]);
                    EXPECT_GT(std::hypot(x[0] - y[0], x[1] - y[1], x[2] - y[2]), 13)
                        << Strato(a) << " and " << Strato(b) << ", eye " << k << (scuro ? ", dark" : ", light");
                }
    }
}

TEST(Aspetto, TheSheetNamesItsLines) {
    BancoFinestra b;
    b.f.primoQuadrante();
    b.aspettaVivo();
    b.vivo()->setChecked(false);
    desktop::Foglio &foglio = b.f.quadro().foglio();
    const Tavolo &t = b.s().tavolo;
    // A point of the ten o'clock line, by its claim, in the frame.
    const Pretesa *dieci = nullptr;
    for (const Pretesa &p : t.lista().pretese)
        if (p.specie == Specie::Ora && p.valore == 10) dieci = &p;
    ASSERT_NE(dieci, nullptr);
    const RecLinea r = t.lista().Linee[dieci->linea + (dieci->a - dieci->da) / 3];
    const QPointF mondo((r.X1 + r.X2) / 2, (r.Y1 + r.Y2) / 2);
    const auto linea =
        desktop::LineaSotto(t, foglio.stile(), mondo + QPointF(0, foglio.metriAlPunto()), 5 * foglio.metriAlPunto());
    ASSERT_TRUE(linea);
    EXPECT_EQ(desktop::NomeLinea(b.s(), linea->strato, linea->valore), QStringLiteral("Ora 10:00"));
    // The witness reads the same hour there.
    EXPECT_TRUE(desktop::LetturaDi(b.s(), mondo).contains(QStringLiteral("ora vera 10:00")))
        << desktop::LetturaDi(b.s(), mondo).toStdString();
    QElapsedTimer orologio;
    orologio.start();
    constexpr int VOLTE = 20;
    for (int i = 0; i < VOLTE; ++i) foglio.suSotto(mondo + QPointF(i * 1e-3, 0));
    std::printf("hover read-out: %.2f ms\n", static_cast<double>(orologio.nsecsElapsed()) / 1e6 / VOLTE);
    // A press chooses it, a press beside it a tile, one off the sheet nothing.
    QTest::mouseClick(foglio.viewport(), Qt::LeftButton, Qt::NoModifier, foglio.daMondo(mondo).toPoint());
    ASSERT_TRUE(foglio.stile().scelta);
    EXPECT_EQ(*foglio.stile().scelta, (std::pair{desktop::Strato(Specie::Ora), 10.0}));
    EXPECT_TRUE(t.lista().Aree.empty());
    QTest::mouseClick(foglio.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(22, 22));
    EXPECT_TRUE(t.lista().Aree.empty());
    // What is hidden is neither seen nor found, nor on paper.
    auto *strati = b.f.findChild<QDockWidget *>(QStringLiteral("strati"));
    strati->show();
    strati->raise();
    QCoreApplication::processEvents();
    auto *albero = b.f.findChild<QTreeWidget *>(QStringLiteral("alberoStrati"));
    ASSERT_GT(albero->topLevelItemCount(), 2);
    EXPECT_EQ(albero->topLevelItem(0)->text(0), QStringLiteral("Ore"));
    EXPECT_GT(albero->topLevelItem(0)->text(1).toDouble(), 1000);
    albero->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    EXPECT_FALSE(desktop::LineaSotto(t, foglio.stile(), mondo, 1e-5));
    Tavolo carta;
    desktop::VestiFoglio(t, foglio.stile(), true, carta);
    EXPECT_LT(carta.lista().Linee.size(), t.lista().Linee.size());
    EXPECT_FALSE(carta.lista().Linee.empty());
}

// With each key the live dial is the one of the angle as it stands, or the one before while it makes no sense yet.
TEST(Aspetto, AnAngleBeingTypedMakesNoOtherDial) {
    BancoFinestra b;
    b.spunta("chkOreAstronomiche");
    b.vivo()->setChecked(true);
    auto *lat = b.w<QLineEdit>("txtLAT");
    lat->setFocus();
    lat->selectAll();
    struct Passo {
        const char *tasti;
        double gradi;  // 0: as before
    };
    const Passo passi[] = {{"33", 33},           {" ", 33}, {"5", 33 + 5 / 60.0}, {"2", 33 + 52 / 60.0},
                           {" 7", 33.868611111}, {"1", 0},  {"\b", 33.868611111}, {" S", -33.868611111}};
    std::string prima;
    for (const Passo &p : passi) {
        for (const char *t = p.tasti; *t; ++t) {
            if (*t == '\b') QTest::keyClick(lat, Qt::Key_Backspace);
            else QTest::keyClick(lat, *t);
        }
        b.aspettaVivo();
        if (p.gradi == 0) EXPECT_TRUE(b.lista() == prima) << lat->text().toStdString();
        else EXPECT_NEAR(std::fabs(b.s().v.latR.numero()) * 180 / std::numbers::pi, std::fabs(p.gradi), 1e-8) << p.tasti;
        EXPECT_EQ(b.s().tavolo.FattoreX, p.gradi < 0 ? -1 : 1) << p.tasti;
        prima = b.lista();
    }
    EXPECT_EQ(lat->text(), QStringLiteral("33 52 7 S")) << "stands as it was typed";
    b.w("txtDec")->setFocus();
    EXPECT_EQ(lat->text().toStdString(), b.campo("txtLAT"));
    EXPECT_NEAR(std::stod(b.campo("txtLAT")), -33.868611111, 1e-8);
    b.vivo()->setChecked(false);
}

TEST(Aspetto, FieldsReadAnglesAndTellTheirRange) {
    BancoFinestra b;
    auto *lat = b.w<QLineEdit>("txtLAT");
    b.scrivi("txtLAT", "45°04'13 N");
    b.w("txtDec")->setFocus();
    EXPECT_NEAR(std::stod(b.campo("txtLAT")), 45 + 4 / 60.0 + 13 / 3600.0, 1e-6);
    b.scrivi("txtLonG", "7 41.5 E");
    b.w("txtDec")->setFocus();
    EXPECT_NEAR(std::stod(b.campo("txtLonG")), -(7 + 41.5 / 60), 1e-6);
    b.scrivi("txtInc", "95");
    b.w("txtDec")->setFocus();
    EXPECT_TRUE(b.w("txtInc")->property("fuori").toBool());
    b.scrivi("txtInc", "9");
    b.w("txtDec")->setFocus();
    EXPECT_FALSE(b.w("txtInc")->property("fuori").toBool());
    b.scrivi("txtLAT", "45");
    QTest::keyClick(lat, Qt::Key_Up);
    EXPECT_EQ(b.campo("txtLAT"), "45.5");
    QWheelEvent giu({5, 5}, lat->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
    QCoreApplication::sendEvent(lat, &giu);
    EXPECT_EQ(b.campo("txtLAT"), "45");
    b.spunta("ChCentimetro");
    b.scrivi("TxtStilo", "200");
    QTest::keyClick(b.w("TxtStilo"), Qt::Key_Down);
    EXPECT_EQ(b.campo("TxtStilo"), "195");
    auto *cerca = b.f.findChild<QLineEdit *>(QStringLiteral("cercaLuogo"));
    struct Luogo {
        const char *nome;
        double lat, lon;
    };
    for (const Luogo &l : {Luogo{"Bologna", 44.49, -11.34}, {"Madrid", 40.42, 3.70}}) {  // both by the clock of 15° East
        cerca->setFocus();
        cerca->selectAll();
        QTest::keyClicks(cerca, QLatin1String(l.nome));
        ASSERT_EQ(cerca->text(), QLatin1String(l.nome));
        ASSERT_GT(cerca->completer()->model()->rowCount(), 0);
        QTest::keyClick(cerca->completer()->popup(), Qt::Key_Return);
        EXPECT_NEAR(std::stod(b.campo("txtLAT")), l.lat, 0.05);
        EXPECT_NEAR(std::stod(b.campo("txtLonG")), l.lon, 0.05);
        EXPECT_EQ(b.campo("txtMeridiano"), "-15") << l.nome;
    }
    // Of several, none of them chosen, the first.
    cerca->setFocus();
    cerca->selectAll();
    QTest::keyClicks(cerca, QStringLiteral("Lond"));
    ASSERT_GT(cerca->completer()->model()->rowCount(), 1);
    cerca->completer()->popup()->setCurrentIndex({});
    QTest::keyClick(cerca, Qt::Key_Return);
    EXPECT_NEAR(std::stod(b.campo("txtLAT")), 51.51, 0.05);
}

TEST(Aspetto, TheWorkOfADeadWindowIsOffered) {
    {
        BancoFinestra b;
        b.scrivi("txtDec", "6.5");
        b.dialoghi.risposte = {"ripreso.omb"};
        b.f.ponte().premi(TrovaControllo("mnuSalva"));
        b.scrivi("txtDec", "-12.25");
        // As a window of a process that is no more would have left it.
        ASSERT_FALSE(ScriviFile("ripreso.omb.ripresa-999999999", app::ScriviProgetto(b.s())));
    }
    // A number that no process has, one that ended a moment ago, one of another program.
    const QString suo = QStringLiteral("ripreso.omb.ripresa-");
    const int figlio = fork();
    if (figlio == 0) _exit(0);
    for (const QString &pid : {QStringLiteral("999999999"), QString::number(figlio), QStringLiteral("1")}) {
        QFile::rename(suo + QStringLiteral("999999999"), suo + pid);
        QFile::copy(suo + pid, QStringLiteral("ripresa.tenuta"));
        QTest::qWait(20);
        BancoFinestra b;
        b.f.apri(QStringLiteral("ripreso.omb"));
        EXPECT_EQ(b.campo("txtDec"), "6.5");
        b.f.offriRipresa(b.f.percorso());
        EXPECT_EQ(b.campo("txtDec"), "-12.25") << pid.toStdString();
        EXPECT_TRUE(b.f.modificato());
        EXPECT_TRUE(b.f.windowTitle().startsWith(QStringLiteral("ripreso.omb[*]")));
        EXPECT_FALSE(QFile::exists(suo + pid));
        QFile::remove(suo + QString::number(QCoreApplication::applicationPid()));
        QFile::rename(QStringLiteral("ripresa.tenuta"), suo + QStringLiteral("999999999"));
    }
    QFile::remove(suo + QStringLiteral("999999999"));
    // A window that is still there keeps its own.
    {
        BancoFinestra viva;
        ASSERT_FALSE(
            ScriviFile((suo + QString::number(QCoreApplication::applicationPid())).toStdString(), app::ScriviProgetto(viva.s())));
        BancoFinestra b;
        b.f.apri(QStringLiteral("ripreso.omb"));
        b.dialoghi.domande.clear();
        b.f.offriRipresa(b.f.percorso());
        EXPECT_TRUE(b.dialoghi.domande.empty());
    }
    QFile::remove(suo + QString::number(QCoreApplication::applicationPid()));
}

// Presses the stop of whatever says that it goes on; tells whether anything did.
struct Impaziente {
    QTimer tempo;
    bool visto = false;
    Impaziente() {
        QObject::connect(&tempo, &QTimer::timeout, [this] {
            for (QWidget *w : QApplication::topLevelWidgets())
                if (auto *p = qobject_cast<QProgressDialog *>(w); p && p->isVisible()) {
                    visto = true;
                    p->cancel();
                }
        });
        tempo.start(1);
    }
};

TEST(Aspetto, ALongRunIsStopped) {
    struct Caso {
        const char *bottone, *densita;
        std::vector<std::string_view> caselle;
    };
    for (const Caso &c : {Caso{"cmdRun", ".000002", {"chkOreAstronomiche", "Ck_DayLightCurves", "ckAlt"}},
                          Caso{"cmdEqui", ".00001", {"chkOreAstronomiche", "Ck_DayLightCurves"}}}) {
        BancoFinestra b;
        b.f.pazienza = 0;
        b.scrivi("txtInc", "0");
        for (const std::string_view nome : c.caselle) b.spunta(nome);
        b.f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click();
        b.scrivi("txtDensity", c.densita);
        b.scrivi("TxtFraz", "4");
        Impaziente i;
        b.premi(c.bottone);
        EXPECT_TRUE(i.visto) << c.bottone << ": too quick to need stopping";
        EXPECT_TRUE(b.s().tavolo.lista().Ordine.empty()) << c.bottone;
        EXPECT_NE(b.campo("Tavolo1.p_mess").find("Fermato"), std::string::npos) << c.bottone;
        // The next one is as ever.
        i.tempo.stop();
        b.scrivi("txtDensity", ".01");
        b.premi(c.bottone);
        EXPECT_FALSE(b.s().tavolo.lista().Ordine.empty()) << c.bottone;
    }
}

// So do files: nothing is written then, and the window can be closed meanwhile.
TEST(Aspetto, ALongFileIsStopped) {
    BancoFinestra b;
    for (const std::string_view nome : {"chkOreAstronomiche", "ckAlt"}) b.spunta(nome);
    b.f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click();
    b.scrivi("txtDensity", ".0001");
    b.premi("cmdRun");
    ASSERT_GT(b.s().tavolo.lista().Punti.size(), 50000U);
    for (const char *file : {"fermo.pdf", "fermo.svg", "fermo.png"}) {
        auto *azione = b.f.findChild<QAction *>(std::string_view(file) == "fermo.pdf" ? QStringLiteral("comando.esportaPdf")
                                                                                      : QStringLiteral("comando.esporta"));
        {
            b.f.pazienza = 0;
            Impaziente i;
            b.dialoghi.risposte = {file};
            azione->trigger();
            EXPECT_TRUE(i.visto) << file;
            EXPECT_FALSE(QFile::exists(QString::fromLatin1(file))) << file;
        }
        b.f.pazienza = 600000;
        b.dialoghi.risposte = {file};
        azione->trigger();
        EXPECT_TRUE(QFile::exists(QString::fromLatin1(file))) << file;
        EXPECT_TRUE(b.dialoghi.avvisi.empty()) << file;
        QFile::remove(QString::fromLatin1(file));
    }
}

// A dial that takes its time beside the window: the window answers, says so, and gives it up when told.
TEST(Aspetto, ALongLiveDialIsToldAndStopped) {
    BancoFinestra b;
    for (const std::string_view nome : {"chkOreAstronomiche", "Ck_DayLightCurves", "ckAlt"}) b.spunta(nome);
    b.vivo()->setChecked(true);
    b.aspettaVivo();
    const std::string prima = b.lista();
    b.scrivi("txtDensity", ".000002");
    auto *avviso = b.f.findChild<QLabel *>(QStringLiteral("avvisoCornice"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return avviso->text().contains(QStringLiteral("Ferma")); }, 5000));
    emit avviso->linkActivated(QStringLiteral("0"));
    EXPECT_FALSE(b.f.vivo().attivo());
    EXPECT_FALSE(avviso->text().contains(QStringLiteral("Ferma")));
    EXPECT_TRUE(b.lista() == prima);
    b.vivo()->setChecked(false);
}

// --- languages ------------------------------------------------------------------------------------------------------------

std::set<QString> testi(BancoFinestra &b) {
    for (const char *modulo : {"mnuAusiliaria", "frmDeclin.cmdInfo", "M_about", "mnuAvviso", "cmdData"})
        b.f.ponte().premi(TrovaControllo(modulo));  // forms are translated when they open
    for (const char *comando : {"esempi", "perMacchina"})
        if (auto *a = b.f.findChild<QAction *>(QStringLiteral("comando.") + QString::fromLatin1(comando))) a->trigger();
    for (const Modulo &m : TavolaModuli()) app::CaricaForm(b.s(), m.nome);
    b.f.ponte().sincronizza();
    QWidget &f = b.f;
    std::set<QString> t;
    const auto prendi = [&t](const QString &x) {
        QString s = x;
        s.remove(QLatin1Char('&'));
        static const QRegularExpression didascalia(
            QStringLiteral("«[^»]*»|\\(\\.\\w+\\)"));  // a caption, quoted as it stands; a file's ending
        s.remove(didascalia);
        s = s.simplified();
        static const QRegularExpression parola(QStringLiteral("[a-zà-ù]{3}"));
        if (s.contains(parola)) t.insert(s);
    };
    const auto oggetto = [&](QObject *o) {
        if (const auto *w = qobject_cast<QWidget *>(o)) {
            prendi(w->toolTip());
            prendi(w->accessibleName());
        }
        if (const auto *l = qobject_cast<QLabel *>(o)) prendi(l->text());
        if (const auto *b = qobject_cast<QAbstractButton *>(o)) prendi(b->text());
        if (const auto *a = qobject_cast<QAction *>(o)) prendi(a->text());
        if (const auto *m = qobject_cast<QMenu *>(o)) prendi(m->title());
        if (const auto *g = qobject_cast<QGroupBox *>(o)) prendi(g->title());
        if (const auto *d = qobject_cast<QDockWidget *>(o)) prendi(d->windowTitle());
        if (const auto *e = qobject_cast<QLineEdit *>(o)) prendi(e->placeholderText());
        if (const auto *n = qobject_cast<QSpinBox *>(o)) prendi(n->prefix() + n->suffix()), prendi(n->specialValueText());
        if (const auto *w = qobject_cast<QWidget *>(o); w && w->isWindow()) prendi(w->windowTitle());
        if (const auto *s = qobject_cast<QTabBar *>(o))
            for (int i = 0; i < s->count(); ++i) prendi(s->tabText(i));
        if (const auto *c = qobject_cast<QComboBox *>(o); c && c->objectName() != QStringLiteral("cmbStati"))
            for (int i = 0; i < c->count(); ++i) prendi(c->itemText(i));
        if (const auto *t = qobject_cast<QAbstractItemView *>(o); t && t->model())
            for (int i = 0; i < t->model()->columnCount(); ++i) prendi(t->model()->headerData(i, Qt::Horizontal).toString());
    };
    oggetto(&f);
    for (QObject *o : f.findChildren<QObject *>()) oggetto(o);
    return t;
}

TEST(Aspetto, NoTextStaysItalian) {
    std::set<QString> italiani;
    {
        BancoFinestra b;
        italiani = testi(b);
    }
    ASSERT_GT(italiani.size(), 150U);
    for (const Lingua &l : Lingue()) {
        const std::string lingua = FileDi(l)[0];
        if (lingua.empty()) continue;
        QFile::remove(QStringLiteral("DBC2008.txt"));
        ASSERT_TRUE(QFile::copy(QStringLiteral(OMBRELIA_RADICE "/data/") + desktop::Q(lingua), QStringLiteral("DBC2008.txt")));
        BancoFinestra b;
        // What the dictionaries keep as it is.
        std::set<QString> tenuti;
        for (const auto &[da, a] : b.s().dizionario.Voci())
            if (QString d = desktop::Q(da).remove(QLatin1Char('&')).simplified();
                d.compare(desktop::Q(a).remove(QLatin1Char('&')).simplified(), Qt::CaseInsensitive) == 0)
                tenuti.insert(d);
        for (const Lingua &altra : Lingue()) tenuti.insert(desktop::Q(altra.nome));  // each calls itself so
        for (const QString &t : testi(b))
            if (italiani.contains(t) && !tenuti.contains(t)) ADD_FAILURE() << lingua << ": " << t.toStdString();
    }
    QFile::remove(QStringLiteral("DBC2008.txt"));
}

}  // namespace
}  // namespace ombrelia
