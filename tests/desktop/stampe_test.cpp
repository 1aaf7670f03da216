// What the window puts on paper, read back by another program.
#include <QFile>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QToolButton>
#include <set>
#include <tuple>

#include "app/rapporti.h"
#include "desktop/banco.h"
#include "desktop/pannello_certificato.h"
#include "desktop/tavole_rapporto.h"
#include "reports/rapporti.h"

namespace ombrelia {
namespace {

using prova::BancoFinestra;

// Lines of a PDF as they stand on its pages.
QSet<QString> righeDelPdf(const QString &file) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), file, QStringLiteral("-")});
    p.waitForFinished(60000);
    QSet<QString> righe;
    for (const QString &riga : QString::fromUtf8(p.readAllStandardOutput()).split(QRegularExpression(QStringLiteral("[\n\f]"))))
        righe << riga.simplified();
    return righe;
}

std::string letto(const std::string &file) {
    QFile f(QString::fromStdString(file));
    return f.open(QIODevice::ReadOnly) ? f.readAll().toStdString() : std::string();
}

// Rows of a page's tables behind its first table's head, cells parted by blanks.
QStringList righeDellHtml(const std::string &html) {
    static const QRegularExpression riga(QStringLiteral("<tr[^>]*>(<td.*?)</tr>")), segni(QStringLiteral("<[^>]*>"));
    const QString t = desktop::Q(html).replace(QStringLiteral("&quot;"), QStringLiteral("\""));
    QStringList righe;
    for (auto i = riga.globalMatch(t, std::max<qsizetype>(0, t.indexOf(QStringLiteral("<thead>")))); i.hasNext();)
        righe << i.next().captured(1).replace(segni, QStringLiteral(" ")).simplified();
    return righe;
}

void ciSonoTutte(const QStringList &attese, const QString &file, const std::string &chi) {
    const QSet<QString> lette = righeDelPdf(file);
    ASSERT_GT(attese.size(), 5) << chi;
    qsizetype manca = 0;
    for (const QString &riga : attese)
        if (!lette.contains(riga) && manca++ == 0) ADD_FAILURE() << chi << ": not on one line: " << riga.toStdString();
    EXPECT_EQ(manca, 0) << chi << " of " << attese.size();
}

TEST(Stampe, CertificateAndReportsHaveEachRowOnOneLine) {
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty()) GTEST_SKIP() << "needs poppler-utils";
    BancoFinestra b;
    b.vivo()->setChecked(false);
    b.scrivi("txtInc", "0");
    b.scrivi("TxtFraz", "2");
    for (const char *c : {"chkOreAstronomiche", "Ck_DayLightCurves", "ck_Lemniscate", "ck_Triangolo"})
        if (!b.w<QAbstractButton>(c)->isChecked()) b.spunta(c);
    b.premi("Tavolo1.cmdPulisci");
    b.premi("cmdRun");
    auto *certificato =
        dynamic_cast<desktop::PannelloCertificato *>(b.f.findChild<QWidget *>(QStringLiteral("pannelloCertificato")));
    ASSERT_TRUE(certificato);
    QPushButton *stampa = nullptr, *salva = nullptr;
    for (QPushButton *p : certificato->findChildren<QPushButton *>()) {
        if (p->text().startsWith(QStringLiteral("Stampa"))) stampa = p;
        if (p->text().startsWith(QStringLiteral("Salva"))) salva = p;
    }
    ASSERT_TRUE(stampa && salva);
    ASSERT_TRUE(QTest::qWaitFor([&] { return stampa->isEnabled() && certificato->certificato().righe.size() > 20; }, 20000));
    b.dialoghi.stampaSu = QStringLiteral("certificato.pdf");
    stampa->click();
    b.dialoghi.risposte = {"certificato.html"};
    salva->click();
    ciSonoTutte(righeDellHtml(letto("certificato.html")), b.dialoghi.stampaSu, "certificate");
    for (const app::VoceRapporto &r : app::ElencoRapporti()) {
        if (r.controllo == NESSUN_CONTROLLO || !app::HaRapporto(b.s(), r) || !b.s().stato(r.controllo).abilitato) continue;
        b.f.ponte().premi(r.controllo);
        desktop::TavoleRapporto *tavole = b.f.moduli().tavole(r.modulo);
        if (!tavole) continue;
        const std::string nome(r.modulo);
        for (const char *forma : {"PDF", "HTML"}) {
            b.dialoghi.risposte = {nome + "." + forma};
            for (QToolButton *p : tavole->findChildren<QToolButton *>())
                if (p->text() == QLatin1String(forma)) p->click();
        }
        ciSonoTutte(righeDellHtml(letto(nome + ".HTML")), desktop::Q(nome + ".PDF"), nome);
        b.f.moduli().modulo(r.modulo)->close();
    }
}

