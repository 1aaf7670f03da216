// What the sheet shows and what is laid over it, seen in the picture as its user sees it.
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QDockWidget>
#include <QLabel>
#include <QLineF>
#include <QMouseEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSlider>
#include <QTableView>
#include <QTableWidget>
#include <QTimeEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <cmath>
#include <numbers>
#include <set>

#include "desktop/banco.h"
#include "desktop/pannello_certificato.h"
#include "desktop/tavole_rapporto.h"

namespace ombrelia {
namespace {

using desktop::Foglio;
using prova::BancoFinestra;

QImage veduta(BancoFinestra &b) {
    return b.f.quadro().foglio().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Where the list's point is seen, dots.
QPointF visto(BancoFinestra &b, double x, double y) { return b.f.quadro().foglio().daMondo({x, y}); }

double lontani(const QPointF &a, const QPointF &b) { return QLineF(a, b).length(); }

// Dots that two pictures show differently.
std::vector<QPointF> diversi(const QImage &a, const QImage &b) {
    std::vector<QPointF> d;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y)) d.emplace_back(x + 0.5, y + 0.5);
    return d;
}

bool vicino(const std::vector<QPointF> &punti, const QPointF &a, double quanto) {
    return std::any_of(punti.begin(), punti.end(), [&](const QPointF &p) { return lontani(p, a) <= quanto; });
}

void apriMolo(BancoFinestra &b, const char *nome) {
    auto *molo = b.f.findChild<QDockWidget *>(QLatin1String(nome));
    molo->show();
    molo->raise();
    QCoreApplication::processEvents();
}

void trascina(QWidget *w, const QPoint &da, const QPoint &a) {
    const auto manda = [w](QEvent::Type tipo, const QPointF &dove, Qt::MouseButton b, Qt::MouseButtons tenuti) {
        QMouseEvent e(tipo, dove, w->mapToGlobal(dove), b, tenuti, Qt::NoModifier);
        QCoreApplication::sendEvent(w, &e);
    };
    manda(QEvent::MouseButtonPress, da, Qt::LeftButton, Qt::LeftButton);
    manda(QEvent::MouseMove, (da + a) / 2, Qt::NoButton, Qt::LeftButton);
    manda(QEvent::MouseMove, a, Qt::NoButton, Qt::LeftButton);
    manda(QEvent::MouseButtonRelease, a, Qt::LeftButton, Qt::NoButton);
}

TEST(SulFoglio, APressChoosesTheNearestOfTwoLines) {
    BancoFinestra b;
    Foglio &foglio = b.f.quadro().foglio();
    Tavolo &t = b.s().tavolo;
    const QPointF mezzo = foglio.suMondo(QPointF(foglio.viewport()->rect().center()));
    const double punto = foglio.metriAlPunto();
    for (const auto &[ora, dove] : {std::pair{9.0, 0.0}, {10.0, 3.0}}) {
        const Pretendi pretesa(t, Specie::Ora, ora);
        const double x = mezzo.x() + dove * punto;
        t.TracciaLinea(x, mezzo.y() - 0.05, x, mezzo.y() + 0.05, 0);
    }
    foglio.cambiato();
    for (const auto &[dove, ora] : {std::pair{-1.0, 9.0}, {1.0, 9.0}, {2.0, 10.0}, {4.0, 10.0}}) {
        foglio.suClic(foglio.daMondo(mezzo + QPointF(dove * punto, 0)));
        ASSERT_TRUE(foglio.stile().scelta) << dove;
        EXPECT_EQ(foglio.stile().scelta->second, ora) << dove;
    }
}

// 100 mm of the dial are 100 mm of the screen, whatever the sheet's scale; a scale is a step that can be taken back.
TEST(SulFoglio, TrueSizeIsTrueAtAnyScale) {
    BancoFinestra b;
    Foglio &foglio = b.f.quadro().foglio();
    for (const char *scala : {"1:5", "1:20"}) {
        emit b.w<QComboBox>("Tavolo1.cmbScala")->textActivated(QLatin1String(scala));
        b.comando("vero");
        EXPECT_NEAR(lontani(foglio.daMondo({0, 0}), foglio.daMondo({0.1, 0})), 100 / 25.4 * foglio.physicalDpiX(), 0.1) << scala;
    }
    EXPECT_EQ(b.s().tavolo.Scala(), 20);
    b.f.passi().undo();
    EXPECT_EQ(b.s().tavolo.Scala(), 5);
    EXPECT_EQ(b.w<QComboBox>("Tavolo1.cmbScala")->currentText(), QStringLiteral("1:5"));
}

TEST(SulFoglio, TheHandTheReadOutAndTheRuleAgree) {
    double mm = 0, gradi = 0;
    BancoFinestra b;
    b.scrivi("txtY0", "1.2");
    b.scrivi("txtY1", ".4");
    // A sheet much larger than the frame, which lies well above the foot.
    Tavolo &t = b.s().tavolo;
    t.QuadranteL(4), t.QuadranteH(4), t.ShiftX(2), t.ShiftY(2);
    b.f.quadro().aggiorna();
    Foglio &foglio = b.f.quadro().foglio();
    QWidget *tela = foglio.viewport();
    b.comando("allaCornice");
    const auto campo = [&](const char *nome) { return std::stod(b.campo(nome)); };
    const QRectF cornice(QPointF(campo("txtX0"), campo("txtY0")), QPointF(campo("txtX1"), campo("txtY1")));
    EXPECT_LT(lontani(foglio.daMondo(cornice.center()), QRectF(tela->rect()).center()), 3) << "the frame in the middle";
    // What the hand takes goes along.
    foglio.ingrandisci(4);
    const QPoint mezzo = tela->rect().center();
    const QPointF preso = foglio.suMondo(mezzo);
    trascina(tela, mezzo, mezzo + QPoint(60, -30));
    EXPECT_LT(lontani(foglio.daMondo(preso), mezzo + QPoint(60, -30)), 2);
    // What lies under the pointer, by the numbers at the foot.
    QTest::mouseMove(tela, mezzo + QPoint(50, 80));
    QLabel *letta = nullptr;
    for (auto *l : b.f.findChildren<QLabel *>())
        if (l->toolTip().startsWith(QStringLiteral("Sotto il puntatore"))) letta = l;
    ASSERT_TRUE(letta);
    const auto m = QRegularExpression(QStringLiteral("x (-?[0-9.]+) +y (-?[0-9.]+) mm")).match(letta->text());
    ASSERT_TRUE(m.hasMatch()) << letta->text().toStdString();
    const QPointF mondo(m.captured(1).toDouble() / 1000, -m.captured(2).toDouble() / 1000);  // y is told downward
    EXPECT_LT(lontani(foglio.daMondo(mondo), mezzo + QPoint(50, 80)), 2);
    // A rule laid to the right and a little up: 3, 4, 5.
    foglio.testoMisura = [&](double lungo, double angolo) {
        mm = lungo, gradi = angolo;
        return QStringLiteral("x");
    };
    b.comando("misura");
    trascina(tela, mezzo, mezzo + QPoint(80, -60));
    tela->grab();
    EXPECT_NEAR(mm, 100 * foglio.metriAlPunto() * 1000, 1e-6);
    EXPECT_NEAR(gradi, std::atan2(3, 4) * 180 / std::numbers::pi, 1e-6);
}

TEST(SulFoglio, TheLegendHasNoRowForAHiddenLayer) {
    BancoFinestra b;
    for (const char *c : {"chkOreAstronomiche", "Ck_DayLightCurves"}) b.spunta(c);
    b.adatta();
    b.premi("cmdRun");
    Foglio &foglio = b.f.quadro().foglio();
    foglio.ingrandisci(1);  // looked at closely it has one column
    const int alta = foglio.postoLegenda().height();
    apriMolo(b, "strati");
    b.f.findChild<QTreeWidget *>(QStringLiteral("alberoStrati"))->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    EXPECT_LT(foglio.postoLegenda().height(), alta);
}

TEST(SulFoglio, ADarkWindowHasADarkSheetAndItsMakersColours) {
    BancoFinestra b;
    Foglio &foglio = b.f.quadro().foglio();
    constexpr Colore VERDE = 0x12ab34;
    desktop::StileFoglio stile = foglio.stile();
    stile.strati[desktop::Strato(Specie::Ora)].colore = VERDE;
    stile.strati[desktop::Strato(Specie::Ora)].mio = true;
    foglio.stile(stile);
    const auto aspetto = [&](const char *quale) {
        for (QAction *a : b.f.findChildren<QAction *>())
            if (a->text() == QLatin1String(quale)) a->trigger();
    };
    const auto mezzo = [&] { return veduta(b).pixelColor(foglio.viewport()->rect().center()).lightness(); };
    aspetto("Scuro");
    EXPECT_LT(mezzo(), 60);
    EXPECT_EQ(foglio.stile().strati[desktop::Strato(Specie::Ora)].colore, VERDE);
    EXPECT_NE(foglio.stile().strati[desktop::Strato(Specie::Diurna)].colore,
              stile.strati[desktop::Strato(Specie::Diurna)].colore);
    aspetto("Chiaro");
    EXPECT_GT(mezzo(), 240);
    QSettings().remove(QStringLiteral("tema"));
}

// --- what is laid over it ----------------------------------------------------------------------------------------------------

struct BancoCertificato : BancoFinestra {
    desktop::PannelloCertificato *pannello = nullptr;
    QTableWidget *tavola = nullptr;
    QPushButton *correggi = nullptr;
    BancoCertificato() {
        apriMolo(*this, "certificato");
        pannello = dynamic_cast<desktop::PannelloCertificato *>(f.findChild<QWidget *>(QStringLiteral("pannelloCertificato")));
        tavola = f.findChild<QTableWidget *>(QStringLiteral("tavolaCertificato"));
        for (auto *p : pannello->findChildren<QPushButton *>())
            if (p->text() == QStringLiteral("Correggi")) correggi = p;
    }
    // The badge of the drawing that stands there.
    QString giudizio(const char *atteso) {
        (void)QTest::qWaitFor(
            [&] {
                return pannello->distintivo()->isEnabled() &&
                       pannello->distintivo()->text().startsWith(QString::fromUtf8(atteso));
            },
            10000);
        return pannello->distintivo()->text().left(1);
    }
};

TEST(SulFoglio, TheBadgeSaysWhatTheCertificateSays) {
    BancoCertificato b;
    for (const char *c : {"chkOreAstronomiche", "Ck_DayLightCurves"}) b.spunta(c);
    b.adatta();
    b.premi("cmdRun");
    {
        // An hour line that lies where no shadow of ten is.
        const Pretendi pretesa(b.s().tavolo, Specie::Ora, 10);
        b.s().tavolo.TracciaLinea(0.1, -0.1, 0.1, -0.3, 0);
    }
    b.f.quadro().foglio().cambiato();
    EXPECT_EQ(b.giudizio("✗"), QStringLiteral("✗"));
    EXPECT_TRUE(b.correggi->isEnabled());
    b.correggi->click();
    EXPECT_EQ(b.giudizio("✓"), QStringLiteral("✓"));
    EXPECT_FALSE(b.correggi->isEnabled());
    EXPECT_TRUE(b.w<QCheckBox>("ckCorretta")->isChecked());
    // An hour line errs in time, a day line in angle.
    std::set<QString> unita[2];
    for (int r = 0; r < b.tavola->rowCount(); ++r) {
        const auto &riga = b.pannello->certificato().righe[b.tavola->item(r, 0)->data(Qt::UserRole).toULongLong()];
        if (riga.specie == Specie::Ora) unita[0].insert(b.tavola->item(r, 3)->text().right(1));
        if (riga.specie == Specie::Diurna) unita[1].insert(b.tavola->item(r, 3)->text().right(1));
    }
    EXPECT_EQ(unita[0], std::set{QStringLiteral("s")});
    EXPECT_EQ(unita[1], std::set{QStringLiteral("′")});
}

TEST(SulFoglio, ARowOfTheCertificateLightsItsLine) {
    BancoCertificato b;
    for (const char *c : {"chkOreAstronomiche", "ckCorretta"}) b.spunta(c);
    b.adatta();
    b.premi("cmdRun");
    ASSERT_EQ(b.giudizio("✓"), QStringLiteral("✓"));
    const QImage prima = veduta(b);
    b.tavola->setCurrentCell(2, 0);
    const auto accesi = diversi(prima, veduta(b));
    const RigaCertificato &riga = b.pannello->certificato().righe[b.tavola->item(2, 0)->data(Qt::UserRole).toULongLong()];
    const Lista &l = b.s().tavolo.lista();
    std::size_t corde = 0, spente = 0;
    for (const Pretesa &p : l.pretese)
        for (std::size_t k = p.da; k < p.a && p.specie == riga.specie && p.valore == riga.valore; ++k) {
            const RecLinea &r = l.Linee[p.linea + (k - p.da)];
            const QPointF m = visto(b, (r.X1 + r.X2) / 2, (r.Y1 + r.Y2) / 2);
            ++corde;
            spente += !vicino(accesi, m, 1.5);
        }
    EXPECT_GT(corde, 0U);
    EXPECT_EQ(spente, 0U) << "of " << corde;
    // Another drawing has nothing lit.
    auto *sopra = b.f.findChild<QWidget *>(QStringLiteral("sopraFoglio"));
    EXPECT_FALSE(sopra->isHidden());
    b.premi("Tavolo1.cmdPulisci");
    EXPECT_TRUE(QTest::qWaitFor([&] { return sopra->isHidden(); }, 10000));
}

TEST(SulFoglio, ARowOfAReportIsMarkedAndCopiedAsItStands) {
    BancoFinestra b;
    b.scrivi("txtInc", "0");
    b.spunta("chkOreAstronomiche");
    b.adatta();
    b.premi("cmdRun");
    b.f.ponte().premi(TrovaControllo("OptInter"));
    desktop::TavoleRapporto *tavole = b.f.moduli().tavole("Form6");
    auto *tavola = tavole->findChild<QTableView *>(QStringLiteral("tavola"));
    const QAbstractItemModel &m = *tavola->model();
    QStringList teste;
    for (int c = 0; c < m.columnCount(); ++c) teste << m.headerData(c, Qt::Horizontal).toString();
    const QRectF dentro = b.f.quadro().foglio().vista().foglio(b.s().tavolo).adjusted(12, 12, -12, -12);
    const QImage nuda = veduta(b);
    int righe = 0;
    for (int r = 0; r < m.rowCount() && righe < 4; ++r) {
        std::vector<QPointF> attesi;
        for (int c = 0; c + 1 < m.columnCount(); ++c)
            if (teste[c].startsWith(QStringLiteral("ascissa")) && teste[c + 1].startsWith(QStringLiteral("ordinata")))
                attesi.push_back(
                    visto(b, m.index(r, c).data(Qt::UserRole).toDouble(), m.index(r, c + 1).data(Qt::UserRole).toDouble()));
        if (!std::ranges::all_of(attesi, [&](const QPointF &p) { return dentro.contains(p); })) continue;
        tavola->setCurrentIndex(m.index(r, 0));
        const auto segnati = diversi(nuda, veduta(b));
        for (const QPointF &p : attesi) EXPECT_TRUE(vicino(segnati, p, 2)) << "row " << r;
        EXPECT_TRUE(std::ranges::all_of(segnati, [&](const QPointF &p) { return vicino(attesi, p, 15); })) << "row " << r;
        ++righe;
    }
    EXPECT_EQ(righe, 4);
    const auto copiate = [&] {
        for (auto *p : tavole->findChildren<QToolButton *>())
            if (p->text() == QStringLiteral("Copia")) p->click();
        return QGuiApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    };
    ASSERT_EQ(copiate().size(), 2);
    EXPECT_EQ(copiate()[0].split(QLatin1Char('\t')), teste);
    const QModelIndex cella = tavola->currentIndex().siblingAtColumn(1);
    const QString intera = cella.data(Qt::ToolTipRole).toString();
    EXPECT_EQ(copiate()[1].section(QLatin1Char('\t'), 1, 1), intera.isEmpty() ? cella.data().toString() : intera);
    tavola->clearSelection();
    EXPECT_EQ(copiate().size(), 1 + m.rowCount());
}

// At ten of an equinox the tip's shadow lies where the ten o'clock line meets the equinoctial, on either half of the Earth.
TEST(SulFoglio, TheShadowFallsWhereTheLinesSay) {
    for (const char *lat : {"44", "-33"}) {
        BancoFinestra b;
        b.scrivi("txtLAT", lat);
        b.scrivi("txtDec", "0");
        b.scrivi("txtInc", "0");
        for (const char *c : {"chkOreAstronomiche", "ck_Equinoziale"}) b.spunta(c);
        b.adatta();
        b.premi("cmdRun");
        apriMolo(b, "tempo");
        auto *barra = b.f.findChild<QWidget *>(QStringLiteral("barraTempo"));
        const QList<QSlider *> cursori = barra->findChildren<QSlider *>();  // of the day, of the year
        barra->findChild<QDateEdit *>()->setDate(QDate(2026, 3, 20));
        auto *ora = barra->findChild<QTimeEdit *>();
        ora->setTime(QTime(9, 35));
        EXPECT_EQ(cursori[0]->value(), 9 * 60 + 35);
        const auto *detto = b.f.findChild<QLabel *>(QStringLiteral("esitoTempo"));
        for (int m = 8 * 60; m < 14 * 60 && !detto->text().contains(QStringLiteral("ora vera 10:00")); ++m)
            cursori[0]->setValue(m);
        ASSERT_TRUE(detto->text().contains(QStringLiteral("ora vera 10:00"))) << lat;
        // The nearest points of the two lines.
        const Lista &l = b.s().tavolo.lista();
        std::vector<QPointF> dieci, equinozio;
        for (const Pretesa &p : l.pretese)
            for (std::size_t k = p.linea; k < p.linea + (p.a - p.da); ++k) {
                const QPointF qui = visto(b, (l.Linee[k].X1 + l.Linee[k].X2) / 2, (l.Linee[k].Y1 + l.Linee[k].Y2) / 2);
                if (p.specie == Specie::Ora && p.valore == 10) dieci.push_back(qui);
                if (p.specie == Specie::Equinoziale) equinozio.push_back(qui);
            }
        QPointF attesa;
        double quanto = 1e9;
        for (const QPointF &p : dieci)
            for (const QPointF &q : equinozio)
                if (lontani(p, q) < quanto) quanto = lontani(p, q), attesa = (p + q) / 2;
        ASSERT_LT(quanto, 6) << lat;
        // The tip is a spot of one colour, wider than any line.
        const QImage i = veduta(b);
        const auto piena = [&](const QPoint &m) {
            constexpr int R = 2;
            bool si = i.pixelColor(m).hsvSaturation() > 60;
            for (int x = -R; x <= R; ++x)
                for (int y = -R; y <= R; ++y) si = si && i.pixel(m) == i.pixel(m + QPoint(x, y));
            return si;
        };
        bool trovata = false;
        constexpr int INTORNO = 5;
        for (int x = -INTORNO; x <= INTORNO; ++x)
            for (int y = -INTORNO; y <= INTORNO; ++y) trovata |= piena(attesa.toPoint() + QPoint(x, y));
        EXPECT_TRUE(trovata) << lat;
    }
}

}  // namespace
}  // namespace ombrelia
