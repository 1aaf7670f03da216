// True scale on paper, measured in the finished PDF by another program: page boxes, lengths, tiles that meet.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <cmath>

#include "paint/documenti.h"
#include "paint/impaginazione.h"
#include "paint/tavola_stampata.h"
#include "paint/testo_stampato.h"
#include "plot/lista_testo.h"

namespace ombrelia {
namespace {

constexpr int DPI = 600;
constexpr double MM = DPI / 25.4;  // dots
constexpr double ESATTO = 0.1;     // millimetres: a saw cut is wider
constexpr double A4_L = 210, A4_H = 297;

bool ceStrumento(const char *nome) { return !QStandardPaths::findExecutable(QString::fromLatin1(nome)).isEmpty(); }

QByteArray chiama(const char *nome, const QStringList &argomenti) {
    QProcess p;
    p.start(QString::fromLatin1(nome), argomenti);
    p.waitForFinished(60000);
    return p.readAllStandardOutput();
}

void salva(const QByteArray &pdf, const char *nome) {
    QFile f(QString::fromLatin1(nome));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(pdf);
}

// A strip of a page, millimetres from its top left corner, grey.
QImage striscia(const char *pdf, int pagina, double x, double y, double l, double h) {
    const auto n = [](double mm) { return QString::number(std::lround(mm * MM)); };
    const QString p = QString::number(pagina);
    const QByteArray pgm = chiama("pdftoppm", {"-r", QString::number(DPI), "-f", p, "-l", p, "-x", n(x), "-y", n(y), "-W", n(l),
                                               "-H", n(h), "-gray", QString::fromLatin1(pdf)});
    return QImage::fromData(pgm, "PGM").convertToFormat(QImage::Format_Grayscale8);
}

// Middles of the dark runs of a strip's row (or column), millimetres from its start.
std::vector<double> tratti(const QImage &i, int riga, bool colonne = false) {
    std::vector<double> r;
    double peso = 0, somma = 0;
    const int n = colonne ? i.height() : i.width();
    for (int k = 0; k < n; ++k) {
        const int buio = 255 - qGray(colonne ? i.pixel(riga, k) : i.pixel(k, riga));
        if (buio > 20) {
            peso += buio;
            somma += buio * (k + 0.5);
        } else if (peso > 0) {
            r.push_back(somma / peso / MM);
            peso = somma = 0;
        }
    }
    return r;
}

void foglio(Tavolo &t, double l, double h, double x, double y) {
    t.QuadranteL(l);
    t.QuadranteH(h);
    t.ShiftX(x);
    t.ShiftY(y);
}

TEST(Carta, ThePageAndTheSheet) {
    if (!ceStrumento("pdfinfo")) GTEST_SKIP() << "needs poppler-utils";
    struct Caso {
        double l, h;
    };
    for (const Caso &c : {Caso{0.2, 0.3}, Caso{1.0417, 0.8331}, Caso{0.0125, 0.5}}) {
        Tavolo t;
        foglio(t, c.l, c.h, 0, 0);
        t.xLine(0.001, 0.001, c.l - 0.001, c.h - 0.001, 0, "L");
        std::string errore;
        const QByteArray pdf = paint::PdfFoglio(t, errore);
        ASSERT_TRUE(errore.empty()) << errore;
        salva(pdf, "foglio.pdf");
        const QString detto = QString::fromUtf8(chiama("pdfinfo", {"foglio.pdf"}));
        const auto m = QRegularExpression(QStringLiteral("Page size:\\s+([0-9.]+) x ([0-9.]+) pts")).match(detto);
        ASSERT_TRUE(m.hasMatch()) << detto.toStdString();
        EXPECT_NEAR(m.captured(1).toDouble(), c.l / 0.0254 * 72, 0.01);
        EXPECT_NEAR(m.captured(2).toDouble(), c.h / 0.0254 * 72, 0.01);
    }
}

TEST(Carta, HundredMillimetresAtEveryScale) {
    if (!ceStrumento("pdftoppm")) GTEST_SKIP() << "needs poppler-utils";
    for (const int scala : {1, 2, 5}) {
        Tavolo t;
        foglio(t, 0.3, 0.2, 0.05, 0.05);
        t.Scala(scala);
        for (const double x : {0.02, 0.12}) t.xLine(x, -0.02, x, 0.05, QB(15), "L");
        t.xLine(-0.03, 0.07, 0.2, 0.07, QB(14), "L");
        t.xLine(-0.03, 0.09, 0.2, 0.09, QB(11), "L");
        std::string errore;
        salva(paint::PdfFoglio(t, errore), "cento.pdf");
        const std::vector<double> x = tratti(striscia("cento.pdf", 1, 0, 60, 300, 1), 5);
        ASSERT_EQ(x.size(), 2U) << scala;
        EXPECT_NEAR(x[0], 70, ESATTO);
        EXPECT_NEAR(x[1] - x[0], 100, ESATTO);
        const std::vector<double> y = tratti(striscia("cento.pdf", 1, 100, 0, 1, 200), 5, true);
        ASSERT_EQ(y.size(), 2U) << "light colours must be seen on paper";
        EXPECT_NEAR(y[1] - y[0], 20, ESATTO);
    }
}

void siIncontrano(const Carta &carta) {
    Tavolo t;
    t.Pagina(carta);
    foglio(t, 0.5, 0.6, 0.05, 0.04);
    t.Scala(3);
    const double l = t.LarghezzaPagina() * 1000, h = t.AltezzaPagina() * 1000;  // millimetres
    // World x of a place on the sheet.
    const auto mondo = [&t](double mm) { return mm / 1000 - t.ShiftX(); };
    for (const double mm : {150.0, 250.0}) t.xLine(mondo(mm), 0, mondo(mm), 0.5, 0, "L");
    // A slanted line over the seam of the first two tiles, and one over the seam of the rows.
    t.xLine(mondo(180), 0.02, mondo(215), 0.055, 0, "L");
    t.xLine(mondo(30), 0.20, mondo(80), 0.30, 0, "L");
    t.Marchio = "Prova";
    // Twice the first: it is then printed twice.
    for (const auto &[x, y] : {std::pair{0.1, 0.1}, std::pair{0.25, 0.1}, std::pair{0.1, 0.4}, std::pair{0.1, 0.1}})
        t.xTrovaA4(x, y);
    const std::string prima = ListaTesto(t.lista());

    const double bordoX = (carta.larga * 1000 - l) / 2, bordoY = (carta.alta * 1000 - h) / 2;
    QByteArray pdf = paint::PdfPiastrelle(t);
    EXPECT_EQ(ListaTesto(t.lista()), prima);  // marks and ruler are no records
    EXPECT_EQ(t.Scala(), 3);
    EXPECT_EQ(t.ShiftX(), 0.05);
    salva(pdf, "tessere.pdf");
    // Vertical lines, at a height free of slants: place in their tiles.
    const double su = bordoY + 150;
    const auto nella = [&](int pagina) { return tratti(striscia("tessere.pdf", pagina, bordoX + 1, su, l - 2, 1), 5); };
    const std::vector<double> una = nella(1), due = nella(2);
    ASSERT_EQ(una.size(), 1U);
    ASSERT_EQ(due.size(), 1U);
    EXPECT_NEAR(una[0] + 1, 150, ESATTO);
    EXPECT_NEAR(l - (una[0] + 1) + (due[0] + 1), 100, ESATTO);
    EXPECT_EQ(nella(4), una);
    // The slant leaves one tile where it enters the other: half a millimetre from the seam on both sides.
    const auto alta = [&](int pagina, double x) {
        const std::vector<double> y = tratti(striscia("tessere.pdf", pagina, x, bordoY + 40, 0.2, 60), 2, true);
        return y.size() == 1 ? y[0] : std::nan("");
    };
    EXPECT_NEAR(alta(2, bordoX + 0.5) - alta(1, bordoX + l - 0.7), 1.2, ESATTO);
    const auto larga = [&](int pagina, double y) {
        const std::vector<double> x = tratti(striscia("tessere.pdf", pagina, bordoX + 20, y, 100, 0.2), 2);
        return x.size() == 1 ? x[0] : std::nan("");
    };
    EXPECT_NEAR(larga(3, bordoY + 0.5) - larga(1, bordoY + h - 0.7), 0.6, ESATTO);
    // The ruler below the tile: its two long ends.
    const std::vector<double> righello = tratti(striscia("tessere.pdf", 1, bordoX + 10, bordoY + h + 1.5 + 2.2, 130, 0.2), 2);
    ASSERT_GE(righello.size(), 2U);
    EXPECT_NEAR(righello[1] - righello[0], 100, ESATTO);
}

TEST(Carta, TilesMeet) {
    if (!ceStrumento("pdftoppm")) GTEST_SKIP() << "needs poppler-utils";
    for (const CartaNota &nota : CARTE_NOTE) {
        if (nota.carta.larga > 0.25) continue;  // both slants lie on its first tile
        SCOPED_TRACE(nota.nome);
        siIncontrano(nota.carta);
    }
}

// "Whole Area" in the middle of whatever paper there is; of a sheet larger than the page nothing lies where a printer doesn't
// reach.
TEST(Carta, TheWholeSheetStandsInTheMiddleOfItsPaper) {
    if (!ceStrumento("pdftoppm")) GTEST_SKIP() << "needs poppler-utils";
    struct Caso {
        QPageSize::PageSizeId carta;
        double larga, alta, l, h;  // millimetres of paper and of sheet
    };
    for (const Caso &c : {Caso{QPageSize::A4, A4_L, A4_H, 150, 200}, Caso{QPageSize::Letter, 215.9, 279.4, 150, 200},
                          Caso{QPageSize::A4, A4_L, A4_H, 200, 285}, Caso{QPageSize::Letter, 215.9, 279.4, 190, 290}}) {
        Tavolo t;
        foglio(t, c.l / 1000, c.h / 1000, 0, 0);
        t.Scala(1);
        ASSERT_EQ(t.Scala(), 1);
        // A line each 5 mm, both ways, from edge to edge.
        for (double x = 2; x < c.l; x += 5) t.xLine(x / 1000, 0, x / 1000, c.h / 1000, 0, "L");
        for (double y = 2; y < c.h; y += 5) t.xLine(0, y / 1000, c.l / 1000, y / 1000, 0, "L");
        QByteArray pdf;
        {
            QBuffer buffer(&pdf);
            buffer.open(QIODevice::WriteOnly);
            QPdfWriter w(&buffer);
            w.setPageSize(QPageSize(c.carta));
            paint::StampaTutto(t, w);
        }
        salva(pdf, "tutto.pdf");
        const bool ciSta = c.l < c.larga - 13 && c.h < c.alta - 15;
        const double daX = std::max(6.5, (c.larga - c.l) / 2), daY = std::max(7.5, (c.alta - c.h) / 2);
        const std::vector<double> x = tratti(striscia("tutto.pdf", 1, 0, daY + 4.5, c.larga, 0.5), 5),
                                  y = tratti(striscia("tutto.pdf", 1, daX + 4.5, 0, 0.5, c.alta), 5, true);
        ASSERT_GT(x.size(), 5U);
        ASSERT_GT(y.size(), 5U);
        EXPECT_NEAR(x.front(), daX + 2, ESATTO) << c.l << " on " << c.larga;
        EXPECT_NEAR(y.front(), daY + 2, ESATTO) << c.h << " on " << c.alta;
        EXPECT_LE(x.back(), c.larga - daX + ESATTO);
        EXPECT_LE(y.back(), c.alta - daY + ESATTO);
        if (ciSta) {
            EXPECT_NEAR(x.back() - x.front(), 5 * std::floor((c.l - 2.1) / 5), ESATTO);
        }
    }
}

TEST(Carta, StoppedOrEmptyTheyLeaveNothing) {
    Tavolo t;
    EXPECT_TRUE(paint::PdfPiastrelle(t).isEmpty());
    t.xTrovaA4(0.1, 0.1);
    std::size_t chiesto = 0;
    EXPECT_TRUE(paint::PdfPiastrelle(t, [&](std::size_t, std::size_t quante) {
                    chiesto = quante;
                    return false;
                }).isEmpty());
    EXPECT_EQ(chiesto, 1U);
    foglio(t, 0, 0.2, 0, 0);
    std::string errore;
    EXPECT_TRUE(paint::PdfFoglio(t, errore).isEmpty());
    EXPECT_FALSE(errore.empty());
    errore.clear();
    EXPECT_TRUE(paint::FileImmagine(t, "PNG", errore).isEmpty());
    EXPECT_FALSE(errore.empty());
}

TEST(Carta, PicturesOfTheSheetsSize) {
    Tavolo t;
    foglio(t, 0.6, 0.3, 0.1, 0.1);
    ASSERT_EQ(t.Scala(), 2);
    t.xBox(0, 0, 0.2, 0.1, QB(15), true, "Cornice");
    t.xLine(-0.05, 0.05, 0.4, 0.05, QB(12), "L");
    for (const char *formato : {"PNG", "BMP"}) {
        std::string errore;
        const QImage i = QImage::fromData(paint::FileImmagine(t, formato, errore));
        ASSERT_FALSE(i.isNull()) << formato << errore;
        const double u = paint::PUNTI_AL_POLLICE / 0.0254 / 2;
        EXPECT_EQ(i.width(), std::lround(0.6 * u));
        EXPECT_EQ(i.height(), std::lround(0.3 * u));
        EXPECT_EQ(i.dotsPerMeterX(), std::lround(u)) << "a print has the true size";
        const auto punto = [&](double x, double y) {
            return i.pixelColor(static_cast<int>((x + 0.1) * u), static_cast<int>((y + 0.1) * u));
        };
        EXPECT_EQ(punto(0.1, 0.02), QColor(Qt::white));  // the frame does not cover the dial
        EXPECT_LT(punto(0.1, 0.0).lightness(), 130);     // its outline is dark
        EXPECT_GT(punto(0.3, 0.05).red(), punto(0.3, 0.05).blue() + 80);
    }
}

// Pages cover the sheet whatever they share; a place that two of them show is at the same distance from both their seams.
TEST(Carta, PagesCoverTheSheetAndShareWhatTheyShould) {
    Tavolo t;
    foglio(t, 0.5, 0.6, 0, 0);
    t.xLine(0.175, 0.02, 0.175, 0.25, 0, "L");
    struct Caso {
        double margine, sovrapposizione;
        bool aLato;
    };
    for (const Caso &c : {Caso{0.0075, 0, false}, {0.0075, 0.01, false}, {0.01, 0.04, true}, {0, 0.05, false}}) {
        paint::Impaginazione come{.margine = c.margine, .sovrapposizione = c.sovrapposizione};
        if (c.aLato) std::swap(come.carta.larga, come.carta.alta);
        const auto pagine = paint::PagineDi(t, come);
        ASSERT_FALSE(pagine.empty());
        EXPECT_GE(pagine.back().x + pagine.back().larga, 0.5 - 1e-9);
        EXPECT_GE(pagine.back().y + pagine.back().alta, 0.6 - 1e-9);
        for (std::size_t i = 1; i < pagine.size(); ++i) {
            EXPECT_EQ(pagine[i].numero, static_cast<int>(i) + 1);
            const double comune = pagine[i - 1].x + pagine[i - 1].larga - pagine[i].x;
            EXPECT_TRUE(pagine[i].riga != pagine[i - 1].riga || std::fabs(comune - c.sovrapposizione) < 1e-9) << comune;
        }
        for (const paint::PaginaFoglio &p : pagine)
            EXPECT_EQ(p.piena, p.x <= 0.175 && 0.175 < p.x + p.larga && p.y < 0.25 && p.y + p.alta > 0.02) << p.numero;
    }
    EXPECT_TRUE(paint::PagineDi(t, {.margine = 0.11}).empty());
    EXPECT_TRUE(paint::PagineDi(t, {.sovrapposizione = 0.3}).empty());
    if (!ceStrumento("pdftoppm")) GTEST_SKIP() << "needs poppler-utils";
    const paint::Impaginazione come{.sovrapposizione = 0.04};
    auto pagine = paint::PagineDi(t, come);
    std::erase_if(pagine, [](const paint::PaginaFoglio &p) { return !p.piena || p.riga > 0; });
    ASSERT_EQ(pagine.size(), 2U);
    salva(paint::PdfPagine(t, pagine, come), "unite.pdf");
    for (const int p : {1, 2}) {
        // On its own page the line's place is the sheet's; a seam is grey and dashed.
        const std::vector<double> x = tratti(striscia("unite.pdf", p, 8, 60, A4_L - 16, 8), 4);
        double vicina = 1e9;
        const double attesa = 175 - 1000 * pagine[static_cast<std::size_t>(p - 1)].x + 7.5 - 8;
        for (const double q : x) vicina = std::fabs(q - attesa) < std::fabs(vicina - attesa) ? q : vicina;
        EXPECT_NEAR(vicina, attesa, ESATTO) << p;
        const QString numero = QString::number(p),
                      detta = QString::fromUtf8(chiama("pdftotext", {"-f", numero, "-l", numero, "unite.pdf", "-"}));
        EXPECT_EQ(detta.trimmed().section(QRegularExpression(QStringLiteral("\\s")), 0, 0), numero);
    }
}

// Each row of a table with a head stands on one line, upright or on the side, under a head on each page; a paragraph may be
// broken.
TEST(Carta, RowsOfTablesStandOnOneLine) {
    if (!ceStrumento("pdftotext")) GTEST_SKIP() << "needs poppler-utils";
    struct Caso {
        int colonne;
        bool orizzontale, spezzate;
    };
    for (const Caso &c : {Caso{4, false, false}, {11, false, false}, {16, true, false}, {40, true, true}}) {
        constexpr int RIGHE = 120;
        QString html = QStringLiteral("<html><head><style></style></head><body><h1>Ore</h1><p>") +
                       QStringLiteral("parola ").repeated(60) + QStringLiteral("</p><table><thead><tr>");
        for (int k = 0; k < c.colonne; ++k) html += QStringLiteral("<th>colonna numero%1</th>").arg(k);
        html += QStringLiteral("</tr></thead>");
        QStringList righe;
        for (int r = 0; r < RIGHE; ++r) {
            QStringList celle;
            for (int k = 0; k < c.colonne; ++k) celle << QStringLiteral("r%1 %2.5").arg(r).arg(1000 + k);
            righe << celle.join(QLatin1Char(' '));
            html += QStringLiteral("<tr><td>") + celle.join(QStringLiteral("</td><td>")) + QStringLiteral("</td></tr>");
        }
        const paint::TavolaStampata t{QStringLiteral("Ore vere"), QStringLiteral("Torino"), html + QStringLiteral("</table>"), 8};
        QBuffer niente;
        niente.open(QIODevice::WriteOnly);
        QPdfWriter w(&niente);
        w.setPageSize(QPageSize(QPageSize::A4));
        const paint::Composizione come = paint::ComponiTavola(t, w);
        EXPECT_EQ(come.orizzontale, c.orizzontale) << c.colonne;
        EXPECT_EQ(come.spezzate, c.spezzate) << c.colonne;
        salva(paint::PdfTavola(t), "tavola.pdf");
        const QString letto = QString::fromUtf8(chiama("pdftotext", {"-layout", "tavola.pdf", "-"}));
        const int pagine = static_cast<int>(letto.count(QLatin1Char('\f')));
        QSet<QString> lette;
        for (const QString &riga : letto.split(QRegularExpression(QStringLiteral("[\n\f]")))) lette << riga.simplified();
        int intere = 0;
        for (const QString &riga : righe) intere += lette.contains(riga);
        EXPECT_EQ(intere == RIGHE, !c.spezzate) << c.colonne << ": " << intere;
        EXPECT_EQ(letto.count(QRegularExpression(QStringLiteral("numero0\\b"))), pagine) << "the table's head on each page";
        EXPECT_EQ(letto.count(QStringLiteral("Ore vere")), pagine - 1) << "the first page has the document's own title";
        EXPECT_TRUE(letto.contains(QStringLiteral("%1/%1").arg(pagine)));
        EXPECT_TRUE(
            letto.section(QLatin1Char('\f'), 0, 0).contains(QRegularExpression(QStringLiteral("\\s1/%1\\s").arg(pagine))));
    }
}

// Rows stay whole while letters of six points hold them, upright or on the side; each page has its head and its number.
TEST(Carta, PrintedRowsAreNotBroken) {
    struct Caso {
        int lettere;
        bool orizzontale, spezzate;
        double daCorpo, aCorpo;
    };
    for (const Caso &c : {Caso{40, false, false, 10, 10},
                          {106, false, false, 7.5, 8.2},
                          {148, true, false, 8, 9},
                          {200, true, false, 6, 6.5},
                          {260, true, true, 6, 6}}) {
        paint::TestoStampato t{QStringLiteral("Ore vere"), QStringLiteral("Torino"), {}};
        constexpr int RIGHE = 150;
        for (int i = 0; i < RIGHE; ++i) {
            QString riga = QStringLiteral("r%1 ").arg(i);
            while (riga.size() < c.lettere - 4) riga += QStringLiteral("1.5 ");
            t.righe.push_back(
                {riga + QStringLiteral("fine").left(c.lettere - static_cast<int>(riga.size())), i == 0 ? QB(12) : 0});
        }
        QByteArray pdf;
        paint::Composizione come;
        {
            QBuffer buffer(&pdf);
            buffer.open(QIODevice::WriteOnly);
            QPdfWriter w(&buffer);
            w.setPageSize(QPageSize(QPageSize::A4));
            come = paint::ComponiTesto(t, w);
            w.setPageOrientation(come.orizzontale ? QPageLayout::Landscape : QPageLayout::Portrait);
            come = paint::StampaTesto(t, w);
        }
        EXPECT_EQ(come.orizzontale, c.orizzontale) << c.lettere;
        EXPECT_EQ(come.spezzate, c.spezzate) << c.lettere;
        EXPECT_GE(come.corpo, c.daCorpo - 1e-9) << c.lettere;
        EXPECT_LE(come.corpo, c.aCorpo + 1e-9) << c.lettere;
        if (!ceStrumento("pdftotext")) continue;
        salva(pdf, "righe.pdf");
        const QString letto = QString::fromUtf8(chiama("pdftotext", {"-layout", "righe.pdf", "-"}));
        EXPECT_EQ(letto.count(QStringLiteral("Ore vere")), come.pagine) << "a head on each page";
        EXPECT_TRUE(letto.contains(QStringLiteral("%1/%1").arg(come.pagine)));
        int intere = 0;
        for (const QString &riga : letto.split(QLatin1Char('\n'))) {
            const QString r = riga.trimmed();
            intere += r.startsWith(QLatin1Char('r')) && r.contains(QLatin1Char('f'));
        }
        EXPECT_EQ(intere == RIGHE, !c.spezzate) << c.lettere << ": " << intere;
        // The first row is red, the next ones are black.
        const QImage pagina = QImage::fromData(chiama("pdftoppm", {"-r", "150", "-l", "1", "righe.pdf"}), "PPM");
        int rossi = 0, neri = 0;
        for (int y = 0; y < pagina.height(); ++y)
            for (int x = 0; x < pagina.width(); ++x) {
                const QColor q = pagina.pixelColor(x, y);
                rossi += q.red() > 150 && q.green() < 100 && q.blue() < 100;
                neri += q.value() < 60;
            }
        EXPECT_GT(rossi, 100) << c.lettere;
        EXPECT_GT(neri, 20 * rossi) << c.lettere;
    }
}

}  // namespace
}  // namespace ombrelia
