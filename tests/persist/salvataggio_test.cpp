// Tags by first occurrence, and the quoted file around them.
#include "persist/salvataggio.h"

#include "comuni/cartella.h"
#include "comuni/prova.h"
#include "core/campi.h"

namespace ombrelia {
namespace {

TEST(Salvataggio, TagsAtTheirFirstOccurrence) {
    for (const auto &r : prova::Tabella("etichette.txt")) {
        const TestoProgetto t(r.at(0));
        EXPECT_EQ(t.EstraiTag(' ' + r.at(1)), r.at(2)) << r[0];
        EXPECT_EQ(ValoreTag(t.EstraiTag(r[1])), r.at(3)) << r[0];
    }
    const TestoProgetto foglio("<a>6</a><_a>5</_A><_Shiftx>1.5E-02</_Shiftx>");
    EXPECT_EQ(foglio.EstraiTagSheet("A"), "<_a>5");
    EXPECT_EQ(ValoreTag(foglio.EstraiTagSheet("ShiftX")), "1.5E-02");
}

using SalvataggioTest = prova::InCartella;

TEST_F(SalvataggioTest, WhatAProjectHolds) {
    EXPECT_EQ(ProgettoDaTesto("<a>1</a>\r\n<_b>2</_b>"), "\"<a>1</a>\r\n<_b>2</_b>\"\r\n");
    const std::pair<std::string, std::optional<std::string>> casi[] = {
        {ProgettoDaTesto("uno\r\ndue, tre"), "uno\r\ndue, tre"},
        {ProgettoDaTesto("prima \" dopo"), "prima "},
        {"senza virgolette, resto", "senza virgolette"},
        {"\"perch\xE9\"\r\n", "perché"},
        {"\"mai chiuso", "mai chiuso"},
        {"", {}},
        {"\"\"\r\n", {}},
        {"\r\n\"dopo\"", {}},
        {"\"" + std::string(FILE_MASSIMO, 'x') + "\"", {}},
    };
    for (const auto &[file, testo] : casi) {
        scrivi("p.omb", file);
        EXPECT_EQ(LeggiProgetto("p.omb"), testo) << file.substr(0, 50);
    }
    EXPECT_EQ(LeggiProgetto("manca.omb"), std::nullopt);
    EXPECT_EQ(LeggiProgetto("."), std::nullopt);
}

}  // namespace
}  // namespace ombrelia
