// The window's shell: every command has its icon and keys of its own, every control its help and name, Tab follows the eye, a
// line has looks of its own, steps are a list, examples have pictures.
#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStandardPaths>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>
#include <QUndoView>
#include <map>

#include "desktop/aiuti.h"
#include "desktop/banco.h"
#include "desktop/comandi.h"
#include "desktop/esempi.h"
#include "desktop/icone.h"
#include "desktop/manuale.h"

namespace ombrelia {
namespace {

using prova::BancoFinestra;

QImage immagine(const QIcon &i, int lato = 48) { return i.pixmap(QSize(lato, lato)).toImage(); }

TEST(Guscio, PathsOfIconsAreReadAsTheFormatSaysThem) {
    struct Caso {
        const char *d;
        QRectF dove;
        QPointF fine;
    };
    // By hand: compact numbers and flags, relative moves, arcs both ways round, reflected handles.
    const Caso casi[] = {
        {"M2 3h4v5H2z", {2, 3, 4, 5}, {2, 3}},
        {"m1,1 2-2.5.5.5", {1, -1.5, 2.5, 2.5}, {3.5, -1}},
        {"M0 10A10 10 0 0 1 20 10", {0, 0, 20, 10}, {20, 10}},
        {"M0 10a10 10 0 0020 0", {0, 10, 20, 10}, {20, 10}},
        {"M10 0A10 10 0 1 0 20 10", {0, 0, 20, 20}, {20, 10}},
        {"M0 0C0 4 4 4 4 0S8-4 8 0", {0, -3, 8, 6}, {8, 0}},
        {"M0 0Q2 4 4 0T8 0", {0, -2, 8, 4}, {8, 0}},
        {"M1 1L5 5 x9 9", {1, 1, 4, 4}, {5, 5}},  // what can't be read ends it
    };
    for (const Caso &c : casi) {
        const QPainterPath p = desktop::PercorsoSvg(QString::fromLatin1(c.d));
        const QRectF r = p.boundingRect();
        for (const double d :
             {r.left() - c.dove.left(), r.top() - c.dove.top(), r.right() - c.dove.right(), r.bottom() - c.dove.bottom(),
              p.currentPosition().x() - c.fine.x(), p.currentPosition().y() - c.fine.y()})
            EXPECT_LT(std::abs(d), 0.01) << c.d << ' ' << r.left() << ' ' << r.top() << ' ' << r.right() << ' ' << r.bottom();
    }
}

TEST(Guscio, EveryCommandHasItsIconAndKeysOfItsOwn) {
    std::map<std::string, std::string_view> tasti;
    for (const desktop::Comando &c : desktop::TavolaComandi()) {
        if (!c.icona.empty()) {
            // Strokes in the palette's ink, and inside the icon.
            const QImage i = immagine(desktop::IconaDi(c.icona));
            ASSERT_FALSE(i.isNull()) << c.icona;
            int pieni = 0;
            for (int y = 0; y < i.height(); ++y)
                for (int x = 0; x < i.width(); ++x) pieni += qAlpha(i.pixel(x, y)) > 128;
            EXPECT_GT(pieni, 60) << c.icona;
            EXPECT_LT(pieni, i.width() * i.height() / 2) << c.icona;
        }
        if (!*c.tasti) continue;
        for (const QKeySequence &k : QKeySequence::listFromString(QString::fromLatin1(c.tasti))) {
            ASSERT_FALSE(k.isEmpty()) << c.tasti;
            const auto [altro, nuovo] = tasti.emplace(k.toString().toStdString(), c.nome);
            EXPECT_TRUE(nuovo) << c.nome << " and " << altro->second << ": " << altro->first;
        }
    }
    EXPECT_TRUE(desktop::IconaDi("no such icon").isNull());
    // No two entries of the window answer to the same keys.
    BancoFinestra b;
    std::map<QString, QString> chi;
    for (const QAction *a : b.f.findChildren<QAction *>())
        for (const QKeySequence &k : a->shortcuts()) {
            if (a->parent() != &b.f && !qobject_cast<QMenu *>(a->parent())) continue;  // of a form of its own
            const auto [altra, nuova] = chi.try_emplace(k.toString(), a->text());
            EXPECT_TRUE(nuova) << k.toString().toStdString() << ": " << a->text().toStdString() << ", "
                               << altra->second.toStdString();
        }
    EXPECT_GT(chi.size(), 20U);
}

TEST(Guscio, EveryControlHasANameATipAndAnAnswer) {
    BancoFinestra b;
    std::size_t visti = 0, disegnati = 0;
    for (const Controllo &c : TavolaControlli()) {
        const bool prende = c.classe == Classe::Testo || c.classe == Classe::Casella || c.classe == Classe::Opzione ||
                            c.classe == Classe::Pulsante || c.classe == Classe::Elenco;
        if (!prende || (c.modulo != "MDIForm1" && c.modulo != "Tavolo1" && c.modulo != "frmDeclin")) continue;
        const IdControllo id = IdDi(c);
        const QString aiuto = desktop::CheCosE(b.s(), id);
        EXPECT_FALSE(aiuto.isEmpty()) << c.nome;
        disegnati += aiuto.contains(QStringLiteral("<img"));
        std::string nome = std::string(c.modulo) + "." + std::string(c.nome);
        if (c.indice >= 0) nome += "(" + std::to_string(c.indice) + ")";
        const QWidget *w = b.f.ponte().widget(id);
        ASSERT_NE(w, nullptr) << nome;
        EXPECT_FALSE(w->toolTip().isEmpty()) << nome;
        EXPECT_FALSE(w->accessibleName().isEmpty()) << nome;
        ++visti;
    }
    EXPECT_GT(visti, 110U);
    EXPECT_GT(disegnati, 50U);
    // What else takes the keys has a name too.
    for (const QWidget *w : b.f.findChildren<QWidget *>()) {
        const bool figlio =
            w->objectName().startsWith(QStringLiteral("qt_")) || qobject_cast<const QAbstractScrollArea *>(w->parent());
        if (!(w->focusPolicy() & Qt::TabFocus) || !w->isVisible() || figlio || qobject_cast<const QMenu *>(w)) continue;
        EXPECT_FALSE(w->accessibleName().isEmpty()) << w->metaObject()->className() << ' ' << w->objectName().toStdString();
    }
    // The control's own caption and the keys stand in the tip.
    EXPECT_TRUE(b.w("txtX0")->parentWidget());
    EXPECT_EQ(b.f.ponte().didascalia(TrovaControllo("lblX0")), QStringLiteral("Bordo sinistro, x0"));
    EXPECT_TRUE(b.w("Tavolo1.cmdPulisci")->toolTip().contains(QStringLiteral("Clear")));
    EXPECT_TRUE(b.w("cmdRun")->toolTip().contains(QStringLiteral("F5")));
    EXPECT_EQ(b.w("cmdTrasforma")->toolTip().count(QStringLiteral("Trasforma in quadrante verticale equivalente")), 2);
}

TEST(Guscio, TabFollowsTheEye) {
    BancoFinestra b;
    b.f.resize(1360, 860);
    QTest::qWait(50);
    const std::vector<QWidget *> regioni{b.f.findChild<QToolBar *>(QStringLiteral("barra")), b.w("Panel3D1"),
                                         b.f.findChild<QWidget *>(QStringLiteral("frmTavolo")),
                                         b.w("chkOreAstronomiche")->parentWidget()->parentWidget()->parentWidget()};
    const auto regione = [&](const QWidget *w) {
        for (std::size_t i = 0; i < regioni.size(); ++i)
            if (regioni[i]->isAncestorOf(w)) return static_cast<int>(i);
        return -1;
    };
    int prima = -1, visti = 0;
    QPoint dove;
    const QWidget *inizio = b.w("cmdRun"), *w = inizio;
    std::string nome;
    do {
        const int r = regione(w);
        if (r >= 0 && w->isVisible() && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus)) {
            const QPoint qui = w->mapTo(&b.f, QPoint(0, w->height() / 2));
            EXPECT_GE(r, prima) << w->objectName().toStdString() << " after " << nome;
            constexpr int RIGA = 8;
            if (r == prima) {
                EXPECT_TRUE(qui.y() > dove.y() + RIGA || (qui.y() > dove.y() - RIGA && qui.x() > dove.x()))
                    << w->objectName().toStdString() << " after " << nome;
            }
            prima = r;
            dove = qui;
            nome = w->objectName().toStdString();
            ++visti;
        }
        w = w->nextInFocusChain();
    } while (w != inizio);
    EXPECT_EQ(prima, 3);
    EXPECT_GT(visti, 60);
}

TEST(Guscio, ALineHasLooksOfItsOwn) {
    BancoFinestra b;
    b.f.primoQuadrante();
    b.aspettaVivo();
    b.vivo()->setChecked(false);
    desktop::Foglio &foglio = b.f.quadro().foglio();
    const std::pair chi{desktop::Strato(Specie::Ora), 10.0};
    const auto quante = [&](const desktop::StileFoglio &stile, auto quali) {
        const Tavolo::DisegnoTenuto d = desktop::Vesti(b.s().tavolo, stile, true);
        return std::count_if(d.lista.Linee.begin(), d.lista.Linee.end(), quali);
    };
    desktop::StileFoglio stile = foglio.stile();
    EXPECT_FALSE(desktop::Ritoccato(stile));
    constexpr Colore VERDE = 0x12ab34;
    stile.sue[chi] = {VERDE, false, 4, true};
    EXPECT_TRUE(desktop::Ritoccato(stile));
    const auto verdi = quante(stile, [](const RecLinea &r) { return r.colore == VERDE && r.Spessore == 4; });
    const auto tutte = quante(foglio.stile(), [](const RecLinea &) { return true; });
    stile.nascoste.insert(chi);
    EXPECT_GT(verdi, 0);
    EXPECT_EQ(quante(stile, [](const RecLinea &) { return true; }), tutte - verdi);
    // A polyline takes its own claim's colour to its end, and figures behind it theirs.
    Tavolo t;
    const auto cerchio = [&](double ora) {
        const Pretendi p(t, Specie::Ora, ora);
        t.TracciaCerchio(0, 0, 0.1, 1);
    };
    cerchio(9);
    t.xPlineStart("curva");
    for (const double x : {0.1, 0.2}) t.xPLineVertex(x, 0, 2, "curva");
    t.xPlineEnd("curva");
    cerchio(10);
    const auto figure = desktop::Vesti(t, stile, true).lista.Figure;
    std::string colori;
    for (const RecFigura &f : figure) colori += f.colore == VERDE ? 'v' : '-';
    EXPECT_EQ(colori, "-----v");
    stile.sue[{desktop::Strato(Specie::Nessuna), 0.0}] = {VERDE, false, 0, true};
    for (const RecFigura &f : desktop::Vesti(t, stile, true).lista.Figure) colori += f.colore == VERDE ? 'v' : '-';
    EXPECT_EQ(colori.substr(6), "-vvvvv");
}

TEST(Guscio, ASouthernDialIsMirroredByItself) {
    BancoFinestra b;
    const auto specchio = [&] { return b.s().tavolo.FattoreX; };
    b.spunta("chkOreAstronomiche");
    // Run, run again, back to the North, live, undone: mirrored when southern, whatever came before.
    const std::pair<const char *, double> passi[] = {{"-33", -1}, {"-34", -1}, {"45", 1}, {"-20", -1}};
    for (const bool vivo : {false, true}) {
        b.vivo()->setChecked(vivo);
        for (const auto &[lat, atteso] : passi) {
            b.scrivi("txtLAT", lat);
            vivo ? b.aspettaVivo() : b.premi("cmdRun");
            EXPECT_EQ(specchio(), atteso) << lat << ' ' << vivo;
            EXPECT_EQ(b.campo("txtLAT"), lat);
        }
    }
    b.vivo()->setChecked(false);
    EXPECT_TRUE(b.dialoghi.avvisi.empty());
    // The user's own mirror stays turned over his dial's.
    b.premi("Tavolo1.cmdInvX");
    EXPECT_EQ(specchio(), 1);
    b.premi("cmdRun");
    EXPECT_EQ(specchio(), 1);
}

TEST(Guscio, StepsAreAList) {
    BancoFinestra b;
    auto *storia = b.f.findChild<QUndoView *>(QStringLiteral("elencoPassi"));
    ASSERT_NE(storia, nullptr);
    b.scrivi("txtDec", "12");
    b.spunta("ck_Sustilare");
    b.scrivi("txtInc", "3");
    ASSERT_EQ(storia->model()->rowCount(), 4);  // the start and three steps
    EXPECT_EQ(storia->model()->index(2, 0).data().toString(), QStringLiteral("Sustilare"));
    b.f.passi().setIndex(1);
    EXPECT_EQ(b.campo("txtDec"), "12");
    EXPECT_EQ(b.campo("txtInc"), "25.2");
    EXPECT_FALSE(b.w<QCheckBox>("ck_Sustilare")->isChecked());
}

TEST(Guscio, ExamplesHavePicturesAndOpenDrawn) {
    BancoFinestra b;
    QDir().mkpath(QStringLiteral("../examples"));
    const QString qui = QDir::currentPath();
    for (const QFileInfo &f : QDir(QStringLiteral(OMBRELIA_RADICE "/examples")).entryInfoList({QStringLiteral("*.omb")}))
        QFile::copy(f.filePath(), QStringLiteral("../examples/") + f.fileName());
    b.f.findChild<QAction *>(QStringLiteral("comando.esempi"))->trigger();
    auto *esempi = b.f.findChild<QDialog *>(QStringLiteral("esempi"));
    ASSERT_NE(esempi, nullptr);
    auto *lista = esempi->findChild<QListWidget *>(QStringLiteral("listaEsempi"));
    ASSERT_GE(lista->count(), 6);
    ASSERT_TRUE(QTest::qWaitFor([&] { return static_cast<desktop::Esempi *>(esempi)->pronti(); }, 20000));
    for (int i = 0; i < lista->count(); ++i) {
        const QImage ritratto = immagine(lista->item(i)->icon(), 200).convertToFormat(QImage::Format_RGB32);
        std::set<QRgb> tinte;
        for (int y = 0; y < ritratto.height(); ++y)
            for (int x = 0; x < ritratto.width(); ++x) tinte.insert(ritratto.pixel(x, y));
        EXPECT_GT(tinte.size(), 20U) << lista->item(i)->text().toStdString();
    }
    for (const bool vivo : {false, true}) {
        b.vivo()->setChecked(vivo);
        esempi->show();
        lista->setCurrentRow(vivo ? 2 : 4);
        QTest::keyClick(lista, Qt::Key_Return);
        b.aspettaVivo();
        EXPECT_FALSE(esempi->isVisible());
        EXPECT_FALSE(b.s().tavolo.lista().Linee.empty());
        EXPECT_TRUE(b.f.percorso().isEmpty());
        EXPECT_FALSE(b.f.modificato());
    }
    b.vivo()->setChecked(false);
}

// Of each language: its pictures and anchors are there, F1 finds what it looks for, every key of the window is told.
TEST(Guscio, TheManualSpeaksOfTheWindow) {
    BancoFinestra b;
    const QDir docs(QStringLiteral(OMBRELIA_RADICE "/docs"));
    const auto trova = [](const QString &testo, const char *cosa) {
        QStringList tutti;
        for (auto i = QRegularExpression(QString::fromUtf8(cosa)).globalMatch(testo); i.hasNext();) tutti << i.next().captured(1);
        return tutti;
    };
    for (const auto &[lingua, maiuscole] : {std::pair{"it", "Maiusc"}, {"en", "Shift"}, {"fr", "Maj"}}) {
        SCOPED_TRACE(lingua);
        QFile file(docs.filePath(QStringLiteral("manual-%1.md").arg(QLatin1String(lingua))));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString testo = QString::fromUtf8(file.readAll());
        const desktop::ManualeLetto m = desktop::LeggiManuale(testo);
        EXPECT_EQ(m.titoli.size(), testo.count(QStringLiteral("<a id=")));
        EXPECT_FALSE(m.testo.contains(QStringLiteral("<a id=")));
        for (const desktop::ParteManuale &p : desktop::PartiManuale())
            EXPECT_FALSE(m.titoli.value(desktop::Q(p.ancora)).isEmpty()) << p.ancora;
        const QStringList dentro = trova(testo, "\\]\\(#(\\w+)\\)"), fuori = trova(testo, "\\]\\(([^#)]+)\\)");
        EXPECT_EQ(dentro.size(), m.titoli.size() - 1) << "the contents name every part";
        for (const QString &a : dentro) EXPECT_TRUE(m.titoli.contains(a)) << a.toStdString();
        for (const QString &f : fuori) EXPECT_TRUE(f.startsWith(QStringLiteral("http")) || docs.exists(f)) << f.toStdString();
        const QString tasti = testo.mid(testo.indexOf(QStringLiteral("<a id=\"tasti\">")))
                                  .replace(QLatin1String(maiuscole), QStringLiteral("Shift"));
        for (const QAction *a : b.f.findChildren<QAction *>()) {
            const auto *dove = qobject_cast<QWidget *>(a->parent());
            if (dove && dove->window() != &b.f) continue;  // a form's own
            for (const QKeySequence &k : a->shortcuts())
                EXPECT_TRUE(tasti.contains(QRegularExpression(
                    QStringLiteral("[ ]%1[ ,]").arg(QRegularExpression::escape(k.toString(QKeySequence::PortableText))))))
                    << a->objectName().toStdString() << ' ' << k.toString().toStdString();
        }
    }
}

TEST(Guscio, TheManualOpensWhereTheKeysAre) {
    BancoFinestra b;
    // The manual lies beside the data.
    const QString casa = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QStringLiteral(OMBRELIA_RADICE "/data")));
    const auto qui = [&](QWidget *chi) {
        desktop::ApriManuale(b.f.ponte(), &b.f, desktop::AncoraDi(chi));
        auto *t = b.f.findChild<QTextBrowser *>(QStringLiteral("manuale"));
        EXPECT_TRUE(t && t->toPlainText().size() > 10000);
        const QString titolo = t && t->textCursor().position() > 0 ? t->textCursor().block().text() : QString();
        if (t) delete t->window();
        return titolo.toStdString();
    };
    EXPECT_EQ(qui(b.w("txtLAT")), "Luogo, piano, gnomone");
    EXPECT_EQ(qui(b.w("ck_Italiche")), "Scegliere le linee e disegnare");
    EXPECT_EQ(qui(b.f.findChild<QWidget *>(QStringLiteral("tavolaCertificato"))), "Il certificato");
    EXPECT_EQ(qui(b.f.findChild<QWidget *>(QStringLiteral("elencoPassi"))), "Annullare: i passi fatti");
    EXPECT_EQ(qui(nullptr), "");  // its beginning
    // A box that must be answered first has its own, over it.
    QDialog box(&b.f);
    box.setObjectName(QStringLiteral("perMacchina"));
    box.setModal(true);
    auto *campo = new QLineEdit(&box);
    box.show();
    campo->setFocus();
    QTest::keyClick(campo, Qt::Key_F1);
    const auto *suo = box.findChild<QTextBrowser *>(QStringLiteral("manuale"));
    ASSERT_TRUE(suo && suo->isVisible());
    EXPECT_GT(suo->textCursor().position(), 0);
    QDir::setCurrent(casa);
}

}  // namespace
}  // namespace ombrelia