// Widths and heights of a PDF's pages, points.
std::vector<std::pair<double, double>> pagineDelPdf(const std::string &file) {
    std::vector<std::pair<double, double>> pagine;
    static const QRegularExpression scatola(QStringLiteral("/MediaBox \\[ ?([-0-9.]+) ([-0-9.]+) ([-0-9.]+) ([-0-9.]+)"));
    for (auto i = scatola.globalMatch(QString::fromLatin1(QByteArray::fromStdString(letto(file)))); i.hasNext();) {
        const auto m = i.next();
        pagine.emplace_back(m.captured(3).toDouble() - m.captured(1).toDouble(),
                            m.captured(4).toDouble() - m.captured(2).toDouble());
    }
    return pagine;
}

TEST(Stampe, ChosenTilesGoOutAloneAndThoseOfAnotherPaperAreChosenAnew) {
    BancoFinestra b;
    b.spunta("chkOreAstronomiche");
    b.adatta();
    b.premi("cmdRun");
    const auto pdf = [&] {
        b.dialoghi.risposte = {"piastrelle.pdf"};
        b.comando("esportaPdf");
        return pagineDelPdf("piastrelle.pdf").size();
    };
    EXPECT_EQ(pdf(), 1U);
    EXPECT_TRUE(b.dialoghi.domande.empty()) << "no tile is chosen";
    b.comando("scegliPagine");
    const std::size_t scelte = b.s().tavolo.lista().Aree.size();
    ASSERT_GT(scelte, 2U);
    EXPECT_EQ(pdf(), scelte);
    b.dialoghi.si = false;
    EXPECT_EQ(pdf(), 1U);
    EXPECT_EQ(b.dialoghi.domande.size(), 2U);
    // A printer that takes A5 alone: its own tiles, and a word about it.
    b.premi("Tavolo1.cmdStampa");
    b.w<QAbstractButton>("Tavolo1.optSelected")->click();
    b.dialoghi.stampaSu = QStringLiteral("altra.pdf");
    b.dialoghi.cartaSua = QPageSize::A5;
    b.premi("Tavolo1.cmdPOk");
    QCoreApplication::processEvents();
    ASSERT_EQ(b.dialoghi.avvisi.size(), 1U);
    EXPECT_NE(b.dialoghi.avvisi[0].find("148"), std::string::npos) << b.dialoghi.avvisi[0];
    EXPECT_GT(b.s().tavolo.lista().Aree.size(), scelte);
    EXPECT_EQ(pagineDelPdf("altra.pdf").size(), b.s().tavolo.lista().Aree.size());
}

// An upright A4 holds 113 letters of 7.5 points between its margins; longer rows want it on its side.
TEST(Stampe, AReportTurnsThePageAsItsRowsNeedIt) {
    BancoFinestra b;
    b.scrivi("txtInc", "0");
    std::set<bool> visti;
    for (const auto &[comando, modulo, menu] : {std::tuple{"cmdData", "Form1", "menuFond"}, {"OptInter", "Form6", "mnu_Print"}}) {
        b.f.ponte().premi(TrovaControllo(comando));
        QWidget *w = b.f.moduli().modulo(modulo);
        qsizetype lunga = 0;
        for (const QString &riga :
             w->findChild<QPlainTextEdit *>(QStringLiteral("testo"))->toPlainText().split(QLatin1Char('\n')))
            lunga = std::max(lunga, riga.size());
        b.dialoghi.stampaSu = QStringLiteral("rapporto.pdf");
        w->findChild<QAction *>(QLatin1String(menu))->trigger();
        ASSERT_FALSE(pagineDelPdf("rapporto.pdf").empty());
        const auto [larga, alta] = pagineDelPdf("rapporto.pdf")[0];
        EXPECT_EQ(larga > alta, lunga > 113) << modulo << ' ' << lunga;
        visti.insert(larga > alta);
    }
    EXPECT_EQ(visti.size(), 2U);
}

}  // namespace
}  // namespace ombrelia
