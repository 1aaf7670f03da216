// A window on its bench: its user's hand, and boxes that answer at once.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "app/progetto.h"
#include "comuni/prova.h"
#include "desktop/dialoghi_prova.h"
#include "desktop/finestra.h"

namespace ombrelia::prova {

struct BancoFinestra {
    DialoghiDiProva dialoghi;
    desktop::Finestra f{dialoghi};

    BancoFinestra() {
        f.show();
        QApplication::setActiveWindow(&f);
        QCoreApplication::processEvents();
    }
    template <class T = QWidget>
    T *w(std::string_view nome) {
        return qobject_cast<T *>(f.ponte().widget(TrovaControllo(nome)));
    }
    void scrivi(std::string_view nome, const char *testo) {
        auto *campo = w<QLineEdit>(nome);
        campo->setFocus();
        campo->selectAll();
        QTest::keyClicks(campo, QString::fromUtf8(testo));
    }
    void premi(std::string_view nome) { QTest::mouseClick(w(nome), Qt::LeftButton); }
    // A box is pressed where its mark is.
    void spunta(std::string_view nome) { w<QAbstractButton>(nome)->click(); }
    // An entry of the menus, by its name in the table of commands.
    void comando(const char *nome) {
        auto *a = f.findChild<QAction *>(QStringLiteral("comando.") + QLatin1String(nome));
        if (!a) a = f.findChild<QAction *>(QLatin1String(nome));
        ASSERT_NE(a, nullptr) << nome;
        a->trigger();
    }
    void adatta() { f.findChild<QAbstractButton *>(QStringLiteral("Adatta"))->click(); }
    QAbstractButton *vivo() { return f.findChild<QAbstractButton *>(QStringLiteral("disegnaMentreScrivi")); }
    void aspettaVivo() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !f.vivo().attivo(); }, 20000));
        QCoreApplication::processEvents();
    }
    [[nodiscard]] Sessione &s() { return f.sessione(); }
    [[nodiscard]] std::string lista() const { return ListaTesto(const_cast<desktop::Finestra &>(f).sessione().tavolo.lista()); }
    [[nodiscard]] std::string campo(std::string_view nome) { return s().testo(TrovaControllo(nome)); }
};

}  // namespace ombrelia::prova
