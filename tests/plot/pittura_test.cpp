// Clipping and the mirror buttons; what is painted stands in the table of drawings.
#include <gtest/gtest.h>

#include "comuni/prova.h"
#include "registratore.h"

namespace ombrelia {
namespace {

TEST(Rette, MeetingAndParallel) {
    const auto q = IntersezioneDueRette(2, -7, 2, 9, -1, 3, 5, 6);
    ASSERT_TRUE(q);
    EXPECT_DOUBLE_EQ(q->x, 2);
    EXPECT_DOUBLE_EQ(q->y, 4.5);
    EXPECT_FALSE(IntersezioneDueRette(0, 0, 1, 1, 0, 1, 1, 2));
    EXPECT_FALSE(IntersezioneDueRette(0, 0, 0, 0, 0, 1, 1, 2));
    EXPECT_FALSE(IntersezioneDueRette(0, 0, 1e200, 1, 0, 1, -1e200, 1e200));
}

TEST(Ritaglio, Cases) {
    Tavolo t;
    prova::Disegna(t, "F 0.4 0.2 0.2 0.1");
    for (const auto &r : prova::Tabella("ritaglio.txt")) {
        double c[9];
        for (std::size_t i = 0; i < 9; ++i) c[i] = Val(r.at(i + 1)).v;
        for (const std::size_t i : {1U, 3U, 6U, 8U}) c[i] = -c[i];  // the table's y grows downward
        EXPECT_EQ(t.quadrante().RitagliaSegmento(c[0], c[1], c[2], c[3]), c[4]) << r[0];
        for (int i = 0; i < 4; ++i) EXPECT_NEAR(c[i], c[5 + i], 1e-12) << r[0] << " " << i;
    }
}

TEST(Specchi, Buttons) {
    Tavolo t;
    prova::Registratore d;
    prova::Disegna(t, "F 0.4 0.2 0.2 0.1;L 0 0 0.1 0.05 1 Ore");
    t.dispositivo = &d;
    for (const char *linea : {"L 11340 5670 5670 8505 1 1", "L 11340 5670 5670 2835 1 1", "L 11340 5670 17010 2835 1 1",
                              "L 11340 5670 17010 8505 1 1"}) {
        if (t.FattoreX == t.FattoreY) t.cmdInvX();
        else t.cmdInvY();
        EXPECT_EQ(d.atti.back(), linea);
    }
    EXPECT_EQ(t.lista().Linee[0].X2, 0.1) << "the record keeps its values";
}

}  // namespace
}  // namespace ombrelia
