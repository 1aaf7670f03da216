// What a run remembers of the one before never shows in a drawing.
#include <gtest/gtest.h>

#include <thread>

#include "comuni/prova.h"

namespace ombrelia {
namespace {

using prova::Banco;

TEST(Ricordo, ADialAfterOthersIsTheOneOfBefore) {
    const struct {
        const char *lat, *dec, *inc, *fraz, *x1;
    } quadranti[] = {{"45", "18", "0", "2", "2"},  {"45", "-40", "0", "2", "2"}, {"45", "18", "0", "2", "0.3"},
                     {"52", "18", "0", "1", "2"},  {"45", "18", "0", "4", "2"},  {"45", "18", "30", "2", "2"},
                     {"-34", "18", "0", "2", "2"}, {"0", "18", "0", "2", "2"},   {"45", "18", "0", "2", "2"}};
    for (const bool verticale : {false, true}) {
        for (const auto &q : quadranti) {
            const auto disegna = [&] {
                Banco b({{"txtLAT", q.lat}, {"txtDec", q.dec}, {"txtInc", q.inc}, {"TxtFraz", q.fraz}, {"txtX1", q.x1}},
                        {"ck_Italiche", "ck_babiloniche", "ckTemp"});
                if (verticale) b.spunta("CkUNI");
                b.esegui();
                return ListaTesto(b.lista());
            };
            const std::string dopo = disegna();
            std::string primo;
            // A thread of its own remembers nothing yet.
            std::thread([&] { primo = disegna(); }).join();
            EXPECT_GT(dopo.size(), 1000u);
            EXPECT_TRUE(dopo == primo) << q.lat << ' ' << q.dec << ' ' << q.inc << ' ' << q.fraz << ' ' << q.x1;
        }
    }
}

}  // namespace
}  // namespace ombrelia
