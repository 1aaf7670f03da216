// Transform, clipping, mirrors and replay, heard by a recording device.
#include <gtest/gtest.h>

#include "plot/lista_testo.h"
#include "plot/tavolo.h"
#include "registratore.h"

namespace ombrelia {
namespace {

using prova::Atti;
using prova::Registratore;

// A sheet of 0.4 by 0.2 metres whose origin is its middle.
struct Foglio : testing::Test {
    Foglio() {
        t.QuadranteL(0.4);
        t.QuadranteH(0.2);
        t.ShiftX(0.2);
        t.ShiftY(0.1);
        t.dispositivo = &d;
    }
    Tavolo t;
    Registratore d;
};
using Ritaglio = Foglio;
using Replica = Foglio;

TEST(Rette, IncontroEParallele) {
    const auto p = IntersezioneDueRette(0, 0, 1, 1, 0, 2, 1, 1);
    ASSERT_TRUE(p);
    EXPECT_DOUBLE_EQ(p->x, 1);
    EXPECT_DOUBLE_EQ(p->y, 1);
    const auto q = IntersezioneDueRette(2, -7, 2, 9, -1, 3, 5, 6);
    ASSERT_TRUE(q);
    EXPECT_DOUBLE_EQ(q->x, 2);
    EXPECT_DOUBLE_EQ(q->y, 4.5);
    EXPECT_FALSE(IntersezioneDueRette(0, 0, 1, 1, 0, 1, 1, 2));
    EXPECT_FALSE(IntersezioneDueRette(0, 0, 0, 0, 0, 1, 1, 2));
    EXPECT_FALSE(IntersezioneDueRette(0, 0, 1e200, 1, 0, 1, -1e200, 1e200));
}

TEST_F(Ritaglio, Casi) {
    struct Riga {
        const char *nome;
        double da[4];
        int esito;
        double a[4];
    };
    const Riga casi[] = {
        {"inside", {-0.1, 0, 0.1, 0.05}, 2, {-0.1, 0, 0.1, 0.05}},
        {"on the edges", {-0.2, -0.1, 0.2, 0.1}, 2, {-0.2, -0.1, 0.2, 0.1}},
        {"leaves right", {0, 0, 0.4, 0.04}, 2, {0, 0, 0.2, 0.02}},
        {"enters from the left", {-0.4, 0, 0, 0}, 2, {-0.2, 0, 0, 0}},
        {"leaves below", {0.1, 0, 0.1, 3}, 2, {0.1, 0, 0.1, 0.1}},
        {"leaves through the far side of two hits", {0.15, 0, -1, 0}, 2, {0.15, 0, -0.2, 0}},
        {"out from the edge itself", {0.2, 0, 0.5, 0}, 2, {0.2, 0, 0.2, 0}},
        {"crosses level", {-1, 0.05, 1, 0.05}, 2, {0.2, 0.05, -0.2, 0.05}},
        {"crosses upright", {0.1, 1, 0.1, -1}, 2, {0.1, -0.1, 0.1, 0.1}},
        {"crosses a corner region", {0.1, -0.2, 0.3, 0}, 1, {0.2, -0.1, 0.2, -0.1}},
        {"crosses both corners", {-0.4, 0.2, 0.4, -0.2}, 2, {0.2, -0.1, -0.2, 0.1}},
        {"wholly beyond, though its line would hit", {1, 0, 2, 0}, 0, {1, 0, 2, 0}},
        {"outside and askew", {-1, 0.5, 1, 0.6}, 0, {-1, 0.5, 1, 0.6}},
        {"a point outside", {1, 1, 1, 1}, 0, {1, 1, 1, 1}},
        {"far out", {-1e200, -1e200, 1e200, 0.9e200}, 0, {-1e200, -1e200, 1e200, 0.9e200}},
    };
    for (const Riga &r : casi) {
        double x1 = r.da[0], y1 = r.da[1], x2 = r.da[2], y2 = r.da[3];
        EXPECT_EQ(t.RitagliaSegmento(x1, y1, x2, y2), r.esito) << r.nome;
        EXPECT_NEAR(x1, r.a[0], 1e-12) << r.nome;
        EXPECT_NEAR(y1, r.a[1], 1e-12) << r.nome;
        EXPECT_NEAR(x2, r.a[2], 1e-12) << r.nome;
        EXPECT_NEAR(y2, r.a[3], 1e-12) << r.nome;
    }
}

TEST_F(Replica, Trasformazione) {
    t.Scala(2);
    d.atti.clear();
    t.ForeColor = 9;
    t.xLine(0, 0, 1, 0, 5, "a");
    t.xLine(1, 1, 2, 2, 5, "a");  // off the sheet: recorded, not painted
    t.xPset(-0.1, 0.05, 6);
    t.xBox(-0.2, -0.1, 0.4, 0, 7, true);
    t.xCircle(0, 0.1, 0.01, 8, -1, 0.5, 1, 2);
    t.Dati("testo", 0.1, 0);
    const Atti atteso{"L 5670 2835 11340 2835 5 1", "P 2835 4252.5 6", "B 0 0 17010 2835 7 pieno",
                      "C 5670 5670 283.5 8 -1 1 2 0.5", "T 8505 2835 9 testo"};
    EXPECT_EQ(d.atti, atteso);
    d.atti.clear();
    t.Refresh();
    EXPECT_EQ(d.atti, (Atti{"Cls", atteso[4], atteso[0], atteso[1], atteso[2], atteso[3]})) << "texts come first";
    EXPECT_EQ(t.lista().Linee.size(), 2U);
}

TEST_F(Replica, LasciaListaEPosizione) {
    t.xPlineStart("p");
    t.xBox(0, 0, 0.01, 0.01, 1, false, "b");
    t.xPLineVertex(0, 0, 2, "p");
    t.xPLineVertex(0.1, 0, 3, "p");
    EXPECT_EQ(d.atti.size(), 1U) << "a polyline shows only when ended";
    t.xPlineEnd("p");
    EXPECT_EQ(d.atti.back(), "L 11340 5670 17010 5670 3 1");
    t.xPset(0, 0, 1);
    t.Dati("x", 0.05, 0.05);
    const std::string prima = ListaTesto(t.lista());
    const double x = t.xCurrentX(), y = t.xCurrentY();
    t.Refresh();
    d.atti.clear();
    t.Refresh();
    const Atti replica = d.atti;
    d.atti.clear();
    t.Refresh();
    EXPECT_EQ(d.atti, replica);
    EXPECT_EQ(replica.size(), 5U);
    EXPECT_EQ(ListaTesto(t.lista()), prima);
    EXPECT_EQ(t.xCurrentX(), x);
    EXPECT_EQ(t.xCurrentY(), y);
}

TEST_F(Replica, PolilineeDiUnNomePerDue) {
    for (const double y : {0.0, 0.05}) {
        t.xPlineStart("p");
        t.xPLineVertex(0, y, 2, "p");
        t.xPLineVertex(0.1, y, 2, "p");
        t.xPlineEnd("p");
    }
    t.xPlineEnd("mai iniziata");
    t.xPlineStart("mai finita");
    t.xPLineVertex(0, 0, 2, "mai finita");
    t.xPLineVertex(0.1, 0, 2, "mai finita");
    d.atti.clear();
    t.Refresh();
    const std::string seconda = "L 11340 8505 17010 8505 2 1";
    EXPECT_EQ(d.atti, (Atti{"Cls", seconda, seconda}));
}

TEST_F(Replica, Specchi) {
    t.xLine(0, 0, 0.1, 0.05, 1, "Ore");
    t.xLine(0, 0, 0.1, 0.05, 1, "AssiXY");
    t.xLine(0, 0, 0.1, 0.05, 1, "sys:page");
    t.xPset(0.1, 0.05, 1, "AssiXY");
    t.Dati("t", 0.1, 0.05);
    d.atti.clear();
    t.cmdInvX();
    const std::string fermo = "L 11340 5670 17010 8505 1 1";
    EXPECT_EQ(d.atti, (Atti{"Cls", "T 17010 8505 0 t", "L 11340 5670 5670 8505 1 1", fermo, fermo, "P 5670 8505 1"}));
    d.atti.clear();
    t.cmdInvY();
    EXPECT_EQ(d.atti[2], "L 11340 5670 5670 2835 1 1");
    t.cmdInvX();
    t.cmdInvY();
    EXPECT_EQ(t.FattoreX, 1);
    EXPECT_EQ(t.FattoreY, 1);
    EXPECT_EQ(t.lista().Linee[0].X2, 0.1) << "the record keeps its values";
}

TEST_F(Replica, SenzaRegistrare) {
    t.xLine(0, 0, 0.1, 0, 1, "AssiXY", false);
    t.xPset(0, 0, 1, "", false);
    t.xPset(5, 0, 1, "", false);
    t.xBox(0, 0, 0.1, 0.1, 1, false, "", false);
    t.xCircle(0, 0, 0.01, 1, -1, 1, 0, 0, "", false);
    EXPECT_EQ(d.atti.size(), 4U);
    EXPECT_EQ(ListaTesto(t.lista()), "");
    // What overflows the device is skipped, its record stays.
    d.atti.clear();
    t.xBox(0, 0, 1e300, 1, 1, false);
    t.xCircle(0, 0, 1e9, 1);
    EXPECT_TRUE(d.atti.empty());
    EXPECT_EQ(t.lista().Ordine, "BC");
}

}  // namespace
}  // namespace ombrelia
