// Makes the manual's pictures of the window. Usage: schermate FOLDER [it|en|fr], in an empty directory; what it writes is to be
// made smaller by pngquant.
#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QPainter>
#include <QSettings>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/dialoghi_prova.h"
#include "desktop/finestra.h"
#include "desktop/lingua_finestra.h"
#include "desktop/stile.h"
#include "desktop/vista.h"
#include "paint/dispositivo_qt.h"

using namespace ombrelia;

namespace {

// The dial alone, for the first page of the house: the window's inks on paper, without the run's caption.
void quadrante(desktop::Finestra &f, const QString &file) {
    for (const auto &[nome, testo] : {std::pair{"TxtStilo", "160"},
                                      {"txtX0", "-430"},
                                      {"txtX1", "430"},
                                      {"txtY0", "30"},
                                      {"txtY1", "-520"},
                                      {"txtAltezzaEtichette", "13"}})
        if (const auto id = CercaControllo(nome)) app::Imposta(f.sessione(), *id, testo);
    f.ponte().sincronizza();
    for (const char *n : {"ckFunzione", "ckCartiglio"})
        if (auto *b = qobject_cast<QAbstractButton *>(f.ponte().widget(*CercaControllo(n))); b && !b->isChecked()) b->click();
    f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click();
    for (const char *n : {"Tavolo1.cmdPulisci", "cmdRun"}) f.ponte().premi(*CercaControllo(n));
    Tavolo t;
    desktop::VestiFoglio(f.sessione().tavolo, desktop::StileDi(false), false, t);
    auto d = t.CopiaDisegno();
    d.lista.Testi.clear();
    t.MettiDisegno(std::move(d));
    constexpr int LARGA = 1200;
    const double u = LARGA / t.QuadranteL();
    QImage i(LARGA, static_cast<int>(t.QuadranteH() * u), QImage::Format_RGB32);
    i.fill(Qt::white);
    {
        QPainter p(&i);
        p.setRenderHint(QPainter::Antialiasing);
        paint::PosaDipinta posa;
        posa.fattore = u / Tavolo::ScalaBase * t.Scala();
        posa.penna = 2;
        posa.punto = 2;
        paint::DispositivoQt dispositivo(p, paint::Supporto::SchermoChiaro, posa);
        paint::Dipingi(t, dispositivo);
    }
    i.save(file, "PNG");
}

}  // namespace

