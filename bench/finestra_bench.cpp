// The window on a platform without a display: from a key to the repainted sheet with everything on, and the first paint.
// Prints medians; needs no answer from anybody.
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdio>

#include "desktop/dialoghi_prova.h"
#include "desktop/finestra.h"
#include "desktop/stile.h"

using namespace ombrelia;

namespace {

double mediana(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// Key to the picture on the sheet, milliseconds: the median of many keys, and the worst.
void tasti(desktop::Finestra &f, const char *come, const char *campo) {
    auto *dove = qobject_cast<QLineEdit *>(f.ponte().widget(*CercaControllo(campo)));
    dove->setFocus();
    std::vector<double> tempi;
    constexpr int VOLTE = 60;
    for (int i = 0; i < VOLTE; ++i) {
        bool dipinto = false;
        QElapsedTimer t;
        f.quadro().foglio().suDipinto = [&](const desktop::Vista &) { dipinto = !f.vivo().attivo(); };
        t.start();
        QTest::keyClick(dove, i % 2 == 0 ? Qt::Key_1 : Qt::Key_Backspace);
        constexpr qint64 BASTA = 20000;
        while (!dipinto && t.elapsed() < BASTA) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        tempi.push_back(static_cast<double>(t.nsecsElapsed()) / 1e6);
    }
    const auto &l = f.sessione().tavolo.lista();
    std::printf("%-28s median %6.1f ms   worst %6.1f ms   (%zu lines, %zu points)\n", come, mediana(tempi),
                *std::max_element(tempi.begin(), tempi.end()), l.Linee.size(), l.Punti.size());
}

}  // namespace

int main(int argc, char **argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir casa;
    qputenv("HOME", casa.path().toUtf8());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, casa.path());
    QElapsedTimer t;
    t.start();
    QApplication a(argc, argv);
    desktop::VestiApplicazione(a);
    prova::DialoghiDiProva dialoghi;
    desktop::Finestra f(dialoghi);
    bool dipinto = false;
    f.quadro().foglio().suDipinto = [&](const desktop::Vista &) { dipinto = true; };
    f.show();
    while (!dipinto && t.elapsed() < 20000) QCoreApplication::processEvents();
    std::printf("first paint of the window    %6.1f ms\n", static_cast<double>(t.nsecsElapsed()) / 1e6);

    const auto imposta = [&](const char *nome, const char *testo) { app::Imposta(f.sessione(), *CercaControllo(nome), testo); };
    const auto prepara = [&](const char *inclinazione) {
        imposta("txtInc", inclinazione);
        for (const char *c :
             {"chkOreAstronomiche", "Ck_DayLightCurves", "ck_Equinoziale", "ck_Sustilare", "ck_Triangolo", "ckZodiac", "ckAlt",
              "ck_Lemniscate", "ckAsr", "CkQibla", "ckAssi", "ck_Orizzonte", "ckAz", "ck_babiloniche"})
            app::Spunta(f.sessione(), *CercaControllo(c), 1);
        app::Adatta(f.sessione());
        f.ponte().sincronizza();
        f.quadro().foglio().tutto();
    };
    f.findChild<QAbstractButton *>("disegnaMentreScrivi")->setChecked(true);
    prepara("25.2");
    tasti(f, "key, plane inclined", "txtDec");
    prepara("0");
    tasti(f, "key, wall", "txtLAT");
    app::Spunta(f.sessione(), *CercaControllo("CkUNI"), 1);
    f.ponte().sincronizza();
    tasti(f, "key, universal dial", "txtLAT");
    f.findChild<QAbstractButton *>("disegnaMentreScrivi")->setChecked(false);

    // What the pointer reads, over the whole sheet.
    std::vector<double> letture;
    desktop::Foglio &foglio = f.quadro().foglio();
    const QSize misura = foglio.viewport()->size();
    for (int x = 20; x < misura.width(); x += 13)
        for (int y = 20; y < misura.height(); y += 17) {
            QElapsedTimer orologio;
            orologio.start();
            foglio.suSotto(foglio.suMondo(QPointF(x, y)));
            letture.push_back(static_cast<double>(orologio.nsecsElapsed()) / 1e6);
        }
    std::printf("%-28s median %6.2f ms   worst %6.2f ms\n", "hover read-out", mediana(letture),
                *std::max_element(letture.begin(), letture.end()));
    return 0;
}
