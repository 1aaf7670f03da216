// Makes the manual's pictures of the window. Usage: schermate FOLDER [it|en|fr], in an empty directory that holds the
// dictionary of the language, if any.
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/dialoghi_prova.h"
#include "desktop/finestra.h"
#include "desktop/stile.h"
#include "paint/documenti.h"

using namespace ombrelia;

int main(int argc, char **argv) {
    QTemporaryDir casa;
    qputenv("HOME", casa.path().toUtf8());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, casa.path());
    QApplication a(argc, argv);
    desktop::VestiApplicazione(a);
    const QString dove = a.arguments().value(1, QStringLiteral(".")), lingua = a.arguments().value(2, QStringLiteral("it"));
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
        for (const auto &[nome, testo] : campi) app::Imposta(f.sessione(), TrovaControllo(nome), testo);
        f.ponte().sincronizza();
    };
    const auto premi = [&](std::initializer_list<const char *> nomi) {
        for (const char *n : nomi) f.ponte().premi(n);
    };
    const auto adatta = [&] { f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click(); };
    scatta(&f, "avvio");

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
    scatta(strumenti, "strumenti");
    premi({"frmDeclin.cmdInfo"});
    scatta(f.moduli().modulo("frmInfoDec"), "istruzioni");
    f.moduli().modulo("frmInfoDec")->close();
    premi({"frmDeclin.cmdExit", "ChCentimetro"});

    imposta({{"txtDec", "18"},
             {"txtInc", "0"},
             {"TxtStilo", "200"},
             {"txtX0", "-500"},
             {"txtX1", "500"},
             {"txtY0", "40"},
             {"txtY1", "-760"},
             {"TxtFraz", "1"},
             {"txtArabi", "30"},
             {"txtDelta", "23.445"}});
    premi({"ck_Etna", "chkOreAstronomiche", "Ck_DayLightCurves", "ck_Equinoziale", "ck_Lemniscate", "ck_Triangolo"});
    adatta();
    premi({"cmdRun"});
    scatta(&f, "quadrante");
    premi({"Tavolo1.CmdGriglia"});
    const Tavolo &t = f.sessione().tavolo;
    for (const auto &[c, r] : {std::pair{1, 0}, std::pair{2, 0}, std::pair{1, 1}, std::pair{2, 1}}) {
        const double k = t.ScalaCorrente();
        f.ponte().fai(NESSUN_CONTROLLO, [&] {
            f.sessione().tavolo.MouseDown((c + 0.5) * t.LarghezzaPagina() * k, (r + 0.5) * t.AltezzaPagina() * k);
        });
    }
    premi({"Tavolo1.cmdStampa", "Tavolo1.optSelected"});
    scatta(&f, "pagine");
    QFile pdf(dove + QStringLiteral("/pagine-") + lingua + QStringLiteral(".pdf"));
    if (pdf.open(QIODevice::WriteOnly)) pdf.write(paint::PdfPiastrelle(f.sessione().tavolo));
    premi({"Tavolo1.cmdPCancel", "optHorae"});
    scatta(f.moduli().modulo("Form2"), "tabella");
    premi({"cmdData"});
    scatta(f.moduli().modulo("Form1"), "dati");
    premi({"M_about"});
    scatta(f.moduli().modulo("frmAbout"), "informazioni");
    return 0;
}