int main(int argc, char **argv) {
    QTemporaryDir casa;
    qputenv("HOME", casa.path().toUtf8());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, casa.path());
    QApplication a(argc, argv);
    desktop::VestiApplicazione(a);
    const QString dove = a.arguments().value(1, QStringLiteral(".")), lingua = a.arguments().value(2, QStringLiteral("it"));
    if (lingua != QStringLiteral("it")) desktop::RicordaLingua(LinguaDi(lingua.toStdString()), app::Esito::Fatto);
    prova::DialoghiDiProva dialoghi;
    desktop::Finestra f(dialoghi);
    f.resize(1280, 800);
    f.show();
    const auto scatta = [&](QWidget *w, const char *nome) {
        QTest::qWait(150);
        w->grab()
            .toImage()
            .convertToFormat(QImage::Format_RGB888)
            .save(QStringLiteral("%1/%2-%3.png").arg(dove, QString::fromLatin1(nome), lingua), "PNG", 0);
    };
    const auto imposta = [&](std::initializer_list<std::pair<const char *, const char *>> campi) {
        for (const auto &[nome, testo] : campi) app::Imposta(f.sessione(), *CercaControllo(nome), testo);
        f.ponte().sincronizza();
    };
    const auto premi = [&](std::initializer_list<const char *> nomi) {
        for (const char *n : nomi) f.ponte().premi(*CercaControllo(n));
    };
    const auto adatta = [&] { f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click(); };
    const auto spunta = [&](std::initializer_list<const char *> nomi) {
        for (const char *n : nomi)
            if (auto *b = qobject_cast<QAbstractButton *>(f.ponte().widget(*CercaControllo(n))); b && !b->isChecked()) b->click();
    };
    const auto comando = [&](const char *nome) {
        f.findChild<QAction *>(QStringLiteral("comando.") + QLatin1String(nome))->trigger();
    };
    const auto dialogo = [&](const char *nome, const char *immagine) {
        auto *d = f.findChild<QDialog *>(QLatin1String(nome));
        QTest::qWait(1500);
        scatta(d, immagine);
        d->close();
    };
    const auto molo = [&](const char *nome, bool aperto) {
        auto *d = f.findChild<QDockWidget *>(QLatin1String(nome));
        d->setVisible(aperto);
        if (aperto) d->raise();
    };

    premi({"mnuAusiliaria"});
    QWidget *strumenti = f.moduli().modulo("frmDeclin");
    imposta({{"frmDeclin.txtLAT", "45.0703"},
             {"frmDeclin.txtLON", "-7.6869"},
             {"frmDeclin.txtDay", "21"},
             {"frmDeclin.txtMonth", "6"},
             {"frmDeclin.txtYear", "2026"},
             {"frmDeclin.txtHH", "9"},
             {"frmDeclin.txtMM", "40"},
             {"frmDeclin.txtSS", "0"},
             {"frmDeclin.txtAngle", "-57.3"}});
    premi({"frmDeclin.cmdCalcola", "frmDeclin.cmdTrans"});
    // Three readings of a wall 18 degrees West of South, each a tenth of a degree off or less.
    if (auto *letture = strumenti->findChild<QTableWidget *>(QStringLiteral("letture"))) {
        const char *righe[][3] = {
            {"23/11/2026", "8:30", "-57.9"}, {"23/11/2026", "10:00", "-37.1"}, {"23/11/2026", "11:30", "-14.25"}};
        int r = 0;
        for (const auto &riga : righe) {
            for (int c = 0; c < 3; ++c)
                if (letture->item(r, c)) letture->item(r, c)->setText(QString::fromLatin1(riga[c]));
            ++r;
        }
    }
    scatta(strumenti, "strumenti");
    if (auto *schede = strumenti->findChild<QTabWidget *>()) schede->setCurrentIndex(0);
    scatta(strumenti, "letture");
    premi({"frmDeclin.cmdInfo"});
    scatta(f.moduli().modulo("frmInfoDec"), "istruzioni");
    f.moduli().modulo("frmInfoDec")->close();
    premi({"frmDeclin.cmdExit"});

    spunta({"ChCentimetro"});
    imposta({{"txtDec", "18"},
             {"txtInc", "0"},
             {"TxtStilo", "200"},
             {"txtX0", "-500"},
             {"txtX1", "500"},
             {"txtY0", "40"},
             {"txtY1", "-760"},
             {"TxtFraz", "2"},
             {"txtDelta", "23.445"},
             {"txtLuogo", "Torino"},
             {"txtMotto", "SINE SOLE SILEO"}});
    spunta({"ck_Etna", "chkOreAstronomiche", "Ck_DayLightCurves", "ck_Equinoziale", "ck_Lemniscate", "ckEtichette",
            "ckEtichetteRomane", "ckCorretta"});
    adatta();
    premi({"Tavolo1.cmdPulisci", "cmdRun"});
    comando("tutto");
    QTest::qWait(1500);
    scatta(&f, "quadrante");
    molo("certificato", true);
    QTest::qWait(500);
    scatta(f.findChild<QWidget *>(QStringLiteral("pannelloCertificato")), "certificato");
    molo("certificato", false);
    comando("impagina");
    dialogo("pagineCarta", "pagine");
    comando("perMacchina");
    dialogo("perMacchina", "macchina");
    premi({"optHorae"});
    scatta(f.moduli().modulo("Form2"), "tabella");
    f.moduli().modulo("Form2")->close();

    if (lingua == QStringLiteral("it")) quadrante(f, dove + QStringLiteral("/parete_torino.png"));
    return 0;
}
