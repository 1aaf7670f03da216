// What the window puts on paper, read back by another program.
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QToolButton>

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
    b.scrivi("TxtFraz", "4");
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
        b.f.ponte().premi(RigaDi(r.controllo).nome);
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

}  // namespace
}  // namespace ombrelia
