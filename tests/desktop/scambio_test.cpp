// Projects between page and window: the page's test puts one into a folder, the window saves it there again with a change.
#include "core/campi.h"
#include "core/file.h"
#include "desktop/banco.h"

namespace ombrelia {
namespace {

using prova::BancoFinestra;

TEST(Scambio, AProjectOfThePageOpensAndGoesBack) {
    const QByteArray cartella = qgetenv("OMBRELIA_SCAMBIO");
    if (cartella.isEmpty()) GTEST_SKIP() << "run by tools/prova-pagina";
    BancoFinestra b;
    b.dialoghi.risposte = {cartella.toStdString() + "/pagina.omb"};
    b.f.ponte().premi(TrovaControllo("mnuApri"));
    EXPECT_TRUE(b.dialoghi.avvisi.empty());
    EXPECT_EQ(app::ScriviProgetto(b.s()), LeggiFile(cartella.toStdString() + "/pagina.omb", FILE_MASSIMO));
    EXPECT_EQ(b.w<QLineEdit>("txtDec")->text(), QStringLiteral("-33.5"));
    EXPECT_TRUE(b.w<QAbstractButton>("chkOreAstronomiche")->isChecked());
    b.scrivi("txtInc", "12");
    b.f.ponte().premi(TrovaControllo("mnuSalva"));
    EXPECT_FALSE(b.f.modificato());
}

}  // namespace
}  // namespace ombrelia
